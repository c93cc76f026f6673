// Hash calculations: the rules every calculation shares, written once. Each
// calculation has one input field list and one algorithm, so the caller's
// value 0 stands for the calculation's own handle; the engine maps values to
// handles and back, converts the attribute records, and builds the byte
// stream calculate_hash_value hashes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "orbisk_switch/pd_records.h"

namespace orbisk::pd {

pd_status hash_input_set(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess, uint32_t dev_id,
                         uint32_t input);
pd_status hash_input_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess, uint32_t dev_id,
                         uint32_t *input);
pd_status hash_algorithm_set(uint32_t hash, uint32_t algorithm_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t algorithm);
pd_status hash_algorithm_get(uint32_t hash, uint32_t algorithm_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t *algorithm);
pd_status hash_attribute_set(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t input, uint32_t count,
                             const pd_hash_calc_attribute *attrs);
pd_status hash_attribute_count_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                                   uint32_t dev_id, uint32_t input, uint32_t *count);
pd_status hash_attribute_get(uint32_t hash, uint32_t input_hdl, pd_sess_hdl sess,
                             uint32_t dev_id, uint32_t input, uint32_t capacity,
                             pd_hash_calc_attribute *attrs, uint32_t *count);

// Hashes the stream of count fields: their values as one unbroken
// big-endian bit string, first field first, right-aligned in whole bytes. A
// field of up to 32 bits takes its value from attrs[i].value, a wider one
// through the pointer there, most significant byte first; every bit of the
// field's whole source bytes is placed, so a value wider than its width
// spills into the field before it, and bits above the stream are lost.
pd_status hash_calculate(uint32_t hash, pd_sess_hdl sess, uint32_t dev_id, uint32_t count,
                         const pd_hash_calc_attribute *attrs, const uint32_t *widths,
                         uint8_t *out, uint32_t out_len);

}  // namespace orbisk::pd
