#include "idle.h"

#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

pd_status idle_tmo_enable(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                          pd_idle_params params) {
  pd_idle_driver_params p{};
  p.mode = params.mode;
  p.value1 = params.value1;
  p.value2 = params.value2;
  p.value3 = params.value3;
  p.value4 = params.value4;
  if (pd_status s = pipe_mgr_idle_set_params(sess, device_id, tbl, p)) return s;
  return pipe_mgr_idle_tmo_set_enable(sess, device_id, tbl, 1);
}

pd_status idle_params_get(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                          pd_idle_params *params) {
  pd_idle_driver_params p{};
  if (pd_status s = pipe_mgr_idle_get_params(sess, device_id, tbl, &p)) return s;
  // The mode is a 32-bit field of the host record: the driver's word is cut.
  params->mode = uint32_t(p.mode);
  if (params->mode != PD_IDLE_MODE_NOTIFY) return BF_SUCCESS;
  params->value1 = p.value1;
  params->value2 = uint32_t(p.value2);
  params->value3 = p.value3;
  params->value4 = p.value4;
  params->reserved = 0;
  return BF_SUCCESS;
}

pd_status get_hit_state(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                        pd_entry_hdl entry_hdl, uint32_t *hit_state) {
  // The driver writes a local, which goes to the caller even after a failure:
  // the caller's value is only as good as the status says.
  uint32_t state = 0;
  const pd_status s = pipe_mgr_idle_time_get_hit_state(sess, device_id, tbl, entry_hdl, &state);
  *hit_state = state;
  return s;
}

}  // namespace orbisk::pd
