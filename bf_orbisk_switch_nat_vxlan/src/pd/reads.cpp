// Reads: an entry or a default entry back from the driver.
#include "reads.h"

#include <cstring>

#include "assertions.h"
#include "bytes.h"
#include "orbisk_switch/pd_driver.h"
#include "pd_limits.h"
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

// The table's action with this handle; null for none of its actions.
const TableActionDesc *find_action(const TableDesc &t, pd_act_fn_hdl fn) {
  for (unsigned i = 0; i < t.num_actions; ++i) {
    if (t.actions[i].handle == fn) return &t.actions[i];
  }
  return nullptr;
}

}  // namespace

KeyRoom::KeyRoom(const TableDesc &t) {
  zero_record(rec);
  if (t.key_bytes) {
    std::memset(value, 0, t.key_bytes);
    std::memset(mask, 0, t.key_bytes);
    rec.value_bytes = value;
    rec.mask_bytes = mask;
    rec.num_valid_bits = t.key_bits;
    rec.num_bytes = t.key_bytes;
  }
}

void unbuild_entry_key(const TableDesc &t, const pd_match_record &key, void *match_spec,
                       uint32_t *priority, bool *is_default) {
  *is_default = key.value_bytes == nullptr || key.num_bytes == 0;
  if (*is_default) {
    std::memset(match_spec, 0, t.match_spec_size);
  } else {
    unbuild_key(t, &key, match_spec);
    if (t.ternary() || t.prefix()) unbuild_mask(t, &key, match_spec);
  }
  if (priority) *priority = key.priority;
}

void unbuild_key(const TableDesc &t, const pd_match_record *key, void *match_spec) {
  auto *ms = static_cast<uint8_t *>(match_spec);
  std::memset(ms, 0, t.match_spec_size);
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    if (i == 0 && t.match == MatchKind::PartitionedPrefix) {
      put_host(ms + f.host_offset, f.bits, uint16_t(key->partition_index));
    } else if (f.array) {
      std::memcpy(ms + f.host_offset, key->value_bytes + f.key_offset, f.bytes);
    } else {
      put_host(ms + f.host_offset, f.bits, get_be_n(key->value_bytes + f.key_offset, f.bytes));
    }
  }
}

void unbuild_mask(const TableDesc &t, const pd_match_record *key, void *match_spec) {
  auto *ms = static_cast<uint8_t *>(match_spec);
  if (t.ternary()) {
    for (unsigned i = 0; i < t.num_fields; ++i) {
      const FieldDesc &f = t.fields[i];
      if (f.match != FieldMatch::Ternary) continue;
      if (f.array) {
        std::memcpy(ms + f.partner_offset, key->mask_bytes + f.key_offset, f.bytes);
      } else {
        put_host(ms + f.partner_offset, f.bits, get_be_n(key->mask_bytes + f.key_offset, f.bytes));
      }
    }
  } else {
    const FieldDesc &f = t.fields[t.lpm_field];
    const uint16_t length = prefix_length_of(key->mask_bytes + f.key_offset, f.bits);
    std::memcpy(ms + f.partner_offset, &length, sizeof length);
  }
}

void unbuild_action_spec(const ActionDesc &a, const pd_action_record *act,
                         const pd_resource_index *resources, uint32_t num_resources,
                         void *action_spec) {
  auto *spec = static_cast<uint8_t *>(action_spec);
  std::memset(spec, 0, a.spec_size);
  for (unsigned i = 0; i < a.num_params; ++i) {
    const ParamDesc &p = a.params[i];
    const uint32_t v = int(i) == a.slot_param
                           ? resource_index_of(resources, num_resources, a.slot_resource_hdl)
                           : get_be_n(act->data_bytes + p.data_offset, p.bytes);
    put_host(spec + p.host_offset, p.bits, v);
  }
}

pd_status read_entry(const TableDesc &t, const char *function, pd_sess_hdl sess,
                     uint32_t device_id, pd_entry_hdl entry_hdl, bool read_from_hw,
                     const EntryOut &out) {
  uint8_t data[kReadActionDataBytes];
  KeyRoom room(t);
  pd_match_record &key = room.rec;
  pd_action_record act;
  offer_read_room(act, data);

  // A read covers every pipe of the device.
  pd_dev_target all_pipes{device_id, PD_DEV_PIPE_ALL};
  pd_act_fn_hdl fn = 0;
  pd_status status = pipe_mgr_get_entry(sess, t.handle, all_pipes, entry_hdl, &key, &act, &fn,
                                        read_from_hw, 1, 0);
  if (status != BF_SUCCESS) return status;
  if (act.record_kind != PD_RECORD_KIND_DIRECT) {
    pd_assert_failed("0", PD_ASSERT_FMT_ZERO, function, __LINE__);
    return PD_STATUS_UNEXPECTED_RECORD;
  }
  pd_resource_index *list = nullptr;
  uint32_t count = 0;
  build_pd_res_spec(&act, &list, &count);

  if (const TableActionDesc *a = find_action(t, fn)) {
    const ActionDesc &ad = *a->action;
    if (out.action_name) std::strcpy(out.action_name, p4_pd_orbisk_switch_action_name_strings[ad.enum_value]);
    if (out.action_enum) *out.action_enum = p4_pd_orbisk_switch_action_names_t(ad.enum_value);
    if (ad.num_params) unbuild_action_spec(ad, &act, list, count, out.action_spec);
  } else {
    pd_assert_failed("((void *)0)", PD_ASSERT_FMT_NULL, function, __LINE__);
    status = PD_STATUS_UNEXPECTED_RECORD;
  }

  if (out.match_spec) unbuild_entry_key(t, key, out.match_spec, out.priority, out.is_default);
  if (list) bf_sys_free(list);
  return status;
}

pd_status read_default_entry(const TableDesc &t, pd_sess_hdl sess, pd_dev_target target,
                             bool read_from_hw, p4_pd_orbisk_switch_action_specs_t *out) {
  uint8_t data[kReadActionDataBytes];
  pd_action_record act;
  offer_read_room(act, data);
  pd_act_fn_hdl fn = 0;
  pd_status status =
      pipe_mgr_table_get_default_entry(sess, target, t.handle, &act, &fn, read_from_hw, 1, 0);
  if (status != BF_SUCCESS) return status;
  // Unlike an entry read, a default read of an unexpected record is silent.
  if (act.record_kind != PD_RECORD_KIND_DIRECT) return PD_STATUS_UNEXPECTED_RECORD;
  pd_resource_index *list = nullptr;
  uint32_t count = 0;
  build_pd_res_spec(&act, &list, &count);
  const TableActionDesc *a = find_action(t, fn);
  // The list is kept on this path: the loss is small and accepted.
  if (!a) return PD_STATUS_UNEXPECTED_RECORD;
  const ActionDesc &ad = *a->action;
  out->name = p4_pd_orbisk_switch_action_names_t(ad.enum_value);
  if (ad.num_params) unbuild_action_spec(ad, &act, list, count, &out->u);
  if (list) bf_sys_free(list);
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
