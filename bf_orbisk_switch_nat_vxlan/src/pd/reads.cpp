// Reads: an entry or a default entry back from the driver.
#include "reads.h"

#include <cstring>

#include "assertions.h"
#include "bytes.h"
#include "orbisk_switch/pd_driver.h"
#include "resources.h"

namespace orbisk::pd {

namespace {

// An empty action record that offers the driver room for any action's data.
void offer_read_room(pd_action_record &act, uint8_t (&data)[kReadActionDataBytes]) {
  zero_record(act);
  std::memset(data, 0, sizeof data);
  act.data_bytes = data;
  act.num_bytes = kReadActionDataBytes;
}

const ActionRead *find_action(const TableRead &t, pd_act_fn_hdl fn) {
  for (unsigned i = 0; i < t.num_actions; ++i) {
    if (t.actions[i].handle == fn) return &t.actions[i];
  }
  return nullptr;
}

}  // namespace

pd_status read_entry(const TableRead &t, const char *function, pd_sess_hdl sess,
                     uint32_t device_id, pd_entry_hdl entry_hdl, bool read_from_hw,
                     void *match_spec, uint32_t *priority, char *action_name, void *action_spec,
                     p4_pd_orbisk_switch_action_names_t *action_enum, bool *is_default) {
  uint8_t value[kMaxKeyBytes];
  uint8_t mask[kMaxKeyBytes];
  uint8_t data[kReadActionDataBytes];
  pd_match_record key;
  zero_record(key);
  if (t.key_bytes) {
    std::memset(value, 0, t.key_bytes);
    std::memset(mask, 0, t.key_bytes);
    key.value_bytes = value;
    key.mask_bytes = mask;
    key.num_valid_bits = t.key_bits;
    key.num_bytes = t.key_bytes;
  }
  pd_action_record act;
  offer_read_room(act, data);

  // A read covers every pipe of the device.
  pd_dev_target all_pipes{device_id, PD_DEV_PIPE_ALL};
  pd_act_fn_hdl fn = 0;
  pd_status status = pipe_mgr_get_entry(sess, t.tbl, all_pipes, entry_hdl, &key, &act, &fn,
                                        read_from_hw, 1, 0);
  if (status != BF_SUCCESS) return status;
  if (act.record_kind != PD_RECORD_KIND_DIRECT) {
    pd_assert_failed("0", PD_ASSERT_FMT_ZERO, function, __LINE__);
    return PD_STATUS_UNEXPECTED_RECORD;
  }
  pd_resource_index *list = nullptr;
  uint32_t count = 0;
  build_pd_res_spec(&act, &list, &count);

  if (const ActionRead *a = find_action(t, fn)) {
    if (action_name) std::strcpy(action_name, p4_pd_orbisk_switch_action_name_strings[a->enum_value]);
    if (action_enum) *action_enum = p4_pd_orbisk_switch_action_names_t(a->enum_value);
    if (a->unbuild) a->unbuild(&act, list, count, action_spec);
  } else {
    pd_assert_failed("((void *)0)", PD_ASSERT_FMT_NULL, function, __LINE__);
    status = PD_STATUS_UNEXPECTED_RECORD;
  }

  if (match_spec) {
    // A default entry comes back without a key.
    *is_default = key.value_bytes == nullptr || key.num_bytes == 0;
    if (*is_default) {
      std::memset(match_spec, 0, t.match_spec_size);
    } else {
      t.unbuild_key(&key, match_spec);
      if (t.unbuild_mask) t.unbuild_mask(&key, match_spec);
    }
    if (priority) *priority = key.priority;
  }
  if (list) bf_sys_free(list);
  return status;
}

pd_status read_default_entry(const TableRead &t, pd_sess_hdl sess, pd_dev_target target,
                             bool read_from_hw, p4_pd_orbisk_switch_action_specs_t *out) {
  uint8_t data[kReadActionDataBytes];
  pd_action_record act;
  offer_read_room(act, data);
  pd_act_fn_hdl fn = 0;
  pd_status status =
      pipe_mgr_table_get_default_entry(sess, target, t.tbl, &act, &fn, read_from_hw, 1, 0);
  if (status != BF_SUCCESS) return status;
  // Unlike an entry read, a default read of an unexpected record is silent.
  if (act.record_kind != PD_RECORD_KIND_DIRECT) return PD_STATUS_UNEXPECTED_RECORD;
  pd_resource_index *list = nullptr;
  uint32_t count = 0;
  build_pd_res_spec(&act, &list, &count);
  const ActionRead *a = find_action(t, fn);
  // The list is kept on this path: the loss is small and accepted.
  if (!a) return PD_STATUS_UNEXPECTED_RECORD;
  out->name = p4_pd_orbisk_switch_action_names_t(a->enum_value);
  if (a->unbuild) a->unbuild(&act, list, count, &out->u);
  if (list) bf_sys_free(list);
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
