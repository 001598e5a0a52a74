"""A desktop for the launcher: a display, a download, a mounted image; and a person's eyes and
hands."""
