"""A walk through Kestrel's days under Wine: real mouse and keyboard and what EAGLE does, in random order."""
