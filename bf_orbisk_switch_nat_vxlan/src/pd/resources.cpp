// Resource slots: meter records filled from a caller's rates, and the list of
// attached resources of a record read back.
#include "resources.h"

#include "assertions.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

uint32_t meter_type_for(uint32_t meter_type, bool has_pre_color, const char *function) {
  if (meter_type > PD_METER_TYPE_COLOR_UNAWARE) {
    pd_assert_failed("0", PD_ASSERT_FMT_ZERO, function, __LINE__);
  }
  if (meter_type == PD_METER_TYPE_COLOR_AWARE && !has_pre_color) {
    pd_assert_failed("has_pre_color == 1",
                     "ASSERTION FAILED: \"has_pre_color == 1\" (has_pre_color == true) from %s:%d",
                     function, __LINE__);
  }
  if (!has_pre_color) return PD_METER_TYPE_COLOR_UNAWARE;
  return meter_type == PD_METER_TYPE_COLOR_UNAWARE ? PD_METER_TYPE_COLOR_UNAWARE
                                                   : PD_METER_TYPE_COLOR_AWARE;
}

uint32_t get_bytes_meter_type(uint32_t meter_type, bool has_pre_color) {
  return meter_type_for(meter_type, has_pre_color, __func__);
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

}  // namespace orbisk::pd
