"""Placement data: the driver's opaque record of what it placed on the chip
for a match entry, a member (action data entry) or a group (selector entry).
The fetches hand the driver the object's own handle in place of the one the
caller gave; the decoders have the driver turn a record back into the
records a write sends and unpack those as a read does (src/pd/placement.cpp)."""

from .base import Arg, Family, SESS, TGT
from .indirect import HAS_GRP, HAS_MBR, IS_DEFAULT, OUT_GRP, OUT_MBR
from .packing import hx
from .reads import OUT_MATCH_SPEC, OUT_PRIORITY

TBL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle (ignored)")
ENTRY = Arg("pd_entry_hdl", "entry_hdl", "entry handle")
MBR = Arg("pd_mbr_hdl", "mbr_hdl", "member handle")
GRP = Arg("pd_grp_hdl", "grp_hdl", "group handle")
DATA = Arg("void *", "plcmt_data", "placement data")
SIZE = Arg("uint32_t *", "size", "in room, out length")
IN_DATA = Arg("const void *", "plcmt_data", "placement data")
DEV8 = Arg("uint8_t", "dev_id", "device id")
OUT_SPECS = Arg("p4_pd_orbisk_switch_action_specs_t *", "action_spec", "out action")
OUT_ACTION = Arg("p4_pd_orbisk_switch_action_specs_t *", "action_spec", "out action",
                 when=lambda t, a: not t.indirect)
# A selector table's entry names a member or a group instead of an action.
SEL = lambda arg: Arg(arg.ctype, arg.name, arg.label, when=lambda t, a: t.indirect)
IS_DEFAULT_ANY = Arg("bool *", "is_default", "out is-default")


def fetch(driver, hdl, of):
    """A tail to the driver with the object's handle in third place."""
    return lambda f: ["  (void)tbl_hdl;  // the object's own handle goes to the driver",
                      "  return %s(sess_hdl, dev_tgt, %s, %s, plcmt_data, size);"
                      % (driver, hx(of(f)), hdl)]


def decode_entry_body(f):
    """The caller's arguments stay where they are and the descriptor goes
    last, except for a selector table's eight."""
    t = f.table
    if t.indirect:
        out = ["match_spec", "priority" if t.ternary else "nullptr", "nullptr", "mbr_hdl",
               "grp_hdl", "has_mbr", "has_grp", "is_default"]
        return ["  return decode_entry(kTables[%d], nullptr, plcmt_data, {%s});"
                % (t.index, ", ".join(out))]
    engine, args = ("decode_keyless", "") if not t.keyed else (
        ("decode_keyed_priority", "match_spec, priority, ") if t.ternary else
        ("decode_keyed", "match_spec, "))
    return ["  return %s(plcmt_data, %saction_spec, is_default, kTables[%d]);"
            % (engine, args, t.index)]


def header_lines(prog):
    data = max(a.data_bytes for a in prog.actions)
    return ["/* The longest key string (value or mask) and the longest action data the",
            " * program passes to the driver, in bytes: what a driver sizes its own",
            " * records of the program's entries by (placement data among them). */",
            "#define P4_PD_ORBISK_SWITCH_MAX_KEY_BYTES %d" % max(t.key_bytes for t in prog.tables),
            "#define P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES %d" % data, ""]


# One-line functions: one generated source for all areas.
BY_AREA = False

# What its generated sources include.
INCLUDES = ["export.h", "placement.h", "pd_frame.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("get_plcmt_data", "{p}{t}_get_plcmt_data", [SESS, TGT, TBL, ENTRY, DATA, SIZE],
           "fetches an entry's placement data from the driver, with the table's own handle; "
           "*size is the room going in and the record's length coming out.",
           fetch("pipe_mgr_plcmt_mat_data_get", "entry_hdl", lambda f: f.table.handle),
           place=(120, 0)),
    Family("get_entry_from_plcmt_data", "{p}{t}_get_entry_from_plcmt_data",
           [IN_DATA, OUT_MATCH_SPEC, OUT_PRIORITY, OUT_ACTION, SEL(OUT_MBR), SEL(OUT_GRP),
            SEL(HAS_MBR), SEL(HAS_GRP), IS_DEFAULT_ANY],
           "decodes placement data into the entry's key, priority and action (or, reached "
           "through a selector, the member or group it names; flags untouched for neither). "
           "A keyless table says is-default for every record; 3 for an action not the table's.",
           decode_entry_body, place=(120, 1)),
    Family("profile_get_plcmt_data", "{p}{r}_get_plcmt_data", [SESS, TGT, TBL, MBR, DATA, SIZE],
           "fetches a member's placement data, with the action data table's handle.",
           fetch("pipe_mgr_plcmt_adt_data_get", "mbr_hdl", lambda f: f.profile.adt),
           each="profile", place=(60, 0)),
    Family("profile_sel_get_plcmt_data", "{p}{r}_sel_get_plcmt_data",
           [SESS, TGT, TBL, GRP, DATA, SIZE],
           "fetches a group's placement data, with the selector table's handle; it has no decoder.",
           fetch("pipe_mgr_plcmt_sel_data_get", "grp_hdl", lambda f: f.profile.sel),
           each="profile", place=(60, 1)),
    Family("get_member_from_plcmt_data", "{p}{r}_get_member_from_plcmt_data",
           [IN_DATA, OUT_SPECS],
           "decodes a member's placement data into its action; the driver's status, even after "
           "the action is filled; 15 for an action not the profile's.",
           lambda f: ["  return decode_member_of(plcmt_data, action_spec, kProfiles[%d]);"
                      % f.profile.index], each="profile", place=(60, 2)),
    Family("get_full_member_info_from_plcmt_data", "{p}{r}_get_full_member_info_from_plcmt_data",
           [DEV8, MBR, IN_DATA, OUT_SPECS],
           "the same, asking the member-selection state for the member's resources first (an "
           "action with parameters); what it answers is not used.",
           lambda f: ["  return decode_full_member_of(dev_id, mbr_hdl, plcmt_data, action_spec, "
                      "pd_ms_slot_%s, kProfiles[%d]);" % (f.profile.state_slot, f.profile.index)],
           each="profile", place=(60, 3)),
]
