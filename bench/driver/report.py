"""The table, the file for machines and the pictures."""

import json
import math
import shutil
import subprocess

from measure import is_noisy

MEANINGFUL_PAIRS = 3  # with less nothing is said of goals


def _time(seconds):
    for unit, scale in (("s", 1), ("ms", 1e3), ("us", 1e6)):
        if seconds * scale >= 1:
            return f"{seconds * scale:.3g} {unit}"
    return f"{seconds * 1e9:.3g} ns"


def verdict(result):
    if result.get("goal") is None or result["pairs"] < MEANINGFUL_PAIRS:
        return ""
    if is_noisy(result):
        return "noisy"
    return "met" if result["ratio"] <= result["goal"] else "missed"


def _row(result):
    ours, peer = result["contenders"][:2]
    floor = result.get("floor_ratio")
    return [result["name"], peer["name"], _time(ours["wall"]), _time(peer["wall"]),
            f"{result['ratio']:.2f}", f"{result['cpu_ratio']:.2f}",
            "" if result["goal"] is None else f"{result['goal']:.2f}",
            "" if floor is None else f"{floor:.2f}", str(result["pairs"]),
            "" if result["noise"] is None else f"{100 * result['noise']:.1f}%", verdict(result)]


def table(rows, heads):
    """Columns, the first two to the left."""
    widths = [max(len(row[i]) for row in [heads, *rows]) for i in range(len(heads))]
    lines = []
    for row in [heads, *rows]:
        cells = [cell.ljust(width) if i < 2 else cell.rjust(width)
                 for i, (cell, width) in enumerate(zip(row, widths))]
        lines.append("  ".join(cells).rstrip())
    lines.insert(1, "  ".join("-" * width for width in widths))
    return "\n".join(lines)


def text(report):
    parts = []
    if report["comparisons"]:
        parts.append(table([_row(result) for result in report["comparisons"]],
                           ["measure", "against", "ours", "peer", "ratio", "cpu ratio", "goal",
                            "floor", "pairs", "A/A", ""]))
    if report["memory"]:
        rows = [[entry["name"], entry["against"], f"{entry['value'] / 2**20:.1f} MiB",
                 f"{entry['limit'] / 2**20:.1f} MiB",
                 "met" if entry["value"] <= entry["limit"] else "missed"]
                for entry in report["memory"]]
        parts.append(table(rows, ["peak memory", "against", "ours", "goal", ""]))
    for growth in report["growths"]:
        parts.append(_growth_text(growth))
    if report["calls"]:
        rows = [[call, str(counts[0]), str(counts[1]), f"{counts[0] - counts[1]:+d}"]
                for call, counts in report["calls"].items() if counts[0] != counts[1]]
        parts.append(table(rows, ["system call", "launcher", "minimal", "difference"]))
    parts.append(_believable(report))
    return "\n\n".join(parts)


def exponent(points):
    """Cost grows with that power of the work, over the upper half of the series."""
    (x0, y0), (x1, y1) = points[len(points) // 2 - 1], points[-1]
    return math.log(y1 / y0) / math.log(x1 / x0) if x0 != x1 else 0.0


def _growth_text(growth):
    names = list(growth["lines"])
    xs = [x for x, _ in growth["lines"][names[0]]]
    rows = []
    for i, x in enumerate(xs):
        values = [growth["lines"][name][i][1] for name in names]
        closest = min(values[1 : 1 + growth["peers"]])
        rows.append([f"{x:g}", "", *[_time(value) for value in values],
                     f"{values[0] / closest:.2f}"])
    powers = ["x^" + format(exponent(growth["lines"][name]), ".2f") for name in names]
    rows.append(["grows as", "", *powers, ""])
    return f"{growth['name']}\n" + table(rows, [growth["work"], "", *names, "ratio"])


def _believable(report):
    noisy = [result["name"] for result in report["comparisons"] if is_noisy(result)]
    before, after = report["machine"]["load"][0], report["load_at_end"][0]
    line = f"Load of the machine: {before} at the start, {after} at the end."
    if noisy:
        return line + (" Too noisy to believe (A against A differs by more than 5%): "
                       + "; ".join(noisy) + ".")
    return line + " A against A differs by 5% at most throughout."


def write(report, folder):
    (folder / "report.json").write_text(json.dumps(report, indent=1) + "\n")
    (folder / "report.txt").write_text(text(report) + "\n")
    for growth in report["growths"]:
        draw(growth, folder)


def draw(growth, folder):
    """Both axes double from tick to tick: a cost that grows with its work is a straight line."""
    if not shutil.which("gnuplot"):
        return
    commands = [
        "set terminal svg size 640,420 font 'sans-serif,13' background 'white'",
        f"set output '{folder / (growth['file'] + '.svg')}'",
        f"set title \"{growth['name']}\"", f"set xlabel \"{growth['work']}\"",
        "set ylabel 'time'", "set logscale xy 2", "set key left top", "set grid",
        "set format x '%.0s%c'", "set format y '%.1s %cs'",
    ]
    blocks, plots = [], []
    for i, (name, points) in enumerate(growth["lines"].items()):
        rows = "\n".join(f"{x} {y}" for x, y in points)
        blocks.append(f"$line{i} << end\n{rows}\nend")
        plots.append(f"$line{i} with linespoints linewidth 2 pointtype {5 + 2 * i} title \"{name}\"")
    script = "\n".join([*commands, *blocks, "plot " + ", ".join(plots)]) + "\n"
    subprocess.run(["gnuplot"], input=script, text=True, check=True)
