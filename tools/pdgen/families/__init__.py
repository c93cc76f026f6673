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


def table_functions(t):
    """Every exported function of table t, in the order the header declares them."""
    keyed = [kf for f in FAMILIES if f.each == "table" or f.each.endswith("_action")
             for kf in f.table_functions(t)]
    return [fn for _, fn in sorted(keyed, key=lambda kf: kf[0])]


def documented_families():
    """The table and action families, in the order of a table's declarations
    (those of an action last), for the header's family list."""
    table = sorted((f for f in FAMILIES if f.each == "table" or f.each.endswith("_action")),
                   key=lambda f: f.place)
    return table + [f for f in FAMILIES if f.each == "action"]


def service_families():
    """The families of the program's services, in module order."""
    return [f for f in FAMILIES if f.each == "service"]


def service_header_lines(prog):
    """Declarations the service groups put in the header before their
    functions (records sized by the catalogue)."""
    return [line for g in GROUPS if hasattr(g, "header_lines") for line in g.header_lines(prog)]


def service_sections(prog):
    """(section title, [Fn]) of the services, item by item within a section,
    in the order the header declares them."""
    out = []
    for g in GROUPS:
        fams = [f for f in g.FAMILIES if f.each == "service"]
        for section in dict.fromkeys(f.section for f in fams):
            per = [f.service_functions(prog) for f in fams if f.section == section and f.items]
            # Item by item: every function of the first item, then the next;
            # then the section's functions that are one in all.
            fns = [p[i] for i in range(max((len(p) for p in per), default=0)) for p in per]
            fns += [fn for f in fams if f.section == section and not f.items
                    for fn in f.service_functions(prog)]
            out.append((section, fns))
    return out


def action_functions(a):
    """Every exported function of one action of the program (not of a table)."""
    return [f.fn(a=a) for f in FAMILIES if f.each == "action" and f.when(a)]


def unbuild_action_fn(a):
    return next(fn for fn in action_functions(a) if fn.family == "unbuild_action_spec")


def frame_functions():
    return [f.fn() for f in FAMILIES if f.each == "program"]


def all_functions(prog):
    fns = frame_functions()
    for t in prog.tables:
        fns += table_functions(t)
    for a in prog.actions:
        fns += action_functions(a)
    for _, sfns in service_sections(prog):
        fns += sfns
    return fns
