// The member-selection service: states that remember, per device, what each
// member and group of an action profile names, and their log and restore
// through cJSON documents.
#include <cjson/cJSON.h>

#include <cmath>

#include "model.h"

namespace orbisk_model {

void MsStore::clear() {
  for (auto &[ptr, state] : states_) state->devices.clear();
}

pd_ms_state *MsStore::make() {
  auto state = std::make_unique<pd_ms_state>();
  pd_ms_state *made = state.get();
  states_.emplace(made, std::move(state));
  return made;
}

}  // namespace orbisk_model

using namespace orbisk_model;

namespace {

using HandleMap = std::map<uint32_t, pd_act_fn_hdl>;

void log_map(cJSON *obj, const char *list_name, const char *hdl_name, const HandleMap *map) {
  cJSON *list = cJSON_AddArrayToObject(obj, list_name);
  if (map == nullptr) return;
  for (const auto &[hdl, act] : *map) {
    cJSON *item = cJSON_CreateObject();
    cJSON_AddNumberToObject(item, hdl_name, hdl);
    cJSON_AddNumberToObject(item, "act", act);
    cJSON_AddItemToArray(list, item);
  }
}

bool read_handle(const cJSON *item, const char *name, uint32_t &out) {
  const cJSON *n = cJSON_GetObjectItemCaseSensitive(item, name);
  if (!cJSON_IsNumber(n)) return false;
  double v = n->valuedouble;
  if (v < 0 || v > 4294967295.0 || std::floor(v) != v) return false;
  out = uint32_t(v);
  return true;
}

// Reads one list of the document; an absent list is empty.
bool read_map(const cJSON *obj, const char *list_name, const char *hdl_name, HandleMap &out) {
  const cJSON *list = cJSON_GetObjectItemCaseSensitive(obj, list_name);
  if (list == nullptr) return true;
  if (!cJSON_IsArray(list)) return false;
  for (const cJSON *item = list->child; item != nullptr; item = item->next) {
    uint32_t hdl = 0;
    uint32_t act = 0;
    if (!read_handle(item, hdl_name, hdl) || !read_handle(item, "act", act)) return false;
    out[hdl] = act;
  }
  return true;
}

pd_ms_state::Device *device_of(Model &m, pd_ms_state *state, uint32_t device_id) {
  pd_ms_state *s = m.ms.find(state);
  return s == nullptr ? nullptr : &s->devices[device_id];
}

const pd_ms_state::Device *find_device(Model &m, pd_ms_state *state, uint32_t device_id) {
  pd_ms_state *s = m.ms.find(state);
  if (s == nullptr) return nullptr;
  auto it = s->devices.find(device_id);
  return it == s->devices.end() ? nullptr : &it->second;
}

}  // namespace

extern "C" {

pd_status p4_pd_ms_init(void) {
  return run(Fn::p4_pd_ms_init, {}, [](Model &) { return BF_SUCCESS; });
}

pd_ms_state *p4_pd_ms_init_state(void) {
  pd_ms_state *made = nullptr;
  run(Fn::p4_pd_ms_init_state, {}, [&](Model &m) {
    made = m.ms.make();
    return BF_SUCCESS;
  });
  return made;
}

pd_status p4_pd_ms_destroy_state_for_dev(pd_ms_state *state, uint32_t device_id) {
  return run(Fn::p4_pd_ms_destroy_state_for_dev, {arg(state), arg(device_id)}, [&](Model &m) {
    pd_ms_state *s = m.ms.find(state);
    if (s == nullptr) return ORBISK_MODEL_BAD_RECORD;
    s->devices.erase(device_id);
    return BF_SUCCESS;
  });
}

pd_status p4_pd_ms_destroy_txn_state_for_dev(uint32_t device_id) {
  // Nothing is kept per transaction.
  return run(Fn::p4_pd_ms_destroy_txn_state_for_dev, {arg(device_id)},
             [](Model &) { return BF_SUCCESS; });
}

pd_status p4_pd_ms_log_state(uint32_t device_id, pd_ms_state *state, void *cjson_object) {
  return run(Fn::p4_pd_ms_log_state, {arg(device_id), arg(state), arg(cjson_object)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || cjson_object == nullptr) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               auto *obj = static_cast<cJSON *>(cjson_object);
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               log_map(obj, "members", "mbr", d ? &d->members : nullptr);
               log_map(obj, "groups", "grp", d ? &d->groups : nullptr);
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_restore_state(uint32_t device_id, pd_ms_state *state, void *cjson_object) {
  return run(Fn::p4_pd_ms_restore_state, {arg(device_id), arg(state), arg(cjson_object)},
             [&](Model &m) {
               pd_ms_state *s = m.ms.find(state);
               if (s == nullptr || cjson_object == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const auto *obj = static_cast<const cJSON *>(cjson_object);
               pd_ms_state::Device read;
               if (!read_map(obj, "members", "mbr", read.members) ||
                   !read_map(obj, "groups", "grp", read.groups)) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               s->devices[device_id] = std::move(read);
               return BF_SUCCESS;
             });
}

// ------------------------------------------------------------- members ---

pd_status p4_pd_ms_new_mbr(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_mbr_hdl mbr_hdl) {
  return run(Fn::p4_pd_ms_new_mbr, {arg(sess), arg(state), arg(device_id), arg(mbr_hdl)},
             [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               d->members[mbr_hdl] = 0;  // no action until one is set
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_set_mbr_act(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               pd_act_fn_hdl fn) {
  return run(Fn::p4_pd_ms_set_mbr_act, {arg(state), arg(device_id), arg(mbr_hdl), arg(fn)},
             [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               auto it = d->members.find(mbr_hdl);
               if (it == d->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               it->second = fn;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_get_mbr_act(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               pd_act_fn_hdl *fn) {
  return run(Fn::p4_pd_ms_get_mbr_act, {arg(state), arg(device_id), arg(mbr_hdl), arg(fn)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || fn == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               auto it = d ? d->members.find(mbr_hdl) : decltype(d->members.end()){};
               if (d == nullptr || it == d->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               *fn = it->second;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_del_mbr(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_mbr_hdl mbr_hdl) {
  return run(Fn::p4_pd_ms_del_mbr, {arg(sess), arg(state), arg(device_id), arg(mbr_hdl)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr) return ORBISK_MODEL_BAD_RECORD;
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d->members.erase(mbr_hdl) == 0) return ORBISK_MODEL_NO_SUCH_MEMBER;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_mbr_get_res(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               uint32_t *count, pd_resource_index **resources) {
  return run(Fn::p4_pd_ms_mbr_get_res,
             {arg(state), arg(device_id), arg(mbr_hdl), arg(count), arg(resources)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || count == nullptr || resources == nullptr) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               if (d == nullptr || !d->members.count(mbr_hdl)) return ORBISK_MODEL_NO_SUCH_MEMBER;
               // No member of this program's profiles carries a resource.
               *count = 0;
               *resources = nullptr;
               return BF_SUCCESS;
             });
}

// ---------------------------------------------------- test accessors ---

pd_status orbisk_model_ms_set_member(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr,
                                     pd_act_fn_hdl act) {
  return in_frame([&](Model &m) {
    pd_ms_state::Device *d = device_of(m, state, device_id);
    if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
    d->members[mbr] = act;
    return BF_SUCCESS;
  });
}

pd_status orbisk_model_ms_set_group(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp,
                                    pd_act_fn_hdl act) {
  return in_frame([&](Model &m) {
    pd_ms_state::Device *d = device_of(m, state, device_id);
    if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
    d->groups[grp] = act;
    return BF_SUCCESS;
  });
}

size_t orbisk_model_ms_member_count(pd_ms_state *state, uint32_t device_id) {
  return in_frame([&](Model &m) -> size_t {
    const pd_ms_state::Device *d = find_device(m, state, device_id);
    return d ? d->members.size() : 0;
  });
}

size_t orbisk_model_ms_group_count(pd_ms_state *state, uint32_t device_id) {
  return in_frame([&](Model &m) -> size_t {
    const pd_ms_state::Device *d = find_device(m, state, device_id);
    return d ? d->groups.size() : 0;
  });
}

pd_act_fn_hdl orbisk_model_ms_member_action(pd_ms_state *state, uint32_t device_id,
                                            pd_mbr_hdl mbr) {
  return in_frame([&](Model &m) -> pd_act_fn_hdl {
    const pd_ms_state::Device *d = find_device(m, state, device_id);
    if (d == nullptr) return ORBISK_MODEL_NO_HANDLE;
    auto it = d->members.find(mbr);
    return it == d->members.end() ? ORBISK_MODEL_NO_HANDLE : it->second;
  });
}

}  // extern "C"
