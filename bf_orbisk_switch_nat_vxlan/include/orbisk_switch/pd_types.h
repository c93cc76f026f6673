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

/* Opaque member-selection state of one action profile. */
typedef struct pd_ms_state pd_ms_state;

#ifdef __cplusplus
}
#endif

#endif
