"""Loads the program catalogue (catalogue/*.json) and derives the facts that
every emitter needs: key and action sizes, table classes, host record order,
resource slots. Nothing here restates a handle or a width; it all comes from
the data files."""

import glob
import json
import os

PREFIX = "p4_pd_orbisk_switch_"
AREA_FILES = [
    "port_vlan_intf", "l2_forwarding", "ip_routing", "nexthop_balancing",
    "multicast", "vxlan_tunnels", "nat", "halo", "mirroring", "qos_policing",
    "cpu_mtu_drop", "intf_policy_folded",
]
# Files of the program's services: hash calculations, value sets, digests,
# the snapshot record.
SERVICE_FILES = ["services"]


def nbytes(bits):
    return (bits + 7) // 8


def host_type(bits):
    """C type of a host record field of this width; None for a byte array."""
    if bits <= 8:
        return "uint8_t"
    if bits <= 16:
        return "uint16_t"
    if bits <= 32:
        return "uint32_t"
    return None


class Param:
    def __init__(self, d, offset):
        self.name = d["name"]
        self.bits = d["bits"]
        self.format = d.get("format")
        self.nbytes = nbytes(self.bits)
        self.offset = offset  # place in the action data string
        self.ctype = host_type(self.bits)
        assert self.ctype, "no action parameter is wider than 32 bits"

    @property
    def field(self):
        return "action_" + self.name


class Action:
    """An action of the program, with its parameters (one per action name)."""

    def __init__(self, name, enum, params):
        self.name = name
        self.enum = enum
        off = 0
        self.params = []
        for p in params:
            q = Param(p, off)
            off += q.nbytes
            self.params.append(q)
        self.data_bytes = off
        self.data_bits = sum(p.bits for p in self.params)
        # Parameters that stand only in a resource slot, set by a table row,
        # and the resource whose slot index carries it.
        self.slot_only_param = None
        self.slot_resource = None

    @property
    def spec_type(self):
        return PREFIX + self.name + "_action_spec_t"

    @property
    def has_spec(self):
        return bool(self.params)


class TableAction:
    """An action as one table uses it: its handle there, its uses, its slot."""

    def __init__(self, action, d):
        self.action = action
        self.name = action.name
        self.handle = int(d["handle"], 16)
        use = d.get("use", ["entry"])
        self.entry = "entry" in use
        self.default = "default" in use
        self.resource = d.get("resource")
        self.resource_tag = d.get("resource_tag", 0)
        self.index_param = d.get("resource_index_param")
        self.index_also_data = d.get("resource_index_also_data", False)


class Field:
    def __init__(self, d, offset):
        self.name = d["name"]
        self.schema = d["schema"]
        self.bits = d["bits"]
        self.match = d["match"]  # exact, ternary, lpm
        self.static_mask = d.get("static_mask")
        self.format = d.get("format")
        self.nbytes = nbytes(self.bits)
        self.offset = offset  # place in the value and mask strings
        self.ctype = host_type(self.bits)
        self.array = self.ctype is None


class LabelItem:
    """One item of a counting table's label: how one key field (a MAC
    address: two) turns into words. Every text ends in a blank."""

    KINDS = ("exact", "flag", "number", "named", "address")

    def __init__(self, d, fields):
        self.kind = next(k for k in self.KINDS if k in d)
        index = [f.name for f in fields].index(d[self.kind])
        self.index = index
        self.field = fields[index]
        f = self.field
        self.text = d["word"] if self.kind == "flag" else d["label"]
        assert self.kind != "flag" or (self.text.endswith(" ") and f.match == "ternary"), self.text
        self.names = [(int(v, 16), n) for v, n in d.get("names", [])]
        assert all(n.endswith(" ") for _, n in self.names)
        mask = int(f.static_mask, 16) if f.static_mask else (1 << f.bits) - 1
        # Number and named: the bits a name is looked up by, the mask that
        # gives the short form, and whether the value written is the one
        # looked up (else the field's value as it stands).
        self.select = int(d.get("select", "0xffffffff"), 16)
        self.full = int(d["full"], 16) if "full" in d else mask & 0xFFFFFFFF
        self.value_selected = d.get("value") == "selected"
        # A mask with no bit of `select`: the number forms, or nothing.
        self.unselected_number = d.get("unselected", "number") == "number"
        if self.kind in ("number", "named"):
            assert f.match == "ternary" and not f.array, f.name
        if self.kind == "address":
            assert f.format in ("v4addr", "v6addr", "mac") and f.match == "ternary", f.name
            if f.format == "mac":
                # The OUI half names the item; the station half is the next field.
                self.station = fields[index + 1]
                assert self.station.format == "mac" and self.station.match == "ternary"
        # Digits of a number: as many as the schema's mask of the field needs.
        self.decimal = f.format == "dec"
        self.digits = 0 if f.array else len(str(mask)) if self.decimal else len("%x" % mask)


class Table:
    def __init__(self, d, area, area_file, program):
        self.name = d["name"]
        self.area = area
        self.area_file = area_file
        self.handle = int(d["handle"], 16)
        self.pipeline = d["pipeline"]
        self.match = d["match"]  # none, exact, ternary, prefix, partitioned_prefix
        flags = d.get("flags", [])
        self.entry_priority = "entry_priority" in flags
        self.idle_timeout = "idle_timeout" in flags
        self.counter_labels = "counter_labels" in flags
        # Entry adds pass the caller's idle time on to the driver.
        self.ttl_on_add = "ttl_on_add" in flags
        self.profile_name = d.get("profile")
        off = 0
        self.fields = []
        for f in d.get("fields", []):
            fld = Field(f, off)
            off += fld.nbytes
            self.fields.append(fld)
        self.key_bytes = off
        self.key_bits = sum(f.bits for f in self.fields)
        self.labels = [LabelItem(x, self.fields) for x in d.get("labels", [])]
        assert bool(self.labels) == self.counter_labels, "%s: counter_labels and labels go together" % self.name
        byname = {f.name: f for f in self.fields}
        order = d.get("host_order")
        self.host_fields = [byname[n] for n in order] if order else list(self.fields)
        self.actions = []
        for a in d.get("actions", []):
            act = program.action(a["name"], a["enum"], a["params"])
            self.actions.append(TableAction(act, a))
        self.profile = None
        self.index = None  # place in the catalogue, and in the descriptors
        self.carried = None  # the Resource named by `resource`

    @property
    def keyed(self):
        return bool(self.fields)

    @property
    def indirect(self):
        return self.profile_name is not None

    @property
    def ternary(self):
        return self.match == "ternary"

    @property
    def prefix(self):
        return self.match in ("prefix", "partitioned_prefix")

    @property
    def partitioned(self):
        return self.match == "partitioned_prefix"

    @property
    def spec_type(self):
        return PREFIX + self.name + "_match_spec_t"

    @property
    def lpm_field(self):
        return next(f for f in self.fields if f.match == "lpm")

    @property
    def resource(self):
        """The one resource every entry of this table carries, if any."""
        names = {a.resource for a in self.actions if a.resource}
        assert len(names) <= 1
        return names.pop() if names else None

    @property
    def direct_meter(self):
        """The meter every entry carries, whose rates each write passes."""
        r = self.carried
        return r if r and r.is_meter and r.kind == "direct" else None

    def host_members(self):
        """(C type, member name, array length or None) in host record order."""
        out = []
        for f in self.host_fields:
            if f.array:
                out.append(("uint8_t", f.name, f.nbytes))
            else:
                out.append((f.ctype, f.name, None))
            if f.match == "ternary":
                out.append((f.ctype or "uint8_t", f.name + "_mask", f.nbytes if f.array else None))
            elif f.match == "lpm":
                out.append(("uint16_t", f.name + "_prefix_length", None))
        return out


class Profile:
    def __init__(self, d, program):
        self.name = d["name"]
        self.state_slot = d["state_slot"]
        self.adt = int(d["action_data_table"], 16)
        self.sel = int(d["selector_table"], 16)
        self.match_table = d["match_table"]
        self.index = None
        self.actions = []
        for a in d["actions"]:
            act = program.action(a["name"], a["enum"], a["params"])
            self.actions.append(TableAction(act, a))


class Resource:
    """A counter, meter or register. `cls` is "counter", "meter" or
    "register"; a direct one has a cell per entry of its match table, an
    indexed one `size` cells."""

    # The top byte of a handle of each class, in the first and second space.
    SPACES = {"counter": (0x04, 0x14), "meter": (0x05, 0x15), "register": (0x06,)}

    def __init__(self, d, cls):
        self.name = d["name"]
        self.cls = cls
        self.kind = d.get("kind", "indirect")
        self.handle = int(d["handle"], 16)
        self.match_table = d.get("match_table")
        self.is_meter = cls == "meter"
        self.unit = d.get("unit")
        self.size = d.get("size", 0)
        self.bits = d.get("bits", 0)
        self.table = None  # the Table of a direct one
        assert self.kind in ("direct", "indirect"), self.name
        assert (self.handle >> 24) in self.SPACES[cls], self.name
        assert (self.kind == "direct") == bool(self.match_table), self.name
        assert (self.kind == "direct") == (self.size == 0), "an indexed resource has a size: " + self.name
        assert not self.is_meter or self.unit in ("bytes", "packets"), self.name
        assert (cls == "register") == (self.bits > 0), self.name

    @property
    def direct(self):
        return self.kind == "direct"

    @property
    def driver_handle(self):
        """The table handle its cells are reached by: the match table's for a
        direct one, its own otherwise."""
        return self.table.handle if self.direct else self.handle


class Program:
    def __init__(self, root):
        cat = os.path.join(root, "catalogue")
        prog = json.load(open(os.path.join(cat, "program.json")))
        self.enum_names = prog["actions"]
        self.enum_of = {n: i for i, n in enumerate(self.enum_names)}
        self._actions = {}
        self.tables = []
        found = sorted(os.path.basename(p)[:-5] for p in glob.glob(os.path.join(cat, "*.json")))
        assert sorted(AREA_FILES + ["program"] + SERVICE_FILES) == found, "unexpected catalogue files: %s" % found
        for area in AREA_FILES:
            doc = json.load(open(os.path.join(cat, area + ".json")))
            for t in doc["tables"]:
                self.tables.append(Table(t, doc["area"], area, self))
        self.profiles = [Profile(p, self) for p in prog["profiles"]]
        for i, p in enumerate(self.profiles):
            p.index = i  # place in the descriptors' kProfiles
        self.resources = {}
        for cls in ("counter", "meter", "register"):
            for d in prog[cls + "s"]:
                assert d["name"] not in self.resources, d["name"]
                self.resources[d["name"]] = Resource(d, cls)
        by_table = {t.name: t for t in self.tables}
        self.table = by_table
        for r in self.resources.values():
            if r.direct:
                r.table = by_table[r.match_table]
                assert r.table.resource == r.name, r.name
        for p in self.profiles:
            by_table[p.match_table].profile = p
            assert by_table[p.match_table].profile_name == p.name
        for i, t in enumerate(self.tables):
            t.index = i
            t.carried = self.resources[t.resource] if t.resource else None
            assert not t.indirect or t.profile is not None, t.name
            for a in t.actions:
                if a.index_param:
                    a.action.slot_only_param = None if a.index_also_data else a.index_param
        for a in self.actions:
            if a.slot_only_param:
                rows = [ta for t in self.direct_tables() for ta in t.actions if ta.name == a.name]
                assert len(rows) == 1, a.name
                a.slot_resource = self.resources[rows[0].resource]
        # Every action name of the enum is used somewhere, with one enum value.
        assert set(self._actions) == set(self.enum_names)
        self.services = Services(json.load(open(os.path.join(cat, "services.json"))))

    def action(self, name, enum, params):
        assert self.enum_of[name] == enum, name
        a = self._actions.get(name)
        if a is None:
            a = self._actions[name] = Action(name, enum, params)
        assert [p.name for p in a.params] == [p["name"] for p in params], name
        assert [p.bits for p in a.params] == [p["bits"] for p in params], name
        return a

    @property
    def actions(self):
        """All actions in enum order."""
        return [self._actions[n] for n in self.enum_names]

    def resources_of(self, cls):
        """The counters, meters or registers in catalogue order."""
        return [r for r in self.resources.values() if r.cls == cls]

    def direct_tables(self):
        return [t for t in self.tables if not t.indirect]

    def keyed_tables(self):
        return [t for t in self.tables if t.keyed]


# ------------------------------------------------------------ services ---

class HashCalc:
    def __init__(self, d, algorithms):
        self.name = d["name"]
        self.handle = int(d["handle"], 16)
        self.input = int(d["input"], 16)
        self.algorithm = int(d["algorithm"], 16)
        assert self.algorithm in algorithms, self.name

    def describe(self):
        return "%s: hash 0x%08x, input 0x%08x, algorithm 0x%08x" % (
            self.name, self.handle, self.input, self.algorithm)


class ValueSet:
    def __init__(self, d):
        self.name = d["name"]
        self.handle = int(d["handle"], 16)

    def describe(self):
        return "%s: value set 0x%08x" % (self.name, self.handle)


class DigestField:
    def __init__(self, d, offset):
        self.name = d["name"]
        self.nbytes = d["bytes"]
        self.offset = offset


class Digest:
    """A learning digest: its handle and the packed layout of one entry
    (fields back to back, no padding)."""

    def __init__(self, d):
        self.name = d["name"]
        self.handle = int(d["handle"], 16)
        self.fields = []
        off = 0
        for f in d["fields"]:
            self.fields.append(DigestField(f, off))
            off += f["bytes"]
        self.entry_bytes = off
        assert off == d["entry_bytes"], self.name
        assert len({f.name for f in self.fields}) == len(self.fields), self.name

    def describe(self):
        return "%s: digest 0x%08x, %d-byte entries: %s" % (
            self.name, self.handle, self.entry_bytes,
            ", ".join("%s %d+%d" % (f.name, f.offset, f.nbytes) for f in self.fields))


class Services:
    """Hash calculations, parser value sets, learning digests and the snapshot
    record's layouts."""

    def __init__(self, d):
        self.algorithms = {int(a["handle"], 16): a for a in d["hash_algorithms"]}
        self.hash_calcs = [HashCalc(h, self.algorithms) for h in d["hash_calculations"]]
        self.value_sets = [ValueSet(v) for v in d["value_sets"]]
        self.digests = [Digest(g) for g in d["digests"]]
        snap = d["snapshot"]
        self.snapshot_bytes = snap["record_bytes"]
        self.capture_records = snap["capture_records"]
        # The field lists by bit 1 of a snapshot handle: (offset, width) of
        # every field that is swapped, each of 2 or 4 bytes, none overlapping.
        self.snapshot_layouts = [None, None]
        for lay in snap["layouts"]:
            fields = [tuple(int(x) for x in f.split(":")) for f in lay["fields"]]
            covered = set()
            for off, width in fields:
                assert width in (2, 4) and off + width <= self.snapshot_bytes, (off, width)
                span = set(range(off, off + width))
                assert not covered & span, (off, width)
                covered |= span
            self.snapshot_layouts[lay["handle_bit1"]] = fields
        assert None not in self.snapshot_layouts
        for group in (self.hash_calcs, self.value_sets, self.digests):
            assert len({x.name for x in group}) == len(group)
            assert len({x.handle for x in group}) == len(group)
