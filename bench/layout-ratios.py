#!/usr/bin/env python3
"""Reads bench_layout's JSON output and prints, per kind and layout size, each module
entity's figures and their ratio to the plain host entity of the same vertices, then the
cost per entity across sizes (the curve: flat means linear)."""
import json
import re
import sys
from collections import defaultdict

NAME = re.compile(r"layout/(\w+)/(\w+)/(custom|plain)/(\d+)")


def main(path):
    with open(path, encoding="utf-8") as f:
        runs = json.load(f)["benchmarks"]
    figures = defaultdict(dict)  # (operation, kind, count) -> side -> run
    for run in runs:
        match = NAME.match(run["name"])
        if match and run.get("run_type", "iteration") == "iteration":
            operation, kind, side, count = match.groups()
            figures[(operation, kind, int(count))][side] = run

    summary(figures)
    print()
    print("| operation | kind | entities | module entity | plain host entity | module / plain |")
    print("|---|---|---:|---:|---:|---:|")
    for (operation, kind, count), sides in sorted(figures.items()):
        if "custom" not in sides or "plain" not in sides:
            continue
        custom, plain = sides["custom"], sides["plain"]
        if operation == "memory":
            c, p = custom["heap_bytes_per_entity"], plain["heap_bytes_per_entity"]
            print(f"| memory | {kind} | {count} | {c:,.0f} B | {p:,.0f} B | {c / p:.1f}x |")
            continue
        c, p = custom["entities_per_second"], plain["entities_per_second"]
        print(f"| {operation} | {kind} | {count} | {c:,.0f}/s | {p:,.0f}/s | {p / c:.1f}x the time |")
        if operation == "save":
            cb, pb = custom["bytes_per_entity"], plain["bytes_per_entity"]
            print(f"| bytes on file | {kind} | {count} | {cb:,.0f} B | {pb:,.0f} B | {cb / pb:.1f}x |")
            if "json_bytes_per_entity" in custom:
                # The target: at most twice the plain entity plus the JSON text the entity files.
                target = 2 * pb + custom["json_bytes_per_entity"]
                met = "met" if cb <= target else "not met"
                print(f"| bytes against 2 x plain + JSON | {kind} | {count} | {cb:,.0f} B | {target:,.0f} B | {met} |")

    print()
    print("Nanoseconds per module entity by layout size (flat: linear in the entity count)")
    print()
    counts = sorted({count for (_, _, count) in figures})
    print("| operation | kind | " + " | ".join(f"{c:,}" for c in counts) + " |")
    print("|---|---|" + "---:|" * len(counts))
    for operation, kind in sorted({(o, k) for (o, k, _) in figures if o != "memory"}):
        cells = []
        for count in counts:
            run = figures.get((operation, kind, count), {}).get("custom")
            cells.append(f"{1e9 / run['entities_per_second']:,.0f}" if run else "")
        print(f"| {operation} | {kind} | " + " | ".join(cells) + " |")


def summary(figures):
    """At the largest layout: one row an operation, one column a kind, each cell the time
    ratio to the plain host entity and the module entity's rate."""
    largest = max(count for (_, _, count) in figures)
    kinds = sorted({kind for (_, kind, _) in figures})
    print(f"At {largest:,} entities: module entity against plain host entity of the same vertices")
    print()
    print("| operation | " + " | ".join(kinds) + " |")
    print("|---|" + "---|" * len(kinds))
    for operation, label in [("save", "save"), ("open", "open"), ("regen", "regen (world draw of all)"),
                             ("list", "list"), ("clone", "deep clone of all"), ("bytes", "bytes on file"),
                             ("memory", "heap bytes")]:
        cells = []
        for kind in kinds:
            sides = figures.get(("save" if operation == "bytes" else operation, kind, largest), {})
            if "custom" not in sides or "plain" not in sides:
                cells.append("")
                continue
            custom, plain = sides["custom"], sides["plain"]
            if operation == "bytes":
                c, p = custom["bytes_per_entity"], plain["bytes_per_entity"]
                cells.append(f"{c / p:.1f}x ({c:,.0f} B)")
            elif operation == "memory":
                c, p = custom["heap_bytes_per_entity"], plain["heap_bytes_per_entity"]
                cells.append(f"{c / p:.1f}x ({c:,.0f} B)")
            else:
                c, p = custom["entities_per_second"], plain["entities_per_second"]
                cells.append(f"{p / c:.1f}x ({c / 1000:,.0f}k/s)")
        print(f"| {label} | " + " | ".join(cells) + " |")


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "out/bench-layout.json")
