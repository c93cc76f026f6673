"""Comparison with hardware: two keys or two action specs field by field
under the schema's masks, and a placement record against the entry the chip
holds; 1 when equal, else 0 and the first difference in words, software's
(pd) value first. One line per function over the engine
(src/pd_orbisk/compare.cpp)."""

from .base import ENTRY_HDL, SESS, Arg, Family, keyed
from .value_text import DEV8, PLCMT

ERROR = Arg("char *", "error", "out message")
PD_MATCH_SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "pd_match_spec", "pd match spec")
HW_MATCH_SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "hw_match_spec", "hw match spec")
PD_ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.spec_type, "pd_action_spec", "pd action spec")
IGNORED_TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle (ignored)")
TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle")
PLCMT_SIZE = Arg("uint32_t", "plcmt_data_size", "placement data size (ignored)")
HW_ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.spec_type, "hw_action_spec", "hw action spec")


# One-line functions: one generated source for all areas.
BY_AREA = False

INCLUDES = ["export.h", "value_text.h"]

FAMILIES = [
    Family("match_specs_are_equal", "{p}{t}_match_specs_are_equal",
           [PD_MATCH_SPEC, HW_MATCH_SPEC, ERROR],
           "1 when every key element agrees under the schema's mask; else 0 and \"mspec <field> "
           "differs ...\" for the first that does not.",
           lambda f: ["  return keys_equal(kTables[%d], pd_match_spec, hw_match_spec, error);"
                      % f.table.index], result="int", when=keyed, place=(130, 0)),
    Family("action_specs_are_equal", "{p}{a}_action_specs_are_equal",
           [PD_ACTION_SPEC, HW_ACTION_SPEC, ERROR],
           "1 when every parameter agrees in its width; else 0 and \"aspec action_<parameter> "
           "differs ...\" for the first that does not.",
           lambda f: ["  return action_specs_equal(kActions[%d], pd_action_spec, hw_action_spec, error);"
                      % f.action.enum], result="int", each="action", when=lambda a: a.has_spec),
    Family("plcmt_data_eq_to_hw", "{p}{t}_plcmt_data_eq_to_hw",
           [SESS, DEV8, IGNORED_TBL_HDL, ENTRY_HDL, PLCMT, ERROR],
           "1 when the chip holds what the placement record says (priority aside); else 0 and "
           "the first difference. A record that cannot be decoded ends the process.",
           lambda f: ["  (void)tbl_hdl;",
                      "  return placement_equals_hw(kTables[%d], sess_hdl, dev_id, entry_hdl, plcmt_data, error);"
                      % f.table.index], result="int", place=(130, 1)),
    Family("plcmt_data_eq_to_hw_by_handle", "{p}plcmt_data_eq_to_hw",
           [SESS, DEV8, TBL_HDL, ENTRY_HDL, PLCMT, PLCMT_SIZE, ERROR],
           "<t>_plcmt_data_eq_to_hw of the table with this handle; any other handle ends the process.",
           result="int", each="program"),
]
