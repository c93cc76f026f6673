// Counters, meters and registers by device, handle and pipe. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void ResourceStore::clear() { cells.clear(); }

void ResourceStore::drop_device(uint32_t device_id) { erase_device(cells, device_id); }

}  // namespace orbisk_model
