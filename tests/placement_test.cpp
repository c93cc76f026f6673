// Placement data decoding where it does not just give back what was written:
// an action handle the table or profile does not have (3 or 15 with one log
// line, or the end of the process in debug mode), and a driver that refuses
// to decode. The round trip of every table and profile is in the sweep of
// roundtrip_test.cpp.
#include <dlfcn.h>

#include <utility>
#include <vector>

#include "test_support.h"

namespace {

using Room = std::vector<uint8_t>;

// Set by a test: the model's next successful member decode is answered with
// this status instead, its outputs filled, as a driver that fills and then
// fails would.
pd_status g_status_after_fill = 0;

}  // namespace

// Stands before the model's member decode (the library's reference binds to
// the program's own definition first) and hands every call on to it.
extern "C" __attribute__((visibility("default"))) pd_status pipe_mgr_plcmt_adt_data_get_entry(
    const void *plcmt_data, pd_action_record *act, pd_act_fn_hdl *fn) {
  using Decode = pd_status (*)(const void *, pd_action_record *, pd_act_fn_hdl *);
  static const auto model =
      reinterpret_cast<Decode>(dlsym(RTLD_NEXT, "pipe_mgr_plcmt_adt_data_get_entry"));
  const pd_status s = model(plcmt_data, act, fn);
  if (s != BF_SUCCESS || g_status_after_fill == 0) return s;
  return std::exchange(g_status_after_fill, 0);
}

namespace {

class Placement : public OnModel {
 protected:
  // The placement data of a table's default entry, whatever its action.
  Room default_record(const char *t) {
    Room r(ORBISK_MODEL_PLACEMENT_MAX_BYTES);
    uint32_t size = uint32_t(r.size());
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_plcmt_mat_data_get(sess, tgt, table(t).handle,
                                                      ORBISK_MODEL_DEFAULT_ENTRY_HDL, r.data(), &size));
    orbisk_model_clear_log();
    return r;
  }
  // A member record of another profile's action, made in the driver alone.
  Room foreign_member() {
    const orbisk::pd::ProfileDesc &p = *table("lagGroup").profile;
    uint8_t data[32] = {};
    pd_action_record act{};
    act.data_bytes = data;
    act.num_bytes = p.actions[0].action->data_bytes;
    act.num_valid_bits = p.actions[0].action->data_bits;
    pd_mbr_hdl mbr = 0;
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_adt_ent_add(sess, tgt, p.adt_hdl, p.actions[0].handle, 0, &act, &mbr, 0));
    Room r(ORBISK_MODEL_PLACEMENT_MAX_BYTES);
    uint32_t size = uint32_t(r.size());
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_plcmt_adt_data_get(sess, tgt, p.adt_hdl, mbr, r.data(), &size));
    orbisk_model_clear_log();
    return r;
  }
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
  p4_pd_orbisk_switch_action_specs_t out{};
  bool is_default = false;
};

TEST_F(Placement, AnActionNotTheTablesIsAnswered3AfterTheKey) {
  // A keyless table's default record, handed to a table without its action.
  const Room r = default_record("vlanDecap");
  std::memset(&ms, 0xEE, sizeof ms);
  out.name = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  EXPECT_EQ(3u, p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data(r.data(), &ms, &out, &is_default));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from "
                          "p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data:"));
  EXPECT_TRUE(is_default) << "the key is written before the action is looked at";
  const decltype(ms) zero{};
  EXPECT_EQ(0, std::memcmp(&ms, &zero, sizeof ms)) << "a default record has no key";
  EXPECT_EQ(P4_PD_ORBISK_SWITCH_ACTION_COUNT, out.name);
}

TEST_F(Placement, AnActionNotTheProfilesIsAnswered15) {
  const Room r = foreign_member();
  EXPECT_EQ(15u, p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member_from_plcmt_data(r.data(), &out));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from "
                          "p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member_from_plcmt_data:"));
  orbisk_model_clear_log();
  EXPECT_EQ(15u, p4_pd_orbisk_switch_ecmpMemberActionProfile_get_full_member_info_from_plcmt_data(
                     0, 1, r.data(), &out));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from "
                          "p4_pd_orbisk_switch_ecmpMemberActionProfile_get_full_member_info_from_plcmt_data:"));
  EXPECT_EQ(0u, calls_of("p4_pd_ms_mbr_get_res")) << "no action, no resources asked for";
}

TEST_F(Placement, ADriverRefusalReachesTheCallerWithNothingWritten) {
  const Room r = default_record("l2Lookup");
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_plcmt_mat_data_get_entry", 1, 0x77));
  is_default = false;
  out.name = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  EXPECT_EQ(0x77u, p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data(r.data(), &ms, &out, &is_default));
  EXPECT_FALSE(is_default);
  EXPECT_EQ(P4_PD_ORBISK_SWITCH_ACTION_COUNT, out.name);
  // A member decode looks at the action handle whatever the driver said: a
  // refusal leaves none, which is answered as an unknown action.
  const Room m = foreign_member();
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_plcmt_adt_data_get_entry", 1, 0x77));
  EXPECT_EQ(15u, p4_pd_orbisk_switch_lagPortActionProfile_get_member_from_plcmt_data(m.data(), &out));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from "));
  // A record the model did not make is the driver's to refuse, and its
  // status reaches the caller.
  const Room junk(ORBISK_MODEL_PLACEMENT_MAX_BYTES, 0x5A);
  EXPECT_EQ(ORBISK_MODEL_PLACEMENT_FOREIGN,
            p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data(junk.data(), &ms, &out, &is_default));
}

TEST_F(Placement, AMemberDecodeAnswersTheDriversStatusAfterFillingTheAction) {
  const Room m = foreign_member();  // a member of lagPortActionProfile
  out.name = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  g_status_after_fill = 0x66;
  EXPECT_EQ(0x66u, p4_pd_orbisk_switch_lagPortActionProfile_get_member_from_plcmt_data(m.data(), &out));
  EXPECT_EQ(table("lagGroup").profile->actions[0].action->enum_value, uint32_t(out.name));
  EXPECT_EQ(0u, orbisk_model_log_count());
}

TEST_F(Placement, AFullMemberDecodeWithoutAStateDecodesTheSame) {
  const Room m = foreign_member();
  p4_pd_orbisk_switch_action_specs_t with{}, without{};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_lagPortActionProfile_get_full_member_info_from_plcmt_data(
                            0, 1, m.data(), &with));
  EXPECT_EQ(1u, calls_of("p4_pd_ms_mbr_get_res"));
  // Started again with no member-selection state for any profile.
  p4_pd_orbisk_switch_cleanup();
  orbisk_model_reset();
  for (uint32_t nth = 1; nth <= orbisk::pd::kNumProfiles; ++nth)
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("p4_pd_ms_init_state", nth, 1));
  p4_pd_orbisk_switch_init();
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_lagPortActionProfile_get_full_member_info_from_plcmt_data(
                            0, 1, m.data(), &without));
  EXPECT_EQ(0u, calls_of("p4_pd_ms_mbr_get_res"));
  EXPECT_EQ(0, std::memcmp(&with, &without, sizeof with));
}

using PlacementDeathTest = Placement;

TEST_F(PlacementDeathTest, InDebugModeAnUnknownActionEndsTheProcess) {
  const Room r = default_record("vlanDecap");
  const Room m = foreign_member();
  orbisk_model_set_dbg_mode(1);
  EXPECT_DEATH(p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data(r.data(), &ms, &out, &is_default),
               "bf_orbisk_switch_nat_vxlan/src/pd:[0-9]+: "
               "p4_pd_orbisk_switch_l2Lookup_get_entry_from_plcmt_data: Assertion `\\(\\(void \\*\\)0\\)' failed");
  EXPECT_DEATH(p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member_from_plcmt_data(m.data(), &out),
               "bf_orbisk_switch_nat_vxlan/src/pd:[0-9]+: "
               "p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member_from_plcmt_data: Assertion");
}

}  // namespace
