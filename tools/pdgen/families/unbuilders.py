"""Unbuilders: driver records read back turned into host records (key, mask,
action data). Exported for agents that read records themselves."""

from .base import Arg, Family, keyed

KEY = Arg("const pd_match_record *", "key", "key record")
OUT_MS = Arg(lambda t, a: "%s *" % t.spec_type, "match_spec", "out match spec")
ACT = Arg("const pd_action_record *", "act", "action record")
RESOURCES = Arg("const pd_resource_index *", "resources", "resources",
                when=lambda t, a: a.slot_only_param)
NUM_RESOURCES = Arg("uint32_t", "num_resources", "count", when=lambda t, a: a.slot_only_param)
OUT_SPEC = Arg(lambda t, a: "%s *" % a.spec_type, "action_spec", "out action spec")


def unbuild_key_body(f):
    return ["  unbuild_key(kTables[%d], key, match_spec);" % f.table.index]


def unbuild_mask_body(f):
    return ["  unbuild_mask(kTables[%d], key, match_spec);" % f.table.index]


def unbuild_action_body(f):
    a = f.action
    res = "resources, num_resources" if a.slot_only_param else "nullptr, 0"
    return ["  unbuild_action_spec(kActions[%d], act, %s, action_spec);" % (a.enum, res)]


def action_preamble(a):
    """A read offers the same room for every action's data."""
    if not a.data_bytes:
        return []
    return ["static_assert(%d <= kReadActionDataBytes, \"data of %s fits the read room\");" % (a.data_bytes, a.name)]


# One-line functions: one generated source for all areas.
BY_AREA = False

# What its generated sources include.
INCLUDES = ["export.h", "reads.h"]

FAMILIES = [
    Family("unbuild_key", "unbuild_key_{t}", [KEY, OUT_MS], "a key record's values into a match spec.",
           unbuild_key_body, result="void", when=keyed, place=(90, 0)),
    Family("unbuild_mask", "unbuild_mask_{t}", [KEY, OUT_MS],
           "its masks or prefix length into the same match spec.", unbuild_mask_body, result="void",
           when=lambda t: t.ternary or t.prefix, place=(90, 1)),
    Family("unbuild_action_spec", "unbuild_action_spec_{a}", [ACT, RESOURCES, NUM_RESOURCES, OUT_SPEC],
           "an action record's data into an action spec.", unbuild_action_body, result="void",
           each="action", when=lambda a: a.has_spec),
]
