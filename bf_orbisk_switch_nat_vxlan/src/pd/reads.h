// Reads: an entry or a default entry back from the driver, its records
// turned into host records.
#pragma once

#include <cstdint>

#include "orbisk_switch/pd.h"

namespace orbisk::pd {

// Room offered to the driver for action data on a read: the largest
// parameter string of the program, the same for every direct table.
inline constexpr uint16_t kReadActionDataBytes = 28;

// Room for the longest key of the program on a read; every table's key size
// is checked against it where its read descriptor is generated.
inline constexpr unsigned kMaxKeyBytes = 64;

// How to unpack an action read back into its host record.
using UnbuildFn = void (*)(const pd_action_record *, const pd_resource_index *, uint32_t, void *);

struct ActionRead {
  pd_act_fn_hdl handle;  // the action's handle on this table
  uint32_t enum_value;
  UnbuildFn unbuild;     // null for an action without parameters
};

struct TableRead {
  pd_tbl_hdl tbl;
  uint16_t key_bytes;
  uint16_t key_bits;
  const ActionRead *actions;
  uint16_t num_actions;
  uint16_t match_spec_size;
  void (*unbuild_key)(const pd_match_record *, void *);
  void (*unbuild_mask)(const pd_match_record *, void *);  // null on an exact table
};

// get_entry of a direct table. match_spec, priority and is_default are null
// on a keyless table; priority is null on an exact or prefix table.
pd_status read_entry(const TableRead &t, const char *function, pd_sess_hdl sess,
                     uint32_t device_id, pd_entry_hdl entry_hdl, bool read_from_hw,
                     void *match_spec, uint32_t *priority, char *action_name, void *action_spec,
                     p4_pd_orbisk_switch_action_names_t *action_enum, bool *is_default);

// table_get_default_entry of any table.
pd_status read_default_entry(const TableRead &t, pd_sess_hdl sess, pd_dev_target target,
                             bool read_from_hw, p4_pd_orbisk_switch_action_specs_t *out);

}  // namespace orbisk::pd
