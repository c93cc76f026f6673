// Counters: the driver keeps a cell's bytes before its packets, the caller
// packets first; every read and write swaps them here, once for all counters.
#pragma once

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

// A direct counter's cell, named by an entry of its match table `tbl`. With
// bit 0 of the flags the cell is brought from the chip first; a failed sync
// or query leaves the caller's value untouched.
inline pd_status counter_read_direct(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                                     pd_entry_hdl entry_hdl, uint32_t flags,
                                     pd_counter_value *value) {
  if (flags & PD_READ_FROM_HW) {
    if (pd_status s = pipe_mgr_direct_stat_ent_database_sync(sess, device_id, tbl, entry_hdl)) {
      return s;
    }
  }
  // The driver fills the whole record.
  pd_counter_record rec;
  if (pd_status s = pipe_mgr_mat_ent_direct_stat_query(sess, device_id, tbl, entry_hdl, &rec)) {
    return s;
  }
  value->packets = rec.packets;
  value->bytes = rec.bytes;
  return BF_SUCCESS;
}
// An indexed counter's cell: the driver's query is an array of one.
pd_status counter_read_indexed(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                               uint32_t index, uint32_t flags, pd_counter_value *value);

inline pd_status counter_write_direct(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                                      pd_entry_hdl entry_hdl, pd_counter_value value) {
  pd_counter_record rec{value.bytes, value.packets};
  return pipe_mgr_mat_ent_direct_stat_set(sess, device_id, tbl, entry_hdl, &rec);
}

inline pd_status counter_write_indexed(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                                       uint32_t index, pd_counter_value value) {
  pd_counter_record rec{value.bytes, value.packets};
  return pipe_mgr_stat_ent_set(sess, target, tbl, index, &rec);
}

}  // namespace orbisk::pd
