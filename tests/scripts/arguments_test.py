"""What every script says about itself, and about arguments that it does not know."""

import pathlib
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRIPTS = sorted(path for path in (ROOT / "script").iterdir() if path.is_file())


def run(script, *arguments):
    return subprocess.run([script, *arguments], cwd="/", text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)


class ArgumentsTest(unittest.TestCase):
    def test_there_are_scripts(self):
        self.assertIn("run", [script.name for script in SCRIPTS])

    def test_each_opens_with_what_it_does(self):
        for script in SCRIPTS:
            with self.subTest(script=script.name):
                self.assertRegex(script.read_text().splitlines()[1], r"^# [A-Z].*\.$")

    def test_each_answers_help(self):
        for script in SCRIPTS:
            with self.subTest(script=script.name):
                done = run(script, "--help")
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                self.assertIn(f"Usage: script/{script.name}", done.stdout)

    def test_each_refuses_what_it_does_not_know_in_one_line(self):
        for script in SCRIPTS:
            with self.subTest(script=script.name):
                done = run(script, "--unknown")
                self.assertNotEqual(done.returncode, 0)
                self.assertRegex(done.stderr, r"^script/\w+: [^\n]+\n$")
                self.assertEqual(done.stdout, "")


if __name__ == "__main__":
    unittest.main()
