// The model: its stores behind one lock, and the frame every driver call runs
// in -- take the lock, record the call as the caller made it, answer an armed
// fault or run the call, note its status, release the lock, and only then
// deliver the notifications the call queued for the clients' callbacks.
#pragma once

#include <functional>
#include <initializer_list>
#include <mutex>
#include <type_traits>
#include <utility>
#include <vector>

#include "call_log.h"
#include "functions.h"
#include "match_store.h"
#include "public_api.h"
#include "stores.h"

namespace orbisk_model {

struct Model {
  std::mutex mu;

  CallLog calls;
  FaultStore faults;
  ClientStore clients;
  LogLineStore log_lines;
  AllocationStore allocations;
  MsStore ms;
  TableStore tables;
  ProfileStore profiles;
  ResourceStore resources;
  IdleStore idle;
  PropertyStore properties;
  DigestStore digests;
  SnapshotStore snapshots;
  PlacementStore placement;
  HashStore hashes;
  ValueSetStore value_sets;

  // Callbacks to run once the lock is released, queued by the frame that
  // holds it. A callback may call back into the driver: it runs in a frame
  // of its own.
  std::vector<std::function<void()>> notifications;

  Store *const stores[16] = {&calls,     &faults,     &clients,   &log_lines, &allocations,
                             &ms,        &tables,     &profiles,  &resources, &idle,
                             &properties, &digests,   &snapshots, &placement, &hashes,
                             &value_sets};

  void reset() {
    for (Store *s : stores) s->clear();
    notifications.clear();
  }
  void drop_device(uint32_t device_id) {
    for (Store *s : stores) s->drop_device(device_id);
  }
};

// The one model of the process. Never destroyed, so that a client may still
// call in while the process ends.
Model &model();

// Runs f(Model &) under the lock, then delivers what it queued. For the
// model's controls and observers, and under every driver call.
template <typename F>
auto in_frame(F &&f) {
  Model &m = model();
  std::vector<std::function<void()>> due;
  auto deliver = [&] {
    for (auto &n : due) n();
  };
  if constexpr (std::is_void_v<std::invoke_result_t<F, Model &>>) {
    {
      std::lock_guard lock(m.mu);
      f(m);
      due.swap(m.notifications);
    }
    deliver();
  } else {
    auto result = [&] {
      std::lock_guard lock(m.mu);
      auto r = f(m);
      due.swap(m.notifications);
      return r;
    }();
    deliver();
    return result;
  }
}

// A call's arguments as the log keeps them.
inline uint64_t arg(pd_dev_target t) {
  return uint64_t(t.device_id) | uint64_t(t.dev_pipe_id) << 32;
}
template <typename T>
requires std::is_integral_v<T>
inline uint64_t arg(T v) { return uint64_t(v); }
inline uint64_t arg(const void *p) { return uint64_t(reinterpret_cast<uintptr_t>(p)); }
// A client's callback, by its address.
template <typename R, typename... A>
inline uint64_t arg(R (*f)(A...)) {
  return uint64_t(reinterpret_cast<uintptr_t>(f));
}

// Runs one driver call: body(Model &) gives the status.
template <typename Body>
pd_status run(Fn fn, std::initializer_list<uint64_t> args, const Passing &passed, Body &&body) {
  return in_frame([&](Model &m) {
    orbisk_model_call *call = m.calls.record(fn, args, passed);
    pd_status status;
    if (!m.faults.take(fn, status)) status = body(m);
    if (call != nullptr) call->status = status;
    return status;
  });
}

template <typename Body>
pd_status run(Fn fn, std::initializer_list<uint64_t> args, Body &&body) {
  return run(fn, args, Passing{}, std::forward<Body>(body));
}

// The handles of a profile's action data table (its members) or selector
// table (its groups) on a device, in order, for the generic walks and counts;
// false when tbl is neither (profile_store.cpp).
bool profile_handles(Model &m, uint32_t device_id, pd_tbl_hdl tbl, std::vector<uint32_t> &out);

// For an action record that names a member or group of table t's profile:
// that it exists on the device and that fn is an action of the profile.
// Success for every other record (profile_store.cpp).
pd_status check_ref(Model &m, uint32_t device_id, const orbisk::pd::TableDesc &t, pd_act_fn_hdl fn,
                    const pd_action_record &act);

// The action of the chip's copy of an entry, as a read answers it
// (placement_store.cpp).
ActionView hw_action(const PlacementStore::HwEntry &h);

}  // namespace orbisk_model
