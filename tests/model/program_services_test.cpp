// The model's program services on their own: hash configuration per device
// and the algorithms it hashes with, and every refusal of the hash,
// value-set, digest and snapshot stores leaving the state as it was.
#include <cstring>
#include <functional>

#include "model_test_support.h"

using namespace model_test;

namespace {

using orbisk::pd::kDigests;
using orbisk::pd::kHashCalcs;
using orbisk::pd::kValueSets;

using ProgramServices = ModelTest;

// The algorithms are zlib's, chosen by handle: their published check values.
TEST_F(ProgramServices, HashesWithZlibsAlgorithmsByHandle) {
  const auto *nine = reinterpret_cast<const uint8_t *>("123456789");
  EXPECT_EQ(0xCBF43926u, orbisk_model_hash(ORBISK_MODEL_HASH_CRC32, 0, nine, 9));
  const auto *wiki = reinterpret_cast<const uint8_t *>("Wikipedia");
  EXPECT_EQ(0x11E60398u, orbisk_model_hash(ORBISK_MODEL_HASH_ADLER32, 1, wiki, 9));
  EXPECT_EQ(0u, orbisk_model_hash(0, 0, nine, 9));
  // An empty stream answers the start, not zlib's answer to a null buffer.
  EXPECT_EQ(0x1234u, orbisk_model_hash(ORBISK_MODEL_HASH_CRC32, 0x1234, nullptr, 0));

  // The result's low bytes, most significant first, zeros above 32 bits.
  const auto &h = kHashCalcs[1];
  ASSERT_EQ(ORBISK_MODEL_HASH_CRC32, h.algorithm_hdl);
  uint8_t out[6];
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_calculate_hash_value(1, 0, h.handle, nine, 9, out, 6));
  EXPECT_EQ(0, std::memcmp(out, "\x00\x00\xCB\xF4\x39\x26", 6));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_calculate_hash_value(1, 0, h.handle, nine, 9, out, 2));
  EXPECT_EQ(0, std::memcmp(out, "\x39\x26", 2));
}

TEST_F(ProgramServices, HashConfigurationIsPerDeviceAndGoesWithTheDevice) {
  const auto &h = kHashCalcs[0];
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_seed_set(1, 1, h.handle, 77));
  uint64_t seed = 9;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_seed_get(1, 2, h.handle, &seed));
  EXPECT_EQ(0u, seed);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_seed_get(1, 1, h.handle, &seed));
  EXPECT_EQ(77u, seed);
  orbisk_model_remove_device(1);
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_seed_get(1, 1, h.handle, &seed));
  EXPECT_EQ(0u, seed);
}

pd_status no_callback(pd_sess_hdl, pd_lrn_digest_msg *, void *) { return BF_SUCCESS; }

// Each refusal answers its own status and changes nothing a read can see.
TEST_F(ProgramServices, EveryRefusalHasItsStatusAndChangesNothing) {
  const auto &h = kHashCalcs[2];
  const uint32_t pvs = kValueSets[0].handle;
  const uint32_t digest = kDigests[0].handle;
  pd_hash_calc_driver_attribute attr{};
  attr.input_field = 3;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_input_field_attribute_set(1, 0, h.handle, h.input_hdl, 1, &attr));
  pd_entry_hdl e = 0;
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_pvs_entry_add(1, 0, pvs, 0, 0, 0, 5, 0xF, &e));
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_lrn_digest_notification_register(1, 0, digest, no_callback, nullptr));
  uint32_t snap = 0;
  ASSERT_EQ(BF_SUCCESS, bf_snapshot_create(0, 0, 1, 2, 1, &snap));

  // What a read sees of all of it.
  auto state = [&] {
    uint32_t in = 0, alg = 0, attrs = 0, count = 0;
    uint64_t seed = 0;
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_input_get(1, 0, h.handle, &in));
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_algorithm_get(1, 0, h.handle, &alg, nullptr, nullptr));
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_seed_get(1, 0, h.handle, &seed));
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_hash_calc_input_field_attribute_count_get(1, 0, h.handle, h.input_hdl, &attrs));
    EXPECT_EQ(BF_SUCCESS, pipe_mgr_pvs_entry_get_count(1, 0, pvs, 0, 0xFFFF, 0xFF, 0, &count));
    return std::vector<uint64_t>{in, alg, seed, attrs, count,
                                 orbisk_model_digests_pending(0, digest),
                                 orbisk_model_digests_unacked(0, digest),
                                 uint64_t(orbisk_model_snapshot_state(snap))};
  };
  const auto before = state();
  pd_lrn_digest_msg stranger{};
  const uint64_t too_wide[4] = {0x1'0000'0000, 0, 0, 0};
  const struct {
    const char *what;
    pd_status want;
    std::function<pd_status()> call;
  } refusals[] = {
      {"unknown hash", ORBISK_MODEL_NO_SUCH_HASH, [&] { return pipe_mgr_hash_calc_seed_set(1, 0, 0x0800FFFF, 1); }},
      {"input handle 0", ORBISK_MODEL_NOT_OF_HASH, [&] { return pipe_mgr_hash_calc_input_set(1, 0, h.handle, 0); }},
      {"another calculation's input", ORBISK_MODEL_NOT_OF_HASH,
       [&] { return pipe_mgr_hash_calc_input_field_attribute_set(1, 0, h.handle, kHashCalcs[0].input_hdl, 1, &attr); }},
      {"algorithm handle 0", ORBISK_MODEL_NOT_OF_HASH,
       [&] { return pipe_mgr_hash_calc_algorithm_set(1, 0, h.handle, 0, nullptr, 0); }},
      {"unknown value set", ORBISK_MODEL_NO_SUCH_VALUE_SET,
       [&] { return pipe_mgr_pvs_entry_add(1, 0, 0x1234, 0, 0, 0, 6, 0xF, &e); }},
      {"the same key again", ORBISK_MODEL_ENTRY_EXISTS, [&] { return pipe_mgr_pvs_entry_add(1, 0, pvs, 0, 0, 0, 5, 0xF, &e); }},
      {"a stranger entry", ORBISK_MODEL_NO_SUCH_ENTRY, [&] { return pipe_mgr_pvs_entry_delete(1, 0, pvs, e + 1); }},
      {"unknown digest", ORBISK_MODEL_NO_SUCH_DIGEST, [&] { return orbisk_model_learn(0, 0x0900FFFF, too_wide, 4); }},
      {"a value wider than its field", ORBISK_MODEL_BAD_RECORD, [&] { return orbisk_model_learn(0, digest, too_wide, 4); }},
      {"no subscriber", ORBISK_MODEL_NOT_SUBSCRIBED, [&] { return orbisk_model_learn(1, digest, too_wide, 4); }},
      {"an ack never delivered", ORBISK_MODEL_NOT_DELIVERED, [&] { return pipe_mgr_flow_lrn_notify_ack(1, digest, &stranger); }},
      {"a trigger before arming", ORBISK_MODEL_SNAPSHOT_NOT_ARMED, [&] { return orbisk_model_snapshot_trigger(snap); }},
      {"an unknown snapshot", ORBISK_MODEL_NO_SUCH_SNAPSHOT, [&] { return bf_snapshot_delete(snap + 4); }},
      {"a third direction", ORBISK_MODEL_BAD_RECORD, [&] { return bf_snapshot_create(0, 0, 1, 2, 2, &snap); }},
  };
  for (const auto &r : refusals) {
    EXPECT_EQ(r.want, r.call()) << r.what;
    EXPECT_EQ(before, state()) << r.what;
  }
  // A double delete: the second is refused.
  ASSERT_EQ(BF_SUCCESS, pipe_mgr_pvs_entry_delete(1, 0, pvs, e));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, pipe_mgr_pvs_entry_delete(1, 0, pvs, e));
  ASSERT_EQ(BF_SUCCESS, bf_snapshot_delete(snap));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_SNAPSHOT, bf_snapshot_delete(snap));
}

}  // namespace
