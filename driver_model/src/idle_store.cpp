// Idle time of the tables whose entries age: parameters, enable state and
// timeout callback per device and table, a TTL and hit state per entry, and
// the model clock that ages them. Timeouts and update callbacks are queued
// under the lock and made after it, like every notification of the model.
#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_table;
using orbisk::pd::kIdleTimeout;
using orbisk::pd::TableDesc;

namespace orbisk_model {

void IdleStore::clear() {
  tables_.clear();
  now_ms_ = 0;
}

void IdleStore::drop_device(uint32_t device_id) { erase_device(tables_, device_id); }

IdleStore::Table *IdleStore::find(uint32_t device_id, pd_tbl_hdl tbl) {
  auto it = tables_.find({device_id, tbl});
  return it == tables_.end() ? nullptr : &it->second;
}

void IdleStore::add_devices(std::set<uint32_t> &devices) const {
  for (const auto &kv : tables_) devices.insert(kv.first.first);
}

void IdleStore::advance(uint64_t ms, std::vector<std::function<void()>> &due) {
  now_ms_ += ms;
  for (auto &[where, t] : tables_) {
    if (!t.enabled || !t.notify()) continue;
    for (auto &[hdl, e] : t.entries) {
      if (e.ttl == 0 || e.reported) continue;
      e.idle_ms += ms;
      if (e.idle_ms < e.ttl) continue;
      e.reported = true;
      if (t.tmo_cb == nullptr) continue;
      pd_idle_tmo_cb cb = t.tmo_cb;
      void *cookie = t.tmo_cookie;
      const uint32_t device_id = where.first;
      const pd_tbl_hdl tbl = where.second;
      const pd_entry_hdl h = hdl;
      due.push_back([=] { cb(device_id, tbl, h, cookie); });
    }
  }
}

}  // namespace orbisk_model

namespace {

constexpr pd_status kOk = BF_SUCCESS;

// The checks every idle call starts with: a table of the program, with idle time.
pd_status check_table(pd_tbl_hdl tbl) {
  const TableDesc *d = find_table(tbl);
  if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
  if (!(d->flags & kIdleTimeout)) return ORBISK_MODEL_NO_IDLE_TIME;
  return kOk;
}

// An entry of an ageing table of a device; null when there is none.
IdleStore::Entry *find_entry(IdleStore::Table *t, pd_entry_hdl hdl) {
  if (t == nullptr) return nullptr;
  auto it = t->entries.find(hdl);
  return it == t->entries.end() ? nullptr : &it->second;
}

// The state a call that needs ageing on in one mode requires.
pd_status check_ageing(const IdleStore::Table *t, bool notify) {
  if (t == nullptr || !t->enabled) return ORBISK_MODEL_AGEING_OFF;
  if (t->notify() != notify) return ORBISK_MODEL_WRONG_IDLE_MODE;
  return kOk;
}

}  // namespace

extern "C" {

pd_status pipe_mgr_idle_set_params(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                   pd_idle_driver_params params) {
  Passing passed;
  passed.add("params", &params, sizeof params);
  // A record passed by value has no address of the caller's: 0 in the arguments.
  return run(Fn::pipe_mgr_idle_set_params, {arg(sess), arg(device_id), arg(tbl), 0}, passed,
             [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               m.idle.make(device_id, tbl).params = params;
               return kOk;
             });
}

pd_status pipe_mgr_idle_tmo_set_enable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                       uint32_t enable) {
  return run(Fn::pipe_mgr_idle_tmo_set_enable, {arg(sess), arg(device_id), arg(tbl), arg(enable)},
             [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               IdleStore::Table &t = m.idle.make(device_id, tbl);
               if (enable != 0 && !t.enabled) {
                 // Ageing starts afresh for every entry.
                 for (auto &[hdl, e] : t.entries) {
                   e.idle_ms = 0;
                   e.reported = false;
                 }
               }
               t.enabled = enable != 0;
               return kOk;
             });
}

pd_status pipe_mgr_idle_get_params(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                   pd_idle_driver_params *params) {
  Passing passed;
  passed.add("params", params, sizeof *params);
  return run(Fn::pipe_mgr_idle_get_params, {arg(sess), arg(device_id), arg(tbl), arg(params)},
             passed, [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               if (params == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const IdleStore::Table *t = m.idle.find(device_id, tbl);
               *params = t ? t->params : pd_idle_driver_params{};
               return kOk;
             });
}

pd_status pipe_mgr_idle_register_tmo_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_idle_tmo_cb callback, void *cookie) {
  return run(Fn::pipe_mgr_idle_register_tmo_cb,
             {arg(sess), arg(device_id), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               IdleStore::Table &t = m.idle.make(device_id, tbl);
               t.tmo_cb = callback;
               t.tmo_cookie = cookie;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_set_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint32_t ttl, uint32_t flags,
                                        uint32_t reserved) {
  return run(Fn::pipe_mgr_mat_ent_set_idle_ttl,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(ttl), arg(flags),
              arg(reserved)},
             [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               IdleStore::Entry *e = find_entry(m.idle.find(device_id, tbl), entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               e->ttl = ttl;
               e->idle_ms = 0;
               e->reported = false;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_get_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint32_t *ttl) {
  return run(Fn::pipe_mgr_mat_ent_get_idle_ttl,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(ttl)}, [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               if (ttl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const IdleStore::Entry *e = find_entry(m.idle.find(device_id, tbl), entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *ttl = e->ttl;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_reset_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                          pd_entry_hdl entry_hdl) {
  return run(Fn::pipe_mgr_mat_ent_reset_idle_ttl,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl)}, [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               IdleStore::Table *t = m.idle.find(device_id, tbl);
               if (pd_status s = check_ageing(t, true)) return s;
               IdleStore::Entry *e = find_entry(t, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               e->idle_ms = 0;
               e->reported = false;
               return kOk;
             });
}

pd_status pipe_mgr_idle_time_update_hit_state(pd_sess_hdl sess, uint32_t device_id,
                                              pd_tbl_hdl tbl, pd_idle_update_cb callback,
                                              void *cookie) {
  return run(Fn::pipe_mgr_idle_time_update_hit_state,
             {arg(sess), arg(device_id), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               IdleStore::Table *t = m.idle.find(device_id, tbl);
               if (pd_status s = check_ageing(t, false)) return s;
               for (auto &[hdl, e] : t->entries) {
                 e.hit_state = e.traffic;
                 e.traffic = false;
               }
               if (callback != nullptr) {
                 m.notifications.push_back([=] { callback(device_id, tbl, cookie); });
               }
               return kOk;
             });
}

pd_status pipe_mgr_idle_time_get_hit_state(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                           pd_entry_hdl entry_hdl, uint32_t *hit_state) {
  return run(Fn::pipe_mgr_idle_time_get_hit_state,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(hit_state)},
             [&](Model &m) {
               if (pd_status s = check_table(tbl)) return s;
               if (hit_state == nullptr) return ORBISK_MODEL_BAD_RECORD;
               IdleStore::Table *t = m.idle.find(device_id, tbl);
               if (pd_status s = check_ageing(t, false)) return s;
               const IdleStore::Entry *e = find_entry(t, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *hit_state = e->hit_state ? PD_IDLE_HIT_STATE_ACTIVE : PD_IDLE_HIT_STATE_IDLE;
               return kOk;
             });
}

// ---------------------------------------------------- controls, observers ---

void orbisk_model_advance_time(uint64_t ms) {
  in_frame([&](Model &m) {
    m.idle.advance(ms, m.notifications);
    m.digests.deliver_due(m.idle.now_ms(), m.notifications);
  });
}

uint64_t orbisk_model_now_ms(void) {
  return in_frame([](Model &m) { return m.idle.now_ms(); });
}

pd_status orbisk_model_mark_hit(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl) {
  return in_frame([&](Model &m) {
    if (pd_status s = check_table(tbl)) return s;
    IdleStore::Entry *e = find_entry(m.idle.find(device_id, tbl), entry_hdl);
    if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
    e->idle_ms = 0;
    e->reported = false;
    e->traffic = true;
    return kOk;
  });
}

}  // extern "C"
