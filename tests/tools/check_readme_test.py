"""Shows that check_readme refuses what it is there to refuse."""

import unittest

from script_case import ScriptCase

SOURCE = "int main()\n{\n    // [snippet]\n    int one = 1;\n    return one;\n    // [end]\n}\n"
PAGE = "Use:\n\n<!-- from docs/snippets/one.cpp -->\n```cpp\nint one = 1;\nreturn one;\n```\n"


class CheckReadme(ScriptCase):
    script = "check_readme"

    def test_accepts_the_lines_of_the_snippet_without_their_indent(self):
        self.write("docs/snippets/one.cpp", SOURCE)
        self.write("README.md", PAGE)
        self.assert_accepted()

    def test_refuses_other_lines(self):
        self.write("docs/snippets/one.cpp", SOURCE)
        self.write("README.md", PAGE.replace("one = 1", "one = 2"))
        self.assert_refused("README.md: differs from the snippet of docs/snippets/one.cpp")

    def test_refuses_a_source_that_is_not_there(self):
        self.write("README.md", PAGE)
        self.assert_refused("README.md: docs/snippets/one.cpp has no snippet")

    def test_looks_into_the_guides_too(self):
        self.write("README.md")
        self.write("docs/snippets/one.cpp", SOURCE)
        self.write("docs/menus.md", PAGE.replace("one = 1", "one = 2"))
        self.assert_refused("docs/menus.md: differs from the snippet of docs/snippets/one.cpp")


if __name__ == "__main__":
    unittest.main()
