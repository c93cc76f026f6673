// Printers captured through a pipe, byte for byte: every key printer and
// every action printer against tests/golden/printers.txt (derived from the
// catalogue by make_printers_golden.py, whose header tells how the records
// are filled), the worked lines, placement data printed, and the address
// formatters of tests/golden/address_formats.txt.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::FieldMatch;
using Print = void (*)(int, int, const void *);

// The element `name` of a record, as make_printers_golden.py fills it.
void fill(uint8_t *record, uint16_t offset, unsigned bits, const std::string &name) {
  uint32_t h = 0x811C9DC5u;  // FNV-1a
  for (unsigned char c : name) h = (h ^ c) * 0x01000193u;
  for (unsigned k = 0; k < 16 && bits > 32; ++k)
    record[offset + k] = uint8_t((h >> (8 * (k % 4))) + k);
  if (bits <= 32) std::memcpy(record + offset, &h, bits <= 8 ? 1 : bits <= 16 ? 2 : 4);
}

TEST(Printers, EveryKeyAndEveryActionPrintsWhatTheCatalogueGives) {
  std::ifstream in(ORBISK_GOLDEN_DIR "/printers.txt");
  std::map<std::string, std::string> expected;  // by "key <table>" and "action <action>"
  std::string *section = nullptr;
  for (std::string line; std::getline(in, line);) {
    line.rfind("== ", 0) == 0 ? void(section = &expected[line.substr(3)])
                              : void(*section += line + "\n");
  }
  ASSERT_EQ(136u + 150u, expected.size());
  std::size_t compared = 0;
  // One record of `size`, filled by `each`, printed by `fn` at an indent from the name.
  auto check = [&](const std::string &what, const char *name, std::size_t size, int indent,
                   const std::string &fn, auto each) {
    std::vector<uint64_t> words(size / 8 + 1, 0);
    each(reinterpret_cast<uint8_t *>(words.data()), std::string(name) + ".");
    EXPECT_EQ(expected.at(what + name),
              captured([&](int fd) { exported<Print>(fn)(fd, indent, words.data()); }))
        << name;
    ++compared;
  };
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const auto &t = orbisk::pd::kTables[i];
    if (!t.keyed()) continue;
    check("key ", t.name, t.match_spec_size, int(std::strlen(t.name) % 5),
          std::string(t.name) + "_match_spec_print", [&](uint8_t *r, const std::string &at) {
            for (const auto *f = t.fields; f != t.fields + t.num_fields; ++f) {
              fill(r, f->host_offset, f->bits, at + f->name);
              if (f->match == FieldMatch::Ternary)
                fill(r, f->partner_offset, f->bits, at + f->name + "_mask");
              if (f->match == FieldMatch::Lpm)
                fill(r, f->partner_offset, 16, at + f->name + "_prefix_length");
            }
          });
  }
  for (std::size_t i = 0; i < orbisk::pd::kNumActions; ++i) {
    const auto &a = orbisk::pd::kActions[i];
    if (a.num_params == 0) continue;
    check("action ", a.name, a.spec_size, int(std::strlen(a.name) % 3),
          std::string(a.name) + "_print", [&](uint8_t *r, const std::string &at) {
            for (const auto *p = a.params; p != a.params + a.num_params; ++p)
              fill(r, p->host_offset, p->bits, at + p->name);
          });
  }
  EXPECT_EQ(expected.size(), compared);
}

TEST(Printers, WorkedLines) {
  // A key bit above the table's mask is dropped, digits follow the width;
  // three bits of vxlanVti are kept, one digit.
  const p4_pd_orbisk_switch_ecmpGroup_match_spec_t ecmp{0x1ff};
  const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t vxlan = {0xFF, 0};
  EXPECT_EQ(
      "p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n  l3_nextHop mask 0xff: 0x00ff\n",
      captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 0, &ecmp); }));
  EXPECT_EQ(
      "   p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n    l3_nextHop mask 0xff: 0x00ff\n",
      captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 3, &ecmp); }));
  EXPECT_EQ("  action_vxlanVti: 0x7\n  action_vxlanVarpIp: 0x0\n", captured([&](int fd) {
              p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_print(fd, 0, &vxlan);
            }));
}

// Placement data printed: the key as its printer writes it (none for a
// default entry or a keyless table), then the action's full name at the
// key's indent and its parameter lines; a selector table's entry, its key
// alone. By name and by handle alike.
class PlacementPrint : public OnModel {
 protected:
  using Fetch = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, void *, uint32_t *);
  std::string printed(const std::string &name, pd_tbl_hdl h, uint32_t hdl, int indent,
                      bool profile = false) {
    uint32_t size = uint32_t(record.size());
    EXPECT_EQ(0u,
              exported<Fetch>(name + "_get_plcmt_data")(sess, tgt, 0, hdl, record.data(), &size));
    const std::string text = captured([&](int fd) {
      exported<pd_status (*)(int, int, const void *)>(
          name + (profile ? "_adt_plcmt_data_print" : "_plcmt_data_print"))(fd, indent,
                                                                            record.data());
    });
    EXPECT_EQ(text, captured([&](int fd) {
                (profile ? p4_pd_orbisk_switch_adt_plcmt_data_print
                         : p4_pd_orbisk_switch_plcmt_data_print)(fd, indent, h, record.data());
              }));
    return text;
  }
  std::vector<uint8_t> record = std::vector<uint8_t>(ORBISK_MODEL_PLACEMENT_MAX_BYTES, 0);
};

TEST_F(PlacementPrint, KeyThenActionAndTheShortForms) {
  const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t route{3, 0x0A010200, 24};
  const p4_pd_orbisk_switch_setNextHop_action_spec_t nh = {42};
  const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t m = {1, 7};
  const p4_pd_orbisk_switch_ecmpGroup_match_spec_t key = {0x12};
  const pd_tbl_hdl lpm = table("ipv4ShortMaskLpm").handle;
  const pd_tbl_hdl adt = table("ecmpGroup").profile->adt_hdl;  // ecmpMemberActionProfile
  pd_entry_hdl e;
  pd_mbr_hdl mbr;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(sess, tgt, &route,
                                                                               &nh, &e));
  EXPECT_EQ(captured([&](int fd) {
              p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_print(fd, 2, &route);
            }) + "  p4_pd_orbisk_switch_setNextHop:\n" +
                captured([&](int fd) { p4_pd_orbisk_switch_setNextHop_print(fd, 2, &nh); }),
            printed("ipv4ShortMaskLpm", lpm, e, 2));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_default_action_ipv4ShortMaskLpmMiss(
                    sess, tgt, &e));
  EXPECT_EQ("p4_pd_orbisk_switch_ipv4ShortMaskLpmMiss:\n", printed("ipv4ShortMaskLpm", lpm, e, 0));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_vlanDecap_set_default_action_removeVlanHdr(sess, tgt, &e));
  EXPECT_EQ("   p4_pd_orbisk_switch_removeVlanHdr:\n",
            printed("vlanDecap", table("vlanDecap").handle, e, 3));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
                    sess, tgt, &m, &mbr));
  EXPECT_EQ(
      "p4_pd_orbisk_switch_setEcmpNextHop:\n  action_nextHopTable: 0x01\n  action_nextHop: "
      "0x00000007\n",
      printed("ecmpMemberActionProfile", adt, mbr, 0, true));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpGroup_add_entry(sess, tgt, &key, mbr, &e));
  EXPECT_EQ("p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n  l3_nextHop mask 0xff: 0x0012\n",
            printed("ecmpGroup", table("ecmpGroup").handle, e, 0));
}

// Calls the formatter of `form` with a label and arguments given as text:
// numbers, or 16-byte addresses in their usual text.
int format(const std::string &form, const std::vector<std::string> &a, char *o) {
  auto n = [&](std::size_t i) { return uint32_t(std::stoul(a[i], nullptr, 0)); };
  uint8_t v6[2][16] = {};
  for (std::size_t i = 1; i < a.size() && form[1] == '6'; ++i)
    inet_pton(AF_INET6, a[i].c_str(), v6[i - 1]);
  const char *l = a[0].c_str();
  if (form == "v4addr_exact") return p4_pd_orbisk_switch__print_v4addr_exact(o, l, n(1));
  if (form == "v4addr_lpm")
    return p4_pd_orbisk_switch__print_v4addr_lpm(o, l, n(1), uint16_t(n(2)));
  if (form == "v4addr_ternary") return p4_pd_orbisk_switch__print_v4addr_ternary(o, l, n(1), n(2));
  if (form == "v6addr_exact") return p4_pd_orbisk_switch__print_v6addr_exact(o, l, v6[0]);
  if (form == "v6addr_lpm")
    return p4_pd_orbisk_switch__print_v6addr_lpm(o, l, v6[0], uint16_t(n(2)));
  if (form == "v6addr_ternary")
    return p4_pd_orbisk_switch__print_v6addr_ternary(o, l, v6[0], v6[1]);
  if (form == "mac_exact") return p4_pd_orbisk_switch__print_mac_exact(o, l, n(1), n(2));
  if (form == "mac_ternary")
    return p4_pd_orbisk_switch__print_mac_ternary(o, l, n(1), n(2), n(3), n(4));
  ADD_FAILURE() << "no form " << form;
  return -1;
}

TEST(Printers, AddressFormatters) {
  std::ifstream in(ORBISK_GOLDEN_DIR "/address_formats.txt");
  std::size_t cases = 0;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t bar = line.find('|');
    std::istringstream words(line.substr(0, bar));
    std::string form;
    std::vector<std::string> args;
    words >> form;
    for (std::string w; words >> w;) args.push_back(w);
    const std::string text = line.substr(bar + 2, line.size() - bar - 3);
    char out[128];
    std::memset(out, '#', sizeof out);
    out[sizeof out - 1] = '\0';
    EXPECT_EQ(int(text.size()), format(form, args, out)) << line;
    EXPECT_EQ(text.empty() ? std::string(127, '#') : text, out) << line;
    ++cases;
  }
  EXPECT_EQ(15u, cases);
}

}  // namespace
