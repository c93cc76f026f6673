// A driver that does nothing: every import of the library returns success at
// once. It is built as its own shared object so that the compiler of the
// benchmark cannot see through the driver call and drop the work that feeds
// it; what remains per call is the library's packing plus one call and return.
//
// The read functions fill the little a real driver fills, so that the
// library's unpacking runs: an entry read answers with an l2Lookup entry
// whose action is l2LookupKnownUcast (an entry of finalDropControl, one
// whose action is acceptLog).
#include <cstdlib>
#include <cstring>

#include "orbisk_switch/pd_driver.h"

// The member-selection state is the driver's own; one dummy serves all.
struct pd_ms_state {
  int unused;
};

namespace {

// Handle of l2LookupKnownUcast on l2Lookup.
constexpr pd_act_fn_hdl kL2LookupKnownUcast = 0x200000a6u;
// finalDropControl, and its action acceptLog.
constexpr pd_tbl_hdl kFinalDropControl = 0x01000057u;
constexpr pd_act_fn_hdl kFinalDropAcceptLog = 0x200000dfu;
// Handle of setEcmpNextHop in ecmpMemberActionProfile.
constexpr pd_act_fn_hdl kSetEcmpNextHop = 0x30000018u;

// Bytes handed back as key value, key mask and action data on a read.
constexpr uint8_t kReadValue[8] = {0x00, 0x1b, 0x21, 0x3c, 0x4d, 0x5e, 0x00, 0x2a};
constexpr uint8_t kReadMask[8] = {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x0f, 0xff};
constexpr uint8_t kReadData[3] = {0x01, 0x02, 0x03};

pd_ms_state g_ms_state{0};
pd_entry_hdl g_next_entry_hdl = 0;

void copy_key(pd_match_record *key) {
  if (key == nullptr || key->value_bytes == nullptr || key->mask_bytes == nullptr) return;
  size_t n = key->num_bytes < sizeof kReadValue ? key->num_bytes : sizeof kReadValue;
  std::memcpy(key->value_bytes, kReadValue, n);
  std::memcpy(key->mask_bytes, kReadMask, n);
}

void fill_action(pd_action_record *act) {
  act->record_kind = PD_RECORD_KIND_DIRECT;
  act->resource_count = 0;
  if (act->data_bytes != nullptr && act->num_bytes >= sizeof kReadData) {
    std::memcpy(act->data_bytes, kReadData, sizeof kReadData);
  }
  act->num_valid_bits = 20;
  act->num_bytes = sizeof kReadData;
}

}  // namespace

extern "C" {

pd_status bf_drv_register(const char *, uint32_t *client_hdl) {
  *client_hdl = 1;
  return BF_SUCCESS;
}

pd_status bf_drv_deregister(uint32_t) { return BF_SUCCESS; }

pd_status bf_drv_client_register_callbacks(uint32_t, pd_drv_client_callbacks *, uint32_t) {
  return BF_SUCCESS;
}

int bf_sys_dbg_mode(void) { return 0; }

void bf_sys_log_and_trace(int, int, const char *, ...) {}

void *bf_sys_calloc(size_t count, size_t size) { return std::calloc(count, size); }

void bf_sys_free(void *ptr) { std::free(ptr); }

pd_status pipe_mgr_mat_ent_add(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_match_record *,
                               pd_act_fn_hdl, pd_action_record *, uint32_t, uint32_t,
                               pd_entry_hdl *entry_hdl) {
  *entry_hdl = ++g_next_entry_hdl;
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_ent_set_action(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                      pd_act_fn_hdl, pd_action_record *, uint32_t) {
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_ent_set_action_by_match_spec(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                                    pd_match_record *, pd_act_fn_hdl,
                                                    pd_action_record *, uint32_t) {
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_ent_del(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl, uint32_t) {
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_ent_del_by_match_spec(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                             pd_match_record *, uint32_t) {
  return BF_SUCCESS;
}

pd_status pipe_mgr_match_spec_to_ent_hdl(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                         pd_match_record *, pd_entry_hdl *entry_hdl, uint32_t) {
  *entry_hdl = 1;
  return BF_SUCCESS;
}

pd_status pipe_mgr_get_entry_count(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                                   uint32_t *count) {
  *count = 0;
  return BF_SUCCESS;
}

pd_status pipe_mgr_get_first_entry_handle(pd_sess_hdl, pd_tbl_hdl, pd_dev_target,
                                          pd_entry_hdl *entry_hdl) {
  *entry_hdl = 1;
  return BF_SUCCESS;
}

pd_status pipe_mgr_get_next_entry_handles(pd_sess_hdl, pd_tbl_hdl, pd_dev_target, pd_entry_hdl,
                                          uint32_t count, pd_entry_hdl *next_hdls) {
  // No further entries: the list ends at once.
  if (count > 0) next_hdls[0] = pd_entry_hdl(-1);
  return BF_SUCCESS;
}

pd_status pipe_mgr_get_entry(pd_sess_hdl, pd_tbl_hdl tbl_hdl, pd_dev_target, pd_entry_hdl,
                             pd_match_record *key, pd_action_record *act, pd_act_fn_hdl *fn,
                             uint32_t, uint32_t, uint32_t) {
  copy_key(key);
  fill_action(act);
  *fn = tbl_hdl == kFinalDropControl ? kFinalDropAcceptLog : kL2LookupKnownUcast;
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_default_entry_set(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_act_fn_hdl,
                                         pd_action_record *, uint32_t, pd_entry_hdl *entry_hdl) {
  *entry_hdl = 1;
  return BF_SUCCESS;
}

pd_status pipe_mgr_table_get_default_entry(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                           pd_action_record *act, pd_act_fn_hdl *fn, uint32_t,
                                           uint32_t, uint32_t) {
  fill_action(act);
  *fn = kL2LookupKnownUcast;
  return BF_SUCCESS;
}

pd_status pipe_mgr_table_get_default_entry_handle(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                                  pd_entry_hdl *entry_hdl) {
  *entry_hdl = 1;
  return BF_SUCCESS;
}

pd_status pipe_mgr_mat_tbl_default_entry_reset(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                               uint32_t) {
  return BF_SUCCESS;
}

pd_status pipe_mgr_idle_set_params(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_idle_driver_params) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_idle_tmo_set_enable(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_idle_get_params(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_idle_driver_params *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_idle_register_tmo_cb(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_idle_tmo_cb,
                                        void *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_set_idle_ttl(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl, uint32_t,
                                        uint32_t, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_get_idle_ttl(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                        uint32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_reset_idle_ttl(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_idle_time_update_hit_state(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_idle_update_cb,
                                              void *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_idle_time_get_hit_state(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                           uint32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_tbl_set_property(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t, uint32_t,
                                    uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_tbl_get_property(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t, uint32_t *,
                                    uint32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_register_mat_update_cb(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_mat_update_cb,
                                      void *) {
  return BF_SUCCESS;
}

// Counters, meters and registers. A counter query answers a fixed cell, so
// that the library's swap runs; a register query fills one element per pipe
// of a two-pipe device.
pd_status pipe_mgr_direct_stat_ent_database_sync(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_direct_stat_query(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                             pd_counter_record *value) {
  value->bytes = 6400;
  value->packets = 100;
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_direct_stat_set(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                           pd_counter_record *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_direct_stat_database_sync(pd_sess_hdl, pd_dev_target, pd_tbl_hdl,
                                             pd_stat_sync_cb, void *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_stat_ent_database_sync(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_stat_ent_query(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t *, uint32_t,
                                  pd_counter_record **values) {
  values[0]->bytes = 6400;
  values[0]->packets = 100;
  return BF_SUCCESS;
}
pd_status pipe_mgr_stat_ent_set(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                                pd_counter_record *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_stat_database_sync(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_stat_sync_cb,
                                      void *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_mat_ent_set_resource(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                        pd_resource_record *, int, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_meter_read_entry(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                    pd_meter_record *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_meter_ent_set(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                                 pd_meter_record *, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_meter_read_entry_idx(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                                        pd_meter_record *, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_meter_set_bytecount_adjust(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, int32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_meter_get_bytecount_adjust(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, int32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_wred_ent_set(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, pd_wred_spec *,
                                uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_stful_query_get_sizes(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, int *num_pipes) {
  *num_pipes = 2;
  return BF_SUCCESS;
}
pd_status pipe_stful_ent_query(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                               pd_register_query *query, uint32_t) {
  for (int32_t i = 0; i < query->count; ++i) query->data[i].bytes[0] = 1;
  return BF_SUCCESS;
}
pd_status pipe_stful_ent_query_range(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                                     uint32_t count, pd_register_query *, uint32_t *num_read,
                                     uint32_t) {
  *num_read = count;
  return BF_SUCCESS;
}
pd_status pipe_stful_ent_set(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t,
                             pd_register_element *, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_stful_table_reset(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_register_element *) {
  return BF_SUCCESS;
}
pd_status pipe_stful_table_reset_range(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, uint32_t,
                                       uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_stful_database_sync(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_register_sync_cb,
                                   void *) {
  return BF_SUCCESS;
}
pd_status pipe_stful_direct_ent_query(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_entry_hdl,
                                      pd_register_query *, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_stful_direct_database_sync(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_register_sync_cb,
                                          void *) {
  return BF_SUCCESS;
}

// Hash calculations: the calculation answers its own handles, so the
// library's handle checks pass.
pd_status pipe_mgr_hash_calc_input_set(pd_sess_hdl, uint32_t, uint32_t, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_input_get(pd_sess_hdl, uint32_t, uint32_t hash_hdl,
                                       uint32_t *input_hdl) {
  *input_hdl = 0x21000000u | (hash_hdl & 0xFFu);
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_algorithm_set(pd_sess_hdl, uint32_t, uint32_t, uint32_t,
                                           const void *, uint64_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_algorithm_get(pd_sess_hdl, uint32_t, uint32_t, uint32_t *, void *,
                                           uint64_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_seed_set(pd_sess_hdl, uint32_t, uint32_t, uint64_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_seed_get(pd_sess_hdl, uint32_t, uint32_t, uint64_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_input_field_attribute_set(pd_sess_hdl, uint32_t, uint32_t, uint32_t,
                                                       uint32_t,
                                                       pd_hash_calc_driver_attribute *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_input_field_attribute_count_get(pd_sess_hdl, uint32_t, uint32_t,
                                                             uint32_t, uint32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_hash_calc_input_field_attribute_get(pd_sess_hdl, uint32_t, uint32_t, uint32_t,
                                                       uint32_t, pd_hash_calc_driver_attribute *,
                                                       uint32_t *) {
  return BF_SUCCESS;
}
// Reads the whole stream, as a hash would, so that building it is not work
// the driver could be said to ignore.
pd_status pipe_mgr_hash_calc_calculate_hash_value(pd_sess_hdl, uint32_t, uint32_t,
                                                  const uint8_t *stream, uint32_t stream_len,
                                                  uint8_t *hash, uint32_t hash_len) {
  uint8_t x = 0;
  for (uint32_t i = 0; i < stream_len; ++i) x = uint8_t(x ^ stream[i]);
  if (hash_len != 0) hash[0] = x;
  return BF_SUCCESS;
}

// Parser value sets.
pd_status pipe_mgr_pvs_set_property(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t,
                                    pd_pvs_property_args) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_get_property(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t *,
                                    pd_pvs_property_args) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_add(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t,
                                 uint32_t, uint32_t, pd_entry_hdl *entry_hdl) {
  *entry_hdl = ++g_next_entry_hdl;
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_modify(pd_sess_hdl, uint32_t, uint32_t, pd_entry_hdl, uint32_t,
                                    uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_delete(pd_sess_hdl, uint32_t, uint32_t, pd_entry_hdl) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_get(pd_sess_hdl, uint32_t, uint32_t, pd_entry_hdl, uint32_t *,
                                 uint32_t *, uint32_t *, uint32_t *, uint32_t *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_handle_get(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t,
                                        uint32_t, uint32_t, uint32_t, pd_entry_hdl *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_get_first(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t,
                                       uint32_t, pd_entry_hdl *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_get_next(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t,
                                      uint32_t, pd_entry_hdl, uint32_t, pd_entry_hdl *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_pvs_entry_get_count(pd_sess_hdl, uint32_t, uint32_t, uint32_t, uint32_t,
                                       uint32_t, uint32_t, uint32_t *) {
  return BF_SUCCESS;
}

// Learning digests.
pd_status pipe_mgr_lrn_digest_notification_register(pd_sess_hdl, uint32_t, uint32_t,
                                                    pd_lrn_digest_cb, void *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_lrn_digest_notification_deregister(pd_sess_hdl, uint32_t, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_flow_lrn_notify_ack(pd_sess_hdl, uint32_t, pd_lrn_digest_msg *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_flow_lrn_set_timeout(pd_sess_hdl, uint32_t, uint32_t) { return BF_SUCCESS; }

// Snapshots.
pd_status bf_snapshot_create(uint32_t, uint32_t, uint8_t, uint8_t, uint32_t, uint32_t *hdl) {
  *hdl = 4;
  return BF_SUCCESS;
}
pd_status bf_snapshot_delete(uint32_t) { return BF_SUCCESS; }
pd_status bf_snapshot_capture_trigger_set(uint32_t, const void *, const void *) {
  return BF_SUCCESS;
}
pd_status bf_snapshot_capture_phv_fields_dict_size(uint32_t, uint32_t *total, uint32_t *record) {
  *total = 0;
  *record = 794;
  return BF_SUCCESS;
}
pd_status bf_snapshot_capture_get(uint32_t, uint32_t, uint8_t *, pd_snapshot_capture_ctrl *,
                                  uint32_t *count) {
  *count = 0;
  return BF_SUCCESS;
}

pd_status p4_pd_ms_init(void) { return BF_SUCCESS; }

pd_ms_state *p4_pd_ms_init_state(void) { return &g_ms_state; }

pd_status p4_pd_ms_destroy_state_for_dev(pd_ms_state *, uint32_t) { return BF_SUCCESS; }

pd_status p4_pd_ms_destroy_txn_state_for_dev(uint32_t) { return BF_SUCCESS; }

pd_status p4_pd_ms_log_state(uint32_t, pd_ms_state *, void *) { return BF_SUCCESS; }

pd_status p4_pd_ms_restore_state(uint32_t, pd_ms_state *, void *) { return BF_SUCCESS; }

// ------------------------------------------------------- action profiles ---
// Every member and group runs setEcmpNextHop, so that a state look-up answers
// as it would for the ECMP profile.

pd_status pipe_mgr_adt_ent_add(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_act_fn_hdl, uint32_t,
                               pd_action_record *, pd_mbr_hdl *mbr_hdl, uint32_t) {
  *mbr_hdl = 1;
  return BF_SUCCESS;
}
pd_status pipe_mgr_adt_ent_set(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_mbr_hdl, pd_act_fn_hdl,
                               pd_action_record *, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_adt_ent_del(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_mbr_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_action_data_entry(pd_tbl_hdl, pd_dev_target, pd_mbr_hdl,
                                         pd_action_record *, pd_act_fn_hdl *fn, uint8_t) {
  *fn = kSetEcmpNextHop;
  return BF_SUCCESS;
}
pd_status pipe_register_adt_update_cb(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_adt_update_cb,
                                      void *) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_new_mbr(pd_sess_hdl, pd_ms_state *, uint32_t, pd_mbr_hdl) { return BF_SUCCESS; }
pd_status p4_pd_ms_set_mbr_act(pd_ms_state *, uint32_t, pd_mbr_hdl, pd_act_fn_hdl) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_get_mbr_act(pd_ms_state *, uint32_t, pd_mbr_hdl, pd_act_fn_hdl *fn) {
  *fn = kSetEcmpNextHop;
  return BF_SUCCESS;
}
pd_status p4_pd_ms_del_mbr(pd_sess_hdl, pd_ms_state *, uint32_t, pd_mbr_hdl) { return BF_SUCCESS; }
pd_status p4_pd_ms_mbr_get_res(pd_ms_state *, uint32_t, pd_mbr_hdl, uint32_t *count,
                               pd_resource_index **resources) {
  *count = 0;
  *resources = nullptr;
  return BF_SUCCESS;
}

pd_status pipe_mgr_sel_grp_add(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, uint32_t, uint32_t,
                               pd_grp_hdl *grp_hdl, uint32_t) {
  *grp_hdl = 1;
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_del(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_add(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_act_fn_hdl,
                                   pd_mbr_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_del(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_mbr_hdl,
                                   uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_enable(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_mbr_hdl,
                                      uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_disable(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_mbr_hdl,
                                       uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_state_get(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_mbr_hdl,
                                         uint32_t *mbr_state) {
  *mbr_state = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbr_get_from_hash(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl,
                                             uint8_t *, uint32_t, pd_mbr_hdl *mbr_hdl) {
  *mbr_hdl = 1;
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_fallback_mbr_set(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_mbr_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_fallback_mbr_reset(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_sel_grp_mbr_count(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl,
                                         uint32_t *count) {
  *count = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_grp_mbrs_get(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_grp_hdl, uint32_t,
                                    pd_mbr_hdl *, uint8_t *, uint32_t *written, uint32_t) {
  *written = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_first_group_member(pd_sess_hdl, pd_tbl_hdl, uint32_t, pd_grp_hdl,
                                          pd_mbr_hdl *mbr_hdl) {
  *mbr_hdl = 1;
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_next_group_members(pd_sess_hdl, pd_tbl_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl,
                                          uint32_t, pd_mbr_hdl *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_word_llp_active_member_count(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t,
                                                    uint32_t *count) {
  *count = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_get_word_llp_active_members(pd_sess_hdl, uint32_t, pd_tbl_hdl, uint32_t,
                                               uint32_t, pd_mbr_hdl *) {
  return BF_SUCCESS;
}
pd_status pipe_mgr_sel_tbl_register_cb(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_sel_tbl_cb, void *) {
  return BF_SUCCESS;
}
pd_status pipe_register_sel_update_cb(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_sel_update_cb, void *) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_new_grp(pd_sess_hdl, pd_ms_state *, uint32_t, pd_grp_hdl) { return BF_SUCCESS; }
pd_status p4_pd_ms_del_grp(pd_sess_hdl, pd_ms_state *, uint32_t, pd_grp_hdl, uint32_t,
                           pd_mbr_hdl *) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_add_mbr_to_grp(pd_sess_hdl, pd_ms_state *, uint32_t, pd_mbr_hdl, pd_grp_hdl) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_del_mbr_from_grp(pd_sess_hdl, pd_ms_state *, uint32_t, pd_mbr_hdl, pd_grp_hdl) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_get_grp_act(pd_ms_state *, uint32_t, pd_grp_hdl, pd_act_fn_hdl *fn) {
  *fn = kSetEcmpNextHop;
  return BF_SUCCESS;
}
pd_status p4_pd_ms_set_grp_act(pd_ms_state *, uint32_t, pd_grp_hdl, pd_act_fn_hdl) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_grp_get_res(pd_ms_state *, uint32_t, pd_grp_hdl, uint32_t *count,
                               pd_resource_index **resources) {
  *count = 0;
  *resources = nullptr;
  return BF_SUCCESS;
}
pd_status p4_pd_ms_mbr_apply_to_grps(pd_ms_state *, uint32_t, pd_mbr_hdl, pd_ms_grp_fn, void *) {
  return BF_SUCCESS;
}
pd_status p4_pd_ms_grp_update_res(uint32_t, pd_mbr_hdl, pd_grp_hdl, void *) { return BF_SUCCESS; }

pd_status pipe_mgr_hitless_ha_restore_virtual_dev_state(pd_sess_hdl, uint32_t, uint32_t, void *,
                                                        void *, pd_ha_restore_cb) {
  return BF_SUCCESS;
}

// Placement data: an empty record, decoded as the entry a read answers.
pd_status pipe_mgr_plcmt_mat_data_get(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_entry_hdl,
                                      void *, uint32_t *size) {
  *size = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_plcmt_adt_data_get(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_mbr_hdl, void *,
                                      uint32_t *size) {
  *size = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_plcmt_sel_data_get(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_grp_hdl, void *,
                                      uint32_t *size) {
  *size = 0;
  return BF_SUCCESS;
}
pd_status pipe_mgr_plcmt_mat_data_get_entry(const void *, pd_match_record *key,
                                            pd_action_record *act, pd_act_fn_hdl *fn) {
  copy_key(key);
  fill_action(act);
  *fn = kL2LookupKnownUcast;
  return BF_SUCCESS;
}
pd_status pipe_mgr_plcmt_adt_data_get_entry(const void *, pd_action_record *, pd_act_fn_hdl *fn) {
  *fn = kSetEcmpNextHop;
  return BF_SUCCESS;
}

}  // extern "C"
