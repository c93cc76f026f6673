"""Counters, meters and registers by name. Which cells a resource has (an
entry's, or an index's) is not in the schema text: their functions are
typed from the library's declarations."""

import ctypes
from collections import namedtuple

from ._native import CounterValue, MeterSpec
from .values import OrbiskError, parse_scalar

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


HashAttribute = namedtuple("HashAttribute", "input_field attr_type value")
U32 = ctypes.c_uint32
P_U32 = ctypes.POINTER(ctypes.c_uint32)
# The driver keeps the low 32 bits of an attribute's value (its record has
# no more room in use): a wider value is refused rather than cut.
ATTR_VALUE_BITS = 32


class Hash(Resource):
    """A hash calculation: its input field list and algorithm (0 is the
    calculation's own, the only ones the program has), its seed, the
    attributes of its input fields, and the value it gives for fields."""
    kind = "hash_calc"

    def _run(self, what, types, *args):
        name = "hash_calc_%s_%s" % (self.name, what)
        st = self._native.fn(name, [U32, U32] + types)(self.switch.session, self.switch.device, *args)
        if st:
            raise self.switch._error(name, st)

    def _get(self, what, ctype=U32):
        out = ctype()
        self._run(what + "_get", [ctypes.POINTER(ctype)], ctypes.byref(out))
        return out.value

    def _set(self, what, value, width=32, ctype=U32):
        self._run(what + "_set", [ctype], parse_scalar(value, width, None, self.name, what))

    input = property(lambda self: self._get("input"), lambda self, v: self._set("input", v),
                     doc="The input field list: 0 is the calculation's own.")
    algorithm = property(lambda self: self._get("algorithm"), lambda self, v: self._set("algorithm", v),
                         doc="The algorithm: 0 is the calculation's own.")
    seed = property(lambda self: self._get("seed", ctypes.c_uint64),
                    lambda self, v: self._set("seed", v, 64, ctypes.c_uint64))

    def set_attributes(self, attributes, input=0):
        """Sets the attributes of the input's fields, each (input field,
        attribute type, value); an empty list clears them."""
        attributes = list(attributes)
        recs = (_Attr * max(len(attributes), 1))()
        for i, a in enumerate(attributes):
            if len(a) != 3:
                raise OrbiskError("%s: an attribute is (input_field, attr_type, value), not %r" % (self.name, a))
            recs[i] = _Attr(parse_scalar(a[0], 32, None, self.name, "input_field"),
                            parse_scalar(a[1], 32, None, self.name, "attr_type"),
                            parse_scalar(a[2], ATTR_VALUE_BITS, None, self.name, "attribute value"))
        self._run("input_field_attribute_set", [U32, U32, ctypes.c_void_p],
                   parse_scalar(input, 32, None, self.name, "input"), len(attributes), recs)

    def attribute_count(self, input=0):
        out = U32()
        self._run("input_field_attribute_count_get", [U32, P_U32], input, ctypes.byref(out))
        return out.value

    def attributes(self, input=0):
        """The attributes of the input's fields, as HashAttribute records."""
        room = self.attribute_count(input)
        recs, out = (_Attr * max(room, 1))(), U32()
        self._run("input_field_attribute_get", [U32, U32, ctypes.c_void_p, P_U32], input, room, recs,
                   ctypes.byref(out))
        return [HashAttribute(r.input_field, r.attr_type, r.value) for r in recs[:out.value]]

    def calculate(self, fields, length=4):
        """The hash of fields given as (value, width in bits), first field
        first, as the driver computes it: length bytes. A value wider than
        its width is refused (the library would spill it into the field
        before)."""
        n = len(fields)
        keep = []
        attrs = (_Attr * max(n, 1))()
        widths = (ctypes.c_uint32 * max(n, 1))()
        for i, f in enumerate(fields):
            if len(f) != 2:
                raise OrbiskError("%s: a field is (value, width in bits), not %r" % (self.name, f))
            value, width = f
            if not isinstance(width, int) or width <= 0:
                raise OrbiskError("%s: field %d: width %r is not a positive number of bits" % (self.name, i, width))
            value = parse_scalar(value, width, None, self.name, "field %d" % i)
            if width > 32:
                buf = ctypes.create_string_buffer(value.to_bytes((width + 7) // 8, "big"), (width + 7) // 8)
                keep.append(buf)
                value = ctypes.addressof(buf)
            attrs[i] = _Attr(i, 0, value)
            widths[i] = width
        out = (ctypes.c_uint8 * length)()
        self._run("calculate_hash_value", [U32, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p, U32],
                   n, attrs, widths, out, length)
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
