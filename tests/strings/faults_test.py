"""The check finds each fault that a table can have."""

import unittest

from faults import faults, faults_of_english
from localised.tables import Entry

SHOWN = {"Launch": "Launch button", "Looking up '%@'": "Status", "About Vorx": "Menu"}
GOOD = [Entry("Launch button", "Launch", "Starten"),
        Entry("Status", "Looking up '%@'", "„%@“ wird ermittelt"),
        Entry("Menu", "About Vorx", "Über Vorx")]


def with_changed(index, **changes):
    return [*GOOD[:index], GOOD[index]._replace(**changes), *GOOD[index + 1:]]


class FaultsTest(unittest.TestCase):
    def check(self, entries, *expected):
        self.assertEqual(list(faults(entries, SHOWN)), list(expected))

    def test_none(self):
        self.check(GOOD)

    def test_missing(self):
        self.check(GOOD[1:], '"Launch" is missing')

    def test_unused(self):
        self.check([*GOOD, Entry("Button", "Stop", "Stopp")], '"Stop" is not used')

    def test_twice(self):
        self.check([*GOOD, GOOD[0]], '"Launch" is there twice')

    def test_differing_comment(self):
        self.check(with_changed(0, comment="Button"),
                   'the comment of "Launch" is "Button", not "Launch button"')

    def test_absent_comment(self):
        self.check(with_changed(0, comment=None),
                   'the comment of "Launch" is "None", not "Launch button"')

    def test_lost_placeholder(self):
        self.check(with_changed(1, text="wird ermittelt"),
                   'the placeholders of "Looking up \'%@\'" differ from those of "wird ermittelt"')

    def test_other_placeholder(self):
        self.check(with_changed(1, text="„%s“"),
                   'the placeholders of "Looking up \'%@\'" differ from those of "„%s“"')

    def test_repeated_placeholder(self):
        self.check(with_changed(1, text="%@ %@"),
                   'the placeholders of "Looking up \'%@\'" differ from those of "%@ %@"')

    def test_translated_name(self):
        self.check(with_changed(2, text="Über Worx"), 'the name Vorx is not kept in "Über Worx"')

    def test_nothing(self):
        self.check(with_changed(0, text=" "), '"Launch" is translated by nothing')

    def test_english_that_differs_from_its_key(self):
        self.assertEqual(faults_of_english([Entry("", "Launch", "Start")]), ['"Launch" reads "Start"'])
