// The engine under the generated entry points: byte packing of keys and action
// data, resource slots, assertions, and the shared shape of entry reads. The
// generated code names its constants and calls these; everything that is the
// same for every table is written here once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

#define PD_EXPORT extern "C" __attribute__((visibility("default")))
// For an exported object defined here: C linkage without an extern initializer.
#define PD_EXPORT_DATA __attribute__((visibility("default")))

namespace orbisk::pd {

// Room offered to the driver for action data on a read: the largest
// parameter string of the program, the same for every direct table.
inline constexpr uint16_t kReadActionDataBytes = 28;

// Room for the longest key of the program on a read; every table's key size
// is checked against it where its read descriptor is generated.
inline constexpr unsigned kMaxKeyBytes = 64;

// Name of the source that assertions report.
inline constexpr const char *kSourcePath = "bf_orbisk_switch_nat_vxlan/src/pd";

// ---------------------------------------------------------------- bytes ---

// Writes the low N bytes of v most significant first; higher bytes drop.
template <unsigned N>
inline void put_be(uint8_t *p, uint32_t v) {
  static_assert(N >= 1 && N <= 4);
  if constexpr (N == 4) {
    uint32_t be = __builtin_bswap32(v);
    std::memcpy(p, &be, 4);
  } else if constexpr (N == 3) {
    p[0] = uint8_t(v >> 16);
    p[1] = uint8_t(v >> 8);
    p[2] = uint8_t(v);
  } else if constexpr (N == 2) {
    uint16_t be = __builtin_bswap16(uint16_t(v));
    std::memcpy(p, &be, 2);
  } else {
    p[0] = uint8_t(v);
  }
}

// Reads N bytes most significant first into the low bytes of a word.
template <unsigned N>
inline uint32_t get_be(const uint8_t *p) {
  static_assert(N >= 1 && N <= 4);
  if constexpr (N == 4) {
    uint32_t be;
    std::memcpy(&be, p, 4);
    return __builtin_bswap32(be);
  } else if constexpr (N == 3) {
    return uint32_t(p[0]) << 16 | uint32_t(p[1]) << 8 | p[2];
  } else if constexpr (N == 2) {
    uint16_t be;
    std::memcpy(&be, p, 2);
    return __builtin_bswap16(be);
  } else {
    return p[0];
  }
}

// AND n bytes of value with the mask at the same place.
inline void and_bytes(uint8_t *value, const uint8_t *mask, unsigned n) {
  for (unsigned i = 0; i < n; ++i) value[i] &= mask[i];
}

// Keeps only the low (bits mod 8) bits of a field's top mask byte; a field
// whose width is a whole number of bytes is left alone.
template <unsigned Bits>
inline void cut_top_byte(uint8_t *mask_field) {
  if constexpr (Bits % 8 != 0) mask_field[0] &= uint8_t((1u << (Bits % 8)) - 1);
}

// Prefix packing of one field of W bits at value/mask: clears the low W-P
// bits of the mask and ANDs the value with it. Returns the priority W-P, or
// key_bits+1 for a prefix longer than the field (mask and value untouched).
template <unsigned W, unsigned KeyBits>
inline uint32_t pack_prefix(uint8_t *value, uint8_t *mask, uint16_t prefix_length) {
  if (prefix_length > W) return KeyBits + 1;
  unsigned host_bits = W - prefix_length;
  constexpr unsigned n = W / 8;
  unsigned whole = host_bits / 8;
  std::memset(mask + n - whole, 0, whole);
  if (host_bits % 8) mask[n - whole - 1] = uint8_t(0xFFu << (host_bits % 8));
  and_bytes(value, mask, n);
  return host_bits;
}

// Prefix length of a field of W bits from its mask: W minus the place of the
// lowest set bit; 0 when no bit is set. Holes are not looked for.
template <unsigned W>
inline uint16_t prefix_length_of(const uint8_t *mask) {
  constexpr unsigned n = W / 8;
  for (unsigned b = 0; b < W; ++b) {
    if (mask[n - 1 - b / 8] & (1u << (b % 8))) return uint16_t(W - b);
  }
  return 0;
}

// ------------------------------------------------------------- records ---

// A key record with its two strings, all on the caller's stack.
template <unsigned N>
struct KeyBuf {
  pd_match_record rec;
  uint8_t value[N ? N : 1];
  uint8_t mask[N ? N : 1];
};

// An action record with its data string, on the caller's stack.
template <unsigned N>
struct ActBuf {
  pd_action_record rec;
  uint8_t data[N ? N : 1];
};

// Zero-fills a driver record with plain 16-byte stores. A memset of the
// 320-byte action record becomes a string instruction under g++ whose
// start-up costs more than the whole rest of an add; the bytes are the same.
template <typename Record>
inline void zero_record(Record &rec) {
  static_assert(sizeof(Record) % 16 == 0);
  typedef uint64_t zero16 __attribute__((vector_size(16), may_alias, aligned(8)));
  const zero16 z = {0, 0};
  auto *p = reinterpret_cast<unsigned char *>(&rec);
#pragma GCC unroll 32
  for (unsigned i = 0; i < sizeof rec; i += 16) std::memcpy(p + i, &z, 16);
}

// Zero-fills an action record of a direct entry and points it at its data,
// which the action's packer then writes in full.
template <unsigned N, unsigned Bits>
inline void begin_action(ActBuf<N> &a) {
  zero_record(a.rec);
  a.rec.record_kind = PD_RECORD_KIND_DIRECT;
  a.rec.num_valid_bits = Bits;
  a.rec.num_bytes = N;
  a.rec.data_bytes = a.data;
}

// The one resource slot of a table that carries a resource.
inline void set_slot(pd_action_record &rec, uint32_t resource_hdl, uint32_t tag,
                     uint32_t index = 0) {
  rec.resource_count = 1;
  rec.resources[0].resource_hdl = resource_hdl;
  rec.resources[0].resource_index = index;
  rec.resources[0].resource_tag = tag;
}

// Fills the slot of a direct byte meter from a caller's meter spec.
void set_direct_meter_slot(pd_action_record &rec, uint32_t meter_hdl,
                           const pd_meter_spec &spec);

// Meter type of a byte meter as the driver wants it; logs a bad type.
uint32_t get_bytes_meter_type(uint32_t meter_type, bool has_pre_color);

// List of attached resources of a record read back (tag 1 slots), allocated
// with bf_sys_calloc when resource_count is nonzero; freed by the caller.
void build_pd_res_spec(const pd_action_record *rec, pd_resource_index **list, uint32_t *count);

// Value of a parameter that stands only in a resource slot, read back.
uint32_t resource_index_of(const pd_resource_index *list, uint32_t count, uint32_t resource_hdl);

// ---------------------------------------------------------- assertions ---

// The soft path: in debug mode logs a backtrace and ends the process; else
// logs one line in the given format (expression text built in) and returns.
void pd_assert_failed(const char *expr, const char *format, const char *function, int line);
// The hard path: always ends the process.
[[noreturn]] void pd_hard_assert_failed(const char *expr, const char *function, int line);

#define PD_ASSERT_FMT_ZERO "ASSERTION FAILED: \"0\" (0) from %s:%d"
#define PD_ASSERT_FMT_NULL "ASSERTION FAILED: \"((void *)0)\" (NULL) from %s:%d"

// --------------------------------------------------------------- reads ---

// How to unpack an action read back into its host record.
using UnbuildFn = void (*)(const pd_action_record *, const pd_resource_index *, uint32_t, void *);

struct ActionRead {
  pd_act_fn_hdl handle;  // the action's handle on this table
  uint32_t enum_value;
  UnbuildFn unbuild;     // null for an action without parameters
};

struct TableRead {
  pd_tbl_hdl tbl;
  uint16_t key_bytes;
  uint16_t key_bits;
  const ActionRead *actions;
  uint16_t num_actions;
  uint16_t match_spec_size;
  void (*unbuild_key)(const pd_match_record *, void *);
  void (*unbuild_mask)(const pd_match_record *, void *);  // null on an exact table
};

// get_entry of a direct table. match_spec, priority and is_default are null
// on a keyless table; priority is null on an exact or prefix table.
pd_status read_entry(const TableRead &t, const char *function, pd_sess_hdl sess,
                     uint32_t device_id, pd_entry_hdl entry_hdl, bool read_from_hw,
                     void *match_spec, uint32_t *priority, char *action_name, void *action_spec,
                     p4_pd_orbisk_switch_action_names_t *action_enum, bool *is_default);

// table_get_default_entry of any table.
pd_status read_default_entry(const TableRead &t, pd_sess_hdl sess, pd_dev_target target,
                             bool read_from_hw, p4_pd_orbisk_switch_action_specs_t *out);

}  // namespace orbisk::pd
