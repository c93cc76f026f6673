// Resource slots of an action record: a counter or meter an entry carries,
// filled on a write and listed again on a read.
#pragma once

#include <cstdint>

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_records.h"

namespace orbisk::pd {

// The one resource slot of a table that carries a resource. An indexed
// resource's index is the value of an action parameter: an entry add sends
// its low 16 bits, a modify all 32.
inline void set_slot(pd_action_record &rec, uint32_t resource_hdl, uint32_t tag,
                     uint32_t index = 0) {
  rec.resource_count = 1;
  rec.resources[0].resource_hdl = resource_hdl;
  rec.resources[0].resource_index = index;
  rec.resources[0].resource_tag = tag;
}

// Fills the slot of a direct byte meter from a caller's meter spec. Without a
// spec the three writes answer differently: an entry add ends the process
// (hard assertion), a modify sends the slot with tag none, a default
// detaches the meter.
void set_direct_meter_slot(pd_action_record &rec, uint32_t meter_hdl,
                           const pd_meter_spec &spec);

// The driver's meter type for a caller's, under the named function's soft
// assertions: a type that is neither colour mode, or colour-aware without a
// pre-colour, is logged (and ends the process in debug mode).
uint32_t meter_type_for(uint32_t meter_type, bool has_pre_color, const char *function);
// The same for a byte meter, reported as get_bytes_meter_type.
uint32_t get_bytes_meter_type(uint32_t meter_type, bool has_pre_color);

// List of attached resources of a record read back (tag 1 slots), allocated
// with bf_sys_calloc when resource_count is nonzero; freed by the caller.
void build_pd_res_spec(const pd_action_record *rec, pd_resource_index **list, uint32_t *count);

// Value of a parameter that stands only in a resource slot, read back.
uint32_t resource_index_of(const pd_resource_index *list, uint32_t count, uint32_t resource_hdl);

}  // namespace orbisk::pd
