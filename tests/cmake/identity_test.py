#!/usr/bin/env python3
"""identity_test.py CMAKE: what ArborIdentity.cmake makes of the texts that a build is configured with."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

MODULE = Path(__file__).resolve().parents[2] / "cmake/ArborIdentity.cmake"


def header_lines(**settings):
    """The definitions in the header that a build with these settings gets."""
    with tempfile.TemporaryDirectory() as folder:
        options = [f"-D{name}={value}" for name, value in settings.items()]
        subprocess.run([CMAKE, f"-DPROJECT_BINARY_DIR={folder}", *options, "-P", str(MODULE)], check=True)
        text = (Path(folder) / "include/arbor_identity_texts.h").read_text(encoding="utf-8")
    return [line for line in text.splitlines() if line.startswith("#define")]


class Identity(unittest.TestCase):
    def test_texts_without_settings(self):
        self.assertEqual(header_lines(), [
            '#define ARBOR_COMPANY_NAME uR"(The arbor developers)"',
            '#define ARBOR_COPYRIGHT uR"(Copyright (C) The arbor developers)"'])

    def test_characters_that_mean_something_in_xml_are_escaped(self):
        company, _ = header_lines(ARBOR_COMPANY_NAME='<A & "B">')

        self.assertEqual(company, '#define ARBOR_COMPANY_NAME uR"(&lt;A &amp; &quot;B&quot;&gt;)"')

    def test_characters_that_mean_something_to_cmake_are_kept(self):
        _, copyright_line = header_lines(ARBOR_COPYRIGHT=r"© A;B \n ${C} @D@ (E)")

        self.assertEqual(copyright_line, r'#define ARBOR_COPYRIGHT uR"(© A;B \n ${C} @D@ (E))"')

    def test_line_end_stays_within_the_definition(self):
        company, _ = header_lines(ARBOR_COMPANY_NAME="A\nB")

        self.assertEqual(company, '#define ARBOR_COMPANY_NAME uR"(A&#10;B)"')


if __name__ == "__main__":
    CMAKE = sys.argv.pop()
    unittest.main()
