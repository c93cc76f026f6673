// Parser value sets: per device and set, the entries with their scope, and
// the properties.
#include "descriptors.h"
#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_value_set;

namespace {

constexpr uint32_t kAllPipes = 0xFFFF;
constexpr uint32_t kAllParsers = 0xFF;

bool in_scope(const ValueSetStore::Entry &e, uint32_t gress, uint32_t pipe, uint32_t parser) {
  return e.gress == gress && (e.pipe == pipe || e.pipe == kAllPipes || pipe == kAllPipes) &&
         (e.parser == parser || e.parser == kAllParsers || parser == kAllParsers);
}

// The set of a device for a read: null when it holds nothing yet.
const ValueSetStore::Set *find(Model &m, uint32_t dev, uint32_t pvs) {
  auto it = m.value_sets.sets.find({dev, pvs});
  return it == m.value_sets.sets.end() ? nullptr : &it->second;
}

const ValueSetStore::Entry *entry(Model &m, uint32_t dev, uint32_t pvs, pd_entry_hdl hdl) {
  const ValueSetStore::Set *set = find(m, dev, pvs);
  if (set == nullptr) return nullptr;
  auto it = set->entries.find(hdl);
  return it == set->entries.end() ? nullptr : &it->second;
}

// The first entry of a scope with this key and mask, or 0.
pd_entry_hdl lookup(Model &m, uint32_t dev, uint32_t pvs, uint32_t gress, uint32_t pipe,
                    uint32_t parser, uint32_t key, uint32_t mask) {
  const ValueSetStore::Set *set = find(m, dev, pvs);
  if (set == nullptr) return 0;
  for (const auto &[hdl, e] : set->entries) {
    if (e.key == key && e.mask == mask && in_scope(e, gress, pipe, parser)) return hdl;
  }
  return 0;
}

}  // namespace

extern "C" {

pd_status pipe_mgr_pvs_set_property(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    uint32_t property, uint32_t value,
                                    pd_pvs_property_args args) {
  Passing passed;
  passed.add("args", &args, sizeof args);
  return run(Fn::pipe_mgr_pvs_set_property,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(property), arg(value), 0}, passed,
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               m.value_sets.sets[{device_id, pvs_hdl}].properties[property] = {value, args};
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_get_property(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    uint32_t property, uint32_t *value,
                                    pd_pvs_property_args args) {
  Passing passed;
  passed.add("args", &args, sizeof args);
  return run(Fn::pipe_mgr_pvs_get_property,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(property), arg(value), 0}, passed,
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (value == nullptr) return ORBISK_MODEL_BAD_RECORD;
               uint32_t v = 0;  // never set
               if (const ValueSetStore::Set *set = find(m, device_id, pvs_hdl)) {
                 auto it = set->properties.find(property);
                 if (it != set->properties.end()) v = it->second.first;
               }
               *value = v;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_add(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                 uint32_t gress, uint32_t pipe, uint32_t parser, uint32_t key,
                                 uint32_t mask, pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_pvs_entry_add,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(gress), arg(pipe), arg(parser), arg(key),
              arg(mask), arg(entry_hdl)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (entry_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (lookup(m, device_id, pvs_hdl, gress, pipe, parser, key, mask) != 0) {
                 return ORBISK_MODEL_ENTRY_EXISTS;
               }
               ValueSetStore::Set &set = m.value_sets.sets[{device_id, pvs_hdl}];
               const pd_entry_hdl hdl = set.next++;
               set.entries[hdl] = {gress, pipe, parser, key, mask};
               *entry_hdl = hdl;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_modify(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    pd_entry_hdl entry_hdl, uint32_t key, uint32_t mask) {
  return run(Fn::pipe_mgr_pvs_entry_modify,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(entry_hdl), arg(key), arg(mask)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               const ValueSetStore::Entry *e = entry(m, device_id, pvs_hdl, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               const pd_entry_hdl same =
                   lookup(m, device_id, pvs_hdl, e->gress, e->pipe, e->parser, key, mask);
               if (same != 0 && same != entry_hdl) return ORBISK_MODEL_ENTRY_EXISTS;
               auto &stored = m.value_sets.sets[{device_id, pvs_hdl}].entries[entry_hdl];
               stored.key = key;
               stored.mask = mask;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_delete(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    pd_entry_hdl entry_hdl) {
  return run(Fn::pipe_mgr_pvs_entry_delete,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(entry_hdl)}, [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (entry(m, device_id, pvs_hdl, entry_hdl) == nullptr) {
                 return ORBISK_MODEL_NO_SUCH_ENTRY;
               }
               m.value_sets.sets[{device_id, pvs_hdl}].entries.erase(entry_hdl);
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_get(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                 pd_entry_hdl entry_hdl, uint32_t *key, uint32_t *mask,
                                 uint32_t *gress, uint32_t *pipe, uint32_t *parser) {
  return run(Fn::pipe_mgr_pvs_entry_get,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(entry_hdl), arg(key), arg(mask),
              arg(gress), arg(pipe), arg(parser)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (key == nullptr || mask == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const ValueSetStore::Entry *e = entry(m, device_id, pvs_hdl, entry_hdl);
               if (e == nullptr) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *key = e->key;
               *mask = e->mask;
               if (gress) *gress = e->gress;
               if (pipe) *pipe = e->pipe;
               if (parser) *parser = e->parser;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_handle_get(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                        uint32_t gress, uint32_t pipe, uint32_t parser,
                                        uint32_t key, uint32_t mask, pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_pvs_entry_handle_get,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(gress), arg(pipe), arg(parser), arg(key),
              arg(mask), arg(entry_hdl)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (entry_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const pd_entry_hdl h = lookup(m, device_id, pvs_hdl, gress, pipe, parser, key, mask);
               if (h == 0) return ORBISK_MODEL_NO_SUCH_ENTRY;
               *entry_hdl = h;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_get_first(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                       uint32_t gress, uint32_t pipe, uint32_t parser,
                                       pd_entry_hdl *entry_hdl) {
  return run(Fn::pipe_mgr_pvs_entry_get_first,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(gress), arg(pipe), arg(parser),
              arg(entry_hdl)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (entry_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (const ValueSetStore::Set *set = find(m, device_id, pvs_hdl)) {
                 for (const auto &[hdl, e] : set->entries) {
                   if (!in_scope(e, gress, pipe, parser)) continue;
                   *entry_hdl = hdl;
                   return BF_SUCCESS;
                 }
               }
               return ORBISK_MODEL_NO_SUCH_ENTRY;
             });
}

pd_status pipe_mgr_pvs_entry_get_next(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                      uint32_t gress, uint32_t pipe, uint32_t parser,
                                      pd_entry_hdl entry_hdl, uint32_t count,
                                      pd_entry_hdl *next_hdls) {
  return run(Fn::pipe_mgr_pvs_entry_get_next,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(gress), arg(pipe), arg(parser),
              arg(entry_hdl), arg(count), arg(next_hdls)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (count != 0 && next_hdls == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const ValueSetStore::Set *set = find(m, device_id, pvs_hdl);
               if (set == nullptr || set->entries.count(entry_hdl) == 0) {
                 return ORBISK_MODEL_NO_SUCH_ENTRY;
               }
               uint32_t n = 0;
               for (auto it = set->entries.upper_bound(entry_hdl);
                    it != set->entries.end() && n < count; ++it) {
                 if (in_scope(it->second, gress, pipe, parser)) next_hdls[n++] = it->first;
               }
               for (; n < count; ++n) next_hdls[n] = ORBISK_MODEL_NO_HANDLE;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_pvs_entry_get_count(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                       uint32_t gress, uint32_t pipe, uint32_t parser,
                                       uint32_t read_from_hw, uint32_t *count) {
  return run(Fn::pipe_mgr_pvs_entry_get_count,
             {arg(sess), arg(device_id), arg(pvs_hdl), arg(gress), arg(pipe), arg(parser),
              arg(read_from_hw), arg(count)},
             [&](Model &m) {
               if (find_value_set(pvs_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_VALUE_SET;
               if (count == nullptr) return ORBISK_MODEL_BAD_RECORD;
               uint32_t n = 0;
               if (const ValueSetStore::Set *set = find(m, device_id, pvs_hdl)) {
                 for (const auto &kv : set->entries) n += in_scope(kv.second, gress, pipe, parser);
               }
               *count = n;
               return BF_SUCCESS;
             });
}

}  // extern "C"
