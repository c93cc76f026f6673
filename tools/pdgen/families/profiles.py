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
