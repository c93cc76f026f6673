// Printers captured through a pipe, byte for byte: every key printer and
// every action printer against tests/golden/printers.txt (derived from the
// catalogue by make_printers_golden.py, whose header tells how the records
// are filled), the worked lines, and the address formatters' forms and edges.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::FieldDesc;
using orbisk::pd::FieldMatch;
using orbisk::pd::kActions;
using orbisk::pd::kNumActions;
using orbisk::pd::kNumTables;
using orbisk::pd::kTables;
using orbisk::pd::TableDesc;

// What `print` writes to a descriptor, read back from a pipe.
template <typename Print>
std::string captured(Print print) {
  int fds[2];
  if (pipe(fds) != 0) return "pipe failed";
  print(fds[1]);
  close(fds[1]);
  std::string text;
  char buf[4096];
  for (ssize_t n; (n = read(fds[0], buf, sizeof buf)) > 0;) text.append(buf, std::size_t(n));
  close(fds[0]);
  return text;
}

uint32_t fnv(const std::string &text) {
  uint32_t h = 0x811C9DC5u;
  for (unsigned char c : text) h = (h ^ c) * 0x01000193u;
  return h;
}

// The element `name` of a record, as make_printers_golden.py fills it.
void fill(uint8_t *record, uint16_t offset, unsigned bits, const std::string &name) {
  const uint32_t h = fnv(name);
  uint8_t *at = record + offset;
  if (bits > 32) {
    for (unsigned k = 0; k < 16; ++k) at[k] = uint8_t((h >> (8 * (k % 4))) + k);
  } else {
    std::memcpy(at, &h, bits <= 8 ? 1 : bits <= 16 ? 2 : 4);  // little-endian host
  }
}

// printers.txt: "== key <table>" and "== action <action>" sections.
std::map<std::string, std::string> golden() {
  std::ifstream in(ORBISK_GOLDEN_DIR "/printers.txt");
  std::map<std::string, std::string> out;
  std::string line, *section = nullptr;
  while (std::getline(in, line)) {
    if (line.rfind("== ", 0) == 0) {
      section = &out[line.substr(3)];
    } else if (section != nullptr) {
      *section += line + "\n";
    }
  }
  return out;
}

TEST(Printers, EveryKeyAndEveryActionPrintsWhatTheCatalogueGives) {
  const auto expected = golden();
  ASSERT_EQ(136u + 150u, expected.size());
  std::size_t compared = 0;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!t.keyed()) continue;
    std::vector<uint64_t> words(t.match_spec_size / 8 + 1, 0);
    auto *record = reinterpret_cast<uint8_t *>(words.data());
    for (const FieldDesc *f = t.fields; f != t.fields + t.num_fields; ++f) {
      const std::string name = std::string(t.name) + "." + f->name;
      fill(record, f->host_offset, f->bits, name);
      if (f->match == FieldMatch::Ternary) fill(record, f->partner_offset, f->bits, name + "_mask");
      if (f->match == FieldMatch::Lpm) fill(record, f->partner_offset, 16, name + "_prefix_length");
    }
    auto print =
        exported<void (*)(int, int, const void *)>(std::string(t.name) + "_match_spec_print");
    const int indent = int(std::strlen(t.name) % 5);
    EXPECT_EQ(expected.at(std::string("key ") + t.name),
              captured([&](int fd) { print(fd, indent, record); }))
        << t.name;
    ++compared;
  }
  for (std::size_t i = 0; i < kNumActions; ++i) {
    const ActionDesc &a = kActions[i];
    if (a.num_params == 0) continue;
    std::vector<uint64_t> words(a.spec_size / 8 + 1, 0);
    auto *record = reinterpret_cast<uint8_t *>(words.data());
    for (const auto *p = a.params; p != a.params + a.num_params; ++p) {
      fill(record, p->host_offset, p->bits, std::string(a.name) + "." + p->name);
    }
    auto print = exported<void (*)(int, int, const void *)>(std::string(a.name) + "_print");
    const int indent = int(std::strlen(a.name) % 3);
    EXPECT_EQ(expected.at(std::string("action ") + a.name),
              captured([&](int fd) { print(fd, indent, record); }))
        << a.name;
    ++compared;
  }
  EXPECT_EQ(expected.size(), compared);
}

TEST(Printers, WorkedLines) {
  // A key bit above the table's mask is dropped, digits follow the width.
  p4_pd_orbisk_switch_ecmpGroup_match_spec_t ecmp{};
  ecmp.l3_nextHop = 0x1ff;
  EXPECT_EQ(
      "p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n  l3_nextHop mask 0xff: 0x00ff\n",
      captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 0, &ecmp); }));
  EXPECT_EQ(
      "   p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n    l3_nextHop mask 0xff: 0x00ff\n",
      captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 3, &ecmp); }));
  // Three bits of vxlanVti are kept, one digit.
  const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t vxlan = {0xFF, 0};
  EXPECT_EQ("  action_vxlanVti: 0x7\n  action_vxlanVarpIp: 0x0\n", captured([&](int fd) {
              p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_print(fd, 0, &vxlan);
            }));
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

// Placement data printed: the key as its printer writes it (none for a
// default entry or a keyless table), then the action's full name at the
// key's indent and its parameter lines; a selector table's entry, its key
// alone. The dispatchers by handle say on the descriptor when a handle names
// nothing.
class PlacementPrint : public OnModel {
 protected:
  using Fetch = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, void *, uint32_t *);
  using Print = pd_status (*)(int, int, const void *);

  // The placement record of an entry or member, and its print by name and by handle.
  std::string printed(const std::string &name, uint32_t hdl, int indent = 2) {
    record.assign(ORBISK_MODEL_PLACEMENT_MAX_BYTES, 0);
    uint32_t size = uint32_t(record.size());
    EXPECT_EQ(0u,
              exported<Fetch>(name + "_get_plcmt_data")(sess, tgt, 0, hdl, record.data(), &size));
    const bool profile = name.find("Profile") != std::string::npos;
    const std::string text = captured([&](int fd) {
      exported<Print>(name + (profile ? "_adt_plcmt_data_print" : "_plcmt_data_print"))(
          fd, indent, record.data());
    });
    const pd_tbl_hdl h = profile ? handle_of_profile(name) : table(name).handle;
    EXPECT_EQ(text, captured([&](int fd) {
                (profile ? p4_pd_orbisk_switch_adt_plcmt_data_print
                         : p4_pd_orbisk_switch_plcmt_data_print)(fd, indent, h, record.data());
              }));
    return text;
  }
  static pd_tbl_hdl handle_of_profile(const std::string &name) {
    for (std::size_t i = 0; i < orbisk::pd::kNumProfiles; ++i) {
      if (name == orbisk::pd::kProfiles[i].name) return orbisk::pd::kProfiles[i].adt_hdl;
    }
    return 0;
  }
  std::vector<uint8_t> record;
};

TEST_F(PlacementPrint, KeyThenActionAndTheShortForms) {
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t route{3, 0x0A010200, 24};
  const p4_pd_orbisk_switch_setNextHop_action_spec_t nh = {42};
  pd_entry_hdl e;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(sess, tgt, &route,
                                                                               &nh, &e));
  EXPECT_EQ(captured([&](int fd) {
              p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_print(fd, 2, &route);
            }) + "  p4_pd_orbisk_switch_setNextHop:\n" +
                captured([&](int fd) { p4_pd_orbisk_switch_setNextHop_print(fd, 2, &nh); }),
            printed("ipv4ShortMaskLpm", e));
  // The default entry and a keyless table: the action alone.
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_default_action_ipv4ShortMaskLpmMiss(
                    sess, tgt, &e));
  EXPECT_EQ("p4_pd_orbisk_switch_ipv4ShortMaskLpmMiss:\n", printed("ipv4ShortMaskLpm", e, 0));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_vlanDecap_set_default_action_removeVlanHdr(sess, tgt, &e));
  EXPECT_EQ("   p4_pd_orbisk_switch_removeVlanHdr:\n", printed("vlanDecap", e, 3));
  // A member, and a selector table's entry naming it: its key alone.
  const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t m = {1, 7};
  pd_mbr_hdl mbr;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
                    sess, tgt, &m, &mbr));
  EXPECT_EQ(
      "p4_pd_orbisk_switch_setEcmpNextHop:\n  action_nextHopTable: 0x01\n  action_nextHop: "
      "0x00000007\n",
      printed("ecmpMemberActionProfile", mbr, 0));
  const p4_pd_orbisk_switch_ecmpGroup_match_spec_t key = {0x12};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpGroup_add_entry(sess, tgt, &key, mbr, &e));
  EXPECT_EQ("p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n  l3_nextHop mask 0xff: 0x0012\n",
            printed("ecmpGroup", e, 0));
}

TEST_F(PlacementPrint, WhatCannotBeDecodedOrNamesNothing) {
  const std::vector<uint8_t> junk(ORBISK_MODEL_PLACEMENT_MAX_BYTES, 0);
  pd_status st = 0;
  EXPECT_EQ("cannot decode plcmt_data for p4_pd_orbisk_switch_ipv4Host\n", captured([&](int fd) {
              st = p4_pd_orbisk_switch_ipv4Host_plcmt_data_print(fd, 4, junk.data());
            }));
  EXPECT_EQ(ORBISK_MODEL_PLACEMENT_FOREIGN, st);
  EXPECT_EQ("cannot decode plcmt_data for p4_pd_orbisk_switch_ecmpMemberActionProfile\n",
            captured([&](int fd) {
              st = p4_pd_orbisk_switch_ecmpMemberActionProfile_adt_plcmt_data_print(fd, 4,
                                                                                    junk.data());
            }));
  // A member's decoder goes by the action handle it was left: none here.
  EXPECT_EQ(15u, st);
  // Table handles to the profile dispatcher and the reverse, the free
  // handle and the ends of both ranges: one line, and its length.
  const pd_tbl_hdl table_hdl = table("ipv4Host").handle,
                   adt = handle_of_profile("ecmpMemberActionProfile");
  for (pd_tbl_hdl h : {pd_tbl_hdl(0x01000055), pd_tbl_hdl(0x01000000), pd_tbl_hdl(0x01000076),
                       pd_tbl_hdl(0x11010002), pd_tbl_hdl(0x11010029), adt}) {
    int n = 0;
    char line[64];
    snprintf(line, sizeof line, "0x%08x table not found\n", h);
    EXPECT_EQ(line, captured([&](int fd) {
                n = p4_pd_orbisk_switch_plcmt_data_print(fd, 2, h, junk.data());
              }));
    EXPECT_EQ(int(std::strlen(line)), n);
  }
  for (pd_tbl_hdl h : {table_hdl, pd_tbl_hdl(0x02000000), pd_tbl_hdl(0x0300001d)}) {
    char line[64];
    snprintf(line, sizeof line, "0x%08x table not found\n", h);
    EXPECT_EQ(line, captured([&](int fd) {
                p4_pd_orbisk_switch_adt_plcmt_data_print(fd, 2, h, junk.data());
              }));
  }
}

}  // namespace
