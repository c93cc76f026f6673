// Match table entries and defaults: adds, changes, deletes, reads and walks,
// and the controls and observers of the match tables store. Every check runs
// before anything is written, so a failed call leaves the model and the
// caller's out places as they were, and makes no state for a device or a
// table that had none.
#include <algorithm>
#include <cstring>
#include <set>

#include "model.h"
#include "record_checks.h"

using namespace orbisk_model;
using orbisk::pd::find_table;

namespace {

constexpr pd_status kOk = BF_SUCCESS;
constexpr pd_status kBad = ORBISK_MODEL_BAD_RECORD;

Passing passing(const pd_match_record *key, const pd_action_record *act) {
  Passing p;
  p.key(key);
  p.act(act);
  return p;
}

// Whether a read's action record has room for what is stored.
pd_status check_room(const ActionView &stored, const pd_action_record *act,
                     const pd_act_fn_hdl *fn) {
  if (act == nullptr || fn == nullptr) return kBad;
  if (stored.data_len > act->num_bytes) return kBad;
  if (stored.data_len != 0 && act->data_bytes == nullptr) return kBad;
  return kOk;
}

// Answers a read with a stored action, bent by a pending quirk if any.
void write_action(TableStore &s, const ActionView &stored, pd_action_record *act,
                  pd_act_fn_hdl *fn) {
  act->record_kind = stored.kind;
  act->resource_count = stored.resource_count;
  std::copy_n(stored.slots, stored.resource_count, act->resources);
  act->num_valid_bits = stored.bits;
  act->num_bytes = stored.data_len;
  if (stored.data_len != 0) std::memcpy(act->data_bytes, stored.data, stored.data_len);
  act->member_hdl = stored.member;
  act->group_hdl = stored.group;
  *fn = stored.fn;
  if (s.quirk_kind >= 0) act->record_kind = uint8_t(s.quirk_kind);
  if (s.quirk_fn >= 0) *fn = pd_act_fn_hdl(s.quirk_fn);
  s.quirk_kind = -1;
  s.quirk_fn = -1;
}

// Answers an entry read from the chip's copy of the entry: without a key
// when it shows as a default entry, else with its key.
pd_status read_hw(TableStore &s, const TableDesc &d, const PlacementStore::HwEntry &hw,
                  pd_match_record *key, pd_action_record *act, pd_act_fn_hdl *fn) {
  if (hw.dropped) return ORBISK_MODEL_HW_DROPPED;
  const uint16_t n = hw.is_default ? 0 : d.key_bytes;
  if (n != 0 && (key->num_bytes < n || key->value_bytes == nullptr || key->mask_bytes == nullptr)) {
    return kBad;
  }
  const ActionView stored = hw_action(hw);
  if (pd_status st = check_room(stored, act, fn)) return st;
  if (n != 0) {
    std::memcpy(key->value_bytes, hw.value.data(), n);
    std::memcpy(key->mask_bytes, hw.mask.data(), n);
  }
  key->num_bytes = n;
  key->num_valid_bits = n != 0 ? d.key_bits : 0;
  key->priority = hw.priority;
  key->partition_index = hw.partition;
  write_action(s, stored, act, fn);
  return kOk;
}

// The default a table holds: its own once written, else the declared one.
DefaultAction default_of(const MatchTable *t, const TableDesc &d) {
  return t != nullptr ? t->default_action : DefaultAction::declared(d);
}

// What an entry's add, change or delete means to the other stores: an entry
// of an ageing table starts ageing with its TTL and stops when deleted, and
// the table's update callback hears of each, after the lock.
void added(Model &m, uint32_t device_id, const TableDesc &d, pd_entry_hdl hdl, uint32_t ttl) {
  if (d.flags & orbisk::pd::kIdleTimeout) {
    m.idle.make(device_id, d.handle).entries[hdl] = IdleStore::Entry{.ttl = ttl};
  }
  m.properties.updated(device_id, d.handle, hdl, PD_MAT_UPDATE_ADD, m.notifications);
}

void modified(Model &m, uint32_t device_id, const TableDesc &d, pd_entry_hdl hdl) {
  m.placement.rewritten(device_id, d.handle, hdl);
  m.properties.updated(device_id, d.handle, hdl, PD_MAT_UPDATE_MODIFY, m.notifications);
}

void deleted(Model &m, uint32_t device_id, const TableDesc &d, pd_entry_hdl hdl) {
  m.placement.rewritten(device_id, d.handle, hdl);
  if (IdleStore::Table *t = m.idle.find(device_id, d.handle)) t->entries.erase(hdl);
  m.resources.entry_deleted(device_id, d.handle, hdl);
  m.properties.updated(device_id, d.handle, hdl, PD_MAT_UPDATE_DELETE, m.notifications);
}

}  // namespace

extern "C" {

// ------------------------------------------------------------- entries ---

pd_status pipe_mgr_mat_ent_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                               pd_match_record *key, pd_act_fn_hdl fn, pd_action_record *act,
                               uint32_t ttl, uint32_t flags, pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_mat_ent_add,
             {arg(sess), arg(target), arg(tbl), arg(key), arg(fn), arg(act), arg(ttl), arg(flags),
              arg(entry_hdl)},
             passing(key, act), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_key(*d, key)) return s;
               if (pd_status s = check_action(*d, fn, act, false)) return s;
               if (pd_status s = check_ref(m, target.device_id, *d, fn, *act)) return s;
               MatchTable *t = m.tables.find(target.device_id, *d);
               uint32_t hash = 0;
               if (t != nullptr) {
                 hash = t->hash_of(*key);
                 if (t->find(*key, hash) != 0) return ORBISK_MODEL_ENTRY_EXISTS;
                 if (t->size() >= t->capacity) return ORBISK_MODEL_TABLE_FULL;
               } else {
                 t = &m.tables.make(target.device_id, *d);
                 hash = t->hash_of(*key);
               }
               const pd_entry_hdl hdl = t->insert(*key, hash, fn, *act);
               if (hdl == 0) return ORBISK_MODEL_TABLE_FULL;  // every handle in use
               *entry_hdl = hdl;
               added(m, target.device_id, *d, hdl, ttl);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_set_action(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, pd_act_fn_hdl fn,
                                      pd_action_record *act, uint32_t flags) {
  return run(Fn::pipe_mgr_mat_ent_set_action,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(fn), arg(act), arg(flags)},
             passing(nullptr, act), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_action(*d, fn, act, false)) return s;
               if (pd_status s = check_ref(m, device_id, *d, fn, *act)) return s;
               MatchTable *t = m.tables.find(device_id, *d);
               const MatchTable::Entry e = t ? t->find(entry_hdl) : MatchTable::Entry{};
               if (e.head == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               t->set_action(e, fn, *act);
               modified(m, device_id, *d, entry_hdl);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_set_action_by_match_spec(pd_sess_hdl sess, pd_dev_target target,
                                                    pd_tbl_hdl tbl, pd_match_record *key,
                                                    pd_act_fn_hdl fn, pd_action_record *act,
                                                    uint32_t flags) {
  return run(Fn::pipe_mgr_mat_ent_set_action_by_match_spec,
             {arg(sess), arg(target), arg(tbl), arg(key), arg(fn), arg(act), arg(flags)},
             passing(key, act), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_key(*d, key)) return s;
               if (pd_status s = check_action(*d, fn, act, false)) return s;
               if (pd_status s = check_ref(m, target.device_id, *d, fn, *act)) return s;
               MatchTable *t = m.tables.find(target.device_id, *d);
               const pd_entry_hdl hdl = t ? t->find(*key) : 0;
               if (hdl == 0) return ORBISK_MODEL_NO_SUCH_ENTRY;
               t->set_action(t->find(hdl), fn, *act);
               modified(m, target.device_id, *d, hdl);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                               pd_entry_hdl entry_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_mat_ent_del,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(flags)}, [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               MatchTable *t = m.tables.find(device_id, *d);
               if (t == nullptr || t->find(entry_hdl).head == nullptr) {
                 return ORBISK_MODEL_NO_SUCH_ENTRY;
               }
               t->erase(entry_hdl);
               deleted(m, device_id, *d, entry_hdl);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_del_by_match_spec(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                             pd_match_record *key, uint32_t flags) {
  return run(Fn::pipe_mgr_mat_ent_del_by_match_spec,
             {arg(sess), arg(target), arg(tbl), arg(key), arg(flags)}, passing(key, nullptr),
             [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_key(*d, key)) return s;
               MatchTable *t = m.tables.find(target.device_id, *d);
               const pd_entry_hdl hdl = t ? t->find(*key) : 0;
               if (hdl == 0) return ORBISK_MODEL_NO_SUCH_ENTRY;
               t->erase(hdl);
               deleted(m, target.device_id, *d, hdl);
               return kOk;
             });
}

pd_status pipe_mgr_match_spec_to_ent_hdl(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_match_record *key, pd_entry_hdl *entry_hdl,
                                         uint32_t flags) {
  return run(Fn::pipe_mgr_match_spec_to_ent_hdl,
             {arg(sess), arg(target), arg(tbl), arg(key), arg(entry_hdl), arg(flags)},
             passing(key, nullptr), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_key(*d, key)) return s;
               const MatchTable *t = m.tables.find(target.device_id, *d);
               const pd_entry_hdl hdl = t ? t->find(*key) : 0;
               if (hdl == 0) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *entry_hdl = hdl;
               return kOk;
             });
}

// ---------------------------------------------------------------- reads ---

pd_status pipe_mgr_get_entry_count(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                   uint32_t read_from_hw, uint32_t *count) {
  return run(Fn::pipe_mgr_get_entry_count,
             {arg(sess), arg(target), arg(tbl), arg(read_from_hw), arg(count)}, [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               std::vector<uint32_t> handles;
               if (d == nullptr && profile_handles(m, target.device_id, tbl, handles)) {
                 if (count == nullptr) return kBad;
                 *count = uint32_t(handles.size());
                 return kOk;
               }
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (count == nullptr) return kBad;
               const MatchTable *t = m.tables.find(target.device_id, *d);
               *count = t ? uint32_t(t->size()) : 0;
               return kOk;
             });
}

pd_status pipe_mgr_get_first_entry_handle(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_get_first_entry_handle,
             {arg(sess), arg(tbl), arg(target), arg(entry_hdl)}, [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               std::vector<uint32_t> handles;
               if (d == nullptr && profile_handles(m, target.device_id, tbl, handles)) {
                 if (entry_hdl == nullptr) return kBad;
                 if (handles.empty()) return ORBISK_MODEL_NO_SUCH_ENTRY;
                 *entry_hdl = handles.front();
                 return kOk;
               }
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               const MatchTable *t = m.tables.find(target.device_id, *d);
               if (t == nullptr || t->size() == 0) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *entry_hdl = t->next(0);
               return kOk;
             });
}

pd_status pipe_mgr_get_next_entry_handles(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl entry_hdl, uint32_t count,
                                          pd_entry_hdl *next_hdls) {
  return run(Fn::pipe_mgr_get_next_entry_handles,
             {arg(sess), arg(tbl), arg(target), arg(entry_hdl), arg(count), arg(next_hdls)},
             [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               std::vector<uint32_t> handles;
               if (d == nullptr && profile_handles(m, target.device_id, tbl, handles)) {
                 if (count != 0 && next_hdls == nullptr) return kBad;
                 auto it = std::find(handles.begin(), handles.end(), entry_hdl);
                 if (it == handles.end()) return ORBISK_MODEL_NO_SUCH_ENTRY;
                 for (uint32_t i = 0; i < count; ++i) {
                   if (it != handles.end()) ++it;
                   next_hdls[i] = it != handles.end() ? *it : ORBISK_MODEL_NO_HANDLE;
                 }
                 return kOk;
               }
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (count != 0 && next_hdls == nullptr) return kBad;
               const MatchTable *t = m.tables.find(target.device_id, *d);
               if (t == nullptr || t->find(entry_hdl).head == nullptr) {
                 return ORBISK_MODEL_NO_SUCH_ENTRY;
               }
               pd_entry_hdl h = entry_hdl;
               for (uint32_t i = 0; i < count; ++i) {
                 if (h != 0) h = t->next(h);
                 next_hdls[i] = h != 0 ? h : ORBISK_MODEL_NO_HANDLE;
               }
               return kOk;
             });
}

pd_status pipe_mgr_get_entry(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                             pd_entry_hdl entry_hdl, pd_match_record *key, pd_action_record *act,
                             pd_act_fn_hdl *fn, uint32_t read_from_hw, uint32_t resource_get_flags,
                             uint32_t reserved) {
  return run(
      Fn::pipe_mgr_get_entry,
      {arg(sess), arg(tbl), arg(target), arg(entry_hdl), arg(key), arg(act), arg(fn),
       arg(read_from_hw), arg(resource_get_flags), arg(reserved)},
      passing(key, act), [&](Model &m) {
        const TableDesc *d = find_table(tbl);
        if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
        if (key == nullptr) return kBad;
        const MatchTable *t = m.tables.find(target.device_id, *d);
        // The chip's copy, where a test made it differ from software's.
        const PlacementStore::HwEntry *hw =
            read_from_hw ? m.placement.find(target.device_id, tbl, entry_hdl) : nullptr;
        if (hw != nullptr) return read_hw(m.tables, *d, *hw, key, act, fn);
        if (entry_hdl == ORBISK_MODEL_DEFAULT_ENTRY_HDL) {
          const DefaultAction dflt = default_of(t, *d);
          if (pd_status s = check_room(dflt.view(), act, fn)) return s;
          // A key of no bytes marks the default entry.
          key->num_bytes = 0;
          key->num_valid_bits = 0;
          key->priority = 0;
          key->partition_index = 0;
          write_action(m.tables, dflt.view(), act, fn);
          return kOk;
        }
        const MatchTable::Entry e = t ? t->find(entry_hdl) : MatchTable::Entry{};
        if (e.head == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
        const uint16_t n = d->key_bytes;
        if (key->num_bytes < n || key->value_bytes == nullptr || key->mask_bytes == nullptr) {
          return kBad;
        }
        const ActionView stored = t->action(e);
        if (pd_status s = check_room(stored, act, fn)) return s;
        std::memcpy(key->value_bytes, e.value, n);
        std::memcpy(key->mask_bytes, e.mask, n);
        key->num_bytes = n;
        key->num_valid_bits = d->key_bits;
        key->priority = e.head->priority;
        key->partition_index = e.head->partition;
        write_action(m.tables, stored, act, fn);
        return kOk;
      });
}

// ------------------------------------------------------------- defaults ---

pd_status pipe_mgr_mat_default_entry_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_act_fn_hdl fn, pd_action_record *act, uint32_t flags,
                                         pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_mat_default_entry_set,
             {arg(sess), arg(target), arg(tbl), arg(fn), arg(act), arg(flags), arg(entry_hdl)},
             passing(nullptr, act), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_action(*d, fn, act, true)) return s;
               if (pd_status s = check_ref(m, target.device_id, *d, fn, *act)) return s;
               m.tables.make(target.device_id, *d).default_action = DefaultAction::of(fn, *act);
               m.placement.rewritten(target.device_id, tbl, ORBISK_MODEL_DEFAULT_ENTRY_HDL);
               *entry_hdl = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
               return kOk;
             });
}

pd_status pipe_mgr_table_get_default_entry(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                           pd_action_record *act, pd_act_fn_hdl *fn,
                                           uint32_t read_from_hw, uint32_t resource_get_flags,
                                           uint32_t reserved) {
  return run(Fn::pipe_mgr_table_get_default_entry,
             {arg(sess), arg(target), arg(tbl), arg(act), arg(fn), arg(read_from_hw),
              arg(resource_get_flags), arg(reserved)},
             passing(nullptr, act), [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               const PlacementStore::HwEntry *hw =
                   read_from_hw ? m.placement.find(target.device_id, tbl,
                                                   ORBISK_MODEL_DEFAULT_ENTRY_HDL)
                                : nullptr;
               if (hw != nullptr && hw->dropped) return ORBISK_MODEL_HW_DROPPED;
               const DefaultAction dflt = default_of(m.tables.find(target.device_id, *d), *d);
               const ActionView stored = hw != nullptr ? hw_action(*hw) : dflt.view();
               if (pd_status s = check_room(stored, act, fn)) return s;
               write_action(m.tables, stored, act, fn);
               return kOk;
             });
}

pd_status pipe_mgr_table_get_default_entry_handle(pd_sess_hdl sess, pd_dev_target target,
                                                  pd_tbl_hdl tbl, pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_table_get_default_entry_handle,
             {arg(sess), arg(target), arg(tbl), arg(entry_hdl)}, [&](Model &) {
               if (find_table(tbl) == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               *entry_hdl = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
               return kOk;
             });
}

pd_status pipe_mgr_mat_tbl_default_entry_reset(pd_sess_hdl sess, pd_dev_target target,
                                               pd_tbl_hdl tbl, uint32_t flags) {
  return run(Fn::pipe_mgr_mat_tbl_default_entry_reset,
             {arg(sess), arg(target), arg(tbl), arg(flags)}, [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               m.placement.rewritten(target.device_id, tbl, ORBISK_MODEL_DEFAULT_ENTRY_HDL);
               // A table without state holds its declared default already.
               if (MatchTable *t = m.tables.find(target.device_id, *d)) {
                 t->default_action = DefaultAction::declared(*d);
               }
               return kOk;
             });
}

// ---------------------------------------------------- controls, observers ---

pd_status orbisk_model_set_capacity(uint32_t device_id, pd_tbl_hdl tbl, uint32_t capacity) {
  return in_frame([&](Model &m) {
    const TableDesc *d = find_table(tbl);
    if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
    m.tables.make(device_id, *d).capacity = capacity;
    return kOk;
  });
}

pd_status orbisk_model_set_next_handle(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl) {
  return in_frame([&](Model &m) {
    const TableDesc *d = find_table(tbl);
    if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
    if (hdl == 0 || hdl > kMaxEntryHdl) return ORBISK_MODEL_BAD_CONTROL;
    m.tables.make(device_id, *d).cursor = hdl;
    return kOk;
  });
}

void orbisk_model_quirk_next_read(int record_kind, int64_t act_fn) {
  in_frame([&](Model &m) {
    m.tables.quirk_kind = record_kind;
    m.tables.quirk_fn = act_fn;
  });
}

size_t orbisk_model_entry_count(uint32_t device_id, pd_tbl_hdl tbl) {
  return in_frame([&](Model &m) -> size_t {
    const TableDesc *d = find_table(tbl);
    const MatchTable *t = d ? m.tables.find(device_id, *d) : nullptr;
    return t ? t->size() : 0;
  });
}

size_t orbisk_model_device_count(void) {
  return in_frame([](Model &m) {
    std::set<uint32_t> devices = m.tables.devices();
    // Idle time and properties are device state too, even on tables without entries.
    m.idle.add_devices(devices);
    m.resources.add_devices(devices);
    m.properties.add_devices(devices);
    m.profiles.add_devices(devices);
    return devices.size();
  });
}

}  // extern "C"
