// Meters and WRED: a caller's five 32-bit numbers into the driver's record
// with its units, and the colour mode, once for every meter.
#pragma once

#include "orbisk_switch/pd.h"

namespace orbisk::pd {

// Meter type of a packet meter as the driver wants it; logs a bad type (the
// byte meters' twin is get_bytes_meter_type, resources.h).
uint32_t get_packets_meter_type(uint32_t meter_type, bool has_pre_color);

// A named meter: the direct one through its entry's resource slot, with the
// match table `tbl` and the meter's own handle in the slot; an indexed one by
// its handle. has_pre_color is always true on this path.
pd_status meter_set_direct(pd_tbl_hdl tbl, uint32_t meter_hdl, pd_sess_hdl sess,
                           uint32_t device_id, pd_entry_hdl entry_hdl, const pd_meter_spec *spec);
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
