"""Runs programs in turn and compares them."""

import dataclasses
import statistics
import subprocess
import tempfile

import workspace

# A is compared with A: every other run with the rest. The difference of these medians is noise.
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
        """Touches `size` bytes, at most half of the free memory, and frees them, because a virtual machine
        may have returned its free memory to the host and would wait for it. No effect if memory is short."""
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
    """One program of a comparison. `prepare` runs before each run and isn't measured; it prepares everything
    that the run needs, whichever program ran before. `check` runs after it. A run takes about `memory`
    bytes, including files on the tmpfs."""

    name: str
    command: list
    environment: dict = None
    prepare: callable = None
    check: callable = None
    memory: int = 0


def median(samples, of):
    return statistics.median(getattr(sample, of) for sample in samples)


def in_turn(runner, contenders, orders):
    """Runs each of them once per round, so that other load affects all of them. `orders` has one order of
    the contenders for each round, because a run is affected by the previous one, for instance by a client
    that is still starting. Returns a list of samples for each contender."""
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
    """The relative difference of the two halves of a measurement."""
    if len(samples) < 2:
        return None
    return abs(median(samples[::2], "wall") / median(samples[1::2], "wall") - 1)


def compare(contenders, samples, goal=None):
    """The first contender is ours, the second the peer, the third, if any, the floor."""
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
