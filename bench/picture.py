#!/usr/bin/env python3
"""Draws docs/speed.svg and the table of the README from what the benchmarks measured.

usage: imsxml_bench --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true \\
           --benchmark_out=speed.json --benchmark_out_format=json
       bench/picture.py speed.json

Every number is a ratio within one run: how many times as fast this library was as a peer on the same document, each
with its best repetition, which was disturbed least. A bar is the geometric mean over the sizes of a document.
"""
import json
import math
import pathlib
import re
import sys

OWN = {"imsxml": "device", "standard": "standard"}
PEERS = {"decode": ["expat", "pugixml", "rapidxml"], "encode": ["tinyxml2", "pugixml"]}
TITLES = {"decode": "Decode and release, times as fast as each peer filling structs",
          "encode": "Write, times as fast as each peer"}
COLOURS = {"expat": "#b8b8b8", "tinyxml2": "#b8b8b8", "pugixml": "#5b8fc9", "rapidxml": "#1f4e8c"}
MOST = 4.0  # Longer bars are cut; the number stands beside them.


def best_times(path):
    """By kind, document and library: the least time of all sizes up to 28 KB, and that of the large ones."""
    times = {}
    for run in json.loads(pathlib.Path(path).read_text())["benchmarks"]:
        match = re.fullmatch(r"(.+)-(decode|encode)/(\w+).*", run["name"])
        if run["run_type"] != "iteration" or not match:
            continue
        document, kind, library = match.groups()
        place = times.setdefault(kind, {}).setdefault(document, {})
        place[library] = min(place.get(library, math.inf), run["cpu_time"])
    return times


def ratios(times, kind):
    """By document without its size, profile and peer: the geometric mean of the ratios."""
    logs = {}
    for document, of in times[kind].items():
        name = re.sub(r"-(2k|12k|28k)$", "", document)
        for own, profile in OWN.items():
            for peer in PEERS[kind]:
                if own in of and peer in of:
                    logs.setdefault(name, {}).setdefault(profile, {}).setdefault(peer, []).append(
                        math.log(of[peer] / of[own]))
    return {name: {profile: {peer: math.exp(sum(values) / len(values)) for peer, values in by_peer.items()}
                   for profile, by_peer in by_profile.items()}
            for name, by_profile in sorted(logs.items())}


def draw(table):
    """The picture: a group of bars for each document and profile; the line stands at 1."""
    left, width, bar, gap, y = 230, 440, 7, 9, 0
    parts = []
    for kind in ("decode", "encode"):
        y += 26
        parts.append(f'<text x="8" y="{y}" font-weight="bold">{TITLES[kind]}</text>')
        x = left
        y += 18
        for peer in PEERS[kind]:
            parts.append(f'<rect x="{x}" y="{y - 9}" width="10" height="10" fill="{COLOURS[peer]}"/>'
                         f'<text x="{x + 14}" y="{y}">{peer}</text>')
            x += 100
        y += 10
        top = y
        for name, by_profile in table[kind].items():
            for profile, by_peer in by_profile.items():
                parts.append(f'<text x="{left - 8}" y="{y + bar * len(by_peer) / 2 + 4}" text-anchor="end">'
                             f'{name}, {profile}</text>')
                for peer in PEERS[kind]:
                    if peer not in by_peer:
                        continue
                    length = min(by_peer[peer], MOST) / MOST * width
                    parts.append(f'<rect x="{left}" y="{y}" width="{length:.1f}" height="{bar - 1}" '
                                 f'fill="{COLOURS[peer]}"/><text x="{left + length + 4:.1f}" y="{y + 6}" '
                                 f'font-size="8">{by_peer[peer]:.2f}</text>')
                    y += bar
                y += gap
        one = left + width / MOST
        parts.append(f'<line x1="{one}" y1="{top}" x2="{one}" y2="{y - gap + 3}" stroke="#c0392b"/>')
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="720" height="{y + 12}" font-family="sans-serif" '
            f'font-size="11"><rect width="100%" height="100%" fill="#fff"/>{"".join(parts)}</svg>\n')


def markdown(table):
    """The same numbers as a table."""
    lines = []
    for kind in ("decode", "encode"):
        lines += [f"| {kind} | " + " | ".join(f"{profile}: {peer}" for profile in OWN.values() for peer in PEERS[kind])
                  + " |", "|---|" + "---|" * (2 * len(PEERS[kind]))]
        for name, by_profile in table[kind].items():
            cells = [f"{by_profile[profile][peer]:.2f}" if peer in by_profile.get(profile, {}) else "-"
                     for profile in OWN.values() for peer in PEERS[kind]]
            lines.append(f"| {name} | " + " | ".join(cells) + " |")
        lines.append("")
    return "\n".join(lines)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    times = best_times(sys.argv[1])
    table = {kind: ratios(times, kind) for kind in ("decode", "encode")}
    picture = pathlib.Path(__file__).resolve().parent.parent / "docs" / "speed.svg"
    picture.write_text(draw(table))
    print(markdown(table))


if __name__ == "__main__":
    main()
