"""The exported functions, family by family, as (name, result, arguments).
The header, the library sources and the export list are all written from
this one list, so a prototype and its definition cannot drift apart."""

from catalogue import PREFIX

SESS = ("pd_sess_hdl", "sess_hdl")
TGT = ("pd_dev_target", "dev_tgt")
DEV = ("uint32_t", "dev_id")
PRIO = ("uint32_t", "priority")
METER = ("const pd_meter_spec *", "stormControlMeter_spec")


class Fn:
    def __init__(self, name, result, args, family, table=None, action=None):
        self.name = name
        self.result = result
        self.args = args
        self.family = family
        self.table = table
        self.action = action

    def proto(self, indent="    "):
        if not self.args:
            return "%s %s(void)" % (self.result, self.name)
        parts = ["%s%s%s" % (t, "" if t.endswith("*") else " ", n) for t, n in self.args]
        return "%s %s(%s)" % (self.result, self.name, (",\n" + indent).join(
            [parts[0]] + parts[1:]) if len(parts) > 1 else parts[0])


def spec_arg(action):
    return [("const %s *" % action.spec_type, "action_spec")] if action.has_spec else []


def meter_arg(table):
    return [METER] if table.resource == "stormControlMeter" else []


def ms_arg(t, const=True):
    return ("%s%s *" % ("const " if const else "", t.spec_type), "match_spec")


def prio_arg(t):
    return [PRIO] if t.ternary else []


def ttl_arg(t, a):
    return [("uint32_t", "ttl")] if t.ttl_on_add and a.entry else []


def table_functions(t):
    p = PREFIX + t.name
    out = []
    if not t.indirect:
        for a in t.actions:
            if not a.entry:
                continue
            out.append(Fn("%s_table_add_with_%s" % (p, a.name), "pd_status",
                          [SESS, TGT, ms_arg(t)] + prio_arg(t) + spec_arg(a.action) + meter_arg(t)
                          + ttl_arg(t, a) + [("pd_entry_hdl *", "entry_hdl")],
                          "table_add_with", t, a))
        for a in t.actions:
            if not a.entry:
                continue
            out.append(Fn("%s_table_modify_with_%s" % (p, a.name), "pd_status",
                          [SESS, DEV, ("pd_entry_hdl", "entry_hdl")] + spec_arg(a.action) + meter_arg(t),
                          "table_modify_with", t, a))
            out.append(Fn("%s_table_modify_with_%s_by_match_spec" % (p, a.name), "pd_status",
                          [SESS, TGT, ms_arg(t)] + prio_arg(t) + spec_arg(a.action) + meter_arg(t),
                          "table_modify_with_by_match_spec", t, a))
    if t.keyed:
        out.append(Fn(p + "_table_delete", "pd_status", [SESS, DEV, ("pd_entry_hdl", "entry_hdl")],
                      "table_delete", t))
        out.append(Fn(p + "_table_delete_by_match_spec", "pd_status",
                      [SESS, TGT, ms_arg(t)] + prio_arg(t), "table_delete_by_match_spec", t))
        out.append(Fn(p + "_match_spec_to_entry_hdl", "pd_status",
                      [SESS, TGT, ms_arg(t)] + prio_arg(t) + [("pd_entry_hdl *", "entry_hdl")],
                      "match_spec_to_entry_hdl", t))
    if not t.indirect:
        common = [("pd_entry_hdl", "entry_hdl"), ("bool", "read_from_hw")]
        outs = [("char *", "action_name"), ("p4_pd_orbisk_switch_action_spec_u *", "action_spec"),
                ("p4_pd_orbisk_switch_action_names_t *", "action_enum")]
        if t.keyed:
            args = [SESS, DEV] + common + [ms_arg(t, const=False)]
            if t.ternary:
                args.append(("uint32_t *", "priority"))
            args += outs + [("bool *", "is_default")]
        else:
            args = [SESS, DEV] + common + outs
        out.append(Fn(p + "_get_entry", "pd_status", args, "get_entry", t))
    out.append(Fn(p + "_get_entry_count", "pd_status", [SESS, TGT, ("uint32_t *", "count")],
                  "get_entry_count", t))
    out.append(Fn(p + "_get_first_entry_handle", "pd_status",
                  [SESS, TGT, ("pd_entry_hdl *", "entry_hdl")], "get_first_entry_handle", t))
    out.append(Fn(p + "_get_next_entry_handles", "pd_status",
                  [SESS, TGT, ("pd_entry_hdl", "entry_hdl"), ("uint32_t", "n"),
                   ("pd_entry_hdl *", "next_entry_hdls")], "get_next_entry_handles", t))
    if not t.indirect:
        for a in t.actions:
            if not a.default:
                continue
            out.append(Fn("%s_set_default_action_%s" % (p, a.name), "pd_status",
                          [SESS, TGT] + spec_arg(a.action) + meter_arg(t) + [("pd_entry_hdl *", "entry_hdl")],
                          "set_default_action", t, a))
    out.append(Fn(p + "_table_get_default_entry", "pd_status",
                  [SESS, TGT, ("bool", "read_from_hw"), ("pd_default_action_record *", "action_spec")],
                  "table_get_default_entry", t))
    out.append(Fn(p + "_table_get_default_entry_handle", "pd_status",
                  [SESS, TGT, ("pd_entry_hdl *", "entry_hdl")], "table_get_default_entry_handle", t))
    out.append(Fn(p + "_table_reset_default_entry", "pd_status", [SESS, TGT],
                  "table_reset_default_entry", t))
    if t.keyed:
        out.append(Fn("unbuild_key_" + t.name, "void",
                      [("const pd_match_record *", "key"), ms_arg(t, const=False)], "unbuild_key", t))
        if t.ternary or t.prefix:
            out.append(Fn("unbuild_mask_" + t.name, "void",
                          [("const pd_match_record *", "key"), ms_arg(t, const=False)], "unbuild_mask", t))
    return out


def unbuild_action_fn(action):
    args = [("const pd_action_record *", "act")]
    if action.slot_only_param:
        args += [("const pd_resource_index *", "resources"), ("uint32_t", "num_resources")]
    args.append(("%s *" % action.spec_type, "action_spec"))
    return Fn("unbuild_action_spec_" + action.name, "void", args, "unbuild_action_spec", action=action)


def frame_functions():
    p = PREFIX
    return [
        Fn(p + "init", "void", [], "init"),
        Fn(p + "cleanup", "pd_status", [], "cleanup"),
        Fn(p + "dev_remove", "pd_status", [("uint32_t", "device_id")], "dev_remove"),
        Fn(p + "dev_log", "pd_status", [("uint32_t", "device_id"), ("void *", "cjson_object")], "dev_log"),
        Fn(p + "dev_restore", "pd_status", [("uint32_t", "device_id"), ("void *", "cjson_object")],
           "dev_restore"),
        Fn(p + "device_state_cleanup", "void", [], "device_state_cleanup"),
        Fn(p + "action_enum_to_string", "const char *", [("uint32_t", "action")], "action_enum_to_string"),
        Fn(p + "action_string_to_enum", "p4_pd_orbisk_switch_action_names_t",
           [("const char *", "name")], "action_string_to_enum"),
    ]


EXPORTED_OBJECTS = ["bf_drv_hdl", PREFIX + "action_name_strings"]


def all_functions(prog):
    fns = frame_functions()
    for t in prog.tables:
        fns += table_functions(t)
    for a in prog.actions:
        if a.has_spec:
            fns.append(unbuild_action_fn(a))
    return fns
