"""Assembles the library's generated sources from the family modules: the
action data packers, the per-table entry points, and the linker export list.
What a function does is its family's; this module only places it."""

import families
from catalogue import AREA_FILES
from families import frame, reads, unbuilders
from families.packing import pack_data_fn, pack_key_fn


def emit_generated_header(prog):
    o = ["// Generated from the catalogue. Do not edit.", "#pragma once", "",
         '#include "engine.h"', "", "namespace orbisk::pd {", "",
         "// The six member-selection states, in the order of creation.",
         "struct ProfileSlot {", "  const char *name;", "  pd_ms_state **state;", "};",
         "extern const ProfileSlot kProfileSlots[%d];" % len(prog.profiles), ""]
    for a in prog.actions:
        if a.has_spec:
            o += pack_data_fn(a)
            o.append("")
    o += ["}  // namespace orbisk::pd", ""]
    return "\n".join(o)


def definition(f):
    return ["PD_EXPORT " + f.proto() + " {"] + f.body() + ["}"]


def emit_actions_source(prog):
    o = ["// Generated from the catalogue. Do not edit.", '#include "pd_generated.h"', "",
         "using namespace orbisk::pd;", ""]
    o += frame.action_names(prog)
    o += frame.profile_slots(prog)
    for a in prog.actions:
        fns = families.action_functions(a)
        if fns:
            o += unbuilders.action_preamble(a)
        for f in fns:
            o += definition(f)
            o.append("")
    return "\n".join(o)


def emit_area_source(prog, area_tables):
    o = ["// Generated from the catalogue. Do not edit.", '#include "pd_generated.h"',
         '#include "pd_limits.h"', "", "using namespace orbisk::pd;", ""]
    for t in area_tables:
        o.append("// %s" % t.name)
        fns = families.table_functions(t)
        unbuild = [f for f in fns if families.group_of(f.kind) is unbuilders]
        if t.keyed:
            o += pack_key_fn(t)
            for f in unbuild:
                o += definition(f)
        o += reads.table_preamble(t)
        for f in fns:
            if f not in unbuild:
                o += definition(f)
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
