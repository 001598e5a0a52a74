"""What runs apart ends with the script that started it."""

import pathlib
import select
import shutil
import subprocess
import tempfile
import unittest

APART = pathlib.Path(__file__).resolve().parents[1] / "runner" / "apart.py"


class ApartTest(unittest.TestCase):
    def setUp(self):
        root = tempfile.TemporaryDirectory()
        self.addCleanup(root.cleanup)
        runner = pathlib.Path(root.name) / "tests" / "runner"
        runner.mkdir(parents=True)
        self.apart = shutil.copy(APART, runner)

    def test_a_killed_script_leaves_nothing_running(self):
        command = [self.apart, "sh", "-c", "echo started; exec sleep 120"]
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE) as apart:
            started = apart.stdout.readline()
            apart.kill()
            if started.startswith(b"note:"):
                self.skipTest("not allowed to run apart")
            self.assertEqual(started, b"started\n")
            # The output ends when nobody can write to it any more.
            ended, _, _ = select.select([apart.stdout], [], [], 60)
            self.assertTrue(ended)


if __name__ == "__main__":
    unittest.main()
