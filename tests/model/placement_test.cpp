// Placement records and the hardware view of the model: a record decodes to
// what a read of the entry answers; any byte changed or cut off is refused
// with a status of its own and nothing written; each hardware change shows
// in a read from hardware alone, a write makes the views agree again, and a
// refused change changes nothing.
#include <vector>

#include "model_test_support.h"

namespace model_test {
namespace {

constexpr std::size_t kRoom = ORBISK_MODEL_PLACEMENT_MAX_BYTES;

// A record fetched into a buffer of the room a caller keeps.
struct Record {
  std::vector<uint8_t> bytes = std::vector<uint8_t>(kRoom, 0);
  uint32_t size = kRoom;
  pd_status fetch(pd_tbl_hdl tbl, pd_entry_hdl hdl) {
    size = kRoom;
    return pipe_mgr_plcmt_mat_data_get(kSess, kDev0, tbl, hdl, bytes.data(), &size);
  }
};

// A read of an entry from hardware.
pd_status hw_get(Read &r, pd_tbl_hdl tbl, pd_entry_hdl hdl) {
  return pipe_mgr_get_entry(kSess, tbl, kDev0, hdl, &r.key, &r.act, &r.fn, 1, 1, 0);
}

// The decode of a record equals the read of the entry: key, action, data, slots.
void expect_same(Read &decoded, Read &read, uint16_t key_bytes) {
  EXPECT_EQ(read.fn, decoded.fn);
  EXPECT_EQ(read.key.num_bytes, decoded.key.num_bytes);
  EXPECT_EQ(read.key.num_valid_bits, decoded.key.num_valid_bits);
  EXPECT_EQ(read.key.priority, decoded.key.priority);
  EXPECT_EQ(read.key.partition_index, decoded.key.partition_index);
  EXPECT_EQ(0, std::memcmp(read.value, decoded.value, key_bytes));
  EXPECT_EQ(0, std::memcmp(read.mask, decoded.mask, key_bytes));
  EXPECT_EQ(0, std::memcmp(read.data, decoded.data, sizeof read.data));
  read.act.data_bytes = decoded.act.data_bytes = nullptr;
  EXPECT_EQ(0, std::memcmp(&read.act, &decoded.act, sizeof read.act));
}

class Placement : public ModelTest {
 protected:
  void SetUp() override {
    ModelTest::SetUp();
    Key k(dmac, 9, 21);
    const ActionDesc &a = *dmac.actions[0].action;
    Act act(a, 4);
    // One attached counter slot, kept as written.
    act.rec.resource_count = 1;
    act.rec.resources[0].resource_hdl = dmac.resource->handle;
    act.rec.resources[0].resource_index = 3;
    act.rec.resources[0].resource_tag = PD_RESOURCE_TAG_ATTACHED;
    ASSERT_EQ(BF_SUCCESS, add(dmac.handle, k, dmac.actions[0].handle, act, &hdl));
    ASSERT_EQ(BF_SUCCESS, rec.fetch(dmac.handle, hdl));
  }
  pd_entry_hdl hdl = 0;
  Record rec;
};

TEST_F(Placement, EntryAndDefaultRecordsDecodeToWhatAReadAnswers) {
  for (pd_entry_hdl h : {hdl, ORBISK_MODEL_DEFAULT_ENTRY_HDL}) {
    SCOPED_TRACE(h);
    ASSERT_EQ(BF_SUCCESS, rec.fetch(dmac.handle, h));
    Read decoded(dmac.key_bytes), read(dmac.key_bytes);
    ASSERT_EQ(BF_SUCCESS, read.get(dmac.handle, h));
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_plcmt_mat_data_get_entry(rec.bytes.data(), &decoded.key,
                                                            &decoded.act, &decoded.fn));
    expect_same(decoded, read, dmac.key_bytes);
  }
  EXPECT_EQ(1u, rec.bytes[5]) << "a match entry record";
  EXPECT_EQ(ORBISK_MODEL_PLACEMENT_VERSION, rec.bytes[4]);
}

TEST_F(Placement, FetchesSayTheLengthAndWriteNothingWithoutRoom) {
  const uint32_t length = rec.size;
  EXPECT_EQ(60u + 2 * dmac.key_bytes + dmac.actions[0].action->data_bytes + 72, length);
  std::vector<uint8_t> small(length - 1, 0xAB);
  uint32_t size = length - 1;
  EXPECT_EQ(ORBISK_MODEL_PLACEMENT_NO_ROOM,
            pipe_mgr_plcmt_mat_data_get(kSess, kDev0, dmac.handle, hdl, small.data(), &size));
  EXPECT_EQ(length, size);
  EXPECT_EQ(std::vector<uint8_t>(length - 1, 0xAB), small);
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD,
            pipe_mgr_plcmt_mat_data_get(kSess, kDev0, dmac.handle, hdl, small.data(), nullptr));
  EXPECT_EQ(ORBISK_MODEL_NO_SUCH_ENTRY, rec.fetch(dmac.handle, hdl + 1));
}

TEST_F(Placement, EveryChangedOrCutByteIsRefusedAndNothingWritten) {
  const std::vector<uint8_t> good(rec.bytes.begin(), rec.bytes.begin() + rec.size);
  auto refused = [&](const std::vector<uint8_t> &bytes, const char *what, std::size_t at) {
    Read out(dmac.key_bytes);
    const pd_status s =
        pipe_mgr_plcmt_mat_data_get_entry(bytes.data(), &out.key, &out.act, &out.fn);
    EXPECT_TRUE(s == ORBISK_MODEL_PLACEMENT_FOREIGN || s == ORBISK_MODEL_PLACEMENT_DAMAGED)
        << what << " at " << at << ": status " << s;
    EXPECT_EQ(0xEEEEEEEEu, out.fn) << what << " at " << at;
    EXPECT_EQ(0xEE, out.value[0]) << what << " at " << at;
  };
  for (std::size_t i = 0; i < good.size(); ++i) {
    std::vector<uint8_t> bytes(kRoom, 0);
    std::copy(good.begin(), good.end(), bytes.begin());
    bytes[i] ^= 0x10;
    refused(bytes, "a byte changed", i);
    // Cut off there: what follows in the caller's buffer is not the record's.
    std::vector<uint8_t> cut(kRoom, 0);
    for (std::size_t j = 0; j < good.size(); ++j) cut[j] = j < i ? good[j] : uint8_t(~good[j]);
    refused(cut, "cut", i);
  }
  // Which status: not the model's mark or version, then its length, then its checksum.
  std::vector<uint8_t> bytes(kRoom, 0);
  Read out(dmac.key_bytes);
  const struct {
    std::size_t at;
    uint8_t value;
    pd_status status;
  } cases[] = {{0, 'X', ORBISK_MODEL_PLACEMENT_FOREIGN},
               {4, ORBISK_MODEL_PLACEMENT_VERSION + 1, ORBISK_MODEL_PLACEMENT_FOREIGN},
               {5, 9, ORBISK_MODEL_PLACEMENT_FOREIGN},
               {5, 2, ORBISK_MODEL_PLACEMENT_WRONG_KIND},
               {9, 0x40, ORBISK_MODEL_PLACEMENT_DAMAGED},
               {good.size() - 1, uint8_t(good.back() ^ 1), ORBISK_MODEL_PLACEMENT_DAMAGED}};
  for (const auto &c : cases) {
    std::copy(good.begin(), good.end(), bytes.begin());
    bytes[c.at] = c.value;
    EXPECT_EQ(c.status, pipe_mgr_plcmt_mat_data_get_entry(bytes.data(), &out.key, &out.act, &out.fn))
        << "byte " << c.at;
  }
}

// ------------------------------------------------------------ hardware view ---

struct HwChange {
  const char *what;
  pd_status (*change)(uint32_t, pd_tbl_hdl, pd_entry_hdl);
  // What a read from hardware then shows, against a read of software.
  bool (*shows)(const Read &hw, const Read &sw);
};

const HwChange kChanges[] = {
    {"key", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_flip_key(d, t, h, 1, 0x04); },
     [](const Read &hw, const Read &sw) { return hw.value[1] == (sw.value[1] ^ 0x04); }},
    {"mask", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_flip_mask(d, t, h, 0, 0x01); },
     [](const Read &hw, const Read &sw) { return hw.mask[0] == (sw.mask[0] ^ 0x01); }},
    {"data", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_flip_data(d, t, h, 0, 0x80); },
     [](const Read &hw, const Read &sw) { return hw.data[0] == (sw.data[0] ^ 0x80); }},
    {"priority", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_set_priority(d, t, h, 77); },
     [](const Read &hw, const Read &) { return hw.key.priority == 77; }},
    {"action", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_set_action(d, t, h, 0x20FFFFFF); },
     [](const Read &hw, const Read &) { return hw.fn == 0x20FFFFFF; }},
    {"selection", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_set_selection(d, t, h, 4, 12); },
     [](const Read &hw, const Read &) {
       return hw.act.record_kind == PD_RECORD_KIND_GROUP_REF && hw.act.group_hdl == 12 && hw.act.member_hdl == 0;
     }},
    {"default", [](uint32_t d, pd_tbl_hdl t, pd_entry_hdl h) { return orbisk_model_hw_set_default(d, t, h, true); },
     [](const Read &hw, const Read &sw) { return hw.key.num_bytes == 0 && sw.key.num_bytes != 0; }},
};

TEST_F(Placement, EachHardwareChangeShowsInAHardwareReadAlone) {
  for (const HwChange &c : kChanges) {
    SCOPED_TRACE(c.what);
    Read before(dmac.key_bytes);
    ASSERT_EQ(BF_SUCCESS, before.get(dmac.handle, hdl));
    Record was;
    ASSERT_EQ(BF_SUCCESS, was.fetch(dmac.handle, hdl));
    ASSERT_EQ(BF_SUCCESS, c.change(0, dmac.handle, hdl));
    Read hw(dmac.key_bytes), sw(dmac.key_bytes);
    ASSERT_EQ(BF_SUCCESS, hw_get(hw, dmac.handle, hdl));
    ASSERT_EQ(BF_SUCCESS, sw.get(dmac.handle, hdl));
    EXPECT_TRUE(c.shows(hw, sw));
    expect_same(sw, before, dmac.key_bytes);
    // The placement record tells software's view.
    Record after;
    ASSERT_EQ(BF_SUCCESS, after.fetch(dmac.handle, hdl));
    EXPECT_EQ(was.bytes, after.bytes);
    // An action change makes the views agree again.
    Act act(*dmac.actions[0].action, 4);
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_ent_set_action(kSess, 0, dmac.handle, hdl,
                                                      dmac.actions[0].handle, &act.rec, 0));
    Read again(dmac.key_bytes);
    ASSERT_EQ(BF_SUCCESS, hw_get(again, dmac.handle, hdl));
    EXPECT_FALSE(c.shows(again, sw)) << "the write left the hardware view changed";
  }
}

TEST_F(Placement, DroppedEntriesAndTheDefaultOnHardware) {
  ASSERT_EQ(BF_SUCCESS, orbisk_model_hw_drop(0, dmac.handle, hdl));
  Read r(dmac.key_bytes);
  EXPECT_EQ(ORBISK_MODEL_HW_DROPPED, hw_get(r, dmac.handle, hdl));
  EXPECT_EQ(0xEEEEEEEEu, r.fn);
  EXPECT_EQ(BF_SUCCESS, r.get(dmac.handle, hdl)) << "software still holds it";
  // The default entry has a view of its own, which a reset makes agree again.
  const pd_entry_hdl dflt = ORBISK_MODEL_DEFAULT_ENTRY_HDL;
  ASSERT_EQ(BF_SUCCESS, orbisk_model_hw_set_action(0, stp.handle, dflt, 0x20ABCDEF));
  Read d(0);
  for (bool reset : {false, true}) {
    if (reset) {
      ASSERT_EQ(BF_SUCCESS, pipe_mgr_mat_tbl_default_entry_reset(kSess, kDev0, stp.handle, 0));
    }
    ASSERT_EQ(BF_SUCCESS, pipe_mgr_table_get_default_entry(kSess, kDev0, stp.handle, &d.act, &d.fn, 1, 1, 0));
    EXPECT_EQ(!reset, d.fn == 0x20ABCDEFu);
  }
}

TEST_F(Placement, RefusedHardwareChangesChangeNothing) {
  const struct {
    pd_status status;
    pd_status got;
  } cases[] = {
      {ORBISK_MODEL_NO_SUCH_TABLE, orbisk_model_hw_flip_key(0, kNoTable, hdl, 0, 1)},
      {ORBISK_MODEL_NO_SUCH_ENTRY, orbisk_model_hw_flip_key(0, dmac.handle, hdl + 1, 0, 1)},
      {ORBISK_MODEL_NO_SUCH_ENTRY, orbisk_model_hw_drop(1, dmac.handle, hdl)},
      {ORBISK_MODEL_HW_PAST_END, orbisk_model_hw_flip_key(0, dmac.handle, hdl, dmac.key_bytes, 1)},
      {ORBISK_MODEL_HW_PAST_END, orbisk_model_hw_flip_mask(0, dmac.handle, hdl, dmac.key_bytes, 1)},
      {ORBISK_MODEL_HW_PAST_END,
       orbisk_model_hw_flip_data(0, dmac.handle, hdl, dmac.actions[0].action->data_bytes, 1)},
      {ORBISK_MODEL_HW_PAST_END,
       orbisk_model_hw_flip_key(0, stp.handle, ORBISK_MODEL_DEFAULT_ENTRY_HDL, 0, 1)},
      {ORBISK_MODEL_BAD_CONTROL, orbisk_model_hw_set_selection(0, dmac.handle, hdl, 1, 5)},
  };
  for (const auto &c : cases) EXPECT_EQ(c.status, c.got);
  Read hw(dmac.key_bytes), sw(dmac.key_bytes);
  ASSERT_EQ(BF_SUCCESS, hw_get(hw, dmac.handle, hdl));
  ASSERT_EQ(BF_SUCCESS, sw.get(dmac.handle, hdl));
  expect_same(hw, sw, dmac.key_bytes);
}

}  // namespace
}  // namespace model_test
