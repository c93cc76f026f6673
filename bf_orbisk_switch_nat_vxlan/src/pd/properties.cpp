#include "properties.h"

#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

pd_status get_property(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id, uint32_t property,
                       uint32_t *value, uint32_t *second_value) {
  uint32_t v = 0;
  uint32_t v2 = 0;
  const pd_status s = pipe_mgr_tbl_get_property(sess, device_id, tbl, property, &v, &v2);
  if (s != BF_SUCCESS) v = v2 = 0xFFFFFFFFu;
  *value = v;
  *second_value = v2;
  return s;
}

pd_status get_mat_table_handle(pd_tbl_hdl tbl, pd_tbl_hdl *out) {
  if (out != nullptr) *out = tbl;
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
