// Meters and WRED: a caller's five 32-bit numbers into the driver's record
// with its units, and the colour mode, once for every meter.
#pragma once

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"
#include "resources.h"

namespace orbisk::pd {

// Meter type of a packet meter as the driver wants it; logs a bad type (the
// byte meters' twin is get_bytes_meter_type, resources.h).
uint32_t get_packets_meter_type(uint32_t meter_type, bool has_pre_color);

// The named meters' type: has_pre_color is always true on their path, so a
// valid type stands as it is and only a bad one takes the logging call.
inline uint32_t named_meter_type(uint32_t meter_type, bool packets) {
  if (meter_type <= PD_METER_TYPE_COLOR_UNAWARE) return meter_type;
  return packets ? get_packets_meter_type(meter_type, true) : get_bytes_meter_type(meter_type, true);
}

inline void fill_meter(pd_meter_record &m, uint32_t type, uint32_t unit, const pd_meter_spec &spec) {
  m.meter_type = type;
  m.cir_unit = unit;
  m.pir_unit = unit;
  m.cir = spec.cir;
  m.cburst = spec.cburst;
  m.pir = spec.pir;
  m.pburst = spec.pburst;
}

// The direct meter's slot with a type already worked out, to its entry.
inline pd_status send_direct_meter(pd_tbl_hdl tbl, uint32_t meter_hdl, pd_sess_hdl sess,
                                   uint32_t device_id, pd_entry_hdl entry_hdl,
                                   const pd_meter_spec *spec, uint32_t type) {
  pd_resource_record rec{};
  rec.resource_hdl = meter_hdl;
  rec.resource_tag = PD_RESOURCE_TAG_ATTACHED;
  fill_meter(rec.resource_spec.meter, type, PD_METER_RATE_UNIT_BYTES, *spec);
  return pipe_mgr_mat_ent_set_resource(sess, device_id, tbl, entry_hdl, &rec, 1, 0);
}

// The same after logging a bad type: out of line, so that the usual call
// keeps no registers for it.
pd_status send_direct_meter_bad_type(pd_tbl_hdl tbl, uint32_t meter_hdl, pd_sess_hdl sess,
                                     uint32_t device_id, pd_entry_hdl entry_hdl,
                                     const pd_meter_spec *spec);

// A named meter: the direct one through its entry's resource slot, with the
// match table `tbl` and the meter's own handle in the slot; an indexed one by
// its handle.
inline pd_status meter_set_direct(pd_tbl_hdl tbl, uint32_t meter_hdl, pd_sess_hdl sess,
                                  uint32_t device_id, pd_entry_hdl entry_hdl,
                                  const pd_meter_spec *spec) {
  if (spec->meter_type > PD_METER_TYPE_COLOR_UNAWARE) [[unlikely]] {
    return send_direct_meter_bad_type(tbl, meter_hdl, sess, device_id, entry_hdl, spec);
  }
  return send_direct_meter(tbl, meter_hdl, sess, device_id, entry_hdl, spec, spec->meter_type);
}

pd_status meter_set_indexed(pd_tbl_hdl tbl, bool packets, pd_sess_hdl sess,
                            pd_dev_target target, uint32_t index, const pd_meter_spec *spec);

// Reads back the four values cut to 32 bits and the driver's type as it is;
// the caller's spec is untouched on failure.
pd_status meter_read_direct(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                            pd_entry_hdl entry_hdl, pd_meter_spec *spec);
pd_status meter_read_indexed(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                             uint32_t index, pd_meter_spec *spec);

// The generic set on any meter table by handle, in packets or bytes. A type
// above 1, or colour-aware without a pre-colour, ends the process.
pd_status meter_set_generic(bool packets, pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                            uint32_t index, const pd_meter_spec *spec, bool has_pre_color);

// A WRED cell: the caller's 16 bytes, copied unread.
pd_status wred_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl, uint32_t index,
                   const pd_wred_spec *spec);

}  // namespace orbisk::pd
