// Fuzzing of placement data decoding: the model's decode of a record it may
// not have made, and the library's decoders fed by it. The input's first
// byte picks a table's or a profile's decoder, its second says whether to
// give the record a checksum that holds (so that the parts after it are
// reached), and the rest is the record, laid at the start of a buffer of the
// room a caller keeps for one (ORBISK_MODEL_PLACEMENT_MAX_BYTES), as the
// model's format allows a caller to hand it. Every out place is a block of
// exactly its size, so that a write or read past it is caught.
#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "orbisk_driver_model.h"
#include "roundtrip_support.h"

using namespace roundtrip;

namespace {

constexpr std::size_t kRoom = ORBISK_MODEL_PLACEMENT_MAX_BYTES;

// A block of exactly n bytes (at least one), filled with a marker.
std::unique_ptr<uint8_t[]> block(std::size_t n) {
  auto p = std::make_unique<uint8_t[]>(n ? n : 1);
  std::memset(p.get(), 0xEE, n ? n : 1);
  return p;
}

// Sets the record's checksum where its declared length lets one be made.
void seal(uint8_t *rec) {
  uint32_t length;
  std::memcpy(&length, rec + 8, 4);  // little-endian, as the format says
  if (length < ORBISK_MODEL_PLACEMENT_HEADER_BYTES || length > kRoom) return;
  uLong c = crc32(crc32(0L, Z_NULL, 0), rec, 12);
  c = crc32(c, rec + 16, uInt(length - 16));
  const auto v = uint32_t(c);
  std::memcpy(rec + 12, &v, 4);
}

// The model's decode alone, with room for a key of key_bytes and data_bytes.
void model_decode(const uint8_t *rec, uint16_t key_bytes, uint16_t data_bytes) {
  auto value = block(key_bytes), mask = block(key_bytes), data = block(data_bytes);
  pd_match_record key{};
  key.value_bytes = value.get();
  key.mask_bytes = mask.get();
  key.num_bytes = key_bytes;
  pd_action_record act{};
  act.data_bytes = data.get();
  act.num_bytes = data_bytes;
  pd_act_fn_hdl fn = 0;
  pipe_mgr_plcmt_mat_data_get_entry(rec, &key, &act, &fn);
  pipe_mgr_plcmt_adt_data_get_entry(rec, &act, &fn);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  orbisk_model_reset();
  // The log would keep every call; lines of the soft assertions are cleared per input.
  orbisk_model_set_call_log(ORBISK_MODEL_LOG_OFF, 0);
  p4_pd_orbisk_switch_init();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *in, std::size_t size) {
  if (size < 2) return 0;
  const uint8_t pick = in[0], mode = in[1];
  auto rec = block(kRoom);
  std::memset(rec.get(), 0, kRoom);
  std::memcpy(rec.get(), in + 2, std::min(size - 2, kRoom));
  if (mode & 1) seal(rec.get());

  model_decode(rec.get(), uint16_t(mode >> 1), uint16_t(mode >> 4));

  Call c;
  c.plcmt_data = rec.get();
  uint32_t priority = 0;
  bool is_default = false, has_mbr = false, has_grp = false;
  pd_mbr_hdl mbr = 0;
  pd_grp_hdl grp = 0;
  auto specs = block(sizeof(p4_pd_orbisk_switch_action_specs_t));
  c.priority_out = &priority;
  c.is_default = &is_default;
  c.has_mbr = &has_mbr;
  c.has_grp = &has_grp;
  c.mbr_hdl_out = &mbr;
  c.grp_hdl_out = &grp;
  c.specs_out = reinterpret_cast<p4_pd_orbisk_switch_action_specs_t *>(specs.get());
  const std::size_t n = pick % (kNumTableRows + kNumIndirectRows + kNumProfileRows);
  if (n < kNumTableRows) {
    auto ms = block(kTableRows[n].table->match_spec_size);
    c.match_spec_out.p = ms.get();
    kTableRows[n].get_entry_from_plcmt_data(c);
  } else if (n < kNumTableRows + kNumIndirectRows) {
    const IndirectRow &r = kIndirectRows[n - kNumTableRows];
    auto ms = block(r.table->match_spec_size);
    c.match_spec_out.p = ms.get();
    r.get_entry_from_plcmt_data(c);
  } else {
    const ProfileRow &r = kProfileRows[n - kNumTableRows - kNumIndirectRows];
    (mode & 2 ? r.get_full_member_info_from_plcmt_data : r.get_member_from_plcmt_data)(c);
  }
  orbisk_model_clear_log();
  return 0;
}
