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

// Room for any match entry or member record of the model.
using Room = std::vector<uint8_t>;
Room room() { return Room(ORBISK_MODEL_PLACEMENT_MAX_BYTES, 0); }

// Points a call's fetch at `r` with a table handle the fetch must not look
// at, and checks after it that the driver was given `own`.
void fetch_into(Call &c, Room &r, uint32_t &size) {
  size = uint32_t(r.size());
  c.tbl_hdl = 0x7E57AB1Eu;
  c.plcmt_data = r.data();
  c.size = &size;
}
void expect_handle_given(pd_tbl_hdl own) {
  const orbisk_model_call *call = orbisk_model_last_call();
  ASSERT_NE(nullptr, call);
  EXPECT_EQ(own, call->args[2]) << call->function << " was not given the object's own handle";
}

// An action out record preset to what a decoder must overwrite.
p4_pd_orbisk_switch_action_specs_t preset_specs() {
  p4_pd_orbisk_switch_action_specs_t s;
  std::memset(&s, 0xEE, sizeof s);
  s.name = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  return s;
}

// The placement data of an entry (or of the default entry, `dflt`) of a
// direct table, fetched and decoded: the key written (none for a default),
// the priority, the action and its parameters; is-default for a default and
// for every record of a keyless table.
void expect_placement(const TableRow &row, Call c, const Record *ms, const ActionDesc &a,
                      const Record &as, uint32_t priority) {
  const TableDesc &t = *row.table;
  Room r = room();
  uint32_t size = 0;
  fetch_into(c, r, size);
  ASSERT_EQ(BF_SUCCESS, row.get_plcmt_data(c));
  expect_handle_given(t.handle);
  Readback rb(t);
  auto specs = preset_specs();
  const bool shown_default = ms == nullptr || !t.keyed();
  rb.is_default = !shown_default;
  rb.priority = 0xEEEEEEEE;
  c.match_spec_out.p = rb.ms.bytes();
  c.priority_out = &rb.priority;
  c.specs_out = &specs;
  c.is_default = &rb.is_default;
  ASSERT_EQ(BF_SUCCESS, row.get_entry_from_plcmt_data(c));
  EXPECT_EQ(shown_default, rb.is_default);
  if (t.keyed()) {
    EXPECT_TRUE(same_key(t, ms ? *ms : Record(t.match_spec_size), rb.ms)) << "placement key";
  }
  if (t.ternary()) {
    EXPECT_EQ(priority, rb.priority);
  }
  EXPECT_EQ(a.enum_value, uint32_t(specs.name));
  if (a.num_params) {
    EXPECT_TRUE(same_params(a, as, &specs.u)) << "placement parameters";
  }
}

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
  ASSERT_NO_FATAL_FAILURE(expect_placement(row, c, &ms, a, as, kPriority));

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
  ASSERT_NO_FATAL_FAILURE(expect_placement(row, c, nullptr, a, as, 0));
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

// ------------------------------------------ placement: profiles, selectors ---

class PlacementSweep : public ::testing::Test {
 protected:
  void SetUp() override {
    orbisk_model_reset();
    p4_pd_orbisk_switch_init();
  }
  void TearDown() override {
    EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_cleanup());
    EXPECT_EQ(0u, orbisk_model_live_allocations());
  }
  static Call base() {
    Call c;
    c.sess_hdl = kSess;
    c.dev_tgt = {kDevice, PD_DEV_PIPE_ALL};
    c.dev_id = kDevice;
    c.priority = kPriority;
    c.max_grp_size = 4;
    return c;
  }
  // A member of the profile made with one of its actions, its parameters from seed.
  static pd_mbr_hdl member(const MemberRow &mr, Record &as, unsigned seed) {
    fill_params(*mr.action, as, seed, false);
    Call c = base();
    c.action_spec.p = as.bytes();
    pd_mbr_hdl m = 0;
    c.mbr_hdl_out = &m;
    EXPECT_EQ(BF_SUCCESS, mr.add_member_with(c)) << mr.action->name;
    return m;
  }
};

TEST_F(PlacementSweep, EveryMemberOfEveryProfileAndAGroup) {
  ASSERT_EQ(orbisk::pd::kNumProfiles, kNumProfileRows);
  unsigned seed = 1;
  for (std::size_t i = 0; i < kNumProfileRows; ++i) {
    const ProfileRow &pr = kProfileRows[i];
    const orbisk::pd::ProfileDesc &p = *pr.profile;
    SCOPED_TRACE(p.name);
    ASSERT_EQ(p.num_actions, pr.num_members);
    pd_mbr_hdl last = 0;
    for (std::size_t k = 0; k < pr.num_members; ++k) {
      const ActionDesc &a = *pr.members[k].action;
      SCOPED_TRACE(a.name);
      Record as(a.spec_size);
      last = member(pr.members[k], as, seed++);
      Call c = base();
      Room r = room();
      uint32_t size = 0;
      fetch_into(c, r, size);
      c.mbr_hdl = last;
      ASSERT_EQ(BF_SUCCESS, pr.profile_get_plcmt_data(c));
      expect_handle_given(p.adt_hdl);
      // Both decoders give the same; the full one asks the state for the
      // member's resources when the action has parameters.
      for (Thunk decode : {pr.get_member_from_plcmt_data, pr.get_full_member_info_from_plcmt_data}) {
        auto specs = preset_specs();
        c.specs_out = &specs;
        orbisk_model_clear_calls();
        ASSERT_EQ(BF_SUCCESS, decode(c));
        EXPECT_EQ(a.enum_value, uint32_t(specs.name));
        if (a.num_params) {
          EXPECT_TRUE(same_params(a, as, &specs.u));
        }
        bool asked = false;
        for (std::size_t n = 0; n < orbisk_model_call_count(); ++n)
          asked |= std::string("p4_pd_ms_mbr_get_res") == orbisk_model_call_at(n)->function;
        EXPECT_EQ(decode == pr.get_full_member_info_from_plcmt_data && a.num_params != 0, asked);
      }
    }
    // A group's record is fetched, never decoded: its length tells its one member.
    pd_grp_hdl g = 0;
    Call c = base();
    c.grp_hdl_out = &g;
    ASSERT_EQ(BF_SUCCESS, pr.create_group(c));
    c.grp_hdl = g;
    c.mbr_hdl = last;
    ASSERT_EQ(BF_SUCCESS, pr.add_member_to_group(c));
    Room r = room();
    uint32_t size = 0;
    fetch_into(c, r, size);
    ASSERT_EQ(BF_SUCCESS, pr.profile_sel_get_plcmt_data(c));
    expect_handle_given(p.sel_hdl);
    EXPECT_EQ(36u + 5u, size);
  }
}

TEST_F(PlacementSweep, EveryIndirectTableByMemberByGroupAndItsDefault) {
  unsigned seed = 1;
  for (std::size_t i = 0; i < kNumIndirectRows; ++i) {
    const IndirectRow &ir = kIndirectRows[i];
    const TableDesc &t = *ir.table;
    SCOPED_TRACE(t.name);
    const ProfileRow *pr = nullptr;
    for (std::size_t k = 0; k < kNumProfileRows; ++k)
      if (kProfileRows[k].profile == t.profile) pr = &kProfileRows[k];
    ASSERT_NE(nullptr, pr);
    Record as(pr->members[0].action->spec_size);
    const pd_mbr_hdl m = member(pr->members[0], as, seed++);
    pd_grp_hdl g = 0;
    Call c = base();
    c.grp_hdl_out = &g;
    c.mbr_hdl = m;
    ASSERT_EQ(BF_SUCCESS, pr->create_group(c));
    c.grp_hdl = g;
    ASSERT_EQ(BF_SUCCESS, pr->add_member_to_group(c));

    Record by_mbr(t.match_spec_size), by_grp(t.match_spec_size);
    ASSERT_NO_FATAL_FAILURE(fill_key(t, by_mbr, seed++));
    ASSERT_NO_FATAL_FAILURE(fill_key(t, by_grp, seed++));
    pd_entry_hdl h_mbr = 0, h_grp = 0, h_dflt = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
    c.match_spec.p = by_mbr.bytes();
    c.entry_hdl_out = &h_mbr;
    ASSERT_EQ(BF_SUCCESS, ir.add_entry(c));
    c.match_spec.p = by_grp.bytes();
    c.entry_hdl_out = &h_grp;
    ASSERT_EQ(BF_SUCCESS, ir.add_entry_with_selector(c));

    // The declared default is a direct action: neither kind, so the
    // handles and flags stay as the caller left them, and the status is 0.
    const struct {
      pd_entry_hdl *hdl;
      const Record *key;
      int kind;  // 2 member, 4 group, 0 neither
    } cases[] = {{&h_dflt, nullptr, 0}, {&h_mbr, &by_mbr, 2}, {&h_grp, &by_grp, 4}, {&h_dflt, nullptr, 2}};
    for (const auto &k : cases) {
      SCOPED_TRACE(k.kind);
      if (k.key == nullptr && k.kind == 2) {
        c.entry_hdl_out = &h_dflt;
        ASSERT_EQ(BF_SUCCESS, ir.set_default_entry(c));
      }
      Room r = room();
      uint32_t size = 0;
      Call d = c;
      fetch_into(d, r, size);
      d.entry_hdl = *k.hdl;
      ASSERT_EQ(BF_SUCCESS, ir.get_plcmt_data(d));
      expect_handle_given(t.handle);
      Readback rb(t);
      pd_mbr_hdl mo = 0xEEEE;
      pd_grp_hdl go = 0xEEEE;
      bool has_mbr = k.kind != 2, has_grp = k.kind != 4;
      rb.is_default = k.key != nullptr;
      d.match_spec_out.p = rb.ms.bytes();
      d.priority_out = &rb.priority;
      d.mbr_hdl_out = &mo;
      d.grp_hdl_out = &go;
      d.has_mbr = &has_mbr;
      d.has_grp = &has_grp;
      d.is_default = &rb.is_default;
      ASSERT_EQ(BF_SUCCESS, ir.get_entry_from_plcmt_data(d));
      EXPECT_EQ(k.key == nullptr, rb.is_default);
      EXPECT_TRUE(same_key(t, k.key ? *k.key : Record(t.match_spec_size), rb.ms));
      EXPECT_EQ(k.kind == 2 ? m : 0xEEEE, mo);
      EXPECT_EQ(k.kind == 4 ? g : 0xEEEE, go);
      EXPECT_EQ(k.kind != 4, has_mbr);
      EXPECT_EQ(k.kind != 2, has_grp);
      if (t.ternary() && k.key != nullptr) {
        EXPECT_EQ(kPriority, rb.priority);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, RoundTrip, ::testing::ValuesIn(kTableRows, kTableRows + kNumTableRows),
                         [](const ::testing::TestParamInfo<TableRow> &info) {
                           return std::string(info.param.table->name);
                         });

}  // namespace

// A row shows as its table in gtest's messages.
void PrintTo(const TableRow &row, std::ostream *os) { *os << row.table->name; }

}  // namespace roundtrip
