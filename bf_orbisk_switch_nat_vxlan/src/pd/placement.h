// Placement data: the opaque record the driver keeps for what it placed on
// the chip (a match entry, an action data entry, a selector entry), fetched
// through the driver and turned back into host records here. The library
// never looks inside a placement record: the driver decodes it into the same
// driver-facing records a write sends, and these decoders turn those into
// the host records of the table or profile.
//
// Value text, comparison with hardware and the printers build on these, so
// each is one loop over descriptors, written once.
#pragma once

#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// Where a match entry's decoding puts what it found. A null member is not
// asked for: match_spec is null on a keyless table, priority is null unless
// the table's entries take a priority. The selector members are used only
// for a table reached through a selector, action only for any other.
struct PlacementOut {
  void *match_spec;
  uint32_t *priority;
  p4_pd_orbisk_switch_action_specs_t *action;
  pd_mbr_hdl *mbr_hdl;
  pd_grp_hdl *grp_hdl;
  bool *has_mbr;
  bool *has_grp;
  bool *is_default;
};

// get_entry_from_plcmt_data of any table. `function` names the exported
// function for the unknown-action assertion.
pd_status decode_entry(const TableDesc &t, const char *function, const void *plcmt_data,
                       const PlacementOut &out);

// get_member_from_plcmt_data of a profile.
pd_status decode_member(const ProfileDesc &p, const char *function, const void *plcmt_data,
                        p4_pd_orbisk_switch_action_specs_t *out);

// get_full_member_info_from_plcmt_data: the same, and for an action with
// parameters the member's resources asked of the profile's state (when it
// has one) first, and dropped.
pd_status decode_full_member(const ProfileDesc &p, const char *function, pd_ms_state *state,
                             uint8_t device_id, pd_mbr_hdl mbr_hdl, const void *plcmt_data,
                             p4_pd_orbisk_switch_action_specs_t *out);

// The exported decoders' own entry points: the caller's arguments in the
// order the exported function has them, so that they stay where they are,
// and the descriptor last. An assertion names the exported function, made
// from the object's name only when it fires.
pd_status decode_keyed(const void *plcmt_data, void *match_spec,
                       p4_pd_orbisk_switch_action_specs_t *action, bool *is_default,
                       const TableDesc &t);
pd_status decode_keyed_priority(const void *plcmt_data, void *match_spec, uint32_t *priority,
                                p4_pd_orbisk_switch_action_specs_t *action, bool *is_default,
                                const TableDesc &t);
pd_status decode_keyless(const void *plcmt_data, p4_pd_orbisk_switch_action_specs_t *action,
                         bool *is_default, const TableDesc &t);
pd_status decode_member_of(const void *plcmt_data, p4_pd_orbisk_switch_action_specs_t *out,
                           const ProfileDesc &p);
pd_status decode_full_member_of(uint8_t device_id, pd_mbr_hdl mbr_hdl, const void *plcmt_data,
                                p4_pd_orbisk_switch_action_specs_t *out, pd_ms_state *state,
                                const ProfileDesc &p);

}  // namespace orbisk::pd

#pragma GCC visibility pop
