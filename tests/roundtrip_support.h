// The catalogue-wide round trip as data: one row per direct table and one per
// (table, action), each holding small generated thunks that call one exported
// function with its arguments taken from a common `Call` record. The sweep
// over the rows is written once, in roundtrip_test.cpp, and fills and
// compares records from the program's descriptors.
#pragma once

#include <cstddef>
#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd.h"

namespace roundtrip {

// A record pointer whose type the called function decides: a thunk passes
// it where the function takes its own match or action spec, and it converts
// to exactly that pointer type. The sweep sizes the record from the
// descriptors.
struct In {
  const void *p = nullptr;
  template <typename T>
  operator const T *() const { return static_cast<const T *>(p); }
};
struct Out {
  void *p = nullptr;
  template <typename T>
  operator T *() const { return static_cast<T *>(p); }
};

// Every argument any function of the sweep takes, named as the functions
// name them. A thunk reads only the ones its function has.
struct Call {
  pd_sess_hdl sess_hdl = 0;
  pd_dev_target dev_tgt = {0, PD_DEV_PIPE_ALL};
  uint32_t dev_id = 0;
  In match_spec;
  Out match_spec_out;          // get_entry writes the key here
  uint32_t priority = 0;
  uint32_t *priority_out = nullptr;
  In action_spec;
  const pd_meter_spec *meter_spec = nullptr;
  uint32_t ttl = 0;
  pd_entry_hdl entry_hdl = 0;
  pd_entry_hdl *entry_hdl_out = nullptr;
  uint32_t *count = nullptr;
  bool read_from_hw = false;
  char *action_name = nullptr;
  p4_pd_orbisk_switch_action_spec_u *action_spec_out = nullptr;
  p4_pd_orbisk_switch_action_names_t *action_enum = nullptr;
  bool *is_default = nullptr;
  pd_default_action_record *default_out = nullptr;
  // Placement data, members and groups.
  pd_tbl_hdl tbl_hdl = 0;
  void *plcmt_data = nullptr;
  uint32_t *size = nullptr;
  p4_pd_orbisk_switch_action_specs_t *specs_out = nullptr;
  pd_mbr_hdl mbr_hdl = 0;
  pd_grp_hdl grp_hdl = 0;
  pd_mbr_hdl *mbr_hdl_out = nullptr;
  pd_grp_hdl *grp_hdl_out = nullptr;
  bool *has_mbr = nullptr;
  bool *has_grp = nullptr;
  uint32_t max_grp_size = 0;
};

using Thunk = pd_status (*)(const Call &);

// An action as one table uses it. Null thunks for the uses it does not have
// (an action only ever a default has no add).
struct ActionRow {
  const orbisk::pd::ActionDesc *action;
  Thunk table_add_with = nullptr;
  Thunk table_modify_with = nullptr;
  Thunk table_modify_with_by_match_spec = nullptr;
  Thunk set_default_action = nullptr;
};

// A direct table; the key operations are null for a keyless table.
struct TableRow {
  const orbisk::pd::TableDesc *table;
  const ActionRow *actions;
  std::size_t num_actions;
  Thunk get_entry_count = nullptr;
  Thunk get_entry = nullptr;
  Thunk match_spec_to_entry_hdl = nullptr;
  Thunk table_delete = nullptr;
  Thunk table_delete_by_match_spec = nullptr;
  Thunk table_get_default_entry = nullptr;
  Thunk table_get_default_entry_handle = nullptr;
  Thunk table_reset_default_entry = nullptr;
  Thunk get_plcmt_data = nullptr;
  Thunk get_entry_from_plcmt_data = nullptr;
};

// A table whose entries name a member or a group of its profile.
struct IndirectRow {
  const orbisk::pd::TableDesc *table;
  Thunk add_entry = nullptr;
  Thunk add_entry_with_selector = nullptr;
  Thunk set_default_entry = nullptr;
  Thunk get_plcmt_data = nullptr;
  Thunk get_entry_from_plcmt_data = nullptr;
};

// A member of a profile made with one action.
struct MemberRow {
  const orbisk::pd::ActionDesc *action;
  Thunk add_member_with = nullptr;
};

struct ProfileRow {
  const orbisk::pd::ProfileDesc *profile;
  const MemberRow *members;
  std::size_t num_members;
  Thunk create_group = nullptr;
  Thunk add_member_to_group = nullptr;
  Thunk profile_get_plcmt_data = nullptr;
  Thunk profile_sel_get_plcmt_data = nullptr;
  Thunk get_member_from_plcmt_data = nullptr;
  Thunk get_full_member_info_from_plcmt_data = nullptr;
};

// Generated: every direct table in catalogue order.
extern const TableRow kTableRows[];
extern const std::size_t kNumTableRows;
// Generated: every indirect table and every profile, in catalogue order.
extern const IndirectRow kIndirectRows[];
extern const std::size_t kNumIndirectRows;
extern const ProfileRow kProfileRows[];
extern const std::size_t kNumProfileRows;

}  // namespace roundtrip
