// Entries, walks and defaults of the model, driven through the driver
// functions with records built from the descriptors.
#include "model_test_support.h"

using namespace model_test;

namespace {

using Entries = ModelTest;

TEST_F(Entries, TernaryKeysDifferByPriorityAndKeepTheirSlot) {
  Key k1(dmac, 0x20, 5), k2(dmac, 0x20, 6), dup(dmac, 0x20, 5);
  Act a(*use(dmac, "setL2ControlFrame").action, 1);
  a.rec.resource_count = 1;
  a.rec.resources[0].resource_hdl = dmac.resource->handle;
  a.rec.resources[0].resource_index = 42;
  a.rec.resources[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
  const pd_act_fn_hdl set = fn(dmac, "setL2ControlFrame");
  pd_entry_hdl h1 = 0, h2 = 0, h3 = 0x5555;
  ASSERT_EQ(BF_SUCCESS, add(dmac.handle, k1, set, a, &h1));
  ASSERT_EQ(BF_SUCCESS, add(dmac.handle, k2, set, a, &h2));
  EXPECT_EQ(ORBISK_MODEL_ENTRY_EXISTS, add(dmac.handle, dup, set, a, &h3));
  EXPECT_EQ(0x5555u, h3);
  EXPECT_EQ(2u, orbisk_model_entry_count(0, dmac.handle));

  // A mask differing in one bit is another key.
  dup.mask[7] = 0xFE;
  dup.value[7] &= 0xFE;
  EXPECT_EQ(BF_SUCCESS, add(dmac.handle, dup, set, a, &h3));

  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(dmac.handle, h2));
  EXPECT_EQ(6u, r.key.priority);
  ASSERT_EQ(1u, r.act.resource_count);
  EXPECT_EQ(dmac.resource->handle, r.act.resources[0].resource_hdl);
  EXPECT_EQ(42u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag);
  // The slot goes with the entry: a change of action without one drops it.
  Act plain(*use(dmac, "setL2ControlFrame").action, 2);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action(kSess, 0, dmac.handle, h2, set, &plain.rec, 0));
  ASSERT_EQ(BF_SUCCESS, r.get(dmac.handle, h2));
  EXPECT_EQ(0u, r.act.resource_count);
  ASSERT_EQ(BF_SUCCESS, r.get(dmac.handle, h1));
  EXPECT_EQ(42u, r.act.resources[0].resource_index);
}

TEST_F(Entries, RejectedAddsChangeNothing) {
  const pd_act_fn_hdl other = fn(dmac, "setL2ControlFrame");
  struct Case {
    const char *what;
    pd_tbl_hdl tbl;
    uint16_t key_bytes, key_bits, data_bytes, data_bits;
    pd_act_fn_hdl fn;
    uint8_t kind;
    pd_status want;
  };
  const Case cases[] = {
      {"unknown table", kNoTable, 8, 60, 3, 20, ucast, 1, ORBISK_MODEL_NO_SUCH_TABLE},
      {"key bytes", l2.handle, 9, 60, 3, 20, ucast, 1, ORBISK_MODEL_BAD_RECORD},
      {"key bits", l2.handle, 8, 59, 3, 20, ucast, 1, ORBISK_MODEL_BAD_RECORD},
      {"data bytes", l2.handle, 8, 60, 2, 20, ucast, 1, ORBISK_MODEL_BAD_RECORD},
      {"data bits", l2.handle, 8, 60, 3, 21, ucast, 1, ORBISK_MODEL_BAD_RECORD},
      {"other table's action", l2.handle, 8, 60, 2, 9, other, 1, ORBISK_MODEL_NO_SUCH_ACTION},
      {"member ref on direct table", l2.handle, 8, 60, 3, 20, ucast, 2, ORBISK_MODEL_BAD_RECORD},
      {"unknown record kind", l2.handle, 8, 60, 3, 20, ucast, 3, ORBISK_MODEL_BAD_RECORD},
      {"keyless table", stp.handle, 0, 0, 0, 0, stp.actions[0].handle, 1, ORBISK_MODEL_BAD_RECORD},
      {"direct entry on profile table", ecmp.handle, 2, 15, 0, 0, ecmp.actions[0].handle, 1,
       ORBISK_MODEL_BAD_RECORD},
  };
  for (const Case &c : cases) {
    Key k(c.key_bytes, c.key_bits, 1);
    k.value[6] = 0;  // the l2Lookup domain within its width
    Act a(c.data_bytes, c.data_bits, 1);
    a.rec.record_kind = c.kind;
    pd_entry_hdl hdl = 0x5555;
    EXPECT_EQ(c.want, add(c.tbl, k, c.fn, a, &hdl)) << c.what;
    EXPECT_EQ(0x5555u, hdl) << c.what;
    EXPECT_EQ(0u, orbisk_model_entry_count(0, c.tbl)) << c.what;
  }
  Act a(ucast_desc, 1);
  pd_entry_hdl hdl = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_ent_add(kSess, kDev0, l2.handle, nullptr, ucast, &a.rec, 0, 0, &hdl));
  Key k(l2, 1);
  ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &hdl));
  EXPECT_EQ(1u, hdl) << "a refused add gave out a handle";
}

TEST_F(Entries, ProfileTableEntriesNameMembers) {
  Key k(ecmp, 3);
  Act a(0, 0, 0);
  a.rec.record_kind = PD_RECORD_KIND_GROUP_REF;
  pd_grp_hdl grp = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_sel_grp_add(kSess, kDev0, ecmp.profile->sel_hdl, 0, 4, 0, &grp, 0));
  // A group that is not there is refused, and so is the group's deletion while named.
  a.rec.group_hdl = grp + 1;
  pd_entry_hdl hdl = 0;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_GROUP, add(ecmp.handle, k, ecmp.actions[0].handle, a, &hdl));
  a.rec.group_hdl = grp;
  ASSERT_EQ(BF_SUCCESS, add(ecmp.handle, k, ecmp.actions[0].handle, a, &hdl));
  EXPECT_EQ(ORBISK_MODEL_GROUP_IN_USE, pipe_mgr_sel_grp_del(kSess, 0, ecmp.profile->sel_hdl, grp, 0));
  Read r(2);
  ASSERT_EQ(BF_SUCCESS, r.get(ecmp.handle, hdl));
  EXPECT_EQ(PD_RECORD_KIND_GROUP_REF, r.act.record_kind);
  EXPECT_EQ(grp, r.act.group_hdl);
  EXPECT_EQ(0u, r.act.num_bytes);
}

// One entry's life: read back as stored (and not into too little room),
// missed by every way to another, changed and found by key, deleted, its key
// free again.
TEST_F(Entries, AddReadChangeFindAndDelete) {
  Key k(l2, 9), other(l2, 10);
  Act a(ucast_desc, 7);
  const pd_act_fn_hdl mcast = fn(l2, "l2LookupKnownMcast");
  Act m(*use(l2, "l2LookupKnownMcast").action, 4);
  pd_entry_hdl hdl = 0, found = 0;
  ASSERT_EQ(BF_SUCCESS,
            pipe_mgr_mat_ent_add(kSess, kDev0, l2.handle, &k.rec, ucast, &a.rec, 3000, 0, &hdl));
  EXPECT_EQ(1u, hdl);
  EXPECT_EQ(1u, orbisk_model_entry_count(0, l2.handle));
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(l2.handle, hdl));
  EXPECT_EQ(0, std::memcmp(r.value, k.value, 8));
  EXPECT_EQ(0, std::memcmp(r.mask, k.mask, 8));
  EXPECT_EQ(8u, r.key.num_bytes);
  EXPECT_EQ(60u, r.key.num_valid_bits);
  EXPECT_EQ(ucast, r.fn);
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, r.act.record_kind);
  EXPECT_EQ(3u, r.act.num_bytes);
  EXPECT_EQ(20u, r.act.num_valid_bits);
  EXPECT_EQ(0, std::memcmp(r.data, a.data, 3));
  EXPECT_EQ(0xEE, r.data[3]) << "wrote past the stored data";
  EXPECT_EQ(0u, r.act.resource_count);
  // Too little room for the data or the key: nothing is written.
  Read small(8, 2), short_key(7);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, small.get(l2.handle, hdl));
  EXPECT_EQ(0xEE, small.value[0]);
  EXPECT_EQ(0xEE, small.data[0]);
  EXPECT_EQ(0xEEEEEEEEu, small.fn);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, short_key.get(l2.handle, hdl));
  EXPECT_EQ(0xEE, short_key.value[0]);

  // Every way to an entry that is not there, or with the wrong record.
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_set_action(kSess, 0, l2.handle, hdl + 1, mcast, &m.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_ent_set_action(kSess, 0, l2.handle, hdl, mcast, &a.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_set_action_by_match_spec(
                                            kSess, kDev0, l2.handle, &other.rec, ucast, &a.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, l2.handle, &other.rec, &found, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_del_by_match_spec(kSess, kDev0, l2.handle, &other.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, hdl + 1, 0));

  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action_by_match_spec(kSess, kDev0, l2.handle, &k.rec,
                                                                  mcast, &m.rec, 0));
  ASSERT_EQ(BF_SUCCESS, r.get(l2.handle, hdl));
  EXPECT_EQ(mcast, r.fn);
  EXPECT_EQ(2u, r.act.num_bytes);
  EXPECT_EQ(0, std::memcmp(r.data, m.data, 2));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, l2.handle, &k.rec, &found, 0));
  EXPECT_EQ(hdl, found);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del_by_match_spec(kSess, kDev0, l2.handle, &k.rec, 0));
  EXPECT_EQ(0u, orbisk_model_entry_count(0, l2.handle));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, hdl, 0));
  EXPECT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &hdl)) << "the key is free again";
}

// Many entries, so the key index grows and closes its gaps on deletes, and
// a walk crosses the handle map's pages.
TEST_F(Entries, ManyEntriesWalkUpByHandleAndStayFoundByKey) {
  constexpr unsigned kCount = 3000;
  Act a(ucast_desc, 1);
  for (unsigned i = 1; i <= kCount; ++i) {
    Key k(l2, 0);
    std::memcpy(k.value, &i, sizeof i);
    pd_entry_hdl hdl;
    ASSERT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, a, &hdl));
    ASSERT_EQ(i, hdl);
  }
  pd_entry_hdl first = 0;
  for (unsigned i = 1; i <= kCount; i += 2) {
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, i, 0));
  }
  for (unsigned i = 1; i <= kCount; ++i) {
    Key k(l2, 0);
    std::memcpy(k.value, &i, sizeof i);
    pd_entry_hdl found = 0;
    const pd_status want = i % 2 ? ORBISK_MODEL_NO_SUCH_ENTRY : BF_SUCCESS;
    ASSERT_EQ(want, pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, l2.handle, &k.rec, &found, 0))
        << i;
    if (want == BF_SUCCESS) {
      ASSERT_EQ(i, found);
    }
  }
  uint32_t count = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_entry_count(kSess, kDev0, l2.handle, 0, &count));
  EXPECT_EQ(kCount / 2, count);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_first_entry_handle(kSess, l2.handle, kDev0, &first));
  EXPECT_EQ(2u, first);
  pd_entry_hdl next[3];
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_next_entry_handles(kSess, l2.handle, kDev0, 1022, 3, next));
  EXPECT_EQ(1024u, next[0]);
  EXPECT_EQ(1026u, next[1]);
  ASSERT_EQ(BF_SUCCESS,
            pipe_mgr_get_next_entry_handles(kSess, l2.handle, kDev0, kCount - 2, 3, next));
  EXPECT_EQ(kCount, next[0]);
  EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[1]);
  EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[2]);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_next_entry_handles(kSess, l2.handle, kDev0, kCount, 1, next));
  EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[0]);
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_get_next_entry_handles(kSess, l2.handle, kDev0, 3, 3, next));
}

using Defaults = ModelTest;

// The declared default of a table without state is read in Devices.
TEST_F(Defaults, SetIsCheckedPerDeviceAndResetRestores) {
  Act u(ucast_desc, 1);
  pd_entry_hdl hdl = 0x5555;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ACTION,
            pipe_mgr_mat_default_entry_set(kSess, kDev0, l2.handle, ucast, &u.rec, 0, &hdl));
  EXPECT_EQ(
      ORBISK_MODEL_BAD_RECORD,
      pipe_mgr_mat_default_entry_set(kSess, kDev0, l2.handle, fn(l2, "onMiss"), nullptr, 0, &hdl));
  EXPECT_EQ(0x5555u, hdl);
  EXPECT_EQ(0u, orbisk_model_device_count());

  Act with_counter(0, 0, 0);
  with_counter.rec.resource_count = 1;
  with_counter.rec.resources[0] = {dmac.resource->handle, 9, {}, PD_RESOURCE_TAG_DETACHED, 0};
  ASSERT_EQ(BF_SUCCESS,
            pipe_mgr_mat_default_entry_set(kSess, kDev1, dmac.handle, fn(dmac, "onMiss"),
                                           &with_counter.rec, 0, &hdl));
  EXPECT_EQ(ORBISK_MODEL_DEFAULT_ENTRY_HDL, hdl);
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get_default(dmac.handle, kDev1));
  EXPECT_EQ(9u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_DETACHED, r.act.resources[0].resource_tag);
  ASSERT_EQ(BF_SUCCESS, r.get_default(dmac.handle, kDev0));
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag) << "the other device's own";
  // Read as an entry, the default shows a key of no bytes.
  ASSERT_EQ(BF_SUCCESS, r.get(dmac.handle, ORBISK_MODEL_DEFAULT_ENTRY_HDL, kDev1));
  EXPECT_EQ(0u, r.key.num_bytes);
  EXPECT_EQ(0xEE, r.value[0]);

  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_tbl_default_entry_reset(kSess, kDev1, dmac.handle, 0));
  ASSERT_EQ(BF_SUCCESS, r.get_default(dmac.handle, kDev1));
  EXPECT_EQ(fn(dmac, "onMiss"), r.fn);
  EXPECT_EQ(0u, r.act.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.act.resources[0].resource_tag);
  EXPECT_EQ(0u, orbisk_model_entry_count(1, dmac.handle)) << "the default is no entry";
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, r.get_default(kNoTable));
}

}  // namespace
