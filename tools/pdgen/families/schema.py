"""Schema text: every table, action and action profile describes itself as a
literal of the Python language, and every key field tells its width.

The texts are facts of the compiled program, written here once into one
constant blob (pd_schema_text.cpp): each key tuple and each action tuple
stands there once, NUL-terminated. A pointer-returning function is the
address of its text; a table's or a profile's text is written by the engine
(src/pd/schema.cpp) from pieces: the table's name, its key tuple and its
action tuples, so no byte of an action tuple is stored twice."""

from .base import Arg, Family, keyed

OUT = Arg("char *", "out", "out text")
TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table or action data table handle")

# The whole text after the key of a table reached through a selector: its
# entries name a member or a group, whatever the profile's actions are.
SELECTOR_TAIL = ("( ('setMbrHdl',(('mbrHdl',None,32,None),)),"
                 "( 'setGrpHdl', ( ( 'grpHdl', None, 32, None ), ) ) ))")


def fmt(format):
    return "'%s'" % format if format else "None"


def key_elements(t):
    """The key elements of a table: each field, then its mask or prefix
    length companion. A field's mask is the catalogue's static mask, or all
    its bits; a prefix length is always a 16-bit number."""
    for f in t.fields:
        mask = int(f.static_mask, 16) if f.static_mask else (1 << f.bits) - 1
        yield (f.schema, f.name, f.bits, mask, fmt(f.format))
        if f.match == "ternary":
            yield (f.schema + "Mask", f.name + "_mask", f.bits, mask, "None")
        elif f.match == "lpm":
            yield (f.schema + "PrefixLength", f.name + "_prefix_length", 16, 0xFFFF, "None")


def key_tuple(t):
    return "(" + "".join("( '%s','%s',%d,0x%x,%s,None,None)," % e for e in key_elements(t)) + ")"


def action_tuple(a):
    return "( ('%s'),(" % a.name + "".join(
        "('%s',%s,%d,None)," % (p.name, fmt(p.format), p.bits) for p in a.params) + "))"


def byte_order(actions):
    """Enum values of the actions in ascending byte order of their names."""
    return [a.action.enum for a in sorted(actions, key=lambda a: a.name.encode())]


class Blob:
    """The texts of the program, each once, and where each stands."""

    def __init__(self, prog):
        self.text = []
        self.size = 0
        self.at = {}
        self.action = [self.add(action_tuple(a)) for a in prog.actions]
        self.key = {t.name: self.add(key_tuple(t)) for t in prog.keyed_tables()}

    def add(self, text):
        if text not in self.at:
            assert "\\" not in text and '"' not in text
            self.at[text] = (self.size, len(text))
            self.text.append(text)
            self.size += len(text) + 1
        return self.at[text]


# The blob of the program being generated: made by files(), which the
# emitter calls before it asks for any function's body.
_blob = None


def blob():
    assert _blob is not None, "files() makes the blob before any body is asked for"
    return _blob


def table_text(t):
    """A table's whole text, as the engine writes it: for the longest."""
    head = "( ('%s','mat',(%s,))," % (t.name, "True" if t.indirect else "False")
    key = key_tuple(t) if t.keyed else "()"
    if t.indirect:
        return head + key + "," + SELECTOR_TAIL
    return head + key + "," + actions_text(t.actions) + ")"


def actions_text(actions):
    by_name = sorted(actions, key=lambda a: a.name.encode())
    return "(" + "".join(action_tuple(a.action) + "," for a in by_name) + ")"


def longest_text(prog):
    """The longest text a table or profile function writes, without its NUL."""
    return max([len(table_text(t)) for t in prog.tables] +
               [len(actions_text(r.actions)) for r in prog.profiles])


def header_lines(prog):
    return ["/* Room for any text a <t>_schema, <r>_schema or cli_schema writes, its",
            " * final zero included. */",
            "#define P4_PD_ORBISK_SWITCH_SCHEMA_MAX %d" % (longest_text(prog) + 1), ""]


def files(prog):
    """The blob, the action tuples by enum, and what each table and profile
    text is made of."""
    global _blob
    b = _blob = Blob(prog)
    o = ["// Generated from the catalogue. Do not edit.", '#include "schema.h"', "",
         "namespace orbisk::pd {", "",
         "// Every key tuple and action tuple of the program, once, each ended by a NUL.",
         "const char kSchemaText[] ="]
    o += ['    "%s\\0"' % s for s in b.text]
    o[-1] += ";"
    o += ["static_assert(sizeof kSchemaText == %d + 1);" % b.size, "",
          "// The text after the key of every table reached through a selector.",
          'const char kSelectorTail[] = "%s";' % SELECTOR_TAIL,
          "static_assert(sizeof kSelectorTail == %d + 1);" % len(SELECTOR_TAIL), "",
          "const SchemaText kSchemaActions[] = {"]
    o += ["    {%d, %d},  // %s" % (off, n, a.name) for a, (off, n) in zip(prog.actions, b.action)]
    o += ["};", ""]
    order = []

    def pieces(key, actions):
        first = len(order)
        order.extend(byte_order(actions))
        return "    {{%d, %d}, %d, %d}," % (key[0], key[1], first, len(order) - first)

    rows = ["const SchemaPieces kSchemaTables[] = {"]
    for t in prog.tables:
        key = b.key[t.name] if t.keyed else (0, 0)
        rows.append(pieces(key, [] if t.indirect else t.actions) + "  // " + t.name)
    rows += ["};", "", "const SchemaPieces kSchemaProfiles[] = {"]
    rows += [pieces((0, 0), r.actions) + "  // " + r.name for r in prog.profiles]
    rows += ["};", ""]
    o += ["const uint16_t kSchemaActionOrder[] = {%s};" % ", ".join(map(str, order)), ""] + rows
    o += ["}  // namespace orbisk::pd", ""]
    return {"pd_schema_text.cpp": "\n".join(o)}


def source_head(prog):
    """The bodies the width and priority functions stand for: one for each
    number they answer."""
    values = {0, 1} | {f.bits for t in prog.tables for f in t.fields}
    return ['extern "C" int %s(void) { return %d; }' % (constant(v), v) for v in sorted(values)] + [""]


def constant(v):
    return "orbisk_pd_constant_%d" % v


def width_name(f):
    """A width function is named by the field, without a trailing _valid."""
    return f.name[:-len("_valid")] if f.name.endswith("_valid") else f.name


def has_mask_field(t):
    return any(f.match == "ternary" for f in t.fields)


def key_text_body(f):
    return ["  return kSchemaText + %d;" % blob().key[f.table.name][0]]


def action_text_body(f):
    return ["  return kSchemaText + %d;" % blob().action[f.action.enum][0]]


# One-line functions and aliases: one generated source for all areas.
BY_AREA = False

INCLUDES = ["export.h", "schema.h"]

FAMILIES = [
    Family("match_spec_schema", "{p}{t}_match_spec_schema", [],
           "the key tuple: a constant NUL-terminated text.", key_text_body, result="const char *",
           when=keyed, place=(110, 0)),
    Family("table_schema", "{p}{t}_schema", [OUT],
           "writes the table's schema text and a NUL (P4_PD_ORBISK_SWITCH_SCHEMA_MAX bytes suffice); its length.",
           lambda f: ["  return write_table_schema(%d, out);" % f.table.index], result="int",
           place=(110, 1)),
    Family("field_width", "{p}{t}_{f}_width", [], "the key field's width in bits.",
           result="int", each="field", alias=lambda f: constant(f.field.bits),
           field_name=width_name, place=(110, 2)),
    Family("supports_entry_priority", "{p}{t}_supports_entry_priority", [],
           "1 when the table's key has a mask field, else 0.", result="int",
           alias=lambda f: constant(int(has_mask_field(f.table))), place=(110, 3)),
    Family("action_schema", "{p}{a}_schema", [], "the action tuple: a constant NUL-terminated text.",
           action_text_body, result="const char *", each="action", when=lambda a: True),
    Family("profile_schema", "{p}{r}_schema", [OUT],
           "writes the profile's action tuples as schema text and a NUL; its length.",
           lambda f: ["  return write_profile_schema(%d, out);" % f.profile.index], result="int",
           each="profile", when=lambda r: True),
    Family("cli_schema", "{p}cli_schema", [TBL_HDL, OUT],
           "Schema text of the table or profile with this handle; \"()\" and 2 for any other.",
           result="int", each="program"),
]
