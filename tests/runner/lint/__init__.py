"""The suite of checks that read the source without running it."""

from lint import arrows, form, habits, shell


def run():
    return arrows.check() + form.check() + shell.check() + habits.check()
