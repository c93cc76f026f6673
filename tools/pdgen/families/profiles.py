"""Action profiles: members of the six profiles (add, change, delete, read,
walk, count), each profile's tables and update callbacks. A member lives in
the driver's action data table and, with its action, in the profile's
member-selection state; the driver moves first and the state follows only
when it said yes. Member add and modify are write hot paths and pack their
data in straight-line code; the rest are one-line calls into the engine
(src/pd/profiles.cpp)."""

from .base import ACTION_SPEC, DEV, SESS, TGT, Arg, Family
from .packing import hx

MBR = Arg("pd_mbr_hdl", "mbr_hdl", "member handle")
OUT_MBR = Arg("pd_mbr_hdl *", "mbr_hdl", "out member handle")
COUNT = Arg("uint32_t", "count", "count")
OUT_MBRS = Arg("pd_mbr_hdl *", "next_mbr_hdls", "out member handles")
OUT_COUNT = Arg("uint32_t *", "count", "out count")
OUT_TBL = Arg("pd_tbl_hdl *", "tbl_hdl", "out table handle")
READ_FROM_HW = Arg("bool", "read_from_hw", "read from hardware")
OUT_SPEC = Arg("p4_pd_orbisk_switch_action_specs_t *", "action_spec", "out action spec")
ADT_CB = Arg("pd_adt_update_cb", "callback", "update callback")
COOKIE = Arg("void *", "cookie", "cookie")


def slot(p):
    return "pd_ms_slot_" + p.state_slot


def index(p):
    return "kProfiles[%d]" % p.index


def member_data(a):
    """Lines that fill the member record `a` of action a (of a profile)."""
    act = a.action
    o = ["  ActBuf<%d> a;" % act.data_bytes,
         "  begin_member<%d, %d>(a);" % (act.data_bytes, act.data_bits)]
    if act.has_spec:
        o.append("  pack_data_%s(action_spec, a.data);" % act.name)
    return o


def add_member_body(f):
    p, a = f.profile, f.action
    return member_data(a) + [
        "  return add_member(sess_hdl, dev_tgt, %s, %s, %s, &a.rec, mbr_hdl);"
        % (slot(p), hx(p.adt), hx(a.handle))]


def modify_member_body(f):
    p, a = f.profile, f.action
    return ["  pd_act_fn_hdl fn;",
            "  if (pd_status s = p4_pd_ms_get_mbr_act(%s, dev_id, mbr_hdl, &fn)) return s;" % slot(p),
            "  // A member keeps the action it was made with, for life.",
            "  if (fn != %s) return kOtherAction;" % hx(a.handle)] + member_data(a) + [
        "  return pipe_mgr_adt_ent_set(sess_hdl, dev_id, %s, mbr_hdl, fn, &a.rec, 0);" % hx(p.adt)]


def call(text):
    """A one-line body; {adt}, {sel}, {slot}, {index} stand for the profile's."""
    return lambda f: ["  return %s;" % text.format(adt=hx(f.profile.adt), sel=hx(f.profile.sel),
                                                  slot=slot(f.profile), index=index(f.profile))]


def profile(id, args, doc, body, place, result="pd_status"):
    return Family(id, "{p}{r}_" + id, args, doc, body, result=result, each="profile", place=place)


# What its generated sources include.
INCLUDES = ["export.h", "profiles.h", "pd_packers.h", "pd_frame.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("add_member_with", "{p}{r}_add_member_with_{a}", [SESS, TGT, ACTION_SPEC, OUT_MBR],
           "adds a member running the action; the member-selection state learns it only "
           "when the driver accepted it.", add_member_body, each="profile_action", place=(10, 0)),
    Family("modify_member_with", "{p}{r}_modify_member_with_{a}", [SESS, DEV, MBR, ACTION_SPEC],
           "new data for a member of this action; 0xFFFFFFFF, driver untouched, for a member "
           "of another action.", modify_member_body, each="profile_action", place=(10, 1)),
    profile("del_member", [SESS, DEV, MBR], "deletes a member; the state forgets it only when "
            "the driver did.",
            call("del_member({adt}, {slot}, sess_hdl, dev_id, mbr_hdl)"), (20, 0)),
    profile("get_member", [SESS, DEV, MBR, READ_FROM_HW, OUT_SPEC],
            "reads a member back, its action by enum; the parameters of an action without any "
            "are left as they were. Status 15 for an action the profile does not have.",
            lambda f: ["  (void)sess_hdl;  // a member is read without a session"] + call(
                "read_member({index}, {slot}, __func__, dev_id, mbr_hdl, read_from_hw, "
                "action_spec)")(f), (20, 1)),
    profile("get_first_member", [SESS, TGT, OUT_MBR], "the first member's handle.",
            call("pipe_mgr_get_first_entry_handle(sess_hdl, {adt}, dev_tgt, mbr_hdl)"), (20, 2)),
    profile("get_next_members", [SESS, TGT, MBR, COUNT, OUT_MBRS],
            "the handles of up to count members after this one.",
            call("pipe_mgr_get_next_entry_handles(sess_hdl, {adt}, dev_tgt, mbr_hdl, count, "
                 "next_mbr_hdls)"), (20, 3)),
    profile("get_act_prof_entry_count", [SESS, TGT, OUT_COUNT], "the number of members.",
            call("pipe_mgr_get_entry_count(sess_hdl, dev_tgt, {adt}, 0, count)"), (20, 4)),
    profile("get_adt_table_handle", [OUT_TBL], "the action data table's handle, where the "
            "pointer is not NULL; always 0.", call("table_handle({adt}, tbl_hdl)"), (20, 5)),
    profile("register_adt_update_cb", [SESS, DEV, ADT_CB, COOKIE],
            "the callback told of each member added, changed or deleted.",
            call("pipe_register_adt_update_cb(sess_hdl, dev_id, {adt}, callback, cookie)"), (20, 6)),
]

# ------------------------------------------------------------------ groups ---

GRP = Arg("pd_grp_hdl", "grp_hdl", "group handle")
OUT_GRP = Arg("pd_grp_hdl *", "grp_hdl", "out group handle")
OUT_GRPS = Arg("pd_grp_hdl *", "next_grp_hdls", "out group handles")
MAX_SIZE = Arg("uint32_t", "max_grp_size", "maximum group size")
MBR_STATE = Arg("uint32_t", "mbr_state", "member state")
OUT_MBR_STATE = Arg("uint32_t *", "mbr_state", "out member state")
HASH = Arg("uint8_t *", "hash", "hash bytes")
HASH_LEN = Arg("uint32_t", "hash_len", "hash length")
WORD = Arg("uint32_t", "word_index", "word number")
SEL_CB = Arg("pd_sel_tbl_cb", "callback", "member state callback")
SEL_UPDATE_CB = Arg("pd_sel_update_cb", "callback", "update callback")

FAMILIES += [
    profile("create_group", [SESS, TGT, MAX_SIZE, OUT_GRP],
            "makes an empty group of at most max_grp_size members; it runs no action until "
            "its first member comes.",
            call("create_group({sel}, {slot}, sess_hdl, dev_tgt, max_grp_size, grp_hdl)"), (30, 0)),
    profile("del_group", [SESS, DEV, GRP],
            "deletes a group: its members are read first, for the state to unhook them. 2 when "
            "out of memory; after the driver deleted it, the state's status.",
            call("del_group({sel}, {slot}, sess_hdl, dev_id, grp_hdl)"), (30, 1)),
    profile("add_member_to_group", [SESS, DEV, GRP, MBR],
            "adds a member; the group runs the action of the member added last. A member the "
            "state does not know never reaches the driver.",
            call("add_member_to_group({sel}, {slot}, sess_hdl, dev_id, grp_hdl, mbr_hdl)"), (30, 2)),
    profile("del_member_from_group", [SESS, DEV, GRP, MBR],
            "removes a member; the group's action stays.",
            call("del_member_from_group({sel}, {slot}, sess_hdl, dev_id, grp_hdl, mbr_hdl)"),
            (30, 3)),
    profile("group_member_state_set", [SESS, DEV, GRP, MBR, MBR_STATE],
            "turns a member on (P4_PD_GRP_MBR_STATE_ACTIVE) or off (_INACTIVE) in a group; any "
            "other state ends the process.",
            call("group_member_state_set({sel}, __func__, sess_hdl, dev_id, grp_hdl, mbr_hdl, "
                 "mbr_state)"), (30, 4)),
    profile("group_member_state_get", [SESS, DEV, GRP, MBR, OUT_MBR_STATE],
            "reads it; a state the library does not know is not written.",
            call("group_member_state_get({sel}, sess_hdl, dev_id, grp_hdl, mbr_hdl, mbr_state)"),
            (30, 5)),
    profile("group_member_get_from_hash", [SESS, DEV, GRP, HASH, HASH_LEN, OUT_MBR],
            "the member the hash picks in a group.",
            call("pipe_mgr_sel_grp_mbr_get_from_hash(sess_hdl, dev_id, {sel}, grp_hdl, hash, "
                 "hash_len, mbr_hdl)"), (30, 6)),
    profile("set_dynamic_action_selection_fallback_member", [SESS, DEV, MBR],
            "the member used where a group has none active, for the whole selector table.",
            call("pipe_mgr_sel_fallback_mbr_set(sess_hdl, dev_id, {sel}, mbr_hdl, 0)"), (30, 7)),
    profile("reset_dynamic_action_selection_fallback_member", [SESS, DEV],
            "no fallback member.",
            call("pipe_mgr_sel_fallback_mbr_reset(sess_hdl, dev_id, {sel}, 0)"), (30, 8)),
    profile("get_first_group", [SESS, TGT, OUT_GRP], "the first group's handle.",
            call("pipe_mgr_get_first_entry_handle(sess_hdl, {sel}, dev_tgt, grp_hdl)"), (40, 0)),
    profile("get_next_groups", [SESS, TGT, GRP, COUNT, OUT_GRPS],
            "the handles of up to count groups after this one.",
            call("pipe_mgr_get_next_entry_handles(sess_hdl, {sel}, dev_tgt, grp_hdl, count, "
                 "next_grp_hdls)"), (40, 1)),
    profile("get_first_group_member", [SESS, DEV, GRP, OUT_MBR], "a group's first member.",
            call("pipe_mgr_get_first_group_member(sess_hdl, {sel}, dev_id, grp_hdl, mbr_hdl)"),
            (40, 2)),
    profile("get_next_group_members", [SESS, DEV, GRP, MBR, COUNT, OUT_MBRS],
            "up to count members of the group after this one.",
            call("pipe_mgr_get_next_group_members(sess_hdl, {sel}, dev_id, grp_hdl, mbr_hdl, "
                 "count, next_mbr_hdls)"), (40, 3)),
    profile("get_selector_group_count", [SESS, TGT, OUT_COUNT], "the number of groups.",
            call("pipe_mgr_get_entry_count(sess_hdl, dev_tgt, {sel}, 0, count)"), (40, 4)),
    profile("get_selector_group_member_count", [SESS, DEV, GRP, OUT_COUNT],
            "the number of a group's members.",
            call("pipe_mgr_get_sel_grp_mbr_count(sess_hdl, dev_id, {sel}, grp_hdl, count)"),
            (40, 5)),
    profile("get_word_llp_active_member_count", [SESS, DEV, WORD, OUT_COUNT],
            "the number of members active in one word of the selector table, as the driver's "
            "low-level view has them.",
            call("pipe_mgr_get_word_llp_active_member_count(sess_hdl, dev_id, {sel}, word_index, "
                 "count)"), (40, 6)),
    profile("get_word_llp_active_members", [SESS, DEV, WORD, COUNT, OUT_MBRS],
            "up to count of those members.",
            call("pipe_mgr_get_word_llp_active_members(sess_hdl, dev_id, {sel}, word_index, count, "
                 "next_mbr_hdls)"), (40, 7)),
    profile("get_sel_table_handle", [OUT_TBL], "the selector table's handle, where the pointer "
            "is not NULL; always 0.", call("table_handle({sel}, tbl_hdl)"), (40, 8)),
    profile("register_callback", [SESS, DEV, SEL_CB, COOKIE],
            "the callback told of each member turned on or off.",
            call("pipe_mgr_sel_tbl_register_cb(sess_hdl, dev_id, {sel}, callback, cookie)"), (50, 0)),
    profile("sel_track_updates", [DEV, SEL_CB, COOKIE], "the same, without a session.",
            call("pipe_mgr_sel_tbl_register_cb(0, dev_id, {sel}, callback, cookie)"), (50, 1)),
    profile("register_sel_update_cb", [SESS, DEV, SEL_UPDATE_CB, COOKIE],
            "the callback told of each group made or deleted and each member added or removed.",
            call("pipe_register_sel_update_cb(sess_hdl, dev_id, {sel}, callback, cookie)"), (50, 2)),
]
