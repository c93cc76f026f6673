// Shared pieces of the catalogue-wide round trip: a fixture that starts the
// library on a fresh driver model, and values that stay inside a field.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "orbisk_driver_model.h"
#include "orbisk_switch/pd.h"

inline constexpr pd_sess_hdl kSess = 7;
inline constexpr uint32_t kDevice = 0;
inline constexpr pd_dev_target kTarget = {kDevice, PD_DEV_PIPE_ALL};
inline constexpr uint32_t kPriority = 11;
inline constexpr uint32_t kTtl = 3000;
inline constexpr pd_meter_spec kMeter = {1000, 200, 2000, 400, PD_METER_TYPE_COLOR_AWARE};

class RoundTrip : public ::testing::Test {
 protected:
  void SetUp() override {
    orbisk_model_reset();
    p4_pd_orbisk_switch_init();
  }
  void TearDown() override {
    EXPECT_EQ(0u, p4_pd_orbisk_switch_cleanup());
    EXPECT_EQ(0u, orbisk_model_live_allocations()) << "a read left its resource list behind";
  }
};

// A value of `bits` bits (never all zero) that differs with the seed.
template <typename T>
T pattern(unsigned bits, unsigned seed) {
  uint32_t v = (seed * 0x9E3779B1u) ^ (seed << 7) ^ 0x5A5A5A5Au;
  if (bits < 32) v &= (1u << bits) - 1;
  if (v == 0) v = 1;
  return T(v);
}

template <typename T>
T ones(unsigned bits) {
  return T(bits >= 32 ? 0xFFFFFFFFu : (1u << bits) - 1);
}

inline void fill_bytes(uint8_t *p, unsigned n, unsigned seed) {
  for (unsigned i = 0; i < n; ++i) p[i] = uint8_t(seed * 31 + i * 7 + 1);
}

template <typename MatchSpec>
struct Readback {
  MatchSpec ms;
  uint32_t priority = 0;
  char name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = {};
  p4_pd_orbisk_switch_action_spec_u spec;
  p4_pd_orbisk_switch_action_names_t action = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  bool is_default = true;
  Readback() {
    std::memset(&ms, 0xEE, sizeof ms);
    std::memset(&spec, 0, sizeof spec);
  }
};

struct KeylessReadback {
  char name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = {};
  p4_pd_orbisk_switch_action_spec_u spec;
  p4_pd_orbisk_switch_action_names_t action = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  KeylessReadback() { std::memset(&spec, 0, sizeof spec); }
};
