"""Waiting for a condition."""

import time

LIMIT_SECONDS = 60


class Failure(Exception):
    """Something failed. The text is the whole message, which a script prints as one line."""


def wait_until(condition, what, limit=LIMIT_SECONDS):
    """Waits until the condition returns a true value, and returns that value."""
    end = time.monotonic() + limit
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"waited {limit} seconds in vain until {what}")
        time.sleep(0.05)
