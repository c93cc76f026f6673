// Idle time of the tables whose entries age: the calls that do more than
// hand their arguments on, each written once for every such table.
#pragma once

#include "orbisk_switch/pd.h"

namespace orbisk::pd {

// The host record into the driver's form; the driver's parameters first and
// ageing turned on only when they were taken.
pd_status idle_tmo_enable(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                          pd_idle_params params);

// The driver's parameters into the host record: untouched on failure; the
// mode alone outside notify mode; in notify mode the four values too, with
// the reserved byte 0.
pd_status idle_params_get(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                          pd_idle_params *params);

// An entry's hit state, copied to the caller whatever the driver answered.
pd_status get_hit_state(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                        pd_entry_hdl entry_hdl, uint32_t *hit_state);

}  // namespace orbisk::pd
