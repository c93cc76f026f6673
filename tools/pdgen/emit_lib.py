"""Emits the library's generated sources: the action data packers, the
per-table entry points (thin code over the engine), the read descriptors,
and the linker export list."""

import families
from catalogue import PREFIX, AREA_FILES


def hx(v):
    return "0x%08xu" % v


def resource_handle(prog, name):
    return hx(prog.resources[name].handle)


# ------------------------------------------------------------ actions ---

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


def slot_resource_of(prog, a):
    """The resource handle that a slot-only parameter of this action names."""
    hs = {t.name: ta for t in prog.direct_tables() for ta in t.actions if ta.name == a.name}
    assert len(hs) == 1, a.name
    ta = next(iter(hs.values()))
    return resource_handle(prog, ta.resource)


def emit_generated_header(prog):
    o = ["// Generated from the catalogue. Do not edit.", "#pragma once", "",
         '#include "engine.h"', "", "namespace orbisk::pd {", "",
         "// The six member-selection states, in the order of creation.",
         "struct ProfileSlot {", "  const char *name;", "  pd_ms_state **state;", "};",
         "extern const ProfileSlot kProfileSlots[%d];" % len(prog.profiles), ""]
    for a in prog.actions:
        if a.has_spec:
            o += pack_data_fn(a)
            o.append("void unbuild_any_%s(const pd_action_record *, const pd_resource_index *, uint32_t, void *);"
                     % a.name)
            o.append("")
    o += ["}  // namespace orbisk::pd", ""]
    return "\n".join(o)


def emit_actions_source(prog):
    o = ["// Generated from the catalogue. Do not edit.", '#include "pd_generated.h"', "",
         "using namespace orbisk::pd;", ""]
    o.append('extern "C" {')
    o.append("PD_EXPORT_DATA extern const char *const %saction_name_strings[%d];" % (PREFIX, len(prog.enum_names)))
    o.append("const char *const %saction_name_strings[%d] = {" % (PREFIX, len(prog.enum_names)))
    for n in prog.enum_names:
        o.append('    "%s%s",' % (PREFIX, n))
    o.append("};")
    o.append("}")
    o.append("")
    for p in prog.profiles:
        o.append("pd_ms_state *pd_ms_slot_%s = nullptr;" % p.state_slot)
    o.append("")
    o.append("const ProfileSlot orbisk::pd::kProfileSlots[%d] = {" % len(prog.profiles))
    for p in prog.profiles:
        o.append('    {"%s", &pd_ms_slot_%s},' % (p.name, p.state_slot))
    o.append("};")
    o.append("")
    for a in prog.actions:
        if not a.has_spec:
            continue
        f = families.unbuild_action_fn(a)
        o.append("PD_EXPORT " + f.proto() + " {")
        o.append("  std::memset(action_spec, 0, sizeof *action_spec);")
        if len(a.params) == 1 and a.slot_only_param:
            o.append("  (void)act;")
        for p in a.params:
            if p.name == a.slot_only_param:
                o.append("  action_spec->%s = resource_index_of(resources, num_resources, %s);"
                         % (p.field, slot_resource_of(prog, a)))
            else:
                o.append("  action_spec->%s = get_be<%d>(act->data_bytes + %d);" % (p.field, p.nbytes, p.offset))
        o.append("}")
        o.append("void orbisk::pd::unbuild_any_%s(const pd_action_record *act, const pd_resource_index *res,"
                 % a.name)
        o.append("                                uint32_t n, void *out) {")
        extra = "res, n, " if a.slot_only_param else ""
        if not a.slot_only_param:
            o.append("  (void)res;")
            o.append("  (void)n;")
        o.append("  unbuild_action_spec_%s(act, %sstatic_cast<%s *>(out));" % (a.name, extra, a.spec_type))
        o.append("}")
        o.append("")
    return "\n".join(o)


# ------------------------------------------------------------- tables ---

def pack_key_fn(t):
    """Straight-line key packing of one table into its value and mask strings."""
    n = t.key_bytes
    sig = "static inline void pack_key_%s(const %s *ms, uint32_t priority, KeyBuf<%d> &k) {" % (
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


def unbuild_key_fn(t, f):
    o = [f.proto() + " {", "  std::memset(match_spec, 0, sizeof *match_spec);"]
    for i, fld in enumerate(t.fields):
        if t.partitioned and i == 0:
            o.append("  match_spec->%s = uint16_t(key->partition_index);" % fld.name)
        elif fld.array:
            o.append("  std::memcpy(match_spec->%s, key->value_bytes + %d, %d);" % (fld.name, fld.offset, fld.nbytes))
        else:
            o.append("  match_spec->%s = get_be<%d>(key->value_bytes + %d);" % (fld.name, fld.nbytes, fld.offset))
    o.append("}")
    return o


def unbuild_mask_fn(t, f):
    o = [f.proto() + " {"]
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
    o.append("}")
    return o


def slot_code(prog, t, a, mode):
    """Resource slot of table t for action a; mode is add, modify or default."""
    if not t.resource:
        return []
    r = prog.resources[t.resource]
    h = hx(r.handle)
    if r.is_meter and r.kind == "direct":
        if mode == "add":
            return ["  set_direct_meter_slot(a.rec, %s, *stormControlMeter_spec);" % h]
        # A modify without a spec keeps the slot but fills nothing in it; a
        # default without one detaches the meter.
        absent = "PD_RESOURCE_TAG_NONE" if mode == "modify" else "PD_RESOURCE_TAG_DETACHED"
        return ["  if (stormControlMeter_spec) set_direct_meter_slot(a.rec, %s, *stormControlMeter_spec);" % h,
                "  else set_slot(a.rec, %s, %s);" % (h, absent)]
    if r.kind == "direct":
        return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_ATTACHED);" % h]
    # Indexed: the action that uses the resource names the index.
    if a.resource_tag == 1:
        assert a.index_param, a.name
        assert mode != "default", a.name
        field = "action_spec->action_" + a.index_param
        # An add passes the low 16 bits of the index, a modify all 32.
        idx = "uint16_t(%s)" % field if mode == "add" else field
        return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_ATTACHED, %s);" % (h, idx)]
    return ["  set_slot(a.rec, %s, PD_RESOURCE_TAG_DETACHED);" % h]


def action_code(prog, t, a, mode):
    act = a.action
    o = ["  ActBuf<%d> a;" % act.data_bytes, "  begin_action<%d, %d>(a);" % (act.data_bytes, act.data_bits)]
    if act.has_spec:
        o.append("  pack_data_%s(action_spec, a.data);" % act.name)
    return o + slot_code(prog, t, a, mode)


def key_code(t):
    prio = "priority" if t.ternary else "0"
    return ["  KeyBuf<%d> k;" % t.key_bytes, "  pack_key_%s(match_spec, %s, k);" % (t.name, prio)]


def read_desc(prog, t):
    acts = t.profile.actions if t.indirect else t.actions
    o = ["const ActionRead kActions_%s[] = {" % t.name]
    for a in acts:
        fn = "unbuild_any_%s" % a.name if a.action.has_spec else "nullptr"
        o.append("    {%s, %d, %s}," % (hx(a.handle), a.action.enum, fn))
    o.append("};")
    spec = ("sizeof(%s)" % t.spec_type) if t.keyed else "0"
    uk = ("[](const pd_match_record *k, void *m) { unbuild_key_%s(k, static_cast<%s *>(m)); }"
          % (t.name, t.spec_type)) if t.keyed else "nullptr"
    um = ("[](const pd_match_record *k, void *m) { unbuild_mask_%s(k, static_cast<%s *>(m)); }"
          % (t.name, t.spec_type)) if (t.ternary or t.prefix) else "nullptr"
    o.append("static_assert(%d <= kMaxKeyBytes, \"key of %s fits the read buffers\");" % (t.key_bytes, t.name))
    o.append("const TableRead kRead_%s = {%s, %d, %d, kActions_%s, %d, %s," % (
        t.name, hx(t.handle), t.key_bytes, t.key_bits, t.name, len(acts), spec))
    o.append("    %s," % uk)
    o.append("    %s};" % um)
    return o


def body(prog, t, f):
    T = hx(t.handle)
    fam = f.family
    if fam == "table_add_with":
        a = f.action
        o = []
        if t.resource == "stormControlMeter":
            o.append("  if (!stormControlMeter_spec)")
            o.append("    pd_hard_assert_failed(\"stormControlMeter_spec && \\\"direct resource has no spec\\\"\",")
            o.append("                          __func__, __LINE__);")
        ttl = "ttl" if any(n == "ttl" for _, n in f.args) else "0"
        return o + key_code(t) + action_code(prog, t, a, "add") + [
            "  return pipe_mgr_mat_ent_add(sess_hdl, dev_tgt, %s, &k.rec, %s, &a.rec, %s, 0, entry_hdl);"
            % (T, hx(a.handle), ttl)]
    if fam == "table_modify_with":
        a = f.action
        return action_code(prog, t, a, "modify") + [
            "  return pipe_mgr_mat_ent_set_action(sess_hdl, dev_id, %s, entry_hdl, %s, &a.rec, 0);"
            % (T, hx(a.handle))]
    if fam == "table_modify_with_by_match_spec":
        a = f.action
        return key_code(t) + action_code(prog, t, a, "modify") + [
            "  return pipe_mgr_mat_ent_set_action_by_match_spec(sess_hdl, dev_tgt, %s, &k.rec, %s, &a.rec, 0);"
            % (T, hx(a.handle))]
    if fam == "table_delete":
        return ["  return pipe_mgr_mat_ent_del(sess_hdl, dev_id, %s, entry_hdl, 0);" % T]
    if fam == "table_delete_by_match_spec":
        return key_code(t) + ["  return pipe_mgr_mat_ent_del_by_match_spec(sess_hdl, dev_tgt, %s, &k.rec, 0);" % T]
    if fam == "match_spec_to_entry_hdl":
        return key_code(t) + [
            "  return pipe_mgr_match_spec_to_ent_hdl(sess_hdl, dev_tgt, %s, &k.rec, entry_hdl, 0);" % T]
    if fam == "get_entry":
        if t.keyed:
            prio = "priority" if t.ternary else "nullptr"
            return ["  return read_entry(kRead_%s, __func__, sess_hdl, dev_id, entry_hdl, read_from_hw," % t.name,
                    "                    match_spec, %s, action_name, action_spec, action_enum, is_default);" % prio]
        return ["  return read_entry(kRead_%s, __func__, sess_hdl, dev_id, entry_hdl, read_from_hw," % t.name,
                "                    nullptr, nullptr, action_name, action_spec, action_enum, nullptr);"]
    if fam == "get_entry_count":
        return ["  return pipe_mgr_get_entry_count(sess_hdl, dev_tgt, %s, 0, count);" % T]
    if fam == "get_first_entry_handle":
        return ["  return pipe_mgr_get_first_entry_handle(sess_hdl, %s, dev_tgt, entry_hdl);" % T]
    if fam == "get_next_entry_handles":
        return ["  return pipe_mgr_get_next_entry_handles(sess_hdl, %s, dev_tgt, entry_hdl, n, next_entry_hdls);" % T]
    if fam == "set_default_action":
        a = f.action
        return action_code(prog, t, a, "default") + [
            "  return pipe_mgr_mat_default_entry_set(sess_hdl, dev_tgt, %s, %s, &a.rec, 0, entry_hdl);"
            % (T, hx(a.handle))]
    if fam == "table_get_default_entry":
        return ["  return read_default_entry(kRead_%s, sess_hdl, dev_tgt, read_from_hw, action_spec);" % t.name]
    if fam == "table_get_default_entry_handle":
        return ["  return pipe_mgr_table_get_default_entry_handle(sess_hdl, dev_tgt, %s, entry_hdl);" % T]
    if fam == "table_reset_default_entry":
        return ["  return pipe_mgr_mat_tbl_default_entry_reset(sess_hdl, dev_tgt, %s, 0);" % T]
    raise AssertionError(fam)


def emit_area_source(prog, area_tables):
    o = ["// Generated from the catalogue. Do not edit.", '#include "pd_generated.h"', "",
         "using namespace orbisk::pd;", ""]
    for t in area_tables:
        o.append("// %s" % t.name)
        fns = families.table_functions(t)
        if t.keyed:
            o += pack_key_fn(t)
            for f in fns:
                if f.family == "unbuild_key":
                    o.append("PD_EXPORT " + "\n".join(unbuild_key_fn(t, f)))
                elif f.family == "unbuild_mask":
                    o.append("PD_EXPORT " + "\n".join(unbuild_mask_fn(t, f)))
        o.append("namespace {")
        o += read_desc(prog, t)
        o.append("}  // namespace")
        for f in fns:
            if f.family in ("unbuild_key", "unbuild_mask"):
                continue
            o.append("PD_EXPORT " + f.proto() + " {")
            o += body(prog, t, f)
            o.append("}")
        o.append("")
    return "\n".join(o)


def emit_version_script(prog):
    names = sorted([f.name for f in families.all_functions(prog)] + families.EXPORTED_OBJECTS)
    o = ["{", "  global:"]
    o += ["    %s;" % n for n in names]
    o += ["  local:", "    *;", "};", ""]
    return "\n".join(o)


def emit(prog):
    out = {"pd_generated.h": emit_generated_header(prog),
           "pd_actions.cpp": emit_actions_source(prog),
           "libob_bf_pd_nat_vxlan.map": emit_version_script(prog)}
    for area in AREA_FILES:
        tables = [t for t in prog.tables if t.area_file == area]
        out["pd_tables_%s.cpp" % area] = emit_area_source(prog, tables)
    return out
