#!/usr/bin/env python3
"""Writes (or with --check compares) printers.txt: what every key printer
and every action printer must write for the records the printer sweep of
printers_test.cpp fills. The lines are derived here from catalogue/*.json
alone, never from the library's output.

Records: every key element (field, then its _mask or _prefix_length) and
every parameter holds the FNV-1a hash of "<table or action>.<element>",
cut to its host member (uint8_t, uint16_t, uint32_t by width), so bits
above a width or a mask are there for the printer to drop; a 128-bit
element's byte k is byte k % 4 of that hash plus k. The indent is the
length of the name modulo 5 for a key, modulo 3 for an action.

  make_printers_golden.py <source root> [--check]"""

import glob
import json
import os
import sys


def fnv(text):
    h = 0x811C9DC5
    for b in text.encode():
        h = ((h ^ b) * 0x01000193) & 0xFFFFFFFF
    return h


def host_bytes(bits):
    return 1 if bits <= 8 else 2 if bits <= 16 else 4


def digits(bits):
    d = (bits + 3) // 4
    return 8 if d == 7 else d


def field_line(indent):
    return " " * max(indent, 1) + " "


def key_lines(t):
    indent = len(t["name"]) % 5
    out = [" " * indent + "p4_pd_orbisk_switch_%s_match_spec_t:" % t["name"]]
    for f in t["fields"]:
        mask = int(f["static_mask"], 16) if "static_mask" in f else (1 << f["bits"]) - 1
        elements = [(f["name"], f["bits"], mask)]
        if f["match"] == "ternary":
            elements.append((f["name"] + "_mask", f["bits"], mask))
        elif f["match"] == "lpm":
            elements.append((f["name"] + "_prefix_length", 16, 0xFFFF))
        for name, bits, m in elements:
            h = fnv("%s.%s" % (t["name"], name))
            if bits > 32:
                text = "".join("%02X" % (((h >> (8 * (k % 4))) + k) & 0xFF) for k in range(16))
                out.append(field_line(indent) + "%s: 0x%s" % (name, text))
                continue
            v = h & ((1 << (8 * host_bytes(bits))) - 1) & m
            if m == (1 << bits) - 1:
                out.append(field_line(indent) + "%s: 0x%0*x" % (name, digits(bits), v))
            else:
                out.append(field_line(indent) + "%s mask 0x%x: 0x%0*x" % (name, m, digits(bits), v))
    return out


def action_lines(name, params):
    indent = len(name) % 3
    out = []
    for p in params:
        h = fnv("%s.%s" % (name, p["name"]))
        v = h & ((1 << (8 * host_bytes(p["bits"]))) - 1) & ((1 << p["bits"]) - 1)
        out.append(field_line(indent) + "action_%s: 0x%0*x" % (p["name"], digits(p["bits"]), v))
    return out


def golden(root):
    tables = []
    for path in sorted(glob.glob(os.path.join(root, "catalogue", "*.json"))):
        tables += json.load(open(path)).get("tables", [])
    program = json.load(open(os.path.join(root, "catalogue", "program.json")))
    actions = {}
    for a in [a for t in tables for a in t.get("actions", [])] + \
             [a for p in program["profiles"] for a in p["actions"]]:
        actions[a["name"]] = a["params"]
    out = []
    for t in sorted(tables, key=lambda t: t["name"]):
        if t.get("fields"):
            out += ["== key %s" % t["name"]] + key_lines(t)
    for name in sorted(actions):
        if actions[name]:
            out += ["== action %s" % name] + action_lines(name, actions[name])
    return "\n".join(out) + "\n"


def main(root, check):
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "printers.txt")
    text = golden(root)
    if check:
        if open(path).read() != text:
            print("%s differs from what the catalogue gives: rerun %s" % (path, sys.argv[0]))
            return 1
        return 0
    with open(path, "w") as f:
        f.write(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], "--check" in sys.argv[2:]))
