// Match table entries and defaults: adds, changes, deletes, reads and walks.
// Every check runs before anything is written, so a failed call leaves both
// the model and the caller's out places as they were.
#include <algorithm>
#include <cstring>

#include "model_state.h"

using namespace orbisk_model;

namespace {

constexpr pd_status kOk = BF_SUCCESS;
constexpr pd_status kBad = ORBISK_MODEL_BAD_RECORD;

// A key record as the table's entries are packed.
pd_status check_key(const TableRow &row, const pd_match_record *key) {
  if (key == nullptr || row.key_bytes == 0) return kBad;  // a keyless table has no entries
  if (key->num_bytes != row.key_bytes || key->num_valid_bits != row.key_bits) return kBad;
  if (key->value_bytes == nullptr || key->mask_bytes == nullptr) return kBad;
  return kOk;
}

Key key_of(const pd_match_record &key) {
  return Key{{key.value_bytes, key.value_bytes + key.num_bytes},
             {key.mask_bytes, key.mask_bytes + key.num_bytes},
             key.priority,
             key.partition_index};
}

const ActionRow *find_action(const TableRow &row, pd_act_fn_hdl fn) {
  for (uint16_t i = 0; i < row.num_actions; ++i) {
    if (row.actions[i].handle == fn) return &row.actions[i];
  }
  return nullptr;
}

bool is_reference(uint8_t kind) {
  return kind == PD_RECORD_KIND_MEMBER_REF || kind == PD_RECORD_KIND_GROUP_REF;
}

// An action record for an entry (as_default false) or the default of a table.
pd_status check_action(const TableRow &row, pd_act_fn_hdl fn, const pd_action_record *act,
                       bool as_default) {
  if (act == nullptr || act->resource_count > PD_ACTION_RESOURCE_SLOTS) return kBad;
  if (is_reference(act->record_kind)) return row.indirect ? kOk : kBad;
  if (act->record_kind != PD_RECORD_KIND_DIRECT) return kBad;
  if (row.indirect && !as_default) return kBad;  // entries of a profile table name a member
  const ActionRow *a = find_action(row, fn);
  if (a == nullptr || !(as_default ? a->default_use : a->entry_use)) {
    return ORBISK_MODEL_NO_SUCH_ACTION;
  }
  if (act->num_bytes != a->data_bytes || act->num_valid_bits != a->data_bits) return kBad;
  if (act->num_bytes != 0 && act->data_bytes == nullptr) return kBad;
  return kOk;
}

Action action_of(pd_act_fn_hdl fn, const pd_action_record &act) {
  Action a;
  a.fn = fn;
  a.kind = act.record_kind;
  if (is_reference(act.record_kind)) {
    a.member = act.member_hdl;
    a.group = act.group_hdl;
  } else {
    a.bits = act.num_valid_bits;
    a.data.assign(act.data_bytes, act.data_bytes + act.num_bytes);
  }
  a.resource_count = act.resource_count;
  std::copy_n(act.resources, act.resource_count, a.slots);
  return a;
}

// Whether a read's action record has room for what is stored.
pd_status check_room(const Action &stored, const pd_action_record *act, const pd_act_fn_hdl *fn) {
  if (act == nullptr || fn == nullptr) return kBad;
  if (stored.data.size() > act->num_bytes) return kBad;
  if (!stored.data.empty() && act->data_bytes == nullptr) return kBad;
  return kOk;
}

// Answers a read with a stored action, bent by a pending quirk if any.
void write_action(Model &m, const Action &stored, pd_action_record *act, pd_act_fn_hdl *fn) {
  act->record_kind = stored.kind;
  act->resource_count = stored.resource_count;
  std::copy_n(stored.slots, stored.resource_count, act->resources);
  act->num_valid_bits = stored.bits;
  act->num_bytes = uint16_t(stored.data.size());
  if (!stored.data.empty()) std::memcpy(act->data_bytes, stored.data.data(), stored.data.size());
  act->member_hdl = stored.member;
  act->group_hdl = stored.group;
  *fn = stored.fn;
  if (m.quirk_kind >= 0) act->record_kind = uint8_t(m.quirk_kind);
  if (m.quirk_fn >= 0) *fn = pd_act_fn_hdl(m.quirk_fn);
  m.quirk_kind = -1;
  m.quirk_fn = -1;
}

Entry *find_entry(Table &t, pd_entry_hdl hdl) {
  auto it = t.entries.find(hdl);
  return it == t.entries.end() ? nullptr : &it->second;
}

// The entry with this key, after the key record has been checked.
Entry *find_by_key(Table &t, const pd_match_record &key, pd_entry_hdl *hdl = nullptr) {
  auto it = t.by_key.find(key_of(key));
  if (it == t.by_key.end()) return nullptr;
  if (hdl != nullptr) *hdl = it->second;
  return &t.entries.at(it->second);
}

void erase_entry(Table &t, pd_entry_hdl hdl) {
  auto it = t.entries.find(hdl);
  t.by_key.erase(it->second.key);
  t.entries.erase(it);
}

}  // namespace

extern "C" {

pd_status pipe_mgr_mat_ent_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                               pd_match_record *key, pd_act_fn_hdl fn, pd_action_record *act,
                               uint32_t ttl, uint32_t flags, pd_entry_hdl *entry_hdl) {
  return run("pipe_mgr_mat_ent_add",
             {arg(sess), arg(target), arg(tbl), arg(key), arg(fn), arg(act), arg(ttl), arg(flags),
              arg(entry_hdl)},
             key, act, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_key(*t->row, key)) return s;
               if (pd_status s = check_action(*t->row, fn, act, false)) return s;
               Key k = key_of(*key);
               if (t->by_key.count(k)) return ORBISK_MODEL_ENTRY_EXISTS;
               if (t->entries.size() >= t->capacity) return ORBISK_MODEL_TABLE_FULL;
               pd_entry_hdl hdl = t->next_hdl++;
               t->by_key.emplace(k, hdl);
               t->entries.emplace(hdl, Entry{std::move(k), action_of(fn, *act), ttl});
               *entry_hdl = hdl;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_set_action(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, pd_act_fn_hdl fn,
                                      pd_action_record *act, uint32_t flags) {
  return run("pipe_mgr_mat_ent_set_action",
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(fn), arg(act), arg(flags)},
             nullptr, act, [&](Model &m) {
               Table *t = m.table(device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_action(*t->row, fn, act, false)) return s;
               Entry *e = find_entry(*t, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               e->action = action_of(fn, *act);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_set_action_by_match_spec(pd_sess_hdl sess, pd_dev_target target,
                                                    pd_tbl_hdl tbl, pd_match_record *key,
                                                    pd_act_fn_hdl fn, pd_action_record *act,
                                                    uint32_t flags) {
  return run("pipe_mgr_mat_ent_set_action_by_match_spec",
             {arg(sess), arg(target), arg(tbl), arg(key), arg(fn), arg(act), arg(flags)}, key, act,
             [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_key(*t->row, key)) return s;
               if (pd_status s = check_action(*t->row, fn, act, false)) return s;
               Entry *e = find_by_key(*t, *key);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               e->action = action_of(fn, *act);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                               pd_entry_hdl entry_hdl, uint32_t flags) {
  return run("pipe_mgr_mat_ent_del",
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(flags)}, nullptr, nullptr,
             [&](Model &m) {
               Table *t = m.table(device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (find_entry(*t, entry_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               erase_entry(*t, entry_hdl);
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_del_by_match_spec(pd_sess_hdl sess, pd_dev_target target,
                                             pd_tbl_hdl tbl, pd_match_record *key,
                                             uint32_t flags) {
  return run("pipe_mgr_mat_ent_del_by_match_spec",
             {arg(sess), arg(target), arg(tbl), arg(key), arg(flags)}, key, nullptr,
             [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_key(*t->row, key)) return s;
               pd_entry_hdl hdl = 0;
               if (find_by_key(*t, *key, &hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               erase_entry(*t, hdl);
               return kOk;
             });
}

pd_status pipe_mgr_match_spec_to_ent_hdl(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_match_record *key, pd_entry_hdl *entry_hdl,
                                         uint32_t flags) {
  return run("pipe_mgr_match_spec_to_ent_hdl",
             {arg(sess), arg(target), arg(tbl), arg(key), arg(entry_hdl), arg(flags)}, key,
             nullptr, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_key(*t->row, key)) return s;
               pd_entry_hdl hdl = 0;
               if (find_by_key(*t, *key, &hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *entry_hdl = hdl;
               return kOk;
             });
}

// ---------------------------------------------------------------- reads ---

pd_status pipe_mgr_get_entry_count(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                   uint32_t read_from_hw, uint32_t *count) {
  return run("pipe_mgr_get_entry_count",
             {arg(sess), arg(target), arg(tbl), arg(read_from_hw), arg(count)}, nullptr, nullptr,
             [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (count == nullptr) return kBad;
               *count = uint32_t(t->entries.size());
               return kOk;
             });
}

pd_status pipe_mgr_get_first_entry_handle(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl *entry_hdl) {
  return run("pipe_mgr_get_first_entry_handle",
             {arg(sess), arg(tbl), arg(target), arg(entry_hdl)}, nullptr, nullptr, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (t->entries.empty()) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *entry_hdl = t->entries.begin()->first;
               return kOk;
             });
}

pd_status pipe_mgr_get_next_entry_handles(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl entry_hdl, uint32_t count,
                                          pd_entry_hdl *next_hdls) {
  return run("pipe_mgr_get_next_entry_handles",
             {arg(sess), arg(tbl), arg(target), arg(entry_hdl), arg(count), arg(next_hdls)},
             nullptr, nullptr, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (count != 0 && next_hdls == nullptr) return kBad;
               auto it = t->entries.find(entry_hdl);
               if (it == t->entries.end()) return ORBISK_MODEL_NO_SUCH_ENTRY;
               for (uint32_t i = 0; i < count; ++i) {
                 if (it != t->entries.end()) ++it;
                 next_hdls[i] = it == t->entries.end() ? ORBISK_MODEL_NO_HANDLE : it->first;
               }
               return kOk;
             });
}

pd_status pipe_mgr_get_entry(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                             pd_entry_hdl entry_hdl, pd_match_record *key,
                             pd_action_record *act, pd_act_fn_hdl *fn, uint32_t read_from_hw,
                             uint32_t resource_get_flags, uint32_t reserved) {
  return run("pipe_mgr_get_entry",
             {arg(sess), arg(tbl), arg(target), arg(entry_hdl), arg(key), arg(act), arg(fn),
              arg(read_from_hw), arg(resource_get_flags), arg(reserved)},
             key, act, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (key == nullptr) return kBad;
               if (entry_hdl == ORBISK_MODEL_DEFAULT_ENTRY_HDL) {
                 if (pd_status s = check_room(t->default_action, act, fn)) return s;
                 // A key of no bytes marks the default entry.
                 key->num_bytes = 0;
                 key->num_valid_bits = 0;
                 key->priority = 0;
                 key->partition_index = 0;
                 write_action(m, t->default_action, act, fn);
                 return kOk;
               }
               Entry *e = find_entry(*t, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               const std::size_t n = e->key.value.size();
               if (key->num_bytes < n || key->value_bytes == nullptr || key->mask_bytes == nullptr) {
                 return kBad;
               }
               if (pd_status s = check_room(e->action, act, fn)) return s;
               std::memcpy(key->value_bytes, e->key.value.data(), n);
               std::memcpy(key->mask_bytes, e->key.mask.data(), n);
               key->num_bytes = t->row->key_bytes;
               key->num_valid_bits = t->row->key_bits;
               key->priority = e->key.priority;
               key->partition_index = e->key.partition;
               write_action(m, e->action, act, fn);
               return kOk;
             });
}

// ------------------------------------------------------------- defaults ---

pd_status pipe_mgr_mat_default_entry_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_act_fn_hdl fn, pd_action_record *act, uint32_t flags,
                                         pd_entry_hdl *entry_hdl) {
  return run("pipe_mgr_mat_default_entry_set",
             {arg(sess), arg(target), arg(tbl), arg(fn), arg(act), arg(flags), arg(entry_hdl)},
             nullptr, act, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               if (pd_status s = check_action(*t->row, fn, act, true)) return s;
               t->default_action = action_of(fn, *act);
               *entry_hdl = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
               return kOk;
             });
}

pd_status pipe_mgr_table_get_default_entry(pd_sess_hdl sess, pd_dev_target target,
                                           pd_tbl_hdl tbl, pd_action_record *act,
                                           pd_act_fn_hdl *fn, uint32_t read_from_hw,
                                           uint32_t resource_get_flags, uint32_t reserved) {
  return run("pipe_mgr_table_get_default_entry",
             {arg(sess), arg(target), arg(tbl), arg(act), arg(fn), arg(read_from_hw),
              arg(resource_get_flags), arg(reserved)},
             nullptr, act, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_room(t->default_action, act, fn)) return s;
               write_action(m, t->default_action, act, fn);
               return kOk;
             });
}

pd_status pipe_mgr_table_get_default_entry_handle(pd_sess_hdl sess, pd_dev_target target,
                                                  pd_tbl_hdl tbl, pd_entry_hdl *entry_hdl) {
  return run("pipe_mgr_table_get_default_entry_handle",
             {arg(sess), arg(target), arg(tbl), arg(entry_hdl)}, nullptr, nullptr, [&](Model &m) {
               if (m.table(target.device_id, tbl) == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (entry_hdl == nullptr) return kBad;
               *entry_hdl = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
               return kOk;
             });
}

pd_status pipe_mgr_mat_tbl_default_entry_reset(pd_sess_hdl sess, pd_dev_target target,
                                               pd_tbl_hdl tbl, uint32_t flags) {
  return run("pipe_mgr_mat_tbl_default_entry_reset",
             {arg(sess), arg(target), arg(tbl), arg(flags)}, nullptr, nullptr, [&](Model &m) {
               Table *t = m.table(target.device_id, tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               t->default_action = declared_default(*t->row);
               return kOk;
             });
}

}  // extern "C"
