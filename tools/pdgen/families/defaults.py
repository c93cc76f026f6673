"""Defaults: the action a table takes on a miss, set, read and reset."""

from .base import ACTION_SPEC, METER_SPEC, OUT_ENTRY_HDL, READ_FROM_HW, SESS, TGT, Arg, Family, direct
from .packing import action_code, hx


def set_body(f):
    t, a = f.table, f.action
    return action_code(t, a, "default") + [
        "  return pipe_mgr_mat_default_entry_set(sess_hdl, dev_tgt, %s, %s, &a.rec, 0, entry_hdl);"
        % (hx(t.handle), hx(a.handle))]


def get_body(f):
    return ["  return read_default_entry(kTables[%d], sess_hdl, dev_tgt, read_from_hw, action_spec);" % f.table.index]


def get_handle_body(f):
    return ["  return pipe_mgr_table_get_default_entry_handle(sess_hdl, dev_tgt, %s, entry_hdl);"
            % hx(f.table.handle)]


def reset_body(f):
    return ["  return pipe_mgr_mat_tbl_default_entry_reset(sess_hdl, dev_tgt, %s, 0);" % hx(f.table.handle)]


# What its generated sources include.
INCLUDES = ["export.h", "pd_packers.h", "reads.h", "resources.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("set_default_action", "{p}{t}_set_default_action_{a}",
           [SESS, TGT, ACTION_SPEC, METER_SPEC, OUT_ENTRY_HDL],
           "sets the action taken on a miss. A NULL meter spec detaches the meter.", set_body, each="default_action", when=direct,
           place=(60, 0)),
    Family("table_get_default_entry", "{p}{t}_table_get_default_entry",
           [SESS, TGT, READ_FROM_HW, Arg("pd_default_action_record *", "action_spec", "out action")],
           "reads it back. Status 15 for a record the table cannot hold.", get_body, place=(70, 0)),
    Family("table_get_default_entry_handle", "{p}{t}_table_get_default_entry_handle",
           [SESS, TGT, OUT_ENTRY_HDL], "the default entry's handle.", get_handle_body, place=(70, 1)),
    Family("table_reset_default_entry", "{p}{t}_table_reset_default_entry", [SESS, TGT],
           "puts back the default the table starts with.", reset_body, place=(70, 2)),
]
