#!/usr/bin/env python3
"""Runs host_bench and prints its medians next to those of the other libraries, as Markdown.

    report.py HOST_BENCH [REPETITIONS]

A ratio above 1 says how many times faster our code is. Each measurement runs in a process of its own,
unaffected by the memory use of another, and each round runs all of them once, so that other load on
the machine is spread over all.
"""

import json
import os
import re
import statistics
import subprocess
import sys
from typing import Dict, List, Optional, Tuple

Medians = Dict[str, float]
Row = Tuple[str, ...]


def names(program: str) -> List[str]:
    listed = subprocess.run([program, "--benchmark_list_tests"], check=True,
                            stdout=subprocess.PIPE, text=True)
    return listed.stdout.split()


def measure_once(program: str, name: str) -> float:
    """Processor time in nanoseconds, which other load on the machine affects least; real time for a
    benchmark that takes the time itself."""
    done = subprocess.run(
        [program, "--benchmark_format=json", "--benchmark_min_time=0.1",
         "--benchmark_repetitions=3", f"--benchmark_filter=^{re.escape(name)}$"],
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    # The median ignores the first repetition, which gets its memory from the system.
    [entry] = [entry for entry in json.loads(done.stdout)["benchmarks"]
               if entry.get("aggregate_name") == "median"]
    kind = "real_time" if "manual_time" in name else "cpu_time"
    return entry[kind] * {"ns": 1, "us": 1e3, "ms": 1e6}[entry["time_unit"]]


def measure(program: str, repetitions: int) -> Medians:
    times: Dict[str, List[float]] = {name: [] for name in names(program)}
    for _ in range(repetitions):
        for name, measured in times.items():
            measured.append(measure_once(program, name))
    return {name.replace("/manual_time", "").split("/iterations:")[0]: statistics.median(measured)
            for name, measured in times.items()}


def duration(nanoseconds: Optional[float]) -> str:
    if nanoseconds is None:
        return "-"
    for unit, size in (("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def table(title: str, head: Row, rows: List[Row]) -> None:
    print(f"\n### {title}\n")
    for line in (head, tuple("---" for _ in head), *rows):
        print("| " + " | ".join(line) + " |")


def verdict(ratio: float, goal: float) -> str:
    return f"{ratio:.2f}" + (" (goal met)" if ratio >= goal else f" (goal {goal:g} missed)")


def report_encoding(medians: Medians) -> None:
    rivals = ("Curl", "QByteArray", "QUrl")
    rows = []
    for copies in (1, 10, 100):
        ours = medians[f"urlEncodeOurs/{copies}"]
        times = [medians[f"urlEncode{rival}/{copies}"] for rival in rivals]
        rows.append((f"{copies} event(s)", duration(ours), *map(duration, times),
                     verdict(times[0] / ours, 8)))
    table("Form encoding", ("text", "urlEncode", "curl_easy_escape",
                            "QByteArray::toPercentEncoding", "QUrl::toPercentEncoding",
                            "curl_easy_escape / ours, goal 8"), rows)


def report_expansion(medians: Medians) -> None:
    floor = medians["expansionConcatenation"]
    ours, *others = (medians["expansion" + library]
                     for library in ("Ours", "Ctemplate", "Mustache"))
    table("Expansion of one event body",
          ("ours", "ctemplate", "Mustache (kainjow)", "concatenation", "best library / ours",
           "concatenation / ours"),
          [(duration(ours), *map(duration, others), duration(floor), f"{min(others) / ours:.2f}",
            f"{floor / ours:.2f}")])


def report_config(medians: Medians, work: str, title: str, orders: Dict[int, str],
                  goals: Dict[int, float]) -> None:
    libraries = ("Ours", "SimpleIni", "Inih", "QSettings")
    rows = []
    for order, name in orders.items():
        for keys in (100, 10_000, 100_000):
            times = [medians.get(f"{work}{library}/{keys}/{order}") for library in libraries]
            ratio = min(time for time in times[1:] if time is not None) / times[0]
            rows.append((name, f"{keys:,}", *map(duration, times),
                         verdict(ratio, goals[order]) if goals else f"{ratio:.2f}",
                         duration(times[0] / keys)))
    head = ("order of the lines", "keys", "ours", "SimpleIni", "inih", "QSettings",
            "fastest other / ours", "ours for each key")
    if work == "lookUp":
        head, rows = head[:-1], [row[:-1] for row in rows]
    table(title, head, rows)


def report_sending(medians: Medians) -> None:
    table("sendEvent on the calling thread",
          ("building the body alone", "worker busy", "worker to be started"),
          [(duration(medians["eventBody"]), duration(medians["sendEventToABusyWorker"]),
            duration(medians["sendEventToAnIdleWorker"]))])


def main() -> None:
    program = sys.argv[1]
    repetitions = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    medians = measure(program, repetitions)
    print(f"Medians of {repetitions} repetitions, {os.cpu_count()} processors, load "
          f"{os.getloadavg()[0]:.1f}")
    report_encoding(medians)
    report_expansion(medians)
    report_config(medians, "parse", "Reading a settings file", {0: "ascending", 1: "shuffled"},
                  {0: 3.0, 1: 1.0})
    report_config(medians, "lookUp", "Looking one key up", {0: "ascending"}, {})
    report_config(medians, "write", "Writing a settings file", {0: "ascending"}, {})
    report_sending(medians)


if __name__ == "__main__":
    main()
