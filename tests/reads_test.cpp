// Reads, where the round trip cannot see: the driver call itself, keys it
// never writes (values above a field's width, cut masks, short prefixes), the
// list of resource slots and its sentinel, walks, and the library's answers
// to records it cannot use.
#include "test_support.h"

namespace {

// An action handle that no table of the program has.
constexpr int64_t kNoAction = 0x2000ffff;

class Reads : public OnModel {
 protected:
  pd_entry_hdl add_l2(uint32_t aintf) {
    p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
    ms.egrMd_dmacOui = 0x00AABB;
    ms.egrMd_dmacStation = aintf;
    ms.egrMd_egrL2Domain = 0x123;
    p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t as{aintf};
    pd_entry_hdl h = 0;
    EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(sess, tgt, &ms, &as, &h));
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

TEST_F(Reads, EntryIsAskedForAcrossAllPipesWithRoomForAnyAction) {
  ASSERT_EQ(BF_SUCCESS, read_l2(add_l2(0x54321)));
  Seen s = last("pipe_mgr_get_entry");
  EXPECT_EQ(table("l2Lookup").handle, s.args[1]);
  EXPECT_EQ(target_word(0, PD_DEV_PIPE_ALL), s.args[2] & 0xFFFFFFFFFFFFull);
  EXPECT_EQ(28, s.action.num_bytes);  // the longest action data of the program
  EXPECT_EQ(1u, s.args[8]);
  EXPECT_EQ(0u, s.args[9]);
}

TEST_F(Reads, TernaryValueAboveWidthAndCutMask) {
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t in{}, out{};
  in.vlanHdr_0__vlanId = 0xFABC;
  in.vlanHdr_0__vlanId_mask = 0xFFFF;
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DomainLookup_table_add_with_NoAction(sess, tgt, &in, 21, &h));
  uint32_t prio = 0;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DomainLookup_get_entry(sess, 0, h, false, &out, &prio, nullptr,
                                                                      &spec, nullptr, &is_default));
  EXPECT_EQ(0xFABC, out.vlanHdr_0__vlanId);
  EXPECT_EQ(0x0FFF, out.vlanHdr_0__vlanId_mask);
  EXPECT_EQ(21u, prio);
}

// The round trip writes whole prefixes only.
TEST_F(Reads, ShortPrefixLengthFromTheMask) {
  for (uint16_t written : {0, 1, 20, 31}) {
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t in{}, out{};
    in.l3Info_vrfId = uint8_t(written);
    in.ingIpv4_dip = 0x0A010203;
    in.ingIpv4_dip_prefix_length = written;
    pd_entry_hdl h;
    ASSERT_EQ(BF_SUCCESS,
              p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(sess, tgt, &in, &h));
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry(sess, 0, h, false, &out, nullptr, &spec,
                                                                          nullptr, &is_default));
    EXPECT_EQ(written, out.ingIpv4_dip_prefix_length);
  }
}

// A parameter that stands only in a resource slot: its index when the slot
// is attached, 0 when only another resource is, and 0xFFFF when none is.
TEST_F(Reads, SlotIndexAndItsSentinel) {
  pd_action_record rec{};
  uint8_t data[4] = {1, 2, 3, 4};
  rec.data_bytes = data;
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t out{};
  unbuild_action_spec_setEgressMirrorColor(&rec, nullptr, 0, &out);
  EXPECT_EQ(0xFFFFu, out.action_meterIndex);
  const uint32_t meter = resource("egressMirrorMeter"), other = resource("ingressMirrorMeter");
  const pd_resource_index others[] = {{other, 9}};
  unbuild_action_spec_setEgressMirrorColor(&rec, others, 1, &out);
  EXPECT_EQ(0u, out.action_meterIndex);
  const pd_resource_index both[] = {{other, 9}, {meter, 0x12345}};
  unbuild_action_spec_setEgressMirrorColor(&rec, both, 2, &out);
  EXPECT_EQ(0x12345u, out.action_meterIndex);

  // A slot the driver holds detached is left out of the list a read makes;
  // the list, empty, is still made and freed.
  p4_pd_orbisk_switch_egressMirrorRate_match_spec_t key{}, back{};
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t as{0x4321};
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColor(sess, tgt, &key, &as, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  s.action.data_bytes = s.data.data();
  s.action.resources[0].resource_tag = PD_RESOURCE_TAG_DETACHED;
  const auto &rate = table("egressMirrorRate");
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action(sess, 0, rate.handle, h, fn(rate, "setEgressMirrorColor"),
                                                    &s.action, 0));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_egressMirrorRate_get_entry(sess, 0, h, false, &back, nullptr, &spec,
                                                                        nullptr, &is_default));
  EXPECT_EQ(0xFFFFu, spec.setEgressMirrorColor.action_meterIndex);
  EXPECT_EQ(1u, orbisk_model_allocation_count());
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

TEST_F(Reads, ResourceListIsMadeOnlyForSlotsAndFreed) {
  ASSERT_EQ(BF_SUCCESS, read_l2(add_l2(5)));
  EXPECT_EQ(0u, orbisk_model_allocation_count());
  p4_pd_orbisk_switch_action_specs_t rec{};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(p4_pd_orbisk_switch_onMiss, rec.name);
  EXPECT_EQ(1u, orbisk_model_allocation_count());
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

TEST_F(Reads, DriverFailureLeavesOutputsUntouched) {
  pd_entry_hdl h = add_l2(5);
  constexpr pd_status kArmed = 0x777;
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_get_entry", 1, kArmed));
  ms.egrMd_dmacOui = 0x42;
  EXPECT_EQ(kArmed, read_l2(h));
  EXPECT_EQ(0x42u, ms.egrMd_dmacOui);
  EXPECT_STREQ("untouched", name);
  EXPECT_TRUE(is_default);
}

// A record of another kind, or naming an action the table does not have, is
// refused with one log line; the key is still filled in for the latter, and
// no action is ever named.
TEST_F(Reads, UnusableRecordIsRefusedWithOneLogLine) {
  const pd_entry_hdl h = add_l2(0x99);
  orbisk_model_quirk_next_read(PD_RECORD_KIND_MEMBER_REF, -1);
  EXPECT_EQ(PD_STATUS_UNEXPECTED_RECORD, read_l2(h));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"0\" (0) from p4_pd_orbisk_switch_l2Lookup_get_entry:"));
  EXPECT_EQ(0u, ms.egrMd_dmacStation);

  orbisk_model_clear_log();
  orbisk_model_quirk_next_read(-1, kNoAction);
  EXPECT_EQ(PD_STATUS_UNEXPECTED_RECORD, read_l2(h));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from p4_pd_orbisk_switch_l2Lookup_get_entry:"));
  EXPECT_EQ(0x99u, ms.egrMd_dmacStation);
  EXPECT_FALSE(is_default);
  EXPECT_STREQ("untouched", name);
  EXPECT_EQ(P4_PD_ORBISK_SWITCH_ACTION_COUNT, action);
}

// Unlike an entry read, a default read refuses without a log line; with an
// unknown action it keeps the list of its counter slot, a small loss
// accepted on that path.
TEST_F(Reads, DefaultReadRefusesInSilence) {
  p4_pd_orbisk_switch_action_specs_t rec{};
  orbisk_model_quirk_next_read(PD_RECORD_KIND_MEMBER_REF, -1);
  EXPECT_EQ(PD_STATUS_UNEXPECTED_RECORD, p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(0u, orbisk_model_allocation_count());
  orbisk_model_quirk_next_read(-1, kNoAction);
  EXPECT_EQ(PD_STATUS_UNEXPECTED_RECORD, p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(sess, tgt, false, &rec));
  EXPECT_EQ(1u, orbisk_model_live_allocations());
  EXPECT_EQ(0u, orbisk_model_log_count());
  // Reset forwards with no record and flags 0.
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_table_reset_default_entry(sess, tgt));
  Seen s = last("pipe_mgr_mat_tbl_default_entry_reset");
  EXPECT_EQ(table("l2Lookup").handle, s.args[2]);
  EXPECT_EQ(0u, s.args[3]);
  EXPECT_FALSE(s.has_action);
}

TEST_F(Reads, WalkInHandleOrder) {
  pd_entry_hdl a = add_l2(1), b = add_l2(2), c = add_l2(3);
  pd_entry_hdl first = 0, next[3] = {};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_get_first_entry_handle(sess, tgt, &first));
  EXPECT_EQ(a, first);
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_get_next_entry_handles(sess, tgt, first, 3, next));
  EXPECT_EQ(b, next[0]);
  EXPECT_EQ(c, next[1]);
  Seen s = last("pipe_mgr_get_next_entry_handles");
  EXPECT_EQ(table("l2Lookup").handle, s.args[1]);
  EXPECT_EQ(3u, s.args[4]);
  uint32_t n = 0;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_get_entry_count(sess, tgt, &n));
  EXPECT_EQ(3u, n);
  EXPECT_EQ(0u, last("pipe_mgr_get_entry_count").args[3]);
}

using ReadsDeathTest = Reads;

TEST_F(ReadsDeathTest, DebugModeEndsTheProcessOnABadRecord) {
  pd_entry_hdl h = add_l2(5);
  orbisk_model_set_dbg_mode(1);
  orbisk_model_quirk_next_read(PD_RECORD_KIND_MEMBER_REF, -1);
  EXPECT_DEATH(read_l2(h), "src/pd:[0-9]+: p4_pd_orbisk_switch_l2Lookup_get_entry: Assertion `0' failed");
  orbisk_model_quirk_next_read(-1, kNoAction);
  EXPECT_DEATH(read_l2(h), "l2Lookup_get_entry: Assertion `\\(\\(void \\*\\)0\\)' failed");
}

}  // namespace
