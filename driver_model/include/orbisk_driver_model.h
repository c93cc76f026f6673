/* The in-memory driver model: an implementation of every driver function the
 * orbisk_switch control-plane library imports (orbisk_switch/pd_driver.h),
 * plus the controls and observers below, so that the library, its demo and
 * agents can run and be checked without a chip. Compiles as C11 and as C++.
 *
 * What the model keeps, one store per service
 *   Match tables: per device and match table of the program, the entries,
 *     found by their packed key -- value bytes, mask bytes, priority and
 *     partition index, compared byte for byte -- and the table's default.
 *     The pipe of a target is recorded in the call log but otherwise ignored:
 *     an entry belongs to the whole device.
 *   Member-selection states (p4_pd_ms_init_state): per device, what each
 *     member and group names.
 *   Clients: their names, callback records and priorities.
 *   The call log, armed faults, log lines and memory blocks (see below).
 *   Idle time: per device and table whose entries age, the parameters, the
 *     enable state and the timeout callback; per entry its TTL and hit state.
 *   Properties: per device and table, each property's two values, and the
 *     table's update callback.
 *   Counters, meters and registers: see "Counters, meters and registers".
 *   Hash calculations, parser value sets, learning digests and snapshots:
 *     see their sections below.
 *   The hardware view: per device, table and entry, what the chip holds
 *     where a test made it differ from what software wrote. Placement
 *     records are made from the other stores on each fetch (see "placement
 *     data" below).
 *   What the model knows of the program (tables, key fields and widths,
 *   actions, parameters, resources) comes from the descriptors generated from
 *   the catalogue, the same ones the library is built from.
 *
 * Devices
 *   Any device id may be used. A device and a table get state only from a
 *   write that succeeds (an add, a default set, a capacity or handle control);
 *   a refused call, a faulted one and any read keep nothing. A read of a table
 *   without state answers as an empty table holding its declared default.
 *
 * Entry handles
 *   Given out per device and table by a cursor that only moves up: an add
 *   takes the first handle at or after the cursor that is not in use, and
 *   past 0x7FFFFFFF the cursor goes round to 1. So handles come fresh until
 *   the space is spent, and a freed handle is given again only once the
 *   cursor comes round to it. An entry never gets 0 or a handle from
 *   ORBISK_MODEL_DEFAULT_ENTRY_HDL (0x80000000) up, ORBISK_MODEL_NO_HANDLE
 *   included. The default entry of every table has the handle
 *   ORBISK_MODEL_DEFAULT_ENTRY_HDL; reading it with pipe_mgr_get_entry
 *   answers with num_bytes 0 and num_valid_bits 0 in the key record (key
 *   strings untouched), which is how a client tells a default entry apart.
 *
 * Walks
 *   pipe_mgr_get_entry_count counts the entries, never the default.
 *   pipe_mgr_get_first_entry_handle gives the lowest handle, or
 *   ORBISK_MODEL_NO_SUCH_ENTRY on an empty table. pipe_mgr_get_next_entry_handles
 *   fills up to count handles that follow entry_hdl in ascending order and
 *   sets the remaining slots to ORBISK_MODEL_NO_HANDLE; when nothing follows it
 *   succeeds with every slot ORBISK_MODEL_NO_HANDLE. An entry_hdl that is no
 *   entry of the table (the default handle included) is ORBISK_MODEL_NO_SUCH_ENTRY.
 *
 * Records
 *   A key must carry the table's num_bytes and num_valid_bits, with value and
 *   mask strings; a keyless table holds no entries, only its default. A
 *   direct action record (record_kind 1) must carry the action's num_bytes
 *   and num_valid_bits, and the action must be allowed on the table as an
 *   entry or as a default. Entries of an indirect table must be references
 *   (record_kind 2 member or 4 group); their default may be direct or a
 *   reference. The action handle of a reference is stored as given. Up to
 *   four resource slots (resource_count) are stored as they come.
 *   On a read the action record offers room for the data in num_bytes;
 *   stored data longer than that is ORBISK_MODEL_BAD_RECORD. The answer
 *   carries the stored record_kind, resource slots, num_bytes, num_valid_bits,
 *   data, member and group handles, and the action handle through fn.
 *
 * Widths
 *   Keys and action data are checked against the widths of the key fields
 *   and parameters, and refused with ORBISK_MODEL_BAD_RECORD:
 *   - exact tables, and the fields of prefix tables other than the prefix:
 *     value bits above a field's width (a 12-bit field of 0x1064). Their mask
 *     is not looked at: all ones, above the width too, is what is sent;
 *   - ternary tables: mask bits above a field's width, and value bits outside
 *     the mask within the width. Value bits above the width, where the mask
 *     is cut, are kept as they come;
 *   - the prefix field of a prefix table: a priority above its width (how a
 *     prefix longer than the field is marked), a mask that is not the prefix
 *     of length width - priority, and value bits outside that prefix;
 *   - partitioned prefix tables: a partition_index that does not fit the
 *     width of the table's first field;
 *   - direct action data: bits of a parameter above its width.
 *
 * Defaults
 *   Every table starts with its declared default action: direct, zero data,
 *   and one attached resource slot (tag PD_RESOURCE_TAG_ATTACHED, index 0) when
 *   the table's entries carry a resource, none otherwise.
 *   pipe_mgr_mat_tbl_default_entry_reset brings that back.
 *
 * Failures
 *   Every failure below leaves the model and the caller's out places as they
 *   were. Checks run in this order: table, null pointers, key record, action
 *   record, then the entry (exists / not found / table full). A read checks
 *   the room it is offered once it has found the entry.
 *
 * Member selection
 *   p4_pd_ms_init_state gives out states owned by the model. Each holds, per
 *   device, member handle -> action handle and group handle -> action handle.
 *   p4_pd_ms_log_state adds "members": [{"mbr":n,"act":n},...] and
 *   "groups": [{"grp":n,"act":n},...] to a cJSON object; p4_pd_ms_restore_state
 *   replaces the device's maps with what the object lists (an absent array
 *   reads as empty; a malformed one is ORBISK_MODEL_BAD_RECORD). A state that
 *   the model did not give out is ORBISK_MODEL_BAD_RECORD.
 *
 * Idle time
 *   Only the tables whose entries age take the idle calls; any other table is
 *   ORBISK_MODEL_NO_IDLE_TIME. An entry of such a table ages from its add
 *   (with the TTL the add passed, 0 for tables whose adds pass none) until
 *   its delete. TTLs are in milliseconds of the model clock
 *   (orbisk_model_advance_time); a TTL of 0 never runs out.
 *   - pipe_mgr_idle_set_params keeps the seven words as given; only the mode
 *     is read: 1 (PD_IDLE_MODE_NOTIFY) is notify mode, anything else poll
 *     mode. pipe_mgr_idle_get_params answers them, all 0 before any set.
 *     Parameters may change while ageing is on and take effect at once.
 *   - pipe_mgr_idle_tmo_set_enable: nonzero turns ageing on, 0 off. Turning it
 *     on starts every entry's idle time afresh. Neither is refused.
 *   - Notify mode, ageing on: entries age as the clock moves, and each that
 *     stays idle for its TTL is reported once through the timeout callback
 *     (pipe_mgr_idle_register_tmo_cb, a null callback for none).
 *     pipe_mgr_mat_ent_reset_idle_ttl starts an entry's idle time again;
 *     refused with ORBISK_MODEL_AGEING_OFF while ageing is off and
 *     ORBISK_MODEL_WRONG_IDLE_MODE in poll mode.
 *   - Poll mode, ageing on: orbisk_model_mark_hit notes traffic;
 *     pipe_mgr_idle_time_update_hit_state makes each entry's hit state
 *     PD_IDLE_HIT_STATE_ACTIVE if it was hit since the last update, else
 *     PD_IDLE_HIT_STATE_IDLE, then calls its callback (device, table,
 *     cookie; none when null) outside the lock;
 *     pipe_mgr_idle_time_get_hit_state answers the state of the last update
 *     (idle before any). Both are ORBISK_MODEL_AGEING_OFF while ageing is off
 *     and ORBISK_MODEL_WRONG_IDLE_MODE in notify mode.
 *   - pipe_mgr_mat_ent_set_idle_ttl and _get_idle_ttl work in either mode,
 *     ageing on or off; setting a TTL starts the entry's idle time again. An
 *     unknown entry is ORBISK_MODEL_NO_SUCH_ENTRY.
 *   Checks run in this order: table, idle time, null pointers, ageing state,
 *   then the entry.
 *
 * Properties and update callbacks
 *   pipe_mgr_tbl_set_property keeps any property number with its two values,
 *   per device and table; pipe_mgr_tbl_get_property answers them, and 0 and 0
 *   for a property never set. pipe_register_mat_update_cb gives a table of a
 *   device one update callback (a later one replaces it, a null one removes
 *   it): after every successful add, action change and delete of an entry of
 *   that table, it is called with the device, the table, the entry handle,
 *   PD_MAT_UPDATE_ADD, _MODIFY or _DELETE, and the cookie, outside the lock.
 *   Default entries are not entries here.
 *
 * Counters, meters and registers
 *   A direct counter or meter is reached by its match table's handle and an
 *   entry of it; an indexed one by its own handle and an index below its
 *   size (the catalogue's). Pipes: a device has ORBISK_MODEL_PIPES pipes;
 *   counters and meters belong to the whole device (the pipe of a target is
 *   logged only), registers keep a cell per pipe and index.
 *   - Counters: each cell holds what the driver's memory holds and what the
 *     chip has counted. orbisk_model_count_traffic adds packets and bytes to
 *     the chip's count, as traffic would. A query answers the driver's
 *     memory; an entry sync (pipe_mgr_direct_stat_ent_database_sync,
 *     pipe_mgr_stat_ent_database_sync) brings one cell from the chip, a
 *     database sync every cell of the counter on the device, then calls its
 *     callback (device, cookie) outside the lock. A set writes both. A cell
 *     never written reads 0; a direct cell goes with its entry's delete.
 *     pipe_mgr_stat_ent_query checks every index before it fills any.
 *   - Meters: an indexed meter's record is kept as set and read back as set
 *     (all 0 before any set). A direct meter's record is the one in its
 *     entry's resource slot, set by the entry's add or by
 *     pipe_mgr_mat_ent_set_resource (which replaces the slot of the same
 *     resource handle); read with the match table's handle, it answers that
 *     slot's record, all 0 when the slot is detached. The byte-count
 *     adjustment is kept per device and meter, by the meter's own handle,
 *     0 before any set. The program declares no WRED table of its own: a
 *     WRED record is kept on an indexed meter's cell, beside its meter
 *     record, by device, meter handle and index, as given;
 *     pipe_mgr_wred_ent_set on any other handle is
 *     ORBISK_MODEL_NO_SUCH_RESOURCE, past the meter's size
 *     ORBISK_MODEL_INDEX_PAST_SIZE. orbisk_model_wred_get reads it.
 *   - Registers: pipe_stful_query_get_sizes answers the pipes of the target
 *     (ORBISK_MODEL_PIPES for PD_DEV_PIPE_ALL, else 1). A query fills one
 *     element per pipe, in pipe order, and needs room for them (count at
 *     least that, else ORBISK_MODEL_BAD_RECORD); the chip and the driver's
 *     shadow agree in the model, so bit 0 of the flags changes nothing. A
 *     range query reads the indices from first that stand below the size,
 *     fewer than asked when the range runs past it. Set writes the element
 *     as given to every pipe of the target; a table reset sets every cell to
 *     the element, or to 0 for a null one; a range reset sets the range to 0.
 *     The program has no direct register: the direct calls are
 *     ORBISK_MODEL_NO_SUCH_RESOURCE. Syncs call their callback (device,
 *     cookie) outside the lock.
 *   Checks run in this order: the handle (ORBISK_MODEL_NO_SUCH_TABLE for a
 *   direct call on no table, ORBISK_MODEL_NO_SUCH_RESOURCE for a handle that
 *   is no resource of the kind the call wants), the pipe
 *   (ORBISK_MODEL_NO_SUCH_PIPE), null pointers and room
 *   (ORBISK_MODEL_BAD_RECORD), the index (ORBISK_MODEL_INDEX_PAST_SIZE) or
 *   the entry (ORBISK_MODEL_NO_SUCH_ENTRY). A refused call changes nothing.
 * Hash calculations
 *   Per device and hash calculation of the program: the input handle, the
 *   algorithm handle, the seed and the field attributes (driver records, kept
 *   as given). Until a write, a calculation reads as the program made it: its
 *   own input and algorithm, seed 0, no attributes. An input handle other
 *   than the calculation's own, and an algorithm handle other than the two
 *   below, is ORBISK_MODEL_NOT_OF_HASH; an unknown calculation is
 *   ORBISK_MODEL_NO_SUCH_HASH. Attribute reads copy at most the capacity
 *   offered and answer how many they copied. pipe_mgr_hash_calc_calculate_hash_value
 *   hashes the stream with the calculation's algorithm and seed
 *   (orbisk_model_hash) and writes the result's low hash_len bytes, most
 *   significant first, zeros above its 32 bits. The call log names the
 *   attribute array "attrs" and the stream "stream".
 *
 * Parser value sets
 *   Per device and value set of the program: entries by handle (given out
 *   from 1 upward per device and set, never twice), each with its key, mask
 *   and the scope it was added in (gress, pipe, parser id), and properties by
 *   number with their value and argument record. A scope in a lookup, a walk
 *   or a count matches an entry when gress is equal and pipe and parser are
 *   equal or "all" (pipe 0xFFFF, parser 0xFF) on either side. Refused, and
 *   nothing changes: an unknown set (ORBISK_MODEL_NO_SUCH_VALUE_SET), a key
 *   and mask already in the scope (ORBISK_MODEL_ENTRY_EXISTS), an unknown or
 *   deleted entry handle and a lookup that finds nothing
 *   (ORBISK_MODEL_NO_SUCH_ENTRY), a null out place (ORBISK_MODEL_BAD_RECORD).
 *   A property never set reads as 0. Walks go by ascending handle, as a
 *   table's do (unused slots ORBISK_MODEL_NO_HANDLE). entry_get fills the
 *   three place outputs it is given (gress, pipe, parser) when not null. The
 *   call log names the property argument record "args".
 *
 * Learning digests
 *   Per device and digest of the program, one subscription (a later
 *   registration replaces it); per device a learning timeout (ms of the model
 *   clock, 0 until set). orbisk_model_learn hands the model one learned
 *   entry, which it packs in the digest's layout into the pending message of
 *   that device and digest. With a timeout of 0 the message is delivered at
 *   once; otherwise when the clock (orbisk_model_advance_time) has moved the
 *   timeout on since its first entry, or when it holds
 *   ORBISK_MODEL_DIGEST_MAX_ENTRIES entries. Delivery calls the subscriber's
 *   callback with its session, the message and its cookie, outside the lock.
 *   The model owns a delivered message until pipe_mgr_flow_lrn_notify_ack
 *   hands it back; orbisk_model_digests_unacked counts those still out. A
 *   deregistration drops the pending entries: they are never delivered.
 *   A reset or the device's removal takes back its unacknowledged messages.
 *
 * Snapshots
 *   By handle, from bf_snapshot_create to bf_snapshot_delete: device, pipe,
 *   stages, direction, state, the trigger records as given and the captures.
 *   Direction 0 is ingress and 1 egress; bit 1 of the handle is set for an
 *   egress snapshot (the record layout the library picks by it). States:
 *   created; armed once a trigger is set; triggered by
 *   orbisk_model_snapshot_trigger, which captures one record per stage from
 *   start to end, each the trigger value where its mask is set and 0
 *   elsewhere (the fields a matching packet is known to hold); read once
 *   captured records have been got. bf_snapshot_capture_phv_fields_dict_size
 *   answers the captured size (0 before a trigger) and the record size;
 *   bf_snapshot_capture_get copies the captures into the buffer and fills the
 *   control record. Refused, and nothing changes: an unknown or deleted
 *   handle (ORBISK_MODEL_NO_SUCH_SNAPSHOT), a direction above 1 or a start
 *   stage after the end stage (ORBISK_MODEL_BAD_RECORD), a trigger of a
 *   snapshot not armed (ORBISK_MODEL_SNAPSHOT_NOT_ARMED). The call log names
 *   the trigger records "value" and "mask".
 *
 * Notifications
 *   Calls into the clients' callbacks are queued while the model holds its
 *   lock and made once it is released, by the same call, in the caller's
 *   thread. A callback may therefore call back into the driver.
 *
 * Every function here is safe to call from any thread: one lock guards the
 * whole model. */
#ifndef ORBISK_DRIVER_MODEL_H
#define ORBISK_DRIVER_MODEL_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------ statuses --- */

/* An entry with the same key is in the table already. */
#define ORBISK_MODEL_ENTRY_EXISTS ((pd_status)0x101)
/* Unknown entry handle, or no entry with the given key. */
#define ORBISK_MODEL_NO_SUCH_ENTRY ((pd_status)0x102)
/* The table handle is no match table of the program. */
#define ORBISK_MODEL_NO_SUCH_TABLE ((pd_status)0x103)
/* The table holds as many entries as its capacity allows. */
#define ORBISK_MODEL_TABLE_FULL ((pd_status)0x104)
/* A record that does not fit the table or action (sizes or widths), a null
 * pointer where one is needed, a record_kind the table cannot hold, or a
 * member-selection state or document the model cannot use. */
#define ORBISK_MODEL_BAD_RECORD ((pd_status)0x105)
/* The action is not allowed on the table, or not as an entry / as a default. */
#define ORBISK_MODEL_NO_SUCH_ACTION ((pd_status)0x106)
/* No client is registered under that handle. */
#define ORBISK_MODEL_NOT_REGISTERED ((pd_status)0x107)
/* orbisk_model_fail was given a name that is none of the model's driver
 * functions (or null). */
#define ORBISK_MODEL_NO_SUCH_FUNCTION ((pd_status)0x108)
/* A control was given a value it cannot take: a fault of status 0, an entry
 * handle outside 1 to 0x7FFFFFFF, an unknown call log mode. */
#define ORBISK_MODEL_BAD_CONTROL ((pd_status)0x109)

/* An idle time call on a table whose entries do not age. */
#define ORBISK_MODEL_NO_IDLE_TIME ((pd_status)0x10A)
/* A call that needs the table's ageing on while it is off: reset of an
 * entry's idle time, update or read of hit state. */
#define ORBISK_MODEL_AGEING_OFF ((pd_status)0x10B)
/* A call of the other idle mode: hit state in notify mode, reset of an
 * entry's idle time outside it. */
#define ORBISK_MODEL_WRONG_IDLE_MODE ((pd_status)0x10C)
/* A counter, meter or register call on a handle that is none of the
 * program's resources of that kind (or a table that carries none). */
#define ORBISK_MODEL_NO_SUCH_RESOURCE ((pd_status)0x120)
/* An index at or past an indexed counter's, meter's or register's size. */
#define ORBISK_MODEL_INDEX_PAST_SIZE ((pd_status)0x121)
/* A target's pipe that is neither below ORBISK_MODEL_PIPES nor all pipes. */
#define ORBISK_MODEL_NO_SUCH_PIPE ((pd_status)0x122)

/* Pipes of every device. */
#define ORBISK_MODEL_PIPES 4

/* Action profiles. An action data or selector table handle that is no
 * profile's is ORBISK_MODEL_NO_SUCH_TABLE; an action the profile does not
 * have is ORBISK_MODEL_NO_SUCH_ACTION. Member and group handles are the
 * profile's own: one of another profile is unknown here. */
/* No member of that handle in the profile (driver or member-selection state). */
#define ORBISK_MODEL_NO_SUCH_MEMBER ((pd_status)0x110)
/* No group of that handle in the profile. */
#define ORBISK_MODEL_NO_SUCH_GROUP ((pd_status)0x111)
/* A delete of a member that a group holds or an entry names. */
#define ORBISK_MODEL_MEMBER_IN_USE ((pd_status)0x112)
/* A delete of a group that an entry names. */
#define ORBISK_MODEL_GROUP_IN_USE ((pd_status)0x113)
/* A member added to a group that holds its maximum size. */
#define ORBISK_MODEL_GROUP_FULL ((pd_status)0x114)
/* A member added to a group that holds it already. */
#define ORBISK_MODEL_MEMBER_IN_GROUP ((pd_status)0x115)
/* A member that the group does not hold. */
#define ORBISK_MODEL_NOT_IN_GROUP ((pd_status)0x116)
/* Hash calculations, value sets, digests and snapshots. */
/* The hash handle is no hash calculation of the program. */
#define ORBISK_MODEL_NO_SUCH_HASH ((pd_status)0x130)
/* An input or algorithm handle the calculation does not have (handle 0
 * among them). */
#define ORBISK_MODEL_NOT_OF_HASH ((pd_status)0x131)
/* The value set handle is no parser value set of the program. */
#define ORBISK_MODEL_NO_SUCH_VALUE_SET ((pd_status)0x132)
/* The digest handle is no learning digest of the program. */
#define ORBISK_MODEL_NO_SUCH_DIGEST ((pd_status)0x133)
/* No client subscribes to the digest on the device: a deregistration, or
 * entries learned, with nobody to deliver them to. */
#define ORBISK_MODEL_NOT_SUBSCRIBED ((pd_status)0x134)
/* An acknowledgement of a message the model never delivered for that digest,
 * or one already acknowledged. */
#define ORBISK_MODEL_NOT_DELIVERED ((pd_status)0x135)
/* No snapshot has that handle (a deleted one included). */
#define ORBISK_MODEL_NO_SUCH_SNAPSHOT ((pd_status)0x136)
/* orbisk_model_snapshot_trigger on a snapshot whose trigger is not set. */
#define ORBISK_MODEL_SNAPSHOT_NOT_ARMED ((pd_status)0x137)

/* Placement data and the hardware view. */
/* A placement record the model did not make: not its mark or version, or
 * contents that no table or profile of the program could hold. */
#define ORBISK_MODEL_PLACEMENT_FOREIGN ((pd_status)0x140)
/* A placement record cut short or changed: its length below what its kind
 * needs or above ORBISK_MODEL_PLACEMENT_MAX_BYTES, its checksum wrong, or its
 * parts not adding up to its length. */
#define ORBISK_MODEL_PLACEMENT_DAMAGED ((pd_status)0x141)
/* A placement record of another kind: a member's to the match decode, a
 * match entry's to the member decode, a group's to either. */
#define ORBISK_MODEL_PLACEMENT_WRONG_KIND ((pd_status)0x142)
/* A fetch given less room than the record's length: *size says the length,
 * nothing is written. */
#define ORBISK_MODEL_PLACEMENT_NO_ROOM ((pd_status)0x143)
/* A hardware change at a byte past the entry's key or action data. */
#define ORBISK_MODEL_HW_PAST_END ((pd_status)0x144)
/* A read from hardware of an entry dropped from it (orbisk_model_hw_drop). */
#define ORBISK_MODEL_HW_DROPPED ((pd_status)0x145)

/* Handle of the default entry of every table. */
#define ORBISK_MODEL_DEFAULT_ENTRY_HDL ((pd_entry_hdl)0x80000000u)
/* Fills the unused slots of pipe_mgr_get_next_entry_handles. */
#define ORBISK_MODEL_NO_HANDLE ((pd_entry_hdl)0xFFFFFFFFu)
/* Capacity of a table until orbisk_model_set_capacity says otherwise. */
#define ORBISK_MODEL_DEFAULT_CAPACITY (1u << 20)

/* ------------------------------------------------------------ controls --- */

/* Forgets everything: entries, defaults, handles, capacities, registrations,
 * the call log and its mode, pending faults and quirks, log lines, the
 * allocation count and the debug mode. Member-selection states stay valid
 * but are emptied. */
void orbisk_model_reset(void);

/* The device goes away: everything the model keeps for it is forgotten, then
 * the device_remove callback of every registered client is called with its
 * id, in registration order, outside the model's lock. */
void orbisk_model_remove_device(uint32_t device_id);

/* Sets how many entries (the default not counted) a table of a device may
 * hold. Existing entries stay. ORBISK_MODEL_NO_SUCH_TABLE for an unknown table. */
pd_status orbisk_model_set_capacity(uint32_t device_id, pd_tbl_hdl tbl, uint32_t capacity);

/* Moves a table's handle cursor: the next add takes the first handle at or
 * after hdl not in use. For testing what happens when the handle space runs
 * out without 2^31 adds. ORBISK_MODEL_BAD_CONTROL unless 1 <= hdl <= 0x7FFFFFFF. */
pd_status orbisk_model_set_next_handle(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl);

/* Arms a fault: the nth call (1 = the next one) of the named driver function
 * from now on returns status without doing anything else; it is still
 * recorded in the call log. Several faults may be armed at once. nth 0
 * disarms every pending fault of that function. Any function of
 * pd_driver.h but the four bf_sys_* services may be named; armed on
 * p4_pd_ms_init_state a fault makes that call return null.
 * ORBISK_MODEL_NO_SUCH_FUNCTION for any other name, and ORBISK_MODEL_BAD_CONTROL
 * for a status of 0 with nth above 0: a fault must fail. Nothing is armed then. */
pd_status orbisk_model_fail(const char *function, uint32_t nth, pd_status status);

/* Makes the next successful pipe_mgr_get_entry or
 * pipe_mgr_table_get_default_entry (or a member read, pipe_mgr_get_action_data_entry,
 * its action handle only) answer with this record_kind and/or this
 * action handle in place of the stored ones; -1 leaves either as stored.
 * For checking how a client copes with an answer it did not expect. */
void orbisk_model_quirk_next_read(int record_kind, int64_t act_fn);

/* What bf_sys_dbg_mode returns; 0 until set. */
void orbisk_model_set_dbg_mode(int mode);

/* Number of entries of a table of a device, the default not counted; 0 for
 * an unknown table or device. */
size_t orbisk_model_entry_count(uint32_t device_id, pd_tbl_hdl tbl);

/* Number of devices whose tables hold state (entries, defaults, idle time,
 * properties, update callbacks): a device counts from its first successful
 * write until a reset or its removal. */
size_t orbisk_model_device_count(void);

/* ----------------------------------------------------------- idle time --- */

/* The model clock, in milliseconds, by which entries age: it starts at 0,
 * moves only when told to, and goes back to 0 at a reset. */
uint64_t orbisk_model_now_ms(void);

/* Moves the clock on by ms. Every entry of a table of a device in notify mode
 * with ageing on, whose TTL is not 0 and that was not hit for its whole TTL,
 * is reported once: that table's timeout callback is called with the device,
 * table, entry handle and cookie, outside the model's lock, in the caller's
 * thread. An entry that runs out while no callback is registered is not
 * reported later. */
void orbisk_model_advance_time(uint64_t ms);

/* Marks an entry hit, as traffic would: its idle time starts again (and it
 * may be reported again once it runs out), and the next update_hit_state
 * finds it active. ORBISK_MODEL_NO_SUCH_TABLE, ORBISK_MODEL_NO_IDLE_TIME for
 * a table whose entries do not age, ORBISK_MODEL_NO_SUCH_ENTRY. */
pd_status orbisk_model_mark_hit(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl);

/* The WRED record kept on an indexed meter's cell, as the last
 * pipe_mgr_wred_ent_set gave it (all 0 before any). The statuses of
 * pipe_mgr_wred_ent_set. */
pd_status orbisk_model_wred_get(uint32_t device_id, pd_tbl_hdl tbl, uint32_t index,
                                pd_wred_spec *wred);

/* Counts traffic into a counter cell as the chip would: packets and bytes
 * are added to the chip's count, which reads see after a sync. tbl is a
 * direct counter's match table (cell an entry handle) or an indexed
 * counter's own handle (cell an index). The statuses of the counter calls. */
pd_status orbisk_model_count_traffic(uint32_t device_id, pd_tbl_hdl tbl, uint32_t cell,
                                     uint64_t packets, uint64_t bytes);

/* ------------------------------------------------------------ call log --- */

/* One record a call passed in, copied whole when the call began. Names: "key"
 * (the pd_match_record), "key.value" and "key.mask" (its strings, num_bytes
 * each), "act" (the pd_action_record), "act.data" (its data, num_bytes),
 * "callbacks" (the pd_drv_client_callbacks record), "params" (the
 * pd_idle_driver_params given by value, or offered for a read). A null record
 * or string has no copy. */
typedef struct orbisk_model_bytes {
  const char *name;
  const uint8_t *bytes;
  size_t size;
} orbisk_model_bytes;

/* One driver call as the caller made it. Every function of pd_driver.h is
 * recorded except bf_sys_calloc, bf_sys_free, bf_sys_log_and_trace and
 * bf_sys_dbg_mode. */
typedef struct orbisk_model_call {
  const char *function;  /* the driver function's name */
  pd_status status;      /* what the call returned (0 for p4_pd_ms_init_state) */
  uint32_t num_args;
  /* Every argument in call order: integers widened, a pd_dev_target as its
   * word (device_id | pipe << 32), pointers and callbacks as addresses, a
   * record passed by value (pd_idle_driver_params) as 0, its bytes being
   * among the records. */
  const uint64_t *args;
  uint32_t num_records;
  const orbisk_model_bytes *records;  /* in the order the call's arguments name them */
  /* Typed views of the "key" and "act" copies, null when the call passed
   * none; their string pointers point at the "key.value", "key.mask" and
   * "act.data" copies (null where the caller's were null). */
  const pd_match_record *key;
  const pd_action_record *act;
} orbisk_model_call;

typedef enum orbisk_model_log_mode {
  ORBISK_MODEL_LOG_OFF = 0,  /* nothing is recorded: for long runs */
  ORBISK_MODEL_LOG_RING = 1, /* the latest ring_size calls are kept */
  ORBISK_MODEL_LOG_ALL = 2   /* every call is kept until cleared */
} orbisk_model_log_mode;

/* Calls kept in ring mode unless another size is asked for. */
#define ORBISK_MODEL_LOG_RING_DEFAULT 4096

/* Sets the log's mode. The model starts, and comes back from every reset, in
 * ring mode with ORBISK_MODEL_LOG_RING_DEFAULT calls. ring_size counts in
 * ring mode only; 0 means the default. Going to OFF forgets every call; a
 * smaller ring forgets the oldest. ORBISK_MODEL_BAD_CONTROL for another mode. */
pd_status orbisk_model_set_call_log(orbisk_model_log_mode mode, size_t ring_size);

/* Calls the log holds. */
size_t orbisk_model_call_count(void);
/* The ith call held, oldest first; null past the end. A call, with its
 * arguments and copies, stays valid until it leaves the log: when the log is
 * cleared, the model reset or the mode changed so that it goes, or in ring
 * mode once ring_size newer calls have been made. */
const orbisk_model_call *orbisk_model_call_at(size_t i);
/* The latest call, or null when the log is empty. */
const orbisk_model_call *orbisk_model_last_call(void);
/* The copy of the record of that name a call passed in, with its size in
 * *size (when size is not null); null when the call passed none. */
const uint8_t *orbisk_model_call_bytes(const orbisk_model_call *call, const char *name,
                                       size_t *size);
/* Forgets every call and gives their memory back; the mode stays. */
void orbisk_model_clear_calls(void);

/* ----------------------------------------------------- system services --- */

/* Lines written with bf_sys_log_and_trace, formatted, oldest first. A line
 * stays valid until the lines are cleared or the model reset. */
size_t orbisk_model_log_count(void);
const char *orbisk_model_log_at(size_t i);
void orbisk_model_clear_log(void);

/* Blocks from bf_sys_calloc not yet given back with bf_sys_free. A block
 * still out at a reset stops being counted, but the model keeps track of it
 * until it is freed. */
size_t orbisk_model_live_allocations(void);
/* Calls of bf_sys_calloc since the last reset. */
size_t orbisk_model_allocation_count(void);
/* Makes the nth next bf_sys_calloc answer null, as memory that ran out
 * would; 0 disarms it. A reset disarms it too. */
void orbisk_model_fail_allocation(uint32_t nth);

/* -------------------------------------------------------- registration --- */

/* Name a client registered with, or null for an unknown handle. Handles are
 * given out from 1 upward. */
const char *orbisk_model_client_name(uint32_t client_hdl);
/* The model's copy of a client's callback record, or null when the client
 * is unknown or registered none. */
const pd_drv_client_callbacks *orbisk_model_callbacks(uint32_t client_hdl);
/* Priority the callbacks were registered with; 0 when there are none. */
uint32_t orbisk_model_callbacks_priority(uint32_t client_hdl);

/* --------------------------------------------------- member selection --- */

/* Sets what a member / group of a device names in a state given out by
 * p4_pd_ms_init_state. ORBISK_MODEL_BAD_RECORD for any other state. */
pd_status orbisk_model_ms_set_member(pd_ms_state *state, uint32_t device_id, pd_mbr_hdl mbr,
                                     pd_act_fn_hdl act);
pd_status orbisk_model_ms_set_group(pd_ms_state *state, uint32_t device_id, pd_grp_hdl grp,
                                    pd_act_fn_hdl act);
/* Members / groups of a device in a state; 0 for an unknown state. */
size_t orbisk_model_ms_member_count(pd_ms_state *state, uint32_t device_id);
size_t orbisk_model_ms_group_count(pd_ms_state *state, uint32_t device_id);
/* Action a member names, or ORBISK_MODEL_NO_HANDLE when there is no such member. */
pd_act_fn_hdl orbisk_model_ms_member_action(pd_ms_state *state, uint32_t device_id,
                                            pd_mbr_hdl mbr);

/* ------------------------------------------------------- action profiles --- */

/* Members in a profile's action data table of a device (adt its handle); 0
 * for an unknown table. */
size_t orbisk_model_member_count(uint32_t device_id, pd_tbl_hdl adt);
/* Groups in a profile's selector table of a device (sel its handle); 0 for an
 * unknown table. */
size_t orbisk_model_group_count(uint32_t device_id, pd_tbl_hdl sel);
/* ------------------------------------------------ hash calculations --- */

/* The model's hash algorithms, by the program's algorithm handles: zlib's
 * adler32 and crc32. */
#define ORBISK_MODEL_HASH_ADLER32 0x23000000u
#define ORBISK_MODEL_HASH_CRC32 0x23000001u

/* What pipe_mgr_hash_calc_calculate_hash_value computes over a stream for a
 * calculation with this algorithm and seed: the algorithm started from the
 * seed's low 32 bits (a seed of 0 starts crc32 at its usual 0 and adler32 at
 * 0, not its usual 1). 0 for an algorithm the model does not have. */
uint32_t orbisk_model_hash(uint32_t algorithm_hdl, uint64_t seed, const uint8_t *bytes,
                           size_t len);

/* -------------------------------------------------- learning digests --- */

/* A pending message is delivered once it holds this many entries. */
#define ORBISK_MODEL_DIGEST_MAX_ENTRIES 64u

/* One learned entry of a digest, as traffic would make it: one value per
 * field in entry order, written most significant byte first into the
 * field's bytes; a field of more than 8 bytes takes its value as words of 8
 * bytes, most significant word first. ORBISK_MODEL_NO_SUCH_DIGEST,
 * ORBISK_MODEL_NOT_SUBSCRIBED, and ORBISK_MODEL_BAD_RECORD for the wrong
 * number of values or a value that does not fit its field; nothing is kept
 * then. */
pd_status orbisk_model_learn(uint32_t device_id, uint32_t digest_hdl, const uint64_t *values,
                             uint32_t num_values);
/* Messages of a digest on a device delivered and not yet acknowledged; entries
 * learned and not yet delivered. */
size_t orbisk_model_digests_unacked(uint32_t device_id, uint32_t digest_hdl);
size_t orbisk_model_digests_pending(uint32_t device_id, uint32_t digest_hdl);

/* --------------------------------------------------------- snapshots --- */

#define ORBISK_MODEL_SNAPSHOT_NONE 0
#define ORBISK_MODEL_SNAPSHOT_CREATED 1
#define ORBISK_MODEL_SNAPSHOT_ARMED 2
#define ORBISK_MODEL_SNAPSHOT_TRIGGERED 3
#define ORBISK_MODEL_SNAPSHOT_READ 4

/* A packet matches the trigger of an armed snapshot: its captures are taken. */
pd_status orbisk_model_snapshot_trigger(uint32_t snapshot_hdl);
/* ORBISK_MODEL_SNAPSHOT_* of a snapshot; NONE for an unknown handle. */
int orbisk_model_snapshot_state(uint32_t snapshot_hdl);

/* ---------------------------------------------------- placement data --- */

/* The model's placement records, made by the three pipe_mgr_plcmt_*_get
 * fetches from what software wrote, and read back by the two _get_entry
 * calls (the format is in the model's README). Each starts with a header of
 * ORBISK_MODEL_PLACEMENT_HEADER_BYTES: a mark, a version, its kind, its
 * length and a checksum. A decode reads that header first, then never more
 * than the length it declares, and refuses without reading on a length above
 * ORBISK_MODEL_PLACEMENT_MAX_BYTES: a buffer of that many bytes, or of the
 * length its fetch answered, is always safe to hand it. Match entry and
 * member records are at most that long; a group's record grows with its
 * members (36 + 5 bytes a member) and is never decoded. */
#define ORBISK_MODEL_PLACEMENT_VERSION 1
#define ORBISK_MODEL_PLACEMENT_HEADER_BYTES 16
#define ORBISK_MODEL_PLACEMENT_MAX_BYTES                                              \
  (60 + 2 * P4_PD_ORBISK_SWITCH_MAX_KEY_BYTES + P4_PD_ORBISK_SWITCH_MAX_ACTION_DATA_BYTES + \
   PD_ACTION_RESOURCE_SLOTS * (int)sizeof(pd_resource_record))

/* ---------------------------------------------------------- hardware view --- */

/* What the chip holds for an entry, beside what software wrote: the two are
 * equal until one of these changes the chip's copy of an entry (the default
 * entry, ORBISK_MODEL_DEFAULT_ENTRY_HDL, included). pipe_mgr_get_entry and
 * pipe_mgr_table_get_default_entry with read_from_hw set answer from the
 * chip's copy; without it, and placement records always, from software's. A
 * write to the entry (an action change, by handle or key, its delete, a
 * default set or reset for the default entry) makes the chip hold what
 * software wrote again. Each answers 0, or ORBISK_MODEL_NO_SUCH_TABLE,
 * ORBISK_MODEL_NO_SUCH_ENTRY, ORBISK_MODEL_HW_PAST_END for a byte past the
 * key or the data, ORBISK_MODEL_BAD_CONTROL for a selection kind other than
 * 0, 2 or 4; nothing changes then. */

/* XORs bits into byte `byte` of the packed key value string, mask string or
 * action data as the chip holds them. */
pd_status orbisk_model_hw_flip_key(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                   uint16_t byte, uint8_t bits);
pd_status orbisk_model_hw_flip_mask(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                    uint16_t byte, uint8_t bits);
pd_status orbisk_model_hw_flip_data(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                    uint16_t byte, uint8_t bits);
pd_status orbisk_model_hw_set_priority(uint32_t device_id, pd_tbl_hdl tbl,
                                       pd_entry_hdl entry_hdl, uint32_t priority);
/* The action handle the chip runs for the entry; any handle is taken. */
pd_status orbisk_model_hw_set_action(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl,
                                     pd_act_fn_hdl fn);
/* What the entry names on the chip: kind 0 nothing (record kind 0, both
 * handles 0), 2 the member hdl, 4 the group hdl (record kind 2 or 4, the
 * other handle 0). Taken on any table. */
pd_status orbisk_model_hw_set_selection(uint32_t device_id, pd_tbl_hdl tbl,
                                        pd_entry_hdl entry_hdl, uint8_t kind, uint32_t hdl);
/* The chip shows the entry as a default entry, without a key (true), or with
 * its key (false; the default entry's is all zeros). */
pd_status orbisk_model_hw_set_default(uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_entry_hdl entry_hdl, bool is_default);
/* The chip no longer holds the entry: a read of it from hardware is
 * ORBISK_MODEL_HW_DROPPED, until a write makes the views agree again. */
pd_status orbisk_model_hw_drop(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl entry_hdl);

#ifdef __cplusplus
}
#endif

#endif
