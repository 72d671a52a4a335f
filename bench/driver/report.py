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


def empty():
    """What one measure may find."""
    return {"comparisons": [], "memory": [], "growths": [], "calls": {}, "parts": []}


def keep(folder, name, found):
    """Puts what a measure found into the report, in place of what it found earlier."""
    path = folder / "report.json"
    report = json.loads(path.read_text()) if path.exists() else {}
    report[name] = found
    path.write_text(json.dumps(report, indent=1) + "\n")
    for growth in found["growths"]:
        draw(growth, folder)


def write_text(folder):
    content = text(json.loads((folder / "report.json").read_text()))
    (folder / "report.txt").write_text(content + "\n")
    return content


def text(measures):
    report = empty()
    for found in measures.values():
        for kind, results in report.items():
            results.update(found[kind]) if kind == "calls" else results.extend(found[kind])
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
        parts.append(table(rows, ["peak memory or size", "against", "ours", "goal", ""]))
    if report["parts"]:
        parts.append(_parts_text(report["parts"]))
    for growth in report["growths"]:
        parts.append(_growth_text(growth))
    if report["calls"]:
        rows = [[call, str(counts[0]), str(counts[1]), f"{counts[0] - counts[1]:+d}"]
                for call, counts in report["calls"].items() if counts[0] != counts[1]]
        parts.append(table(rows, ["system call", "launcher", "minimal", "difference"]))
    parts.append(_conditions(measures))
    return "\n\n".join(parts)


def _parts_text(parts):
    """One line for each operation: how it stands to the closest peer over its series."""
    rows = []
    for name in dict.fromkeys(part["name"] for part in parts):
        ratios = sorted(part["ratio"] for part in parts if part["name"] == name)
        goal = next(part["goal"] for part in parts if part["name"] == name)
        middle = ratios[len(ratios) // 2]
        rows.append([name, "the closest", f"{ratios[0]:.2f}", f"{middle:.2f}", f"{ratios[-1]:.2f}",
                     f"{goal:.2f}", "met" if ratios[-1] <= goal else "missed"])
    return table(rows, ["part", "against", "least", "median", "most", "goal", ""])


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


def _conditions(measures):
    """When each measure ran, and whether the machine was quiet enough to believe it."""
    rows = []
    for name, found in measures.items():
        noisy = sum(is_noisy(result) for result in found["comparisons"])
        of = len(found["comparisons"])
        rows.append([name, found["date"], f"{found['load'][0]}, {found['load'][1]}",
                     f"{found['seconds']} s", f"{noisy} of {of}" if of else ""])
    lines = table(rows, ["measure", "run at", "load before, after", "took", "noisy"])
    return lines + ("\n\nNoisy: two halves of the same measurement, A against A, differ by more than "
                    "5 %: not to be believed. The cpu ratio bears more than the ratio of wall times.")


def draw(growth, folder):
    """Both axes are logarithmic: a cost in proportion to its work is a straight line."""
    if not shutil.which("gnuplot"):
        return
    commands = [
        "set terminal svg size 640,420 font 'sans-serif,13' background 'white'",
        f"set output '{folder / (growth['file'] + '.svg')}'",
        f"set title \"{growth['name']}\"", f"set xlabel \"{growth['work']}\"",
        "set ylabel 'processor time'", "set logscale x 2", "set logscale y 10", "set key left top", "set grid",
        "set format x '%.0s%c'", "set format y '%.0s %cs'",
    ]
    blocks, plots = [], []
    for i, (name, points) in enumerate(growth["lines"].items()):
        rows = "\n".join(f"{x} {y}" for x, y in points)
        blocks.append(f"$line{i} << end\n{rows}\nend")
        plots.append(f"$line{i} with linespoints linewidth 2 pointtype {5 + 2 * i} title \"{name}\"")
    script = "\n".join([*commands, *blocks, "plot " + ", ".join(plots)]) + "\n"
    subprocess.run(["gnuplot"], input=script, text=True, check=True)
