// Counters, meters and registers through the library. The sweeps find every
// function by its exported name, for every counter, meter and register of
// the descriptors, and round-trip through the driver model: what the driver
// was handed (arguments in order, records byte for byte), what comes back,
// and what the caller's places hold after an injected failure.
#include <dlfcn.h>

#include <string>

#include "test_support.h"

namespace {

using orbisk::pd::kNumResources;
using orbisk::pd::kResources;
using orbisk::pd::ResourceDesc;
using orbisk::pd::ResourceKind;
using orbisk::pd::TableDesc;
using Args = std::vector<uint64_t>;

constexpr uint32_t kDev = 2;
constexpr pd_status kArmed = 0x5A;
constexpr pd_dev_target kAll = {kDev, PD_DEV_PIPE_ALL};

template <typename F>
F sym(const char *family, const ResourceDesc &r) {
  return exported<F>(std::string(family) + r.name);
}

template <typename T>
Bytes bytes(const T &v) {
  return Bytes(reinterpret_cast<const uint8_t *>(&v), reinterpret_cast<const uint8_t *>(&v + 1));
}

// Little-endian word at a byte offset of a copied record.
uint32_t w32(const Bytes &b, size_t offset) {
  uint32_t w = 0;
  if (offset + 4 <= b.size()) std::memcpy(&w, b.data() + offset, 4);
  return w;
}

const TableDesc &table_of(const ResourceDesc &r) { return *orbisk::pd::find_table(r.table_hdl); }

// An entry of a direct resource's match table: a zero key and the first
// entry action with zero data, carrying the resource attached.
pd_entry_hdl add_entry(const ResourceDesc &r) {
  const TableDesc &t = table_of(r);
  uint8_t value[64] = {}, mask[64] = {}, data[64] = {};
  pd_match_record key{value, mask, 0, 0, t.key_bits, t.key_bytes, 0};
  const orbisk::pd::TableActionDesc *a = t.actions;
  while (!a->entry_use) ++a;
  pd_action_record act{};
  act.record_kind = PD_RECORD_KIND_DIRECT;
  act.num_valid_bits = a->action->data_bits;
  act.num_bytes = a->action->data_bytes;
  act.data_bytes = data;
  act.resource_count = 1;
  act.resources[0].resource_hdl = r.handle;
  act.resources[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
  pd_entry_hdl h = 0;
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_add(9, {kDev, 0}, t.handle, &key, a->handle, &act, 0, 0, &h));
  return h;
}

void on_sync(uint32_t device_id, void *cookie) {
  EXPECT_EQ(kDev, device_id);
  ++*static_cast<int *>(cookie);
}

using ResourceSweep = OnModel;

TEST_F(ResourceSweep, EveryCounterSwapsItsRecordSyncsOnBitZeroAndLeavesTheCallerAloneOnFailure) {
  using ReadD = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t, pd_counter_value *);
  using ReadI = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t, pd_counter_value *);
  using WriteD = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, pd_counter_value);
  using WriteI = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, pd_counter_value);
  using Sync = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_stat_sync_cb, void *);
  int counters = 0;
  for (std::size_t i = 0; i < kNumResources; ++i) {
    const ResourceDesc &r = kResources[i];
    if (r.kind != ResourceKind::Counter) continue;
    SCOPED_TRACE(r.name);
    ++counters;
    const uint64_t h = r.table_hdl;
    const uint32_t cell = r.direct ? add_entry(r) : r.size - 1;
    const char *ent_sync = r.direct ? "pipe_mgr_direct_stat_ent_database_sync" : "pipe_mgr_stat_ent_database_sync";
    const char *query = r.direct ? "pipe_mgr_mat_ent_direct_stat_query" : "pipe_mgr_stat_ent_query";
    const char *set = r.direct ? "pipe_mgr_mat_ent_direct_stat_set" : "pipe_mgr_stat_ent_set";
    auto read = [&](uint32_t flags, pd_counter_value *v) {
      return r.direct ? sym<ReadD>("counter_read_", r)(sess, kDev, cell, flags, v)
                      : sym<ReadI>("counter_read_", r)(sess, kAll, cell, flags, v);
    };
    const uint64_t where = r.direct ? uint64_t(kDev) : target_word(kDev, PD_DEV_PIPE_ALL);

    // Traffic reaches a read only through bit 0's sync; flags 2 does not sync.
    ASSERT_EQ(BF_SUCCESS, orbisk_model_count_traffic(kDev, r.table_hdl, cell, 3, 192));
    pd_counter_value v{7, 7};
    const size_t synced = calls_of(ent_sync);
    ASSERT_EQ(BF_SUCCESS, read(2, &v));
    EXPECT_EQ(synced, calls_of(ent_sync));
    EXPECT_EQ(0u, v.packets + v.bytes);
    ASSERT_EQ(BF_SUCCESS, read(3, &v));
    EXPECT_EQ(3u, v.packets);
    EXPECT_EQ(192u, v.bytes);
    EXPECT_EQ((Args{sess, where, h, cell}), last(ent_sync).args);
    const Args q = last(query).args;
    EXPECT_EQ((Args{sess, where, h}), Args(q.begin(), q.begin() + 3));
    if (!r.direct) {
      EXPECT_EQ(1u, q[4]);  // an array of exactly one index
      EXPECT_EQ(bytes(cell), handed(query, "indices"));
    } else {
      EXPECT_EQ(uint64_t(cell), q[3]);
    }

    // Write packets 1, bytes 2: the driver's record holds bytes first.
    const pd_counter_value one_two{1, 2};
    ASSERT_EQ(BF_SUCCESS, r.direct ? sym<WriteD>("counter_write_", r)(sess, kDev, cell, one_two)
                                   : sym<WriteI>("counter_write_", r)(sess, kAll, cell, one_two));
    EXPECT_EQ(bytes(pd_counter_record{2, 1}), handed(set, "counter"));
    ASSERT_EQ(BF_SUCCESS, read(0, &v));
    EXPECT_EQ(1u, v.packets);
    EXPECT_EQ(2u, v.bytes);

    // A failed sync stops the read before the query; a failed query too.
    orbisk_model_fail(ent_sync, 1, kArmed);
    const size_t queries = calls_of(query);
    v = {7, 7};
    EXPECT_EQ(kArmed, read(1, &v));
    EXPECT_EQ(queries, calls_of(query));
    orbisk_model_fail(query, 1, kArmed);
    EXPECT_EQ(kArmed, read(0, &v));
    EXPECT_EQ(7u, v.packets);
    EXPECT_EQ(7u, v.bytes);

    // The whole counter's sync: the callback runs once with its cookie.
    int called = 0;
    ASSERT_EQ(BF_SUCCESS, sym<Sync>("counter_hw_sync_", r)(sess, kAll, on_sync, &called));
    EXPECT_EQ(1, called);
    const char *db_sync = r.direct ? "pipe_mgr_direct_stat_database_sync" : "pipe_mgr_stat_database_sync";
    EXPECT_EQ((Args{sess, target_word(kDev, PD_DEV_PIPE_ALL), h, addr(reinterpret_cast<void *>(on_sync)),
                    addr(&called)}),
              last(db_sync).args);
    if (!r.direct) {
      EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, sym<ReadI>("counter_read_", r)(sess, kAll, r.size, 0, &v));
    }
  }
  EXPECT_EQ(17, counters);
}

TEST_F(ResourceSweep, EveryMeterSendsItsUnitAndTypeAndReadsBackAsSet) {
  using SetD = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, const pd_meter_spec *);
  using SetI = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, const pd_meter_spec *);
  using ReadD = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, pd_meter_spec *);
  using ReadI = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, pd_meter_spec *);
  using AdjSet = pd_status (*)(pd_sess_hdl, pd_dev_target, int32_t);
  using AdjGet = pd_status (*)(pd_sess_hdl, pd_dev_target, int32_t *);
  int meters = 0;
  for (std::size_t i = 0; i < kNumResources; ++i) {
    const ResourceDesc &r = kResources[i];
    if (r.kind != ResourceKind::Meter) continue;
    SCOPED_TRACE(r.name);
    ++meters;
    const uint32_t cell = r.direct ? add_entry(r) : 9;
    auto set = [&](const pd_meter_spec &s) {
      return r.direct ? sym<SetD>("meter_set_", r)(sess, kDev, cell, &s)
                      : sym<SetI>("meter_set_", r)(sess, kAll, cell, &s);
    };
    auto read = [&](pd_meter_spec *s) {
      return r.direct ? sym<ReadD>("meter_read_", r)(sess, kDev, cell, s)
                      : sym<ReadI>("meter_read_", r)(sess, kAll, cell, s);
    };
    const pd_meter_spec spec{1000, 200, 0x80000001u, 400, PD_METER_TYPE_COLOR_UNAWARE};
    ASSERT_EQ(BF_SUCCESS, set(spec));
    pd_meter_record sent{};
    const uint32_t unit = r.packets ? PD_METER_RATE_UNIT_PACKETS : PD_METER_RATE_UNIT_BYTES;
    sent.meter_type = PD_METER_TYPE_COLOR_UNAWARE;
    sent.cir_unit = sent.pir_unit = unit;
    sent.cir = 1000;
    sent.cburst = 200;
    sent.pir = 0x80000001u;
    sent.pburst = 400;
    if (r.direct) {
      // The entry's resource slot, by the match table, with the meter's handle in it.
      EXPECT_EQ((Args{sess, kDev, r.table_hdl, cell, last("pipe_mgr_mat_ent_set_resource").args[4], 1, 0}),
                last("pipe_mgr_mat_ent_set_resource").args);
      const Bytes slot = handed("pipe_mgr_mat_ent_set_resource", "resources");
      ASSERT_EQ(sizeof(pd_resource_record), slot.size());
      EXPECT_EQ(r.handle, w32(slot, 0));
      EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, w32(slot, 64));
      EXPECT_EQ(bytes(sent), Bytes(slot.begin() + 8, slot.begin() + 64));
    } else {
      EXPECT_EQ((Args{sess, target_word(kDev, PD_DEV_PIPE_ALL), r.handle, cell,
                      last("pipe_mgr_meter_ent_set").args[4], 0}),
                last("pipe_mgr_meter_ent_set").args);
      EXPECT_EQ(bytes(sent), handed("pipe_mgr_meter_ent_set", "meter"));
    }
    pd_meter_spec back{};
    ASSERT_EQ(BF_SUCCESS, read(&back));
    EXPECT_EQ(bytes(spec), bytes(back));

    // A bad type is logged under the unit's function name and sent colour-aware.
    orbisk_model_clear_log();
    ASSERT_EQ(BF_SUCCESS, set(pd_meter_spec{1, 2, 3, 4, 5}));
    EXPECT_TRUE(logged_once(r.packets ? "ASSERTION FAILED: \"0\" (0) from get_packets_meter_type:"
                                      : "ASSERTION FAILED: \"0\" (0) from get_bytes_meter_type:"));
    ASSERT_EQ(BF_SUCCESS, read(&back));
    EXPECT_EQ(PD_METER_TYPE_COLOR_AWARE, back.meter_type);

    // A failed read leaves the caller's spec as it was.
    orbisk_model_fail(r.direct ? "pipe_mgr_meter_read_entry" : "pipe_mgr_meter_read_entry_idx", 1, kArmed);
    back = pd_meter_spec{9, 9, 9, 9, 9};
    EXPECT_EQ(kArmed, read(&back));
    EXPECT_EQ(bytes(pd_meter_spec{9, 9, 9, 9, 9}), bytes(back));

    // The byte-count adjustment always goes by the meter's own handle.
    ASSERT_EQ(BF_SUCCESS, sym<AdjSet>("meter_bytecount_adjust_set_", r)(sess, kAll, -12));
    EXPECT_EQ((Args{sess, target_word(kDev, PD_DEV_PIPE_ALL), r.handle, uint32_t(-12)}),
              last("pipe_mgr_meter_set_bytecount_adjust").args);
    int32_t adj = 0;
    ASSERT_EQ(BF_SUCCESS, sym<AdjGet>("meter_bytecount_adjust_get_", r)(sess, kAll, &adj));
    EXPECT_EQ(-12, adj);
    if (!r.direct) {
      EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, sym<SetI>("meter_set_", r)(sess, kAll, r.size, &spec));
    }
  }
  EXPECT_EQ(4, meters);
}

TEST_F(ResourceSweep, EveryRegisterReadsAValuePerPipeWritesOneBitAndFreesWhatItTakes) {
  using Read = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t, uint8_t *, uint32_t *);
  using Write = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, const uint8_t *);
  using WriteAll = pd_status (*)(pd_sess_hdl, pd_dev_target, const uint8_t *);
  using ResetAll = pd_status (*)(pd_sess_hdl, pd_dev_target);
  using RangeReset = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t);
  using RangeRead = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, uint32_t, uint32_t, uint32_t *,
                                  uint8_t *, uint32_t *);
  using Sync = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_register_sync_cb, void *);
  int registers = 0;
  for (std::size_t i = 0; i < kNumResources; ++i) {
    const ResourceDesc &r = kResources[i];
    if (r.kind != ResourceKind::Register) continue;
    SCOPED_TRACE(r.name);
    ++registers;
    const Read read = sym<Read>("register_read_", r);
    const RangeRead range_read = sym<RangeRead>("register_range_read_", r);
    const uint8_t x80 = 0x80, zero = 0;

    // 0x80 on pipe 2 is a 1 there alone; a read of all pipes gives one byte each.
    ASSERT_EQ(BF_SUCCESS, sym<Write>("register_write_", r)(sess, {kDev, 2}, 7, &x80));
    EXPECT_EQ(1, handed("pipe_stful_ent_set", "element").at(0));
    EXPECT_EQ(0u, last("pipe_stful_ent_set").args[5]);
    uint8_t values[8];
    std::memset(values, 0xEE, sizeof values);
    uint32_t count = 0;
    ASSERT_EQ(BF_SUCCESS, read(sess, kAll, 7, 3, values, &count));
    EXPECT_EQ(uint32_t(ORBISK_MODEL_PIPES), count);
    EXPECT_EQ((Bytes{0, 0, 1, 0, 0xEE}), Bytes(values, values + 5));
    EXPECT_EQ(1u, last("pipe_stful_ent_query").args[5]);  // bit 0 of flags 3 alone
    ASSERT_EQ(BF_SUCCESS, read(sess, {kDev, 2}, 7, 2, values, &count));
    EXPECT_EQ(1u, count);
    EXPECT_EQ(0u, last("pipe_stful_ent_query").args[5]);

    // Write all, then a range that runs past the end: the driver reads two
    // indices of the four asked, grouped by index then pipe.
    ASSERT_EQ(BF_SUCCESS, sym<WriteAll>("register_write_all_", r)(sess, kAll, &x80));
    ASSERT_EQ(BF_SUCCESS, sym<RangeReset>("register_range_reset_", r)(sess, {kDev, 1}, r.size - 1, 1));
    uint8_t many[16];
    std::memset(many, 0xEE, sizeof many);
    uint32_t read_n = 0, value_n = 0;
    ASSERT_EQ(BF_SUCCESS, range_read(sess, kAll, r.size - 2, 4, 1, &read_n, many, &value_n));
    EXPECT_EQ(2u, read_n);
    EXPECT_EQ(8u, value_n);
    EXPECT_EQ((Bytes{1, 1, 1, 1, 1, 0, 1, 1, 0xEE}), Bytes(many, many + 9));
    ASSERT_EQ(BF_SUCCESS, sym<ResetAll>("register_reset_all_", r)(sess, kAll));
    EXPECT_EQ(0u, last("pipe_stful_table_reset").args[3]);  // a null element
    ASSERT_EQ(BF_SUCCESS, read(sess, kAll, 7, 0, values, &count));
    EXPECT_EQ((Bytes{0, 0, 0, 0}), Bytes(values, values + 4));

    // Failures: sizes (nothing taken), query (freed), allocation (status 2);
    // the out places stay as they were.
    count = 77;
    values[0] = 0xEE;
    orbisk_model_fail("pipe_stful_query_get_sizes", 1, kArmed);
    EXPECT_EQ(kArmed, read(sess, kAll, 7, 0, values, &count));
    orbisk_model_fail("pipe_stful_ent_query", 1, kArmed);
    EXPECT_EQ(kArmed, read(sess, kAll, 7, 0, values, &count));
    orbisk_model_fail_allocation(1);
    EXPECT_EQ(2u, read(sess, kAll, 7, 0, values, &count));
    EXPECT_EQ(77u, count);
    EXPECT_EQ(0xEE, values[0]);
    read_n = value_n = 77;
    for (uint32_t nth : {1u, 2u}) {
      orbisk_model_fail_allocation(nth);
      EXPECT_EQ(2u, range_read(sess, kAll, 0, 2, 0, &read_n, many, &value_n));
    }
    orbisk_model_fail("pipe_stful_ent_query_range", 1, kArmed);
    EXPECT_EQ(kArmed, range_read(sess, kAll, 0, 2, 0, &read_n, many, &value_n));
    EXPECT_EQ(77u, read_n);
    EXPECT_EQ(77u, value_n);
    EXPECT_EQ(0u, orbisk_model_live_allocations());

    // Zero indices read: the number of values is 0 and nothing else is written.
    ASSERT_EQ(BF_SUCCESS, range_read(sess, kAll, 0, 0, 0, &read_n, many, &value_n));
    EXPECT_EQ(0u, read_n);
    EXPECT_EQ(0u, value_n);
    EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, sym<Write>("register_write_", r)(sess, kAll, r.size, &zero));

    int called = 0;
    ASSERT_EQ(BF_SUCCESS, sym<Sync>("register_hw_sync_", r)(sess, kAll, on_sync, &called));
    EXPECT_EQ(1, called);
    EXPECT_EQ(r.handle, last("pipe_stful_database_sync").args[2]);
  }
  EXPECT_EQ(4, registers);
}

using Generic = OnModel;

TEST_F(Generic, MeterWredAndRegisterCallsPassTheCallersHandleAndRecords) {
  const uint32_t pdp = resource("pdpMeter");
  // has_pre_color false with colour-unaware: type 1, the caller's unit.
  pd_meter_spec s{10, 20, 30, 40, PD_METER_TYPE_COLOR_UNAWARE};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_bytes_meter_set(sess, kAll, pdp, 3, &s, false));
  pd_meter_record sent{};
  sent.meter_type = 1;
  sent.cir = 10;
  sent.cburst = 20;
  sent.pir = 30;
  sent.pburst = 40;
  EXPECT_EQ(bytes(sent), handed("pipe_mgr_meter_ent_set", "meter"));
  s.meter_type = PD_METER_TYPE_COLOR_AWARE;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_packets_meter_set(sess, kAll, pdp, 3, &s, true));
  sent.meter_type = 0;
  sent.cir_unit = sent.pir_unit = 1;
  EXPECT_EQ(bytes(sent), handed("pipe_mgr_meter_ent_set", "meter"));
  EXPECT_EQ(0u, orbisk_model_log_count());

  // A rate the driver holds above 32 bits reads back cut; the type as the driver has it.
  pd_meter_record wide = sent;
  wide.cir = 0x100000005u;
  wide.meter_type = 7;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_meter_ent_set(sess, kAll, pdp, 4, &wide, 0));
  pd_meter_spec back{};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_bytes_meter_read(sess, kAll, pdp, 4, &back));
  EXPECT_EQ(5u, back.cir);
  EXPECT_EQ(7u, back.meter_type);

  // WRED on an indexed meter's cell is kept as given; anything else is
  // refused and keeps nothing.
  const pd_wred_spec w{0.5f, 10, 20, 0.25f};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_wred_set(sess, kAll, pdp, 1, &w));
  EXPECT_EQ(bytes(w), handed("pipe_mgr_wred_ent_set", "wred"));
  const Args wa = last("pipe_mgr_wred_ent_set").args;
  EXPECT_EQ((Args{sess, target_word(kDev, PD_DEV_PIPE_ALL), pdp, 1, wa.at(4), 0}), wa);
  pd_wred_spec kept{};
  ASSERT_EQ(BF_SUCCESS, orbisk_model_wred_get(kDev, pdp, 1, &kept));
  EXPECT_EQ(bytes(w), bytes(kept));
  const pd_wred_spec other{1.0f, 1, 2, 1.0f};
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE, p4_pd_orbisk_switch_wred_set(sess, kAll, 0x77, 1, &other));
  EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, p4_pd_orbisk_switch_wred_set(sess, kAll, pdp, 1024, &other));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_wred_get(kDev, pdp, 1, &kept));
  EXPECT_EQ(bytes(w), bytes(kept));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_wred_get(kDev, pdp, 2, &kept));
  EXPECT_EQ(bytes(pd_wred_spec{}), bytes(kept));

  // The direct write: device as one byte, one handle as table and resource.
  pd_register_element e{};
  e.bytes[0] = 1;
  e.bytes[15] = 0xAB;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, p4_pd_orbisk_switch_register_write_direct(sess, 256, 0x06000001, 5, &e));
  EXPECT_EQ(0u, last("pipe_mgr_mat_ent_set_resource").args[1]);
  const Bytes slot = handed("pipe_mgr_mat_ent_set_resource", "resources");
  EXPECT_EQ(0x06000001u, w32(slot, 0));
  EXPECT_EQ(bytes(e), Bytes(slot.begin() + 8, slot.begin() + 24));
  EXPECT_EQ(Bytes(40, 0), Bytes(slot.begin() + 24, slot.begin() + 64));
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, w32(slot, 64));

  // The generic register read hands on bit 0 of the flags and the caller's record.
  const uint32_t reg = resource("ingStpCheckData");
  pd_register_element cells[ORBISK_MODEL_PIPES];
  pd_register_query q{ORBISK_MODEL_PIPES, 0, cells};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_register_write_all_indirect(sess, kAll, reg, &e));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_register_read_indirect(sess, kAll, reg, 0, 3, &q));
  EXPECT_EQ(1u, last("pipe_stful_ent_query").args[5]);
  EXPECT_EQ(bytes(e), bytes(cells[3]));
  q.count = ORBISK_MODEL_PIPES - 1;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_orbisk_switch_register_read_indirect(sess, kAll, reg, 0, 0, &q));
}

using GenericDeathTest = Generic;

TEST_F(GenericDeathTest, GenericMeterChecksEndTheProcessWhateverTheDebugMode) {
  orbisk_model_set_dbg_mode(0);
  const uint32_t pdp = resource("pdpMeter");
  pd_meter_spec aware{1, 2, 3, 4, PD_METER_TYPE_COLOR_AWARE};
  pd_meter_spec bad{1, 2, 3, 4, 2};
  EXPECT_DEATH(p4_pd_orbisk_switch_bytes_meter_set(sess, kAll, pdp, 0, &aware, false),
               "pd_orbisk.*get_bytes_meter_type.*has_pre_color == true");
  EXPECT_DEATH(p4_pd_orbisk_switch_packets_meter_set(sess, kAll, pdp, 0, &bad, true),
               "pd_orbisk.*get_packets_meter_type.*requested_meter_type == PD_METER_TYPE_COLOR_AWARE");
}

}  // namespace
