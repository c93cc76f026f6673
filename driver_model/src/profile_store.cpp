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

// A group and the place of a member in it; null group when unknown.
struct GroupAt {
  ProfileStore::Profile *p = nullptr;
  ProfileStore::Group *g = nullptr;
  std::vector<ProfileStore::GroupMember>::iterator mbr;
  bool has_member() const { return g != nullptr && mbr != g->members.end(); }
};

GroupAt group_at(Model &m, uint32_t device_id, const ProfileDesc &d, pd_grp_hdl grp,
                 pd_mbr_hdl mbr = 0) {
  GroupAt at;
  at.p = m.profiles.find(device_id, d);
  if (at.p == nullptr) return at;
  auto it = at.p->groups.find(grp);
  if (it == at.p->groups.end()) return at;
  at.g = &it->second;
  at.mbr = std::find_if(at.g->members.begin(), at.g->members.end(),
                        [&](const ProfileStore::GroupMember &x) { return x.mbr == mbr; });
  return at;
}

void group_updated(Model &m, uint32_t device_id, const ProfileStore::Profile &p, pd_tbl_hdl sel,
                   pd_grp_hdl grp, pd_mbr_hdl mbr, uint32_t type) {
  if (p.sel_update_cb == nullptr) return;
  m.notifications.push_back(
      [cb = p.sel_update_cb, cookie = p.sel_update_cookie, device_id, sel, grp, mbr, type] {
        cb(device_id, sel, grp, mbr, type, cookie);
      });
}

// The group a word of the selector table stands for: word w is the group
// made (w + 1)-th on the device, whatever became of the others.
pd_grp_hdl group_of_word(const ProfileDesc &d, uint32_t word_index) {
  return word_index >= 0xFFFFFF ? 0 : handle_base(d) | (word_index + 1);
}

// Whether an entry of the profile's match table names this group (or member).
bool group_named(Model &m, uint32_t device_id, const ProfileDesc &d, pd_grp_hdl grp) {
  return m.tables.names_ref(device_id, orbisk::pd::kTables[d.table_index], PD_RECORD_KIND_GROUP_REF, grp);
}
bool member_named(Model &m, uint32_t device_id, const ProfileDesc &d, pd_mbr_hdl mbr) {
  return m.tables.names_ref(device_id, orbisk::pd::kTables[d.table_index], PD_RECORD_KIND_MEMBER_REF, mbr);
}

// The member a hash picks: FNV-1a over the bytes, modulo the number of
// enabled members, in the order they were added; the fallback member when
// none is enabled.
pd_mbr_hdl pick(const ProfileStore::Profile &p, const ProfileStore::Group &g, const uint8_t *hash,
                uint32_t len) {
  uint32_t h = 2166136261u;
  for (uint32_t i = 0; i < len; ++i) h = (h ^ hash[i]) * 16777619u;
  std::vector<pd_mbr_hdl> on;
  for (const auto &x : g.members) {
    if (x.enabled) on.push_back(x.mbr);
  }
  return on.empty() ? p.fallback : on[h % on.size()];
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

pd_status check_ref(Model &m, uint32_t device_id, const orbisk::pd::TableDesc &t, pd_act_fn_hdl fn,
                    const pd_action_record &act) {
  const bool mbr = act.record_kind == PD_RECORD_KIND_MEMBER_REF;
  if (!t.indirect() || (!mbr && act.record_kind != PD_RECORD_KIND_GROUP_REF)) return kOk;
  const ProfileDesc &d = *t.profile;
  if (action_of(d, fn) == nullptr) return ORBISK_MODEL_NO_SUCH_ACTION;
  const ProfileStore::Profile *p = m.profiles.find(device_id, d);
  if (mbr && (p == nullptr || !p->members.count(act.member_hdl))) return ORBISK_MODEL_NO_SUCH_MEMBER;
  if (!mbr && (p == nullptr || !p->groups.count(act.group_hdl))) return ORBISK_MODEL_NO_SUCH_GROUP;
  return kOk;
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
               if (!it->second.groups.empty() || p->fallback == mbr_hdl ||
                   member_named(m, device_id, *d, mbr_hdl)) {
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

// ------------------------------------------------------------- selectors ---

#define SEL_OR_FAIL()                                 \
  const ProfileDesc *d = profile_of_sel(sel);         \
  if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE

pd_status pipe_mgr_sel_grp_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl sel,
                               uint32_t reserved, uint32_t max_size, uint32_t cookie,
                               pd_grp_hdl *grp_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_sel_grp_add,
             {arg(sess), arg(target), arg(sel), arg(reserved), arg(max_size), arg(cookie),
              arg(grp_hdl), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (grp_hdl == nullptr || max_size == 0) return kBad;
               ProfileStore::Profile &p = m.profiles.make(target.device_id, *d);
               if (p.next_grp > 0xFFFFFF) return ORBISK_MODEL_TABLE_FULL;
               const pd_grp_hdl hdl = handle_base(*d) | p.next_grp++;
               p.groups[hdl].max_size = max_size;
               *grp_hdl = hdl;
               group_updated(m, target.device_id, p, sel, hdl, 0, PD_PROFILE_UPDATE_ADD);
               return kOk;
             });
}

pd_status pipe_mgr_sel_grp_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                               pd_grp_hdl grp_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_sel_grp_del, {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               GroupAt at = group_at(m, device_id, *d, grp_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (group_named(m, device_id, *d, grp_hdl)) return ORBISK_MODEL_GROUP_IN_USE;
               for (const auto &x : at.g->members) at.p->members[x.mbr].groups.erase(grp_hdl);
               at.p->groups.erase(grp_hdl);
               group_updated(m, device_id, *at.p, sel, grp_hdl, 0, PD_PROFILE_UPDATE_DELETE);
               return kOk;
             });
}

pd_status pipe_mgr_sel_grp_mbr_add(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                   pd_grp_hdl grp_hdl, pd_act_fn_hdl fn, pd_mbr_hdl mbr_hdl,
                                   uint32_t flags) {
  return run(Fn::pipe_mgr_sel_grp_mbr_add,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(fn), arg(mbr_hdl), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               GroupAt at = group_at(m, device_id, *d, grp_hdl, mbr_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               auto mbr = at.p->members.find(mbr_hdl);
               if (mbr == at.p->members.end()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               if (mbr->second.fn != fn) return ORBISK_MODEL_NO_SUCH_ACTION;
               if (at.has_member()) return ORBISK_MODEL_MEMBER_IN_GROUP;
               if (at.g->members.size() >= at.g->max_size) return ORBISK_MODEL_GROUP_FULL;
               at.g->members.push_back({mbr_hdl, true});
               mbr->second.groups.insert(grp_hdl);
               group_updated(m, device_id, *at.p, sel, grp_hdl, mbr_hdl, PD_PROFILE_UPDATE_ADD);
               return kOk;
             });
}

pd_status pipe_mgr_sel_grp_mbr_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                   pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_sel_grp_mbr_del,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(mbr_hdl), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               GroupAt at = group_at(m, device_id, *d, grp_hdl, mbr_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (!at.has_member()) return ORBISK_MODEL_NOT_IN_GROUP;
               at.g->members.erase(at.mbr);
               at.p->members[mbr_hdl].groups.erase(grp_hdl);
               group_updated(m, device_id, *at.p, sel, grp_hdl, mbr_hdl, PD_PROFILE_UPDATE_DELETE);
               return kOk;
             });
}

namespace {

pd_status set_enabled(Fn fn, pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel, pd_grp_hdl grp_hdl,
                      pd_mbr_hdl mbr_hdl, uint32_t flags, bool enabled) {
  return run(fn, {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(mbr_hdl), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               GroupAt at = group_at(m, device_id, *d, grp_hdl, mbr_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (!at.has_member()) return ORBISK_MODEL_NOT_IN_GROUP;
               at.mbr->enabled = enabled;
               if (at.p->sel_cb != nullptr) {
                 m.notifications.push_back([cb = at.p->sel_cb, cookie = at.p->sel_cookie, device_id,
                                            sel, grp_hdl, mbr_hdl, enabled] {
                   cb(device_id, sel, grp_hdl, mbr_hdl, enabled ? 1 : 0, cookie);
                 });
               }
               return kOk;
             });
}

}  // namespace

pd_status pipe_mgr_sel_grp_mbr_enable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                      pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags) {
  return set_enabled(Fn::pipe_mgr_sel_grp_mbr_enable, sess, device_id, sel, grp_hdl, mbr_hdl, flags,
                     true);
}

pd_status pipe_mgr_sel_grp_mbr_disable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                       pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags) {
  return set_enabled(Fn::pipe_mgr_sel_grp_mbr_disable, sess, device_id, sel, grp_hdl, mbr_hdl,
                     flags, false);
}

pd_status pipe_mgr_sel_grp_mbr_state_get(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                         pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl,
                                         uint32_t *mbr_state) {
  return run(Fn::pipe_mgr_sel_grp_mbr_state_get,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(mbr_hdl), arg(mbr_state)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (mbr_state == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, grp_hdl, mbr_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (!at.has_member()) return ORBISK_MODEL_NOT_IN_GROUP;
               *mbr_state = at.mbr->enabled ? P4_PD_GRP_MBR_STATE_ACTIVE : P4_PD_GRP_MBR_STATE_INACTIVE;
               return kOk;
             });
}

pd_status pipe_mgr_sel_grp_mbr_get_from_hash(pd_sess_hdl sess, uint32_t device_id,
                                             pd_tbl_hdl sel, pd_grp_hdl grp_hdl,
                                             uint8_t *hash, uint32_t hash_len,
                                             pd_mbr_hdl *mbr_hdl) {
  return run(Fn::pipe_mgr_sel_grp_mbr_get_from_hash,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(hash), arg(hash_len),
              arg(mbr_hdl)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (mbr_hdl == nullptr || (hash == nullptr && hash_len != 0)) return kBad;
               GroupAt at = group_at(m, device_id, *d, grp_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               const pd_mbr_hdl got = pick(*at.p, *at.g, hash, hash_len);
               if (got == 0) return ORBISK_MODEL_NO_SUCH_MEMBER;
               *mbr_hdl = got;
               return kOk;
             });
}

pd_status pipe_mgr_sel_fallback_mbr_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                        pd_mbr_hdl mbr_hdl, uint32_t flags) {
  return run(Fn::pipe_mgr_sel_fallback_mbr_set,
             {arg(sess), arg(device_id), arg(sel), arg(mbr_hdl), arg(flags)}, [&](Model &m) {
               SEL_OR_FAIL();
               ProfileStore::Profile *p = m.profiles.find(device_id, *d);
               if (p == nullptr || !p->members.count(mbr_hdl)) return ORBISK_MODEL_NO_SUCH_MEMBER;
               p->fallback = mbr_hdl;
               return kOk;
             });
}

pd_status pipe_mgr_sel_fallback_mbr_reset(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                          uint32_t flags) {
  return run(Fn::pipe_mgr_sel_fallback_mbr_reset, {arg(sess), arg(device_id), arg(sel), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (ProfileStore::Profile *p = m.profiles.find(device_id, *d)) p->fallback = 0;
               return kOk;
             });
}

pd_status pipe_mgr_get_sel_grp_mbr_count(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                         pd_grp_hdl grp_hdl, uint32_t *count) {
  return run(Fn::pipe_mgr_get_sel_grp_mbr_count,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(count)}, [&](Model &m) {
               SEL_OR_FAIL();
               if (count == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, grp_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               *count = uint32_t(at.g->members.size());
               return kOk;
             });
}

pd_status pipe_mgr_sel_grp_mbrs_get(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                    pd_grp_hdl grp_hdl, uint32_t capacity, pd_mbr_hdl *mbr_hdls,
                                    uint8_t *mbr_states, uint32_t *written, uint32_t flags) {
  return run(Fn::pipe_mgr_sel_grp_mbrs_get,
             {arg(sess), arg(device_id), arg(sel), arg(grp_hdl), arg(capacity), arg(mbr_hdls),
              arg(mbr_states), arg(written), arg(flags)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (written == nullptr || (capacity != 0 && (mbr_hdls == nullptr || mbr_states == nullptr))) {
                 return kBad;
               }
               GroupAt at = group_at(m, device_id, *d, grp_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               const uint32_t n = std::min<uint32_t>(capacity, uint32_t(at.g->members.size()));
               for (uint32_t i = 0; i < n; ++i) {
                 mbr_hdls[i] = at.g->members[i].mbr;
                 mbr_states[i] = at.g->members[i].enabled ? 0 : 1;
               }
               *written = n;
               return kOk;
             });
}

pd_status pipe_mgr_get_first_group_member(pd_sess_hdl sess, pd_tbl_hdl sel, uint32_t device_id,
                                          pd_grp_hdl grp_hdl, pd_mbr_hdl *mbr_hdl) {
  return run(Fn::pipe_mgr_get_first_group_member,
             {arg(sess), arg(sel), arg(device_id), arg(grp_hdl), arg(mbr_hdl)}, [&](Model &m) {
               SEL_OR_FAIL();
               if (mbr_hdl == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, grp_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (at.g->members.empty()) return ORBISK_MODEL_NO_SUCH_MEMBER;
               *mbr_hdl = at.g->members.front().mbr;
               return kOk;
             });
}

pd_status pipe_mgr_get_next_group_members(pd_sess_hdl sess, pd_tbl_hdl sel, uint32_t device_id,
                                          pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t count,
                                          pd_mbr_hdl *next_mbr_hdls) {
  return run(Fn::pipe_mgr_get_next_group_members,
             {arg(sess), arg(sel), arg(device_id), arg(grp_hdl), arg(mbr_hdl), arg(count),
              arg(next_mbr_hdls)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (count != 0 && next_mbr_hdls == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, grp_hdl, mbr_hdl);
               if (at.g == nullptr) return ORBISK_MODEL_NO_SUCH_GROUP;
               if (!at.has_member()) return ORBISK_MODEL_NOT_IN_GROUP;
               auto it = at.mbr;
               for (uint32_t i = 0; i < count; ++i) {
                 if (it != at.g->members.end()) ++it;
                 next_mbr_hdls[i] = it != at.g->members.end() ? it->mbr : ORBISK_MODEL_NO_HANDLE;
               }
               return kOk;
             });
}

pd_status pipe_mgr_get_word_llp_active_member_count(pd_sess_hdl sess, uint32_t device_id,
                                                    pd_tbl_hdl sel, uint32_t word_index,
                                                    uint32_t *count) {
  return run(Fn::pipe_mgr_get_word_llp_active_member_count,
             {arg(sess), arg(device_id), arg(sel), arg(word_index), arg(count)}, [&](Model &m) {
               SEL_OR_FAIL();
               if (count == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, group_of_word(*d, word_index));
               uint32_t n = 0;
               if (at.g != nullptr) {
                 for (const auto &x : at.g->members) n += x.enabled ? 1 : 0;
               }
               *count = n;
               return kOk;
             });
}

pd_status pipe_mgr_get_word_llp_active_members(pd_sess_hdl sess, uint32_t device_id,
                                               pd_tbl_hdl sel, uint32_t word_index,
                                               uint32_t count, pd_mbr_hdl *mbr_hdls) {
  return run(Fn::pipe_mgr_get_word_llp_active_members,
             {arg(sess), arg(device_id), arg(sel), arg(word_index), arg(count), arg(mbr_hdls)},
             [&](Model &m) {
               SEL_OR_FAIL();
               if (count != 0 && mbr_hdls == nullptr) return kBad;
               GroupAt at = group_at(m, device_id, *d, group_of_word(*d, word_index));
               uint32_t n = 0;
               if (at.g != nullptr) {
                 for (const auto &x : at.g->members) {
                   if (x.enabled && n < count) mbr_hdls[n++] = x.mbr;
                 }
               }
               for (; n < count; ++n) mbr_hdls[n] = ORBISK_MODEL_NO_HANDLE;
               return kOk;
             });
}

pd_status pipe_mgr_sel_tbl_register_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                       pd_sel_tbl_cb callback, void *cookie) {
  return run(Fn::pipe_mgr_sel_tbl_register_cb,
             {arg(sess), arg(device_id), arg(sel), arg(callback), arg(cookie)}, [&](Model &m) {
               SEL_OR_FAIL();
               ProfileStore::Profile &p = m.profiles.make(device_id, *d);
               p.sel_cb = callback;
               p.sel_cookie = cookie;
               return kOk;
             });
}

pd_status pipe_register_sel_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                      pd_sel_update_cb callback, void *cookie) {
  return run(Fn::pipe_register_sel_update_cb,
             {arg(sess), arg(device_id), arg(sel), arg(callback), arg(cookie)}, [&](Model &m) {
               SEL_OR_FAIL();
               ProfileStore::Profile &p = m.profiles.make(device_id, *d);
               p.sel_update_cb = callback;
               p.sel_update_cookie = cookie;
               return kOk;
             });
}

// ------------------------------------------------------- hitless restore ---

pd_status pipe_mgr_hitless_ha_restore_virtual_dev_state(pd_sess_hdl sess, uint32_t device_id,
                                                        uint32_t restore_flags, void *driver_state,
                                                        void *reserved,
                                                        pd_ha_restore_cb callback) {
  return run(Fn::pipe_mgr_hitless_ha_restore_virtual_dev_state,
             {arg(sess), arg(device_id), arg(restore_flags), arg(driver_state), arg(reserved),
              arg(callback)},
             [&](Model &m) {
               if (callback == nullptr) return kBad;
               // Profile by profile: the members, then the groups, then each
               // group's members in the order they joined. The callback calls
               // back in, so it runs once the lock is released.
               for (std::size_t i = 0; i < kNumProfiles; ++i) {
                 const ProfileDesc &d = kProfiles[i];
                 const ProfileStore::Profile *p = m.profiles.find(device_id, d);
                 if (p == nullptr) continue;
                 auto item = [&](pd_act_fn_hdl fn, pd_grp_hdl grp, pd_mbr_hdl mbr) {
                   m.notifications.push_back([=, adt = d.adt_hdl] {
                     callback(sess, device_id, adt, fn, grp, mbr, restore_flags);
                   });
                 };
                 for (const auto &[mbr, x] : p->members) item(x.fn, 0, mbr);
                 for (const auto &[grp, g] : p->groups) item(0, grp, 0);
                 for (const auto &[grp, g] : p->groups) {
                   for (const auto &x : g.members) item(p->members.at(x.mbr).fn, grp, x.mbr);
                 }
               }
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

size_t orbisk_model_group_count(uint32_t device_id, pd_tbl_hdl sel) {
  return in_frame([&](Model &m) -> size_t {
    const ProfileDesc *d = profile_of_sel(sel);
    const ProfileStore::Profile *p = d ? m.profiles.find(device_id, *d) : nullptr;
    return p ? p->groups.size() : 0;
  });
}

}  // extern "C"
