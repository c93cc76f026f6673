// The driver functions the model answers through its frame: each is logged
// and may be armed with a fault. The four bf_sys_* services are not among
// them: they are the model's own plumbing, never logged and never failed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#define ORBISK_MODEL_DRIVER_FUNCTIONS(X)       \
  X(bf_drv_register)                           \
  X(bf_drv_deregister)                         \
  X(bf_drv_client_register_callbacks)          \
  X(pipe_mgr_mat_ent_add)                      \
  X(pipe_mgr_mat_ent_set_action)               \
  X(pipe_mgr_mat_ent_set_action_by_match_spec) \
  X(pipe_mgr_mat_ent_del)                      \
  X(pipe_mgr_mat_ent_del_by_match_spec)        \
  X(pipe_mgr_match_spec_to_ent_hdl)            \
  X(pipe_mgr_get_entry_count)                  \
  X(pipe_mgr_get_first_entry_handle)           \
  X(pipe_mgr_get_next_entry_handles)           \
  X(pipe_mgr_get_entry)                        \
  X(pipe_mgr_mat_default_entry_set)            \
  X(pipe_mgr_table_get_default_entry)          \
  X(pipe_mgr_table_get_default_entry_handle)   \
  X(pipe_mgr_mat_tbl_default_entry_reset)      \
  X(pipe_mgr_idle_set_params)                  \
  X(pipe_mgr_idle_tmo_set_enable)              \
  X(pipe_mgr_idle_get_params)                  \
  X(pipe_mgr_idle_register_tmo_cb)             \
  X(pipe_mgr_mat_ent_set_idle_ttl)             \
  X(pipe_mgr_mat_ent_get_idle_ttl)             \
  X(pipe_mgr_mat_ent_reset_idle_ttl)           \
  X(pipe_mgr_idle_time_update_hit_state)       \
  X(pipe_mgr_idle_time_get_hit_state)          \
  X(pipe_mgr_tbl_set_property)                 \
  X(pipe_mgr_tbl_get_property)                 \
  X(pipe_register_mat_update_cb)               \
  X(pipe_mgr_direct_stat_ent_database_sync)    \
  X(pipe_mgr_mat_ent_direct_stat_query)        \
  X(pipe_mgr_mat_ent_direct_stat_set)          \
  X(pipe_mgr_direct_stat_database_sync)        \
  X(pipe_mgr_stat_ent_database_sync)           \
  X(pipe_mgr_stat_ent_query)                   \
  X(pipe_mgr_stat_ent_set)                     \
  X(pipe_mgr_stat_database_sync)               \
  X(pipe_mgr_mat_ent_set_resource)             \
  X(pipe_mgr_meter_read_entry)                 \
  X(pipe_mgr_meter_ent_set)                    \
  X(pipe_mgr_meter_read_entry_idx)             \
  X(pipe_mgr_meter_set_bytecount_adjust)       \
  X(pipe_mgr_meter_get_bytecount_adjust)       \
  X(pipe_mgr_wred_ent_set)                     \
  X(pipe_stful_query_get_sizes)                \
  X(pipe_stful_ent_query)                      \
  X(pipe_stful_ent_query_range)                \
  X(pipe_stful_ent_set)                        \
  X(pipe_stful_table_reset)                    \
  X(pipe_stful_table_reset_range)              \
  X(pipe_stful_database_sync)                  \
  X(pipe_stful_direct_ent_query)               \
  X(pipe_stful_direct_database_sync)           \
  X(pipe_mgr_hash_calc_input_set)              \
  X(pipe_mgr_hash_calc_input_get)              \
  X(pipe_mgr_hash_calc_algorithm_set)          \
  X(pipe_mgr_hash_calc_algorithm_get)          \
  X(pipe_mgr_hash_calc_seed_set)               \
  X(pipe_mgr_hash_calc_seed_get)               \
  X(pipe_mgr_hash_calc_input_field_attribute_set)       \
  X(pipe_mgr_hash_calc_input_field_attribute_count_get) \
  X(pipe_mgr_hash_calc_input_field_attribute_get)       \
  X(pipe_mgr_hash_calc_calculate_hash_value)   \
  X(pipe_mgr_pvs_set_property)                 \
  X(pipe_mgr_pvs_get_property)                 \
  X(pipe_mgr_pvs_entry_add)                    \
  X(pipe_mgr_pvs_entry_modify)                 \
  X(pipe_mgr_pvs_entry_delete)                 \
  X(pipe_mgr_pvs_entry_get)                    \
  X(pipe_mgr_pvs_entry_handle_get)             \
  X(pipe_mgr_pvs_entry_get_first)              \
  X(pipe_mgr_pvs_entry_get_next)               \
  X(pipe_mgr_pvs_entry_get_count)              \
  X(pipe_mgr_lrn_digest_notification_register) \
  X(pipe_mgr_lrn_digest_notification_deregister) \
  X(pipe_mgr_flow_lrn_notify_ack)              \
  X(pipe_mgr_flow_lrn_set_timeout)             \
  X(bf_snapshot_create)                        \
  X(bf_snapshot_delete)                        \
  X(bf_snapshot_capture_trigger_set)           \
  X(bf_snapshot_capture_phv_fields_dict_size)  \
  X(bf_snapshot_capture_get)                   \
  X(p4_pd_ms_init)                             \
  X(p4_pd_ms_init_state)                       \
  X(p4_pd_ms_destroy_state_for_dev)            \
  X(p4_pd_ms_destroy_txn_state_for_dev)        \
  X(p4_pd_ms_log_state)                        \
  X(p4_pd_ms_restore_state)                    \
  X(pipe_mgr_adt_ent_add)                      \
  X(pipe_mgr_adt_ent_set)                      \
  X(pipe_mgr_adt_ent_del)                      \
  X(pipe_mgr_get_action_data_entry)            \
  X(pipe_register_adt_update_cb)               \
  X(p4_pd_ms_new_mbr)                          \
  X(p4_pd_ms_set_mbr_act)                      \
  X(p4_pd_ms_get_mbr_act)                      \
  X(p4_pd_ms_del_mbr)                          \
  X(p4_pd_ms_mbr_get_res)                      \
  X(pipe_mgr_sel_grp_add)                      \
  X(pipe_mgr_sel_grp_del)                      \
  X(pipe_mgr_sel_grp_mbr_add)                  \
  X(pipe_mgr_sel_grp_mbr_del)                  \
  X(pipe_mgr_sel_grp_mbr_enable)               \
  X(pipe_mgr_sel_grp_mbr_disable)              \
  X(pipe_mgr_sel_grp_mbr_state_get)            \
  X(pipe_mgr_sel_grp_mbr_get_from_hash)        \
  X(pipe_mgr_sel_fallback_mbr_set)             \
  X(pipe_mgr_sel_fallback_mbr_reset)           \
  X(pipe_mgr_get_sel_grp_mbr_count)            \
  X(pipe_mgr_sel_grp_mbrs_get)                 \
  X(pipe_mgr_get_first_group_member)           \
  X(pipe_mgr_get_next_group_members)           \
  X(pipe_mgr_get_word_llp_active_member_count) \
  X(pipe_mgr_get_word_llp_active_members)      \
  X(pipe_mgr_sel_tbl_register_cb)              \
  X(pipe_register_sel_update_cb)               \
  X(p4_pd_ms_new_grp)                          \
  X(p4_pd_ms_del_grp)                          \
  X(p4_pd_ms_add_mbr_to_grp)                   \
  X(p4_pd_ms_del_mbr_from_grp)                 \
  X(p4_pd_ms_get_grp_act)                      \
  X(p4_pd_ms_set_grp_act)                      \
  X(p4_pd_ms_grp_get_res)                      \
  X(p4_pd_ms_mbr_apply_to_grps)                \
  X(p4_pd_ms_grp_update_res)                   \
  X(pipe_mgr_hitless_ha_restore_virtual_dev_state) \
  X(pipe_mgr_plcmt_mat_data_get)               \
  X(pipe_mgr_plcmt_adt_data_get)               \
  X(pipe_mgr_plcmt_sel_data_get)               \
  X(pipe_mgr_plcmt_mat_data_get_entry)         \
  X(pipe_mgr_plcmt_adt_data_get_entry)

namespace orbisk_model {

// Named as the functions themselves, so a frame cannot log one name and be
// armed under another.
enum class Fn : uint8_t {
#define ORBISK_MODEL_ENUM(name) name,
  ORBISK_MODEL_DRIVER_FUNCTIONS(ORBISK_MODEL_ENUM)
#undef ORBISK_MODEL_ENUM
};

inline constexpr const char *kFnNames[] = {
#define ORBISK_MODEL_NAME(name) #name,
    ORBISK_MODEL_DRIVER_FUNCTIONS(ORBISK_MODEL_NAME)
#undef ORBISK_MODEL_NAME
};

inline constexpr std::size_t kNumFunctions = sizeof kFnNames / sizeof kFnNames[0];

inline const char *name_of(Fn f) { return kFnNames[std::size_t(f)]; }

// The function of that name, or kNumFunctions when the model has none.
inline std::size_t function_index(std::string_view name) {
  for (std::size_t i = 0; i < kNumFunctions; ++i) {
    if (name == kFnNames[i]) return i;
  }
  return kNumFunctions;
}

}  // namespace orbisk_model
