// The match tables store: per device and table, the entries and the default.
//
// An entry is one fixed-size record in a slab of its table: a small head
// (handle, action, priority, partition, idle time, references) followed by the
// key's value and mask strings and the action data, with room for the
// longest data of the table's entry actions. Resource slots, which only some
// tables carry, are kept beside the slab. Entries are found by key through an
// open-addressing index that holds slab places and compares against the slab
// itself, so a key is stored once; by handle through a radix map that also
// gives the walks their ascending handle order.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <unordered_map>
#include <vector>

#include "descriptors.h"
#include "public_api.h"
#include "stores.h"

namespace orbisk_model {

using orbisk::pd::TableDesc;

// The highest handle an entry gets; ORBISK_MODEL_DEFAULT_ENTRY_HDL and above
// are reserved, as is 0.
inline constexpr pd_entry_hdl kMaxEntryHdl = 0x7FFFFFFFu;

// An action as a read answers it: a stored entry's or a default's.
struct ActionView {
  pd_act_fn_hdl fn = 0;
  uint8_t kind = PD_RECORD_KIND_DIRECT;
  uint8_t resource_count = 0;
  uint16_t bits = 0;
  uint16_t data_len = 0;
  const uint8_t *data = nullptr;
  pd_mbr_hdl member = 0;
  pd_grp_hdl group = 0;
  const pd_resource_record *slots = nullptr;
};

// A table's default action.
struct DefaultAction {
  pd_act_fn_hdl fn = 0;
  uint8_t kind = PD_RECORD_KIND_DIRECT;
  uint8_t resource_count = 0;
  uint16_t bits = 0;
  std::vector<uint8_t> data;
  pd_mbr_hdl member = 0;
  pd_grp_hdl group = 0;
  pd_resource_record slots[PD_ACTION_RESOURCE_SLOTS] = {};

  // What the table starts with: its declared default, zero data, and one
  // attached slot of the resource its entries carry, if any.
  static DefaultAction declared(const TableDesc &t);
  // An action record as given, after it has been checked.
  static DefaultAction of(pd_act_fn_hdl fn, const pd_action_record &act);
  ActionView view() const;
};

// Handles of one table to the slab places of their entries, in handle order:
// a radix tree over the 31 bits of a handle whose pages are made on first use
// and freed when they empty, so memory follows the handles in use.
class HandleMap {
 public:
  static constexpr uint32_t kNone = 0xFFFFFFFFu;

  uint32_t find(pd_entry_hdl h) const;
  void insert(pd_entry_hdl h, uint32_t place);
  void erase(pd_entry_hdl h);
  std::size_t size() const { return size_; }
  // The lowest handle in use above `after` (pass 0 for the first); 0 for none.
  pd_entry_hdl next(pd_entry_hdl after) const;
  // The first handle at or after `from` not in use, going round from
  // kMaxEntryHdl back to 1; 0 when every handle is in use.
  pd_entry_hdl next_free(pd_entry_hdl from) const;

 private:
  static constexpr unsigned kPageBits = 10;
  static constexpr unsigned kMidBits = 10;
  static constexpr uint32_t kPageSize = 1u << kPageBits;
  struct Page {
    uint32_t place[kPageSize];
    uint64_t live[kPageSize / 64] = {};
    uint32_t count = 0;
  };
  struct Mid {
    std::unique_ptr<Page> pages[1u << kMidBits];
    uint32_t count = 0;
  };
  const Page *page_of(pd_entry_hdl h) const;
  std::vector<std::unique_ptr<Mid>> top_;  // grown to the highest handle in use
  std::size_t size_ = 0;
};

// Slab places of the entries of one table by key: open addressing with linear
// probing and backward-shift deletion, at most half full.
class KeyIndex {
 public:
  static constexpr uint32_t kNone = 0xFFFFFFFFu;

  // The place whose entry same(place) accepts, or kNone.
  template <typename Same>
  uint32_t find(uint32_t hash, Same &&same) const {
    if (buckets_.empty()) return kNone;
    for (std::size_t i = hash & mask_;; i = (i + 1) & mask_) {
      const Bucket &b = buckets_[i];
      if (b.place_plus1 == 0) return kNone;
      if (b.hash == hash && same(b.place_plus1 - 1)) return b.place_plus1 - 1;
    }
  }
  void insert(uint32_t hash, uint32_t place);
  void erase(uint32_t hash, uint32_t place);

 private:
  struct Bucket {
    uint32_t place_plus1 = 0;  // 0: empty
    uint32_t hash = 0;
  };
  void grow();
  std::vector<Bucket> buckets_;
  std::size_t mask_ = 0;
  std::size_t count_ = 0;
};

// Fixed-size records in chunks that double in size and never move.
class Slab {
 public:
  explicit Slab(std::size_t stride) : stride_(stride) {}
  uint8_t *at(uint32_t place) const {
    const uint32_t s = place + kFirstChunk;
    const unsigned chunk = unsigned(std::bit_width(s)) - kFirstChunkBits - 1;
    return chunks_[chunk].get() + std::size_t(s - (kFirstChunk << chunk)) * stride_;
  }
  uint32_t alloc();
  void free(uint32_t place) { free_.push_back(place); }

 private:
  static constexpr unsigned kFirstChunkBits = 4;
  static constexpr uint32_t kFirstChunk = 1u << kFirstChunkBits;  // records in chunk 0
  std::size_t stride_;
  std::array<std::unique_ptr<uint8_t[]>, 28> chunks_;
  uint32_t used_ = 0;
  std::vector<uint32_t> free_;
};

// The head of an entry's slab record; the key strings and data follow it.
struct EntryHead {
  pd_entry_hdl hdl;
  pd_act_fn_hdl fn;
  uint32_t priority;
  uint32_t partition;
  pd_mbr_hdl member;
  pd_grp_hdl group;
  uint32_t hash;  // of the key, to leave the key index without hashing again
  uint16_t bits;
  uint16_t data_len;
  uint8_t kind;
  uint8_t resource_count;
};

// One match table of one device.
class MatchTable {
 public:
  explicit MatchTable(const TableDesc &desc);

  const TableDesc &desc;
  uint32_t capacity = ORBISK_MODEL_DEFAULT_CAPACITY;
  // Where the search for the next free handle starts; it only moves up, and
  // goes round to 1 past kMaxEntryHdl.
  pd_entry_hdl cursor = 1;
  DefaultAction default_action;

  struct Entry {
    EntryHead *head;
    uint8_t *value;
    uint8_t *mask;
    uint8_t *data;
    uint32_t place;  // in the slab
  };

  std::size_t size() const { return handles_.size(); }
  // The entry with this handle; head null when there is none.
  Entry find(pd_entry_hdl hdl) const;
  // What a key (of the table's size) is found by.
  uint32_t hash_of(const pd_match_record &key) const {
    return hash_of(key.value_bytes, key.mask_bytes, key.priority, key.partition_index);
  }
  // The handle of the entry with this key, 0 for none.
  pd_entry_hdl find(const pd_match_record &key) const { return find(key, hash_of(key)); }
  pd_entry_hdl find(const pd_match_record &key, uint32_t hash) const;
  // Adds an entry whose key, of that hash, is not in the table; 0 when no
  // handle is free.
  pd_entry_hdl insert(const pd_match_record &key, uint32_t hash, pd_act_fn_hdl fn,
                      const pd_action_record &act);
  void set_action(Entry e, pd_act_fn_hdl fn, const pd_action_record &act);
  void erase(pd_entry_hdl hdl);
  ActionView action(Entry e) const;
  // An entry's resource slot for this resource handle; null for none.
  pd_resource_record *slot(Entry e, uint32_t resource_hdl);
  pd_entry_hdl next(pd_entry_hdl after) const { return handles_.next(after); }

 private:
  Entry entry_at(uint32_t place) const;
  uint32_t hash_of(const uint8_t *value, const uint8_t *mask, uint32_t priority,
                   uint32_t partition) const;
  void write_action(Entry e, pd_act_fn_hdl fn, const pd_action_record &act);

  const uint16_t key_bytes_;
  Slab slab_;
  KeyIndex by_key_;
  HandleMap handles_;
  // Resource slots of the entries that have any, by slab place.
  std::unordered_map<uint32_t, std::vector<pd_resource_record>> slots_;
};

// Every device's match tables. A device and a table get state only when a
// write to them succeeds; until then reads see an empty table holding its
// declared default.
class TableStore final : public Store {
 public:
  void clear() override;
  void drop_device(uint32_t device_id) override;

  MatchTable *find(uint32_t device_id, const TableDesc &t);
  MatchTable &make(uint32_t device_id, const TableDesc &t);
  std::set<uint32_t> devices() const {
    std::set<uint32_t> out;
    for (const auto &kv : devices_) out.insert(kv.first);
    return out;
  }

  // Whether an entry or the default of table t names this member
  // (PD_RECORD_KIND_MEMBER_REF) or group (PD_RECORD_KIND_GROUP_REF).
  bool names_ref(uint32_t device_id, const TableDesc &t, uint8_t kind, uint32_t hdl);

  // A read quirk armed for the next successful entry or default read; -1
  // leaves the kind or the action as stored.
  int quirk_kind = -1;
  int64_t quirk_fn = -1;

 private:
  using Tables = std::vector<std::unique_ptr<MatchTable>>;  // by place in kTables
  std::unordered_map<uint32_t, Tables> devices_;
};

}  // namespace orbisk_model
