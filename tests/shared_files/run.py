#!/usr/bin/env python3
"""Runs shared-file test cases against one kesto binary.

Usage: run.py KESTO CASE...
CASE is a module of this folder (parallel_writers, groupware_races, planted_links,
killed_runs, refused_runs, two_accounts, kept_modes), optionally followed by .Class
or .Class.test. Each test works in a fresh temporary directory (TMPDIR) with its own
settings file. Exits 0 when every case passed or was skipped."""
import os
import sys
import unittest

# The source tree stays clean: no __pycache__ beside the modules.
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    harness.KESTO = os.path.abspath(sys.argv[1])
    if not os.access(harness.KESTO, os.X_OK):
        sys.exit("%s is not an executable" % harness.KESTO)
    suite = unittest.defaultTestLoader.loadTestsFromNames(sys.argv[2:])
    result = unittest.TextTestRunner(verbosity=2).run(suite)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
