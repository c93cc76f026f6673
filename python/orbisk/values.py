"""Values as users write them and as reads show them: integers everywhere,
and text where a field's schema format says so (addresses, prefixes, MAC
halves and whole MAC addresses)."""

import ipaddress


class OrbiskError(Exception):
    """Anything refused before it reaches the library."""


class UnknownName(OrbiskError, AttributeError):
    """A table, profile or resource the library does not have."""


class DriverError(OrbiskError):
    """A status other than success from the library or its driver; nothing
    was changed."""

    def __init__(self, call, status, name):
        self.call, self.status, self.status_name = call, status, name
        super().__init__("%s: status 0x%x (%s)" % (call, status, name))


def where(table, field):
    return "%s.%s" % (table, field) if field else table


def _mac_bytes(text, n, table, field):
    parts = text.split(":") if ":" in text else text.split("-")
    if len(parts) != n or not all(1 <= len(p) <= 2 for p in parts):
        raise OrbiskError("%s: %r is not a MAC %s (%d bytes written aa:bb:..)" %
                          (where(table, field), text, "address" if n == 6 else "half", n))
    try:
        return int("".join(p.rjust(2, "0") for p in parts), 16)
    except ValueError:
        raise OrbiskError("%s: %r is not a MAC %s" % (where(table, field), text,
                                                      "address" if n == 6 else "half")) from None


def parse_scalar(value, width, fmt, table, field, what="value"):
    """One value of a field of this width and format, as an integer (or 16
    bytes for a 128-bit field); text is read by the format."""
    if type(value) is int and 0 <= value and not value >> width:
        return value  # the common case, first
    if isinstance(value, bool):
        value = int(value)
    if isinstance(value, str):
        text = value.strip()
        try:
            if fmt == "v4addr":
                value = int(ipaddress.IPv4Address(text))
            elif fmt == "v6addr":
                value = int(ipaddress.IPv6Address(text))
            elif fmt == "mac":
                value = _mac_bytes(text, 3, table, field)
            else:
                value = int(text, 0)
        except ipaddress.AddressValueError as e:
            raise OrbiskError("%s: malformed %s address %r (%s)" %
                              (where(table, field), "IPv4" if fmt == "v4addr" else "IPv6", text, e)) from None
        except ValueError:
            raise OrbiskError("%s: %r is not a number" % (where(table, field), text)) from None
    elif isinstance(value, (bytes, bytearray)):
        if len(value) * 8 != width:
            raise OrbiskError("%s: %d bytes given for a %d-bit field" % (where(table, field), len(value), width))
        value = int.from_bytes(value, "big")
    elif isinstance(value, (ipaddress.IPv4Address, ipaddress.IPv6Address)):
        value = int(value)
    if not isinstance(value, int):
        raise OrbiskError("%s: %s %r is neither a number nor text" % (where(table, field), what, value))
    if value < 0 or value >> width:
        raise OrbiskError("%s: %s 0x%x is wider than the field's %d bits" % (where(table, field), what, value, width))
    return value


def parse_prefix(text, width, fmt, table, field):
    """'a.b.c.d/n' or 'x::/n': the address and the prefix length. Host bits
    set below the length are refused, never masked away."""
    try:
        net = ipaddress.ip_network(text.strip(), strict=False)
    except ValueError as e:
        raise OrbiskError("%s: malformed prefix %r (%s)" % (where(table, field), text, e)) from None
    want = 4 if fmt == "v4addr" or width == 32 else 6
    if net.version != want:
        raise OrbiskError("%s: %r is not an IPv%d prefix" % (where(table, field), text, want))
    addr = int(ipaddress.ip_address(text.split("/")[0].strip()))
    if addr != int(net.network_address):
        raise OrbiskError("%s: prefix %r has host bits set below its length /%d" %
                          (where(table, field), text, net.prefixlen))
    return addr, net.prefixlen


def show(value, width, fmt):
    """A value as a read shows it: addresses and MAC halves as text."""
    if fmt == "v4addr" and width == 32:
        return str(ipaddress.IPv4Address(value))
    if fmt == "v6addr" and width == 128:
        return str(ipaddress.IPv6Address(value))
    if fmt == "mac" and width == 24:
        return ":".join("%02x" % ((value >> s) & 0xFF) for s in (16, 8, 0))
    return value


def show_mac(hi, lo):
    v = (hi << 24) | lo
    return ":".join("%02x" % ((v >> s) & 0xFF) for s in range(40, -8, -8))


def mac_pairs(items, key=lambda x: x):
    """Consecutive 24-bit MAC halves that make one address, by the shared
    start of their names (dmacOui and dmacStation make dmac): {whole: (hi, lo)}."""
    pairs = {}
    for a, b in zip(items, items[1:]):
        if a.fmt == "mac" and b.fmt == "mac" and a.width == 24 and b.width == 24:
            na, nb = key(a), key(b)
            n = 0
            while n < min(len(na), len(nb)) and na[n] == nb[n]:
                n += 1
            whole = na[:n]
            if whole and na[n:] and nb[n:] and na[n:][0].isupper() and nb[n:][0].isupper():
                pairs[whole] = (a, b)
    return pairs
