// The member-selection service: states that remember, per device, what each
// member and group of an action profile names, and their log and restore
// through cJSON documents.
#include <cjson/cJSON.h>

#include <algorithm>
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

// Each group's members, in the order they were added, as "mbrs" of the
// group's object in the "groups" list that log_map wrote.
void log_group_members(cJSON *obj, const pd_ms_state::Device *d) {
  if (d == nullptr) return;
  cJSON *list = cJSON_GetObjectItemCaseSensitive(obj, "groups");
  auto grp = d->groups.begin();
  for (cJSON *item = list->child; item != nullptr; item = item->next, ++grp) {
    cJSON *arr = cJSON_AddArrayToObject(item, "mbrs");
    auto it = d->group_members.find(grp->first);
    if (it == d->group_members.end()) continue;
    for (pd_mbr_hdl mbr : it->second) cJSON_AddItemToArray(arr, cJSON_CreateNumber(mbr));
  }
}

// Reads back the "mbrs" of each group (absent: none); each must be a member.
bool read_group_members(const cJSON *obj, pd_ms_state::Device &d) {
  const cJSON *list = cJSON_GetObjectItemCaseSensitive(obj, "groups");
  if (list == nullptr) return true;
  for (const cJSON *item = list->child; item != nullptr; item = item->next) {
    uint32_t grp = 0;
    read_handle(item, "grp", grp);  // read_map has checked it
    std::vector<pd_mbr_hdl> &mbrs = d.group_members[grp];
    const cJSON *arr = cJSON_GetObjectItemCaseSensitive(item, "mbrs");
    if (arr == nullptr) continue;
    if (!cJSON_IsArray(arr)) return false;
    for (const cJSON *n = arr->child; n != nullptr; n = n->next) {
      if (!cJSON_IsNumber(n)) return false;
      const double v = n->valuedouble;
      if (v < 0 || v > 4294967295.0 || std::floor(v) != v || !d.members.count(uint32_t(v))) {
        return false;
      }
      mbrs.push_back(uint32_t(v));
    }
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
               log_group_members(obj, d);
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
                   !read_map(obj, "groups", "grp", read.groups) ||
                   !read_group_members(obj, read)) {
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

// -------------------------------------------------------------- groups ---

pd_status p4_pd_ms_new_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_grp_hdl grp_hdl) {
  return run(Fn::p4_pd_ms_new_grp, {arg(sess), arg(state), arg(device_id), arg(grp_hdl)},
             [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               d->groups[grp_hdl] = 0;
               d->group_members[grp_hdl].clear();
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_del_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_grp_hdl grp_hdl, uint32_t num_mbrs, pd_mbr_hdl *mbr_hdls) {
  return run(Fn::p4_pd_ms_del_grp,
             {arg(sess), arg(state), arg(device_id), arg(grp_hdl), arg(num_mbrs), arg(mbr_hdls)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || (num_mbrs != 0 && mbr_hdls == nullptr)) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d->groups.erase(grp_hdl) == 0) return ORBISK_MODEL_NO_SUCH_GROUP;
               // The members given are unhooked; the group's list goes with it.
               d->group_members.erase(grp_hdl);
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_add_mbr_to_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                                  pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl) {
  return run(Fn::p4_pd_ms_add_mbr_to_grp,
             {arg(sess), arg(state), arg(device_id), arg(mbr_hdl), arg(grp_hdl)}, [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (!d->members.count(mbr_hdl)) return ORBISK_MODEL_NO_SUCH_MEMBER;
               if (!d->groups.count(grp_hdl)) return ORBISK_MODEL_NO_SUCH_GROUP;
               std::vector<pd_mbr_hdl> &list = d->group_members[grp_hdl];
               if (std::find(list.begin(), list.end(), mbr_hdl) != list.end()) {
                 return ORBISK_MODEL_MEMBER_IN_GROUP;
               }
               list.push_back(mbr_hdl);
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_del_mbr_from_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                                    pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl) {
  return run(Fn::p4_pd_ms_del_mbr_from_grp,
             {arg(sess), arg(state), arg(device_id), arg(mbr_hdl), arg(grp_hdl)}, [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               if (!d->groups.count(grp_hdl)) return ORBISK_MODEL_NO_SUCH_GROUP;
               std::vector<pd_mbr_hdl> &list = d->group_members[grp_hdl];
               auto it = std::find(list.begin(), list.end(), mbr_hdl);
               if (it == list.end()) return ORBISK_MODEL_NOT_IN_GROUP;
               list.erase(it);  // the group's action stays
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_get_grp_act(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               pd_act_fn_hdl *fn) {
  return run(Fn::p4_pd_ms_get_grp_act, {arg(state), arg(device_id), arg(grp_hdl), arg(fn)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || fn == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               auto it = d ? d->groups.find(grp_hdl) : decltype(d->groups.end()){};
               if (d == nullptr || it == d->groups.end()) return ORBISK_MODEL_NO_SUCH_GROUP;
               // A group that never had a member runs no action.
               if (it->second == 0) return ORBISK_MODEL_NO_SUCH_ACTION;
               *fn = it->second;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_set_grp_act(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               pd_act_fn_hdl fn) {
  return run(Fn::p4_pd_ms_set_grp_act, {arg(state), arg(device_id), arg(grp_hdl), arg(fn)},
             [&](Model &m) {
               pd_ms_state::Device *d = device_of(m, state, device_id);
               if (d == nullptr) return ORBISK_MODEL_BAD_RECORD;
               auto it = d->groups.find(grp_hdl);
               if (it == d->groups.end()) return ORBISK_MODEL_NO_SUCH_GROUP;
               it->second = fn;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_grp_get_res(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               uint32_t *count, pd_resource_index **resources) {
  return run(Fn::p4_pd_ms_grp_get_res,
             {arg(state), arg(device_id), arg(grp_hdl), arg(count), arg(resources)},
             [&](Model &m) {
               if (m.ms.find(state) == nullptr || count == nullptr || resources == nullptr) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               if (d == nullptr || !d->groups.count(grp_hdl)) return ORBISK_MODEL_NO_SUCH_GROUP;
               *count = 0;  // a group has the resources of its members: none here
               *resources = nullptr;
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_mbr_apply_to_grps(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                                     pd_ms_grp_fn fn, void *aux) {
  return run(Fn::p4_pd_ms_mbr_apply_to_grps,
             {arg(state), arg(device_id), arg(mbr_hdl), arg(fn), arg(aux)}, [&](Model &m) {
               if (m.ms.find(state) == nullptr || fn == nullptr) return ORBISK_MODEL_BAD_RECORD;
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               if (d == nullptr || !d->members.count(mbr_hdl)) return ORBISK_MODEL_NO_SUCH_MEMBER;
               // The function may call back in: it runs once the lock is released.
               for (const auto &[grp, list] : d->group_members) {
                 if (std::find(list.begin(), list.end(), mbr_hdl) == list.end()) continue;
                 m.notifications.push_back(
                     [fn, device_id, mbr_hdl, grp = grp, aux] { fn(device_id, mbr_hdl, grp, aux); });
               }
               return BF_SUCCESS;
             });
}

pd_status p4_pd_ms_grp_update_res(uint32_t device_id, pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl,
                                  void *aux) {
  return run(Fn::p4_pd_ms_grp_update_res, {arg(device_id), arg(mbr_hdl), arg(grp_hdl), arg(aux)},
             [&](Model &m) {
               auto *state = static_cast<pd_ms_state *>(aux);
               const pd_ms_state::Device *d = find_device(m, state, device_id);
               if (d == nullptr || !d->groups.count(grp_hdl)) return ORBISK_MODEL_NO_SUCH_GROUP;
               // Members carry no resources, so a group's list stays empty.
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
