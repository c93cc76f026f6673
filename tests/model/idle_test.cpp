// The model's idle time, properties and update callbacks: every ageing table
// ages an entry out through its clock; refusals are distinct and keep no
// state; callbacks run outside the lock.
#include <algorithm>
#include <vector>

#include "model_test_support.h"

using namespace model_test;

namespace {

using orbisk::pd::kIdleTimeout;
using orbisk::pd::kNumTables;
using orbisk::pd::kTables;

constexpr pd_idle_driver_params kNotifyMode = {PD_IDLE_MODE_NOTIFY, 1, 2, 3, 0, 4, 0};
constexpr pd_idle_driver_params kPollMode = {};

std::vector<std::vector<uint64_t>> g_seen;

void on_timeout(uint32_t dev, pd_tbl_hdl tbl, pd_entry_hdl h, void *cookie) {
  g_seen.push_back({dev, tbl, h, uint64_t(reinterpret_cast<uintptr_t>(cookie))});
}

// Calls back into the model, which would hang were it still locked.
void on_update(uint32_t dev, pd_tbl_hdl tbl, pd_entry_hdl h, uint32_t type, void *) {
  uint32_t count = 0;
  pipe_mgr_get_entry_count(kSess, {dev, PD_DEV_PIPE_ALL}, tbl, 0, &count);
  g_seen.push_back({dev, tbl, h, type, count});
}

const orbisk::pd::TableActionDesc &entry_action(const TableDesc &t) {
  return *std::find_if(t.actions, t.actions + t.num_actions, [](const auto &x) { return x.entry_use; });
}

int g_updates = 0;
void on_hit_update(uint32_t, pd_tbl_hdl, void *) {
  uint32_t state = 0;  // already up to date when told, and the lock is free
  pipe_mgr_idle_time_get_hit_state(kSess, 0, table("ipv4Host").handle, 1, &state);
  g_updates += state == PD_IDLE_HIT_STATE_ACTIVE ? 10 : 1;
}

class Idle : public ModelTest {
 protected:
  void SetUp() override {
    ModelTest::SetUp();
    g_seen.clear();
  }
  pd_status enable(pd_tbl_hdl tbl, const pd_idle_driver_params &p, uint32_t dev = 0) {
    if (pd_status s = pipe_mgr_idle_set_params(kSess, dev, tbl, p)) return s;
    return pipe_mgr_idle_tmo_set_enable(kSess, dev, tbl, 1);
  }
  const TableDesc &host = table("ipv4Host");
};

TEST_F(Idle, EveryAgeingTableReportsAnIdleEntryOnceWithItsHandleAndCookie) {
  int cookie = 0;
  std::size_t ageing = 0;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!(t.flags & kIdleTimeout)) continue;
    SCOPED_TRACE(t.name);
    ASSERT_FALSE(t.indirect());
    const orbisk::pd::TableActionDesc &a = entry_action(t);
    Key k1(t, 1), k2(t, 2);
    Act act(*a.action, 1);
    pd_entry_hdl stays = 0, ages = 0;
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_add(kSess, kDev1, t.handle, &k1.rec, a.handle, &act.rec, 50, 0, &stays));
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_add(kSess, kDev1, t.handle, &k2.rec, a.handle, &act.rec, 0, 0, &ages));
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_idle_ttl(kSess, 1, t.handle, ages, 30, 0, 0));
    uint32_t ttl = 0;
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_get_idle_ttl(kSess, 1, t.handle, stays, &ttl));
    EXPECT_EQ(50u, ttl) << "the TTL of the add";
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_register_tmo_cb(kSess, 1, t.handle, &on_timeout, &cookie));
    ASSERT_EQ(BF_SUCCESS, enable(t.handle, kNotifyMode, 1));
    g_seen.clear();
    orbisk_model_advance_time(29);
    ASSERT_EQ(BF_SUCCESS, orbisk_model_mark_hit(1, t.handle, stays));
    orbisk_model_advance_time(40);
    EXPECT_EQ((std::vector<std::vector<uint64_t>>{{1, t.handle, ages, uint64_t(uintptr_t(&cookie))}}), g_seen);
    // Deleted, the other never runs out.
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 1, t.handle, stays, 0));
    orbisk_model_advance_time(1000);
    EXPECT_EQ(1u, g_seen.size());
    ++ageing;
  }
  EXPECT_GT(ageing, 0u);
}

TEST_F(Idle, PollModeAnswersTheHitStateOfTheLastUpdate) {
  Key k(host, 1);
  Act act(*entry_action(host).action, 1);
  pd_entry_hdl h = 0;
  ASSERT_EQ(BF_SUCCESS, add(host.handle, k, entry_action(host).handle, act, &h));
  ASSERT_EQ(1u, h);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_idle_ttl(kSess, 0, host.handle, h, 10, 0, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_register_tmo_cb(kSess, 0, host.handle, &on_timeout, nullptr));
  ASSERT_EQ(BF_SUCCESS, enable(host.handle, kPollMode));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_mark_hit(0, host.handle, h));
  uint32_t state = 0xEE;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_time_get_hit_state(kSess, 0, host.handle, h, &state));
  EXPECT_EQ(PD_IDLE_HIT_STATE_IDLE, state) << "not until an update";
  g_updates = 0;
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_time_update_hit_state(kSess, 0, host.handle, &on_hit_update, nullptr));
  }
  EXPECT_EQ(11, g_updates) << "active after the first update, idle after the second";
  orbisk_model_advance_time(1u << 30);
  EXPECT_TRUE(g_seen.empty()) << "nothing is reported in poll mode";
}

TEST_F(Idle, RefusalsAreDistinctAndKeepNothing) {
  const pd_tbl_hdl h = host.handle;
  pd_idle_driver_params p = kNotifyMode;
  uint32_t out = 0xEE;
  // Tables without idle time, and tables that are none of the program's.
  for (pd_tbl_hdl tbl : {l2.handle, kNoTable}) {
    const pd_status want = tbl == kNoTable ? ORBISK_MODEL_NO_SUCH_TABLE : ORBISK_MODEL_NO_IDLE_TIME;
    EXPECT_EQ(want, pipe_mgr_idle_set_params(kSess, 0, tbl, p));
    EXPECT_EQ(want, pipe_mgr_idle_tmo_set_enable(kSess, 0, tbl, 1));
    EXPECT_EQ(want, pipe_mgr_idle_get_params(kSess, 0, tbl, &p));
    EXPECT_EQ(want, pipe_mgr_idle_register_tmo_cb(kSess, 0, tbl, &on_timeout, nullptr));
    EXPECT_EQ(want, pipe_mgr_mat_ent_set_idle_ttl(kSess, 0, tbl, 1, 5, 0, 0));
    EXPECT_EQ(want, pipe_mgr_mat_ent_get_idle_ttl(kSess, 0, tbl, 1, &out));
    EXPECT_EQ(want, pipe_mgr_mat_ent_reset_idle_ttl(kSess, 0, tbl, 1));
    EXPECT_EQ(want, pipe_mgr_idle_time_update_hit_state(kSess, 0, tbl, nullptr, nullptr));
    EXPECT_EQ(want, pipe_mgr_idle_time_get_hit_state(kSess, 0, tbl, 1, &out));
    EXPECT_EQ(want, orbisk_model_mark_hit(0, tbl, 1));
  }
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_set_idle_ttl(kSess, 0, h, 1, 5, 0, 0));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, pipe_mgr_idle_get_params(kSess, 0, h, nullptr));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, pipe_mgr_mat_ent_get_idle_ttl(kSess, 0, h, 1, nullptr));
  // Ageing off, then the other mode.
  EXPECT_EQ(ORBISK_MODEL_AGEING_OFF, pipe_mgr_mat_ent_reset_idle_ttl(kSess, 0, h, 1));
  EXPECT_EQ(ORBISK_MODEL_AGEING_OFF, pipe_mgr_idle_time_update_hit_state(kSess, 0, h, nullptr, nullptr));
  EXPECT_EQ(ORBISK_MODEL_AGEING_OFF, pipe_mgr_idle_time_get_hit_state(kSess, 0, h, 1, &out));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, pipe_mgr_tbl_set_property(kSess, 0, kNoTable, 1, 2, 3));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, pipe_mgr_tbl_get_property(kSess, 0, l2.handle, 1, &out, nullptr));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, pipe_register_mat_update_cb(kSess, 0, kNoTable, &on_update, nullptr));
  EXPECT_EQ(0u, orbisk_model_device_count());
  EXPECT_EQ(0xEEu, out);

  ASSERT_EQ(BF_SUCCESS, enable(h, kNotifyMode));
  EXPECT_EQ(1u, orbisk_model_device_count()) << "idle time is device state";
  EXPECT_EQ(ORBISK_MODEL_WRONG_IDLE_MODE, pipe_mgr_idle_time_update_hit_state(kSess, 0, h, nullptr, nullptr));
  EXPECT_EQ(ORBISK_MODEL_WRONG_IDLE_MODE, pipe_mgr_idle_time_get_hit_state(kSess, 0, h, 1, &out));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_reset_idle_ttl(kSess, 0, h, 1));
  ASSERT_EQ(BF_SUCCESS, enable(h, kPollMode));
  EXPECT_EQ(ORBISK_MODEL_WRONG_IDLE_MODE, pipe_mgr_mat_ent_reset_idle_ttl(kSess, 0, h, 1));
}

TEST_F(Idle, ParametersAndPropertiesAreKeptPerDeviceUntilItGoes) {
  pd_idle_driver_params got;
  std::memset(&got, 0xEE, sizeof got);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_set_params(kSess, 1, host.handle, kNotifyMode));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_get_params(kSess, 0, host.handle, &got));
  EXPECT_EQ(0, std::memcmp(&kPollMode, &got, sizeof got)) << "all 0 before any set";
  uint32_t v = 0xEE, v2 = 0xEE;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_tbl_set_property(kSess, 1, l2.handle, 4, 7, 8));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_tbl_get_property(kSess, 0, l2.handle, 4, &v, &v2));
  EXPECT_EQ(0u, v + v2) << "a property never set reads as 0 and 0";
  EXPECT_EQ(1u, orbisk_model_device_count());
  orbisk_model_remove_device(1);
  EXPECT_EQ(0u, orbisk_model_device_count());
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_idle_get_params(kSess, 1, host.handle, &got));
  EXPECT_EQ(0u, got.mode);
  orbisk_model_advance_time(5);
  orbisk_model_reset();
  EXPECT_EQ(0u, orbisk_model_now_ms());
}

TEST_F(Idle, UpdateCallbackHearsOfEveryAddChangeAndDeleteAfterTheLock) {
  ASSERT_EQ(BF_SUCCESS, pipe_register_mat_update_cb(kSess, 0, l2.handle, &on_update, nullptr));
  Key k(l2, 1), k2(l2, 2);
  Act a(ucast_desc, 1);
  pd_entry_hdl h = 0, h2 = 0;
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &h));
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k2, ucast, a, &h2, kDev1));  // another device: not told
  EXPECT_EQ(ORBISK_MODEL_ENTRY_EXISTS, add(l2.handle, k, ucast, a, &h));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action(kSess, 0, l2.handle, h, ucast, &a.rec, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action_by_match_spec(kSess, kDev0, l2.handle, &k.rec, ucast, &a.rec, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del_by_match_spec(kSess, kDev0, l2.handle, &k.rec, 0));
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &h2));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, h2, 0));
  const uint64_t t = l2.handle;
  EXPECT_EQ((std::vector<std::vector<uint64_t>>{{0, t, h, PD_MAT_UPDATE_ADD, 1},
                                                {0, t, h, PD_MAT_UPDATE_MODIFY, 1},
                                                {0, t, h, PD_MAT_UPDATE_MODIFY, 1},
                                                {0, t, h, PD_MAT_UPDATE_DELETE, 0},
                                                {0, t, h2, PD_MAT_UPDATE_ADD, 1},
                                                {0, t, h2, PD_MAT_UPDATE_DELETE, 0}}),
            g_seen);
  ASSERT_EQ(BF_SUCCESS, pipe_register_mat_update_cb(kSess, 0, l2.handle, nullptr, nullptr));
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &h));
  EXPECT_EQ(6u, g_seen.size()) << "a null callback removes it";
}

}  // namespace
