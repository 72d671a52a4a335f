#!/usr/bin/env python3
"""Compares the launcher and its parts with their peers. Started by scripts/bench."""

import argparse
import contextlib
import itertools
import os
import pathlib
import random
import signal
import subprocess
import sys
import time

import inputs
import measures
import plan as plans
import report as reports
import workspace
from measure import Runner, compare, in_turn, median


class Session:
    """One run: its inputs, its extent and its results."""

    def __init__(self, build, results, folder, plan, display):
        self.build = build
        self.results = results
        self.folder = folder
        self.plan = plan
        self.display = display
        self.runner = Runner(build / "bench/bench-timed-run", build / "bench/bench-warm-memory")
        self.packages = inputs.Packages(build / "bench", folder)
        self.bundle = inputs.Bundle(folder, build)
        self.ext4 = None
        self.report = reports.empty()

    def displays(self):
        """The displays to run on: never the user's own."""
        found = [("offscreen", None)]
        if self.display:
            found.append(("Xvfb", self.display))
        return found

    def big_package(self, kind):
        return self.plan.big_of(self.packages, kind)

    def orders(self, sides, rounds):
        """An order of the contenders for each round: random, or in a short run every order in turn, each
        from the initial state, so that a contender that relies on another one fails."""
        if self.plan.every_order:
            for order in itertools.permutations(range(sides)):
                self.start_afresh()
                yield order
        lots = random.Random(rounds)
        for _ in range(0 if self.plan.every_order else rounds):
            yield lots.sample(range(sides), sides)

    def start_afresh(self):
        self.bundle.empty()
        for left in ("unpacked", "removed", "copied"):
            inputs.remove(self.folder / left)
        if self.ext4:
            self.ext4.close()

    def in_turn(self, contenders, rounds):
        return in_turn(self.runner, contenders, self.orders(len(contenders), rounds))

    def compare(self, name, contenders, rounds, goal=None):
        samples = self.in_turn(contenders, rounds)
        goal = None if self.plan.every_order else goal
        result = {"name": name, **compare(contenders, samples, goal)}
        self.report["comparisons"].append(result)
        print(f"   {name}: {result['ratio']:.2f} of {contenders[1].name} "
              f"{reports.verdict(result)}", flush=True)

    def memory(self, name, against, value, limit):
        self.report["memory"].append(
            {"name": name, "against": against, "value": value, "limit": limit})
        print(f"   {name}: {value / 2**20:.1f} MiB of {limit / 2**20:.1f}", flush=True)

    def add_points(self, lines, x, contenders, rounds):
        """Adds processor times, because few points tolerate little noise."""
        for contender, samples in zip(contenders, self.in_turn(contenders, rounds)):
            lines.setdefault(contender.name, []).append([x, median(samples, "cpu")])

    def growth(self, file, name, work, lines, peers=1):
        """Adds lines of points: ours, then `peers` peers, then the floor."""
        self.report["growths"].append(
            {"file": file, "name": name, "work": work, "lines": lines, "peers": peers})
        print(f"   {name}, by {work}", flush=True)


@contextlib.contextmanager
def xvfb():
    """A display of our own. It doesn't reset after its last client, which would delay the next one."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1024x768x24", "-nolisten", "tcp",
         "-nolisten", "unix", "-noreset"],
        pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with os.fdopen(reader) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise workspace.Failure("Xvfb doesn't start: run it manually to see why")
        yield f":{number}"
    finally:
        server.terminate()
        server.wait()


def results(arguments):
    """The folder of the report; that of a short run is separate, because its figures mean nothing."""
    folder = arguments.build / "short" if arguments.short else arguments.build
    folder.mkdir(exist_ok=True)
    return folder


def run(arguments):
    plan = plans.Short() if arguments.short else plans.Full()
    plan.limit(arguments.pairs)
    if not workspace.FreshExt4.is_possible():
        print("An ext4 needs root and loop devices: measuring only on tmpfs.")
    with xvfb() as display:
        for name in arguments.measures or measures.ALL:
            with contextlib.ExitStack() as stack:
                folder = stack.enter_context(workspace.memory(plan.needs))
                session = Session(arguments.build, results(arguments), folder, plan, display)
                if workspace.FreshExt4.is_possible():
                    session.ext4 = workspace.FreshExt4(folder, plan.ext4_size)
                    stack.callback(session.ext4.close)
                measure(session, name)


def measure(session, name):
    """Its results replace earlier ones in the report."""
    begin, load = time.monotonic(), workspace.load()
    print(f"== {name}", flush=True)
    session.report = reports.empty()
    measures.ALL[name](session)
    taken = round(time.monotonic() - begin)
    print(f"   ({taken} s)", flush=True)
    reports.keep(session.results, name, {
        **session.report, "date": time.strftime("%Y-%m-%d %H:%M"), "seconds": taken,
        "load": [load, workspace.load()], "machine": workspace.machine(),
    })


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench")
    parser.add_argument("--build", type=pathlib.Path, required=True, help=argparse.SUPPRESS)
    parser.add_argument("--short", action="store_true")
    parser.add_argument("--pairs", type=int, default=None)
    parser.add_argument("measures", nargs="*", metavar="MEASURE")
    arguments = parser.parse_args()
    for name in arguments.measures:
        if name not in measures.ALL:
            parser.error(f"unknown measure '{name}'; the measures are {', '.join(measures.ALL)}")
    # Exits normally, so that the file systems are unmounted.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("bench: ended by a signal"))
    try:
        run(arguments)
    except workspace.Failure as failure:
        sys.exit(f"bench: {failure}")
    print("\n" + reports.write_text(results(arguments)))


main()
