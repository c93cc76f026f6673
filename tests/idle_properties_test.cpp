// Idle time and table properties through the library. The sweeps find every
// function by its exported name, for every table that ages and for every
// table, and check what the driver was handed and what the caller's places
// hold after a success and after an injected failure. Ageing itself is the
// model's (tests/model/idle_test.cpp) and the demo's, end to end.
#include <dlfcn.h>

#include <string>

#include "test_support.h"

namespace {

using orbisk::pd::kIdleTimeout;
using orbisk::pd::kNumTables;
using orbisk::pd::kTables;
using orbisk::pd::TableDesc;
using Args = std::vector<uint64_t>;

constexpr uint32_t kDev = 5;
constexpr pd_status kArmed = 0x5A;
constexpr pd_entry_hdl kStranger = 0x1234;  // no entry of any table
constexpr pd_idle_params kNotify = {PD_IDLE_MODE_NOTIFY, 0x1122334455667788u, 0xAABBCCDDu,
                                    0x0102030405060708u, 0xF0E0D0C0B0A09080u, 0x77};

template <typename F>
F sym(const TableDesc &t, const char *family) {
  return exported<F>(std::string(t.name) + "_" + family);
}

Args args_of(const char *function) { return last(function).args; }
Args first4(const char *function) {
  const Args a = args_of(function);
  return Args(a.begin(), a.begin() + std::min<size_t>(4, a.size()));
}
// The "params" copy of the call `back` calls before the latest.
Bytes params_of(size_t back) {
  size_t n = 0;
  const uint8_t *p = orbisk_model_call_bytes(orbisk_model_call_at(orbisk_model_call_count() - 1 - back), "params", &n);
  return p ? Bytes(p, p + n) : Bytes{};
}

void on_timeout(uint32_t, pd_tbl_hdl, pd_entry_hdl, void *) {}
void on_hit_update(uint32_t, pd_tbl_hdl, void *cookie) { ++*static_cast<int *>(cookie); }
void on_update(uint32_t, pd_tbl_hdl, pd_entry_hdl, uint32_t, void *) {}

using IdleSweep = OnModel;

TEST_F(IdleSweep, EveryAgeingTableHandsTheDriverItsRecordsAndKeepsTheOutRules) {
  using Enable = pd_status (*)(pd_sess_hdl, uint32_t, pd_idle_params);
  using Get = pd_status (*)(pd_sess_hdl, uint32_t, pd_idle_params *);
  using Dev = pd_status (*)(pd_sess_hdl, uint32_t);
  using Entry = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl);
  using EntryOut = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t *);
  using TtlSet = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t);
  using TmoCb = pd_status (*)(pd_sess_hdl, uint32_t, pd_idle_tmo_cb, void *);
  using UpdateCb = pd_status (*)(pd_sess_hdl, uint32_t, pd_idle_update_cb, void *);
  int updates = 0;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!(t.flags & kIdleTimeout)) continue;
    SCOPED_TRACE(t.name);
    const uint64_t h = t.handle;

    // Enable: the 56-byte driver form, then ageing on; nothing on after a refused set.
    const Enable enable = sym<Enable>(t, "idle_tmo_enable");
    ASSERT_EQ(BF_SUCCESS, enable(sess, kDev, kNotify));
    EXPECT_EQ((Args{sess, kDev, h, 0}), args_of("pipe_mgr_idle_set_params"));
    const pd_idle_driver_params sent = {1, kNotify.value1, kNotify.value2, kNotify.value3, 0, kNotify.value4, 0};
    EXPECT_EQ(Bytes(reinterpret_cast<const uint8_t *>(&sent), reinterpret_cast<const uint8_t *>(&sent + 1)),
              params_of(1));
    EXPECT_EQ((Args{sess, kDev, h, 1}), args_of("pipe_mgr_idle_tmo_set_enable"));
    const size_t enables = calls_of("pipe_mgr_idle_tmo_set_enable");
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_idle_set_params", 1, kArmed));
    EXPECT_EQ(kArmed, enable(sess, kDev, kNotify));
    EXPECT_EQ(enables, calls_of("pipe_mgr_idle_tmo_set_enable"));

    // Read in notify mode: all four values and the last byte 0, from a zeroed record.
    const Get get = sym<Get>(t, "idle_params_get");
    pd_idle_params got, marked;
    std::memset(&marked, 0xEE, sizeof marked);
    got = marked;
    ASSERT_EQ(BF_SUCCESS, get(sess, kDev, &got));
    EXPECT_EQ(Bytes(56, 0), params_of(0));
    EXPECT_EQ((Args{1, kNotify.value1, kNotify.value2, kNotify.value3, kNotify.value4, 0}),
              (Args{got.mode, got.value1, got.value2, got.value3, got.value4, got.reserved}));
    // A failed read leaves the record whole; outside notify mode only the mode is written.
    got = marked;
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_idle_get_params", 1, kArmed));
    EXPECT_EQ(kArmed, get(sess, kDev, &got));
    EXPECT_EQ(0, std::memcmp(&marked, &got, sizeof got));
    pd_idle_params poll = kNotify;
    poll.mode = 2;
    ASSERT_EQ(BF_SUCCESS, enable(sess, kDev, poll));
    ASSERT_EQ(BF_SUCCESS, get(sess, kDev, &got));
    EXPECT_EQ(2u, got.mode);
    got.mode = marked.mode;
    EXPECT_EQ(0, std::memcmp(&marked, &got, sizeof got));

    // The forwarding calls, the table's handle third; statuses come back unchanged.
    EXPECT_EQ(BF_SUCCESS, sym<TmoCb>(t, "idle_register_tmo_cb")(sess, kDev, &on_timeout, &got));
    EXPECT_EQ((Args{sess, kDev, h, addr(&on_timeout), addr(&got)}), args_of("pipe_mgr_idle_register_tmo_cb"));
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, sym<TtlSet>(t, "set_ttl")(sess, kDev, kStranger, 777));
    EXPECT_EQ((Args{sess, kDev, h, kStranger, 777, 0, 0}), args_of("pipe_mgr_mat_ent_set_idle_ttl"));
    uint32_t ttl = 0;
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, sym<EntryOut>(t, "get_ttl")(sess, kDev, kStranger, &ttl));
    EXPECT_EQ((Args{sess, kDev, h, kStranger, addr(&ttl)}), args_of("pipe_mgr_mat_ent_get_idle_ttl"));
    EXPECT_EQ(ORBISK_MODEL_WRONG_IDLE_MODE, sym<Entry>(t, "reset_ttl")(sess, kDev, kStranger));
    EXPECT_EQ((Args{sess, kDev, h, kStranger}), args_of("pipe_mgr_mat_ent_reset_idle_ttl"));
    EXPECT_EQ(BF_SUCCESS, sym<UpdateCb>(t, "update_hit_state")(sess, kDev, &on_hit_update, &updates));
    EXPECT_EQ((Args{sess, kDev, h, addr(&on_hit_update), addr(&updates)}),
              args_of("pipe_mgr_idle_time_update_hit_state"));

    // Hit state goes through a local that reaches the caller even on failure.
    uint32_t hit = 0xEEEEEEEE;
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, sym<EntryOut>(t, "get_hit_state")(sess, kDev, kStranger, &hit));
    EXPECT_EQ(0u, hit);
    EXPECT_EQ((Args{sess, kDev, h, kStranger}), first4("pipe_mgr_idle_time_get_hit_state"));
    EXPECT_NE(addr(&hit), args_of("pipe_mgr_idle_time_get_hit_state")[4]);

    EXPECT_EQ(BF_SUCCESS, sym<Dev>(t, "idle_tmo_disable")(sess, kDev));
    EXPECT_EQ((Args{sess, kDev, h, 0}), args_of("pipe_mgr_idle_tmo_set_enable"));
  }
  EXPECT_GT(updates, 0);
}

using PropertySweep = OnModel;

TEST_F(PropertySweep, EveryTableSetsReadsHandsOutItsHandleAndRegisters) {
  using SetFn = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t);
  using GetFn = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t *, uint32_t *);
  using HandleFn = pd_status (*)(pd_tbl_hdl *);
  using RegisterFn = pd_status (*)(pd_sess_hdl, uint32_t, pd_mat_update_cb, void *);
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    SCOPED_TRACE(t.name);
    const uint64_t h = t.handle;
    const uint32_t v = 0x100 + uint32_t(i), v2 = 0x20000 + uint32_t(i);
    ASSERT_EQ(BF_SUCCESS, sym<SetFn>(t, "set_property")(sess, kDev, 9, v, v2));
    EXPECT_EQ((Args{sess, kDev, h, 9, v, v2}), args_of("pipe_mgr_tbl_set_property"));

    uint32_t got = 0, got2 = 0;
    const GetFn get = sym<GetFn>(t, "get_property");
    ASSERT_EQ(BF_SUCCESS, get(sess, kDev, 9, &got, &got2));
    EXPECT_EQ((Args{v, v2}), (Args{got, got2}));
    EXPECT_EQ((Args{sess, kDev, h, 9}), first4("pipe_mgr_tbl_get_property"));
    EXPECT_NE(addr(&got), args_of("pipe_mgr_tbl_get_property")[4]) << "the driver writes locals";
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_tbl_get_property", 1, kArmed));
    EXPECT_EQ(kArmed, get(sess, kDev, 9, &got, &got2));
    EXPECT_EQ((Args{0xFFFFFFFFu, 0xFFFFFFFFu}), (Args{got, got2}));

    const size_t calls = orbisk_model_call_count();
    pd_tbl_hdl handle = 0;
    EXPECT_EQ(BF_SUCCESS, sym<HandleFn>(t, "get_mat_table_handle")(&handle));
    EXPECT_EQ(t.handle, handle);
    EXPECT_EQ(BF_SUCCESS, sym<HandleFn>(t, "get_mat_table_handle")(nullptr));
    EXPECT_EQ(calls, orbisk_model_call_count()) << "no driver call";

    EXPECT_EQ(BF_SUCCESS, sym<RegisterFn>(t, "register_mat_update_cb")(sess, kDev, &on_update, &got));
    EXPECT_EQ((Args{sess, kDev, h, addr(&on_update), addr(&got)}), args_of("pipe_register_mat_update_cb"));
  }
}

}  // namespace
