"""Prints a table of what the benchmarks have measured, and draws a picture of it.

usage: report.py RESULTS.json [PICTURE.svg]
"""

import json
import math
import platform
import sys
from html import escape

GROUPS = {
    "short": "Host routines on texts of 10 to 50 units",
    "long": "Host routines on a million units, from host string to new host string",
    "wide": "Wide routines on a million units, from a std::wstring by value to a new one",
    "numerics": "Numeric routines",
}
OWN = ("ours", "floor", "transcription")


def read(path):
    """The medians, in seconds for a call, as {group: {job: {contestant: time}}}; and the machine."""
    with open(path, encoding="utf-8") as file:
        results = json.load(file)
    times = {}
    medians = [row for row in results["benchmarks"] if row.get("aggregate_name") == "median"]
    # They were measured in random order.
    for row in sorted(medians, key=lambda row: row["family_index"]):
        group, job, contestant = row["run_name"].split("/")[:3]
        seconds = row["cpu_time"] * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3}[row["time_unit"]]
        times.setdefault(group, {}).setdefault(job, {})[contestant] = seconds / row["calls"]
    context = results["context"]
    return times, f"{processor()}, {context['num_cpus']} cores, {context['compiler']}"


def processor():
    try:
        with open("/proc/cpuinfo", encoding="utf-8") as file:
            for line in file:
                if line.startswith("model name"):
                    return " ".join(line.split(":")[1].split())
    except OSError:
        pass
    return platform.processor() or platform.machine()


def show_time(seconds):
    for unit, size in (("ms", 1e-3), ("us", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def fastest_peer(contestants):
    peers = {name: time for name, time in contestants.items() if name not in OWN}
    return min(peers, key=peers.get) if peers else None


def ratio(contestants, other):
    """Our time against another's; None without one."""
    return contestants["ours"] / contestants[other] if other in contestants else None


def show_ratio(value):
    return "" if value is None else f"{value:.2f}"


def print_tables(times):
    for group, title in GROUPS.items():
        if group not in times:
            continue
        print(f"\n{title}\n")
        print(f"  {'':32}{'time':>10}{'to floor':>10}{'to peer':>10}  {'peer':10}{'to steps':>9}")
        for job, contestants in times[group].items():
            peer = fastest_peer(contestants)
            print(
                f"  {job:32}{show_time(contestants['ours']):>10}"
                f"{show_ratio(ratio(contestants, 'floor')):>10}"
                f"{show_ratio(ratio(contestants, peer)):>10}  {peer or '':10}"
                f"{show_ratio(ratio(contestants, 'transcription')):>9}".rstrip()
            )
    if "growth" in times:
        rows = {}
        for job, contestants in times["growth"].items():
            name, size = job.split(" @")
            rows.setdefault(name, {})[int(size)] = contestants["ours"]
        print("\nHost routines on their worst texts: nanoseconds for a unit\n")
        print(f"  {'units':32}" + "".join(f"{size:>10}" for size in next(iter(rows.values()))))
        for name, sizes in rows.items():
            print(f"  {name:32}" + "".join(f"{time / 1e-9:>10.2f}" for time in sizes.values()))


def draw(times, machine):
    """Bars of ratios on a logarithmic scale, to the left of 1 where ours is the faster one."""
    columns = []
    for group, title, other in (
        ("short", "10 to 50 units: time against the floor", lambda job: "floor"),
        ("long", "a million units: time against the fastest peer", fastest_peer),
        ("numerics", "numerics: time against the plain steps", lambda job: "transcription"),
    ):
        bars = [(name, ratio(job, other(job))) for name, job in times[group].items()]
        columns.append((title, bars))
    width, row, top, octave, one = 450, 16, 70, 20, 310
    height = top + row * max(len(bars) for _, bars in columns) + 40
    out = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width * len(columns)} {height}"'
        ' font-family="sans-serif" font-size="11">',
        '<rect width="100%" height="100%" fill="#fff"/>',
    ]
    for number, (title, bars) in enumerate(columns):
        middle = number * width + one
        bottom = top + row * len(bars)
        out.append(f'<text x="{number * width + 12}" y="28" font-size="14">{escape(title)}</text>')
        for power, mark in ((-4, "1/16"), (-2, "1/4"), (0, "1"), (2, "4"), (4, "16")):
            x = middle + power * octave
            colour = "#444" if power == 0 else "#ddd"
            out.append(f'<path d="M{x} {top - 6}V{bottom}" stroke="{colour}"/>')
            out.append(f'<text x="{x}" y="{top - 12}" text-anchor="middle">{mark}</text>')
        for i, (name, value) in enumerate(bars):
            y = top + row * i
            length = octave * math.log2(value)
            colour = "#3b7d4f" if value <= 1 else "#4a6fa5"
            left, right = middle + min(length, 0), middle + max(length, 0)
            out.append(f'<text x="{number * width + 200}" y="{y + 10}" text-anchor="end">{escape(name)}</text>')
            out.append(
                f'<rect x="{left:.1f}" y="{y + 1}" width="{right - left:.1f}" height="{row - 5}" fill="{colour}"/>'
            )
            out.append(f'<text x="{right + 4:.1f}" y="{y + 10}">{value:.2f}</text>')
    out.append(f'<text x="12" y="{height - 14}">Medians. {escape(machine)}</text>')
    out.append("</svg>")
    return "\n".join(out) + "\n"


def main(arguments):
    times, machine = read(arguments[0])
    print(machine)
    print_tables(times)
    if len(arguments) > 1:
        with open(arguments[1], "w", encoding="utf-8") as file:
            file.write(draw(times, machine))


if __name__ == "__main__":
    main(sys.argv[1:])
