// Start and end of the library, the device callbacks the driver calls, and
// the action enum.
#include <cjson/cJSON.h>

#include <cstring>

#include "assertions.h"
#include "descriptors.h"
#include "export.h"
#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"
#include "pd_frame.h"

using namespace orbisk::pd;

// The one driver function whose address the library takes rather than calls:
// an address is bound when the library loads, not at the first call, so it
// is weak, and an agent that loads the library without a driver (to look up
// action names only) still loads.
#pragma weak p4_pd_ms_grp_update_res

extern "C" {
PD_EXPORT_DATA uint32_t bf_drv_hdl = 0;
}

PD_EXPORT void p4_pd_orbisk_switch_init(void) {
  p4_pd_ms_init();
  for (const ProfileSlot &p : kProfileSlots) *p.state = p4_pd_ms_init_state();
  pd_status r = bf_drv_register("p4_pd_orbisk_switch_pd", &bf_drv_hdl);
  if (r != BF_SUCCESS) pd_hard_assert_failed("r == BF_SUCCESS", __func__, __LINE__);
  // The record lives on this stack: the driver copies what it keeps.
  pd_drv_client_callbacks callbacks;
  std::memset(&callbacks, 0, sizeof callbacks);
  callbacks.device_remove = p4_pd_orbisk_switch_dev_remove;
  callbacks.device_log = p4_pd_orbisk_switch_dev_log;
  callbacks.device_restore = p4_pd_orbisk_switch_dev_restore;
  bf_drv_client_register_callbacks(bf_drv_hdl, &callbacks, 2);
}

PD_EXPORT pd_status p4_pd_orbisk_switch_cleanup(void) { return bf_drv_deregister(bf_drv_hdl); }

PD_EXPORT pd_status p4_pd_orbisk_switch_dev_remove(uint32_t device_id) {
  for (const ProfileSlot &p : kProfileSlots) p4_pd_ms_destroy_state_for_dev(*p.state, device_id);
  p4_pd_ms_destroy_txn_state_for_dev(device_id);
  return BF_SUCCESS;
}

PD_EXPORT pd_status p4_pd_orbisk_switch_dev_log(uint32_t device_id, void *json) {
  auto *doc = static_cast<cJSON *>(json);
  cJSON_AddStringToObject(doc, "name", "orbisk_switch");
  cJSON *profiles = cJSON_CreateArray();
  cJSON_AddItemToObject(doc, "act_profs", profiles);
  for (const ProfileSlot &p : kProfileSlots) {
    cJSON *obj = cJSON_CreateObject();
    cJSON_AddItemToArray(profiles, obj);
    cJSON_AddStringToObject(obj, "name", p.name);
    p4_pd_ms_log_state(device_id, *p.state, obj);
  }
  return BF_SUCCESS;
}

PD_EXPORT pd_status p4_pd_orbisk_switch_dev_restore(uint32_t device_id, void *json) {
  // Profiles are matched by name, so the document may list them in any order;
  // a name that is no profile of this program is passed over.
  cJSON *profiles = cJSON_GetObjectItem(static_cast<cJSON *>(json), "act_profs");
  for (cJSON *child = profiles->child; child; child = child->next) {
    const char *name = cJSON_GetObjectItem(child, "name")->valuestring;
    for (const ProfileSlot &p : kProfileSlots) {
      if (std::strcmp(name, p.name) == 0) p4_pd_ms_restore_state(device_id, *p.state, child);
    }
  }
  return BF_SUCCESS;
}

PD_EXPORT void p4_pd_orbisk_switch_device_state_cleanup(void) {}

PD_EXPORT pd_status p4_pd_orbisk_switch_restore_virtual_dev_state(pd_sess_hdl sess_hdl,
                                                                  uint32_t device_id,
                                                                  uint32_t restore_flags,
                                                                  void *driver_state,
                                                                  void *reserved) {
  return pipe_mgr_hitless_ha_restore_virtual_dev_state(sess_hdl, device_id, restore_flags,
                                                       driver_state, reserved,
                                                       p4_pd_orbisk_switch_ha_restore_state_from_adt_sel);
}

// The state is rebuilt with the calls the live paths make: a member and its
// action, a group, a member joining a group (the group taking the member's
// recorded action, not the one replayed), then the member's resources handed
// to every group that holds it.
PD_EXPORT void p4_pd_orbisk_switch_ha_restore_state_from_adt_sel(pd_sess_hdl sess_hdl,
                                                                 uint32_t device_id,
                                                                 pd_tbl_hdl adt_hdl,
                                                                 pd_act_fn_hdl act_fn_hdl,
                                                                 pd_grp_hdl grp_hdl,
                                                                 pd_mbr_hdl mbr_hdl,
                                                                 uint32_t flags) {
  const ProfileDesc *p = nullptr;
  pd_ms_state *state = nullptr;
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (kProfiles[i].adt_hdl == adt_hdl) {
      p = &kProfiles[i];
      state = *kProfileSlots[i].state;
    }
  }
  if (p == nullptr) return;
  if (grp_hdl == 0 && mbr_hdl != 0) {
    p4_pd_ms_new_mbr(sess_hdl, state, device_id, mbr_hdl);
    p4_pd_ms_set_mbr_act(state, device_id, mbr_hdl, act_fn_hdl);
  } else if (mbr_hdl == 0 && grp_hdl != 0) {
    p4_pd_ms_new_grp(sess_hdl, state, device_id, grp_hdl);
  } else if (mbr_hdl != 0 && grp_hdl != 0) {
    p4_pd_ms_add_mbr_to_grp(sess_hdl, state, device_id, mbr_hdl, grp_hdl);
    pd_act_fn_hdl recorded = 0;
    if (p4_pd_ms_get_mbr_act(state, device_id, mbr_hdl, &recorded) != BF_SUCCESS) return;
    p4_pd_ms_set_grp_act(state, device_id, grp_hdl, recorded);
  }
  bool of_profile = false;
  for (uint16_t i = 0; i < p->num_actions; ++i) of_profile |= p->actions[i].handle == act_fn_hdl;
  if (flags == 0 || !of_profile) return;
  p4_pd_ms_mbr_apply_to_grps(state, device_id, mbr_hdl, p4_pd_ms_grp_update_res, state);
}

PD_EXPORT const char *p4_pd_orbisk_switch_action_enum_to_string(uint32_t action) {
  if (action >= P4_PD_ORBISK_SWITCH_ACTION_COUNT) return nullptr;
  return p4_pd_orbisk_switch_action_name_strings[action];
}

PD_EXPORT p4_pd_orbisk_switch_action_names_t p4_pd_orbisk_switch_action_string_to_enum(
    const char *name) {
  if (name) {
    for (uint32_t i = 0; i < P4_PD_ORBISK_SWITCH_ACTION_COUNT; ++i) {
      if (std::strcmp(name, p4_pd_orbisk_switch_action_name_strings[i]) == 0) {
        return p4_pd_orbisk_switch_action_names_t(i);
      }
    }
  }
  return p4_pd_orbisk_switch_action_names_t(P4_PD_ORBISK_SWITCH_ACTION_COUNT);
}
