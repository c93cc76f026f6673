// The model's call log, faults and quirks, system services, client
// registration and notifications, and member-selection states.
#include <cjson/cJSON.h>

#include <string>

#include "model_test_support.h"

using namespace model_test;

// Seen through the C view of the header (c_view.c).
extern "C" int c_view_last_call(char *function, size_t room, uint64_t *first_arg,
                                uint8_t *first_key_byte);

namespace {

using CallLog = ModelTest;

TEST_F(CallLog, KeepsWhatTheCallerPassedWhole) {
  const TableDesc &wide = table("trapToCpu");  // the longest key, 44 bytes
  Key k(wide, 0x30, 2);
  Act a(*wide.actions[0].action, 2);
  a.rec.resources[3].reserved = 0xABCD;  // the last bytes of the 320
  pd_entry_hdl hdl = 0;
  const pd_dev_target target = {3, 1};
  ASSERT_EQ(BF_SUCCESS, add(wide.handle, k, wide.actions[0].handle, a, &hdl, target));
  const uint8_t last_value = k.value[43];
  k.value[43] ^= 0xFF;  // the caller reuses its buffers; the log keeps the call as made

  ASSERT_EQ(1u, orbisk_model_call_count());
  const orbisk_model_call *c = orbisk_model_last_call();
  ASSERT_NE(nullptr, c);
  EXPECT_STREQ("pipe_mgr_mat_ent_add", c->function);
  EXPECT_EQ(BF_SUCCESS, c->status);
  const uint64_t args[] = {kSess,
                           3u | 1ull << 32,
                           wide.handle,
                           uint64_t(uintptr_t(&k.rec)),
                           wide.actions[0].handle,
                           uint64_t(uintptr_t(&a.rec)),
                           0,
                           0,
                           uint64_t(uintptr_t(&hdl))};
  ASSERT_EQ(9u, c->num_args);
  EXPECT_EQ(0, std::memcmp(args, c->args, sizeof args));
  const char *names[] = {"key", "key.value", "key.mask", "act", "act.data"};
  const size_t sizes[] = {32, 44, 44, 320, wide.actions[0].action->data_bytes};
  ASSERT_EQ(5u, c->num_records);
  for (unsigned i = 0; i < 5; ++i) {
    EXPECT_STREQ(names[i], c->records[i].name);
    size_t size = 0;
    EXPECT_EQ(c->records[i].bytes, orbisk_model_call_bytes(c, names[i], &size));
    EXPECT_EQ(sizes[i], size) << names[i];
  }
  EXPECT_EQ(nullptr, orbisk_model_call_bytes(c, "meter", nullptr));
  EXPECT_EQ(last_value, c->key->value_bytes[43]);
  EXPECT_EQ(0, std::memcmp(&k.rec.priority, &c->key->priority, 12)) << "the record's own fields";
  EXPECT_EQ(0, std::memcmp(c->act->data_bytes, a.data, a.rec.num_bytes));
  EXPECT_EQ(0xABCDu, c->act->resources[3].reserved);
  EXPECT_EQ(0, std::memcmp(orbisk_model_call_bytes(c, "act", nullptr) + 16, &a.rec.data_bytes, 8))
      << "the raw copy keeps the caller's pointers";

  // A read is logged with what it was offered, not what it got.
  Read r(44);
  ASSERT_EQ(BF_SUCCESS, r.get(wide.handle, hdl, target));
  c = orbisk_model_last_call();
  EXPECT_STREQ("pipe_mgr_get_entry", c->function);
  EXPECT_EQ(0xEE, c->key->value_bytes[0]);
  EXPECT_EQ(28u, c->act->num_bytes);

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

// Calls of pipe_mgr_get_entry_count, each with its number as session.
void count_calls(uint32_t from, uint32_t n) {
  uint32_t count;
  for (uint32_t i = from; i < from + n; ++i) {
    pipe_mgr_get_entry_count(i, kDev0, table("l2Lookup").handle, 0, &count);
  }
}

TEST_F(CallLog, RingOffAndAll) {
  count_calls(0, ORBISK_MODEL_LOG_RING_DEFAULT + 5);
  ASSERT_EQ(size_t(ORBISK_MODEL_LOG_RING_DEFAULT), orbisk_model_call_count());
  EXPECT_EQ(5u, orbisk_model_call_at(0)->args[0]) << "oldest kept first";

  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_call_log(ORBISK_MODEL_LOG_RING, 3));
  ASSERT_EQ(3u, orbisk_model_call_count()) << "a smaller ring drops the oldest";
  const orbisk_model_call *newest = orbisk_model_last_call();
  count_calls(100, 2);
  EXPECT_EQ(newest, orbisk_model_call_at(0)) << "a kept call does not move";
  EXPECT_EQ(101u, orbisk_model_last_call()->args[0]);

  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_call_log(ORBISK_MODEL_LOG_OFF, 0));
  count_calls(0, 10);
  EXPECT_EQ(0u, orbisk_model_call_count());
  EXPECT_EQ(nullptr, orbisk_model_last_call());

  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_call_log(ORBISK_MODEL_LOG_ALL, 3));
  count_calls(0, ORBISK_MODEL_LOG_RING_DEFAULT + 1);
  EXPECT_EQ(size_t(ORBISK_MODEL_LOG_RING_DEFAULT) + 1, orbisk_model_call_count());
  orbisk_model_clear_calls();
  count_calls(0, 1);
  EXPECT_EQ(1u, orbisk_model_call_count()) << "clearing keeps the mode";

  EXPECT_EQ(ORBISK_MODEL_BAD_CONTROL, orbisk_model_set_call_log(orbisk_model_log_mode(3), 0));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_call_log(ORBISK_MODEL_LOG_OFF, 0));
  orbisk_model_reset();
  count_calls(0, 1);
  EXPECT_EQ(1u, orbisk_model_call_count()) << "a reset brings the default ring back";
}

TEST_F(CallLog, FaultAnswersTheNthCallAndChangesNothing) {
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_add", 2, 0x77));
  Key k1(l2, 1), k2(l2, 2), k3(l2, 3);
  Act a(ucast_desc, 1);
  pd_entry_hdl h1 = 0, h2 = 0x5555, h3 = 0;
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k1, ucast, a, &h1));
  EXPECT_EQ(0x77u, add(l2.handle, k2, ucast, a, &h2));
  EXPECT_EQ(0x5555u, h2);
  EXPECT_EQ(0x77u, orbisk_model_last_call()->status);
  EXPECT_EQ(1u, orbisk_model_entry_count(0, l2.handle));
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k3, ucast, a, &h3));
  EXPECT_EQ(2u, h3) << "a faulted add gave out a handle";

  // Disarmed before it fires.
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_del", 1, 0x78));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_del", 0, 0));
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, h1, 0));

  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("p4_pd_ms_init_state", 1, 0x79));
  EXPECT_EQ(nullptr, p4_pd_ms_init_state());
  EXPECT_NE(nullptr, p4_pd_ms_init_state());

  // A fault that could never fire, or would not fail, is refused and arms nothing.
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_FUNCTION, orbisk_model_fail("pipe_mgr_mat_ent_ad", 1, 0x77));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_FUNCTION, orbisk_model_fail("bf_sys_calloc", 1, 0x77));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_FUNCTION, orbisk_model_fail(nullptr, 1, 0x77));
  EXPECT_EQ(ORBISK_MODEL_BAD_CONTROL, orbisk_model_fail("pipe_mgr_mat_ent_del", 1, BF_SUCCESS));
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, h3, 0));
}

TEST_F(CallLog, QuirkBendsOnlyTheNextRead) {
  Key k(l2, 1);
  Act a(ucast_desc, 1);
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &hdl));
  orbisk_model_quirk_next_read(PD_RECORD_KIND_MEMBER_REF, -1);
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(l2.handle, hdl));
  EXPECT_EQ(PD_RECORD_KIND_MEMBER_REF, r.act.record_kind);
  EXPECT_EQ(ucast, r.fn);
  orbisk_model_quirk_next_read(-1, 0x12345);
  ASSERT_EQ(BF_SUCCESS, r.get_default(l2.handle));
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, r.act.record_kind);
  EXPECT_EQ(0x12345u, r.fn);
  ASSERT_EQ(BF_SUCCESS, r.get_default(l2.handle));
  EXPECT_EQ(fn(l2, "onMiss"), r.fn);
}

using Services = ModelTest;

TEST_F(Services, DebugModeLogAndAllocations) {
  EXPECT_EQ(0, bf_sys_dbg_mode());
  orbisk_model_set_dbg_mode(1);
  EXPECT_EQ(1, bf_sys_dbg_mode());

  bf_sys_log_and_trace(0, 2, "ASSERTION FAILED: \"%s\" from %s:%d", "0", "fn", 12);
  const char *line = orbisk_model_log_at(0);
  for (int i = 0; i < 100; ++i) bf_sys_log_and_trace(0, 2, "%d", i);
  ASSERT_EQ(101u, orbisk_model_log_count());
  EXPECT_EQ(line, orbisk_model_log_at(0)) << "a line handed out stays put";
  EXPECT_STREQ("ASSERTION FAILED: \"0\" from fn:12", line);
  EXPECT_EQ(nullptr, orbisk_model_log_at(101));

  void *kept = bf_sys_calloc(1, 1);
  bf_sys_free(nullptr);
  EXPECT_EQ(1u, orbisk_model_live_allocations());
  orbisk_model_reset();
  EXPECT_EQ(0, bf_sys_dbg_mode());
  EXPECT_EQ(0u, orbisk_model_log_count());
  EXPECT_EQ(0u, orbisk_model_live_allocations());
  bf_sys_free(kept);  // from before the reset: freed, not counted
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

// What a removed device's callback saw when it called back into the model.
struct Heard {
  std::vector<uint32_t> devices;
  uint32_t entries = 99;
  pd_status deregistered = 99;
} heard;

pd_status forget_device(uint32_t device_id) {
  heard.devices.push_back(device_id);
  pipe_mgr_get_entry_count(1, {device_id, PD_DEV_PIPE_ALL}, table("l2Lookup").handle, 0,
                           &heard.entries);
  heard.deregistered = bf_drv_deregister(2);
  return BF_SUCCESS;
}

TEST_F(Services, ClientsHearOfARemovedDeviceOutsideTheLock) {
  heard = Heard{};
  Key k(l2, 1);
  Act a(ucast_desc, 1);
  pd_entry_hdl hdl;
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &hdl, kDev1));
  uint32_t h[3];
  for (uint32_t &c : h) ASSERT_EQ(BF_SUCCESS, bf_drv_register("client", &c));
  EXPECT_EQ(3u, h[2]);
  pd_drv_client_callbacks cb{};
  cb.device_remove = forget_device;
  ASSERT_EQ(BF_SUCCESS, bf_drv_client_register_callbacks(h[0], &cb, 1));
  ASSERT_EQ(BF_SUCCESS, bf_drv_client_register_callbacks(h[1], &cb, 4));
  EXPECT_EQ(ORBISK_MODEL_NOT_REGISTERED, bf_drv_client_register_callbacks(9, &cb, 2));
  cb.device_remove = nullptr;  // the model keeps its own copy
  EXPECT_EQ(4u, orbisk_model_callbacks_priority(h[1]));
  EXPECT_EQ(nullptr, orbisk_model_callbacks(h[2]));

  orbisk_model_remove_device(1);
  // Both callbacks ran, each in turn calling the model: a callback run under
  // the model's lock would have hung here.
  EXPECT_EQ((std::vector<uint32_t>{1, 1}), heard.devices);
  EXPECT_EQ(0u, heard.entries) << "the device was forgotten before its clients heard";
  EXPECT_EQ(ORBISK_MODEL_NOT_REGISTERED, heard.deregistered) << "the second call, after the first";
  EXPECT_EQ(nullptr, orbisk_model_client_name(h[1]));
  EXPECT_STREQ("client", orbisk_model_client_name(h[2]));

  orbisk_model_reset();
  ASSERT_EQ(BF_SUCCESS, bf_drv_register("again", &h[0]));
  EXPECT_EQ(1u, h[0]);
}

using MemberSelection = ModelTest;

TEST_F(MemberSelection, LogAndRestoreRoundTrip) {
  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_init());
  pd_ms_state *from = p4_pd_ms_init_state();
  pd_ms_state *to = p4_pd_ms_init_state();
  ASSERT_NE(from, to);
  // Members of the ECMP profile name its two actions.
  const std::string a0 = std::to_string(ecmp.actions[0].handle), a1 = std::to_string(ecmp.actions[1].handle);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 0, 10, ecmp.actions[0].handle));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 0, 11, ecmp.actions[1].handle));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_group(from, 0, 5, ecmp.actions[0].handle));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_ms_set_member(from, 1, 99, 1));

  cJSON *doc = cJSON_CreateObject();
  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_log_state(0, from, doc));
  char *text = cJSON_PrintUnformatted(doc);
  EXPECT_EQ(R"({"members":[{"mbr":10,"act":)" + a0 + R"(},{"mbr":11,"act":)" + a1 + R"(}],)" +
                R"("groups":[{"grp":5,"act":)" + a0 + R"(,"mbrs":[]}]})",
            text);
  cJSON_free(text);

  ASSERT_EQ(BF_SUCCESS, p4_pd_ms_restore_state(3, to, doc));
  EXPECT_EQ(2u, orbisk_model_ms_member_count(to, 3));
  EXPECT_EQ(1u, orbisk_model_ms_group_count(to, 3));
  EXPECT_EQ(ecmp.actions[1].handle, orbisk_model_ms_member_action(to, 3, 11));
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
