"""The rounds, and what is said about them; bench/peers builds everything and runs this."""

import argparse
import os
import subprocess
import sys
import tempfile

import table
from figures import BUILD, Figures, run

DOCUMENT = "docs/performance.md"
SEARCHED = (10_000, 100_000, 1_000_000)


def words():
    parser = argparse.ArgumentParser(prog="bench/peers")
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--songs", default="10000,100000", help="sizes of scanned libraries")
    parser.add_argument("--print", action="store_true", help="do not write " + DOCUMENT)
    chosen = parser.parse_args()
    chosen.songs = [int(count) for count in chosen.songs.split(",")]
    return chosen


def load():
    return " ".join(f"{value:.1f}" for value in os.getloadavg())


def say(text):
    print(text, file=sys.stderr, flush=True)


def commit():
    changed = run("git", "status", "--porcelain", "--", "host", "tweak", "bench").strip()
    name = run("git", "rev-parse", "--short=10", "HEAD").strip()
    return name + " with changes" if changed else name


def measure(rounds, counts, place):
    figures = Figures()
    for count in counts:
        run(f"{BUILD}/bench/media/make_songs", f"{place}/{count}", str(count))
        # The first reader of new files must not pay for writing them.
        os.sync()
    for number in range(1, rounds + 1):
        say(f"round {number} of {rounds}, load {load()}")
        figures.scene(place)
        figures.search_with_ours()
        for count in SEARCHED:
            figures.search_with_sqlite(count)
        for count in counts:
            figures.scans(f"{place}/{count}", count)
    return figures


def report(figures, chosen, load_before):
    copy = figures.median("scene.copy_ms")
    return "\n\n".join((
        f"Commit {commit()}; a copy of one frame takes {copy:.3f} ms on this machine, which has"
        f" {os.cpu_count()} cores; load {load_before} before and {load()} after;"
        f" rounds: {chosen.rounds}, of which these are the medians.",
        table.scene_table(figures),
        table.scan_table(figures, chosen.songs),
        table.search_table(figures, SEARCHED)))


def main():
    chosen = words()
    load_before = load()
    with tempfile.TemporaryDirectory(prefix="peer-songs-", dir="/var/tmp") as place:
        text = report(measure(chosen.rounds, chosen.songs, place), chosen, load_before)
    print(text)
    if not chosen.print:
        table.place_in(DOCUMENT, text)


try:
    main()
except subprocess.CalledProcessError as failed:
    sys.exit(f"{failed.cmd[0]} ended with status {failed.returncode}")
