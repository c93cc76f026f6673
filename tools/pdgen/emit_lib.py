"""Assembles the library's generated sources from the family modules: one
source per family group and area (pd_<group>_<area>.cpp, or pd_<group>.cpp
for a group of one-line functions), one per group for the functions of
actions (pd_<group>_actions.cpp) and one for those of action profiles
(pd_<group>_profiles.cpp), the files a module writes
itself (the packers' headers, the frame's tables), and the linker export list.
What a function does is its family's; this module only places it, so that a
change to one family recompiles only its group's sources."""

import families
from catalogue import AREA_FILES
from families import packing

HEAD = "// Generated from the catalogue. Do not edit."


def definition(f):
    if f.kind.alias:
        return ['PD_EXPORT %s __attribute__((alias("%s")));' % (f.proto(), f.kind.alias(f))]
    return ["PD_EXPORT " + f.proto() + " {"] + f.body() + ["}"]


def source(group, area, blocks, head=()):
    o = [HEAD]
    o += ['#include "%s"' % (inc.format(area=area) if area else inc) for inc in group.INCLUDES]
    o += ["", "using namespace orbisk::pd;", ""]
    o += list(head)
    for b in blocks:
        o += b + [""]
    return "\n".join(o)


def group_name(group):
    return group.__name__.rsplit(".", 1)[1]


def table_sources(prog, group):
    """A group's table functions: one source per area, or one in all for a
    group whose functions are a line or two each (BY_AREA = False), where a
    source per area would cost more to start than to compile."""
    by_area = getattr(group, "BY_AREA", True)
    # What the group's aliases stand for: defined once, so in a single source.
    head = group.source_head(prog) if hasattr(group, "source_head") else []
    assert not (head and by_area), "a group with a source head has one source"
    out = {}
    for area in AREA_FILES if by_area else [None]:
        blocks = []
        for t in prog.tables:
            if by_area and t.area_file != area:
                continue
            fns = [f for f in families.table_functions(t) if f.kind in group.FAMILIES]
            if not fns:
                continue
            b = ["// " + t.name]
            b += group.table_preamble(t) if hasattr(group, "table_preamble") else []
            for f in fns:
                b += definition(f)
            blocks.append(b)
        if blocks:
            name = "pd_%s_%s.cpp" % (group_name(group), area) if by_area else "pd_%s.cpp" % group_name(group)
            out[name] = source(group, area, blocks, head)
    return out


def profile_sources(prog, group):
    """A group's functions of the action profiles, in one source."""
    blocks = []
    for p in prog.profiles:
        fns = [f for f in families.profile_functions(p) if f.kind in group.FAMILIES]
        if fns:
            blocks.append(["// " + p.name] + [line for f in fns for line in definition(f)])
    return {"pd_%s_profiles.cpp" % group_name(group): source(group, None, blocks)} if blocks else {}


def action_sources(prog, group):
    blocks = []
    for a in prog.actions:
        fns = [f for f in families.action_functions(a) if f.kind in group.FAMILIES]
        if not fns:
            continue
        b = group.action_preamble(a) if hasattr(group, "action_preamble") else []
        for f in fns:
            b += definition(f)
        blocks.append(b)
    return {"pd_%s_actions.cpp" % group_name(group): source(group, None, blocks)} if blocks else {}


def resource_sources(prog, group):
    """A group's functions of resources and its services: one source."""
    blocks = []
    for r in prog.resources.values():
        fns = [f for f in families.resource_functions(prog, r) if f.kind in group.FAMILIES]
        if fns:
            blocks.append(["// " + r.name] + [x for f in fns for x in definition(f)])
    fns = families.service_functions(group)
    if fns:
        blocks.append([x for f in fns for x in definition(f)])
    return {"pd_%s.cpp" % group_name(group): source(group, None, blocks)} if blocks else {}


def item_sources(prog, group):
    """A group's functions of hash calculations, value sets, digests and
    snapshots, all in pd_<group>.cpp."""
    blocks = []
    for f in group.FAMILIES:
        if f.each != "item":
            continue
        for fn in f.item_functions(prog):
            blocks.append(definition(fn))
    return {"pd_%s.cpp" % group_name(group): source(group, None, blocks)} if blocks else {}


def emit_version_script(prog):
    names = sorted([f.name for f in families.all_functions(prog)] + families.EXPORTED_OBJECTS)
    o = ["{", "  global:"]
    o += ["    %s;" % n for n in names]
    o += ["  local:", "    *;", "};", ""]
    return "\n".join(o)


def emit(prog):
    """Every generated file of the library but the export list, by name."""
    out = dict(packing.files(prog))
    for group in families.GROUPS:
        if hasattr(group, "files"):
            out.update(group.files(prog))
        out.update(table_sources(prog, group))
        out.update(profile_sources(prog, group))
        out.update(action_sources(prog, group))
        out.update(resource_sources(prog, group))
        out.update(item_sources(prog, group))
    return out
