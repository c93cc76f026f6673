"""Indirect match tables: the entries of the six tables whose entries name a
member or a group of their profile instead of holding an action. Each write
packs the key (straight-line, as a direct add does), names the member or
group in the action record, and asks the profile's member-selection state
for the action to write it with; a member or group the state does not know
never reaches the driver. get_entry tells which of the two an entry names."""

from .base import DEV, ENTRY_HDL, MATCH_SPEC, OUT_ENTRY_HDL, PRIORITY, READ_FROM_HW, SESS, TGT, Arg, Family
from .packing import hx, key_code
from .reads import OUT_MATCH_SPEC, OUT_PRIORITY

MBR = Arg("pd_mbr_hdl", "mbr_hdl", "member handle")
GRP = Arg("pd_grp_hdl", "grp_hdl", "group handle")
HAS_MBR = Arg("bool *", "has_mbr", "out has-member")
HAS_GRP = Arg("bool *", "has_grp", "out has-group")
OUT_GRP = Arg("pd_grp_hdl *", "grp_hdl", "out group handle")
OUT_MBR = Arg("pd_mbr_hdl *", "mbr_hdl", "out member handle")
IS_DEFAULT = Arg("bool *", "is_default", "out is-default")


def indirect(t):
    return t.indirect


def ref_code(f, group, device):
    """Lines that fill the action record `a` and its action `fn` from the state."""
    p = f.table.profile
    hdl = "grp_hdl" if group else "mbr_hdl"
    return ["  pd_action_record a;", "  pd_act_fn_hdl fn;",
            "  if (pd_status s = name_ref<%s>(pd_ms_slot_%s, %s, %s, a, fn)) return s;"
            % ("true" if group else "false", p.state_slot, device, hdl)]


def add_body(group):
    def body(f):
        t = f.table
        return key_code(t) + ref_code(f, group, "dev_tgt.device_id") + [
            "  return pipe_mgr_mat_ent_add(sess_hdl, dev_tgt, %s, &k.rec, fn, &a, 0, 0, entry_hdl);"
            % hx(t.handle)]
    return body


def modify_body(group):
    return lambda f: ref_code(f, group, "dev_id") + [
        "  return pipe_mgr_mat_ent_set_action(sess_hdl, dev_id, %s, entry_hdl, fn, &a, 0);"
        % hx(f.table.handle)]


def modify_by_key_body(group):
    return lambda f: key_code(f.table) + ref_code(f, group, "dev_tgt.device_id") + [
        "  return pipe_mgr_mat_ent_set_action_by_match_spec(sess_hdl, dev_tgt, %s, &k.rec, fn, &a, 0);"
        % hx(f.table.handle)]


def default_body(group):
    return lambda f: ref_code(f, group, "dev_tgt.device_id") + [
        "  return pipe_mgr_mat_default_entry_set(sess_hdl, dev_tgt, %s, fn, &a, 0, entry_hdl);"
        % hx(f.table.handle)]


def get_entry_body(f):
    t = f.table
    prio = "priority" if t.ternary else "nullptr"
    return ["  return read_indirect_entry(kTables[%d], sess_hdl, dev_id, entry_hdl, read_from_hw," % t.index,
            "                             {match_spec, %s, has_mbr, has_grp, grp_hdl, mbr_hdl, is_default});"
            % prio]


def table(id, args, doc, body, place):
    return Family(id, "{p}{t}_" + id, args, doc, body, when=indirect, place=place)


# What its generated sources include.
INCLUDES = ["export.h", "profiles.h", "pd_frame.h", "pd_keys_{area}.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    table("add_entry", [SESS, TGT, MATCH_SPEC, PRIORITY, MBR, OUT_ENTRY_HDL],
          "adds an entry that names a member.", add_body(False), (10, 0)),
    table("add_entry_with_selector", [SESS, TGT, MATCH_SPEC, PRIORITY, GRP, OUT_ENTRY_HDL],
          "adds an entry that names a group, written with the group's action of the moment.",
          add_body(True), (10, 1)),
    table("modify_entry", [SESS, DEV, ENTRY_HDL, MBR],
          "points an entry at a member, whatever it named before.", modify_body(False), (20, 0)),
    table("modify_entry_with_selector", [SESS, DEV, ENTRY_HDL, GRP],
          "points it at a group.", modify_body(True), (20, 1)),
    table("modify_entry_by_match_spec", [SESS, TGT, MATCH_SPEC, PRIORITY, MBR],
          "the same by key, at a member.", modify_by_key_body(False), (20, 2)),
    table("modify_entry_with_selector_by_match_spec", [SESS, TGT, MATCH_SPEC, PRIORITY, GRP],
          "the same by key, at a group.", modify_by_key_body(True), (20, 3)),
    table("set_default_entry", [SESS, TGT, MBR, OUT_ENTRY_HDL],
          "the default entry names a member.", default_body(False), (30, 0)),
    table("set_default_entry_with_selector", [SESS, TGT, GRP, OUT_ENTRY_HDL],
          "the default entry names a group.", default_body(True), (30, 1)),
    Family("get_indirect_entry", "{p}{t}_get_entry",
           [SESS, DEV, ENTRY_HDL, READ_FROM_HW, OUT_MATCH_SPEC, OUT_PRIORITY, HAS_MBR, HAS_GRP,
            OUT_GRP, OUT_MBR, IS_DEFAULT],
           "reads an entry back across all pipes: which member or group it names (flags member "
           "first, handles group first); neither flag for anything else.", get_entry_body,
           when=indirect, place=(40, 0)),
]
