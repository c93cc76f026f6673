"""Action profiles by name: members, groups and their reads."""

import ctypes
from dataclasses import dataclass, field as dc_field

from ._native import DevTarget
from .tables import (ANY_SPEC_ROOM, PLACEMENT_ROOM, P_U32, TEXT_ROOM, U32, WALK_BATCH, fill_params,
                     placement_text, read_params)
from .values import OrbiskError


@dataclass
class Member:
    profile: str
    handle: int
    action: str
    params: dict = dc_field(default_factory=dict)

    def _replace_handle(self, handle):
        return Member(self.profile, handle, self.action, dict(self.params))


@dataclass
class Group:
    profile: str
    handle: int
    members: list = dc_field(default_factory=list)


class Profile:
    """One action profile of one device: its members and groups."""

    def __init__(self, switch, shape):
        self.switch, self.shape, self.name = switch, shape, shape.name
        self._native = switch._native

    def __repr__(self):
        return "<profile %s 0x%08x of device %d>" % (self.name, self.shape.handle, self.switch.device)

    @property
    def actions(self):
        return sorted(self.shape.actions)

    def _call(self, suffix, types, args):
        st = self._native.fn("%s_%s" % (self.name, suffix), types)(*args)
        if st:
            raise self.switch._error("%s_%s" % (self.name, suffix), st)

    def _action(self, name):
        a = self.shape.actions.get(name)
        if a is None:
            raise OrbiskError("%s: unknown action %r (actions: %s)" % (self.name, name, ", ".join(self.actions)))
        return a

    def add_member(self, action, **params):
        """Adds a member running the action; its handle."""
        a = self._action(action)
        spec = fill_params(a, params, self.name)
        out = U32()
        self._call("add_member_with_" + action,
                   [U32, DevTarget] + ([ctypes.POINTER(a.record)] if a.record else []) + [P_U32],
                   [self.switch.session, self.switch.target] + ([ctypes.byref(spec)] if spec is not None else []) +
                   [ctypes.byref(out)])
        return out.value

    def modify_member(self, member, action, **params):
        a = self._action(action)
        spec = fill_params(a, params, self.name)
        self._call("modify_member_with_" + action,
                   [U32, U32, U32] + ([ctypes.POINTER(a.record)] if a.record else []),
                   [self.switch.session, self.switch.device, member] + ([ctypes.byref(spec)] if spec is not None
                                                                        else []))

    def del_member(self, member):
        self._call("del_member", [U32, U32, U32], [self.switch.session, self.switch.device, member])

    def _read_member(self, member, hw):
        """The library's read of a member: its action and parameter record."""
        room = (ctypes.c_uint64 * (ANY_SPEC_ROOM // 8 + 1))()
        self._call("get_member", [U32, U32, U32, ctypes.c_bool, ctypes.c_void_p],
                   [self.switch.session, self.switch.device, member, bool(hw), room])
        name = self.switch._action_name(ctypes.c_uint32.from_buffer(room).value)
        a = self.shape.actions.get(name) or self.switch._actions.get(self._native, name)
        return a, (a.record.from_buffer(room, 4) if a.record is not None else None)

    def get_member(self, member, hw=False):
        """A member, built from value text paired with the schema: the text
        of its placement data (<profile>_plcmt_data_value), or with hw=True
        the text its action writes (<a>_value) of the member read from
        hardware."""
        from .valuetext import parse_member
        if hw:
            a, spec = self._read_member(member, True)
            buf = ctypes.create_string_buffer(TEXT_ROOM)
            if spec is None:
                n = self._native.fn(a.name + "_value", [ctypes.c_char_p], ctypes.c_int)(buf)
            else:
                n = self._native.fn(a.name + "_value", [ctypes.c_void_p, ctypes.c_char_p], ctypes.c_int)(
                    ctypes.byref(spec), buf)
            text = buf.raw[:n].decode()
        else:
            text = self.placement_text(self.placement(member))
        return parse_member(self, text, member)

    def get_member_record(self, member, hw=False):
        """A member as the library's read gives its record (what a dump
        reads)."""
        a, spec = self._read_member(member, hw)
        return Member(self.name, member, a.name, read_params(a, spec) if spec is not None else {})

    def _placement(self, suffix, handle):
        room = ctypes.create_string_buffer(PLACEMENT_ROOM)
        size = U32(PLACEMENT_ROOM)
        self._call(suffix, [U32, DevTarget, U32, U32, ctypes.c_void_p, P_U32],
                   [self.switch.session, self.switch.target, self.shape.handle, handle, room, ctypes.byref(size)])
        return room.raw[:size.value]

    def placement(self, member):
        """The driver's placement data of a member: bytes, opaque here."""
        return self._placement("get_plcmt_data", member)

    def group_placement(self, group):
        """The driver's placement data of a group: bytes, which the library
        offers no decoder of."""
        return self._placement("sel_get_plcmt_data", group)

    def from_placement(self, data):
        """A member as placement data says it is (its handle unknown: None)."""
        room = (ctypes.c_uint64 * (ANY_SPEC_ROOM // 8 + 1))()
        buf = ctypes.create_string_buffer(bytes(data), max(len(data), PLACEMENT_ROOM))
        self._call("get_member_from_plcmt_data", [ctypes.c_void_p, ctypes.c_void_p], [buf, room])
        name = self.switch._action_name(ctypes.c_uint32.from_buffer(room).value)
        a = self.switch._actions.get(self._native, name)
        return Member(self.name, None, name, read_params(a, a.record.from_buffer(room, 4)) if a.record else {})

    def placement_text(self, data):
        """The library's value text of a member's placement data."""
        return placement_text(self._native, self.name, data)

    def _walk(self, first, nxt, count_suffix, head, head_t):
        n = U32()
        self._call(count_suffix, head_t + [P_U32], head + [ctypes.byref(n)])
        if n.value == 0:
            return []
        h = U32()
        self._call(first, head_t + [P_U32], head + [ctypes.byref(h)])
        out = [h.value]
        batch = (U32 * WALK_BATCH)()
        while len(out) < n.value:
            want = min(WALK_BATCH, n.value - len(out))
            self._call(nxt, head_t + [U32, U32, ctypes.c_void_p], head + [out[-1], want, batch])
            got = [batch[i] for i in range(want) if batch[i] != 0xFFFFFFFF]
            if not got:
                break
            out += got
        return out

    def member_handles(self):
        return self._walk("get_first_member", "get_next_members", "get_act_prof_entry_count",
                          [self.switch.session, self.switch.target], [U32, DevTarget])

    def members(self, hw=False, records=False):
        """Every member in walk order, read as get_member() reads it (as
        get_member_record() does with records=True)."""
        read = self.get_member_record if records else self.get_member
        for h in self.member_handles():
            yield read(h, hw)

    def create_group(self, max_size=64):
        out = U32()
        self._call("create_group", [U32, DevTarget, U32, P_U32],
                   [self.switch.session, self.switch.target, max_size, ctypes.byref(out)])
        return out.value

    def del_group(self, group):
        self._call("del_group", [U32, U32, U32], [self.switch.session, self.switch.device, group])

    def add_member_to_group(self, group, member):
        self._call("add_member_to_group", [U32, U32, U32, U32],
                   [self.switch.session, self.switch.device, group, member])

    def del_member_from_group(self, group, member):
        self._call("del_member_from_group", [U32, U32, U32, U32],
                   [self.switch.session, self.switch.device, group, member])

    def group_handles(self):
        return self._walk("get_first_group", "get_next_groups", "get_selector_group_count",
                          [self.switch.session, self.switch.target], [U32, DevTarget])

    def group_members(self, group):
        return self._walk("get_first_group_member", "get_next_group_members", "get_selector_group_member_count",
                          [self.switch.session, self.switch.device, group], [U32, U32, U32])

    def groups(self):
        """Every group and its members' handles. A group has no value text
        (its placement data has no decoder): the read is the walks'."""
        for g in self.group_handles():
            yield Group(self.name, g, self.group_members(g))

    def clear(self):
        for g in self.group_handles():
            self.del_group(g)
        for m in self.member_handles():
            self.del_member(m)
