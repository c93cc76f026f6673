// Shared runtime of the entry points: assertions, resource slots and the
// reads that turn driver records back into host records.
#include "engine.h"

#include <execinfo.h>

#include <cstdlib>

// The process-ending path of a failed assertion, whatever NDEBUG says.
extern "C" [[noreturn]] void __assert_fail(const char *assertion, const char *file,
                                           unsigned int line, const char *function) noexcept;

namespace orbisk::pd {

void pd_assert_failed(const char *expr, const char *format, const char *function, int line) {
  if (bf_sys_dbg_mode()) {
    void *frames[128];
    int n = backtrace(frames, 128);
    // The symbol array is never freed: the process ends below.
    char **symbols = backtrace_symbols(frames, n);
    if (symbols) {
      for (int i = 0; i < n; ++i) bf_sys_log_and_trace(0, 2, "%s", symbols[i]);
    }
    __assert_fail(expr, kSourcePath, unsigned(line), function);
  }
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  bf_sys_log_and_trace(0, 2, format, function, line);
#pragma GCC diagnostic pop
}

void pd_hard_assert_failed(const char *expr, const char *function, int line) {
  __assert_fail(expr, kSourcePath, unsigned(line), function);
}

uint32_t get_bytes_meter_type(uint32_t meter_type, bool has_pre_color) {
  if (meter_type > PD_METER_TYPE_COLOR_UNAWARE) {
    pd_assert_failed("0", PD_ASSERT_FMT_ZERO, __func__, __LINE__);
  }
  if (meter_type == PD_METER_TYPE_COLOR_AWARE && !has_pre_color) {
    pd_assert_failed("has_pre_color == 1",
                     "ASSERTION FAILED: \"has_pre_color == 1\" (has_pre_color == true) from %s:%d",
                     __func__, __LINE__);
  }
  if (!has_pre_color) return PD_METER_TYPE_COLOR_UNAWARE;
  return meter_type == PD_METER_TYPE_COLOR_UNAWARE ? PD_METER_TYPE_COLOR_UNAWARE
                                                   : PD_METER_TYPE_COLOR_AWARE;
}

void set_direct_meter_slot(pd_action_record &rec, uint32_t meter_hdl, const pd_meter_spec &spec) {
  set_slot(rec, meter_hdl, PD_RESOURCE_TAG_ATTACHED);
  pd_meter_record &m = rec.resources[0].resource_spec.meter;
  m.meter_type = get_bytes_meter_type(spec.meter_type, true);
  m.cir_unit = PD_METER_RATE_UNIT_BYTES;
  m.pir_unit = PD_METER_RATE_UNIT_BYTES;
  m.cir = spec.cir;
  m.cburst = spec.cburst;
  m.pir = spec.pir;
  m.pburst = spec.pburst;
}

void build_pd_res_spec(const pd_action_record *rec, pd_resource_index **list, uint32_t *count) {
  if (rec->resource_count == 0) {
    *count = 0;
    return;
  }
  auto *out = static_cast<pd_resource_index *>(
      bf_sys_calloc(rec->resource_count, sizeof(pd_resource_index)));
  uint32_t n = 0;
  for (unsigned i = 0; i < rec->resource_count && i < PD_ACTION_RESOURCE_SLOTS; ++i) {
    const pd_resource_record &slot = rec->resources[i];
    if (slot.resource_tag != PD_RESOURCE_TAG_ATTACHED) continue;
    out[n].resource_hdl = slot.resource_hdl;
    out[n].resource_index = slot.resource_index;
    ++n;
  }
  *list = out;
  *count = n;
}

uint32_t resource_index_of(const pd_resource_index *list, uint32_t count, uint32_t resource_hdl) {
  // A detached resource reads back as this sentinel.
  if (count == 0) return 0xFFFF;
  for (uint32_t i = 0; i < count; ++i) {
    if (list[i].resource_hdl == resource_hdl) return list[i].resource_index;
  }
  return 0;
}

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
