"""Comparison with hardware: two keys or two action specs field by field
under the schema's masks, and a placement record against the entry the chip
holds; 1 when equal, else 0 and the first difference in words, software's
(pd) value first. One line per function over the engine
(src/pd_orbisk/compare.cpp)."""

from .base import Arg, Family, keyed

ERROR = Arg("char *", "error", "out message")
PD_MATCH_SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "pd_match_spec", "pd match spec")
HW_MATCH_SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "hw_match_spec", "hw match spec")
PD_ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.spec_type, "pd_action_spec", "pd action spec")
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
]
