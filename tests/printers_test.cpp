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

}  // namespace
