// Comparison of software's records with the chip's, field by field under the
// schema's masks, stopping at the first difference and saying it in words,
// software's (pd) value first.
#include "elements.h"
#include "text_out.h"
#include "value_text.h"

namespace orbisk::pd {

namespace {

// "<head><name><suffix> differs 0x%x vs 0x%x" and its NUL, into error.
int differs(char *error, const char *head, const char *name, const char *suffix, uint32_t pd,
            uint32_t hw) {
  char *p = put(error, head);
  p = put(p, name);
  p = put(p, suffix);
  p = put_lit(p, " differs 0x");
  p = put_hex(p, pd);
  p = put_lit(p, " vs 0x");
  end_text(error, put_hex(p, hw));
  return 0;
}

}  // namespace

int keys_equal(const TableDesc &t, const void *pd, const void *hw, char *error) {
  const auto *a = static_cast<const uint8_t *>(pd);
  const auto *b = static_cast<const uint8_t *>(hw);
  const KeyElement *first = nullptr;
  KeyElement found{};
  uint32_t va = 0, vb = 0;
  for_each_key_element(t, [&](const KeyElement &e) {
    if (first) return;
    if (e.array) {
      // Byte by byte from the first, under the mask's byte at the same place.
      for (unsigned i = 0; i < 16; ++i) {
        const uint8_t m = e.mask_bytes ? e.mask_bytes[i] : 0xFF;
        if ((a[e.host_offset + i] ^ b[e.host_offset + i]) & m) {
          found = e;
          first = &found;
          return;
        }
      }
    } else {
      va = host_value(a, e.host_offset, e.bits) & e.mask;
      vb = host_value(b, e.host_offset, e.bits) & e.mask;
      if (va != vb) {
        found = e;
        first = &found;
      }
    }
  });
  if (!first) return 1;
  if (first->array) {
    char *p = put_lit(error, "mspec ");
    p = put(p, first->field->name);
    p = put(p, first->suffix);
    end_text(error, put_lit(p, " differs"));
    return 0;
  }
  return differs(error, "mspec ", first->field->name, first->suffix, va, vb);
}

int action_specs_equal(const ActionDesc &a, const void *pd, const void *hw, char *error) {
  for (unsigned i = 0; i < a.num_params; ++i) {
    const ParamDesc &q = a.params[i];
    const uint32_t va = host_value(pd, q.host_offset, q.bits) & low_bits(q.bits);
    const uint32_t vb = host_value(hw, q.host_offset, q.bits) & low_bits(q.bits);
    if (va != vb) return differs(error, "aspec action_", q.name, "", va, vb);
  }
  return 1;
}

}  // namespace orbisk::pd
