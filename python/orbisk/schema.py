"""The shape of every table, action and profile, read from the library's
schema text at run time, and the ctypes records built from it."""

import ast
import ctypes

from ._native import MatchRecord
from .values import mac_pairs

SCHEMA_ROOM = 1 << 14


def ctype_of(width):
    """The host type of a field of this width, as the C header has it."""
    if width <= 8:
        return ctypes.c_uint8
    if width <= 16:
        return ctypes.c_uint16
    if width <= 32:
        return ctypes.c_uint32
    return ctypes.c_uint8 * (width // 8)


class Field:
    """One key element of a table's schema: a key field, or the mask or
    prefix-length companion of the field before it."""

    def __init__(self, elem, base=None, kind="value"):
        self.key, self.name, self.width, self.mask, self.fmt = elem[:5]
        self.field = self.name  # its member of the key record
        self.base, self.kind = base, kind  # kind: value, mask or prefix
        self.mask_field = self.prefix_field = None
        self.ctype = ctype_of(self.width)
        self.is_array = self.width > 32

    def __repr__(self):
        return "Field(%s %s/%d)" % (self.key, self.name, self.width)


class Param:
    def __init__(self, elem):
        self.name, self.fmt, self.width = elem[:3]
        self.field = "action_" + self.name
        self.ctype = ctype_of(self.width)
        self.is_array = self.width > 32


class Action:
    """An action: its name and parameters, and its parameter record."""

    def __init__(self, text):
        name, params = ast.literal_eval(text)
        self.name = name
        self.params = [Param(p) for p in params]
        self.by_name = {}
        for p in self.params:
            self.by_name[p.name] = self.by_name[p.field] = p
        self.mac_pairs = mac_pairs(self.params, key=lambda p: p.name)
        self.record = None
        if self.params:
            self.record = type("%s_action_spec_t" % name, (ctypes.Structure,),
                               {"_fields_": [(p.field, p.ctype) for p in self.params]})

    def __repr__(self):
        return "Action(%s(%s))" % (self.name, ", ".join(p.name for p in self.params))


def read_table_text(native, name):
    buf = ctypes.create_string_buffer(SCHEMA_ROOM)
    n = native.fn(name + "_schema", [ctypes.c_char_p], ctypes.c_int)(buf)
    return buf.raw[:n].decode()


class TableShape:
    """What the schema text says of a match table, and its key record."""

    def __init__(self, native, name, actions):
        self.name = name
        text = read_table_text(native, name)
        head, key, acts = ast.literal_eval(text)[:3]
        hdl = ctypes.c_uint32()
        native.fn(name + "_get_mat_table_handle", [ctypes.POINTER(ctypes.c_uint32)])(ctypes.byref(hdl))
        self.handle = hdl.value
        self.selector = bool(head[2][0])
        self.fields = []
        for elem in key:
            base = self.fields[-1] if self.fields else None
            if base is not None and base.kind == "value" and elem[1] == base.name + "_mask":
                f = Field(elem, base, "mask")
                base.mask_field = f
            elif base is not None and base.kind == "value" and elem[1] == base.name + "_prefix_length":
                f = Field(elem, base, "prefix")
                base.prefix_field = f
            else:
                f = Field(elem)
            self.fields.append(f)
        self.values = [f for f in self.fields if f.kind == "value"]
        self.by_name = {}
        for f in self.fields:
            self.by_name[f.key] = self.by_name[f.name] = f
        self.has_priority = any(f.kind == "mask" for f in self.fields)
        self.is_ternary = self.has_priority
        self.is_prefix = any(f.kind == "prefix" for f in self.fields)
        # An ordinary table lists its actions; a selector table names members
        # and groups of a profile instead, by its two fixed pairs (the first
        # names a member, the second a group), which its value text uses too.
        self.actions = {}
        self.selection = {}
        if self.selector:
            self.selection = {acts[0][0]: "member", acts[1][0]: "group"}
        else:
            for text_pair in acts:
                a_name = text_pair[0]
                self.actions[a_name] = actions.get(native, a_name)
        self.record = build_key_record(native, self) if self.fields else None

    def __repr__(self):
        return "TableShape(%s)" % self.name


def build_key_record(native, shape):
    """The table's key record. Fields stand in key order unless the library
    lays them out otherwise; where they stand is found by asking the
    library's own key reader (unbuild_key_<table>) to place each field of a
    key record in turn, so no layout is restated here."""
    order, places = probe_host_order(native, shape)
    fields = []
    for f in order:
        fields.append((f.name, f.ctype))
        for c in (f.mask_field, f.prefix_field):
            if c is not None:
                fields.append((c.name, c.ctype))
    rec = type("%s_match_spec_t" % shape.name, (ctypes.Structure,), {"_fields_": fields})
    for f, place in zip(shape.values, places):
        if getattr(rec, f.name).offset != place:
            raise RuntimeError("%s: the library places %s at %d, not %d" %
                               (shape.name, f.name, place, getattr(rec, f.name).offset))
    return rec


def probe_host_order(native, shape):
    nbytes = [(f.width + 7) // 8 for f in shape.values]
    total = sum(nbytes)
    unbuild = native.fn("unbuild_key_" + shape.name, [ctypes.POINTER(MatchRecord), ctypes.c_void_p], None,
                        prefix="")
    room = 64 + sum(ctypes.sizeof(f.ctype) for f in shape.fields) * 2
    places = []
    offset = 0
    for i, f in enumerate(shape.values):
        value = (ctypes.c_uint8 * max(total, 1))()
        mask = (ctypes.c_uint8 * max(total, 1))(*([0xFF] * total))
        for j in range(nbytes[i]):
            value[offset + j] = 0xFF
        rec = MatchRecord(ctypes.cast(value, ctypes.c_void_p), ctypes.cast(mask, ctypes.c_void_p), 0, 0,
                          0, total, 0)
        out = (ctypes.c_uint8 * room)()
        unbuild(ctypes.byref(rec), out)
        hit = [k for k in range(room) if out[k]]
        if not hit and i == 0:
            # The first field of a partitioned prefix table travels as the
            # record's partition index, not in the key bytes.
            for j in range(nbytes[i]):
                value[offset + j] = 0
            rec.partition_index = 0xFFFF
            unbuild(ctypes.byref(rec), out)
            hit = [k for k in range(room) if out[k]]
        places.append(hit[0] if hit else 1 << 30)
        offset += nbytes[i]
    return [f for _, _, f in sorted(zip(places, range(len(places)), shape.values))], places


class ActionCache:
    def __init__(self):
        self.by_name = {}

    def get(self, native, name):
        a = self.by_name.get(name)
        if a is None:
            text = native.fn(name + "_schema", [], ctypes.c_char_p)()
            a = self.by_name[name] = Action(text.decode())
        return a


class ProfileShape:
    """An action profile: its actions, from its schema text."""

    def __init__(self, native, name, actions):
        self.name = name
        text = read_table_text(native, name)
        hdl = ctypes.c_uint32()
        native.fn(name + "_get_adt_table_handle", [ctypes.POINTER(ctypes.c_uint32)])(ctypes.byref(hdl))
        self.handle = hdl.value
        self.actions = {pair[0]: actions.get(native, pair[0]) for pair in ast.literal_eval(text)}
