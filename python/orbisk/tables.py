"""Match tables by name: entries added, changed, read, walked and deleted
through the library's functions, typed from the table's schema text."""

import ctypes
from dataclasses import dataclass, field as dc_field

from ._native import PREFIX, DevTarget, MeterSpec
from .values import OrbiskError, mac_pairs, parse_prefix, parse_scalar, show, show_mac

U32 = ctypes.c_uint32
P_U32 = ctypes.POINTER(ctypes.c_uint32)
P_BOOL = ctypes.POINTER(ctypes.c_bool)
ANY_SPEC_ROOM = 1024  # room for any action's parameters (the library's union)
NAME_ROOM = 128
WALK_BATCH = 256
TEXT_ROOM = 1 << 14
PLACEMENT_ROOM = 1 << 16  # the driver's placement records are its own; this is room for any


def placement_text(native, name, data):
    """The library's value text of a table's or profile's placement data."""
    fn = "%s_plcmt_data_value" % name
    if not native.has(fn):
        raise OrbiskError("%s: the library writes no placement text" % name)
    buf = ctypes.create_string_buffer(TEXT_ROOM)
    raw = ctypes.create_string_buffer(bytes(data), max(len(data), PLACEMENT_ROOM))
    n = native.fn(fn, [ctypes.c_void_p, ctypes.c_char_p], ctypes.c_int)(raw, buf)
    if n == 0:
        raise OrbiskError("%s: placement data the library cannot decode" % name)
    return buf.raw[:n].decode()


@dataclass
class Entry:
    """One entry as read back: its key by key name (addresses as text, a
    ternary field as (value, mask), a prefix as 'a.b.c.d/n'), its action and
    parameters, or the member or group it names."""
    table: str
    handle: int
    match: dict = dc_field(default_factory=dict)
    action: str = None
    params: dict = dc_field(default_factory=dict)
    priority: int = None
    member: int = None
    group: int = None
    is_default: bool = False

    def __str__(self):
        if self.member is not None or self.group is not None:
            what = "member 0x%x" % self.member if self.member is not None else "group 0x%x" % self.group
        else:
            what = "%s(%s)" % (self.action, ", ".join("%s=%r" % kv for kv in self.params.items()))
        return "%s[%s] %s%s -> %s" % (self.table, "default" if self.is_default else "-" if self.handle is None
                                      else "0x%x" % self.handle,
                                      self.match or "", "" if self.priority is None else
                                      " priority %d" % self.priority, what)

    def spec(self):
        """What add() takes to make this entry again."""
        d = {"match": dict(self.match)}
        if self.priority is not None:
            d["priority"] = self.priority
        if self.member is not None:
            d["member"] = self.member
        elif self.group is not None:
            d["group"] = self.group
        else:
            d["action"] = self.action
            d.update(self.params)
        return d


def strip_prefix(name):
    """Reads name actions by their full names; the front uses the short ones."""
    return name[len(PREFIX):] if name.startswith(PREFIX) else name


def record_value(rec, f):
    v = getattr(rec, f.field)
    return int.from_bytes(bytes(v), "big") if f.is_array else int(v)


def store_value(rec, f, v):
    if f.is_array:
        setattr(rec, f.field, f.ctype(*v.to_bytes(f.width // 8, "big")))
    else:
        setattr(rec, f.field, v)


def fill_params(action, params, owner):
    """An action's parameter record from keyword arguments (parameter names,
    full field names, or one MAC for two halves); None for no parameters."""
    pairs = action.mac_pairs
    values = {}
    for name, v in params.items():
        if name in pairs and name not in action.by_name:
            hi, lo = pairs[name]
            whole = parse_mac(v, owner, name)
            values[hi.name], values[lo.name] = whole >> 24, whole & 0xFFFFFF
            continue
        p = action.by_name.get(name)
        if p is None:
            raise OrbiskError("%s: action %s has no parameter %r (parameters: %s)" %
                              (owner, action.name, name, ", ".join(x.name for x in action.params) or "none"))
        values[p.name] = parse_scalar(v, p.width, p.fmt, owner, "%s.%s" % (action.name, p.name))
    if action.record is None:
        return None
    rec = action.record()
    for p in action.params:
        store_value(rec, p, values.get(p.name, 0))
    return rec


def parse_mac(v, owner, name):
    if isinstance(v, str):
        from .values import _mac_bytes
        return _mac_bytes(v.strip(), 6, owner, name)
    return parse_scalar(v, 48, None, owner, name)


def read_params(action, rec):
    if action.record is None:
        return {}
    out = {p.name: show(record_value(rec, p), p.width, p.fmt) for p in action.params}
    for whole, (hi, lo) in action.mac_pairs.items():
        out[whole] = show_mac(record_value(rec, hi), record_value(rec, lo))
        del out[hi.name], out[lo.name]
    return out


class Table:
    """One match table of one device."""

    def __init__(self, switch, shape):
        self.switch, self.shape, self.name = switch, shape, shape.name
        self._native = switch._native
        self._pairs = mac_pairs(shape.values, key=lambda f: f.key)
        self._calls = {}
        self._allowed = {}
        self._types = {}

    def __repr__(self):
        return "<table %s 0x%08x of device %d>" % (self.name, self.shape.handle, self.switch.device)

    def __dir__(self):
        return list(super().__dir__()) + ["actions", "fields"]

    @property
    def actions(self):
        return sorted(self.shape.actions)

    @property
    def fields(self):
        return [f.key for f in self.shape.fields]

    # ------------------------------------------------------------ records

    def match_record(self, match):
        """The table's key record from a dict of key names (or full field
        names) to values; fields left out are 0, a ternary field so left out
        matches anything."""
        shape, rec = self.shape, self.shape.record()
        match = dict(match or {})
        for name, v in match.items():
            if name in self._pairs and name not in shape.by_name:
                hi, lo = self._pairs[name]
                if isinstance(v, tuple):
                    (vv, mm) = self._pair(v, name)
                    vv, mm = parse_mac(vv, self.name, name), parse_mac(mm, self.name, name + " mask")
                    self._put(rec, hi, (vv >> 24, mm >> 24))
                    self._put(rec, lo, (vv & 0xFFFFFF, mm & 0xFFFFFF))
                else:
                    vv = parse_mac(v, self.name, name)
                    self._put(rec, hi, vv >> 24)
                    self._put(rec, lo, vv & 0xFFFFFF)
                continue
            f = shape.by_name.get(name)
            if f is None:
                raise OrbiskError("%s: unknown field %r (fields: %s)" %
                                  (self.name, name, ", ".join(x.key for x in shape.fields) or "none"))
            self._put(rec, f, v)
        return rec

    def _pair(self, v, name):
        if len(v) != 2:
            raise OrbiskError("%s.%s: a ternary value is (value, mask), not %r" % (self.name, name, v))
        return v

    def _put(self, rec, f, v):
        if f.kind != "value":
            store_value(rec, f, parse_scalar(v, f.width if f.kind == "mask" else 16, None, self.name, f.key))
            return
        if f.mask_field is not None:
            if isinstance(v, tuple):
                value, mask = self._pair(v, f.key)
                mask = parse_scalar(mask, f.width, f.fmt, self.name, f.key, "mask")
            else:
                value, mask = v, (1 << f.width) - 1
            store_value(rec, f.mask_field, mask)
        elif f.prefix_field is not None:
            if isinstance(v, str) and "/" in v:
                value, plen = parse_prefix(v, f.width, f.fmt, self.name, f.key)
            elif isinstance(v, tuple):
                value, plen = v
            else:
                value, plen = v, f.width
            if not 0 <= plen <= f.width:
                raise OrbiskError("%s.%s: prefix length %r is not 0 to %d" % (self.name, f.key, plen, f.width))
            store_value(rec, f.prefix_field, plen)
            value = parse_scalar(value, f.width, f.fmt, self.name, f.key)
            if value & ((1 << (f.width - plen)) - 1):
                raise OrbiskError("%s.%s: prefix %s/%d has host bits set below its length" %
                                  (self.name, f.key, show(value, f.width, f.fmt), plen))
            store_value(rec, f, value)
            return
        elif isinstance(v, tuple):
            raise OrbiskError("%s.%s: %r given, but the field is matched exactly (a ternary field takes "
                              "(value, mask), a prefix field (value, length))" % (self.name, f.key, v))
        else:
            value = v
        store_value(rec, f, parse_scalar(value, f.width, f.fmt, self.name, f.key))

    def read_match(self, rec):
        out = {}
        for f in self.shape.values:
            v = show(record_value(rec, f), f.width, f.fmt)
            if f.mask_field is not None:
                v = (v, show(record_value(rec, f.mask_field), f.width, f.fmt))
            elif f.prefix_field is not None:
                plen = record_value(rec, f.prefix_field)
                v = "%s/%d" % (v, plen) if isinstance(v, str) else (v, plen)
            out[f.key] = v
        for whole, (hi, lo) in self._pairs.items():
            a, b = out[hi.key], out[lo.key]
            if isinstance(a, tuple):
                v = (show_mac(int(a[0].replace(":", ""), 16), int(b[0].replace(":", ""), 16)),
                     show_mac(int(a[1].replace(":", ""), 16), int(b[1].replace(":", ""), 16)))
            else:
                v = show_mac(int(a.replace(":", ""), 16), int(b.replace(":", ""), 16))
            # The whole address stands where its first half stood.
            out = {(whole if k == hi.key else k): (v if k == hi.key else x) for k, x in out.items() if k != lo.key}
        return out

    def _action(self, name, use):
        got = self._allowed.get((name, use))
        if got is not None:
            return got
        a = self.shape.actions.get(name)
        fn = ("table_add_with_%s" if use == "entry" else "set_default_action_%s") % name
        if a is None or not self._native.has("%s_%s" % (self.name, fn)):
            allowed = sorted(n for n in self.shape.actions
                             if self._native.has("%s_%s" % (self.name, ("table_add_with_%s" if use == "entry"
                                                                          else "set_default_action_%s") % n)))
            raise OrbiskError("%s: unknown action %r %s (allowed: %s)" %
                              (self.name, name, "for an entry" if use == "entry" else "as default",
                               ", ".join(allowed) or "none"))
        self._allowed[(name, use)] = a
        return a

    # -------------------------------------------------------------- calls

    def _fn(self, suffix, types):
        """A function of the table, typed from the schema; the arguments the
        schema does not explain (a meter spec, an idle time) are taken from
        the library's declaration and put where it has them."""
        key = suffix
        got = self._calls.get(key)
        if got is not None:
            return got
        name = "%s_%s" % (self.name, suffix)
        proto = self._native.protos.get(name)
        extras = []
        if proto is not None:
            for pos, (ctype, argname) in enumerate(proto):
                if ctype.startswith("pd_meter_spec") or argname == "ttl":
                    extras.append((pos, "meter" if ctype.startswith("pd_meter_spec") else "ttl"))
            if len(proto) != len(types) + len(extras):
                raise OrbiskError("%s: the schema explains %d arguments of %s, its declaration has %d" %
                                  (self.name, len(types), name, len(proto)))
        full = list(types)
        for pos, kind in extras:
            full.insert(pos, ctypes.POINTER(MeterSpec) if kind == "meter" else U32)
        got = (self._native.fn(name, full), extras)
        self._calls[key] = got
        return got

    def _call(self, suffix, types, args, extra):
        fn, extras = self._fn(suffix, types)
        args = list(args)
        for pos, kind in extras:
            args.insert(pos, extra.get(kind))
        st = fn(*args)
        if st:
            raise self.switch._error("%s_%s" % (self.name, suffix), st)

    def _key_types(self):
        t = [ctypes.POINTER(self.shape.record)] if self.shape.record else []
        return t + ([U32] if self.shape.has_priority else [])

    def _key_args(self, match, priority):
        if not self.shape.record:
            if match:
                raise OrbiskError("%s: the table has no key, but %r was given" % (self.name, match))
            return []
        args = [ctypes.byref(self.match_record(match))]
        if self.shape.has_priority:
            args.append(0 if priority is None else parse_scalar(priority, 32, None, self.name, "priority"))
        elif priority is not None:
            raise OrbiskError("%s: the table takes no priority" % self.name)
        return args

    def _extras(self, meter, ttl):
        ex = {"ttl": 0 if ttl is None else parse_scalar(ttl, 32, None, self.name, "ttl")}
        if meter is not None:
            if isinstance(meter, dict):
                m = MeterSpec(**meter)
            else:
                m = MeterSpec(*meter)
            ex["meter"] = ctypes.pointer(m)
        return ex

    def _take_extras(self, suffix, types, action, params):
        """meter= and ttl= where the call carries them; a parameter of the
        action of the same name is the parameter."""
        kinds = [k for _, k in self._fn(suffix, types)[1]]
        meter = params.pop("meter", None) if "meter" in kinds and "meter" not in action.by_name else None
        ttl = params.pop("ttl", None) if "ttl" in kinds and "ttl" not in action.by_name else None
        return meter, ttl, kinds

    def add(self, match=None, action=None, priority=None, member=None, group=None, **params):
        """Adds an entry; its handle. An ordinary table takes an action and its
        parameters as keywords (and meter= or ttl= where its adds carry
        them); a selector table a member or a group."""
        sw, tgt = self.switch, self.switch.target
        out = U32()
        if self.shape.selector:
            if (member is None) == (group is None) or action is not None or params:
                raise OrbiskError("%s: entries name a member or a group (member=... or group=...)" % self.name)
            key = self._key_args(match, priority)
            suffix = "add_entry" if member is not None else "add_entry_with_selector"
            self._call(suffix, [U32, DevTarget] + self._key_types() + [U32, P_U32],
                       [sw.session, tgt] + key + [member if member is not None else group, ctypes.byref(out)], {})
            return out.value
        if action is None:
            raise OrbiskError("%s: an action is needed (actions: %s)" % (self.name, ", ".join(self.actions)))
        if member is not None or group is not None:
            raise OrbiskError("%s: the table holds actions, not members or groups" % self.name)
        a = self._action(action, "entry")
        meter, ttl, kinds = self._take_extras("table_add_with_" + action, self._add_types(a), a, params)
        spec = fill_params(a, params, self.name)
        key = self._key_args(match, priority)
        extra = self._extras(meter, ttl)
        if "meter" not in extra and "meter" in kinds:
            raise OrbiskError("%s: an entry of %s carries a meter: meter=(cir, cburst, pir, pburst, type)" %
                              (self.name, action))
        self._call("table_add_with_" + action, self._add_types(a),
                   [sw.session, tgt] + key + ([ctypes.byref(spec)] if spec is not None else []) +
                   [ctypes.byref(out)], extra)
        return out.value

    def _add_types(self, a):
        got = self._types.get(a.name)
        if got is None:
            got = self._types[a.name] = self._add_types_of(a)
        return got

    def _add_types_of(self, a):
        return [U32, DevTarget] + self._key_types() + ([ctypes.POINTER(a.record)] if a.record else []) + [P_U32]

    def modify(self, entry, action=None, member=None, group=None, priority=None, **params):
        """Gives an entry (a handle, or a key dict) a new action and
        parameters, or a new member or group."""
        sw = self.switch
        by_key = isinstance(entry, dict)
        head = [sw.session, sw.target] + self._key_args(entry, priority) if by_key else [sw.session, sw.device,
                                                                                          entry]
        head_t = [U32, DevTarget] + self._key_types() if by_key else [U32, U32, U32]
        tail = "_by_match_spec" if by_key else ""
        if self.shape.selector:
            if (member is None) == (group is None) or action is not None or params:
                raise OrbiskError("%s: entries name a member or a group (member=... or group=...)" % self.name)
            suffix = ("modify_entry" if member is not None else "modify_entry_with_selector") + tail
            self._call(suffix, head_t + [U32], head + [member if member is not None else group], {})
            return
        if action is None:
            raise OrbiskError("%s: an action is needed (actions: %s)" % (self.name, ", ".join(self.actions)))
        a = self._action(action, "entry")
        types = head_t + ([ctypes.POINTER(a.record)] if a.record else [])
        meter, _, _ = self._take_extras("table_modify_with_%s%s" % (action, tail), types, a, params)
        spec = fill_params(a, params, self.name)
        self._call("table_modify_with_%s%s" % (action, tail), types,
                   head + ([ctypes.byref(spec)] if spec is not None else []), self._extras(meter, None))

    def delete(self, entry, priority=None):
        """Deletes an entry by handle, or by key dict."""
        sw = self.switch
        if isinstance(entry, dict):
            self._call("table_delete_by_match_spec", [U32, DevTarget] + self._key_types(),
                       [sw.session, sw.target] + self._key_args(entry, priority), {})
        else:
            self._call("table_delete", [U32, U32, U32], [sw.session, sw.device, entry], {})

    def find(self, match, priority=None):
        """The handle of the entry with this key."""
        out = U32()
        self._call("match_spec_to_entry_hdl", [U32, DevTarget] + self._key_types() + [P_U32],
                   [self.switch.session, self.switch.target] + self._key_args(match, priority) +
                   [ctypes.byref(out)], {})
        return out.value

    def get(self, handle, hw=False):
        """The entry with this handle, built from its value text paired with
        the schema: each key field through the schema's mask (the bits the
        table's key covers; a 128-bit field whole), so bits above it read as
        0 where get_record() shows what the driver holds."""
        from .valuetext import parse_entry
        return parse_entry(self, self.value_text(handle, hw), handle)

    def get_record(self, handle, hw=False):
        """The entry with this handle as the library's read gives its
        records: every bit of every field the driver holds. Dumps read
        entries so, to replay them to the same driver bytes."""
        sw, shape = self.switch, self.shape
        head = [sw.session, sw.device, handle, bool(hw)]
        types = [U32, U32, U32, ctypes.c_bool]
        rec = shape.record() if shape.record else None
        prio = U32()
        if rec is not None:
            head.append(ctypes.byref(rec))
            types.append(ctypes.POINTER(shape.record))
        if shape.has_priority:
            head.append(ctypes.byref(prio))
            types.append(P_U32)
        is_default = ctypes.c_bool()
        e = Entry(self.name, handle)
        if shape.selector:
            has_m, has_g, g, m = ctypes.c_bool(), ctypes.c_bool(), U32(), U32()
            self._call("get_entry", types + [P_BOOL, P_BOOL, P_U32, P_U32, P_BOOL],
                       head + [ctypes.byref(x) for x in (has_m, has_g, g, m, is_default)], {})
            e.member = m.value if has_m.value else None
            e.group = g.value if has_g.value and not has_m.value else None
        else:
            name = ctypes.create_string_buffer(NAME_ROOM)
            spec = (ctypes.c_uint64 * (ANY_SPEC_ROOM // 8))()
            enum = U32()
            tail_t = [ctypes.c_char_p, ctypes.c_void_p, P_U32] + ([P_BOOL] if rec is not None else [])
            tail = [name, spec, ctypes.byref(enum)] + ([ctypes.byref(is_default)] if rec is not None else [])
            self._call("get_entry", types + tail_t, head + tail, {})
            e.action = strip_prefix(name.value.decode())
            a = shape.actions.get(e.action) or sw._actions.get(sw._native, e.action)
            if a.record is not None:
                e.params = read_params(a, a.record.from_buffer(spec))
        if rec is not None:
            e.match = self.read_match(rec)
            e.is_default = bool(is_default.value)
        if shape.has_priority:
            e.priority = prio.value
        return e

    def placement(self, handle):
        """The driver's placement data of an entry: bytes, opaque here."""
        room = ctypes.create_string_buffer(PLACEMENT_ROOM)
        size = U32(PLACEMENT_ROOM)
        self._call("get_plcmt_data", [U32, DevTarget, U32, U32, ctypes.c_void_p, P_U32],
                   [self.switch.session, self.switch.target, self.shape.handle, handle, room, ctypes.byref(size)],
                   {})
        return room.raw[:size.value]

    def from_placement(self, data):
        """An entry as placement data says it is (its handle unknown: None)."""
        shape, sw = self.shape, self.switch
        rec = shape.record() if shape.record else None
        prio, is_default = U32(), ctypes.c_bool()
        buf = ctypes.create_string_buffer(bytes(data), max(len(data), PLACEMENT_ROOM))
        args, types = [buf], [ctypes.c_void_p]
        if rec is not None:
            args.append(ctypes.byref(rec))
            types.append(ctypes.POINTER(shape.record))
        if shape.has_priority:
            args.append(ctypes.byref(prio))
            types.append(P_U32)
        e = Entry(self.name, None)
        if shape.selector:
            m, g, has_m, has_g = U32(), U32(), ctypes.c_bool(), ctypes.c_bool()
            self._call("get_entry_from_plcmt_data", types + [P_U32, P_U32, P_BOOL, P_BOOL, P_BOOL],
                       args + [ctypes.byref(x) for x in (m, g, has_m, has_g, is_default)], {})
            e.member = m.value if has_m.value else None
            e.group = g.value if has_g.value and not has_m.value else None
        else:
            room = (ctypes.c_uint64 * (ANY_SPEC_ROOM // 8 + 1))()
            self._call("get_entry_from_plcmt_data", types + [ctypes.c_void_p, P_BOOL],
                       args + [room, ctypes.byref(is_default)], {})
            e.action = sw._action_name(ctypes.c_uint32.from_buffer(room).value)
            a = sw._actions.get(sw._native, e.action)
            if a.record is not None:
                e.params = read_params(a, a.record.from_buffer(room, 4))
        if rec is not None:
            e.match = self.read_match(rec)
        e.is_default = bool(is_default.value)
        if shape.has_priority:
            e.priority = prio.value
        return e

    def value_text(self, handle, hw=False):
        """The library's value text of an entry (a Python literal paired with
        the schema text), where the library writes it."""
        name = "%s_value" % self.name
        if not self._native.has(name):
            raise OrbiskError("%s: the library writes no value text (%s%s)" % (self.name, "p4_pd_orbisk_switch_",
                                                                                name))
        buf = ctypes.create_string_buffer(TEXT_ROOM)
        f = self._native.fn(name, [U32, ctypes.c_uint8, U32, ctypes.c_uint8, ctypes.c_char_p], ctypes.c_int)
        n = f(self.switch.session, self.switch.device, handle, int(bool(hw)), buf)
        if n == 0:
            self.get_record(handle, hw)  # the read's status, as an exception
            raise OrbiskError("%s: no value text for entry 0x%x" % (self.name, handle))
        return buf.raw[:n].decode()

    def placement_text(self, data):
        """The library's value text of placement data: the entry's key and
        action, without priority."""
        return placement_text(self._native, self.name, data)

    def count(self):
        out = U32()
        self._call("get_entry_count", [U32, DevTarget, P_U32],
                   [self.switch.session, self.switch.target, ctypes.byref(out)], {})
        return out.value

    def handles(self):
        """Handles of the table's entries, in the driver's walk order."""
        sw = self.switch
        n = self.count()
        if n == 0:
            return []
        first = U32()
        self._call("get_first_entry_handle", [U32, DevTarget, P_U32], [sw.session, sw.target, ctypes.byref(first)],
                   {})
        out = [first.value]
        batch = (U32 * WALK_BATCH)()
        while len(out) < n:
            want = min(WALK_BATCH, n - len(out))
            self._call("get_next_entry_handles", [U32, DevTarget, U32, U32, ctypes.c_void_p],
                       [sw.session, sw.target, out[-1], want, batch], {})
            got = [batch[i] for i in range(want) if batch[i] != 0xFFFFFFFF]
            if not got:
                break
            out += got
        return out

    def entries(self, hw=False, records=False):
        """Every entry in walk order, read as get() reads it (as
        get_record() does with records=True)."""
        read = self.get_record if records else self.get
        for h in self.handles():
            yield read(h, hw)

    def clear(self):
        for h in self.handles():
            self.delete(h)

    @property
    def meter(self):
        """The name of the direct meter an entry carries, or None: from the
        name of the meter argument the library declares for its adds."""
        for a in self.shape.actions:
            proto = self._native.protos.get("%s_table_add_with_%s" % (self.name, a)) or []
            for ctype, argname in proto:
                if ctype.startswith("pd_meter_spec") and argname.endswith("_spec"):
                    return argname[:-len("_spec")]
        return None

    # ------------------------------------------------------------ default

    def set_default(self, action=None, member=None, group=None, **params):
        sw, out = self.switch, U32()
        if self.shape.selector:
            if (member is None) == (group is None) or action is not None:
                raise OrbiskError("%s: the default names a member or a group" % self.name)
            suffix = "set_default_entry" if member is not None else "set_default_entry_with_selector"
            self._call(suffix, [U32, DevTarget, U32, P_U32],
                       [sw.session, sw.target, member if member is not None else group, ctypes.byref(out)], {})
            return out.value
        a = self._action(action, "default")
        types = [U32, DevTarget] + ([ctypes.POINTER(a.record)] if a.record else []) + [P_U32]
        meter, _, _ = self._take_extras("set_default_action_" + action, types, a, params)
        spec = fill_params(a, params, self.name)
        self._call("set_default_action_" + action, types,
                   [sw.session, sw.target] + ([ctypes.byref(spec)] if spec is not None else []) + [ctypes.byref(out)],
                   self._extras(meter, None))
        return out.value

    def default_handle(self):
        out = U32()
        self._call("table_get_default_entry_handle", [U32, DevTarget, P_U32],
                   [self.switch.session, self.switch.target, ctypes.byref(out)], {})
        return out.value

    def default(self, hw=False):
        """The default entry, from its value text: its action and parameters
        (an ordinary table) or the member or group it names (a selector
        table)."""
        from .valuetext import parse_entry
        h = self.default_handle()
        e = parse_entry(self, self.value_text(h, hw), h)
        e.match, e.priority, e.is_default = {}, None, True
        return e

    def default_record(self, hw=False):
        """The default entry as the library's read of it gives its records
        (what a dump reads)."""
        sw = self.switch
        if self.shape.selector:
            e = self.get_record(self.default_handle(), hw)
            e.match, e.priority, e.is_default = {}, None, True
            return e
        room = (ctypes.c_uint64 * (ANY_SPEC_ROOM // 8 + 1))()
        self._call("table_get_default_entry", [U32, DevTarget, ctypes.c_bool, ctypes.c_void_p],
                   [sw.session, sw.target, bool(hw), room], {})
        enum = ctypes.c_uint32.from_buffer(room).value
        name = sw._action_name(enum)
        a = sw._actions.get(sw._native, name)
        e = Entry(self.name, self.default_handle(), action=name, is_default=True)
        if a.record is not None:
            e.params = read_params(a, a.record.from_buffer(room, 4))
        return e

    def reset_default(self):
        self._call("table_reset_default_entry", [U32, DevTarget], [self.switch.session, self.switch.target], {})
