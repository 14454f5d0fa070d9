"""Writes the figures as tables, between two marks of a document."""

from figures import QUERIES

BEGIN = "<!-- written by bench/peers: begin -->"
END = "<!-- written by bench/peers: end -->"
MEGABYTES_MORE = 50


def shown(value, factor=1):
    if value is None:
        return "–"
    value *= factor
    return f"{value:.3g}" if value < 100 else f"{value:,.0f}"


def ratio(ours, theirs, aim=None):
    """Ours of theirs, and whether it misses the aim."""
    if ours is None or theirs is None:
        return "–"
    missed = aim is not None and ours / theirs > aim
    return f"{ours / theirs:.3g}" + (" (missed)" if missed else "")


def rows(head, lines):
    body = [head, ["---"] * len(head)] + lines
    return "\n".join("| " + " | ".join(line) + " |" for line in body)


def scene_table(figures):
    aims = {"part": ("Qt", 1.0), "full": ("Qt", 0.8), "blur": ("GTK", 0.06)}
    copy = figures.median("scene.copy_ms")
    lines = []
    for kind, (peer, aim) in aims.items():
        time = {who: figures.median(f"scene.{kind}.{who}.median_ms")
                for who in ("Sonavue", "Qt", "GTK")}
        lines.append([kind, *map(shown, time.values()), ratio(time["Sonavue"], copy),
                      ratio(time["Sonavue"], time[peer], aim), f"{aim} of {peer}"])
    return rows(
        ["scene", "Sonavue, ms", "Qt, ms", "GTK, ms", "ours / copy", "ours / theirs", "aim"], lines)


def scan_table(figures, counts):
    lines = []
    for count in counts:
        for cache in ("warm", "cold"):
            name = f"scan.{count}.{cache}."
            ours, theirs = ({what: figures.median(f"{name}{who}.{what}")
                             for what in ("seconds", "core", "megabytes")}
                            for who in ("Sonavue", "MPD"))
            if ours["seconds"] is None:
                continue
            more = ours["megabytes"] - theirs["megabytes"]
            lines.append([
                f"{count:,}, {cache}",
                f"{shown(ours['seconds'])} ({shown(ours['core'])})",
                f"{shown(theirs['seconds'])} ({shown(theirs['core'])})",
                ratio(ours["seconds"], theirs["seconds"], 0.5),
                f"{shown(ours['megabytes'])} and {shown(theirs['megabytes'])}"
                + (" (missed)" if more > MEGABYTES_MORE else "")])
    return rows(
        ["songs, cache", "Sonavue, s (of a core)", "MPD, s (of a core)", "ours / MPD, aim 0.5",
         "most memory, MB"], lines)


def search_table(figures, counts):
    lines = []
    for count in counts:
        for query in QUERIES:
            times = [figures.median(f"search.{count}.{query}.{who}")
                     for who in ("Sonavue", "MPD", "LIKE", "trigram")]
            if times[0] is None:
                continue
            hits = figures.hits[f"{query!r} of {count}"][1]
            lines.append([f"{count:,}", f"“{query}”", f"{hits:,}",
                          *(shown(time, 1e3) for time in times)])
    return rows(
        ["songs", "text", "hits", "Sonavue, ms", "MPD, ms", "LIKE, ms", "trigram, ms"], lines)


def place_in(path, text):
    """Replaces what is between the marks."""
    with open(path, encoding="utf-8") as file:
        before, rest = file.read().split(BEGIN)
    after = rest.split(END)[1]
    with open(path, "w", encoding="utf-8") as file:
        file.write(f"{before}{BEGIN}\n{text}\n{END}{after}")
