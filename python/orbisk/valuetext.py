"""Value text: what the library writes for one entry, placement record or
member, a Python literal whose numbers pair one for one with the schema's
fields. The reads (get, entries, default, members) are built from it here.

Value text shows a key field through the schema's mask (the bits the
table's key really covers), a parameter through its width, and a 128-bit
field whole; the records a read makes show values in the same forms as
everywhere else (addresses and MACs as text, prefixes 'a.b.c.d/n')."""

import ast

from .tables import Entry, read_params, store_value
from .values import OrbiskError


def _key(table, values):
    shape = table.shape
    if not values:
        return {}
    if len(values) != len(shape.fields):
        raise OrbiskError("%s: value text has %d key numbers, the schema %d fields" %
                          (table.name, len(values), len(shape.fields)))
    rec = shape.record()
    for f, v in zip(shape.fields, values):
        store_value(rec, f, v)
    return table.read_match(rec)


def _action(switch, owner, actions, pair, e, selection=None):
    """One action part: an action and its numbers paired with the action's
    parameters, or (through a selector) the member or group it names."""
    name, numbers = pair
    if selection and name in selection:
        setattr(e, selection[name], numbers[0])
        return
    a = actions.get(name) or switch._actions.get(switch._native, name)
    if len(numbers) != len(a.params):
        raise OrbiskError("%s: value text has %d numbers for %s, the schema %d parameters" %
                          (owner, len(numbers), name, len(a.params)))
    e.action = name
    if a.record is not None:
        rec = a.record()
        for p, v in zip(a.params, numbers):
            store_value(rec, p, v)
        e.params = read_params(a, rec)


def _body(table, body, e):
    """The pair of key and action common to entry and placement texts. An
    empty key of a table that has one is the default entry's."""
    shape = table.shape
    e.match = _key(table, body[0])
    e.is_default = bool(shape.fields) and not body[0]
    if len(body) > 1:
        _action(table.switch, table.name, shape.actions, body[1], e, shape.selection)


def parse_entry(table, text, handle=None):
    """An entry text (<table>_value): ((key, action), (priority, True))."""
    body, (priority, _) = ast.literal_eval(text)
    e = Entry(table.name, handle)
    _body(table, body, e)
    if table.shape.has_priority:
        # The text prints the priority as a signed number: one of 2**31 or
        # more comes out negative, and is the unsigned 32-bit priority here.
        e.priority = priority & 0xFFFFFFFF
    return e


def parse_placement(table, text):
    """A placement text (<table>_plcmt_data_value): (key, action), without
    priority."""
    e = Entry(table.name, None)
    _body(table, ast.literal_eval(text), e)
    return e


def parse_member(profile, text, handle=None):
    """A member text (<profile>_plcmt_data_value, or an action's own
    <a>_value): the action alone."""
    from .profiles import Member
    pair, = ast.literal_eval(text)
    e = Entry(profile.name, None)
    _action(profile.switch, profile.name, profile.shape.actions, pair, e)
    return Member(profile.name, handle, e.action, e.params)
