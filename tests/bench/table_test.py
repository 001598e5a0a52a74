"""What script/bench computes from its measurements."""

import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench/runner"))

import table
from table import FLOOR, OURS, Figure, ahead_of, at_most, at_most_above, beside, under


def cells(values, *aims, missing=None):
    return table.cells(Figure("start", "ms", values, list(aims), missing or {}))


class TableTest(unittest.TestCase):
    def test_the_ratio_is_taken_round_by_round(self):
        taken = cells({OURS: [10, 20, 300], FLOOR: [10, 10, 100]})
        self.assertEqual(taken, ["start", "20 ms", "–", "10 ms", "2", "± 25 %", "–", "–"])

    def test_aims_are_met_or_not(self):
        values = {OURS: [10.0], FLOOR: [8.0], "zenity": [20.0], "yad": [9.0]}
        cases = [(at_most(1.25), "yes"), (at_most(1.2), "no"), (at_most_above(2, "ms"), "yes"),
                 (at_most_above(1, "ms"), "no"), (under(11, "ms"), "yes"), (under(10, "ms"), "no"),
                 (ahead_of("zenity"), "yes"), (ahead_of("zenity", factor=3), "no"),
                 (ahead_of("zenity", "yad"), "no"), (beside("yad", 1.2), "yes"), (beside("yad", 1.1), "no")]
        for aim, met in cases:
            with self.subTest(aim=aim[0]):
                self.assertEqual(cells(values, aim)[-1], met)

    def test_an_aim_without_what_it_is_held_against_is_undecided(self):
        self.assertEqual(cells({OURS: [10.0]}, at_most(1.05), ahead_of("yad"))[-1], "?, ?")

    def test_nothing_measured_is_a_row_that_says_why(self):
        self.assertEqual(cells({}, missing={OURS: "no display"})[:3], ["start", "–", "no display"])
        self.assertEqual(cells({})[:3], ["start", "–", "nothing could be measured"])

    def test_what_goes_wrong_is_a_row_and_no_crash(self):
        figures = table.attempted("start", lambda: {}["display"])
        self.assertEqual(table.cells(figures[0])[:3], ["start", "–", "KeyError: 'display'"])

    def test_a_missing_peer_is_told_beside_the_others(self):
        self.assertEqual(cells({OURS: [1.0], "yad": [2.0]}, missing={"zenity": "not installed"})[2],
                         "yad 2, zenity: not installed")

    def test_numbers_keep_three_digits(self):
        for value, text in [(0.01234, "0.0123"), (1.234, "1.23"), (12.34, "12.3"), (123.4, "123"),
                            (12345.6, "12,346")]:
            self.assertEqual(table.number(value), text)

    def test_the_table_takes_the_place_of_the_last_one(self):
        document = (ROOT / "docs/performance.md").read_text(encoding="utf-8")
        once = table.put_into(document, "new")
        self.assertIn(f"{table.BEGIN}\n\nnew\n\n{table.END}", once)
        self.assertEqual(table.put_into(once, "new"), once)


if __name__ == "__main__":
    unittest.main()
