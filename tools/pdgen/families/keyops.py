"""Key operations: delete an entry by handle or by key, find an entry's
handle from its key, count and walk a table's entries."""

from .base import (DEV, ENTRY_HDL, MATCH_SPEC, OUT_ENTRY_HDL, PRIORITY, SESS, TGT, Arg, Family,
                   always, keyed)
from .packing import hx, key_code


def delete_body(f):
    return ["  return pipe_mgr_mat_ent_del(sess_hdl, dev_id, %s, entry_hdl, 0);" % hx(f.table.handle)]


def delete_by_key_body(f):
    return key_code(f.table) + [
        "  return pipe_mgr_mat_ent_del_by_match_spec(sess_hdl, dev_tgt, %s, &k.rec, 0);" % hx(f.table.handle)]


def to_handle_body(f):
    return key_code(f.table) + [
        "  return pipe_mgr_match_spec_to_ent_hdl(sess_hdl, dev_tgt, %s, &k.rec, entry_hdl, 0);"
        % hx(f.table.handle)]


def count_body(f):
    return ["  return pipe_mgr_get_entry_count(sess_hdl, dev_tgt, %s, 0, count);" % hx(f.table.handle)]


def first_body(f):
    return ["  return pipe_mgr_get_first_entry_handle(sess_hdl, %s, dev_tgt, entry_hdl);" % hx(f.table.handle)]


def next_body(f):
    return ["  return pipe_mgr_get_next_entry_handles(sess_hdl, %s, dev_tgt, entry_hdl, n, next_entry_hdls);"
            % hx(f.table.handle)]


# What its generated sources include.
INCLUDES = ["export.h", "pd_keys_{area}.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("table_delete", "{p}{t}_table_delete", [SESS, DEV, ENTRY_HDL],
           "deletes an entry.", delete_body, when=keyed, place=(30, 0)),
    Family("table_delete_by_match_spec", "{p}{t}_table_delete_by_match_spec",
           [SESS, TGT, MATCH_SPEC, PRIORITY],
           "deletes the entry with this key.", delete_by_key_body, when=keyed, place=(30, 1)),
    Family("match_spec_to_entry_hdl", "{p}{t}_match_spec_to_entry_hdl",
           [SESS, TGT, MATCH_SPEC, PRIORITY, Arg("pd_entry_hdl *", "entry_hdl", "out")],
           "finds the handle of the entry with this key.", to_handle_body, when=keyed, place=(30, 2)),
    Family("get_entry_count", "{p}{t}_get_entry_count",
           [SESS, TGT, Arg("uint32_t *", "count", "out count")],
           "counts a table's entries.", count_body, when=always, place=(50, 0)),
    Family("get_first_entry_handle", "{p}{t}_get_first_entry_handle", [SESS, TGT, OUT_ENTRY_HDL],
           "starts a walk of a table.", first_body, when=always, place=(50, 1)),
    Family("get_next_entry_handles", "{p}{t}_get_next_entry_handles",
           [SESS, TGT, ENTRY_HDL, Arg("uint32_t", "n", "n"),
            Arg("pd_entry_hdl *", "next_entry_hdls", "out handles")],
           "goes on with a walk: up to n handles after this one.", next_body, when=always,
           place=(50, 2)),
]
