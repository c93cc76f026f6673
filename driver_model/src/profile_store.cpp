// Action data and selector tables of the action profiles: members with their
// action and data, groups with their members, and the controls that look at
// them. Every check runs before anything is written, so a refused call
// changes nothing, out places included.
#include <algorithm>
#include <cstring>

#include "model.h"

namespace orbisk_model {

using orbisk::pd::kNumProfiles;
using orbisk::pd::kProfiles;
using orbisk::pd::ProfileDesc;

void ProfileStore::clear() { profiles.clear(); }

void ProfileStore::drop_device(uint32_t device_id) { erase_device(profiles, device_id); }

void ProfileStore::add_devices(std::set<uint32_t> &devices) const {
  for (const auto &[key, p] : profiles) devices.insert(key.first);
}

ProfileStore::Profile *ProfileStore::find(uint32_t device_id, const ProfileDesc &p) {
  auto it = profiles.find({device_id, p.adt_hdl});
  return it == profiles.end() ? nullptr : &it->second;
}

ProfileStore::Profile &ProfileStore::make(uint32_t device_id, const ProfileDesc &p) {
  return profiles[{device_id, p.adt_hdl}];
}

const ProfileDesc *profile_of_adt(pd_tbl_hdl adt) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (kProfiles[i].adt_hdl == adt) return &kProfiles[i];
  }
  return nullptr;
}

const ProfileDesc *profile_of_sel(pd_tbl_hdl sel) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (kProfiles[i].sel_hdl == sel) return &kProfiles[i];
  }
  return nullptr;
}

}  // namespace orbisk_model

using namespace orbisk_model;

namespace {

constexpr pd_status kOk = BF_SUCCESS;
constexpr pd_status kBad = ORBISK_MODEL_BAD_RECORD;

// The top byte of a handle: its profile's place among the profiles, from 1.
uint32_t handle_base(const ProfileDesc &p) { return uint32_t(&p - kProfiles + 1) << 24; }

const orbisk::pd::ActionDesc *action_of(const ProfileDesc &p, pd_act_fn_hdl fn) {
  for (uint16_t i = 0; i < p.num_actions; ++i) {
    if (p.actions[i].handle == fn) return p.actions[i].action;
  }
  return nullptr;
}

// A member's data: exactly the action's sizes, each parameter within its width.
pd_status check_member_data(const ProfileDesc &p, pd_act_fn_hdl fn, const pd_action_record *act) {
  if (act == nullptr) return kBad;
  const orbisk::pd::ActionDesc *a = action_of(p, fn);
  if (a == nullptr) return ORBISK_MODEL_NO_SUCH_ACTION;
  if (act->record_kind != PD_RECORD_KIND_MEMBER_DATA || act->resource_count != 0) return kBad;
  if (act->num_bytes != a->data_bytes || act->num_valid_bits != a->data_bits) return kBad;
  if (act->data_bytes == nullptr) return kBad;  // a valid place even for no data
  for (uint16_t i = 0; i < a->num_params; ++i) {
    const orbisk::pd::ParamDesc &q = a->params[i];
    const unsigned spare = q.bytes * 8u - q.bits;
    if (spare != 0 && (act->data_bytes[q.data_offset] >> (8 - spare)) != 0) return kBad;
  }
  return kOk;
}

void store_data(ProfileStore::Member &mbr, pd_act_fn_hdl fn, const pd_action_record &act) {
  mbr.fn = fn;
  mbr.bits = act.num_valid_bits;
  mbr.data.assign(act.data_bytes, act.data_bytes + act.num_bytes);
}

void member_updated(Model &m, uint32_t device_id, const ProfileStore::Profile &p, pd_tbl_hdl adt,
                    pd_mbr_hdl mbr, uint32_t type) {
  if (p.adt_cb == nullptr) return;
  m.notifications.push_back(
      [cb = p.adt_cb, cookie = p.adt_cookie, device_id, adt, mbr, type] {
        cb(device_id, adt, mbr, type, cookie);
      });
}

Passing passing(const pd_action_record *act) {
  Passing p;
  p.act(act);
  return p;
}

}  // namespace

// The walks and counts of the action data and selector tables, for the
// match tables' generic calls (model_tables.cpp): true with the handles in
// order when tbl is a profile's table.
namespace orbisk_model {

bool profile_handles(Model &m, uint32_t device_id, pd_tbl_hdl tbl, std::vector<uint32_t> &out) {
  const ProfileDesc *adt = profile_of_adt(tbl);
  const ProfileDesc *sel = adt ? nullptr : profile_of_sel(tbl);
  if (adt == nullptr && sel == nullptr) return false;
  const ProfileStore::Profile *p = m.profiles.find(device_id, adt ? *adt : *sel);
  if (p == nullptr) return true;
  if (adt) {
    for (const auto &kv : p->members) out.push_back(kv.first);
  } else {
    for (const auto &kv : p->groups) out.push_back(kv.first);
  }
  return true;
}

}  // namespace orbisk_model

extern "C" {

// ------------------------------------------------------------- members ---

pd_status pipe_mgr_adt_ent_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl adt,
                               pd_act_fn_hdl fn, uint32_t reserved, pd_action_record *act,
                               pd_mbr_hdl *mbr_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_adt_ent_add,
             {arg(sess), arg(target), arg(adt), arg(fn), arg(reserved), arg(act), arg(mbr_hdl),
              arg(flags)},
             passing(act), [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (mbr_hdl == nullptr) return kBad;
               if (pd_status s = check_member_data(*d, fn, act)) return s;
               ProfileStore::Profile &p = m.profiles.make(target.device_id, *d);
               if (p.next_mbr > 0xFFFFFF) return ORBISK_MODEL_TABLE_FULL;
               const pd_mbr_hdl hdl = handle_base(*d) | p.next_mbr++;
               store_data(p.members[hdl], fn, *act);
               *mbr_hdl = hdl;
               member_updated(m, target.device_id, p, adt, hdl, PD_PROFILE_UPDATE_ADD);
               return kOk;
             });
}

pd_status pipe_mgr_adt_ent_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                               pd_mbr_hdl mbr_hdl, pd_act_fn_hdl fn, pd_action_record *act,
                               uint32_t flags) {
  return run(Fn::pipe_mgr_adt_ent_set,
             {arg(sess), arg(device_id), arg(adt), arg(mbr_hdl), arg(fn), arg(act), arg(flags)},
             passing(act), [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (pd_status s = check_member_data(*d, fn, act)) return s;
               ProfileStore::Profile *p = m.profiles.find(device_id, *d);
               auto it = p ? p->members.find(mbr_hdl) : decltype(p->members.end()){};
               if (p == nullptr || it == p->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               store_data(it->second, fn, *act);
               member_updated(m, device_id, *p, adt, mbr_hdl, PD_PROFILE_UPDATE_MODIFY);
               return kOk;
             });
}

pd_status pipe_mgr_adt_ent_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                               pd_mbr_hdl mbr_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_adt_ent_del, {arg(sess), arg(device_id), arg(adt), arg(mbr_hdl), arg(flags)},
             [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               ProfileStore::Profile *p = m.profiles.find(device_id, *d);
               auto it = p ? p->members.find(mbr_hdl) : decltype(p->members.end()){};
               if (p == nullptr || it == p->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               if (!it->second.groups.empty() || p->fallback == mbr_hdl) {
                 return ORBISK_MODEL_MEMBER_IN_USE;
               }
               p->members.erase(it);
               member_updated(m, device_id, *p, adt, mbr_hdl, PD_PROFILE_UPDATE_DELETE);
               return kOk;
             });
}

pd_status pipe_mgr_get_action_data_entry(pd_tbl_hdl adt, pd_dev_target target, pd_mbr_hdl mbr_hdl,
                                         pd_action_record *act, pd_act_fn_hdl *fn,
                                         uint8_t read_from_hw) {
  return run(Fn::pipe_mgr_get_action_data_entry,
             {arg(adt), arg(target), arg(mbr_hdl), arg(act), arg(fn), arg(read_from_hw)},
             [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (act == nullptr || fn == nullptr) return kBad;
               ProfileStore::Profile *p = m.profiles.find(target.device_id, *d);
               auto it = p ? p->members.find(mbr_hdl) : decltype(p->members.end()){};
               if (p == nullptr || it == p->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               const ProfileStore::Member &mbr = it->second;
               if (mbr.data.size() > act->num_bytes) return kBad;
               if (!mbr.data.empty() && act->data_bytes == nullptr) return kBad;
               if (!mbr.data.empty()) std::memcpy(act->data_bytes, mbr.data.data(), mbr.data.size());
               act->num_bytes = uint16_t(mbr.data.size());
               act->num_valid_bits = mbr.bits;
               *fn = mbr.fn;
               // A pending quirk bends this read as it would an entry's.
               if (m.tables.quirk_fn >= 0) *fn = pd_act_fn_hdl(m.tables.quirk_fn);
               m.tables.quirk_kind = -1;
               m.tables.quirk_fn = -1;
               return kOk;
             });
}

pd_status pipe_register_adt_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                                      pd_adt_update_cb callback, void *cookie) {
  return run(Fn::pipe_register_adt_update_cb,
             {arg(sess), arg(device_id), arg(adt), arg(callback), arg(cookie)}, [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               ProfileStore::Profile &p = m.profiles.make(device_id, *d);
               p.adt_cb = callback;
               p.adt_cookie = cookie;
               return kOk;
             });
}

// ------------------------------------------------------------ controls ---

size_t orbisk_model_member_count(uint32_t device_id, pd_tbl_hdl adt) {
  return in_frame([&](Model &m) -> size_t {
    const ProfileDesc *d = profile_of_adt(adt);
    const ProfileStore::Profile *p = d ? m.profiles.find(device_id, *d) : nullptr;
    return p ? p->members.size() : 0;
  });
}

}  // extern "C"
