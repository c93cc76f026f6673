// The model's counters, meters and registers: what traffic, syncs and writes
// leave in a cell, and the refusals, each distinct and each changing nothing.
#include "model_test_support.h"

using namespace model_test;
using by_name::resource;

namespace {

class Resources : public ModelTest {
 protected:
  const uint32_t queue = resource("egressPortQueueCount");
  const uint32_t pdp_meter = resource("pdpMeter");
  const uint32_t stp_reg = resource("ingStpCheckData");

  pd_counter_record query(pd_entry_hdl h) {
    pd_counter_record r{0xEE, 0xEE};
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_direct_stat_query(kSess, 0, dmac.handle, h, &r));
    return r;
  }
  pd_entry_hdl dmac_entry(uint8_t seed) {
    Key k(dmac, seed);
    const orbisk::pd::TableActionDesc &a = use(dmac, "onMiss");
    Act act(*a.action, seed);
    act.rec.resource_count = 1;
    act.rec.resources[0].resource_hdl = resource("l2DmacClassifyCount");
    act.rec.resources[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
    pd_entry_hdl h = 0;
    EXPECT_EQ(BF_SUCCESS, add(dmac.handle, k, a.handle, act, &h));
    return h;
  }
};

void on_sync(uint32_t, void *cookie) { ++*static_cast<int *>(cookie); }

TEST_F(Resources, TrafficReachesTheDriversMemoryOnlyThroughASyncAndGoesWithItsEntry) {
  const pd_entry_hdl h = dmac_entry(1), other = dmac_entry(2);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_count_traffic(0, dmac.handle, h, 2, 128));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_count_traffic(0, dmac.handle, other, 1, 64));
  EXPECT_EQ(0u, query(h).packets);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_direct_stat_ent_database_sync(kSess, 0, dmac.handle, h));
  EXPECT_EQ(2u, query(h).packets);
  EXPECT_EQ(128u, query(h).bytes);
  EXPECT_EQ(0u, query(other).packets);  // one cell synced, not the table
  int synced = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_direct_stat_database_sync(kSess, {0, 0}, dmac.handle, on_sync, &synced));
  EXPECT_EQ(1, synced);
  EXPECT_EQ(64u, query(other).bytes);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, dmac.handle, h, 0));
  pd_counter_record r{};
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_direct_stat_query(kSess, 0, dmac.handle, h, &r));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, orbisk_model_count_traffic(0, dmac.handle, h, 1, 1));

  // An indexed counter's cells are the device's, whatever the pipe.
  ASSERT_EQ(BF_SUCCESS, orbisk_model_count_traffic(0, queue, 5, 4, 400));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_stat_ent_database_sync(kSess, {0, 1}, queue, 5));
  uint32_t idx[2] = {5, 6};
  pd_counter_record a{}, b{9, 9};
  pd_counter_record *out[2] = {&a, &b};
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_stat_ent_query(kSess, {0, 3}, queue, idx, 2, out));
  EXPECT_EQ(400u, a.bytes);
  EXPECT_EQ(0u, b.bytes);
}

TEST_F(Resources, RefusalsAreDistinctAndChangeNothing) {
  pd_counter_record c{1, 1};
  uint32_t idx[2] = {1, 5000};
  pd_counter_record a{7, 7}, b{7, 7};
  pd_counter_record *out[2] = {&a, &b};
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_stat_ent_set(kSess, {0, 0}, queue, 1, &c));
  // An index past the size anywhere in the list: nothing is filled.
  EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, pipe_mgr_stat_ent_query(kSess, {0, 0}, queue, idx, 2, out));
  EXPECT_EQ(7u, a.bytes);
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE, pipe_mgr_stat_ent_set(kSess, {0, 0}, pdp_meter, 1, &c));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE, pipe_mgr_mat_ent_direct_stat_set(kSess, 0, l2.handle, 1, &c));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, pipe_mgr_mat_ent_direct_stat_set(kSess, 0, 0x01FF0000, 1, &c));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_direct_stat_set(kSess, 0, dmac.handle, 1, &c));

  pd_meter_record m{};
  m.cir = 5;
  EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, pipe_mgr_meter_ent_set(kSess, {0, 0}, pdp_meter, 1024, &m, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE, pipe_mgr_meter_ent_set(kSess, {0, 0}, queue, 1, &m, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE,
            pipe_mgr_meter_set_bytecount_adjust(kSess, {0, 0}, table("l2LookupMiss").handle, 4));
  pd_resource_record slot{};
  slot.resource_hdl = pdp_meter;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE,
            pipe_mgr_mat_ent_set_resource(kSess, 0, table("l2LookupMiss").handle, 1, &slot, 1, 0));

  pd_register_element e{};
  e.bytes[0] = 1;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_PIPE, pipe_stful_ent_set(kSess, {0, ORBISK_MODEL_PIPES}, stp_reg, 0, &e, 0));
  EXPECT_EQ(ORBISK_MODEL_INDEX_PAST_SIZE, pipe_stful_table_reset_range(kSess, {0, 0}, stp_reg, 4095, 2, 0));
  pd_register_element cells[ORBISK_MODEL_PIPES];
  pd_register_query q{ORBISK_MODEL_PIPES - 1, 0, cells};
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, pipe_stful_ent_query(kSess, {0, PD_DEV_PIPE_ALL}, stp_reg, 0, &q, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_RESOURCE, pipe_stful_ent_set(kSess, {0, 0}, queue, 0, &e, 0));
  // Only the one counter set holds state: refused calls kept none.
  EXPECT_EQ(1u, orbisk_model_device_count());
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_stat_ent_query(kSess, {0, 0}, queue, idx, 1, out));
  EXPECT_EQ(1u, a.bytes);
}

TEST_F(Resources, RegisterCellsArePerPipeAndResetsFillThem) {
  pd_register_element one{}, seven{};
  one.bytes[0] = 1;
  seven.bytes[0] = 7;
  ASSERT_EQ(BF_SUCCESS, pipe_stful_table_reset(kSess, {0, PD_DEV_PIPE_ALL}, stp_reg, &seven));
  ASSERT_EQ(BF_SUCCESS, pipe_stful_ent_set(kSess, {0, 3}, stp_reg, 10, &one, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_stful_table_reset_range(kSess, {0, 0}, stp_reg, 10, 1, 0));
  pd_register_element cells[ORBISK_MODEL_PIPES];
  pd_register_query q{ORBISK_MODEL_PIPES, 0, cells};
  ASSERT_EQ(BF_SUCCESS, pipe_stful_ent_query(kSess, {0, PD_DEV_PIPE_ALL}, stp_reg, 10, &q, 0));
  EXPECT_EQ(ORBISK_MODEL_PIPES, q.count);
  EXPECT_EQ((std::vector<int>{0, 7, 7, 1}),
            (std::vector<int>{cells[0].bytes[0], cells[1].bytes[0], cells[2].bytes[0], cells[3].bytes[0]}));
  // Another device has its own cells; a reset without an element is 0.
  ASSERT_EQ(BF_SUCCESS, pipe_stful_ent_query(kSess, {1, PD_DEV_PIPE_ALL}, stp_reg, 10, &q, 0));
  EXPECT_EQ(0, cells[1].bytes[0]);
  ASSERT_EQ(BF_SUCCESS, pipe_stful_table_reset(kSess, {0, 2}, stp_reg, nullptr));
  ASSERT_EQ(BF_SUCCESS, pipe_stful_ent_query(kSess, {0, 2}, stp_reg, 11, &q, 0));
  EXPECT_EQ(1, q.count);
  EXPECT_EQ(0, cells[0].bytes[0]);
  orbisk_model_remove_device(0);
  q.count = ORBISK_MODEL_PIPES;
  ASSERT_EQ(BF_SUCCESS, pipe_stful_ent_query(kSess, {0, PD_DEV_PIPE_ALL}, stp_reg, 10, &q, 0));
  EXPECT_EQ(0, cells[3].bytes[0]);
}

}  // namespace
