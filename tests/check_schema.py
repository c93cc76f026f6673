#!/usr/bin/env python3
"""Schema text and widths of the built library against the catalogue.

Every name is derived here from catalogue/*.json alone and called through
schema_dump; every text is evaluated by Python's own literal evaluator and
its shape compared with the catalogue; the grammar's worked texts, the known
lengths and counts, and cli_schema over both handle ranges are checked byte
for byte."""

import ast
import collections
import glob
import json
import os
import subprocess
import sys

P = "p4_pd_orbisk_switch_"
TAIL = ("( ('setMbrHdl',(('mbrHdl',None,32,None),)),"
        "( 'setGrpHdl', ( ( 'grpHdl', None, 32, None ), ) ) ))")
GOLDEN = {
    "ingressPortMapping_schema":
        "( ('ingressPortMapping','mat',(False,)),(( 'ingressPort','ig_intr_md_ingress_port',9,0x1ff,"
        "None,None,None),),(( ('setPhase0'),(('ingVPort',None,14,None),('nativeAintf',None,16,None),"
        "('switchPort',None,1,None),('physicalPort',None,2,None),)),))",
    "ecmpGroup_schema":
        "( ('ecmpGroup','mat',(True,)),(( 'nextHop','l3_nextHop',15,0xff,None,None,None),)," + TAIL,
    "vlanDecap_schema": "( ('vlanDecap','mat',(False,)),(),(( ('removeVlanHdr'),()),))",
    "foldedPipeActionProfile_schema":
        "(( ('NoAction'),()),( ('setFoldedPipePort'),(('port','port',9,None),)),)",
    "ipv4ShortMaskLpm_match_spec_schema":
        "(( 'vrfId','l3Info_vrfId',8,0xff,None,None,None),( 'dip','ingIpv4_dip',32,0xfff00000,"
        "'v4addr',None,None),( 'dipPrefixLength','ingIpv4_dip_prefix_length',16,0xffff,None,None,None),)",
}
KEY_FORMATS = {"v4addr": 26, "v6addr": 16, "mac": 22, "port": 18, "vport": 4, "dec": 7, None: 645}
PARAM_FORMATS = {"v4addr": 21, "mac": 22, "port": 3, "dec": 6, None: 317}
SELECTOR = (("setMbrHdl", (("mbrHdl", None, 32, None),)), ("setGrpHdl", (("grpHdl", None, 32, None),)))


def key_shape(t):
    out = []
    for f in t.get("fields", []):
        mask = int(f["static_mask"], 16) if "static_mask" in f else (1 << f["bits"]) - 1
        out.append((f["schema"], f["name"], f["bits"], mask, f.get("format"), None, None))
        if f["match"] == "ternary":
            out.append((f["schema"] + "Mask", f["name"] + "_mask", f["bits"], mask, None, None, None))
        elif f["match"] == "lpm":
            out.append((f["schema"] + "PrefixLength", f["name"] + "_prefix_length", 16, 0xFFFF, None,
                        None, None))
    return tuple(out)


def action_shape(a):
    return (a["name"], tuple((p["name"], p.get("format"), p["bits"], None) for p in a["params"]))


def by_name(actions):
    return sorted(actions, key=lambda a: a["name"].encode())


def main(dump, root):
    tables = [t for path in sorted(glob.glob(os.path.join(root, "catalogue", "*.json")))
              if not path.endswith("program.json") for t in json.load(open(path))["tables"]]
    program = json.load(open(os.path.join(root, "catalogue", "program.json")))
    actions = {a["name"]: a for t in tables + program["profiles"] for a in t.get("actions", [])}
    handles = {int(t["handle"], 16): t for t in tables}
    handles.update({int(r["action_data_table"], 16): r for r in program["profiles"]})
    others = [0, 0x01000055, 0xFFFFFFFF] + [int(x[k], 16) for x in program["counters"] + program["meters"]
                                          + program["profiles"] for k in ("handle", "selector_table") if k in x]
    assert not set(others) & set(handles)
    cli = [h for base, top in ((0x01000000, 0x77), (0x11010000, 0x2A)) for h in range(base, base + top)]
    cli += others + [int(r["action_data_table"], 16) for r in program["profiles"]]

    requests = [("buf", t["name"] + "_schema") for t in tables + program["profiles"]]
    requests += [("ptr", t["name"] + "_match_spec_schema") for t in tables]
    requests += [("ptr", a + "_schema") for a in actions]
    requests += [("int", t["name"] + "_supports_entry_priority") for t in tables]
    widths = [(t, f) for t in tables for f in t.get("fields", [])]
    requests += [("int", "%s_%s_width" % (t["name"], f["name"][:-6] if f["name"].endswith("_valid")
                                          else f["name"])) for t, f in widths]
    requests = [(k, P + n) for k, n in requests] + [("cli", hex(h)) for h in cli]
    out = subprocess.run([dump], input="".join("%s %s\n" % r for r in requests), capture_output=True,
                         text=True, check=True).stdout.splitlines()
    assert len(out) == len(requests), "schema_dump answered %d of %d" % (len(out), len(requests))
    got = {n: a for (k, n), a in zip(requests, out) if k != "cli"}
    fails = []

    def check(ok, what):
        if not ok:
            fails.append(what)

    def text(name):
        n, _, s = got[P + name].partition(" ")
        check(n.isdigit() and int(n) == len(s), "%s: result %s for %d bytes" % (name, n, len(s)))
        return s

    for name, want in GOLDEN.items():
        check((got[P + name] if "match_spec" in name else text(name)) == want,
              "%s differs from its worked text" % name)
    lengths = collections.Counter()
    keyfmt, parfmt, narrow = collections.Counter(), collections.Counter(), 0
    for a in actions.values():
        s = got[P + a["name"] + "_schema"]
        check(ast.literal_eval(s) == action_shape(a), "action %s: %s" % (a["name"], s))
        lengths["action"] = max(lengths["action"], len(s))
    for r in program["profiles"]:
        s = text(r["name"] + "_schema")
        check(s == "(" + "".join(got[P + a["name"] + "_schema"] + "," for a in by_name(r["actions"])) + ")",
              "profile %s: %s" % (r["name"], s))
        check(ast.literal_eval(s) == tuple(action_shape(a) for a in by_name(r["actions"])), r["name"])
    for t in tables:
        n, sel, s = t["name"], "profile" in t, text(t["name"] + "_schema")
        key = got[P + n + "_match_spec_schema"]
        check((key == "missing") == (not t.get("fields")), "%s: key tuple %s" % (n, key))
        key = "()" if key == "missing" else key
        rest = TAIL if sel else "(" + "".join(got[P + a["name"] + "_schema"] + ","
                                              for a in by_name(t["actions"])) + "))"
        check(s == "( ('%s','mat',(%s,)),%s,%s" % (n, sel, key, rest), "%s: pieces differ: %s" % (n, s))
        v = ast.literal_eval(s)
        acts = SELECTOR if sel else tuple(action_shape(a) for a in by_name(t["actions"]))
        check(v == ((n, "mat", (sel,)), key_shape(t), acts), "%s: shape differs from the catalogue" % n)
        keyfmt.update(k[4] for k in v[1])
        parfmt.update(p[1] for a in v[2] for p in a[1])
        narrow += sum(k[3] != (1 << k[2]) - 1 for k in v[1])
        lengths[n] = len(s)
        lengths["key"] = max(lengths["key"], len(key))
    longest, shortest = max(tables, key=lambda t: lengths[t["name"]]), min(tables, key=lambda t: lengths[t["name"]])
    check((longest["name"], lengths[longest["name"]], shortest["name"], lengths[shortest["name"]]) ==
          ("finalDropControl", 3019, "vlanDecap", 61), "longest and shortest table texts")
    check((lengths["key"], lengths["action"]) == (2814, 238), "longest key and action tuples")
    check(dict(keyfmt) == KEY_FORMATS and dict(parfmt) == PARAM_FORMATS and narrow == 59,
          "formats %s %s, %d narrow masks" % (dict(keyfmt), dict(parfmt), narrow))

    for (t, f), (_, name) in zip(widths, [r for r in requests if r[1].endswith("_width")]):
        check(got[name] == str(f["bits"]), "%s: %s" % (name, got[name]))
    prio = {t["name"]: got[P + t["name"] + "_supports_entry_priority"] for t in tables}
    for t in tables:
        check(prio[t["name"]] == str(int(any(f["match"] == "ternary" for f in t.get("fields", [])))),
              t["name"] + "_supports_entry_priority")
    check(collections.Counter(prio.values()) == {"1": 46, "0": 108} and
          [prio[n] for n in ("ipv4ShortMaskLpm", "foldedPipeDest", "lagGroup", "ecmpGroup")] ==
          ["0", "1", "1", "0"], "supports_entry_priority counts and named cases")

    seen = 0
    for h, a in zip(cli, out[-len(cli):]):
        x = handles.get(h)
        seen += x is not None and "handle" in x
        check(a == (got[P + x["name"] + "_schema"] if x else "2 ()"), "cli_schema(0x%08x): %s" % (h, a[:60]))
    check(seen == len(tables) == 154, "cli_schema reached %d tables" % seen)

    for f in fails[:30]:
        print("FAIL", f)
    print("%d answers checked, %d failures" % (len(out), len(fails)))
    return 1 if fails else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
