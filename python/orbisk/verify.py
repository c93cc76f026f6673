"""Comparing what software wrote with what the hardware holds."""

import ctypes

ERR_ROOM = 512


def verify(sw):
    """Every entry of every table compared with the hardware; each
    difference as one line of text. Where the library compares placement
    data with hardware itself (<table>_plcmt_data_eq_to_hw) its message is
    given; otherwise the entry read from software and from hardware are
    compared field by field."""
    out = []
    for t in sw.tables:
        handles = t.handles()
        eq = "%s_plcmt_data_eq_to_hw" % t.name
        if handles and sw._native.has(eq):
            f = sw._native.fn(eq, [ctypes.c_uint32, ctypes.c_uint8, ctypes.c_uint32, ctypes.c_uint32,
                                   ctypes.c_char_p, ctypes.c_char_p], ctypes.c_int)
            for h in handles:
                err = ctypes.create_string_buffer(ERR_ROOM)
                if not f(sw.session, sw.device, t.shape.handle, h, t.placement(h), err):
                    out.append("%s entry 0x%x: %s" % (t.name, h, err.value.decode()))
            continue
        for h in handles:
            pd = t.get_record(h)
            try:
                hw = t.get_record(h, hw=True)
            except Exception as e:  # a read from hardware that fails is a difference
                out.append("%s entry 0x%x: hardware read failed: %s" % (t.name, h, e))
                continue
            for field in ("match", "priority", "action", "params", "member", "group"):
                if getattr(pd, field) != getattr(hw, field):
                    out.append("%s entry 0x%x: %s differs: pd %r, hw %r" %
                               (t.name, h, field, getattr(pd, field), getattr(hw, field)))
    return out
