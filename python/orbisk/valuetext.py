"""Value text: what the library writes for one entry, placement record or
member, a Python literal whose numbers pair one for one with the schema's
fields. Parsed here into the same records the reads give."""

import ast

from .tables import Entry, read_params, store_value
from .values import OrbiskError

SELECTION = {"setMbrHdl": "member", "setGrpHdl": "group"}


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


def _action(switch, owner, pair, e):
    name, numbers = pair
    if name in SELECTION:
        setattr(e, SELECTION[name], numbers[0])
        return
    a = switch._actions.get(switch._native, name)
    if len(numbers) != len(a.params):
        raise OrbiskError("%s: value text has %d numbers for %s, the schema %d parameters" %
                          (owner, len(numbers), name, len(a.params)))
    e.action = name
    if a.record is not None:
        rec = a.record()
        for p, v in zip(a.params, numbers):
            store_value(rec, p, v)
        e.params = read_params(a, rec)


def parse_entry(table, text, handle=None):
    """An entry text (<table>_value): ((key, action), (priority, True))."""
    (body, (priority, _)) = ast.literal_eval(text)
    e = Entry(table.name, handle)
    e.match = _key(table, body[0])
    if len(body) > 1:
        _action(table.switch, table.name, body[1], e)
    if table.shape.has_priority:
        e.priority = priority
    return e


def parse_placement(table, text):
    """A placement text (<table>_plcmt_data_value): (key, action)."""
    body = ast.literal_eval(text)
    e = Entry(table.name, None)
    e.match = _key(table, body[0])
    if len(body) > 1:
        _action(table.switch, table.name, body[1], e)
    return e


def parse_member(profile, text):
    """A member text (<profile>_plcmt_data_value): the action alone."""
    from .profiles import Member
    pair, = ast.literal_eval(text)
    e = Entry(profile.name, None)
    _action(profile.switch, profile.name, pair, e)
    return Member(profile.name, None, e.action, e.params)
