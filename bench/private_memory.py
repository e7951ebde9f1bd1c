"""What processes of Windows programs keep for themselves, by the host's accounting of them.

usage: private_memory.py INSTALLATION BARE_PROGRAM

Prints the measures of the idle agent against a bare program of its kind, and passes on those of
bench_growth.exe in INSTALLATION, with the growth of its private memory added.
"""

import os
import re
import subprocess
import sys
import time

IDLE_BAR = 1.25
GROWTH_BAR = 256  # KiB: what a heap may come to by rounding, far below a leak at each turn
SETTLED = 5  # seconds without a change
PATIENCE = 60  # seconds


def private_kib(pid):
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as rollup:
        return sum(int(size) for size in re.findall(r"^Private_(?:Clean|Dirty):\s+(\d+) kB",
                                                    rollup.read(), re.MULTILINE))


def measure(name, value, bar):
    print(f"measure {name} {value:.3f} {bar} {'ok' if value <= bar else 'missed'}", flush=True)


def start(program, **options):
    # The launcher becomes the program: the process keeps its number.
    return subprocess.Popen(["wine", program], stderr=subprocess.DEVNULL,
                            cwd=os.path.dirname(program), **options)


def end(process):
    process.kill()
    process.wait()


def settled_kib(program):
    """The private memory of a program once it stands still."""
    process = start(program, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    try:
        time.sleep(SETTLED)
        values = []
        for _ in range(PATIENCE):
            if process.poll() is not None:
                sys.exit(f"{program} ended with {process.returncode}")
            values.append(private_kib(process.pid))
            if len(values) > SETTLED and len(set(values[-SETTLED:])) == 1:
                break
            time.sleep(1)
        return values[-1]
    finally:
        end(process)


def measure_idle(agent, bare):
    agent_kib, bare_kib = settled_kib(agent), settled_kib(bare)
    print(f"private memory: the idle agent {agent_kib} KiB, the bare program {bare_kib} KiB")
    measure("private_memory_ratio", agent_kib / bare_kib, IDLE_BAR)


def measure_growth(program):
    process = start(program, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    before = {}
    for raw in process.stdout:
        words = raw.decode("ascii").split()
        if words[:1] != ["checkpoint"]:
            print(" ".join(words), flush=True)
            continue
        kib = private_kib(process.pid)
        process.stdin.write(b"\n")
        process.stdin.flush()
        subject, moment = words[1:]
        print(f"private memory, {subject} {moment}: {kib} KiB")
        if moment == "before":
            before[subject] = kib
        else:
            measure(f"{subject}_growth_private_kib", kib - before[subject], GROWTH_BAR)
    if process.wait() != 0:
        sys.exit(f"{program} ended with {process.returncode}")


def main(installation, bare):
    measure_idle(os.path.join(installation, "SorvaneETray.exe"), os.path.abspath(bare))
    measure_growth(os.path.join(installation, "bench_growth.exe"))


if __name__ == "__main__":
    main(*sys.argv[1:])
