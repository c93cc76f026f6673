// Action profiles: the rules every profile's members follow, written once.
// A member is made in the driver's action data table first; the profile's
// member-selection state learns it (and its action) only when the driver
// said yes, and nothing is ever rolled back.
#pragma once

#include <cstdint>

#include "bytes.h"
#include "descriptors.h"
#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

// What modify_member_with_<a> answers for a member made with another action:
// a member keeps its action for life.
inline constexpr pd_status kOtherAction = 0xFFFFFFFFu;

// Fills a member's action record: zero, then its data sizes and place. The
// record kind stays 0, the member data kind; an action without parameters
// still points at a valid (empty) place.
template <uint16_t N, uint16_t Bits>
inline void begin_member(ActBuf<N> &a) {
  zero_record(a.rec);
  a.rec.num_valid_bits = Bits;
  a.rec.num_bytes = N;
  a.rec.data_bytes = a.data;
}

inline pd_status add_member(pd_sess_hdl sess, pd_dev_target target, pd_ms_state *state,
                            pd_tbl_hdl adt, pd_act_fn_hdl fn, pd_action_record *act,
                            pd_mbr_hdl *mbr_hdl) {
  const pd_status s = pipe_mgr_adt_ent_add(sess, target, adt, fn, 0, act, mbr_hdl, 0);
  if (s != BF_SUCCESS) return s;
  p4_pd_ms_new_mbr(sess, state, target.device_id, *mbr_hdl);
  p4_pd_ms_set_mbr_act(state, target.device_id, *mbr_hdl, fn);
  return s;
}

pd_status del_member(pd_tbl_hdl adt, pd_ms_state *state, pd_sess_hdl sess, uint32_t device_id,
                     pd_mbr_hdl mbr_hdl);

// get_member: the member's action by enum and, for an action with
// parameters, its data decoded. `function` names the exported function for
// the assertion on an action the profile does not have.
pd_status read_member(const ProfileDesc &p, pd_ms_state *state, const char *function,
                      uint32_t device_id, pd_mbr_hdl mbr_hdl, bool read_from_hw,
                      p4_pd_orbisk_switch_action_specs_t *out);

// ------------------------------------------------------------------ groups ---
// A group's action in the state is the action of the member added last: the
// entries that name the group are written with it.

pd_status create_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess, pd_dev_target target,
                       uint32_t max_size, pd_grp_hdl *grp_hdl);

// Reads the group's members from the driver before it goes, for the state to
// unhook them: the only allocation of a profile path, freed on every path.
pd_status del_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess, uint32_t device_id,
                    pd_grp_hdl grp_hdl);

// A member the state does not know never reaches the driver: the driver
// wants the member's action, and only the state can tell it.
inline pd_status add_member_to_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess,
                                     uint32_t device_id, pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl) {
  pd_act_fn_hdl fn;
  if (pd_status s = p4_pd_ms_get_mbr_act(state, device_id, mbr_hdl, &fn)) return s;
  if (pd_status s = pipe_mgr_sel_grp_mbr_add(sess, device_id, sel, grp_hdl, fn, mbr_hdl, 0)) {
    return s;
  }
  p4_pd_ms_add_mbr_to_grp(sess, state, device_id, mbr_hdl, grp_hdl);
  p4_pd_ms_set_grp_act(state, device_id, grp_hdl, fn);
  return BF_SUCCESS;
}

pd_status del_member_from_group(pd_tbl_hdl sel, pd_ms_state *state, pd_sess_hdl sess,
                                uint32_t device_id, pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl);

// On or off inside the group; the driver alone keeps it. Any state other than
// P4_PD_GRP_MBR_STATE_ACTIVE and _INACTIVE ends the process, in `function`.
pd_status group_member_state_set(pd_tbl_hdl sel, const char *function, pd_sess_hdl sess, uint32_t device_id,
                                 pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t mbr_state);

// Writes only a state the caller knows (0 or 1), and only on success.
pd_status group_member_state_get(pd_tbl_hdl sel, pd_sess_hdl sess, uint32_t device_id,
                                 pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t *mbr_state);

// ------------------------------------------------------ indirect entries ---

// The action record of an entry that names a member (Group false) or a group,
// and the action to write it with, read from the state. The resources the
// state keeps for it are asked for and not used: no member of this program
// carries any.
template <bool Group>
inline pd_status name_ref(pd_ms_state *state, uint32_t device_id, uint32_t hdl,
                          pd_action_record &act, pd_act_fn_hdl &fn) {
  zero_record(act);
  uint32_t count = 0;
  pd_resource_index *resources = nullptr;
  if constexpr (Group) {
    act.record_kind = PD_RECORD_KIND_GROUP_REF;
    act.group_hdl = hdl;
    if (pd_status s = p4_pd_ms_get_grp_act(state, device_id, hdl, &fn)) return s;
    p4_pd_ms_grp_get_res(state, device_id, hdl, &count, &resources);
  } else {
    act.record_kind = PD_RECORD_KIND_MEMBER_REF;
    act.member_hdl = hdl;
    if (pd_status s = p4_pd_ms_get_mbr_act(state, device_id, hdl, &fn)) return s;
    p4_pd_ms_mbr_get_res(state, device_id, hdl, &count, &resources);
  }
  return BF_SUCCESS;
}

// Where an indirect entry read puts what it found; priority is null unless
// the table is ternary.
struct IndirectOut {
  void *match_spec;
  uint32_t *priority;
  bool *has_mbr;
  bool *has_grp;
  pd_grp_hdl *grp_hdl;
  pd_mbr_hdl *mbr_hdl;
  bool *is_default;
};

// get_entry of an indirect table, across all pipes; the state is not asked.
pd_status read_indirect_entry(const TableDesc &t, pd_sess_hdl sess, uint32_t device_id,
                              pd_entry_hdl entry_hdl, bool read_from_hw, const IndirectOut &out);

// Stores a table handle where the pointer is not null; always success.
inline pd_status table_handle(pd_tbl_hdl hdl, pd_tbl_hdl *out) {
  if (out) *out = hdl;
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
