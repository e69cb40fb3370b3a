"""Shows that bench_report.py takes medians and tells a floor that is missed."""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from script_case import TOOLS


def run(name, time, **more):
    return {"run_name": name, "run_type": "iteration", "cpu_time": time, "real_time": 1, "time_unit": "us", **more}


class BenchReport(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def report(self, floors, *runs):
        (self.root / "floors.json").write_text(json.dumps(floors), encoding="utf-8")
        (self.root / "result.json").write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
        command = [sys.executable, "-B", str(TOOLS / "bench_report.py"), "floors.json", "result.json"]
        result = subprocess.run(command, cwd=self.root, capture_output=True, text=True, check=False)
        self.assertEqual(result.stderr, "")
        return [line.split() for line in result.stdout.splitlines()], result.returncode

    def test_takes_the_ratio_of_the_medians(self):
        ours = [run("Parse/Arbor", time) for time in (1, 2, 90)]
        peer = [run("Parse/Peer", time) for time in (3, 4, 5)]
        lines, code = self.report({"Parse vs Peer": 0.5}, *ours, *peer)
        self.assertEqual(lines[1], "Parse vs Peer 2 us 4 us 0.500 0.5 PASS".split())
        self.assertEqual(code, 0)

    def test_tells_a_missed_floor(self):
        lines, code = self.report({"Parse vs Peer": 0.5}, run("Parse/Arbor", 3), run("Parse/Peer", 4))
        self.assertEqual(lines[1][-1], "MISS")
        self.assertEqual(lines[2], "0 of 1 floors hold".split())
        self.assertEqual(code, 1)

    def test_keeps_sizes_apart(self):
        lines, _ = self.report({}, run("Hit/Arbor/50", 1), run("Hit/Arbor/500", 2), run("Hit/Peer/50", 4),
                               run("Hit/Peer/500", 4))
        self.assertEqual([line[:3] + line[-1:] for line in lines[1:3]],
                         [["Hit/50", "vs", "Peer", "0.250"], ["Hit/500", "vs", "Peer", "0.500"]])

    def test_takes_the_time_that_the_name_tells(self):
        for kind, ratio in (("real_time", "0.500"), ("manual_time", "0.500"), ("process_time", "0.250"),
                            ("process_time/real_time", "0.500")):
            with self.subTest(kind):
                lines, _ = self.report({}, run(f"Grab/Arbor/8/{kind}", 1, real_time=3),
                                       run(f"Grab/Peer/8/{kind}", 4, real_time=6))
                self.assertEqual(lines[1][:3] + lines[1][-1:], ["Grab/8", "vs", "Peer", ratio])

    def test_compares_counters_that_both_have(self):
        lines, _ = self.report({"Build vs Peer bytes_per_item": 0.4}, run("Build/Arbor", 1, bytes_per_item=100),
                               run("Build/Peer", 1, bytes_per_item=400, others=3))
        self.assertEqual(lines[2], "Build vs Peer bytes_per_item 100 400 0.250 0.4 PASS".split())
        self.assertEqual(len(lines), 4)

    def test_leaves_aggregates_and_failed_runs_out(self):
        lines, _ = self.report({}, run("Parse/Arbor", 1), run("Parse/Peer", 2),
                               run("Parse/Arbor", 9, run_type="aggregate"), run("Parse/Peer", 9, error_occurred=True))
        self.assertEqual(lines[1][-1], "0.500")


if __name__ == "__main__":
    unittest.main()
