"""Unbuilders: driver records read back turned into host records (key, mask,
action data). Exported for agents that read records themselves."""

from .base import Arg, Family

KEY = Arg("const pd_match_record *", "key", "key record")
OUT_MS = Arg(lambda t, a: "%s *" % t.spec_type, "match_spec", "out match spec")
ACT = Arg("const pd_action_record *", "act", "action record")
RESOURCES = Arg("const pd_resource_index *", "resources", "resources",
                when=lambda t, a: a.slot_only_param)
NUM_RESOURCES = Arg("uint32_t", "num_resources", "count", when=lambda t, a: a.slot_only_param)
OUT_SPEC = Arg(lambda t, a: "%s *" % a.spec_type, "action_spec", "out action spec")


def unbuild_key_body(f):
    t = f.table
    o = ["  std::memset(match_spec, 0, sizeof *match_spec);"]
    for i, fld in enumerate(t.fields):
        if t.partitioned and i == 0:
            o.append("  match_spec->%s = uint16_t(key->partition_index);" % fld.name)
        elif fld.array:
            o.append("  std::memcpy(match_spec->%s, key->value_bytes + %d, %d);" % (fld.name, fld.offset, fld.nbytes))
        else:
            o.append("  match_spec->%s = get_be<%d>(key->value_bytes + %d);" % (fld.name, fld.nbytes, fld.offset))
    return o


def unbuild_mask_body(f):
    t = f.table
    o = []
    if t.ternary:
        for fld in t.fields:
            if fld.match != "ternary":
                continue
            if fld.array:
                o.append("  std::memcpy(match_spec->%s_mask, key->mask_bytes + %d, %d);"
                         % (fld.name, fld.offset, fld.nbytes))
            else:
                o.append("  match_spec->%s_mask = get_be<%d>(key->mask_bytes + %d);"
                         % (fld.name, fld.nbytes, fld.offset))
    else:
        lf = t.lpm_field
        o.append("  match_spec->%s_prefix_length = prefix_length_of<%d>(key->mask_bytes + %d);"
                 % (lf.name, lf.bits, lf.offset))
    return o


def unbuild_action_body(f):
    a = f.action
    o = ["  std::memset(action_spec, 0, sizeof *action_spec);"]
    if len(a.params) == 1 and a.slot_only_param:
        o.append("  (void)act;")
    for p in a.params:
        if p.name == a.slot_only_param:
            o.append("  action_spec->%s = resource_index_of(resources, num_resources, 0x%08xu);"
                     % (p.field, a.slot_resource.handle))
        else:
            o.append("  action_spec->%s = get_be<%d>(act->data_bytes + %d);" % (p.field, p.nbytes, p.offset))
    return o


def unbuild_any(a):
    """Glue that lets a read descriptor call an action's unbuilder."""
    o = ["void orbisk::pd::unbuild_any_%s(const pd_action_record *act, const pd_resource_index *res," % a.name,
         "                                uint32_t n, void *out) {"]
    extra = "res, n, " if a.slot_only_param else ""
    if not a.slot_only_param:
        o.append("  (void)res;")
        o.append("  (void)n;")
    o.append("  unbuild_action_spec_%s(act, %sstatic_cast<%s *>(out));" % (a.name, extra, a.spec_type))
    o.append("}")
    return o


FAMILIES = [
    Family("unbuild_key", "unbuild_key_{t}", [KEY, OUT_MS], "a key record's values into a match spec.",
           unbuild_key_body, result="void", when=lambda t: t.keyed, place=(90, 0)),
    Family("unbuild_mask", "unbuild_mask_{t}", [KEY, OUT_MS],
           "its masks or prefix length into the same match spec.", unbuild_mask_body, result="void",
           when=lambda t: t.ternary or t.prefix, place=(90, 1)),
    Family("unbuild_action_spec", "unbuild_action_spec_{a}", [ACT, RESOURCES, NUM_RESOURCES, OUT_SPEC],
           "an action record's data into an action spec.", unbuild_action_body, result="void",
           each="action"),
]
