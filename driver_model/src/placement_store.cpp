// Placement data and the hardware view.
//
// A placement record is made on each fetch from what software wrote (an
// entry or default, a member, a group) in the model's own format, described
// in the README: a 16-byte header (mark, version, kind, length, checksum),
// then the body of its kind, integers little-endian. Decoding trusts nothing
// in a record: it reads the header alone, refuses a length above the largest
// record it can decode before reading further, checks the checksum over the
// declared length, and then that the parts add up to that length, before
// anything is written to the caller's records.
//
// The hardware view keeps a whole copy of an entry only once a test makes the
// chip differ from software; until then the chip holds what software wrote.
#include <zlib.h>

#include <algorithm>
#include <cstring>

#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_table;
using orbisk::pd::ProfileDesc;

namespace {

constexpr pd_status kOk = BF_SUCCESS;
constexpr pd_status kBad = ORBISK_MODEL_BAD_RECORD;

constexpr uint8_t kMark[4] = {'O', 'B', 'P', 'L'};
enum Kind : uint8_t { kMatchEntry = 1, kMember = 2, kGroup = 3 };

constexpr std::size_t kHeader = ORBISK_MODEL_PLACEMENT_HEADER_BYTES;
constexpr std::size_t kMax = ORBISK_MODEL_PLACEMENT_MAX_BYTES;
constexpr std::size_t kSlot = sizeof(pd_resource_record);
// Where each kind's variable part starts.
constexpr std::size_t kMatchFixed = 60;
constexpr std::size_t kMemberFixed = 36;
// Flags of a match entry record.
constexpr uint8_t kFlagDefault = 1;

static_assert(kHeader == 16, "the header is 16 bytes");
static_assert(kSlot == 72, "a resource slot is kept as the driver record, 72 bytes");
static_assert(kMax == kMatchFixed + 2 * P4_PD_ORBISK_SWITCH_MAX_KEY_BYTES +
                         P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES +
                         PD_ACTION_RESOURCE_SLOTS * kSlot,
              "the longest match entry record is the longest record decoded");
static_assert(kMemberFixed + P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES <= kMax,
              "every member record can be decoded");

uint16_t get16(const uint8_t *p) { return uint16_t(p[0] | p[1] << 8); }
uint32_t get32(const uint8_t *p) {
  return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

// The checksum covers every byte of the record but its own four.
uint32_t checksum(const uint8_t *rec, std::size_t length) {
  uLong c = crc32(0L, Z_NULL, 0);
  c = crc32(c, rec, 12);
  c = crc32(c, rec + 16, uInt(length - 16));
  return uint32_t(c);
}

// A record being made: the header's place first, then the body.
class Writer {
 public:
  Writer(Kind kind, uint32_t device_id) : bytes_(kHeader, 0) {
    std::memcpy(bytes_.data(), kMark, 4);
    bytes_[4] = ORBISK_MODEL_PLACEMENT_VERSION;
    bytes_[5] = kind;
    u32(device_id);
  }
  void u8(uint8_t v) { bytes_.push_back(v); }
  void u16(uint16_t v) {
    u8(uint8_t(v));
    u8(uint8_t(v >> 8));
  }
  void u32(uint32_t v) {
    u16(uint16_t(v));
    u16(uint16_t(v >> 16));
  }
  void raw(const void *p, std::size_t n) {
    const auto *b = static_cast<const uint8_t *>(p);
    if (n != 0) bytes_.insert(bytes_.end(), b, b + n);
  }
  // Sets the length and the checksum.
  const std::vector<uint8_t> &finish() {
    const auto n = uint32_t(bytes_.size());
    for (int i = 0; i < 4; ++i) bytes_[8 + i] = uint8_t(n >> (8 * i));
    const uint32_t c = checksum(bytes_.data(), n);
    for (int i = 0; i < 4; ++i) bytes_[12 + i] = uint8_t(c >> (8 * i));
    return bytes_;
  }

 private:
  std::vector<uint8_t> bytes_;
};

// One entry or default, as software wrote it or as the chip holds it.
struct EntryView {
  bool is_default;
  const uint8_t *value;
  const uint8_t *mask;
  uint16_t key_bytes;
  uint32_t priority;
  uint32_t partition;
  ActionView action;
};

using HwEntry = PlacementStore::HwEntry;

// What software wrote for an entry of t on the device (the default entry by
// its handle); false when there is no such entry. `zeros` backs a default
// entry's key.
bool software_view(Model &m, uint32_t device_id, const TableDesc &t, pd_entry_hdl hdl,
                   const uint8_t *zeros, DefaultAction &dflt, EntryView &out) {
  const MatchTable *table = m.tables.find(device_id, t);
  if (hdl == ORBISK_MODEL_DEFAULT_ENTRY_HDL) {
    dflt = table != nullptr ? table->default_action : DefaultAction::declared(t);
    out = {true, zeros, zeros, t.key_bytes, 0, 0, dflt.view()};
    return true;
  }
  const MatchTable::Entry e = table ? table->find(hdl) : MatchTable::Entry{};
  if (e.head == nullptr) return false;
  out = {false,          e.value, e.mask, t.key_bytes, e.head->priority, e.head->partition,
         table->action(e)};
  return true;
}

HwEntry copy_of(const EntryView &v) {
  HwEntry h;
  h.is_default = v.is_default;
  h.value.assign(v.value, v.value + v.key_bytes);
  h.mask.assign(v.mask, v.mask + v.key_bytes);
  h.priority = v.priority;
  h.partition = v.partition;
  const ActionView &a = v.action;
  h.fn = a.fn;
  h.kind = a.kind;
  h.bits = a.bits;
  h.data.assign(a.data, a.data + a.data_len);
  h.member = a.member;
  h.group = a.group;
  h.slots.assign(a.slots, a.slots + a.resource_count);
  return h;
}

const uint8_t kZeroKey[P4_PD_ORBISK_SWITCH_MAX_KEY_BYTES] = {};

// The match entry record of an entry.
const std::vector<uint8_t> &match_record(Writer &w, const TableDesc &t, pd_entry_hdl hdl,
                                         const EntryView &v) {
  const ActionView &a = v.action;
  const uint16_t k = v.is_default ? 0 : v.key_bytes;
  w.u32(t.handle);
  w.u32(hdl);
  w.u32(a.fn);
  w.u32(v.priority);
  w.u32(v.partition);
  w.u32(a.member);
  w.u32(a.group);
  w.u8(a.kind);
  w.u8(a.resource_count);
  w.u8(v.is_default ? kFlagDefault : 0);
  w.u8(0);
  w.u16(k);
  w.u16(k != 0 ? t.key_bits : 0);
  w.u16(a.data_len);
  w.u16(a.bits);
  w.raw(v.value, k);
  w.raw(v.mask, k);
  w.raw(a.data, a.data_len);
  w.raw(a.slots, std::size_t(a.resource_count) * kSlot);
  return w.finish();
}

// Hands a record out into the caller's room, or says how long it is.
pd_status hand_out(const std::vector<uint8_t> &rec, void *plcmt_data, uint32_t *size) {
  const auto n = uint32_t(rec.size());
  const uint32_t room = plcmt_data != nullptr ? *size : 0;
  *size = n;
  if (room < n) return ORBISK_MODEL_PLACEMENT_NO_ROOM;
  std::memcpy(plcmt_data, rec.data(), n);
  return kOk;
}

// The header of a record to decode: read alone, then the record as far as
// it declares, checksum included. Nothing past `length` is ever read.
pd_status open_record(const void *plcmt_data, Kind want, std::size_t fixed,
                      const uint8_t *&rec, std::size_t &length) {
  rec = static_cast<const uint8_t *>(plcmt_data);
  if (std::memcmp(rec, kMark, 4) != 0 || rec[4] != ORBISK_MODEL_PLACEMENT_VERSION) {
    return ORBISK_MODEL_PLACEMENT_FOREIGN;
  }
  if (rec[5] != want) {
    return rec[5] >= kMatchEntry && rec[5] <= kGroup ? ORBISK_MODEL_PLACEMENT_WRONG_KIND
                                                     : ORBISK_MODEL_PLACEMENT_FOREIGN;
  }
  length = get32(rec + 8);
  if (length < fixed || length > kMax) return ORBISK_MODEL_PLACEMENT_DAMAGED;
  if (checksum(rec, length) != get32(rec + 12)) return ORBISK_MODEL_PLACEMENT_DAMAGED;
  return kOk;
}

// Whether an action record offers room for d bytes of data.
bool has_room(const pd_action_record *act, uint16_t d) {
  return d <= act->num_bytes && (d == 0 || act->data_bytes != nullptr);
}

// Applies change to the chip's copy of an entry (made from software's if it
// has none yet) and keeps it, unless change refuses.
template <typename Change>
pd_status change_hw(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl, Change &&change) {
  return in_frame([&](Model &m) -> pd_status {
    const TableDesc *t = find_table(tbl);
    if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
    HwEntry copy;
    if (const HwEntry *held = m.placement.find(device_id, tbl, hdl)) {
      copy = *held;
    } else {
      DefaultAction dflt;
      EntryView v;
      if (!software_view(m, device_id, *t, hdl, kZeroKey, dflt, v)) {
        return ORBISK_MODEL_NO_SUCH_ENTRY;
      }
      copy = copy_of(v);
    }
    if (pd_status s = change(copy)) return s;
    m.placement.hw[{device_id, tbl, hdl}] = std::move(copy);
    return kOk;
  });
}

pd_status flip(std::vector<uint8_t> &bytes, uint16_t byte, uint8_t bits) {
  if (byte >= bytes.size()) return ORBISK_MODEL_HW_PAST_END;
  bytes[byte] ^= bits;
  return kOk;
}

}  // namespace

namespace orbisk_model {

ActionView hw_action(const PlacementStore::HwEntry &h) {
  return {h.fn,     h.kind,   uint8_t(h.slots.size()), h.bits, uint16_t(h.data.size()),
          h.data.data(), h.member, h.group, h.slots.data()};
}

}  // namespace orbisk_model

extern "C" {

// --------------------------------------------------------------- fetches ---

pd_status pipe_mgr_plcmt_mat_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, void *plcmt_data, uint32_t *size) {
  return run(Fn::pipe_mgr_plcmt_mat_data_get,
             {arg(sess), arg(target), arg(tbl), arg(entry_hdl), arg(plcmt_data), arg(size)},
             [&](Model &m) {
               const TableDesc *t = find_table(tbl);
               if (t == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (size == nullptr) return kBad;
               DefaultAction dflt;
               EntryView v;
               if (!software_view(m, target.device_id, *t, entry_hdl, kZeroKey, dflt, v)) {
                 return ORBISK_MODEL_NO_SUCH_ENTRY;
               }
               Writer w(kMatchEntry, target.device_id);
               return hand_out(match_record(w, *t, entry_hdl, v), plcmt_data, size);
             });
}

pd_status pipe_mgr_plcmt_adt_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl adt,
                                      pd_mbr_hdl mbr_hdl, void *plcmt_data, uint32_t *size) {
  return run(Fn::pipe_mgr_plcmt_adt_data_get,
             {arg(sess), arg(target), arg(adt), arg(mbr_hdl), arg(plcmt_data), arg(size)},
             [&](Model &m) {
               const ProfileDesc *d = profile_of_adt(adt);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (size == nullptr) return kBad;
               const ProfileStore::Profile *p = m.profiles.find(target.device_id, *d);
               if (p == nullptr || !p->members.contains(mbr_hdl)) return ORBISK_MODEL_NO_SUCH_MEMBER;
               const ProfileStore::Member &mbr = p->members.at(mbr_hdl);
               Writer w(kMember, target.device_id);
               w.u32(adt);
               w.u32(mbr_hdl);
               w.u32(mbr.fn);
               w.u16(uint16_t(mbr.data.size()));
               w.u16(mbr.bits);
               w.raw(mbr.data.data(), mbr.data.size());
               return hand_out(w.finish(), plcmt_data, size);
             });
}

pd_status pipe_mgr_plcmt_sel_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl sel,
                                      pd_grp_hdl grp_hdl, void *plcmt_data, uint32_t *size) {
  return run(Fn::pipe_mgr_plcmt_sel_data_get,
             {arg(sess), arg(target), arg(sel), arg(grp_hdl), arg(plcmt_data), arg(size)},
             [&](Model &m) {
               const ProfileDesc *d = profile_of_sel(sel);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (size == nullptr) return kBad;
               const ProfileStore::Profile *p = m.profiles.find(target.device_id, *d);
               if (p == nullptr || !p->groups.contains(grp_hdl)) return ORBISK_MODEL_NO_SUCH_GROUP;
               const ProfileStore::Group &g = p->groups.at(grp_hdl);
               Writer w(kGroup, target.device_id);
               w.u32(sel);
               w.u32(grp_hdl);
               w.u32(g.max_size);
               w.u32(uint32_t(g.members.size()));
               for (const ProfileStore::GroupMember &gm : g.members) {
                 w.u32(gm.mbr);
                 w.u8(gm.enabled ? 1 : 0);
               }
               return hand_out(w.finish(), plcmt_data, size);
             });
}

// --------------------------------------------------------------- decodes ---

pd_status pipe_mgr_plcmt_mat_data_get_entry(const void *plcmt_data, pd_match_record *key,
                                            pd_action_record *act, pd_act_fn_hdl *fn) {
  Passing passed;
  passed.key(key);
  passed.act(act);
  return run(Fn::pipe_mgr_plcmt_mat_data_get_entry,
             {arg(plcmt_data), arg(key), arg(act), arg(fn)}, passed, [&](Model &) {
               if (plcmt_data == nullptr || key == nullptr || act == nullptr || fn == nullptr) {
                 return kBad;
               }
               const uint8_t *rec;
               std::size_t length;
               if (pd_status s = open_record(plcmt_data, kMatchEntry, kMatchFixed, rec, length)) {
                 return s;
               }
               const uint8_t kind = rec[48], count = rec[49], flags = rec[50];
               const uint16_t k = get16(rec + 52), d = get16(rec + 56);
               if (count > PD_ACTION_RESOURCE_SLOTS ||
                   length != kMatchFixed + 2u * k + d + count * kSlot) {
                 return ORBISK_MODEL_PLACEMENT_DAMAGED;
               }
               // A record that passed its checksum but that no table holds.
               const TableDesc *t = find_table(get32(rec + 20));
               const bool is_default = flags & kFlagDefault;
               if (t == nullptr || (flags & ~kFlagDefault) != 0 || rec[51] != 0 ||
                   k != (is_default ? 0 : t->key_bytes) ||
                   get16(rec + 54) != (k != 0 ? t->key_bits : 0) ||
                   (kind != PD_RECORD_KIND_DIRECT && kind != PD_RECORD_KIND_MEMBER_REF &&
                    kind != PD_RECORD_KIND_GROUP_REF) ||
                   d > P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES) {
                 return ORBISK_MODEL_PLACEMENT_FOREIGN;
               }
               // Room first: a refusal writes nothing.
               if (k != 0 && (key->num_bytes < k || key->value_bytes == nullptr ||
                              key->mask_bytes == nullptr)) {
                 return kBad;
               }
               if (!has_room(act, d)) return kBad;
               const uint8_t *at = rec + kMatchFixed;
               if (k != 0) {
                 std::memcpy(key->value_bytes, at, k);
                 std::memcpy(key->mask_bytes, at + k, k);
               }
               key->num_bytes = k;
               key->num_valid_bits = get16(rec + 54);
               key->priority = get32(rec + 32);
               key->partition_index = get32(rec + 36);
               at += 2u * k;
               act->record_kind = kind;
               act->resource_count = count;
               act->num_valid_bits = get16(rec + 58);
               act->num_bytes = d;
               if (d != 0) std::memcpy(act->data_bytes, at, d);
               act->member_hdl = get32(rec + 40);
               act->group_hdl = get32(rec + 44);
               std::memcpy(act->resources, at + d, count * kSlot);
               *fn = get32(rec + 28);
               return kOk;
             });
}

pd_status pipe_mgr_plcmt_adt_data_get_entry(const void *plcmt_data, pd_action_record *act,
                                            pd_act_fn_hdl *fn) {
  Passing passed;
  passed.act(act);
  return run(Fn::pipe_mgr_plcmt_adt_data_get_entry, {arg(plcmt_data), arg(act), arg(fn)}, passed,
             [&](Model &) {
               if (plcmt_data == nullptr || act == nullptr || fn == nullptr) return kBad;
               const uint8_t *rec;
               std::size_t length;
               if (pd_status s = open_record(plcmt_data, kMember, kMemberFixed, rec, length)) {
                 return s;
               }
               const uint16_t d = get16(rec + 32);
               if (length != kMemberFixed + d) return ORBISK_MODEL_PLACEMENT_DAMAGED;
               if (profile_of_adt(get32(rec + 20)) == nullptr ||
                   d > P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES) {
                 return ORBISK_MODEL_PLACEMENT_FOREIGN;
               }
               if (!has_room(act, d)) return kBad;
               act->record_kind = PD_RECORD_KIND_MEMBER_DATA;
               act->resource_count = 0;
               act->num_valid_bits = get16(rec + 34);
               act->num_bytes = d;
               if (d != 0) std::memcpy(act->data_bytes, rec + kMemberFixed, d);
               *fn = get32(rec + 28);
               return kOk;
             });
}

// --------------------------------------------------------- hardware view ---

pd_status orbisk_model_hw_flip_key(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                   uint16_t byte, uint8_t bits) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) { return flip(h.value, byte, bits); });
}

pd_status orbisk_model_hw_flip_mask(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                    uint16_t byte, uint8_t bits) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) { return flip(h.mask, byte, bits); });
}

pd_status orbisk_model_hw_flip_data(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                    uint16_t byte, uint8_t bits) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) { return flip(h.data, byte, bits); });
}

pd_status orbisk_model_hw_set_priority(uint32_t device_id, pd_tbl_hdl tbl,
                                       pd_entry_hdl entry_hdl, uint32_t priority) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) {
    h.priority = priority;
    return kOk;
  });
}

pd_status orbisk_model_hw_set_action(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                     pd_act_fn_hdl fn) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) {
    h.fn = fn;
    return kOk;
  });
}

pd_status orbisk_model_hw_set_selection(uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint8_t kind, uint32_t hdl) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) -> pd_status {
    if (kind != 0 && kind != PD_RECORD_KIND_MEMBER_REF && kind != PD_RECORD_KIND_GROUP_REF) {
      return ORBISK_MODEL_BAD_CONTROL;
    }
    h.kind = kind;
    h.member = kind == PD_RECORD_KIND_MEMBER_REF ? hdl : 0;
    h.group = kind == PD_RECORD_KIND_GROUP_REF ? hdl : 0;
    return kOk;
  });
}

pd_status orbisk_model_hw_set_default(uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, bool is_default) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) {
    h.is_default = is_default;
    return kOk;
  });
}

pd_status orbisk_model_hw_drop(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl) {
  return change_hw(device_id, tbl, entry_hdl, [&](HwEntry &h) {
    h.dropped = true;
    return kOk;
  });
}

}  // extern "C"
