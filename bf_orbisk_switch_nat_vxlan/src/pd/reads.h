// Reads: an entry or a default entry back from the driver, its records
// turned into host records.
#pragma once

#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd.h"
#include "pd_limits.h"

namespace orbisk::pd {

// Room offered to the driver for action data on a read: the same for every
// direct table, and at least the longest action data of the program (each
// action's data is checked against it where its unbuilder is generated).
inline constexpr uint16_t kReadActionDataBytes = 28;

// Where an entry read puts what it found. A null member is not asked for:
// match_spec and is_default are null on a keyless table, priority is null
// unless the table is ternary, action_name and action_enum may be null.
struct EntryOut {
  void *match_spec;
  uint32_t *priority;
  char *action_name;
  void *action_spec;
  p4_pd_orbisk_switch_action_names_t *action_enum;
  bool *is_default;
};

// A key record offering the driver room for one of the table's keys on a
// read; a keyless table's has no strings.
struct KeyRoom {
  explicit KeyRoom(const TableDesc &t);
  pd_match_record rec;
  uint8_t value[kMaxKeyBytes];
  uint8_t mask[kMaxKeyBytes];
};

// The key part of an entry read back: is_default (a default entry comes back
// without a key, its match spec zeroed), else the match spec; the priority
// when asked for.
void unbuild_entry_key(const TableDesc &t, const pd_match_record &key, void *match_spec,
                       uint32_t *priority, bool *is_default);

// get_entry of a direct table, across all pipes. `function` is the exported
// function's name, for the assertions.
pd_status read_entry(const TableDesc &t, const char *function, pd_sess_hdl sess,
                     uint32_t device_id, pd_entry_hdl entry_hdl, bool read_from_hw,
                     const EntryOut &out);

// table_get_default_entry of any table.
pd_status read_default_entry(const TableDesc &t, pd_sess_hdl sess, pd_dev_target target,
                             bool read_from_hw, p4_pd_orbisk_switch_action_specs_t *out);

// A key record read back into the table's match spec: every field's value
// (all else zero); the partition of a partitioned prefix table comes from
// the record's partition_index, not from the strings.
void unbuild_key(const TableDesc &t, const pd_match_record *key, void *match_spec);

// The masks of a ternary table's ternary fields, or the prefix length of a
// prefix table's prefix field, into a match spec already filled by
// unbuild_key.
void unbuild_mask(const TableDesc &t, const pd_match_record *key, void *match_spec);

// An action record read back into the action's spec (all else zero). A
// parameter that stands only in a resource slot is read from the list of
// attached resources: 0xFFFF when the list is empty (the resource was
// detached), 0 when it does not name the resource.
void unbuild_action_spec(const ActionDesc &a, const pd_action_record *act,
                         const pd_resource_index *resources, uint32_t num_resources,
                         void *action_spec);

}  // namespace orbisk::pd
