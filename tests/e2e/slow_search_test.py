"""The search for the server takes a long time."""

import doubles
from case import LauncherTest

TOOL = """#!/bin/sh
echo $$ listing >> "$RECORD"
read -r answer < "$ANSWERS"
echo "a line that is no list, answered to $answer"
"""


class SlowSearchTest(LauncherTest):
    def start_searching(self):
        self.answers = doubles.Gate(self.folder / "answers")
        tool = self.application / "Resources/bin/attached-images"
        tool.unlink()
        tool.write_text(TOOL)
        tool.chmod(0o755)
        self.start(environment={"ANSWERS": str(self.answers.file)})
        self.tool = self.record.wait_for_event("listing")

    def test_the_viewer_is_started_meanwhile(self):
        self.start_searching()
        self.launch()
        self.answers.open()

    def test_the_launcher_quits_without_the_answer(self):
        self.start_searching()
        self.quit()
        self.answers.open()
