"""Which texts the reader finds in code and in layout files."""

import unittest

from localised.shown import texts_of_code, texts_of_layout


class CodeTest(unittest.TestCase):
    def check(self, source, expected):
        self.assertEqual(texts_of_code(source), expected)

    def test_key_and_comment(self):
        self.check('inline constexpr LocalizableText ok{"OK", "OK button"};', {"OK": "OK button"})

    def test_literals_over_several_lines(self):
        self.check('LocalizableText long{\n    "One "\n    "text",\n    "Its "\n    "comment"};',
                   {"One text": "Its comment"})

    def test_escaped_quote(self):
        self.check(r'LocalizableText quote{"Say \"%@\"", "A, {b}"};', {'Say "%@"': "A, {b}"})

    def test_what_is_no_text(self):
        self.check('struct LocalizableText {\n  std::string_view key;\n};\nconst LocalizableText& status(int state);', {})


class LayoutTest(unittest.TestCase):
    def check(self, xib, *expected):
        self.assertEqual(texts_of_layout(f"<document>{xib}</document>"), set(expected))

    def test_titles(self):
        self.check('<window title="W"><menuItem title="M"/><textFieldCell title="L"/></window>',
                   "W", "M", "L")

    def test_the_title_of_the_menu_bar_is_not_shown(self):
        self.check('<menu title="Main" systemMenu="main"/><menu title="S" systemMenu="window"/>', "S")

    def test_tool_tip(self):
        self.check('<textField toolTip="T"/>', "T")

    def test_example_addresses_are_the_same_in_every_language(self):
        self.check('<textFieldCell placeholderString="10.0.0.5"/>')

    def test_what_is_spoken(self):
        self.check('<textField><accessibility description="D" help="H"/></textField>', "D", "H")

    def test_what_is_spoken_as_runtime_attributes(self):
        self.check('<userDefinedRuntimeAttribute keyPath="accessibilityLabel" value="S"/>'
                   '<userDefinedRuntimeAttribute keyPath="tag" value="7"/>', "S")

    def test_empty_and_absent_titles(self):
        self.check('<menuItem title=""/><menuItem isSeparatorItem="YES"/>')
