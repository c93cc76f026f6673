// Action data and selector tables of the action profiles. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void ProfileStore::clear() { profiles.clear(); }

void ProfileStore::drop_device(uint32_t device_id) { erase_device(profiles, device_id); }

}  // namespace orbisk_model
