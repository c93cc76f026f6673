// Learning digests: an entry's size and a field's place, found by name in the
// digest descriptors. They touch no shared state and may be called from a
// digest callback.
#pragma once

#include <cstdint>

namespace orbisk::pd {

// Bytes of one entry of the digest of that name; 0 for any other name.
uint32_t digest_entry_size(const char *digest);
// entry plus the field's offset, with its size in *size. An unknown digest or
// field name is a programming fault: the process ends.
void *digest_entry_field(void *entry, const char *digest, const char *field, uint32_t *size);

}  // namespace orbisk::pd
