// Counter labels of the fifteen counting tables: one row a case (table, the
// key record's members that are set, the label), the edges of each kind of
// item among them; then the label of an entry read back, per table and
// through the dispatcher, and their answers when there is nothing to read.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::FieldDesc;

// A member of a key record set by name: a number, or a 16-byte address.
struct Set {
  const char *member;
  uint32_t value;
  const char *v6 = nullptr;
};

struct Case {
  const char *table;
  std::vector<Set> sets;
  const char *label;
};

// A key record of the named table with these members set, all else zero.
std::vector<uint64_t> record(const orbisk::pd::TableDesc &t, const std::vector<Set> &sets) {
  std::vector<uint64_t> words(t.match_spec_size / 8 + 1, 0);
  auto *bytes = reinterpret_cast<uint8_t *>(words.data());
  for (const Set &s : sets) {
    const std::string member = s.member;
    const FieldDesc *found = nullptr;
    uint16_t offset = 0;
    for (const FieldDesc *f = t.fields; f != t.fields + t.num_fields; ++f) {
      if (member == f->name) offset = f->host_offset, found = f;
      if (member == std::string(f->name) + "_mask") offset = f->partner_offset, found = f;
    }
    if (found == nullptr) {
      ADD_FAILURE() << "no member " << member << " in " << t.name;
      continue;
    }
    if (s.v6 != nullptr) {
      EXPECT_EQ(1, inet_pton(AF_INET6, s.v6, bytes + offset)) << s.v6;
    } else {
      std::memcpy(bytes + offset, &s.value, found->bits <= 8 ? 1 : found->bits <= 16 ? 2 : 4);
    }
  }
  return words;
}

const Case kCases[] = {
    // Exact items: always written, under the schema's mask, hexadecimal or decimal.
    {"addrPortDnat",
     {{"ingMd_dnatAclId", 0xF123}, {"ingIpv4_dip", 0x0A000001}, {"ingMd_dstPort", 80}, {"ingMd_ingNatProfile", 7}},
     "dnatAclId 0x123 dip 0x0a000001 dstPort 0x0050 ingNatProfile 0x07 "},
    {"addrPortSnat", {}, "snatAclId 0x000 sip 0x00000000 srcPort 0x0000 egrNatProfile 0x00 "},
    {"ingL2DomainCount", {{"egrMd_decapType", 0xFF}, {"ingMd_ingL3Aintf", 0xFFFF}}, "decap 7 l3Intf 4095 "},
    {"egrL2DomainCount", {{"egrMd_decapType", 3}, {"egrMd_egrL2Domain", 12}}, "decap 1 Vlan   12 "},
    {"haloCounters", {{"haloResultRow1_bestResult", 0xFFFFFFFF}}, "bestResult 0x7fff "},
    {"foldedPipeCounters",
     {{"ig_intr_md_for_tm_ucast_egress_port", 0x1FF}, {"ingMd_foldedPipeQid", 0x1F}},
     "ig_intr_md_for_tm_ucast_egress_port 0x1ff foldedPipeQid 0x1 "},
    // Flags: nothing, the word, or "!" and the word; an exact item whatever the masks.
    {"ingressPortDropCheck", {}, "Ingress Port 0x00 "},
    {"ingressPortDropCheck",
     {{"ig_intr_md_ingress_port", 0x185}, {"ingMd_illegalDmac_mask", 1}, {"parserMd_checksumErr", 1},
      {"parserMd_checksumErr_mask", 1}, {"ingMd_invalidTunnel", 1}, {"parserMd_outerHdrFlags", 9},
      {"parserMd_outerHdrFlags_mask", 0xF}},
     "Ingress Port 0x05 !illegalDmac outerHdrFlags 0x9 checksumErr "},
    {"egressPortDropCheck", {}, "pktGen 0x0 "},
    {"egressPortDropCheck",
     {{"eg_intr_md_egress_port", 3}, {"eg_intr_md_egress_port_mask", 0x70}, {"outerIpv4Hdr_ttl", 64},
      {"outerIpv4Hdr_ttl_mask", 0xFF}, {"egrMd_routed_mask", 1}, {"egrMd_invalidVni", 1},
      {"egrMd_invalidVni_mask", 1}, {"pktGen", 1}},
     "Egress Port & 0x70 0x03 invalidVni ttl 0x40 !routed pktGen 0x1 "},
    // Numbers, and the words of finalDropControl with their two blanks.
    {"finalDropControl", {}, ""},
    {"finalDropControl",
     {{"ig_intr_md_ingress_port", 5}, {"ig_intr_md_ingress_port_mask", 0x7F}, {"ingMd_drop_mask", 1},
      {"ingMd_v4V6Valid", 2}, {"ingMd_v4V6Valid_mask", 3}, {"ingMd_dropDatalink", 1},
      {"ingMd_dropDatalink_mask", 1}, {"ingMd_mcast", 1}, {"ingMd_mcast_mask", 1}},
     "Ingress Port 0x05 !Ingress Port Drop - See ingressPortDropCount  Invalid IP Version & 0x3 0x2 "
     "Datalink mcast "},
    // bestResult on the bits of 0x38000, and the literal 7 of its short form.
    {"finalDropControl",
     {{"haloResultRow1_bestResult", 0x38000}, {"haloResultRow1_bestResult_mask", 0x38000}},
     "PACL/RACL Drop+/Log  "},
    {"finalDropControl", {{"haloResultRow1_bestResult", 0x7}, {"haloResultRow1_bestResult_mask", 0x38000}}, " "},
    {"finalDropControl",
     {{"haloResultRow1_bestResult", 0x18000}, {"haloResultRow1_bestResult_mask", 0x38000}},
     "bestResult & 0x38000 0x18000 "},
    {"finalDropControl", {{"haloResultRow1_bestResult", 0xFFFFF}, {"haloResultRow1_bestResult_mask", 7}},
     "bestResult 0x38000 "},
    {"finalDropControl", {{"haloResultRow1_bestResult", 0x8001}, {"haloResultRow1_bestResult_mask", 1}},
     "bestResult & 0x1 0x08000 "},
    // natMeterDrop on two bits; a mask of neither writes nothing.
    {"finalDropControl", {{"ingMd_natMeterDrop", 1}, {"ingMd_natMeterDrop_mask", 3}}, "SNatMeter "},
    {"finalDropControl", {{"ingMd_natMeterDrop", 2}, {"ingMd_natMeterDrop_mask", 1}}, " "},
    {"finalDropControl", {{"ingMd_natMeterDrop", 2}, {"ingMd_natMeterDrop_mask", 3}}, "natMeterDrop 0x2 "},
    {"finalDropControl", {{"ingMd_natMeterDrop", 3}, {"ingMd_natMeterDrop_mask", 2}}, "natMeterDrop & 0x2 0x2 "},
    {"finalDropControl", {{"ingMd_natMeterDrop", 3}, {"ingMd_natMeterDrop_mask", 4}}, ""},
    // egrL2AintfUnresolved: names for three values, two of them a single blank.
    {"finalDropControlIB",
     {{"egrMd_egrL2AintfUnresolved", 511}, {"egrMd_egrL2AintfUnresolved_mask", 0xFFFFF}, {"egrMd_routed_mask", 1},
      {"eif_eifDrop", 1}, {"eif_eifDrop_mask", 1}},
     "Invalid Port  !Routed Drop  Flow Pinhole Policy Drop "},
    {"finalDropControlIB",
     {{"ig_intr_md_ingress_port", 0x1FF}, {"ig_intr_md_ingress_port_mask", 0x1FF},
      {"egrMd_egrL2AintfUnresolved", 0x10000}, {"egrMd_egrL2AintfUnresolved_mask", 0xFFFFF},
      {"ig_intr_md_for_tm_mcast_grp_a", 0x1234}, {"ig_intr_md_for_tm_mcast_grp_a_mask", 0xFF00}},
     "Ingress Port 0x1ff  ig_intr_md_for_tm_mcast_grp_a & 0xff00 0x1234 "},
    {"finalDropControlIB",
     {{"egrMd_egrL2AintfUnresolved", 0x12345}, {"egrMd_egrL2AintfUnresolved_mask", 0xFFFFF}},
     "egrL2AintfUnresolved 0x12345 "},
    {"finalDropControlIB", {{"egrMd_egrL2AintfUnresolved", 0x12}, {"egrMd_egrL2AintfUnresolved_mask", 0xFF}},
     "egrL2AintfUnresolved & 0xff 0x00012 "},
    // trapToCpu: names by the masked value, two items labelled dip.
    {"trapToCpu", {{"ingMd_etherType", 0x800}, {"ingMd_etherType_mask", 0xFFFF}}, "IPv4 "},
    {"trapToCpu", {{"ingMd_etherType", 0x86DD}, {"ingMd_etherType_mask", 0xFFFF}}, "IPv6 "},
    {"trapToCpu", {{"ingMd_etherType", 0x8100}, {"ingMd_etherType_mask", 0xFF00}}, "etherType & 0xff00 0x8100 "},
    {"trapToCpu", {{"ingMd_protocol", 0x36}, {"ingMd_protocol_mask", 0xF}}, "TCP "},
    {"trapToCpu", {{"ingMd_protocol", 1}, {"ingMd_protocol_mask", 0xFF}}, "protocol 0x01 "},
    {"trapToCpu", {{"egrMd_decapType_mask", 7}}, "NoDecap "},
    {"trapToCpu", {{"egrMd_decapType", 3}, {"egrMd_decapType_mask", 3}}, "CPU-to-VLAN "},
    {"trapToCpu", {{"egrMd_decapType", 5}, {"egrMd_decapType_mask", 7}}, "decapType 0x5 "},
    {"trapToCpu", {{"egrMd_cpuReasonCode", 18}, {"egrMd_cpuReasonCode_mask", 0xFF}}, "ISIS "},
    {"trapToCpu", {{"egrMd_cpuReasonCode", 16}, {"egrMd_cpuReasonCode_mask", 0x1F}}, "VxLan Arp "},
    {"trapToCpu",
     {{"ingMd_bcast_mask", 1}, {"ingMd_l4Attr", 5}, {"ingMd_l4Attr_mask", 7}, {"phase0_ingVPort", 0x123},
      {"phase0_ingVPort_mask", 0x3FFF}, {"arpHdr_opcode", 2}, {"arpHdr_opcode_mask", 0xFFFF},
      {"arpHdr_valid", 1}, {"arpHdr_valid_mask", 1}, {"ingMd_igmpSnoopingEnabled", 1},
      {"ingMd_igmpSnoopingEnabled_mask", 1}, {"egrMd_vxlanFlood_mask", 1}, {"ingMd_cpuMemberOfIngressVlan", 1},
      {"ingMd_cpuMemberOfIngressVlan_mask", 1}},
     "!bcast l4Attr 0x5 ingVPort 0x0123 ARP opcode 0x0002 IGMP snoop !VXLAN flood CPUinVLan "},
    {"trapToCpu",
     {{"ingIpv4_dip", 0x0A000000}, {"ingIpv4_dip_mask", 0xFF000000}, {"ingIpv6_dip", 0, "2001:db8::"},
      {"ingIpv6_dip_mask", 0, "ffff::"}},
     "dip 10.0.0.0/8 dip 2001:db8::/ffff:: "},
    // Addresses beside numbers.
    {"l2DmacClassify",
     {{"ig_intr_md_ingress_port", 0x1FF}, {"outerEthHdr_dmacOui", 0x01005E}, {"outerEthHdr_dmacOui_mask", 0xFFFFFF}},
     "Ingress Port 0x7f dmac 0100.5e00.0000/ffff.ff00.0000 "},
    {"eifForwardToPeerAcl",
     {{"egrMd_cpuReasonCode", 0x10}, {"eif_policy", 2}, {"ingIpv6_dip", 0, "::1"}, {"ingIpv6_dip_mask", 0, "::1"}},
     "cpuReasonCode 0x10 policy 0x02 dip ::1/::1 "},
    {"eifAcl",
     {{"phase0_portType", 2}, {"phase0_portType_mask", 3}, {"eif_policy", 9}, {"ingIpv6_sip", 0, "fe80::"},
      {"ingIpv6_sip_mask", 0, "ffc0::"}, {"ingMd_dstPort", 443}, {"ingMd_dstPort_mask", 0xFF00}},
     "portType 0x2 policy 0x09 sip fe80::/ffc0:: dstPort & 0xff00 0x01bb "},
    {"dynamicNatCount",
     {{"ingMd_snatHit", 3}, {"ingMd_protocol", 17}, {"ingMd_protocol_mask", 0xFF}, {"ingMd_ingNatProfile", 3},
      {"ingMd_ingNatProfile_mask", 0xF}},
     "snatHit 0x1 dnatHit 0x0 protocol 0x11 ingNatProfile & 0xf 0x03 "},
};

TEST(CounterLabels, EveryCase) {
  std::vector<std::string> labelled;
  for (const Case &c : kCases) {
    const auto &t = table(c.table);
    const auto words = record(t, c.sets);
    auto label = exported<int (*)(const void *, char *)>(std::string(c.table) + "_match_spec_stringify_for_counter");
    char out[512];
    std::memset(out, '#', sizeof out);
    const int n = label(words.data(), out);
    EXPECT_EQ(c.label, std::string(out)) << c.table;
    EXPECT_EQ(int(std::strlen(c.label)), n) << c.table;
    labelled.push_back(c.table);
  }
  // Every counting table has a case, and only they have the functions.
  std::size_t counting = 0;
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const auto &t = orbisk::pd::kTables[i];
    const bool has = (t.flags & orbisk::pd::kCounterLabels) != 0;
    counting += has;
    EXPECT_EQ(has, std::find(labelled.begin(), labelled.end(), t.name) != labelled.end()) << t.name;
    const std::string name = std::string("p4_pd_orbisk_switch_") + t.name + "_match_spec_stringify_for_counter";
    EXPECT_EQ(has, dlsym(RTLD_DEFAULT, name.c_str()) != nullptr) << name;
  }
  EXPECT_EQ(15u, counting);
}

class EntryLabels : public OnModel {};

TEST_F(EntryLabels, ReadFromHardwarePerTableAndByHandle) {
  p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t key{};
  key.ig_intr_md_ingress_port = 5;
  key.ingMd_illegalDmac_mask = 1;
  key.parserMd_checksumErr = key.parserMd_checksumErr_mask = 1;
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ingressPortDropCheck_table_add_with_setDrop(sess, tgt, &key, 10, &hdl));
  const std::string want = "Ingress Port 0x05 !illegalDmac checksumErr ";
  char out[256] = "untouched";
  EXPECT_EQ(int(want.size()), p4_pd_orbisk_switch_ingressPortDropCheck_stringify_counter_match_spec(sess, 0, hdl, out));
  EXPECT_EQ(want, out);
  const pd_tbl_hdl tbl = table("ingressPortDropCheck").handle;
  std::strcpy(out, "untouched");
  EXPECT_EQ(int(want.size()), p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, tbl, hdl, out));
  EXPECT_EQ(want, out);
  // A failed read, a table that counts nothing, a handle of nothing: 0, out as it was.
  std::strcpy(out, "untouched");
  EXPECT_EQ(0, p4_pd_orbisk_switch_ingressPortDropCheck_stringify_counter_match_spec(sess, 0, hdl + 1000, out));
  EXPECT_EQ(0, p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, tbl, hdl + 1000, out));
  for (pd_tbl_hdl other : {table("ipv4Host").handle, pd_tbl_hdl(0x01000055), pd_tbl_hdl(0), pd_tbl_hdl(0x0200001d)}) {
    EXPECT_EQ(0, p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, other, hdl, out)) << std::hex << other;
  }
  EXPECT_STREQ("untouched", out);
}

}  // namespace
