// The faults store: armed faults by driver function, and its control.
#include <algorithm>

#include "model.h"

namespace orbisk_model {

void FaultStore::clear() {
  for (auto &faults : armed_) faults.clear();
}

void FaultStore::arm(std::size_t fn, uint32_t nth, pd_status status) {
  if (nth == 0) {
    armed_[fn].clear();
  } else {
    armed_[fn].push_back({nth, status});
  }
}

bool FaultStore::take_slow(std::size_t fn, pd_status &status) {
  bool fired = false;
  std::vector<Fault> &faults = armed_[fn];
  for (auto it = faults.begin(); it != faults.end();) {
    if (--it->remaining == 0) {
      if (!fired) status = it->status;  // the first armed wins a tie
      fired = true;
      it = faults.erase(it);
    } else {
      ++it;
    }
  }
  return fired;
}

}  // namespace orbisk_model

using namespace orbisk_model;

extern "C" pd_status orbisk_model_fail(const char *function, uint32_t nth, pd_status status) {
  if (function == nullptr) return ORBISK_MODEL_NO_SUCH_FUNCTION;
  const std::size_t fn = function_index(function);
  if (fn == kNumFunctions) return ORBISK_MODEL_NO_SUCH_FUNCTION;
  // A fault must fail: status 0 would answer success without doing the work.
  if (nth != 0 && status == BF_SUCCESS) return ORBISK_MODEL_BAD_CONTROL;
  in_frame([&](Model &m) { m.faults.arm(fn, nth, status); });
  return BF_SUCCESS;
}
