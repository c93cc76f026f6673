// Snapshots: created per device and pipe, armed with trigger records kept as
// given, triggered by a control that captures one record per stage, read.
#include <cstring>

#include "descriptors.h"
#include "model.h"
#include "orbisk_switch/pd.h"

using namespace orbisk_model;

namespace orbisk_model {

void SnapshotStore::clear() {
  snapshots.clear();
  next = 1;
}

void SnapshotStore::drop_device(uint32_t device_id) {
  std::erase_if(snapshots, [&](const auto &kv) { return kv.second.device_id == device_id; });
}

}  // namespace orbisk_model

namespace {

constexpr uint32_t kRecord = P4_PD_ORBISK_SWITCH_SNAPSHOT_RECORD_BYTES;

SnapshotStore::Snapshot *find(Model &m, uint32_t hdl) {
  auto it = m.snapshots.snapshots.find(hdl);
  return it == m.snapshots.snapshots.end() ? nullptr : &it->second;
}

}  // namespace

extern "C" {

pd_status bf_snapshot_create(uint32_t device_id, uint32_t pipe, uint8_t start_stage,
                             uint8_t end_stage, uint32_t direction, uint32_t *snapshot_hdl) {
  return run(Fn::bf_snapshot_create,
             {arg(device_id), arg(pipe), arg(start_stage), arg(end_stage), arg(direction),
              arg(snapshot_hdl)},
             [&](Model &m) {
               if (snapshot_hdl == nullptr || direction > 1 || start_stage > end_stage) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               // Bit 1 tells an egress snapshot, whose record has the other layout.
               const uint32_t hdl = m.snapshots.next++ << 2 | direction << 1;
               m.snapshots.snapshots[hdl] = {device_id, pipe, start_stage, end_stage, direction,
                                             ORBISK_MODEL_SNAPSHOT_CREATED, {}, {}, {}};
               *snapshot_hdl = hdl;
               return BF_SUCCESS;
             });
}

pd_status bf_snapshot_delete(uint32_t snapshot_hdl) {
  return run(Fn::bf_snapshot_delete, {arg(snapshot_hdl)}, [&](Model &m) {
    return m.snapshots.snapshots.erase(snapshot_hdl) ? BF_SUCCESS : ORBISK_MODEL_NO_SUCH_SNAPSHOT;
  });
}

pd_status bf_snapshot_capture_trigger_set(uint32_t snapshot_hdl, const void *value,
                                          const void *mask) {
  Passing passed;
  passed.add("value", value, kRecord);
  passed.add("mask", mask, kRecord);
  return run(Fn::bf_snapshot_capture_trigger_set, {arg(snapshot_hdl), arg(value), arg(mask)},
             passed, [&](Model &m) {
               SnapshotStore::Snapshot *s = find(m, snapshot_hdl);
               if (s == nullptr) return ORBISK_MODEL_NO_SUCH_SNAPSHOT;
               if (value == nullptr || mask == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const auto *v = static_cast<const uint8_t *>(value);
               const auto *k = static_cast<const uint8_t *>(mask);
               s->value.assign(v, v + kRecord);
               s->mask.assign(k, k + kRecord);
               s->captures.clear();
               s->state = ORBISK_MODEL_SNAPSHOT_ARMED;
               return BF_SUCCESS;
             });
}

pd_status bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot_hdl, uint32_t *total_size,
                                                   uint32_t *record_size) {
  return run(Fn::bf_snapshot_capture_phv_fields_dict_size,
             {arg(snapshot_hdl), arg(total_size), arg(record_size)}, [&](Model &m) {
               SnapshotStore::Snapshot *s = find(m, snapshot_hdl);
               if (s == nullptr) return ORBISK_MODEL_NO_SUCH_SNAPSHOT;
               if (total_size == nullptr || record_size == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *total_size = uint32_t(s->captures.size());
               *record_size = kRecord;
               return BF_SUCCESS;
             });
}

pd_status bf_snapshot_capture_get(uint32_t snapshot_hdl, uint32_t pipe, uint8_t *buffer,
                                  pd_snapshot_capture_ctrl *ctrl, uint32_t *count) {
  return run(Fn::bf_snapshot_capture_get,
             {arg(snapshot_hdl), arg(pipe), arg(buffer), arg(ctrl), arg(count)}, [&](Model &m) {
               SnapshotStore::Snapshot *s = find(m, snapshot_hdl);
               if (s == nullptr) return ORBISK_MODEL_NO_SUCH_SNAPSHOT;
               if (ctrl == nullptr || count == nullptr ||
                   (buffer == nullptr && !s->captures.empty())) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               if (!s->captures.empty()) {
                 std::memcpy(buffer, s->captures.data(), s->captures.size());
                 s->state = ORBISK_MODEL_SNAPSHOT_READ;
               }
               const auto n = uint32_t(s->captures.size() / kRecord);
               *ctrl = {uint32_t(s->state), s->start_stage, s->end_stage, n};
               *count = n;
               return BF_SUCCESS;
             });
}

pd_status orbisk_model_snapshot_trigger(uint32_t snapshot_hdl) {
  return in_frame([&](Model &m) {
    SnapshotStore::Snapshot *s = find(m, snapshot_hdl);
    if (s == nullptr) return ORBISK_MODEL_NO_SUCH_SNAPSHOT;
    if (s->state != ORBISK_MODEL_SNAPSHOT_ARMED) return ORBISK_MODEL_SNAPSHOT_NOT_ARMED;
    const uint32_t stages = uint32_t(s->end_stage - s->start_stage) + 1;
    s->captures.assign(std::size_t(stages) * kRecord, 0);
    for (uint32_t st = 0; st < stages; ++st) {
      for (uint32_t i = 0; i < kRecord; ++i) {
        s->captures[st * kRecord + i] = uint8_t(s->value[i] & s->mask[i]);
      }
    }
    s->state = ORBISK_MODEL_SNAPSHOT_TRIGGERED;
    return BF_SUCCESS;
  });
}

int orbisk_model_snapshot_state(uint32_t snapshot_hdl) {
  return in_frame([&](Model &m) {
    const SnapshotStore::Snapshot *s = find(m, snapshot_hdl);
    return s ? s->state : ORBISK_MODEL_SNAPSHOT_NONE;
  });
}

}  // extern "C"
