"""Emits pd_descriptors.cpp: the constant descriptors of every table, action,
profile and resource (see descriptors.h), with host offsets taken by offsetof
from the public header's records, and the dense index by table handle."""

FORMATS = {None: "Plain", "dec": "Dec", "port": "Port", "vport": "VPort", "mac": "Mac",
           "v4addr": "V4Addr", "v6addr": "V6Addr"}
KINDS = {"none": "None", "exact": "Exact", "ternary": "Ternary", "prefix": "Prefix",
         "partitioned_prefix": "PartitionedPrefix"}
FMATCH = {"exact": "Exact", "ternary": "Ternary", "lpm": "Lpm"}


def hx(v):
    return "0x%08xu" % v


def mask_bytes(f):
    v = int(f.static_mask, 16)
    assert v < 1 << (8 * f.nbytes), f.name
    return [(v >> (8 * (f.nbytes - 1 - i))) & 0xFF for i in range(f.nbytes)]


def table_actions(t):
    return t.profile.actions if t.indirect else t.actions


def action_rows(name, acts, prog):
    o = ["const TableActionDesc %s[] = {" % name]
    for a in acts:
        idx = -1
        if a.index_param:
            idx = [p.name for p in a.action.params].index(a.index_param)
        o.append("    {&kActions[%d], %s, %s, %s, %d, %d}," % (
            prog.enum_of[a.name], hx(a.handle), "true" if a.entry else "false",
            "true" if a.default else "false", a.resource_tag, idx))
    o.append("};")
    return o


def emit_limits(prog):
    """The program's limits that the engine sizes its buffers by."""
    return "\n".join([
        "// Generated from the catalogue. Do not edit.", "#pragma once", "",
        "namespace orbisk::pd {", "",
        "// The longest key of the program, in bytes: the room a read offers for a key.",
        "inline constexpr unsigned kMaxKeyBytes = %d;" % max(t.key_bytes for t in prog.tables), "",
        "}  // namespace orbisk::pd", ""])


def dense_rows(rows):
    """(base, slots) of each handle base: each pipeline's handles of one kind
    are a short run of low numbers above a fixed base, so each base gets a
    dense table of indexes, 0xFF where no handle is."""
    assert len(rows) < 0xFF
    out = []
    for b in sorted({h & 0xFFFF0000 for h, _ in rows}):
        hs = [(h & 0xFFFF, i) for h, i in rows if h & 0xFFFF0000 == b]
        slots = [0xFF] * (max(h for h, _ in hs) + 1)
        for h, i in hs:
            slots[h] = i
        out.append((b, slots))
    return out


def handle_sets(prog):
    """(tag, what it indexes, rows) of the two kinds of handle a function may
    take as data: a match table's and an action profile's action data table's."""
    return [("Table", "kTables", [(t.handle, i) for i, t in enumerate(prog.tables)]),
            ("Profile", "kProfiles", [(p.adt, i) for i, p in enumerate(prog.profiles)])]


def emit_handles(prog):
    """pd_handles.h: the index of a handle's table or profile by a range test
    and one load, inline, so that a function taking a handle as data forwards
    to its target with no frame of its own."""
    o = ["// Generated from the catalogue. Do not edit.", "#pragma once", "", "#include <cstdint>", "",
         "#pragma GCC visibility push(hidden)", "", "namespace orbisk::pd {", "",
         "// The slot of a handle that names nothing.",
         "inline constexpr unsigned kNoSlot = 0xFF;", ""]
    for tag, array, rows in handle_sets(prog):
        dense = dense_rows(rows)
        o += ["extern const uint8_t k%sByHandle_%08x[%d];" % (tag, b, len(s)) for b, s in dense]
        o += ["", "// The index in %s of the one with this handle, or kNoSlot." % array,
              "inline unsigned %s_slot(uint32_t handle) {" % tag.lower(),
              "  const uint32_t low = handle & 0xFFFFu;",
              "  switch (handle & 0xFFFF0000u) {"]
        for b, s in dense:
            o += ["    case 0x%08xu:" % b,
                  "      return low < %d ? k%sByHandle_%08x[low] : kNoSlot;" % (len(s), tag, b)]
        o += ["    default:", "      return kNoSlot;", "  }", "}", ""]
    o += ["}  // namespace orbisk::pd", "", "#pragma GCC visibility pop", ""]
    return "\n".join(o)


def dense_index(prog):
    """The dense tables of pd_handles.h, and find_table and find_profile over them."""
    o = []
    for tag, array, rows in handle_sets(prog):
        for b, s in dense_rows(rows):
            o.append("const uint8_t k%sByHandle_%08x[%d] = {%s};" % (
                tag, b, len(s), ", ".join("kNoSlot" if i == 0xFF else str(i) for i in s)))
    o += ["",
          "const TableDesc *find_table(pd_tbl_hdl handle) {",
          "  const unsigned i = table_slot(handle);",
          "  return i == kNoSlot ? nullptr : &kTables[i];", "}", "",
          "const ProfileDesc *find_profile(uint32_t adt_hdl) {",
          "  const unsigned i = profile_slot(adt_hdl);",
          "  return i == kNoSlot ? nullptr : &kProfiles[i];", "}", ""]
    return o


def emit(prog):
    o = ["// Generated from the catalogue. Do not edit.",
         '#include "descriptors.h"', "", '#include "orbisk_switch/pd.h"', '#include "pd_handles.h"', "",
         "namespace orbisk::pd {", "namespace {", ""]
    # Parameters of every action with any.
    for a in prog.actions:
        if not a.params:
            continue
        o.append("const ParamDesc kParams_%s[] = {" % a.name)
        for p in a.params:
            o.append('    {"%s", %d, %d, %d, offsetof(%s, %s), Format::%s},' % (
                p.name, p.bits, p.nbytes, p.offset, a.spec_type, p.field, FORMATS[p.format]))
        o.append("};")
    o.append("")
    # Key fields and static masks of every keyed table.
    for t in prog.tables:
        if not t.keyed:
            continue
        for f in t.fields:
            if f.static_mask:
                o.append("const uint8_t kMask_%s_%s[] = {%s};" % (
                    t.name, f.name, ", ".join("0x%02x" % b for b in mask_bytes(f))))
        o.append("const FieldDesc kFields_%s[] = {" % t.name)
        for f in t.fields:
            partner = "kNoOffset"
            if f.match == "ternary":
                partner = "offsetof(%s, %s_mask)" % (t.spec_type, f.name)
            elif f.match == "lpm":
                partner = "offsetof(%s, %s_prefix_length)" % (t.spec_type, f.name)
            o.append('    {"%s", "%s", %d, %d, %d, offsetof(%s, %s), %s, FieldMatch::%s, Format::%s, %s, %s},' % (
                f.name, f.schema, f.bits, f.nbytes, f.offset, t.spec_type, f.name, partner,
                FMATCH[f.match], FORMATS[f.format], "true" if f.array else "false",
                ("kMask_%s_%s" % (t.name, f.name)) if f.static_mask else "nullptr"))
        o.append("};")
    o.append("")
    for t in prog.tables:
        if not t.indirect:
            o += action_rows("kTableActions_%s" % t.name, t.actions, prog)
    for p in prog.profiles:
        o += action_rows("kProfileActions_%s" % p.name, p.actions, prog)
    o += ["", "}  // namespace", ""]

    # Actions in enum order.
    o.append("const ActionDesc kActions[] = {")
    for a in prog.actions:
        slot = -1
        res = 0
        if a.slot_only_param:
            slot = [p.name for p in a.params].index(a.slot_only_param)
            res = a.slot_resource.handle
        o.append('    {"%s", %d, %d, %d, %s, %d, %s, %d, %s},' % (
            a.name, a.enum, a.data_bytes, a.data_bits,
            ("sizeof(%s)" % a.spec_type) if a.params else "0", len(a.params),
            ("kParams_%s" % a.name) if a.params else "nullptr", slot, hx(res)))
    o.append("};")
    o.append("const std::size_t kNumActions = %d;" % len(prog.actions))
    o.append("")

    res_names = list(prog.resources)
    o.append("const ResourceDesc kResources[] = {")
    for n in res_names:
        r = prog.resources[n]
        o.append('    {"%s", %s, ResourceKind::%s, %s, %s, %s, %d, %d},' % (
            r.name, hx(r.handle), r.cls.capitalize(),
            "true" if r.direct else "false", "true" if r.unit == "packets" else "false",
            hx(r.driver_handle), r.size, r.bits))
    o.append("};")
    o.append("const std::size_t kNumResources = %d;" % len(res_names))
    o.append("")
    # Not on a hot path: the model and the tests look resources up.
    o.append("const ResourceDesc *find_resource(uint32_t handle, ResourceKind kind) {")
    o.append("  for (std::size_t i = 0; i < kNumResources; ++i) {")
    o.append("    const ResourceDesc &r = kResources[i];")
    o.append("    if (r.kind == kind && (r.handle == handle || r.table_hdl == handle)) return &r;")
    o.append("  }")
    o.append("  return nullptr;")
    o.append("}")
    o.append("")

    table_index = {t.name: i for i, t in enumerate(prog.tables)}
    o.append("const ProfileDesc kProfiles[] = {")
    for p in prog.profiles:
        o.append('    {"%s", %s, %s, %d, kProfileActions_%s, %d},' % (
            p.name, hx(p.adt), hx(p.sel), len(p.actions), p.name, table_index[p.match_table]))
    o.append("};")
    o.append("const std::size_t kNumProfiles = %d;" % len(prog.profiles))
    o.append("")

    prof_index = {p.name: i for i, p in enumerate(prog.profiles)}
    o.append("const TableDesc kTables[] = {")
    for t in prog.tables:
        acts = table_actions(t)
        flags = []
        if t.entry_priority:
            flags.append("kEntryPriority")
        if t.idle_timeout:
            flags.append("kIdleTimeout")
        if t.counter_labels:
            flags.append("kCounterLabels")
        if t.ttl_on_add:
            flags.append("kTtlOnAdd")
        lpm = next((i for i, f in enumerate(t.fields) if f.match == "lpm"), -1)
        dflt = next((i for i, a in enumerate(acts) if a.default), 0)
        o.append('    {"%s", %s, MatchKind::%s, \'%s\', %s, %d, %d, %d, %s, %d, %s, %d, %s, %d, %s, %s},' % (
            t.name, hx(t.handle), KINDS[t.match], t.pipeline, " | ".join(flags) or "0", lpm,
            t.key_bytes, t.key_bits, ("sizeof(%s)" % t.spec_type) if t.keyed else "0",
            len(t.fields), ("kFields_%s" % t.name) if t.keyed else "nullptr", len(acts),
            ("kProfileActions_%s" % t.profile.name) if t.indirect else ("kTableActions_%s" % t.name),
            dflt,
            ("&kResources[%d]" % res_names.index(t.resource)) if t.resource else "nullptr",
            ("&kProfiles[%d]" % prof_index[t.profile.name]) if t.indirect else "nullptr"))
    o.append("};")
    o.append("const std::size_t kNumTables = %d;" % len(prog.tables))
    o.append("")

    o += dense_index(prog)
    o += services(prog.services)
    o.append("}  // namespace orbisk::pd")
    o.append("")
    return "\n".join(o)



def services(sv):
    """Hash calculations, value sets, digests with their fields, the snapshot
    layouts, and a lookup by handle for the first three."""
    o = ["const HashCalcDesc kHashCalcs[] = {"]
    o += ['    {"%s", %s, %s, %s},' % (h.name, hx(h.handle), hx(h.input), hx(h.algorithm))
          for h in sv.hash_calcs]
    o += ["};", "const std::size_t kNumHashCalcs = %d;" % len(sv.hash_calcs), ""]
    o += ["const ValueSetDesc kValueSets[] = {"]
    o += ['    {"%s", %s},' % (v.name, hx(v.handle)) for v in sv.value_sets]
    o += ["};", "const std::size_t kNumValueSets = %d;" % len(sv.value_sets), ""]
    for d in sv.digests:
        o.append("const DigestFieldDesc kDigestFields_%s[] = {" % d.name)
        o += ['    {"%s", %d, %d},' % (f.name, f.offset, f.nbytes) for f in d.fields]
        o += ["};"]
    o += ["const DigestDesc kDigests[] = {"]
    o += ['    {"%s", %s, %d, %d, kDigestFields_%s},' % (d.name, hx(d.handle), d.entry_bytes,
                                                     len(d.fields), d.name) for d in sv.digests]
    o += ["};", "const std::size_t kNumDigests = %d;" % len(sv.digests), ""]
    for bit, lay in enumerate(sv.snapshot_layouts):
        o.append("const SnapshotFieldDesc kSnapshotFields%d[] = {" % bit)
        for i in range(0, len(lay), 8):
            o.append("    " + " ".join("{%d, %d}," % f for f in lay[i:i + 8]))
        o.append("};")
    o += ["const SnapshotLayoutDesc kSnapshotLayouts[2] = {"]
    o += ["    {%d, kSnapshotFields%d}," % (len(lay), bit) for bit, lay in enumerate(sv.snapshot_layouts)]
    o += ["};", ""]
    for kind, arr, n in (("HashCalc", "kHashCalcs", "hash_calc"), ("ValueSet", "kValueSets", "value_set"),
                         ("Digest", "kDigests", "digest")):
        o += ["const %sDesc *find_%s(uint32_t handle) {" % (kind, n),
              "  for (std::size_t i = 0; i < kNum%ss; ++i) {" % kind,
              "    if (%s[i].handle == handle) return &%s[i];" % (arr, arr),
              "  }", "  return nullptr;", "}", ""]
    return o
