#!/usr/bin/env python3
"""test_desktop.py BINARY PICTURES [TEST...]: the application end to end, on a screen of its own: the real program and the
real engine, worked by keys and clicks and judged by the windows that are shown and the files that are written.

The keys are the access keys of the English captions. A picture of the screen is left for each test in the folder PICTURES.
"""
import os
import pathlib
import sys
import unittest

from cases import DesktopTest
from desktop import missing_tools
from main_window_tests import MainWindowTest  # noqa: F401 (unittest finds the tests of this module by their names)
from run_tests import RunTest  # noqa: F401
from wizard_tests import WizardTest  # noqa: F401

SKIP = "TAVRELION_SKIP_DESKTOP_TESTS"


def main():
    if os.environ.get(SKIP):
        print(f"*** The application is NOT tested end to end: {SKIP} is set. ***", file=sys.stderr)
        return 77
    if missing_tools():
        print(f"Missing: {', '.join(missing_tools())}. packaging/install-packages.sh installs them; {SKIP}=1 leaves the"
              " end-to-end tests out.", file=sys.stderr)
        return 1
    DesktopTest.binary = pathlib.Path(sys.argv[1]).resolve()
    DesktopTest.pictures = pathlib.Path(sys.argv[2])
    DesktopTest.pictures.mkdir(parents=True, exist_ok=True)
    program = unittest.main(argv=[sys.argv[0], "-v", *sys.argv[3:]], exit=False)
    return 0 if program.result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
