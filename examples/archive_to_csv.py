#!/usr/bin/python3
"""Decodes a folder of receiver logs (u-blox UBX, Septentrio SBF) into one CSV table per
format, on Dask: each log file is one partition of a dask.bag, decoded by a worker.

    archive_to_csv.py LOGS OUT                        # a LocalCluster on this machine
    archive_to_csv.py LOGS OUT --workers 2            # ... with two worker processes
    archive_to_csv.py LOGS OUT --scheduler tcp://host:8786   # a running Dask cluster
    archive_to_csv.py LOGS OUT --scheduler sync       # one process, no cluster

OUT/<format>.csv gets one row per data field of every message of that format, with the
columns of `navmsg log --output csv` after the log's path under LOGS. On a cluster the
workers read the logs at the paths the client gives, so LOGS must be on storage they
share (or be the same path on every host); only the finished CSV text comes back to the
client, which writes the tables. A summary goes to standard error.
"""

import argparse
import csv
import io
import os
import pathlib
import sys
import time

import dask
import dask.bag

import zeltnavmsg

# The log's path, then what zeltnavmsg.to_dataframe gives for a log's messages (the
# columns of `navmsg log --output csv`).
COLUMNS = ["log", "line", "sat", "format", "subframe", "page", "path", "name", "value", "units",
           "raw", "ok", "signal", "week", "tow"]


def log_rows(paths, folder):
    """The rows of the logs of one partition, as plain values (str, int, float, bool,
    None): Messages stay in the worker, rows pickle."""
    rows = []
    for path in paths:
        frame = zeltnavmsg.to_dataframe(zeltnavmsg.read_log(path))
        if frame.empty:
            continue  # not a log, or a log without navigation messages
        log = pathlib.Path(path).relative_to(folder).as_posix()
        for *cells, week, tow in frame[COLUMNS[1:]].itertuples(index=False, name=None):
            # pandas holds a missing time tag as NaN; the CSV cell stays empty.
            rows.append((log, *cells, *((None, None) if week != week else (int(week), tow))))
    return rows


def csv_chunks(rows):
    """The rows of one partition as CSV text per format: [(format, text, rows, messages)].
    Made in the worker, so the client only appends text to files."""
    tables = {}
    for row in rows:
        tables.setdefault(row[3], []).append(row)
    chunks = []
    for fmt, table in tables.items():
        text = io.StringIO()
        csv.writer(text, lineterminator="\n").writerows(table)
        chunks.append((fmt, text.getvalue(), len(table), len({row[:2] for row in table})))
    return chunks


def archive(folder, pattern="*"):
    """The decoding as a dask.bag, one partition per log file: CSV chunks per format."""
    folder = pathlib.Path(folder).resolve()  # the workers' working folders may differ
    paths = sorted(str(p) for p in folder.rglob(pattern) if p.is_file())
    if not paths:
        raise SystemExit(f"no files matching {pattern!r} in {folder}")
    logs = dask.bag.from_sequence(paths, npartitions=len(paths))
    rows = logs.map_partitions(log_rows, folder)
    return paths, rows.map_partitions(csv_chunks)


def write_tables(partitions, out):
    """Appends each partition's chunks, in log order, to OUT/<format>.csv."""
    files, totals = {}, {"rows": 0, "messages": 0}
    try:
        for chunks in partitions:
            for fmt, text, rows, messages in chunks:
                if fmt not in files:
                    files[fmt] = open(out / f"{fmt}.csv", "w", encoding="utf-8", newline="")
                    files[fmt].write(",".join(COLUMNS) + "\n")
                files[fmt].write(text)
                totals["rows"] += rows
                totals["messages"] += messages
    finally:
        for file in files.values():
            file.close()
    return sorted(files), totals


def results(futures):
    """The futures' results in order, each let go of on the cluster once fetched."""
    for future in futures:
        yield future.result()
        future.release()


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("logs", type=pathlib.Path, help="folder of receiver logs (searched "
                        "recursively)")
    parser.add_argument("out", type=pathlib.Path, help="folder for the CSV tables")
    parser.add_argument("--glob", default="*", help="log file names (default: every file)")
    parser.add_argument("--scheduler", help="a Dask scheduler's address (tcp://host:8786), "
                        "or 'sync' for one process; default: a LocalCluster")
    parser.add_argument("--workers", type=int, default=os.cpu_count(),
                        help="worker processes of the LocalCluster (default: one per CPU)")
    args = parser.parse_args()
    args.out.mkdir(parents=True, exist_ok=True)
    paths, chunks = archive(args.logs, args.glob)
    partitions = chunks.to_delayed()

    if args.scheduler == "sync":
        where = "one process"
        start = time.perf_counter()
        formats, totals = write_tables(
            (p.compute(scheduler="sync") for p in partitions), args.out)
    else:
        from dask.distributed import Client, LocalCluster
        if args.scheduler:
            client = Client(args.scheduler)
        else:
            # Processes, one thread each: row building is Python and holds the lock.
            client = Client(LocalCluster(n_workers=args.workers, threads_per_worker=1,
                                         processes=True, dashboard_address=None))
        with client:
            where = f"{len(client.scheduler_info()['workers'])} workers"
            start = time.perf_counter()
            formats, totals = write_tables(results(client.compute(partitions)), args.out)
    seconds = time.perf_counter() - start
    print(f"{len(paths)} logs, {totals['messages']} messages, {totals['rows']} rows in "
          f"{len(formats)} tables ({', '.join(formats)}) in {seconds:.2f} s on {where}: "
          f"{totals['messages'] / seconds:.0f} messages/s", file=sys.stderr)


if __name__ == "__main__":
    main()
