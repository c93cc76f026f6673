// The walk dispatchers over every handle of both table ranges, the profile
// handles, the selector handles and the edges: a handle that names a table
// (or a profile) gets exactly what the per-table (per-profile) function
// gives, on a model holding entries and members; any other gets its
// dispatcher's own miss answer.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "test_support.h"

namespace {

using orbisk::pd::kNumProfiles;
using orbisk::pd::kNumTables;
using orbisk::pd::kProfiles;
using orbisk::pd::kTables;

constexpr uint32_t kInvalid = 0xFFFFFFFFu;
constexpr uint32_t kUnset = 0x5A5A5A5Au;

// Every handle the dispatchers are tried with: both table ranges with one
// handle beyond each end, the profiles' action data and selector tables,
// and handles of nothing.
std::vector<uint32_t> handles() {
  std::vector<uint32_t> out;
  for (uint32_t h = 0x01000000; h <= 0x01000076; ++h) out.push_back(h);
  for (uint32_t h = 0x11010002; h <= 0x11010029; ++h) out.push_back(h);
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    out.push_back(kProfiles[i].adt_hdl);
    out.push_back(kProfiles[i].sel_hdl);
  }
  for (uint32_t h : {0u, kInvalid, 0x02000000u, 0x12010000u, 0x04000001u}) out.push_back(h);
  return out;
}

// The name of the table or profile with this handle, from the descriptors'
// rows (not by the lookup under test); empty for none.
std::string table_named(uint32_t h) {
  for (std::size_t i = 0; i < kNumTables; ++i) {
    if (kTables[i].handle == h) return kTables[i].name;
  }
  return "";
}
std::string profile_named(uint32_t h) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (kProfiles[i].adt_hdl == h) return kProfiles[i].name;
  }
  return "";
}

using First = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t *);
using Next = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t, uint32_t *);

struct Answer {
  pd_status status;
  uint32_t out;
  bool operator==(const Answer &) const = default;
};

template <typename Call>
Answer answer(Call call) {
  uint32_t out = kUnset;
  const pd_status st = call(&out);
  return {st, out};
}

class Walk : public OnModel {
 protected:
  void SetUp() override {
    OnModel::SetUp();
    // Two entries in one table, two members in one profile.
    for (uint8_t vrf : {1, 2}) {
      p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t route{};
      route.l3Info_vrfId = vrf;
      route.ingIpv4_dip = 0x0A000000;
      route.ingIpv4_dip_prefix_length = 8;
      const p4_pd_orbisk_switch_setNextHop_action_spec_t nh = {7};
      pd_entry_hdl e;
      ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(sess, tgt, &route, &nh, &e));
      entries.push_back(e);
      const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t m = {1, vrf};
      pd_mbr_hdl mbr;
      ASSERT_EQ(0u, p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(sess, tgt, &m, &mbr));
      members.push_back(mbr);
    }
  }
  std::vector<uint32_t> entries, members;
};

TEST_F(Walk, EveryDispatcherOverEveryHandle) {
  std::size_t tables = 0, profiles = 0;
  for (uint32_t h : handles()) {
    SCOPED_TRACE(::testing::Message() << std::hex << "handle 0x" << h);
    const std::string t = table_named(h), r = profile_named(h);
    const uint32_t after = t == "ipv4ShortMaskLpm" ? entries[0] : 1;
    const Answer first = answer([&](uint32_t *o) { return p4_pd_orbisk_switch_entry_hdl_first(sess, tgt, h, o); });
    const Answer next =
        answer([&](uint32_t *o) { return p4_pd_orbisk_switch_entry_hdl_next(sess, tgt, h, after, 1, o); });
    const Answer dflt =
        answer([&](uint32_t *o) { return p4_pd_orbisk_switch_entry_hdl_default(sess, tgt, h, o); });
    if (t.empty()) {
      const Answer miss = {0, kInvalid};
      EXPECT_EQ(miss, first);
      EXPECT_EQ(miss, next);
      EXPECT_EQ(miss, dflt);
    } else {
      ++tables;
      EXPECT_EQ(answer([&](uint32_t *o) { return exported<First>(t + "_get_first_entry_handle")(sess, tgt, o); }),
                first);
      EXPECT_EQ(answer([&](uint32_t *o) {
                  return exported<Next>(t + "_get_next_entry_handles")(sess, tgt, after, 1, o);
                }),
                next);
      EXPECT_EQ(answer([&](uint32_t *o) {
                  return exported<First>(t + "_table_get_default_entry_handle")(sess, tgt, o);
                }),
                dflt);
    }
    const uint32_t mafter = r == "ecmpMemberActionProfile" ? members[0] : 1;
    const Answer mfirst =
        answer([&](uint32_t *o) { return p4_pd_orbisk_switch_member_hdl_first(sess, tgt, h, o); });
    const Answer mnext =
        answer([&](uint32_t *o) { return p4_pd_orbisk_switch_member_hdl_next(sess, tgt, h, mafter, 1, o); });
    if (r.empty()) {
      const Answer miss = {kInvalid, kInvalid};
      EXPECT_EQ(miss, mfirst);
      EXPECT_EQ(miss, mnext);
    } else {
      ++profiles;
      EXPECT_EQ(answer([&](uint32_t *o) { return exported<First>(r + "_get_first_member")(sess, tgt, o); }), mfirst);
      EXPECT_EQ(answer([&](uint32_t *o) { return exported<Next>(r + "_get_next_members")(sess, tgt, mafter, 1, o); }),
                mnext);
    }
  }
  EXPECT_EQ(kNumTables, tables);
  EXPECT_EQ(kNumProfiles, profiles);
  // The free handle inside the first range names nothing.
  EXPECT_EQ("", table_named(0x01000055));
}

TEST_F(Walk, FromHandlesAloneFindsWhatWasAdded) {
  const pd_tbl_hdl tbl = table("ipv4ShortMaskLpm").handle;
  pd_entry_hdl e = 0, n[2] = {0, 0};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_entry_hdl_first(sess, tgt, tbl, &e));
  EXPECT_EQ(entries[0], e);
  ASSERT_EQ(0u, p4_pd_orbisk_switch_entry_hdl_next(sess, tgt, tbl, e, 2, n));
  EXPECT_EQ(entries[1], n[0]);
  pd_tbl_hdl adt = 0;
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (std::string(kProfiles[i].name) == "ecmpMemberActionProfile") adt = kProfiles[i].adt_hdl;
  }
  pd_mbr_hdl m = 0, mn[1] = {0};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_member_hdl_first(sess, tgt, adt, &m));
  EXPECT_EQ(members[0], m);
  ASSERT_EQ(0u, p4_pd_orbisk_switch_member_hdl_next(sess, tgt, adt, m, 1, mn));
  EXPECT_EQ(members[1], mn[0]);
}

}  // namespace
