// The model's state, one store per service. Each store owns its data and
// knows how to forget it: a reset is a loop over the stores, and a device
// that goes away is dropped from each store that keeps state by device.
//
// The match tables and the call log have headers of their own
// (match_store.h, call_log.h); the smaller stores are here, each implemented
// in its own source file.
#pragma once

#include <compare>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "descriptors.h"
#include "functions.h"
#include "public_api.h"

namespace orbisk_model {

class Store {
 public:
  // Back to the state of a fresh model.
  virtual void clear() = 0;
  // Forgets what is kept for one device; nothing for a store kept otherwise.
  virtual void drop_device(uint32_t device_id) { (void)device_id; }

 protected:
  ~Store() = default;
};

// ----------------------------------------------------- faults (faults.cpp) ---

// Faults armed on the driver functions, by function.
class FaultStore final : public Store {
 public:
  void clear() override;
  // Arms the nth next call of function fn; nth 0 disarms every fault of fn.
  void arm(std::size_t fn, uint32_t nth, pd_status status);
  // Counts this call against the faults of fn; true with the status to answer
  // when one fires. The first armed wins a tie.
  bool take(Fn fn, pd_status &status) {
    return !armed_[std::size_t(fn)].empty() && take_slow(std::size_t(fn), status);
  }

 private:
  struct Fault {
    uint32_t remaining;  // calls of the function until it fires, this one included
    pd_status status;
  };
  bool take_slow(std::size_t fn, pd_status &status);
  std::vector<Fault> armed_[kNumFunctions];
};

// ---------------------------------------------------- clients (clients.cpp) ---

// Registered clients: name, callback record and priority, by handle.
class ClientStore final : public Store {
 public:
  struct Client {
    std::string name;
    bool has_callbacks = false;
    pd_drv_client_callbacks callbacks{};
    uint32_t priority = 0;
  };
  void clear() override;
  uint32_t add(const char *name);
  Client *find(uint32_t hdl);
  bool erase(uint32_t hdl) { return clients_.erase(hdl) != 0; }
  // Ascending handle order: the order of registration.
  const std::map<uint32_t, Client> &all() const { return clients_; }

 private:
  std::map<uint32_t, Client> clients_;
  uint32_t next_ = 1;
};

// -------------------------------------------------- services (services.cpp) ---

// Lines of bf_sys_log_and_trace, formatted, and the debug mode it answers.
class LogLineStore final : public Store {
 public:
  void clear() override;
  std::deque<std::string> lines;  // a deque: a line handed out never moves
  int dbg_mode = 0;
};

// Blocks given out by bf_sys_calloc.
class AllocationStore final : public Store {
 public:
  void clear() override;
  std::unordered_set<void *> live;
  // Blocks still out at a reset: no longer counted, but kept in sight so that
  // a block a client keeps on purpose is not taken for a leak.
  std::unordered_set<void *> retired;
  size_t count = 0;  // bf_sys_calloc calls since the last reset
  uint32_t fail_in = 0;  // the bf_sys_calloc call, counting from 1, that answers null; 0 none
};

// ------------------------------------- member selection (model_ms.cpp) ---

}  // namespace orbisk_model

// A member-selection state: per device, what each member and group names,
// and each group's members (in the order they were added).
struct pd_ms_state {
  struct Device {
    std::map<pd_mbr_hdl, pd_act_fn_hdl> members;
    std::map<pd_grp_hdl, pd_act_fn_hdl> groups;  // 0 until the group has had a member
    std::map<pd_grp_hdl, std::vector<pd_mbr_hdl>> group_members;
  };
  std::map<uint32_t, Device> devices;
};

namespace orbisk_model {

// The states given out by p4_pd_ms_init_state. They belong to the client,
// which destroys them per device itself: a reset empties them but keeps them
// valid, and a dropped device leaves them alone.
class MsStore final : public Store {
 public:
  void clear() override;
  pd_ms_state *make();
  // The state itself when the model gave it out, else null.
  pd_ms_state *find(pd_ms_state *state) const { return states_.count(state) ? state : nullptr; }

 private:
  std::unordered_map<pd_ms_state *, std::unique_ptr<pd_ms_state>> states_;
};

// --------------------------------------- homes of the services to come ---
// Each keeps the state of driver functions that later families of the
// library import. They are empty until then but take part in every reset and
// device drop, so a new service only fills its store.

// Action data and selector tables of the action profiles (profile_store.cpp):
// per device and profile, the members (action and data), the groups (their
// maximum size and members, each enabled or not), the fallback member and
// the update callbacks. Member and group handles carry their profile's
// number in the top byte, so a handle of another profile is never found.
class ProfileStore final : public Store {
 public:
  struct Member {
    pd_act_fn_hdl fn = 0;
    uint16_t bits = 0;
    std::vector<uint8_t> data;
    std::set<pd_grp_hdl> groups;  // the groups that hold it
  };
  struct GroupMember {
    pd_mbr_hdl mbr;
    bool enabled;
  };
  struct Group {
    uint32_t max_size = 0;
    std::vector<GroupMember> members;  // in the order they were added
  };
  struct Profile {
    std::map<pd_mbr_hdl, Member> members;
    std::map<pd_grp_hdl, Group> groups;
    uint32_t next_mbr = 1;
    uint32_t next_grp = 1;
    pd_mbr_hdl fallback = 0;  // 0 for none
    pd_adt_update_cb adt_cb = nullptr;
    void *adt_cookie = nullptr;
    pd_sel_tbl_cb sel_cb = nullptr;
    void *sel_cookie = nullptr;
    pd_sel_update_cb sel_update_cb = nullptr;
    void *sel_update_cookie = nullptr;
  };
  void clear() override;
  void drop_device(uint32_t device_id) override;
  // Adds the devices it keeps state for.
  void add_devices(std::set<uint32_t> &devices) const;
  Profile *find(uint32_t device_id, const orbisk::pd::ProfileDesc &p);
  Profile &make(uint32_t device_id, const orbisk::pd::ProfileDesc &p);
  std::map<std::pair<uint32_t, uint32_t>, Profile> profiles;  // by device, action data table
};

// The profile whose action data table / selector table has this handle, or null.
const orbisk::pd::ProfileDesc *profile_of_adt(pd_tbl_hdl adt);
const orbisk::pd::ProfileDesc *profile_of_sel(pd_tbl_hdl sel);

// Counters, meters and registers (resource_store.cpp), per device. A counter
// cell is named by its table handle (a direct counter's match table, an
// indexed counter's own) and its entry handle or index; it holds what the
// driver's memory holds (sw) and what the chip has counted (hw), which a
// sync copies over. A direct meter's spec lives in its entry's resource slot
// in the match store; indexed meters keep theirs here, and the WRED record
// set on an indexed meter's cell beside it. A register cell is
// kept per pipe; cells never written hold the pipe's fill value.
class ResourceStore final : public Store {
 public:
  struct Cell {
    uint32_t device_id;
    uint32_t tbl;
    uint32_t cell;
    auto operator<=>(const Cell &) const = default;
  };
  struct Counter {
    pd_counter_record sw{};
    pd_counter_record hw{};
  };
  struct RegisterPipe {
    pd_register_element fill{};  // the value of every cell not in cells
    std::map<uint32_t, pd_register_element> cells;
  };
  struct RegisterKey {
    uint32_t device_id;
    uint32_t handle;
    uint16_t pipe;
    auto operator<=>(const RegisterKey &) const = default;
  };
  void clear() override;
  void drop_device(uint32_t device_id) override;
  // What an entry's delete takes with it.
  void entry_deleted(uint32_t device_id, uint32_t tbl, pd_entry_hdl hdl);
  // Adds the devices it keeps state for.
  void add_devices(std::set<uint32_t> &devices) const;

  std::map<Cell, Counter> counters;
  std::map<Cell, pd_meter_record> meters;
  std::map<Cell, pd_wred_spec> wred;
  std::map<std::pair<uint32_t, uint32_t>, int32_t> bytecount_adjust;  // device, meter handle
  std::map<RegisterKey, RegisterPipe> registers;
};

// Idle time of the tables whose entries age, per device and table, and the
// model clock they age by (idle_store.cpp). An entry of such a table is here
// from its add to its delete; the other tables have nothing here.
class IdleStore final : public Store {
 public:
  struct Entry {
    uint32_t ttl = 0;        // in ms of the model clock; 0 never ages
    uint64_t idle_ms = 0;    // idle time so far, in notify mode with ageing on
    bool reported = false;   // ran out; not told again until hit, reset or given a TTL
    bool traffic = false;    // hit since the last update_hit_state
    bool hit_state = false;  // as the last update_hit_state found it
  };
  struct Table {
    pd_idle_driver_params params{};
    bool enabled = false;
    pd_idle_tmo_cb tmo_cb = nullptr;
    void *tmo_cookie = nullptr;
    std::map<pd_entry_hdl, Entry> entries;
    bool notify() const { return params.mode == PD_IDLE_MODE_NOTIFY; }
  };
  void clear() override;
  void drop_device(uint32_t device_id) override;
  Table *find(uint32_t device_id, pd_tbl_hdl tbl);
  Table &make(uint32_t device_id, pd_tbl_hdl tbl) { return tables_[{device_id, tbl}]; }
  // Adds the devices it keeps state for.
  void add_devices(std::set<uint32_t> &devices) const;
  // Moves the clock on by ms and queues a call of the timeout callback for
  // every entry whose TTL runs out.
  void advance(uint64_t ms, std::vector<std::function<void()>> &due);
  uint64_t now_ms() const { return now_ms_; }

 private:
  std::map<std::pair<uint32_t, pd_tbl_hdl>, Table> tables_;
  uint64_t now_ms_ = 0;
};

// Driver properties of match tables and the update callbacks registered on
// them, per device and table (property_store.cpp).
class PropertyStore final : public Store {
 public:
  struct Key {
    uint32_t device_id;
    pd_tbl_hdl tbl;
    uint32_t property;
    auto operator<=>(const Key &) const = default;
  };
  struct UpdateCb {
    pd_mat_update_cb callback;
    void *cookie;
  };
  void clear() override;
  void drop_device(uint32_t device_id) override;
  // Adds the devices it keeps state for.
  void add_devices(std::set<uint32_t> &devices) const;
  // Queues a call of the table's update callback, if it has one.
  void updated(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl, uint32_t type,
               std::vector<std::function<void()>> &due) const;
  std::map<Key, std::pair<uint32_t, uint32_t>> values;  // value, second value
  std::map<std::pair<uint32_t, pd_tbl_hdl>, UpdateCb> update_cbs;
};

// Erases the entries of a map keyed by device id first.
template <typename Map>
void erase_device(Map &map, uint32_t device_id) {
  std::erase_if(map, [&](const auto &kv) {
    if constexpr (requires { kv.first.device_id; }) {
      return kv.first.device_id == device_id;
    } else {
      return kv.first.first == device_id;
    }
  });
}

// What the chip holds for match entries, beside what software wrote
// (placement_store.cpp). The two are equal until a test changes the chip's
// copy of an entry; only such entries are kept here, whole, and a write to
// the entry (action change, delete, default set or reset) drops the copy, so
// the views agree again. Placement records are made on each fetch from the
// stores they describe and need nothing kept.
class PlacementStore final : public Store {
 public:
  struct Key {
    uint32_t device_id;
    pd_tbl_hdl tbl;
    pd_entry_hdl hdl;
    auto operator<=>(const Key &) const = default;
  };
  // One entry as the chip holds it: its key, or none when shown as a
  // default entry, and its action.
  struct HwEntry {
    bool dropped = false;     // a read of it from the chip fails
    bool is_default = false;  // shown without a key
    std::vector<uint8_t> value, mask;  // the table's key bytes each
    uint32_t priority = 0;
    uint32_t partition = 0;
    pd_act_fn_hdl fn = 0;
    uint8_t kind = PD_RECORD_KIND_DIRECT;
    uint16_t bits = 0;
    std::vector<uint8_t> data;
    pd_mbr_hdl member = 0;
    pd_grp_hdl group = 0;
    std::vector<pd_resource_record> slots;
  };
  void clear() override { hw.clear(); }
  void drop_device(uint32_t device_id) override { erase_device(hw, device_id); }
  // The chip's copy where it differs from software's; null where they agree.
  const HwEntry *find(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl) const {
    if (hw.empty()) return nullptr;
    auto it = hw.find({device_id, tbl, hdl});
    return it == hw.end() ? nullptr : &it->second;
  }
  // A write to the entry: the chip holds what software wrote again.
  void rewritten(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl) {
    if (!hw.empty()) hw.erase({device_id, tbl, hdl});
  }
  std::map<Key, HwEntry> hw;
};

// Hash calculations, per device and calculation (hash_store.cpp): the input
// and algorithm handles, the seed and the field attributes. A calculation
// without state on a device reads as the program's: its own input and
// algorithm, seed 0, no attributes.
class HashStore final : public Store {
 public:
  struct Calc {
    uint32_t input_hdl = 0;
    uint32_t algorithm_hdl = 0;
    uint64_t seed = 0;
    std::vector<pd_hash_calc_driver_attribute> attrs;
  };
  void clear() override { calcs.clear(); }
  void drop_device(uint32_t device_id) override { erase_device(calcs, device_id); }
  std::map<std::pair<uint32_t, uint32_t>, Calc> calcs;
};

// Parser value sets, per device and set (value_set_store.cpp): the entries
// by handle, each with the scope it was added in, and the properties.
class ValueSetStore final : public Store {
 public:
  struct Entry {
    uint32_t gress, pipe, parser;
    uint32_t key, mask;
  };
  struct Set {
    std::map<pd_entry_hdl, Entry> entries;
    pd_entry_hdl next = 1;
    std::map<uint32_t, std::pair<uint32_t, pd_pvs_property_args>> properties;
  };
  void clear() override { sets.clear(); }
  void drop_device(uint32_t device_id) override { erase_device(sets, device_id); }
  std::map<std::pair<uint32_t, uint32_t>, Set> sets;
};

// Learning digests (digest_store.cpp): per device and digest the client's
// subscription and the entries learned but not yet delivered; per device the
// learning timeout; and every message delivered and not yet acknowledged,
// which the model owns until then.
class DigestStore final : public Store {
 public:
  struct Subscription {
    pd_sess_hdl sess;
    pd_lrn_digest_cb callback;
    void *cookie;
  };
  struct Pending {
    std::vector<uint8_t> entries;  // packed, back to back
    uint16_t count = 0;
    uint64_t since_ms = 0;         // model clock at the first entry
  };
  struct Message {
    pd_lrn_digest_msg msg;
    std::vector<uint8_t> entries;
  };
  using Key = std::pair<uint32_t, uint32_t>;  // device, digest handle
  void clear() override;
  void drop_device(uint32_t device_id) override;
  // Makes a message of the pending entries of key and queues its delivery.
  void deliver(const Key &key, std::vector<std::function<void()>> &due);
  // Delivers every pending message whose device's timeout has run out by now_ms.
  void deliver_due(uint64_t now_ms, std::vector<std::function<void()>> &due);
  std::map<Key, Subscription> subscriptions;
  std::map<Key, Pending> pending;
  std::map<uint32_t, uint32_t> timeouts;  // ms of the model clock, by device
  std::map<const pd_lrn_digest_msg *, std::unique_ptr<Message>> delivered;
  uint64_t next_msg_id = 1;
};

// Snapshots (snapshot_store.cpp), by handle: where they were created, the
// stages they span, their state, the trigger records as given, and what a
// trigger captured.
class SnapshotStore final : public Store {
 public:
  struct Snapshot {
    uint32_t device_id, pipe;
    uint8_t start_stage, end_stage;
    uint32_t direction;
    int state;  // ORBISK_MODEL_SNAPSHOT_*
    std::vector<uint8_t> value, mask;
    std::vector<uint8_t> captures;  // one record per stage once triggered
  };
  void clear() override;
  void drop_device(uint32_t device_id) override;
  std::map<uint32_t, Snapshot> snapshots;
  uint32_t next = 1;
};

}  // namespace orbisk_model
