"""Value text: what one key, action, entry or placement record holds, as a
literal of the Python language that pairs number for number with the schema
text. Every function is one line naming its descriptor; the grammar is the
engine's (src/pd_orbisk/value_text.cpp), written once over the key elements
and parameters. The dispatchers by handle are written there too."""

from .base import ENTRY_HDL, MATCH_SPEC, READ_FROM_HW, SESS, Arg, Family, keyed

OUT = Arg("char *", "out", "out text")
# Device ids of the text layer are 8 bits wide.
DEV8 = Arg("uint8_t", "dev_id", "device id")
TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle")
PROFILE_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "action data table handle")
PLCMT = Arg("const void *", "plcmt_data", "placement data")
ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.spec_type, "action_spec", "action spec",
                  when=lambda t, a: a.has_spec)


def table_preamble(t):
    """A table's match spec fits the room the engine keeps for any."""
    if not t.keyed:
        return []
    return ["static_assert(sizeof(%s) <= kMatchSpecRoom, \"match spec of %s fits\");" % (t.spec_type, t.name)]


def element_digits(t):
    """The numbers of a table's key text, each with its "0x" and comma: 35
    characters for a 128-bit element, else its fixed digits."""
    out = []
    for f in t.fields:
        n = 35 if f.bits == 128 else 3 + hex_digits(f.bits)
        out.append(n)
        if f.match == "ternary":
            out.append(n)
        elif f.match == "lpm":
            out.append(3 + 4)
    return out


def hex_digits(bits):
    d = (bits + 3) // 4
    return 8 if d == 7 else d


def action_text_length(a):
    return len("('%s',(" % a.name) + sum(3 + hex_digits(p.bits) for p in a.params) + len(")),")


def longest_value(prog):
    """The longest entry text: "((", key text, action part, "),(", the
    longest priority and ",True))"."""
    selection = len("('setMbrHdl',(0x") + 8 + len(",))")
    longest = 0
    for t in prog.tables:
        key = 2 + sum(element_digits(t)) + 2 if t.keyed else 3
        act = selection if t.indirect else max(action_text_length(a.action) for a in t.actions)
        longest = max(longest, 2 + key + act + 3 + len("-2147483648") + len(",True))"))
    return longest


def header_lines(prog):
    return ["/* Room for any value text a <t>_value, <t>_match_spec_value, <a>_value or",
            " * entry_value writes, its final zero included. */",
            "#define P4_PD_ORBISK_SWITCH_VALUE_MAX %d" % (longest_value(prog) + 1), ""]


def action_body(f):
    spec = "action_spec" if f.action.has_spec else "nullptr"
    return ["  return action_value(kActions[%d], %s, out);" % (f.action.enum, spec)]


# One-line functions: one generated source for all areas.
BY_AREA = False

INCLUDES = ["export.h", "value_text.h"]

FAMILIES = [
    Family("match_spec_value", "{p}{t}_match_spec_value", [MATCH_SPEC, OUT],
           "writes the key as value text, \"( \" each number \"),\", and a NUL; its length.",
           lambda f: ["  return key_value(kTables[%d], match_spec, out);" % f.table.index],
           result="int", when=keyed, place=(120, 0)),
    Family("table_value", "{p}{t}_value", [SESS, DEV8, ENTRY_HDL, READ_FROM_HW, OUT],
           "reads an entry and writes it as value text: ((key, action), (priority, True)); its "
           "length, or 0 and out untouched when the read fails.",
           lambda f: ["  return entry_value(kTables[%d], sess_hdl, dev_id, entry_hdl, read_from_hw, out);"
                      % f.table.index], result="int", place=(120, 1)),
    Family("table_plcmt_data_value", "{p}{t}_plcmt_data_value", [PLCMT, OUT],
           "decodes a placement record and writes it as value text: (key, action), no priority; "
           "its length, or 0 and out untouched when decoding fails.",
           lambda f: ["  return placement_value(kTables[%d], plcmt_data, out);" % f.table.index],
           result="int", place=(120, 2)),
    Family("profile_plcmt_data_value", "{p}{r}_plcmt_data_value", [PLCMT, OUT],
           "decodes a member's placement record and writes its action as value text; its "
           "length, or 0 and out untouched when decoding fails.",
           lambda f: ["  return member_placement_value(kProfiles[%d], plcmt_data, out);" % f.profile.index],
           result="int", each="profile", when=lambda r: True, place=(120, 0)),
    Family("action_value", "{p}{a}_value", [ACTION_SPEC, OUT],
           "writes the action and its parameters as value text, ('<a>',(numbers)),; its length.",
           action_body, result="int", each="action", when=lambda a: True),
    Family("entry_value", "{p}entry_value", [SESS, DEV8, TBL_HDL, ENTRY_HDL, READ_FROM_HW, OUT],
           "<t>_value of the table with this handle; 0, out untouched, for any other.",
           result="int", each="program"),
    Family("plcmt_data_value", "{p}plcmt_data_value", [TBL_HDL, PLCMT, OUT],
           "<t>_plcmt_data_value of the table with this handle; 0, out untouched, for any other.",
           result="int", each="program"),
    Family("adt_plcmt_data_value", "{p}adt_plcmt_data_value", [PROFILE_HDL, PLCMT, OUT],
           "<r>_plcmt_data_value of the profile with this action data table handle; 0, out "
           "untouched, for any other.", result="int", each="program"),
]
