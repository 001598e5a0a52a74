"""What the launcher needs around it to be met as a person meets it: a display, a download, a mounted
image; and that person's eyes and hands."""
