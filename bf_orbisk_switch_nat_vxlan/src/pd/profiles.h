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

// Stores a table handle where the pointer is not null; always success.
inline pd_status table_handle(pd_tbl_hdl hdl, pd_tbl_hdl *out) {
  if (out) *out = hdl;
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
