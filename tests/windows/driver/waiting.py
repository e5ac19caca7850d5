"""Waiting for a condition. Nothing in the driver sleeps for a fixed time in the hope that it is enough."""

import time

LOOK_EVERY = 0.05  # seconds between two looks
LIMIT = 20.0  # seconds until a condition counts as not coming true, on a busy machine too


def poll(condition, seconds=LIMIT):
    """Calls the condition until it gives something true, and returns that; its last result when time is up."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result or time.monotonic() >= end:
            return result
        time.sleep(LOOK_EVERY)


def stays(condition, seconds):
    """True if the condition holds at every look for as long: for what must not happen."""
    return not poll(lambda: not condition(), seconds)
