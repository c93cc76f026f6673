// Value text and comparison. The sweep writes an entry of every action of
// every direct table through the driver model, and the default entries,
// reads each back as value text, and hands all the texts with what was
// written to check_value_text.py, which evaluates them with python3's own
// literal evaluator, pairs them with the schema texts and renders the texts
// it expects on its own. The worked texts and messages are checked byte for
// byte here.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "roundtrip_support.h"
#include "test_support.h"

namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::FieldDesc;
using orbisk::pd::FieldMatch;
using orbisk::pd::kTables;
using orbisk::pd::TableDesc;
using roundtrip::Call;

using TableValueFn = int (*)(pd_sess_hdl, uint8_t, pd_entry_hdl, bool, char *);
using RecordValueFn = int (*)(const void *, char *);
using BareValueFn = int (*)(char *);
using EqualFn = int (*)(const void *, const void *, char *);

constexpr pd_sess_hdl kSess = 7;
constexpr uint32_t kPriority = 300;

// Records of any table or action, aligned for any member.
struct Record {
  Record() { std::memset(b, 0, sizeof b); }
  alignas(8) uint8_t b[512];
};

uint32_t pattern(unsigned bits, unsigned seed) {
  uint32_t v = seed * 0x9E3779B1u ^ seed << 11 ^ 0xA5C3F00Du;
  return bits >= 32 ? v : v & ((1u << bits) - 1);
}

void store(uint8_t *at, unsigned bits, uint32_t v) { std::memcpy(at, &v, bits <= 8 ? 1 : bits <= 16 ? 2 : 4); }

uint32_t load(const uint8_t *at, unsigned bits) {
  uint32_t v = 0;
  std::memcpy(&v, at, bits <= 8 ? 1 : bits <= 16 ? 2 : 4);
  return v;
}

std::string hex(uint32_t v) {
  char s[16];
  std::snprintf(s, sizeof s, "%x", v);
  return s;
}

std::string hex16(const uint8_t *b) {
  std::string s;
  for (int i = 0; i < 16; ++i) s += hex(b[i] >> 4) + hex(b[i] & 15);
  return s;
}

// A key with every bit of every field in play (so narrow masks must hide
// some), ternary masks all ones within the width, prefixes full length.
void fill_key(const TableDesc &t, uint8_t *ms, unsigned seed) {
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    if (f.array) {
      for (unsigned b = 0; b < 16; ++b) ms[f.host_offset + b] = uint8_t(seed * 29 + i * 7 + b * 13 + 1);
    } else {
      store(ms + f.host_offset, f.bits, pattern(f.bits, seed + i));
    }
    if (f.match == FieldMatch::Ternary) {
      std::memset(ms + f.partner_offset, 0xFF, f.array ? 16 : f.bits <= 8 ? 1 : f.bits <= 16 ? 2 : 4);
      if (!f.array && f.bits % 8) store(ms + f.partner_offset, f.bits, (1u << f.bits) - 1);
    } else if (f.match == FieldMatch::Lpm) {
      store(ms + f.partner_offset, 16, f.bits);
    }
  }
}

// What was written, element by element as the checker pairs them: each
// field's value, then its mask or prefix length; raw, unmasked.
std::string written_key(const TableDesc &t, const uint8_t *ms) {
  std::string s;
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const FieldDesc &f = t.fields[i];
    s += (f.array ? hex16(ms + f.host_offset) : hex(load(ms + f.host_offset, f.bits))) + ",";
    if (f.match == FieldMatch::Ternary) {
      s += (f.array ? hex16(ms + f.partner_offset) : hex(load(ms + f.partner_offset, f.bits))) + ",";
    } else if (f.match == FieldMatch::Lpm) {
      s += hex(load(ms + f.partner_offset, 16)) + ",";
    }
  }
  return s.empty() ? "-" : s;
}

std::string written_params(const ActionDesc &a, const uint8_t *as) {
  std::string s;
  for (unsigned i = 0; i < a.num_params; ++i) s += hex(load(as + a.params[i].host_offset, a.params[i].bits)) + ",";
  return s.empty() ? "-" : s;
}

std::string text_of(int (*write)(char *)) {
  char buf[P4_PD_ORBISK_SWITCH_SCHEMA_MAX + 64];
  std::memset(buf, 'Z', sizeof buf);
  const int n = write(buf);
  return n > 0 && std::strlen(buf) == std::size_t(n) ? std::string(buf) : "overrun or empty";
}

template <typename F>
std::string text(F write) {
  char buf[P4_PD_ORBISK_SWITCH_VALUE_MAX + 64];
  std::memset(buf, 'Z', sizeof buf);
  buf[sizeof buf - 1] = '\0';
  const int n = write(buf);
  if (n == 0) return "failed";
  return std::strlen(buf) == std::size_t(n) && n < P4_PD_ORBISK_SWITCH_VALUE_MAX ? std::string(buf) : "overrun";
}

class ValueText : public OnModel {};

// One line per text, tab-separated, for check_value_text.py.
struct Sweep {
  std::ostringstream out;

  void entry(const char *kind, const TableDesc &t, pd_entry_hdl hdl, const ActionDesc &a, const uint8_t *ms,
             const uint8_t *as, uint32_t priority) {
    auto value = exported<TableValueFn>(std::string(t.name) + "_value");
    const std::string v = text([&](char *o) { return value(kSess, 0, hdl, false, o); });
    const std::string hw = text([&](char *o) { return value(kSess, 0, hdl, true, o); });
    const std::string by_hdl =
        text([&](char *o) { return p4_pd_orbisk_switch_entry_value(kSess, 0, t.handle, hdl, false, o); });
    std::string key = "-";
    if (ms) key = text([&](char *o) { return exported<RecordValueFn>(std::string(t.name) + "_match_spec_value")(ms, o); });
    const std::string act = a.num_params
        ? text([&](char *o) { return exported<RecordValueFn>(std::string(a.name) + "_value")(as, o); })
        : text(exported<BareValueFn>(std::string(a.name) + "_value"));
    out << kind << '\t' << t.name << '\t' << v << '\t' << (ms ? written_key(t, ms) : "-") << '\t' << a.name << '\t'
        << written_params(a, as) << '\t' << priority << '\t' << key << '\t' << act << '\t' << hw << '\t' << by_hdl
        << '\n';
  }
};

TEST_F(ValueText, EveryTableAndActionEvaluatesAndPairsWithItsSchema) {
  Sweep sweep;
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    auto schema = exported<BareValueFn>(std::string(t.name) + "_schema");
    sweep.out << "S\t" << t.name << '\t' << text_of(schema) << '\n';
  }
  unsigned seed = 1;
  for (std::size_t r = 0; r < roundtrip::kNumTableRows; ++r) {
    const roundtrip::TableRow &row = roundtrip::kTableRows[r];
    const TableDesc &t = *row.table;
    for (std::size_t i = 0; i < row.num_actions; ++i) {
      const roundtrip::ActionRow &ar = row.actions[i];
      Record ms, as;
      fill_key(t, ms.b, ++seed);
      // An index that stands only in a resource slot goes as its low 16 bits.
      for (unsigned p = 0; p < ar.action->num_params; ++p) {
        const unsigned bits = ar.action->params[p].bits;
        store(as.b + ar.action->params[p].host_offset, bits,
              pattern(int(p) == ar.action->slot_param ? std::min(bits, 16u) : bits, seed * 3 + p));
      }
      pd_entry_hdl hdl = 0;
      Call c;
      c.sess_hdl = kSess;
      c.priority = kPriority;
      c.match_spec.p = ms.b;
      c.action_spec.p = as.b;
      c.entry_hdl_out = &hdl;
      static const pd_meter_spec meter = {1000, 200, 2000, 400, PD_METER_TYPE_COLOR_AWARE};
      c.meter_spec = &meter;
      c.ttl = 1000;
      if (ar.table_add_with) {
        ASSERT_EQ(BF_SUCCESS, ar.table_add_with(c)) << t.name << " " << ar.action->name;
        sweep.entry("E", t, hdl, *ar.action, t.keyed() ? ms.b : nullptr, as.b, t.ternary() ? kPriority : 0);
        // Narrow keys of different seeds may meet: one entry at a time.
        c.entry_hdl = hdl;
        if (row.table_delete) {
          ASSERT_EQ(BF_SUCCESS, row.table_delete(c));
        }
      }
      if (ar.set_default_action) {
        ASSERT_EQ(BF_SUCCESS, ar.set_default_action(c)) << t.name << " " << ar.action->name;
        sweep.entry("D", t, hdl, *ar.action, nullptr, as.b, 0);
      }
    }
  }
  const std::string path = ::testing::TempDir() + "value_text_sweep.txt";
  std::ofstream(path) << sweep.out.str();
  const std::string cmd = std::string(ORBISK_PYTHON " " ORBISK_SOURCE_DIR "/tests/check_value_text.py ") + path;
  FILE *p = popen(cmd.c_str(), "r");
  ASSERT_NE(nullptr, p);
  std::string report;
  char line[512];
  while (std::fgets(line, sizeof line, p)) report += line;
  EXPECT_EQ(0, pclose(p)) << report;
  EXPECT_NE(std::string::npos, report.find(" 0 failures")) << report;
}

// An entry of a table through its add with the named action (any priority
// goes as kPriority), its handle.
pd_entry_hdl add(const TableDesc &t, const char *action, const Record &ms, const Record &as) {
  pd_entry_hdl hdl = 0;
  const std::string f = std::string(t.name) + "_table_add_with_" + action;
  const bool params = by_name::use(t, action).action->num_params != 0;
  pd_status s;
  if (t.ternary()) {
    s = params ? exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, const void *,
                                        pd_entry_hdl *)>(f)(kSess, {0, PD_DEV_PIPE_ALL}, ms.b, kPriority, as.b, &hdl)
               : exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, pd_entry_hdl *)>(f)(
                     kSess, {0, PD_DEV_PIPE_ALL}, ms.b, kPriority, &hdl);
  } else {
    s = params ? exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, const void *, pd_entry_hdl *)>(
                     f)(kSess, {0, PD_DEV_PIPE_ALL}, ms.b, as.b, &hdl)
               : exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, pd_entry_hdl *)>(f)(
                     kSess, {0, PD_DEV_PIPE_ALL}, ms.b, &hdl);
  }
  EXPECT_EQ(BF_SUCCESS, s) << f;
  return hdl;
}

// An entry of a selector table naming a member, or a group holding it, of
// its profile, the member running the profile's first action with zero
// parameters; its handle, and in `ref` the member's or group's.
pd_entry_hdl add_selection(const TableDesc &t, const Record &ms, bool group, uint32_t &ref) {
  const orbisk::pd::ProfileDesc &p = *t.profile;
  const std::string r = p.name;
  const ActionDesc &a = *p.actions[0].action;
  const pd_dev_target tgt = {0, PD_DEV_PIPE_ALL};
  pd_mbr_hdl mbr = 0;
  pd_grp_hdl grp = 0;
  const std::string add_member = r + "_add_member_with_" + a.name;
  const Record as;
  EXPECT_EQ(BF_SUCCESS, a.num_params
                            ? exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, pd_mbr_hdl *)>(
                                  add_member)(kSess, tgt, as.b, &mbr)
                            : exported<pd_status (*)(pd_sess_hdl, pd_dev_target, pd_mbr_hdl *)>(add_member)(
                                  kSess, tgt, &mbr));
  if (group) {
    EXPECT_EQ(BF_SUCCESS, exported<pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, pd_grp_hdl *)>(
                              r + "_create_group")(kSess, tgt, 4, &grp));
    EXPECT_EQ(BF_SUCCESS, exported<pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl)>(
                              r + "_add_member_to_group")(kSess, 0, grp, mbr));
  }
  pd_entry_hdl hdl = 0;
  const std::string f = std::string(t.name) + (group ? "_add_entry_with_selector" : "_add_entry");
  ref = group ? grp : mbr;
  EXPECT_EQ(BF_SUCCESS, t.ternary()
      ? exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, uint32_t, pd_entry_hdl *)>(f)(
            kSess, tgt, ms.b, kPriority, ref, &hdl)
      : exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, pd_entry_hdl *)>(f)(
            kSess, tgt, ms.b, ref, &hdl));
  return hdl;
}

std::string value_of(const TableDesc &t, pd_entry_hdl hdl) {
  return text([&](char *o) { return exported<TableValueFn>(std::string(t.name) + "_value")(kSess, 0, hdl, false, o); });
}

// The member or group handle the model gave (`ref`) in a text shown as the
// worked text's.
uint32_t ref;
std::string as_handle(std::string text, const char *worked) {
  const std::string h = "(0x" + hex(ref) + ",";
  const std::size_t at = text.find(h);
  return at == std::string::npos ? text : text.replace(at, h.size(), std::string("(0x") + worked + ",");
}

// The worked texts, byte for byte.
TEST_F(ValueText, WorkedTexts) {
  struct Case {
    const char *what;
    std::string (*make)();
    const char *want;
  };
  static const Case cases[] = {
      {"tunnelTermination key, every bit set",
       [] {
         Record ms;
         std::memset(ms.b, 0xFF, sizeof ms.b);
         return text([&](char *o) { return exported<RecordValueFn>("tunnelTermination_match_spec_value")(ms.b, o); });
       },
       "( 0xffffff,0xffffff,0xffffff,0xffffff,0xffffffff,0xffffffff,0x7,0x7,0x1,),"},
      {"ipv6Host key, every bit set",
       [] {
         Record ms;
         std::memset(ms.b, 0xFF, sizeof ms.b);
         return text([&](char *o) { return exported<RecordValueFn>("ipv6Host_match_spec_value")(ms.b, o); });
       },
       "( 0xff,0xFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF,),"},
      {"l2DmacClassify port 0x1ff through mask 0x7f",
       [] {
         Record ms;
         store(ms.b + table("l2DmacClassify").fields[0].host_offset, 9, 0x1FF);
         return text([&](char *o) { return exported<RecordValueFn>("l2DmacClassify_match_spec_value")(ms.b, o); });
       },
       "( 0x07f,0x000000,0x000000,0x000000,0x000000,),"},
      {"onMiss", [] { return text(exported<BareValueFn>("onMiss_value")); }, "('onMiss',()),"},
      {"ipv4Host vrf 1, dip 10.0.0.1, setNextHop 7",
       [] {
         const TableDesc &t = table("ipv4Host");
         Record ms, as;
         store(ms.b + t.fields[0].host_offset, 8, 1);
         store(ms.b + t.fields[1].host_offset, 32, 0x0A000001);
         store(as.b, 32, 7);
         return value_of(t, add(t, "setNextHop", ms, as));
       },
       "((( 0x01,0x0a000001,),('setNextHop',(0x00000007,)),),(0,True))"},
      {"vlanDecap default", [] { return value_of(table("vlanDecap"), ORBISK_MODEL_DEFAULT_ENTRY_HDL); },
       "(((),('removeVlanHdr',()),),(0,True))"},
      {"tunnelTermination setTunnelTerminationTypeNoneIpv6, priority 300",
       [] {
         Record ms, as;
         const std::string v = value_of(table("tunnelTermination"),
                                        add(table("tunnelTermination"), "setTunnelTerminationTypeNoneIpv6", ms, as));
         return v.substr(v.find("),("));
       },
       "),('setTunnelTerminationTypeNoneIpv6',()),),(300,True))"},
      {"ecmpGroup key 0x12, member 5",
       [] {
         Record ms;
         store(ms.b, 15, 0x12);
         return as_handle(value_of(table("ecmpGroup"), add_selection(table("ecmpGroup"), ms, false, ref)), "5");
       },
       "((( 0x0012,),('setMbrHdl',(0x5,))),(0,True))"},
      {"ecmpGroup key 0x1ff, group 9",
       [] {
         Record ms;
         store(ms.b, 15, 0x1FF);
         return as_handle(value_of(table("ecmpGroup"), add_selection(table("ecmpGroup"), ms, true, ref)), "9");
       },
       "((( 0x00ff,),('setGrpHdl',(0x9,))),(0,True))"},
  };
  for (const Case &c : cases) {
    SetUp();
    EXPECT_EQ(c.want, c.make()) << c.what;
    TearDown();
  }
}

// A read that fails leaves the buffer as it was and gives 0, by table and
// through the dispatcher; the dispatcher misses every handle that names no
// table, profiles included.
TEST_F(ValueText, FailedReadsAndMissesLeaveTheBufferAlone) {
  const struct {
    pd_tbl_hdl tbl;
    pd_entry_hdl entry;
  } misses[] = {{0x01000055, 1},          {0x01000000, 1}, {0x01000076, 1}, {0x11010002, 1}, {0x11010029, 1},
                {0x12010003, 1},          {0x0200001d, 1}, {0x13010001, 1}, {0, 1},
                {table("ingMtu").handle, 77}, {table("ecmpGroup").handle, 77}};
  for (const auto &m : misses) {
    char buf[8] = "before";
    EXPECT_EQ(0, p4_pd_orbisk_switch_entry_value(kSess, 0, m.tbl, m.entry, false, buf)) << std::hex << m.tbl;
    EXPECT_STREQ("before", buf);
  }
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_get_entry", 1, 7));
  char buf[8] = "before";
  EXPECT_EQ(0, exported<TableValueFn>("vlanDecap_value")(kSess, 0, ORBISK_MODEL_DEFAULT_ENTRY_HDL, false, buf));
  EXPECT_STREQ("before", buf);
}

// The comparison of keys and of parameters: masks of the schema, 128-bit
// fields byte by byte under theirs, the first difference in words; the
// message buffer untouched when all agree.
TEST(Compare, KeysAndParametersUnderTheSchemaMasks) {
  struct Case {
    const char *name;  // <table>_match_specs_are_equal or <action>_action_specs_are_equal
    uint16_t field;    // host offset written
    uint8_t pd, hw;    // the byte at that offset on each side
    const char *want;  // nullptr: equal
  };
  const auto &port = table("l2DmacClassify").fields[0];
  const auto &v6 = table("ipv6Partition").fields[1];
  const auto &peer = table("eifForwardToPeerAcl").fields[2];
  const Case cases[] = {
      {"l2DmacClassify_match_specs", port.host_offset, 0xFF, 0x7F, nullptr},
      {"ingressPortMapping_match_specs", 1, 0x01, 0x00, "mspec ig_intr_md_ingress_port differs 0x1ff vs 0xff"},
      {"ipv6Partition_match_specs", uint16_t(v6.host_offset + 15), 1, 2, nullptr},
      {"ipv6Partition_match_specs", uint16_t(v6.host_offset + 7), 1, 2, "mspec ingIpv6_dip differs"},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer.host_offset + 15), 2, 0, nullptr},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer.host_offset), 0xFF, 0, nullptr},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer.host_offset + 15), 3, 0, "mspec ingIpv6_dip differs"},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer.partner_offset + 15), 1, 0, "mspec ingIpv6_dip_mask differs"},
      {"setTunnelTerminationTypeVxlan_action_specs", 0, 1, 2, "aspec action_vxlanVti differs 0x1 vs 0x2"},
      {"setTunnelTerminationTypeVxlan_action_specs", 0, 0x9, 0x1, nullptr},
      {"setNextHop_action_specs", 3, 0x80, 0, "aspec action_nextHop differs 0x80000001 vs 0x1"},
  };
  for (const Case &c : cases) {
    Record pd, hw;
    // ingressPortMapping's port is 0x1ff against 0xff; setNextHop's 0x80000001 against 1.
    pd.b[0] = hw.b[0] = 0xFF;
    if (std::string(c.name).rfind("setNextHop", 0) == 0) pd.b[0] = hw.b[0] = 1;
    pd.b[c.field] = c.pd;
    hw.b[c.field] = c.hw;
    char error[128] = "untouched";
    const int eq = exported<EqualFn>(std::string(c.name) + "_are_equal")(pd.b, hw.b, error);
    EXPECT_EQ(c.want ? 0 : 1, eq) << c.name << " at " << c.field;
    EXPECT_STREQ(c.want ? c.want : "untouched", error) << c.name << " at " << c.field;
  }
}

}  // namespace
