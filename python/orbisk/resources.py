"""Counters, meters and registers by name. Which cells a resource has (an
entry's, or an index's) is not in the schema text: their functions are
typed from the library's declarations."""

import ctypes
from collections import namedtuple

from ._native import CounterValue, MeterSpec
from .values import OrbiskError

Count = namedtuple("Count", "packets bytes")
Meter = namedtuple("Meter", "cir cburst pir pburst meter_type")
REGISTER_ROOM = 64


class Resource:
    kind = ""

    def __init__(self, switch, name):
        self.switch, self.name = switch, name
        self._native = switch._native

    def __repr__(self):
        return "<%s %s of device %d>" % (self.kind, self.name, self.switch.device)

    @property
    def cells(self):
        """'entry' for one cell per entry of a table, 'index' for cells by index."""
        _, args = self._native.proto_fn("%s_read_%s" % (self.kind, self.name))
        return "entry" if any(n == "entry_hdl" for _, n in args) else "index"

    def _call(self, fn_name, entry=None, index=None, **given):
        fn, args = self._native.proto_fn(fn_name)
        sw, values, outs = self.switch, [], []
        for (ctype, name), argtype in zip(args, fn.argtypes):
            if name == "sess_hdl":
                values.append(sw.session)
            elif name == "dev_id":
                values.append(sw.device)
            elif name == "dev_tgt":
                values.append(sw.target)
            elif name == "entry_hdl":
                if entry is None:
                    raise OrbiskError("%s: cells are an entry's: entry=<handle>" % self.name)
                values.append(entry)
            elif name == "index":
                if index is None:
                    raise OrbiskError("%s: cells are by index: index=<n>" % self.name)
                values.append(index)
            elif name in given:
                v = given[name]
                values.append(ctypes.pointer(v) if "*" in ctype and not isinstance(v, ctypes.Array) else v)
            elif "*" in ctype:
                out = (argtype._type_ * REGISTER_ROOM)() if argtype._type_ is ctypes.c_uint8 else argtype._type_()
                outs.append(out)
                values.append(ctypes.cast(out, argtype) if isinstance(out, ctypes.Array) else ctypes.pointer(out))
            else:
                raise OrbiskError("%s: no value for argument %s of %s" % (self.name, name, fn_name))
        st = fn(*values)
        if st:
            raise sw._error(fn_name, st)
        return outs


class Counter(Resource):
    kind = "counter"

    def read(self, entry=None, index=None, sync=True):
        """A cell's packets and bytes; from the chip first unless sync=False."""
        out, = self._call("counter_read_" + self.name, entry, index, flags=1 if sync else 0)
        return Count(out.packets, out.bytes)

    def write(self, value, entry=None, index=None):
        self._call("counter_write_" + self.name, entry, index, counter_value=CounterValue(*value))


class MeterRes(Resource):
    kind = "meter"

    def read(self, entry=None, index=None):
        out, = self._call("meter_read_" + self.name, entry, index)
        return Meter(out.cir, out.cburst, out.pir, out.pburst, out.meter_type)

    def set(self, spec, entry=None, index=None):
        spec = MeterSpec(**spec) if isinstance(spec, dict) else MeterSpec(*spec)
        self._call("meter_set_" + self.name, entry, index, meter_spec=spec)


class Register(Resource):
    kind = "register"

    def read(self, index, sync=True):
        """The index's value in each pipe."""
        values, count = self._call("register_read_" + self.name, None, index, flags=1 if sync else 0)
        return [values[i] for i in range(count.value)]

    def write(self, index, value):
        self._call("register_write_" + self.name, None, index, register_value=ctypes.c_uint8(value))


class _Attr(ctypes.Structure):
    _fields_ = [("input_field", ctypes.c_uint32), ("attr_type", ctypes.c_uint32), ("value", ctypes.c_uint64)]


class Hash(Resource):
    """A hash calculation: its seed, and the value it gives for fields."""
    kind = "hash_calc"

    def _fn(self, what, types, restype=ctypes.c_uint32):
        return self._native.fn("hash_calc_%s_%s" % (self.name, what), types, restype)

    def _status(self, what, st):
        if st:
            raise self.switch._error("hash_calc_%s_%s" % (self.name, what), st)

    @property
    def seed(self):
        out = ctypes.c_uint64()
        self._status("seed_get", self._fn("seed_get", [ctypes.c_uint32, ctypes.c_uint32,
                                                       ctypes.POINTER(ctypes.c_uint64)])(
            self.switch.session, self.switch.device, ctypes.byref(out)))
        return out.value

    @seed.setter
    def seed(self, value):
        self._status("seed_set", self._fn("seed_set", [ctypes.c_uint32, ctypes.c_uint32, ctypes.c_uint64])(
            self.switch.session, self.switch.device, value))

    def calculate(self, fields, length=4):
        """The hash of fields given as (value, width in bits), first field
        first, as the driver computes it: length bytes."""
        n = len(fields)
        keep = []
        attrs = (_Attr * max(n, 1))()
        widths = (ctypes.c_uint32 * max(n, 1))()
        for i, (value, width) in enumerate(fields):
            if width > 32:
                buf = ctypes.create_string_buffer(value.to_bytes((width + 7) // 8, "big"), (width + 7) // 8)
                keep.append(buf)
                value = ctypes.addressof(buf)
            attrs[i] = _Attr(i, 0, value)
            widths[i] = width
        out = (ctypes.c_uint8 * length)()
        self._status("calculate_hash_value", self._fn("calculate_hash_value", [
            ctypes.c_uint32, ctypes.c_uint32, ctypes.c_uint32, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p,
            ctypes.c_uint32])(self.switch.session, self.switch.device, n, attrs, widths, out, length))
        return bytes(out)


class DigestMsg(ctypes.Structure):
    _fields_ = [("device_id", ctypes.c_uint32), ("dev_pipe_id", ctypes.c_uint16), ("digest_hdl", ctypes.c_uint32),
                ("num_entries", ctypes.c_uint16), ("entry_bytes", ctypes.c_uint16),
                ("entries", ctypes.POINTER(ctypes.c_uint8)), ("msg_id", ctypes.c_uint64)]


DIGEST_CB = ctypes.CFUNCTYPE(ctypes.c_uint32, ctypes.c_uint32, ctypes.POINTER(DigestMsg), ctypes.c_void_p)


class Digest(Resource):
    """A learning digest: subscribe, then take the entries learned. Each
    entry is its bytes as the driver delivers them (entry_size each): the
    names of its fields are not among the facts the library offers."""
    kind = "digest"

    def __init__(self, switch, name):
        super().__init__(switch, name)
        self._cb, self._got = None, []

    @property
    def entry_size(self):
        return self._native.fn("get_digest_entry_size", [ctypes.c_char_p])(self.name.encode())

    def _on_message(self, sess, msg, cookie):
        m = msg.contents
        data = ctypes.string_at(m.entries, m.num_entries * m.entry_bytes) if m.num_entries else b""
        self._got += [data[i * m.entry_bytes:(i + 1) * m.entry_bytes] for i in range(m.num_entries)]
        st = self._native.fn("%s_notify_ack" % self.name, [ctypes.c_uint32, ctypes.POINTER(DigestMsg)])(sess, msg)
        return st

    def subscribe(self):
        if self._cb is None:
            self._cb = DIGEST_CB(self._on_message)
            st = self._native.fn("%s_register" % self.name, [ctypes.c_uint32, ctypes.c_uint8, DIGEST_CB,
                                                             ctypes.c_void_p])(
                self.switch.session, self.switch.device, self._cb, None)
            if st:
                self._cb = None
                raise self.switch._error("%s_register" % self.name, st)

    def unsubscribe(self):
        if self._cb is not None:
            st = self._native.fn("%s_deregister" % self.name, [ctypes.c_uint32, ctypes.c_uint8])(
                self.switch.session, self.switch.device)
            if st:
                raise self.switch._error("%s_deregister" % self.name, st)
            self._cb = None

    def take(self):
        """The entries delivered since the last take, oldest first; every
        message was handed back to the driver as it came."""
        got, self._got = self._got, []
        return got
