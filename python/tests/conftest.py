import os
import sys

import pytest

PACKAGE_DIR = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, PACKAGE_DIR)
# The shell runs in child processes: they find the package here too.
os.environ["PYTHONPATH"] = os.pathsep.join([PACKAGE_DIR] + [p for p in [os.environ.get("PYTHONPATH")] if p])

import orbisk  # noqa: E402


@pytest.fixture(scope="session")
def switch():
    return orbisk.Switch()


@pytest.fixture
def sw(switch):
    """The switch of device 0 on a model that forgets everything first."""
    switch.model.orbisk_model_reset()
    return switch


def widths_value(width, seed):
    """A value that fills a field of this width with a pattern of its own."""
    v = 0
    for i in range((width + 7) // 8):
        v = (v << 8) | ((0x5A + 0x11 * (seed + i)) & 0xFF)
    return v & ((1 << width) - 1)


def key_values(t, seed):
    """A key for the table derived from its widths: ternary fields with a
    full mask, prefix fields with a /w-8 prefix (host bits clear)."""
    match = {}
    for i, f in enumerate(t.shape.values):
        v = widths_value(f.width, seed + i)
        if f.prefix_field is not None:
            plen = max(f.width - 8, 0) if i else f.width
            v &= ~((1 << (f.width - plen)) - 1)
            match[f.key] = (v, plen)
        elif f.mask_field is not None:
            match[f.key] = (v, (1 << f.width) - 1)
        else:
            match[f.key] = v
    return match


def param_values(action, seed, bits=None):
    """Parameters derived from widths; bits=10 keeps them within the cells of
    any resource a parameter may index on an add, which sends the index cut
    to 16 bits (a modify sends it whole)."""
    return {p.name: widths_value(min(p.width, bits or p.width), seed + i) for i, p in enumerate(action.params)}


def member_for(sw, t, match, prio):
    """A member some profile holds that the selector table takes: each
    profile's first member is tried (the schema does not say which profile
    is behind a selector table)."""
    for p in sw.profiles:
        a = sorted(p.shape.actions.values(), key=lambda a: -len(a.params))[0]
        m = p.add_member(a.name, **param_values(a, 3))
        try:
            return t.add(match=match, priority=prio, member=m), p, m
        except orbisk.DriverError:
            p.del_member(m)
    raise AssertionError("%s takes no member of any profile" % t.name)
