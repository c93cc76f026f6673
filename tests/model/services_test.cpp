// The model's call log, faults and quirks, system services, client
// registration and member-selection states.
#include <cjson/cJSON.h>

#include <string>

#include "model_test_support.h"

using namespace model_test;

// Seen through the C view of the header (c_view.c).
extern "C" int c_view_last_call(char *function, size_t room, uint64_t *first_arg,
                                uint8_t *first_key_byte);

namespace {

using CallLog = ModelTest;

TEST_F(CallLog, KeepsWhatTheCallerPassed) {
  L2Key k(0x30);
  UcastAct a(2);
  pd_entry_hdl hdl = 0;
  const pd_dev_target target = {3, 1};
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl, target));
  // The caller reuses its buffers; the log keeps the call as it was made.
  const uint8_t first_value = k.value[0];
  const uint8_t first_data = a.data[0];
  k.value[0] ^= 0xFF;
  a.data[0] ^= 0xFF;

  ASSERT_EQ(1u, orbisk_model_call_count());
  const orbisk_model_call *c = orbisk_model_last_call();
  ASSERT_NE(nullptr, c);
  EXPECT_STREQ("pipe_mgr_mat_ent_add", c->function);
  EXPECT_EQ(BF_SUCCESS, c->status);
  ASSERT_EQ(9u, c->num_args);
  EXPECT_EQ(kSess, c->args[0]);
  EXPECT_EQ(3u | 1ull << 32, c->args[1]);
  EXPECT_EQ(kL2Lookup, c->args[2]);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(&k.rec), c->args[3]);
  EXPECT_EQ(kKnownUcast, c->args[4]);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(&hdl), c->args[8]);
  ASSERT_TRUE(c->has_key);
  EXPECT_EQ(first_value, c->key_value[0]);
  EXPECT_EQ(first_value, c->key.value_bytes[0]);
  EXPECT_EQ(8u, c->key.num_bytes);
  ASSERT_TRUE(c->has_act);
  EXPECT_EQ(first_data, c->act.data_bytes[0]);
  EXPECT_EQ(3u, c->act.num_bytes);

  // A read is logged with what it was offered, not what it got.
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(kL2Lookup, hdl, target));
  c = orbisk_model_last_call();
  EXPECT_STREQ("pipe_mgr_get_entry", c->function);
  EXPECT_EQ(0xEE, c->key_value[0]);
  EXPECT_EQ(28u, c->act.num_bytes);

  // System services are not calls of the log.
  bf_sys_free(bf_sys_calloc(1, 4));
  bf_sys_log_and_trace(0, 1, "x");
  (void)bf_sys_dbg_mode();
  EXPECT_EQ(2u, orbisk_model_call_count());

  char name[64];
  uint64_t first_arg = 0;
  uint8_t first_key_byte = 0;
  ASSERT_EQ(1, c_view_last_call(name, sizeof name, &first_arg, &first_key_byte));
  EXPECT_STREQ("pipe_mgr_get_entry", name);
  EXPECT_EQ(kSess, first_arg);
  EXPECT_EQ(0xEE, first_key_byte);

  orbisk_model_clear_calls();
  EXPECT_EQ(0u, orbisk_model_call_count());
  EXPECT_EQ(nullptr, orbisk_model_last_call());
  EXPECT_EQ(0, c_view_last_call(name, sizeof name, &first_arg, &first_key_byte));
}

TEST_F(CallLog, FaultAnswersTheNthCallAndChangesNothing) {
  orbisk_model_fail("pipe_mgr_mat_ent_add", 2, 0x77);
  L2Key k1(1), k2(2), k3(3);
  UcastAct a(1);
  pd_entry_hdl h1 = 0, h2 = 0x5555, h3 = 0;
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k1, kKnownUcast, a, &h1));
  EXPECT_EQ(0x77u, add(kL2Lookup, k2, kKnownUcast, a, &h2));
  EXPECT_EQ(0x5555u, h2);
  EXPECT_EQ(0x77u, orbisk_model_last_call()->status);
  EXPECT_EQ(1u, orbisk_model_entry_count(0, kL2Lookup));
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k3, kKnownUcast, a, &h3));
  EXPECT_EQ(2u, h3) << "a faulted add gave out a handle";

  // Disarmed before it fires.
  orbisk_model_fail("pipe_mgr_mat_ent_del", 1, 0x78);
  orbisk_model_fail("pipe_mgr_mat_ent_del", 0, 0);
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, kL2Lookup, h1, 0));

  orbisk_model_fail("p4_pd_ms_init_state", 1, 0x79);
  EXPECT_EQ(nullptr, p4_pd_ms_init_state());
  EXPECT_NE(nullptr, p4_pd_ms_init_state());
}

TEST_F(CallLog, QuirkBendsOnlyTheNextRead) {
  L2Key k(1);
  UcastAct a(1);
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));
  orbisk_model_quirk_next_read(PD_RECORD_KIND_MEMBER_REF, -1);
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(kL2Lookup, hdl));
  EXPECT_EQ(PD_RECORD_KIND_MEMBER_REF, r.act.record_kind);
  EXPECT_EQ(kKnownUcast, r.fn);
  Read plain(8);
  ASSERT_EQ(BF_SUCCESS, plain.get(kL2Lookup, hdl));
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, plain.act.record_kind);

  orbisk_model_quirk_next_read(-1, 0x12345);
  Read d(8);
  ASSERT_EQ(BF_SUCCESS, d.get_default(kL2Lookup));
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, d.act.record_kind);
  EXPECT_EQ(0x12345u, d.fn);
  Read again(8);
  ASSERT_EQ(BF_SUCCESS, again.get_default(kL2Lookup));
  EXPECT_EQ(kL2OnMiss, again.fn);
}

using Services = ModelTest;

TEST_F(Services, DebugModeLogAndAllocations) {
  EXPECT_EQ(0, bf_sys_dbg_mode());
  orbisk_model_set_dbg_mode(1);
  EXPECT_EQ(1, bf_sys_dbg_mode());

  bf_sys_log_and_trace(0, 2, "ASSERTION FAILED: \"%s\" from %s:%d", "0", "fn", 12);
  ASSERT_EQ(1u, orbisk_model_log_count());
  EXPECT_STREQ("ASSERTION FAILED: \"0\" from fn:12", orbisk_model_log_at(0));
  EXPECT_EQ(nullptr, orbisk_model_log_at(1));

  void *p = bf_sys_calloc(4, 8);
  void *q = bf_sys_calloc(1, 1);
  EXPECT_EQ(2u, orbisk_model_live_allocations());
  bf_sys_free(p);
  bf_sys_free(nullptr);
  EXPECT_EQ(1u, orbisk_model_live_allocations());

  orbisk_model_reset();
  EXPECT_EQ(0, bf_sys_dbg_mode());
  EXPECT_EQ(0u, orbisk_model_log_count());
  EXPECT_EQ(0u, orbisk_model_live_allocations());
  bf_sys_free(q);  // from before the reset: freed, not counted
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

pd_status remove_cb(uint32_t) { return 0; }

TEST_F(Services, RegistrationKeepsItsOwnCopy) {
  uint32_t h1 = 0, h2 = 0;
  ASSERT_EQ(BF_SUCCESS, bf_drv_register("first", &h1));
  ASSERT_EQ(BF_SUCCESS, bf_drv_register("second", &h2));
  EXPECT_EQ(1u, h1);
  EXPECT_EQ(2u, h2);
  EXPECT_STREQ("second", orbisk_model_client_name(h2));
  EXPECT_EQ(nullptr, orbisk_model_callbacks(h1));

  pd_drv_client_callbacks cb{};
  cb.device_remove = remove_cb;
  ASSERT_EQ(BF_SUCCESS, bf_drv_client_register_callbacks(h1, &cb, 2));
  cb.device_remove = nullptr;
  ASSERT_NE(nullptr, orbisk_model_callbacks(h1));
  EXPECT_EQ(&remove_cb, orbisk_model_callbacks(h1)->device_remove);
  EXPECT_EQ(2u, orbisk_model_callbacks_priority(h1));
  EXPECT_EQ(ORBISK_MODEL_NOT_REGISTERED, bf_drv_client_register_callbacks(9, &cb, 2));

  ASSERT_EQ(BF_SUCCESS, bf_drv_deregister(h1));
  EXPECT_EQ(nullptr, orbisk_model_client_name(h1));
  EXPECT_EQ(ORBISK_MODEL_NOT_REGISTERED, bf_drv_deregister(h1));

  orbisk_model_reset();
  uint32_t h3 = 0;
  ASSERT_EQ(BF_SUCCESS, bf_drv_register("again", &h3));
  EXPECT_EQ(1u, h3);
}

using MemberSelection = ModelTest;

TEST_F(MemberSelection, LogAndRestoreRoundTrip) {
  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_init());
  pd_ms_state *from = p4_pd_ms_init_state();
  pd_ms_state *to = p4_pd_ms_init_state();
  ASSERT_NE(from, to);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 0, 10, 0x30000018));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 0, 11, 0x30000019));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_group(from, 0, 5, 0x30000018));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 1, 99, 1));

  cJSON *doc = cJSON_CreateObject();
  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_log_state(0, from, doc));
  char *text = cJSON_PrintUnformatted(doc);
  EXPECT_EQ(std::string(R"({"members":[{"mbr":10,"act":805306392},{"mbr":11,"act":805306393}],)"
                        R"("groups":[{"grp":5,"act":805306392}]})"),
            text);
  cJSON_free(text);

  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_restore_state(3, to, doc));
  EXPECT_EQ(2u, orbisk_model_ms_member_count(to, 3));
  EXPECT_EQ(1u, orbisk_model_ms_group_count(to, 3));
  EXPECT_EQ(0x30000019u, orbisk_model_ms_member_action(to, 3, 11));
  EXPECT_EQ(0u, orbisk_model_ms_member_count(to, 0));

  // A malformed document changes nothing.
  cJSON_ReplaceItemInObject(cJSON_GetArrayItem(cJSON_GetObjectItem(doc, "groups"), 0), "grp",
                            cJSON_CreateNumber(-1));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_ms_restore_state(3, to, doc));
  EXPECT_EQ(2u, orbisk_model_ms_member_count(to, 3));
  cJSON_Delete(doc);

  pd_ms_state *foreign = reinterpret_cast<pd_ms_state *>(doc);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_ms_destroy_state_for_dev(foreign, 3));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, orbisk_model_ms_set_member(foreign, 3, 1, 1));

  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_destroy_state_for_dev(to, 3));
  EXPECT_EQ(0u, orbisk_model_ms_member_count(to, 3));
  EXPECT_EQ(BF_SUCCESS, p4_pd_ms_destroy_txn_state_for_dev(3));

  // A reset empties the states but leaves them usable.
  orbisk_model_reset();
  EXPECT_EQ(0u, orbisk_model_ms_member_count(from, 1));
  EXPECT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 1, 1, 1));
}

}  // namespace
