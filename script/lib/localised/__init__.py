"""The program's texts in its languages: read for the build, compared by the tests."""
