"""Every table and every action it allows, through the front on the driver
model: added, read back, compared, modified, found, deleted."""

import ctypes

import pytest

from conftest import key_values, member_for, param_values
from orbisk._native import MeterSpec
from orbisk.model import calls
from orbisk.tables import fill_params
from orbisk.valuetext import parse_placement

SWITCH = None


def table_names():
    import orbisk
    global SWITCH
    SWITCH = SWITCH or orbisk.Switch()
    return SWITCH.tables.names()


def through_masks(t, rec):
    """A key record's fields as value text shows them: through the schema's
    masks, but for 128-bit fields."""
    return [bytes(getattr(rec, f.name)) if f.is_array else getattr(rec, f.name) & f.mask for f in t.shape.fields]


def raw_add(sw, t, a, match, prio, params, meter):
    """The C entry point called directly with records filled field by field,
    not by the front: the key and data bytes the driver received."""
    rec = t.shape.record() if t.shape.record else None
    for f in t.shape.values if rec is not None else []:
        v = match[f.key]
        v, companion = v if isinstance(v, tuple) else (v, None)
        setattr(rec, f.name, f.ctype(*v.to_bytes(f.width // 8, "big")) if f.is_array else v)
        for c in (f.mask_field, f.prefix_field):
            if c is not None:
                setattr(rec, c.name, c.ctype(*companion.to_bytes(c.width // 8, "big")) if c.is_array else companion)
    spec = a.record() if a.record else None
    for p in a.params:
        setattr(spec, p.field, params[p.name])
    out = ctypes.c_uint32()
    args = [ctypes.c_uint32(0), sw.target] + ([ctypes.byref(rec)] if rec is not None else [])
    args += [ctypes.c_uint32(prio)] if prio is not None else []
    args += [ctypes.byref(spec)] if spec is not None else []
    args += [ctypes.pointer(MeterSpec(*meter["meter"]))] if meter else []
    # An idle time, where the library's declaration has one, goes last but the handle.
    args += [ctypes.c_uint32(0)] if "ttl" in [k for _, k in t._fn("table_add_with_" + a.name, t._add_types(a))[1]] \
        else []
    fn = getattr(sw._native.lib, "p4_pd_orbisk_switch_%s_table_add_with_%s" % (t.name, a.name))
    fn.restype = ctypes.c_uint32
    assert fn(*args, ctypes.byref(out)) == 0
    bytes_sent = calls(sw.model, "pipe_mgr_mat_ent_add")[-1][2]
    t.delete(out.value)
    return bytes_sent


def same_record(rec_a, rec_b):
    return bytes(rec_a) == bytes(rec_b)


def reads_agree(t, h):
    """The entry read from its value text (get) and from the library's
    records (get_record) agree on everything, the key through the schema's
    masks; so do the entry's placement data decoded both ways. Both reads."""
    text, rec = t.get(h), t.get_record(h)
    assert [getattr(text, f) for f in SAME] == [getattr(rec, f) for f in SAME], (text, rec)
    assert through_masks(t, t.match_record(text.match)) == through_masks(t, t.match_record(rec.match))
    assert t.get(h, hw=True) == text
    data = t.placement(h)
    placed, placed_text = t.from_placement(data), parse_placement(t, t.placement_text(data))
    assert [getattr(placed, f) for f in SAME] == [getattr(rec, f) for f in SAME]
    assert [getattr(placed_text, f) for f in SAME[:-1]] == [getattr(text, f) for f in SAME[:-1]]
    assert placed_text.match == text.match
    return text, rec


SAME = ("action", "params", "member", "group", "is_default", "priority")


@pytest.mark.parametrize("name", table_names())
def test_every_action_round_trips(sw, name):
    t = sw.tables[name]
    match = key_values(t, 1) if t.shape.record else None
    # A priority the value text prints negative, read back as it was given.
    prio = 0x80000007 if t.shape.has_priority else None
    if t.shape.selector:
        h, p, m = member_for(sw, t, match, prio)
        text, e = reads_agree(t, h)
        assert (text.member, text.group, text.priority) == (m, None, prio)
        member = p.get_member(m)
        assert member == p.get_member(m, hw=True) == p.get_member_record(m)
        assert p.from_placement(p.placement(m)) == member._replace_handle(None)
        assert same_record(t.match_record(e.match), t.match_record(match))
        g = p.create_group(2)
        p.add_member_to_group(g, m)
        assert len(p.group_placement(g)) > 0
        t.modify(h, group=g)
        assert (reads_agree(t, h)[0].member, t.get(h).group) == (None, g)
        t.set_default(member=m)
        assert (t.default().member, t.default().is_default) == (m, True) and t.default() == t.default_record()
        assert t.find(match, prio) == h
        t.delete(h)
        assert t.count() == 0
        return
    actions = [a for a in t.actions if sw._native.has("%s_table_add_with_%s" % (name, a))]
    assert actions or not t.shape.record
    meter = {"meter": (10, 20, 30, 40, 1)} if t.meter else {}
    for n, a_name in enumerate(actions):
        a = t.shape.actions[a_name]
        params = param_values(a, n, bits=10)
        direct = raw_add(sw, t, a, match, prio, params, meter)
        h = t.add(match=match, action=a_name, priority=prio, **meter, **params)
        assert calls(sw.model, "pipe_mgr_mat_ent_add")[-1][2] == direct
        text, e = reads_agree(t, h)
        assert (text.action, text.priority) == (a_name, prio)
        if t.shape.record:
            assert same_record(t.match_record(e.match), t.match_record(match)), e
        if a.record:
            assert same_record(fill_params(a, text.params, name), fill_params(a, params, name)), text
        # The readable record makes the same entry again.
        assert same_record(t.match_record(e.spec()["match"]), t.match_record(match)) if t.shape.record else True
        other = param_values(a, n + 5)
        t.modify(h, action=a_name, **other)
        if a.record:
            assert same_record(fill_params(a, reads_agree(t, h)[0].params, name), fill_params(a, other, name))
        if t.shape.record:
            assert t.find(match, prio) == h
            t.delete(dict(match), priority=prio)
        else:
            t.delete(h)
        assert t.count() == 0


def test_defaults_of_every_table_read_back_and_reset(sw):
    """Every default action each table allows, set and read back."""
    for t in sw.tables:
        if t.shape.selector:
            continue
        start = t.default()
        for a_name in t.actions:
            if not sw._native.has("%s_set_default_action_%s" % (t.name, a_name)):
                continue
            a = t.shape.actions[a_name]
            params = param_values(a, 2)
            t.set_default(a_name, **({"meter": (1, 2, 3, 4, 1)} if t.meter else {}), **params)
            d = t.default()
            assert d.action == a_name and d == t.default_record(), t.name
            if a.record:
                assert same_record(fill_params(a, d.params, t.name), fill_params(a, params, t.name))
        t.reset_default()
        assert t.default() == start, t.name


def test_key_records_match_the_c_header(switch, tmp_path):
    """Every key and parameter record the front builds has the size and
    offsets the C compiler gives the header's records."""
    import os
    import subprocess
    from orbisk._native import find_headers
    dirs = find_headers(switch._native.lib_path)
    lines = ['#include <stdio.h>', '#include <stddef.h>', '#include "orbisk_switch/pd.h"', "int main(void) {"]
    expect = []
    for t in switch.tables:
        if t.shape.record is None:
            continue
        typ = "p4_pd_orbisk_switch_%s_match_spec_t" % t.name
        lines.append('printf("%%zu\\n", sizeof(%s));' % typ)
        expect.append(ctypes.sizeof(t.shape.record))
        for f in t.shape.fields:
            lines.append('printf("%%zu\\n", offsetof(%s, %s));' % (typ, f.name))
            expect.append(getattr(t.shape.record, f.name).offset)
    for a in sorted(switch._actions.by_name.values(), key=lambda a: a.name):
        if a.record is None:
            continue
        typ = "p4_pd_orbisk_switch_%s_action_spec_t" % a.name
        lines.append('printf("%%zu\\n", sizeof(%s));' % typ)
        expect.append(ctypes.sizeof(a.record))
        for p in a.params:
            lines.append('printf("%%zu\\n", offsetof(%s, %s));' % (typ, p.field))
            expect.append(getattr(a.record, p.field).offset)
    lines.append("return 0; }")
    src = tmp_path / "layout.c"
    src.write_text("\n".join(lines))
    exe = tmp_path / "layout"
    cc = os.environ.get("CC", "cc")
    subprocess.run([cc, "-std=c11", str(src), "-o", str(exe)] + ["-I" + d for d in dirs], check=True)
    got = [int(x) for x in subprocess.run([str(exe)], check=True, capture_output=True, text=True).stdout.split()]
    assert len(expect) > 1000 and got == expect
