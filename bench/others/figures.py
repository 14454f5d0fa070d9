"""Runs the programs and collects figures: {name: [a value of each round]}."""

import collections
import os
import shutil
import statistics
import subprocess
import tempfile

from mpd import Mpd

BUILD = "build/release"
QUERIES = ("a", "lov", "zanzibar", "no such title")
SEARCH_ROUNDS = 7
# MPD's answers of a million songs do not fit any buffer.
MOST_FOR_MPD = 100_000


def run(*command, **more):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **more).stdout


def drop_caches():
    """Forgets the files that are in memory; False where that is not allowed."""
    os.sync()
    try:
        with open("/proc/sys/vm/drop_caches", "w", encoding="utf-8") as file:
            file.write("3\n")
    except OSError:
        return False
    return True


class Figures:
    def __init__(self):
        self.values = collections.defaultdict(list)
        self.hits = {}

    def add(self, name, value):
        self.values[name].append(value)

    def median(self, name):
        values = self.values.get(name)
        return statistics.median(values) if values else None

    def found(self, what, who, count):
        """All programs must find the same."""
        first, expected = self.hits.setdefault(what, (who, count))
        if count != expected:
            raise SystemExit(f"{who} finds {count} for {what}, and {first} {expected}")

    def scene(self, folder):
        path = os.path.join(folder, "scene")
        log = subprocess.DEVNULL
        environment = dict(os.environ, SONAVUE_FIGURES=path)
        run(f"{BUILD}/bench/scene/scene_bench", env=environment, stderr=log)
        with open(path, encoding="utf-8") as file:
            for line in file:
                name, value = line.split()
                self.add(name, float(value))
        os.remove(path)

    def scans(self, songs, count):
        for cache in ("warm", "cold"):
            self._scan_with_mpd(songs, count, cache)
            self._scan_with_ours(songs, count, cache)

    def _scan_with_mpd(self, songs, count, cache):
        with Mpd() as mpd:
            if cache == "cold" and not drop_caches():
                return
            found, seconds, core = mpd.scan(songs)
            self._add_scan(f"scan.{count}.{cache}.MPD", count, found, seconds, core,
                           mpd.most_megabytes())
            if cache == "warm" and count <= MOST_FOR_MPD:
                self._search_with_mpd(mpd, count)

    def _scan_with_ours(self, songs, count, cache):
        place = tempfile.mkdtemp(prefix="peer-index-")
        try:
            if cache == "cold" and not drop_caches():
                return
            words = run(f"{BUILD}/bench/media/scan_songs", songs, place + "/index").split()
            self._add_scan(f"scan.{count}.{cache}.Sonavue", count, int(words[0]),
                           *map(float, words[1:]))
        finally:
            shutil.rmtree(place)

    def _add_scan(self, name, count, found, seconds, core, megabytes):
        self.found(f"songs of {count}", name, found)
        self.add(name + ".seconds", seconds)
        self.add(name + ".core", core)
        self.add(name + ".megabytes", megabytes)

    def _search_with_mpd(self, mpd, count):
        for query in QUERIES:
            times = []
            for _ in range(SEARCH_ROUNDS):
                hits, seconds = mpd.search(query)
                times.append(seconds)
            self._add_search(count, "MPD", query, statistics.median(times), hits)

    def search_with_sqlite(self, count):
        for line in run(f"{BUILD}/bench/media/title_search", str(count)).splitlines():
            way, query, seconds, hits = line.split("\t")
            if query:
                self._add_search(count, way, query, float(seconds), int(hits))
            else:
                self.add(f"search.{count}.{way}", float(seconds))

    def search_with_ours(self):
        output = run(f"{BUILD}/bin/search_bench", "--figures", stderr=subprocess.DEVNULL)
        # The phone's log is among them.
        for line in filter(lambda text: "\t" in text, output.splitlines()):
            count, what, seconds, hits = line.split("\t")
            if what.startswith("key ") and what[4:] in QUERIES:
                self._add_search(int(count), "Sonavue", what[4:], float(seconds), int(hits))

    def _add_search(self, count, who, query, seconds, hits):
        self.found(f"{query!r} of {count}", who, hits)
        self.add(f"search.{count}.{query}.{who}", seconds)
