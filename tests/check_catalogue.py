#!/usr/bin/env python3
"""Facts the catalogue of the compiled program must yield, read straight from
the data files: a slip in a transcribed row shows up as a wrong count here.
The counts of tables, keyed and indirect tables and entry and default actions
are those of the function families, checked in check_exports.py."""

import collections
import glob
import json
import os
import sys


def main(root):
    tables = []
    for path in sorted(glob.glob(os.path.join(root, "catalogue", "*.json"))):
        if not path.endswith("program.json"):
            tables += json.load(open(path)).get("tables", [])
    program = json.load(open(os.path.join(root, "catalogue", "program.json")))
    services = json.load(open(os.path.join(root, "catalogue", "services.json")))
    layouts = {l["handle_bit1"]: l["fields"] for l in services["snapshot"]["layouts"]}
    fields = [f for t in tables for f in t.get("fields", [])]
    partners = [f for f in fields if f["match"] in ("ternary", "lpm")]
    kinds = collections.Counter(t["match"] for t in tables)
    pipes = collections.Counter(t["pipeline"] for t in tables)
    facts = {
        "pipeline A": (pipes["A"], 116),
        "pipeline B": (pipes["B"], 38),
        "exact": (kinds["exact"], 82),
        "ternary": (kinds["ternary"], 46),
        "prefix": (kinds["prefix"], 5),
        "partitioned prefix": (kinds["partitioned_prefix"], 3),
        "keyless": (kinds["none"], 18),
        "key fields": (len(fields), 487),
        "key fields with partners": (len(fields) + len(partners), 738),
        "actions": (len(program["actions"]), 296),
        "distinct action names": (len(set(program["actions"])), 296),
        "idle-capable tables": (sum(1 for t in tables if "idle_timeout" in t.get("flags", [])), 17),
        "profiles": (len(program["profiles"]), 6),
        "profile actions": (sum(len(p["actions"]) for p in program["profiles"]), 15),
        "counters": (len(program["counters"]), 17),
        "meters": (len(program["meters"]), 4),
        "registers": (len(program["registers"]), 4),
        "direct counters": (sum(1 for c in program["counters"] if c["kind"] == "direct"), 15),
        "hash calculations": (len(services["hash_calculations"]), 12),
        "hash calculations on the second algorithm": (
            sum(1 for h in services["hash_calculations"] if h["algorithm"] == "0x23000001"), 8),
        "value sets": (len(services["value_sets"]), 7),
        "digest fields": (sum(len(d["fields"]) for d in services["digests"]), 13),
        "snapshot fields, bit 1 clear": (len(layouts[0]), 155),
        "snapshot fields, bit 1 set": (len(layouts[1]), 81),
        "snapshot 4-byte fields": (sum(f.endswith(":4") for l in layouts.values() for f in l), 74),
    }
    failed = [k for k, (got, want) in facts.items() if got != want]
    for k in failed:
        print("%s: %d, expected %d" % (k, facts[k][0], facts[k][1]))

    # Handles: unique, in their pipeline's space, and every action's enum
    # value names it in the enum.
    handles = [int(t["handle"], 16) for t in tables]
    if len(set(handles)) != len(handles):
        print("duplicate table handles")
        failed.append("handles")
    for t in tables:
        top = {"A": (0x0100, 0x2000), "B": (0x1101, 0x3000)}[t["pipeline"]]
        if int(t["handle"], 16) >> 16 != top[0]:
            print("table %s: handle outside pipeline %s" % (t["name"], t["pipeline"]))
            failed.append(t["name"])
        for a in t.get("actions", []):
            if int(a["handle"], 16) >> 16 != top[1]:
                print("%s/%s: action handle outside the table's space" % (t["name"], a["name"]))
                failed.append(a["name"])
            if program["actions"][a["enum"]] != a["name"]:
                print("%s/%s: enum %d names %s" % (t["name"], a["name"], a["enum"],
                                                   program["actions"][a["enum"]]))
                failed.append(a["name"])
    for kind in ("counters", "meters", "registers"):
        handles = [int(c["handle"], 16) for c in program[kind]]
        if len(set(handles)) != len(handles):
            print("duplicate %s handles" % kind)
            failed.append(kind)
    print("catalogue: %d facts, %d failed" % (len(facts), len(failed)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
