// The catalogue-wide round trip, one test per direct table: every entry
// action goes in through the driver model and comes back in host form, by
// handle and by key, is changed both ways and removed; every default action
// is set, found and read back. Records are filled from the descriptors, each
// value inside its field's or parameter's width, so that whatever is lost or
// moved on the way shows as a difference.
#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "orbisk_driver_model.h"
#include "roundtrip_support.h"

namespace roundtrip {
namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::FieldDesc;
using orbisk::pd::FieldMatch;
using orbisk::pd::TableActionDesc;
using orbisk::pd::TableDesc;

constexpr pd_sess_hdl kSess = 7;
constexpr uint32_t kDevice = 0;
constexpr uint32_t kPriority = 11;
constexpr uint32_t kTtl = 3000;
constexpr pd_meter_spec kMeter = {1000, 200, 2000, 400, PD_METER_TYPE_COLOR_AWARE};
// An add passes only the low 16 bits of an index that stands in a resource slot.
constexpr unsigned kAddIndexBits = 16;

// A value of `bits` bits (never all zero) that differs with the seed.
uint32_t pattern(unsigned bits, unsigned seed) {
  uint32_t v = (seed * 0x9E3779B1u) ^ (seed << 7) ^ 0x5A5A5A5Au;
  if (bits < 32) v &= (1u << bits) - 1;
  return v ? v : 1;
}

uint32_t ones(unsigned bits) { return bits >= 32 ? 0xFFFFFFFFu : (1u << bits) - 1; }

// Stores v in the host member at `at` of a field `bits` wide: uint8_t,
// uint16_t or uint32_t, as the public header declares it.
void store(uint8_t *at, unsigned bits, uint32_t v) {
  if (bits <= 8) {
    *at = uint8_t(v);
  } else if (bits <= 16) {
    const uint16_t h = uint16_t(v);
    std::memcpy(at, &h, sizeof h);
  } else {
    std::memcpy(at, &v, sizeof v);
  }
}

// Host records of a size known only from the descriptors, aligned for any
// member, zeroed.
struct Record {
  explicit Record(std::size_t size, uint8_t fill = 0) : words((size + 7) / 8 + 1), size(size) {
    std::memset(words.data(), fill, words.size() * 8);
  }
  uint8_t *bytes() { return reinterpret_cast<uint8_t *>(words.data()); }
  const uint8_t *bytes() const { return reinterpret_cast<const uint8_t *>(words.data()); }
  std::vector<uint64_t> words;
  std::size_t size;
};

// Bytes of a host member: its value for a scalar, its bytes for an array.
std::string shown(const uint8_t *at, std::size_t size, bool array) {
  std::ostringstream os;
  os << std::hex << "0x";
  if (array) {
    for (std::size_t i = 0; i < size; ++i) os << std::setw(2) << std::setfill('0') << unsigned(at[i]);
  } else {
    uint32_t v = 0;
    std::memcpy(&v, at, size);  // little-endian host
    os << v;
  }
  return os.str();
}

std::size_t host_size(unsigned bits) { return bits <= 8 ? 1 : bits <= 16 ? 2 : 4; }

// One member of a record compared, named in the failure.
bool differs(::testing::AssertionResult &r, const char *what, const std::string &name,
             const uint8_t *want, const uint8_t *got, std::size_t size, bool array) {
  if (std::memcmp(want, got, size) == 0) return false;
  r = ::testing::AssertionFailure() << what << " " << name << ": wrote " << shown(want, size, array)
                                    << ", read back " << shown(got, size, array);
  return true;
}

// A key read back equals the key written: field by field, with its mask or
// prefix length, then as a whole record.
::testing::AssertionResult same_key(const TableDesc &t, const Record &want, const Record &got) {
  auto r = ::testing::AssertionSuccess();
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    const std::size_t size = f.array ? f.bytes : host_size(f.bits);
    const std::size_t at = f.host_offset;
    if (differs(r, "key field", f.name, want.bytes() + at, got.bytes() + at, size, f.array)) return r;
    if (f.match == FieldMatch::Exact) continue;
    const bool lpm = f.match == FieldMatch::Lpm;
    const std::size_t pat = f.partner_offset;
    if (differs(r, "key field", std::string(f.name) + (lpm ? "_prefix_length" : "_mask"),
                want.bytes() + pat, got.bytes() + pat, lpm ? 2 : size, f.array && !lpm))
      return r;
  }
  if (std::memcmp(want.bytes(), got.bytes(), want.size) != 0)
    return ::testing::AssertionFailure() << "the key records differ outside their fields";
  return r;
}

// Parameters read back equal those written.
::testing::AssertionResult same_params(const ActionDesc &a, const Record &want, const void *got) {
  auto r = ::testing::AssertionSuccess();
  const auto *g = static_cast<const uint8_t *>(got);
  for (unsigned i = 0; i < a.num_params; ++i) {
    const auto &p = a.params[i];
    const std::size_t at = p.host_offset;
    if (differs(r, "parameter", p.name, want.bytes() + at, g + at, host_size(p.bits), false)) return r;
  }
  if (std::memcmp(want.bytes(), g, want.size) != 0)
    return ::testing::AssertionFailure() << "the action specs differ outside their parameters";
  return r;
}

// A key that stands on its own: each field set within its width, ternary
// masks all ones within it, prefixes at full length.
void fill_key(const TableDesc &t, Record &ms, unsigned seed) {
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    uint8_t *at = ms.bytes() + f.host_offset;
    if (f.array) {
      ASSERT_EQ(0u, f.bits % 8u) << f.name << ": a byte array is filled whole";
      for (unsigned b = 0; b < f.bytes; ++b) at[b] = uint8_t((seed + i) * 31 + b * 7 + 1);
    } else {
      store(at, f.bits, pattern(f.bits, seed + i));
    }
    uint8_t *partner = ms.bytes() + f.partner_offset;
    if (f.match == FieldMatch::Ternary) {
      if (f.array)
        std::memset(partner, 0xFF, f.bytes);
      else
        store(partner, f.bits, ones(f.bits));
    } else if (f.match == FieldMatch::Lpm) {
      const uint16_t full = f.bits;
      std::memcpy(partner, &full, sizeof full);
    }
  }
}

// Parameters within their widths; a slot-only index within what an add
// carries when `on_add`.
void fill_params(const ActionDesc &a, Record &as, unsigned seed, bool on_add) {
  std::memset(as.bytes(), 0, as.size);
  for (unsigned i = 0; i < a.num_params; ++i) {
    const auto &p = a.params[i];
    const bool cut = on_add && a.slot_param == int(i) && p.bits > kAddIndexBits;
    store(as.bytes() + p.host_offset, p.bits, pattern(cut ? kAddIndexBits : p.bits, seed + i));
  }
}

// What get_entry writes, preset to values it must overwrite.
struct Readback {
  explicit Readback(const TableDesc &t) : ms(t.match_spec_size, 0xEE) {
    std::memset(&spec, 0, sizeof spec);
  }
  Record ms;
  uint32_t priority = 0;
  char name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = {};
  p4_pd_orbisk_switch_action_spec_u spec;
  p4_pd_orbisk_switch_action_names_t action = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  bool is_default = true;
};

std::string full_name(const ActionDesc &a) { return std::string("p4_pd_orbisk_switch_") + a.name; }

class RoundTrip : public ::testing::TestWithParam<TableRow> {
 protected:
  void SetUp() override {
    orbisk_model_reset();
    p4_pd_orbisk_switch_init();
  }
  void TearDown() override {
    EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_cleanup());
    EXPECT_EQ(0u, orbisk_model_live_allocations()) << "a read left its resource list behind";
  }

  // The arguments every call shares, with the outputs pointed at rb.
  Call base(Readback &rb, uint32_t &count) const {
    Call c;
    c.sess_hdl = kSess;
    c.dev_tgt = {kDevice, PD_DEV_PIPE_ALL};
    c.dev_id = kDevice;
    c.priority = kPriority;
    c.meter_spec = &kMeter;
    c.ttl = kTtl;
    c.count = &count;
    c.match_spec_out.p = rb.ms.bytes();
    c.priority_out = &rb.priority;
    c.action_name = rb.name;
    c.action_spec_out = &rb.spec;
    c.action_enum = &rb.action;
    c.is_default = &rb.is_default;
    return c;
  }

  void entry_round_trip(const TableRow &row, const ActionRow &ar, unsigned seed, bool delete_by_key);
  void default_round_trip(const TableRow &row, const ActionRow &ar, unsigned seed);
};

void RoundTrip::entry_round_trip(const TableRow &row, const ActionRow &ar, unsigned seed,
                                 bool delete_by_key) {
  const TableDesc &t = *row.table;
  const ActionDesc &a = *ar.action;
  ASSERT_TRUE(ar.table_add_with && ar.table_modify_with && ar.table_modify_with_by_match_spec);
  Record ms(t.match_spec_size), as(a.spec_size);
  ASSERT_NO_FATAL_FAILURE(fill_key(t, ms, seed));
  fill_params(a, as, seed + 50, true);
  Readback rb(t);
  uint32_t count = 0;
  pd_entry_hdl hdl = 0;
  Call c = base(rb, count);
  c.match_spec.p = ms.bytes();
  c.action_spec.p = as.bytes();
  c.entry_hdl_out = &hdl;

  ASSERT_EQ(BF_SUCCESS, ar.table_add_with(c));
  ASSERT_EQ(BF_SUCCESS, row.get_entry_count(c));
  EXPECT_EQ(1u, count);

  c.entry_hdl = hdl;
  ASSERT_EQ(BF_SUCCESS, row.get_entry(c));
  EXPECT_TRUE(same_key(t, ms, rb.ms)) << "after the add";
  EXPECT_EQ(full_name(a), rb.name);
  EXPECT_EQ(a.enum_value, uint32_t(rb.action));
  EXPECT_FALSE(rb.is_default);
  if (t.ternary()) {
    EXPECT_EQ(kPriority, rb.priority);
  }
  EXPECT_TRUE(same_params(a, as, &rb.spec)) << "after the add";

  pd_entry_hdl found = 0;
  c.entry_hdl_out = &found;
  ASSERT_EQ(BF_SUCCESS, row.match_spec_to_entry_hdl(c));
  EXPECT_EQ(hdl, found);

  // Change the parameters by handle, then by key, reading back after each.
  const struct {
    Thunk modify;
    unsigned seed;
    const char *what;
  } modifies[] = {{ar.table_modify_with, seed + 100, "modify by handle"},
                  {ar.table_modify_with_by_match_spec, seed + 200, "modify by key"}};
  for (const auto &m : modifies) {
    fill_params(a, as, m.seed, false);
    ASSERT_EQ(BF_SUCCESS, m.modify(c)) << m.what;
    // Read back without asking for the name or the enum, as a caller may.
    c.action_name = nullptr;
    c.action_enum = nullptr;
    ASSERT_EQ(BF_SUCCESS, row.get_entry(c)) << m.what;
    EXPECT_TRUE(same_params(a, as, &rb.spec)) << "after " << m.what;
    EXPECT_TRUE(same_key(t, ms, rb.ms)) << "after " << m.what;
  }

  ASSERT_EQ(BF_SUCCESS, delete_by_key ? row.table_delete_by_match_spec(c) : row.table_delete(c));
  ASSERT_EQ(BF_SUCCESS, row.get_entry_count(c));
  EXPECT_EQ(0u, count) << (delete_by_key ? "after delete by key" : "after delete by handle");
  EXPECT_NE(BF_SUCCESS, row.match_spec_to_entry_hdl(c)) << "the deleted entry is still found";
}

void RoundTrip::default_round_trip(const TableRow &row, const ActionRow &ar, unsigned seed) {
  const TableDesc &t = *row.table;
  const ActionDesc &a = *ar.action;
  Record as(a.spec_size);
  fill_params(a, as, seed + 300, false);
  Readback rb(t);
  uint32_t count = 0;
  pd_entry_hdl hdl = 0, dflt = 0;
  pd_default_action_record rec;
  std::memset(&rec, 0, sizeof rec);
  Call c = base(rb, count);
  c.action_spec.p = as.bytes();
  c.entry_hdl_out = &hdl;
  c.default_out = &rec;

  ASSERT_EQ(BF_SUCCESS, ar.set_default_action(c));
  c.entry_hdl_out = &dflt;
  ASSERT_EQ(BF_SUCCESS, row.table_get_default_entry_handle(c));
  EXPECT_EQ(hdl, dflt);

  ASSERT_EQ(BF_SUCCESS, row.table_get_default_entry(c));
  EXPECT_EQ(a.enum_value, uint32_t(rec.name));
  EXPECT_TRUE(same_params(a, as, &rec.u)) << "of the default";

  // The default entry read through get_entry says it is one.
  c.entry_hdl = dflt;
  ASSERT_EQ(BF_SUCCESS, row.get_entry(c));
  if (t.keyed()) {
    EXPECT_TRUE(rb.is_default);
    EXPECT_TRUE(same_key(t, Record(t.match_spec_size), rb.ms)) << "a default entry has no key";
  }
  EXPECT_EQ(full_name(a), rb.name);
  ASSERT_EQ(BF_SUCCESS, row.table_reset_default_entry(c));
}

const TableActionDesc *use_of(const TableDesc &t, const ActionDesc *a) {
  for (unsigned i = 0; i < t.num_actions; ++i)
    if (t.actions[i].action == a) return &t.actions[i];
  return nullptr;
}

TEST_P(RoundTrip, EveryActionAndDefault) {
  const TableRow &row = GetParam();
  const TableDesc &t = *row.table;
  ASSERT_EQ(&t, orbisk::pd::find_table(t.handle));
  ASSERT_EQ(t.keyed(), row.table_delete != nullptr);
  std::size_t uses = 0;
  for (unsigned i = 0; i < t.num_actions; ++i) uses += t.actions[i].entry_use || t.actions[i].default_use;
  ASSERT_EQ(uses, row.num_actions) << "every action of the table has a row";
  // Entry actions first, deleted by key and by handle in turn; the seeds
  // differ from action to action so that no two share a key.
  unsigned seed = 1;
  for (std::size_t i = 0; i < row.num_actions; ++i) {
    const ActionRow &ar = row.actions[i];
    const TableActionDesc *use = use_of(t, ar.action);
    ASSERT_NE(nullptr, use) << ar.action->name << " is not an action of the table";
    ASSERT_EQ(use->entry_use, ar.table_add_with != nullptr) << ar.action->name;
    ASSERT_EQ(use->default_use, ar.set_default_action != nullptr) << ar.action->name;
    if (!use->entry_use) continue;
    SCOPED_TRACE(std::string("entry action ") + ar.action->name);
    entry_round_trip(row, ar, seed, seed % 2 == 1);
    ++seed;
  }
  for (std::size_t i = 0; i < row.num_actions; ++i) {
    const ActionRow &ar = row.actions[i];
    if (!ar.set_default_action) continue;
    SCOPED_TRACE(std::string("default action ") + ar.action->name);
    default_round_trip(row, ar, seed);
    ++seed;
  }
}

TEST(RoundTripRows, EveryDirectTableHasOneInCatalogueOrder) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    if (orbisk::pd::kTables[i].indirect()) continue;
    ASSERT_LT(n, kNumTableRows);
    EXPECT_EQ(&orbisk::pd::kTables[i], kTableRows[n++].table);
  }
  EXPECT_EQ(n, kNumTableRows);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, RoundTrip, ::testing::ValuesIn(kTableRows, kTableRows + kNumTableRows),
                         [](const ::testing::TestParamInfo<TableRow> &info) {
                           return std::string(info.param.table->name);
                         });

}  // namespace

// A row shows as its table in gtest's messages.
void PrintTo(const TableRow &row, std::ostream *os) { *os << row.table->name; }

}  // namespace roundtrip
