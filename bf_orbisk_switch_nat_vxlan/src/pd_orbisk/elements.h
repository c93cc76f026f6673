// The elements of a key and of an action as the text layer sees them: the
// same run, in the same order, as the schema text names them. A key's
// elements are its fields, each followed by its mask (ternary) or its prefix
// length (lpm) as an element of its own; an action's are its parameters.
//
// Value text, the printers, the comparison with hardware and the counter
// labels all walk these, so the order, the widths and the masks they use
// are the schema's by construction.
#pragma once

#include <cstdint>
#include <cstring>

#include "descriptors.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// One element of a key.
struct KeyElement {
  const FieldDesc *field;
  const char *suffix;          // "" for the field, "_mask", "_prefix_length"
  uint16_t bits;               // 16 for a prefix length
  uint16_t host_offset;        // offsetof the member in the match spec
  bool array;                  // a 16-byte member (128 bits), most significant byte first
  uint32_t mask;               // the schema's mask of an element of at most 32 bits
  const uint8_t *mask_bytes;   // of an array element: 16 bytes, or null for all ones
};

// The schema's mask of a field of at most 32 bits: its static mask, or all
// its bits.
inline uint32_t schema_mask(const FieldDesc &f) {
  if (f.static_mask == nullptr) return f.bits >= 32 ? 0xFFFFFFFFu : (1u << f.bits) - 1;
  uint32_t m = 0;
  for (unsigned i = 0; i < f.bytes; ++i) m = m << 8 | f.static_mask[i];
  return m;
}

// Calls fn(const KeyElement &) for each element of the table's key, in
// schema order.
template <class Fn>
inline void for_each_key_element(const TableDesc &t, Fn &&fn) {
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    KeyElement e{&f, "", f.bits, f.host_offset, f.array, 0, nullptr};
    if (f.array) {
      e.mask_bytes = f.static_mask;
    } else {
      e.mask = schema_mask(f);
    }
    fn(static_cast<const KeyElement &>(e));
    if (f.match == FieldMatch::Ternary) {
      e.suffix = "_mask";
      e.host_offset = f.partner_offset;
      fn(static_cast<const KeyElement &>(e));
    } else if (f.match == FieldMatch::Lpm) {
      fn(KeyElement{&f, "_prefix_length", 16, f.partner_offset, false, 0xFFFFu, nullptr});
    }
  }
}

// The value of a host member of at most 32 bits: a uint8_t, uint16_t or
// uint32_t by its width, as the public header declares it.
inline uint32_t host_value(const void *record, uint16_t offset, unsigned bits) {
  const auto *p = static_cast<const uint8_t *>(record) + offset;
  if (bits <= 8) return *p;
  if (bits <= 16) {
    uint16_t v;
    std::memcpy(&v, p, 2);
    return v;
  }
  uint32_t v;
  std::memcpy(&v, p, 4);
  return v;
}

// The low `bits` bits: the mask of a parameter.
inline uint32_t low_bits(unsigned bits) { return bits >= 32 ? 0xFFFFFFFFu : (1u << bits) - 1; }

// Hexadecimal digits of a number of this width in value text and printers:
// the width divided by four, rounded up, with no seven-digit form (no field
// of the program is 25 to 31 bits wide, and one that were would print eight).
inline unsigned hex_digits(unsigned bits) {
  const unsigned d = (bits + 3) / 4;
  return d == 7 ? 8 : d;
}

}  // namespace orbisk::pd

#pragma GCC visibility pop
