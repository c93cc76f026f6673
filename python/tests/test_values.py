"""Values written as text reach the driver as the bytes the key and action
encodings give (worked examples), and bad input is refused before the
library sees it, with a message naming the table, the field and the fault."""

import pytest

import orbisk
from orbisk.model import calls

# (table, add keywords, key value bytes, key mask bytes, action data bytes)
GOLDEN = [
    ("l2Lookup", dict(match={"dmac": "00:aa:bb:cc:dd:ee", "egrL2Domain": 0x123}, action="onMiss"),
     "00aabbccddee0123", "ffffffffffffffff", ""),
    ("l2Lookup", dict(match={"dmacOui": "00:aa:bb", "egrMd_dmacStation": 0xCCDDEE, "egrL2Domain": 0x123},
                      action="onMiss"), "00aabbccddee0123", "ffffffffffffffff", ""),
    ("l2DomainLookup", dict(match={"switchPort": 1, "ingVPort": 0x1234, "vlanHdr0Valid": 1,
                                   "vlanId": (0xABC, 0xF0F)}, priority=9, action="NoAction"),
     "011234010a0c", "013fff010f0f", ""),
    ("ipv4ShortMaskLpm", dict(match={"vrfId": 5, "dip": "10.1.0.0/20"}, action="setNextHop", nextHop=42),
     "050a010000", "fffffff000", "0000002a"),
    ("ipv4ShortMaskLpm", dict(match={"vrfId": 5, "dip": "0.0.0.0/0"}, action="setNextHop", nextHop=1),
     "0500000000", "ff00000000", "00000001"),
    ("ipv4FinalResolve0", dict(match={"partIdx": 7, "dip": "10.1.2.0/24"}, action="setNextHop0First",
                               nextHop=3), "00000a010200", "0000ffffff00", None),
    ("ipv6Host", dict(match={"vrfId": 1, "dip": "2001:db8::1"}, action="setNextHop", nextHop=7),
     "0120010db8000000000000000000000001", "ff" * 17, "00000007"),
    ("tunnelTermination", dict(match={"dmac": ("00:11:22:33:44:55", "ff:ff:ff:ff:ff:00"),
                                      "dip": ("192.168.0.1", "255.255.255.255"), "tunnelType": (1, 7)},
                               priority=300, action="setTunnelTerminationTypeNoneIpv6"),
     "00112233440" + "0c0a8000101" + "00", "ffffffffff00ffffffff0701", ""),
    ("mirrorPacketEncap", dict(match={"egressRid": 1, "egressPort": 2}, action="setMirrorPacketEncapGreIpv4",
                               srcIp="10.0.0.1", dstIp="10.0.0.2", ttl=64, dscp=0, greProto=0x88BE, vlanId=5,
                               dmac="00:11:22:33:44:55"), "00010002", "ffffffff",
     "0a0000010a00000240" + "0088be0005" + "001122334455"),
]


@pytest.mark.parametrize("table,kw,value,mask,data", GOLDEN)
def test_text_values_reach_the_driver_as_their_bytes(sw, table, kw, value, mask, data):
    sw.tables[table].add(**kw)
    name, status, recs = calls(sw.model, "pipe_mgr_mat_ent_add")[-1]
    assert status == 0
    assert recs["key.value"].hex() == value
    assert recs["key.mask"].hex() == mask
    if data is not None:
        assert recs.get("act.data", b"").hex() == data


def test_reads_show_text_and_read_back_the_same_entry(sw):
    t = sw.tables.tunnelTermination
    kw = GOLDEN[7][1]
    e = t.get(t.add(**kw))
    # The entry holds the value through its mask.
    assert e.match == {"dmac": ("00:11:22:33:44:00", "ff:ff:ff:ff:ff:00"),
                       "dip": ("192.168.0.1", "255.255.255.255"), "tunnelType": (1, 7), "outerIpv6HdrValid": 0}
    assert (e.action, e.priority, e.params) == ("setTunnelTerminationTypeNoneIpv6", 300, {})
    h6 = sw.tables.ipv6Host.add(**GOLDEN[6][1])
    assert sw.tables.ipv6Host.get(h6).match == {"vrfId": 1, "dip": "2001:db8::1"}


# (call on the switch, exception, words the message must hold)
BAD = [
    (lambda sw: sw.tables.noSuchTable, orbisk.OrbiskError, "unknown table 'noSuchTable'"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": 1}, action="noSuch"), orbisk.OrbiskError,
     "ipv4Host: unknown action 'noSuch' for an entry (allowed: "),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrf": 1}, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host: unknown field 'vrf' (fields: vrfId, dip)"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": 1}, action="setNextHop", hop=1), orbisk.OrbiskError,
     "ipv4Host: action setNextHop has no parameter 'hop' (parameters: nextHop)"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": 0x100}, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host.vrfId: value 0x100 is wider than the field's 8 bits"),
    (lambda sw: sw.tables.ipv4Host.add(match={"dip": "10.0.0.256"}, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host.dip: malformed IPv4 address '10.0.0.256'"),
    (lambda sw: sw.tables.ipv6Host.add(match={"dip": "2001:::1"}, action="setNextHop"), orbisk.OrbiskError,
     "ipv6Host.dip: malformed IPv6 address '2001:::1'"),
    (lambda sw: sw.tables.ipv4ShortMaskLpm.add(match={"dip": "10.1.2.3/20"}, action="setNextHop"),
     orbisk.OrbiskError, "ipv4ShortMaskLpm.dip: prefix '10.1.2.3/20' has host bits set below its length /20"),
    (lambda sw: sw.tables.ipv4ShortMaskLpm.add(match={"dip": "10.1.2.0/33"}, action="setNextHop"),
     orbisk.OrbiskError, "ipv4ShortMaskLpm.dip: malformed prefix '10.1.2.0/33'"),
    (lambda sw: sw.tables.ipv4ShortMaskLpm.add(match={"dip": "::/0"}, action="setNextHop"),
     orbisk.OrbiskError, "ipv4ShortMaskLpm.dip: '::/0' is not an IPv4 prefix"),
    (lambda sw: sw.tables.l2Lookup.add(match={"dmac": "00:11:22:33:44"}, action="onMiss"), orbisk.OrbiskError,
     "l2Lookup.dmac: '00:11:22:33:44' is not a MAC address"),
    (lambda sw: sw.tables.l2Lookup.add(match={"dmacOui": "00:1g:22"}, action="onMiss"), orbisk.OrbiskError,
     "l2Lookup.dmacOui: '00:1g:22' is not a MAC half"),
    (lambda sw: sw.tables.tunnelTermination.add(match={"tunnelType": (1, 2, 3)}, action="setTunnelTerminationTypeVxlan"),
     orbisk.OrbiskError, "tunnelTermination.tunnelType: a ternary value is (value, mask)"),
    (lambda sw: sw.tables.tunnelTermination.add(match={"tunnelType": (1, 8)}, action="setTunnelTerminationTypeVxlan"),
     orbisk.OrbiskError, "tunnelTermination.tunnelType: mask 0x8 is wider than the field's 3 bits"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": (1, 1)}, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host.vrfId: (1, 1) given, but the field is matched exactly"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": 1}, priority=3, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host: the table takes no priority"),
    (lambda sw: sw.tables.vlanDecap.add(action="removeVlanHdr"), orbisk.OrbiskError,
     "vlanDecap: unknown action 'removeVlanHdr' for an entry (allowed: none)"),
    (lambda sw: sw.tables.vlanDecap.set_default("noSuch"), orbisk.OrbiskError,
     "vlanDecap: unknown action 'noSuch' as default (allowed: removeVlanHdr)"),
    (lambda sw: sw.tables.ecmpGroup.add(match={"nextHop": 1}, action="setEcmpNextHop"), orbisk.OrbiskError,
     "ecmpGroup: entries name a member or a group"),
    (lambda sw: sw.tables.l2LookupMiss.add(action="NoAction"), orbisk.OrbiskError,
     "l2LookupMiss: an entry of NoAction carries a meter"),
    (lambda sw: sw.tables.ipv4Host.add(match={"vrfId": "x1"}, action="setNextHop"), orbisk.OrbiskError,
     "ipv4Host.vrfId: 'x1' is not a number"),
    (lambda sw: sw.profiles.ecmpMemberActionProfile.add_member("setNextHop"), orbisk.OrbiskError,
     "ecmpMemberActionProfile: unknown action 'setNextHop' (actions: NoAction, setEcmpNextHop)"),
    (lambda sw: sw.tables.ipv4Host.delete(12345), orbisk.DriverError,
     "ipv4Host_table_delete: status 0x102 (ORBISK_MODEL_NO_SUCH_ENTRY)"),
    (lambda sw: [sw.tables.ipv4Host.add(match={"vrfId": 1}, action="setNextHop") for _ in range(2)],
     orbisk.DriverError, "ipv4Host_table_add_with_setNextHop: status 0x101 (ORBISK_MODEL_ENTRY_EXISTS)"),
    (lambda sw: sw.counters.ingressPortDropCount.read(index=1), orbisk.OrbiskError,
     "ingressPortDropCount: cells are an entry's: entry=<handle>"),
    (lambda sw: sw.hashes.hashInnerEthHdr.calculate([(1, 8), (0x10000, 16)]), orbisk.OrbiskError,
     "hashInnerEthHdr.field 1: value 0x10000 is wider than the field's 16 bits"),
    (lambda sw: sw.hashes.hashInnerEthHdr.calculate([(1, 0)]), orbisk.OrbiskError,
     "hashInnerEthHdr: field 0: width 0 is not a positive number of bits"),
    (lambda sw: sw.hashes.hashInnerEthHdr.set_attributes([(0, 1, 1 << 32)]), orbisk.OrbiskError,
     "hashInnerEthHdr.attribute value: value 0x100000000 is wider than the field's 32 bits"),
    (lambda sw: sw.hashes.hashInnerEthHdr.set_attributes([(0, 1)]), orbisk.OrbiskError,
     "hashInnerEthHdr: an attribute is (input_field, attr_type, value), not (0, 1)"),
    (lambda sw: sw.profiles.ecmpMemberActionProfile.get_member(77), orbisk.DriverError,
     "ecmpMemberActionProfile_get_plcmt_data: status 0x110 (ORBISK_MODEL_NO_SUCH_MEMBER)"),
]


@pytest.mark.parametrize("call,exc,words", BAD, ids=[b[2][:40] for b in BAD])
def test_bad_input_is_refused_with_words_that_say_why(sw, call, exc, words):
    sw.model.orbisk_model_clear_calls()
    with pytest.raises(exc) as info:
        call(sw)
    assert words in str(info.value)
    adds = [c for c in calls(sw.model) if c[0] != "pipe_mgr_mat_ent_del"]
    if exc is orbisk.OrbiskError:
        assert adds == [], "nothing reaches the driver"
    else:
        assert info.value.status == int(words.split("status ")[1].split()[0], 16)
        assert sum(t.count() for t in (sw.tables.ipv4Host,)) <= 1, "a refused call changes nothing"
