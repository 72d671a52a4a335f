"""The tables, the JSON file and the pictures."""

import json
import math
import shutil
import subprocess

from measure import is_noisy

MEANINGFUL_PAIRS = 3  # with fewer there is no verdict


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
    return [result["name"], peer["name"], f"{result['ratio']:.2f}", f"{result['cpu_ratio']:.2f}",
            "" if result["goal"] is None else f"{result['goal']:.2f}",
            "" if floor is None else f"{floor:.2f}", verdict(result),
            _time(ours["wall"]), _time(peer["wall"]), str(result["pairs"]),
            "" if result["noise"] is None else f"{100 * result['noise']:.1f} %"]


def table(rows, heads, names=2):
    """A Markdown table, for documents. The first columns are names, the others right-aligned numbers."""
    widths = [max(len(row[i]) for row in [heads, *rows]) for i in range(len(heads))]
    lines = []
    for row in [heads, *rows]:
        cells = [cell.ljust(width) if i < names else cell.rjust(width)
                 for i, (cell, width) in enumerate(zip(row, widths))]
        lines.append("| " + " | ".join(cells) + " |")
    rules = ["-" * width if i < names else "-" * (width - 1) + ":" for i, width in enumerate(widths)]
    lines.insert(1, "| " + " | ".join(rules) + " |")
    return "\n".join(lines)


def empty():
    """The results that one measure may have."""
    return {"comparisons": [], "memory": [], "growths": [], "calls": {}, "parts": []}


def keep(folder, name, found):
    """Adds the results of a measure to the report, replacing earlier ones."""
    path = folder / "report.json"
    report = json.loads(path.read_text()) if path.exists() else {}
    report[name] = found
    path.write_text(json.dumps(report, indent=1) + "\n")
    for growth in found["growths"]:
        draw(growth, folder)


def write_text(folder):
    measures = json.loads((folder / "report.json").read_text())
    content = text(measures)
    (folder / "report.txt").write_text(content + "\n")
    draw_waits(measures, folder / "waits.svg")
    return content


def text(measures):
    report = empty()
    for found in measures.values():
        for kind, results in report.items():
            results.update(found[kind]) if kind == "calls" else results.extend(found[kind])
    parts = []
    if report["comparisons"]:
        parts.append(table([_row(result) for result in report["comparisons"]],
                           ["measure", "peer", "ratio", "processor", "goal", "floor", "verdict",
                            "ours", "peer's", "pairs", "A/A"]))
    if report["memory"]:
        rows = [[entry["name"], entry["against"], f"{entry['value'] / 2**20:.1f} MiB",
                 f"{entry['limit'] / 2**20:.1f} MiB",
                 "met" if entry["value"] <= entry["limit"] else "missed"]
                for entry in report["memory"]]
        parts.append(table(rows, ["peak memory or size", "against", "ours", "goal", "verdict"]))
    if report["parts"]:
        parts.append(_parts_text(report["parts"]))
    for growth in report["growths"]:
        parts.append(_growth_text(growth))
    if report["calls"]:
        rows = [[call, str(counts[0]), str(counts[1]), f"{counts[0] - counts[1]:+d}"]
                for call, counts in report["calls"].items() if counts[0] != counts[1]]
        parts.append(table(rows, ["system call", "launcher", "minimal", "difference"], 1))
    parts.append(_conditions(measures))
    return "\n\n".join(parts)


def _parts_text(parts):
    """One row per operation: its ratio to the fastest peer over the series."""
    rows = []
    for name in dict.fromkeys(part["name"] for part in parts):
        ratios = sorted(part["ratio"] for part in parts if part["name"] == name)
        goal = next(part["goal"] for part in parts if part["name"] == name)
        middle = ratios[len(ratios) // 2]
        rows.append([name, "the fastest", f"{ratios[0]:.2f}", f"{middle:.2f}", f"{ratios[-1]:.2f}",
                     f"{goal:.2f}", "met" if ratios[-1] <= goal else "missed"])
    return table(rows, ["part", "peer", "least", "median", "most", "goal", "verdict"])


def exponent(points):
    """The power of the work with which the cost grows, over the upper half of the series."""
    (x0, y0), (x1, y1) = points[len(points) // 2 - 1], points[-1]
    return math.log(y1 / y0) / math.log(x1 / x0) if x0 != x1 else 0.0


def _growth_text(growth):
    names = list(growth["lines"])
    xs = [x for x, _ in growth["lines"][names[0]]]
    rows = []
    for i, x in enumerate(xs):
        values = [growth["lines"][name][i][1] for name in names]
        closest = min(values[1 : 1 + growth["peers"]])
        rows.append([f"{x:g}", *[_time(value) for value in values],
                     f"{values[0] / closest:.2f}"])
    powers = ["x^" + format(exponent(growth["lines"][name]), ".2f") for name in names]
    rows.append(["grows as", *powers, ""])
    return f"{growth['name']}\n" + table(rows, [growth["work"], *names, "ratio"], 1)


def _conditions(measures):
    """When each measure ran, and how noisy the machine was."""
    rows = []
    for name, found in measures.items():
        noisy = sum(is_noisy(result) for result in found["comparisons"])
        of = len(found["comparisons"])
        rows.append([name, found["date"], f"{found['load'][0]}, {found['load'][1]}",
                     f"{found['seconds']} s", f"{noisy} of {of}" if of else ""])
    lines = table(rows, ["measure", "run at", "load before, after", "took", "noisy"])
    return lines + ("\n\nNoisy: the two halves of a measurement (A/A) differ by more than 5 %. The "
                    "processor ratio tolerates more load than the ratio of wall times.")


def plot(commands):
    """Runs gnuplot, if it is installed."""
    if shutil.which("gnuplot"):
        subprocess.run(["gnuplot"], input="\n".join(commands) + "\n", text=True, check=True)


def draw(growth, folder):
    """Both axes are logarithmic: a cost in proportion to its work is a straight line."""
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
    plot([*commands, *blocks, "plot " + ", ".join(plots)])


def draw_waits(measures, path):
    """What a user waits for: a plain start, and an upgrade beside its peers."""
    if not {"start", "upgrade"} <= measures.keys():
        return
    start = measures["start"]["comparisons"][0]["contenders"][0]
    _, to_gzip, to_one_pass = [found["contenders"] for found in measures["upgrade"]["comparisons"]]
    bars = [("plain start", start), ("upgrade, default package", to_gzip[0]),
            ("upgrade, gzip package", to_gzip[1]),
            ("bsdtar -xf of the default package", to_one_pass[1]), ("cp -r of the client", to_one_pass[2])]
    rows = [f'{bar["wall"]} "{name}" "{_time(bar["wall"])}"' for name, bar in bars]
    plot([
        "set terminal svg size 720,240 font 'sans-serif,13' background 'white'",
        f"set output '{path}'", "$bars << end", *rows, "end", "unset key", "set yrange [*:*] reverse",
        "set xrange [0:*]", "set offsets graph 0, graph 0.1, 0.2, 0.2", "set border 1",
        "set xtics nomirror", "set ytics scale 0", "set xlabel 'wall time, s'", "set style fill solid 0.7",
        "plot $bars using 1:0:(0):1:($0-0.35):($0+0.35):ytic(2) with boxxyerror linecolor 3, "
        "$bars using 1:0:3 with labels left offset 0.7,0",
    ])
