"""The exported functions, one module per family group. Each module lists its
families in FAMILIES (see base.Family): the names, arguments, documentation
line and body of its functions. The header, the library sources and the
export list are all assembled from them, so a prototype, its definition and
its documentation cannot drift apart.

A module of this package with a FAMILIES list is a family group; it is found
here by itself, so a new group is one new module."""

import importlib
import pkgutil

from .base import Fn  # noqa: F401  (the emitters' view of a function)


def _groups():
    out = []
    for m in sorted(pkgutil.iter_modules(__path__), key=lambda m: m.name):
        mod = importlib.import_module("." + m.name, __name__)
        if hasattr(mod, "FAMILIES"):
            out.append(mod)
    return out


GROUPS = _groups()
FAMILIES = [f for g in GROUPS for f in g.FAMILIES]
EXPORTED_OBJECTS = [o for g in GROUPS for o in getattr(g, "EXPORTED_OBJECTS", [])]


# The families whose functions are not a table's.
NOT_OF_TABLES = ("action", "profile", "profile_action", "program", "resource", "service", "item")


def table_functions(t):
    """Every exported function of table t, in the order the header declares them."""
    keyed = [kf for f in FAMILIES if f.each not in NOT_OF_TABLES for kf in f.table_functions(t)]
    return [fn for _, fn in sorted(keyed, key=lambda kf: kf[0])]


def documented_families():
    """The table, profile, action and resource families, in the order of a
    table's declarations (those of a profile, of an action, then of the
    resources, last), for the header's family list."""
    table = sorted((f for f in FAMILIES if f.each not in NOT_OF_TABLES), key=lambda f: f.place)
    profile = sorted((f for f in FAMILIES if f.each in ("profile", "profile_action")),
                     key=lambda f: f.place)
    return (table + profile + [f for f in FAMILIES if f.each == "action"]
            + [f for f in FAMILIES if f.each in ("resource", "service")])


def item_families():
    """The families of the program's services with one function per hash
    calculation, value set or digest (or one in all), in module order."""
    return [f for f in FAMILIES if f.each == "item"]


def item_sections(prog):
    """(section title, [Fn]) of the item families, item by item within a
    section, in the order the header declares them."""
    out = []
    for g in GROUPS:
        fams = [f for f in g.FAMILIES if f.each == "item"]
        for section in dict.fromkeys(f.section for f in fams):
            per = [f.item_functions(prog) for f in fams if f.section == section and f.items]
            # Item by item: every function of the first item, then the next;
            # then the section's functions that are one in all.
            fns = [p[i] for i in range(max((len(p) for p in per), default=0)) for p in per]
            fns += [fn for f in fams if f.section == section and not f.items
                    for fn in f.item_functions(prog)]
            out.append((section, fns))
    return out


def profile_functions(p):
    """Every exported function of action profile p, in the order of its declarations."""
    keyed = [kf for f in FAMILIES if f.each in ("profile", "profile_action")
             for kf in f.profile_functions(p)]
    return [fn for _, fn in sorted(keyed, key=lambda kf: kf[0])]


def action_functions(a):
    """Every exported function of one action of the program (not of a table)."""
    return [f.fn(a=a) for f in FAMILIES if f.each == "action" and f.when(a)]


def unbuild_action_fn(a):
    return next(fn for fn in action_functions(a) if fn.family == "unbuild_action_spec")


def frame_functions():
    return [f.fn() for f in FAMILIES if f.each == "program"]


def resource_functions(prog, r):
    """Every exported function of one counter, meter or register."""
    return [f.fn(r=r) for f in FAMILIES if f.each == "resource" and f.when(r)]


def service_functions(group=None):
    """The functions that stand once beside the resources (of one group)."""
    return [f.fn() for f in FAMILIES if f.each == "service" and (group is None or f in group.FAMILIES)]


def all_functions(prog):
    fns = frame_functions() + service_functions()
    for r in prog.resources.values():
        fns += resource_functions(prog, r)
    for t in prog.tables:
        fns += table_functions(t)
    for p in prog.profiles:
        fns += profile_functions(p)
    for a in prog.actions:
        fns += action_functions(a)
    for _, ifns in item_sections(prog):
        fns += ifns
    return fns
