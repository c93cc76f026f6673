// The model itself: the one instance, its reset, device removal and the
// call log's controls and observers.
#include "model.h"

using namespace orbisk_model;

namespace orbisk_model {

Model &model() {
  static Model *m = new Model;
  return *m;
}

}  // namespace orbisk_model

extern "C" {

void orbisk_model_reset(void) {
  in_frame([](Model &m) { m.reset(); });
}

void orbisk_model_remove_device(uint32_t device_id) {
  in_frame([&](Model &m) {
    m.drop_device(device_id);
    // Every client hears of it once the lock is released: its callback may
    // call back into the driver, as a client forgetting its own state does.
    for (const auto &[hdl, client] : m.clients.all()) {
      if (!client.has_callbacks || client.callbacks.device_remove == nullptr) continue;
      pd_dev_remove_cb cb = client.callbacks.device_remove;
      m.notifications.push_back([cb, device_id] { cb(device_id); });
    }
  });
}

// ------------------------------------------------------------- call log ---

pd_status orbisk_model_set_call_log(orbisk_model_log_mode mode, size_t ring_size) {
  if (mode != ORBISK_MODEL_LOG_OFF && mode != ORBISK_MODEL_LOG_RING &&
      mode != ORBISK_MODEL_LOG_ALL) {
    return ORBISK_MODEL_BAD_CONTROL;
  }
  in_frame([&](Model &m) { m.calls.set_mode(mode, ring_size); });
  return BF_SUCCESS;
}

size_t orbisk_model_call_count(void) {
  return in_frame([](Model &m) { return m.calls.size(); });
}

const orbisk_model_call *orbisk_model_call_at(size_t i) {
  return in_frame([&](Model &m) { return m.calls.at(i); });
}

const orbisk_model_call *orbisk_model_last_call(void) {
  return in_frame(
      [](Model &m) { return m.calls.size() ? m.calls.at(m.calls.size() - 1) : nullptr; });
}

void orbisk_model_clear_calls(void) {
  in_frame([](Model &m) { m.calls.drop_all(); });
}

}  // extern "C"
