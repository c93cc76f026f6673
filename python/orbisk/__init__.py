"""Program and inspect every table of orbisk_switch by name, from Python.

    import orbisk
    sw = orbisk.Switch()
    h = sw.tables.ipv4ShortMaskLpm.add(match={"vrfId": 3, "dip": "10.1.2.0/24"},
                                       action="setNextHop", nextHop=42)

The shape of every table, action and profile is read from the library's
schema text at run time; see README.md."""

from .switch import Switch, diff
from .tables import Entry
from .profiles import Group, Member
from .resources import Count, HashAttribute, Meter
from .values import DriverError, OrbiskError

__all__ = ["Switch", "diff", "Entry", "Member", "Group", "Count", "Meter", "HashAttribute", "DriverError",
           "OrbiskError"]
