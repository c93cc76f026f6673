#include "value_sets.h"

#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

pd_status pvs_set_property(uint32_t pvs, pd_sess_hdl sess, uint32_t dev_id, uint32_t property,
                           uint32_t value, uint32_t argument) {
  const pd_pvs_property_args args{argument, 0};
  return pipe_mgr_pvs_set_property(sess, dev_id, pvs, property, value, args);
}

pd_status pvs_get_property(uint32_t pvs, pd_sess_hdl sess, uint32_t dev_id, uint32_t property,
                           uint32_t *value, uint32_t argument) {
  const pd_pvs_property_args args{argument, 0};
  uint32_t v = 0;
  const pd_status s = pipe_mgr_pvs_get_property(sess, dev_id, pvs, property, &v, args);
  *value = s == BF_SUCCESS ? v : 0xFFFFFFFFu;
  return s;
}

}  // namespace orbisk::pd
