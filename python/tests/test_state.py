"""Dumps, loads and their differences over every table; several devices
side by side; hardware comparison; the shell."""

import os
import pty
import select
import subprocess
import sys

import orbisk
from conftest import key_values, member_for, param_values
from orbisk.model import calls


PROFILE_OF = {}


def populate(sw):
    """One entry in every table that takes entries, and a member of the
    profile behind each selector table (found by trying them first)."""
    if not PROFILE_OF:
        for t in sw.tables:
            if t.shape.selector:
                PROFILE_OF[t.name] = member_for(sw, t, key_values(t, 4), 11 if t.shape.has_priority else None)[1]
        sw.model.orbisk_model_reset()
        sw.model.orbisk_model_set_call_log(2, 0)
    for t in sw.tables:
        match = key_values(t, 4) if t.shape.record else None
        prio = 11 if t.shape.has_priority else None
        if t.shape.selector:
            p = PROFILE_OF[t.name]
            a = sorted(p.shape.actions.values(), key=lambda a: -len(a.params))[0]
            t.add(match=match, priority=prio, member=p.add_member(a.name, **param_values(a, 3)))
            continue
        acts = [a for a in t.actions if sw._native.has("%s_table_add_with_%s" % (t.name, a))]
        if acts:
            a = t.shape.actions[acts[-1]]
            t.add(match=match, action=a.name, priority=prio, **({"meter": (5, 6, 7, 8, 1)} if t.meter else {}),
                  **param_values(a, 6, bits=10))


def driver_writes(sw):
    return sorted((name, sorted(recs.items())) for name, status, recs in calls(sw.model)
                  if status == 0 and name in ("pipe_mgr_mat_ent_add", "pipe_mgr_adt_ent_add"))


def test_dump_and_load_replay_every_table_to_the_same_driver_bytes(sw):
    sw.model.orbisk_model_set_call_log(2, 0)  # every call
    populate(sw)
    first = driver_writes(sw)
    text = sw.dump()
    assert sum(1 for t in sw.tables if t.count()) == len(orbisk.Switch._shapes and
                                                          [n for n in eval(text)["tables"]])
    sw.model.orbisk_model_reset()
    sw.model.orbisk_model_set_call_log(2, 0)
    sw.load(text)
    assert driver_writes(sw) == first
    assert sw.dump() == text
    assert orbisk.diff(text, sw.dump()) == []


def test_diff_names_missing_extra_and_changed_entries(sw):
    t = sw.tables.ipv4Host
    h1 = t.add(match={"vrfId": 1, "dip": "10.0.0.1"}, action="setNextHop", nextHop=1)
    h2 = t.add(match={"vrfId": 1, "dip": "10.0.0.2"}, action="setNextHop", nextHop=2)
    before = sw.dump()
    t.modify(h1, action="setNextHop", nextHop=9)
    t.delete(h2)
    t.add(match={"vrfId": 2, "dip": "10.0.0.3"}, action="setNextHop", nextHop=3)
    assert orbisk.diff(before, sw.dump()) == [
        "changed: ipv4Host {'dip': '10.0.0.1', 'vrfId': 1} nextHop 1 -> 9",
        "missing: ipv4Host {'dip': '10.0.0.2', 'vrfId': 1}",
        "extra: ipv4Host {'dip': '10.0.0.3', 'vrfId': 2}",
    ]


def test_devices_side_by_side(sw):
    other = orbisk.Switch(device=1)
    t0, t1 = sw.tables.l2Lookup, other.tables.l2Lookup
    t1.add(match={"dmac": "00:00:00:00:00:01"}, action="onMiss")
    assert (t0.count(), t1.count()) == (0, 1)
    assert t0.shape is t1.shape, "one shape a process, whatever the device"
    assert list(calls(sw.model, "pipe_mgr_mat_ent_add"))


# What the model's chip is told to hold otherwise, and the name the message
# must give.
HW_FAULTS = [
    ("orbisk_model_hw_flip_data", (0, 1), "nextHop"),
    ("orbisk_model_hw_flip_key", (1, 0x10), "dip"),
    ("orbisk_model_hw_drop", (), "get_entry"),
]


def test_verify_finds_every_difference_the_hardware_is_given(sw):
    populate(sw)
    assert sw.verify() == []
    t = sw.tables.ipv4Host
    for control, args, words in HW_FAULTS:
        h = t.add(match={"vrfId": 9, "dip": "10.0.0.9"}, action="setNextHop", nextHop=1)
        assert getattr(sw.model, control)(0, t.shape.handle, h, *args) == 0
        found = sw.verify()
        assert len(found) == 1 and found[0].startswith("ipv4Host entry 0x%x: " % h) and words in found[0], found
        t.delete(h)
        assert sw.verify() == []


def read_until(fd, out, end):
    while not out.endswith(end):
        r, _, _ = select.select([fd], [], [], 60)
        try:
            chunk = os.read(fd, 4096) if r else b""
        except OSError:
            chunk = b""
        if not chunk:
            return out, False
        out += chunk
    return out, True


def run_shell(typed):
    """The shell under a pseudo-terminal, each line typed at its prompt:
    everything it printed."""
    pid, fd = pty.fork()
    if pid == 0:
        os.execv(sys.executable, [sys.executable, "-m", "orbisk"])
    out = b""
    for line in typed + [b"exit()\n"]:
        out, ok = read_until(fd, out, b">>> ")
        assert ok, out
        os.write(fd, line)
    out, _ = read_until(fd, out, b"never")
    os.waitpid(pid, 0)
    return out.decode(errors="replace")


def test_shell_runs_commands_and_completes_names():
    # A unique completion closes its quote; setNex completes to setNextHop,
    # the start of three actions.
    out = run_shell([b"h = sw.tables.ipv4Ho\t.add(match={'vrf\t: 2, 'dip': '10.9.8.7'}, action='setNex\t"
                     b"', nextHop=5)\n", b"print(sw.tables.ipv4Host.get(h))\n"])
    assert "device 0, 154 tables, 6 profiles" in out
    assert "ipv4Host[0x1] {'vrfId': 2, 'dip': '10.9.8.7'} -> setNextHop(nextHop=5)" in out


def test_shell_runs_one_command():
    out = subprocess.run([sys.executable, "-m", "orbisk", "-c", "sw.tables.vlanDecap.default()"],
                         capture_output=True, text=True, check=True).stdout
    assert "action='removeVlanHdr'" in out


def test_defaults_travel_in_a_dump_when_asked(sw):
    t, a = next((t, t.shape.actions[a]) for t in sw.tables for a in t.actions
                if t.shape.actions[a].params and sw._native.has("%s_set_default_action_%s" % (t.name, a)))
    params = param_values(a, 1, bits=8)
    t.set_default(a.name, **params)
    text = sw.dump(defaults=True)
    assert t.name in eval(text)["tables"]
    sw.model.orbisk_model_reset()
    start = t.default()
    assert start.params != params
    sw.load(text)
    assert (t.default().action, t.default().params) == (a.name, params)
    t.reset_default()
    changed = orbisk.diff(text, sw.dump(defaults=True))
    assert changed and all(c.startswith("changed: %s default " % t.name) for c in changed), changed
