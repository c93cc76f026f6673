#include "digests.h"

#include <cstring>

#include "assertions.h"
#include "descriptors.h"

namespace orbisk::pd {

namespace {

const DigestDesc *digest_named(const char *name) {
  for (std::size_t i = 0; i < kNumDigests; ++i) {
    if (std::strcmp(name, kDigests[i].name) == 0) return &kDigests[i];
  }
  return nullptr;
}

}  // namespace

uint32_t digest_entry_size(const char *digest) {
  const DigestDesc *d = digest_named(digest);
  return d ? d->entry_bytes : 0;
}

void *digest_entry_field(void *entry, const char *digest, const char *field, uint32_t *size) {
  if (const DigestDesc *d = digest_named(digest)) {
    for (uint16_t i = 0; i < d->num_fields; ++i) {
      if (std::strcmp(field, d->fields[i].name) != 0) continue;
      *size = d->fields[i].bytes;
      return static_cast<uint8_t *>(entry) + d->fields[i].offset;
    }
  }
  pd_hard_assert_failed("0", "p4_pd_orbisk_switch_get_digest_entry_field", __LINE__);
}

}  // namespace orbisk::pd
