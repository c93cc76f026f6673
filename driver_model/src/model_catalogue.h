// What the driver model knows of the compiled program: for each match table
// its handle, key size and the actions it may hold. The rows are generated
// from the catalogue into the build tree (orbisk_model_tables.inc) so that the
// model and the library can never disagree on a handle or a size.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orbisk_model {

enum class MatchKind : uint8_t { None, Exact, Ternary, Prefix, PartitionedPrefix };

struct ActionRow {
  const char *name;
  uint32_t handle;      // action function handle on this table
  uint16_t data_bytes;  // length of the packed action data
  uint16_t data_bits;   // sum of the parameter widths
  bool entry_use;       // may be an entry's action
  bool default_use;     // may be the default action
};

struct TableRow {
  const char *name;
  uint32_t handle;
  MatchKind match;
  uint16_t key_bytes;           // num_bytes of a key
  uint16_t key_bits;            // num_valid_bits of a key
  bool indirect;                // entries name a member or group of a profile
  const ActionRow *actions;     // for an indirect table, the profile's actions
  uint16_t num_actions;
  uint16_t declared_default;    // index into actions of the table's default at start
  uint32_t resource_hdl;        // counter or meter carried by entries, 0 for none
};

extern const TableRow kTables[];
extern const std::size_t kTableCount;

}  // namespace orbisk_model
