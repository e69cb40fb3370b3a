"""Shows that check_layers refuses what it is there to refuse."""

import unittest

from script_case import ScriptCase


class CheckLayers(ScriptCase):
    script = "check_layers"

    def include(self, path, *targets):
        self.write(path, "".join(f'#include "{target}"\n' for target in targets))

    def test_accepts_each_folder_on_the_layers_below_it(self):
        self.include("system/A.h")
        self.include("AbstractGui/B.h", "system/A.h")
        self.include("qml/C.h", "system/A.h")
        self.include("Top.h", "AbstractGui/B.h", "qml/C.h")
        self.include("tile_assets/T.h")
        self.include("quick_backend/D.h", "Top.h", "AbstractGui/B.h", "tile_assets/T.h")
        self.include("gallery/E.cpp", "quick_backend/D.h")
        self.include("tests/system/ATest.cpp", "system/A.h")
        self.assert_accepted()

    def test_refuses_system_on_the_library(self):
        self.include("AbstractGui/B.h")
        self.include("system/A.h", "AbstractGui/B.h")
        self.assert_refused("system/A.h:1: system must not include AbstractGui/B.h")

    def test_refuses_one_part_of_the_library_on_another(self):
        for source, target in (("AbstractGui", "qml"), ("AbstractGui", "offscreen"), ("qml", "AbstractGui"),
                               ("qml", "offscreen"), ("offscreen", "AbstractGui"), ("offscreen", "qml")):
            with self.subTest(source=source, target=target):
                self.setUp()
                self.include(f"{target}/B.h")
                self.include(f"{source}/A.h", f"{target}/B.h")
                self.assert_refused(f"{source}/A.h:1: {source} must not include {target}/B.h")

    def test_refuses_the_library_on_icons_and_icons_on_anything(self):
        self.include("tile_assets/T.h")
        self.include("system/A.h")
        self.include("AbstractGui/B.h", "tile_assets/T.h")
        self.assert_refused("AbstractGui/B.h:1: AbstractGui must not include tile_assets/T.h")
        self.include("AbstractGui/B.h")
        self.include("tile_assets/T.h", "system/A.h")
        self.assert_refused("tile_assets/T.h:1: tile_assets must not include system/A.h")

    def test_refuses_the_library_on_its_back_end(self):
        self.include("quick_backend/B.h")
        self.include("Top.cpp", "quick_backend/B.h")
        self.assert_refused("Top.cpp:1: . must not include quick_backend/B.h")

    def test_refuses_the_library_and_its_back_end_on_the_qml_module(self):
        for source in ("qml", "quick_backend"):
            with self.subTest(source=source):
                self.setUp()
                self.include("qml_module/B.h")
                self.include(f"{source}/A.h", "qml_module/B.h")
                self.assert_refused(f"{source}/A.h:1: {source} must not include qml_module/B.h")

    def test_refuses_the_qml_module_on_the_back_end(self):
        self.include("quick_backend/B.h")
        self.include("qml_module/A.h", "quick_backend/B.h")
        self.assert_refused("qml_module/A.h:1: qml_module must not include quick_backend/B.h")

    def test_refuses_anything_on_the_gallery_the_tests_and_the_benchmarks(self):
        for target in ("gallery", "tests", "bench"):
            with self.subTest(target=target):
                self.setUp()
                self.include(f"{target}/B.h")
                self.include("quick_backend/A.h", f"{target}/B.h")
                self.assert_refused(f"quick_backend/A.h:1: quick_backend must not include {target}/B.h")

    def test_refuses_benchmarks_on_tests(self):
        self.include("tests/B.h")
        self.include("bench/A.cpp", "tests/B.h")
        self.assert_refused("bench/A.cpp:1: bench must not include tests/B.h")

    def test_sees_an_include_that_is_relative_or_in_angle_brackets(self):
        self.include("qml/B.h")
        self.write("AbstractGui/A.h", '\n#include "../qml/B.h"\n')
        self.assert_refused("AbstractGui/A.h:2: AbstractGui must not include qml/B.h")
        self.write("AbstractGui/A.h", "#  include <qml/B.h>\n")
        self.assert_refused("AbstractGui/A.h:1: AbstractGui must not include qml/B.h")

    def test_refuses_a_circle_between_files(self):
        self.include("system/A.h", "system/B.h")
        self.include("system/B.h", "system/C.h")
        self.include("system/C.h", "system/A.h")
        self.assert_refused("circle: system/A.h -> system/B.h -> system/C.h -> system/A.h")


if __name__ == "__main__":
    unittest.main()
