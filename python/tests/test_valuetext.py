"""Value text parsed against the schema: the worked texts of the grammar."""

import pytest

from orbisk import Entry
from orbisk.valuetext import parse_entry, parse_member, parse_placement

ENTRIES = [
    ("ecmpGroup", "((( 0x0012,),('setMbrHdl',(0x5,))),(0,True))", dict(match={"nextHop": 0x12}, member=5)),
    ("ecmpGroup", "(((),),(0,True))", dict(is_default=True)),
    ("ipv4Host", "((( 0x01,0x0a000001,),('setNextHop',(0x00000007,)),),(0,True))",
     dict(match={"vrfId": 1, "dip": "10.0.0.1"}, action="setNextHop", params={"nextHop": 7})),
    ("vlanDecap", "(((),('removeVlanHdr',()),),(0,True))", dict(action="removeVlanHdr")),
    ("tunnelTermination", "((( 0xffffff,0xffffff,0xffffff,0xffffff,0xffffffff,0xffffffff,0x7,0x7,0x1,),"
     "('setTunnelTerminationTypeNoneIpv6',()),),(300,True))",
     dict(match={"dmac": ("ff:ff:ff:ff:ff:ff", "ff:ff:ff:ff:ff:ff"), "dip": ("255.255.255.255", "255.255.255.255"),
                 "tunnelType": (7, 7), "outerIpv6HdrValid": 1},
          action="setTunnelTerminationTypeNoneIpv6", priority=300)),
    ("tunnelTermination", "((( 0x000000,0x000000,0x000000,0x000000,0x00000000,0x00000000,0x1,0x7,0x0,),"
     "('setTunnelTerminationTypeNoneIpv6',()),),(-2147483648,True))",
     dict(match={"dmac": ("00:00:00:00:00:00", "00:00:00:00:00:00"), "dip": ("0.0.0.0", "0.0.0.0"),
                 "tunnelType": (1, 7), "outerIpv6HdrValid": 0},
          action="setTunnelTerminationTypeNoneIpv6", priority=1 << 31)),
    ("ipv6Host", "((( 0xff,0xFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF,),('setNextHop',(0x00000001,)),),(0,True))",
     dict(match={"vrfId": 0xff, "dip": "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff"}, action="setNextHop",
          params={"nextHop": 1})),
]


@pytest.mark.parametrize("table,text,fields", ENTRIES)
def test_entry_texts_pair_with_the_schema(switch, table, text, fields):
    assert parse_entry(switch.tables[table], text, 3) == Entry(table, 3, **fields)


def test_placement_and_member_texts(switch):
    assert parse_placement(switch.tables.ecmpGroup, "(( 0x0012,),('setGrpHdl',(0x9,)))") == \
        Entry("ecmpGroup", None, match={"nextHop": 0x12}, group=9)
    m = parse_member(switch.profiles.ecmpMemberActionProfile, "('setEcmpNextHop',(0x05,0x00000007,)),")
    assert (m.action, m.params) == ("setEcmpNextHop", {"nextHopTable": 5, "nextHop": 7})


def test_a_text_that_does_not_pair_is_refused(switch):
    with pytest.raises(Exception, match="value text has 1 key numbers, the schema 2 fields"):
        parse_entry(switch.tables.ipv4Host, "((( 0x01,),('setNextHop',(0x00000007,)),),(0,True))")
