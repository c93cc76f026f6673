/* Control-plane interface of the compiled program orbisk_switch (NAT and
 * VXLAN form): one function for each table, for each table and action, or
 * for each resource.
 *
 * Generated from catalogue/ by tools/pdgen. Do not edit by hand: change the
 * catalogue, rebuild, and copy build/generated/include/orbisk_switch/pd.h
 * over this file (a test fails while the two differ).
 *
 * Conventions shared by every function below:
 *  - The result is the driver's status, unchanged (0 is BF_SUCCESS), except
 *    where a comment names a status the library makes itself.
 *  - Host records are host byte order. A key or parameter field is as wide as
 *    the smallest of 8, 16 or 32 bits that holds it; 128-bit addresses are
 *    byte arrays in network order. Bits above a field's width are passed on,
 *    not clipped.
 *  - A ternary key field has a partner <field>_mask; a prefix field has a
 *    partner <field>_prefix_length. Ternary tables take an entry priority.
 *  - Every record and string lives on the caller's stack for one call; the
 *    driver copies what it keeps. Nothing is allocated on a write.
 *
 * Families, for <t> a table, <r> an action profile and <a> an action of
 * either:
 *  <t>_table_add_with_<a>(sess, target, match spec, [priority], [action
 *      spec], [meter spec], [ttl], out entry handle): adds an entry. A NULL
 *      meter spec ends the process; the index of a counter or meter cell goes
 *      to the driver as its low 16 bits.
 *  <t>_add_entry(sess, target, match spec, [priority], member handle, out
 *      entry handle): adds an entry that names a member.
 *  <t>_add_entry_with_selector(sess, target, match spec, [priority], group
 *      handle, out entry handle): adds an entry that names a group, written
 *      with the group's action of the moment.
 *  <t>_table_modify_with_<a>(sess, device id, entry handle, [action spec],
 *      [meter spec]): replaces an entry's action and its data. A cell index
 *      goes whole; a NULL meter spec sends the meter's slot untagged.
 *  <t>_modify_entry(sess, device id, entry handle, member handle): points an
 *      entry at a member, whatever it named before.
 *  <t>_table_modify_with_<a>_by_match_spec(sess, target, match spec,
 *      [priority], [action spec], [meter spec]): the same for the entry with
 *      this key.
 *  <t>_modify_entry_with_selector(sess, device id, entry handle, group
 *      handle): points it at a group.
 *  <t>_modify_entry_by_match_spec(sess, target, match spec, [priority],
 *      member handle): the same by key, at a member.
 *  <t>_modify_entry_with_selector_by_match_spec(sess, target, match spec,
 *      [priority], group handle): the same by key, at a group.
 *  <t>_set_default_entry(sess, target, member handle, out entry handle): the
 *      default entry names a member.
 *  <t>_table_delete(sess, device id, entry handle): deletes an entry.
 *  <t>_set_default_entry_with_selector(sess, target, group handle, out entry
 *      handle): the default entry names a group.
 *  <t>_table_delete_by_match_spec(sess, target, match spec, [priority]):
 *      deletes the entry with this key.
 *  <t>_match_spec_to_entry_hdl(sess, target, match spec, [priority], out):
 *      finds the handle of the entry with this key.
 *  <t>_get_entry(sess, device id, entry handle, read from hardware, [out
 *      match spec], [out priority], out has-member, out has-group, out group
 *      handle, out member handle, out is-default): reads an entry back across
 *      all pipes: which member or group it names (flags member first, handles
 *      group first); neither flag for anything else.
 *  <t>_get_entry(sess, device id, entry handle, read from hardware, [out
 *      match spec], [out priority], out action name or NULL, out action spec,
 *      out action enum or NULL, [out is-default]): reads an entry back across
 *      all pipes. Status 15 when the driver returns a record the table cannot
 *      hold.
 *  <t>_get_entry_count(sess, target, out count): counts a table's entries.
 *  <t>_get_first_entry_handle(sess, target, out entry handle): starts a walk
 *      of a table.
 *  <t>_get_next_entry_handles(sess, target, entry handle, n, out handles):
 *      goes on with a walk: up to n handles after this one.
 *  <t>_set_default_action_<a>(sess, target, [action spec], [meter spec], out
 *      entry handle): sets the action taken on a miss. A NULL meter spec
 *      detaches the meter.
 *  <t>_table_get_default_entry(sess, target, read from hardware, out action):
 *      reads it back. Status 15 for a record the table cannot hold.
 *  <t>_table_get_default_entry_handle(sess, target, out entry handle): the
 *      default entry's handle.
 *  <t>_table_reset_default_entry(sess, target): puts back the default the
 *      table starts with.
 *  <t>_idle_tmo_enable(sess, device id, params): sets the table's idle
 *      parameters and turns ageing on; a refused parameter set leaves it off.
 *  <t>_idle_tmo_disable(sess, device id): turns ageing off.
 *  <t>_idle_params_get(sess, device id, out params): reads the idle
 *      parameters back: all of them in notify mode, else the mode alone;
 *      untouched on failure.
 *  <t>_idle_register_tmo_cb(sess, device id, timeout callback, cookie): the
 *      callback told of each entry that stays idle for its TTL.
 *  <t>_set_ttl(sess, device id, entry handle, ttl): sets an entry's TTL.
 *  <t>_get_ttl(sess, device id, entry handle, out ttl): reads an entry's TTL.
 *  <t>_reset_ttl(sess, device id, entry handle): starts an entry's idle time
 *      again.
 *  <t>_update_hit_state(sess, device id, update callback, cookie): brings the
 *      hit state of the table's entries up to date, then calls the callback.
 *  <t>_get_hit_state(sess, device id, entry handle, out hit state): reads an
 *      entry's hit state. The out place is written even when the driver
 *      fails: look at the status first.
 *  <t>_set_property(sess, device id, property, value, second value): sets a
 *      driver property of the table.
 *  <t>_get_property(sess, device id, property, out value, out second value):
 *      reads one back; on failure both out places are 0xFFFFFFFF.
 *  <t>_get_mat_table_handle(out table handle or NULL): stores the table's
 *      handle unless the pointer is NULL; returns 0.
 *  <t>_register_mat_update_cb(sess, device id, update callback, cookie): the
 *      callback told of every entry added, changed or deleted.
 *  unbuild_key_<t>(key record, out match spec): a key record's values into a
 *      match spec.
 *  unbuild_mask_<t>(key record, out match spec): its masks or prefix length
 *      into the same match spec.
 *  <r>_add_member_with_<a>(sess, target, [action spec], out member handle):
 *      adds a member running the action; the member-selection state learns it
 *      only when the driver accepted it.
 *  <r>_modify_member_with_<a>(sess, device id, member handle, [action spec]):
 *      new data for a member of this action; 0xFFFFFFFF, driver untouched,
 *      for a member of another action.
 *  <r>_del_member(sess, device id, member handle): deletes a member; the
 *      state forgets it only when the driver did.
 *  <r>_get_member(sess, device id, member handle, read from hardware, out
 *      action spec): reads a member back, its action by enum; the parameters
 *      of an action without any are left as they were. Status 15 for an
 *      action the profile does not have.
 *  <r>_get_first_member(sess, target, out member handle): the first member's
 *      handle.
 *  <r>_get_next_members(sess, target, member handle, count, out member
 *      handles): the handles of up to count members after this one.
 *  <r>_get_act_prof_entry_count(sess, target, out count): the number of
 *      members.
 *  <r>_get_adt_table_handle(out table handle): the action data table's
 *      handle, where the pointer is not NULL; always 0.
 *  <r>_register_adt_update_cb(sess, device id, update callback, cookie): the
 *      callback told of each member added, changed or deleted.
 *  <r>_create_group(sess, target, maximum group size, out group handle):
 *      makes an empty group of at most max_grp_size members; it runs no
 *      action until its first member comes.
 *  <r>_del_group(sess, device id, group handle): deletes a group: its members
 *      are read first, for the state to unhook them. 2 when out of memory;
 *      after the driver deleted it, the state's status.
 *  <r>_add_member_to_group(sess, device id, group handle, member handle):
 *      adds a member; the group runs the action of the member added last. A
 *      member the state does not know never reaches the driver.
 *  <r>_del_member_from_group(sess, device id, group handle, member handle):
 *      removes a member; the group's action stays.
 *  <r>_group_member_state_set(sess, device id, group handle, member handle,
 *      member state): turns a member on (P4_PD_GRP_MBR_STATE_ACTIVE) or off
 *      (_INACTIVE) in a group; any other state ends the process.
 *  <r>_group_member_state_get(sess, device id, group handle, member handle,
 *      out member state): reads it; a state the library does not know is not
 *      written.
 *  <r>_group_member_get_from_hash(sess, device id, group handle, hash bytes,
 *      hash length, out member handle): the member the hash picks in a group.
 *  <r>_set_dynamic_action_selection_fallback_member(sess, device id, member
 *      handle): the member used where a group has none active, for the whole
 *      selector table.
 *  <r>_reset_dynamic_action_selection_fallback_member(sess, device id): no
 *      fallback member.
 *  <r>_get_first_group(sess, target, out group handle): the first group's
 *      handle.
 *  <r>_get_next_groups(sess, target, group handle, count, out group handles):
 *      the handles of up to count groups after this one.
 *  <r>_get_first_group_member(sess, device id, group handle, out member
 *      handle): a group's first member.
 *  <r>_get_next_group_members(sess, device id, group handle, member handle,
 *      count, out member handles): up to count members of the group after
 *      this one.
 *  <r>_get_selector_group_count(sess, target, out count): the number of
 *      groups.
 *  <r>_get_selector_group_member_count(sess, device id, group handle, out
 *      count): the number of a group's members.
 *  <r>_get_word_llp_active_member_count(sess, device id, word number, out
 *      count): the number of members active in one word of the selector
 *      table, as the driver's low-level view has them.
 *  <r>_get_word_llp_active_members(sess, device id, word number, count, out
 *      member handles): up to count of those members.
 *  <r>_get_sel_table_handle(out table handle): the selector table's handle,
 *      where the pointer is not NULL; always 0.
 *  <r>_register_callback(sess, device id, member state callback, cookie): the
 *      callback told of each member turned on or off.
 *  <r>_sel_track_updates(device id, member state callback, cookie): the same,
 *      without a session.
 *  <r>_register_sel_update_cb(sess, device id, update callback, cookie): the
 *      callback told of each group made or deleted and each member added or
 *      removed.
 *  unbuild_action_spec_<a>(action record, [resources], [count], out action
 *      spec): an action record's data into an action spec.
 */
#ifndef ORBISK_SWITCH_PD_H
#define ORBISK_SWITCH_PD_H

#include <stdbool.h>

#include "orbisk_switch/pd_records.h"
#include "orbisk_switch/pd_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Client handle given by the driver at init; read only. */
extern uint32_t bf_drv_hdl;

/* Actions of the program, one value per action name, whichever table
 * uses it. P4_PD_ORBISK_SWITCH_ACTION_COUNT stands for no action. */
typedef enum p4_pd_orbisk_switch_action_names {
  p4_pd_orbisk_switch_setPhase0 = 0,
  p4_pd_orbisk_switch_NoAction = 1,
  p4_pd_orbisk_switch_hashComputeInnerIpv4HdrAction = 2,
  p4_pd_orbisk_switch_hashComputeInnerIpv6HdrAction = 3,
  p4_pd_orbisk_switch_setTunnelTerminationTypeNoneIpv4AndL2 = 4,
  p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan = 5,
  p4_pd_orbisk_switch_setTunnelTerminationTypeNoneIpv6 = 6,
  p4_pd_orbisk_switch_setL2DomainUntagged = 7,
  p4_pd_orbisk_switch_setL2DomainVlanXlate = 8,
  p4_pd_orbisk_switch_setL2DomainTagged = 9,
  p4_pd_orbisk_switch_onMiss = 10,
  p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt = 11,
  p4_pd_orbisk_switch_setVrfPropertiesTaggedPktDefault = 12,
  p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt = 13,
  p4_pd_orbisk_switch_setVrfPropertiesUntaggedPktDefault = 14,
  p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt = 15,
  p4_pd_orbisk_switch_setVxlanL2AintfLookupFields = 16,
  p4_pd_orbisk_switch_setVxlanL2AintfInvalidTunnel = 17,
  p4_pd_orbisk_switch_setvxlanL2AintfLookupMissVtepLearn = 18,
  p4_pd_orbisk_switch_setvxlanL2AintfLookupMissSkipVtepLearn = 19,
  p4_pd_orbisk_switch_vxlanVniResolutionHit = 20,
  p4_pd_orbisk_switch_vxlanVniResolutionMiss = 21,
  p4_pd_orbisk_switch_setUcast = 22,
  p4_pd_orbisk_switch_setL2ControlFrame = 23,
  p4_pd_orbisk_switch_setIllegalDmac = 24,
  p4_pd_orbisk_switch_setMcast = 25,
  p4_pd_orbisk_switch_setBcast = 26,
  p4_pd_orbisk_switch_setIpMcast = 27,
  p4_pd_orbisk_switch_classifyL2ControlFrame = 28,
  p4_pd_orbisk_switch_ingStpAction = 29,
  p4_pd_orbisk_switch_ingVlanAction = 30,
  p4_pd_orbisk_switch_setIllegalSmac = 31,
  p4_pd_orbisk_switch_setQosPortProperties = 32,
  p4_pd_orbisk_switch_setQosRewriteConfiguration = 33,
  p4_pd_orbisk_switch_setDrop = 34,
  p4_pd_orbisk_switch_setDropSmac = 35,
  p4_pd_orbisk_switch_setL2LearningLookupMiss = 36,
  p4_pd_orbisk_switch_noOp = 37,
  p4_pd_orbisk_switch_ignoreIngL3DmacValid = 38,
  p4_pd_orbisk_switch_setIngL3DmacValid = 39,
  p4_pd_orbisk_switch_setHaloCrlId2 = 40,
  p4_pd_orbisk_switch_setHaloCrlId = 41,
  p4_pd_orbisk_switch_l2ForwardParamsSet = 42,
  p4_pd_orbisk_switch_setVlanProperties = 43,
  p4_pd_orbisk_switch_setHaloXformDip = 44,
  p4_pd_orbisk_switch_setHaloInvalidDip = 45,
  p4_pd_orbisk_switch_setHaloXformIpv4Sip = 46,
  p4_pd_orbisk_switch_setHaloInvalidSip = 47,
  p4_pd_orbisk_switch_setHaloIpv4Common = 48,
  p4_pd_orbisk_switch_setHaloXformIpv6Sip = 49,
  p4_pd_orbisk_switch_setHaloIpv6Common = 50,
  p4_pd_orbisk_switch_setHaloXformDstPort = 51,
  p4_pd_orbisk_switch_setHaloXformSrcPort = 52,
  p4_pd_orbisk_switch_setFullConeDipRangeId = 53,
  p4_pd_orbisk_switch_setIngNatProfile = 54,
  p4_pd_orbisk_switch_setEcmp = 55,
  p4_pd_orbisk_switch_setNextHop = 56,
  p4_pd_orbisk_switch_setNextHop2 = 57,
  p4_pd_orbisk_switch_setNextHop3 = 58,
  p4_pd_orbisk_switch_setIpv6PrtResultXFirst = 59,
  p4_pd_orbisk_switch_setTranslatedDipNextHop = 60,
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic = 61,
  p4_pd_orbisk_switch_setTranslatedDipPort = 62,
  p4_pd_orbisk_switch_setDnatAclId = 63,
  p4_pd_orbisk_switch_resetDnatAclId = 64,
  p4_pd_orbisk_switch_countEgressQueue = 65,
  p4_pd_orbisk_switch_setTunnelDip = 66,
  p4_pd_orbisk_switch_setEgressMirrorSession = 67,
  p4_pd_orbisk_switch_setVxlanVniAndVti = 68,
  p4_pd_orbisk_switch_setInvalidVni = 69,
  p4_pd_orbisk_switch_setL2DomainReplicated = 70,
  p4_pd_orbisk_switch_egressMirrorDrop = 71,
  p4_pd_orbisk_switch_setMirrorPacketEncapNone = 72,
  p4_pd_orbisk_switch_setMirrorPacketEncapCpu = 73,
  p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4 = 74,
  p4_pd_orbisk_switch_setTcDscp = 75,
  p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount = 76,
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount = 77,
  p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount = 78,
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount = 79,
  p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp = 80,
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2 = 81,
  p4_pd_orbisk_switch_setDscpForNonIpPkt = 82,
  p4_pd_orbisk_switch_setDscpForTTNonIpPkt = 83,
  p4_pd_orbisk_switch_setDscpForIpv4Pkt = 84,
  p4_pd_orbisk_switch_setDscpForIpv4OptionsPkt = 85,
  p4_pd_orbisk_switch_setDscpForIpv6Pkt = 86,
  p4_pd_orbisk_switch_setInvalidEgressPort = 87,
  p4_pd_orbisk_switch_setEgressPort = 88,
  p4_pd_orbisk_switch_setDecapTypeVlan = 89,
  p4_pd_orbisk_switch_removeOrbiskHdrs = 90,
  p4_pd_orbisk_switch_setEifIngPolicy = 91,
  p4_pd_orbisk_switch_ipv6LgMaskFinalResolveDefaultFirst = 92,
  p4_pd_orbisk_switch_setV6NextHop0First = 93,
  p4_pd_orbisk_switch_setV6NextHop2First = 94,
  p4_pd_orbisk_switch_setV6NextHop3First = 95,
  p4_pd_orbisk_switch_setV6NextHop1First = 96,
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop = 97,
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2 = 98,
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3 = 99,
  p4_pd_orbisk_switch_setIpv6PrtIdxEcmp = 100,
  p4_pd_orbisk_switch_setFibMiss = 101,
  p4_pd_orbisk_switch_setEgrLagMemberSelector = 102,
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon = 103,
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4 = 104,
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB = 105,
  p4_pd_orbisk_switch_setTunnelL2InfoDefault = 106,
  p4_pd_orbisk_switch_setTunnelL2Info = 107,
  p4_pd_orbisk_switch_l2LookupKnownUcast = 108,
  p4_pd_orbisk_switch_l2LookupKnownMcast = 109,
  p4_pd_orbisk_switch_l2LookupKnownUcastTunnel = 110,
  p4_pd_orbisk_switch_l2LookupDrop = 111,
  p4_pd_orbisk_switch_l2LookupBcastHit = 112,
  p4_pd_orbisk_switch_l2LookupUnknownMcastAction = 113,
  p4_pd_orbisk_switch_l2LookupUnknownUcastAction = 114,
  p4_pd_orbisk_switch_nop = 115,
  p4_pd_orbisk_switch_haloSetBestResultRow1 = 116,
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3 = 117,
  p4_pd_orbisk_switch_setDropVarpVxlan = 118,
  p4_pd_orbisk_switch_cancelVxlanDecap = 119,
  p4_pd_orbisk_switch_setCosFromDefault = 120,
  p4_pd_orbisk_switch_setCosFromPacket = 121,
  p4_pd_orbisk_switch_setCosFromPacketWithInner = 122,
  p4_pd_orbisk_switch_hashComputeOuterIpv4HdrAction = 123,
  p4_pd_orbisk_switch_hashComputeOuterIpv6HdrAction = 124,
  p4_pd_orbisk_switch_hashComputeInnerEthHdrAction = 125,
  p4_pd_orbisk_switch_dropDatalink = 126,
  p4_pd_orbisk_switch_setIngressMirrorSession = 127,
  p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4 = 128,
  p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6 = 129,
  p4_pd_orbisk_switch_noDecapNoEncapBridge = 130,
  p4_pd_orbisk_switch_decapPPIPktFromCpu = 131,
  p4_pd_orbisk_switch_encapVxlanRouteIpv4 = 132,
  p4_pd_orbisk_switch_encapVxlanRouteIpv6 = 133,
  p4_pd_orbisk_switch_noDecapEncapVxlanL2 = 134,
  p4_pd_orbisk_switch_normalizeEthHdr = 135,
  p4_pd_orbisk_switch_setEgressMirrorColor = 136,
  p4_pd_orbisk_switch_setEgressMirrorColorRed = 137,
  p4_pd_orbisk_switch_generateMacLearningDigest = 138,
  p4_pd_orbisk_switch_generateVtepLearningDigest = 139,
  p4_pd_orbisk_switch_dot1xTrap = 140,
  p4_pd_orbisk_switch_dot1xDrop = 141,
  p4_pd_orbisk_switch_resetApplicationId = 142,
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4 = 143,
  p4_pd_orbisk_switch_hashComputeIpAndL4HdrAction = 144,
  p4_pd_orbisk_switch_setTrafficClassAndEgressQid = 145,
  p4_pd_orbisk_switch_setL2McResult = 146,
  p4_pd_orbisk_switch_copyHashFromCpuHdr = 147,
  p4_pd_orbisk_switch_setEgrVlan = 148,
  p4_pd_orbisk_switch_setEgrVlanSubIntf = 149,
  p4_pd_orbisk_switch_noXlate = 150,
  p4_pd_orbisk_switch_setEncapSmac = 151,
  p4_pd_orbisk_switch_encapPktToCpu = 152,
  p4_pd_orbisk_switch_encapPktToDpdk = 153,
  p4_pd_orbisk_switch_egressSamePortBridgingTestDrop = 154,
  p4_pd_orbisk_switch_setOvoIntfDetails = 155,
  p4_pd_orbisk_switch_setEgrIntfInfo = 156,
  p4_pd_orbisk_switch_noTunnelIpv4 = 157,
  p4_pd_orbisk_switch_noTunnelIpv6 = 158,
  p4_pd_orbisk_switch_onlyDecapInnerIpv4 = 159,
  p4_pd_orbisk_switch_onlyDecapInnerIpv6 = 160,
  p4_pd_orbisk_switch_encapOuterIpv4 = 161,
  p4_pd_orbisk_switch_encapOuterIpv4InnerIpv4 = 162,
  p4_pd_orbisk_switch_encapOuterIpv4InnerIpv6 = 163,
  p4_pd_orbisk_switch_setHashValuesLagOuterEthHdr = 164,
  p4_pd_orbisk_switch_setHashValuesLagOuterIpHdr = 165,
  p4_pd_orbisk_switch_setHashValuesLagOuterL4Hdr = 166,
  p4_pd_orbisk_switch_setHashValuesLagInnerEthHdr = 167,
  p4_pd_orbisk_switch_setHashValuesLagInnerIpHdr = 168,
  p4_pd_orbisk_switch_setHashValuesLagInnerL4Hdr = 169,
  p4_pd_orbisk_switch_setHashValuesEcmpOuterIpHdr = 170,
  p4_pd_orbisk_switch_setHashValuesEcmpOuterL4Hdr = 171,
  p4_pd_orbisk_switch_setHashValuesEcmpInnerIpHdr = 172,
  p4_pd_orbisk_switch_setHashValuesEcmpInnerL4Hdr = 173,
  p4_pd_orbisk_switch_setHashValuesEcmpInnerEthHdr = 174,
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5 = 175,
  p4_pd_orbisk_switch_setIpv4GroupVlanIndex = 176,
  p4_pd_orbisk_switch_trapPacket = 177,
  p4_pd_orbisk_switch_copyPacket = 178,
  p4_pd_orbisk_switch_setLlm = 179,
  p4_pd_orbisk_switch_copyCosRewriteDscp = 180,
  p4_pd_orbisk_switch_rewriteCosCopyDscp = 181,
  p4_pd_orbisk_switch_rewriteCosRewriteDscp = 182,
  p4_pd_orbisk_switch_egrStpAction = 183,
  p4_pd_orbisk_switch_egrVlanAction = 184,
  p4_pd_orbisk_switch_decapIngressDefault = 185,
  p4_pd_orbisk_switch_removeOuterIpv4Hdr = 186,
  p4_pd_orbisk_switch_removeOuterIpv6Hdr = 187,
  p4_pd_orbisk_switch_saveOuterIpv4Ecn = 188,
  p4_pd_orbisk_switch_saveOuterIpv6Ecn = 189,
  p4_pd_orbisk_switch_decapIngressVxlan = 190,
  p4_pd_orbisk_switch_setEgrPortVlan = 191,
  p4_pd_orbisk_switch_setEgrPortVlanKernel = 192,
  p4_pd_orbisk_switch_setEgrPortL2Domain = 193,
  p4_pd_orbisk_switch_setEgrPortL2DomainKernel = 194,
  p4_pd_orbisk_switch_setDefaultEgrPortVlan = 195,
  p4_pd_orbisk_switch_setNatCpuHeaderSnat = 196,
  p4_pd_orbisk_switch_setNatCpuHeaderDnat = 197,
  p4_pd_orbisk_switch_setNatCpuHeaderTwice = 198,
  p4_pd_orbisk_switch_setFoldedPipeQid = 199,
  p4_pd_orbisk_switch_setLagMemberSelector = 200,
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6 = 201,
  p4_pd_orbisk_switch_setIpmcResult = 202,
  p4_pd_orbisk_switch_samePortBridgingTestAction = 203,
  p4_pd_orbisk_switch_setMlagPrune = 204,
  p4_pd_orbisk_switch_setEgressDrop = 205,
  p4_pd_orbisk_switch_egressMirrorAction = 206,
  p4_pd_orbisk_switch_noVlanEncap = 207,
  p4_pd_orbisk_switch_needVlanEncap = 208,
  p4_pd_orbisk_switch_discardHaloResult = 209,
  p4_pd_orbisk_switch_finalizeMcResultIpmc = 210,
  p4_pd_orbisk_switch_finalizeMcResultL2mc = 211,
  p4_pd_orbisk_switch_finalizeMcResultL2mcFlood = 212,
  p4_pd_orbisk_switch_finalizeMcResultCancel = 213,
  p4_pd_orbisk_switch_finalizeMcResultFlood = 214,
  p4_pd_orbisk_switch_finalizeMcResultL3Rpf = 215,
  p4_pd_orbisk_switch_setFoldedPipePort = 216,
  p4_pd_orbisk_switch_setIngressMirrorColor = 217,
  p4_pd_orbisk_switch_setIngressMirrorColorRed = 218,
  p4_pd_orbisk_switch_accept = 219,
  p4_pd_orbisk_switch_acceptLog = 220,
  p4_pd_orbisk_switch_dropCount = 221,
  p4_pd_orbisk_switch_dropCountAndLog = 222,
  p4_pd_orbisk_switch_finalDrop = 223,
  p4_pd_orbisk_switch_ingressMirrorAction = 224,
  p4_pd_orbisk_switch_updateFoldedPipeCount = 225,
  p4_pd_orbisk_switch_setMinMtuId = 226,
  p4_pd_orbisk_switch_setIngMtuFailed = 227,
  p4_pd_orbisk_switch_setSnatAclId = 228,
  p4_pd_orbisk_switch_resetSnatAclId = 229,
  p4_pd_orbisk_switch_setTcpFlagsCpuReasonCode = 230,
  p4_pd_orbisk_switch_setCpuReasonCodeDefault = 231,
  p4_pd_orbisk_switch_setNatTcpFlags = 232,
  p4_pd_orbisk_switch_setL2XId = 233,
  p4_pd_orbisk_switch_setIpv4PrtResultXFirst = 234,
  p4_pd_orbisk_switch_setSwitchToCpu = 235,
  p4_pd_orbisk_switch_setDefaultVrf = 236,
  p4_pd_orbisk_switch_setNextHop0First = 237,
  p4_pd_orbisk_switch_setNextHop2First = 238,
  p4_pd_orbisk_switch_setNextHop3First = 239,
  p4_pd_orbisk_switch_setNextHop1First = 240,
  p4_pd_orbisk_switch_ipv4ShortMaskLpmMiss = 241,
  p4_pd_orbisk_switch_setEcmpNextHop = 242,
  p4_pd_orbisk_switch_setNextHopToCpu = 243,
  p4_pd_orbisk_switch_setNextHopDetails = 244,
  p4_pd_orbisk_switch_setRouterNextHopDetails = 245,
  p4_pd_orbisk_switch_eifParamEgressing = 246,
  p4_pd_orbisk_switch_setEgrNatProfile = 247,
  p4_pd_orbisk_switch_setDip = 248,
  p4_pd_orbisk_switch_clearDip = 249,
  p4_pd_orbisk_switch_eifParamIngressing = 250,
  p4_pd_orbisk_switch_setTranslatedSip = 251,
  p4_pd_orbisk_switch_setTranslatedSipPortDynamic = 252,
  p4_pd_orbisk_switch_setTranslatedSipAndCount = 253,
  p4_pd_orbisk_switch_setTranslatedSipPortAndCount = 254,
  p4_pd_orbisk_switch_setEifMatched = 255,
  p4_pd_orbisk_switch_setEifTrap = 256,
  p4_pd_orbisk_switch_setEifTrapReverse = 257,
  p4_pd_orbisk_switch_setEifDrop = 258,
  p4_pd_orbisk_switch_updateEifAclCount = 259,
  p4_pd_orbisk_switch_setNatCpuTrap = 260,
  p4_pd_orbisk_switch_setNatCpuTrapReverse = 261,
  p4_pd_orbisk_switch_forwardToPeer = 262,
  p4_pd_orbisk_switch_setEifForwardToPeer = 263,
  p4_pd_orbisk_switch_updateEifForwardToPeerAclCount = 264,
  p4_pd_orbisk_switch_mtuCheckFailed = 265,
  p4_pd_orbisk_switch_mtuCheckPassed = 266,
  p4_pd_orbisk_switch_countDynamicNat = 267,
  p4_pd_orbisk_switch_setTunnelEgressInfo = 268,
  p4_pd_orbisk_switch_setPdpClass = 269,
  p4_pd_orbisk_switch_meterPdpClass = 270,
  p4_pd_orbisk_switch_updateV4 = 271,
  p4_pd_orbisk_switch_updateV4AndPort = 272,
  p4_pd_orbisk_switch_updateV4AndUdp = 273,
  p4_pd_orbisk_switch_updateV4AndTcp = 274,
  p4_pd_orbisk_switch_trapPktToCpuUntagged = 275,
  p4_pd_orbisk_switch_copyPktToCpuUntagged = 276,
  p4_pd_orbisk_switch_trapPktToCpuTagged = 277,
  p4_pd_orbisk_switch_copyPktToCpuTagged = 278,
  p4_pd_orbisk_switch_trapPktToCpuSubintf = 279,
  p4_pd_orbisk_switch_copyPktToCpuSubintf = 280,
  p4_pd_orbisk_switch_setLagPort = 281,
  p4_pd_orbisk_switch_setPhysicalPort = 282,
  p4_pd_orbisk_switch_setTunnelInfo = 283,
  p4_pd_orbisk_switch_invalidateUcastEgressPort = 284,
  p4_pd_orbisk_switch_fixL2SubintfAlignment = 285,
  p4_pd_orbisk_switch_add_header_for_EA = 286,
  p4_pd_orbisk_switch_setPdpClassCount = 287,
  p4_pd_orbisk_switch_removeVlanHdr = 288,
  p4_pd_orbisk_switch_acceptIB = 289,
  p4_pd_orbisk_switch_finalDropIB = 290,
  p4_pd_orbisk_switch_setPruneParams = 291,
  p4_pd_orbisk_switch_setPruneParamsForL2Flood = 292,
  p4_pd_orbisk_switch_setPruneParamsForL3Only = 293,
  p4_pd_orbisk_switch_l3FloodEgressL2Aintf = 294,
  p4_pd_orbisk_switch_setPruneParamsUnused = 295,
  P4_PD_ORBISK_SWITCH_ACTION_COUNT = 296
} p4_pd_orbisk_switch_action_names_t;

/* Room for any full action name and its final zero. */
#define P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX 61

/* Full action names, with the prefix, in enum order. */
extern const char *const p4_pd_orbisk_switch_action_name_strings[296];

/* ------------------------------------------------ action specs --- */

typedef struct p4_pd_orbisk_switch_setPhase0_action_spec {
  uint16_t action_ingVPort;
  uint16_t action_nativeAintf;
  uint8_t action_switchPort;
  uint8_t action_physicalPort;
} p4_pd_orbisk_switch_setPhase0_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec {
  uint8_t action_vxlanVti;
  uint8_t action_vxlanVarpIp;
} p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2DomainUntagged_action_spec {
  uint32_t action_l2Aintf;
} p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec {
  uint32_t action_counterIndex;
  uint16_t action_xlateVlan;
  uint32_t action_l2Aintf;
} p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2DomainTagged_action_spec {
  uint32_t action_l2Aintf;
} p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec {
  uint16_t action_xlateVlan;
  uint32_t action_vrfIdHi;
  uint8_t action_vrfId;
  uint8_t action_ipRouting;
  uint16_t action_natProfile;
  uint8_t action_subIntf;
} p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec {
  uint32_t action_vrfIdHi;
  uint8_t action_vrfId;
  uint8_t action_ipRouting;
  uint16_t action_natProfile;
} p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec {
  uint32_t action_vrfIdHi;
  uint8_t action_vrfId;
  uint8_t action_ipRouting;
  uint16_t action_natProfile;
} p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec {
  uint32_t action_ingL2Aintf;
} p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t;

typedef struct p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec {
  uint16_t action_vlanId;
  uint32_t action_vrfIdHi;
  uint8_t action_vrfId;
  uint8_t action_ipRouting;
  uint16_t action_l3Intf;
} p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2ControlFrame_action_spec {
  uint8_t action_cpuReasonCode;
  uint8_t action_highPriority;
} p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t;

typedef struct p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec {
  uint8_t action_cpuReasonCode;
  uint8_t action_highPriority;
} p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t;

typedef struct p4_pd_orbisk_switch_setQosPortProperties_action_spec {
  uint8_t action_defaultCos;
  uint8_t action_defaultDscp;
  uint8_t action_trustMode;
} p4_pd_orbisk_switch_setQosPortProperties_action_spec_t;

typedef struct p4_pd_orbisk_switch_setQosRewriteConfiguration_action_spec {
  uint8_t action_cosRewrite;
  uint8_t action_dscpRewrite;
} p4_pd_orbisk_switch_setQosRewriteConfiguration_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloCrlId2_action_spec {
  uint8_t action_crlId;
  uint32_t action_defaultResult;
} p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloCrlId_action_spec {
  uint8_t action_crlId;
  uint32_t action_defaultResult;
} p4_pd_orbisk_switch_setHaloCrlId_action_spec_t;

typedef struct p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec {
  uint32_t action_port;
} p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVlanProperties_action_spec {
  uint8_t action_igmpSnoopingEnabled;
  uint8_t action_sviEnabled;
  uint8_t action_vxlan;
} p4_pd_orbisk_switch_setVlanProperties_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloXformDip_action_spec {
  uint16_t action_val;
  uint16_t action_valMirror;
} p4_pd_orbisk_switch_setHaloXformDip_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec {
  uint16_t action_val;
  uint16_t action_valMirror;
} p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec {
  uint16_t action_val;
  uint16_t action_valMirror;
} p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloXformDstPort_action_spec {
  uint16_t action_val;
} p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec {
  uint16_t action_val;
} p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec {
  uint16_t action_rangeId;
} p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIngNatProfile_action_spec {
  uint8_t action_natProfile;
} p4_pd_orbisk_switch_setIngNatProfile_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEcmp_action_spec {
  uint32_t action_ecmpGroup;
} p4_pd_orbisk_switch_setEcmp_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop2_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop2_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop3_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop3_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec {
  uint8_t action_pri;
  uint16_t action_partIdx;
  uint8_t action_nextHopTable;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec {
  uint32_t action_dip;
  uint32_t action_checksumDelta;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec {
  uint32_t action_dip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipPort_action_spec {
  uint32_t action_dip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
} p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setDnatAclId_action_spec {
  uint16_t action_aclId;
} p4_pd_orbisk_switch_setDnatAclId_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTunnelDip_action_spec {
  uint32_t action_dip;
  uint32_t action_dipB;
} p4_pd_orbisk_switch_setTunnelDip_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgressMirrorSession_action_spec {
  uint16_t action_sessionId;
} p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t;

typedef struct p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec {
  uint32_t action_vni;
  uint8_t action_vniReserved;
  uint8_t action_vtiId;
} p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2DomainReplicated_action_spec {
  uint16_t action_l2Domain;
} p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t;

typedef struct p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec {
  uint8_t action_ovoSessionId;
} p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t;

typedef struct p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec {
  uint32_t action_srcIp;
  uint32_t action_dstIp;
  uint8_t action_ttl;
  uint8_t action_dscp;
  uint16_t action_greProto;
  uint16_t action_vlanId;
  uint32_t action_dmacOui;
  uint32_t action_dmacStation;
} p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTcDscp_action_spec {
  uint8_t action_dscp;
} p4_pd_orbisk_switch_setTcDscp_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec {
  uint32_t action_dip;
  uint32_t action_checksumDelta;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec {
  uint32_t action_dip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec {
  uint32_t action_dip;
  uint32_t action_checksumDelta;
  uint32_t action_ecmpGroup;
} p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec {
  uint32_t action_dip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
  uint32_t action_ecmpGroup;
} p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec {
  uint32_t action_dip;
  uint32_t action_checksumDelta;
  uint32_t action_ecmpGroup;
} p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec {
  uint16_t action_sip;
  uint16_t action_dip;
  uint16_t action_srcPort;
  uint16_t action_dstPort;
  uint8_t action_proto;
  uint8_t action_dscp;
  uint8_t action_ttl;
  uint8_t action_flags;
  uint8_t action_isFrag;
} p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgressPort_action_spec {
  uint32_t action_egrL2Aintf;
} p4_pd_orbisk_switch_setEgressPort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEifIngPolicy_action_spec {
  uint8_t action_eifPolicy;
} p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t;

typedef struct p4_pd_orbisk_switch_setV6NextHop0First_action_spec {
  uint16_t action_nextHop;
} p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setV6NextHop2First_action_spec {
  uint16_t action_nextHop;
} p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setV6NextHop3First_action_spec {
  uint16_t action_nextHop;
} p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setV6NextHop1First_action_spec {
  uint16_t action_nextHop;
} p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec {
  uint16_t action_partitionIndex;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec {
  uint16_t action_partitionIndex;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec {
  uint16_t action_partitionIndex;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec {
  uint16_t action_partitionIndex;
  uint32_t action_ecmpGroup;
} p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec {
  uint16_t action_lagMemberSelector;
} p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec_t;

typedef struct p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec {
  uint16_t action_dstPort;
  uint16_t action_pktLengthAdj;
  uint16_t action_vxlanRangeMask;
} p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t;

typedef struct p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec {
  uint32_t action_routerIp;
  uint16_t action_dstPort;
  uint16_t action_pktLengthAdj;
  uint16_t action_vxlanRangeMask;
} p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t;

typedef struct p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec {
  uint32_t action_routerIp;
  uint16_t action_dstPort;
  uint16_t action_pktLengthAdj;
  uint16_t action_vxlanRangeMask;
} p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTunnelL2Info_action_spec {
  uint32_t action_oui;
  uint32_t action_station;
  uint16_t action_l2Domain;
} p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t;

typedef struct p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec {
  uint32_t action_egrL2Aintf;
} p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t;

typedef struct p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec {
  uint16_t action_l2McastId;
} p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t;

typedef struct p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec {
  uint32_t action_egrL2Aintf;
  uint16_t action_tunnelNextHop;
} p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec {
  uint32_t action_res;
} p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec {
  uint16_t action_sip;
  uint16_t action_dip;
  uint16_t action_srcPort;
  uint16_t action_dstPort;
  uint8_t action_proto;
  uint8_t action_dscp;
  uint8_t action_ttl;
  uint8_t action_flags;
  uint8_t action_isFrag;
} p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t;

typedef struct p4_pd_orbisk_switch_setCosFromDefault_action_spec {
  uint8_t action_cos;
} p4_pd_orbisk_switch_setCosFromDefault_action_spec_t;

typedef struct p4_pd_orbisk_switch_setCosFromPacket_action_spec {
  uint8_t action_pri;
} p4_pd_orbisk_switch_setCosFromPacket_action_spec_t;

typedef struct p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec {
  uint8_t action_pri;
} p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIngressMirrorSession_action_spec {
  uint16_t action_sessionId;
} p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t;

typedef struct p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec {
  uint32_t action_routerMacOui;
  uint32_t action_routerMacStation;
} p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t;

typedef struct p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec {
  uint32_t action_routerMacOui;
  uint32_t action_routerMacStation;
} p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t;

typedef struct p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec {
  uint32_t action_routerMacOui;
  uint32_t action_routerMacStation;
  uint16_t action_srcPortOffset;
  uint32_t action_srcIp;
  uint16_t action_dport;
} p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t;

typedef struct p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec {
  uint32_t action_routerMacOui;
  uint32_t action_routerMacStation;
  uint16_t action_srcPortOffset;
  uint32_t action_srcIp;
  uint16_t action_dport;
} p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t;

typedef struct p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec {
  uint32_t action_routerMacOui;
  uint32_t action_routerMacStation;
  uint16_t action_srcPortOffset;
  uint32_t action_srcIp;
  uint16_t action_dport;
} p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgressMirrorColor_action_spec {
  uint32_t action_meterIndex;
} p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec {
  uint16_t action_sip;
  uint16_t action_dip;
  uint16_t action_srcPort;
  uint16_t action_dstPort;
  uint8_t action_proto;
  uint8_t action_dscp;
  uint8_t action_ttl;
  uint8_t action_flags;
  uint8_t action_isFrag;
} p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec {
  uint8_t action_tc;
  uint8_t action_qid;
} p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2McResult_action_spec {
  uint16_t action_mgrp;
  uint8_t action_eValid;
  uint8_t action_copy;
} p4_pd_orbisk_switch_setL2McResult_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrVlan_action_spec {
  uint16_t action_vlanId;
} p4_pd_orbisk_switch_setEgrVlan_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec {
  uint32_t action_counterIndex;
  uint16_t action_vlanId;
} p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEncapSmac_action_spec {
  uint32_t action_oui;
  uint32_t action_station;
} p4_pd_orbisk_switch_setEncapSmac_action_spec_t;

typedef struct p4_pd_orbisk_switch_encapPktToCpu_action_spec {
  uint8_t action_tagType;
} p4_pd_orbisk_switch_encapPktToCpu_action_spec_t;

typedef struct p4_pd_orbisk_switch_encapPktToDpdk_action_spec {
  uint8_t action_tagType;
} p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t;

typedef struct p4_pd_orbisk_switch_setOvoIntfDetails_action_spec {
  uint8_t action_ovoSlice;
  uint16_t action_ovoPort;
  uint8_t action_ovoLane;
  uint16_t action_ovoLagId;
} p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec {
  uint16_t action_sip;
  uint16_t action_dip;
  uint16_t action_srcPort;
  uint16_t action_dstPort;
  uint8_t action_proto;
  uint8_t action_dscp;
  uint8_t action_ttl;
  uint8_t action_flags;
  uint8_t action_isFrag;
} p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec {
  uint16_t action_ipv4GroupVlanIndex;
  uint16_t action_mgrp;
  uint8_t action_eValid;
  uint8_t action_copy;
} p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t;

typedef struct p4_pd_orbisk_switch_trapPacket_action_spec {
  uint8_t action_cpuReasonCode;
} p4_pd_orbisk_switch_trapPacket_action_spec_t;

typedef struct p4_pd_orbisk_switch_copyPacket_action_spec {
  uint8_t action_cpuReasonCode;
  uint8_t action_llm;
} p4_pd_orbisk_switch_copyPacket_action_spec_t;

typedef struct p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec {
  uint8_t action_dscp;
} p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t;

typedef struct p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec {
  uint8_t action_cos;
} p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t;

typedef struct p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec {
  uint8_t action_cos;
  uint8_t action_dscp;
} p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrPortVlan_action_spec {
  uint8_t action_tagType;
  uint16_t action_port;
  uint8_t action_lane;
  uint16_t action_channel;
  uint16_t action_vlan;
} p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec {
  uint8_t action_tagType;
  uint16_t action_port;
  uint8_t action_lane;
  uint16_t action_channel;
  uint16_t action_vlan;
} p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec {
  uint8_t action_tagType;
  uint16_t action_port;
  uint8_t action_lane;
  uint16_t action_channel;
} p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec {
  uint8_t action_tagType;
  uint16_t action_port;
  uint8_t action_lane;
  uint16_t action_channel;
} p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t;

typedef struct p4_pd_orbisk_switch_setFoldedPipeQid_action_spec {
  uint8_t action_qid;
} p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t;

typedef struct p4_pd_orbisk_switch_setLagMemberSelector_action_spec {
  uint16_t action_lagMemberSelector;
} p4_pd_orbisk_switch_setLagMemberSelector_action_spec_t;

typedef struct p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec {
  uint16_t action_sip;
  uint16_t action_dip;
  uint16_t action_srcPort;
  uint16_t action_dstPort;
  uint8_t action_proto;
  uint8_t action_dscp;
  uint8_t action_ttl;
  uint8_t action_flags;
  uint8_t action_isFrag;
} p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpmcResult_action_spec {
  uint16_t action_mgrp;
  uint8_t action_copy;
} p4_pd_orbisk_switch_setIpmcResult_action_spec_t;

typedef struct p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec {
  uint8_t action_copy;
} p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t;

typedef struct p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec {
  uint8_t action_copy;
} p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t;

typedef struct p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec {
  uint8_t action_copy;
} p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t;

typedef struct p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec {
  uint8_t action_copy;
} p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t;

typedef struct p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec {
  uint8_t action_copy;
} p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t;

typedef struct p4_pd_orbisk_switch_setFoldedPipePort_action_spec {
  uint16_t action_port;
} p4_pd_orbisk_switch_setFoldedPipePort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIngressMirrorColor_action_spec {
  uint32_t action_meterIndex;
} p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t;

typedef struct p4_pd_orbisk_switch_acceptLog_action_spec {
  uint8_t action_cpuReasonCode;
} p4_pd_orbisk_switch_acceptLog_action_spec_t;

typedef struct p4_pd_orbisk_switch_dropCountAndLog_action_spec {
  uint8_t action_cpuReasonCode;
} p4_pd_orbisk_switch_dropCountAndLog_action_spec_t;

typedef struct p4_pd_orbisk_switch_ingressMirrorAction_action_spec {
  uint32_t action_mirrorSession;
} p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t;

typedef struct p4_pd_orbisk_switch_setMinMtuId_action_spec {
  uint8_t action_mtuId;
} p4_pd_orbisk_switch_setMinMtuId_action_spec_t;

typedef struct p4_pd_orbisk_switch_setSnatAclId_action_spec {
  uint16_t action_aclId;
} p4_pd_orbisk_switch_setSnatAclId_action_spec_t;

typedef struct p4_pd_orbisk_switch_setL2XId_action_spec {
  uint16_t action_l2XId;
} p4_pd_orbisk_switch_setL2XId_action_spec_t;

typedef struct p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec {
  uint8_t action_pri;
  uint16_t action_partIdx;
  uint8_t action_nextHopTable;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t;

typedef struct p4_pd_orbisk_switch_setSwitchToCpu_action_spec {
  uint32_t action_switchToCpuNextHop;
} p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop0First_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop0First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop2First_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop2First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop3First_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop3First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHop1First_action_spec {
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setNextHop1First_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEcmpNextHop_action_spec {
  uint8_t action_nextHopTable;
  uint32_t action_nextHop;
} p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHopToCpu_action_spec {
  uint8_t action_cpuReasonCode;
} p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNextHopDetails_action_spec {
  uint32_t action_dmacOui;
  uint32_t action_dmacStation;
  uint16_t action_domain;
} p4_pd_orbisk_switch_setNextHopDetails_action_spec_t;

typedef struct p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec {
  uint32_t action_egrL2AintfUnresolved;
  uint16_t action_tunnelNextHop;
  uint8_t action_egrMtuId;
} p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t;

typedef struct p4_pd_orbisk_switch_eifParamEgressing_action_spec {
  uint8_t action_eifPolicy;
} p4_pd_orbisk_switch_eifParamEgressing_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEgrNatProfile_action_spec {
  uint8_t action_natProfile;
} p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedSip_action_spec {
  uint32_t action_sip;
  uint32_t action_checksumDelta;
} p4_pd_orbisk_switch_setTranslatedSip_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec {
  uint32_t action_sip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
} p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec {
  uint32_t action_sip;
  uint32_t action_checksumDelta;
} p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec {
  uint32_t action_sip;
  uint16_t action_port;
  uint32_t action_checksumDelta;
} p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEifMatched_action_spec {
  uint16_t action_idx;
} p4_pd_orbisk_switch_setEifMatched_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNatCpuTrap_action_spec {
  uint8_t action_snatHit;
  uint8_t action_dnatHit;
} p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t;

typedef struct p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec {
  uint8_t action_snatHit;
  uint8_t action_dnatHit;
} p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t;

typedef struct p4_pd_orbisk_switch_forwardToPeer_action_spec {
  uint32_t action_peerL2Aintf;
  uint32_t action_dmacOui;
  uint32_t action_dmacStation;
  uint16_t action_egrL2Domain;
} p4_pd_orbisk_switch_forwardToPeer_action_spec_t;

typedef struct p4_pd_orbisk_switch_setEifForwardToPeer_action_spec {
  uint32_t action_peerL2Aintf;
  uint32_t action_dmacOui;
  uint32_t action_dmacStation;
  uint16_t action_egrL2Domain;
} p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t;

typedef struct p4_pd_orbisk_switch_mtuCheckFailed_action_spec {
  uint8_t action_cpuReasonCode;
} p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t;

typedef struct p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec {
  uint32_t action_egrL2AintfUnresolved;
  uint32_t action_tunnelInfoIdx;
} p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec_t;

typedef struct p4_pd_orbisk_switch_setPdpClass_action_spec {
  uint8_t action_pdpClassId;
} p4_pd_orbisk_switch_setPdpClass_action_spec_t;

typedef struct p4_pd_orbisk_switch_meterPdpClass_action_spec {
  uint32_t action_pdpClassId;
} p4_pd_orbisk_switch_meterPdpClass_action_spec_t;

typedef struct p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec {
  uint16_t action_cpuPort;
  uint8_t action_trapPipelineQid;
} p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec {
  uint8_t action_copyPipelineQid;
} p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec {
  uint16_t action_cpuPort;
  uint8_t action_trapPipelineQid;
} p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec {
  uint8_t action_copyPipelineQid;
} p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t;

typedef struct p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec {
  uint16_t action_cpuPort;
  uint8_t action_trapPipelineQid;
} p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t;

typedef struct p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec {
  uint8_t action_copyPipelineQid;
} p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t;

typedef struct p4_pd_orbisk_switch_setLagPort_action_spec {
  uint16_t action_egrL2AintfPort;
} p4_pd_orbisk_switch_setLagPort_action_spec_t;

typedef struct p4_pd_orbisk_switch_setPdpClassCount_action_spec {
  uint32_t action_counterIndex;
} p4_pd_orbisk_switch_setPdpClassCount_action_spec_t;

typedef struct p4_pd_orbisk_switch_setPruneParams_action_spec {
  uint16_t action_l1xId;
} p4_pd_orbisk_switch_setPruneParams_action_spec_t;

typedef struct p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec {
  uint16_t action_l1xId;
} p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t;

typedef struct p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec {
  uint16_t action_l1xId;
} p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t;

/* Any action's parameters; which one is told beside it. */
typedef union p4_pd_orbisk_switch_action_spec_u {
  p4_pd_orbisk_switch_setPhase0_action_spec_t setPhase0;
  p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t setTunnelTerminationTypeVxlan;
  p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t setL2DomainUntagged;
  p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t setL2DomainVlanXlate;
  p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t setL2DomainTagged;
  p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t setVrfPropertiesTaggedXlatePkt;
  p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t setVrfPropertiesTaggedPkt;
  p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t setVrfPropertiesUntaggedPkt;
  p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t setVxlanL2AintfLookupFields;
  p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t vxlanVniResolutionHit;
  p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t setL2ControlFrame;
  p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t classifyL2ControlFrame;
  p4_pd_orbisk_switch_setQosPortProperties_action_spec_t setQosPortProperties;
  p4_pd_orbisk_switch_setQosRewriteConfiguration_action_spec_t setQosRewriteConfiguration;
  p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t setHaloCrlId2;
  p4_pd_orbisk_switch_setHaloCrlId_action_spec_t setHaloCrlId;
  p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t l2ForwardParamsSet;
  p4_pd_orbisk_switch_setVlanProperties_action_spec_t setVlanProperties;
  p4_pd_orbisk_switch_setHaloXformDip_action_spec_t setHaloXformDip;
  p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t setHaloXformIpv4Sip;
  p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t setHaloXformIpv6Sip;
  p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t setHaloXformDstPort;
  p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t setHaloXformSrcPort;
  p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t setFullConeDipRangeId;
  p4_pd_orbisk_switch_setIngNatProfile_action_spec_t setIngNatProfile;
  p4_pd_orbisk_switch_setEcmp_action_spec_t setEcmp;
  p4_pd_orbisk_switch_setNextHop_action_spec_t setNextHop;
  p4_pd_orbisk_switch_setNextHop2_action_spec_t setNextHop2;
  p4_pd_orbisk_switch_setNextHop3_action_spec_t setNextHop3;
  p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t setIpv6PrtResultXFirst;
  p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t setTranslatedDipNextHop;
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t setTranslatedDipPortNextHopDynamic;
  p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t setTranslatedDipPort;
  p4_pd_orbisk_switch_setDnatAclId_action_spec_t setDnatAclId;
  p4_pd_orbisk_switch_setTunnelDip_action_spec_t setTunnelDip;
  p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t setEgressMirrorSession;
  p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t setVxlanVniAndVti;
  p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t setL2DomainReplicated;
  p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t setMirrorPacketEncapCpu;
  p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t setMirrorPacketEncapGreIpv4;
  p4_pd_orbisk_switch_setTcDscp_action_spec_t setTcDscp;
  p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t setTranslatedDipNextHopAndCount;
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t setTranslatedDipPortNextHopAndCount;
  p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t setTranslatedDipNextHopEcmpAndCount;
  p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t setTranslatedDipPortNextHopEcmpAndCount;
  p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t setTranslatedDipNextHopEcmp;
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t haloKeyMaskedRow1Stage2;
  p4_pd_orbisk_switch_setEgressPort_action_spec_t setEgressPort;
  p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t setEifIngPolicy;
  p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t setV6NextHop0First;
  p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t setV6NextHop2First;
  p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t setV6NextHop3First;
  p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t setV6NextHop1First;
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t setIpv6PrtIdxNextHop;
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t setIpv6PrtIdxNextHop2;
  p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t setIpv6PrtIdxNextHop3;
  p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t setIpv6PrtIdxEcmp;
  p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec_t setEgrLagMemberSelector;
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t setGlobalFieldsForVxlanTunnelCommon;
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t setGlobalFieldsForVxlanTunnelIpv4;
  p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t setGlobalFieldsForVxlanTunnelIpv4UseDipB;
  p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t setTunnelL2Info;
  p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t l2LookupKnownUcast;
  p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t l2LookupKnownMcast;
  p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t l2LookupKnownUcastTunnel;
  p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t haloSetBestResultRow1;
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t haloKeyMaskedRow1Stage3;
  p4_pd_orbisk_switch_setCosFromDefault_action_spec_t setCosFromDefault;
  p4_pd_orbisk_switch_setCosFromPacket_action_spec_t setCosFromPacket;
  p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t setCosFromPacketWithInner;
  p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t setIngressMirrorSession;
  p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t noDecapNoEncapRouteIpv4;
  p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t noDecapNoEncapRouteIpv6;
  p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t encapVxlanRouteIpv4;
  p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t encapVxlanRouteIpv6;
  p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t noDecapEncapVxlanL2;
  p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t setEgressMirrorColor;
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t haloKeyMaskedRow1Stage4;
  p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t setTrafficClassAndEgressQid;
  p4_pd_orbisk_switch_setL2McResult_action_spec_t setL2McResult;
  p4_pd_orbisk_switch_setEgrVlan_action_spec_t setEgrVlan;
  p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t setEgrVlanSubIntf;
  p4_pd_orbisk_switch_setEncapSmac_action_spec_t setEncapSmac;
  p4_pd_orbisk_switch_encapPktToCpu_action_spec_t encapPktToCpu;
  p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t encapPktToDpdk;
  p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t setOvoIntfDetails;
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t haloKeyMaskedRow1Stage5;
  p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t setIpv4GroupVlanIndex;
  p4_pd_orbisk_switch_trapPacket_action_spec_t trapPacket;
  p4_pd_orbisk_switch_copyPacket_action_spec_t copyPacket;
  p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t copyCosRewriteDscp;
  p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t rewriteCosCopyDscp;
  p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t rewriteCosRewriteDscp;
  p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t setEgrPortVlan;
  p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t setEgrPortVlanKernel;
  p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t setEgrPortL2Domain;
  p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t setEgrPortL2DomainKernel;
  p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t setFoldedPipeQid;
  p4_pd_orbisk_switch_setLagMemberSelector_action_spec_t setLagMemberSelector;
  p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t haloKeyMaskedRow1Stage6;
  p4_pd_orbisk_switch_setIpmcResult_action_spec_t setIpmcResult;
  p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t finalizeMcResultIpmc;
  p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t finalizeMcResultL2mc;
  p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t finalizeMcResultL2mcFlood;
  p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t finalizeMcResultCancel;
  p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t finalizeMcResultFlood;
  p4_pd_orbisk_switch_setFoldedPipePort_action_spec_t setFoldedPipePort;
  p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t setIngressMirrorColor;
  p4_pd_orbisk_switch_acceptLog_action_spec_t acceptLog;
  p4_pd_orbisk_switch_dropCountAndLog_action_spec_t dropCountAndLog;
  p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t ingressMirrorAction;
  p4_pd_orbisk_switch_setMinMtuId_action_spec_t setMinMtuId;
  p4_pd_orbisk_switch_setSnatAclId_action_spec_t setSnatAclId;
  p4_pd_orbisk_switch_setL2XId_action_spec_t setL2XId;
  p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t setIpv4PrtResultXFirst;
  p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t setSwitchToCpu;
  p4_pd_orbisk_switch_setNextHop0First_action_spec_t setNextHop0First;
  p4_pd_orbisk_switch_setNextHop2First_action_spec_t setNextHop2First;
  p4_pd_orbisk_switch_setNextHop3First_action_spec_t setNextHop3First;
  p4_pd_orbisk_switch_setNextHop1First_action_spec_t setNextHop1First;
  p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t setEcmpNextHop;
  p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t setNextHopToCpu;
  p4_pd_orbisk_switch_setNextHopDetails_action_spec_t setNextHopDetails;
  p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t setRouterNextHopDetails;
  p4_pd_orbisk_switch_eifParamEgressing_action_spec_t eifParamEgressing;
  p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t setEgrNatProfile;
  p4_pd_orbisk_switch_setTranslatedSip_action_spec_t setTranslatedSip;
  p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t setTranslatedSipPortDynamic;
  p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t setTranslatedSipAndCount;
  p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t setTranslatedSipPortAndCount;
  p4_pd_orbisk_switch_setEifMatched_action_spec_t setEifMatched;
  p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t setNatCpuTrap;
  p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t setNatCpuTrapReverse;
  p4_pd_orbisk_switch_forwardToPeer_action_spec_t forwardToPeer;
  p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t setEifForwardToPeer;
  p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t mtuCheckFailed;
  p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec_t setTunnelEgressInfo;
  p4_pd_orbisk_switch_setPdpClass_action_spec_t setPdpClass;
  p4_pd_orbisk_switch_meterPdpClass_action_spec_t meterPdpClass;
  p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t trapPktToCpuUntagged;
  p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t copyPktToCpuUntagged;
  p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t trapPktToCpuTagged;
  p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t copyPktToCpuTagged;
  p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t trapPktToCpuSubintf;
  p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t copyPktToCpuSubintf;
  p4_pd_orbisk_switch_setLagPort_action_spec_t setLagPort;
  p4_pd_orbisk_switch_setPdpClassCount_action_spec_t setPdpClassCount;
  p4_pd_orbisk_switch_setPruneParams_action_spec_t setPruneParams;
  p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t setPruneParamsForL2Flood;
  p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t setPruneParamsForL3Only;
} p4_pd_orbisk_switch_action_spec_u;

/* An action and its parameters, as a default entry or a member reads back. */
typedef struct p4_pd_orbisk_switch_action_specs {
  p4_pd_orbisk_switch_action_names_t name;
  p4_pd_orbisk_switch_action_spec_u u;
} p4_pd_orbisk_switch_action_specs_t;
typedef p4_pd_orbisk_switch_action_specs_t pd_default_action_record;
PD_STATIC_ASSERT(sizeof(p4_pd_orbisk_switch_action_names_t) == 4, "32-bit action enum");
PD_STATIC_ASSERT(offsetof(p4_pd_orbisk_switch_action_specs_t, u) == 4,
                 "parameters from the fourth byte on");

/* ---------------------------------------------------- lifecycle --- */

/* Registers with the driver; call before anything else. */
void p4_pd_orbisk_switch_init(void);
/* Deregisters from the driver. */
pd_status p4_pd_orbisk_switch_cleanup(void);
/* Forgets a device's member-selection state. */
pd_status p4_pd_orbisk_switch_dev_remove(uint32_t device_id);
/* Writes a device's member-selection state into a JSON object. */
pd_status p4_pd_orbisk_switch_dev_log(uint32_t device_id,
    void *cjson_object);
/* Reads a device's member-selection state back from one. */
pd_status p4_pd_orbisk_switch_dev_restore(uint32_t device_id,
    void *cjson_object);
/* Nothing to release: kept for agents that call it. */
void p4_pd_orbisk_switch_device_state_cleanup(void);
/* After a hitless restart: has the driver replay every member, group and membership it holds into ha_restore_state_from_adt_sel. */
pd_status p4_pd_orbisk_switch_restore_virtual_dev_state(pd_sess_hdl sess_hdl,
    uint32_t device_id,
    uint32_t restore_flags,
    void *driver_state,
    void *reserved);
/* Rebuilds one member, group or membership in its profile's member-selection state; a table of no profile is passed over. */
void p4_pd_orbisk_switch_ha_restore_state_from_adt_sel(pd_sess_hdl sess_hdl,
    uint32_t device_id,
    pd_tbl_hdl adt_hdl,
    pd_act_fn_hdl act_fn_hdl,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t flags);
/* Full name of an action; NULL past the last. */
const char * p4_pd_orbisk_switch_action_enum_to_string(uint32_t action);
/* Action of a full name; P4_PD_ORBISK_SWITCH_ACTION_COUNT for none. */
p4_pd_orbisk_switch_action_names_t p4_pd_orbisk_switch_action_string_to_enum(const char *name);

/* ================================================================== */
/* Port, VLAN and interface tables */
/* ================================================================== */

/* ingressPortMapping: table 0x01000001, pipeline A, exact match, 2 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_ingressPortMapping_match_spec {
  uint16_t ig_intr_md_ingress_port;
} p4_pd_orbisk_switch_ingressPortMapping_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_add_with_setPhase0(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setPhase0_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_modify_with_setPhase0(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPhase0_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_modify_with_setPhase0_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setPhase0_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressPortMapping_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressPortMapping_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressPortMapping_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressPortMapping_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressPortMapping(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressPortMapping_match_spec_t *match_spec);

/* l2DomainLookup: table 0x01000004, pipeline A, ternary match, 6 key bytes (28 bits) */
typedef struct p4_pd_orbisk_switch_l2DomainLookup_match_spec {
  uint8_t phase0_switchPort;
  uint16_t phase0_ingVPort;
  uint8_t vlanHdr_0__valid;
  uint16_t vlanHdr_0__vlanId;
  uint16_t vlanHdr_0__vlanId_mask;
} p4_pd_orbisk_switch_l2DomainLookup_match_spec_t;
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_add_with_setL2DomainTagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_add_with_setL2DomainUntagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_add_with_setL2DomainVlanXlate(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainTagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainTagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainUntagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainUntagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainVlanXlate(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_modify_with_setL2DomainVlanXlate_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DomainLookup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2DomainLookup_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2DomainLookup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2DomainLookup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2DomainLookup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2DomainLookup(const pd_match_record *key,
    p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec);
void unbuild_mask_l2DomainLookup(const pd_match_record *key,
    p4_pd_orbisk_switch_l2DomainLookup_match_spec_t *match_spec);

/* taggedXlatePktToL3: table 0x01000005, pipeline A, exact match, 4 key bytes (26 bits) */
typedef struct p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec {
  uint16_t phase0_ingVPort;
  uint16_t vlanHdr_0__vlanId;
} p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t;
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_add_with_setVrfPropertiesTaggedXlatePkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_modify_with_setVrfPropertiesTaggedXlatePkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_modify_with_setVrfPropertiesTaggedXlatePkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_taggedXlatePktToL3_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_taggedXlatePktToL3(const pd_match_record *key,
    p4_pd_orbisk_switch_taggedXlatePktToL3_match_spec_t *match_spec);

/* taggedPktToL3: table 0x01000007, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_taggedPktToL3_match_spec {
  uint16_t vlanHdr_0__vlanId;
} p4_pd_orbisk_switch_taggedPktToL3_match_spec_t;
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_add_with_setVrfPropertiesTaggedPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_add_with_setVrfPropertiesTaggedPktDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPktDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPktDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_taggedPktToL3_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_taggedPktToL3_set_default_action_setVrfPropertiesTaggedPktDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_taggedPktToL3_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_taggedPktToL3_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_taggedPktToL3_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_taggedPktToL3(const pd_match_record *key,
    p4_pd_orbisk_switch_taggedPktToL3_match_spec_t *match_spec);

/* untaggedPktToL3: table 0x01000006, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_untaggedPktToL3_match_spec {
  uint16_t phase0_nativeAintf;
} p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t;
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_add_with_setVrfPropertiesUntaggedPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_add_with_setVrfPropertiesUntaggedPktDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPktDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPktDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_set_default_action_setVrfPropertiesUntaggedPktDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_untaggedPktToL3_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_untaggedPktToL3(const pd_match_record *key,
    p4_pd_orbisk_switch_untaggedPktToL3_match_spec_t *match_spec);

/* ingStpCheck: table 0x0100000b, pipeline A, no key */
pd_status p4_pd_orbisk_switch_ingStpCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_ingStpCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingStpCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingStpCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingStpCheck_set_default_action_ingStpAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingStpCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingStpCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingStpCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingStpCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingStpCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingStpCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingStpCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* ingVlanCheck: table 0x0100000c, pipeline A, no key */
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingVlanCheck_set_default_action_ingVlanAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingVlanCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingVlanCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingVlanCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingVlanCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingVlanCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingVlanCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* vlanProperties: table 0x01000018, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_vlanProperties_match_spec {
  uint16_t ingMd_ingL2Domain;
} p4_pd_orbisk_switch_vlanProperties_match_spec_t;
pd_status p4_pd_orbisk_switch_vlanProperties_table_add_with_setVlanProperties(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVlanProperties_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_table_modify_with_setVlanProperties(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVlanProperties_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vlanProperties_table_modify_with_setVlanProperties_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVlanProperties_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vlanProperties_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vlanProperties_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vlanProperties_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vlanProperties_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vlanProperties_set_default_action_setVlanProperties(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setVlanProperties_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vlanProperties_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vlanProperties_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vlanProperties_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vlanProperties_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vlanProperties_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vlanProperties(const pd_match_record *key,
    p4_pd_orbisk_switch_vlanProperties_match_spec_t *match_spec);

/* ingressPortDropCheck: table 0x01000010, pipeline A, ternary match, 7 key bytes (17 bits), entries carry ingressPortDropCount */
typedef struct p4_pd_orbisk_switch_ingressPortDropCheck_match_spec {
  uint16_t ig_intr_md_ingress_port;
  uint8_t ingMd_illegalDmac;
  uint8_t ingMd_illegalDmac_mask;
  uint8_t ingMd_illegalSmac;
  uint8_t ingMd_illegalSmac_mask;
  uint8_t ingMd_invalidTunnel;
  uint8_t ingMd_invalidTunnel_mask;
  uint8_t parserMd_checksumErr;
  uint8_t parserMd_checksumErr_mask;
  uint8_t parserMd_outerHdrFlags;
  uint8_t parserMd_outerHdrFlags_mask;
} p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_add_with_setDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_modify_with_setDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_modify_with_setDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressPortDropCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressPortDropCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec);
void unbuild_mask_ingressPortDropCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t *match_spec);

/* ingL2DomainCount: table 0x01000062, pipeline A, exact match, 3 key bytes (15 bits), entries carry ingL2DomainCounters */
typedef struct p4_pd_orbisk_switch_ingL2DomainCount_match_spec {
  uint8_t egrMd_decapType;
  uint16_t ingMd_ingL3Aintf;
} p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t;
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingL2DomainCount_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingL2DomainCount(const pd_match_record *key,
    p4_pd_orbisk_switch_ingL2DomainCount_match_spec_t *match_spec);

/* egrL2DomainCount: table 0x01000065, pipeline A, exact match, 3 key bytes (15 bits), entries carry egrL2DomainCounters */
typedef struct p4_pd_orbisk_switch_egrL2DomainCount_match_spec {
  uint8_t egrMd_decapType;
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t;
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrL2DomainCount_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egrL2DomainCount(const pd_match_record *key,
    p4_pd_orbisk_switch_egrL2DomainCount_match_spec_t *match_spec);

/* egressVlanXlate: table 0x0100006c, pipeline A, exact match, 4 key bytes (21 bits) */
typedef struct p4_pd_orbisk_switch_egressVlanXlate_match_spec {
  uint16_t eg_intr_md_egress_port;
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_egressVlanXlate_match_spec_t;
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_add_with_noXlate(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_add_with_setEgrVlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrVlan_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_add_with_setEgrVlanSubIntf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_noXlate(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_noXlate_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_setEgrVlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrVlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_setEgrVlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrVlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_setEgrVlanSubIntf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_modify_with_setEgrVlanSubIntf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressVlanXlate_set_default_action_noXlate(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressVlanXlate_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressVlanXlate_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressVlanXlate_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressVlanXlate(const pd_match_record *key,
    p4_pd_orbisk_switch_egressVlanXlate_match_spec_t *match_spec);

/* egrStpCheck: table 0x01000071, pipeline A, no key */
pd_status p4_pd_orbisk_switch_egrStpCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_egrStpCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrStpCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrStpCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egrStpCheck_set_default_action_egrStpAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrStpCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egrStpCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrStpCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egrStpCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egrStpCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egrStpCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrStpCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* egrVlanCheck: table 0x01000072, pipeline A, no key */
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egrVlanCheck_set_default_action_egrVlanAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrVlanCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egrVlanCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrVlanCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egrVlanCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egrVlanCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrVlanCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* vlanEncap: table 0x01000073, pipeline A, exact match, 5 key bytes (22 bits) */
typedef struct p4_pd_orbisk_switch_vlanEncap_match_spec {
  uint16_t egrMd_vlanId;
  uint16_t eg_intr_md_egress_port;
  uint8_t egrMd_subIntf;
} p4_pd_orbisk_switch_vlanEncap_match_spec_t;
pd_status p4_pd_orbisk_switch_vlanEncap_table_add_with_needVlanEncap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_add_with_noVlanEncap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_modify_with_needVlanEncap(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_modify_with_needVlanEncap_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vlanEncap_table_modify_with_noVlanEncap(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_modify_with_noVlanEncap_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vlanEncap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vlanEncap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vlanEncap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vlanEncap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vlanEncap_set_default_action_needVlanEncap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vlanEncap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vlanEncap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vlanEncap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vlanEncap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vlanEncap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vlanEncap(const pd_match_record *key,
    p4_pd_orbisk_switch_vlanEncap_match_spec_t *match_spec);

/* vlanDecap: table 0x11010026, pipeline B, no key */
pd_status p4_pd_orbisk_switch_vlanDecap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_vlanDecap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vlanDecap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanDecap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vlanDecap_set_default_action_removeVlanHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanDecap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vlanDecap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vlanDecap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vlanDecap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vlanDecap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vlanDecap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vlanDecap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* copyOverlayL2Domain: table 0x0100006b, pipeline A, no key */
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_set_default_action_setEgrIntfInfo(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_copyOverlayL2Domain_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* srcIntfToOvoIntf: table 0x0100006a, pipeline A, exact match, 2 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec {
  uint16_t egrMd_ingressPort;
} p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t;
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_add_with_setOvoIntfDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_modify_with_setOvoIntfDetails(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_modify_with_setOvoIntfDetails_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_set_default_action_setOvoIntfDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_srcIntfToOvoIntf_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_srcIntfToOvoIntf(const pd_match_record *key,
    p4_pd_orbisk_switch_srcIntfToOvoIntf_match_spec_t *match_spec);

/* egrIntfToOvoIntf: table 0x0100006f, pipeline A, exact match, 3 key bytes (20 bits) */
typedef struct p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec {
  uint8_t egrMd_egrAintfType;
  uint16_t egrMd_egrAintfPort;
} p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t;
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_add_with_setDefaultEgrPortVlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_add_with_setEgrPortL2Domain(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_add_with_setEgrPortL2DomainKernel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_add_with_setEgrPortVlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_add_with_setEgrPortVlanKernel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setDefaultEgrPortVlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setDefaultEgrPortVlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortL2Domain(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortL2Domain_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortL2DomainKernel(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortL2DomainKernel_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortVlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortVlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortVlanKernel(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_modify_with_setEgrPortVlanKernel_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_set_default_action_setDefaultEgrPortVlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrIntfToOvoIntf_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egrIntfToOvoIntf(const pd_match_record *key,
    p4_pd_orbisk_switch_egrIntfToOvoIntf_match_spec_t *match_spec);

/* ovoIntfToPhysical: table 0x0100002a, pipeline A, ternary match, 6 key bytes (29 bits) */
typedef struct p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec {
  uint8_t orbiskCpuHdr_lane;
  uint16_t orbiskCpuHdr_port;
  uint16_t orbiskCpuHdr_portChannel;
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
} p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t;
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_add_with_removeOrbiskHdrs(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_add_with_setDecapTypeVlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_add_with_setEgressPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEgressPort_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_add_with_setInvalidEgressPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_removeOrbiskHdrs(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_removeOrbiskHdrs_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setDecapTypeVlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setDecapTypeVlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setEgressPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgressPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setEgressPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEgressPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setInvalidEgressPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_modify_with_setInvalidEgressPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_set_default_action_setInvalidEgressPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ovoIntfToPhysical_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ovoIntfToPhysical(const pd_match_record *key,
    p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec);
void unbuild_mask_ovoIntfToPhysical(const pd_match_record *key,
    p4_pd_orbisk_switch_ovoIntfToPhysical_match_spec_t *match_spec);

/* egressPortDropCheck: table 0x01000074, pipeline A, ternary match, 9 key bytes (23 bits), entries carry egressPortDropCount */
typedef struct p4_pd_orbisk_switch_egressPortDropCheck_match_spec {
  uint16_t eg_intr_md_egress_port;
  uint16_t eg_intr_md_egress_port_mask;
  uint8_t egrMd_invalidVni;
  uint8_t egrMd_invalidVni_mask;
  uint8_t egrMd_routed;
  uint8_t egrMd_routed_mask;
  uint8_t egrVlanStpCheck_invalidVlan;
  uint8_t egrVlanStpCheck_invalidVlan_mask;
  uint8_t egrVlanStpCheck_stpBlocked;
  uint8_t egrVlanStpCheck_stpBlocked_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerIpv4Hdr_ttl;
  uint8_t outerIpv4Hdr_ttl_mask;
  uint8_t pktGen;
} p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_add_with_setEgressDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_modify_with_setEgressDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_modify_with_setEgressDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_set_default_action_setEgressDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressPortDropCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressPortDropCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec);
void unbuild_mask_egressPortDropCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_egressPortDropCheck_match_spec_t *match_spec);

/* egressSamePortBridgingTest: table 0x0100006d, pipeline A, exact match, 3 key bytes (11 bits) */
typedef struct p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec {
  uint8_t egrMd_ingressPortType;
  uint16_t eg_intr_md_egress_port;
} p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t;
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_add_with_egressSamePortBridgingTestDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_modify_with_egressSamePortBridgingTestDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_modify_with_egressSamePortBridgingTestDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressSamePortBridgingTest_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressSamePortBridgingTest(const pd_match_record *key,
    p4_pd_orbisk_switch_egressSamePortBridgingTest_match_spec_t *match_spec);

/* samePortBridgingTest: table 0x0100004f, pipeline A, no key */
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_set_default_action_samePortBridgingTestAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_samePortBridgingTest_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* mlagUcastPrune: table 0x01000050, pipeline A, exact match, 3 key bytes (20 bits) */
typedef struct p4_pd_orbisk_switch_mlagUcastPrune_match_spec {
  uint32_t egrMd_egrL2AintfUnresolved;
} p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t;
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_add_with_setMlagPrune(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_modify_with_setMlagPrune(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_modify_with_setMlagPrune_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_set_default_action_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mlagUcastPrune_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_mlagUcastPrune(const pd_match_record *key,
    p4_pd_orbisk_switch_mlagUcastPrune_match_spec_t *match_spec);

/* ================================================================== */
/* L2 forwarding and learning */
/* ================================================================== */

/* l2DmacClassify: table 0x0100000a, pipeline A, ternary match, 8 key bytes (57 bits), entries carry l2DmacClassifyCount */
typedef struct p4_pd_orbisk_switch_l2DmacClassify_match_spec {
  uint16_t ig_intr_md_ingress_port;
  uint32_t outerEthHdr_dmacOui;
  uint32_t outerEthHdr_dmacOui_mask;
  uint32_t outerEthHdr_dmacStation;
  uint32_t outerEthHdr_dmacStation_mask;
} p4_pd_orbisk_switch_l2DmacClassify_match_spec_t;
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_classifyL2ControlFrame(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setBcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setIllegalDmac(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setIpMcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setL2ControlFrame(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setMcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_add_with_setUcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_classifyL2ControlFrame(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_classifyL2ControlFrame_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setBcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setBcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setIllegalDmac(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setIllegalDmac_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setIpMcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setIpMcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setL2ControlFrame(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setL2ControlFrame_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setMcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setMcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setUcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_modify_with_setUcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2DmacClassify_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2DmacClassify_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2DmacClassify_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2DmacClassify_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2DmacClassify_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2DmacClassify(const pd_match_record *key,
    p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec);
void unbuild_mask_l2DmacClassify(const pd_match_record *key,
    p4_pd_orbisk_switch_l2DmacClassify_match_spec_t *match_spec);

/* l2SmacCheck: table 0x0100000d, pipeline A, ternary match, 6 key bytes (48 bits) */
typedef struct p4_pd_orbisk_switch_l2SmacCheck_match_spec {
  uint32_t outerEthHdr_smacOui;
  uint32_t outerEthHdr_smacOui_mask;
  uint32_t outerEthHdr_smacStation;
  uint32_t outerEthHdr_smacStation_mask;
} p4_pd_orbisk_switch_l2SmacCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_add_with_setIllegalSmac(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_modify_with_setIllegalSmac(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_modify_with_setIllegalSmac_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2SmacCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2SmacCheck_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2SmacCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2SmacCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2SmacCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2SmacCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec);
void unbuild_mask_l2SmacCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_l2SmacCheck_match_spec_t *match_spec);

/* l2StaticMacSrcAddrDrop: table 0x01000013, pipeline A, exact match, 8 key bytes (60 bits) */
typedef struct p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec {
  uint32_t ingMd_smacOui;
  uint32_t ingMd_smacStation;
  uint16_t ingMd_ingL2Domain;
} p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t;
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_add_with_setDropSmac(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_modify_with_setDropSmac(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_modify_with_setDropSmac_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2StaticMacSrcAddrDrop(const pd_match_record *key,
    p4_pd_orbisk_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);

/* l2LearningLookup: table 0x01000014, pipeline A, exact match, 11 key bytes (80 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_l2LearningLookup_match_spec {
  uint32_t ingMd_smacOui;
  uint32_t ingMd_smacStation;
  uint16_t ingMd_ingL2Domain;
  uint32_t ingMd_ingL2Aintf;
} p4_pd_orbisk_switch_l2LearningLookup_match_spec_t;
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec,
    uint32_t ttl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_add_with_setL2LearningLookupMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec,
    uint32_t ttl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_modify_with_setL2LearningLookupMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_modify_with_setL2LearningLookupMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2LearningLookup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2LearningLookup_set_default_action_setL2LearningLookupMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2LearningLookup_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_l2LearningLookup_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_l2LearningLookup_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_l2LearningLookup_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_l2LearningLookup_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_l2LearningLookup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2LearningLookup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2LearningLookup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2LearningLookup(const pd_match_record *key,
    p4_pd_orbisk_switch_l2LearningLookup_match_spec_t *match_spec);

/* l2Lookup: table 0x0100002f, pipeline A, exact match, 8 key bytes (60 bits) */
typedef struct p4_pd_orbisk_switch_l2Lookup_match_spec {
  uint32_t egrMd_dmacOui;
  uint32_t egrMd_dmacStation;
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_l2Lookup_match_spec_t;
pd_status p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownMcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcastTunnel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownMcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownMcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownUcast(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownUcast_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownUcastTunnel(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_l2LookupKnownUcastTunnel_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2Lookup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2Lookup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2Lookup_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2Lookup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2Lookup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2Lookup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2Lookup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2Lookup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2Lookup(const pd_match_record *key,
    p4_pd_orbisk_switch_l2Lookup_match_spec_t *match_spec);

/* l2LookupMiss: table 0x01000030, pipeline A, ternary match, 8 key bytes (57 bits), entries carry stormControlMeter */
typedef struct p4_pd_orbisk_switch_l2LookupMiss_match_spec {
  uint32_t egrMd_dmacOui;
  uint32_t egrMd_dmacOui_mask;
  uint32_t egrMd_dmacStation;
  uint32_t egrMd_dmacStation_mask;
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
} p4_pd_orbisk_switch_l2LookupMiss_match_spec_t;
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_add_with_l2LookupBcastHit(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_add_with_l2LookupUnknownMcastAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_add_with_l2LookupUnknownUcastAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupBcastHit(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupBcastHit_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupUnknownMcastAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupUnknownMcastAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    const pd_meter_spec *stormControlMeter_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l2LookupMiss_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2LookupMiss_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const pd_meter_spec *stormControlMeter_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2LookupMiss_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2LookupMiss_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2LookupMiss_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2LookupMiss(const pd_match_record *key,
    p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec);
void unbuild_mask_l2LookupMiss(const pd_match_record *key,
    p4_pd_orbisk_switch_l2LookupMiss_match_spec_t *match_spec);

/* l2ForwardParams: table 0x01000017, pipeline A, exact match, 1 key bytes (1 bits) */
typedef struct p4_pd_orbisk_switch_l2ForwardParams_match_spec {
  uint8_t outerEthHdr_valid;
} p4_pd_orbisk_switch_l2ForwardParams_match_spec_t;
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_add_with_l2ForwardParamsSet(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_modify_with_l2ForwardParamsSet(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_modify_with_l2ForwardParamsSet_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2ForwardParams_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2ForwardParams_set_default_action_l2ForwardParamsSet(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2ForwardParams_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2ForwardParams_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2ForwardParams_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2ForwardParams(const pd_match_record *key,
    p4_pd_orbisk_switch_l2ForwardParams_match_spec_t *match_spec);

/* l2XRemap: table 0x11010007, pipeline B, exact match, 2 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_l2XRemap_match_spec {
  uint16_t ig_intr_md_ingress_port;
} p4_pd_orbisk_switch_l2XRemap_match_spec_t;
pd_status p4_pd_orbisk_switch_l2XRemap_table_add_with_setL2XId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2XId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_table_modify_with_setL2XId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2XId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2XRemap_table_modify_with_setL2XId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2XId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2XRemap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2XRemap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2XRemap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2XRemap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2XRemap_set_default_action_setL2XId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setL2XId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2XRemap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2XRemap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2XRemap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2XRemap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2XRemap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2XRemap(const pd_match_record *key,
    p4_pd_orbisk_switch_l2XRemap_match_spec_t *match_spec);

/* learningDigestGeneration: table 0x0100003b, pipeline A, ternary match, 10 key bytes (35 bits) */
typedef struct p4_pd_orbisk_switch_learningDigestGeneration_match_spec {
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
  uint32_t ingMd_ingL2Aintf;
  uint32_t ingMd_ingL2Aintf_mask;
  uint8_t ingMd_invalidTunnel;
  uint8_t ingMd_invalidTunnel_mask;
  uint8_t ingMd_l2Control;
  uint8_t ingMd_l2Control_mask;
  uint8_t ingVlanStpCheck_invalidVlan;
  uint8_t ingVlanStpCheck_invalidVlan_mask;
  uint8_t ingVlanStpCheck_stpBlocked;
  uint8_t ingVlanStpCheck_stpBlocked_mask;
  uint8_t learningDigestMd_applicationId;
} p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t;
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_add_with_dot1xDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_add_with_dot1xTrap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_add_with_generateMacLearningDigest(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_add_with_generateVtepLearningDigest(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_add_with_resetApplicationId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_dot1xDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_dot1xDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_dot1xTrap(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_dot1xTrap_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_generateMacLearningDigest(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_generateMacLearningDigest_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_generateVtepLearningDigest(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_generateVtepLearningDigest_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_resetApplicationId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_modify_with_resetApplicationId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_set_default_action_resetApplicationId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_learningDigestGeneration_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_learningDigestGeneration(const pd_match_record *key,
    p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec);
void unbuild_mask_learningDigestGeneration(const pd_match_record *key,
    p4_pd_orbisk_switch_learningDigestGeneration_match_spec_t *match_spec);

/* bridgeToEA: table 0x11010024, pipeline B, no key */
pd_status p4_pd_orbisk_switch_bridgeToEA_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_bridgeToEA_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_bridgeToEA_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_bridgeToEA_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_bridgeToEA_set_default_action_add_header_for_EA(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_bridgeToEA_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_bridgeToEA_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_bridgeToEA_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_bridgeToEA_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_bridgeToEA_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_bridgeToEA_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_bridgeToEA_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* ================================================================== */
/* IP routing tables */
/* ================================================================== */

/* l3DmacCheck: table 0x01000011, pipeline A, ternary match, 10 key bytes (65 bits) */
typedef struct p4_pd_orbisk_switch_l3DmacCheck_match_spec {
  uint32_t ingMd_dmacOui;
  uint32_t ingMd_dmacOui_mask;
  uint32_t ingMd_dmacStation;
  uint32_t ingMd_dmacStation_mask;
  uint16_t ingMd_ingL3Aintf;
  uint16_t ingMd_ingL3Aintf_mask;
  uint8_t ingMd_v4V6Valid;
  uint8_t ingMd_v4V6Valid_mask;
  uint8_t phase0_portType;
  uint8_t phase0_portType_mask;
} p4_pd_orbisk_switch_l3DmacCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_add_with_ignoreIngL3DmacValid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_add_with_setIngL3DmacValid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_ignoreIngL3DmacValid(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_ignoreIngL3DmacValid_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_setIngL3DmacValid(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_modify_with_setIngL3DmacValid_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_l3DmacCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l3DmacCheck_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l3DmacCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l3DmacCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l3DmacCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l3DmacCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec);
void unbuild_mask_l3DmacCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_l3DmacCheck_match_spec_t *match_spec);

/* vrrpMacCheck: table 0x01000012, pipeline A, exact match, 8 key bytes (60 bits) */
typedef struct p4_pd_orbisk_switch_vrrpMacCheck_match_spec {
  uint16_t ingMd_ingL3Aintf;
  uint32_t ingMd_dmacOui;
  uint32_t ingMd_dmacStation;
} p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_add_with_setIngL3DmacValid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_modify_with_setIngL3DmacValid(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_modify_with_setIngL3DmacValid_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vrrpMacCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vrrpMacCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_vrrpMacCheck_match_spec_t *match_spec);

/* ipv4Host: table 0x11010008, pipeline B, exact match, 5 key bytes (40 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4Host_match_spec {
  uint8_t l3Info_vrfId;
  uint32_t ingIpv4_dip;
} p4_pd_orbisk_switch_ipv4Host_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4Host_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_add_with_setEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_add_with_setNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_add_with_setNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_add_with_setNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_modify_with_setNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4Host_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4Host_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4Host_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Host_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4Host_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4Host_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4Host_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4Host_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4Host_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4Host_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4Host_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4Host_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4Host_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4Host_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4Host_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4Host_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4Host(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4Host_match_spec_t *match_spec);

/* ipv4ShortMaskLpm: table 0x1101000c, pipeline B, longest prefix match, 5 key bytes (40 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec {
  uint8_t l3Info_vrfId;
  uint32_t ingIpv4_dip;
  uint16_t ingIpv4_dip_prefix_length;
} p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_ipv4ShortMaskLpmMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_ipv4ShortMaskLpmMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_default_action_ipv4ShortMaskLpmMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4ShortMaskLpm_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4ShortMaskLpm(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
void unbuild_mask_ipv4ShortMaskLpm(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);

/* ipv4Partition0: table 0x1101000a, pipeline B, longest prefix match, 5 key bytes (40 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4Partition0_match_spec {
  uint8_t l3Info_vrfId;
  uint32_t ingIpv4_dipAndVrf;
  uint16_t ingIpv4_dipAndVrf_prefix_length;
} p4_pd_orbisk_switch_ipv4Partition0_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_add_with_setIpv4PrtResultXFirst(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_modify_with_setIpv4PrtResultXFirst(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_modify_with_setIpv4PrtResultXFirst_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4Partition0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4Partition0_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4Partition0_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4Partition0_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4Partition0_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4Partition0_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4Partition0_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4Partition0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4Partition0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4Partition0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4Partition0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec);
void unbuild_mask_ipv4Partition0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4Partition0_match_spec_t *match_spec);

/* ipv4FinalResolve0: table 0x1101000b, pipeline B, partitioned longest prefix match, 6 key bytes (48 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec {
  uint16_t fibV4ResultX_partIdx;
  uint32_t ingIpv4_dip;
  uint16_t ingIpv4_dip_prefix_length;
} p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setDefaultVrf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setNextHop0First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop0First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setNextHop1First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop1First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setNextHop2First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_add_with_setNextHop3First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setDefaultVrf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setDefaultVrf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop0First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop0First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop0First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop0First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop1First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop1First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop1First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop1First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop2First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop2First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop3First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_modify_with_setNextHop3First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_set_default_action_setDefaultVrf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4FinalResolve0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4FinalResolve0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec);
void unbuild_mask_ipv4FinalResolve0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4FinalResolve0_match_spec_t *match_spec);

/* ipv6Host: table 0x01000022, pipeline A, exact match, 17 key bytes (136 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6Host_match_spec {
  uint8_t l3Info_vrfId;
  uint8_t ingIpv6_dip[16];
} p4_pd_orbisk_switch_ipv6Host_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6Host_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_add_with_setEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_add_with_setNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_add_with_setNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_add_with_setNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_modify_with_setNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6Host_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6Host_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6Host_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Host_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6Host_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6Host_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6Host_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6Host_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6Host_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6Host_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6Host_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6Host_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6Host_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6Host_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6Host_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6Host_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6Host(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6Host_match_spec_t *match_spec);

/* ipv6ShortMaskLpm: table 0x0100002e, pipeline A, longest prefix match, 17 key bytes (136 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec {
  uint8_t l3Info_vrfId;
  uint8_t ingIpv6_dip[16];
  uint16_t ingIpv6_dip_prefix_length;
} p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_add_with_setEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_add_with_setFibMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_add_with_setNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_add_with_setNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_add_with_setNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setFibMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setFibMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_set_default_action_setFibMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6ShortMaskLpm_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6ShortMaskLpm(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
void unbuild_mask_ipv6ShortMaskLpm(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);

/* ipv6Partition: table 0x0100002d, pipeline A, longest prefix match, 17 key bytes (136 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6Partition_match_spec {
  uint8_t l3Info_vrfId;
  uint8_t ingIpv6_dip[16];
  uint16_t ingIpv6_dip_prefix_length;
} p4_pd_orbisk_switch_ipv6Partition_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6Partition_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_add_with_setIpv6PrtIdxEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_add_with_setIpv6PrtIdxNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_add_with_setIpv6PrtIdxNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_add_with_setIpv6PrtIdxNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_modify_with_setIpv6PrtIdxNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6Partition_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6Partition_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6Partition_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6Partition_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6Partition_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6Partition_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6Partition_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6Partition_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6Partition_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6Partition_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6Partition(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec);
void unbuild_mask_ipv6Partition(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6Partition_match_spec_t *match_spec);

/* ipv6FinalResolve: table 0x01000031, pipeline A, partitioned longest prefix match, 18 key bytes (144 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6FinalResolve_match_spec {
  uint16_t ingIpv6_fibPartitionIndex;
  uint8_t ingIpv6_dip[16];
  uint16_t ingIpv6_dip_prefix_length;
} p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_setEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_setNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_setNextHop2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_setNextHop3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_modify_with_setNextHop3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6FinalResolve_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6FinalResolve(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec);
void unbuild_mask_ipv6FinalResolve(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t *match_spec);

/* ipv6LgMaskPartition0: table 0x01000023, pipeline A, longest prefix match, 17 key bytes (136 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec {
  uint8_t l3Info_vrfId;
  uint8_t ingIpv6_dip[16];
  uint16_t ingIpv6_dip_prefix_length;
} p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_add_with_setIpv6PrtResultXFirst(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_modify_with_setIpv6PrtResultXFirst(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_modify_with_setIpv6PrtResultXFirst_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskPartition0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6LgMaskPartition0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec);
void unbuild_mask_ipv6LgMaskPartition0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6LgMaskPartition0_match_spec_t *match_spec);

/* ipv6LgMaskFinalResolve0: table 0x0100002c, pipeline A, partitioned longest prefix match, 18 key bytes (144 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec {
  uint16_t fibV6ResultX_partIdx;
  uint8_t ingIpv6_dip[16];
  uint16_t ingIpv6_dip_prefix_length;
} p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_add_with_ipv6LgMaskFinalResolveDefaultFirst(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_add_with_setV6NextHop0First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_add_with_setV6NextHop1First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_add_with_setV6NextHop2First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_add_with_setV6NextHop3First(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_ipv6LgMaskFinalResolveDefaultFirst(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_ipv6LgMaskFinalResolveDefaultFirst_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop0First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop0First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop1First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop1First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop2First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop2First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop3First(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_modify_with_setV6NextHop3First_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_set_default_action_ipv6LgMaskFinalResolveDefaultFirst(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv6LgMaskFinalResolve0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec);
void unbuild_mask_ipv6LgMaskFinalResolve0(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv6LgMaskFinalResolve0_match_spec_t *match_spec);

/* ================================================================== */
/* Next hops and load balancing */
/* ================================================================== */

/* ecmpGroup: table 0x1101000d, pipeline B, exact match, 2 key bytes (15 bits), entries name a member or group of ecmpMemberActionProfile */
typedef struct p4_pd_orbisk_switch_ecmpGroup_match_spec {
  uint16_t l3_nextHop;
} p4_pd_orbisk_switch_ecmpGroup_match_spec_t;
pd_status p4_pd_orbisk_switch_ecmpGroup_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ecmpGroup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ecmpGroup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ecmpGroup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ecmpGroup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ecmpGroup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ecmpGroup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ecmpGroup(const pd_match_record *key,
    p4_pd_orbisk_switch_ecmpGroup_match_spec_t *match_spec);

/* reservedNextHop: table 0x1101000e, pipeline B, exact match, 2 key bytes (15 bits) */
typedef struct p4_pd_orbisk_switch_reservedNextHop_match_spec {
  uint16_t l3_nextHop;
} p4_pd_orbisk_switch_reservedNextHop_match_spec_t;
pd_status p4_pd_orbisk_switch_reservedNextHop_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_add_with_setNextHopToCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_modify_with_setNextHopToCpu(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_modify_with_setNextHopToCpu_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_reservedNextHop_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_reservedNextHop_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_reservedNextHop_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_reservedNextHop_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_reservedNextHop_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_reservedNextHop(const pd_match_record *key,
    p4_pd_orbisk_switch_reservedNextHop_match_spec_t *match_spec);

/* nextHop0: table 0x1101000f, pipeline B, exact match, 2 key bytes (15 bits) */
typedef struct p4_pd_orbisk_switch_nextHop0_match_spec {
  uint16_t l3_nextHop;
} p4_pd_orbisk_switch_nextHop0_match_spec_t;
pd_status p4_pd_orbisk_switch_nextHop0_table_add_with_setNextHopDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHopDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_table_modify_with_setNextHopDetails(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNextHopDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_nextHop0_table_modify_with_setNextHopDetails_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setNextHopDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_nextHop0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_nextHop0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_nextHop0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_nextHop0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_nextHop0_set_default_action_setNextHopDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setNextHopDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_nextHop0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_nextHop0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_nextHop0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_nextHop0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_nextHop0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_nextHop0(const pd_match_record *key,
    p4_pd_orbisk_switch_nextHop0_match_spec_t *match_spec);

/* routerNextHop0: table 0x11010010, pipeline B, exact match, 2 key bytes (15 bits) */
typedef struct p4_pd_orbisk_switch_routerNextHop0_match_spec {
  uint16_t l3_nextHop;
} p4_pd_orbisk_switch_routerNextHop0_match_spec_t;
pd_status p4_pd_orbisk_switch_routerNextHop0_table_add_with_setRouterNextHopDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_modify_with_setRouterNextHopDetails(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_modify_with_setRouterNextHopDetails_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_routerNextHop0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_routerNextHop0_set_default_action_setRouterNextHopDetails(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_routerNextHop0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_routerNextHop0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_routerNextHop0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_routerNextHop0(const pd_match_record *key,
    p4_pd_orbisk_switch_routerNextHop0_match_spec_t *match_spec);

/* lagGroup: table 0x11010023, pipeline B, ternary match, 3 key bytes (20 bits), entries name a member or group of lagPortActionProfile */
typedef struct p4_pd_orbisk_switch_lagGroup_match_spec {
  uint32_t egrMd_egrL2AintfUnresolved;
  uint32_t egrMd_egrL2AintfUnresolved_mask;
} p4_pd_orbisk_switch_lagGroup_match_spec_t;
pd_status p4_pd_orbisk_switch_lagGroup_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagGroup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec,
    uint32_t *priority,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_lagGroup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagGroup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_lagGroup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_lagGroup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_lagGroup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_lagGroup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_lagGroup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_lagGroup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_lagGroup(const pd_match_record *key,
    p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec);
void unbuild_mask_lagGroup(const pd_match_record *key,
    p4_pd_orbisk_switch_lagGroup_match_spec_t *match_spec);

/* ecmpHashSelection: table 0x01000043, pipeline A, ternary match, 9 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_ecmpHashSelection_match_spec {
  uint8_t innerEthHdr_valid;
  uint8_t innerEthHdr_valid_mask;
  uint8_t innerIpv4Hdr_valid;
  uint8_t innerIpv4Hdr_valid_mask;
  uint8_t innerIpv4Hdr_flagsMf;
  uint8_t innerIpv4Hdr_flagsMf_mask;
  uint8_t innerIpv6Hdr_valid;
  uint8_t innerIpv6Hdr_valid_mask;
  uint8_t innerL4PortHdr_valid;
  uint8_t innerL4PortHdr_valid_mask;
  uint8_t l4PortHdr_valid;
  uint8_t l4PortHdr_valid_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerIpv4Hdr_flagsMf;
  uint8_t outerIpv4Hdr_flagsMf_mask;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_valid_mask;
} p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t;
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerEthHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerIpHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerL4Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpOuterIpHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpOuterL4Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerEthHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerEthHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerIpHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerIpHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerL4Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerL4Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterIpHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterIpHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterL4Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterL4Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ecmpHashSelection_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ecmpHashSelection(const pd_match_record *key,
    p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec);
void unbuild_mask_ecmpHashSelection(const pd_match_record *key,
    p4_pd_orbisk_switch_ecmpHashSelection_match_spec_t *match_spec);

/* lagHashSelection: table 0x01000042, pipeline A, ternary match, 10 key bytes (10 bits) */
typedef struct p4_pd_orbisk_switch_lagHashSelection_match_spec {
  uint8_t innerEthHdr_valid;
  uint8_t innerEthHdr_valid_mask;
  uint8_t innerIpv4Hdr_valid;
  uint8_t innerIpv4Hdr_valid_mask;
  uint8_t innerIpv4Hdr_flagsMf;
  uint8_t innerIpv4Hdr_flagsMf_mask;
  uint8_t innerIpv6Hdr_valid;
  uint8_t innerIpv6Hdr_valid_mask;
  uint8_t innerL4PortHdr_valid;
  uint8_t innerL4PortHdr_valid_mask;
  uint8_t l4PortHdr_valid;
  uint8_t l4PortHdr_valid_mask;
  uint8_t outerEthHdr_valid;
  uint8_t outerEthHdr_valid_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerIpv4Hdr_flagsMf;
  uint8_t outerIpv4Hdr_flagsMf_mask;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_valid_mask;
} p4_pd_orbisk_switch_lagHashSelection_match_spec_t;
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagInnerEthHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagInnerIpHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagInnerL4Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagOuterEthHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagOuterIpHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_add_with_setHashValuesLagOuterL4Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerEthHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerEthHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerIpHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerIpHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerL4Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerL4Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterEthHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterEthHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterIpHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterIpHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterL4Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterL4Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_lagHashSelection_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_lagHashSelection_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_lagHashSelection_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_lagHashSelection_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_lagHashSelection_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_lagHashSelection(const pd_match_record *key,
    p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec);
void unbuild_mask_lagHashSelection(const pd_match_record *key,
    p4_pd_orbisk_switch_lagHashSelection_match_spec_t *match_spec);

/* hashComputeInnerIpHdr: table 0x01000002, pipeline A, exact match, 2 key bytes (2 bits) */
typedef struct p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec {
  uint8_t innerIpv4Hdr_valid;
  uint8_t innerIpv6Hdr_valid;
} p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t;
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv4HdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv6HdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv4HdrAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv4HdrAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv6HdrAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv6HdrAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerIpHdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_hashComputeInnerIpHdr(const pd_match_record *key,
    p4_pd_orbisk_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);

/* hashComputeOuterIpv4Hdr: table 0x01000037, pipeline A, no key */
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_set_default_action_hashComputeOuterIpv4HdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv4Hdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* hashComputeOuterIpv6Hdr: table 0x01000038, pipeline A, no key */
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_set_default_action_hashComputeOuterIpv6HdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashComputeOuterIpv6Hdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* hashComputeInnerEthHdr: table 0x01000039, pipeline A, no key */
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_set_default_action_hashComputeInnerEthHdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashComputeInnerEthHdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* hashComputeIpAndL4Hdr: table 0x0100003e, pipeline A, no key */
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_set_default_action_hashComputeIpAndL4HdrAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashComputeIpAndL4Hdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* hashFromCpuHdr: table 0x01000041, pipeline A, no key */
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_set_default_action_copyHashFromCpuHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_hashFromCpuHdr_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* ================================================================== */
/* Multicast */
/* ================================================================== */

/* ipv4McGroupVlan: table 0x01000046, pipeline A, exact match, 6 key bytes (44 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec {
  uint32_t ingIpv4_dip;
  uint16_t ingMd_ingL3Aintf;
} p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_add_with_setIpv4GroupVlanIndex(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_modify_with_setIpv4GroupVlanIndex(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_modify_with_setIpv4GroupVlanIndex_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4McGroupVlan_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4McGroupVlan(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4McGroupVlan_match_spec_t *match_spec);

/* ipv4McSourceGroupVlan: table 0x0100004e, pipeline A, exact match, 6 key bytes (48 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec {
  uint32_t ingIpv4_sip;
  uint16_t ingIpmcSGVLookup_index;
} p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t;
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_add_with_setIpmcResult(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpmcResult_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_modify_with_setIpmcResult(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIpmcResult_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_modify_with_setIpmcResult_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIpmcResult_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ipv4McSourceGroupVlan_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ipv4McSourceGroupVlan(const pd_match_record *key,
    p4_pd_orbisk_switch_ipv4McSourceGroupVlan_match_spec_t *match_spec);

/* l2Multicast: table 0x01000040, pipeline A, exact match, 8 key bytes (60 bits) */
typedef struct p4_pd_orbisk_switch_l2Multicast_match_spec {
  uint32_t egrMd_dmacOui;
  uint32_t egrMd_dmacStation;
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_l2Multicast_match_spec_t;
pd_status p4_pd_orbisk_switch_l2Multicast_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_add_with_setL2McResult(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2McResult_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2Multicast_table_modify_with_setL2McResult(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2McResult_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Multicast_table_modify_with_setL2McResult_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2McResult_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_l2Multicast_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_l2Multicast_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_l2Multicast_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_l2Multicast_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_l2Multicast_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_l2Multicast_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_l2Multicast_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_l2Multicast_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_l2Multicast_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_l2Multicast_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_l2Multicast(const pd_match_record *key,
    p4_pd_orbisk_switch_l2Multicast_match_spec_t *match_spec);

/* finalizeMcResult: table 0x01000053, pipeline A, ternary match, 9 key bytes (26 bits) */
typedef struct p4_pd_orbisk_switch_finalizeMcResult_match_spec {
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_trapToCpu_mask;
  uint8_t ingIpmc_eValid;
  uint8_t ingIpmc_eValid_mask;
  uint8_t ingL2Mc_eValid;
  uint8_t ingL2Mc_eValid_mask;
  uint8_t ingMd_igmpSnoopingEnabled;
  uint8_t ingMd_igmpSnoopingEnabled_mask;
  uint8_t ingMd_ipMcast;
  uint8_t ingMd_ipMcast_mask;
  uint8_t ingMd_llm;
  uint8_t ingMd_llm_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint8_t ingMd_ttl;
  uint8_t ingMd_ttl_mask;
  uint8_t l3Info_ipRouting;
  uint8_t l3Info_ipRouting_mask;
} p4_pd_orbisk_switch_finalizeMcResult_match_spec_t;
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultCancel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultFlood(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultIpmc(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultL2mc(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultL2mcFlood(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_add_with_finalizeMcResultL3Rpf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultCancel(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultCancel_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultFlood(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultFlood_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultIpmc(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultIpmc_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mc(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mc_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mcFlood(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mcFlood_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL3Rpf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_modify_with_finalizeMcResultL3Rpf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalizeMcResult_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_finalizeMcResult_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_finalizeMcResult_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_finalizeMcResult_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_finalizeMcResult_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_finalizeMcResult(const pd_match_record *key,
    p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec);
void unbuild_mask_finalizeMcResult(const pd_match_record *key,
    p4_pd_orbisk_switch_finalizeMcResult_match_spec_t *match_spec);

/* egressMcRemap: table 0x01000060, pipeline A, exact match, 2 key bytes (16 bits) */
typedef struct p4_pd_orbisk_switch_egressMcRemap_match_spec {
  uint16_t eg_intr_md_egress_rid;
} p4_pd_orbisk_switch_egressMcRemap_match_spec_t;
pd_status p4_pd_orbisk_switch_egressMcRemap_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_add_with_setL2DomainReplicated(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_modify_with_setL2DomainReplicated(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_modify_with_setL2DomainReplicated_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMcRemap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressMcRemap_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressMcRemap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressMcRemap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressMcRemap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressMcRemap(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMcRemap_match_spec_t *match_spec);

/* mcastPrune: table 0x11010028, pipeline B, ternary match, 8 key bytes (42 bits) */
typedef struct p4_pd_orbisk_switch_mcastPrune_match_spec {
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint32_t egrMd_egrL2AintfUnresolved;
  uint32_t egrMd_egrL2AintfUnresolved_mask;
  uint8_t egrMd_routed;
  uint8_t egrMd_routed_mask;
  uint16_t ig_intr_md_for_tm_mcast_grp_a;
  uint16_t ig_intr_md_for_tm_mcast_grp_a_mask;
  uint8_t phase0_portType;
  uint8_t phase0_portType_mask;
} p4_pd_orbisk_switch_mcastPrune_match_spec_t;
pd_status p4_pd_orbisk_switch_mcastPrune_table_add_with_l3FloodEgressL2Aintf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_add_with_setPruneParams(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParams_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_add_with_setPruneParamsForL2Flood(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_add_with_setPruneParamsForL3Only(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_add_with_setPruneParamsUnused(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_l3FloodEgressL2Aintf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_l3FloodEgressL2Aintf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParams(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPruneParams_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParams_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParams_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsForL2Flood(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsForL2Flood_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsForL3Only(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsForL3Only_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsUnused(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_modify_with_setPruneParamsUnused_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_mcastPrune_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_mcastPrune_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_mcastPrune_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mcastPrune_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_mcastPrune_set_default_action_setPruneParamsForL2Flood(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_mcastPrune_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_mcastPrune_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_mcastPrune_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_mcastPrune_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mcastPrune_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_mcastPrune(const pd_match_record *key,
    p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec);
void unbuild_mask_mcastPrune(const pd_match_record *key,
    p4_pd_orbisk_switch_mcastPrune_match_spec_t *match_spec);

/* ================================================================== */
/* VXLAN and tunnels */
/* ================================================================== */

/* tunnelTermination: table 0x01000003, pipeline A, ternary match, 12 key bytes (84 bits) */
typedef struct p4_pd_orbisk_switch_tunnelTermination_match_spec {
  uint8_t ingMd_tunnelType;
  uint8_t ingMd_tunnelType_mask;
  uint32_t outerEthHdr_dmacOui;
  uint32_t outerEthHdr_dmacOui_mask;
  uint32_t outerEthHdr_dmacStation;
  uint32_t outerEthHdr_dmacStation_mask;
  uint32_t outerIpv4Hdr_dip;
  uint32_t outerIpv4Hdr_dip_mask;
  uint8_t outerIpv6Hdr_valid;
} p4_pd_orbisk_switch_tunnelTermination_match_spec_t;
pd_status p4_pd_orbisk_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeNoneIpv4AndL2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeNoneIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeVxlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv4AndL2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv4AndL2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeVxlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeVxlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_tunnelTermination_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tunnelTermination_set_default_action_setTunnelTerminationTypeNoneIpv4AndL2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tunnelTermination_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tunnelTermination_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelTermination_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tunnelTermination(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec);
void unbuild_mask_tunnelTermination(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelTermination_match_spec_t *match_spec);

/* vxlanL2AintfLookup: table 0x01000008, pipeline A, exact match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec {
  uint32_t outerIpv4Hdr_sip;
} p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t;
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_add_with_setVxlanL2AintfInvalidTunnel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_add_with_setVxlanL2AintfLookupFields(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_add_with_setvxlanL2AintfLookupMissSkipVtepLearn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_add_with_setvxlanL2AintfLookupMissVtepLearn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setVxlanL2AintfInvalidTunnel(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setVxlanL2AintfInvalidTunnel_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setVxlanL2AintfLookupFields(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setVxlanL2AintfLookupFields_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setvxlanL2AintfLookupMissSkipVtepLearn(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setvxlanL2AintfLookupMissSkipVtepLearn_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setvxlanL2AintfLookupMissVtepLearn(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_modify_with_setvxlanL2AintfLookupMissVtepLearn_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_set_default_action_setVxlanL2AintfInvalidTunnel(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_set_default_action_setVxlanL2AintfLookupFields(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_set_default_action_setvxlanL2AintfLookupMissSkipVtepLearn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_set_default_action_setvxlanL2AintfLookupMissVtepLearn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vxlanL2AintfLookup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vxlanL2AintfLookup(const pd_match_record *key,
    p4_pd_orbisk_switch_vxlanL2AintfLookup_match_spec_t *match_spec);

/* vxlanVniResolution: table 0x01000009, pipeline A, exact match, 4 key bytes (27 bits) */
typedef struct p4_pd_orbisk_switch_vxlanVniResolution_match_spec {
  uint16_t ingMd_ingressVniHigh;
  uint8_t ingMd_ingressVniLow;
  uint8_t ingMd_tunnelType;
} p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t;
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_add_with_vxlanVniResolutionHit(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_add_with_vxlanVniResolutionMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_vxlanVniResolutionHit(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_vxlanVniResolutionHit_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_vxlanVniResolutionMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_modify_with_vxlanVniResolutionMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_set_default_action_vxlanVniResolutionHit(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_set_default_action_vxlanVniResolutionMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vxlanVniResolution_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vxlanVniResolution(const pd_match_record *key,
    p4_pd_orbisk_switch_vxlanVniResolution_match_spec_t *match_spec);

/* vxlanVarp: table 0x01000034, pipeline A, ternary match, 8 key bytes (50 bits) */
typedef struct p4_pd_orbisk_switch_vxlanVarp_match_spec {
  uint8_t ingMd_vxlanVarpIp;
  uint32_t innerEthHdr_dmacOui;
  uint32_t innerEthHdr_dmacOui_mask;
  uint32_t innerEthHdr_dmacStation;
  uint32_t innerEthHdr_dmacStation_mask;
  uint8_t outerIpv4Hdr_valid;
} p4_pd_orbisk_switch_vxlanVarp_match_spec_t;
pd_status p4_pd_orbisk_switch_vxlanVarp_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_add_with_setDropVarpVxlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_modify_with_setDropVarpVxlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_modify_with_setDropVarpVxlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_vxlanVarp_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vxlanVarp_set_default_action_setDropVarpVxlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vxlanVarp_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vxlanVarp_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vxlanVarp_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_vxlanVarp(const pd_match_record *key,
    p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec);
void unbuild_mask_vxlanVarp(const pd_match_record *key,
    p4_pd_orbisk_switch_vxlanVarp_match_spec_t *match_spec);

/* vxlanArp: table 0x01000035, pipeline A, no key */
pd_status p4_pd_orbisk_switch_vxlanArp_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_vxlanArp_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_vxlanArp_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanArp_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_vxlanArp_set_default_action_cancelVxlanDecap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanArp_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_vxlanArp_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_vxlanArp_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_vxlanArp_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_vxlanArp_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_vxlanArp_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_vxlanArp_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* tunnelDip0: table 0x0100005c, pipeline A, exact match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_tunnelDip0_match_spec {
  uint32_t egrMd_tunnelInfo;
} p4_pd_orbisk_switch_tunnelDip0_match_spec_t;
pd_status p4_pd_orbisk_switch_tunnelDip0_table_add_with_setTunnelDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTunnelDip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_modify_with_setTunnelDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTunnelDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_modify_with_setTunnelDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTunnelDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelDip0_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tunnelDip0_set_default_action_setTunnelDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setTunnelDip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tunnelDip0_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tunnelDip0_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelDip0_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tunnelDip0(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelDip0_match_spec_t *match_spec);

/* tunnelVniAndVti: table 0x0100005f, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_tunnelVniAndVti_match_spec {
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t;
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_add_with_setInvalidVni(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_add_with_setVxlanVniAndVti(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_modify_with_setInvalidVni(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_modify_with_setInvalidVni_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_modify_with_setVxlanVniAndVti(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_modify_with_setVxlanVniAndVti_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_set_default_action_setInvalidVni(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelVniAndVti_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tunnelVniAndVti(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelVniAndVti_match_spec_t *match_spec);

/* tunnelL2Info: table 0x01000066, pipeline A, exact match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_tunnelL2Info_match_spec {
  uint32_t egrMd_tunnelInfo;
} p4_pd_orbisk_switch_tunnelL2Info_match_spec_t;
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_add_with_setTunnelL2Info(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_add_with_setTunnelL2InfoDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_modify_with_setTunnelL2Info(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_modify_with_setTunnelL2Info_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_modify_with_setTunnelL2InfoDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_modify_with_setTunnelL2InfoDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelL2Info_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tunnelL2Info_set_default_action_setTunnelL2InfoDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tunnelL2Info_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tunnelL2Info_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelL2Info_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tunnelL2Info(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelL2Info_match_spec_t *match_spec);

/* tunnelResolve: table 0x1101001f, pipeline B, exact match, 2 key bytes (10 bits), entries name a member or group of tunnelMemberActionProfile */
typedef struct p4_pd_orbisk_switch_tunnelResolve_match_spec {
  uint16_t egrMd_tunnelNextHop;
} p4_pd_orbisk_switch_tunnelResolve_match_spec_t;
pd_status p4_pd_orbisk_switch_tunnelResolve_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tunnelResolve_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tunnelResolve_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tunnelResolve_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tunnelResolve_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tunnelResolve_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelResolve_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tunnelResolve(const pd_match_record *key,
    p4_pd_orbisk_switch_tunnelResolve_match_spec_t *match_spec);

/* encapDecap: table 0x01000067, pipeline A, ternary match, 9 key bytes (41 bits) */
typedef struct p4_pd_orbisk_switch_encapDecap_match_spec {
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t egrMd_encapType;
  uint8_t egrMd_routed;
  uint32_t egrMd_tunnelInfo;
  uint32_t egrMd_tunnelInfo_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_valid_mask;
} p4_pd_orbisk_switch_encapDecap_match_spec_t;
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_decapPPIPktFromCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_encapVxlanRouteIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_encapVxlanRouteIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_noDecapEncapVxlanL2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_noDecapNoEncapBridge(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_noDecapNoEncapRouteIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_noDecapNoEncapRouteIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_add_with_normalizeEthHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_decapPPIPktFromCpu(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_decapPPIPktFromCpu_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_encapVxlanRouteIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_encapVxlanRouteIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_encapVxlanRouteIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_encapVxlanRouteIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapEncapVxlanL2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapEncapVxlanL2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapBridge(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapBridge_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_normalizeEthHdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_modify_with_normalizeEthHdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_encapDecap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_encapDecap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_encapDecap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_encapDecap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_encapDecap_set_default_action_normalizeEthHdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_encapDecap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_encapDecap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_encapDecap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_encapDecap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_encapDecap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_encapDecap(const pd_match_record *key,
    p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec);
void unbuild_mask_encapDecap(const pd_match_record *key,
    p4_pd_orbisk_switch_encapDecap_match_spec_t *match_spec);

/* decapIngress: table 0x01000049, pipeline A, exact match, 3 key bytes (5 bits) */
typedef struct p4_pd_orbisk_switch_decapIngress_match_spec {
  uint8_t egrMd_decapType;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv6Hdr_valid;
} p4_pd_orbisk_switch_decapIngress_match_spec_t;
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_decapIngressDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_decapIngressVxlan(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_removeOuterIpv4Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_removeOuterIpv6Hdr(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_saveOuterIpv4Ecn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_add_with_saveOuterIpv6Ecn(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_decapIngressDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_decapIngressDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_decapIngressVxlan(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_decapIngressVxlan_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_removeOuterIpv4Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_removeOuterIpv4Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_removeOuterIpv6Hdr(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_removeOuterIpv6Hdr_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_saveOuterIpv4Ecn(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_saveOuterIpv4Ecn_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_saveOuterIpv6Ecn(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_modify_with_saveOuterIpv6Ecn_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_decapIngress_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_decapIngress_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_decapIngress_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_decapIngress_set_default_action_decapIngressDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_decapIngress_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_decapIngress_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_decapIngress_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_decapIngress_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_decapIngress_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_decapIngress(const pd_match_record *key,
    p4_pd_orbisk_switch_decapIngress_match_spec_t *match_spec);

/* globalFields: table 0x01000064, pipeline A, ternary match, 8 key bytes (40 bits) */
typedef struct p4_pd_orbisk_switch_globalFields_match_spec {
  uint8_t dot1qExists_valid;
  uint8_t dot1qExists_valid_mask;
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t egrMd_encapType;
  uint8_t egrMd_ingressTagged;
  uint8_t egrMd_ingressTagged_mask;
  uint32_t egrMd_tunnelInfo;
  uint32_t egrMd_tunnelInfo_mask;
} p4_pd_orbisk_switch_globalFields_match_spec_t;
pd_status p4_pd_orbisk_switch_globalFields_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelCommon(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelCommon(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelCommon_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_globalFields_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_globalFields_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_globalFields_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_globalFields_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_globalFields_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_globalFields_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_globalFields_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_globalFields_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_globalFields_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_globalFields_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_globalFields(const pd_match_record *key,
    p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec);
void unbuild_mask_globalFields(const pd_match_record *key,
    p4_pd_orbisk_switch_globalFields_match_spec_t *match_spec);

/* ================================================================== */
/* NAT */
/* ================================================================== */

/* ingressNatProfile: table 0x01000020, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_ingressNatProfile_match_spec {
  uint16_t ingMd_ingL3Aintf;
} p4_pd_orbisk_switch_ingressNatProfile_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_add_with_setIngNatProfile(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIngNatProfile_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_modify_with_setIngNatProfile(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIngNatProfile_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_modify_with_setIngNatProfile_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIngNatProfile_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressNatProfile_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressNatProfile_set_default_action_setIngNatProfile(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setIngNatProfile_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressNatProfile_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressNatProfile_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressNatProfile_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressNatProfile(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressNatProfile_match_spec_t *match_spec);

/* staticDnatAcl: table 0x01000025, pipeline A, ternary match, 6 key bytes (41 bits) */
typedef struct p4_pd_orbisk_switch_staticDnatAcl_match_spec {
  uint8_t haloKeyOrig_isFrag;
  uint8_t haloKeyOrig_isFrag_mask;
  uint32_t ingIpv4_sip;
  uint32_t ingIpv4_sip_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
} p4_pd_orbisk_switch_staticDnatAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_add_with_resetDnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_add_with_setDnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setDnatAclId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_modify_with_resetDnatAclId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_modify_with_resetDnatAclId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_modify_with_setDnatAclId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setDnatAclId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_modify_with_setDnatAclId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setDnatAclId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_staticDnatAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_staticDnatAcl_set_default_action_resetDnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_staticDnatAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_staticDnatAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_staticDnatAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_staticDnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec);
void unbuild_mask_staticDnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_staticDnatAcl_match_spec_t *match_spec);

/* addrPortDnat: table 0x01000026, pipeline A, exact match, 9 key bytes (68 bits), entries carry staticDnatCounters */
typedef struct p4_pd_orbisk_switch_addrPortDnat_match_spec {
  uint32_t ingIpv4_dip;
  uint16_t ingMd_dnatAclId;
  uint16_t ingMd_dstPort;
  uint8_t ingMd_ingNatProfile;
} p4_pd_orbisk_switch_addrPortDnat_match_spec_t;
pd_status p4_pd_orbisk_switch_addrPortDnat_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_add_with_setTranslatedDipNextHopAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_add_with_setTranslatedDipNextHopEcmpAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_add_with_setTranslatedDipPortNextHopAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_add_with_setTranslatedDipPortNextHopEcmpAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipNextHopAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipNextHopAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipNextHopEcmpAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipNextHopEcmpAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipPortNextHopAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipPortNextHopAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipPortNextHopEcmpAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_modify_with_setTranslatedDipPortNextHopEcmpAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_addrPortDnat_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_addrPortDnat_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_addrPortDnat_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_addrPortDnat_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_addrPortDnat(const pd_match_record *key,
    p4_pd_orbisk_switch_addrPortDnat_match_spec_t *match_spec);

/* addrOnlyDnat: table 0x01000027, pipeline A, exact match, 7 key bytes (52 bits) */
typedef struct p4_pd_orbisk_switch_addrOnlyDnat_match_spec {
  uint32_t ingIpv4_dip;
  uint16_t ingMd_dnatAclId;
  uint8_t ingMd_ingNatProfile;
} p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t;
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_add_with_setTranslatedDipNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_add_with_setTranslatedDipNextHopEcmp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_setTranslatedDipNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_setTranslatedDipNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_setTranslatedDipNextHopEcmp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_modify_with_setTranslatedDipNextHopEcmp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_addrOnlyDnat_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_addrOnlyDnat(const pd_match_record *key,
    p4_pd_orbisk_switch_addrOnlyDnat_match_spec_t *match_spec);

/* dynamicDnat1: table 0x01000021, pipeline A, exact match, 14 key bytes (112 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_dynamicDnat1_match_spec {
  uint32_t ingIpv4_dip;
  uint32_t ingIpv4_sip;
  uint16_t ingMd_dstPort;
  uint8_t ingMd_protocol;
  uint16_t ingMd_srcPort;
  uint8_t l3Info_vrfId;
} p4_pd_orbisk_switch_dynamicDnat1_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_add_with_setTranslatedDipNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_add_with_setTranslatedDipPortNextHopDynamic(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_setTranslatedDipNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_setTranslatedDipNextHop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_setTranslatedDipPortNextHopDynamic(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_modify_with_setTranslatedDipPortNextHopDynamic_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicDnat1_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicDnat1_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_dynamicDnat1_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_dynamicDnat1_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_dynamicDnat1_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicDnat1_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_dynamicDnat1_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicDnat1_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicDnat1_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicDnat1(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicDnat1_match_spec_t *match_spec);

/* dynamicFullConeCompressDip: table 0x0100001f, pipeline A, exact match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec {
  uint32_t ingIpv4_dip;
} p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_add_with_setFullConeDipRangeId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_modify_with_setFullConeDipRangeId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_modify_with_setFullConeDipRangeId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_set_default_action_setFullConeDipRangeId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeCompressDip_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicFullConeCompressDip(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicFullConeCompressDip_match_spec_t *match_spec);

/* dynamicFullConeDnat: table 0x01000024, pipeline A, exact match, 6 key bytes (41 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec {
  uint8_t ingMd_ingNatProfile;
  uint16_t ingMd_fullConeDipRangeId;
  uint8_t ingMd_protocol;
  uint16_t ingMd_dstPort;
} p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_add_with_setTranslatedDipPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_modify_with_setTranslatedDipPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_modify_with_setTranslatedDipPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicFullConeDnat_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicFullConeDnat(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicFullConeDnat_match_spec_t *match_spec);

/* egressNatProfile: table 0x11010012, pipeline B, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_egressNatProfile_match_spec {
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_egressNatProfile_match_spec_t;
pd_status p4_pd_orbisk_switch_egressNatProfile_table_add_with_setEgrNatProfile(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_modify_with_setEgrNatProfile(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_modify_with_setEgrNatProfile_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatProfile_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressNatProfile_set_default_action_setEgrNatProfile(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressNatProfile_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressNatProfile_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressNatProfile_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressNatProfile(const pd_match_record *key,
    p4_pd_orbisk_switch_egressNatProfile_match_spec_t *match_spec);

/* staticSnatAcl: table 0x11010004, pipeline B, ternary match, 6 key bytes (41 bits) */
typedef struct p4_pd_orbisk_switch_staticSnatAcl_match_spec {
  uint32_t outerIpv4Hdr_dip;
  uint32_t outerIpv4Hdr_dip_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint8_t haloKeyOrig_isFrag;
  uint8_t haloKeyOrig_isFrag_mask;
} p4_pd_orbisk_switch_staticSnatAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_add_with_resetSnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_add_with_setSnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setSnatAclId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_modify_with_resetSnatAclId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_modify_with_resetSnatAclId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_modify_with_setSnatAclId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setSnatAclId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_modify_with_setSnatAclId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setSnatAclId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_staticSnatAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_staticSnatAcl_set_default_action_resetSnatAclId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_staticSnatAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_staticSnatAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_staticSnatAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_staticSnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec);
void unbuild_mask_staticSnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_staticSnatAcl_match_spec_t *match_spec);

/* addrPortSnat: table 0x11010016, pipeline B, exact match, 9 key bytes (68 bits), entries carry staticSnatCounters */
typedef struct p4_pd_orbisk_switch_addrPortSnat_match_spec {
  uint16_t ingMd_snatAclId;
  uint32_t outerIpv4Hdr_sip;
  uint16_t l4PortHdr_srcPort;
  uint8_t ingMd_egrNatProfile;
} p4_pd_orbisk_switch_addrPortSnat_match_spec_t;
pd_status p4_pd_orbisk_switch_addrPortSnat_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_add_with_setTranslatedSipAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_add_with_setTranslatedSipPortAndCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_setTranslatedSipAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_setTranslatedSipAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_setTranslatedSipPortAndCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_modify_with_setTranslatedSipPortAndCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_addrPortSnat_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_addrPortSnat_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_addrPortSnat_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_addrPortSnat_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_addrPortSnat(const pd_match_record *key,
    p4_pd_orbisk_switch_addrPortSnat_match_spec_t *match_spec);

/* addrOnlySnat: table 0x11010017, pipeline B, exact match, 7 key bytes (52 bits) */
typedef struct p4_pd_orbisk_switch_addrOnlySnat_match_spec {
  uint16_t ingMd_snatAclId;
  uint32_t outerIpv4Hdr_sip;
  uint8_t ingMd_egrNatProfile;
} p4_pd_orbisk_switch_addrOnlySnat_match_spec_t;
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_add_with_setTranslatedSip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_modify_with_setTranslatedSip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_modify_with_setTranslatedSip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_addrOnlySnat_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_addrOnlySnat_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_addrOnlySnat_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_addrOnlySnat_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_addrOnlySnat_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_addrOnlySnat(const pd_match_record *key,
    p4_pd_orbisk_switch_addrOnlySnat_match_spec_t *match_spec);

/* dynamicSnatAcl: table 0x11010013, pipeline B, ternary match, 14 key bytes (112 bits) */
typedef struct p4_pd_orbisk_switch_dynamicSnatAcl_match_spec {
  uint8_t ingMd_egrNatProfile;
  uint8_t ingMd_egrNatProfile_mask;
  uint32_t outerIpv4Hdr_sip;
  uint32_t outerIpv4Hdr_sip_mask;
  uint32_t outerIpv4Hdr_dip;
  uint32_t outerIpv4Hdr_dip_mask;
  uint16_t l4PortHdr_srcPort;
  uint16_t l4PortHdr_srcPort_mask;
  uint16_t l4PortHdr_dstPort;
  uint16_t l4PortHdr_dstPort_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
} p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_add_with_clearDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_add_with_setDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_modify_with_clearDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_modify_with_clearDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_modify_with_setDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_modify_with_setDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_set_default_action_setDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnatAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicSnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec);
void unbuild_mask_dynamicSnatAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicSnatAcl_match_spec_t *match_spec);

/* dynamicSnat1: table 0x11010015, pipeline B, exact match, 14 key bytes (112 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_dynamicSnat1_match_spec {
  uint32_t ingMd_dynNatDip;
  uint16_t ingMd_dynNatDport;
  uint8_t ingMd_protocol;
  uint8_t l3Info_vrfId;
  uint16_t l4PortHdr_srcPort;
  uint32_t outerIpv4Hdr_sip;
} p4_pd_orbisk_switch_dynamicSnat1_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_add_with_setTranslatedSip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_add_with_setTranslatedSipPortDynamic(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_setTranslatedSip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_setTranslatedSip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_setTranslatedSipPortDynamic(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_modify_with_setTranslatedSipPortDynamic_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicSnat1_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicSnat1_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_dynamicSnat1_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_dynamicSnat1_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_dynamicSnat1_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicSnat1_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_dynamicSnat1_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicSnat1_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicSnat1_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicSnat1(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicSnat1_match_spec_t *match_spec);

/* dynamicNatCount: table 0x1101001e, pipeline B, ternary match, 5 key bytes (26 bits), entries carry dynNatCounters */
typedef struct p4_pd_orbisk_switch_dynamicNatCount_match_spec {
  uint8_t ingMd_snatHit;
  uint8_t ingMd_dnatHit;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint8_t ingMd_ingNatProfile;
  uint8_t ingMd_ingNatProfile_mask;
  uint8_t ingMd_egrNatProfile;
  uint8_t ingMd_egrNatProfile_mask;
} p4_pd_orbisk_switch_dynamicNatCount_match_spec_t;
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_add_with_countDynamicNat(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_modify_with_countDynamicNat(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_modify_with_countDynamicNat_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_dynamicNatCount_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_dynamicNatCount_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_dynamicNatCount_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_dynamicNatCount_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_dynamicNatCount_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_dynamicNatCount(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec);
void unbuild_mask_dynamicNatCount(const pd_match_record *key,
    p4_pd_orbisk_switch_dynamicNatCount_match_spec_t *match_spec);

/* natTcpFlags: table 0x11010006, pipeline B, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_natTcpFlags_match_spec {
  uint8_t outerTcpHdr_flags;
} p4_pd_orbisk_switch_natTcpFlags_match_spec_t;
pd_status p4_pd_orbisk_switch_natTcpFlags_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_add_with_setNatTcpFlags(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_modify_with_setNatTcpFlags(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_modify_with_setNatTcpFlags_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_natTcpFlags_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_natTcpFlags_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_natTcpFlags_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_natTcpFlags_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_natTcpFlags_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_natTcpFlags(const pd_match_record *key,
    p4_pd_orbisk_switch_natTcpFlags_match_spec_t *match_spec);

/* natCpuTrapAcl: table 0x11010018, pipeline B, ternary match, 16 key bytes (121 bits) */
typedef struct p4_pd_orbisk_switch_natCpuTrapAcl_match_spec {
  uint8_t ingMd_natTcpFlags;
  uint8_t ingMd_natTcpFlags_mask;
  uint8_t ingMd_ingNatProfile;
  uint8_t ingMd_ingNatProfile_mask;
  uint8_t ingMd_dynEgrNatProfile;
  uint8_t ingMd_dynEgrNatProfile_mask;
  uint32_t outerIpv4Hdr_sip;
  uint32_t outerIpv4Hdr_sip_mask;
  uint32_t outerIpv4Hdr_dip;
  uint32_t outerIpv4Hdr_dip_mask;
  uint16_t l4PortHdr_srcPort;
  uint16_t l4PortHdr_srcPort_mask;
  uint16_t l4PortHdr_dstPort;
  uint16_t l4PortHdr_dstPort_mask;
  uint8_t outerIpv4Hdr_protocol;
  uint8_t outerIpv4Hdr_protocol_mask;
} p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_add_with_forwardToPeer(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_forwardToPeer_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_add_with_setNatCpuTrap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_add_with_setNatCpuTrapReverse(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_forwardToPeer(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_forwardToPeer_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_forwardToPeer_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_forwardToPeer_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_setNatCpuTrap(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_setNatCpuTrap_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_setNatCpuTrapReverse(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_modify_with_setNatCpuTrapReverse_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_natCpuTrapAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_natCpuTrapAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec);
void unbuild_mask_natCpuTrapAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_natCpuTrapAcl_match_spec_t *match_spec);

/* natCpuReasonCode: table 0x11010005, pipeline B, ternary match, 2 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_natCpuReasonCode_match_spec {
  uint8_t outerTcpHdr_valid;
  uint8_t outerTcpHdr_valid_mask;
  uint8_t outerTcpHdr_flags;
  uint8_t outerTcpHdr_flags_mask;
} p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t;
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_add_with_setCpuReasonCodeDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_add_with_setTcpFlagsCpuReasonCode(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_modify_with_setCpuReasonCodeDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_modify_with_setCpuReasonCodeDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_modify_with_setTcpFlagsCpuReasonCode(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_modify_with_setTcpFlagsCpuReasonCode_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_set_default_action_setCpuReasonCodeDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_natCpuReasonCode_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_natCpuReasonCode(const pd_match_record *key,
    p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec);
void unbuild_mask_natCpuReasonCode(const pd_match_record *key,
    p4_pd_orbisk_switch_natCpuReasonCode_match_spec_t *match_spec);

/* natChecksumUpdate: table 0x11010021, pipeline B, ternary match, 9 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_natChecksumUpdate_match_spec {
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_cpuReasonCode_mask;
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t ingMd_dnatHit;
  uint8_t ingMd_dnatHit_mask;
  uint8_t ingMd_snatHit;
  uint8_t ingMd_snatHit_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerL4Checksum_valid;
  uint8_t outerL4Checksum_valid_mask;
  uint16_t outerL4Checksum_checksum;
  uint16_t outerL4Checksum_checksum_mask;
  uint8_t outerUdpHdr_valid;
  uint8_t outerUdpHdr_valid_mask;
} p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t;
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_updateV4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_updateV4AndPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_updateV4AndTcp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_add_with_updateV4AndUdp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndTcp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndTcp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndUdp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_modify_with_updateV4AndUdp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_natChecksumUpdate_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_natChecksumUpdate(const pd_match_record *key,
    p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec);
void unbuild_mask_natChecksumUpdate(const pd_match_record *key,
    p4_pd_orbisk_switch_natChecksumUpdate_match_spec_t *match_spec);

/* egressNatCpuTrapHeader: table 0x01000070, pipeline A, exact match, 2 key bytes (2 bits) */
typedef struct p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec {
  uint8_t egrMd_natAclIdHi;
  uint8_t egrMd_natAclIdLo;
} p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t;
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_add_with_setNatCpuHeaderDnat(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_add_with_setNatCpuHeaderSnat(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_add_with_setNatCpuHeaderTwice(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderDnat(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderDnat_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderSnat(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderSnat_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderTwice(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_modify_with_setNatCpuHeaderTwice_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressNatCpuTrapHeader_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressNatCpuTrapHeader(const pd_match_record *key,
    p4_pd_orbisk_switch_egressNatCpuTrapHeader_match_spec_t *match_spec);

/* ================================================================== */
/* Halo classification */
/* ================================================================== */

/* haloPaclCrlId: table 0x01000015, pipeline A, exact match, 3 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_haloPaclCrlId_match_spec {
  uint8_t ingMd_v4V6Valid;
  uint16_t ig_intr_md_ingress_port;
} p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t;
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_add_with_setHaloCrlId2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_modify_with_setHaloCrlId2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_modify_with_setHaloCrlId2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloPaclCrlId_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloPaclCrlId(const pd_match_record *key,
    p4_pd_orbisk_switch_haloPaclCrlId_match_spec_t *match_spec);

/* haloRaclCrlId: table 0x01000016, pipeline A, exact match, 3 key bytes (15 bits) */
typedef struct p4_pd_orbisk_switch_haloRaclCrlId_match_spec {
  uint8_t ingMd_v4V6Valid;
  uint16_t ingMd_ingL3Aintf;
} p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_add_with_setHaloCrlId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setHaloCrlId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_modify_with_setHaloCrlId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloCrlId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_modify_with_setHaloCrlId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setHaloCrlId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRaclCrlId_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRaclCrlId(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRaclCrlId_match_spec_t *match_spec);

/* haloXformIpv4Sip: table 0x0100001c, pipeline A, ternary match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec {
  uint32_t ingIpv4_sip;
  uint32_t ingIpv4_sip_mask;
} p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_add_with_setHaloInvalidSip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_add_with_setHaloIpv4Common(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_add_with_setHaloXformIpv4Sip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloInvalidSip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloInvalidSip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloIpv4Common(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloIpv4Common_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloXformIpv4Sip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_modify_with_setHaloXformIpv4Sip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_set_default_action_setHaloIpv4Common(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Sip_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformIpv4Sip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec);
void unbuild_mask_haloXformIpv4Sip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv4Sip_match_spec_t *match_spec);

/* haloXformIpv4Dip: table 0x01000019, pipeline A, ternary match, 4 key bytes (32 bits) */
typedef struct p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec {
  uint32_t ingIpv4_dip;
  uint32_t ingIpv4_dip_mask;
} p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_add_with_setHaloInvalidDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_add_with_setHaloXformDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_setHaloInvalidDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_setHaloInvalidDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_setHaloXformDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_modify_with_setHaloXformDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv4Dip_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformIpv4Dip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec);
void unbuild_mask_haloXformIpv4Dip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv4Dip_match_spec_t *match_spec);

/* haloXformIpv6Sip: table 0x0100001b, pipeline A, ternary match, 16 key bytes (128 bits) */
typedef struct p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec {
  uint8_t ingIpv6_sip[16];
  uint8_t ingIpv6_sip_mask[16];
} p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_add_with_setHaloInvalidSip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_add_with_setHaloIpv6Common(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_add_with_setHaloXformIpv6Sip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloInvalidSip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloInvalidSip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloIpv6Common(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloIpv6Common_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloXformIpv6Sip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_modify_with_setHaloXformIpv6Sip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_set_default_action_setHaloIpv6Common(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Sip_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformIpv6Sip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec);
void unbuild_mask_haloXformIpv6Sip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv6Sip_match_spec_t *match_spec);

/* haloXformIpv6Dip: table 0x0100001a, pipeline A, ternary match, 16 key bytes (128 bits) */
typedef struct p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec {
  uint8_t ingIpv6_dip[16];
  uint8_t ingIpv6_dip_mask[16];
} p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_add_with_setHaloInvalidDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_add_with_setHaloXformDip(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_setHaloInvalidDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_setHaloInvalidDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_setHaloXformDip(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_modify_with_setHaloXformDip_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformIpv6Dip_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformIpv6Dip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec);
void unbuild_mask_haloXformIpv6Dip(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformIpv6Dip_match_spec_t *match_spec);

/* haloXformSrcPort: table 0x0100001e, pipeline A, ternary match, 2 key bytes (16 bits) */
typedef struct p4_pd_orbisk_switch_haloXformSrcPort_match_spec {
  uint16_t ingMd_srcPort;
  uint16_t ingMd_srcPort_mask;
} p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_add_with_setHaloXformSrcPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_modify_with_setHaloXformSrcPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_modify_with_setHaloXformSrcPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformSrcPort_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformSrcPort(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec);
void unbuild_mask_haloXformSrcPort(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformSrcPort_match_spec_t *match_spec);

/* haloXformDstPort: table 0x0100001d, pipeline A, ternary match, 2 key bytes (16 bits) */
typedef struct p4_pd_orbisk_switch_haloXformDstPort_match_spec {
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
} p4_pd_orbisk_switch_haloXformDstPort_match_spec_t;
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_add_with_setHaloXformDstPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_modify_with_setHaloXformDstPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_modify_with_setHaloXformDstPort_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_haloXformDstPort_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloXformDstPort_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloXformDstPort_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloXformDstPort_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloXformDstPort_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloXformDstPort(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec);
void unbuild_mask_haloXformDstPort(const pd_match_record *key,
    p4_pd_orbisk_switch_haloXformDstPort_match_spec_t *match_spec);

/* haloKeyMaskForRow1Stage2: table 0x01000028, pipeline A, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec {
  uint8_t haloKeyOrig_crlId;
} p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t;
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_add_with_haloKeyMaskedRow1Stage2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_modify_with_haloKeyMaskedRow1Stage2(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_modify_with_haloKeyMaskedRow1Stage2_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_set_default_action_haloKeyMaskedRow1Stage2(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloKeyMaskForRow1Stage2(const pd_match_record *key,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage2_match_spec_t *match_spec);

/* haloRow1Stage2: table 0x01000032, pipeline A, exact match, 14 key bytes (103 bits) */
typedef struct p4_pd_orbisk_switch_haloRow1Stage2_match_spec {
  uint8_t haloKeyOrig_crlId;
  uint16_t haloKeyMaskedRow1_sip;
  uint16_t haloKeyMaskedRow1_dip;
  uint16_t haloKeyMaskedRow1_srcPort;
  uint16_t haloKeyMaskedRow1_dstPort;
  uint8_t haloKeyMaskedRow1_proto;
  uint8_t haloKeyMaskedRow1_dscp;
  uint8_t haloKeyMaskedRow1_ttl;
  uint8_t haloKeyMaskedRow1_flags;
  uint8_t haloKeyMaskedRow1_isFrag;
} p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_add_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_add_with_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_modify_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_modify_with_haloSetBestResultRow1_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_modify_with_nop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_modify_with_nop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_set_default_action_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage2_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRow1Stage2(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRow1Stage2_match_spec_t *match_spec);

/* haloKeyMaskForRow1Stage3: table 0x01000033, pipeline A, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec {
  uint8_t haloKeyOrig_crlId;
} p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t;
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_add_with_haloKeyMaskedRow1Stage3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_modify_with_haloKeyMaskedRow1Stage3(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_modify_with_haloKeyMaskedRow1Stage3_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_set_default_action_haloKeyMaskedRow1Stage3(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloKeyMaskForRow1Stage3(const pd_match_record *key,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage3_match_spec_t *match_spec);

/* haloRow1Stage3: table 0x0100003c, pipeline A, exact match, 14 key bytes (103 bits) */
typedef struct p4_pd_orbisk_switch_haloRow1Stage3_match_spec {
  uint8_t haloKeyOrig_crlId;
  uint16_t haloKeyMaskedRow1_sip;
  uint16_t haloKeyMaskedRow1_dip;
  uint16_t haloKeyMaskedRow1_srcPort;
  uint16_t haloKeyMaskedRow1_dstPort;
  uint8_t haloKeyMaskedRow1_proto;
  uint8_t haloKeyMaskedRow1_dscp;
  uint8_t haloKeyMaskedRow1_ttl;
  uint8_t haloKeyMaskedRow1_flags;
  uint8_t haloKeyMaskedRow1_isFrag;
} p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_add_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_add_with_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_modify_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_modify_with_haloSetBestResultRow1_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_modify_with_nop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_modify_with_nop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_set_default_action_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage3_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRow1Stage3(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRow1Stage3_match_spec_t *match_spec);

/* haloKeyMaskForRow1Stage4: table 0x0100003d, pipeline A, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec {
  uint8_t haloKeyOrig_crlId;
} p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t;
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_add_with_haloKeyMaskedRow1Stage4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_modify_with_haloKeyMaskedRow1Stage4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_modify_with_haloKeyMaskedRow1Stage4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_set_default_action_haloKeyMaskedRow1Stage4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloKeyMaskForRow1Stage4(const pd_match_record *key,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage4_match_spec_t *match_spec);

/* haloRow1Stage4: table 0x01000044, pipeline A, exact match, 14 key bytes (103 bits) */
typedef struct p4_pd_orbisk_switch_haloRow1Stage4_match_spec {
  uint8_t haloKeyOrig_crlId;
  uint16_t haloKeyMaskedRow1_sip;
  uint16_t haloKeyMaskedRow1_dip;
  uint16_t haloKeyMaskedRow1_srcPort;
  uint16_t haloKeyMaskedRow1_dstPort;
  uint8_t haloKeyMaskedRow1_proto;
  uint8_t haloKeyMaskedRow1_dscp;
  uint8_t haloKeyMaskedRow1_ttl;
  uint8_t haloKeyMaskedRow1_flags;
  uint8_t haloKeyMaskedRow1_isFrag;
} p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_add_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_add_with_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_modify_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_modify_with_haloSetBestResultRow1_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_modify_with_nop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_modify_with_nop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_set_default_action_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage4_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRow1Stage4(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRow1Stage4_match_spec_t *match_spec);

/* haloKeyMaskForRow1Stage5: table 0x01000045, pipeline A, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec {
  uint8_t haloKeyOrig_crlId;
} p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t;
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_add_with_haloKeyMaskedRow1Stage5(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_modify_with_haloKeyMaskedRow1Stage5(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_modify_with_haloKeyMaskedRow1Stage5_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_set_default_action_haloKeyMaskedRow1Stage5(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloKeyMaskForRow1Stage5(const pd_match_record *key,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage5_match_spec_t *match_spec);

/* haloRow1Stage5: table 0x0100004c, pipeline A, exact match, 14 key bytes (103 bits) */
typedef struct p4_pd_orbisk_switch_haloRow1Stage5_match_spec {
  uint8_t haloKeyOrig_crlId;
  uint16_t haloKeyMaskedRow1_sip;
  uint16_t haloKeyMaskedRow1_dip;
  uint16_t haloKeyMaskedRow1_srcPort;
  uint16_t haloKeyMaskedRow1_dstPort;
  uint8_t haloKeyMaskedRow1_proto;
  uint8_t haloKeyMaskedRow1_dscp;
  uint8_t haloKeyMaskedRow1_ttl;
  uint8_t haloKeyMaskedRow1_flags;
  uint8_t haloKeyMaskedRow1_isFrag;
} p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_add_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_add_with_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_modify_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_modify_with_haloSetBestResultRow1_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_modify_with_nop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_modify_with_nop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_set_default_action_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage5_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRow1Stage5(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRow1Stage5_match_spec_t *match_spec);

/* haloKeyMaskForRow1Stage6: table 0x0100004d, pipeline A, exact match, 1 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec {
  uint8_t haloKeyOrig_crlId;
} p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t;
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_add_with_haloKeyMaskedRow1Stage6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_modify_with_haloKeyMaskedRow1Stage6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_modify_with_haloKeyMaskedRow1Stage6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_set_default_action_haloKeyMaskedRow1Stage6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloKeyMaskForRow1Stage6(const pd_match_record *key,
    p4_pd_orbisk_switch_haloKeyMaskForRow1Stage6_match_spec_t *match_spec);

/* haloRow1Stage6: table 0x01000052, pipeline A, exact match, 14 key bytes (103 bits) */
typedef struct p4_pd_orbisk_switch_haloRow1Stage6_match_spec {
  uint8_t haloKeyOrig_crlId;
  uint16_t haloKeyMaskedRow1_sip;
  uint16_t haloKeyMaskedRow1_dip;
  uint16_t haloKeyMaskedRow1_srcPort;
  uint16_t haloKeyMaskedRow1_dstPort;
  uint8_t haloKeyMaskedRow1_proto;
  uint8_t haloKeyMaskedRow1_dscp;
  uint8_t haloKeyMaskedRow1_ttl;
  uint8_t haloKeyMaskedRow1_flags;
  uint8_t haloKeyMaskedRow1_isFrag;
} p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t;
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_add_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_add_with_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_modify_with_haloSetBestResultRow1(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_modify_with_haloSetBestResultRow1_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_modify_with_nop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_modify_with_nop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_set_default_action_nop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloRow1Stage6_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloRow1Stage6(const pd_match_record *key,
    p4_pd_orbisk_switch_haloRow1Stage6_match_spec_t *match_spec);

/* haloBypass: table 0x01000051, pipeline A, no key */
pd_status p4_pd_orbisk_switch_haloBypass_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_haloBypass_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloBypass_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloBypass_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloBypass_set_default_action_discardHaloResult(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloBypass_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloBypass_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloBypass_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloBypass_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloBypass_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloBypass_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloBypass_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* haloCounters: table 0x01000059, pipeline A, exact match, 4 key bytes (32 bits), entries carry haloCount */
typedef struct p4_pd_orbisk_switch_haloCounters_match_spec {
  uint32_t haloResultRow1_bestResult;
} p4_pd_orbisk_switch_haloCounters_match_spec_t;
pd_status p4_pd_orbisk_switch_haloCounters_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloCounters_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_haloCounters_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_haloCounters_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_haloCounters_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_haloCounters_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_haloCounters_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_haloCounters_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_haloCounters_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_haloCounters_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_haloCounters_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_haloCounters(const pd_match_record *key,
    p4_pd_orbisk_switch_haloCounters_match_spec_t *match_spec);

/* ================================================================== */
/* Mirroring */
/* ================================================================== */

/* ingressMirrorSession: table 0x0100003a, pipeline A, ternary match, 18 key bytes (121 bits) */
typedef struct p4_pd_orbisk_switch_ingressMirrorSession_match_spec {
  uint16_t haloKeyOrig_dipMirror;
  uint16_t haloKeyOrig_dipMirror_mask;
  uint8_t haloKeyOrig_flags;
  uint8_t haloKeyOrig_flags_mask;
  uint8_t haloKeyOrig_isFrag;
  uint8_t haloKeyOrig_isFrag_mask;
  uint16_t haloKeyOrig_sipMirror;
  uint16_t haloKeyOrig_sipMirror_mask;
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint16_t ingMd_srcPort;
  uint16_t ingMd_srcPort_mask;
  uint8_t ingMd_ttl;
  uint8_t ingMd_ttl_mask;
  uint8_t ingMd_v4V6Valid;
  uint8_t ingMd_v4V6Valid_mask;
  uint16_t phase0_ingVPort;
  uint16_t phase0_ingVPort_mask;
  uint8_t qosMd_dscp;
  uint8_t qosMd_dscp_mask;
} p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_add_with_dropDatalink(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_add_with_setIngressMirrorSession(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_dropDatalink(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_dropDatalink_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_setIngressMirrorSession(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_modify_with_setIngressMirrorSession_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorSession_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressMirrorSession(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec);
void unbuild_mask_ingressMirrorSession(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressMirrorSession_match_spec_t *match_spec);

/* ingressMirrorLagGroup: table 0x0100004b, pipeline A, exact match, 2 key bytes (10 bits), entries name a member or group of mirrorLagPortActionProfile */
typedef struct p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec {
  uint16_t ingMirrorMd_mirrorSession;
} p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorLagGroup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressMirrorLagGroup(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressMirrorLagGroup_match_spec_t *match_spec);

/* ingressMirrorRate: table 0x01000056, pipeline A, exact match, 2 key bytes (10 bits), entries carry ingressMirrorMeter */
typedef struct p4_pd_orbisk_switch_ingressMirrorRate_match_spec {
  uint16_t ingMirrorMd_mirrorBufId;
} p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_add_with_setIngressMirrorColor(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_add_with_setIngressMirrorColorRed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColor(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColor_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColorRed(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColorRed_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_set_default_action_setIngressMirrorColorRed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorRate_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressMirrorRate(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressMirrorRate_match_spec_t *match_spec);

/* ingressMirrorResult: table 0x01000058, pipeline A, exact match, 3 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_ingressMirrorResult_match_spec {
  uint8_t ingMirrorMd_mirrorColor;
  uint16_t ingMirrorMd_mirrorSession;
} p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_add_with_ingressMirrorAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_modify_with_ingressMirrorAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_modify_with_ingressMirrorAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_set_default_action_ingressMirrorAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressMirrorResult_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressMirrorResult(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressMirrorResult_match_spec_t *match_spec);

/* egressMirrorSession: table 0x0100005e, pipeline A, ternary match, 51 key bytes (380 bits) */
typedef struct p4_pd_orbisk_switch_egressMirrorSession_match_spec {
  uint16_t eg_intr_md_egress_port;
  uint8_t haloKeyOrig_isFrag;
  uint8_t haloKeyOrig_isFrag_mask;
  uint16_t l4PortHdr_dstPort;
  uint16_t l4PortHdr_dstPort_mask;
  uint16_t l4PortHdr_srcPort;
  uint16_t l4PortHdr_srcPort_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint32_t outerIpv4Hdr_dip;
  uint32_t outerIpv4Hdr_dip_mask;
  uint8_t outerIpv4Hdr_protocol;
  uint8_t outerIpv4Hdr_protocol_mask;
  uint32_t outerIpv4Hdr_sip;
  uint32_t outerIpv4Hdr_sip_mask;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_valid_mask;
  uint8_t outerIpv6Hdr_dip[16];
  uint8_t outerIpv6Hdr_dip_mask[16];
  uint8_t outerIpv6Hdr_nextHdr;
  uint8_t outerIpv6Hdr_nextHdr_mask;
  uint8_t outerIpv6Hdr_sip[16];
  uint8_t outerIpv6Hdr_sip_mask[16];
} p4_pd_orbisk_switch_egressMirrorSession_match_spec_t;
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_add_with_setEgressMirrorSession(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_modify_with_setEgressMirrorSession(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_modify_with_setEgressMirrorSession_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_egressMirrorSession_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressMirrorSession_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressMirrorSession_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressMirrorSession_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorSession_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressMirrorSession(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec);
void unbuild_mask_egressMirrorSession(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMirrorSession_match_spec_t *match_spec);

/* egressMirrorLagGroup: table 0x01000063, pipeline A, exact match, 2 key bytes (10 bits), entries name a member or group of egrMirrorLagPortActionProfile */
typedef struct p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec {
  uint16_t egrMirrorMd_mirrorSession;
} p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t;
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorLagGroup_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressMirrorLagGroup(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMirrorLagGroup_match_spec_t *match_spec);

/* egressMirrorRate: table 0x01000068, pipeline A, exact match, 2 key bytes (10 bits), entries carry egressMirrorMeter */
typedef struct p4_pd_orbisk_switch_egressMirrorRate_match_spec {
  uint16_t egrMirrorMd_mirrorBufId;
} p4_pd_orbisk_switch_egressMirrorRate_match_spec_t;
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColor(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_add_with_setEgressMirrorColorRed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_modify_with_setEgressMirrorColor(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_modify_with_setEgressMirrorColor_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_modify_with_setEgressMirrorColorRed(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_modify_with_setEgressMirrorColorRed_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorRate_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressMirrorRate_set_default_action_setEgressMirrorColorRed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressMirrorRate_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressMirrorRate_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorRate_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressMirrorRate(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMirrorRate_match_spec_t *match_spec);

/* egressMirrorResult: table 0x01000075, pipeline A, exact match, 1 key bytes (1 bits) */
typedef struct p4_pd_orbisk_switch_egressMirrorResult_match_spec {
  uint8_t egrMirrorMd_mirrorColor;
} p4_pd_orbisk_switch_egressMirrorResult_match_spec_t;
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_add_with_egressMirrorAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_modify_with_egressMirrorAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_modify_with_egressMirrorAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_egressMirrorResult_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_egressMirrorResult_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_egressMirrorResult_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_egressMirrorResult_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egressMirrorResult_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_egressMirrorResult(const pd_match_record *key,
    p4_pd_orbisk_switch_egressMirrorResult_match_spec_t *match_spec);

/* mirrorPacketEncap: table 0x0100005d, pipeline A, exact match, 4 key bytes (25 bits) */
typedef struct p4_pd_orbisk_switch_mirrorPacketEncap_match_spec {
  uint16_t eg_intr_md_egress_port;
  uint16_t eg_intr_md_egress_rid;
} p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t;
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_add_with_egressMirrorDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapGreIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapNone(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_egressMirrorDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_egressMirrorDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapCpu(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapCpu_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapGreIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapGreIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapNone(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapNone_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_set_default_action_egressMirrorDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mirrorPacketEncap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_mirrorPacketEncap(const pd_match_record *key,
    p4_pd_orbisk_switch_mirrorPacketEncap_match_spec_t *match_spec);

/* ================================================================== */
/* QoS and policing classes */
/* ================================================================== */

/* qosPortProperties: table 0x0100000e, pipeline A, exact match, 2 key bytes (9 bits) */
typedef struct p4_pd_orbisk_switch_qosPortProperties_match_spec {
  uint16_t ig_intr_md_ingress_port;
} p4_pd_orbisk_switch_qosPortProperties_match_spec_t;
pd_status p4_pd_orbisk_switch_qosPortProperties_table_add_with_setQosPortProperties(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setQosPortProperties_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_modify_with_setQosPortProperties(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setQosPortProperties_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_modify_with_setQosPortProperties_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setQosPortProperties_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_qosPortProperties_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_qosPortProperties_set_default_action_setQosPortProperties(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setQosPortProperties_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_qosPortProperties_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_qosPortProperties_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_qosPortProperties_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_qosPortProperties(const pd_match_record *key,
    p4_pd_orbisk_switch_qosPortProperties_match_spec_t *match_spec);

/* normalizeCos: table 0x01000036, pipeline A, exact match, 4 key bytes (8 bits) */
typedef struct p4_pd_orbisk_switch_normalizeCos_match_spec {
  uint8_t ingMd_vlanHdrValid;
  uint8_t qosMd_defaultCos;
  uint8_t vlanHdr_0__priority;
  uint8_t vlanHdr_1__valid;
} p4_pd_orbisk_switch_normalizeCos_match_spec_t;
pd_status p4_pd_orbisk_switch_normalizeCos_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_add_with_setCosFromDefault(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromDefault_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_add_with_setCosFromPacket(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromPacket_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_add_with_setCosFromPacketWithInner(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromDefault(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setCosFromDefault_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromDefault_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromDefault_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromPacket(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setCosFromPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromPacket_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromPacketWithInner(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_modify_with_setCosFromPacketWithInner_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_normalizeCos_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_normalizeCos_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_normalizeCos_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_normalizeCos_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_normalizeCos_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_normalizeCos_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_normalizeCos_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_normalizeCos_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_normalizeCos(const pd_match_record *key,
    p4_pd_orbisk_switch_normalizeCos_match_spec_t *match_spec);

/* normalizeDscp: table 0x01000029, pipeline A, exact match, 2 key bytes (6 bits) */
typedef struct p4_pd_orbisk_switch_normalizeDscp_match_spec {
  uint8_t egrMd_decapType;
  uint8_t ingMd_v4V6Valid;
} p4_pd_orbisk_switch_normalizeDscp_match_spec_t;
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_setDscpForIpv4OptionsPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_setDscpForIpv4Pkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_setDscpForIpv6Pkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_setDscpForNonIpPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_add_with_setDscpForTTNonIpPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv4OptionsPkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv4OptionsPkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv4Pkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv4Pkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv6Pkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForIpv6Pkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForNonIpPkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForNonIpPkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForTTNonIpPkt(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_modify_with_setDscpForTTNonIpPkt_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_setDscpForIpv4OptionsPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_setDscpForIpv4Pkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_setDscpForIpv6Pkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_setDscpForNonIpPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_default_action_setDscpForTTNonIpPkt(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_normalizeDscp_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_normalizeDscp_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_normalizeDscp_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_normalizeDscp(const pd_match_record *key,
    p4_pd_orbisk_switch_normalizeDscp_match_spec_t *match_spec);

/* ingressTrafficClass: table 0x0100003f, pipeline A, ternary match, 8 key bytes (23 bits) */
typedef struct p4_pd_orbisk_switch_ingressTrafficClass_match_spec {
  uint8_t qosMd_trustMode;
  uint8_t qosMd_trustMode_mask;
  uint8_t qosMd_defaultCos;
  uint8_t qosMd_defaultCos_mask;
  uint8_t qosMd_cos;
  uint8_t qosMd_cos_mask;
  uint8_t qosMd_dscp;
  uint8_t qosMd_dscp_mask;
  uint8_t qosMd_highPriority;
  uint8_t qosMd_highPriority_mask;
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t orbiskCpuHdr_trustMode;
  uint8_t orbiskCpuHdr_trustMode_mask;
  uint8_t orbiskCpuHdr_tc;
  uint8_t orbiskCpuHdr_tc_mask;
} p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t;
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_add_with_setTrafficClassAndEgressQid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_modify_with_setTrafficClassAndEgressQid(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_modify_with_setTrafficClassAndEgressQid_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_set_default_action_setTrafficClassAndEgressQid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingressTrafficClass_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingressTrafficClass(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec);
void unbuild_mask_ingressTrafficClass(const pd_match_record *key,
    p4_pd_orbisk_switch_ingressTrafficClass_match_spec_t *match_spec);

/* tcDscpMap: table 0x01000061, pipeline A, exact match, 1 key bytes (3 bits) */
typedef struct p4_pd_orbisk_switch_tcDscpMap_match_spec {
  uint8_t ig_intr_md_for_tm_ingress_cos;
} p4_pd_orbisk_switch_tcDscpMap_match_spec_t;
pd_status p4_pd_orbisk_switch_tcDscpMap_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_add_with_setTcDscp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTcDscp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_modify_with_setTcDscp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setTcDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_modify_with_setTcDscp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setTcDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_tcDscpMap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_tcDscpMap_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_set_default_action_setTcDscp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setTcDscp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_tcDscpMap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_tcDscpMap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tcDscpMap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_tcDscpMap(const pd_match_record *key,
    p4_pd_orbisk_switch_tcDscpMap_match_spec_t *match_spec);

/* qosRewriteConfig: table 0x0100000f, pipeline A, no key */
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_set_default_action_setQosRewriteConfiguration(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setQosRewriteConfiguration_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_qosRewriteConfig_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* qosRewrite: table 0x01000048, pipeline A, exact match, 5 key bytes (10 bits) */
typedef struct p4_pd_orbisk_switch_qosRewrite_match_spec {
  uint8_t qosMd_trustMode;
  uint8_t qosMd_cosRewrite;
  uint8_t qosMd_dscpRewrite;
  uint8_t ig_intr_md_for_tm_ingress_cos;
  uint8_t egrMd_decapType;
} p4_pd_orbisk_switch_qosRewrite_match_spec_t;
pd_status p4_pd_orbisk_switch_qosRewrite_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_add_with_copyCosRewriteDscp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_add_with_rewriteCosCopyDscp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_add_with_rewriteCosRewriteDscp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_copyCosRewriteDscp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_copyCosRewriteDscp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_rewriteCosCopyDscp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_rewriteCosCopyDscp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_rewriteCosRewriteDscp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_modify_with_rewriteCosRewriteDscp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_qosRewrite_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_qosRewrite_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_qosRewrite_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_qosRewrite_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_qosRewrite_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_qosRewrite_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_qosRewrite_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_qosRewrite_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_qosRewrite(const pd_match_record *key,
    p4_pd_orbisk_switch_qosRewrite_match_spec_t *match_spec);

/* packetDscpRewrite: table 0x0100006e, pipeline A, ternary match, 6 key bytes (10 bits) */
typedef struct p4_pd_orbisk_switch_packetDscpRewrite_match_spec {
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t egrMd_encapType;
  uint8_t egrMd_encapType_mask;
  uint8_t egrMd_routed;
  uint8_t egrMd_routed_mask;
  uint8_t encapIpv4Hdr_valid;
  uint8_t encapIpv4Hdr_valid_mask;
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_valid_mask;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_valid_mask;
} p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t;
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_encapOuterIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_encapOuterIpv4InnerIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_encapOuterIpv4InnerIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_noTunnelIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_noTunnelIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_onlyDecapInnerIpv4(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_add_with_onlyDecapInnerIpv6(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_noTunnelIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_noTunnelIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_noTunnelIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_noTunnelIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv4(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv4_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv6(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv6_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_packetDscpRewrite_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_packetDscpRewrite(const pd_match_record *key,
    p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec);
void unbuild_mask_packetDscpRewrite(const pd_match_record *key,
    p4_pd_orbisk_switch_packetDscpRewrite_match_spec_t *match_spec);

/* queueCounters: table 0x0100005b, pipeline A, no key */
pd_status p4_pd_orbisk_switch_queueCounters_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_queueCounters_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_queueCounters_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_queueCounters_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_queueCounters_set_default_action_countEgressQueue(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_queueCounters_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_queueCounters_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_queueCounters_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_queueCounters_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_queueCounters_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_queueCounters_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_queueCounters_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* pdpClassify: table 0x11010020, pipeline B, ternary match, 10 key bytes (52 bits), entries carry pdpMeter */
typedef struct p4_pd_orbisk_switch_pdpClassify_match_spec {
  uint8_t orbiskCpuHdr_valid;
  uint8_t orbiskCpuHdr_valid_mask;
  uint8_t arpHdr_valid;
  uint8_t arpHdr_valid_mask;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_cpuReasonCode_mask;
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_trapToCpu_mask;
  uint8_t ingMd_bcast;
  uint8_t ingMd_bcast_mask;
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint16_t ingMd_srcPort;
  uint16_t ingMd_srcPort_mask;
} p4_pd_orbisk_switch_pdpClassify_match_spec_t;
pd_status p4_pd_orbisk_switch_pdpClassify_table_add_with_meterPdpClass(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_meterPdpClass_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_table_add_with_setPdpClass(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPdpClass_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_table_modify_with_meterPdpClass(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_meterPdpClass_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpClassify_table_modify_with_meterPdpClass_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_meterPdpClass_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpClassify_table_modify_with_setPdpClass(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPdpClass_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpClassify_table_modify_with_setPdpClass_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setPdpClass_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpClassify_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_pdpClassify_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_pdpClassify_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_pdpClassify_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_pdpClassify_set_default_action_setPdpClass(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setPdpClass_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_pdpClassify_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_pdpClassify_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_pdpClassify_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_pdpClassify_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_pdpClassify_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_pdpClassify(const pd_match_record *key,
    p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec);
void unbuild_mask_pdpClassify(const pd_match_record *key,
    p4_pd_orbisk_switch_pdpClassify_match_spec_t *match_spec);

/* pdpPolicy: table 0x11010025, pipeline B, exact match, 2 key bytes (6 bits), entries carry pdpClassCount */
typedef struct p4_pd_orbisk_switch_pdpPolicy_match_spec {
  uint8_t qosMd_pdpDrop;
  uint8_t qosMd_pdpClassId;
} p4_pd_orbisk_switch_pdpPolicy_match_spec_t;
pd_status p4_pd_orbisk_switch_pdpPolicy_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_add_with_setPdpClassCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setPdpClassCount_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_modify_with_setPdpClassCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setPdpClassCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_modify_with_setPdpClassCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setPdpClassCount_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_pdpPolicy_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_pdpPolicy_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_pdpPolicy_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_pdpPolicy_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_pdpPolicy_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_pdpPolicy(const pd_match_record *key,
    p4_pd_orbisk_switch_pdpPolicy_match_spec_t *match_spec);

/* ================================================================== */
/* CPU path, MTU and final drop */
/* ================================================================== */

/* trapToCpu: table 0x01000047, pipeline A, ternary match, 44 key bytes (287 bits), entries carry trapToCpuCount */
typedef struct p4_pd_orbisk_switch_trapToCpu_match_spec {
  uint16_t ingMd_etherType;
  uint16_t ingMd_etherType_mask;
  uint8_t ingMd_bcast;
  uint8_t ingMd_bcast_mask;
  uint8_t ingMd_mcast;
  uint8_t ingMd_mcast_mask;
  uint8_t ingMd_l4Attr;
  uint8_t ingMd_l4Attr_mask;
  uint16_t ingMd_srcPort;
  uint16_t ingMd_srcPort_mask;
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
  uint16_t phase0_ingVPort;
  uint16_t phase0_ingVPort_mask;
  uint16_t ingMd_ingL3Aintf;
  uint16_t ingMd_ingL3Aintf_mask;
  uint8_t l3Info_ingL3DmacValid;
  uint8_t l3Info_ingL3DmacValid_mask;
  uint8_t ingMd_ttl;
  uint8_t ingMd_ttl_mask;
  uint8_t arpHdr_valid;
  uint8_t arpHdr_valid_mask;
  uint16_t arpHdr_opcode;
  uint16_t arpHdr_opcode_mask;
  uint8_t ingMd_igmpSnoopingEnabled;
  uint8_t ingMd_igmpSnoopingEnabled_mask;
  uint32_t ingIpv4_dip;
  uint32_t ingIpv4_dip_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint8_t egrMd_vxlanFlood;
  uint8_t egrMd_vxlanFlood_mask;
  uint8_t egrMd_decapType;
  uint8_t egrMd_decapType_mask;
  uint8_t ingIpv6_dip[16];
  uint8_t ingIpv6_dip_mask[16];
  uint8_t ingMd_cpuMemberOfIngressVlan;
  uint8_t ingMd_cpuMemberOfIngressVlan_mask;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_cpuReasonCode_mask;
} p4_pd_orbisk_switch_trapToCpu_match_spec_t;
pd_status p4_pd_orbisk_switch_trapToCpu_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_add_with_copyPacket(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPacket_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_add_with_setLlm(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_add_with_trapPacket(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPacket_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_copyPacket(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_copyPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_copyPacket_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_setLlm(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_setLlm_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_trapPacket(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_trapPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_trapToCpu_table_modify_with_trapPacket_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPacket_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_trapToCpu_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_trapToCpu_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_trapToCpu_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_trapToCpu_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_trapToCpu_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_trapToCpu_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_trapToCpu_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_trapToCpu_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_trapToCpu_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_trapToCpu_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_trapToCpu(const pd_match_record *key,
    p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec);
void unbuild_mask_trapToCpu(const pd_match_record *key,
    p4_pd_orbisk_switch_trapToCpu_match_spec_t *match_spec);

/* switchToCpu: table 0x11010009, pipeline B, exact match, 2 key bytes (7 bits) */
typedef struct p4_pd_orbisk_switch_switchToCpu_match_spec {
  uint8_t l3Info_ipRouting;
  uint8_t ingMd_v4V6Valid;
} p4_pd_orbisk_switch_switchToCpu_match_spec_t;
pd_status p4_pd_orbisk_switch_switchToCpu_table_add_with_setSwitchToCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_table_modify_with_setSwitchToCpu(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_switchToCpu_table_modify_with_setSwitchToCpu_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_switchToCpu_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_switchToCpu_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_switchToCpu_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_switchToCpu_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_switchToCpu_set_default_action_setSwitchToCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_switchToCpu_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_switchToCpu_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_switchToCpu_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_switchToCpu_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_switchToCpu_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_switchToCpu(const pd_match_record *key,
    p4_pd_orbisk_switch_switchToCpu_match_spec_t *match_spec);

/* cpuEncap: table 0x11010022, pipeline B, ternary match, 7 key bytes (14 bits) */
typedef struct p4_pd_orbisk_switch_cpuEncap_match_spec {
  uint8_t egrMd_trapToCpu;
  uint8_t ingMd_vlanHdrValid;
  uint8_t phase0_switchPort;
  uint8_t phase0_switchPort_mask;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_cpuReasonCode_mask;
  uint8_t ingMd_subIntf;
  uint8_t ingMd_subIntf_mask;
  uint8_t vlanHdr_0__valid;
  uint8_t vlanHdr_0__valid_mask;
  uint8_t l3RsvdQueue_valid;
  uint8_t l3RsvdQueue_valid_mask;
} p4_pd_orbisk_switch_cpuEncap_match_spec_t;
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_copyPktToCpuSubintf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_copyPktToCpuTagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_copyPktToCpuUntagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_trapPktToCpuSubintf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_trapPktToCpuTagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_add_with_trapPktToCpuUntagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuSubintf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuSubintf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuTagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuTagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuUntagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_copyPktToCpuUntagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuSubintf(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuSubintf_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuTagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuTagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuUntagged(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_modify_with_trapPktToCpuUntagged_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_cpuEncap_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_cpuEncap_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_cpuEncap_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_copyPktToCpuSubintf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_copyPktToCpuTagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_copyPktToCpuUntagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_trapPktToCpuSubintf(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_trapPktToCpuTagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_set_default_action_trapPktToCpuUntagged(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncap_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_cpuEncap_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_cpuEncap_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_cpuEncap_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_cpuEncap_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_cpuEncap(const pd_match_record *key,
    p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec);
void unbuild_mask_cpuEncap(const pd_match_record *key,
    p4_pd_orbisk_switch_cpuEncap_match_spec_t *match_spec);

/* cpuEncapFields: table 0x01000069, pipeline A, exact match, 6 key bytes (15 bits) */
typedef struct p4_pd_orbisk_switch_cpuEncapFields_match_spec {
  uint16_t eg_intr_md_egress_port;
  uint8_t phase0_switchPort;
  uint8_t egrMd_ingressTagged;
  uint8_t egrMd_decapType;
  uint8_t encapEthHdr_valid;
} p4_pd_orbisk_switch_cpuEncapFields_match_spec_t;
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_add_with_encapPktToCpu(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_encapPktToCpu_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_add_with_encapPktToDpdk(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_add_with_setEncapSmac(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEncapSmac_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_encapPktToCpu(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_encapPktToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_encapPktToCpu_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_encapPktToCpu_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_encapPktToDpdk(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_encapPktToDpdk_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_setEncapSmac(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEncapSmac_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_modify_with_setEncapSmac_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEncapSmac_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_cpuEncapFields_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_set_default_action_setEncapSmac(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setEncapSmac_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_cpuEncapFields_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_cpuEncapFields_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_cpuEncapFields_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_cpuEncapFields(const pd_match_record *key,
    p4_pd_orbisk_switch_cpuEncapFields_match_spec_t *match_spec);

/* ingMtu: table 0x11010003, pipeline B, ternary match, 6 key bytes (36 bits) */
typedef struct p4_pd_orbisk_switch_ingMtu_match_spec {
  uint8_t ingMd_v4V6Valid;
  uint8_t outerIpv4Hdr_valid;
  uint16_t outerIpv4Hdr_totalLen;
  uint16_t outerIpv4Hdr_totalLen_mask;
  uint16_t outerIpv6Hdr_payloadLen;
  uint16_t outerIpv6Hdr_payloadLen_mask;
} p4_pd_orbisk_switch_ingMtu_match_spec_t;
pd_status p4_pd_orbisk_switch_ingMtu_table_add_with_setIngMtuFailed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_add_with_setMinMtuId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setMinMtuId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_modify_with_setIngMtuFailed(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_modify_with_setIngMtuFailed_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingMtu_table_modify_with_setMinMtuId(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setMinMtuId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingMtu_table_modify_with_setMinMtuId_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setMinMtuId_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ingMtu_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_ingMtu_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_ingMtu_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ingMtu_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_ingMtu_set_default_action_setIngMtuFailed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_set_default_action_setMinMtuId(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setMinMtuId_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_ingMtu_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_ingMtu_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_ingMtu_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_ingMtu_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ingMtu_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_ingMtu(const pd_match_record *key,
    p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec);
void unbuild_mask_ingMtu(const pd_match_record *key,
    p4_pd_orbisk_switch_ingMtu_match_spec_t *match_spec);

/* mtuCheck: table 0x1101001b, pipeline B, ternary match, 7 key bytes (26 bits) */
typedef struct p4_pd_orbisk_switch_mtuCheck_match_spec {
  uint8_t ingMd_ingMtuFail;
  uint8_t ingMd_ingMtuFail_mask;
  uint8_t ingMd_mtuId;
  uint8_t ingMd_mtuId_mask;
  uint8_t ingMd_egrMtuId;
  uint8_t ingMd_egrMtuId_mask;
  uint8_t egrMd_routed;
  uint32_t egrMd_egrL2AintfUnresolved;
  uint32_t egrMd_egrL2AintfUnresolved_mask;
} p4_pd_orbisk_switch_mtuCheck_match_spec_t;
pd_status p4_pd_orbisk_switch_mtuCheck_table_add_with_mtuCheckFailed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_add_with_mtuCheckPassed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_modify_with_mtuCheckFailed(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mtuCheck_table_modify_with_mtuCheckFailed_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mtuCheck_table_modify_with_mtuCheckPassed(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_modify_with_mtuCheckPassed_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_mtuCheck_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_mtuCheck_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_mtuCheck_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mtuCheck_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_mtuCheck_set_default_action_mtuCheckPassed(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_mtuCheck_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_mtuCheck_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_mtuCheck_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_mtuCheck_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mtuCheck_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_mtuCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec);
void unbuild_mask_mtuCheck(const pd_match_record *key,
    p4_pd_orbisk_switch_mtuCheck_match_spec_t *match_spec);

/* finalDropControl: table 0x01000057, pipeline A, ternary match, 26 key bytes (64 bits), entries carry finalDropControlCount */
typedef struct p4_pd_orbisk_switch_finalDropControl_match_spec {
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_trapToCpu_mask;
  uint32_t haloResultRow1_bestResult;
  uint32_t haloResultRow1_bestResult_mask;
  uint8_t ig_intr_md_for_tm_copy_to_cpu;
  uint8_t ig_intr_md_for_tm_copy_to_cpu_mask;
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
  uint8_t ingMd_bcast;
  uint8_t ingMd_bcast_mask;
  uint8_t ingMd_dot1xDrop;
  uint8_t ingMd_dot1xDrop_mask;
  uint8_t ingMd_drop;
  uint8_t ingMd_drop_mask;
  uint8_t ingMd_dropDatalink;
  uint8_t ingMd_dropDatalink_mask;
  uint8_t ingMd_dropDmac;
  uint8_t ingMd_dropDmac_mask;
  uint8_t ingMd_dropSmac;
  uint8_t ingMd_dropSmac_mask;
  uint8_t ingMd_dropVarpVxlan;
  uint8_t ingMd_dropVarpVxlan_mask;
  uint8_t ingMd_invalidEgressPort;
  uint8_t ingMd_invalidEgressPort_mask;
  uint8_t ingMd_mcast;
  uint8_t ingMd_mcast_mask;
  uint8_t ingMd_mlagPrune;
  uint8_t ingMd_mlagPrune_mask;
  uint8_t ingMd_natMeterDrop;
  uint8_t ingMd_natMeterDrop_mask;
  uint8_t ingMd_routedMartian;
  uint8_t ingMd_routedMartian_mask;
  uint8_t ingMd_samePortBridging;
  uint8_t ingMd_samePortBridging_mask;
  uint8_t ingMd_stormControlDrop;
  uint8_t ingMd_stormControlDrop_mask;
  uint8_t ingMd_v4V6Valid;
  uint8_t ingMd_v4V6Valid_mask;
  uint8_t ingVlanStpCheck_invalidVlan;
  uint8_t ingVlanStpCheck_invalidVlan_mask;
  uint8_t ingVlanStpCheck_stpBlocked;
  uint8_t ingVlanStpCheck_stpBlocked_mask;
  uint8_t qosMd_pdpDrop;
  uint8_t qosMd_pdpDrop_mask;
} p4_pd_orbisk_switch_finalDropControl_match_spec_t;
pd_status p4_pd_orbisk_switch_finalDropControl_table_add_with_accept(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_add_with_acceptLog(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_acceptLog_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_add_with_dropCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_add_with_dropCountAndLog(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_dropCountAndLog_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_add_with_finalDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_accept(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_accept_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_acceptLog(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_acceptLog_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_acceptLog_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_acceptLog_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_dropCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_dropCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_dropCountAndLog(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_dropCountAndLog_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_dropCountAndLog_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_dropCountAndLog_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_finalDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_modify_with_finalDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_finalDropControl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_finalDropControl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_finalDropControl_set_default_action_accept(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_set_default_action_acceptLog(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_acceptLog_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_set_default_action_dropCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_set_default_action_dropCountAndLog(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_dropCountAndLog_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_set_default_action_finalDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_finalDropControl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_finalDropControl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_finalDropControl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_finalDropControl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_finalDropControl(const pd_match_record *key,
    p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec);
void unbuild_mask_finalDropControl(const pd_match_record *key,
    p4_pd_orbisk_switch_finalDropControl_match_spec_t *match_spec);

/* finalDropControlIB: table 0x11010027, pipeline B, ternary match, 12 key bytes (50 bits), entries carry finalDropControlIBCount */
typedef struct p4_pd_orbisk_switch_finalDropControlIB_match_spec {
  uint32_t egrMd_egrL2AintfUnresolved;
  uint32_t egrMd_egrL2AintfUnresolved_mask;
  uint8_t egrMd_routed;
  uint8_t egrMd_routed_mask;
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_trapToCpu_mask;
  uint8_t eif_eifDrop;
  uint8_t eif_eifDrop_mask;
  uint8_t ig_intr_md_for_tm_copy_to_cpu;
  uint8_t ig_intr_md_for_tm_copy_to_cpu_mask;
  uint16_t ig_intr_md_for_tm_mcast_grp_a;
  uint16_t ig_intr_md_for_tm_mcast_grp_a_mask;
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
  uint8_t qosMd_pdpDrop;
  uint8_t qosMd_pdpDrop_mask;
} p4_pd_orbisk_switch_finalDropControlIB_match_spec_t;
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_add_with_acceptIB(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_add_with_finalDropIB(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_modify_with_acceptIB(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_modify_with_acceptIB_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_modify_with_finalDropIB(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_modify_with_finalDropIB_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_finalDropControlIB_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_finalDropControlIB_set_default_action_acceptIB(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_finalDropControlIB_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_finalDropControlIB_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_finalDropControlIB_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_finalDropControlIB(const pd_match_record *key,
    p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec);
void unbuild_mask_finalDropControlIB(const pd_match_record *key,
    p4_pd_orbisk_switch_finalDropControlIB_match_spec_t *match_spec);

/* ================================================================== */
/* Interface policy and folded pipe */
/* ================================================================== */

/* eifIngPolicy: table 0x0100002b, pipeline A, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_eifIngPolicy_match_spec {
  uint16_t ingMd_ingL3Aintf;
} p4_pd_orbisk_switch_eifIngPolicy_match_spec_t;
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_add_with_setEifIngPolicy(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_modify_with_setEifIngPolicy(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_modify_with_setEifIngPolicy_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifIngPolicy_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifIngPolicy_set_default_action_setEifIngPolicy(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifIngPolicy_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifIngPolicy_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifIngPolicy_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifIngPolicy(const pd_match_record *key,
    p4_pd_orbisk_switch_eifIngPolicy_match_spec_t *match_spec);

/* eifParamsForIngress: table 0x11010014, pipeline B, no key */
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_set_default_action_eifParamIngressing(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForIngress_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);

/* eifParamsForEgress: table 0x11010011, pipeline B, exact match, 2 key bytes (12 bits) */
typedef struct p4_pd_orbisk_switch_eifParamsForEgress_match_spec {
  uint16_t egrMd_egrL2Domain;
} p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t;
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_add_with_eifParamEgressing(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_eifParamEgressing_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_modify_with_eifParamEgressing(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_eifParamEgressing_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_modify_with_eifParamEgressing_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_eifParamEgressing_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_set_default_action_eifParamEgressing(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifParamEgressing_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifParamsForEgress_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifParamsForEgress(const pd_match_record *key,
    p4_pd_orbisk_switch_eifParamsForEgress_match_spec_t *match_spec);

/* eifPinHole: table 0x11010019, pipeline B, exact match, 20 key bytes (160 bits) */
typedef struct p4_pd_orbisk_switch_eifPinHole_match_spec {
  uint8_t eif_policy;
  uint8_t ingMd_protocol;
  uint8_t eif_matchAddr[16];
  uint16_t eif_matchL4Port;
} p4_pd_orbisk_switch_eifPinHole_match_spec_t;
pd_status p4_pd_orbisk_switch_eifPinHole_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_add_with_setEifMatched(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEifMatched_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifPinHole_table_modify_with_setEifMatched(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEifMatched_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifPinHole_table_modify_with_setEifMatched_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec,
    const p4_pd_orbisk_switch_setEifMatched_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifPinHole_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifPinHole_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifPinHole_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifPinHole_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifPinHole_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifPinHole_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifPinHole_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifPinHole_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifPinHole_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifPinHole_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifPinHole(const pd_match_record *key,
    p4_pd_orbisk_switch_eifPinHole_match_spec_t *match_spec);

/* eifPinHoleHits: table 0x1101001c, pipeline B, exact match, 2 key bytes (15 bits), idle timeout */
typedef struct p4_pd_orbisk_switch_eifPinHoleHits_match_spec {
  uint16_t eif_matchedIdx;
} p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t;
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_add_with_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_modify_with_noOp(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_modify_with_noOp_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_set_default_action_noOp(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_idle_tmo_enable(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params params);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_idle_tmo_disable(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_idle_params_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_params *params);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_idle_register_tmo_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_tmo_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_set_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t ttl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *ttl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_reset_ttl(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_update_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_idle_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_hit_state(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    uint32_t *hit_state);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifPinHoleHits_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifPinHoleHits(const pd_match_record *key,
    p4_pd_orbisk_switch_eifPinHoleHits_match_spec_t *match_spec);

/* eifAcl: table 0x1101001a, pipeline B, ternary match, 39 key bytes (306 bits), entries carry eifAclCount */
typedef struct p4_pd_orbisk_switch_eifAcl_match_spec {
  uint8_t phase0_portType;
  uint8_t phase0_portType_mask;
  uint8_t eif_policy;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint8_t ingIpv6_dip[16];
  uint8_t ingIpv6_dip_mask[16];
  uint8_t ingIpv6_sip[16];
  uint8_t ingIpv6_sip_mask[16];
  uint16_t ingMd_srcPort;
  uint16_t ingMd_srcPort_mask;
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
} p4_pd_orbisk_switch_eifAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_eifAcl_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_add_with_setEifDrop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_add_with_setEifTrap(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_add_with_setEifTrapReverse(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_add_with_updateEifAclCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifDrop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifDrop_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifTrap(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifTrap_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifTrapReverse(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_setEifTrapReverse_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_updateEifAclCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_modify_with_updateEifAclCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifAcl_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec);
void unbuild_mask_eifAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_eifAcl_match_spec_t *match_spec);

/* eifForwardToPeerAcl: table 0x1101001d, pipeline B, ternary match, 34 key bytes (272 bits), entries carry eifForwardToPeerAclCount */
typedef struct p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec {
  uint8_t egrMd_cpuReasonCode;
  uint8_t eif_policy;
  uint8_t ingIpv6_dip[16];
  uint8_t ingIpv6_dip_mask[16];
  uint8_t ingIpv6_sip[16];
  uint8_t ingIpv6_sip_mask[16];
} p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t;
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_add_with_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_add_with_setEifForwardToPeer(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_add_with_updateEifForwardToPeerAclCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_onMiss(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_onMiss_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_setEifForwardToPeer(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_setEifForwardToPeer_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_updateEifForwardToPeerAclCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_modify_with_updateEifForwardToPeerAclCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_set_default_action_onMiss(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_eifForwardToPeerAcl_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_eifForwardToPeerAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec);
void unbuild_mask_eifForwardToPeerAcl(const pd_match_record *key,
    p4_pd_orbisk_switch_eifForwardToPeerAcl_match_spec_t *match_spec);

/* foldedPipeDest: table 0x01000054, pipeline A, ternary match, 4 key bytes (18 bits), entries name a member or group of foldedPipeActionProfile */
typedef struct p4_pd_orbisk_switch_foldedPipeDest_match_spec {
  uint8_t l3Info_vrfId;
  uint8_t l3Info_vrfId_mask;
  uint8_t l3Info_ingL3DmacValid;
  uint8_t l3Info_ingL3DmacValid_mask;
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_ingress_port_mask;
} p4_pd_orbisk_switch_foldedPipeDest_match_spec_t;
pd_status p4_pd_orbisk_switch_foldedPipeDest_add_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_add_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_modify_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_modify_entry_with_selector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_modify_entry_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_modify_entry_with_selector_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_set_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_set_default_entry_with_selector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_foldedPipeDest_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec,
    uint32_t *priority,
    bool *has_mbr,
    bool *has_grp,
    pd_grp_hdl *grp_hdl,
    pd_mbr_hdl *mbr_hdl,
    bool *is_default);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeDest_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeDest_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_foldedPipeDest_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_foldedPipeDest_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeDest_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_foldedPipeDest(const pd_match_record *key,
    p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec);
void unbuild_mask_foldedPipeDest(const pd_match_record *key,
    p4_pd_orbisk_switch_foldedPipeDest_match_spec_t *match_spec);

/* foldedPipeQos: table 0x0100004a, pipeline A, ternary match, 8 key bytes (41 bits) */
typedef struct p4_pd_orbisk_switch_foldedPipeQos_match_spec {
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_trapToCpu_mask;
  uint8_t orbiskCpuHdr_valid;
  uint8_t orbiskCpuHdr_valid_mask;
  uint8_t ingMd_protocol;
  uint8_t ingMd_protocol_mask;
  uint16_t ingMd_dstPort;
  uint16_t ingMd_dstPort_mask;
  uint8_t ingMd_tcpFlags;
  uint8_t ingMd_tcpFlags_mask;
  uint8_t qosMd_dscp;
  uint8_t qosMd_dscp_mask;
  uint8_t l3Info_ingL3DmacValid;
  uint8_t l3Info_ingL3DmacValid_mask;
} p4_pd_orbisk_switch_foldedPipeQos_match_spec_t;
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_add_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_add_with_setFoldedPipeQid(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t *action_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_modify_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_modify_with_NoAction_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_modify_with_setFoldedPipeQid(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    const p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_modify_with_setFoldedPipeQid_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority,
    const p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority);
pd_status p4_pd_orbisk_switch_foldedPipeQos_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t priority,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec,
    uint32_t *priority,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeQos_set_default_action_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_foldedPipeQos_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_foldedPipeQos_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeQos_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_foldedPipeQos(const pd_match_record *key,
    p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec);
void unbuild_mask_foldedPipeQos(const pd_match_record *key,
    p4_pd_orbisk_switch_foldedPipeQos_match_spec_t *match_spec);

/* foldedPipeCounters: table 0x0100005a, pipeline A, exact match, 3 key bytes (14 bits), entries carry foldedPipeCount */
typedef struct p4_pd_orbisk_switch_foldedPipeCounters_match_spec {
  uint16_t ig_intr_md_for_tm_ucast_egress_port;
  uint8_t ingMd_foldedPipeQid;
} p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t;
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_add_with_updateFoldedPipeCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_modify_with_updateFoldedPipeCount(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_modify_with_updateFoldedPipeCount_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_delete(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_delete_by_match_spec(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_match_spec_to_entry_hdl(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_entry(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_entry_hdl entry_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec,
    char *action_name,
    p4_pd_orbisk_switch_action_spec_u *action_spec,
    p4_pd_orbisk_switch_action_names_t *action_enum,
    bool *is_default);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_first_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_next_entry_handles(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl entry_hdl,
    uint32_t n,
    pd_entry_hdl *next_entry_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_set_default_action_updateFoldedPipeCount(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_get_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    bool read_from_hw,
    pd_default_action_record *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_get_default_entry_handle(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_entry_hdl *entry_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_table_reset_default_entry(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_set_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t value,
    uint32_t second_value);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_property(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t property,
    uint32_t *value,
    uint32_t *second_value);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_get_mat_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeCounters_register_mat_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mat_update_cb callback,
    void *cookie);
void unbuild_key_foldedPipeCounters(const pd_match_record *key,
    p4_pd_orbisk_switch_foldedPipeCounters_match_spec_t *match_spec);

/* ================================================================== */
/* Action profiles: members, selector groups */
/* ================================================================== */

/* egrMirrorLagPortActionProfile: action data table 0x02000026, selector table 0x03000003;
 * entries of egressMirrorLagGroup name its members and groups.
 * Actions: setEgrLagMemberSelector, NoAction. */
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_add_member_with_setEgrLagMemberSelector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_modify_member_with_setEgrLagMemberSelector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_add_member_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_modify_member_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_egrMirrorLagPortActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* mirrorLagPortActionProfile: action data table 0x0200001d, selector table 0x03000001;
 * entries of ingressMirrorLagGroup name its members and groups.
 * Actions: setLagMemberSelector, NoAction. */
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_add_member_with_setLagMemberSelector(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setLagMemberSelector_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_modify_member_with_setLagMemberSelector(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setLagMemberSelector_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_add_member_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_modify_member_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_mirrorLagPortActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* foldedPipeActionProfile: action data table 0x02000021, selector table 0x03000002;
 * entries of foldedPipeDest name its members and groups.
 * Actions: setFoldedPipePort, NoAction. */
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_add_member_with_setFoldedPipePort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setFoldedPipePort_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_modify_member_with_setFoldedPipePort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setFoldedPipePort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_add_member_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_modify_member_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_foldedPipeActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* ecmpMemberActionProfile: action data table 0x12010003, selector table 0x13010001;
 * entries of ecmpGroup name its members and groups.
 * Actions: setEcmpNextHop, NoAction. */
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_modify_member_with_setEcmpNextHop(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_modify_member_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_ecmpMemberActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* tunnelMemberActionProfile: action data table 0x1201000c, selector table 0x13010002;
 * entries of tunnelResolve name its members and groups.
 * Actions: setTunnelEgressInfo, NoAction. */
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_add_member_with_setTunnelEgressInfo(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_modify_member_with_setTunnelEgressInfo(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_add_member_with_NoAction(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_modify_member_with_NoAction(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_tunnelMemberActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* lagPortActionProfile: action data table 0x1201000e, selector table 0x13010003;
 * entries of lagGroup name its members and groups.
 * Actions: setLagPort, setPhysicalPort, setTunnelInfo,
 * invalidateUcastEgressPort, fixL2SubintfAlignment. */
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_with_setLagPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    const p4_pd_orbisk_switch_setLagPort_action_spec_t *action_spec,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_modify_member_with_setLagPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    const p4_pd_orbisk_switch_setLagPort_action_spec_t *action_spec);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_with_setPhysicalPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_modify_member_with_setPhysicalPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_with_setTunnelInfo(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_modify_member_with_setTunnelInfo(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_with_invalidateUcastEgressPort(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_modify_member_with_invalidateUcastEgressPort(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_with_fixL2SubintfAlignment(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_modify_member_with_fixL2SubintfAlignment(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_del_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl,
    bool read_from_hw,
    p4_pd_orbisk_switch_action_specs_t *action_spec);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_first_member(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_next_members(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_act_prof_entry_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_adt_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_register_adt_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_adt_update_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_create_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t max_grp_size,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_del_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_add_member_to_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_del_member_from_group(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_group_member_state_set(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t mbr_state);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_group_member_state_get(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t *mbr_state);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_group_member_get_from_hash(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint8_t *hash,
    uint32_t hash_len,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_set_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_mbr_hdl mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_reset_dynamic_action_selection_fallback_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_first_group(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl *grp_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_next_groups(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    pd_grp_hdl grp_hdl,
    uint32_t count,
    pd_grp_hdl *next_grp_hdls);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_first_group_member(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl *mbr_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_next_group_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    pd_mbr_hdl mbr_hdl,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_selector_group_count(pd_sess_hdl sess_hdl,
    pd_dev_target dev_tgt,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_selector_group_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_grp_hdl grp_hdl,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_word_llp_active_member_count(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t *count);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_word_llp_active_members(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    uint32_t word_index,
    uint32_t count,
    pd_mbr_hdl *next_mbr_hdls);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_get_sel_table_handle(pd_tbl_hdl *tbl_hdl);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_register_callback(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_sel_track_updates(uint32_t dev_id,
    pd_sel_tbl_cb callback,
    void *cookie);
pd_status p4_pd_orbisk_switch_lagPortActionProfile_register_sel_update_cb(pd_sess_hdl sess_hdl,
    uint32_t dev_id,
    pd_sel_update_cb callback,
    void *cookie);

/* ------------------------------------ action data read back --- */

void unbuild_action_spec_setPhase0(const pd_action_record *act,
    p4_pd_orbisk_switch_setPhase0_action_spec_t *action_spec);
void unbuild_action_spec_setTunnelTerminationTypeVxlan(const pd_action_record *act,
    p4_pd_orbisk_switch_setTunnelTerminationTypeVxlan_action_spec_t *action_spec);
void unbuild_action_spec_setL2DomainUntagged(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2DomainUntagged_action_spec_t *action_spec);
void unbuild_action_spec_setL2DomainVlanXlate(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
void unbuild_action_spec_setL2DomainTagged(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t *action_spec);
void unbuild_action_spec_setVrfPropertiesTaggedXlatePkt(const pd_action_record *act,
    p4_pd_orbisk_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
void unbuild_action_spec_setVrfPropertiesTaggedPkt(const pd_action_record *act,
    p4_pd_orbisk_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
void unbuild_action_spec_setVrfPropertiesUntaggedPkt(const pd_action_record *act,
    p4_pd_orbisk_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
void unbuild_action_spec_setVxlanL2AintfLookupFields(const pd_action_record *act,
    p4_pd_orbisk_switch_setVxlanL2AintfLookupFields_action_spec_t *action_spec);
void unbuild_action_spec_vxlanVniResolutionHit(const pd_action_record *act,
    p4_pd_orbisk_switch_vxlanVniResolutionHit_action_spec_t *action_spec);
void unbuild_action_spec_setL2ControlFrame(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2ControlFrame_action_spec_t *action_spec);
void unbuild_action_spec_classifyL2ControlFrame(const pd_action_record *act,
    p4_pd_orbisk_switch_classifyL2ControlFrame_action_spec_t *action_spec);
void unbuild_action_spec_setQosPortProperties(const pd_action_record *act,
    p4_pd_orbisk_switch_setQosPortProperties_action_spec_t *action_spec);
void unbuild_action_spec_setQosRewriteConfiguration(const pd_action_record *act,
    p4_pd_orbisk_switch_setQosRewriteConfiguration_action_spec_t *action_spec);
void unbuild_action_spec_setHaloCrlId2(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloCrlId2_action_spec_t *action_spec);
void unbuild_action_spec_setHaloCrlId(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloCrlId_action_spec_t *action_spec);
void unbuild_action_spec_l2ForwardParamsSet(const pd_action_record *act,
    p4_pd_orbisk_switch_l2ForwardParamsSet_action_spec_t *action_spec);
void unbuild_action_spec_setVlanProperties(const pd_action_record *act,
    p4_pd_orbisk_switch_setVlanProperties_action_spec_t *action_spec);
void unbuild_action_spec_setHaloXformDip(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloXformDip_action_spec_t *action_spec);
void unbuild_action_spec_setHaloXformIpv4Sip(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
void unbuild_action_spec_setHaloXformIpv6Sip(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
void unbuild_action_spec_setHaloXformDstPort(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloXformDstPort_action_spec_t *action_spec);
void unbuild_action_spec_setHaloXformSrcPort(const pd_action_record *act,
    p4_pd_orbisk_switch_setHaloXformSrcPort_action_spec_t *action_spec);
void unbuild_action_spec_setFullConeDipRangeId(const pd_action_record *act,
    p4_pd_orbisk_switch_setFullConeDipRangeId_action_spec_t *action_spec);
void unbuild_action_spec_setIngNatProfile(const pd_action_record *act,
    p4_pd_orbisk_switch_setIngNatProfile_action_spec_t *action_spec);
void unbuild_action_spec_setEcmp(const pd_action_record *act,
    p4_pd_orbisk_switch_setEcmp_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop2(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop2_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop3(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop3_action_spec_t *action_spec);
void unbuild_action_spec_setIpv6PrtResultXFirst(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv6PrtResultXFirst_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipNextHop(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipNextHop_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipPortNextHopDynamic(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipPortNextHopDynamic_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipPort(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipPort_action_spec_t *action_spec);
void unbuild_action_spec_setDnatAclId(const pd_action_record *act,
    p4_pd_orbisk_switch_setDnatAclId_action_spec_t *action_spec);
void unbuild_action_spec_setTunnelDip(const pd_action_record *act,
    p4_pd_orbisk_switch_setTunnelDip_action_spec_t *action_spec);
void unbuild_action_spec_setEgressMirrorSession(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgressMirrorSession_action_spec_t *action_spec);
void unbuild_action_spec_setVxlanVniAndVti(const pd_action_record *act,
    p4_pd_orbisk_switch_setVxlanVniAndVti_action_spec_t *action_spec);
void unbuild_action_spec_setL2DomainReplicated(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2DomainReplicated_action_spec_t *action_spec);
void unbuild_action_spec_setMirrorPacketEncapCpu(const pd_action_record *act,
    p4_pd_orbisk_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
void unbuild_action_spec_setMirrorPacketEncapGreIpv4(const pd_action_record *act,
    p4_pd_orbisk_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
void unbuild_action_spec_setTcDscp(const pd_action_record *act,
    p4_pd_orbisk_switch_setTcDscp_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipNextHopAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipNextHopAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipPortNextHopAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipPortNextHopAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipNextHopEcmpAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipNextHopEcmpAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipPortNextHopEcmpAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipPortNextHopEcmpAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedDipNextHopEcmp(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedDipNextHopEcmp_action_spec_t *action_spec);
void unbuild_action_spec_haloKeyMaskedRow1Stage2(const pd_action_record *act,
    p4_pd_orbisk_switch_haloKeyMaskedRow1Stage2_action_spec_t *action_spec);
void unbuild_action_spec_setEgressPort(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgressPort_action_spec_t *action_spec);
void unbuild_action_spec_setEifIngPolicy(const pd_action_record *act,
    p4_pd_orbisk_switch_setEifIngPolicy_action_spec_t *action_spec);
void unbuild_action_spec_setV6NextHop0First(const pd_action_record *act,
    p4_pd_orbisk_switch_setV6NextHop0First_action_spec_t *action_spec);
void unbuild_action_spec_setV6NextHop2First(const pd_action_record *act,
    p4_pd_orbisk_switch_setV6NextHop2First_action_spec_t *action_spec);
void unbuild_action_spec_setV6NextHop3First(const pd_action_record *act,
    p4_pd_orbisk_switch_setV6NextHop3First_action_spec_t *action_spec);
void unbuild_action_spec_setV6NextHop1First(const pd_action_record *act,
    p4_pd_orbisk_switch_setV6NextHop1First_action_spec_t *action_spec);
void unbuild_action_spec_setIpv6PrtIdxNextHop(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv6PrtIdxNextHop_action_spec_t *action_spec);
void unbuild_action_spec_setIpv6PrtIdxNextHop2(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv6PrtIdxNextHop2_action_spec_t *action_spec);
void unbuild_action_spec_setIpv6PrtIdxNextHop3(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv6PrtIdxNextHop3_action_spec_t *action_spec);
void unbuild_action_spec_setIpv6PrtIdxEcmp(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv6PrtIdxEcmp_action_spec_t *action_spec);
void unbuild_action_spec_setEgrLagMemberSelector(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrLagMemberSelector_action_spec_t *action_spec);
void unbuild_action_spec_setGlobalFieldsForVxlanTunnelCommon(const pd_action_record *act,
    p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
void unbuild_action_spec_setGlobalFieldsForVxlanTunnelIpv4(const pd_action_record *act,
    p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
void unbuild_action_spec_setGlobalFieldsForVxlanTunnelIpv4UseDipB(const pd_action_record *act,
    p4_pd_orbisk_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
void unbuild_action_spec_setTunnelL2Info(const pd_action_record *act,
    p4_pd_orbisk_switch_setTunnelL2Info_action_spec_t *action_spec);
void unbuild_action_spec_l2LookupKnownUcast(const pd_action_record *act,
    p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *action_spec);
void unbuild_action_spec_l2LookupKnownMcast(const pd_action_record *act,
    p4_pd_orbisk_switch_l2LookupKnownMcast_action_spec_t *action_spec);
void unbuild_action_spec_l2LookupKnownUcastTunnel(const pd_action_record *act,
    p4_pd_orbisk_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
void unbuild_action_spec_haloSetBestResultRow1(const pd_action_record *act,
    p4_pd_orbisk_switch_haloSetBestResultRow1_action_spec_t *action_spec);
void unbuild_action_spec_haloKeyMaskedRow1Stage3(const pd_action_record *act,
    p4_pd_orbisk_switch_haloKeyMaskedRow1Stage3_action_spec_t *action_spec);
void unbuild_action_spec_setCosFromDefault(const pd_action_record *act,
    p4_pd_orbisk_switch_setCosFromDefault_action_spec_t *action_spec);
void unbuild_action_spec_setCosFromPacket(const pd_action_record *act,
    p4_pd_orbisk_switch_setCosFromPacket_action_spec_t *action_spec);
void unbuild_action_spec_setCosFromPacketWithInner(const pd_action_record *act,
    p4_pd_orbisk_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
void unbuild_action_spec_setIngressMirrorSession(const pd_action_record *act,
    p4_pd_orbisk_switch_setIngressMirrorSession_action_spec_t *action_spec);
void unbuild_action_spec_noDecapNoEncapRouteIpv4(const pd_action_record *act,
    p4_pd_orbisk_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
void unbuild_action_spec_noDecapNoEncapRouteIpv6(const pd_action_record *act,
    p4_pd_orbisk_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
void unbuild_action_spec_encapVxlanRouteIpv4(const pd_action_record *act,
    p4_pd_orbisk_switch_encapVxlanRouteIpv4_action_spec_t *action_spec);
void unbuild_action_spec_encapVxlanRouteIpv6(const pd_action_record *act,
    p4_pd_orbisk_switch_encapVxlanRouteIpv6_action_spec_t *action_spec);
void unbuild_action_spec_noDecapEncapVxlanL2(const pd_action_record *act,
    p4_pd_orbisk_switch_noDecapEncapVxlanL2_action_spec_t *action_spec);
void unbuild_action_spec_setEgressMirrorColor(const pd_action_record *act,
    const pd_resource_index *resources,
    uint32_t num_resources,
    p4_pd_orbisk_switch_setEgressMirrorColor_action_spec_t *action_spec);
void unbuild_action_spec_haloKeyMaskedRow1Stage4(const pd_action_record *act,
    p4_pd_orbisk_switch_haloKeyMaskedRow1Stage4_action_spec_t *action_spec);
void unbuild_action_spec_setTrafficClassAndEgressQid(const pd_action_record *act,
    p4_pd_orbisk_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
void unbuild_action_spec_setL2McResult(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2McResult_action_spec_t *action_spec);
void unbuild_action_spec_setEgrVlan(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrVlan_action_spec_t *action_spec);
void unbuild_action_spec_setEgrVlanSubIntf(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
void unbuild_action_spec_setEncapSmac(const pd_action_record *act,
    p4_pd_orbisk_switch_setEncapSmac_action_spec_t *action_spec);
void unbuild_action_spec_encapPktToCpu(const pd_action_record *act,
    p4_pd_orbisk_switch_encapPktToCpu_action_spec_t *action_spec);
void unbuild_action_spec_encapPktToDpdk(const pd_action_record *act,
    p4_pd_orbisk_switch_encapPktToDpdk_action_spec_t *action_spec);
void unbuild_action_spec_setOvoIntfDetails(const pd_action_record *act,
    p4_pd_orbisk_switch_setOvoIntfDetails_action_spec_t *action_spec);
void unbuild_action_spec_haloKeyMaskedRow1Stage5(const pd_action_record *act,
    p4_pd_orbisk_switch_haloKeyMaskedRow1Stage5_action_spec_t *action_spec);
void unbuild_action_spec_setIpv4GroupVlanIndex(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv4GroupVlanIndex_action_spec_t *action_spec);
void unbuild_action_spec_trapPacket(const pd_action_record *act,
    p4_pd_orbisk_switch_trapPacket_action_spec_t *action_spec);
void unbuild_action_spec_copyPacket(const pd_action_record *act,
    p4_pd_orbisk_switch_copyPacket_action_spec_t *action_spec);
void unbuild_action_spec_copyCosRewriteDscp(const pd_action_record *act,
    p4_pd_orbisk_switch_copyCosRewriteDscp_action_spec_t *action_spec);
void unbuild_action_spec_rewriteCosCopyDscp(const pd_action_record *act,
    p4_pd_orbisk_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
void unbuild_action_spec_rewriteCosRewriteDscp(const pd_action_record *act,
    p4_pd_orbisk_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
void unbuild_action_spec_setEgrPortVlan(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrPortVlan_action_spec_t *action_spec);
void unbuild_action_spec_setEgrPortVlanKernel(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrPortVlanKernel_action_spec_t *action_spec);
void unbuild_action_spec_setEgrPortL2Domain(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrPortL2Domain_action_spec_t *action_spec);
void unbuild_action_spec_setEgrPortL2DomainKernel(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrPortL2DomainKernel_action_spec_t *action_spec);
void unbuild_action_spec_setFoldedPipeQid(const pd_action_record *act,
    p4_pd_orbisk_switch_setFoldedPipeQid_action_spec_t *action_spec);
void unbuild_action_spec_setLagMemberSelector(const pd_action_record *act,
    p4_pd_orbisk_switch_setLagMemberSelector_action_spec_t *action_spec);
void unbuild_action_spec_haloKeyMaskedRow1Stage6(const pd_action_record *act,
    p4_pd_orbisk_switch_haloKeyMaskedRow1Stage6_action_spec_t *action_spec);
void unbuild_action_spec_setIpmcResult(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpmcResult_action_spec_t *action_spec);
void unbuild_action_spec_finalizeMcResultIpmc(const pd_action_record *act,
    p4_pd_orbisk_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
void unbuild_action_spec_finalizeMcResultL2mc(const pd_action_record *act,
    p4_pd_orbisk_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
void unbuild_action_spec_finalizeMcResultL2mcFlood(const pd_action_record *act,
    p4_pd_orbisk_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
void unbuild_action_spec_finalizeMcResultCancel(const pd_action_record *act,
    p4_pd_orbisk_switch_finalizeMcResultCancel_action_spec_t *action_spec);
void unbuild_action_spec_finalizeMcResultFlood(const pd_action_record *act,
    p4_pd_orbisk_switch_finalizeMcResultFlood_action_spec_t *action_spec);
void unbuild_action_spec_setFoldedPipePort(const pd_action_record *act,
    p4_pd_orbisk_switch_setFoldedPipePort_action_spec_t *action_spec);
void unbuild_action_spec_setIngressMirrorColor(const pd_action_record *act,
    const pd_resource_index *resources,
    uint32_t num_resources,
    p4_pd_orbisk_switch_setIngressMirrorColor_action_spec_t *action_spec);
void unbuild_action_spec_acceptLog(const pd_action_record *act,
    p4_pd_orbisk_switch_acceptLog_action_spec_t *action_spec);
void unbuild_action_spec_dropCountAndLog(const pd_action_record *act,
    p4_pd_orbisk_switch_dropCountAndLog_action_spec_t *action_spec);
void unbuild_action_spec_ingressMirrorAction(const pd_action_record *act,
    p4_pd_orbisk_switch_ingressMirrorAction_action_spec_t *action_spec);
void unbuild_action_spec_setMinMtuId(const pd_action_record *act,
    p4_pd_orbisk_switch_setMinMtuId_action_spec_t *action_spec);
void unbuild_action_spec_setSnatAclId(const pd_action_record *act,
    p4_pd_orbisk_switch_setSnatAclId_action_spec_t *action_spec);
void unbuild_action_spec_setL2XId(const pd_action_record *act,
    p4_pd_orbisk_switch_setL2XId_action_spec_t *action_spec);
void unbuild_action_spec_setIpv4PrtResultXFirst(const pd_action_record *act,
    p4_pd_orbisk_switch_setIpv4PrtResultXFirst_action_spec_t *action_spec);
void unbuild_action_spec_setSwitchToCpu(const pd_action_record *act,
    p4_pd_orbisk_switch_setSwitchToCpu_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop0First(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop0First_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop2First(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop2First_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop3First(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop3First_action_spec_t *action_spec);
void unbuild_action_spec_setNextHop1First(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHop1First_action_spec_t *action_spec);
void unbuild_action_spec_setEcmpNextHop(const pd_action_record *act,
    p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t *action_spec);
void unbuild_action_spec_setNextHopToCpu(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHopToCpu_action_spec_t *action_spec);
void unbuild_action_spec_setNextHopDetails(const pd_action_record *act,
    p4_pd_orbisk_switch_setNextHopDetails_action_spec_t *action_spec);
void unbuild_action_spec_setRouterNextHopDetails(const pd_action_record *act,
    p4_pd_orbisk_switch_setRouterNextHopDetails_action_spec_t *action_spec);
void unbuild_action_spec_eifParamEgressing(const pd_action_record *act,
    p4_pd_orbisk_switch_eifParamEgressing_action_spec_t *action_spec);
void unbuild_action_spec_setEgrNatProfile(const pd_action_record *act,
    p4_pd_orbisk_switch_setEgrNatProfile_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedSip(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedSip_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedSipPortDynamic(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedSipPortDynamic_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedSipAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedSipAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setTranslatedSipPortAndCount(const pd_action_record *act,
    p4_pd_orbisk_switch_setTranslatedSipPortAndCount_action_spec_t *action_spec);
void unbuild_action_spec_setEifMatched(const pd_action_record *act,
    p4_pd_orbisk_switch_setEifMatched_action_spec_t *action_spec);
void unbuild_action_spec_setNatCpuTrap(const pd_action_record *act,
    p4_pd_orbisk_switch_setNatCpuTrap_action_spec_t *action_spec);
void unbuild_action_spec_setNatCpuTrapReverse(const pd_action_record *act,
    p4_pd_orbisk_switch_setNatCpuTrapReverse_action_spec_t *action_spec);
void unbuild_action_spec_forwardToPeer(const pd_action_record *act,
    p4_pd_orbisk_switch_forwardToPeer_action_spec_t *action_spec);
void unbuild_action_spec_setEifForwardToPeer(const pd_action_record *act,
    p4_pd_orbisk_switch_setEifForwardToPeer_action_spec_t *action_spec);
void unbuild_action_spec_mtuCheckFailed(const pd_action_record *act,
    p4_pd_orbisk_switch_mtuCheckFailed_action_spec_t *action_spec);
void unbuild_action_spec_setTunnelEgressInfo(const pd_action_record *act,
    p4_pd_orbisk_switch_setTunnelEgressInfo_action_spec_t *action_spec);
void unbuild_action_spec_setPdpClass(const pd_action_record *act,
    p4_pd_orbisk_switch_setPdpClass_action_spec_t *action_spec);
void unbuild_action_spec_meterPdpClass(const pd_action_record *act,
    p4_pd_orbisk_switch_meterPdpClass_action_spec_t *action_spec);
void unbuild_action_spec_trapPktToCpuUntagged(const pd_action_record *act,
    p4_pd_orbisk_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
void unbuild_action_spec_copyPktToCpuUntagged(const pd_action_record *act,
    p4_pd_orbisk_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
void unbuild_action_spec_trapPktToCpuTagged(const pd_action_record *act,
    p4_pd_orbisk_switch_trapPktToCpuTagged_action_spec_t *action_spec);
void unbuild_action_spec_copyPktToCpuTagged(const pd_action_record *act,
    p4_pd_orbisk_switch_copyPktToCpuTagged_action_spec_t *action_spec);
void unbuild_action_spec_trapPktToCpuSubintf(const pd_action_record *act,
    p4_pd_orbisk_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
void unbuild_action_spec_copyPktToCpuSubintf(const pd_action_record *act,
    p4_pd_orbisk_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
void unbuild_action_spec_setLagPort(const pd_action_record *act,
    p4_pd_orbisk_switch_setLagPort_action_spec_t *action_spec);
void unbuild_action_spec_setPdpClassCount(const pd_action_record *act,
    const pd_resource_index *resources,
    uint32_t num_resources,
    p4_pd_orbisk_switch_setPdpClassCount_action_spec_t *action_spec);
void unbuild_action_spec_setPruneParams(const pd_action_record *act,
    p4_pd_orbisk_switch_setPruneParams_action_spec_t *action_spec);
void unbuild_action_spec_setPruneParamsForL2Flood(const pd_action_record *act,
    p4_pd_orbisk_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
void unbuild_action_spec_setPruneParamsForL3Only(const pd_action_record *act,
    p4_pd_orbisk_switch_setPruneParamsForL3Only_action_spec_t *action_spec);

#ifdef __cplusplus
}
#endif

#endif
