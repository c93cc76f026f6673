// The model's state behind one lock, and the frame every driver call runs in:
// take the lock, record the call as the caller made it, answer an armed fault
// or run the call, and note the status it returned.
#pragma once

// The driver functions and the model's controls are the library's only
// exported symbols; everything else stays hidden.
#pragma GCC visibility push(default)
#include "orbisk_driver_model.h"
#pragma GCC visibility pop

#include <compare>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "model_catalogue.h"

// A member-selection state: per device, what each member and group names.
struct pd_ms_state {
  struct Device {
    std::map<pd_mbr_hdl, pd_act_fn_hdl> members;
    std::map<pd_grp_hdl, pd_act_fn_hdl> groups;
  };
  std::map<uint32_t, Device> devices;
};

namespace orbisk_model {

// The packed key an entry is found by; equal keys are equal byte for byte.
struct Key {
  std::vector<uint8_t> value;
  std::vector<uint8_t> mask;
  uint32_t priority = 0;
  uint32_t partition = 0;
  auto operator<=>(const Key &) const = default;
};

// What an entry or a default does: the action record as stored.
struct Action {
  pd_act_fn_hdl fn = 0;
  uint8_t kind = PD_RECORD_KIND_DIRECT;
  uint16_t bits = 0;
  std::vector<uint8_t> data;
  pd_mbr_hdl member = 0;
  pd_grp_hdl group = 0;
  uint8_t resource_count = 0;
  pd_resource_record slots[PD_ACTION_RESOURCE_SLOTS] = {};
};

struct Entry {
  Key key;
  Action action;
  uint32_t ttl = 0;
};

// One match table of one device.
struct Table {
  const TableRow *row = nullptr;
  std::map<pd_entry_hdl, Entry> entries;  // ordered: walks go by ascending handle
  std::map<Key, pd_entry_hdl> by_key;
  pd_entry_hdl next_hdl = 1;
  uint32_t capacity = ORBISK_MODEL_DEFAULT_CAPACITY;
  Action default_action;
};

struct Fault {
  std::string function;
  uint32_t remaining;  // calls of the function until it fires, this one included
  pd_status status;
};

struct Client {
  std::string name;
  bool has_callbacks = false;
  pd_drv_client_callbacks callbacks{};
  uint32_t priority = 0;
};

struct Model {
  std::mutex mu;
  std::map<std::pair<uint32_t, pd_tbl_hdl>, Table> tables;  // by device, table
  std::deque<orbisk_model_call> calls;  // a deque: records point into themselves
  std::vector<Fault> faults;
  int quirk_kind = -1;
  int64_t quirk_fn = -1;
  int dbg_mode = 0;
  std::deque<std::string> log_lines;  // a deque: handed-out lines never move
  std::unordered_set<void *> live_blocks;
  // Blocks still out at a reset: no longer counted, but kept in sight so that
  // a block a client keeps on purpose is not taken for a leak.
  std::unordered_set<void *> retired_blocks;
  size_t allocations = 0;  // bf_sys_calloc calls since the last reset
  std::map<uint32_t, Client> clients;
  uint32_t next_client = 1;
  std::unordered_map<pd_ms_state *, std::unique_ptr<pd_ms_state>> ms_states;

  void reset();
  // The table of a device, made on first use; null when the program has none
  // with that handle.
  Table *table(uint32_t device_id, pd_tbl_hdl tbl);
  // The state itself when the model gave it out, else null.
  pd_ms_state *ms_state(pd_ms_state *state);
  orbisk_model_call &record(const char *function, std::initializer_list<uint64_t> args,
                            const pd_match_record *key, const pd_action_record *act);
  // Counts this call against the armed faults of the function; true with the
  // status to answer when one fires.
  bool take_fault(const char *function, pd_status &status);
};

// The one model of the process. Never destroyed, so that a client may still
// call in while the process ends.
Model &model();

const TableRow *find_row(pd_tbl_hdl tbl);
Action declared_default(const TableRow &row);

// A call's arguments as the log keeps them.
inline uint64_t arg(pd_dev_target t) {
  return uint64_t(t.device_id) | uint64_t(t.dev_pipe_id) << 32;
}
template <typename T>
  requires std::is_integral_v<T>
inline uint64_t arg(T v) {
  return uint64_t(v);
}
inline uint64_t arg(const void *p) { return uint64_t(reinterpret_cast<uintptr_t>(p)); }

// Runs f(Model &) under the lock; for the model's controls and observers.
template <typename F>
auto locked(F &&f) {
  Model &m = model();
  std::lock_guard lock(m.mu);
  return f(m);
}

// Runs one driver call: body(Model &) gives the status.
template <typename Body>
pd_status run(const char *function, std::initializer_list<uint64_t> args,
              const pd_match_record *key, const pd_action_record *act, Body &&body) {
  Model &m = model();
  std::lock_guard lock(m.mu);
  orbisk_model_call &call = m.record(function, args, key, act);
  pd_status status;
  if (!m.take_fault(function, status)) status = body(m);
  call.status = status;
  return status;
}

}  // namespace orbisk_model
