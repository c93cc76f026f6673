"""Emits roundtrip_rows.cpp, the rows of the catalogue-wide round trip: for
every direct table, and every action it allows, one-line thunks that call each
exported function the sweep uses with its arguments taken from a common
`Call` record (tests/roundtrip_support.h). The sweep itself, which fills,
calls and compares from the descriptors, is hand-written
(tests/roundtrip_test.cpp)."""

import families

# Families the sweep calls, in the order of the members of TableRow and
# ActionRow that hold their thunks.
TABLE_FAMILIES = ["get_entry_count", "get_entry", "match_spec_to_entry_hdl", "table_delete",
                  "table_delete_by_match_spec", "table_get_default_entry",
                  "table_get_default_entry_handle", "table_reset_default_entry",
                  "get_plcmt_data", "get_entry_from_plcmt_data"]
# Those of the placement sweep over the indirect tables and the profiles.
INDIRECT_FAMILIES = ["add_entry", "add_entry_with_selector", "set_default_entry",
                     "get_plcmt_data", "get_entry_from_plcmt_data"]
PROFILE_FAMILIES = ["create_group", "add_member_to_group", "profile_get_plcmt_data",
                    "profile_sel_get_plcmt_data", "get_member_from_plcmt_data",
                    "get_full_member_info_from_plcmt_data"]
ACTION_FAMILIES = ["table_add_with", "table_modify_with", "table_modify_with_by_match_spec",
                   "set_default_action"]

# Call members by (C type, argument name), for arguments of one type everywhere.
CALL_MEMBERS = {
    ("pd_sess_hdl", "sess_hdl"): "sess_hdl",
    ("pd_dev_target", "dev_tgt"): "dev_tgt",
    ("uint32_t", "dev_id"): "dev_id",
    ("uint32_t", "priority"): "priority",
    ("uint32_t *", "priority"): "priority_out",
    ("const pd_meter_spec *", "stormControlMeter_spec"): "meter_spec",
    ("uint32_t", "ttl"): "ttl",
    ("pd_entry_hdl", "entry_hdl"): "entry_hdl",
    ("pd_entry_hdl *", "entry_hdl"): "entry_hdl_out",
    ("uint32_t *", "count"): "count",
    ("bool", "read_from_hw"): "read_from_hw",
    ("char *", "action_name"): "action_name",
    ("p4_pd_orbisk_switch_action_spec_u *", "action_spec"): "action_spec_out",
    ("pd_default_action_record *", "action_spec"): "default_out",
    ("p4_pd_orbisk_switch_action_names_t *", "action_enum"): "action_enum",
    ("bool *", "is_default"): "is_default",
    ("pd_tbl_hdl", "tbl_hdl"): "tbl_hdl",
    ("void *", "plcmt_data"): "plcmt_data",
    ("const void *", "plcmt_data"): "plcmt_data",
    ("uint32_t *", "size"): "size",
    ("p4_pd_orbisk_switch_action_specs_t *", "action_spec"): "specs_out",
    ("pd_mbr_hdl", "mbr_hdl"): "mbr_hdl",
    ("pd_grp_hdl", "grp_hdl"): "grp_hdl",
    ("pd_mbr_hdl *", "mbr_hdl"): "mbr_hdl_out",
    ("pd_grp_hdl *", "grp_hdl"): "grp_hdl_out",
    ("bool *", "has_mbr"): "has_mbr",
    ("bool *", "has_grp"): "has_grp",
    ("uint8_t", "dev_id"): "dev_id",
    ("uint32_t", "max_grp_size"): "max_grp_size",
}


def call_member(ctype, name):
    """The Call member passed for one argument. A table's or an action's own
    record goes through In/Out, which take the function's pointer type."""
    if name == "match_spec":
        return "match_spec" if ctype.startswith("const ") else "match_spec_out"
    if name == "action_spec" and ctype.endswith("_action_spec_t *"):
        return "action_spec"
    member = CALL_MEMBERS.get((ctype, name))
    assert member, "the round trip has no Call member for %s %s" % (ctype, name)
    return member


def thunk(f):
    return "[](const Call &c) { return %s(%s); }" % (
        f.name, ", ".join("c." + call_member(t, n) for t, n in f.args))


def emit_table(index, enum_of, t):
    fns = families.table_functions(t)
    per_table = {f.family: f for f in fns if f.family in TABLE_FAMILIES}
    per_action = {}
    for f in fns:
        if f.family in ACTION_FAMILIES:
            per_action.setdefault(f.action.name, {})[f.family] = f
    o = ["// %s" % t.name, "const ActionRow kActions_%s[] = {" % t.name]
    for name, fs in per_action.items():
        o.append("    {.action = &kActions[%d],  // %s" % (enum_of[name], name))
        o += ["     .%s = %s," % (fam, thunk(fs[fam])) for fam in ACTION_FAMILIES if fam in fs]
        o.append("    },")
    o.append("};")
    row = ["    {.table = &kTables[%d],  // %s" % (index, t.name),
           "     .actions = kActions_%s," % t.name,
           "     .num_actions = %d," % len(per_action)]
    row += ["     .%s = %s," % (fam, thunk(per_table[fam])) for fam in TABLE_FAMILIES if fam in per_table]
    row.append("    },")
    return o, row


def emit_indirect(index, t):
    fns = {f.family: f for f in families.table_functions(t)}
    return ["    {.table = &kTables[%d],  // %s" % (index, t.name)] + [
        "     .%s = %s," % (fam, thunk(fns[fam])) for fam in INDIRECT_FAMILIES] + ["    },"]


def emit_profile(p, enum_of):
    fns = families.profile_functions(p)
    per = {f.family: f for f in fns if f.family in PROFILE_FAMILIES}
    adds = [f for f in fns if f.family == "add_member_with"]
    o = ["const MemberRow kMembers_%s[] = {" % p.name]
    o += ["    {&kActions[%d], %s},  // %s" % (enum_of[f.action.name], thunk(f), f.action.name)
          for f in adds]
    o.append("};")
    row = ["    {.profile = &kProfiles[%d],  // %s" % (p.index, p.name),
           "     .members = kMembers_%s," % p.name, "     .num_members = %d," % len(adds)]
    row += ["     .%s = %s," % (fam, thunk(per[fam])) for fam in PROFILE_FAMILIES]
    return o, row + ["    },"]


def emit(prog):
    o = ["// Generated from the catalogue. Do not edit.",
         '#include "roundtrip_support.h"', "",
         "namespace roundtrip {", "namespace {", "",
         "using orbisk::pd::kActions;", "using orbisk::pd::kProfiles;", "using orbisk::pd::kTables;", ""]
    rows = []
    enum_of = {a.name: a.enum for a in prog.actions}
    for i, t in enumerate(prog.tables):
        if t.indirect:
            continue
        actions, row = emit_table(i, enum_of, t)
        o += actions + [""]
        rows += row
    profile_rows = []
    for p in prog.profiles:
        members, row = emit_profile(p, enum_of)
        o += members + [""]
        profile_rows += row
    o += ["}  // namespace", "", "const TableRow kTableRows[] = {"] + rows + ["};"]
    o.append("const std::size_t kNumTableRows = %d;" % len(prog.direct_tables()))
    indirect = [(i, t) for i, t in enumerate(prog.tables) if t.indirect]
    o += ["", "const IndirectRow kIndirectRows[] = {"]
    for i, t in indirect:
        o += emit_indirect(i, t)
    o += ["};", "const std::size_t kNumIndirectRows = %d;" % len(indirect)]
    o += ["", "const ProfileRow kProfileRows[] = {"] + profile_rows + ["};"]
    o.append("const std::size_t kNumProfileRows = %d;" % len(prog.profiles))
    o += ["", "}  // namespace roundtrip", ""]
    return {"roundtrip_rows.cpp": "\n".join(o)}
