"""Shows that check_tests refuses what it is there to refuse."""

import unittest

from script_case import ScriptCase


class CheckTests(ScriptCase):
    script = "check_tests"

    def setUp(self):
        super().setUp()
        self.write("system/CMakeLists.txt", "arbor_sources(arbor_system CVqList)")
        self.write("system/CVqList.cpp")
        self.write("tests/system/CMakeLists.txt", "arbor_tests(system_tests SOURCES CVqListTest)")
        self.write("tests/system/CVqListTest.cpp", "TEST(CVqList, NewListIsEmpty)\n")

    def test_accepts_a_tested_source(self):
        self.assert_accepted()

    def test_accepts_a_main_program_without_a_test(self):
        self.write("gallery/CMakeLists.txt", "add_executable(gallery main.cpp)")
        self.write("gallery/main.cpp")
        self.assert_accepted()

    def test_refuses_a_source_without_a_test(self):
        self.write("system/CMakeLists.txt", "arbor_sources(arbor_system CVqList CVqText)")
        self.write("system/CVqText.cpp")
        self.assert_refused("system/CVqText.cpp: there is no tests/system/CVqTextTest.cpp")

    def test_refuses_a_source_that_is_in_no_build_list(self):
        self.write("system/CMakeLists.txt", "arbor_sources(arbor_system CVqListOfText)")
        self.assert_refused("system/CVqList.cpp: is in no CMakeLists.txt")

    def test_refuses_a_test_that_is_in_no_build_list(self):
        self.write("tests/system/CVqOldTest.cpp")
        self.assert_refused("tests/system/CVqOldTest.cpp: is in no CMakeLists.txt")

    def test_refuses_an_underscore_in_a_case(self):
        self.write("tests/system/CVqListTest.cpp", "TEST_P(CVqList, New_list)\n")
        self.assert_refused("tests/system/CVqListTest.cpp: CVqList.New_list has an underscore")


if __name__ == "__main__":
    unittest.main()
