"""Emits the catalogue-wide round-trip test: for every direct table and every
action it allows, an entry goes through the driver model and comes back in
host form, by handle and by key, and every default action is set and read."""

import families
from catalogue import AREA_FILES, PREFIX


def fill_fields(var, members, seed):
    """Calls that fill a host record with values inside each field's width."""
    o = []
    for i, (bits, name, array) in enumerate(members):
        if array:
            o.append("  fill_bytes(%s.%s, %d, %s + %d);" % (var, name, array, seed, i))
        else:
            o.append("  %s.%s = pattern<decltype(%s.%s)>(%d, %s + %d);" % (var, name, var, name, bits, seed, i))
    return o


def entry_params(act):
    """(bits, member, None) of an action spec filled to round-trip through an
    entry: an index carried in a resource slot keeps 16 bits on an add."""
    return [(min(p.bits, 16) if p.name == act.slot_only_param else p.bits, p.field, None)
            for p in act.params]


def key_members(t):
    """(bits, member, array length) of a key record filled to round-trip."""
    out = []
    for f in t.host_fields:
        out.append((f.bits, f.name, f.nbytes if f.array else None))
    return out


def key_partners(t):
    """Mask and prefix members set so that nothing is cut on the way."""
    o = []
    for f in t.host_fields:
        if f.match == "ternary":
            if f.array:
                o.append("  std::memset(ms.%s_mask, 0xFF, %d);" % (f.name, f.nbytes))
            else:
                o.append("  ms.%s_mask = ones<decltype(ms.%s_mask)>(%d);" % (f.name, f.name, f.bits))
        elif f.match == "lpm":
            o.append("  ms.%s_prefix_length = %d;" % (f.name, f.bits))
    return o


def call(f, values):
    return "%s(%s)" % (f.name, ", ".join(values[n] for _, n in f.args))


def emit_table(prog, t):
    fns = {(f.family, f.action.name if f.action else None): f for f in families.table_functions(t)}
    o = ["TEST_F(RoundTrip, %s) {" % t.name]
    keyed = t.keyed
    seed = 1
    base = {"sess_hdl": "kSess", "dev_tgt": "kTarget", "dev_id": "kDevice", "match_spec": "&ms",
            "priority": "kPriority", "action_spec": "&as", "stormControlMeter_spec": "&meter",
            "ttl": "kTtl", "entry_hdl": "&hdl", "count": "&count"}
    for a in t.actions:
        if not a.entry:
            continue
        act = a.action
        o.append("  {  // %s" % a.name)
        o.append("    SCOPED_TRACE(\"%s\");" % a.name)
        o.append("    %s ms;" % t.spec_type)
        o.append("    std::memset(&ms, 0, sizeof ms);")
        o += ["  " + x for x in fill_fields("ms", key_members(t), seed)]
        o += ["  " + x for x in key_partners(t)]
        if act.has_spec:
            o.append("    %s as;" % act.spec_type)
            o.append("    std::memset(&as, 0, sizeof as);")
            o += ["  " + x for x in fill_fields("as", entry_params(act), seed + 50)]
        o.append("    pd_meter_spec meter = kMeter;")
        o.append("    (void)meter;")
        o.append("    pd_entry_hdl hdl = 0;")
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("table_add_with", a.name)], base))
        o.append("    uint32_t count = 0;")
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("get_entry_count", None)], base))
        o.append("    EXPECT_EQ(1u, count);")
        # Read back.
        o.append("    Readback<%s> rb;" % t.spec_type)
        o.append("    ASSERT_EQ(0u, %sget_entry(kSess, kDevice, hdl, false, &rb.ms, %srb.name, &rb.spec, &rb.action, &rb.is_default));"
                 % (PREFIX + t.name + "_", "&rb.priority, " if t.ternary else ""))
        o.append("    EXPECT_EQ(0, std::memcmp(&rb.ms, &ms, sizeof ms));")
        o.append("    EXPECT_STREQ(\"%s%s\", rb.name);" % (PREFIX, a.name))
        o.append("    EXPECT_EQ(%d, int(rb.action));" % act.enum)
        o.append("    EXPECT_FALSE(rb.is_default);")
        if t.ternary:
            o.append("    EXPECT_EQ(kPriority, rb.priority);")
        if act.has_spec:
            o.append("    EXPECT_EQ(0, std::memcmp(&rb.spec.%s, &as, sizeof as));" % a.name)
        # Find by key.
        o.append("    pd_entry_hdl found = 0;")
        b2 = dict(base, entry_hdl="&found")
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("match_spec_to_entry_hdl", None)], b2))
        o.append("    EXPECT_EQ(hdl, found);")
        # Modify by handle, then by key, with new parameter values each time.
        for fam, s in (("table_modify_with", 100), ("table_modify_with_by_match_spec", 200)):
            if act.has_spec:
                o += ["  " + x for x in fill_fields("as", entry_params(act), seed + s)]
            o.append("    ASSERT_EQ(0u, %s);" % call(fns[(fam, a.name)], dict(base, entry_hdl="hdl")))
            o.append("    ASSERT_EQ(0u, %sget_entry(kSess, kDevice, hdl, false, &rb.ms, %snullptr, &rb.spec, nullptr, &rb.is_default));"
                     % (PREFIX + t.name + "_", "&rb.priority, " if t.ternary else ""))
            if act.has_spec:
                o.append("    EXPECT_EQ(0, std::memcmp(&rb.spec.%s, &as, sizeof as)) << \"%s\";" % (a.name, fam))
            o.append("    EXPECT_EQ(0, std::memcmp(&rb.ms, &ms, sizeof ms));")
        # Delete by key on odd actions, by handle on even ones.
        if seed % 2:
            o.append("    ASSERT_EQ(0u, %s);" % call(fns[("table_delete_by_match_spec", None)], base))
        else:
            o.append("    ASSERT_EQ(0u, %s);" % call(fns[("table_delete", None)], dict(base, entry_hdl="hdl")))
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("get_entry_count", None)], base))
        o.append("    EXPECT_EQ(0u, count);")
        o.append("    EXPECT_NE(0u, %s);" % call(fns[("match_spec_to_entry_hdl", None)], b2))
        o.append("  }")
        seed += 1
    for a in t.actions:
        if not a.default:
            continue
        act = a.action
        o.append("  {  // default %s" % a.name)
        o.append("    SCOPED_TRACE(\"default %s\");" % a.name)
        if act.has_spec:
            o.append("    %s as;" % act.spec_type)
            o.append("    std::memset(&as, 0, sizeof as);")
            o += ["  " + x for x in fill_fields("as", [(p.bits, p.field, None) for p in act.params], seed + 300)]
        o.append("    pd_meter_spec meter = kMeter;")
        o.append("    (void)meter;")
        o.append("    pd_entry_hdl hdl = 0;")
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("set_default_action", a.name)], base))
        o.append("    pd_entry_hdl dflt = 0;")
        o.append("    ASSERT_EQ(0u, %s);" % call(fns[("table_get_default_entry_handle", None)], dict(base, entry_hdl="&dflt")))
        o.append("    EXPECT_EQ(hdl, dflt);")
        o.append("    pd_default_action_record rec;")
        o.append("    std::memset(&rec, 0, sizeof rec);")
        o.append("    ASSERT_EQ(0u, %stable_get_default_entry(kSess, kTarget, false, &rec));" % (PREFIX + t.name + "_"))
        o.append("    EXPECT_EQ(%d, int(rec.name));" % act.enum)
        if act.has_spec:
            o.append("    EXPECT_EQ(0, std::memcmp(&rec.u.%s, &as, sizeof as));" % a.name)
        # The default entry read through get_entry says so.
        if keyed:
            o.append("    Readback<%s> rb;" % t.spec_type)
            o.append("    ASSERT_EQ(0u, %sget_entry(kSess, kDevice, dflt, false, &rb.ms, %srb.name, &rb.spec, &rb.action, &rb.is_default));"
                     % (PREFIX + t.name + "_", "&rb.priority, " if t.ternary else ""))
            o.append("    EXPECT_TRUE(rb.is_default);")
        else:
            o.append("    KeylessReadback rb;")
            o.append("    ASSERT_EQ(0u, %sget_entry(kSess, kDevice, dflt, false, rb.name, &rb.spec, &rb.action));"
                     % (PREFIX + t.name + "_"))
        o.append("    EXPECT_STREQ(\"%s%s\", rb.name);" % (PREFIX, a.name))
        o.append("    ASSERT_EQ(0u, %stable_reset_default_entry(kSess, kTarget));" % (PREFIX + t.name + "_"))
        o.append("  }")
        seed += 1
    o.append("}")
    o.append("")
    return o


def emit(prog):
    """One source per area, so that the test build runs in parallel."""
    out = {}
    for area in AREA_FILES:
        o = ["// Generated from the catalogue. Do not edit.", '#include "roundtrip_support.h"', ""]
        for t in prog.direct_tables():
            if t.area_file == area:
                o += emit_table(prog, t)
        out["roundtrip_tests_%s.cpp" % area] = "\n".join(o)
    return out
