"""The suites by name, in the order in which they run."""

import fuzz
import lint
import sanitizers
from googletest import GoogleTestSuite
from pythontests import PythonSuite

SUITES = {
    "lint": lint,
    "strings": PythonSuite("tests/strings"),
    "icon": PythonSuite("tests/icon"),
    "unit": GoogleTestSuite("unit-tests"),
    "contract": GoogleTestSuite("contract-tests", apart=True),
    "sanitizers": sanitizers,
    "fuzz": fuzz,
    "endurance": GoogleTestSuite("endurance-tests", apart=True),
    "window": GoogleTestSuite("window-tests", apart=True, display=True),
    "e2e": PythonSuite("tests/e2e", targets=["application", "e2e-double"], apart=True, display=True),
}
