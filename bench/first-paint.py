#!/usr/bin/env python3
"""Start to first paint: the installer against a bare Qt program, run in turns on the display there is.

Prints the medians of wall time, user + system time and peak memory, and the ratios; first up to the first paint, at
which both programs leave at once, then up to the end of programs that quit at their first paint. The second flatters
whoever shows text: at its end, a Qt program that has shown none reads the configuration of all fonts all the same.

An Xvfb needs -noreset: it turns away who comes while it begins anew, as it does when the last program has gone."""

import argparse
import os
import statistics
import subprocess
import sys
import time


def measure(command):
    begin = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.monotonic() - begin
    if status != 0:
        sys.exit(f"{' '.join(command)} ended with {status}")
    return wall * 1000, (usage.ru_utime + usage.ru_stime) * 1000, usage.ru_maxrss / 1024


def compare(runs, installer, other):
    samples = [(measure(other), measure(installer)) for _ in range(runs)]
    for index, unit in enumerate(("ms wall", "ms user+sys", "MiB peak")):
        theirs, ours = (statistics.median(pair[which][index] for pair in samples) for which in (0, 1))
        print(f"{ours:7.1f} against {theirs:7.1f} {unit}, {ours / theirs:.2f} times")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--runs", type=int, default=40)
    parser.add_argument("installer", help="installer-first-paint")
    parser.add_argument("other", help="bare-first-paint, or label-first-paint")
    arguments = parser.parse_args()
    for words, ending in (("To the first paint", []), ("To the end", ["--to-end"])):
        print(words)
        compare(arguments.runs, [arguments.installer, *ending], [arguments.other, *ending])


main()
