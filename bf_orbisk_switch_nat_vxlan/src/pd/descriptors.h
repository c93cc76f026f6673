// What the run time knows of the compiled program, as data: one constant
// descriptor for every match table, action, action profile and resource,
// generated once from the catalogue (pd_descriptors.cpp in the build tree).
//
// Reads, and everything that describes, renders, compares or dispatches, are
// loops over these in hand-written engines; only the write hot paths are
// straight-line generated code. The driver model and the tests are built from
// the same descriptors, so none of them can disagree with the library on a
// handle, a width or an offset.
#pragma once

#include <cstddef>
#include <cstdint>

#include "orbisk_switch/pd_types.h"

// Never exported: every shared object that links the descriptors keeps its
// own copy, and its code reaches them without an indirection.
#pragma GCC visibility push(hidden)

namespace orbisk::pd {

enum class MatchKind : uint8_t { None, Exact, Ternary, Prefix, PartitionedPrefix };
enum class FieldMatch : uint8_t { Exact, Ternary, Lpm };
// How a key field or a parameter is shown as text.
enum class Format : uint8_t { Plain, Dec, Port, VPort, Mac, V4Addr, V6Addr };

// An offset that a record does not have.
inline constexpr uint16_t kNoOffset = 0xFFFF;

// One field of a table's key.
struct FieldDesc {
  const char *name;            // member of the host match spec
  const char *schema;          // the field's name in schema and value text
  uint16_t bits;
  uint16_t bytes;              // (bits + 7) / 8: its length in the key strings
  uint16_t key_offset;         // place in the value and mask strings
  uint16_t host_offset;        // offsetof the member in the match spec
  uint16_t partner_offset;     // offsetof <name>_mask (ternary) or
                               // <name>_prefix_length (lpm); kNoOffset for exact
  FieldMatch match;
  Format format;
  bool array;                  // a byte array in the host record (wider than 32 bits)
  const uint8_t *static_mask;  // `bytes` bytes, most significant first; null for none
};

// One parameter of an action.
struct ParamDesc {
  const char *name;      // without the action_ prefix of its host member
  uint16_t bits;
  uint16_t bytes;        // (bits + 7) / 8: its length in the action data
  uint16_t data_offset;  // place in the action data string
  uint16_t host_offset;  // offsetof action_<name> in the action spec
  Format format;
};

// An action of the program: one per name, whatever table uses it.
struct ActionDesc {
  const char *name;
  uint32_t enum_value;
  uint16_t data_bytes;   // length of the packed data
  uint16_t data_bits;    // sum of the parameter widths
  uint16_t spec_size;    // sizeof its action spec; 0 for an action without parameters
  uint16_t num_params;
  const ParamDesc *params;
  // A parameter that stands only in a resource slot, its data bytes left
  // zero: its index in params and the resource whose slot index carries it;
  // -1 and 0 for none.
  int16_t slot_param;
  uint32_t slot_resource_hdl;
};

// An action as one table (or profile) uses it.
struct TableActionDesc {
  const ActionDesc *action;
  pd_act_fn_hdl handle;  // the action's handle on this table
  bool entry_use;        // may be an entry's action
  bool default_use;      // may be the default action
  uint8_t resource_tag;  // tag of the table's resource slot this action writes; 0 none
  int8_t index_param;    // parameter giving the index of an indexed resource; -1 none
};

enum class ResourceKind : uint8_t { Counter, Meter, Register };

struct ResourceDesc {
  const char *name;
  uint32_t handle;
  ResourceKind kind;
  bool direct;           // one cell per entry, rather than by index
  bool packets;          // a meter that counts packets rather than bytes
  // The table handle its cells are reached by: the match table's for a
  // direct one (its entries name the cells), its own for an indexed one.
  uint32_t table_hdl;
  uint32_t size;         // cells of an indexed one (per pipe for a register); 0 direct
  uint8_t bits;          // width of a register's value; 0 for the others
};

struct TableDesc;

struct ProfileDesc {
  const char *name;
  uint32_t adt_hdl;      // its action data table
  uint32_t sel_hdl;      // its selector table
  uint16_t num_actions;
  const TableActionDesc *actions;
  uint16_t table_index;  // index in kTables of the match table that points at it
};

// Table flags.
inline constexpr uint8_t kEntryPriority = 1;  // entries take a priority
inline constexpr uint8_t kIdleTimeout = 2;    // entries age
inline constexpr uint8_t kCounterLabels = 4;  // a counting table whose entries are labelled
inline constexpr uint8_t kTtlOnAdd = 8;       // entry adds pass an idle time to the driver

struct TableDesc {
  const char *name;
  pd_tbl_hdl handle;
  MatchKind match;
  char pipeline;              // 'A' or 'B'
  uint8_t flags;              // kEntryPriority | kIdleTimeout | kCounterLabels | kTtlOnAdd
  int8_t lpm_field;           // index in fields of the prefix field; -1 for none
  uint16_t key_bytes;         // num_bytes of a key
  uint16_t key_bits;          // num_valid_bits of a key
  uint16_t match_spec_size;   // sizeof its match spec; 0 for a keyless table
  uint16_t num_fields;
  const FieldDesc *fields;    // in key order
  uint16_t num_actions;
  const TableActionDesc *actions;  // for an indirect table, its profile's
  uint16_t declared_default;  // index in actions of the default the table starts with
  const ResourceDesc *resource;    // carried by every entry; null for none
  const ProfileDesc *profile;      // null for a direct table

  bool keyed() const { return num_fields != 0; }
  bool indirect() const { return profile != nullptr; }
  bool ternary() const { return match == MatchKind::Ternary; }
  bool prefix() const { return match == MatchKind::Prefix || match == MatchKind::PartitionedPrefix; }
};

// Every table in catalogue order, every action in enum order, the profiles
// in order of creation, the counters, the meters, then the registers.
extern const TableDesc kTables[];
extern const std::size_t kNumTables;
extern const ActionDesc kActions[];
extern const std::size_t kNumActions;
extern const ProfileDesc kProfiles[];
extern const std::size_t kNumProfiles;
extern const ResourceDesc kResources[];
extern const std::size_t kNumResources;

// The counter, meter or register with this handle (its own, or for a direct
// one its match table's, as its cells are reached), or null.
const ResourceDesc *find_resource(uint32_t handle, ResourceKind kind);

// The table with this handle, or null: a range test and one load, no search.
const TableDesc *find_table(pd_tbl_hdl handle);
// The profile whose action data table has this handle, or null, the same way.
const ProfileDesc *find_profile(uint32_t adt_hdl);

// ------------------------------------------------------------ services ---

// A hash calculation: its handle, and the one input field list and the one
// algorithm it has.
struct HashCalcDesc {
  const char *name;
  uint32_t handle;
  uint32_t input_hdl;
  uint32_t algorithm_hdl;
};

// A parser value set.
struct ValueSetDesc {
  const char *name;
  uint32_t handle;
};

// One field of a learning digest's entry: entries are packed, with no
// padding, so a field may start at any byte.
struct DigestFieldDesc {
  const char *name;
  uint16_t offset;
  uint16_t bytes;
};

struct DigestDesc {
  const char *name;
  uint32_t handle;
  uint16_t entry_bytes;
  uint16_t num_fields;
  const DigestFieldDesc *fields;  // in entry order
};

// One field of the snapshot record that is kept most significant byte first
// by a caller and the other way round by the driver: 2 or 4 bytes at offset.
struct SnapshotFieldDesc {
  uint16_t offset;
  uint16_t bytes;
};

struct SnapshotLayoutDesc {
  uint16_t num_fields;
  const SnapshotFieldDesc *fields;
};

extern const HashCalcDesc kHashCalcs[];
extern const std::size_t kNumHashCalcs;
extern const ValueSetDesc kValueSets[];
extern const std::size_t kNumValueSets;
extern const DigestDesc kDigests[];
extern const std::size_t kNumDigests;
// The snapshot record's layouts by bit 1 of a snapshot handle; its size is
// P4_PD_ORBISK_SWITCH_SNAPSHOT_RECORD_BYTES of the public header.
extern const SnapshotLayoutDesc kSnapshotLayouts[2];

// The calculation, value set or digest with this handle, or null.
const HashCalcDesc *find_hash_calc(uint32_t handle);
const ValueSetDesc *find_value_set(uint32_t handle);
const DigestDesc *find_digest(uint32_t handle);

}  // namespace orbisk::pd

#pragma GCC visibility pop
