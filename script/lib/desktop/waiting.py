"""Waiting for a condition."""

import time

from desktop.failure import Failure

LIMIT_SECONDS = 60


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
