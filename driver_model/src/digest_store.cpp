// Digests waiting for their client. Empty until the driver functions
// that fill it arrive; it already takes part in resets and device drops.
#include "stores.h"

namespace orbisk_model {

void DigestStore::clear() { pending.clear(); }

void DigestStore::drop_device(uint32_t device_id) { erase_device(pending, device_id); }

}  // namespace orbisk_model
