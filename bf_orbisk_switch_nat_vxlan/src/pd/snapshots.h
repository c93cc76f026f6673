// Snapshots: the trigger's byte order and the capture copy, written once.
#pragma once

#include <cstdint>

#include "orbisk_switch/pd.h"

namespace orbisk::pd {

// Copies value and mask, reverses the bytes of every 2- and 4-byte field of
// the layout that bit 1 of the handle selects in both copies, and hands the
// copies to the driver. Both records live on the stack.
pd_status snapshot_trigger_set(uint32_t hdl, const p4_pd_orbisk_switch_snapshot_record_t *value,
                               const p4_pd_orbisk_switch_snapshot_record_t *mask);

// Allocates the capture as the driver sizes it, has the driver fill it, and
// copies up to P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES records to the caller,
// record-size bytes apart in the block and one record apart in the array.
pd_status snapshot_capture_data_get(uint32_t hdl, uint32_t pipe,
                                    p4_pd_orbisk_switch_snapshot_record_t *capture,
                                    pd_snapshot_capture_ctrl *ctrl, uint32_t *count);

}  // namespace orbisk::pd
