#include "snapshots.h"

#include <cstring>
#include <utility>

#include "descriptors.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

namespace {

using Record = p4_pd_orbisk_switch_snapshot_record_t;

void swap_fields(const SnapshotLayoutDesc &layout, uint8_t *r) {
  for (uint16_t i = 0; i < layout.num_fields; ++i) {
    uint8_t *f = r + layout.fields[i].offset;
    if (layout.fields[i].bytes == 2) {
      std::swap(f[0], f[1]);
    } else {
      std::swap(f[0], f[3]);
      std::swap(f[1], f[2]);
    }
  }
}

}  // namespace

pd_status snapshot_trigger_set(uint32_t hdl, const Record *value, const Record *mask) {
  Record v, m;
  std::memcpy(&v, value, sizeof v);
  std::memcpy(&m, mask, sizeof m);
  const SnapshotLayoutDesc &layout = kSnapshotLayouts[(hdl >> 1) & 1u];
  swap_fields(layout, v.bytes);
  swap_fields(layout, m.bytes);
  return bf_snapshot_capture_trigger_set(hdl, &v, &m);
}

pd_status snapshot_capture_data_get(uint32_t hdl, uint32_t pipe, Record *capture,
                                    pd_snapshot_capture_ctrl *ctrl, uint32_t *count) {
  *count = 0;
  uint32_t total = 0, record = 0;
  (void)bf_snapshot_capture_phv_fields_dict_size(hdl, &total, &record);
  // Each record is copied whole: a shorter one would read past it, and a
  // size of 0 would count no records at all.
  if (record < sizeof(Record)) return PD_STATUS_SNAPSHOT_RECORD_SIZE;
  auto *block = static_cast<uint8_t *>(bf_sys_calloc(total, 1));
  if (block == nullptr) return PD_STATUS_NO_MEMORY;
  const pd_status s = bf_snapshot_capture_get(hdl, pipe, block, ctrl, count);
  const uint32_t n = total / record;
  for (uint32_t i = 0; i < n && i < P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES; ++i) {
    std::memcpy(&capture[i], block + std::size_t(i) * record, sizeof(Record));
  }
  bf_sys_free(block);
  return s;
}

}  // namespace orbisk::pd
