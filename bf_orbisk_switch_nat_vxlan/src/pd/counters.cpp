#include "counters.h"

namespace orbisk::pd {

pd_status counter_read_indexed(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                               uint32_t index, uint32_t flags, pd_counter_value *value) {
  if (flags & PD_READ_FROM_HW) {
    if (pd_status s = pipe_mgr_stat_ent_database_sync(sess, target, tbl, index)) return s;
  }
  pd_counter_record rec{};
  uint32_t indices[1] = {index};
  pd_counter_record *values[1] = {&rec};
  if (pd_status s = pipe_mgr_stat_ent_query(sess, target, tbl, indices, 1, values)) return s;
  value->packets = rec.packets;
  value->bytes = rec.bytes;
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
