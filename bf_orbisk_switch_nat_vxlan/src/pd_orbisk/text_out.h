// Writing text into a caller's buffer by hand: strings, hexadecimal numbers
// of a fixed or a natural digit count, and decimals. Value text and the
// comparison's messages are made of nothing else, so no format string is
// parsed per field and nothing is allocated.
#pragma once

#include <cstdint>
#include <cstring>

#include "descriptors.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// The source the text layer's assertions report.
inline constexpr const char *kTextSourcePath = "bf_orbisk_switch_nat_vxlan/src/pd_orbisk";

inline char *put(char *p, const char *text, std::size_t length) {
  std::memcpy(p, text, length);
  return p + length;
}

inline char *put(char *p, const char *text) { return put(p, text, std::strlen(text)); }

template <std::size_t N>
inline char *put_lit(char *p, const char (&text)[N]) {
  return put(p, text, N - 1);
}

// `digits` lower-case hexadecimal digits of v, the high ones first.
inline char *put_hex(char *p, uint32_t v, unsigned digits) {
  for (unsigned i = digits; i-- > 0; v >>= 4) p[i] = "0123456789abcdef"[v & 15];
  return p + digits;
}

// v in lower-case hexadecimal with no leading zeros ("%x").
inline char *put_hex(char *p, uint32_t v) {
  unsigned digits = 1;
  while (digits < 8 && v >> (4 * digits)) ++digits;
  return put_hex(p, v, digits);
}

// 16 bytes, most significant first, as 32 upper-case hexadecimal digits.
inline char *put_hex_upper(char *p, const uint8_t *bytes) {
  for (unsigned i = 0; i < 16; ++i) {
    *p++ = "0123456789ABCDEF"[bytes[i] >> 4];
    *p++ = "0123456789ABCDEF"[bytes[i] & 15];
  }
  return p;
}

// v as a signed decimal ("%d").
inline char *put_dec(char *p, int32_t v) {
  uint32_t u = uint32_t(v);
  if (v < 0) {
    *p++ = '-';
    u = 0u - u;
  }
  char digits[10];
  unsigned n = 0;
  do {
    digits[n++] = char('0' + u % 10);
    u /= 10;
  } while (u);
  while (n) *p++ = digits[--n];
  return p;
}

// The name of an exported function of a table or profile: the program's
// prefix, the object's name and a suffix. Made on the stack where a
// function's name is reported (assertions, the read's failure message).
struct FunctionName {
  FunctionName(const char *object, const char *suffix) {
    char *p = put_lit(text, "p4_pd_orbisk_switch_");
    const std::size_t n = std::strlen(object), s = std::strlen(suffix);
    const std::size_t room = sizeof text - 1 - std::size_t(p - text);
    p = put(p, object, n < room ? n : room);
    const std::size_t left = sizeof text - 1 - std::size_t(p - text);
    p = put(p, suffix, s < left ? s : left);
    *p = '\0';
  }
  char text[128];
};

}  // namespace orbisk::pd

#pragma GCC visibility pop
