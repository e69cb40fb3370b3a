"""Shows at both kinds of place of a checkout that the tree of modules leads to the checkout's own files.

source_tree_test.py CMAKE"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

MODULES = Path(__file__).resolve().parents[2] / "cmake"
CMAKE = sys.argv.pop() if len(sys.argv) > 1 else "cmake"
PROJECT = f"""
cmake_minimum_required(VERSION 3.25)
project(Checkout LANGUAGES NONE)
list(APPEND CMAKE_MODULE_PATH "{MODULES}")
include(ArborSourceTree)
arbor_source_tree_module(arbor_qml_support ${{PROJECT_SOURCE_DIR}})
arbor_source_tree_module(tile_assets ${{PROJECT_SOURCE_DIR}}/tiles)
arbor_main_source(resources.cpp)
get_property(definition SOURCE resources.cpp PROPERTY COMPILE_DEFINITIONS)
file(WRITE ${{PROJECT_BINARY_DIR}}/definition ${{definition}})
"""


class SourceTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.build = self.root / "out"

    def checkout(self, place):
        folder = self.root / place
        (folder / "tiles").mkdir(parents=True)
        (folder / "CMakeLists.txt").write_text(PROJECT, encoding="utf-8")
        (folder / "arbor_qml_support.cpp").touch()
        return folder

    def configure(self, folder):
        command = [CMAKE, "-G", "Ninja", "-S", str(folder), "-B", str(self.build)]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(result.stderr, "")
        return (self.build / "definition").read_text(encoding="utf-8")

    def test_checkout_in_a_tree_is_taken_as_it_lies(self):
        folder = self.checkout("home/branch9/src/arbor_qml_support")
        definition = self.configure(folder)
        self.assertEqual(definition, f'ARBOR_MAIN_SOURCE="{folder}/arbor_qml_support.cpp"')
        self.assertFalse((self.build / "branch9").exists())

    def test_any_other_checkout_gets_a_tree_of_links(self):
        folder = self.checkout("home/arbor")
        definition = self.configure(folder)
        tree = self.build / "branch9/src"
        self.assertEqual(definition, f'ARBOR_MAIN_SOURCE="{tree}/arbor_qml_support/arbor_qml_support.cpp"')
        self.assertEqual((tree / "arbor_qml_support").resolve(), folder)
        self.assertEqual((tree / "tile_assets").resolve(), folder / "tiles")

    def test_names_that_are_only_alike_make_no_tree(self):
        for place in ("branch9/src/arbor_qml_support2", "xbranch9/src/arbor_qml_support", "branch9/src/arbor"):
            with self.subTest(place=place):
                self.build = self.root / "out" / place
                self.configure(self.checkout(place))
                self.assertTrue((self.build / "branch9/src/arbor_qml_support").is_symlink())

    def test_outputs_inside_the_checkout_get_a_tree_too(self):
        folder = self.checkout("arbor")
        self.build = folder / "build"
        self.configure(folder)
        self.assertEqual((self.build / "branch9/src/arbor_qml_support").resolve(), folder)

    def test_configuring_again_keeps_the_links_and_the_sources(self):
        folder = self.checkout("home/arbor")
        first = self.configure(folder)
        self.assertEqual(self.configure(folder), first)
        self.assertEqual((self.build / "branch9/src/arbor_qml_support").resolve(), folder)
        self.assertEqual(sorted(path.name for path in folder.iterdir()),
                         ["CMakeLists.txt", "arbor_qml_support.cpp", "tiles"])


if __name__ == "__main__":
    unittest.main()
