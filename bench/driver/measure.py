"""Runs programs in turn and compares them."""

import dataclasses
import statistics
import subprocess
import tempfile

import workspace

# A is taken twice: every other run against the rest. What those two medians differ by is noise.
MAX_DIFFERENCE_OF_A_AND_A = 0.05


@dataclasses.dataclass
class Sample:
    wall: float  # seconds
    cpu: float  # seconds, user and system, of all threads and children
    memory: int  # bytes at the peak


class Runner:
    def __init__(self, timed_run, warm_memory):
        self.timed_run = timed_run
        self.warm_memory = warm_memory

    def warm(self, size):
        """Sees to it that so many bytes, but no more than half of what is free, can be taken without
        waiting for the host of a virtual machine. Where memory is limited it does nothing."""
        size = min(size, workspace.free_memory() // 2)
        if size > 0:
            subprocess.run([self.warm_memory, str(size)], check=False)

    def run(self, command, environment=None):
        with tempfile.TemporaryFile() as errors:
            done = subprocess.run([self.timed_run, *map(str, command)], env=environment,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=errors)
            errors.seek(0)
            workspace.check(done.returncode, command, errors.read())
        wall, user, system, memory = map(int, done.stdout.split())
        return Sample(wall / 1e6, (user + system) / 1e6, memory * 1024)


@dataclasses.dataclass
class Contender:
    """One side of a comparison. `prepare` runs before each run, outside of the time, and makes ready
    all that the run needs: another side may have gone before, or none. `check` runs after it. A run
    takes about `memory` bytes, files on the tmpfs included."""

    name: str
    command: list
    environment: dict = None
    prepare: callable = None
    check: callable = None
    memory: int = 0


def median(samples, of):
    return statistics.median(getattr(sample, of) for sample in samples)


def in_turn(runner, contenders, orders):
    """Each of them once in a round: what changes on the machine meanwhile meets all of them. `orders`
    holds one order of the contenders for each round, since a program also meets what the one before
    it has left behind: a client that was just started, for one. A list of samples for each
    contender."""
    samples = [[] for _ in contenders]
    for order in orders:
        for i in order:
            contender = contenders[i]
            if contender.prepare:
                contender.prepare()
            runner.warm(contender.memory)
            samples[i].append(runner.run(contender.command, contender.environment))
            if contender.check:
                contender.check()
    return samples


def noise(samples):
    """How far two halves of the same measurement lie apart, as a share."""
    if len(samples) < 2:
        return None
    return abs(median(samples[::2], "wall") / median(samples[1::2], "wall") - 1)


def compare(contenders, samples, goal=None):
    """The first contender is ours, the second the peer, a third one the floor."""
    wall = [median(taken, "wall") for taken in samples]
    cpu = [median(taken, "cpu") for taken in samples]
    result = {
        "pairs": len(samples[0]),
        "goal": goal,
        "noise": noise(samples[0]),
        "ratio": wall[0] / wall[1],
        "cpu_ratio": cpu[0] / cpu[1],
        "contenders": [
            {"name": contender.name, "wall": wall[i], "cpu": cpu[i],
             "memory": median(samples[i], "memory"),
             "samples": [dataclasses.astuple(sample) for sample in samples[i]]}
            for i, contender in enumerate(contenders)
        ],
    }
    if len(contenders) > 2:
        result["floor_ratio"] = wall[2] / wall[1]
    return result


def is_noisy(result):
    return result.get("noise") is not None and result["noise"] > MAX_DIFFERENCE_OF_A_AND_A
