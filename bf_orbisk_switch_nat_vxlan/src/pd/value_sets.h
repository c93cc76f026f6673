// Parser value sets: the two property calls, the only ones that do more than
// forward with the set's handle.
#pragma once

#include <cstdint>

#include "orbisk_switch/pd_records.h"

namespace orbisk::pd {

pd_status pvs_set_property(uint32_t pvs, pd_sess_hdl sess, uint32_t dev_id, uint32_t property,
                           uint32_t value, uint32_t argument);
// The driver's answer goes to the caller on success, 0xFFFFFFFF on any
// failure: the place is written either way.
pd_status pvs_get_property(uint32_t pvs, pd_sess_hdl sess, uint32_t dev_id, uint32_t property,
                           uint32_t *value, uint32_t argument);

}  // namespace orbisk::pd
