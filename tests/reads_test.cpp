// Reads: entries and defaults back in host form, and the library's own
// answers to records it cannot use.
#include "test_support.h"

namespace {

class Reads : public OnModel {
 protected:
  pd_entry_hdl add_l2(uint32_t aintf) {
    p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
    ms.egrMd_dmacOui = 0x00AABB;
    ms.egrMd_dmacStation = aintf;
    ms.egrMd_egrL2Domain = 0x123;
    p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t as{aintf};
    pd_entry_hdl h = 0;
    EXPECT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(sess, tgt, &ms, &as, &h));
    return h;
  }
  pd_status read_l2(pd_entry_hdl h) {
    return p4_pd_orbisk_switch_l2Lookup_get_entry(sess, 0, h, false, &ms, name, &spec, &action, &is_default);
  }
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
  char name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = "untouched";
  p4_pd_orbisk_switch_action_spec_u spec{};
  p4_pd_orbisk_switch_action_names_t action = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  bool is_default = true;
};

TEST_F(Reads, EntryComesBackAcrossAllPipes) {
  pd_entry_hdl h = add_l2(0x54321);
  orbisk_model_clear_calls();
  ASSERT_EQ(0u, read_l2(h));
  Seen s = last("pipe_mgr_get_entry");
  EXPECT_EQ(0x0100002fu, s.args[1]);
  EXPECT_EQ(target_word(0, 0xFFFF), s.args[2] & 0xFFFFFFFFFFFFull);
  EXPECT_EQ(28, s.action.num_bytes);  // room offered for action data
  EXPECT_EQ(1u, s.args[8]);
  EXPECT_EQ(0u, s.args[9]);
  EXPECT_EQ(0x54321u, ms.egrMd_dmacStation);
  EXPECT_EQ(0x54321u, spec.l2LookupKnownUcast.action_egrL2Aintf);
  EXPECT_STREQ("p4_pd_orbisk_switch_l2LookupKnownUcast", name);
  EXPECT_EQ(p4_pd_orbisk_switch_l2LookupKnownUcast, action);
  EXPECT_FALSE(is_default);
  // The name read back feeds the enum conversion directly.
  EXPECT_EQ(action, p4_pd_orbisk_switch_action_string_to_enum(name));
}

TEST_F(Reads, TernaryValueAboveWidthAndCutMask) {
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t in{}, out{};
  in.vlanHdr_0__vlanId = 0xFABC;
  in.vlanHdr_0__vlanId_mask = 0xFFFF;
  pd_entry_hdl h;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2DomainLookup_table_add_with_NoAction(sess, tgt, &in, 21, &h));
  uint32_t prio = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2DomainLookup_get_entry(sess, 0, h, false, &out, &prio, nullptr, &spec,
                                                              nullptr, &is_default));
  EXPECT_EQ(0xFABC, out.vlanHdr_0__vlanId);
  EXPECT_EQ(0x0FFF, out.vlanHdr_0__vlanId_mask);
  EXPECT_EQ(21u, prio);
}

TEST_F(Reads, PrefixLengthFromTheMask) {
  for (auto [written, read] : {std::pair{20, 20}, {32, 32}, {0, 0}}) {
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t in{}, out{};
    in.l3Info_vrfId = uint8_t(written);
    in.ingIpv4_dip = 0x0A010203;
    in.ingIpv4_dip_prefix_length = uint16_t(written);
    pd_entry_hdl h;
    ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(sess, tgt, &in, &h));
    ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry(sess, 0, h, false, &out, nullptr, &spec,
                                                                  nullptr, &is_default));
    EXPECT_EQ(read, out.ingIpv4_dip_prefix_length) << "written " << written;
  }
  // A prefix longer than the field goes out as a full mask with priority key
  // bits + 1: the driver refuses it rather than keep a second /32.
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t too_long{};
  too_long.ingIpv4_dip_prefix_length = 33;
  pd_entry_hdl refused = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(sess, tgt, &too_long, &refused));
  EXPECT_EQ(41u, last("pipe_mgr_mat_ent_add").key.priority);
  uint32_t n = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry_count(sess, tgt, &n));
  EXPECT_EQ(3u, n);
  p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t v6{}, back{};
  v6.ingIpv6_fibPartitionIndex = 0xBEEF;
  v6.ingIpv6_dip[0] = 0x20;
  v6.ingIpv6_dip_prefix_length = 8;
  pd_entry_hdl h;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_onMiss(sess, tgt, &v6, &h));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ipv6FinalResolve_get_entry(sess, 0, h, false, &back, nullptr, &spec, nullptr,
                                                                &is_default));
  EXPECT_EQ(0xBEEF, back.ingIpv6_fibPartitionIndex);
  EXPECT_EQ(8, back.ingIpv6_dip_prefix_length);
  EXPECT_EQ(0x20, back.ingIpv6_dip[0]);
}

TEST_F(Reads, DefaultEntryThroughGetEntry) {
  pd_entry_hdl dflt = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_table_get_default_entry_handle(sess, tgt, &dflt));
  std::memset(&ms, 0xAB, sizeof ms);
  ASSERT_EQ(0u, read_l2(dflt));
  EXPECT_TRUE(is_default);
  EXPECT_EQ(0u, ms.egrMd_dmacOui);
  EXPECT_EQ(0u, ms.egrMd_egrL2Domain);
  EXPECT_STREQ("p4_pd_orbisk_switch_onMiss", name);
}

TEST_F(Reads, DetachedIndexReadsAsSentinel) {
  pd_action_record rec{};
  uint8_t data[4] = {1, 2, 3, 4};
  rec.data_bytes = data;
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t out{};
  unbuild_action_spec_setEgressMirrorColor(&rec, nullptr, 0, &out);
  EXPECT_EQ(0xFFFFu, out.action_meterIndex);
  const pd_resource_index other[] = {{0x05000002, 9}};
  unbuild_action_spec_setEgressMirrorColor(&rec, other, 1, &out);
  EXPECT_EQ(0u, out.action_meterIndex);
  const pd_resource_index mine[] = {{0x05000002, 9}, {0x05000003, 0x12345}};
  unbuild_action_spec_setEgressMirrorColor(&rec, mine, 2, &out);
  EXPECT_EQ(0x12345u, out.action_meterIndex);

  // Through the model: the Red action detaches the meter; a read of an entry
  // written with the index gives it back.
  p4_pd_orbisk_switch_egressMirrorRate_match_spec_t key{}, back{};
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t as{0x4321};
  pd_entry_hdl h;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColor(sess, tgt, &key, &as, &h));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_egressMirrorRate_get_entry(sess, 0, h, false, &back, nullptr, &spec, nullptr,
                                                                &is_default));
  EXPECT_EQ(0x4321u, spec.setEgressMirrorColor.action_meterIndex);
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

TEST_F(Reads, ResourceListIsMadeForSlotsAndFreed) {
  // No slot: no list at all.
  pd_entry_hdl h = add_l2(5);
  ASSERT_EQ(0u, read_l2(h));
  EXPECT_EQ(0u, orbisk_model_allocation_count());

  // A detached slot still makes a list, empty, and it is freed.
  p4_pd_orbisk_switch_egressMirrorRate_match_spec_t key{}, back{};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColorRed(sess, tgt, &key, &h));
  ASSERT_EQ(0u, p4_pd_orbisk_switch_egressMirrorRate_get_entry(sess, 0, h, false, &back, nullptr, &spec, nullptr,
                                                                &is_default));
  EXPECT_EQ(1u, orbisk_model_allocation_count());
  EXPECT_EQ(0u, orbisk_model_live_allocations());

  // A default read of a table with a counter frees its list on success and
  // keeps it when the action is unknown: a small loss accepted on that path.
  p4_pd_orbisk_switch_action_specs_t rec{};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(p4_pd_orbisk_switch_onMiss, rec.name);
  EXPECT_EQ(0u, orbisk_model_live_allocations());
  orbisk_model_quirk_next_read(-1, 0x2000ffff);
  EXPECT_EQ(15u, p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(1u, orbisk_model_live_allocations());
  EXPECT_EQ(3u, orbisk_model_allocation_count());
}

TEST_F(Reads, DriverFailureLeavesOutputsUntouched) {
  pd_entry_hdl h = add_l2(5);
  orbisk_model_fail("pipe_mgr_get_entry", 1, 0x777);
  ms.egrMd_dmacOui = 0x42;
  EXPECT_EQ(0x777u, read_l2(h));
  EXPECT_EQ(0x42u, ms.egrMd_dmacOui);
  EXPECT_STREQ("untouched", name);
  EXPECT_TRUE(is_default);
}

TEST_F(Reads, WrongRecordKindIsRefusedWithOneLogLine) {
  pd_entry_hdl h = add_l2(5);
  orbisk_model_quirk_next_read(2, -1);
  EXPECT_EQ(15u, read_l2(h));
  EXPECT_STREQ("untouched", name);
  EXPECT_EQ(P4_PD_ORBISK_SWITCH_ACTION_COUNT, action);
  ASSERT_EQ(1u, orbisk_model_log_count());
  EXPECT_EQ(0, std::strncmp(orbisk_model_log_at(0),
                            "ASSERTION FAILED: \"0\" (0) from p4_pd_orbisk_switch_l2Lookup_get_entry:", 70));
}

TEST_F(Reads, UnknownActionStillFillsTheKey) {
  pd_entry_hdl h = add_l2(0x99);
  orbisk_model_quirk_next_read(-1, 0x2000ffff);
  EXPECT_EQ(15u, read_l2(h));
  EXPECT_EQ(0x99u, ms.egrMd_dmacStation);
  EXPECT_FALSE(is_default);
  EXPECT_STREQ("untouched", name);
  ASSERT_EQ(1u, orbisk_model_log_count());
  EXPECT_EQ(0, std::strncmp(orbisk_model_log_at(0), "ASSERTION FAILED: \"((void *)0)\" (NULL) from p4_pd_orbisk_switch_l2Lookup_get_entry:", 83));
}

TEST_F(Reads, DefaultReadRefusesInSilence) {
  p4_pd_orbisk_switch_action_specs_t rec{};
  orbisk_model_quirk_next_read(2, -1);
  EXPECT_EQ(15u, p4_pd_orbisk_switch_l2Lookup_table_get_default_entry(sess, tgt, false, &rec));
  orbisk_model_quirk_next_read(-1, 0x2000ffff);
  EXPECT_EQ(15u, p4_pd_orbisk_switch_l2Lookup_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(0u, orbisk_model_log_count());
  // Reset forwards with no record and flags 0.
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_table_reset_default_entry(sess, tgt));
  Seen s = last("pipe_mgr_mat_tbl_default_entry_reset");
  EXPECT_EQ(0x0100002fu, s.args[2]);
  EXPECT_EQ(0u, s.args[3]);
  EXPECT_FALSE(s.has_action);
}

TEST_F(Reads, KeylessDefaultTakesNoSpec) {
  pd_entry_hdl h;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ingStpCheck_set_default_action_ingStpAction(sess, tgt, &h));
  Seen s = last("pipe_mgr_mat_default_entry_set");
  EXPECT_EQ(1, s.action.record_kind);
  EXPECT_EQ(0x0100000bu, s.args[2]);
  EXPECT_EQ(0x2000000du, s.args[3]);
  char name2[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX];
  ASSERT_EQ(0u, p4_pd_orbisk_switch_ingStpCheck_get_entry(sess, 0, h, false, name2, &spec, &action));
  EXPECT_STREQ("p4_pd_orbisk_switch_ingStpAction", name2);
}

TEST_F(Reads, WalkInHandleOrder) {
  pd_entry_hdl a = add_l2(1), b = add_l2(2), c = add_l2(3);
  pd_entry_hdl first = 0, next[3] = {};
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_get_first_entry_handle(sess, tgt, &first));
  EXPECT_EQ(a, first);
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_get_next_entry_handles(sess, tgt, first, 3, next));
  EXPECT_EQ(b, next[0]);
  EXPECT_EQ(c, next[1]);
  Seen s = last("pipe_mgr_get_next_entry_handles");
  EXPECT_EQ(0x0100002fu, s.args[1]);
  EXPECT_EQ(3u, s.args[4]);
  uint32_t n = 0;
  ASSERT_EQ(0u, p4_pd_orbisk_switch_l2Lookup_get_entry_count(sess, tgt, &n));
  EXPECT_EQ(3u, n);
  EXPECT_EQ(0u, last("pipe_mgr_get_entry_count").args[3]);
}

using ReadsDeathTest = Reads;

TEST_F(ReadsDeathTest, DebugModeEndsTheProcessOnABadRecord) {
  pd_entry_hdl h = add_l2(5);
  orbisk_model_set_dbg_mode(1);
  orbisk_model_quirk_next_read(2, -1);
  EXPECT_DEATH(read_l2(h), "src/pd:[0-9]+: p4_pd_orbisk_switch_l2Lookup_get_entry: Assertion `0' failed");
  orbisk_model_quirk_next_read(-1, 0x2000ffff);
  EXPECT_DEATH(read_l2(h), "l2Lookup_get_entry: Assertion `\\(\\(void \\*\\)0\\)' failed");
}

}  // namespace
