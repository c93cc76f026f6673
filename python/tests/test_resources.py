"""Counters, meters, registers, hash calculations, members and groups, read
back through the front, each family swept over all of its members."""

import ctypes

import pytest

import orbisk


def test_every_indexed_counter_and_meter_and_every_register_reads_back_what_was_written(sw):
    for c in sw.counters:
        if c.cells == "index":
            c.write((5, 300), index=3)
            assert c.read(index=3, sync=False) == (5, 300), c.name
    for m in sw.meters:
        if m.cells == "index":
            m.set((100, 10, 200, 20, 1), index=2)
            assert m.read(index=2) == (100, 10, 200, 20, 1), m.name
    for r in sw.registers:
        r.write(5, 1)
        assert set(r.read(5)) == {1} and set(r.read(6)) == {0}, r.name


def test_direct_cells_follow_their_entry(sw):
    h = sw.tables.ingressPortDropCheck.add(match={"ingressPort": 1, "illegalSmac": (1, 1)}, priority=1,
                                           action="setDrop")
    c = sw.counters.ingressPortDropCount
    assert c.cells == "entry"
    assert sw.model.orbisk_model_count_traffic(0, sw.tables.ingressPortDropCheck.shape.handle, h,
                                               ctypes.c_uint64(4), ctypes.c_uint64(256)) == 0
    assert c.read(entry=h, sync=False) == (0, 0)
    assert c.read(entry=h) == (4, 256)
    t = sw.tables.l2LookupMiss
    h = t.add(match={"ingressPort": (3, 0x7f)}, priority=2, action="NoAction", meter=(9, 8, 7, 6, 1))
    assert t.meter == "stormControlMeter"
    assert sw.meters[t.meter].read(entry=h) == (9, 8, 7, 6, 1)


def test_every_hash_calculation_keeps_what_it_is_given_and_hashes_as_the_driver(sw):
    f = sw.model.orbisk_model_hash
    f.restype, f.argtypes = ctypes.c_uint32, [ctypes.c_uint32, ctypes.c_uint64, ctypes.c_char_p, ctypes.c_size_t]
    attrs = [orbisk.HashAttribute(0, 1, 0x11), orbisk.HashAttribute(1, 2, 0xFFFFFFFF)]
    for i, h in enumerate(sw.hashes):
        assert (h.input, h.algorithm, h.seed, h.attributes()) == (0, 0, 0, []), h.name
        h.input, h.algorithm, h.seed = 0, 0, 100 + i
        h.set_attributes(attrs[:i % 3])
        assert (h.input, h.algorithm, h.seed) == (0, 0, 100 + i)
        assert (h.attribute_count(), h.attributes()) == (i % 3, attrs[:i % 3])
        got = int.from_bytes(h.calculate([(0x0102, 16), (0x030405, 24)]), "big")
        expect = {f(alg, 100 + i, bytes([1, 2, 3, 4, 5]), 5) for alg in (0x23000000, 0x23000001)}
        assert got in expect, h.name
        # Fields off byte boundaries make one bit string, right-aligned.
        assert h.calculate([(1, 4), (0x2345, 16)]) == h.calculate([(0x12345, 20)])
        # Only the calculation's own input and algorithm exist: another is
        # the driver's refusal, or the library's own status 3.
        for call, status in ((lambda: setattr(h, "input", 1), 0x131), (lambda: setattr(h, "algorithm", 1), 0x131),
                             (lambda: h.attributes(input=1), 3), (lambda: h.attribute_count(input=2), 3)):
            with pytest.raises(orbisk.DriverError) as info:
                call()
            assert info.value.status == status, h.name
    assert len(sw.hashes) == 12


def test_members_and_groups_of_every_profile_read_back(sw):
    for p in sw.profiles:
        acts = sorted(p.shape.actions.values(), key=lambda a: -len(a.params))
        ms = [p.add_member(a.name, **{q.name: 1 for q in a.params}) for a in acts]
        assert [m.handle for m in p.members()] == ms
        assert list(p.members()) == list(p.members(records=True)) == list(p.members(hw=True))
        assert [p.get_member(m).action for m in ms] == [a.name for a in acts]
        if acts[0].params:
            q = acts[0].params[0]
            p.modify_member(ms[0], acts[0].name, **{q.name: 0})
            assert p.get_member(ms[0]).params[q.name] in (0, "0.0.0.0", "00:00:00")
        g = p.create_group(len(ms))
        for m in reversed(ms):
            p.add_member_to_group(g, m)
        assert list(p.groups()) == [orbisk.Group(p.name, g, list(reversed(ms)))]
        assert len(p.group_placement(g)) > 0
        p.del_member_from_group(g, ms[-1])
        assert p.group_members(g) == list(reversed(ms))[1:]
        p.clear()
        assert p.member_handles() == [] and p.group_handles() == []
        with pytest.raises(orbisk.DriverError):
            p.group_placement(g)


def test_every_digest_delivers_what_was_learned(sw):
    import json
    import os
    services = json.load(open(os.path.join(os.path.dirname(__file__), "..", "..", "catalogue", "services.json")))
    assert sorted(sw.digests.names()) == sorted(d["name"] for d in services["digests"])
    for d in services["digests"]:
        dig = sw.digests[d["name"]]
        assert dig.entry_size == d["entry_bytes"]
        dig.subscribe()
        words = [max(1, f["bytes"] // 8) for f in d["fields"]]
        values = (ctypes.c_uint64 * sum(words))(*range(1, sum(words) + 1))
        assert sw.model.orbisk_model_learn(0, int(d["handle"], 16), values, sum(words)) == 0
        (entry,) = dig.take()
        expect = b"".join(b"".join(v.to_bytes(8, "big") for v in values[sum(words[:i]):sum(words[:i + 1])])[-f["bytes"]:]
                          for i, f in enumerate(d["fields"]))
        assert entry == expect, d["name"]
        dig.unsubscribe()
