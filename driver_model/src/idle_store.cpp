// Idle state of the entries of ageing tables. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void IdleStore::clear() { tables.clear(); }

void IdleStore::drop_device(uint32_t device_id) { erase_device(tables, device_id); }

}  // namespace orbisk_model
