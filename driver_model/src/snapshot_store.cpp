// Snapshots of a pipe's state. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void SnapshotStore::clear() { snapshots.clear(); }

void SnapshotStore::drop_device(uint32_t device_id) { erase_device(snapshots, device_id); }

}  // namespace orbisk_model
