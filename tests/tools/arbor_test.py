"""The entry script, as far as it goes without building anything."""

import subprocess
import unittest

from script_case import TOOLS


class Arbor(unittest.TestCase):
    def arbor(self, *arguments):
        return subprocess.run([str(TOOLS.parent / "arbor"), *arguments], capture_output=True, text=True, check=False)

    def test_help_tells_each_verb_in_one_line(self):
        result = self.arbor("help")
        verbs = [line.split()[1] for line in result.stdout.splitlines() if line.startswith("./arbor ")]
        self.assertEqual(verbs, ["demo", "test", "bench", "check", "format", "shell"])
        self.assertEqual(result.returncode, 0)

    def test_unknown_verb_shows_the_help_and_fails(self):
        result = self.arbor("biuld")
        self.assertEqual(result.stderr, self.arbor("help").stdout)
        self.assertEqual((result.stdout, result.returncode), ("", 2))


if __name__ == "__main__":
    unittest.main()
