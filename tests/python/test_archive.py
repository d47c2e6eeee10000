"""examples/archive_to_csv.py on a LocalCluster of two worker processes against the same
run in one process, over copies of the public receiver logs; the messages per table
against `navmsg log --extract`."""

import collections
import csv
import pathlib
import shutil
import subprocess
import sys

from conftest import DATA

EXAMPLE = pathlib.Path(__file__).resolve().parents[2] / "examples/archive_to_csv.py"
LOGS = sorted(p for p in (DATA / "receiver-logs").iterdir() if p.suffix in (".ubx", ".log"))
COPIES = 2


def run(folder, out, *options):
    done = subprocess.run([sys.executable, EXAMPLE, folder, out, *options], check=True,
                          capture_output=True, encoding="utf-8")
    tables = {}
    for path in sorted(out.iterdir()):
        with open(path, newline="", encoding="utf-8") as file:
            tables[path.stem] = list(csv.reader(file))
    return tables, done.stderr


def test_two_workers_give_the_rows_of_one_process(navmsg, tmp_path):
    folder = tmp_path / "logs"
    for copy in range(COPIES):
        (folder / str(copy)).mkdir(parents=True)
        for log in LOGS:
            shutil.copy(log, folder / str(copy) / log.name)
    (folder / "notes.txt").write_text("not a log: no rows\n")
    cluster, report = run(folder, tmp_path / "cluster", "--workers", "2")
    assert " on 2 workers: " in report
    single, report = run(folder, tmp_path / "single", "--scheduler", "sync")
    assert " on one process: " in report
    assert list(cluster) == list(single)
    for fmt, rows in cluster.items():
        assert rows[0] == single[fmt][0] and rows[0][:3] == ["log", "line", "sat"]
        assert sorted(rows[1:]) == sorted(single[fmt][1:]), fmt
    # Each log's messages in each table, as many as navmsg finds in it.
    expected = collections.Counter()
    for log in LOGS:
        extract = subprocess.run([navmsg, "log", "--extract", log], check=True,
                                 capture_output=True, encoding="utf-8").stdout
        for line in extract.splitlines():
            expected[(log.name, line.split()[1])] += COPIES
    found = collections.Counter()
    for fmt, rows in cluster.items():
        assert {row[3] for row in rows[1:]} == {fmt}
        for log, _ in {(row[0], row[1]) for row in rows[1:]}:
            found[(pathlib.PurePosixPath(log).name, fmt)] += 1
    assert found == expected and sum(found.values()) == 264 * COPIES
