// Byte-exact records: keys of every match class, action data, resource slots
// and the argument order of the write calls.
#include "test_support.h"

// The driver's numbers for slot tags and record kinds, pinned once: the tests
// below name them.
static_assert(PD_RESOURCE_TAG_NONE == 0 && PD_RESOURCE_TAG_ATTACHED == 1 && PD_RESOURCE_TAG_DETACHED == 2);
static_assert(PD_RECORD_KIND_DIRECT == 1);

namespace {

Bytes B(std::initializer_list<int> v) { return Bytes(v.begin(), v.end()); }

class Keys : public OnModel {};

TEST_F(Keys, ExactTableMasksEveryByte) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
  ms.egrMd_dmacOui = 0x00AABB;
  ms.egrMd_dmacStation = 0xCCDDEE;
  ms.egrMd_egrL2Domain = 0x123;
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_table_add_with_onMiss(sess, tgt, &ms, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0x00, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0x01, 0x23}), s.value);
  EXPECT_EQ(Bytes(8, 0xFF), s.mask);
  EXPECT_EQ(0u, s.key.priority);
  EXPECT_EQ(0u, s.key.partition_index);
  EXPECT_EQ(0x0008003Cu, word_at(s.key, 24));
  EXPECT_EQ(0u, word_at(s.key, 28));

  // No clipping: bits of a 12-bit field above its width stay in the top byte,
  // for the driver to refuse.
  ms.egrMd_egrL2Domain = 0xFABC;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_orbisk_switch_l2Lookup_table_add_with_onMiss(sess, tgt, &ms, &h));
  s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(0xFA, s.value[6]);
  EXPECT_EQ(0xBC, s.value[7]);
  EXPECT_EQ(Bytes(8, 0xFF), s.mask);
}

TEST_F(Keys, TernaryMasksCutToWidthAndValueAnded) {
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t ms{};
  ms.phase0_switchPort = 1;
  ms.phase0_ingVPort = 0x1234;
  ms.vlanHdr_0__valid = 1;
  ms.vlanHdr_0__vlanId = 0xFABC;
  ms.vlanHdr_0__vlanId_mask = 0xFF0F;
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DomainLookup_table_add_with_NoAction(sess, tgt, &ms, 9, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0x01, 0x12, 0x34, 0x01, 0xFA, 0x0C}), s.value);
  EXPECT_EQ(B({0x01, 0x3F, 0xFF, 0x01, 0x0F, 0x0F}), s.mask);
  EXPECT_EQ(9u, s.key.priority);

  // A zero mask zeroes the value; a 1-bit exact field keeps its high bits in
  // the value and gets a one-bit mask.
  ms.phase0_switchPort = 0xFF;
  ms.vlanHdr_0__vlanId_mask = 0;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DomainLookup_table_add_with_NoAction(sess, tgt, &ms, 4, &h));
  s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0xFF, 0x12, 0x34, 0x01, 0x00, 0x00}), s.value);
  EXPECT_EQ(B({0x01, 0x3F, 0xFF, 0x01, 0x00, 0x00}), s.mask);
  EXPECT_EQ(4u, s.key.priority);
}

struct PrefixCase {
  uint16_t prefix;
  Bytes value, mask;
  uint32_t priority;
  pd_status driver_answer;
};

TEST_F(Keys, PrefixLengthBecomesMaskAndPriority) {
  const PrefixCase cases[] = {
      {20, B({0x05, 0x0A, 0x01, 0x00, 0x00}), B({0xFF, 0xFF, 0xFF, 0xF0, 0x00}), 12, ORBISK_MODEL_NO_SUCH_ENTRY},
      {0, B({0x05, 0x00, 0x00, 0x00, 0x00}), B({0xFF, 0x00, 0x00, 0x00, 0x00}), 32, ORBISK_MODEL_NO_SUCH_ENTRY},
      {32, B({0x05, 0x0A, 0x01, 0x02, 0x03}), Bytes(5, 0xFF), 0, ORBISK_MODEL_NO_SUCH_ENTRY},
      // Too long: all ones, the value untouched, and key bits + 1, which the
      // driver refuses.
      {33, B({0x05, 0x0A, 0x01, 0x02, 0x03}), Bytes(5, 0xFF), 41, ORBISK_MODEL_BAD_RECORD},
  };
  for (const PrefixCase &c : cases) {
    SCOPED_TRACE(c.prefix);
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t ms{};
    ms.l3Info_vrfId = 5;
    ms.ingIpv4_dip = 0x0A010203;
    ms.ingIpv4_dip_prefix_length = c.prefix;
    EXPECT_EQ(c.driver_answer,
              p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_delete_by_match_spec(sess, tgt, &ms));
    Seen s = last("pipe_mgr_mat_ent_del_by_match_spec");
    EXPECT_EQ(c.value, s.value);
    EXPECT_EQ(c.mask, s.mask);
    EXPECT_EQ(c.priority, s.key.priority);
  }
}

TEST_F(Keys, PartitionGoesBesideTheStrings) {
  p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t ms{};
  ms.fibV4ResultX_partIdx = 7;
  ms.ingIpv4_dip = 0x0A010203;
  ms.ingIpv4_dip_prefix_length = 24;
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setDefaultVrf(sess, tgt, &ms, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0x00, 0x00, 0x0A, 0x01, 0x02, 0x00}), s.value);
  EXPECT_EQ(B({0x00, 0x00, 0xFF, 0xFF, 0xFF, 0x00}), s.mask);
  EXPECT_EQ(8u, s.key.priority);
  EXPECT_EQ(7u, s.key.partition_index);

  // Only a too-long prefix leaves the partition's mask bytes set.
  ms.ingIpv4_dip_prefix_length = 40;
  p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_to_entry_hdl(sess, tgt, &ms, &h);
  s = last("pipe_mgr_match_spec_to_ent_hdl");
  EXPECT_EQ(Bytes(6, 0xFF), s.mask);
  EXPECT_EQ(49u, s.key.priority);
}

class Actions : public OnModel {};

TEST_F(Actions, ParametersPackMostSignificantFirst) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
  p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t as{0x00012345};
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(sess, tgt, &ms, &as, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0x01, 0x23, 0x45}), s.data);
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, s.action.record_kind);
  EXPECT_EQ(0x00030014u, word_at(s.action, 8));
  EXPECT_EQ(0, s.action.resource_count);

  // No parameter: empty data, still pointed at.
  ms.egrMd_dmacOui = 1;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2Lookup_table_add_with_onMiss(sess, tgt, &ms, &h));
  s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(0u, word_at(s.action, 8));
  EXPECT_NE(0u, qword_at(s.action, 16));
  EXPECT_EQ(PD_RECORD_KIND_DIRECT, s.action.record_kind);

  // A 1-bit parameter is not clipped; the driver refuses it.
  p4_pd_orbisk_switch_vlanProperties_match_spec_t vp{};
  p4_pd_orbisk_switch_setVlanProperties_action_spec_t flags{0xFF, 0, 1};
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            p4_pd_orbisk_switch_vlanProperties_table_add_with_setVlanProperties(sess, tgt, &vp, &flags, &h));
  EXPECT_EQ(B({0xFF, 0x00, 0x01}), last("pipe_mgr_mat_ent_add").data);
}

TEST_F(Actions, DirectCounterSlotOnEveryAction) {
  p4_pd_orbisk_switch_l2DmacClassify_match_spec_t ms{};
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setUcast(sess, tgt, &ms, 1, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(1, s.action.resource_count);
  EXPECT_EQ(resource("l2DmacClassifyCount"), s.action.resources[0].resource_hdl);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, s.action.resources[0].resource_tag);
  EXPECT_EQ(Bytes(56, 0), Bytes(s.action.resources[0].resource_spec.bytes,
                                s.action.resources[0].resource_spec.bytes + 56));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2DmacClassify_set_default_action_onMiss(sess, tgt, &h));
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, last("pipe_mgr_mat_default_entry_set").action.resources[0].resource_tag);
}

// A modify sends all 32 bits of the index: the round trip reads them back.
TEST_F(Actions, IndexInSlotKeepsSixteenBitsOnAdd) {
  p4_pd_orbisk_switch_egressMirrorRate_match_spec_t ms{};
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t as{0x00012345};
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColor(sess, tgt, &ms, &as, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(Bytes(4, 0), s.data);
  EXPECT_EQ(resource("egressMirrorMeter"), s.action.resources[0].resource_hdl);
  EXPECT_EQ(0x2345u, s.action.resources[0].resource_index);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, s.action.resources[0].resource_tag);

  // The table's other action detaches the meter.
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_egressMirrorRate_table_modify_with_setEgressMirrorColorRed(sess, 0, h));
  s = last("pipe_mgr_mat_ent_set_action");
  EXPECT_EQ(PD_RESOURCE_TAG_DETACHED, s.action.resources[0].resource_tag);
  EXPECT_EQ(0u, s.action.resources[0].resource_index);

  // A parameter that is both data and index.
  p4_pd_orbisk_switch_pdpClassify_match_spec_t pm{};
  p4_pd_orbisk_switch_meterPdpClass_action_spec_t pc{0x00012345};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_pdpClassify_table_add_with_meterPdpClass(sess, tgt, &pm, 1, &pc, &h));
  s = last("pipe_mgr_mat_ent_add");
  EXPECT_EQ(B({0x00, 0x01, 0x23, 0x45}), s.data);
  EXPECT_EQ(resource("pdpMeter"), s.action.resources[0].resource_hdl);
  EXPECT_EQ(0x2345u, s.action.resources[0].resource_index);
}

TEST_F(Actions, DirectMeterSpecAndItsThreeAnswersToNull) {
  p4_pd_orbisk_switch_l2LookupMiss_match_spec_t ms{};
  pd_meter_spec m{1000, 200, 0x80000001u, 400, PD_METER_TYPE_COLOR_UNAWARE};
  pd_entry_hdl h;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LookupMiss_table_add_with_NoAction(sess, tgt, &ms, 1, &m, &h));
  const pd_resource_record &r = last("pipe_mgr_mat_ent_add").action.resources[0];
  const uint32_t storm = resource("stormControlMeter");
  EXPECT_EQ(storm, r.resource_hdl);
  EXPECT_EQ(PD_RESOURCE_TAG_ATTACHED, r.resource_tag);
  EXPECT_EQ(1u, word_at(r, 8));
  EXPECT_EQ(0u, word_at(r, 16));
  EXPECT_EQ(1000u, qword_at(r, 24));
  EXPECT_EQ(200u, qword_at(r, 32));
  EXPECT_EQ(0u, word_at(r, 40));
  EXPECT_EQ(0x80000001u, qword_at(r, 48));
  EXPECT_EQ(400u, qword_at(r, 56));

  // A bad meter type is logged and taken as colour-aware.
  m.meter_type = 5;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_NoAction(sess, 0, h, &m));
  EXPECT_EQ(PD_METER_TYPE_COLOR_AWARE, last("pipe_mgr_mat_ent_set_action").action.resources[0].resource_spec.meter.meter_type);
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"0\" (0) from get_bytes_meter_type:"));

  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_NoAction(sess, 0, h, nullptr));
  Seen s = last("pipe_mgr_mat_ent_set_action");
  EXPECT_EQ(1, s.action.resource_count);
  EXPECT_EQ(storm, s.action.resources[0].resource_hdl);
  EXPECT_EQ(PD_RESOURCE_TAG_NONE, s.action.resources[0].resource_tag);
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_NoAction_by_match_spec(sess, tgt, &ms, 1, nullptr));
  EXPECT_EQ(PD_RESOURCE_TAG_NONE, last("pipe_mgr_mat_ent_set_action_by_match_spec").action.resources[0].resource_tag);
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LookupMiss_set_default_action_NoAction(sess, tgt, nullptr, &h));
  s = last("pipe_mgr_mat_default_entry_set");
  EXPECT_EQ(PD_RESOURCE_TAG_DETACHED, s.action.resources[0].resource_tag);
  EXPECT_EQ(0u, s.action.resources[0].resource_spec.meter.cir);
}

using ActionsDeathTest = Actions;

TEST_F(ActionsDeathTest, AddWithoutMeterSpecEndsTheProcess) {
  p4_pd_orbisk_switch_l2LookupMiss_match_spec_t ms{};
  pd_entry_hdl h;
  EXPECT_DEATH(p4_pd_orbisk_switch_l2LookupMiss_table_add_with_NoAction(sess, tgt, &ms, 1, nullptr, &h),
               "stormControlMeter_spec && \"direct resource has no spec\"");
}

class Calls : public OnModel {};

TEST_F(Calls, WriteArgumentsStandInTheDriversOrder) {
  const pd_tbl_hdl learning = table("l2LearningLookup").handle;
  const pd_act_fn_hdl no_op = fn(table("l2LearningLookup"), "noOp");
  p4_pd_orbisk_switch_l2LearningLookup_match_spec_t ms{};
  pd_entry_hdl h = 0;
  pd_dev_target t{2, 1};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_table_add_with_noOp(sess, t, &ms, 1234, &h));
  Seen s = last("pipe_mgr_mat_ent_add");
  ASSERT_EQ(9u, s.args.size());
  EXPECT_EQ(sess, s.args[0]);
  EXPECT_EQ(target_word(2, 1), s.args[1] & 0xFFFFFFFFFFFFull);
  EXPECT_EQ(learning, s.args[2]);
  EXPECT_EQ(no_op, s.args[4]);
  EXPECT_EQ(1234u, s.args[6]);  // the idle time of a learned address
  EXPECT_EQ(0u, s.args[7]);
  EXPECT_EQ(uint64_t(reinterpret_cast<uintptr_t>(&h)), s.args[8]);

  // Every other add passes no idle time.
  ms.ingMd_smacOui = 1;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_table_add_with_setL2LearningLookupMiss(sess, t, &ms, 99, &h));
  EXPECT_EQ(99u, last("pipe_mgr_mat_ent_add").args[6]);
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t lpm{};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(sess, t, &lpm, &h));
  EXPECT_EQ(0u, last("pipe_mgr_mat_ent_add").args[6]);

  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_table_modify_with_noOp(sess, 2, h));
  s = last("pipe_mgr_mat_ent_set_action");
  EXPECT_EQ((std::vector<uint64_t>{sess, 2, learning, h, no_op}),
            std::vector<uint64_t>(s.args.begin(), s.args.begin() + 5));
  EXPECT_EQ(0u, s.args[6]);

  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_l2LearningLookup_table_delete(sess, 2, h));
  s = last("pipe_mgr_mat_ent_del");
  EXPECT_EQ((std::vector<uint64_t>{sess, 2, learning, h, 0}), s.args);
  EXPECT_FALSE(s.has_key);
  EXPECT_FALSE(s.has_action);
}

// The model's own answers (entry exists, table full) are its tests'; here,
// that whatever the driver answers comes back as it is, and a failed add
// leaves nothing behind.
TEST_F(Calls, DriverStatusComesBackUnchanged) {
  constexpr pd_status kArmed = 0x1234;
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms{};
  pd_entry_hdl h = 77;
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_add", 1, kArmed));
  EXPECT_EQ(kArmed, p4_pd_orbisk_switch_l2Lookup_table_add_with_onMiss(sess, tgt, &ms, &h));
  EXPECT_EQ(0u, orbisk_model_entry_count(0, table("l2Lookup").handle));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, p4_pd_orbisk_switch_l2Lookup_table_modify_with_onMiss(sess, 0, 4242));
}

}  // namespace
