// Hand-built driver records for the model's own tests, on real tables of the
// program: l2Lookup (exact), l2DmacClassify (ternary, carries a counter),
// ingStpCheck (keyless) and ecmpGroup (entries name profile members).
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "orbisk_driver_model.h"

namespace model_test {

constexpr pd_sess_hdl kSess = 5;
constexpr pd_dev_target kDev0 = {0, PD_DEV_PIPE_ALL};
constexpr pd_dev_target kDev1 = {1, PD_DEV_PIPE_ALL};

constexpr pd_tbl_hdl kL2Lookup = 0x0100002f;  // exact, 8 bytes, 60 bits
constexpr pd_act_fn_hdl kKnownUcast = 0x200000a6;  // 3 bytes, 20 bits
constexpr pd_act_fn_hdl kKnownMcast = 0x200000a7;  // 2 bytes, 16 bits
constexpr pd_act_fn_hdl kL2OnMiss = 0x200000aa;    // the declared default

constexpr pd_tbl_hdl kDmac = 0x0100000a;  // ternary, 8 bytes, 57 bits
constexpr pd_act_fn_hdl kSetL2ControlFrame = 0x20000004;  // 2 bytes, 9 bits
constexpr pd_act_fn_hdl kDmacOnMiss = 0x2000000b;  // declared default
constexpr uint32_t kDmacCounter = 0x04000001;

constexpr pd_tbl_hdl kIngStpCheck = 0x0100000b;  // keyless
constexpr pd_act_fn_hdl kIngStpAction = 0x2000000d;  // default only

constexpr pd_tbl_hdl kEcmpGroup = 0x1101000d;  // indirect, 2 bytes, 15 bits

constexpr pd_tbl_hdl kNoTable = 0x0100ffff;

// A key record over its own strings, filled from a seed.
struct Key {
  uint8_t value[16] = {};
  uint8_t mask[16] = {};
  pd_match_record rec{};
  Key(uint16_t bytes, uint16_t bits, uint8_t seed, uint32_t priority = 0) {
    for (unsigned i = 0; i < bytes; ++i) {
      value[i] = uint8_t(seed + i * 17);
      mask[i] = 0xFF;
    }
    rec.value_bytes = value;
    rec.mask_bytes = mask;
    rec.num_bytes = bytes;
    rec.num_valid_bits = bits;
    rec.priority = priority;
  }
  Key(const Key &) = delete;
};

struct L2Key : Key {
  explicit L2Key(uint8_t seed) : Key(8, 60, seed) {}
};

// A direct action record over its own data, filled from a seed.
struct Act {
  uint8_t data[32] = {};
  pd_action_record rec{};
  Act(uint16_t bytes, uint16_t bits, uint8_t seed) {
    for (unsigned i = 0; i < bytes; ++i) data[i] = uint8_t(seed * 3 + i + 1);
    rec.record_kind = PD_RECORD_KIND_DIRECT;
    rec.data_bytes = data;
    rec.num_bytes = bytes;
    rec.num_valid_bits = bits;
  }
  Act(const Act &) = delete;
};

struct UcastAct : Act {
  explicit UcastAct(uint8_t seed) : Act(3, 20, seed) {}
};

// Out places of a read, filled with a marker so that a write shows.
struct Read {
  uint8_t value[16];
  uint8_t mask[16];
  uint8_t data[28];
  pd_match_record key{};
  pd_action_record act{};
  pd_act_fn_hdl fn = 0xEEEEEEEE;
  explicit Read(uint16_t key_bytes, uint16_t room = sizeof data) {
    std::memset(value, 0xEE, sizeof value);
    std::memset(mask, 0xEE, sizeof mask);
    std::memset(data, 0xEE, sizeof data);
    key.value_bytes = value;
    key.mask_bytes = mask;
    key.num_bytes = key_bytes;
    act.data_bytes = data;
    act.num_bytes = room;
  }
  pd_status get(pd_tbl_hdl tbl, pd_entry_hdl hdl, pd_dev_target dev = kDev0) {
    return pipe_mgr_get_entry(kSess, tbl, dev, hdl, &key, &act, &fn, 0, 1, 0);
  }
  pd_status get_default(pd_tbl_hdl tbl, pd_dev_target dev = kDev0) {
    return pipe_mgr_table_get_default_entry(kSess, dev, tbl, &act, &fn, 0, 1, 0);
  }
};

inline pd_status add(pd_tbl_hdl tbl, Key &k, pd_act_fn_hdl fn, Act &a, pd_entry_hdl *hdl,
                     pd_dev_target dev = kDev0) {
  return pipe_mgr_mat_ent_add(kSess, dev, tbl, &k.rec, fn, &a.rec, 0, 0, hdl);
}

class ModelTest : public ::testing::Test {
 protected:
  void SetUp() override { orbisk_model_reset(); }
};

}  // namespace model_test
