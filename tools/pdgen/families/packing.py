"""The write hot path's code: the straight-line packers of a table's key and
of an action's data, and the lines of a write function that fill its records
(key, action data, resource slot). Used by the families that send a key or an
action: entries, key operations and defaults."""


def hx(v):
    return "0x%08xu" % v


def pack_data_fn(a):
    """Straight-line packing of one action's parameters into its data string."""
    o = ["inline void pack_data_%s(const %s *s, uint8_t *d) {" % (a.name, a.spec_type)]
    if len(a.params) == 1 and a.slot_only_param:
        o.append("  (void)s;")
    for p in a.params:
        if p.name == a.slot_only_param:
            o.append("  std::memset(d + %d, 0, %d);  // carried in the resource slot" % (p.offset, p.nbytes))
        else:
            o.append("  put_be<%d>(d + %d, s->%s);" % (p.nbytes, p.offset, p.field))
    o.append("}")
    return o


def pack_key_fn(t):
    """Straight-line key packing of one table into its value and mask strings."""
    n = t.key_bytes
    sig = "inline void pack_key_%s(const %s *ms, uint32_t priority, KeyBuf<%d> &k) {" % (
        t.name, t.spec_type, n)
    o = [sig]
    if not t.ternary:
        o.append("  (void)priority;")
    o += ["  k.rec.value_bytes = k.value;", "  k.rec.mask_bytes = k.mask;",
          "  k.rec.num_valid_bits = %d;" % t.key_bits, "  k.rec.num_bytes = %d;" % n,
          "  k.rec.reserved = 0;"]
    first = True
    for f in t.fields:
        if t.partitioned and first:
            # The partition is no part of the strings: its bytes stay zero.
            o.append("  k.rec.partition_index = ms->%s;" % f.name)
            o.append("  std::memset(k.value + %d, 0, %d);" % (f.offset, f.nbytes))
        elif f.array:
            o.append("  std::memcpy(k.value + %d, ms->%s, %d);" % (f.offset, f.name, f.nbytes))
        else:
            o.append("  put_be<%d>(k.value + %d, ms->%s);" % (f.nbytes, f.offset, f.name))
        first = False
    if not t.partitioned:
        o.append("  k.rec.partition_index = 0;")
    o.append("  std::memset(k.mask, 0xFF, %d);" % n)
    if t.match == "exact":
        o.append("  k.rec.priority = 0;")
    elif t.ternary:
        for f in t.fields:
            if f.match != "ternary":
                continue
            if f.array:
                o.append("  std::memcpy(k.mask + %d, ms->%s_mask, %d);" % (f.offset, f.name, f.nbytes))
            else:
                o.append("  put_be<%d>(k.mask + %d, ms->%s_mask);" % (f.nbytes, f.offset, f.name))
            o.append("  and_bytes(k.value + %d, k.mask + %d, %d);" % (f.offset, f.offset, f.nbytes))
        for f in t.fields:
            if f.bits % 8:
                o.append("  cut_top_byte<%d>(k.mask + %d);" % (f.bits, f.offset))
        o.append("  k.rec.priority = priority;")
    else:
        lf = t.lpm_field
        assert all(f.match in ("exact", "lpm") for f in t.fields), t.name
        if t.partitioned:
            pf = t.fields[0]
            o.append("  if (ms->%s_prefix_length <= %d) std::memset(k.mask + %d, 0, %d);"
                     % (lf.name, lf.bits, pf.offset, pf.nbytes))
        o.append("  k.rec.priority = pack_prefix<%d, %d>(k.value + %d, k.mask + %d, ms->%s_prefix_length);"
                 % (lf.bits, t.key_bits, lf.offset, lf.offset, lf.name))
    o.append("}")
    return o


def files(prog):
    """The packers, as headers of inline code: the action data packers of the
    program, and the key packers of each area's tables."""
    from catalogue import AREA_FILES
    head = ["// Generated from the catalogue. Do not edit.", "#pragma once", "",
            '#include "bytes.h"', '#include "orbisk_switch/pd.h"', "", "namespace orbisk::pd {", ""]
    tail = ["}  // namespace orbisk::pd", ""]
    o = list(head)
    for a in prog.actions:
        if a.has_spec:
            o += pack_data_fn(a) + [""]
    out = {"pd_packers.h": "\n".join(o + tail)}
    for area in AREA_FILES:
        o = list(head)
        for t in prog.tables:
            if t.area_file == area and t.keyed:
                o += pack_key_fn(t) + [""]
        out["pd_keys_%s.h" % area] = "\n".join(o + tail)
    return out


def key_code(t):
    """Lines that pack the caller's match spec into a key record `k`."""
    prio = "priority" if t.ternary else "0"
    return ["  KeyBuf<%d> k;" % t.key_bytes, "  pack_key_%s(match_spec, %s, k);" % (t.name, prio)]


def slot_code(t, a, mode):
    """Resource slot of table t for action a; mode is add, modify or default."""
    r = t.carried
    if not r:
        return []
    h = hx(r.handle)
    if t.direct_meter:
        spec = r.name + "_spec"
        if mode == "add":
            return ["  set_direct_meter_slot(a.rec, %s, *%s);" % (h, spec)]
        if mode == "modify":
            why = "  // No rates on a modify: the slot is sent with tag none and no rates."
            absent = "PD_RESOURCE_TAG_NONE"
        else:
            why = "  // No rates for a default: the meter is detached from it."
            absent = "PD_RESOURCE_TAG_DETACHED"
        return [why, "  if (%s) set_direct_meter_slot(a.rec, %s, *%s);" % (spec, h, spec),
                "  else set_slot(a.rec, %s, %s);" % (h, absent)]
    if r.kind == "direct":
        return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_ATTACHED);" % h]
    # Indexed: the action that uses the resource names the index.
    if a.resource_tag == 1:
        assert a.index_param, a.name
        assert mode != "default", a.name
        field = "action_spec->action_" + a.index_param
        if mode == "add":
            return ["  // An add sends the low 16 bits of the cell index; a modify sends all 32.",
                    "  set_slot(a.rec, %s, PD_RESOURCE_TAG_ATTACHED, uint16_t(%s));" % (h, field)]
        return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_ATTACHED, %s);" % (h, field)]
    return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_DETACHED);" % h]


def action_code(t, a, mode):
    """Lines that fill an action record `a` for table t's action a."""
    act = a.action
    o = ["  ActBuf<%d> a;" % act.data_bytes, "  begin_action<%d, %d>(a);" % (act.data_bytes, act.data_bits)]
    if act.has_spec:
        o.append("  pack_data_%s(action_spec, a.data);" % act.name)
    return o + slot_code(t, a, mode)
