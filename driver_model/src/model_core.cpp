// The model's state and controls, the call log, the system services and
// client registration.
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "model_state.h"

namespace orbisk_model {

Model &model() {
  static Model *m = new Model;
  return *m;
}

const TableRow *find_row(pd_tbl_hdl tbl) {
  static const std::unordered_map<pd_tbl_hdl, const TableRow *> rows = [] {
    std::unordered_map<pd_tbl_hdl, const TableRow *> r;
    for (std::size_t i = 0; i < kTableCount; ++i) r.emplace(kTables[i].handle, &kTables[i]);
    return r;
  }();
  auto it = rows.find(tbl);
  return it == rows.end() ? nullptr : it->second;
}

Action declared_default(const TableRow &row) {
  Action a;
  if (row.declared_default < row.num_actions) {
    const ActionRow &d = row.actions[row.declared_default];
    a.fn = d.handle;
    a.bits = d.data_bits;
    a.data.assign(d.data_bytes, 0);
  }
  if (row.resource_hdl != 0) {
    a.resource_count = 1;
    a.slots[0].resource_hdl = row.resource_hdl;
    a.slots[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
  }
  return a;
}

void Model::reset() {
  tables.clear();
  calls.clear();
  faults.clear();
  quirk_kind = -1;
  quirk_fn = -1;
  dbg_mode = 0;
  log_lines.clear();
  retired_blocks.merge(live_blocks);
  live_blocks.clear();
  allocations = 0;
  clients.clear();
  next_client = 1;
  for (auto &[ptr, state] : ms_states) state->devices.clear();
}

Table *Model::table(uint32_t device_id, pd_tbl_hdl tbl) {
  const TableRow *row = find_row(tbl);
  if (row == nullptr) return nullptr;
  auto [it, made] = tables.try_emplace({device_id, tbl});
  if (made) {
    it->second.row = row;
    it->second.default_action = declared_default(*row);
  }
  return &it->second;
}

pd_ms_state *Model::ms_state(pd_ms_state *state) {
  return ms_states.count(state) ? state : nullptr;
}

orbisk_model_call &Model::record(const char *function, std::initializer_list<uint64_t> args,
                                 const pd_match_record *key, const pd_action_record *act) {
  orbisk_model_call &c = calls.emplace_back();  // value-initialised: all zero
  c.function = function;
  for (uint64_t a : args) {
    if (c.num_args < ORBISK_MODEL_MAX_ARGS) c.args[c.num_args++] = a;
  }
  if (key != nullptr) {
    c.has_key = 1;
    c.key = *key;
    std::size_t n = std::min<std::size_t>(key->num_bytes, ORBISK_MODEL_MAX_KEY_BYTES);
    if (key->value_bytes != nullptr) {
      std::memcpy(c.key_value, key->value_bytes, n);
      c.key.value_bytes = c.key_value;
    }
    if (key->mask_bytes != nullptr) {
      std::memcpy(c.key_mask, key->mask_bytes, n);
      c.key.mask_bytes = c.key_mask;
    }
  }
  if (act != nullptr) {
    c.has_act = 1;
    c.act = *act;
    if (act->data_bytes != nullptr) {
      std::size_t n = std::min<std::size_t>(act->num_bytes, ORBISK_MODEL_MAX_DATA_BYTES);
      std::memcpy(c.act_data, act->data_bytes, n);
      c.act.data_bytes = c.act_data;
    }
  }
  return c;
}

bool Model::take_fault(const char *function, pd_status &status) {
  bool fired = false;
  for (auto it = faults.begin(); it != faults.end();) {
    if (it->function == function && --it->remaining == 0) {
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

extern "C" {

// ------------------------------------------------------------- controls ---

void orbisk_model_reset(void) {
  locked([](Model &m) { m.reset(); });
}

pd_status orbisk_model_set_capacity(uint32_t device_id, pd_tbl_hdl tbl, uint32_t capacity) {
  return locked([&](Model &m) {
    Table *t = m.table(device_id, tbl);
    if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
    t->capacity = capacity;
    return BF_SUCCESS;
  });
}

void orbisk_model_fail(const char *function, uint32_t nth, pd_status status) {
  if (function == nullptr) return;
  locked([&](Model &m) {
    if (nth == 0) {
      std::erase_if(m.faults, [&](const Fault &f) { return f.function == function; });
    } else {
      m.faults.push_back({function, nth, status});
    }
  });
}

void orbisk_model_quirk_next_read(int record_kind, int64_t act_fn) {
  locked([&](Model &m) {
    m.quirk_kind = record_kind;
    m.quirk_fn = act_fn;
  });
}

void orbisk_model_set_dbg_mode(int mode) {
  locked([&](Model &m) { m.dbg_mode = mode; });
}

size_t orbisk_model_entry_count(uint32_t device_id, pd_tbl_hdl tbl) {
  return locked([&](Model &m) -> size_t {
    auto it = m.tables.find({device_id, tbl});
    return it == m.tables.end() ? 0 : it->second.entries.size();
  });
}

// ------------------------------------------------------------- call log ---

size_t orbisk_model_call_count(void) {
  return locked([](Model &m) { return m.calls.size(); });
}

const orbisk_model_call *orbisk_model_call_at(size_t i) {
  return locked([&](Model &m) { return i < m.calls.size() ? &m.calls[i] : nullptr; });
}

const orbisk_model_call *orbisk_model_last_call(void) {
  return locked([](Model &m) { return m.calls.empty() ? nullptr : &m.calls.back(); });
}

void orbisk_model_clear_calls(void) {
  locked([](Model &m) { m.calls.clear(); });
}

// ------------------------------------------------------ system services ---

int bf_sys_dbg_mode(void) {
  return locked([](Model &m) { return m.dbg_mode; });
}

void bf_sys_log_and_trace(int module, int level, const char *format, ...) {
  (void)module;
  (void)level;
  if (format == nullptr) return;
  va_list ap;
  va_start(ap, format);
  va_list again;
  va_copy(again, ap);
  int n = std::vsnprintf(nullptr, 0, format, ap);
  va_end(ap);
  std::string line;
  if (n > 0) {
    line.resize(std::size_t(n) + 1);
    std::vsnprintf(line.data(), line.size(), format, again);
    line.resize(std::size_t(n));
  }
  va_end(again);
  locked([&](Model &m) { m.log_lines.push_back(std::move(line)); });
}

size_t orbisk_model_log_count(void) {
  return locked([](Model &m) { return m.log_lines.size(); });
}

const char *orbisk_model_log_at(size_t i) {
  return locked([&](Model &m) { return i < m.log_lines.size() ? m.log_lines[i].c_str() : nullptr; });
}

void orbisk_model_clear_log(void) {
  locked([](Model &m) { m.log_lines.clear(); });
}

void *bf_sys_calloc(size_t count, size_t size) {
  void *p = std::calloc(count, size);
  if (p != nullptr) {
    locked([&](Model &m) {
      m.live_blocks.insert(p);
      ++m.allocations;
    });
  }
  return p;
}

void bf_sys_free(void *ptr) {
  if (ptr == nullptr) return;
  // A block given out before the last reset is no longer counted, but is
  // still the caller's to free.
  locked([&](Model &m) {
    m.live_blocks.erase(ptr);
    m.retired_blocks.erase(ptr);
  });
  std::free(ptr);
}

size_t orbisk_model_live_allocations(void) {
  return locked([](Model &m) { return m.live_blocks.size(); });
}

size_t orbisk_model_allocation_count(void) {
  return locked([](Model &m) { return m.allocations; });
}

// --------------------------------------------------------- registration ---

pd_status bf_drv_register(const char *client_name, uint32_t *client_hdl) {
  return run("bf_drv_register", {arg(client_name), arg(client_hdl)}, nullptr, nullptr,
             [&](Model &m) {
               if (client_name == nullptr || client_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               m.clients[m.next_client].name = client_name;
               *client_hdl = m.next_client++;
               return BF_SUCCESS;
             });
}

pd_status bf_drv_deregister(uint32_t client_hdl) {
  return run("bf_drv_deregister", {arg(client_hdl)}, nullptr, nullptr, [&](Model &m) {
    return m.clients.erase(client_hdl) ? BF_SUCCESS : ORBISK_MODEL_NOT_REGISTERED;
  });
}

pd_status bf_drv_client_register_callbacks(uint32_t client_hdl,
                                           pd_drv_client_callbacks *callbacks,
                                           uint32_t priority) {
  return run("bf_drv_client_register_callbacks",
             {arg(client_hdl), arg(callbacks), arg(priority)}, nullptr, nullptr, [&](Model &m) {
               auto it = m.clients.find(client_hdl);
               if (it == m.clients.end()) return ORBISK_MODEL_NOT_REGISTERED;
               if (callbacks == nullptr) return ORBISK_MODEL_BAD_RECORD;
               it->second.has_callbacks = true;
               it->second.callbacks = *callbacks;
               it->second.priority = priority;
               return BF_SUCCESS;
             });
}

const char *orbisk_model_client_name(uint32_t client_hdl) {
  return locked([&](Model &m) -> const char * {
    auto it = m.clients.find(client_hdl);
    return it == m.clients.end() ? nullptr : it->second.name.c_str();
  });
}

const pd_drv_client_callbacks *orbisk_model_callbacks(uint32_t client_hdl) {
  return locked([&](Model &m) -> const pd_drv_client_callbacks * {
    auto it = m.clients.find(client_hdl);
    if (it == m.clients.end() || !it->second.has_callbacks) return nullptr;
    return &it->second.callbacks;
  });
}

uint32_t orbisk_model_callbacks_priority(uint32_t client_hdl) {
  return locked([&](Model &m) -> uint32_t {
    auto it = m.clients.find(client_hdl);
    return it == m.clients.end() ? 0 : it->second.priority;
  });
}

}  // extern "C"
