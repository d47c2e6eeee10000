#!/usr/bin/python3
"""Per-call time of zeltnavmsg.decode() (and decode_fields() where the module has it)
on the real GPS LNAV subframes of tests/data/real-data, from Python.

    /usr/bin/python3 bench/python_decode.py [BUILD_DIR]    # default build/release

Each figure is the median of 7 runs of 200 passes over all subframes, the call and the
result's Python object included: first in one thread, then two threads at once (the
interpreter lock is released while the library decodes). Wall time per call is what a
caller sees; CPU time, of the calling threads, varies less with other load.
"""

import pathlib
import statistics
import sys
import time
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parents[1]
build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/release")
sys.path.insert(0, str(build.resolve() / "python"))
import zeltnavmsg  # noqa: E402

PASSES = 200


def subframes():
    rows = (ROOT / "tests/data/real-data/gps_lnav.tsv").read_text().splitlines()
    return [(int(cells[2]), int(cells[3]), cells[4])
            for cells in (row.split("\t") for row in rows if row and not row.startswith("#"))]


def calls(function, jobs):
    """Makes PASSES passes over the jobs; returns the CPU time this thread spent."""
    start = time.thread_time()
    for _ in range(PASSES):
        for subframe, page, hex_ in jobs:
            function("GpsLNav", subframe, page, hex_)
    return time.thread_time() - start


def per_call(function, jobs, threads):
    """Medians of the wall and the CPU time per call while `threads` threads each make
    PASSES passes."""
    def run(pool):
        start = time.perf_counter()
        cpu = sum(pool.map(lambda _: calls(function, jobs), range(threads)))
        count = threads * PASSES * len(jobs)
        return (time.perf_counter() - start) / count, cpu / count

    with ThreadPoolExecutor(threads) as pool:
        run(pool)  # warm up
        runs = [run(pool) for _ in range(7)]
        return statistics.median(w for w, _ in runs), statistics.median(c for _, c in runs)


def main():
    jobs = subframes()
    print(f"{len(jobs)} real GPS LNAV subframes, zeltnavmsg {zeltnavmsg.__version__}, "
          f"Python {sys.version.split()[0]}")
    functions = [("decode", zeltnavmsg.decode)]
    if hasattr(zeltnavmsg, "decode_fields"):
        functions.append(("decode_fields", zeltnavmsg.decode_fields))
    for name, function in functions:
        for threads in (1, 2):
            wall, cpu = per_call(function, jobs, threads)
            print(f"{name:14} {threads} thread{'s' if threads > 1 else ' '}  "
                  f"{wall * 1e9:6.0f} ns per call (wall), {cpu * 1e9:6.0f} ns CPU, "
                  f"{1 / wall / 1e6:.2f} M calls/s")

if __name__ == "__main__":
    main()
