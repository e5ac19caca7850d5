"""Drives the real programs under Wine: a display, a prefix, the stand-in EAGLE, mouse, keyboard and screenshots."""
