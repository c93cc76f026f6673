// Counters, meters and registers: counter cells with the driver's memory and
// the chip's count apart, meter records, byte-count adjustments and register
// cells per pipe. Direct meters stay in their entries' resource slots in the
// match store. Sync callbacks are queued under the lock and made after it.
#include <algorithm>

#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_resource;
using orbisk::pd::find_table;
using orbisk::pd::ResourceDesc;
using orbisk::pd::ResourceKind;
using orbisk::pd::TableDesc;

namespace orbisk_model {

void ResourceStore::clear() {
  counters.clear();
  meters.clear();
  wred.clear();
  bytecount_adjust.clear();
  registers.clear();
}

void ResourceStore::drop_device(uint32_t device_id) {
  erase_device(counters, device_id);
  erase_device(meters, device_id);
  erase_device(wred, device_id);
  erase_device(bytecount_adjust, device_id);
  erase_device(registers, device_id);
}

void ResourceStore::entry_deleted(uint32_t device_id, uint32_t tbl, pd_entry_hdl hdl) {
  counters.erase({device_id, tbl, hdl});
}

void ResourceStore::add_devices(std::set<uint32_t> &devices) const {
  for (const auto &kv : counters) devices.insert(kv.first.device_id);
  for (const auto &kv : meters) devices.insert(kv.first.device_id);
  for (const auto &kv : wred) devices.insert(kv.first.device_id);
  for (const auto &kv : bytecount_adjust) devices.insert(kv.first.first);
  for (const auto &kv : registers) devices.insert(kv.first.device_id);
}

}  // namespace orbisk_model

namespace {

constexpr pd_status kOk = BF_SUCCESS;

// A direct resource of a kind, reached through an entry of its match table.
struct Direct {
  const ResourceDesc *res = nullptr;
  MatchTable *table = nullptr;
  MatchTable::Entry entry{};
};

pd_status find_direct(Model &m, uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl,
                      ResourceKind kind, Direct &out) {
  const TableDesc *d = find_table(tbl);
  if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
  if (d->resource == nullptr || d->resource->kind != kind || !d->resource->direct) {
    return ORBISK_MODEL_NO_SUCH_RESOURCE;
  }
  out.res = d->resource;
  out.table = m.tables.find(device_id, *d);
  if (out.table != nullptr) out.entry = out.table->find(hdl);
  return kOk;
}

pd_status need_entry(const Direct &d) {
  return d.entry.head == nullptr ? ORBISK_MODEL_NO_SUCH_ENTRY : kOk;
}

// An indexed resource of a kind by its own handle.
pd_status find_indexed(pd_tbl_hdl tbl, ResourceKind kind, const ResourceDesc *&out) {
  out = find_resource(tbl, kind);
  if (out == nullptr || out->direct || out->handle != tbl) return ORBISK_MODEL_NO_SUCH_RESOURCE;
  return kOk;
}

pd_status check_index(const ResourceDesc *r, uint32_t index) {
  return index < r->size ? kOk : ORBISK_MODEL_INDEX_PAST_SIZE;
}

// The pipes a target names: [first, first + count).
pd_status pipes_of(pd_dev_target target, uint16_t &first, uint16_t &count) {
  if (target.dev_pipe_id == PD_DEV_PIPE_ALL) {
    first = 0;
    count = ORBISK_MODEL_PIPES;
    return kOk;
  }
  if (target.dev_pipe_id >= ORBISK_MODEL_PIPES) return ORBISK_MODEL_NO_SUCH_PIPE;
  first = target.dev_pipe_id;
  count = 1;
  return kOk;
}

void queue_sync(Model &m, uint32_t device_id, void (*cb)(uint32_t, void *), void *cookie) {
  if (cb != nullptr) m.notifications.push_back([=] { cb(device_id, cookie); });
}

// Every counter cell of one table handle on a device: the chip's count into
// the driver's memory.
void sync_all(Model &m, uint32_t device_id, uint32_t tbl) {
  auto it = m.resources.counters.lower_bound({device_id, tbl, 0});
  for (; it != m.resources.counters.end() && it->first.device_id == device_id &&
         it->first.tbl == tbl;
       ++it) {
    it->second.sw = it->second.hw;
  }
}

pd_register_element register_cell(Model &m, uint32_t device_id, uint32_t handle, uint16_t pipe,
                                  uint32_t index) {
  auto it = m.resources.registers.find({device_id, handle, pipe});
  if (it == m.resources.registers.end()) return pd_register_element{};
  auto c = it->second.cells.find(index);
  return c == it->second.cells.end() ? it->second.fill : c->second;
}

// The register and pipes of a named-register call.
pd_status find_register(pd_dev_target target, pd_tbl_hdl tbl, const ResourceDesc *&r,
                        uint16_t &first, uint16_t &count) {
  if (pd_status s = find_indexed(tbl, ResourceKind::Register, r)) return s;
  return pipes_of(target, first, count);
}

// Fills one query with an index's elements, pipe by pipe.
pd_status fill_query(Model &m, pd_dev_target target, uint32_t handle, uint16_t first,
                     uint16_t count, uint32_t index, pd_register_query &q) {
  if (q.count < int32_t(count) || q.data == nullptr) return ORBISK_MODEL_BAD_RECORD;
  for (uint16_t p = 0; p < count; ++p) {
    q.data[p] = register_cell(m, target.device_id, handle, uint16_t(first + p), index);
  }
  q.count = count;
  return kOk;
}

// A cell of an indexed meter, as its meter and WRED calls name it: the
// handle must be an indexed meter's, the record given, the index inside.
pd_status check_meter_cell(pd_tbl_hdl tbl, uint32_t index, const void *record) {
  const ResourceDesc *r;
  if (pd_status s = find_indexed(tbl, ResourceKind::Meter, r)) return s;
  if (record == nullptr) return ORBISK_MODEL_BAD_RECORD;
  return check_index(r, index);
}

}  // namespace

extern "C" {

// ----------------------------------------------------------------- counters ---

pd_status pipe_mgr_direct_stat_ent_database_sync(pd_sess_hdl sess, uint32_t device_id,
                                                 pd_tbl_hdl tbl, pd_entry_hdl entry_hdl) {
  return run(Fn::pipe_mgr_direct_stat_ent_database_sync,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl)}, [&](Model &m) {
               Direct d;
               if (pd_status s = find_direct(m, device_id, tbl, entry_hdl, ResourceKind::Counter, d)) return s;
               if (pd_status s = need_entry(d)) return s;
               auto it = m.resources.counters.find({device_id, tbl, entry_hdl});
               if (it != m.resources.counters.end()) it->second.sw = it->second.hw;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_direct_stat_query(pd_sess_hdl sess, uint32_t device_id,
                                             pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                             pd_counter_record *value) {
  return run(Fn::pipe_mgr_mat_ent_direct_stat_query,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(value)}, [&](Model &m) {
               Direct d;
               if (pd_status s = find_direct(m, device_id, tbl, entry_hdl, ResourceKind::Counter, d)) return s;
               if (value == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (pd_status s = need_entry(d)) return s;
               auto it = m.resources.counters.find({device_id, tbl, entry_hdl});
               *value = it == m.resources.counters.end() ? pd_counter_record{} : it->second.sw;
               return kOk;
             });
}

pd_status pipe_mgr_mat_ent_direct_stat_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                           pd_entry_hdl entry_hdl, pd_counter_record *value) {
  Passing passed;
  passed.add("counter", value, sizeof *value);
  return run(Fn::pipe_mgr_mat_ent_direct_stat_set,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(value)}, passed,
             [&](Model &m) {
               Direct d;
               if (pd_status s = find_direct(m, device_id, tbl, entry_hdl, ResourceKind::Counter, d)) return s;
               if (value == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (pd_status s = need_entry(d)) return s;
               m.resources.counters[{device_id, tbl, entry_hdl}] = {*value, *value};
               return kOk;
             });
}

pd_status pipe_mgr_direct_stat_database_sync(pd_sess_hdl sess, pd_dev_target target,
                                             pd_tbl_hdl tbl, pd_stat_sync_cb callback,
                                             void *cookie) {
  return run(Fn::pipe_mgr_direct_stat_database_sync,
             {arg(sess), arg(target), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               Direct d;
               if (pd_status s = find_direct(m, target.device_id, tbl, 0, ResourceKind::Counter, d)) return s;
               sync_all(m, target.device_id, tbl);
               queue_sync(m, target.device_id, callback, cookie);
               return kOk;
             });
}

pd_status pipe_mgr_stat_ent_database_sync(pd_sess_hdl sess, pd_dev_target target,
                                          pd_tbl_hdl tbl, uint32_t index) {
  return run(Fn::pipe_mgr_stat_ent_database_sync, {arg(sess), arg(target), arg(tbl), arg(index)},
             [&](Model &m) {
               const ResourceDesc *r;
               if (pd_status s = find_indexed(tbl, ResourceKind::Counter, r)) return s;
               if (pd_status s = check_index(r, index)) return s;
               auto it = m.resources.counters.find({target.device_id, tbl, index});
               if (it != m.resources.counters.end()) it->second.sw = it->second.hw;
               return kOk;
             });
}

pd_status pipe_mgr_stat_ent_query(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                  uint32_t *indices, uint32_t num_indices,
                                  pd_counter_record **values) {
  Passing passed;
  if (indices != nullptr) passed.add("indices", indices, num_indices * sizeof *indices);
  return run(Fn::pipe_mgr_stat_ent_query,
             {arg(sess), arg(target), arg(tbl), arg(indices), arg(num_indices), arg(values)},
             passed, [&](Model &m) {
               const ResourceDesc *r;
               if (pd_status s = find_indexed(tbl, ResourceKind::Counter, r)) return s;
               if (indices == nullptr || values == nullptr) return ORBISK_MODEL_BAD_RECORD;
               for (uint32_t i = 0; i < num_indices; ++i) {
                 if (values[i] == nullptr) return ORBISK_MODEL_BAD_RECORD;
                 if (pd_status s = check_index(r, indices[i])) return s;
               }
               for (uint32_t i = 0; i < num_indices; ++i) {
                 auto it = m.resources.counters.find({target.device_id, tbl, indices[i]});
                 *values[i] = it == m.resources.counters.end() ? pd_counter_record{} : it->second.sw;
               }
               return kOk;
             });
}

pd_status pipe_mgr_stat_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                uint32_t index, pd_counter_record *value) {
  Passing passed;
  passed.add("counter", value, sizeof *value);
  return run(Fn::pipe_mgr_stat_ent_set, {arg(sess), arg(target), arg(tbl), arg(index), arg(value)},
             passed, [&](Model &m) {
               const ResourceDesc *r;
               if (pd_status s = find_indexed(tbl, ResourceKind::Counter, r)) return s;
               if (value == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (pd_status s = check_index(r, index)) return s;
               m.resources.counters[{target.device_id, tbl, index}] = {*value, *value};
               return kOk;
             });
}

pd_status pipe_mgr_stat_database_sync(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                      pd_stat_sync_cb callback, void *cookie) {
  return run(Fn::pipe_mgr_stat_database_sync,
             {arg(sess), arg(target), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               const ResourceDesc *r;
               if (pd_status s = find_indexed(tbl, ResourceKind::Counter, r)) return s;
               sync_all(m, target.device_id, tbl);
               queue_sync(m, target.device_id, callback, cookie);
               return kOk;
             });
}

// ------------------------------------------------------------------- meters ---

pd_status pipe_mgr_mat_ent_set_resource(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, pd_resource_record *resources,
                                        int count, uint32_t flags) {
  Passing passed;
  if (resources != nullptr && count > 0) {
    passed.add("resources", resources, size_t(count) * sizeof *resources);
  }
  return run(Fn::pipe_mgr_mat_ent_set_resource,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(resources), arg(count),
              arg(flags)},
             passed, [&](Model &m) {
               const TableDesc *d = find_table(tbl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (resources == nullptr || count <= 0 || count > PD_ACTION_RESOURCE_SLOTS) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               for (int i = 0; i < count; ++i) {
                 if (d->resource == nullptr || resources[i].resource_hdl != d->resource->handle) {
                   return ORBISK_MODEL_NO_SUCH_RESOURCE;
                 }
               }
               MatchTable *t = m.tables.find(device_id, *d);
               MatchTable::Entry e = t != nullptr ? t->find(entry_hdl) : MatchTable::Entry{};
               if (e.head == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               for (int i = 0; i < count; ++i) {
                 pd_resource_record *slot = t->slot(e, resources[i].resource_hdl);
                 if (slot == nullptr) return ORBISK_MODEL_NO_SUCH_RESOURCE;
               }
               for (int i = 0; i < count; ++i) *t->slot(e, resources[i].resource_hdl) = resources[i];
               return kOk;
             });
}

pd_status pipe_mgr_meter_read_entry(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    pd_entry_hdl entry_hdl, pd_meter_record *meter) {
  return run(Fn::pipe_mgr_meter_read_entry,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(meter)}, [&](Model &m) {
               Direct d;
               if (pd_status s = find_direct(m, device_id, tbl, entry_hdl, ResourceKind::Meter, d)) return s;
               if (meter == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (pd_status s = need_entry(d)) return s;
               const pd_resource_record *slot = d.table->slot(d.entry, d.res->handle);
               *meter = slot != nullptr && slot->resource_tag == PD_RESOURCE_TAG_ATTACHED
                            ? slot->resource_spec.meter
                            : pd_meter_record{};
               return kOk;
             });
}

pd_status pipe_mgr_meter_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                 uint32_t index, pd_meter_record *meter, uint32_t flags) {
  Passing passed;
  passed.add("meter", meter, sizeof *meter);
  return run(Fn::pipe_mgr_meter_ent_set,
             {arg(sess), arg(target), arg(tbl), arg(index), arg(meter), arg(flags)}, passed,
             [&](Model &m) {
               if (pd_status s = check_meter_cell(tbl, index, meter)) return s;
               m.resources.meters[{target.device_id, tbl, index}] = *meter;
               return kOk;
             });
}

pd_status pipe_mgr_meter_read_entry_idx(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                        uint32_t index, pd_meter_record *meter, uint32_t flags) {
  return run(Fn::pipe_mgr_meter_read_entry_idx,
             {arg(sess), arg(target), arg(tbl), arg(index), arg(meter), arg(flags)}, [&](Model &m) {
               if (pd_status s = check_meter_cell(tbl, index, meter)) return s;
               auto it = m.resources.meters.find({target.device_id, tbl, index});
               *meter = it == m.resources.meters.end() ? pd_meter_record{} : it->second;
               return kOk;
             });
}

pd_status pipe_mgr_meter_set_bytecount_adjust(pd_sess_hdl sess, pd_dev_target target,
                                              pd_tbl_hdl meter_hdl, int32_t adjust) {
  return run(Fn::pipe_mgr_meter_set_bytecount_adjust,
             {arg(sess), arg(target), arg(meter_hdl), arg(uint32_t(adjust))}, [&](Model &m) {
               const ResourceDesc *r = find_resource(meter_hdl, ResourceKind::Meter);
               if (r == nullptr || r->handle != meter_hdl) return ORBISK_MODEL_NO_SUCH_RESOURCE;
               m.resources.bytecount_adjust[{target.device_id, meter_hdl}] = adjust;
               return kOk;
             });
}

pd_status pipe_mgr_meter_get_bytecount_adjust(pd_sess_hdl sess, pd_dev_target target,
                                              pd_tbl_hdl meter_hdl, int32_t *adjust) {
  return run(Fn::pipe_mgr_meter_get_bytecount_adjust,
             {arg(sess), arg(target), arg(meter_hdl), arg(adjust)}, [&](Model &m) {
               const ResourceDesc *r = find_resource(meter_hdl, ResourceKind::Meter);
               if (r == nullptr || r->handle != meter_hdl) return ORBISK_MODEL_NO_SUCH_RESOURCE;
               if (adjust == nullptr) return ORBISK_MODEL_BAD_RECORD;
               auto it = m.resources.bytecount_adjust.find({target.device_id, meter_hdl});
               *adjust = it == m.resources.bytecount_adjust.end() ? 0 : it->second;
               return kOk;
             });
}

pd_status pipe_mgr_wred_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                uint32_t index, pd_wred_spec *wred, uint32_t flags) {
  Passing passed;
  passed.add("wred", wred, sizeof *wred);
  return run(Fn::pipe_mgr_wred_ent_set,
             {arg(sess), arg(target), arg(tbl), arg(index), arg(wred), arg(flags)}, passed,
             [&](Model &m) {
               if (pd_status s = check_meter_cell(tbl, index, wred)) return s;
               m.resources.wred[{target.device_id, tbl, index}] = *wred;
               return kOk;
             });
}

// ---------------------------------------------------------------- registers ---

pd_status pipe_stful_query_get_sizes(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                     int *num_pipes) {
  return run(Fn::pipe_stful_query_get_sizes, {arg(sess), arg(target), arg(tbl), arg(num_pipes)},
             [&](Model &) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               if (num_pipes == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *num_pipes = count;
               return kOk;
             });
}

pd_status pipe_stful_ent_query(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                               uint32_t index, pd_register_query *query, uint32_t flags) {
  return run(Fn::pipe_stful_ent_query,
             {arg(sess), arg(target), arg(tbl), arg(index), arg(query), arg(flags)}, [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               if (query == nullptr || query->count < int32_t(count) || query->data == nullptr) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               if (pd_status s = check_index(r, index)) return s;
               return fill_query(m, target, tbl, first, count, index, *query);
             });
}

pd_status pipe_stful_ent_query_range(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                     uint32_t first_index, uint32_t num_indices,
                                     pd_register_query *queries, uint32_t *num_read,
                                     uint32_t flags) {
  return run(Fn::pipe_stful_ent_query_range,
             {arg(sess), arg(target), arg(tbl), arg(first_index), arg(num_indices), arg(queries),
              arg(num_read), arg(flags)},
             [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               if (num_read == nullptr || (num_indices != 0 && queries == nullptr)) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               if (pd_status s = check_index(r, first_index)) return s;
               const uint32_t n = std::min(num_indices, r->size - first_index);
               for (uint32_t i = 0; i < n; ++i) {
                 if (queries[i].count < int32_t(count) || queries[i].data == nullptr) {
                   return ORBISK_MODEL_BAD_RECORD;
                 }
               }
               for (uint32_t i = 0; i < n; ++i) {
                 fill_query(m, target, tbl, first, count, first_index + i, queries[i]);
               }
               *num_read = n;
               return kOk;
             });
}

pd_status pipe_stful_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                             uint32_t index, pd_register_element *element, uint32_t flags) {
  Passing passed;
  passed.add("element", element, sizeof *element);
  return run(Fn::pipe_stful_ent_set,
             {arg(sess), arg(target), arg(tbl), arg(index), arg(element), arg(flags)}, passed,
             [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               if (element == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (pd_status s = check_index(r, index)) return s;
               for (uint16_t p = first; p < first + count; ++p) {
                 m.resources.registers[{target.device_id, tbl, p}].cells[index] = *element;
               }
               return kOk;
             });
}

pd_status pipe_stful_table_reset(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                 pd_register_element *element) {
  Passing passed;
  passed.add("element", element, sizeof *element);
  return run(Fn::pipe_stful_table_reset, {arg(sess), arg(target), arg(tbl), arg(element)}, passed,
             [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               for (uint16_t p = first; p < first + count; ++p) {
                 ResourceStore::RegisterPipe &pipe = m.resources.registers[{target.device_id, tbl, p}];
                 pipe.cells.clear();
                 pipe.fill = element != nullptr ? *element : pd_register_element{};
               }
               return kOk;
             });
}

pd_status pipe_stful_table_reset_range(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                       uint32_t first_index, uint32_t num_indices,
                                       uint32_t flags) {
  return run(Fn::pipe_stful_table_reset_range,
             {arg(sess), arg(target), arg(tbl), arg(first_index), arg(num_indices), arg(flags)},
             [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               if (first_index >= r->size || num_indices > r->size - first_index) {
                 return ORBISK_MODEL_INDEX_PAST_SIZE;
               }
               for (uint16_t p = first; p < first + count; ++p) {
                 auto &cells = m.resources.registers[{target.device_id, tbl, p}].cells;
                 for (uint32_t i = 0; i < num_indices; ++i) cells[first_index + i] = pd_register_element{};
               }
               return kOk;
             });
}

pd_status pipe_stful_database_sync(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                   pd_register_sync_cb callback, void *cookie) {
  return run(Fn::pipe_stful_database_sync,
             {arg(sess), arg(target), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               const ResourceDesc *r;
               uint16_t first, count;
               if (pd_status s = find_register(target, tbl, r, first, count)) return s;
               queue_sync(m, target.device_id, callback, cookie);
               return kOk;
             });
}

pd_status pipe_stful_direct_ent_query(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, pd_register_query *query,
                                      uint32_t flags) {
  return run(Fn::pipe_stful_direct_ent_query,
             {arg(sess), arg(device_id), arg(tbl), arg(entry_hdl), arg(query), arg(flags)},
             [&](Model &m) {
               Direct d;
               return find_direct(m, device_id, tbl, entry_hdl, ResourceKind::Register, d);
             });
}

pd_status pipe_stful_direct_database_sync(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                          pd_register_sync_cb callback, void *cookie) {
  return run(Fn::pipe_stful_direct_database_sync,
             {arg(sess), arg(device_id), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               Direct d;
               return find_direct(m, device_id, tbl, 0, ResourceKind::Register, d);
             });
}

// ---------------------------------------------------------------- controls ---

pd_status orbisk_model_wred_get(uint32_t device_id, pd_tbl_hdl tbl, uint32_t index,
                                pd_wred_spec *wred) {
  return in_frame([&](Model &m) {
    if (pd_status s = check_meter_cell(tbl, index, wred)) return s;
    auto it = m.resources.wred.find({device_id, tbl, index});
    *wred = it == m.resources.wred.end() ? pd_wred_spec{} : it->second;
    return kOk;
  });
}

pd_status orbisk_model_count_traffic(uint32_t device_id, pd_tbl_hdl tbl, uint32_t cell,
                                     uint64_t packets, uint64_t bytes) {
  return in_frame([&](Model &m) {
    const ResourceDesc *r = nullptr;
    if (find_indexed(tbl, ResourceKind::Counter, r) == kOk) {
      if (pd_status s = check_index(r, cell)) return s;
    } else {
      Direct d;
      if (pd_status s = find_direct(m, device_id, tbl, cell, ResourceKind::Counter, d)) return s;
      if (pd_status s = need_entry(d)) return s;
    }
    pd_counter_record &hw = m.resources.counters[{device_id, tbl, cell}].hw;
    hw.packets += packets;
    hw.bytes += bytes;
    return kOk;
  });
}

}  // extern "C"
