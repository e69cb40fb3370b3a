"""Shows that tidy refuses what clang-tidy finds, and asks it once only about what passed."""

import json
import os
import stat
import subprocess
import sys
import unittest

from script_case import ScriptCase, TOOLS

# Finds fault with each file that has the word FAULT, and writes down what it was asked about.
TOOL = """#!/bin/sh
[ "$1" = --version ] && exec cat "$0.version"
case "$*" in *--dump-config*) exec cat "$0.rules" ;; esac
for file; do :; done
echo "$file" >>"$0.asked"
! grep FAULT "$file"
"""


class Tidy(ScriptCase):
    def setUp(self):
        super().setUp()
        self.write("tool", TOOL)
        (self.root / "tool").chmod(stat.S_IRWXU)
        self.write("tool.version", "1")
        self.write("tool.rules", "all")
        self.write("one.h", "int one();\n")
        self.write("one.cpp", '#include "one.h"\n')
        self.write("two.cpp", "int two();\n")
        self.write("compile_commands.json", json.dumps([
            {"directory": str(self.root), "file": name, "command": f"cache c++ -std=c++20 -o {name}.o -c {name}"}
            for name in ("one.cpp", "two.cpp")]))

    def judge(self, *names):
        """The result, and the files that the tool was asked about."""
        asked = self.root / "tool.asked"
        asked.unlink(missing_ok=True)
        result = subprocess.run(
            [sys.executable, "-B", str(TOOLS / "tidy"), str(self.root), *(str(self.root / name) for name in names)],
            capture_output=True, text=True, check=False,
            env={**os.environ, "CLANG_TIDY": str(self.root / "tool"), "XDG_CACHE_HOME": str(self.root / "cache")})
        files = asked.read_text(encoding="utf-8").split() if asked.exists() else []
        return result, sorted(os.path.basename(file) for file in files)

    def test_asks_about_each_file_first(self):
        result, asked = self.judge("one.cpp", "two.cpp")
        self.assertEqual((result.stdout, result.returncode, asked), ("", 0, ["one.cpp", "two.cpp"]))

    def test_does_not_ask_again_about_what_passed(self):
        self.judge("one.cpp", "two.cpp")
        result, asked = self.judge("one.cpp", "two.cpp")
        self.assertEqual((result.returncode, asked), (0, []))

    def test_says_what_the_tool_finds_each_time(self):
        self.write("two.cpp", "int two(); // FAULT\n")
        for _ in range(2):
            result, asked = self.judge("one.cpp", "two.cpp")
            self.assertEqual((result.stdout, result.returncode), ("int two(); // FAULT\n", 1))
            self.assertIn("two.cpp", asked)

    def test_asks_again_when_a_header_changed(self):
        self.judge("one.cpp", "two.cpp")
        self.write("one.h", "int one(int);\n")
        self.assertEqual(self.judge("one.cpp", "two.cpp")[1], ["one.cpp"])

    def test_asks_again_when_a_comment_changed(self):
        self.write("one.h", "int one(); // NOLINT\n")
        self.judge("one.cpp")
        self.write("one.h", "int one();\n")
        self.assertEqual(self.judge("one.cpp")[1], ["one.cpp"])

    def test_asks_again_when_the_rules_changed(self):
        self.judge("one.cpp")
        self.write("tool.rules", "some")
        self.assertEqual(self.judge("one.cpp")[1], ["one.cpp"])

    def test_asks_again_when_the_tool_changed(self):
        self.judge("one.cpp")
        self.write("tool.version", "2")
        self.assertEqual(self.judge("one.cpp")[1], ["one.cpp"])

    def test_leaves_to_the_tool_what_does_not_compile(self):
        self.write("one.cpp", '#include "missing.h"\n')
        for _ in range(2):
            self.assertEqual(self.judge("one.cpp")[1], ["one.cpp"])


if __name__ == "__main__":
    unittest.main()
