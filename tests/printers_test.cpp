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
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::FieldDesc;
using orbisk::pd::FieldMatch;
using orbisk::pd::kActions;
using orbisk::pd::kNoOffset;
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
    auto print = exported<void (*)(int, int, const void *)>(std::string(t.name) + "_match_spec_print");
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
  EXPECT_EQ("p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n  l3_nextHop mask 0xff: 0x00ff\n",
            captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 0, &ecmp); }));
  EXPECT_EQ("   p4_pd_orbisk_switch_ecmpGroup_match_spec_t:\n    l3_nextHop mask 0xff: 0x00ff\n",
            captured([&](int fd) { p4_pd_orbisk_switch_ecmpGroup_match_spec_print(fd, 3, &ecmp); }));
  // Three bits of vxlanVti are kept, one digit.
  const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t vxlan = {0xFF, 0};
  EXPECT_EQ("  action_vxlanVti: 0x7\n  action_vxlanVarpIp: 0x0\n", captured([&](int fd) {
              p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_print(fd, 0, &vxlan);
            }));
}

// One formatter call: its text and result.
struct Formatted {
  std::string text;
  int result;
};

template <typename Call>
Formatted format(Call call) {
  char out[128];
  std::memset(out, '#', sizeof out);
  out[sizeof out - 1] = '\0';
  const int n = call(out);
  return {out, n};
}

std::vector<uint8_t> v6(const char *text) {
  std::vector<uint8_t> b(16);
  EXPECT_EQ(1, inet_pton(AF_INET6, text, b.data())) << text;
  return b;
}

TEST(Printers, AddressFormatters) {
  const auto a = v6("2001:db8::1"), ffff = v6("ffff::"), zero = v6("::");
  const struct {
    Formatted got;
    const char *text;
  } cases[] = {
      {format([](char *o) { return p4_pd_orbisk_switch__print_v4addr_exact(o, "dip", 0x0A000102); }),
       "dip 10.0.1.2 "},
      {format([](char *o) { return p4_pd_orbisk_switch__print_v4addr_lpm(o, "dip", 0xC0A80000, 16); }),
       "dip 192.168.0.0/16 "},
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_v4addr_ternary(o, "sip", 0x0A0B0C0D, 0xFFFFFF00);
       }),
       "sip 10.11.12.13/24 "},  // the address is printed whole, not under its mask
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_v4addr_ternary(o, "dip", 0x01020304, 0xFF00FF00);
       }),
       "dip 1.2.3.4/8 "},  // a mask with holes: its leading run of ones
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_v4addr_ternary(o, "dip", 0x01020304, 0xFFFFFFFF);
       }),
       "dip 1.2.3.4/32 "},
      {format([&](char *o) { return p4_pd_orbisk_switch__print_v6addr_exact(o, "dip", a.data()); }),
       "dip 2001:db8::1"},  // the one form with no closing blank
      {format([&](char *o) { return p4_pd_orbisk_switch__print_v6addr_lpm(o, "dip", a.data(), 64); }),
       "dip 2001:db8::1/64 "},
      {format([&](char *o) {
         return p4_pd_orbisk_switch__print_v6addr_ternary(o, "sip", a.data(), ffff.data());
       }),
       "sip 2001:db8::1/ffff:: "},
      {format([](char *o) { return p4_pd_orbisk_switch__print_mac_exact(o, "dmac", 0x0A0B0C, 0xD0E0F); }),
       "dmac 0a0b.0c0d.0e0f "},
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_mac_ternary(o, "dmac", 0x0A0B0C, 0xFFFFFF, 0x0D0E0F, 0xFFFFFF);
       }),
       "dmac 0a0b.0c0d.0e0f "},  // all 48 mask bits: the exact form
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_mac_ternary(o, "dmac", 0x010000, 0x010000, 0, 0);
       }),
       "dmac 0100.0000.0000/0100.0000.0000 "},
      {format([](char *o) {
         return p4_pd_orbisk_switch__print_mac_ternary(o, "dmac", 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFE);
       }),
       "dmac ffff.ffff.ffff/ffff.ffff.fffe "},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(c.text, c.got.text);
    EXPECT_EQ(int(std::strlen(c.text)), c.got.result) << c.text;
  }
  // A mask of nothing leaves the address out and the buffer as it was.
  for (const Formatted &none :
       {format([](char *o) { return p4_pd_orbisk_switch__print_v4addr_ternary(o, "dip", 0x01020304, 0); }),
        format([&](char *o) {
          return p4_pd_orbisk_switch__print_v6addr_ternary(o, "dip", a.data(), zero.data());
        }),
        format([](char *o) {
          return p4_pd_orbisk_switch__print_mac_ternary(o, "dmac", 0xFFFFFF, 0, 0xFFFFFF, 0);
        })}) {
    EXPECT_EQ(0, none.result);
    EXPECT_EQ(std::string(127, '#'), none.text);
  }
}

}  // namespace
