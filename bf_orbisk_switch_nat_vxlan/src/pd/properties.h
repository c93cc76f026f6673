// Table properties and handles: the calls that do more than hand their
// arguments on, each written once for every table.
#pragma once

#include "orbisk_switch/pd.h"

namespace orbisk::pd {

// A property read into locals; both go to the caller on success, and
// 0xFFFFFFFF goes to both on failure, never the caller's earlier values.
pd_status get_property(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id, uint32_t property,
                       uint32_t *value, uint32_t *second_value);

// The table's handle into *out when out is not null; always 0.
pd_status get_mat_table_handle(pd_tbl_hdl tbl, pd_tbl_hdl *out);

}  // namespace orbisk::pd
