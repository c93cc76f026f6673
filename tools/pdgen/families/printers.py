"""Printers: a key record, an action's parameters and decoded placement data
written one field a line to a file descriptor, and the address formatters
that render an address with its mask or prefix into a buffer (the counter
labels' addresses). Every printer is one line naming its descriptor; the
loops are the engine's (src/pd_orbisk/printers.cpp)."""

from .base import Arg, Family, keyed

FD = Arg("int", "fd", "file descriptor")
INDENT = Arg("int", "indent", "indent")
SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "match_spec", "match spec")
PLCMT = Arg("const void *", "plcmt_data", "placement data")
TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle")
ADT_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "action data table handle")
ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.spec_type, "action_spec", "action spec")

OUT = Arg("char *", "out", "out text")
LABEL = Arg("const char *", "label", "label")
V4 = Arg("uint32_t", "addr", "address")
V6 = Arg("const uint8_t *", "addr", "16-byte address")
PREFIX_LENGTH = Arg("uint16_t", "prefix_length", "prefix length")


def formatter(form, args, doc):
    return Family("print_" + form, "{p}_print_" + form, [OUT, LABEL] + args, doc, result="int",
                  each="program")


def table_preamble(t):
    """A placement print decodes a key into room sized for the longest."""
    if not t.keyed:
        return []
    return ["static_assert(sizeof(%s) <= kPrintSpecRoom);" % t.spec_type]


# One-line functions: one generated source for all areas.
BY_AREA = False

INCLUDES = ["export.h", "orbisk_switch/pd.h", "printers.h"]

FAMILIES = [
    Family("match_spec_print", "{p}{t}_match_spec_print", [FD, INDENT, SPEC],
           "writes the key record to fd, one line a key element after a header line.",
           lambda f: ["  print_match_spec(kTables[%d], fd, indent, match_spec);" % f.table.index],
           result="void", when=keyed, place=(120, 0)),
    Family("action_print", "{p}{a}_print", [FD, INDENT, ACTION_SPEC],
           "writes the action's parameters to fd, one line each.",
           lambda f: ["  print_action(kActions[%d], fd, indent, action_spec);" % f.action.enum],
           result="void", each="action", when=lambda a: a.has_spec),
    Family("plcmt_data_print", "{p}{t}_plcmt_data_print", [FD, INDENT, PLCMT],
           "decodes the placement data and writes its key (none for a default entry) and action "
           "to fd; 0, or the decoder's status after a line saying so.",
           lambda f: ["  return print_entry_placement(kTables[%d], __func__, fd, indent, plcmt_data);"
                      % f.table.index], place=(120, 1)),
    Family("adt_plcmt_data_print", "{p}{r}_adt_plcmt_data_print", [FD, INDENT, PLCMT],
           "decodes a member's placement data and writes its action to fd; 0, or the "
           "decoder's status after a line saying so.",
           lambda f: ["  return print_member_placement(kProfiles[%d], __func__, fd, indent, plcmt_data);"
                      % f.profile.index], each="profile", when=lambda r: True, place=(120, 0)),
    Family("plcmt_data_print_by_handle", "{p}plcmt_data_print", [FD, INDENT, TBL_HDL, PLCMT],
           "The placement print of the table with this handle; for any other, a line saying so "
           "and that write's result.", result="int", each="program"),
    Family("adt_plcmt_data_print_by_handle", "{p}adt_plcmt_data_print", [FD, INDENT, ADT_HDL, PLCMT],
           "The placement print of the profile with this action data table handle; for any "
           "other, a line saying so and that write's result.", result="int", each="program"),
    formatter("v4addr_exact", [V4], "\"<label> a.b.c.d \"; its length."),
    formatter("v4addr_lpm", [V4, PREFIX_LENGTH], "\"<label> a.b.c.d/<prefix> \"; its length."),
    formatter("v4addr_ternary", [V4, Arg("uint32_t", "mask", "mask")],
              "\"<label> a.b.c.d/<leading ones of mask> \"; 0 and nothing written for mask 0."),
    formatter("v6addr_exact", [V6], "\"<label> <address>\", no blank after it; its length."),
    formatter("v6addr_lpm", [V6, PREFIX_LENGTH], "\"<label> <address>/<prefix> \"; its length."),
    formatter("v6addr_ternary", [V6, Arg("const uint8_t *", "mask", "16-byte mask")],
              "\"<label> <address>/<mask> \"; 0 and nothing written for an all-zero mask."),
    formatter("mac_exact", [Arg("uint32_t", "oui", "OUI half"), Arg("uint32_t", "station", "station half")],
              "\"<label> xxxx.xxxx.xxxx \" of the two 24-bit halves; its length."),
    formatter("mac_ternary", [Arg("uint32_t", "oui", "OUI half"), Arg("uint32_t", "oui_mask", "OUI mask"),
                              Arg("uint32_t", "station", "station half"),
                              Arg("uint32_t", "station_mask", "station mask")],
              "the exact form for an all-ones mask, \"<label> <mac>/<mask> \" for a partial one, "
              "0 and nothing written for none."),
]
