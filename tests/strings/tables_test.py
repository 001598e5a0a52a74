"""What the reader takes from a strings table, and what it refuses."""

import unittest

from localised.tables import Entry, Unreadable, decode, parse


class DecodeTest(unittest.TestCase):
    def test_utf8_with_its_mark(self):
        self.assertEqual(decode(b"\xef\xbb\xbf\xc3\xa9"), "é")

    def test_no_mark(self):
        with self.assertRaisesRegex(Unreadable, "byte-order mark"):
            decode(b"plain")

    def test_utf16(self):
        with self.assertRaisesRegex(Unreadable, "byte-order mark"):
            decode("text".encode("utf-16"))

    def test_latin1_behind_the_mark(self):
        with self.assertRaisesRegex(Unreadable, "not UTF-8 at byte 2"):
            decode(b"\xef\xbb\xbfab\xe9")


class ParseTest(unittest.TestCase):
    def check(self, text, *expected):
        self.assertEqual(parse(text), [Entry(*entry) for entry in expected])

    def test_nothing(self):
        self.check("")

    def test_entries_in_order(self):
        self.check('/* B */\n"b" = "2";\n\n/* A */\n"a" = "1";\n', ("B", "b", "2"), ("A", "a", "1"))

    def test_only_the_comment_right_before_counts(self):
        self.check('/* Section */ /* B */ "b" = "2"; "a" = "1";', ("B", "b", "2"), (None, "a", "1"))

    def test_escapes(self):
        self.check(r'"a\"\\" = "\n\U00e9";', (None, 'a"\\', "\né"))

    def test_same_key_twice_is_kept_twice(self):
        self.check('"a" = "1"; "a" = "2";', (None, "a", "1"), (None, "a", "2"))

    def test_missing_semicolon(self):
        with self.assertRaisesRegex(Unreadable, "from line 2 on"):
            parse('"a" = "1";\n"b" = "2"\n"c" = "3";')

    def test_open_comment(self):
        with self.assertRaisesRegex(Unreadable, "from line 1 on"):
            parse('/* never closed "a" = "1";')
