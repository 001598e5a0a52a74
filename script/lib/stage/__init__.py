"""What the launcher needs around it to be shown: a display, a download, a mounted image."""
