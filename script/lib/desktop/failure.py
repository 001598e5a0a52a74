"""What a script tells a person in one line."""


class Failure(Exception):
    """Something could not be done; the text is the whole message."""
