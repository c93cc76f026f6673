// The table or action profile a handle names, for the functions that take a
// handle as data (the walk, value, placement, comparison and label
// dispatchers, and the schema text by handle): a range test and one load,
// inline, so that a dispatcher's forward to its target is a tail call and
// the dispatcher needs no frame of its own.
#pragma once

#include "descriptors.h"
#include "pd_handles.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// The match table with this handle, or null.
inline const TableDesc *table_of(uint32_t handle) {
  const unsigned i = table_slot(handle);
  return i == kNoSlot ? nullptr : &kTables[i];
}

// The action profile whose action data table has this handle, or null.
inline const ProfileDesc *profile_of(uint32_t handle) {
  const unsigned i = profile_slot(handle);
  return i == kNoSlot ? nullptr : &kProfiles[i];
}

}  // namespace orbisk::pd

#pragma GCC visibility pop
