"""A desktop for the launcher: a display, a download and a mounted image, with means to see and to act
as a person does."""
