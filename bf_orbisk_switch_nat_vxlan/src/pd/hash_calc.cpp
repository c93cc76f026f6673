#include "hash_calc.h"

#include <cstring>

#include "bytes.h"
#include "orbisk_switch/pd_driver.h"

namespace orbisk::pd {

namespace {

// The handle a caller's value stands for: 0 is the calculation's own, any
// other value is sent as handle 0 for the driver to judge.
uint32_t handle_of(uint32_t value, uint32_t own) { return value == 0 ? own : 0; }

// The stream is written from its last byte back, as bits arrive from the
// last field's lowest upward: `acc` holds the bits not yet written, its low
// `bits` of them placed, and above them whatever a field's whole source bytes
// carried past its width, which the fields before it are ORed onto.
struct StreamWriter {
  uint8_t *stream;
  std::size_t left;  // bytes of the stream not yet written, from its start
  uint64_t acc = 0;
  unsigned bits = 0;

  // Whole words out while 32 placed bits wait: a field of up to 32 bits
  // with its spill and the bits before it stays within the 64.
  void flush() {
    while (bits >= 32 && left >= 4) {
      left -= 4;
      put_be<4>(stream + left, uint32_t(acc));
      acc >>= 32;
      bits -= 32;
    }
  }
  // A field's source bytes (n of them, most significant first), its lowest
  // bit next; `width` bits of the stream are the field's.
  void prepend_to_bytestream(const uint8_t *src, uint32_t width) {
    const std::size_t n = (std::size_t(width) + 7) / 8;
    for (std::size_t k = n; k-- > 0;) {
      const unsigned take = width >= 8 ? 8 : unsigned(width);
      acc |= uint64_t(src[k]) << bits;
      bits += take;
      width -= take;
      flush();
    }
  }
  // A field of up to 32 bits: its value's low whole bytes at once.
  void prepend_value(uint32_t value, uint32_t width) {
    const unsigned n = (width + 7) / 8;
    const uint64_t src = n == 4 ? value : value & ((uint32_t(1) << (8 * n)) - 1);
    acc |= src << bits;
    bits += width;
    flush();
  }
  // What is left, at most 8 bytes: the first bytes' bits and the spare ones
  // above them.
  void finish() {
    while (left != 0) {
      stream[--left] = uint8_t(acc);
      acc >>= 8;
    }
  }
};

// Fields that are all whole bytes wide (the common flow fields: protocol,
// addresses, ports) meet no bit boundary: each one's bytes follow the last
// one's, most significant first, and nothing needs shifting.
void build_byte_stream(uint32_t count, const pd_hash_calc_attribute *attrs,
                       const uint32_t *widths, uint8_t *stream) {
  for (uint32_t i = 0; i < count; ++i) {
    const auto v = uint32_t(attrs[i].value);
    switch (widths[i]) {
      case 8:
        put_be<1>(stream, v);
        break;
      case 16:
        put_be<2>(stream, v);
        break;
      case 24:
        put_be<3>(stream, v);
        break;
      case 32:
        put_be<4>(stream, v);
        break;
      default:  // a field wider than a word comes as its bytes
        std::memcpy(stream, reinterpret_cast<const uint8_t *>(uintptr_t(attrs[i].value)),
                    widths[i] / 8);
    }
    stream += widths[i] / 8;
  }
}

// The stream of count fields, right-aligned in stream_len zeroed bytes.
void build_hash_stream(uint32_t count, const pd_hash_calc_attribute *attrs,
                       const uint32_t *widths, uint8_t *stream, std::size_t stream_len) {
  StreamWriter w{stream, stream_len};
  for (uint32_t i = count; i-- > 0;) {
    if (widths[i] <= 32) {
      w.prepend_value(uint32_t(attrs[i].value), widths[i]);
    } else {
      w.prepend_to_bytestream(reinterpret_cast<const uint8_t *>(uintptr_t(attrs[i].value)),
                              widths[i]);
    }
  }
  w.finish();
}

}  // namespace

pd_status hash_input_set(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess, uint32_t dev_id,
                         uint32_t input) {
  return pipe_mgr_hash_calc_input_set(sess, dev_id, hash, handle_of(input, input_hdl));
}

// The driver's status counts only when it reports the calculation's own
// handle: anything else, a failure that left the handle unset included, is 3.
pd_status hash_input_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess, uint32_t dev_id,
                         uint32_t *input) {
  uint32_t hdl = 0;
  const pd_status s = pipe_mgr_hash_calc_input_get(sess, dev_id, hash, &hdl);
  if (hdl != input_hdl) return PD_STATUS_HASH_HANDLE_MISMATCH;
  *input = 0;
  return s;
}

pd_status hash_algorithm_set(uint32_t hash, uint32_t algorithm_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t algorithm) {
  return pipe_mgr_hash_calc_algorithm_set(sess, dev_id, hash, handle_of(algorithm, algorithm_hdl),
                                          nullptr, 0);
}

pd_status hash_algorithm_get(uint32_t hash, uint32_t algorithm_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t *algorithm) {
  uint32_t hdl = 0;
  const pd_status s = pipe_mgr_hash_calc_algorithm_get(sess, dev_id, hash, &hdl, nullptr, nullptr);
  if (hdl != algorithm_hdl) return PD_STATUS_HASH_HANDLE_MISMATCH;
  *algorithm = 0;
  return s;
}

pd_status hash_attribute_set(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t input, uint32_t count,
                             const pd_hash_calc_attribute *attrs) {
  const uint32_t hdl = handle_of(input, input_hdl);
  if (count == 0) {
    return pipe_mgr_hash_calc_input_field_attribute_set(sess, dev_id, hash, hdl, 0, nullptr);
  }
  auto *recs = static_cast<pd_hash_calc_driver_attribute *>(
      bf_sys_calloc(count, sizeof(pd_hash_calc_driver_attribute)));
  for (uint32_t i = 0; i < count; ++i) {
    recs[i].input_field = attrs[i].input_field;
    recs[i].field_id = attrs[i].input_field + 1;
    recs[i].attr_type = attrs[i].attr_type;
    recs[i].value = uint32_t(attrs[i].value);
  }
  const pd_status s =
      pipe_mgr_hash_calc_input_field_attribute_set(sess, dev_id, hash, hdl, count, recs);
  bf_sys_free(recs);
  return s;
}

// Asks the driver which input the calculation uses. While it uses its own, a
// caller's input other than 0 is a mismatch; when the driver reports another
// handle, that handle is asked about and the caller's value is not looked at.
static bool input_mismatch(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess, uint32_t dev_id,
                           uint32_t input, uint32_t &hdl) {
  hdl = 0;
  (void)pipe_mgr_hash_calc_input_get(sess, dev_id, hash, &hdl);
  return hdl == input_hdl && input != 0;
}

pd_status hash_attribute_count_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                                   uint32_t dev_id, uint32_t input, uint32_t *count) {
  uint32_t hdl;
  if (input_mismatch(hash, input_hdl, sess, dev_id, input, hdl)) {
    return PD_STATUS_HASH_HANDLE_MISMATCH;
  }
  *count = 0;
  return pipe_mgr_hash_calc_input_field_attribute_count_get(sess, dev_id, hash, hdl, count);
}

pd_status hash_attribute_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t input, uint32_t capacity,
                             pd_hash_calc_attribute *attrs, uint32_t *count) {
  *count = 0;
  uint32_t hdl;
  if (input_mismatch(hash, input_hdl, sess, dev_id, input, hdl)) {
    return PD_STATUS_HASH_HANDLE_MISMATCH;
  }
  if (capacity == 0) return BF_SUCCESS;
  auto *recs = static_cast<pd_hash_calc_driver_attribute *>(
      bf_sys_calloc(capacity, sizeof(pd_hash_calc_driver_attribute)));
  const pd_status s = pipe_mgr_hash_calc_input_field_attribute_get(sess, dev_id, hash, hdl,
                                                                   capacity, recs, count);
  if (s != BF_SUCCESS) {
    bf_sys_free(recs);
    return s;
  }
  for (uint32_t i = 0; i < *count; ++i) {
    attrs[i].input_field = recs[i].input_field;
    attrs[i].attr_type = recs[i].attr_type;
    attrs[i].value = uint32_t(recs[i].value);
  }
  bf_sys_free(recs);
  return BF_SUCCESS;
}

// The stream's length in bytes, and whether every width is a whole number
// of bytes.
static uint32_t stream_length(uint32_t count, const uint32_t *widths, bool &whole_bytes) {
  uint64_t bits = 0;
  uint32_t odd_bits = 0;
  for (uint32_t i = 0; i < count; ++i) {
    bits += widths[i];
    odd_bits |= widths[i] & 7;
  }
  whole_bytes = odd_bits == 0;
  return uint32_t((bits + 7) / 8);
}

pd_status hash_calculate(uint32_t hash, pd_sess_hdl sess, uint32_t dev_id, uint32_t count,
                         const pd_hash_calc_attribute *attrs, const uint32_t *widths,
                         uint8_t *out, uint32_t out_len) {
  bool whole_bytes;
  const uint32_t len = stream_length(count, widths, whole_bytes);
  auto *stream = static_cast<uint8_t *>(bf_sys_calloc(len, 1));
  if (whole_bytes) {
    build_byte_stream(count, attrs, widths, stream);
  } else {
    build_hash_stream(count, attrs, widths, stream, len);
  }
  const pd_status s =
      pipe_mgr_hash_calc_calculate_hash_value(sess, dev_id, hash, stream, len, out, out_len);
  bf_sys_free(stream);
  return s;
}

}  // namespace orbisk::pd
