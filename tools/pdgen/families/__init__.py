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


# Families that are not a table's.
TABLELESS = ("action", "program", "profile", "profile_action")


def table_functions(t):
    """Every exported function of table t, in the order the header declares them."""
    keyed = [kf for f in FAMILIES if f.each not in TABLELESS for kf in f.table_functions(t)]
    return [fn for _, fn in sorted(keyed, key=lambda kf: kf[0])]


def documented_families():
    """The table, profile and action families, in the order of a table's
    declarations (those of a profile, then of an action, last), for the header's family list."""
    table = sorted((f for f in FAMILIES if f.each not in TABLELESS), key=lambda f: f.place)
    profile = sorted((f for f in FAMILIES if f.each in ("profile", "profile_action")),
                     key=lambda f: f.place)
    return table + profile + [f for f in FAMILIES if f.each == "action"]


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


def all_functions(prog):
    fns = frame_functions()
    for t in prog.tables:
        fns += table_functions(t)
    for p in prog.profiles:
        fns += profile_functions(p)
    for a in prog.actions:
        fns += action_functions(a)
    return fns
