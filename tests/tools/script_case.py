"""A test case that runs one script of tools/ on a tree that the test writes."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"


class ScriptCase(unittest.TestCase):
    script = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, path, text=""):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text, encoding="utf-8")

    def run_script(self):
        command = [sys.executable, "-B", str(TOOLS / self.script), str(self.root)]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def assert_accepted(self):
        result = self.run_script()
        self.assertEqual((result.stdout, result.stderr, result.returncode), ("", "", 0))

    def assert_refused(self, message):
        result = self.run_script()
        self.assertEqual((result.stdout, result.stderr, result.returncode), (message + "\n", "", 1))
