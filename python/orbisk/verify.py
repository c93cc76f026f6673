"""Comparing what software wrote with what the hardware holds."""


def verify(sw):
    """Every entry of every table read from software and from hardware and
    compared field by field; each difference as one line of text."""
    out = []
    for t in sw.tables:
        for h in t.handles():
            pd, hw = t.get(h), t.get(h, hw=True)
            for f in ("match", "priority", "action", "params", "member", "group"):
                if getattr(pd, f) != getattr(hw, f):
                    out.append("%s entry 0x%x: %s differs: pd %r, hw %r" % (t.name, h, f, getattr(pd, f),
                                                                           getattr(hw, f)))
    return out
