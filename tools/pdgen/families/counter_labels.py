"""Counter labels: the key record of each of the program's counting tables
(the tables flagged counter_labels) as a short run of words, from a record
or from an entry read back, and by table handle. The words are the
catalogue's `labels` of each table, written here once as item tables
(pd_counter_label_items.cpp) that one engine loop reads
(src/pd_orbisk/counter_labels.cpp)."""

from .base import DEV, ENTRY_HDL, SESS, Arg, Family

OUT = Arg("char *", "out", "out text")
SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "match_spec", "match spec")
DEV8 = Arg("uint8_t", "dev_id", "device id")

KINDS = {"exact": "Exact", "flag": "Flag", "number": "Number", "named": "Named", "address": "Address"}


def counting(t):
    return t.counter_labels


def counting_tables(prog):
    return [t for t in prog.tables if t.counter_labels]


def c_string(text):
    assert '"' not in text and "\\" not in text
    return '"%s"' % text


def item_row(t, i, item):
    options = []
    if item.decimal:
        options.append("kLabelDecimal")
    if item.value_selected:
        options.append("kLabelValueSelected")
    if item.kind == "named" and item.unselected_number:
        options.append("kLabelUnselectedNumber")
    names = ("kLabelNames_%s_%d" % (t.name, i)) if item.names else "nullptr"
    return "    {LabelKind::%s, %d, %d, %s, 0x%08xu, 0x%08xu, %s, %d, %s},  // %s" % (
        KINDS[item.kind], item.index, item.digits, " | ".join(options) or "0", item.select,
        item.full, c_string(item.text), len(item.names), names, item.field.name)


def files(prog):
    o = ["// Generated from the catalogue. Do not edit.", '#include "counter_labels.h"', "",
         '#include "orbisk_switch/pd.h"', "", "namespace orbisk::pd {", "namespace {", ""]
    tables = counting_tables(prog)
    for t in tables:
        o.append("static_assert(sizeof(%s) <= kLabelSpecRoom);" % t.spec_type)
        for i, item in enumerate(t.labels):
            if item.names:
                o.append("const LabelName kLabelNames_%s_%d[] = {%s};" % (
                    t.name, i, ", ".join("{0x%x, %s}" % (v, c_string(n)) for v, n in item.names)))
        o.append("const LabelItem kLabelItems_%s[] = {" % t.name)
        o += [item_row(t, i, item) for i, item in enumerate(t.labels)]
        o += ["};", ""]
    o += ["}  // namespace", "", "const LabelTable kLabelTables[] = {"]
    o += ["    {&kTables[%d], %d, kLabelItems_%s}," % (t.index, len(t.labels), t.name) for t in tables]
    o += ["};", "const std::size_t kNumLabelTables = %d;" % len(tables), ""]
    _slot.clear()
    _slot.update({t.name: i for i, t in enumerate(tables)})
    o += ["const uint8_t kLabelsOfTable[] = {%s};" % ", ".join(
        str(_slot[t.name]) if t.name in _slot else "kNoLabels" for t in prog.tables), "",
        "}  // namespace orbisk::pd", ""]
    return {"pd_counter_label_items.cpp": "\n".join(o)}


# The place of each counting table in kLabelTables: set by files(), which
# the emitter calls before it asks for any function's body.
_slot = {}


def body(call):
    return lambda f: ["  return %s;" % call.format(i=_slot[f.table.name])]


# One-line functions: one generated source for all areas.
BY_AREA = False

INCLUDES = ["export.h", "orbisk_switch/pd.h", "counter_labels.h"]

FAMILIES = [
    Family("match_spec_stringify_for_counter", "{p}{t}_match_spec_stringify_for_counter", [SPEC, OUT],
           "writes the counting table's label of the key record and a NUL; its length.",
           body("stringify_for_counter(kLabelTables[{i}], match_spec, out)"), result="int",
           when=counting, place=(130, 0)),
    Family("stringify_counter_match_spec", "{p}{t}_stringify_counter_match_spec",
           [SESS, DEV8, ENTRY_HDL, OUT],
           "reads the entry from hardware and writes its key's label; 0 if the read fails.",
           body("stringify_counter_entry(kLabelTables[{i}], __func__, sess_hdl, dev_id, entry_hdl, out)"),
           result="int", when=counting, place=(130, 1)),
    Family("stringify_counter_matchspec", "{p}stringify_counter_matchspec",
           [SESS, DEV8, Arg("pd_tbl_hdl", "tbl_hdl", "table handle"), ENTRY_HDL, OUT],
           "The label of an entry of the counting table with this handle; 0 for any other.",
           result="int", each="program"),
]
