#!/usr/bin/env python3
"""Prints ratios of the micro-benchmarks that come in pairs, NAME/lumora and NAME/other.

    bench/ratios.py BUILD/bench/lumora_bench [FILTER]

Nine rounds in random order, medians of processor time.
"""
import collections
import json
import subprocess
import sys


def main(program, chosen="/(lumora|other)"):
    run = subprocess.run(
        [program, f"--benchmark_filter={chosen}", "--benchmark_repetitions=9",
         "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true",
         "--benchmark_format=json"], check=True, stdout=subprocess.PIPE)
    times = collections.defaultdict(dict)
    for line in json.loads(run.stdout)["benchmarks"]:
        if line["aggregate_name"] == "median":
            name, side = line["run_name"].split("/")[:2]
            times[name][side] = line["cpu_time"], line["time_unit"]
    for name, sides in times.items():
        if len(sides) == 2:
            ours, unit = sides["lumora"]
            other = sides["other"][0]
            print(f"{name:24} {ours:10.3f} {unit}  other {other:10.3f} {unit}  "
                  f"ratio {ours / other:.2f}")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) in (2, 3) else __doc__)
