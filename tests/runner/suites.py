"""The suites by name, in the order in which they run."""

import platform

import fuzz
import lint
import sanitizers
from googletest import GoogleTestSuite
from pythontests import PythonSuite

E2E = {"targets": ["application", "e2e-doubles"], "apart": True, "display": True}

SUITES = {
    "lint": lint,
    "strings": PythonSuite("tests/strings"),
    "icon": PythonSuite("tests/icon"),
    "bench": PythonSuite("tests/bench"),
    "scripts": PythonSuite("tests/scripts"),
    "unit": GoogleTestSuite("unit-tests"),
    "diagnostics": GoogleTestSuite("diagnostics-tests"),
    "contract": GoogleTestSuite("contract-tests", apart=True),
    "sanitizers": sanitizers.LOGIC,
    "fuzz": fuzz,
    "endurance": GoogleTestSuite("endurance-tests", apart=True),
    "window": GoogleTestSuite("appkit-window-tests", apart=True, display=True),
    "e2e": PythonSuite("tests/e2e", **E2E),
    "bundle": PythonSuite("tests/portable", targets=["application"]),
    "macos": PythonSuite("tests/macos"),
    "sanitizers-window": sanitizers.WINDOW,
    "starts": PythonSuite("tests/e2e", pattern="starts.py", **E2E),
}

# Those that take too long for every change.
ON_REQUEST = ["sanitizers-window", "starts"]

# The others drive an X display, or look from Linux at what a Mac meets by itself.
ON_MACOS = ["strings", "icon", "scripts", "unit", "diagnostics", "contract", "window"]

if platform.system() == "Darwin":
    SUITES = {name: SUITES[name] for name in ON_MACOS}
