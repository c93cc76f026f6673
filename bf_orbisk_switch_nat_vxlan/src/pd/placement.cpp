// Placement data decoded: the driver turns its record back into the records
// a write sends, and these are unpacked as a read unpacks them.
#include "placement.h"

#include <cstdio>
#include <cstring>

#include "assertions.h"
#include "bytes.h"
#include "orbisk_switch/pd_driver.h"
#include "reads.h"
#include "resources.h"

namespace orbisk::pd {

namespace {

// The name of an exported decoder: the object's name between the prefix and
// the family's suffix. Made only when an assertion names it.
struct ExportedName {
  char text[192];
  ExportedName(const char *object, const char *suffix) {
    std::snprintf(text, sizeof text, "p4_pd_orbisk_switch_%s%s", object, suffix);
  }
};

// What a decoder answers for an action handle that is none of the object's.
constexpr pd_status kUnknownMatchAction = 3;
constexpr pd_status kUnknownMemberAction = 15;

// An action record cleared whole, offering the driver room for any action's
// data in `data`, itself cleared.
void offer_room(pd_action_record &act, uint8_t (&data)[kReadActionDataBytes]) {
  zero_record(act);
  std::memset(data, 0, sizeof data);
  act.data_bytes = data;
  act.num_bytes = kReadActionDataBytes;
}

// The action among `actions` with this handle, or null.
const ActionDesc *action_of(const TableActionDesc *actions, uint16_t n, pd_act_fn_hdl fn) {
  for (uint16_t i = 0; i < n; ++i) {
    if (actions[i].handle == fn) return actions[i].action;
  }
  return nullptr;
}

// The parameters of an action read back, from its data and, for a
// parameter that stands only in a resource slot, from the record's
// resources, whose list is built and dropped here.
void unbuild_params(const ActionDesc &a, const pd_action_record &act, void *spec) {
  pd_resource_index *list = nullptr;
  uint32_t count = 0;
  if (act.resource_count != 0) build_pd_res_spec(&act, &list, &count);
  unbuild_action_spec(a, &act, list, count, spec);
  if (list) bf_sys_free(list);
}

// A member's record decoded. The driver's status is kept and the action
// handle looked at whatever it says: a failed call decides by what the handle
// holds then. `state` is asked for the member's resources first when given.
pd_status member(const ProfileDesc &p, const char *function, const void *plcmt_data,
                 p4_pd_orbisk_switch_action_specs_t *out, pd_ms_state *state, uint8_t device_id,
                 pd_mbr_hdl mbr_hdl, bool ask_state) {
  uint8_t data[kReadActionDataBytes];
  pd_action_record act;
  offer_room(act, data);
  pd_act_fn_hdl fn = 0;
  const pd_status status = pipe_mgr_plcmt_adt_data_get_entry(plcmt_data, &act, &fn);
  const ActionDesc *a = action_of(p.actions, p.num_actions, fn);
  if (a == nullptr) {
    const ExportedName name(p.name, ask_state ? "_get_full_member_info_from_plcmt_data"
                                              : "_get_member_from_plcmt_data");
    pd_assert_failed("((void *)0)", PD_ASSERT_FMT_NULL, function ? function : name.text, __LINE__);
    return kUnknownMemberAction;
  }
  out->name = p4_pd_orbisk_switch_action_names_t(a->enum_value);
  if (a->num_params != 0) {
    if (ask_state && state != nullptr) {
      uint32_t count = 0;
      pd_resource_index *resources = nullptr;
      p4_pd_ms_mbr_get_res(state, device_id, mbr_hdl, &count, &resources);
    }
    unbuild_params(*a, act, &out->u);
  }
  return status;
}

}  // namespace

pd_status decode_entry(const TableDesc &t, const char *function, const void *plcmt_data,
                       const PlacementOut &out) {
  uint8_t data[kReadActionDataBytes];
  KeyRoom room(t);
  pd_action_record act;
  offer_room(act, data);
  pd_act_fn_hdl fn = 0;
  const pd_status s = pipe_mgr_plcmt_mat_data_get_entry(plcmt_data, &room.rec, &act, &fn);
  if (s != BF_SUCCESS) return s;

  if (t.keyed()) {
    unbuild_entry_key(t, room.rec, out.match_spec, out.priority, out.is_default);
  } else {
    // A keyless table's record shows no key, whatever the entry is.
    *out.is_default = true;
  }

  if (t.indirect()) {
    // Neither kind leaves the caller's handles and flags as they were.
    if (act.record_kind == PD_RECORD_KIND_MEMBER_REF) {
      *out.mbr_hdl = act.member_hdl;
      *out.has_mbr = true;
      *out.has_grp = false;
    } else if (act.record_kind == PD_RECORD_KIND_GROUP_REF) {
      *out.grp_hdl = act.group_hdl;
      *out.has_mbr = false;
      *out.has_grp = true;
    }
    return BF_SUCCESS;
  }

  const ActionDesc *a = action_of(t.actions, t.num_actions, fn);
  if (a == nullptr) {
    const ExportedName name(t.name, "_get_entry_from_plcmt_data");
    pd_assert_failed("((void *)0)", PD_ASSERT_FMT_NULL, function ? function : name.text, __LINE__);
    return kUnknownMatchAction;
  }
  out.action->name = p4_pd_orbisk_switch_action_names_t(a->enum_value);
  if (a->num_params != 0) unbuild_params(*a, act, &out.action->u);
  return BF_SUCCESS;
}

pd_status decode_member(const ProfileDesc &p, const char *function, const void *plcmt_data,
                        p4_pd_orbisk_switch_action_specs_t *out) {
  return member(p, function, plcmt_data, out, nullptr, 0, 0, false);
}

pd_status decode_full_member(const ProfileDesc &p, const char *function, pd_ms_state *state,
                             uint8_t device_id, pd_mbr_hdl mbr_hdl, const void *plcmt_data,
                             p4_pd_orbisk_switch_action_specs_t *out) {
  return member(p, function, plcmt_data, out, state, device_id, mbr_hdl, true);
}

pd_status decode_keyed(const void *plcmt_data, void *match_spec,
                       p4_pd_orbisk_switch_action_specs_t *action, bool *is_default,
                       const TableDesc &t) {
  return decode_entry(t, nullptr, plcmt_data,
                      {match_spec, nullptr, action, nullptr, nullptr, nullptr, nullptr, is_default});
}

pd_status decode_keyed_priority(const void *plcmt_data, void *match_spec, uint32_t *priority,
                                p4_pd_orbisk_switch_action_specs_t *action, bool *is_default,
                                const TableDesc &t) {
  return decode_entry(t, nullptr, plcmt_data,
                      {match_spec, priority, action, nullptr, nullptr, nullptr, nullptr, is_default});
}

pd_status decode_keyless(const void *plcmt_data, p4_pd_orbisk_switch_action_specs_t *action,
                         bool *is_default, const TableDesc &t) {
  return decode_entry(t, nullptr, plcmt_data,
                      {nullptr, nullptr, action, nullptr, nullptr, nullptr, nullptr, is_default});
}

pd_status decode_member_of(const void *plcmt_data, p4_pd_orbisk_switch_action_specs_t *out,
                           const ProfileDesc &p) {
  return member(p, nullptr, plcmt_data, out, nullptr, 0, 0, false);
}

pd_status decode_full_member_of(uint8_t device_id, pd_mbr_hdl mbr_hdl, const void *plcmt_data,
                                p4_pd_orbisk_switch_action_specs_t *out, pd_ms_state *state,
                                const ProfileDesc &p) {
  return member(p, nullptr, plcmt_data, out, state, device_id, mbr_hdl, true);
}

}  // namespace orbisk::pd
