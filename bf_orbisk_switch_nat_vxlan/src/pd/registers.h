// Registers: a cell exists once per pipe, so a read of one index yields a
// value for each pipe; the named reads size, allocate and unpack for that,
// once for every register. Only bit 0 of a read's flags reaches the driver.
#pragma once

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

// One index: a byte per pipe into values, their number into count. Status 2
// when the elements cannot be allocated; out places untouched on failure.
pd_status register_read(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target, uint32_t index,
                        uint32_t flags, uint8_t *values, uint32_t *count);
// A range: the values grouped by index, and by pipe inside an index, for as
// many indices as the driver read. Status 2 when an allocation fails.
pd_status register_range_read(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                              uint32_t first, uint32_t count, uint32_t flags, uint32_t *num_read,
                              uint8_t *values, uint32_t *num_values);

// A check register's value, one bit: any nonzero byte is 1.
inline pd_register_element register_element_of(const uint8_t *value) {
  pd_register_element e{};  // only the first byte is the driver's to read
  e.bytes[0] = *value != 0 ? 1 : 0;
  return e;
}

inline pd_status register_write(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                                uint32_t index, const uint8_t *value) {
  pd_register_element e = register_element_of(value);
  return pipe_stful_ent_set(sess, target, tbl, index, &e, 0);
}

// Every cell to the value: a reset with an element.
inline pd_status register_write_all(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                                    const uint8_t *value) {
  pd_register_element e = register_element_of(value);
  return pipe_stful_table_reset(sess, target, tbl, &e);
}

// The generic write of a direct register's cell: the one handle is both the
// match table and the resource, and the device is taken as one byte.
pd_status register_write_direct(pd_sess_hdl sess, uint32_t device, pd_tbl_hdl tbl,
                                pd_entry_hdl entry_hdl, const pd_register_element *element);

}  // namespace orbisk::pd
