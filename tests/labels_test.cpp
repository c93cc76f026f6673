// Counter labels of the fifteen counting tables: every case of
// tests/golden/counter_labels.txt (table, the key record's members that are
// set, the label), then the label of an entry read back, per table and by
// handle, and the answers when there is nothing to read.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::FieldDesc;
using orbisk::pd::TableDesc;

// Sets "member=value" (or "member=v6:<address>") in a key record of t.
void set_member(const TableDesc &t, uint8_t *record, const std::string &set) {
  const std::size_t eq = set.find('=');
  const std::string member = set.substr(0, eq), value = set.substr(eq + 1);
  for (const FieldDesc *f = t.fields; f != t.fields + t.num_fields; ++f) {
    const bool mask = member == std::string(f->name) + "_mask";
    if (member != f->name && !mask) continue;
    uint8_t *at = record + (mask ? f->partner_offset : f->host_offset);
    if (value.rfind("v6:", 0) == 0) {
      EXPECT_EQ(1, inet_pton(AF_INET6, value.c_str() + 3, at)) << set;
    } else {
      const uint32_t v = uint32_t(std::stoul(value, nullptr, 0));
      std::memcpy(at, &v, f->bits <= 8 ? 1 : f->bits <= 16 ? 2 : 4);  // little-endian host
    }
    return;
  }
  ADD_FAILURE() << "no member " << member << " in " << t.name;
}

TEST(CounterLabels, EveryCase) {
  std::ifstream in(ORBISK_GOLDEN_DIR "/counter_labels.txt");
  std::set<std::string> labelled;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t bar = line.find('|'), bar2 = line.find('|', bar + 1);
    const std::string name = line.substr(0, bar - 1);
    const std::string label = line.substr(bar2 + 2, line.size() - bar2 - 3);
    const TableDesc &t = table(name);
    std::vector<uint64_t> words(t.match_spec_size / 8 + 1, 0);
    std::istringstream sets(line.substr(bar + 1, bar2 - bar - 1));
    for (std::string set; sets >> set;)
      set_member(t, reinterpret_cast<uint8_t *>(words.data()), set);
    char out[512];
    std::memset(out, '#', sizeof out);
    const int n = exported<int (*)(const void *, char *)>(
        name + "_match_spec_stringify_for_counter")(words.data(), out);
    EXPECT_EQ(label, out) << line;
    EXPECT_EQ(int(label.size()), n) << line;
    labelled.insert(name);
  }
  // Every counting table has its cases, and only counting tables have labels.
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const TableDesc &t = orbisk::pd::kTables[i];
    const std::string fn =
        std::string("p4_pd_orbisk_switch_") + t.name + "_match_spec_stringify_for_counter";
    EXPECT_EQ(labelled.count(t.name) == 1, dlsym(RTLD_DEFAULT, fn.c_str()) != nullptr) << t.name;
  }
  EXPECT_EQ(15u, labelled.size());
}

class EntryLabels : public OnModel {};

TEST_F(EntryLabels, ReadFromHardwarePerTableAndByHandle) {
  p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t key{};
  key.ig_intr_md_ingress_port = 5;
  key.ingMd_illegalDmac_mask = 1;
  key.parserMd_checksumErr = key.parserMd_checksumErr_mask = 1;
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ingressPortDropCheck_table_add_with_setDrop(sess, tgt, &key, 10,
                                                                                &hdl));
  const std::string want = "Ingress Port 0x05 !illegalDmac checksumErr ";
  const pd_tbl_hdl tbl = table("ingressPortDropCheck").handle;
  char out[256] = "";
  EXPECT_EQ(int(want.size()), p4_pd_orbisk_switch_ingressPortDropCheck_stringify_counter_match_spec(
                                  sess, 0, hdl, out));
  EXPECT_EQ(want, out);
  std::strcpy(out, "");
  EXPECT_EQ(int(want.size()),
            p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, tbl, hdl, out));
  EXPECT_EQ(want, out);
  // A failed read, a table that counts nothing, a handle of nothing: 0, out as it was.
  std::strcpy(out, "untouched");
  EXPECT_EQ(0, p4_pd_orbisk_switch_ingressPortDropCheck_stringify_counter_match_spec(
                   sess, 0, hdl + 1000, out));
  EXPECT_EQ(0, p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, tbl, hdl + 1000, out));
  for (pd_tbl_hdl other :
       {table("ipv4Host").handle, pd_tbl_hdl(0x01000055), pd_tbl_hdl(0), pd_tbl_hdl(0x0200001d)}) {
    EXPECT_EQ(0, p4_pd_orbisk_switch_stringify_counter_matchspec(sess, 0, other, hdl, out))
        << std::hex << other;
  }
  EXPECT_STREQ("untouched", out);
}

}  // namespace
