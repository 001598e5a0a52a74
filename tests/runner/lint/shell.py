"""The shell scripts have no known traps in them."""

from lint.tool import check_each, check_with
from project import ROOT, sources


def _is_shell(path):
    with path.open("rb") as file:
        return path.suffix == ".sh" or file.readline().rstrip().endswith(b"bash")


def check():
    scripts = [path for path in sources("script/**/*", "packaging/**/*", ".ci/*") if _is_shell(path)]
    command = ["shellcheck", "--external-sources", "--shell=bash", f"--source-path={ROOT}"]
    return check_each(scripts, lambda path: check_with(command, path))
