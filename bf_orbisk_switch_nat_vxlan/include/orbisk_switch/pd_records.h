/* The byte records that pass between the library and the driver. Their sizes
 * and field offsets are the driver's contract, so each is pinned below. */
#ifndef ORBISK_SWITCH_PD_RECORDS_H
#define ORBISK_SWITCH_PD_RECORDS_H

#include "orbisk_switch/pd_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A key: value and mask strings of num_bytes each, most significant byte
 * first. Both strings belong to the caller and live only for one call. */
typedef struct pd_match_record {
  uint8_t *value_bytes;     /* null on a read of a keyless table's default entry */
  uint8_t *mask_bytes;
  uint32_t partition_index; /* nonzero only in partitioned prefix tables */
  uint32_t priority;
  uint16_t num_valid_bits;  /* sum of the key field widths */
  uint16_t num_bytes;       /* length of each string */
  uint32_t reserved;
} pd_match_record;

PD_STATIC_ASSERT(sizeof(pd_match_record) == 32, "pd_match_record is 32 bytes");
PD_STATIC_ASSERT(offsetof(pd_match_record, value_bytes) == 0, "value_bytes at 0");
PD_STATIC_ASSERT(offsetof(pd_match_record, mask_bytes) == 8, "mask_bytes at 8");
PD_STATIC_ASSERT(offsetof(pd_match_record, partition_index) == 16, "partition_index at 16");
PD_STATIC_ASSERT(offsetof(pd_match_record, priority) == 20, "priority at 20");
PD_STATIC_ASSERT(offsetof(pd_match_record, num_valid_bits) == 24, "num_valid_bits at 24");
PD_STATIC_ASSERT(offsetof(pd_match_record, num_bytes) == 26, "num_bytes at 26");
PD_STATIC_ASSERT(offsetof(pd_match_record, reserved) == 28, "reserved at 28");

/* resource_tag values of a resource slot. */
#define PD_RESOURCE_TAG_NONE 0u
#define PD_RESOURCE_TAG_ATTACHED 1u
#define PD_RESOURCE_TAG_DETACHED 2u

/* Meter types and rate units of the driver's meter record. */
#define PD_METER_RATE_UNIT_BYTES 0u
#define PD_METER_RATE_UNIT_PACKETS 1u

/* The driver's form of a meter's rates and bursts: widened, with a unit each. */
typedef struct pd_meter_record {
  uint32_t meter_type;
  uint32_t reserved0;
  uint32_t cir_unit;
  uint32_t reserved1;
  uint64_t cir;
  uint64_t cburst;
  uint32_t pir_unit;
  uint32_t reserved2;
  uint64_t pir;
  uint64_t pburst;
} pd_meter_record;

PD_STATIC_ASSERT(sizeof(pd_meter_record) == 56, "pd_meter_record is 56 bytes");
PD_STATIC_ASSERT(offsetof(pd_meter_record, cir_unit) == 8, "cir_unit at 8");
PD_STATIC_ASSERT(offsetof(pd_meter_record, cir) == 16, "cir at 16");
PD_STATIC_ASSERT(offsetof(pd_meter_record, cburst) == 24, "cburst at 24");
PD_STATIC_ASSERT(offsetof(pd_meter_record, pir_unit) == 32, "pir_unit at 32");
PD_STATIC_ASSERT(offsetof(pd_meter_record, pir) == 40, "pir at 40");
PD_STATIC_ASSERT(offsetof(pd_meter_record, pburst) == 48, "pburst at 48");

/* One resource (counter or meter) that an entry carries. */
typedef struct pd_resource_record {
  uint32_t resource_hdl;
  uint32_t resource_index;  /* index chosen by the entry, for an indexed resource */
  union {
    uint8_t bytes[56];
    pd_meter_record meter;  /* for a direct meter */
  } resource_spec;
  uint32_t resource_tag;    /* PD_RESOURCE_TAG_* */
  uint32_t reserved;
} pd_resource_record;

PD_STATIC_ASSERT(sizeof(pd_resource_record) == 72, "pd_resource_record is 72 bytes");
PD_STATIC_ASSERT(offsetof(pd_resource_record, resource_index) == 4, "resource_index at 4");
PD_STATIC_ASSERT(offsetof(pd_resource_record, resource_spec) == 8, "resource_spec at 8");
PD_STATIC_ASSERT(offsetof(pd_resource_record, resource_tag) == 64, "resource_tag at 64");

/* record_kind values of an action record. */
#define PD_RECORD_KIND_MEMBER_DATA 0u  /* action data of a profile member */
#define PD_RECORD_KIND_DIRECT 1u       /* action data of a direct entry */
#define PD_RECORD_KIND_MEMBER_REF 2u   /* an entry that names a member */
#define PD_RECORD_KIND_GROUP_REF 4u    /* an entry that names a group */

#define PD_ACTION_RESOURCE_SLOTS 4

/* An action and the resources an entry owns. data_bytes belongs to the
 * caller and lives only for one call. */
typedef struct pd_action_record {
  uint8_t record_kind;      /* PD_RECORD_KIND_* */
  uint8_t resource_count;   /* number of filled slots */
  uint8_t reserved0[6];
  uint16_t num_valid_bits;  /* sum of the parameter widths */
  uint16_t num_bytes;       /* length of the action data; on a read, the room offered */
  uint32_t reserved1;
  uint8_t *data_bytes;
  pd_mbr_hdl member_hdl;    /* for PD_RECORD_KIND_MEMBER_REF */
  pd_grp_hdl group_hdl;     /* for PD_RECORD_KIND_GROUP_REF */
  pd_resource_record resources[PD_ACTION_RESOURCE_SLOTS];
} pd_action_record;

PD_STATIC_ASSERT(sizeof(pd_action_record) == 320, "pd_action_record is 320 bytes");
PD_STATIC_ASSERT(offsetof(pd_action_record, resource_count) == 1, "resource_count at 1");
PD_STATIC_ASSERT(offsetof(pd_action_record, num_valid_bits) == 8, "num_valid_bits at 8");
PD_STATIC_ASSERT(offsetof(pd_action_record, num_bytes) == 10, "num_bytes at 10");
PD_STATIC_ASSERT(offsetof(pd_action_record, data_bytes) == 16, "data_bytes at 16");
PD_STATIC_ASSERT(offsetof(pd_action_record, member_hdl) == 24, "member_hdl at 24");
PD_STATIC_ASSERT(offsetof(pd_action_record, group_hdl) == 28, "group_hdl at 28");
PD_STATIC_ASSERT(offsetof(pd_action_record, resources) == 32, "slots at 32");

/* One attached resource of an entry read back: handle and index. */
typedef struct pd_resource_index {
  uint32_t resource_hdl;
  uint32_t resource_index;
} pd_resource_index;

PD_STATIC_ASSERT(sizeof(pd_resource_index) == 8, "pd_resource_index is 8 bytes");
PD_STATIC_ASSERT(offsetof(pd_resource_index, resource_index) == 4, "resource_index at 4");

/* The driver's callback record: 31 eight-byte slots. The library fills the
 * device remove, log and restore slots and leaves every other slot null. */
typedef pd_status (*pd_dev_remove_cb)(uint32_t device_id);
typedef pd_status (*pd_dev_log_cb)(uint32_t device_id, void *cjson_object);
typedef pd_status (*pd_dev_restore_cb)(uint32_t device_id, void *cjson_object);

#define PD_DRV_CALLBACK_SLOTS 31

typedef struct pd_drv_client_callbacks {
  void *reserved0[3];
  pd_dev_remove_cb device_remove;   /* byte 24 */
  pd_dev_log_cb device_log;         /* byte 32 */
  pd_dev_restore_cb device_restore; /* byte 40 */
  void *reserved1[PD_DRV_CALLBACK_SLOTS - 6];
} pd_drv_client_callbacks;

PD_STATIC_ASSERT(sizeof(pd_drv_client_callbacks) == 248, "callback record is 248 bytes");
PD_STATIC_ASSERT(offsetof(pd_drv_client_callbacks, device_remove) == 24, "device remove at 24");
PD_STATIC_ASSERT(offsetof(pd_drv_client_callbacks, device_log) == 32, "device log at 32");
PD_STATIC_ASSERT(offsetof(pd_drv_client_callbacks, device_restore) == 40, "device restore at 40");

/* The driver's form of a table's idle time: seven 8-byte words, passed by
 * value. Built from a pd_idle_params; the reserved words are always 0. */
typedef struct pd_idle_driver_params {
  uint64_t mode;
  uint64_t value1;
  uint64_t value2;
  uint64_t value3;
  uint64_t reserved0;
  uint64_t value4;
  uint64_t reserved1;
} pd_idle_driver_params;

PD_STATIC_ASSERT(sizeof(pd_idle_driver_params) == 56, "pd_idle_driver_params is 56 bytes");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, mode) == 0, "mode at 0");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, value1) == 8, "value1 at 8");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, value2) == 16, "value2 at 16");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, value3) == 24, "value3 at 24");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, reserved0) == 32, "reserved0 at 32");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, value4) == 40, "value4 at 40");
PD_STATIC_ASSERT(offsetof(pd_idle_driver_params, reserved1) == 48, "reserved1 at 48");

/* Callbacks an agent registers through the library and the driver calls,
 * handed on unwrapped. They run on the driver's threads, never inside a
 * driver call the agent is making on the same thread. */

/* An entry of a table in notify mode stayed idle for its whole TTL. */
typedef void (*pd_idle_tmo_cb)(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                               void *cookie);
/* The hit state of every entry of a table has been brought up to date. */
typedef void (*pd_idle_update_cb)(uint32_t device_id, pd_tbl_hdl tbl, void *cookie);

/* update_type values of a match table update. */
#define PD_MAT_UPDATE_ADD 0u
#define PD_MAT_UPDATE_MODIFY 1u
#define PD_MAT_UPDATE_DELETE 2u

/* An entry of a match table was added, given a new action, or deleted. */
typedef void (*pd_mat_update_cb)(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                 uint32_t update_type, void *cookie);

/* ---------------------------------------- counters, meters, registers --- */

/* The driver's form of a counter cell: bytes first, the other way round from
 * pd_counter_value. */
typedef struct pd_counter_record {
  uint64_t bytes;
  uint64_t packets;
} pd_counter_record;

PD_STATIC_ASSERT(sizeof(pd_counter_record) == 16, "pd_counter_record is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_counter_record, bytes) == 0, "bytes at 0");
PD_STATIC_ASSERT(offsetof(pd_counter_record, packets) == 8, "packets at 8");

/* One register cell of one pipe. The check registers hold their value in the
 * first byte; the rest is the driver's. */
typedef struct pd_register_element {
  uint8_t bytes[16];
} pd_register_element;

PD_STATIC_ASSERT(sizeof(pd_register_element) == 16, "pd_register_element is 16 bytes");

/* A register query: room for `count` elements going in, the number filled
 * (one per pipe read) coming out. */
typedef struct pd_register_query {
  int32_t count;
  uint32_t reserved;
  pd_register_element *data;
} pd_register_query;

PD_STATIC_ASSERT(sizeof(pd_register_query) == 16, "pd_register_query is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_register_query, count) == 0, "count at 0");
PD_STATIC_ASSERT(offsetof(pd_register_query, data) == 8, "data at 8");

/* A counter's or register's cells have been brought from the chip into the
 * driver's memory. */
typedef void (*pd_stat_sync_cb)(uint32_t device_id, void *cookie);
typedef void (*pd_register_sync_cb)(uint32_t device_id, void *cookie);

/* update_type values of an action data or selector table update. */
#define PD_PROFILE_UPDATE_ADD 0u
#define PD_PROFILE_UPDATE_MODIFY 1u
#define PD_PROFILE_UPDATE_DELETE 2u
/* A member of an action profile was added, given new data, or deleted. */
typedef void (*pd_adt_update_cb)(uint32_t device_id, pd_tbl_hdl adt, pd_mbr_hdl mbr_hdl,
                                 uint32_t update_type, void *cookie);
/* A member of a selector group was turned on or off (active 1 or 0). */
typedef void (*pd_sel_tbl_cb)(uint32_t device_id, pd_tbl_hdl sel, pd_grp_hdl grp_hdl,
                              pd_mbr_hdl mbr_hdl, uint32_t active, void *cookie);
/* A selector group was made or deleted (mbr_hdl 0), or a member was added to
 * or removed from one. */
typedef void (*pd_sel_update_cb)(uint32_t device_id, pd_tbl_hdl sel, pd_grp_hdl grp_hdl,
                                 pd_mbr_hdl mbr_hdl, uint32_t update_type, void *cookie);
/* What the member-selection service applies to each group that holds a
 * member (p4_pd_ms_mbr_apply_to_grps); aux is given through unchanged. */
typedef pd_status (*pd_ms_grp_fn)(uint32_t device_id, pd_mbr_hdl mbr_hdl, pd_grp_hdl grp_hdl,
                                  void *aux);
/* One item of a hitless restore: a member (grp_hdl 0), a group (mbr_hdl 0) or
 * a member of a group, of the profile whose action data table is adt, with
 * the member's action; flags is the restore's flag word. */
typedef void (*pd_ha_restore_cb)(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl adt,
                                 pd_act_fn_hdl fn, pd_grp_hdl grp_hdl, pd_mbr_hdl mbr_hdl,
                                 uint32_t flags);
/* The driver's form of a hash field attribute: 32 bytes. The library fills
 * input_field, the same plus one in field_id, attr_type and the low 32 bits
 * of value; the two reserved words are 0. */
typedef struct pd_hash_calc_driver_attribute {
  uint32_t input_field;
  uint32_t reserved0;
  uint32_t reserved1;
  uint32_t field_id;   /* input_field + 1 */
  uint32_t attr_type;
  uint32_t reserved2;
  uint64_t value;      /* only the low 32 bits are written and read */
} pd_hash_calc_driver_attribute;

PD_STATIC_ASSERT(sizeof(pd_hash_calc_driver_attribute) == 32, "hash attribute is 32 bytes");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_driver_attribute, reserved0) == 4, "reserved0 at 4");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_driver_attribute, reserved1) == 8, "reserved1 at 8");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_driver_attribute, field_id) == 12, "field_id at 12");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_driver_attribute, attr_type) == 16, "attr_type at 16");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_driver_attribute, value) == 24, "value at 24");

/* The argument record of the value-set property calls, passed by value: the
 * caller's 32-bit argument widened into the first word; the second word is
 * 0 from this library. */
typedef struct pd_pvs_property_args {
  uint64_t value;
  uint64_t reserved;
} pd_pvs_property_args;

PD_STATIC_ASSERT(sizeof(pd_pvs_property_args) == 16, "pd_pvs_property_args is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_pvs_property_args, reserved) == 8, "reserved at 8");

/* A learning digest message as the driver delivers it to the callback
 * registered for the digest, and takes it back through notify_ack. Its
 * entries lie back to back, entry_bytes each, packed in the program's layout
 * with no padding (get_digest_entry_field finds a field in one); each field
 * is most significant byte first. The message stays the driver's until it
 * is acknowledged. */
typedef struct pd_lrn_digest_msg {
  pd_dev_target dev_tgt;  /* where the entries were learned */
  uint32_t digest_hdl;
  uint16_t num_entries;
  uint16_t entry_bytes;
  uint8_t *entries;
  uint64_t msg_id;        /* the driver's number for the message */
} pd_lrn_digest_msg;

PD_STATIC_ASSERT(sizeof(pd_lrn_digest_msg) == 32, "pd_lrn_digest_msg is 32 bytes");
PD_STATIC_ASSERT(offsetof(pd_lrn_digest_msg, digest_hdl) == 8, "digest_hdl at 8");
PD_STATIC_ASSERT(offsetof(pd_lrn_digest_msg, num_entries) == 12, "num_entries at 12");
PD_STATIC_ASSERT(offsetof(pd_lrn_digest_msg, entry_bytes) == 14, "entry_bytes at 14");
PD_STATIC_ASSERT(offsetof(pd_lrn_digest_msg, entries) == 16, "entries at 16");
PD_STATIC_ASSERT(offsetof(pd_lrn_digest_msg, msg_id) == 24, "msg_id at 24");

/* Called by the driver with each digest message, on a thread of its own,
 * never inside a driver call of the same thread. */
typedef pd_status (*pd_lrn_digest_cb)(pd_sess_hdl sess, pd_lrn_digest_msg *msg, void *cookie);

/* The driver's account of a snapshot capture, written by bf_snapshot_capture_get
 * straight into the caller's place. */
typedef struct pd_snapshot_capture_ctrl {
  uint32_t state;        /* the driver's state of the snapshot */
  uint32_t start_stage;
  uint32_t end_stage;
  uint32_t num_captured; /* records in the capture */
} pd_snapshot_capture_ctrl;

PD_STATIC_ASSERT(sizeof(pd_snapshot_capture_ctrl) == 16, "pd_snapshot_capture_ctrl is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_snapshot_capture_ctrl, start_stage) == 4, "start_stage at 4");
PD_STATIC_ASSERT(offsetof(pd_snapshot_capture_ctrl, end_stage) == 8, "end_stage at 8");
PD_STATIC_ASSERT(offsetof(pd_snapshot_capture_ctrl, num_captured) == 12, "num_captured at 12");

#ifdef __cplusplus
}
#endif

#endif
