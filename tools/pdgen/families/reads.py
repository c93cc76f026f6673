"""Reads: an entry back in host form, key, priority and action, from its
handle."""

from .base import DEV, ENTRY_HDL, READ_FROM_HW, SESS, Arg, Family, direct

OUT_MATCH_SPEC = Arg(lambda t, a: "%s *" % t.spec_type, "match_spec", "out match spec",
                     when=lambda t, a: t.keyed)
OUT_PRIORITY = Arg("uint32_t *", "priority", "out priority", when=lambda t, a: t.ternary)
ACTION_NAME = Arg("char *", "action_name", "out action name or NULL")
ANY_ACTION_SPEC = Arg("p4_pd_orbisk_switch_action_spec_u *", "action_spec", "out action spec")
ACTION_ENUM = Arg("p4_pd_orbisk_switch_action_names_t *", "action_enum", "out action enum or NULL")
IS_DEFAULT = Arg("bool *", "is_default", "out is-default", when=lambda t, a: t.keyed)


def table_preamble(t):
    """The key buffers of a read are sized for the longest key."""
    if not t.keyed:
        return []
    return ["static_assert(%d <= kMaxKeyBytes, \"key of %s fits the read buffers\");" % (t.key_bytes, t.name)]


def get_entry_body(f):
    t = f.table
    out = "match_spec, %s, action_name, action_spec, action_enum, is_default" % (
        "priority" if t.ternary else "nullptr") if t.keyed else \
        "nullptr, nullptr, action_name, action_spec, action_enum, nullptr"
    return ["  return read_entry(kTables[%d], __func__, sess_hdl, dev_id, entry_hdl, read_from_hw," % t.index,
            "                    {%s});" % out]


# One-line functions: one generated source for all areas.
BY_AREA = False

# What its generated sources include.
INCLUDES = ["export.h", "pd_limits.h", "reads.h"]

FAMILIES = [
    Family("get_entry", "{p}{t}_get_entry",
           [SESS, DEV, ENTRY_HDL, READ_FROM_HW, OUT_MATCH_SPEC, OUT_PRIORITY, ACTION_NAME,
            ANY_ACTION_SPEC, ACTION_ENUM, IS_DEFAULT],
           "reads an entry back across all pipes. Status 15 when the driver returns a record "
           "the table cannot hold.", get_entry_body, when=direct, place=(40, 0)),
]
