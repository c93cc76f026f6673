"""A switch: one device of the program, every table, profile and resource by
name, built lazily from the library's schema text."""

import ast
import ctypes
import pprint

from ._native import DevTarget, Native, PIPE_ALL
from .profiles import Profile
from .resources import Counter, Digest, Hash, MeterRes, Register
from .schema import ActionCache, ProfileShape, TableShape
from .tables import Table, strip_prefix
from .values import DriverError, OrbiskError, UnknownName


class Namespace:
    """Objects by name, each made on first use; names complete in a shell."""

    def __init__(self, kind, names, make):
        self._kind, self._names, self._make, self._made = kind, sorted(names), make, {}

    def __getattr__(self, name):
        if name.startswith("_"):
            raise AttributeError(name)
        return self[name]

    def __getitem__(self, name):
        obj = self._made.get(name)
        if obj is None:
            if name not in self._names:
                raise UnknownName("unknown %s %r" % (self._kind, name))
            obj = self._made[name] = self._make(name)
        return obj

    def __dir__(self):
        return self._names

    def __iter__(self):
        return (self[n] for n in self._names)

    def __len__(self):
        return len(self._names)

    def __contains__(self, name):
        return name in self._names

    def names(self):
        return list(self._names)

    def __repr__(self):
        return "<%d %ss: %s>" % (len(self._names), self._kind, ", ".join(self._names[:6]) +
                                 (", ..." if len(self._names) > 6 else ""))


def _suffixed(names, suffix, prefix=""):
    return [n[len(prefix):len(n) - len(suffix)] for n in names if n.endswith(suffix) and n.startswith(prefix)]


class Switch:
    """One device. Switch() loads the library and the driver model of the
    build tree; Switch(driver="libdriver.so") runs on another driver.
    Several Switch objects (device ids) share the one library of a process."""

    _shapes = {}  # by library: table and profile shapes, built once a process

    def __init__(self, device=0, lib=None, driver=None, pipe=PIPE_ALL, session=0):
        self._native = Native.load(lib, driver)
        self.device, self.session = device, session
        self.target = DevTarget(device, pipe)
        cache = Switch._shapes.setdefault(self._native.lib_path, {"actions": ActionCache(), "tables": {},
                                                                  "profiles": {}})
        self._cache, self._actions = cache, cache["actions"]
        names = self._native.names
        self.tables = Namespace("table", _suffixed(names, "_get_mat_table_handle"), self._table)
        self.profiles = Namespace("profile", _suffixed(names, "_get_adt_table_handle"), self._profile)
        self.counters = Namespace("counter", _suffixed(names, "", "counter_read_"),
                                  lambda n: Counter(self, n))
        self.meters = Namespace("meter", _suffixed(names, "", "meter_read_"), lambda n: MeterRes(self, n))
        self.registers = Namespace("register", [n for n in _suffixed(names, "", "register_read_")
                                              if n not in ("direct", "indirect")],
                                   lambda n: Register(self, n))
        self.digests = Namespace("digest", _suffixed(names, "_notify_ack"), lambda n: Digest(self, n))
        self.hashes = Namespace("hash calculation", _suffixed(names, "_seed_get", "hash_calc_"),
                                lambda n: Hash(self, n))

    def __repr__(self):
        return "<switch device %d: %d tables, %d profiles>" % (self.device, len(self.tables), len(self.profiles))

    def _table(self, name):
        shape = self._cache["tables"].get(name)
        if shape is None:
            shape = self._cache["tables"][name] = TableShape(self._native, name, self._actions)
        return Table(self, shape)

    def _profile(self, name):
        shape = self._cache["profiles"].get(name)
        if shape is None:
            shape = self._cache["profiles"][name] = ProfileShape(self._native, name, self._actions)
        return Profile(self, shape)

    def _error(self, call, status):
        return DriverError(call, status, self._native.status_names.get(status, "unknown status"))

    def _action_name(self, enum):
        f = self._native.fn("action_enum_to_string", [ctypes.c_uint32], ctypes.c_char_p)
        name = f(enum)
        if name is None:
            raise OrbiskError("action %d is none of the program's" % enum)
        return strip_prefix(name.decode())

    @property
    def model(self):
        """The driver model's controls (orbisk_model_*), or None on a driver."""
        return self._native.driver if self._native.is_model else None

    # --------------------------------------------------------- dump, load

    def dump(self, defaults=False):
        """Every non-empty table and profile of the device as a Python literal
        (text) that load() replays: members and groups first, then entries.
        A dump reads the library's records, not value text (which shows a
        key field only through the schema's mask), so that it replays to
        the same driver bytes."""
        state = {"profiles": {}, "tables": {}}
        for p in self.profiles:
            members = [[m.handle, m.action, m.params] for m in p.members(records=True)]
            groups = [[g.handle, g.members] for g in p.groups()]
            if members or groups:
                state["profiles"][p.name] = {"members": members, "groups": groups}
        for t in self.tables:
            rows = [e.spec() for e in t.entries(records=True)]
            if rows and t.meter:
                for row, h in zip(rows, t.handles()):
                    row["meter"] = tuple(self.meters[t.meter].read(entry=h))
            if defaults and not t.shape.selector:
                d = t.default_record()
                # A default only the program sets has no setter: it is left out.
                if self._native.has("%s_set_default_action_%s" % (t.name, d.action)):
                    rows.append({"default": True, "action": d.action, **d.params})
            if rows:
                state["tables"][t.name] = rows
        return pprint.pformat(state, width=110, sort_dicts=True)

    def load(self, text):
        """Replays a dump: members (their handles mapped to the new ones),
        groups, then every entry. Returns the new handles of the entries."""
        state = ast.literal_eval(text) if isinstance(text, str) else text
        remap_m, remap_g = {}, {}
        for pname, p in state.get("profiles", {}).items():
            prof = self.profiles[pname]
            for old, action, params in p.get("members", []):
                remap_m[old] = prof.add_member(action, **params)
            for old, members in p.get("groups", []):
                g = remap_g[old] = prof.create_group(max(len(members), 1))
                for m in members:
                    prof.add_member_to_group(g, remap_m.get(m, m))
        handles = {}
        for tname, rows in state.get("tables", {}).items():
            t = self.tables[tname]
            for row in rows:
                row = dict(row)
                if row.pop("default", False):
                    t.set_default(**row)
                    continue
                if "member" in row:
                    row["member"] = remap_m.get(row["member"], row["member"])
                if "group" in row:
                    row["group"] = remap_g.get(row["group"], row["group"])
                handles.setdefault(tname, []).append(t.add(**row))
        return handles

    def verify(self):
        """Every entry compared with what the hardware holds; the differences
        as text, empty when all agree."""
        from .verify import verify
        return verify(self)


def _rows(state):
    out = {}
    for tname, rows in state.get("tables", {}).items():
        for row in rows:
            key = (tname, repr(row.get("match")), row.get("priority"), bool(row.get("default")))
            out[key] = row
    return out


def diff(a, b):
    """Differences between two dumps (text or dicts), as text: entries
    missing from the second, extra in it, and fields that changed."""
    a = ast.literal_eval(a) if isinstance(a, str) else a
    b = ast.literal_eval(b) if isinstance(b, str) else b
    ra, rb = _rows(a), _rows(b)
    out = []
    for key in sorted(ra.keys() | rb.keys(), key=repr):
        what = "%s %s%s" % (key[0], "default" if key[3] else key[1],
                            "" if key[2] is None else " priority %d" % key[2])
        if key not in rb:
            out.append("missing: %s" % what)
        elif key not in ra:
            out.append("extra: %s" % what)
        else:
            x, y = ra[key], rb[key]
            for f in sorted(x.keys() | y.keys()):
                if f not in ("match", "priority") and x.get(f) != y.get(f):
                    out.append("changed: %s %s %r -> %r" % (what, f, x.get(f), y.get(f)))
    for pname in sorted(a.get("profiles", {}).keys() | b.get("profiles", {}).keys()):
        ma = {tuple(m[1:2]) + (repr(m[2]),) for m in a.get("profiles", {}).get(pname, {}).get("members", [])}
        mb = {tuple(m[1:2]) + (repr(m[2]),) for m in b.get("profiles", {}).get(pname, {}).get("members", [])}
        out += ["missing: %s member %s %s" % (pname, m[0], m[1]) for m in sorted(ma - mb)]
        out += ["extra: %s member %s %s" % (pname, m[0], m[1]) for m in sorted(mb - ma)]
    return out
