/* Scalar types shared by every function of the orbisk_switch control-plane
 * interface: statuses, handles, device targets and meter settings.
 * Compiles as C11 and as C++. */
#ifndef ORBISK_SWITCH_PD_TYPES_H
#define ORBISK_SWITCH_PD_TYPES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define PD_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#else
#define PD_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Result of nearly every operation. 0 is success; any other value is the
 * driver's, passed on unchanged, except the few the library makes itself. */
typedef uint32_t pd_status;

#define BF_SUCCESS ((pd_status)0)
/* The driver returned a record of a kind or an action the table cannot hold. */
#define PD_STATUS_UNEXPECTED_RECORD ((pd_status)15)

typedef uint32_t pd_sess_hdl;
typedef uint32_t pd_tbl_hdl;
typedef uint32_t pd_act_fn_hdl;
typedef uint32_t pd_entry_hdl;
typedef uint32_t pd_mbr_hdl;
typedef uint32_t pd_grp_hdl;

/* Device and pipe, passed by value as one 64-bit word: device id in bits 0 to
 * 31, pipe id in bits 32 to 47, bits 48 to 63 unused. */
typedef struct pd_dev_target {
  uint32_t device_id;
  uint16_t dev_pipe_id;
} pd_dev_target;

/* Pipe id that addresses every pipe of a device. */
#define PD_DEV_PIPE_ALL ((uint16_t)0xFFFF)

PD_STATIC_ASSERT(sizeof(pd_dev_target) == 8, "pd_dev_target is one 64-bit word");
PD_STATIC_ASSERT(offsetof(pd_dev_target, dev_pipe_id) == 4, "pipe id in bits 32 to 47");

/* Meter types of pd_meter_spec. */
#define PD_METER_TYPE_COLOR_AWARE 0u
#define PD_METER_TYPE_COLOR_UNAWARE 1u

/* A meter's rates and bursts as a caller gives them, in the meter's own unit. */
typedef struct pd_meter_spec {
  uint32_t cir;        /* committed rate */
  uint32_t cburst;     /* committed burst */
  uint32_t pir;        /* peak rate */
  uint32_t pburst;     /* peak burst */
  uint32_t meter_type; /* PD_METER_TYPE_COLOR_AWARE or PD_METER_TYPE_COLOR_UNAWARE */
} pd_meter_spec;

/* Idle time of a table, as a caller gives it to idle_tmo_enable and reads it
 * back with idle_params_get. In notify mode (PD_IDLE_MODE_NOTIFY) the driver
 * reports entries that stay idle; the four values go to the driver as they
 * are, their meaning the driver's. Any other mode uses the mode alone. */
#define PD_IDLE_MODE_NOTIFY 1u

typedef struct pd_idle_params {
  uint32_t mode;
  uint64_t value1;
  uint32_t value2;
  uint64_t value3;
  uint64_t value4;
  uint8_t reserved; /* set to 0 by a read in notify mode; never sent */
} pd_idle_params;

PD_STATIC_ASSERT(sizeof(pd_idle_params) == 48, "pd_idle_params is 48 bytes");
PD_STATIC_ASSERT(offsetof(pd_idle_params, value1) == 8, "value1 at 8");
PD_STATIC_ASSERT(offsetof(pd_idle_params, value2) == 16, "value2 at 16");
PD_STATIC_ASSERT(offsetof(pd_idle_params, value3) == 24, "value3 at 24");
PD_STATIC_ASSERT(offsetof(pd_idle_params, value4) == 32, "value4 at 32");
PD_STATIC_ASSERT(offsetof(pd_idle_params, reserved) == 40, "reserved at 40");

/* Hit states of an entry of a table with idle time. */
#define PD_IDLE_HIT_STATE_IDLE 0u
#define PD_IDLE_HIT_STATE_ACTIVE 1u

/* ---------------------------------------- counters, meters, registers --- */

/* A counter cell as a caller reads and writes it: packets first. */
typedef struct pd_counter_value {
  uint64_t packets;
  uint64_t bytes;
} pd_counter_value;

PD_STATIC_ASSERT(sizeof(pd_counter_value) == 16, "pd_counter_value is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_counter_value, bytes) == 8, "bytes at 8");

/* Bit 0 of a counter or register read's flags: bring the cell from the chip
 * first. The other bits are ignored. */
#define PD_READ_FROM_HW 1u

/* A WRED cell's settings, shared by the caller and the driver; the library
 * copies them unread. */
typedef struct pd_wred_spec {
  float time_constant;
  uint32_t red_min_threshold;
  uint32_t red_max_threshold;
  float max_probability;
} pd_wred_spec;

PD_STATIC_ASSERT(sizeof(pd_wred_spec) == 16, "pd_wred_spec is 16 bytes");

/* ------------------------------------------------ hash calculations --- */

/* One field attribute of a hash calculation as a caller gives it and reads
 * it back. For calculate_hash_value, value is the field's value for a field
 * of up to 32 bits, and for a wider field a pointer to its bytes, most
 * significant first, as many as its width rounded up to whole bytes. */
typedef struct pd_hash_calc_attribute {
  uint32_t input_field; /* the field's number in the calculation */
  uint32_t attr_type;
  uint64_t value;
} pd_hash_calc_attribute;

PD_STATIC_ASSERT(sizeof(pd_hash_calc_attribute) == 16, "pd_hash_calc_attribute is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_attribute, attr_type) == 4, "attr_type at 4");
PD_STATIC_ASSERT(offsetof(pd_hash_calc_attribute, value) == 8, "value at 8");

/* The library's own answer when the driver reports an input or algorithm
 * handle that is not the calculation's, or when a caller names an input
 * other than 0 while the calculation uses its own. */
#define PD_STATUS_HASH_HANDLE_MISMATCH ((pd_status)3)

/* ------------------------------------------------- parser value sets --- */

/* Where a parser value set entry lives, passed by value: device, gress in the
 * driver's numbering, pipe, and one parser id byte. */
typedef struct pd_parser_target {
  uint32_t device_id;
  uint32_t gress;
  uint32_t pipe_id;
  uint8_t parser_id;
  uint8_t padding[3];
} pd_parser_target;

PD_STATIC_ASSERT(sizeof(pd_parser_target) == 16, "pd_parser_target is 16 bytes");
PD_STATIC_ASSERT(offsetof(pd_parser_target, gress) == 4, "gress at 4");
PD_STATIC_ASSERT(offsetof(pd_parser_target, pipe_id) == 8, "pipe_id at 8");
PD_STATIC_ASSERT(offsetof(pd_parser_target, parser_id) == 12, "parser_id at 12");

/* ---------------------------------------------------------- snapshots --- */

/* The library could not allocate what a call needs (a snapshot capture read). */
#define PD_STATUS_NO_MEMORY ((pd_status)2)
/* A snapshot capture read whose driver gives a record size below the
 * program's snapshot record (0 included): its records cannot be placed. */
#define PD_STATUS_SNAPSHOT_RECORD_SIZE ((pd_status)0x20)

/* Opaque member-selection state of one action profile. */
typedef struct pd_ms_state pd_ms_state;

/* State of a member inside a selector group: active (chosen by the hash) or
 * not. Any other value given to group_member_state_set ends the process. */
#define P4_PD_GRP_MBR_STATE_ACTIVE 0u
#define P4_PD_GRP_MBR_STATE_INACTIVE 1u

#ifdef __cplusplus
}
#endif

#endif
