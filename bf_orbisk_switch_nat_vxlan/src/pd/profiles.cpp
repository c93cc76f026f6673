// Action profiles: member delete and read, the paths of a profile that are
// not write hot paths.
#include "profiles.h"

#include <cstring>

#include "assertions.h"
#include "pd_limits.h"
#include "reads.h"

namespace orbisk::pd {

pd_status del_member(pd_tbl_hdl adt, pd_ms_state *state, pd_sess_hdl sess, uint32_t device_id,
                     pd_mbr_hdl mbr_hdl) {
  const pd_status s = pipe_mgr_adt_ent_del(sess, device_id, adt, mbr_hdl, 0);
  if (s != BF_SUCCESS) return s;
  p4_pd_ms_del_mbr(sess, state, device_id, mbr_hdl);
  return BF_SUCCESS;
}

pd_status read_member(const ProfileDesc &p, pd_ms_state *state, const char *function,
                      uint32_t device_id, pd_mbr_hdl mbr_hdl, bool read_from_hw,
                      p4_pd_orbisk_switch_action_specs_t *out) {
  // The same room for every profile, whatever its longest action.
  uint8_t data[kReadActionDataBytes];
  std::memset(data, 0, sizeof data);
  pd_action_record act;
  zero_record(act);
  act.num_bytes = kReadActionDataBytes;
  act.data_bytes = data;
  pd_act_fn_hdl fn = 0;
  const pd_dev_target all_pipes = {device_id, PD_DEV_PIPE_ALL};
  const pd_status s = pipe_mgr_get_action_data_entry(p.adt_hdl, all_pipes, mbr_hdl, &act, &fn,
                                                     uint8_t(read_from_hw));
  if (s != BF_SUCCESS) return s;
  const ActionDesc *a = nullptr;
  for (uint16_t i = 0; i < p.num_actions; ++i) {
    if (p.actions[i].handle == fn) a = p.actions[i].action;
  }
  if (a == nullptr) {
    pd_assert_failed("((void *)0)", PD_ASSERT_FMT_NULL, function, __LINE__);
    return 15;
  }
  out->name = p4_pd_orbisk_switch_action_names_t(a->enum_value);
  if (a->num_params != 0) {
    // Its resources are the state's to know; no member of these profiles has any.
    uint32_t num_resources = 0;
    pd_resource_index *resources = nullptr;
    p4_pd_ms_mbr_get_res(state, device_id, mbr_hdl, &num_resources, &resources);
    unbuild_action_spec(*a, &act, nullptr, 0, &out->u);
  }
  return BF_SUCCESS;
}

pd_status create_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess, pd_dev_target target,
                       uint32_t max_size, pd_grp_hdl *grp_hdl) {
  const pd_status s = pipe_mgr_sel_grp_add(sess, target, sel, 0, max_size, 0xDEADBEEFu, grp_hdl, 0);
  if (s != BF_SUCCESS) return s;
  // A new group runs no action until its first member comes.
  p4_pd_ms_new_grp(sess, state, target.device_id, *grp_hdl);
  return BF_SUCCESS;
}

pd_status del_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess, uint32_t device_id,
                    pd_grp_hdl grp_hdl) {
  uint32_t count = 0;
  uint32_t written = 0;
  if (pd_status s = pipe_mgr_get_sel_grp_mbr_count(sess, device_id, sel, grp_hdl, &count)) {
    return s;
  }
  pd_mbr_hdl *mbrs = nullptr;
  uint8_t *states = nullptr;
  if (count == 0) {
    if (pd_status s = pipe_mgr_sel_grp_del(sess, device_id, sel, grp_hdl, 0)) return s;
  } else {
    mbrs = static_cast<pd_mbr_hdl *>(bf_sys_calloc(count, sizeof *mbrs));
    states = static_cast<uint8_t *>(bf_sys_calloc(count, 1));
    if (mbrs == nullptr || states == nullptr) {
      if (mbrs) bf_sys_free(mbrs);
      if (states) bf_sys_free(states);
      return 2;  // out of memory; the group stays
    }
    pd_status s = pipe_mgr_sel_grp_mbrs_get(sess, device_id, sel, grp_hdl, count, mbrs, states,
                                            &written, 0);
    if (s == BF_SUCCESS) s = pipe_mgr_sel_grp_del(sess, device_id, sel, grp_hdl, 0);
    if (s != BF_SUCCESS) {
      bf_sys_free(mbrs);
      bf_sys_free(states);
      return s;
    }
  }
  // The driver's group is gone: a refusal here is the caller's to hear.
  const pd_status s = p4_pd_ms_del_grp(sess, state, device_id, grp_hdl, written, mbrs);
  if (mbrs) {
    bf_sys_free(mbrs);
    bf_sys_free(states);
  }
  return s;
}

pd_status del_member_from_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess,
                                uint32_t device_id, pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl) {
  const pd_status s = pipe_mgr_sel_grp_mbr_del(sess, device_id, sel, grp_hdl, mbr_hdl, 0);
  if (s != BF_SUCCESS) return s;
  // The group's action stays as it was, even for a group left empty.
  p4_pd_ms_del_mbr_from_grp(sess, state, device_id, mbr_hdl, grp_hdl);
  return BF_SUCCESS;
}

pd_status group_member_state_set(pd_tbl_hdl sel, const char *function, pd_sess_hdl sess, uint32_t device_id,
                                 pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t mbr_state) {
  if (mbr_state == P4_PD_GRP_MBR_STATE_ACTIVE) {
    return pipe_mgr_sel_grp_mbr_enable(sess, device_id, sel, grp_hdl, mbr_hdl, 0);
  }
  if (mbr_state != P4_PD_GRP_MBR_STATE_INACTIVE) {
    pd_hard_assert_failed("mbr_state == P4_PD_GRP_MBR_STATE_INACTIVE", function, __LINE__);
  }
  return pipe_mgr_sel_grp_mbr_disable(sess, device_id, sel, grp_hdl, mbr_hdl, 0);
}

pd_status group_member_state_get(pd_tbl_hdl sel, pd_sess_hdl sess, uint32_t device_id,
                                 pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t *mbr_state) {
  uint32_t got = 0;
  const pd_status s =
      pipe_mgr_sel_grp_mbr_state_get(sess, device_id, sel, grp_hdl, mbr_hdl, &got);
  if (s != BF_SUCCESS) return s;
  if (got == P4_PD_GRP_MBR_STATE_ACTIVE || got == P4_PD_GRP_MBR_STATE_INACTIVE) *mbr_state = got;
  return BF_SUCCESS;
}

pd_status read_indirect_entry(const TableDesc &t, pd_sess_hdl sess, uint32_t device_id,
                              pd_entry_hdl entry_hdl, bool read_from_hw, const IndirectOut &out) {
  KeyRoom room(t);
  pd_match_record &key = room.rec;
  // An entry that names a member or group has no action data: no room is offered.
  pd_action_record act;
  zero_record(act);
  pd_act_fn_hdl fn = 0;
  const pd_dev_target all_pipes{device_id, PD_DEV_PIPE_ALL};
  const pd_status s = pipe_mgr_get_entry(sess, t.handle, all_pipes, entry_hdl, &key, &act, &fn,
                                         read_from_hw, 1, 0);
  if (s != BF_SUCCESS) return s;
  *out.has_mbr = act.record_kind == PD_RECORD_KIND_MEMBER_REF;
  *out.has_grp = act.record_kind == PD_RECORD_KIND_GROUP_REF;
  if (*out.has_mbr) *out.mbr_hdl = act.member_hdl;
  if (*out.has_grp) *out.grp_hdl = act.group_hdl;
  unbuild_entry_key(t, key, out.match_spec, out.priority, out.is_default);
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
