// Start, end, device callbacks and the action enum.
#include <cjson/cJSON.h>

#include "test_support.h"

namespace {

class Frame : public ::testing::Test {
 protected:
  void SetUp() override { orbisk_model_reset(); }
};

TEST_F(Frame, InitRegistersAndHandsOverThreeCallbacks) {
  p4_pd_orbisk_switch_init();
  EXPECT_EQ(6u, calls_of("p4_pd_ms_init_state"));
  EXPECT_EQ(1u, calls_of("p4_pd_ms_init"));
  EXPECT_STREQ("p4_pd_orbisk_switch_pd", orbisk_model_client_name(bf_drv_hdl));
  const pd_drv_client_callbacks *cb = orbisk_model_callbacks(bf_drv_hdl);
  ASSERT_NE(nullptr, cb);
  EXPECT_EQ(2u, last("bf_drv_client_register_callbacks").args[2]);
  auto slots = reinterpret_cast<void *const *>(cb);
  for (int i = 0; i < PD_DRV_CALLBACK_SLOTS; ++i) {
    if (i == 3 || i == 4 || i == 5) continue;
    EXPECT_EQ(nullptr, slots[i]) << "slot " << i;
  }
  EXPECT_EQ(&p4_pd_orbisk_switch_dev_remove, cb->device_remove);
  EXPECT_EQ(&p4_pd_orbisk_switch_dev_log, cb->device_log);
  EXPECT_EQ(&p4_pd_orbisk_switch_dev_restore, cb->device_restore);

  constexpr pd_status kArmed = 0x55;
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("bf_drv_deregister", 1, kArmed));
  EXPECT_EQ(kArmed, p4_pd_orbisk_switch_cleanup());
  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_cleanup());
  EXPECT_EQ(nullptr, orbisk_model_client_name(bf_drv_hdl));
}

using FrameDeathTest = Frame;

TEST_F(FrameDeathTest, FailedRegistrationEndsTheProcessEvenOutsideDebugMode) {
  orbisk_model_set_dbg_mode(0);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("bf_drv_register", 1, 9));
  EXPECT_DEATH(p4_pd_orbisk_switch_init(), "r == BF_SUCCESS");
}

TEST_F(Frame, DeviceStateLogsSixProfilesAndRestoresByName) {
  p4_pd_orbisk_switch_init();
  cJSON *doc = cJSON_CreateObject();
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_log(4, doc));
  EXPECT_STREQ("orbisk_switch", cJSON_GetObjectItem(doc, "name")->valuestring);
  cJSON *profs = cJSON_GetObjectItem(doc, "act_profs");
  ASSERT_EQ(6, cJSON_GetArraySize(profs));
  const char *order[] = {"egrMirrorLagPortActionProfile", "mirrorLagPortActionProfile",
                         "foldedPipeActionProfile",       "ecmpMemberActionProfile",
                         "tunnelMemberActionProfile",     "lagPortActionProfile"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_STREQ(order[i], cJSON_GetObjectItem(cJSON_GetArrayItem(profs, i), "name")->valuestring);
  }
  EXPECT_EQ(6u, calls_of("p4_pd_ms_log_state"));

  // Restore matches by name: a stranger is skipped, a twin restores twice.
  orbisk_model_clear_calls();
  cJSON *back = cJSON_CreateObject();
  cJSON *arr = cJSON_AddArrayToObject(back, "act_profs");
  for (const char *n : {"lagPortActionProfile", "noSuchProfile", "lagPortActionProfile"}) {
    cJSON *o = cJSON_CreateObject();
    cJSON_AddStringToObject(o, "name", n);
    cJSON_AddItemToArray(arr, o);
  }
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_restore(4, back));
  EXPECT_EQ(2u, calls_of("p4_pd_ms_restore_state"));

  orbisk_model_clear_calls();
  cJSON *empty = cJSON_CreateObject();
  cJSON_AddArrayToObject(empty, "act_profs");
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_restore(4, empty));
  EXPECT_EQ(0u, calls_of("p4_pd_ms_restore_state"));

  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_remove(4));
  EXPECT_EQ(6u, calls_of("p4_pd_ms_destroy_state_for_dev"));
  EXPECT_EQ(1u, calls_of("p4_pd_ms_destroy_txn_state_for_dev"));
  cJSON_Delete(doc);
  cJSON_Delete(back);
  cJSON_Delete(empty);
  p4_pd_orbisk_switch_cleanup();
}

TEST(ActionEnum, ConvertsBothWaysAtTheEdges) {
  constexpr auto kNone = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  EXPECT_STREQ("p4_pd_orbisk_switch_setPhase0", p4_pd_orbisk_switch_action_enum_to_string(0));
  EXPECT_STREQ("p4_pd_orbisk_switch_setPruneParamsUnused", p4_pd_orbisk_switch_action_enum_to_string(kNone - 1));
  EXPECT_EQ(nullptr, p4_pd_orbisk_switch_action_enum_to_string(kNone));
  EXPECT_EQ(nullptr, p4_pd_orbisk_switch_action_enum_to_string(0xFFFFFFFF));
  for (const char *stranger : {static_cast<const char *>(nullptr), "", "setPhase0", "p4_pd_orbisk_switch_setphase0",
                               "p4_pd_orbisk_switch_setPhase0x"}) {
    EXPECT_EQ(kNone, p4_pd_orbisk_switch_action_string_to_enum(stranger)) << (stranger ? stranger : "null");
  }
  // Every name converts back to its own value, and the room for a name holds the longest.
  size_t longest = 0;
  for (uint32_t i = 0; i < kNone; ++i) {
    const char *n = p4_pd_orbisk_switch_action_name_strings[i];
    EXPECT_EQ(i, uint32_t(p4_pd_orbisk_switch_action_string_to_enum(n)));
    longest = std::max(longest, std::strlen(n));
  }
  EXPECT_EQ(size_t(P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX), longest + 1);
}

}  // namespace
