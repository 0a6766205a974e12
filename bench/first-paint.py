#!/usr/bin/env python3
"""Start to first paint: the installer against a bare Qt program, run in turns on the display there is.

usage: first-paint.py [RUNS] INSTALLER-FIRST-PAINT BARE-FIRST-PAINT (or LABEL-FIRST-PAINT)

Prints the medians of wall time, user + system time and peak memory, and the ratios. An Xvfb needs -noreset: it turns
away who comes while it begins anew, as it does when the last program has gone."""

import os
import statistics
import subprocess
import sys
import time


def measure(program):
    begin = time.monotonic()
    process = subprocess.Popen([program], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.monotonic() - begin
    if status != 0:
        sys.exit(f"{program} ended with {status}")
    return wall * 1000, (usage.ru_utime + usage.ru_stime) * 1000, usage.ru_maxrss / 1024


def main():
    arguments = sys.argv[1:]
    runs = int(arguments.pop(0)) if len(arguments) == 3 else 40
    installer, bare = arguments
    samples = {installer: [], bare: []}
    for _ in range(runs):
        for program in (bare, installer):
            samples[program].append(measure(program))
    for index, unit in enumerate(("ms wall", "ms user+sys", "MiB peak")):
        ours, theirs = (statistics.median(sample[index] for sample in samples[each]) for each in (installer, bare))
        print(f"{ours:7.1f} against {theirs:7.1f} {unit}, {ours / theirs:.2f} times")


main()
