// What the model refuses from the widths of the descriptors, how it gives out
// handles, and that only a successful write makes state for a device.
#include "model_test_support.h"

using namespace model_test;

namespace {

using orbisk::pd::FieldDesc;
using orbisk::pd::kNumTables;
using orbisk::pd::kTables;

// Adds k on t with the table's first entry action, or a member reference.
pd_status add_any(const TableDesc &t, Key &k, pd_dev_target dev = kDev0) {
  const orbisk::pd::TableActionDesc *a = t.actions;
  while (!t.indirect() && !a->entry_use) ++a;
  Act act(*a->action, 1);
  if (t.indirect()) {
    // A member of the profile to name: its last action has no data.
    const orbisk::pd::ProfileDesc &p = *t.profile;
    pd_action_record data{};
    uint8_t none[1];
    data.data_bytes = none;
    pd_mbr_hdl mbr = 0;
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_adt_ent_add(kSess, dev, p.adt_hdl, p.actions[p.num_actions - 1].handle,
                                               0, &data, &mbr, 0));
    act.rec = pd_action_record{};
    act.rec.record_kind = PD_RECORD_KIND_MEMBER_REF;
    act.rec.member_hdl = mbr;
  }
  pd_entry_hdl hdl = 0x5555;
  const pd_status s = add(t.handle, k, a->handle, act, &hdl, dev);
  EXPECT_EQ(s == BF_SUCCESS, hdl != 0x5555) << t.name;
  return s;
}

using Widths = ModelTest;

// Every keyed table: a key that fits is taken; a bit above a narrow field's
// width is refused as the table's match kind says, and nothing changes.
TEST_F(Widths, EveryNarrowFieldOfEveryTable) {
  unsigned refused = 0;
  for (std::size_t ti = 0; ti < kNumTables; ++ti) {
    const TableDesc &t = kTables[ti];
    if (!t.keyed()) continue;
    Key fits(t, 0x5A, 3);
    ASSERT_EQ(BF_SUCCESS, add_any(t, fits)) << t.name;
    size_t kept = 1;
    for (unsigned fi = 0; fi < t.num_fields; ++fi) {
      const FieldDesc &f = t.fields[fi];
      const bool partition = t.match == MatchKind::PartitionedPrefix && fi == 0;
      if (f.bits % 8 == 0 && !partition) continue;
      SCOPED_TRACE(std::string(t.name) + "." + f.name);
      Key k(t, 0x11, 4);
      const uint8_t above = uint8_t(~width_mask(f.bits));
      if (partition) {
        k.rec.partition_index = 1u << f.bits;
      } else if (t.ternary()) {
        // The value may keep bits above the width where the mask is cut ...
        k.value[f.key_offset] |= above;
        EXPECT_EQ(BF_SUCCESS, add_any(t, k));
        ++kept;
        // ... but the mask may not reach there.
        k.mask[f.key_offset] |= above;
        k.rec.priority = 5;
      } else {
        k.value[f.key_offset] |= above;
      }
      EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(t, k));
      ++refused;
    }
    EXPECT_EQ(kept, orbisk_model_entry_count(0, t.handle)) << t.name;
  }
  EXPECT_GT(refused, 50u) << "narrow fields of the program";
}

// A value above an exact field's width (an l2Lookup domain of 0x1064) is
// refused above, with every narrow field of the program.
TEST_F(Widths, TheCasesAnAgentMeets) {
  // A ternary value bit the mask does not cover, within the width.
  Key ternary(dmac, 1);
  ternary.mask[7] = 0xF0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(dmac, ternary));

  // A 20-bit parameter of 0xFFFFFF, on an add and a change.
  Key k(l2, 2);
  Act wide(ucast_desc, 0);
  std::memset(wide.data, 0xFF, 3);
  pd_entry_hdl hdl = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add(l2.handle, k, ucast, wide, &hdl));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_mat_ent_set_action(kSess, 0, l2.handle, 1, ucast, &wide.rec, 0));
  wide.data[0] = 0x0F;
  EXPECT_EQ(BF_SUCCESS, add(l2.handle, k, ucast, wide, &hdl));

  // Routes of /33 and /500 as the library marks them: a full mask and a
  // priority one past the key's bits; /32 is priority 0.
  Key route(lpm, 3);
  for (uint32_t priority : {41u, 33u, 501u}) {
    route.rec.priority = priority;
    EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(lpm, route)) << priority;
  }
  // A /24 needs priority 8, the mask of 24 ones and nothing under the mask.
  const unsigned dip = unsigned(lpm.fields[lpm.lpm_field].key_offset);
  route.rec.priority = 8;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(lpm, route)) << "mask of 32 ones";
  route.mask[dip + 3] = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(lpm, route)) << "host bits set";
  route.value[dip + 3] = 0;
  route.mask[dip + 2] = 0xFE;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(lpm, route)) << "mask of 23 ones";
  route.mask[dip + 2] = 0xFF;
  EXPECT_EQ(BF_SUCCESS, add_any(lpm, route));
  EXPECT_EQ(1u, orbisk_model_entry_count(0, l2.handle));
  EXPECT_EQ(1u, orbisk_model_entry_count(0, lpm.handle));
}

using Handles = ModelTest;

TEST_F(Handles, NeverReservedAndFreedOnesComeBackLast) {
  EXPECT_EQ(ORBISK_MODEL_BAD_CONTROL, orbisk_model_set_next_handle(0, l2.handle, 0));
  EXPECT_EQ(ORBISK_MODEL_BAD_CONTROL,
            orbisk_model_set_next_handle(0, l2.handle, ORBISK_MODEL_DEFAULT_ENTRY_HDL));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, orbisk_model_set_next_handle(0, kNoTable, 1));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_next_handle(0, l2.handle, 0x7FFFFFFE));
  pd_entry_hdl got[6];
  for (uint8_t i = 0; i < 4; ++i) {
    Key k(l2, i);
    ASSERT_EQ(BF_SUCCESS, add_any(l2, k));
    ASSERT_EQ(BF_SUCCESS,
              pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, l2.handle, &k.rec, &got[i], 0));
  }
  EXPECT_EQ(0x7FFFFFFEu, got[0]);
  EXPECT_EQ(0x7FFFFFFFu, got[1]);
  EXPECT_EQ(1u, got[2]) << "round past the top, over the reserved handles";
  EXPECT_EQ(2u, got[3]);
  // A freed handle waits for the cursor to come round; one in use is skipped.
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_del(kSess, 0, l2.handle, 1, 0));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_next_handle(0, l2.handle, 2));
  for (uint8_t i = 4; i < 6; ++i) {
    Key k(l2, i);
    ASSERT_EQ(BF_SUCCESS, add_any(l2, k));
    ASSERT_EQ(BF_SUCCESS,
              pipe_mgr_match_spec_to_ent_hdl(kSess, kDev0, l2.handle, &k.rec, &got[i], 0));
  }
  EXPECT_EQ(3u, got[4]);
  EXPECT_EQ(4u, got[5]);
  // Walks go by handle, whatever the order of the adds.
  pd_entry_hdl first = 0, next[5];
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_first_entry_handle(kSess, l2.handle, kDev0, &first));
  EXPECT_EQ(2u, first);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_get_next_entry_handles(kSess, l2.handle, kDev0, first, 5, next));
  const pd_entry_hdl want[5] = {3, 4, 0x7FFFFFFE, 0x7FFFFFFF, ORBISK_MODEL_NO_HANDLE};
  EXPECT_EQ(0, std::memcmp(want, next, sizeof want));
}

using Devices = ModelTest;

// A device never written to: refused calls, faulted calls and reads keep
// nothing, and reads see empty tables with their declared defaults.
TEST_F(Devices, OnlyASuccessfulWriteMakesState) {
  const pd_dev_target dev = {7, 2};
  Key bad(l2, 1);
  bad.value[6] = 0xF0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_any(l2, bad, dev));
  Key k(l2, 1);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_add", 1, 0x77));
  EXPECT_EQ(0x77u, add_any(l2, k, dev));
  Act a(ucast_desc, 1);
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_set_action(kSess, 7, l2.handle, 1, ucast, &a.rec, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_mat_ent_del(kSess, 7, l2.handle, 1, 0));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_mat_ent_del_by_match_spec(kSess, dev, l2.handle, &k.rec, 0));
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_mat_tbl_default_entry_reset(kSess, dev, l2.handle, 0));
  uint32_t count = 9;
  EXPECT_EQ(BF_SUCCESS, pipe_mgr_get_entry_count(kSess, dev, l2.handle, 0, &count));
  EXPECT_EQ(0u, count);
  pd_entry_hdl first = 0;
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY,
            pipe_mgr_get_first_entry_handle(kSess, l2.handle, dev, &first));
  Read r(8);
  ASSERT_EQ(BF_SUCCESS, r.get(dmac.handle, ORBISK_MODEL_DEFAULT_ENTRY_HDL, dev));
  EXPECT_EQ(fn(dmac, "onMiss"), r.fn);
  EXPECT_EQ(1u, r.act.resource_count);
  EXPECT_EQ(0u, orbisk_model_device_count());

  EXPECT_EQ(BF_SUCCESS, add_any(l2, k, dev));
  EXPECT_EQ(1u, orbisk_model_device_count());
  // Capacity is per device and table.
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_TABLE, orbisk_model_set_capacity(7, kNoTable, 1));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_set_capacity(7, l2.handle, 1));
  bad.value[6] = 0;
  EXPECT_EQ(ORBISK_MODEL_TABLE_FULL, add_any(l2, bad, dev));
  EXPECT_EQ(BF_SUCCESS, add_any(l2, k, kDev1));
  orbisk_model_remove_device(7);
  EXPECT_EQ(1u, orbisk_model_device_count()) << "device 1 stays";
  EXPECT_EQ(0u, orbisk_model_entry_count(7, l2.handle));
}

}  // namespace
