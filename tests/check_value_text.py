#!/usr/bin/env python3
"""Value text of the sweep in value_text_test.cpp, checked in one process:
every text is evaluated by Python's own literal evaluator, paired number for
number with the schema text of its table (also evaluated), and compared with
what was written (through the schema's mask; 128-bit numbers whole); and each
text is rendered here independently from the schema and the written values
and compared byte for byte.

Input lines, tab-separated:
  S table schema-text
  E|D table value-text written-key action written-params priority
      match-spec-value-text action-value-text value-text-from-hardware
      entry_value-text placement-text plcmt_data_value-text eq_to_hw
  P profile schema-text
  M profile placement-text action written-params adt_plcmt_data_value-text
      action-value-text
E is an entry, D the default entry, M a member; written values are raw
hexadecimal, one per key element (field, then its mask or prefix length),
"-" for none. An entry of a table reached through a selector names
setMbrHdl or setGrpHdl with the handle as its one parameter."""

import ast
import sys


def digits(width):
    d = (width + 3) // 4
    return 8 if d == 7 else d


def number(value, width, mask):
    if width == 128:
        return "0x%032X," % value
    return "0x%0*x," % (digits(width), value & mask)


def main(path):
    schema, fails, checked = {}, [], 0
    rows = [line.rstrip("\n").split("\t") for line in open(path)]

    def check(ok, what):
        fails.extend([] if ok else [what])

    for r in rows:
        if r[0] in "SP":
            schema[r[1]] = ast.literal_eval(r[2])
    for r in rows:
        if r[0] != "M":
            continue
        _, profile, text, action, params, by_hdl, act_text = r
        shape = dict(schema[profile])[action]
        ps = [int(x, 16) for x in params.split(",")[:-1]] if params != "-" else []
        check(len(ps) == len(shape), "%s %s: %d parameters for %d" % (profile, action, len(ps), len(shape)))
        act = "('%s',(" % action + "".join(number(v, p[2], (1 << p[2]) - 1) for v, p in zip(ps, shape)) + ")),"
        want = ((action, tuple(v & ((1 << p[2]) - 1) for v, p in zip(ps, shape))),)
        check(text == act and ast.literal_eval(text) == want, "%s member %s: %s, want %s" % (profile, action, text, act))
        check(by_hdl == text and act_text == text, "%s member %s: %s by handle, %s" % (profile, action, by_hdl, act_text))
        checked += 1
    for r in rows:
        if r[0] not in "ED":
            continue
        (kind, table, text, key, action, params, prio, key_text, act_text, hw_text, by_hdl, plcmt, plcmt_by_hdl,
         eq) = r
        head, keys, acts = schema[table]
        written = [int(x, 16) for x in key.split(",")[:-1]] if key != "-" else []
        got = ast.literal_eval(text)
        checked += 1
        # Key: paired with the schema's elements, values through their masks.
        want_key = ()
        expect = "(),"
        if kind == "E" and keys:
            check(len(written) == len(keys), "%s: %d elements written for %d" % (table, len(written), len(keys)))
            want_key = tuple(v if k[2] == 128 else v & k[3] for v, k in zip(written, keys))
            expect = "( " + "".join(number(v, k[2], k[3]) for v, k in zip(written, keys)) + "),"
            check(key_text == expect, "%s match_spec_value: %s, want %s" % (table, key_text, expect))
        # Action: its parameters paired with the action's schema, each through
        # its width; or what a selector's entry names, its handle as it is.
        shape = dict(acts)[action]
        ps = [int(x, 16) for x in params.split(",")[:-1]] if params != "-" else []
        if head[2] == (True,):
            want_params = tuple(ps)
            act = "('%s',(0x%x,))" % (action, ps[0])
        else:
            want_params = tuple(v & ((1 << p[2]) - 1) for v, p in zip(ps, shape))
            act = "('%s',(" % action + "".join(number(v, p[2], (1 << p[2]) - 1) for v, p in zip(ps, shape)) + ")),"
            check(act_text == act, "%s_value: %s, want %s" % (action, act_text, act))
        want = ((want_key, (action, want_params)), (int(prio), True))
        check(got == want, "%s %s: evaluates to %r, want %r" % (table, kind, got, want))
        full = "((" + expect + act + "),(" + prio + ",True))"
        check(text == full, "%s %s: %s, want %s" % (table, kind, text, full))
        check(hw_text == text, "%s %s: from hardware %s" % (table, kind, hw_text))
        check(by_hdl == text, "%s %s: entry_value %s" % (table, kind, by_hdl))
        # The placement record: the same pair of key and action, no priority.
        check(plcmt == "(" + expect + act + ")", "%s %s: placement text %s" % (table, kind, plcmt))
        check(ast.literal_eval(plcmt) == want[0], "%s %s: placement evaluates to %r" % (table, kind, plcmt))
        check(plcmt_by_hdl == plcmt, "%s %s: plcmt_data_value %s" % (table, kind, plcmt_by_hdl))
        check(eq == "1 untouched", "%s %s: against the chip: %s" % (table, kind, eq))
    check(checked > 500, "only %d texts" % checked)
    for f in fails[:30]:
        print("FAIL", f)
    print("%d texts checked, %d failures" % (checked, len(fails)))
    return 1 if fails else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
