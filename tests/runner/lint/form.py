"""The source has the form that .clang-format gives it."""

from lint.tool import check_each, check_with
from project import cxx_sources


def check():
    command = ["clang-format", "--dry-run", "-Werror"]
    return check_each(cxx_sources(), lambda path: check_with(command, path))
