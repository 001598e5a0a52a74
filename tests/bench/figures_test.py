"""What script/bench makes of what it has measured."""

import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench/runner"))

import measure
import plot
import small
import starts
import table
from figures import FLOOR, OURS, Figure, Unavailable, ahead_of, at_most, at_most_above, under
from windows import session


def row(values, *aims, missing=None):
    return Figure("start", "ms", values, missing or {}, list(aims)).row()


class FiguresTest(unittest.TestCase):
    def test_the_ratio_is_taken_round_by_round(self):
        taken = row({OURS: [10, 20, 300], FLOOR: [10, 10, 100]})
        self.assertEqual(taken["ours"], 20)
        self.assertEqual(taken["ratio"], 2)
        self.assertAlmostEqual(taken["spread"], 0.25)

    def test_aims_are_met_or_not(self):
        values = {OURS: [10.0], FLOOR: [8.0], "zenity": [20.0], "yad": [9.0]}
        cases = [(at_most(1.25), True), (at_most(1.2), False), (at_most_above(2, "ms"), True),
                 (at_most_above(1, "ms"), False), (under(11, "ms"), True), (under(10, "ms"), False),
                 (ahead_of("zenity"), True), (ahead_of("zenity", factor=3), False),
                 (ahead_of(), False)]
        for aim, met in cases:
            with self.subTest(aim=aim.text):
                self.assertEqual(row(values, aim)["met"], [met])

    def test_a_share_of_the_floor_is_judged_by_the_ratio_that_is_shown(self):
        values = {OURS: [10.0, 20.0, 30.0], FLOOR: [10.0, 20.0, 10.0]}
        self.assertEqual(row(values, at_most(1))["met"], [True])
        self.assertEqual(row(values, at_most(0.99))["met"], [False])

    def test_an_aim_without_its_floor_is_undecided(self):
        self.assertEqual(row({OURS: [10.0]}, at_most(1.05))["met"], [None])

    def test_nothing_measured_is_a_row_that_says_so(self):
        self.assertEqual(row({})["missing"], {OURS: "nothing could be measured"})


class TableTest(unittest.TestCase):
    def test_numbers_keep_three_digits(self):
        for value, text in [(None, "–"), (0.01234, "0.0123"), (1.234, "1.23"), (12.34, "12.3"),
                            (123.4, "123"), (12345.6, "12,346")]:
            self.assertEqual(table.number(value), text)

    def test_a_missing_peer_is_told_beside_the_others(self):
        cells = table.cells(row({OURS: [1.0], "yad": [2.0]}, missing={"zenity": "not installed"}))
        self.assertEqual(cells[2], "yad 2, zenity: not installed")

    def test_the_table_takes_the_place_of_the_last_one(self):
        document = f"before\n{table.BEGIN}\nold\n{table.END}\nafter\n"
        self.assertEqual(table.put_into(document, "new"),
                         f"before\n{table.BEGIN}\n\nnew\n\n{table.END}\nafter\n")

    def test_the_document_has_a_place_for_the_table(self):
        document = (ROOT / "docs/performance.md").read_text(encoding="utf-8")
        self.assertIn("new", table.put_into(document, "new"))


class FailureTest(unittest.TestCase):
    def test_a_peer_that_is_not_installed_drops_out_with_a_reason(self):
        contest = starts.Contest({"none": ["/no/such/program"], "sh": ["sh"]})
        measured = []
        contest.round(lambda name, command: measured.append(name))
        self.assertEqual(measured, ["sh"])
        self.assertEqual(contest.missing, {"none": "not installed"})

    def test_a_peer_that_fails_drops_out_with_a_reason(self):
        def fail(name, command):
            raise Unavailable("it ended")

        contest = starts.Contest({"sh": ["sh"]})
        contest.round(fail)
        contest.round(fail)
        self.assertEqual(contest.missing, {"sh": "it ended"})

    def test_a_clock_that_was_not_built_is_a_reason(self):
        def start(home):
            with session("sh", home=home, clock=pathlib.Path("/no/such/clock")):
                pass

        measure.GROUPS["broken"] = [start]
        self.addCleanup(measure.GROUPS.pop, "broken")
        rows = measure.rows_of("broken", "/")
        self.assertEqual(rows[0]["missing"], {OURS: "window-clock was not built"})
        self.assertIn("window-clock was not built", table.as_text(rows))

    def test_a_group_that_goes_wrong_is_a_row_and_no_crash(self):
        measure.GROUPS["wrong"] = [lambda home: {}["missing"]]
        self.addCleanup(measure.GROUPS.pop, "wrong")
        self.assertEqual(measure.rows_of("wrong", "/")[0]["missing"], {OURS: "KeyError: 'missing'"})


class GrowthTest(unittest.TestCase):
    def test_linear_growth_has_the_power_one(self):
        figures = small.growths({"images": [(10, 5.0), (100, 50.0), (1000, 500.0)],
                                 "squares": [(10, 1.0), (100, 100.0), (1000, 10000.0)]})
        powers = [figure.values[OURS][0] for figure in figures]
        self.assertAlmostEqual(powers[0], 1)
        self.assertAlmostEqual(powers[1], 2)

    def test_the_plot_holds_every_curve(self):
        picture = plot.growth([("images", [(10, 100), (100, 1000)]), ("texts", [(1, 10), (10, 99)])])
        self.assertEqual(picture.count("<polyline"), 2)
        self.assertEqual(picture.count("<circle"), 4)
        self.assertIn("1 µs", picture)


if __name__ == "__main__":
    unittest.main()
