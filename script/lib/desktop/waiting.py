"""Waiting for a condition."""

import time

LIMIT_SECONDS = 60


class Failure(Exception):
    """Something could not be done; the text is the whole message, which a script prints as one line."""


def wait_until(condition, what, limit=LIMIT_SECONDS):
    """Waits until the condition answers something true, and gives that answer."""
    end = time.monotonic() + limit
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"waited {limit} seconds in vain until {what}")
        time.sleep(0.05)
