// The program's services through the library on the driver model: hash
// calculations, parser value sets, learning digests and snapshots. Each
// family is swept over the catalogue's items by exported name; byte rules are
// checked as golden vectors on what the driver was handed.
#include <dlfcn.h>
#include <zlib.h>

#include <algorithm>
#include <numeric>
#include <string>

#include "test_support.h"

namespace {

using orbisk::pd::HashCalcDesc;
using orbisk::pd::kHashCalcs;
using orbisk::pd::kNumHashCalcs;
using Args = std::vector<uint64_t>;

constexpr uint32_t kDev = 6;
constexpr pd_status kArmed = 0x5B;


// The first n arguments of the latest call of a function.
Args head(const char *function, size_t n) {
  const Args a = last(function).args;
  return Args(a.begin(), a.begin() + std::min(n, a.size()));
}

// ------------------------------------------------------ hash calculations ---

using HashSet = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t);
using HashGet = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t *);
using SeedSet = pd_status (*)(pd_sess_hdl, uint32_t, uint64_t);
using SeedGet = pd_status (*)(pd_sess_hdl, uint32_t, uint64_t *);
using AttrSet = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t,
                              const pd_hash_calc_attribute *);
using AttrCount = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t *);
using AttrGet = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t, pd_hash_calc_attribute *,
                              uint32_t *);
using Calculate = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, const pd_hash_calc_attribute *,
                                const uint32_t *, uint8_t *, uint32_t);

template <typename F>
F hash_fn(const HashCalcDesc &h, const char *op) {
  return exported<F>(std::string("hash_calc_") + h.name + "_" + op);
}

// The stream calculate_hash_value hands the driver for these fields.
Bytes stream_of(const std::vector<uint32_t> &widths, const std::vector<uint64_t> &values) {
  std::vector<pd_hash_calc_attribute> attrs;
  for (size_t i = 0; i < values.size(); ++i) attrs.push_back({uint32_t(i), 0, values[i]});
  uint8_t out[4];
  const pd_status s = p4_pd_orbisk_switch_hash_calc_hashOuterIpv4Hdr_calculate_hash_value(
      3, kDev, uint32_t(widths.size()), attrs.data(), widths.data(), out, sizeof out);
  EXPECT_EQ(BF_SUCCESS, s);
  const Seen c = last("pipe_mgr_hash_calc_calculate_hash_value");
  EXPECT_EQ(c.args[4], (std::accumulate(widths.begin(), widths.end(), 0u) + 7) / 8);
  return handed("pipe_mgr_hash_calc_calculate_hash_value", "stream");
}

using HashStream = OnModel;

TEST_F(HashStream, FieldsMakeOneRightAlignedBigEndianBitString) {
  static const uint8_t k40[5] = {0x12, 0x34, 0x56, 0x78, 0x9A};
  static const uint8_t k33[5] = {0x01, 0x80, 0x00, 0x00, 0x01};
  static const uint8_t k128[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x01};
  struct Case {
    const char *what;
    std::vector<uint32_t> widths;
    std::vector<uint64_t> values;
    Bytes stream;
  } cases[] = {
      {"3 and 5 bits, no gap", {3, 5}, {5, 1}, {0xA1}},
      {"spare bits on top", {4, 8}, {0xF, 0xAB}, {0x0F, 0xAB}},
      {"a 12-bit field starting inside a byte", {4, 12, 4}, {1, 0xABC, 0xD}, {0x01, 0xAB, 0xCD}},
      {"no field", {}, {}, {}},
      {"32 bits through the value", {32}, {0xDEADBEEF}, {0xDE, 0xAD, 0xBE, 0xEF}},
      {"33 bits through the pointer, after 3 bits", {3, 33}, {0x5, addr(k33)},
       {0x0B, 0x80, 0x00, 0x00, 0x01}},
      {"40 bits behind 4 bits", {4, 40}, {0x7, addr(k40)}, {0x07, 0x12, 0x34, 0x56, 0x78, 0x9A}},
      {"40 bits ahead of 4 bits", {40, 4}, {addr(k40), 0x3},
       {0x01, 0x23, 0x45, 0x67, 0x89, 0xA3}},
      {"an address and a port", {128, 16}, {addr(k128), 0x1234},
       {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x01, 0x12, 0x34}},
      // A value is not cut to its width: its whole source bytes are placed.
      {"a value wider than its width spills into the field before", {4, 4}, {0x1, 0x3F}, {0x3F}},
      {"only the bytes the width needs are taken", {8, 8}, {0x00, 0x1FF}, {0x00, 0xFF}},
      {"whole-byte widths of every size", {24, 16, 8, 32},
       {0x1234567, 0x12345, 0x1FF, 0x89ABCDEF},
       {0x23, 0x45, 0x67, 0x23, 0x45, 0xFF, 0x89, 0xAB, 0xCD, 0xEF}},
      {"a spill off the top of the stream is lost", {9, 3}, {0xFFFF, 0}, {0xFF, 0xF8}},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(c.stream, stream_of(c.widths, c.values)) << c.what;
  }
  // Each stream was allocated and freed: nothing is kept between calls.
  EXPECT_EQ(0u, orbisk_model_live_allocations());
}

// The hash the library gets back equals the algorithm run here on bytes
// built by hand, for every calculation, with its own algorithm and a seed.
TEST_F(HashStream, EveryCalculationHashesTheFieldsAsZlibDoesOnTheSameBytes) {
  static const uint8_t kSip6[16] = {0xfe, 0x80, 0, 0, 0, 0, 0, 0, 0x02, 0x1b, 0x21, 0xff, 0xfe, 0x3c, 0x4d, 0x5e};
  const uint32_t widths[5] = {8, 128, 16, 16, 6};
  const pd_hash_calc_attribute attrs[5] = {
      {0, 0, 6}, {1, 0, addr(kSip6)}, {2, 0, 0xC350}, {3, 0, 443}, {4, 0, 0x2A}};
  // 174 bits: 2 spare bits on top, then the fields back to back, each
  // shifted left by the 6 bits of the last.
  const Bytes by_hand = {0x01, 0xBF, 0xA0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x86,
                         0xC8, 0x7F, 0xFF, 0x8F, 0x13, 0x57, 0xB0, 0xD4, 0x00, 0x6E, 0xEA};
  for (size_t i = 0; i < kNumHashCalcs; ++i) {
    const HashCalcDesc &h = kHashCalcs[i];
    SCOPED_TRACE(h.name);
    const uint64_t seed = 0xA5A5000000001234u + i;
    ASSERT_EQ(BF_SUCCESS, hash_fn<SeedSet>(h, "seed_set")(3, kDev, seed));
    uint8_t out[4] = {};
    ASSERT_EQ(BF_SUCCESS, hash_fn<Calculate>(h, "calculate_hash_value")(3, kDev, 5, attrs, widths,
                                                                         out, sizeof out));
    EXPECT_EQ(by_hand, handed("pipe_mgr_hash_calc_calculate_hash_value", "stream"));
    const uLong start = uint32_t(seed);
    const uint32_t want = h.algorithm_hdl == ORBISK_MODEL_HASH_CRC32
                              ? uint32_t(crc32(start, by_hand.data(), uInt(by_hand.size())))
                              : uint32_t(adler32(start, by_hand.data(), uInt(by_hand.size())));
    EXPECT_EQ(Bytes({uint8_t(want >> 24), uint8_t(want >> 16), uint8_t(want >> 8), uint8_t(want)}),
              Bytes(out, out + 4));
    EXPECT_EQ(Args({3, kDev, h.handle}), head("pipe_mgr_hash_calc_calculate_hash_value", 3));
  }
}

using HashSweep = OnModel;

TEST_F(HashSweep, ValuesBecomeTheCalculationsHandlesAndBackWithStatusThreeOnAMismatch) {
  for (size_t i = 0; i < kNumHashCalcs; ++i) {
    const HashCalcDesc &h = kHashCalcs[i];
    SCOPED_TRACE(h.name);
    const auto input_set = hash_fn<HashSet>(h, "input_set");
    const auto algorithm_set = hash_fn<HashSet>(h, "algorithm_set");
    const auto input_get = hash_fn<HashGet>(h, "input_get");
    const auto algorithm_get = hash_fn<HashGet>(h, "algorithm_get");
    // Value 0 is the calculation's own handle; any other is handle 0, which
    // the driver refuses with its own status.
    EXPECT_EQ(BF_SUCCESS, input_set(3, kDev, 0));
    EXPECT_EQ(Args({3, kDev, h.handle, h.input_hdl}), last("pipe_mgr_hash_calc_input_set").args);
    EXPECT_EQ(ORBISK_MODEL_NOT_OF_HASH, input_set(3, kDev, 1));
    EXPECT_EQ(Args({3, kDev, h.handle, 0}), last("pipe_mgr_hash_calc_input_set").args);
    EXPECT_EQ(BF_SUCCESS, algorithm_set(3, kDev, 0));
    EXPECT_EQ(Args({3, kDev, h.handle, h.algorithm_hdl, 0, 0}),
              last("pipe_mgr_hash_calc_algorithm_set").args);
    EXPECT_EQ(ORBISK_MODEL_NOT_OF_HASH, algorithm_set(3, kDev, 7));
    EXPECT_EQ(0u, last("pipe_mgr_hash_calc_algorithm_set").args[3]);

    uint32_t v = 0xEE;
    EXPECT_EQ(BF_SUCCESS, input_get(3, kDev, &v));
    EXPECT_EQ(0u, v);
    v = 0xEE;
    EXPECT_EQ(BF_SUCCESS, algorithm_get(3, kDev, &v));
    EXPECT_EQ(0u, v);
    EXPECT_EQ(0u, last("pipe_mgr_hash_calc_algorithm_get").args[4]);
    EXPECT_EQ(0u, last("pipe_mgr_hash_calc_algorithm_get").args[5]);
    // A driver that fails without writing the handle: 3, not its status, and
    // the caller's place untouched.
    for (const char *f : {"pipe_mgr_hash_calc_input_get", "pipe_mgr_hash_calc_algorithm_get"}) {
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail(f, 1, kArmed));
      v = 0xEE;
      const bool input = std::strstr(f, "input") != nullptr;
      EXPECT_EQ(PD_STATUS_HASH_HANDLE_MISMATCH, (input ? input_get : algorithm_get)(3, kDev, &v));
      EXPECT_EQ(0xEEu, v);
    }

    uint64_t seed = 0;
    EXPECT_EQ(BF_SUCCESS, hash_fn<SeedSet>(h, "seed_set")(3, kDev, 0x0123456789ABCDEFu));
    EXPECT_EQ(BF_SUCCESS, hash_fn<SeedGet>(h, "seed_get")(3, kDev, &seed));
    EXPECT_EQ(0x0123456789ABCDEFu, seed);
    EXPECT_EQ(h.handle, last("pipe_mgr_hash_calc_seed_get").args[2]);
  }
}

TEST_F(HashSweep, AttributesGoAsDriverRecordsAndComeBackAsTheCallersWithTheirRules) {
  for (size_t i = 0; i < kNumHashCalcs; ++i) {
    const HashCalcDesc &h = kHashCalcs[i];
    SCOPED_TRACE(h.name);
    const auto set = hash_fn<AttrSet>(h, "input_field_attribute_set");
    const auto count_get = hash_fn<AttrCount>(h, "input_field_attribute_count_get");
    const auto get = hash_fn<AttrGet>(h, "input_field_attribute_get");
    const pd_hash_calc_attribute in[2] = {{4, 2, 0xFFFFFFFF00000007u}, {0, 1, 0x12345678u}};
    const size_t allocs = orbisk_model_allocation_count();
    ASSERT_EQ(BF_SUCCESS, set(3, kDev, 0, 2, in));
    EXPECT_EQ(allocs + 1, orbisk_model_allocation_count());
    EXPECT_EQ(Args({3, kDev, h.handle, h.input_hdl, 2}),
              head("pipe_mgr_hash_calc_input_field_attribute_set", 5));
    const Bytes recs = handed("pipe_mgr_hash_calc_input_field_attribute_set", "attrs");
    ASSERT_EQ(64u, recs.size());
    // input_field, 0, 0, input_field + 1, attr_type, padding, low 32 bits.
    const Bytes first = {4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5, 0, 0, 0,
                         2, 0, 0, 0, 0, 0, 0, 0, 7, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(first, Bytes(recs.begin(), recs.begin() + 32));
    EXPECT_EQ(1u, recs[32 + 12]);  // field_id of input field 0

    uint32_t n = 0xEE;
    EXPECT_EQ(BF_SUCCESS, count_get(3, kDev, 0, &n));
    EXPECT_EQ(2u, n);
    n = 0xEE;
    EXPECT_EQ(PD_STATUS_HASH_HANDLE_MISMATCH, count_get(3, kDev, 1, &n));
    EXPECT_EQ(0xEEu, n);

    pd_hash_calc_attribute out[3];
    std::memset(out, 0xCC, sizeof out);
    EXPECT_EQ(BF_SUCCESS, get(3, kDev, 0, 3, out, &n));
    ASSERT_EQ(2u, n);
    EXPECT_EQ(4u, out[0].input_field);
    EXPECT_EQ(2u, out[0].attr_type);
    EXPECT_EQ(7u, out[0].value);
    EXPECT_EQ(0x12345678u, out[1].value);
    EXPECT_EQ(0xCCCCCCCCu, out[2].input_field);
    // Capacity 0: the count is 0 and nothing is read, but the input is asked.
    orbisk_model_clear_calls();
    n = 0xEE;
    EXPECT_EQ(BF_SUCCESS, get(3, kDev, 0, 0, out, &n));
    EXPECT_EQ(0u, n);
    EXPECT_EQ(1u, calls_of("pipe_mgr_hash_calc_input_get"));
    EXPECT_EQ(0u, calls_of("pipe_mgr_hash_calc_input_field_attribute_get"));
    n = 0xEE;
    EXPECT_EQ(PD_STATUS_HASH_HANDLE_MISMATCH, get(3, kDev, 2, 3, out, &n));
    EXPECT_EQ(0u, n);
    // A failing read: its status, the count 0, the array given back.
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_hash_calc_input_field_attribute_get", 1, kArmed));
    n = 0xEE;
    EXPECT_EQ(kArmed, get(3, kDev, 0, 3, out, &n));
    EXPECT_EQ(0u, n);
    EXPECT_EQ(0u, orbisk_model_live_allocations());
    // Count 0: a null array, and nothing allocated.
    const size_t before = orbisk_model_allocation_count();
    EXPECT_EQ(BF_SUCCESS, set(3, kDev, 0, 0, nullptr));
    EXPECT_EQ(before, orbisk_model_allocation_count());
    EXPECT_EQ(0u, last("pipe_mgr_hash_calc_input_field_attribute_set").args[5]);
    EXPECT_EQ(BF_SUCCESS, count_get(3, kDev, 0, &n));
    EXPECT_EQ(0u, n);
  }
}

// ------------------------------------------------------ parser value sets ---

using orbisk::pd::kNumValueSets;
using orbisk::pd::kValueSets;
using orbisk::pd::ValueSetDesc;

template <typename F>
F pvs_fn(const ValueSetDesc &v, const char *op) {
  return exported<F>(std::string("pvs_") + v.name + "_" + op);
}

using ValueSets = OnModel;

// Every set, through a whole life: properties with their argument record,
// entries added in a scope and found, walked, counted, changed, read and
// deleted, with the key and mask passed through and the parser id one byte.
TEST_F(ValueSets, EverySetForwardsWithItsHandleAndTheTargetTakenApart) {
  using SetProp = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t);
  using GetProp = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t *, uint32_t);
  using Add = pd_status (*)(pd_sess_hdl, pd_parser_target, uint32_t, uint32_t, pd_entry_hdl *);
  using Modify = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t, uint32_t);
  using Delete = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl);
  using Get = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t *, uint32_t *);
  using First = pd_status (*)(pd_sess_hdl, pd_parser_target, pd_entry_hdl *);
  using Next = pd_status (*)(pd_sess_hdl, pd_parser_target, pd_entry_hdl, uint32_t, pd_entry_hdl *);
  using Count = pd_status (*)(pd_sess_hdl, pd_parser_target, uint8_t, uint32_t *);
  for (size_t i = 0; i < kNumValueSets; ++i) {
    const ValueSetDesc &v = kValueSets[i];
    SCOPED_TRACE(v.name);
    const uint32_t H = v.handle;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<SetProp>(v, "set_property")(3, kDev, 2, 0x77, 0x89ABCDEF));
    EXPECT_EQ(Args({3, kDev, H, 2, 0x77, 0}), last("pipe_mgr_pvs_set_property").args);
    EXPECT_EQ(Bytes({0xEF, 0xCD, 0xAB, 0x89, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              handed("pipe_mgr_pvs_set_property", "args"));
    uint32_t value = 0;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<GetProp>(v, "get_property")(3, kDev, 2, &value, 5));
    EXPECT_EQ(0x77u, value);
    EXPECT_EQ(Bytes({5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              handed("pipe_mgr_pvs_get_property", "args"));
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_pvs_get_property", 1, kArmed));
    EXPECT_EQ(kArmed, pvs_fn<GetProp>(v, "get_property")(3, kDev, 2, &value, 5));
    EXPECT_EQ(0xFFFFFFFFu, value);

    pd_parser_target tgt{kDev, 1, 2, 0, {}};
    const int wide_parser = 0x1FF;
    tgt.parser_id = uint8_t(wide_parser);
    pd_entry_hdl a = 0, b = 0;
    ASSERT_EQ(BF_SUCCESS, pvs_fn<Add>(v, "entry_add")(3, tgt, 0x12345678, 0xFFFF0000, &a));
    EXPECT_EQ(Args({3, kDev, H, 1, 2, 0xFF, 0x12345678, 0xFFFF0000, last("pipe_mgr_pvs_entry_add").args[8]}),
              last("pipe_mgr_pvs_entry_add").args);
    ASSERT_EQ(BF_SUCCESS, pvs_fn<Add>(v, "entry_add")(3, tgt, 0x1, 0xF, &b));
    EXPECT_EQ(ORBISK_MODEL_ENTRY_EXISTS, pvs_fn<Add>(v, "entry_add")(3, tgt, 0x1, 0xF, &b));
    pd_entry_hdl found = 0;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Add>(v, "entry_handle_get")(3, tgt, 0x12345678, 0xFFFF0000, &found));
    EXPECT_EQ(a, found);
    EXPECT_EQ(BF_SUCCESS, pvs_fn<First>(v, "entry_get_first_entry_handle")(3, tgt, &found));
    EXPECT_EQ(a, found);
    pd_entry_hdl next[3] = {};
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Next>(v, "entry_get_next_entry_handles")(3, tgt, a, 3, next));
    EXPECT_EQ(b, next[0]);
    EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, next[1]);
    EXPECT_EQ(Args({3, kDev, H, 1, 2, 0xFF, a, 3, addr(next)}),
              last("pipe_mgr_pvs_entry_get_next").args);
    uint32_t count = 0;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Count>(v, "entry_get_count")(3, tgt, 1, &count));
    EXPECT_EQ(2u, count);
    EXPECT_EQ(1u, last("pipe_mgr_pvs_entry_get_count").args[6]);
    pd_parser_target other = tgt;
    other.gress = 0;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Count>(v, "entry_get_count")(3, other, 0, &count));
    EXPECT_EQ(0u, count);

    EXPECT_EQ(BF_SUCCESS, pvs_fn<Modify>(v, "entry_modify")(3, kDev, b, 0xA0B0C0D0, 0xFFFFFFFF));
    EXPECT_EQ(Args({3, kDev, H, b, 0xA0B0C0D0, 0xFFFFFFFF}), last("pipe_mgr_pvs_entry_modify").args);
    uint32_t key = 0, mask = 0;
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Get>(v, "entry_get")(3, kDev, b, &key, &mask));
    EXPECT_EQ(0xA0B0C0D0u, key);
    EXPECT_EQ(0xFFFFFFFFu, mask);
    const Args got = last("pipe_mgr_pvs_entry_get").args;
    EXPECT_EQ(Args({0, 0, 0}), Args(got.begin() + 6, got.end()));

    EXPECT_EQ(BF_SUCCESS, pvs_fn<Delete>(v, "entry_delete")(3, kDev, a));
    EXPECT_EQ(Args({3, kDev, H, a}), last("pipe_mgr_pvs_entry_delete").args);
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pvs_fn<Delete>(v, "entry_delete")(3, kDev, a));
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pvs_fn<Get>(v, "entry_get")(3, kDev, a, &key, &mask));
    // A failure of the driver is its own status, untouched.
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_pvs_entry_delete", 1, kArmed));
    EXPECT_EQ(kArmed, pvs_fn<Delete>(v, "entry_delete")(3, kDev, b));
    EXPECT_EQ(BF_SUCCESS, pvs_fn<Delete>(v, "entry_delete")(3, kDev, b));
  }
}

// ------------------------------------------------------- learning digests ---

uint32_t digest_hdl(std::string_view name) {
  for (size_t i = 0; i < orbisk::pd::kNumDigests; ++i) {
    if (name == orbisk::pd::kDigests[i].name) return orbisk::pd::kDigests[i].handle;
  }
  ADD_FAILURE() << "no digest " << name;
  return 0;
}

// A big-endian field of an entry, read where it lies, aligned or not.
uint64_t field(void *entry, const char *digest, const char *name, uint32_t want_size) {
  uint32_t size = 0;
  const auto *p = static_cast<const uint8_t *>(
      p4_pd_orbisk_switch_get_digest_entry_field(entry, digest, name, &size));
  EXPECT_EQ(want_size, size) << name;
  uint64_t v = 0;
  for (uint32_t i = 0; i < size && i < 8; ++i) v = v << 8 | p[i];
  return v;
}

struct Inbox {
  std::vector<pd_lrn_digest_msg *> msgs;
  pd_sess_hdl sess = 0;
};

pd_status on_digest(pd_sess_hdl sess, pd_lrn_digest_msg *msg, void *cookie) {
  auto *in = static_cast<Inbox *>(cookie);
  in->sess = sess;
  in->msgs.push_back(msg);
  return BF_SUCCESS;
}

using Digests = OnModel;

TEST_F(Digests, SizesAndFieldPlacesByNameUnalignedAsTheLayoutSays) {
  const std::pair<const char *, uint32_t> sizes[] = {
      {"macLearningDigest", 14}, {"vtepLearningDigest", 36}, {"", 0}, {"VtepLearningDigest", 0}};
  for (const auto &[name, size] : sizes) EXPECT_EQ(size, p4_pd_orbisk_switch_get_digest_entry_size(name)) << name;
  struct Place {
    const char *digest, *field;
    uint32_t offset, size;
  } places[] = {{"macLearningDigest", "ingMd_ingL2Domain", 8, 2},
                {"vtepLearningDigest", "ingMd_ingL2Domain", 0, 2},
                {"macLearningDigest", "ingMd_ingL2Aintf", 10, 4},
                {"vtepLearningDigest", "innerEthHdr_smacOui", 2, 4},
                {"vtepLearningDigest", "outerIpv6Hdr_sip", 14, 16},
                {"vtepLearningDigest", "vxlanHdr_vniReserved", 35, 1}};
  uint8_t entry[36];
  for (const Place &p : places) {
    uint32_t size = 0;
    EXPECT_EQ(entry + p.offset,
              p4_pd_orbisk_switch_get_digest_entry_field(entry, p.digest, p.field, &size))
        << p.field;
    EXPECT_EQ(p.size, size) << p.field;
  }
  // A field name is a constant of the caller's code: a miss ends the process.
  uint32_t size = 0;
  EXPECT_DEATH(p4_pd_orbisk_switch_get_digest_entry_field(entry, "vtepLearningDigest",
                                                          "ingMd_smacOui", &size),
               "src/pd:[0-9]+: p4_pd_orbisk_switch_get_digest_entry_field: Assertion `0' failed");
  EXPECT_DEATH(p4_pd_orbisk_switch_get_digest_entry_field(entry, "macDigest", "ingMd_smacOui", &size),
               "Assertion `0' failed");
}

// A MAC learned by the model reaches the callback registered through the
// library, after the learning timeout, packed in the program's layout; it is
// read field by field and acknowledged once.
TEST_F(Digests, ALearnedMacIsDeliveredAfterTheTimeoutReadByNameAndAcknowledgedOnce) {
  const uint32_t mac = digest_hdl("macLearningDigest");
  Inbox in;
  const int wide_dev = 256 + kDev;  // one byte of it reaches the driver
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_macLearningDigest_register(7, uint8_t(wide_dev), on_digest, &in));
  EXPECT_EQ(Args({7, kDev, mac, addr(reinterpret_cast<const void *>(on_digest)), addr(&in)}),
            last("pipe_mgr_lrn_digest_notification_register").args);
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_set_learning_timeout(7, uint8_t(wide_dev), 100));
  EXPECT_EQ(Args({7, kDev, 100}), last("pipe_mgr_flow_lrn_set_timeout").args);

  const uint64_t learned[4] = {0x001b21, 0x3c4d5e, 0x0123, 0x000ABCDE};
  ASSERT_EQ(BF_SUCCESS, orbisk_model_learn(kDev, mac, learned, 4));
  ASSERT_EQ(BF_SUCCESS, orbisk_model_learn(kDev, mac, learned, 4));
  orbisk_model_advance_time(99);
  EXPECT_TRUE(in.msgs.empty());
  EXPECT_EQ(2u, orbisk_model_digests_pending(kDev, mac));
  orbisk_model_advance_time(1);
  ASSERT_EQ(1u, in.msgs.size());
  pd_lrn_digest_msg *msg = in.msgs[0];
  EXPECT_EQ(7u, in.sess);
  EXPECT_EQ(2u, msg->num_entries);
  ASSERT_EQ(p4_pd_orbisk_switch_get_digest_entry_size("macLearningDigest"), msg->entry_bytes);
  // The layout's bytes, the 4-byte interface at the unaligned offset 10.
  EXPECT_EQ(Bytes({0x00, 0x00, 0x1b, 0x21, 0x00, 0x3c, 0x4d, 0x5e, 0x01, 0x23, 0x00, 0x0A, 0xBC, 0xDE}),
            Bytes(msg->entries + 14, msg->entries + 28));
  EXPECT_EQ(0x3c4d5eu, field(msg->entries, "macLearningDigest", "ingMd_smacStation", 4));
  EXPECT_EQ(0x0123u, field(msg->entries, "macLearningDigest", "ingMd_ingL2Domain", 2));
  EXPECT_EQ(0x000ABCDEu, field(msg->entries + 14, "macLearningDigest", "ingMd_ingL2Aintf", 4));

  EXPECT_EQ(1u, orbisk_model_digests_unacked(kDev, mac));
  // The message goes back under its own digest only, and only once.
  EXPECT_EQ(ORBISK_MODEL_NOT_DELIVERED, p4_pd_orbisk_switch_vtepLearningDigest_notify_ack(7, msg));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_macLearningDigest_notify_ack(7, msg));
  EXPECT_EQ(Args({7, mac, addr(msg)}), last("pipe_mgr_flow_lrn_notify_ack").args);
  EXPECT_EQ(0u, orbisk_model_digests_unacked(kDev, mac));
  EXPECT_EQ(ORBISK_MODEL_NOT_DELIVERED, p4_pd_orbisk_switch_macLearningDigest_notify_ack(7, msg));

  // Values that do not fit, and the wrong count, are refused and kept nowhere.
  const uint64_t too_wide[4] = {0x1'0000'0000, 0, 0, 0};
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, orbisk_model_learn(kDev, mac, too_wide, 4));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, orbisk_model_learn(kDev, mac, learned, 3));
  EXPECT_EQ(0u, orbisk_model_digests_pending(kDev, mac));
  // A deregistered digest is not delivered: its pending entries go too.
  ASSERT_EQ(BF_SUCCESS, orbisk_model_learn(kDev, mac, learned, 4));
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_macLearningDigest_deregister(7, kDev));
  EXPECT_EQ(Args({7, kDev, mac}), last("pipe_mgr_lrn_digest_notification_deregister").args);
  orbisk_model_advance_time(1000);
  EXPECT_EQ(1u, in.msgs.size());
  EXPECT_EQ(ORBISK_MODEL_NOT_SUBSCRIBED, orbisk_model_learn(kDev, mac, learned, 4));
  EXPECT_EQ(ORBISK_MODEL_NOT_SUBSCRIBED, p4_pd_orbisk_switch_macLearningDigest_deregister(7, kDev));
}

TEST_F(Digests, AVtepEntryPacksItsSixteenByteAddressAndOneByteFields) {
  const uint32_t vtep = digest_hdl("vtepLearningDigest");
  Inbox in;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_vtepLearningDigest_register(1, kDev, on_digest, &in));
  // Ten values for nine fields: the IPv6 address is two words.
  const uint64_t learned[10] = {0x0042, 0x001b21, 0x3c4d5e, 0x0a000001, 0x20010db800000000u, 1,
                                0x86DD, 0x0012, 0x34, 0x00};
  ASSERT_EQ(BF_SUCCESS, orbisk_model_learn(kDev, vtep, learned, 10));
  ASSERT_EQ(1u, in.msgs.size());  // no timeout set: at once
  uint8_t *e = in.msgs[0]->entries;
  EXPECT_EQ(0x0a000001u, field(e, "vtepLearningDigest", "outerIpv4Hdr_sip", 4));
  EXPECT_EQ(0x20010db800000000u, field(e, "vtepLearningDigest", "outerIpv6Hdr_sip", 16));
  EXPECT_EQ(1u, e[29]);
  EXPECT_EQ(0x86DDu, field(e, "vtepLearningDigest", "outerEthHdr_etherType", 2));
  EXPECT_EQ(0x34u, field(e, "vtepLearningDigest", "ingMd_ingressVniLow", 1));
  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_vtepLearningDigest_notify_ack(1, in.msgs[0]));
  // A driver failure is the caller's, untouched.
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_flow_lrn_notify_ack", 1, kArmed));
  EXPECT_EQ(kArmed, p4_pd_orbisk_switch_vtepLearningDigest_notify_ack(1, in.msgs[0]));
}

// -------------------------------------------------------------- snapshots ---

using Record = p4_pd_orbisk_switch_snapshot_record_t;
using orbisk::pd::kSnapshotLayouts;

// A record whose every byte differs from its neighbours.
Record pattern(uint8_t seed) {
  Record r;
  for (size_t i = 0; i < sizeof r.bytes; ++i) r.bytes[i] = uint8_t(seed + i * 7);
  return r;
}

using Snapshots = OnModel;

// Over the whole record and both layouts: exactly the layout's fields are
// reversed, in value and mask alike, and every other byte is as given.
TEST_F(Snapshots, TheTriggerIsSwappedFieldByFieldOverTheWholeRecord) {
  const Record value = pattern(1), mask = pattern(100);
  const Record value_before = value, mask_before = mask;
  for (uint32_t direction : {0u, 1u}) {
    SCOPED_TRACE(direction);
    uint32_t hdl = 0;
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_create({kDev, 1}, 2, 5, direction, &hdl));
    ASSERT_EQ(direction, (hdl >> 1) & 1u);
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_capture_trigger_set(hdl, &value, &mask));
    EXPECT_EQ(0, std::memcmp(&value, &value_before, sizeof value));
    EXPECT_EQ(0, std::memcmp(&mask, &mask_before, sizeof mask));
    for (const auto &[name, given] : {std::pair{"value", value}, std::pair{"mask", mask}}) {
      const Bytes sent = handed("bf_snapshot_capture_trigger_set", name);
      ASSERT_EQ(sizeof(Record), sent.size());
      Bytes want(given.bytes, given.bytes + sizeof given.bytes);
      const auto &layout = kSnapshotLayouts[direction];
      for (uint16_t i = 0; i < layout.num_fields; ++i) {
        std::reverse(want.begin() + layout.fields[i].offset,
                     want.begin() + layout.fields[i].offset + layout.fields[i].bytes);
      }
      EXPECT_EQ(want, sent) << name;
      // The golden corners: offset 0 is one 2-byte field without bit 1 and
      // one 4-byte field with it; byte 4 is in neither layout.
      if (direction == 0) {
        EXPECT_EQ(Bytes({given.bytes[1], given.bytes[0], given.bytes[3], given.bytes[2]}),
                  Bytes(sent.begin(), sent.begin() + 4));
      } else {
        EXPECT_EQ(Bytes({given.bytes[3], given.bytes[2], given.bytes[1], given.bytes[0]}),
                  Bytes(sent.begin(), sent.begin() + 4));
      }
      EXPECT_EQ(given.bytes[4], sent[4]);
    }
    EXPECT_EQ(ORBISK_MODEL_SNAPSHOT_ARMED, orbisk_model_snapshot_state(hdl));
  }
}

TEST_F(Snapshots, ALifeFromCreateToDeleteWithTheCaptureCopiedAsTheDriverMadeIt) {
  uint32_t hdl = 0;
  // The pipe is bits 32 to 47 of the target word: all pipes reach the driver whole.
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_create({kDev, PD_DEV_PIPE_ALL}, 0, 20, 0, &hdl));
  EXPECT_EQ(Args({kDev, 0xFFFF, 0, 20, 0, last("bf_snapshot_create").args[5]}), last("bf_snapshot_create").args);
  Record value = pattern(3), mask;
  std::memset(mask.bytes, 0xFF, sizeof mask.bytes);
  mask.bytes[4] = 0x0F;
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_capture_trigger_set(hdl, &value, &mask));

  static Record captures[P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES + 1];
  std::memset(captures, 0xEE, sizeof captures);
  pd_snapshot_capture_ctrl ctrl{};
  uint32_t count = 99;
  // Nothing captured yet: nothing copied, the capture's status.
  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_capture_data_get(hdl, 1, captures, &ctrl, &count));
  EXPECT_EQ(0u, count);
  EXPECT_EQ(0xEEu, captures[0].bytes[0]);

  ASSERT_EQ(BF_SUCCESS, orbisk_model_snapshot_trigger(hdl));
  // 21 stages captured: exactly 20 records reach the caller.
  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_capture_data_get(hdl, 1, captures, &ctrl, &count));
  EXPECT_EQ(21u, count);
  EXPECT_EQ(21u, ctrl.num_captured);
  EXPECT_EQ(20u, ctrl.end_stage);
  const Bytes sent = handed("bf_snapshot_capture_trigger_set", "value");
  for (size_t i = 0; i < P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES; ++i) {
    // Not swapped back: the driver's bytes, masked by the model's capture.
    EXPECT_EQ(Bytes(sent.begin() + 5, sent.end()), Bytes(captures[i].bytes + 5, captures[i].bytes + sizeof(Record))) << i;
    EXPECT_EQ(uint8_t(sent[4] & 0x0F), captures[i].bytes[4]);
  }
  EXPECT_EQ(0xEEu, captures[P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES].bytes[0]);
  EXPECT_EQ(ORBISK_MODEL_SNAPSHOT_READ, orbisk_model_snapshot_state(hdl));
  EXPECT_EQ(0u, orbisk_model_live_allocations());

  // The library's own statuses: 2 when it cannot allocate, the count still 0;
  // and a driver failure of the capture comes after the copy.
  orbisk_model_fail_allocation(1);
  count = 99;
  EXPECT_EQ(PD_STATUS_NO_MEMORY, p4_pd_orbisk_switch_snapshot_capture_data_get(hdl, 1, captures, &ctrl, &count));
  EXPECT_EQ(0u, count);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("bf_snapshot_capture_get", 1, kArmed));
  std::memset(captures, 0xEE, sizeof captures);
  EXPECT_EQ(kArmed, p4_pd_orbisk_switch_snapshot_capture_data_get(hdl, 1, captures, &ctrl, &count));
  EXPECT_EQ(0u, captures[0].bytes[0]);  // an empty block, copied all the same
  EXPECT_EQ(0u, orbisk_model_live_allocations());
  // A record size the records cannot be placed by: the size call failed and
  // left it 0.
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("bf_snapshot_capture_phv_fields_dict_size", 1, kArmed));
  EXPECT_EQ(PD_STATUS_SNAPSHOT_RECORD_SIZE,
            p4_pd_orbisk_switch_snapshot_capture_data_get(hdl, 1, captures, &ctrl, &count));

  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_snapshot_delete(hdl));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_SNAPSHOT, p4_pd_orbisk_switch_snapshot_delete(hdl));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_SNAPSHOT, p4_pd_orbisk_switch_snapshot_capture_trigger_set(hdl, &value, &mask));
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_orbisk_switch_snapshot_create({kDev, 0}, 5, 4, 0, &hdl));
}

}  // namespace
