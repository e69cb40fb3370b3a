#!/usr/bin/env python3
"""bench_report.py FLOORS RESULT...: medians and ratios of Google Benchmark's JSON, against the floors.

A benchmark is named Case/Who or Case/Who/size. What Google Benchmark appends tells which time counts: the real or
manual one where it says so, otherwise the processor's. FLOORS maps "Case/size vs Peer" (a time) and "Case/size vs
Peer counter" to the highest ratio of Arbor to Peer. Ends with 1 if a floor is missed."""

import json
import statistics
import sys
from pathlib import Path

OURS = "Arbor"
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
# What Google Benchmark writes beside the counters of a program.
OWN_KEYS = {"family_index", "per_family_instance_index", "repetitions", "repetition_index", "threads", "iterations",
            "real_time", "cpu_time"}
# The end of a benchmark's name, and which time it stands for.
TIMES = {"real_time": "real_time", "manual_time": "real_time", "process_time": "cpu_time"}


def samples(files):
    """{(case, counter): {who: [value]}}; the counter of a time is empty."""
    found = {}
    for file in files:
        text = Path(file).read_text(encoding="utf-8")
        for run in json.loads(text)["benchmarks"] if text.strip() else ():
            if run["run_type"] != "iteration" or run.get("error_occurred"):
                continue
            case, who, *size = run["run_name"].split("/")
            case = "/".join([case, *(part for part in size if ":" not in part and part not in TIMES)])
            time = run[TIMES.get(size[-1] if size else "", "cpu_time")]
            counters = {key: value for key, value in run.items()
                        if key not in OWN_KEYS and isinstance(value, (int, float))}
            values = {"": time * NANOSECONDS[run["time_unit"]], **counters}
            for counter, value in values.items():
                found.setdefault((case, counter), {}).setdefault(who, []).append(value)
    return found


def rows(found):
    """(name, ours, peer, ratio, is_time) for each peer of each case that we run in too."""
    for (case, counter), by_who in found.items():
        medians = {who: statistics.median(values) for who, values in by_who.items()}
        for who, peer in medians.items():
            if who != OURS and OURS in medians:
                ours = medians[OURS]
                ratio = ours / peer if peer else float("inf")
                yield f"{case} vs {who} {counter}".rstrip(), ours, peer, ratio, not counter


def amount(value, is_time):
    if not is_time:
        return f"{value:.4g}"
    for unit, size in reversed(NANOSECONDS.items()):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value:.3g} ns"


def main():
    floors = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    table, missed = list(rows(samples(sys.argv[2:]))), 0
    width = max([len("against"), *(len(row[0]) for row in table)])
    print(f"{'against':{width}} {'ours':>10} {'peer':>10} {'ratio':>7} {'floor':>6}")
    for name, ours, peer, ratio, is_time in table:
        floor = floors.get(name)
        verdict = "" if floor is None else "PASS" if ratio <= floor else "MISS"
        missed += verdict == "MISS"
        print(f"{name:{width}} {amount(ours, is_time):>10} {amount(peer, is_time):>10} {ratio:7.3f} "
              f"{'' if floor is None else floor:>6} {verdict}".rstrip())
    measured = sum(row[0] in floors for row in table)
    print(f"{measured - missed} of {measured} floors hold")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
