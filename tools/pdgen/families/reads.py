"""Reads: an entry back in host form, key, priority and action, from its
handle."""

from .base import DEV, ENTRY_HDL, READ_FROM_HW, SESS, Arg, Family, direct
from .packing import hx

OUT_MATCH_SPEC = Arg(lambda t, a: "%s *" % t.spec_type, "match_spec", "out match spec",
                     when=lambda t, a: t.keyed)
OUT_PRIORITY = Arg("uint32_t *", "priority", "out priority", when=lambda t, a: t.ternary)
ACTION_NAME = Arg("char *", "action_name", "out action name or NULL")
ANY_ACTION_SPEC = Arg("p4_pd_orbisk_switch_action_spec_u *", "action_spec", "out action spec")
ACTION_ENUM = Arg("p4_pd_orbisk_switch_action_names_t *", "action_enum", "out action enum or NULL")
IS_DEFAULT = Arg("bool *", "is_default", "out is-default", when=lambda t, a: t.keyed)


def read_descriptor(t):
    acts = t.profile.actions if t.indirect else t.actions
    o = ["const ActionRead kActions_%s[] = {" % t.name]
    for a in acts:
        fn = "unbuild_any_%s" % a.name if a.action.has_spec else "nullptr"
        o.append("    {%s, %d, %s}," % (hx(a.handle), a.action.enum, fn))
    o.append("};")
    spec = ("sizeof(%s)" % t.spec_type) if t.keyed else "0"
    uk = ("[](const pd_match_record *k, void *m) { unbuild_key_%s(k, static_cast<%s *>(m)); }"
          % (t.name, t.spec_type)) if t.keyed else "nullptr"
    um = ("[](const pd_match_record *k, void *m) { unbuild_mask_%s(k, static_cast<%s *>(m)); }"
          % (t.name, t.spec_type)) if (t.ternary or t.prefix) else "nullptr"
    o.append("static_assert(%d <= kMaxKeyBytes, \"key of %s fits the read buffers\");" % (t.key_bytes, t.name))
    o.append("const TableRead kRead_%s = {%s, %d, %d, kActions_%s, %d, %s," % (
        t.name, hx(t.handle), t.key_bytes, t.key_bits, t.name, len(acts), spec))
    o.append("    %s," % uk)
    o.append("    %s};" % um)
    return o


def get_entry_body(f):
    t = f.table
    if t.keyed:
        prio = "priority" if t.ternary else "nullptr"
        return ["  return read_entry(kRead_%s, __func__, sess_hdl, dev_id, entry_hdl, read_from_hw," % t.name,
                "                    match_spec, %s, action_name, action_spec, action_enum, is_default);" % prio]
    return ["  return read_entry(kRead_%s, __func__, sess_hdl, dev_id, entry_hdl, read_from_hw," % t.name,
            "                    nullptr, nullptr, action_name, action_spec, action_enum, nullptr);"]


FAMILIES = [
    Family("get_entry", "{p}{t}_get_entry",
           [SESS, DEV, ENTRY_HDL, READ_FROM_HW, OUT_MATCH_SPEC, OUT_PRIORITY, ACTION_NAME,
            ANY_ACTION_SPEC, ACTION_ENUM, IS_DEFAULT],
           "reads an entry back across all pipes. Status 15 when the driver returns a record "
           "the table cannot hold.", get_entry_body, when=direct, place=(40, 0)),
]
