"""Measures the benchmarks with two builds of the library by turns, and prints a table.

usage: compare.py OLD_PROGRAM NEW_PROGRAM [GROUP]...

The programs are two copies of QUVARDBenchmarks, each beside its own libraries. A time is the least of
many short runs, so that other load on the machine hardly counts.
"""

import json
import os
import subprocess
import sys
import tempfile

ROUNDS = 15


def measure(program, groups):
    """The processor time in nanoseconds for a call, as {(group, job, contestant): time}."""
    with tempfile.TemporaryDirectory() as folder:
        results = os.path.join(folder, "times.json")
        options = ["--benchmark_filter=/(ours|floor)(/|$)", "--benchmark_out=" + results]
        subprocess.run([program, "--brief", *options, *groups], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with open(results, encoding="utf-8") as file:
            rows = json.load(file)["benchmarks"]
    size = {"ns": 1, "us": 1e3, "ms": 1e6}
    return {tuple(row["run_name"].split("/")[:3]):
            row["cpu_time"] * size[row["time_unit"]] / row["calls"] for row in rows}


def main(programs, groups):
    least = [{}, {}]
    for i in range(ROUNDS):
        print(f"\r{i + 1} of {ROUNDS}", end="", file=sys.stderr)
        for times, program in zip(least, programs):
            for key, time in measure(program, groups).items():
                times[key] = min(time, times.get(key, time))
    old, new = least
    print("\r          \r", end="", file=sys.stderr, flush=True)
    print(f"{'nanoseconds':40}{'old':>12}{'new':>12}{'new/old':>10}{'old/floor':>12}{'new/floor':>12}")
    for group, job, contestant in old:
        if contestant == "ours":
            key, floor = (group, job, "ours"), (group, job, "floor")
            to_floor = [f"{times[key] / times[floor]:12.2f}" for times in least if floor in times]
            print(f"{group + '/' + job:40}{old[key]:12.1f}{new[key]:12.1f}{new[key] / old[key]:10.3f}"
                  + "".join(to_floor))


if __name__ == "__main__":
    main(sys.argv[1:3], sys.argv[3:] or ["short", "long"])
