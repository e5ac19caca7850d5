"""Counts what a scene checks, and prints a line for each."""


class Checks:
    def __init__(self):
        self.passed = 0
        self.failed = 0

    def say(self, line):
        print(line, flush=True)

    def that(self, condition, words, seen=""):
        """`words` tell what should be so; `seen` is printed when it is not."""
        if condition:
            self.passed += 1
            self.say(f"   ok    {words}")
        else:
            self.failed += 1
            self.say(f"   FAIL  {words}" + (f"; seen: {seen}" if seen != "" else ""))
        return bool(condition)

    def equal(self, seen, expected, words):
        return self.that(seen == expected, words, f"{seen!r} instead of {expected!r}")

    def summary(self):
        return f"{self.passed} passed, {self.failed} failed"
