// The match tables store: slab records, the key index, the handle map and
// the per-device tables.
#include "match_store.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace orbisk_model {

using orbisk::pd::kTables;
using orbisk::pd::TableActionDesc;

// ------------------------------------------------------------- defaults ---

DefaultAction DefaultAction::declared(const TableDesc &t) {
  DefaultAction a;
  if (t.declared_default < t.num_actions) {
    const TableActionDesc &d = t.actions[t.declared_default];
    a.fn = d.handle;
    a.bits = d.action->data_bits;
    a.data.assign(d.action->data_bytes, 0);
  }
  if (t.resource != nullptr) {
    a.resource_count = 1;
    a.slots[0].resource_hdl = t.resource->handle;
    a.slots[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
  }
  return a;
}

DefaultAction DefaultAction::of(pd_act_fn_hdl fn, const pd_action_record &act) {
  DefaultAction a;
  a.fn = fn;
  a.kind = act.record_kind;
  if (act.record_kind == PD_RECORD_KIND_DIRECT) {
    a.bits = act.num_valid_bits;
    a.data.assign(act.data_bytes, act.data_bytes + act.num_bytes);
  } else {
    a.member = act.member_hdl;
    a.group = act.group_hdl;
  }
  a.resource_count = act.resource_count;
  std::copy_n(act.resources, act.resource_count, a.slots);
  return a;
}

ActionView DefaultAction::view() const {
  return {fn, kind, resource_count, bits, uint16_t(data.size()), data.data(), member, group, slots};
}

// ------------------------------------------------------------ handle map ---

const HandleMap::Page *HandleMap::page_of(pd_entry_hdl h) const {
  const uint32_t t = h >> (kPageBits + kMidBits);
  if (t >= top_.size() || top_[t] == nullptr) return nullptr;
  return top_[t]->pages[(h >> kPageBits) & ((1u << kMidBits) - 1)].get();
}

uint32_t HandleMap::find(pd_entry_hdl h) const {
  if (h == 0 || h > kMaxEntryHdl) return kNone;
  const Page *p = page_of(h);
  return p == nullptr ? kNone : p->place[h & (kPageSize - 1)];
}

void HandleMap::insert(pd_entry_hdl h, uint32_t place) {
  const uint32_t t = h >> (kPageBits + kMidBits);
  if (t >= top_.size()) top_.resize(t + 1);
  if (top_[t] == nullptr) top_[t] = std::make_unique<Mid>();
  Mid &mid = *top_[t];
  std::unique_ptr<Page> &page = mid.pages[(h >> kPageBits) & ((1u << kMidBits) - 1)];
  if (page == nullptr) {
    page = std::make_unique<Page>();
    std::fill_n(page->place, kPageSize, kNone);
    ++mid.count;
  }
  const uint32_t i = h & (kPageSize - 1);
  page->place[i] = place;
  page->live[i / 64] |= uint64_t(1) << (i % 64);
  ++page->count;
  ++size_;
}

void HandleMap::erase(pd_entry_hdl h) {
  const uint32_t t = h >> (kPageBits + kMidBits);
  Mid &mid = *top_[t];
  std::unique_ptr<Page> &page = mid.pages[(h >> kPageBits) & ((1u << kMidBits) - 1)];
  const uint32_t i = h & (kPageSize - 1);
  page->place[i] = kNone;
  page->live[i / 64] &= ~(uint64_t(1) << (i % 64));
  --size_;
  if (--page->count != 0) return;
  page.reset();
  if (--mid.count != 0) return;
  top_[t].reset();
  while (!top_.empty() && top_.back() == nullptr) top_.pop_back();
}

pd_entry_hdl HandleMap::next(pd_entry_hdl after) const {
  uint64_t h = uint64_t(after) + 1;
  while (h <= kMaxEntryHdl) {
    const uint64_t t = h >> (kPageBits + kMidBits);
    if (t >= top_.size()) return 0;
    if (top_[t] == nullptr) {
      h = (t + 1) << (kPageBits + kMidBits);
      continue;
    }
    const Page *p = page_of(pd_entry_hdl(h));
    const uint64_t base = h & ~uint64_t(kPageSize - 1);
    if (p != nullptr) {
      unsigned w = unsigned(h - base) / 64;
      uint64_t bits = p->live[w] & (~uint64_t(0) << ((h - base) % 64));
      for (;;) {
        if (bits != 0) return pd_entry_hdl(base + w * 64 + unsigned(std::countr_zero(bits)));
        if (++w == kPageSize / 64) break;
        bits = p->live[w];
      }
    }
    h = base + kPageSize;
  }
  return 0;
}

pd_entry_hdl HandleMap::next_free(pd_entry_hdl from) const {
  if (size_ >= kMaxEntryHdl) return 0;
  uint64_t h = from == 0 || from > kMaxEntryHdl ? 1 : from;
  for (;;) {
    const Page *p = page_of(pd_entry_hdl(h));
    if (p == nullptr) return pd_entry_hdl(h);
    const uint64_t base = h & ~uint64_t(kPageSize - 1);
    unsigned w = unsigned(h - base) / 64;
    uint64_t holes = ~p->live[w] & (~uint64_t(0) << ((h - base) % 64));
    for (;;) {
      if (holes != 0) {
        const uint64_t free = base + w * 64 + unsigned(std::countr_zero(holes));
        // Handle 0 is never live, so the first page always shows it as a hole.
        if (free != 0 && free <= kMaxEntryHdl) return pd_entry_hdl(free);
        break;
      }
      if (++w == kPageSize / 64) break;
      holes = ~p->live[w];
    }
    h = base + kPageSize;
    if (h > kMaxEntryHdl) h = 1;
  }
}

// ------------------------------------------------------------- key index ---

void KeyIndex::grow() {
  std::vector<Bucket> old;
  old.swap(buckets_);
  buckets_.assign(old.empty() ? 16 : old.size() * 2, Bucket{});
  mask_ = buckets_.size() - 1;
  for (const Bucket &b : old) {
    if (b.place_plus1 == 0) continue;
    std::size_t i = b.hash & mask_;
    while (buckets_[i].place_plus1 != 0) i = (i + 1) & mask_;
    buckets_[i] = b;
  }
}

void KeyIndex::insert(uint32_t hash, uint32_t place) {
  if ((count_ + 1) * 2 > buckets_.size()) grow();
  std::size_t i = hash & mask_;
  while (buckets_[i].place_plus1 != 0) i = (i + 1) & mask_;
  buckets_[i] = {place + 1, hash};
  ++count_;
}

void KeyIndex::erase(uint32_t hash, uint32_t place) {
  std::size_t i = hash & mask_;
  while (buckets_[i].place_plus1 != place + 1) i = (i + 1) & mask_;
  // Shift back every later bucket of the run that may move into the hole.
  for (std::size_t j = (i + 1) & mask_; buckets_[j].place_plus1 != 0; j = (j + 1) & mask_) {
    const std::size_t home = buckets_[j].hash & mask_;
    const bool between = i <= j ? (i < home && home <= j) : (i < home || home <= j);
    if (!between) {
      buckets_[i] = buckets_[j];
      i = j;
    }
  }
  buckets_[i] = Bucket{};
  --count_;
}

// ------------------------------------------------------------------ slab ---

uint32_t Slab::alloc() {
  if (!free_.empty()) {
    const uint32_t place = free_.back();
    free_.pop_back();
    return place;
  }
  const uint32_t place = used_++;
  const uint32_t s = place + kFirstChunk;
  const unsigned chunk = unsigned(std::bit_width(s)) - kFirstChunkBits - 1;
  if (chunks_[chunk] == nullptr) {
    // Not zeroed: a record is written in full before it is read, and pages
    // never written are never made resident.
    chunks_[chunk].reset(new uint8_t[std::size_t(kFirstChunk << chunk) * stride_]);
  }
  return place;
}

// ----------------------------------------------------------- match table ---

namespace {

// The longest action data an entry of the table may hold.
uint16_t max_entry_data(const TableDesc &t) {
  uint16_t n = 0;
  if (t.indirect()) return 0;  // entries name members; their data lives in the profile
  for (uint16_t i = 0; i < t.num_actions; ++i) {
    if (t.actions[i].entry_use) n = std::max(n, t.actions[i].action->data_bytes);
  }
  return n;
}

std::size_t stride_of(const TableDesc &t) {
  const std::size_t n = sizeof(EntryHead) + 2u * t.key_bytes + max_entry_data(t);
  return (n + alignof(EntryHead) - 1) / alignof(EntryHead) * alignof(EntryHead);
}

// 64-bit mixing of 8-byte words, folded to 32 bits.
inline uint64_t mix(uint64_t h, uint64_t w) {
  h ^= w * 0x9E3779B97F4A7C15ull;
  h = (h ^ (h >> 29)) * 0xBF58476D1CE4E5B9ull;
  return h ^ (h >> 32);
}

inline uint64_t hash_bytes(uint64_t h, const uint8_t *p, std::size_t n) {
  for (; n >= 8; p += 8, n -= 8) {
    uint64_t w;
    std::memcpy(&w, p, 8);
    h = mix(h, w);
  }
  if (n != 0) {
    uint64_t w = 0;
    std::memcpy(&w, p, n);
    h = mix(h, w | uint64_t(n) << 56);
  }
  return h;
}

}  // namespace

MatchTable::MatchTable(const TableDesc &d)
    : desc(d),
      default_action(DefaultAction::declared(d)),
      key_bytes_(d.key_bytes),
      slab_(stride_of(d)) {}

MatchTable::Entry MatchTable::entry_at(uint32_t place) const {
  uint8_t *rec = slab_.at(place);
  auto *head = std::launder(reinterpret_cast<EntryHead *>(rec));
  uint8_t *value = rec + sizeof(EntryHead);
  return {head, value, value + key_bytes_, value + 2 * key_bytes_, place};
}

MatchTable::Entry MatchTable::find(pd_entry_hdl hdl) const {
  const uint32_t place = handles_.find(hdl);
  return place == HandleMap::kNone ? Entry{} : entry_at(place);
}

uint32_t MatchTable::hash_of(const uint8_t *value, const uint8_t *mask, uint32_t priority,
                             uint32_t partition) const {
  uint64_t h = mix(priority, uint64_t(partition) << 32 | key_bytes_);
  h = hash_bytes(h, value, key_bytes_);
  h = hash_bytes(h, mask, key_bytes_);
  return uint32_t(h);
}

pd_entry_hdl MatchTable::find(const pd_match_record &key, uint32_t hash) const {
  const uint32_t place = by_key_.find(hash, [&](uint32_t p) {
    const Entry e = entry_at(p);
    return e.head->priority == key.priority && e.head->partition == key.partition_index &&
           std::memcmp(e.value, key.value_bytes, key_bytes_) == 0 &&
           std::memcmp(e.mask, key.mask_bytes, key_bytes_) == 0;
  });
  return place == KeyIndex::kNone ? 0 : entry_at(place).head->hdl;
}

void MatchTable::write_action(Entry e, pd_act_fn_hdl fn, const pd_action_record &act) {
  EntryHead &h = *e.head;
  h.fn = fn;
  h.kind = act.record_kind;
  h.bits = 0;
  h.data_len = 0;
  h.member = 0;
  h.group = 0;
  if (act.record_kind == PD_RECORD_KIND_DIRECT) {
    h.bits = act.num_valid_bits;
    h.data_len = act.num_bytes;
    if (act.num_bytes != 0) std::memcpy(e.data, act.data_bytes, act.num_bytes);
  } else {
    h.member = act.member_hdl;
    h.group = act.group_hdl;
  }
  if (act.resource_count != 0) {
    slots_[e.place].assign(act.resources, act.resources + act.resource_count);
  } else if (h.resource_count != 0) {
    slots_.erase(e.place);
  }
  h.resource_count = act.resource_count;
}

pd_entry_hdl MatchTable::insert(const pd_match_record &key, uint32_t hash, pd_act_fn_hdl fn,
                                const pd_action_record &act) {
  const pd_entry_hdl hdl = handles_.next_free(cursor);
  if (hdl == 0) return 0;
  cursor = hdl == kMaxEntryHdl ? 1 : hdl + 1;
  const uint32_t place = slab_.alloc();
  const Entry e = entry_at(place);
  new (e.head) EntryHead{hdl, 0, key.priority, key.partition_index, 0, 0, hash, 0, 0, 0, 0};
  std::memcpy(e.value, key.value_bytes, key_bytes_);
  std::memcpy(e.mask, key.mask_bytes, key_bytes_);
  handles_.insert(hdl, place);
  by_key_.insert(hash, place);
  write_action(e, fn, act);
  return hdl;
}

void MatchTable::set_action(Entry e, pd_act_fn_hdl fn, const pd_action_record &act) {
  write_action(e, fn, act);
}

pd_resource_record *MatchTable::slot(Entry e, uint32_t resource_hdl) {
  auto it = slots_.find(e.place);
  if (it == slots_.end()) return nullptr;
  for (pd_resource_record &r : it->second) {
    if (r.resource_hdl == resource_hdl) return &r;
  }
  return nullptr;
}

void MatchTable::erase(pd_entry_hdl hdl) {
  const uint32_t place = handles_.find(hdl);
  const Entry e = entry_at(place);
  by_key_.erase(e.head->hash, place);
  handles_.erase(hdl);
  if (e.head->resource_count != 0) slots_.erase(place);
  e.head->hdl = 0;
  slab_.free(place);
}

ActionView MatchTable::action(Entry e) const {
  const EntryHead &h = *e.head;
  const pd_resource_record *slots = nullptr;
  if (h.resource_count != 0) slots = slots_.at(e.place).data();
  return {h.fn, h.kind, h.resource_count, h.bits, h.data_len, e.data, h.member, h.group, slots};
}

// ----------------------------------------------------------------- store ---

void TableStore::clear() {
  devices_.clear();
  quirk_kind = -1;
  quirk_fn = -1;
}

void TableStore::drop_device(uint32_t device_id) { devices_.erase(device_id); }

MatchTable *TableStore::find(uint32_t device_id, const TableDesc &t) {
  auto it = devices_.find(device_id);
  return it == devices_.end() ? nullptr : it->second[std::size_t(&t - kTables)].get();
}

bool TableStore::names_ref(uint32_t device_id, const TableDesc &t, uint8_t kind, uint32_t hdl) {
  const MatchTable *table = find(device_id, t);
  if (table == nullptr) return false;
  auto names = [&](const ActionView &a) {
    return a.kind == kind && (kind == PD_RECORD_KIND_MEMBER_REF ? a.member : a.group) == hdl;
  };
  if (names(table->default_action.view())) return true;
  for (pd_entry_hdl h = table->next(0); h != 0; h = table->next(h)) {
    if (names(table->action(table->find(h)))) return true;
  }
  return false;
}

MatchTable &TableStore::make(uint32_t device_id, const TableDesc &t) {
  Tables &tables = devices_[device_id];
  if (tables.empty()) tables.resize(orbisk::pd::kNumTables);
  std::unique_ptr<MatchTable> &table = tables[std::size_t(&t - kTables)];
  if (table == nullptr) table = std::make_unique<MatchTable>(t);
  return *table;
}

}  // namespace orbisk_model
