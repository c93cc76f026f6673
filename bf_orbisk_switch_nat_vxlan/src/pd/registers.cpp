#include "registers.h"

#include <cstring>

namespace orbisk::pd {

namespace {

// The library's own status for an allocation that failed.
constexpr pd_status kNoMemory = 2;

}  // namespace

pd_status register_read(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target, uint32_t index,
                        uint32_t flags, uint8_t *values, uint32_t *count) {
  int pipes = 0;
  if (pd_status s = pipe_stful_query_get_sizes(sess, target, tbl, &pipes)) return s;
  auto *data = static_cast<pd_register_element *>(
      bf_sys_calloc(size_t(pipes), sizeof(pd_register_element)));
  if (data == nullptr) return kNoMemory;
  pd_register_query q{};
  q.count = pipes;
  q.data = data;
  pd_status s = pipe_stful_ent_query(sess, target, tbl, index, &q, flags & PD_READ_FROM_HW);
  if (s == BF_SUCCESS) {
    *count = uint32_t(q.count);
    for (int32_t i = 0; i < q.count; ++i) values[i] = data[i].bytes[0];
  }
  bf_sys_free(data);
  return s;
}

pd_status register_range_read(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                              uint32_t first, uint32_t count, uint32_t flags, uint32_t *num_read,
                              uint8_t *values, uint32_t *num_values) {
  int pipes = 0;
  if (pd_status s = pipe_stful_query_get_sizes(sess, target, tbl, &pipes)) return s;
  auto *queries = static_cast<pd_register_query *>(bf_sys_calloc(count, sizeof(pd_register_query)));
  auto *data = static_cast<pd_register_element *>(
      bf_sys_calloc(size_t(pipes) * count, sizeof(pd_register_element)));
  if (queries == nullptr || data == nullptr) {
    if (queries != nullptr) bf_sys_free(queries);
    if (data != nullptr) bf_sys_free(data);
    return kNoMemory;
  }
  for (int64_t i = 0; i < int64_t(int32_t(count)); ++i) {
    queries[i].count = pipes;
    queries[i].data = data + i * pipes;
  }
  pd_status s = pipe_stful_ent_query_range(sess, target, tbl, first, count, queries, num_read,
                                           flags & PD_READ_FROM_HW);
  if (s == BF_SUCCESS) {
    uint32_t n = 0;
    *num_values = 0;
    for (uint32_t i = 0; i < *num_read && i < count; ++i) {
      const pd_register_query &q = queries[i];
      *num_values += uint32_t(q.count);
      for (int32_t p = 0; p < q.count; ++p) values[n++] = q.data[p].bytes[0];
    }
  }
  bf_sys_free(queries);
  bf_sys_free(data);
  return s;
}

pd_status register_write_direct(pd_sess_hdl sess, uint32_t device, pd_tbl_hdl tbl,
                                pd_entry_hdl entry_hdl, const pd_register_element *element) {
  pd_resource_record rec{};
  rec.resource_hdl = tbl;
  std::memcpy(rec.resource_spec.bytes, element, sizeof *element);
  rec.resource_tag = PD_RESOURCE_TAG_ATTACHED;
  return pipe_mgr_mat_ent_set_resource(sess, uint8_t(device), tbl, entry_hdl, &rec, 1, 0);
}

}  // namespace orbisk::pd
