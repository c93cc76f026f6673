#!/usr/bin/env python3
"""Schema text and widths of the built library against catalogue/*.json,
from which every name and every expected shape is derived here: each text is
evaluated by Python's own literal evaluator and compared with the catalogue,
and the worked texts, the known lengths and counts, and cli_schema over both
handle ranges are checked byte for byte. Functions are called by name
through schema_dump."""

import ast
import collections
import glob
import json
import os
import subprocess
import sys

P = "p4_pd_orbisk_switch_"
TAIL = "( ('setMbrHdl',(('mbrHdl',None,32,None),)),( 'setGrpHdl', ( ( 'grpHdl', None, 32, None ), ) ) ))"
GOLDEN = {
    "ingressPortMapping_schema": "( ('ingressPortMapping','mat',(False,)),(( 'ingressPort','ig_intr_md_"
    "ingress_port',9,0x1ff,None,None,None),),(( ('setPhase0'),(('ingVPort',None,14,None),('nativeAintf',"
    "None,16,None),('switchPort',None,1,None),('physicalPort',None,2,None),)),))",
    "ecmpGroup_schema": "( ('ecmpGroup','mat',(True,)),(( 'nextHop','l3_nextHop',15,0xff,None,None,None),),"
    + TAIL,
    "vlanDecap_schema": "( ('vlanDecap','mat',(False,)),(),(( ('removeVlanHdr'),()),))",
    "foldedPipeActionProfile_schema": "(( ('NoAction'),()),( ('setFoldedPipePort'),(('port','port',9,None),)),)",
    "ipv4ShortMaskLpm_match_spec_schema": "(( 'vrfId','l3Info_vrfId',8,0xff,None,None,None),( 'dip','ingIpv4_"
    "dip',32,0xfff00000,'v4addr',None,None),( 'dipPrefixLength','ingIpv4_dip_prefix_length',16,0xffff,None,"
    "None,None),)",
}
FORMATS = {"key": {"v4addr": 26, "v6addr": 16, "mac": 22, "port": 18, "vport": 4, "dec": 7, None: 645},
           "param": {"v4addr": 21, "mac": 22, "port": 3, "dec": 6, None: 317}}
SELECTOR = (("setMbrHdl", (("mbrHdl", None, 32, None),)), ("setGrpHdl", (("grpHdl", None, 32, None),)))


def key_shape(t):
    out = []
    for f in t.get("fields", []):
        mask = int(f["static_mask"], 16) if "static_mask" in f else (1 << f["bits"]) - 1
        out.append((f["schema"], f["name"], f["bits"], mask, f.get("format"), None, None))
        if f["match"] == "ternary":
            out.append((f["schema"] + "Mask", f["name"] + "_mask", f["bits"], mask, None, None, None))
        elif f["match"] == "lpm":
            out.append((f["schema"] + "PrefixLength", f["name"] + "_prefix_length", 16, 0xFFFF, None, None,
                        None))
    return tuple(out)


def by_name(actions):
    return sorted(actions, key=lambda a: a["name"].encode())


def action_shape(a):
    return (a["name"], tuple((p["name"], p.get("format"), p["bits"], None) for p in a["params"]))


def main(dump, root):
    tables = [t for path in sorted(glob.glob(os.path.join(root, "catalogue", "*.json")))
              if not path.endswith("program.json") for t in json.load(open(path)).get("tables", [])]
    program = json.load(open(os.path.join(root, "catalogue", "program.json")))
    profiles = program["profiles"]
    actions = {a["name"]: a for t in tables + profiles for a in t.get("actions", [])}
    named = {int(t["handle"], 16): t for t in tables}
    named.update({int(r["action_data_table"], 16): r for r in profiles})
    misses = [0, 0x01000055, 0xFFFFFFFF] + [int(x[k], 16) for x in program["counters"] + program["meters"] +
                                          profiles for k in ("handle", "selector_table") if k in x]
    assert not set(misses) & set(named)
    handles = [b + i for b, top in ((0x01000000, 0x77), (0x11010000, 0x2A)) for i in range(top)]
    handles += misses + [int(r["action_data_table"], 16) for r in profiles]
    widths = [(t, f, f["name"][:-6] if f["name"].endswith("_valid") else f["name"])
              for t in tables for f in t.get("fields", [])]

    asks = [("buf", t["name"] + "_schema") for t in tables + profiles]
    asks += [("ptr", t["name"] + "_match_spec_schema") for t in tables]
    asks += [("ptr", a + "_schema") for a in actions]
    asks += [("int", t["name"] + "_supports_entry_priority") for t in tables]
    asks += [("int", "%s_%s_width" % (t["name"], w)) for t, _, w in widths]
    requests = [(k, P + n) for k, n in asks] + [("cli", hex(h)) for h in handles]
    out = subprocess.run([dump], input="".join("%s %s\n" % r for r in requests), capture_output=True,
                         text=True, check=True).stdout.splitlines()
    assert len(out) == len(requests), "schema_dump answered %d of %d" % (len(out), len(requests))
    got = {n[len(P):]: a for (k, n), a in zip(requests, out) if k != "cli"}
    fails = []

    def check(ok, what):
        fails.extend([] if ok else [what])

    def text(name):  # a written text: its result must be its length
        n, _, s = got[name].partition(" ")
        check(n == str(len(s)), "%s: result %s for %d bytes" % (name, n, len(s)))
        return s

    def actions_text(acts):
        return "(" + "".join(got[a["name"] + "_schema"] + "," for a in by_name(acts)) + ")"

    for name, want in GOLDEN.items():
        check((got[name] if "match_spec" in name else text(name)) == want, name + ": not the worked text")
    for a in actions.values():
        check(ast.literal_eval(got[a["name"] + "_schema"]) == action_shape(a), "action " + a["name"])
    for r in profiles:
        s = text(r["name"] + "_schema")
        check(s == actions_text(r["actions"]) and
              ast.literal_eval(s) == tuple(action_shape(a) for a in by_name(r["actions"])), r["name"])
    length, count = collections.Counter(), collections.Counter()
    for t in tables:
        n, sel, s = t["name"], "profile" in t, text(t["name"] + "_schema")
        key = got[n + "_match_spec_schema"]
        check((key == "missing") != bool(t.get("fields")), "%s: key tuple %s" % (n, key))
        key = "()" if key == "missing" else key
        rest = TAIL if sel else actions_text(t["actions"]) + ")"
        check(s == "( ('%s','mat',(%s,)),%s,%s" % (n, sel, key, rest), "%s: not its pieces: %s" % (n, s))
        v = ast.literal_eval(s)
        acts = SELECTOR if sel else tuple(action_shape(a) for a in by_name(t["actions"]))
        check(v == ((n, "mat", (sel,)), key_shape(t), acts), n + ": shape differs from the catalogue")
        count.update(("key", k[4]) for k in v[1])
        count.update(("param", p[1]) for a in v[2] for p in a[1])
        count["mask", "narrow"] += sum(k[3] != (1 << k[2]) - 1 for k in v[1])
        length[n], length["key"] = len(s), max(length["key"], len(key))
    tl = sorted((length[t["name"]], t["name"]) for t in tables)
    check((tl[-1], tl[0], length["key"], max(len(got[a + "_schema"]) for a in actions)) ==
          ((3019, "finalDropControl"), (61, "vlanDecap"), 2814, 238), "known lengths")
    for kind, want in FORMATS.items():
        check({f: c for (k, f), c in count.items() if k == kind} == want, "%s formats: %s" % (kind, count))
    check(count["mask", "narrow"] == 59, "%d masks narrower than their field" % count["mask", "narrow"])

    for t, f, w in widths:
        check(got["%s_%s_width" % (t["name"], w)] == str(f["bits"]), "%s_%s_width" % (t["name"], w))
    prio = {t["name"]: got[t["name"] + "_supports_entry_priority"] for t in tables}
    check(all(prio[t["name"]] == str(int(any(f["match"] == "ternary" for f in t.get("fields", []))))
              for t in tables) and collections.Counter(prio.values()) == {"1": 46, "0": 108} and
          [prio[n] for n in ("ipv4ShortMaskLpm", "foldedPipeDest", "lagGroup", "ecmpGroup")] == list("0110"),
          "supports_entry_priority: %s" % collections.Counter(prio.values()))

    for h, a in zip(handles, out[-len(handles):]):
        x = named.get(h)
        check(a == (got[x["name"] + "_schema"] if x else "2 ()"), "cli_schema(0x%08x): %s" % (h, a[:60]))
    check(sum(h in named for h in handles) == 154 + 6, "cli_schema: not every table and profile")

    for f in fails[:30]:
        print("FAIL", f)
    print("%d answers checked, %d failures" % (len(out), len(fails)))
    return 1 if fails else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
