"""What every family module is made of: the arguments its functions take,
the family itself (names, arguments, one documentation line, body), and the
exported function it yields for one table or action."""

from catalogue import PREFIX


def _value(v, t, a):
    return v(t, a) if callable(v) else v


class Arg:
    """One argument of a family's functions. ctype and name are strings, or
    functions of (table, action) for those that differ by table; `when` says
    whether a table and action take it at all. The label is how the family's
    documentation line shows it (in brackets when not every function has it)."""

    def __init__(self, ctype, name, label, when=None):
        self.ctype = ctype
        self.name = name
        self.label = label
        self.when = when

    def applies(self, t, a=None):
        return self.when is None or bool(self.when(t, a))

    def resolve(self, t, a=None):
        if not self.applies(t, a):
            return []
        return [(_value(self.ctype, t, a), _value(self.name, t, a))]

    @property
    def doc(self):
        return "[%s]" % self.label if self.when else self.label


# Arguments shared by several families.
SESS = Arg("pd_sess_hdl", "sess_hdl", "sess")
TGT = Arg("pd_dev_target", "dev_tgt", "target")
DEV = Arg("uint32_t", "dev_id", "device id")
ENTRY_HDL = Arg("pd_entry_hdl", "entry_hdl", "entry handle")
OUT_ENTRY_HDL = Arg("pd_entry_hdl *", "entry_hdl", "out entry handle")
MATCH_SPEC = Arg(lambda t, a: "const %s *" % t.spec_type, "match_spec", "match spec")
PRIORITY = Arg("uint32_t", "priority", "priority", when=lambda t, a: t.ternary)
ACTION_SPEC = Arg(lambda t, a: "const %s *" % a.action.spec_type, "action_spec", "action spec",
                  when=lambda t, a: a.action.has_spec)
# A table whose entries carry a direct meter takes its rates with every
# action; the argument is named after the meter.
METER_SPEC = Arg("const pd_meter_spec *", lambda t, a: t.direct_meter.name + "_spec", "meter spec",
                 when=lambda t, a: t.direct_meter)
READ_FROM_HW = Arg("bool", "read_from_hw", "read from hardware")

# Which tables a family covers.
def direct(t):
    return not t.indirect


def keyed(t):
    return t.keyed


def always(t):
    return True


class Fn:
    """One exported function: its name, result, arguments (C type, name), the
    family it belongs to, and the table and action it is for."""

    def __init__(self, name, result, args, family, table=None, action=None, kind=None,
                 field=None, profile=None, resource=None):
        self.resource = resource
        self.name = name
        self.profile = profile
        self.result = result
        self.args = args
        self.family = family
        self.table = table
        self.action = action
        self.kind = kind
        self.field = field
        self.profile = profile

    def has_arg(self, name):
        return any(n == name for _, n in self.args)

    def proto(self, indent="    "):
        result = self.result + ("" if self.result.endswith("*") else " ")
        if not self.args:
            return "%s%s(void)" % (result, self.name)
        parts = ["%s%s%s" % (t, "" if t.endswith("*") else " ", n) for t, n in self.args]
        return "%s%s(%s)" % (result, self.name, (",\n" + indent).join(
            [parts[0]] + parts[1:]) if len(parts) > 1 else parts[0])

    def body(self):
        return self.kind.body(self)


class Family:
    """A family of exported functions.

    id       the family's tag (the round-trip tests key on it)
    name     format of the function name: {p} the common prefix, {t} the
             table, {a} the action, {f} the key field (as field_name gives
             it), {r} the action profile
    args     list of Arg, in order
    doc      one line: what a function of the family does
    body     function of an Fn giving its code lines; None where the function
             is written by hand in the engine
    each     'table': one per table; 'entry_action' and 'default_action': one
             per action a table allows as an entry's or as its default;
             'field': one per key field of a table (not its mask or prefix
             length); 'action': one per action of the program; 'profile': one
             per action profile ({r} its name, and its Args' functions get the
             profile in place of the table); 'profile_action': one per action
             of a profile; 'program': one; 'resource': one per counter, meter
             or register ({r} its name, and its Args' functions get the
             resource in place of the table); 'service': one, declared with
             the resources
    when     which tables (or, for 'action', which actions, for 'profile',
             which profiles) have its functions
    place    (block, step): where its declarations stand among a table's; the
             functions of one block are grouped by action, then by step
    alias    instead of a body: function of an Fn naming a hidden function of
             the same signature, defined at the head of the group's source
             (see source_head in the README), that the exported name stands
             for. Functions that differ only by a constant share one body.
    field_name  for 'field': how {f} shows a field (default: its name)
    """

    def __init__(self, id, name, args, doc, body=None, result="pd_status", each="table",
                 when=always, place=(0, 0), alias=None, field_name=lambda f: f.name):
        self.id = id
        self.name = name
        self.args = args
        self.doc = doc
        self.body = body
        self.result = result
        self.each = each
        self.when = when
        self.place = place
        self.alias = alias
        self.field_name = field_name

    def fn(self, t=None, a=None, f=None, r=None):
        if self.each == "resource":
            args = [x for arg in self.args for x in arg.resolve(r, None)]
            return Fn(self.name.format(p=PREFIX, r=r.name), self.result, args, self.id, kind=self,
                      resource=r)
        if self.each == "action":
            name = self.name.format(p=PREFIX, a=a.name)
            args = [x for arg in self.args for x in arg.resolve(None, a)]
            return Fn(name, self.result, args, self.id, action=a, kind=self)
        if self.each in ("profile", "profile_action"):
            name = self.name.format(p=PREFIX, r=r.name, a=a.name if a else "")
            args = [x for arg in self.args for x in arg.resolve(r, a)]
            return Fn(name, self.result, args, self.id, action=a, kind=self, profile=r)
        if self.each in ("program", "service"):
            args = [x for arg in self.args for x in arg.resolve(None, None)]
            return Fn(self.name.format(p=PREFIX), self.result, args, self.id, kind=self)
        name = self.name.format(p=PREFIX, t=t.name, a=a.name if a else "",
                                f=self.field_name(f) if f else "")
        args = [x for arg in self.args for x in arg.resolve(t, a)]
        return Fn(name, self.result, args, self.id, t, a, kind=self, field=f)

    def table_functions(self, t):
        """(sort key, Fn) for every function of this family on table t."""
        if not self.when(t):
            return []
        if self.each == "table":
            return [((self.place[0], -1, self.place[1]), self.fn(t))]
        if self.each == "field":
            return [((self.place[0], -1, self.place[1], i), self.fn(t, f=f))
                    for i, f in enumerate(t.fields)]
        use = "entry" if self.each == "entry_action" else "default"
        return [((self.place[0], i, self.place[1]), self.fn(t, a))
                for i, a in enumerate(t.actions) if getattr(a, use)]

    def profile_functions(self, p):
        """(sort key, Fn) for every function of this family on profile p."""
        if self.each == "profile":
            return [((self.place[0], -1, self.place[1]), self.fn(r=p))] if self.when(p) else []
        return [((self.place[0], i, self.place[1]), self.fn(a=a, r=p)) for i, a in enumerate(p.actions)]

    def pattern(self):
        """The name as the documentation shows it."""
        return self.name.format(p="", t="<t>", a="<a>", f="<f>", r="<r>")

    def doc_line(self):
        """Name, arguments and what it does, for the header's family list."""
        return "%s(%s): %s" % (self.pattern(), ", ".join(x.doc for x in self.args), self.doc)


class ItemFamily(Family):
    """A family with one function for each item of one of the program's
    services (a hash calculation, a value set, a digest), or one function in
    all when `items` is None. The name format's {i} is the item's name; the
    body gets the Fn, whose `item` is the item (None for a single function).

    items    function of the Program giving the items, or None
    label    how the documentation shows an item, e.g. "<h>"
    section  the header section its declarations stand in
    """

    def __init__(self, id, name, args, doc, body, items=None, label="", section="",
                 result="pd_status"):
        super().__init__(id, name, args, doc, body, result=result, each="item")
        self.items = items
        self.label = label
        self.section = section

    def item_functions(self, prog):
        out = []
        for item in (self.items(prog) if self.items else [None]):
            name = self.name.format(p=PREFIX, i=item.name if item else "")
            args = [x for arg in self.args for x in arg.resolve(item, None)]
            fn = Fn(name, self.result, args, self.id, kind=self)
            fn.item = item
            out.append(fn)
        return out

    def pattern(self):
        return self.name.format(p="", i=self.label)
