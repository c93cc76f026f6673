// Hash calculations: per device and calculation, the input and algorithm
// handles, the seed and the field attributes, and the hash of a byte stream
// by the algorithm the calculation uses. The algorithms are zlib's: handle
// ORBISK_MODEL_HASH_ADLER32 is adler32 and ORBISK_MODEL_HASH_CRC32 is crc32,
// each started from the seed's low 32 bits.
#include <zlib.h>

#include <algorithm>

#include "descriptors.h"
#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_hash_calc;
using orbisk::pd::HashCalcDesc;

namespace {

// The calculation's state on a device, made on its first write.
HashStore::Calc &make(Model &m, uint32_t dev, const HashCalcDesc &d) {
  auto [it, fresh] = m.hashes.calcs.try_emplace({dev, d.handle});
  if (fresh) {
    it->second.input_hdl = d.input_hdl;
    it->second.algorithm_hdl = d.algorithm_hdl;
  }
  return it->second;
}

// Its state for a read: the program's when it has none.
HashStore::Calc view(Model &m, uint32_t dev, const HashCalcDesc &d) {
  auto it = m.hashes.calcs.find({dev, d.handle});
  if (it != m.hashes.calcs.end()) return it->second;
  HashStore::Calc c;
  c.input_hdl = d.input_hdl;
  c.algorithm_hdl = d.algorithm_hdl;
  return c;
}

}  // namespace

extern "C" {

uint32_t orbisk_model_hash(uint32_t algorithm_hdl, uint64_t seed, const uint8_t *bytes,
                           size_t len) {
  const auto start = uLong(uint32_t(seed));
  const uInt n = uInt(len);
  // Never a null buffer: zlib answers its initial value for one, whatever
  // the start.
  static const Bytef kNone[1] = {0};
  const Bytef *b = len ? bytes : kNone;
  switch (algorithm_hdl) {
    case ORBISK_MODEL_HASH_ADLER32:
      return uint32_t(adler32(start, b, n));
    case ORBISK_MODEL_HASH_CRC32:
      return uint32_t(crc32(start, b, n));
    default:
      return 0;
  }
}

pd_status pipe_mgr_hash_calc_input_set(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                       uint32_t input_hdl) {
  return run(Fn::pipe_mgr_hash_calc_input_set,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(input_hdl)}, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (input_hdl != d->input_hdl) return ORBISK_MODEL_NOT_OF_HASH;
               make(m, device_id, *d).input_hdl = input_hdl;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_input_get(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                       uint32_t *input_hdl) {
  return run(Fn::pipe_mgr_hash_calc_input_get,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(input_hdl)}, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (input_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *input_hdl = view(m, device_id, *d).input_hdl;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_algorithm_set(pd_sess_hdl sess, uint32_t device_id,
                                           uint32_t hash_hdl, uint32_t algorithm_hdl,
                                           const void *algorithm, uint64_t rotate) {
  return run(Fn::pipe_mgr_hash_calc_algorithm_set,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(algorithm_hdl), arg(algorithm),
              arg(rotate)},
             [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (algorithm_hdl != ORBISK_MODEL_HASH_ADLER32 &&
                   algorithm_hdl != ORBISK_MODEL_HASH_CRC32) {
                 return ORBISK_MODEL_NOT_OF_HASH;
               }
               make(m, device_id, *d).algorithm_hdl = algorithm_hdl;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_algorithm_get(pd_sess_hdl sess, uint32_t device_id,
                                           uint32_t hash_hdl, uint32_t *algorithm_hdl,
                                           void *algorithm, uint64_t *rotate) {
  return run(Fn::pipe_mgr_hash_calc_algorithm_get,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(algorithm_hdl), arg(algorithm),
              arg(rotate)},
             [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (algorithm_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *algorithm_hdl = view(m, device_id, *d).algorithm_hdl;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_seed_set(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                      uint64_t seed) {
  return run(Fn::pipe_mgr_hash_calc_seed_set,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(seed)}, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               make(m, device_id, *d).seed = seed;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_seed_get(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                      uint64_t *seed) {
  return run(Fn::pipe_mgr_hash_calc_seed_get,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(seed)}, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (seed == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *seed = view(m, device_id, *d).seed;
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_input_field_attribute_set(pd_sess_hdl sess, uint32_t device_id,
                                                       uint32_t hash_hdl, uint32_t input_hdl,
                                                       uint32_t count,
                                                       pd_hash_calc_driver_attribute *attrs) {
  Passing passed;
  passed.add("attrs", attrs, sizeof *attrs * count);
  return run(Fn::pipe_mgr_hash_calc_input_field_attribute_set,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(input_hdl), arg(count), arg(attrs)},
             passed, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (input_hdl != d->input_hdl) return ORBISK_MODEL_NOT_OF_HASH;
               if (count != 0 && attrs == nullptr) return ORBISK_MODEL_BAD_RECORD;
               make(m, device_id, *d).attrs.assign(attrs, attrs + count);
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_input_field_attribute_count_get(pd_sess_hdl sess,
                                                             uint32_t device_id,
                                                             uint32_t hash_hdl,
                                                             uint32_t input_hdl,
                                                             uint32_t *count) {
  return run(Fn::pipe_mgr_hash_calc_input_field_attribute_count_get,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(input_hdl), arg(count)},
             [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (input_hdl != d->input_hdl) return ORBISK_MODEL_NOT_OF_HASH;
               if (count == nullptr) return ORBISK_MODEL_BAD_RECORD;
               *count = uint32_t(view(m, device_id, *d).attrs.size());
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_input_field_attribute_get(pd_sess_hdl sess, uint32_t device_id,
                                                       uint32_t hash_hdl, uint32_t input_hdl,
                                                       uint32_t capacity,
                                                       pd_hash_calc_driver_attribute *attrs,
                                                       uint32_t *count) {
  return run(Fn::pipe_mgr_hash_calc_input_field_attribute_get,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(input_hdl), arg(capacity), arg(attrs),
              arg(count)},
             [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if (input_hdl != d->input_hdl) return ORBISK_MODEL_NOT_OF_HASH;
               if (count == nullptr || (capacity != 0 && attrs == nullptr)) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               const auto c = view(m, device_id, *d);
               const auto n = std::min<std::size_t>(capacity, c.attrs.size());
               std::copy_n(c.attrs.begin(), n, attrs);
               *count = uint32_t(n);
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_hash_calc_calculate_hash_value(pd_sess_hdl sess, uint32_t device_id,
                                                  uint32_t hash_hdl, const uint8_t *stream,
                                                  uint32_t stream_len, uint8_t *hash,
                                                  uint32_t hash_len) {
  Passing passed;
  passed.add("stream", stream, stream_len);
  return run(Fn::pipe_mgr_hash_calc_calculate_hash_value,
             {arg(sess), arg(device_id), arg(hash_hdl), arg(stream), arg(stream_len), arg(hash),
              arg(hash_len)},
             passed, [&](Model &m) {
               const HashCalcDesc *d = find_hash_calc(hash_hdl);
               if (d == nullptr) return ORBISK_MODEL_NO_SUCH_HASH;
               if ((stream_len != 0 && stream == nullptr) || (hash_len != 0 && hash == nullptr)) {
                 return ORBISK_MODEL_BAD_RECORD;
               }
               const auto c = view(m, device_id, *d);
               const uint32_t h = orbisk_model_hash(c.algorithm_hdl, c.seed, stream, stream_len);
               // The value's low hash_len bytes, most significant first; zeros
               // above its 32 bits.
               for (uint32_t i = 0; i < hash_len; ++i) {
                 const uint32_t shift = 8 * (hash_len - 1 - i);
                 hash[i] = shift < 32 ? uint8_t(h >> shift) : 0;
               }
               return BF_SUCCESS;
             });
}

}  // extern "C"
