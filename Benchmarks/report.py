"""Runs QUVARDBenchmarks several times and prints a table of the least times.

usage: report.py [--picture FILE.svg | --against OLD_PROGRAM] PROGRAM [GROUP]...

The least time of many short runs hardly depends on other load. With --against, runs of two copies of the
program alternate. Each copy loads the libraries in its own folder.
"""

import argparse
import json
import math
import platform
import subprocess
import sys
import tempfile
from html import escape

ROUNDS = 15
UNITS = {"ns": 1, "us": 1e3, "ms": 1e6}


def run(program, groups, *options):
    """Runs once. Returns {(group, job): {contestant: nanoseconds of CPU time per call}} and the machine."""
    with tempfile.NamedTemporaryFile() as file:
        subprocess.run([program, f"--benchmark_out={file.name}", *options, *groups], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        results = json.load(file)
    times = {}
    for row in results["benchmarks"]:
        group, job, contestant = row["run_name"].split("/")[:3]
        time = row["cpu_time"] * UNITS[row["time_unit"]] / row["calls"]
        times.setdefault((group, job), {})[contestant] = time
    context = results["context"]
    return times, f"{processor()}, {context['num_cpus']} cores, {context['compiler']}"


def measure(programs, groups, *options):
    """Returns the least times of all runs for each program, and the machine."""
    least = [{} for _ in programs]
    for number in range(1, ROUNDS + 1):
        print(f"\rrun {number} of {ROUNDS}", end="", file=sys.stderr, flush=True)
        for times, program in zip(least, programs):
            results, machine = run(program, groups, *options)
            for job, contestants in results.items():
                best = times.setdefault(job, {})
                for name, time in contestants.items():
                    best[name] = min(time, best.get(name, time))
    print(file=sys.stderr)
    return least, machine


def processor():
    try:
        with open("/proc/cpuinfo", encoding="utf-8") as file:
            return next(line.split(":")[1].strip() for line in file if line.startswith("model name"))
    except (OSError, StopIteration):
        return platform.processor() or platform.machine()


def show_time(time):
    unit = next((unit for unit in ("ms", "us") if time >= UNITS[unit]), "ns")
    return f"{time / UNITS[unit]:.3g} {unit}"


def print_times(times):
    last = None
    for (group, job), contestants in times.items():
        if group != last:
            ratio = "nanoseconds per code unit, by size" if group == "growth" else "ratio to others"
            print(f"\n{group:42}{ratio}\n")
            last = group
        if group == "growth":
            print(f"  {job:38}" + "".join(f"  {size:>7}: {time:5.2f}" for size, time in contestants.items()))
        else:
            ours, *others = contestants.items()
            ratios = (f"  {name} {ours[1] / time:.2f}" for name, time in others)
            print(f"  {job:30}{show_time(ours[1]):>8}" + "".join(ratios))


def print_comparison(old, new):
    print(f"{'nanoseconds':40}{'old':>12}{'new':>12}{'new/old':>10}{'old/floor':>12}{'new/floor':>12}")
    for job, contestants in new.items():
        for name in (name for name in contestants if name != "floor"):
            before, after = old[job][name], contestants[name]
            title = "/".join(job) if name == "ours" else "/".join((*job, name))
            floors = [times[job].get("floor", math.nan) for times in (old, new)]
            print(f"{title:40}{before:12.1f}{after:12.1f}{after / before:10.3f}"
                  f"{before / floors[0]:12.2f}{after / floors[1]:12.2f}")


def draw(times, machine):
    """Draws ratios as bars on a logarithmic scale. Bars to the left of 1: ours is faster."""
    columns = (
        ("10 to 50 code units: time / floor", "short", ("floor",)),
        ("a million code units: time / floor", "long", ("floor",)),
        ("a million code units: time / fastest peer", "long", ("std", "Boost", "ICU")),
    )
    width, row, top, octave, one = 450, 16, 70, 30, 310
    height = top + row * max(sum(group == column[1] for group, _ in times) for column in columns) + 40
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width * len(columns)} {height}"'
           ' font-family="sans-serif" font-size="11">', '<rect width="100%" height="100%" fill="#fff"/>']
    for number, (title, group, others) in enumerate(columns):
        bars = [(job, contestants["ours"] / min(contestants[name] for name in others if name in contestants))
                for (its, job), contestants in times.items()
                if its == group and any(name in contestants for name in others)]
        middle, bottom = number * width + one, top + row * len(bars)
        out.append(f'<text x="{number * width + 12}" y="28" font-size="14">{escape(title)}</text>')
        for power, mark in ((-2, "1/4"), (-1, "1/2"), (0, "1"), (1, "2"), (2, "4")):
            x = middle + power * octave
            out.append(f'<path d="M{x} {top - 6}V{bottom}" stroke="{"#ddd" if power else "#444"}"/>')
            out.append(f'<text x="{x}" y="{top - 12}" text-anchor="middle">{mark}</text>')
        for y, (name, value) in enumerate(bars):
            y, length = top + row * y, octave * math.log2(value)
            left, right = middle + min(length, 0), middle + max(length, 0)
            out.append(f'<text x="{number * width + 200}" y="{y + 10}" text-anchor="end">{escape(name)}</text>')
            out.append(f'<rect x="{left:.1f}" y="{y + 1}" width="{right - left:.1f}" height="{row - 5}"'
                       f' fill="{"#3b7d4f" if value <= 1 else "#4a6fa5"}"/>')
            out.append(f'<text x="{right + 4:.1f}" y="{y + 10}">{value:.2f}</text>')
    out.append(f'<text x="12" y="{height - 14}">Least times of {ROUNDS} runs. {escape(machine)}</text></svg>')
    return "\n".join(out) + "\n"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--picture")
    parser.add_argument("--against")
    parser.add_argument("groups", nargs="*")
    arguments = parser.parse_args()
    if arguments.against:
        only_ours = "--benchmark_filter=/(ours|floor|[0-9]+)(/|$)"
        (old, new), _ = measure([arguments.against, arguments.program], arguments.groups, only_ours)
        print_comparison(old, new)
        return
    (times,), machine = measure([arguments.program], arguments.groups)
    print(machine)
    print_times(times)
    if arguments.picture:
        with open(arguments.picture, "w", encoding="utf-8") as file:
            file.write(draw(times, machine))


if __name__ == "__main__":
    main()
