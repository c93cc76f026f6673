// Action profiles: member delete and read, the paths of a profile that are
// not write hot paths.
#include "profiles.h"

#include <cstring>

#include "assertions.h"
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

}  // namespace orbisk::pd
