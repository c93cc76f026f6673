"""Entries: add an entry with an action, replace the action of an entry found
by handle or by key. Write hot paths: every key and action is packed by
straight-line code (see packing.py)."""

from .base import (ACTION_SPEC, DEV, ENTRY_HDL, MATCH_SPEC, METER_SPEC, OUT_ENTRY_HDL, PRIORITY,
                   SESS, TGT, Arg, Family, direct)
from .packing import action_code, hx, key_code

TTL = Arg("uint32_t", "ttl", "ttl", when=lambda t, a: t.ttl_on_add and a.entry)


def add_body(f):
    t, a = f.table, f.action
    o = []
    if t.direct_meter:
        spec = t.direct_meter.name + "_spec"
        o.append("  // Rates are required on an add: without them the process ends.")
        o.append("  if (!%s)" % spec)
        o.append("    pd_hard_assert_failed(\"%s && \\\"direct resource has no spec\\\"\"," % spec)
        o.append("                          __func__, __LINE__);")
    ttl = "ttl" if f.has_arg("ttl") else "0"
    return o + key_code(t) + action_code(t, a, "add") + [
        "  return pipe_mgr_mat_ent_add(sess_hdl, dev_tgt, %s, &k.rec, %s, &a.rec, %s, 0, entry_hdl);"
        % (hx(t.handle), hx(a.handle), ttl)]


def modify_body(f):
    t, a = f.table, f.action
    return action_code(t, a, "modify") + [
        "  return pipe_mgr_mat_ent_set_action(sess_hdl, dev_id, %s, entry_hdl, %s, &a.rec, 0);"
        % (hx(t.handle), hx(a.handle))]


def modify_by_key_body(f):
    t, a = f.table, f.action
    return key_code(t) + action_code(t, a, "modify") + [
        "  return pipe_mgr_mat_ent_set_action_by_match_spec(sess_hdl, dev_tgt, %s, &k.rec, %s, &a.rec, 0);"
        % (hx(t.handle), hx(a.handle))]


# What its generated sources include.
INCLUDES = ["export.h", "assertions.h", "resources.h", "pd_packers.h", "pd_keys_{area}.h",
            "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("table_add_with", "{p}{t}_table_add_with_{a}",
           [SESS, TGT, MATCH_SPEC, PRIORITY, ACTION_SPEC, METER_SPEC, TTL, OUT_ENTRY_HDL],
           "adds an entry. A NULL meter spec ends the process; the index of a counter or meter cell goes to the driver as its low 16 bits.", add_body, each="entry_action", when=direct, place=(10, 0)),
    Family("table_modify_with", "{p}{t}_table_modify_with_{a}",
           [SESS, DEV, ENTRY_HDL, ACTION_SPEC, METER_SPEC],
           "replaces an entry's action and its data. A cell index goes whole; a NULL meter spec sends the meter's slot untagged.", modify_body, each="entry_action",
           when=direct, place=(20, 0)),
    Family("table_modify_with_by_match_spec", "{p}{t}_table_modify_with_{a}_by_match_spec",
           [SESS, TGT, MATCH_SPEC, PRIORITY, ACTION_SPEC, METER_SPEC],
           "the same for the entry with this key.", modify_by_key_body, each="entry_action",
           when=direct, place=(20, 1)),
]
