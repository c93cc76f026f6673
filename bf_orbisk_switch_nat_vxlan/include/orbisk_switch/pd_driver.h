/* The driver and member-selection functions that the library imports. They
 * stay undefined in the library and are resolved when it is loaded: from the
 * chip's driver in a switch, from the in-memory driver model in tests. A
 * driver implementation provides exactly these. */
#ifndef ORBISK_SWITCH_PD_DRIVER_H
#define ORBISK_SWITCH_PD_DRIVER_H

#include "orbisk_switch/pd_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Driver client registration and system services. */
pd_status bf_drv_register(const char *client_name, uint32_t *client_hdl);
pd_status bf_drv_deregister(uint32_t client_hdl);
pd_status bf_drv_client_register_callbacks(uint32_t client_hdl,
                                           pd_drv_client_callbacks *callbacks,
                                           uint32_t priority);
int bf_sys_dbg_mode(void);
void bf_sys_log_and_trace(int module, int level, const char *format, ...)
    __attribute__((format(printf, 3, 4)));
void *bf_sys_calloc(size_t count, size_t size);
void bf_sys_free(void *ptr);

/* Match table entries. The flags words are always 0 from this library. */
pd_status pipe_mgr_mat_ent_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                               pd_match_record *key, pd_act_fn_hdl fn, pd_action_record *act,
                               uint32_t ttl, uint32_t flags, pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_mat_ent_set_action(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, pd_act_fn_hdl fn,
                                      pd_action_record *act, uint32_t flags);
pd_status pipe_mgr_mat_ent_set_action_by_match_spec(pd_sess_hdl sess, pd_dev_target target,
                                                    pd_tbl_hdl tbl, pd_match_record *key,
                                                    pd_act_fn_hdl fn, pd_action_record *act,
                                                    uint32_t flags);
pd_status pipe_mgr_mat_ent_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                               pd_entry_hdl entry_hdl, uint32_t flags);
pd_status pipe_mgr_mat_ent_del_by_match_spec(pd_sess_hdl sess, pd_dev_target target,
                                             pd_tbl_hdl tbl, pd_match_record *key,
                                             uint32_t flags);
pd_status pipe_mgr_match_spec_to_ent_hdl(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_match_record *key, pd_entry_hdl *entry_hdl,
                                         uint32_t flags);

/* Reads and walks. The read-from-hardware flags are widened to 32 bits. */
pd_status pipe_mgr_get_entry_count(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                   uint32_t read_from_hw, uint32_t *count);
pd_status pipe_mgr_get_first_entry_handle(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_get_next_entry_handles(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                                          pd_entry_hdl entry_hdl, uint32_t count,
                                          pd_entry_hdl *next_hdls);
pd_status pipe_mgr_get_entry(pd_sess_hdl sess, pd_tbl_hdl tbl, pd_dev_target target,
                             pd_entry_hdl entry_hdl, pd_match_record *key,
                             pd_action_record *act, pd_act_fn_hdl *fn, uint32_t read_from_hw,
                             uint32_t resource_get_flags, uint32_t reserved);

/* Default entries. */
pd_status pipe_mgr_mat_default_entry_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                         pd_act_fn_hdl fn, pd_action_record *act, uint32_t flags,
                                         pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_table_get_default_entry(pd_sess_hdl sess, pd_dev_target target,
                                           pd_tbl_hdl tbl, pd_action_record *act,
                                           pd_act_fn_hdl *fn, uint32_t read_from_hw,
                                           uint32_t resource_get_flags, uint32_t reserved);
pd_status pipe_mgr_table_get_default_entry_handle(pd_sess_hdl sess, pd_dev_target target,
                                                  pd_tbl_hdl tbl, pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_mat_tbl_default_entry_reset(pd_sess_hdl sess, pd_dev_target target,
                                               pd_tbl_hdl tbl, uint32_t flags);

/* Idle time of tables whose entries age. set_ttl's flags words are 0. */
pd_status pipe_mgr_idle_set_params(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                   pd_idle_driver_params params);
pd_status pipe_mgr_idle_tmo_set_enable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                       uint32_t enable);
pd_status pipe_mgr_idle_get_params(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                   pd_idle_driver_params *params);
pd_status pipe_mgr_idle_register_tmo_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_idle_tmo_cb callback, void *cookie);
pd_status pipe_mgr_mat_ent_set_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint32_t ttl, uint32_t flags,
                                        uint32_t reserved);
pd_status pipe_mgr_mat_ent_get_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint32_t *ttl);
pd_status pipe_mgr_mat_ent_reset_idle_ttl(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                          pd_entry_hdl entry_hdl);
pd_status pipe_mgr_idle_time_update_hit_state(pd_sess_hdl sess, uint32_t device_id,
                                              pd_tbl_hdl tbl, pd_idle_update_cb callback,
                                              void *cookie);
pd_status pipe_mgr_idle_time_get_hit_state(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                           pd_entry_hdl entry_hdl, uint32_t *hit_state);

/* Table properties and update callbacks. */
pd_status pipe_mgr_tbl_set_property(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    uint32_t property, uint32_t value, uint32_t second_value);
pd_status pipe_mgr_tbl_get_property(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    uint32_t property, uint32_t *value, uint32_t *second_value);
pd_status pipe_register_mat_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_mat_update_cb callback, void *cookie);

/* Counters: direct ones by match table and entry, indexed ones by their own
 * handle and index. */
pd_status pipe_mgr_direct_stat_ent_database_sync(pd_sess_hdl sess, uint32_t device_id,
                                                 pd_tbl_hdl tbl, pd_entry_hdl entry_hdl);
pd_status pipe_mgr_mat_ent_direct_stat_query(pd_sess_hdl sess, uint32_t device_id,
                                             pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                             pd_counter_record *value);
pd_status pipe_mgr_mat_ent_direct_stat_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                           pd_entry_hdl entry_hdl, pd_counter_record *value);
pd_status pipe_mgr_direct_stat_database_sync(pd_sess_hdl sess, pd_dev_target target,
                                             pd_tbl_hdl tbl, pd_stat_sync_cb callback,
                                             void *cookie);
pd_status pipe_mgr_stat_ent_database_sync(pd_sess_hdl sess, pd_dev_target target,
                                          pd_tbl_hdl tbl, uint32_t index);
pd_status pipe_mgr_stat_ent_query(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                  uint32_t *indices, uint32_t num_indices,
                                  pd_counter_record **values);
pd_status pipe_mgr_stat_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                uint32_t index, pd_counter_record *value);
pd_status pipe_mgr_stat_database_sync(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                      pd_stat_sync_cb callback, void *cookie);

/* Meters and WRED. An entry's resources are set as a list of `count` slots;
 * flags words are 0 from this library. */
pd_status pipe_mgr_mat_ent_set_resource(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, pd_resource_record *resources,
                                        int count, uint32_t flags);
pd_status pipe_mgr_meter_read_entry(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    pd_entry_hdl entry_hdl, pd_meter_record *meter);
pd_status pipe_mgr_meter_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                 uint32_t index, pd_meter_record *meter, uint32_t flags);
pd_status pipe_mgr_meter_read_entry_idx(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                        uint32_t index, pd_meter_record *meter, uint32_t flags);
pd_status pipe_mgr_meter_set_bytecount_adjust(pd_sess_hdl sess, pd_dev_target target,
                                              pd_tbl_hdl meter_hdl, int32_t adjust);
pd_status pipe_mgr_meter_get_bytecount_adjust(pd_sess_hdl sess, pd_dev_target target,
                                              pd_tbl_hdl meter_hdl, int32_t *adjust);
pd_status pipe_mgr_wred_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                uint32_t index, pd_wred_spec *wred, uint32_t flags);

/* Registers (stateful tables). A read's flags are bit 0 alone: from the chip
 * rather than the driver's shadow. */
pd_status pipe_stful_query_get_sizes(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                     int *num_pipes);
pd_status pipe_stful_ent_query(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                               uint32_t index, pd_register_query *query, uint32_t flags);
pd_status pipe_stful_ent_query_range(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                     uint32_t first, uint32_t count, pd_register_query *queries,
                                     uint32_t *num_read, uint32_t flags);
pd_status pipe_stful_ent_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                             uint32_t index, pd_register_element *element, uint32_t flags);
pd_status pipe_stful_table_reset(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                 pd_register_element *element);
pd_status pipe_stful_table_reset_range(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                       uint32_t first, uint32_t count, uint32_t flags);
pd_status pipe_stful_database_sync(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                   pd_register_sync_cb callback, void *cookie);
pd_status pipe_stful_direct_ent_query(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, pd_register_query *query,
                                      uint32_t flags);
pd_status pipe_stful_direct_database_sync(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                          pd_register_sync_cb callback, void *cookie);

/* Hash calculations. The two trailing words of the algorithm calls are the
 * driver's; this library always passes 0 (null). */
pd_status pipe_mgr_hash_calc_input_set(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                       uint32_t input_hdl);
pd_status pipe_mgr_hash_calc_input_get(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                       uint32_t *input_hdl);
pd_status pipe_mgr_hash_calc_algorithm_set(pd_sess_hdl sess, uint32_t device_id,
                                           uint32_t hash_hdl, uint32_t algorithm_hdl,
                                           const void *algorithm, uint64_t rotate);
pd_status pipe_mgr_hash_calc_algorithm_get(pd_sess_hdl sess, uint32_t device_id,
                                           uint32_t hash_hdl, uint32_t *algorithm_hdl,
                                           void *algorithm, uint64_t *rotate);
pd_status pipe_mgr_hash_calc_seed_set(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                      uint64_t seed);
pd_status pipe_mgr_hash_calc_seed_get(pd_sess_hdl sess, uint32_t device_id, uint32_t hash_hdl,
                                      uint64_t *seed);
pd_status pipe_mgr_hash_calc_input_field_attribute_set(pd_sess_hdl sess, uint32_t device_id,
                                                       uint32_t hash_hdl, uint32_t input_hdl,
                                                       uint32_t count,
                                                       pd_hash_calc_driver_attribute *attrs);
pd_status pipe_mgr_hash_calc_input_field_attribute_count_get(pd_sess_hdl sess,
                                                             uint32_t device_id,
                                                             uint32_t hash_hdl,
                                                             uint32_t input_hdl,
                                                             uint32_t *count);
pd_status pipe_mgr_hash_calc_input_field_attribute_get(pd_sess_hdl sess, uint32_t device_id,
                                                       uint32_t hash_hdl, uint32_t input_hdl,
                                                       uint32_t capacity,
                                                       pd_hash_calc_driver_attribute *attrs,
                                                       uint32_t *count);
/* Hashes stream_len bytes and writes hash_len bytes of the result. */
pd_status pipe_mgr_hash_calc_calculate_hash_value(pd_sess_hdl sess, uint32_t device_id,
                                                  uint32_t hash_hdl, const uint8_t *stream,
                                                  uint32_t stream_len, uint8_t *hash,
                                                  uint32_t hash_len);

/* Parser value sets. The parser target is taken apart: gress, pipe and the
 * parser id widened from its byte. entry_get's three place outputs are
 * always null from this library. */
pd_status pipe_mgr_pvs_set_property(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    uint32_t property, uint32_t value,
                                    pd_pvs_property_args args);
pd_status pipe_mgr_pvs_get_property(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    uint32_t property, uint32_t *value,
                                    pd_pvs_property_args args);
pd_status pipe_mgr_pvs_entry_add(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                 uint32_t gress, uint32_t pipe, uint32_t parser, uint32_t key,
                                 uint32_t mask, pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_pvs_entry_modify(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    pd_entry_hdl entry_hdl, uint32_t key, uint32_t mask);
pd_status pipe_mgr_pvs_entry_delete(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                    pd_entry_hdl entry_hdl);
pd_status pipe_mgr_pvs_entry_get(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                 pd_entry_hdl entry_hdl, uint32_t *key, uint32_t *mask,
                                 uint32_t *gress, uint32_t *pipe, uint32_t *parser);
pd_status pipe_mgr_pvs_entry_handle_get(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                        uint32_t gress, uint32_t pipe, uint32_t parser,
                                        uint32_t key, uint32_t mask, pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_pvs_entry_get_first(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                       uint32_t gress, uint32_t pipe, uint32_t parser,
                                       pd_entry_hdl *entry_hdl);
pd_status pipe_mgr_pvs_entry_get_next(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                      uint32_t gress, uint32_t pipe, uint32_t parser,
                                      pd_entry_hdl entry_hdl, uint32_t count,
                                      pd_entry_hdl *next_hdls);
pd_status pipe_mgr_pvs_entry_get_count(pd_sess_hdl sess, uint32_t device_id, uint32_t pvs_hdl,
                                       uint32_t gress, uint32_t pipe, uint32_t parser,
                                       uint32_t read_from_hw, uint32_t *count);

/* Learning digests. The callback and cookie are the caller's, unchanged. */
pd_status pipe_mgr_lrn_digest_notification_register(pd_sess_hdl sess, uint32_t device_id,
                                                    uint32_t digest_hdl,
                                                    pd_lrn_digest_cb callback, void *cookie);
pd_status pipe_mgr_lrn_digest_notification_deregister(pd_sess_hdl sess, uint32_t device_id,
                                                      uint32_t digest_hdl);
pd_status pipe_mgr_flow_lrn_notify_ack(pd_sess_hdl sess, uint32_t digest_hdl,
                                       pd_lrn_digest_msg *msg);
pd_status pipe_mgr_flow_lrn_set_timeout(pd_sess_hdl sess, uint32_t device_id, uint32_t timeout);

/* Snapshots. Trigger records are in the driver's byte order; captures are
 * record_size bytes apart in the buffer. */
pd_status bf_snapshot_create(uint32_t device_id, uint32_t pipe, uint8_t start_stage,
                             uint8_t end_stage, uint32_t direction, uint32_t *snapshot_hdl);
pd_status bf_snapshot_delete(uint32_t snapshot_hdl);
pd_status bf_snapshot_capture_trigger_set(uint32_t snapshot_hdl, const void *value,
                                          const void *mask);
pd_status bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot_hdl, uint32_t *total_size,
                                                   uint32_t *record_size);
pd_status bf_snapshot_capture_get(uint32_t snapshot_hdl, uint32_t pipe, uint8_t *buffer,
                                  pd_snapshot_capture_ctrl *ctrl, uint32_t *count);

/* Member-selection service: one state for each action profile. */
pd_status p4_pd_ms_init(void);
pd_ms_state *p4_pd_ms_init_state(void);
pd_status p4_pd_ms_destroy_state_for_dev(pd_ms_state *state, uint32_t device_id);
pd_status p4_pd_ms_destroy_txn_state_for_dev(uint32_t device_id);
pd_status p4_pd_ms_log_state(uint32_t device_id, pd_ms_state *state, void *cjson_object);
pd_status p4_pd_ms_restore_state(uint32_t device_id, pd_ms_state *state, void *cjson_object);

/* Action profiles: action data tables (members). The fifth argument of
 * pipe_mgr_adt_ent_add and every flags word are 0 from this library. A read
 * of a member fills the action record's data part (num_valid_bits, num_bytes,
 * data_bytes, with num_bytes the room offered) and takes no session. */
pd_status pipe_mgr_adt_ent_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl adt,
                               pd_act_fn_hdl fn, uint32_t reserved, pd_action_record *act,
                               pd_mbr_hdl *mbr_hdl, uint32_t flags);
pd_status pipe_mgr_adt_ent_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                               pd_mbr_hdl mbr_hdl, pd_act_fn_hdl fn, pd_action_record *act,
                               uint32_t flags);
pd_status pipe_mgr_adt_ent_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                               pd_mbr_hdl mbr_hdl, uint32_t flags);
pd_status pipe_mgr_get_action_data_entry(pd_tbl_hdl adt, pd_dev_target target, pd_mbr_hdl mbr_hdl,
                                         pd_action_record *act, pd_act_fn_hdl *fn,
                                         uint8_t read_from_hw);
pd_status pipe_register_adt_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                                      pd_adt_update_cb callback, void *cookie);

/* Member-selection service: what each member of a profile runs. */
pd_status p4_pd_ms_new_mbr(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_mbr_hdl mbr_hdl);
pd_status p4_pd_ms_set_mbr_act(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               pd_act_fn_hdl fn);
pd_status p4_pd_ms_get_mbr_act(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               pd_act_fn_hdl *fn);
pd_status p4_pd_ms_del_mbr(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_mbr_hdl mbr_hdl);
pd_status p4_pd_ms_mbr_get_res(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                               uint32_t *count, pd_resource_index **resources);

/* Selector tables (groups). The fourth argument of pipe_mgr_sel_grp_add is 0
 * and its sixth 0xDEADBEEF from this library, and every flags word is 0. A
 * member state is P4_PD_GRP_MBR_STATE_*; the state bytes of
 * pipe_mgr_sel_grp_mbrs_get are the driver's. */
pd_status pipe_mgr_sel_grp_add(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl sel,
                               uint32_t reserved, uint32_t max_size, uint32_t cookie,
                               pd_grp_hdl *grp_hdl, uint32_t flags);
pd_status pipe_mgr_sel_grp_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                               pd_grp_hdl grp_hdl, uint32_t flags);
pd_status pipe_mgr_sel_grp_mbr_add(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                   pd_grp_hdl grp_hdl, pd_act_fn_hdl fn, pd_mbr_hdl mbr_hdl,
                                   uint32_t flags);
pd_status pipe_mgr_sel_grp_mbr_del(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                   pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags);
pd_status pipe_mgr_sel_grp_mbr_enable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                      pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags);
pd_status pipe_mgr_sel_grp_mbr_disable(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                       pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t flags);
pd_status pipe_mgr_sel_grp_mbr_state_get(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                         pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl,
                                         uint32_t *mbr_state);
pd_status pipe_mgr_sel_grp_mbr_get_from_hash(pd_sess_hdl sess, uint32_t device_id,
                                             pd_tbl_hdl sel, pd_grp_hdl grp_hdl,
                                             uint8_t *hash, uint32_t hash_len,
                                             pd_mbr_hdl *mbr_hdl);
pd_status pipe_mgr_sel_fallback_mbr_set(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                        pd_mbr_hdl mbr_hdl, uint32_t flags);
pd_status pipe_mgr_sel_fallback_mbr_reset(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                          uint32_t flags);
pd_status pipe_mgr_get_sel_grp_mbr_count(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                         pd_grp_hdl grp_hdl, uint32_t *count);
pd_status pipe_mgr_sel_grp_mbrs_get(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                    pd_grp_hdl grp_hdl, uint32_t capacity, pd_mbr_hdl *mbr_hdls,
                                    uint8_t *mbr_states, uint32_t *written, uint32_t flags);
pd_status pipe_mgr_get_first_group_member(pd_sess_hdl sess, pd_tbl_hdl sel, uint32_t device_id,
                                          pd_grp_hdl grp_hdl, pd_mbr_hdl *mbr_hdl);
pd_status pipe_mgr_get_next_group_members(pd_sess_hdl sess, pd_tbl_hdl sel, uint32_t device_id,
                                          pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl, uint32_t count,
                                          pd_mbr_hdl *next_mbr_hdls);
pd_status pipe_mgr_get_word_llp_active_member_count(pd_sess_hdl sess, uint32_t device_id,
                                                    pd_tbl_hdl sel, uint32_t word_index,
                                                    uint32_t *count);
pd_status pipe_mgr_get_word_llp_active_members(pd_sess_hdl sess, uint32_t device_id,
                                               pd_tbl_hdl sel, uint32_t word_index,
                                               uint32_t count, pd_mbr_hdl *mbr_hdls);
pd_status pipe_mgr_sel_tbl_register_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                       pd_sel_tbl_cb callback, void *cookie);
pd_status pipe_register_sel_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl sel,
                                      pd_sel_update_cb callback, void *cookie);

/* Member-selection service: groups, their members and their action. Note
 * that the member handle stands before the group handle here. */
pd_status p4_pd_ms_new_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_grp_hdl grp_hdl);
pd_status p4_pd_ms_del_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                           pd_grp_hdl grp_hdl, uint32_t num_mbrs, pd_mbr_hdl *mbr_hdls);
pd_status p4_pd_ms_add_mbr_to_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                                  pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl);
pd_status p4_pd_ms_del_mbr_from_grp(pd_sess_hdl sess, pd_ms_state *state, uint32_t device_id,
                                    pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl);
pd_status p4_pd_ms_get_grp_act(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               pd_act_fn_hdl *fn);
pd_status p4_pd_ms_set_grp_act(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               pd_act_fn_hdl fn);
pd_status p4_pd_ms_grp_get_res(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp_hdl,
                               uint32_t *count, pd_resource_index **resources);
pd_status p4_pd_ms_mbr_apply_to_grps(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr_hdl,
                                     pd_ms_grp_fn fn, void *aux);
/* Brings a group's resources in line with a member's; aux is the state. */
pd_status p4_pd_ms_grp_update_res(uint32_t device_id, pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl,
                                  void *aux);

/* Hitless restore: the driver replays, through the callback, every member,
 * group and membership of the device's action data and selector tables as
 * the hardware holds them. restore_flags is handed to each item; driver_state
 * and reserved are the driver's own. */
pd_status pipe_mgr_hitless_ha_restore_virtual_dev_state(pd_sess_hdl sess, uint32_t device_id,
                                                        uint32_t restore_flags, void *driver_state,
                                                        void *reserved,
                                                        pd_ha_restore_cb callback);

/* Placement data: an opaque record the driver keeps for what it placed on the
 * chip, in the driver's own format. A fetch writes the record of a match
 * entry, a member (action data entry) or a group (selector entry) at
 * plcmt_data, given the room there in *size, and answers its length in
 * *size. The two _get_entry calls turn a match or member record back into
 * the records a write sends: the key's strings and the action's data go into
 * the places the caller points them at, with the room offered in num_bytes;
 * a default entry comes back with a key of num_bytes 0. A group's record is
 * fetched only. */
pd_status pipe_mgr_plcmt_mat_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, void *plcmt_data, uint32_t *size);
pd_status pipe_mgr_plcmt_adt_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl adt,
                                      pd_mbr_hdl mbr_hdl, void *plcmt_data, uint32_t *size);
pd_status pipe_mgr_plcmt_sel_data_get(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl sel,
                                      pd_grp_hdl grp_hdl, void *plcmt_data, uint32_t *size);
pd_status pipe_mgr_plcmt_mat_data_get_entry(const void *plcmt_data, pd_match_record *key,
                                            pd_action_record *act, pd_act_fn_hdl *fn);
pd_status pipe_mgr_plcmt_adt_data_get_entry(const void *plcmt_data, pd_action_record *act,
                                            pd_act_fn_hdl *fn);

#ifdef __cplusplus
}
#endif

#endif
