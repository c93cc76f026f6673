// The walk dispatchers over every handle of both table ranges with one
// beyond each end, the profiles' action data and selector handles, and
// handles of nothing: a handle of a table (or profile) gets exactly what its
// per-table (per-profile) function gives, on a model holding entries and
// members; any other gets its dispatcher's own miss answer. The placement
// printers by handle likewise, on a record no decoder accepts.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::kNumProfiles;
using orbisk::pd::kNumTables;
using orbisk::pd::kProfiles;
using orbisk::pd::kTables;

constexpr uint32_t kInvalid = 0xFFFFFFFFu;

using First = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t *);
using Next = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t, uint32_t *);

// Status and handle out (preset to a value no call gives) of one call.
template <typename Call>
std::pair<pd_status, uint32_t> answer(Call call) {
  uint32_t out = 0x5A5A5A5Au;
  const pd_status st = call(&out);
  return {st, out};
}

class Walk : public OnModel {
 protected:
  void SetUp() override {
    OnModel::SetUp();
    for (uint8_t vrf : {1, 2}) {
      p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t route{};
      route.l3Info_vrfId = vrf;
      const p4_pd_orbisk_switch_setNextHop_action_spec_t nh = {7};
      const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t m = {1, vrf};
      ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
                        sess, tgt, &route, &nh, &entries[vrf - 1]));
      ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
                        sess, tgt, &m, &members[vrf - 1]));
    }
  }
  pd_entry_hdl entries[2] = {};
  pd_mbr_hdl members[2] = {};
};

TEST_F(Walk, EveryDispatcherOverEveryHandle) {
  using ByHandle = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t *);
  using ByHandleNext =
      pd_status (*)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, uint32_t, uint32_t *);
  // Each dispatcher, the per-table or per-profile function it stands for, and its miss status.
  const struct {
    ByHandle first;
    ByHandleNext next;
    const char *target;
    bool of_table;
    pd_status miss;
  } rows[] = {
      {p4_pd_orbisk_switch_entry_hdl_first, nullptr, "_get_first_entry_handle", true, 0},
      {nullptr, p4_pd_orbisk_switch_entry_hdl_next, "_get_next_entry_handles", true, 0},
      {p4_pd_orbisk_switch_entry_hdl_default, nullptr, "_table_get_default_entry_handle", true, 0},
      {p4_pd_orbisk_switch_member_hdl_first, nullptr, "_get_first_member", false, kInvalid},
      {nullptr, p4_pd_orbisk_switch_member_hdl_next, "_get_next_members", false, kInvalid},
  };
  // The runs the header offers a walker are the ranges the dispatchers take.
  static_assert(P4_PD_ORBISK_SWITCH_TABLES_A_FIRST == 0x01000001u);
  static_assert(P4_PD_ORBISK_SWITCH_TABLES_A_LAST == 0x01000075u);
  static_assert(P4_PD_ORBISK_SWITCH_TABLES_B_FIRST == 0x11010003u);
  static_assert(P4_PD_ORBISK_SWITCH_TABLES_B_LAST == 0x11010028u);
  const uint32_t offered[] = P4_PD_ORBISK_SWITCH_PROFILE_HANDLES;
  ASSERT_EQ(kNumProfiles, std::size(offered));
  for (std::size_t i = 0; i < kNumProfiles; ++i) EXPECT_EQ(kProfiles[i].adt_hdl, offered[i]);
  std::vector<uint32_t> handles = {0, kInvalid, 0x02000000, 0x12010000, 0x04000001};
  for (uint32_t h = 0x01000000; h <= 0x01000076; ++h) handles.push_back(h);
  for (uint32_t h = 0x11010002; h <= 0x11010029; ++h) handles.push_back(h);
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    handles.insert(handles.end(), {kProfiles[i].adt_hdl, kProfiles[i].sel_hdl});
  }
  std::size_t tables = 0, profiles = 0;
  static const uint8_t junk[ORBISK_MODEL_PLACEMENT_MAX_BYTES] = {};
  for (uint32_t h : handles) {
    // Its table or profile from the descriptors' rows, not by the lookup under test.
    std::string t, r;
    for (std::size_t i = 0; i < kNumTables; ++i) t = kTables[i].handle == h ? kTables[i].name : t;
    for (std::size_t i = 0; i < kNumProfiles; ++i)
      r = kProfiles[i].adt_hdl == h ? kProfiles[i].name : r;
    tables += !t.empty();
    profiles += !r.empty();
    // The placement printers by handle, given a record no decoder accepts: a
    // line, and the decoder's status (a member's goes by the action handle it
    // was left: none, 15).
    for (const bool of_table : {true, false}) {
      const std::string &name = of_table ? t : r;
      char line[96];
      snprintf(line, sizeof line, "0x%08x table not found\n", h);
      if (!name.empty())
        snprintf(line, sizeof line, "cannot decode plcmt_data for p4_pd_orbisk_switch_%s\n",
                 name.c_str());
      int n = 0;
      EXPECT_EQ(line, captured([&](int fd) {
                  n = (of_table ? p4_pd_orbisk_switch_plcmt_data_print
                                : p4_pd_orbisk_switch_adt_plcmt_data_print)(fd, 1, h, junk);
                }))
          << std::hex << h;
      EXPECT_EQ(name.empty() ? int(std::strlen(line))
                : of_table   ? int(ORBISK_MODEL_PLACEMENT_FOREIGN)
                             : 15,
                n);
    }
    for (const auto &row : rows) {
      const std::string name = row.of_table ? t : r;
      const uint32_t after = row.of_table ? (t == "ipv4ShortMaskLpm" ? entries[0] : 1) : members[0];
      const auto direct = [&](uint32_t *o) {
        return row.first ? exported<First>(name + row.target)(sess, tgt, o)
                         : exported<Next>(name + row.target)(sess, tgt, after, 1, o);
      };
      EXPECT_EQ(name.empty() ? std::make_pair(row.miss, kInvalid) : answer(direct),
                answer([&](uint32_t *o) {
                  return row.first ? row.first(sess, tgt, h, o)
                                   : row.next(sess, tgt, h, after, 1, o);
                }))
          << std::hex << "handle 0x" << h << " " << row.target;
    }
  }
  EXPECT_EQ(kNumTables, tables);  // 0x01000055 inside the first range names nothing
  EXPECT_EQ(kNumProfiles, profiles);
  // What the walk found where entries and members are.
  uint32_t e = 0, m = 0;
  EXPECT_EQ(0u,
            p4_pd_orbisk_switch_entry_hdl_first(sess, tgt, table("ipv4ShortMaskLpm").handle, &e));
  EXPECT_EQ(
      0u, p4_pd_orbisk_switch_member_hdl_first(sess, tgt, table("ecmpGroup").profile->adt_hdl, &m));
  EXPECT_EQ(entries[0], e);
  EXPECT_EQ(members[0], m);
}

}  // namespace
