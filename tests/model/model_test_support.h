// Driver records for the model's own tests, built from the program's
// descriptors: a key or action data that fits its table, from a seed, and
// out places of a read marked so that a write shows. Tables used by name:
// l2Lookup (exact), l2DmacClassify (ternary, carries a counter), ingStpCheck
// (keyless), ecmpGroup (entries name profile members), ipv4ShortMaskLpm
// (prefix), ipv4FinalResolve0 (partitioned prefix).
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "../by_name.h"
#include "orbisk_driver_model.h"

namespace model_test {

using orbisk::pd::ActionDesc;
using orbisk::pd::MatchKind;
using orbisk::pd::TableDesc;

constexpr pd_sess_hdl kSess = 5;
constexpr pd_dev_target kDev0 = {0, PD_DEV_PIPE_ALL};
constexpr pd_dev_target kDev1 = {1, PD_DEV_PIPE_ALL};
constexpr pd_tbl_hdl kNoTable = 0x0100ffff;

using by_name::fn;
using by_name::table;
using by_name::use;

inline uint8_t width_mask(unsigned bits) {
  return bits % 8 ? uint8_t((1u << (bits % 8)) - 1) : 0xFF;
}

// A key record over its own strings. Built for a table, it fits it: every
// field's value within its width, masks as the table's match kind wants
// them, a whole prefix, the partition in partition_index.
struct Key {
  uint8_t value[64] = {};
  uint8_t mask[64] = {};
  pd_match_record rec{};
  Key(uint16_t bytes, uint16_t bits, uint8_t seed) {
    for (unsigned i = 0; i < bytes; ++i) {
      value[i] = uint8_t(seed + i * 17);
      mask[i] = 0xFF;
    }
    rec.value_bytes = value;
    rec.mask_bytes = mask;
    rec.num_bytes = bytes;
    rec.num_valid_bits = bits;
  }
  Key(const TableDesc &t, uint8_t seed, uint32_t priority = 0)
      : Key(t.key_bytes, t.key_bits, seed) {
    rec.priority = t.prefix() ? 0 : priority;
    for (unsigned i = 0; i < t.num_fields; ++i) {
      const orbisk::pd::FieldDesc &f = t.fields[i];
      value[f.key_offset] &= width_mask(f.bits);
      if (t.ternary()) mask[f.key_offset] = width_mask(f.bits);
      if (t.match == MatchKind::PartitionedPrefix && i == 0) {
        std::memset(value + f.key_offset, 0, f.bytes);
        std::memset(mask + f.key_offset, 0, f.bytes);
        rec.partition_index = seed & ((1u << f.bits) - 1);
      }
    }
  }
  Key(const Key &) = delete;
};

// A direct action record over its own data, filled from a seed; built for an
// action, every parameter fits its width.
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
  Act(const ActionDesc &a, uint8_t seed) : Act(a.data_bytes, a.data_bits, seed) {
    for (uint16_t i = 0; i < a.num_params; ++i)
      data[a.params[i].data_offset] &= width_mask(a.params[i].bits);
  }
  Act(const Act &) = delete;
};

// Out places of a read, filled with a marker so that a write shows.
struct Read {
  uint8_t value[64];
  uint8_t mask[64];
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

  const TableDesc &l2 = table("l2Lookup");
  const pd_act_fn_hdl ucast = fn(l2, "l2LookupKnownUcast");  // one 20-bit parameter
  const ActionDesc &ucast_desc = *use(l2, "l2LookupKnownUcast").action;
  const TableDesc &dmac = table("l2DmacClassify");
  const TableDesc &stp = table("ingStpCheck");
  const TableDesc &ecmp = table("ecmpGroup");
  const TableDesc &lpm = table("ipv4ShortMaskLpm");
};

}  // namespace model_test
