#!/usr/bin/python3
"""Per-call time of zeltnavmsg.decode() and decode_fields() on the real GPS LNAV
subframes of tests/data/real-data, from Python.

    /usr/bin/python3 bench/python_decode.py [BUILD_DIR]    # default build/release

Each figure is the median of 7 runs of passes over all subframes, the call and the
result's Python object included: first in one thread, then two threads at once (the
interpreter lock is released while the library decodes). Wall time per call is what a
caller sees; CPU time, of the calling threads, varies less with other load.

decode_fields() makes its Field objects on first use; "+ fields" also reads every
field's value (making all its Field objects), "+ to_dict" the record as a dict.

Then read_log() over the three public receiver logs (tests/data/receiver-logs) in
memory: the time per message yielded (the log scanned and each message decoded), and
with to_dataframe() of the messages.
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


def subframes():
    rows = (ROOT / "tests/data/real-data/gps_lnav.tsv").read_text().splitlines()
    return [(int(cells[2]), int(cells[3]), cells[4])
            for cells in (row.split("\t") for row in rows if row and not row.startswith("#"))]


def calls(function, jobs, passes):
    """Makes `passes` passes over the jobs; returns the CPU time this thread spent."""
    start = time.thread_time()
    for _ in range(passes):
        for subframe, page, hex_ in jobs:
            function("GpsLNav", subframe, page, hex_)
    return time.thread_time() - start


def per_call(function, jobs, passes, threads):
    """Medians of the wall and the CPU time per call while `threads` threads each make
    `passes` passes."""
    def run(pool):
        start = time.perf_counter()
        cpu = sum(pool.map(lambda _: calls(function, jobs, passes), range(threads)))
        count = threads * passes * len(jobs)
        return (time.perf_counter() - start) / count, cpu / count

    with ThreadPoolExecutor(threads) as pool:
        run(pool)  # warm up
        runs = [run(pool) for _ in range(7)]
        return statistics.median(w for w, _ in runs), statistics.median(c for _, c in runs)


def log_figures():
    logs = [p.read_bytes() for p in sorted((ROOT / "tests/data/receiver-logs").iterdir())
            if p.suffix in (".ubx", ".log")]
    count = sum(1 for data in logs for _ in zeltnavmsg.read_log(data))
    runs = [("read_log", lambda data: list(zeltnavmsg.read_log(data)))]
    try:
        import pandas  # noqa: F401
        runs.append(("+ to_dataframe",
                     lambda data: zeltnavmsg.to_dataframe(zeltnavmsg.read_log(data))))
    except ImportError:
        pass
    for name, function in runs:
        times = []
        for _ in range(7):
            wall, cpu = time.perf_counter(), time.thread_time()
            for _ in range(20):
                for data in logs:
                    function(data)
            times.append(((time.perf_counter() - wall) / (20 * count),
                          (time.thread_time() - cpu) / (20 * count)))
        wall, cpu = statistics.median(w for w, _ in times), statistics.median(c for _, c in times)
        print(f"{name:14} {count} messages of 3 logs  {wall * 1e6:6.2f} us per message (wall), "
              f"{cpu * 1e6:6.2f} us CPU, {1 / wall / 1e3:.0f} k messages/s")


def main():
    jobs = subframes()
    print(f"{len(jobs)} real GPS LNAV subframes, zeltnavmsg {zeltnavmsg.__version__}, "
          f"Python {sys.version.split()[0]}")
    fields = zeltnavmsg.decode_fields
    functions = [("decode", zeltnavmsg.decode, 200), ("decode_fields", fields, 200),
                 ("+ fields", lambda *job: [f.value for f in fields(*job).fields], 20),
                 ("+ to_dict", lambda *job: fields(*job).to_dict(), 10)]
    for name, function, passes in functions:
        for threads in (1, 2):
            wall, cpu = per_call(function, jobs, passes, threads)
            print(f"{name:14} {threads} thread{'s' if threads > 1 else ' '}  "
                  f"{wall * 1e9:6.0f} ns per call (wall), {cpu * 1e9:6.0f} ns CPU, "
                  f"{1 / wall / 1e6:.3f} M calls/s")
    log_figures()


if __name__ == "__main__":
    main()
