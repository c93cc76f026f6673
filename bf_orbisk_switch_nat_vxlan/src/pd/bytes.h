// Byte helpers of the write hot path: big-endian fields, masks, prefixes, and
// the driver records with their strings on the caller's stack. Everything
// here is inline, with widths and offsets as template arguments where the
// generated packers know them, so that a packer compiles to a few stores.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "orbisk_switch/pd_records.h"

namespace orbisk::pd {

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

// Reads n (1 to 4) bytes most significant first: get_be<N> with a width
// known only at run time, for the reads that loop over descriptors.
inline uint32_t get_be_n(const uint8_t *p, unsigned n) {
  switch (n) {
    case 1:
      return get_be<1>(p);
    case 2:
      return get_be<2>(p);
    case 3:
      return get_be<3>(p);
    default:
      return get_be<4>(p);
  }
}

// Prefix length of a field of w bits from its mask: w minus the place of the
// lowest set bit; 0 when no bit is set. Holes are not looked for.
inline uint16_t prefix_length_of(const uint8_t *mask, unsigned w) {
  const unsigned n = w / 8;
  for (unsigned b = 0; b < w; ++b) {
    if (mask[n - 1 - b / 8] & (1u << (b % 8))) return uint16_t(w - b);
  }
  return 0;
}

// Writes v into the host member at p of a field or parameter of this many
// bits: the smallest of 8, 16 or 32 bits that holds it, high bits dropped.
inline void put_host(void *p, unsigned bits, uint32_t v) {
  if (bits <= 8) {
    const uint8_t x = uint8_t(v);
    std::memcpy(p, &x, 1);
  } else if (bits <= 16) {
    const uint16_t x = uint16_t(v);
    std::memcpy(p, &x, 2);
  } else {
    std::memcpy(p, &v, 4);
  }
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

}  // namespace orbisk::pd
