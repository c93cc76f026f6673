// Entries, walks and defaults of the model, driven through the driver
// functions with hand-built records.
#include "model_test_support.h"

using namespace model_test;

namespace {

using Entries = ModelTest;

TEST_F(Entries, AddedEntryReadsBackAsStored) {
  L2Key k(0x10);
  UcastAct a(7);
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_add(kSess, kDev0, kL2Lookup, &k.rec, kKnownUcast, &a.rec,
                                             3000, 0, &hdl));
  EXPECT_EQ(1u, hdl);
  EXPECT_EQ(1u, orbisk_model_entry_count(0, kL2Lookup));

  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(kL2Lookup, hdl));
  EXPECT_EQ(0, std::memcmp(r.value, k.value, 8));
  EXPECT_EQ(0, std::memcmp(r.mask, k.mask, 8));
  EXPECT_EQ(8u, r.key.num_bytes);
  EXPECT_EQ(60u, r.key.num_valid_bits);
  EXPECT_EQ(kKnownUcast, r.fn);
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, r.act.record_kind);
  EXPECT_EQ(3u, r.act.num_bytes);
  EXPECT_EQ(20u, r.act.num_valid_bits);
  EXPECT_EQ(0, std::memcmp(r.data, a.data, 3));
  EXPECT_EQ(0xEE, r.data[3]) << "wrote past the stored data";
  EXPECT_EQ(0u, r.act.resource_count);
}

TEST_F(Entries, TernaryKeysDifferByPriorityAndKeepTheirSlot) {
  Key k1(8, 57, 0x20, 5), k2(8, 57, 0x20, 6), dup(8, 57, 0x20, 5);
  Act a(2, 9, 1);
  a.rec.resource_count = 1;
  a.rec.resources[0].resource_hdl = kDmacCounter;
  a.rec.resources[0].resource_index = 42;
  a.rec.resources[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
  pd_entry_hdl h1 = 0, h2 = 0, h3 = 0x5555;
  ASSERT_EQ(BF_SUCCESS, add(kDmac, k1, kSetL2ControlFrame, a, &h1));
  ASSERT_EQ(BF_SUCCESS, add(kDmac, k2, kSetL2ControlFrame, a, &h2));
  EXPECT_EQ(ORBISK_MODEL_ENTRY_EXISTS, add(kDmac, dup, kSetL2ControlFrame, a, &h3));
  EXPECT_EQ(0x5555u, h3);
  EXPECT_EQ(2u, orbisk_model_entry_count(0, kDmac));

  // A mask differing in one bit is another key.
  dup.mask[7] = 0xFE;
  EXPECT_EQ(BF_SUCCESS, add(kDmac, dup, kSetL2ControlFrame, a, &h3));

  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(kDmac, h2));
  EXPECT_EQ(6u, r.key.priority);
  ASSERT_EQ(1u, r.act.resource_count);
  EXPECT_EQ(kDmacCounter, r.act.resources[0].resource_hdl);
  EXPECT_EQ(42u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag);
}

TEST_F(Entries, RejectedAddsChangeNothing) {
  struct Case {
    const char *what;
    pd_tbl_hdl tbl;
    uint16_t key_bytes, key_bits, data_bytes, data_bits;
    pd_act_fn_hdl fn;
    uint8_t kind;
    pd_status want;
  };
  const Case cases[] = {
      {"unknown table", kNoTable, 8, 60, 3, 20, kKnownUcast, 1, ORBISK_MODEL_NO_SUCH_TABLE},
      {"key bytes", kL2Lookup, 9, 60, 3, 20, kKnownUcast, 1, ORBISK_MODEL_BAD_RECORD},
      {"key bits", kL2Lookup, 8, 59, 3, 20, kKnownUcast, 1, ORBISK_MODEL_BAD_RECORD},
      {"data bytes", kL2Lookup, 8, 60, 2, 20, kKnownUcast, 1, ORBISK_MODEL_BAD_RECORD},
      {"data bits", kL2Lookup, 8, 60, 3, 21, kKnownUcast, 1, ORBISK_MODEL_BAD_RECORD},
      {"other table's action", kL2Lookup, 8, 60, 2, 9, kSetL2ControlFrame, 1,
       ORBISK_MODEL_NO_SUCH_ACTION},
      {"member ref on direct table", kL2Lookup, 8, 60, 3, 20, kKnownUcast, 2,
       ORBISK_MODEL_BAD_RECORD},
      {"unknown record kind", kL2Lookup, 8, 60, 3, 20, kKnownUcast, 3, ORBISK_MODEL_BAD_RECORD},
      {"keyless table", kIngStpCheck, 0, 0, 0, 0, kIngStpAction, 1, ORBISK_MODEL_BAD_RECORD},
      {"direct entry on profile table", kEcmpGroup, 2, 15, 0, 0, 0x30000019, 1,
       ORBISK_MODEL_BAD_RECORD},
  };
  for (const Case &c : cases) {
    Key k(c.key_bytes, c.key_bits, 1);
    Act a(c.data_bytes, c.data_bits, 1);
    a.rec.record_kind = c.kind;
    pd_entry_hdl hdl = 0x5555;
    EXPECT_EQ(c.want, add(c.tbl, k, c.fn, a, &hdl)) << c.what;
    EXPECT_EQ(0x5555u, hdl) << c.what;
    EXPECT_EQ(0u, orbisk_model_entry_count(0, c.tbl)) << c.what;
  }
  UcastAct a(1);
  pd_entry_hdl hdl = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_ent_add(kSess, kDev0, kL2Lookup, nullptr, kKnownUcast, &a.rec, 0, 0, &hdl));
  // A failed add gives out no handle.
  L2Key k(1);
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));
  EXPECT_EQ(1u, hdl);
}

TEST_F(Entries, ProfileTableEntriesNameMembers) {
  Key k(2, 15, 3);
  Act a(0, 0, 0);
  a.rec.record_kind = PD_RECORD_KIND_GROUP_REF;
  a.rec.group_hdl = 77;
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, add(kEcmpGroup, k, 0x30000018, a, &hdl));
  Read r(2);
  ASSERT_EQ(BF_SUCCESS, r.get(kEcmpGroup, hdl));
  EXPECT_EQ(PD_RECORD_KIND_GROUP_REF, r.act.record_kind);
  EXPECT_EQ(77u, r.act.group_hdl);
  EXPECT_EQ(0u, r.act.num_bytes);
}

TEST_F(Entries, CapacityAndHandlesAreNeverReused) {
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, orbisk_model_set_capacity(0, kNoTable, 1));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_capacity(0, kL2Lookup, 2));
  L2Key k1(1), k2(2), k3(3);
  UcastAct a(1);
  pd_entry_hdl h1, h2, h3 = 0x5555;
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k1, kKnownUcast, a, &h1));
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k2, kKnownUcast, a, &h2));
  EXPECT_EQ(ORBISK_MODEL_TABLE_FULL, add(kL2Lookup, k3, kKnownUcast, a, &h3));
  EXPECT_EQ(0x5555u, h3);
  // Another device has its own table, capacity and handles.
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k3, kKnownUcast, a, &h3, kDev1));
  EXPECT_EQ(1u, h3);

  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, kL2Lookup, h1, 0));
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k1, kKnownUcast, a, &h3));
  EXPECT_EQ(3u, h3);
  Read r(8);
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, r.get(kL2Lookup, h1));
}

TEST_F(Entries, ChangeFindAndDeleteByHandleAndByKey) {
  L2Key k(9), other(10);
  UcastAct a(1);
  Act mcast(2, 16, 4);
  pd_entry_hdl hdl = 0, found = 0;
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));

  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_set_action(kSess, 0, kL2Lookup, hdl + 1, kKnownMcast, &mcast.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_ent_set_action(kSess, 0, kL2Lookup, hdl, kKnownMcast, &a.rec, 0));
  ASSERT_EQ(BF_SUCCESS,
            pipe_mgr_mat_ent_set_action(kSess, 0, kL2Lookup, hdl, kKnownMcast, &mcast.rec, 0));
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(kL2Lookup, hdl));
  EXPECT_EQ(kKnownMcast, r.fn);
  EXPECT_EQ(2u, r.act.num_bytes);
  EXPECT_EQ(0, std::memcmp(r.data, mcast.data, 2));

  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_set_action_by_match_spec(
                                            kSess, kDev0, kL2Lookup, &other.rec, kKnownUcast,
                                            &a.rec, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action_by_match_spec(kSess, kDev0, kL2Lookup, &k.rec,
                                                                  kKnownUcast, &a.rec, 0));
  Read again(8);
  ASSERT_EQ(BF_SUCCESS, again.get(kL2Lookup, hdl));
  EXPECT_EQ(kKnownUcast, again.fn);

  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, kL2Lookup, &other.rec, &found, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, kL2Lookup, &k.rec, &found, 0));
  EXPECT_EQ(hdl, found);

  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_del_by_match_spec(kSess, kDev0, kL2Lookup, &other.rec, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del_by_match_spec(kSess, kDev0, kL2Lookup, &k.rec, 0));
  EXPECT_EQ(0u, orbisk_model_entry_count(0, kL2Lookup));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_del(kSess, 0, kL2Lookup, hdl, 0));
  // The key is free again.
  EXPECT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));
}

TEST_F(Entries, ReadWithoutRoomWritesNothing) {
  L2Key k(1);
  UcastAct a(1);
  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));
  Read small(8, 2);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, small.get(kL2Lookup, hdl));
  EXPECT_EQ(0xEE, small.value[0]);
  EXPECT_EQ(0xEE, small.data[0]);
  EXPECT_EQ(0xEEEEEEEEu, small.fn);
  Read short_key(7);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, short_key.get(kL2Lookup, hdl));
  EXPECT_EQ(0xEE, short_key.value[0]);
}

TEST_F(Entries, WalkGoesUpByHandle) {
  pd_entry_hdl first = 0;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_get_first_entry_handle(kSess, kL2Lookup, kDev0, &first));
  UcastAct a(1);
  for (uint8_t i = 1; i <= 5; ++i) {
    L2Key k(i);
    pd_entry_hdl hdl;
    ASSERT_EQ(BF_SUCCESS, add(kL2Lookup, k, kKnownUcast, a, &hdl));
  }
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, kL2Lookup, 1, 0));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, kL2Lookup, 3, 0));
  uint32_t count = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_entry_count(kSess, kDev0, kL2Lookup, 0, &count));
  EXPECT_EQ(3u, count);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_first_entry_handle(kSess, kL2Lookup, kDev0, &first));
  EXPECT_EQ(2u, first);

  pd_entry_hdl next[3];
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_next_entry_handles(kSess, kL2Lookup, kDev0, 2, 3, next));
  EXPECT_EQ(4u, next[0]);
  EXPECT_EQ(5u, next[1]);
  EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[2]);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_next_entry_handles(kSess, kL2Lookup, kDev0, 5, 3, next));
  EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[0]);
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_get_next_entry_handles(kSess, kL2Lookup, kDev0, 3, 3, next));
}

using Defaults = ModelTest;

TEST_F(Defaults, TablesStartWithTheirDeclaredDefault) {
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get_default(kL2Lookup));
  EXPECT_EQ(kL2OnMiss, r.fn);
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, r.act.record_kind);
  EXPECT_EQ(0u, r.act.num_bytes);
  EXPECT_EQ(0u, r.act.resource_count);

  Read d(8);
  ASSERT_EQ(BF_SUCCESS, d.get_default(kDmac));
  EXPECT_EQ(kDmacOnMiss, d.fn);
  ASSERT_EQ(1u, d.act.resource_count);
  EXPECT_EQ(kDmacCounter, d.act.resources[0].resource_hdl);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, d.act.resources[0].resource_tag);

  pd_entry_hdl hdl = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_table_get_default_entry_handle(kSess, kDev0, kDmac, &hdl));
  EXPECT_EQ(ORBISK_MODEL_DEFAULT_ENTRY_HDL, hdl);
  // Read as an entry, the default shows a key of no bytes.
  Read e(8);
  ASSERT_EQ(BF_SUCCESS, e.get(kDmac, hdl));
  EXPECT_EQ(0u, e.key.num_bytes);
  EXPECT_EQ(kDmacOnMiss, e.fn);
  EXPECT_EQ(0xEE, e.value[0]);

  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, r.get_default(kNoTable));
}

TEST_F(Defaults, SetIsCheckedAndResetRestores) {
  UcastAct ucast(1);
  Act none(0, 0, 0);
  pd_entry_hdl hdl = 0x5555;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ACTION, pipe_mgr_mat_default_entry_set(
                                             kSess, kDev0, kL2Lookup, kKnownUcast, &ucast.rec, 0,
                                             &hdl));
  EXPECT_EQ(0x5555u, hdl);
  // ingStpAction may only be a default; on its keyless table it is one.
  pd_entry_hdl stp = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_default_entry_set(kSess, kDev0, kIngStpCheck, kIngStpAction, nullptr, 0,
                                           &stp));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_default_entry_set(kSess, kDev0, kIngStpCheck, kIngStpAction,
                                                       &none.rec, 0, &stp));
  EXPECT_EQ(ORBISK_MODEL_DEFAULT_ENTRY_HDL, stp);

  // A default on one device stays there.
  Act with_counter(0, 0, 0);
  with_counter.rec.resource_count = 1;
  with_counter.rec.resources[0] = {kDmacCounter, 9, {}, PD_RESOURCE_TAG_DETACHED, 0};
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_default_entry_set(kSess, kDev1, kDmac, kDmacOnMiss,
                                                       &with_counter.rec, 0, &hdl));
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get_default(kDmac, kDev1));
  EXPECT_EQ(9u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_DETACHED, r.act.resources[0].resource_tag);
  ASSERT_EQ(BF_SUCCESS, r.get_default(kDmac, kDev0));
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag);

  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_tbl_default_entry_reset(kSess, kDev1, kDmac, 0));
  ASSERT_EQ(BF_SUCCESS, r.get_default(kDmac, kDev1));
  EXPECT_EQ(0u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag);
  EXPECT_EQ(0u, orbisk_model_entry_count(1, kDmac)) << "the default is no entry";
}

}  // namespace
