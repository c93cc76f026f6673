// Placement data of match tables. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void PlacementStore::clear() { tables.clear(); }

void PlacementStore::drop_device(uint32_t device_id) { erase_device(tables, device_id); }

}  // namespace orbisk_model
