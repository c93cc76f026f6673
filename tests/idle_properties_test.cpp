// Idle time and table properties through the library. The sweeps find every
// function by its exported name, for every table that ages and for every
// table, and check what the driver was handed and what the caller's places
// hold after a success and after an injected failure. One table ages an
// entry out end to end.
#include <dlfcn.h>

#include <string>

#include "test_support.h"

namespace {

using orbisk::pd::kIdleTimeout;
using orbisk::pd::kNumTables;
using orbisk::pd::kTables;
using orbisk::pd::TableDesc;

constexpr uint32_t kDev = 5;
constexpr pd_status kArmed = 0x5A;
constexpr pd_entry_hdl kStranger = 0x1234;  // no entry of any table
constexpr pd_idle_params kNotify = {PD_IDLE_MODE_NOTIFY, 0x1122334455667788u, 0xAABBCCDDu,
                                    0x0102030405060708u, 0xF0E0D0C0B0A09080u, 0x77};

template <typename F>
F sym(const TableDesc &t, const char *family) {
  const std::string name = std::string("p4_pd_orbisk_switch_") + t.name + "_" + family;
  void *p = dlsym(RTLD_DEFAULT, name.c_str());
  EXPECT_NE(nullptr, p) << name;
  return reinterpret_cast<F>(p);
}

uint64_t addr(const void *p) { return uint64_t(reinterpret_cast<uintptr_t>(p)); }
template <typename R, typename... A>
uint64_t addr(R (*f)(A...)) { return uint64_t(reinterpret_cast<uintptr_t>(f)); }

// The arguments of the latest call of a driver function, and its "params" copy.
std::vector<uint64_t> args_of(const char *function) { return last(function).args; }
Bytes params_of(const char *function) {
  for (size_t i = orbisk_model_call_count(); i-- > 0;) {
    const orbisk_model_call *c = orbisk_model_call_at(i);
    if (std::strcmp(c->function, function) != 0) continue;
    size_t n = 0;
    const uint8_t *p = orbisk_model_call_bytes(c, "params", &n);
    return p ? Bytes(p, p + n) : Bytes{};
  }
  return {};
}
Bytes words(std::initializer_list<uint64_t> w) {
  Bytes out(w.size() * 8);
  std::memcpy(out.data(), std::data(w), out.size());
  return out;
}

struct Recorder {
  std::vector<std::vector<uint64_t>> seen;
  static void tmo(uint32_t dev, pd_tbl_hdl tbl, pd_entry_hdl h, void *cookie) {
    static_cast<Recorder *>(cookie)->seen.push_back({dev, tbl, h});
  }
  static void update(uint32_t dev, pd_tbl_hdl tbl, void *cookie) {
    static_cast<Recorder *>(cookie)->seen.push_back({dev, tbl});
  }
  static void mat(uint32_t dev, pd_tbl_hdl tbl, pd_entry_hdl h, uint32_t type, void *cookie) {
    static_cast<Recorder *>(cookie)->seen.push_back({dev, tbl, h, type});
  }
};

// The nine idle functions of one table.
struct Idle {
  explicit Idle(const TableDesc &t)
      : enable(sym<decltype(enable)>(t, "idle_tmo_enable")),
        disable(sym<decltype(disable)>(t, "idle_tmo_disable")),
        params_get(sym<decltype(params_get)>(t, "idle_params_get")),
        register_tmo_cb(sym<decltype(register_tmo_cb)>(t, "idle_register_tmo_cb")),
        set_ttl(sym<decltype(set_ttl)>(t, "set_ttl")),
        get_ttl(sym<decltype(get_ttl)>(t, "get_ttl")),
        reset_ttl(sym<decltype(reset_ttl)>(t, "reset_ttl")),
        update_hit_state(sym<decltype(update_hit_state)>(t, "update_hit_state")),
        get_hit_state(sym<decltype(get_hit_state)>(t, "get_hit_state")) {}
  pd_status (*enable)(pd_sess_hdl, uint32_t, pd_idle_params);
  pd_status (*disable)(pd_sess_hdl, uint32_t);
  pd_status (*params_get)(pd_sess_hdl, uint32_t, pd_idle_params *);
  pd_status (*register_tmo_cb)(pd_sess_hdl, uint32_t, pd_idle_tmo_cb, void *);
  pd_status (*set_ttl)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t);
  pd_status (*get_ttl)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t *);
  pd_status (*reset_ttl)(pd_sess_hdl, uint32_t, pd_entry_hdl);
  pd_status (*update_hit_state)(pd_sess_hdl, uint32_t, pd_idle_update_cb, void *);
  pd_status (*get_hit_state)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t *);
};

using IdleSweep = OnModel;

TEST_F(IdleSweep, EveryAgeingTableHandsTheDriverItsRecordsAndKeepsTheOutRules) {
  Recorder rec;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!(t.flags & kIdleTimeout)) continue;
    SCOPED_TRACE(t.name);
    const Idle f(t);
    const uint64_t h = t.handle;

    // Enable: the 56-byte driver form, then ageing on; nothing on after a refused set.
    ASSERT_EQ(BF_SUCCESS, f.enable(sess, kDev, kNotify));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, 0}), args_of("pipe_mgr_idle_set_params"));
    EXPECT_EQ(words({1, kNotify.value1, kNotify.value2, kNotify.value3, 0, kNotify.value4, 0}),
              params_of("pipe_mgr_idle_set_params"));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, 1}), args_of("pipe_mgr_idle_tmo_set_enable"));
    const size_t enables = calls_of("pipe_mgr_idle_tmo_set_enable");
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_idle_set_params", 1, kArmed));
    EXPECT_EQ(kArmed, f.enable(sess, kDev, kNotify));
    EXPECT_EQ(enables, calls_of("pipe_mgr_idle_tmo_set_enable"));
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_idle_tmo_set_enable", 1, kArmed));
    EXPECT_EQ(kArmed, f.enable(sess, kDev, kNotify));

    // Read in notify mode: all four values, the last byte 0, from a zeroed record.
    pd_idle_params got;
    std::memset(&got, 0xEE, sizeof got);
    ASSERT_EQ(BF_SUCCESS, f.params_get(sess, kDev, &got));
    EXPECT_EQ(Bytes(56, 0), params_of("pipe_mgr_idle_get_params"));
    EXPECT_EQ((std::vector<uint64_t>{1, kNotify.value1, kNotify.value2, kNotify.value3, kNotify.value4, 0}),
              (std::vector<uint64_t>{got.mode, got.value1, got.value2, got.value3, got.value4, got.reserved}));
    // A failed read leaves the record whole.
    pd_idle_params marked, before;
    std::memset(&marked, 0xEE, sizeof marked);
    before = marked;
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_idle_get_params", 1, kArmed));
    EXPECT_EQ(kArmed, f.params_get(sess, kDev, &marked));
    EXPECT_EQ(0, std::memcmp(&before, &marked, sizeof marked));
    // Outside notify mode only the mode is written.
    pd_idle_params poll = kNotify;
    poll.mode = 2;
    ASSERT_EQ(BF_SUCCESS, f.enable(sess, kDev, poll));
    ASSERT_EQ(BF_SUCCESS, f.params_get(sess, kDev, &marked));
    EXPECT_EQ(2u, marked.mode);
    EXPECT_EQ(0, std::memcmp(&before.value1, &marked.value1, sizeof marked - offsetof(pd_idle_params, value1)));

    // The forwarding calls, the table's handle third; statuses come back unchanged.
    EXPECT_EQ(BF_SUCCESS, f.register_tmo_cb(sess, kDev, &Recorder::tmo, &rec));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, addr(&Recorder::tmo), addr(&rec)}),
              args_of("pipe_mgr_idle_register_tmo_cb"));
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, f.set_ttl(sess, kDev, kStranger, 777));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, kStranger, 777, 0, 0}),
              args_of("pipe_mgr_mat_ent_set_idle_ttl"));
    uint32_t ttl = 0;
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, f.get_ttl(sess, kDev, kStranger, &ttl));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, kStranger, addr(&ttl)}),
              args_of("pipe_mgr_mat_ent_get_idle_ttl"));
    EXPECT_EQ(ORBISK_MODEL_WRONG_IDLE_MODE, f.reset_ttl(sess, kDev, kStranger));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, kStranger}), args_of("pipe_mgr_mat_ent_reset_idle_ttl"));
    EXPECT_EQ(BF_SUCCESS, f.update_hit_state(sess, kDev, &Recorder::update, &rec));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, addr(&Recorder::update), addr(&rec)}),
              args_of("pipe_mgr_idle_time_update_hit_state"));
    EXPECT_EQ((std::vector<uint64_t>{kDev, h}), rec.seen.back());

    // Hit state goes through a local that reaches the caller even on failure.
    uint32_t hit = 0xEEEEEEEE;
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, f.get_hit_state(sess, kDev, kStranger, &hit));
    EXPECT_EQ(0u, hit);
    const std::vector<uint64_t> a = args_of("pipe_mgr_idle_time_get_hit_state");
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, kStranger}), std::vector<uint64_t>(a.begin(), a.begin() + 4));
    EXPECT_NE(addr(&hit), a[4]);

    EXPECT_EQ(BF_SUCCESS, f.disable(sess, kDev));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, 0}), args_of("pipe_mgr_idle_tmo_set_enable"));
  }
}

using PropertySweep = OnModel;

TEST_F(PropertySweep, EveryTableSetsReadsHandsOutItsHandleAndRegisters) {
  using SetFn = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t);
  using GetFn = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t *, uint32_t *);
  using HandleFn = pd_status (*)(pd_tbl_hdl *);
  using RegisterFn = pd_status (*)(pd_sess_hdl, uint32_t, pd_mat_update_cb, void *);
  Recorder rec;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    SCOPED_TRACE(t.name);
    const uint64_t h = t.handle;
    const uint32_t v = 0x100 + uint32_t(i), v2 = 0x20000 + uint32_t(i);
    ASSERT_EQ(BF_SUCCESS, sym<SetFn>(t, "set_property")(sess, kDev, 9, v, v2));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, 9, v, v2}), args_of("pipe_mgr_tbl_set_property"));

    uint32_t got = 0, got2 = 0;
    const GetFn get = sym<GetFn>(t, "get_property");
    ASSERT_EQ(BF_SUCCESS, get(sess, kDev, 9, &got, &got2));
    EXPECT_EQ(v, got);
    EXPECT_EQ(v2, got2);
    const std::vector<uint64_t> a = args_of("pipe_mgr_tbl_get_property");
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, 9}), std::vector<uint64_t>(a.begin(), a.begin() + 4));
    EXPECT_NE(addr(&got), a[4]) << "the driver writes the library's locals";
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_tbl_get_property", 1, kArmed));
    EXPECT_EQ(kArmed, get(sess, kDev, 9, &got, &got2));
    EXPECT_EQ(0xFFFFFFFFu, got);
    EXPECT_EQ(0xFFFFFFFFu, got2);

    const size_t calls = orbisk_model_call_count();
    pd_tbl_hdl handle = 0;
    EXPECT_EQ(BF_SUCCESS, sym<HandleFn>(t, "get_mat_table_handle")(&handle));
    EXPECT_EQ(t.handle, handle);
    EXPECT_EQ(BF_SUCCESS, sym<HandleFn>(t, "get_mat_table_handle")(nullptr));
    EXPECT_EQ(calls, orbisk_model_call_count()) << "no driver call";

    EXPECT_EQ(BF_SUCCESS, sym<RegisterFn>(t, "register_mat_update_cb")(sess, kDev, &Recorder::mat, &rec));
    EXPECT_EQ((std::vector<uint64_t>{sess, kDev, h, addr(&Recorder::mat), addr(&rec)}),
              args_of("pipe_register_mat_update_cb"));
  }
}

class Ageing : public OnModel {
 protected:
  pd_entry_hdl add_host(uint32_t dip) {
    p4_pd_orbisk_switch_ipv4Host_match_spec_t ms{};
    ms.l3Info_vrfId = 3;
    ms.ingIpv4_dip = dip;
    pd_entry_hdl h = 0;
    EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_table_add_with_onMiss(sess, tgt, &ms, &h));
    return h;
  }
  const pd_tbl_hdl host = table("ipv4Host").handle;
  Recorder rec;
};

TEST_F(Ageing, AnEntryIdleForItsTtlIsReportedOnceAndAHitOneIsNot) {
  const pd_entry_hdl idle = add_host(0x0A000001), busy = add_host(0x0A000002),
                     gone = add_host(0x0A000003);
  for (pd_entry_hdl h : {idle, busy, gone}) ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_set_ttl(sess, 0, h, 100));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_idle_register_tmo_cb(sess, 0, &Recorder::tmo, &rec));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_idle_tmo_enable(sess, 0, kNotify));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_table_delete(sess, 0, gone));
  orbisk_model_advance_time(99);
  EXPECT_TRUE(rec.seen.empty());
  for (int step = 0; step < 3; ++step) {
    ASSERT_EQ(BF_SUCCESS, orbisk_model_mark_hit(0, host, busy));
    orbisk_model_advance_time(60);
  }
  EXPECT_EQ((std::vector<std::vector<uint64_t>>{{0, host, idle}}), rec.seen);
  // Left without traffic, the busy one runs out too; the idle one is not told twice.
  orbisk_model_advance_time(1000);
  EXPECT_EQ((std::vector<std::vector<uint64_t>>{{0, host, idle}, {0, host, busy}}), rec.seen);
  EXPECT_EQ(1279u, orbisk_model_now_ms());

  // Reset, it ages again; a learnt entry keeps the TTL its add passed.
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_reset_ttl(sess, 0, idle));
  orbisk_model_advance_time(100);
  ASSERT_EQ(3u, rec.seen.size());
  EXPECT_EQ(idle, rec.seen.back()[2]);
  p4_pd_orbisk_switch_l2LearningLookup_match_spec_t learnt{};
  learnt.ingMd_smacStation = 0x42;
  pd_entry_hdl lh = 0;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_table_add_with_noOp(sess, tgt, &learnt, 2500, &lh));
  uint32_t ttl = 0;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_get_ttl(sess, 0, lh, &ttl));
  EXPECT_EQ(2500u, ttl);
}

TEST_F(Ageing, PollModeReadsTheHitStateOfTheLastUpdate) {
  const pd_entry_hdl h = add_host(0x0A000009);
  pd_idle_params poll{};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_idle_tmo_enable(sess, 0, poll));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_mark_hit(0, host, h));
  uint32_t hit = 0xEE;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_get_hit_state(sess, 0, h, &hit));
  EXPECT_EQ(PD_IDLE_HIT_STATE_IDLE, hit) << "not until an update";
  for (uint32_t want : {PD_IDLE_HIT_STATE_ACTIVE, PD_IDLE_HIT_STATE_IDLE}) {
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_update_hit_state(sess, 0, &Recorder::update, &rec));
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4Host_get_hit_state(sess, 0, h, &hit));
    EXPECT_EQ(want, hit);
  }
  EXPECT_EQ(2u, rec.seen.size());
}

}  // namespace
