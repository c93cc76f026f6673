// Start and end of the library, the device callbacks the driver calls, and
// the action enum.
#include <cjson/cJSON.h>

#include <cstring>

#include "assertions.h"
#include "export.h"
#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"
#include "pd_frame.h"

using namespace orbisk::pd;

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
