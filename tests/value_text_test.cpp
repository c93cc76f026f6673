// Value text and comparison with the chip. The sweep writes an entry of every
// action of every table, the default entries and a member of every profile
// action through the driver model, renders each as value text and its
// placement record as text, compares it with the chip, and hands the texts
// with what was written to check_value_text.py, which evaluates them with
// python3's literal evaluator, pairs them with the schema texts and renders
// the texts it expects on its own. Worked texts, messages, the selector
// decision and the deaths are checked byte for byte here.
#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "roundtrip_support.h"
#include "test_support.h"

namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::FieldMatch;
using orbisk::pd::ProfileDesc;
using orbisk::pd::TableDesc;

constexpr pd_sess_hdl kSess = 7;
constexpr uint32_t kPriority = 300;
constexpr pd_dev_target kTgt = {0, PD_DEV_PIPE_ALL};
constexpr uint8_t kDev = 0;

// Records of any table or action, aligned for any member.
struct Record {
  Record() { std::memset(b, 0, sizeof b); }
  alignas(8) uint8_t b[512];
};

uint32_t pattern(unsigned bits, unsigned seed) {
  const uint32_t v = seed * 0x9E3779B1u ^ seed << 11 ^ 0xA5C3F00Du;
  return bits >= 32 ? v : v & ((1u << bits) - 1);
}
std::size_t host_size(unsigned bits) { return bits <= 8 ? 1 : bits <= 16 ? 2 : 4; }
void store(uint8_t *at, unsigned bits, uint32_t v) { std::memcpy(at, &v, host_size(bits)); }
std::string hex(uint32_t v) {
  char s[16];
  std::snprintf(s, sizeof s, "%x", v);
  return s;
}

// p4_pd_orbisk_switch_<name>(args...) found by name, with the types given.
template <typename R = pd_status, typename... A>
R call(const std::string &name, A... args) {
  return exported<R (*)(A...)>(name)(args...);
}

// What a text function writes after `args` into a buffer of the largest
// text: the text, "failed" for 0, "overrun" when its length is not the result.
template <typename... A>
std::string text(const std::string &name, A... args) {
  char buf[P4_PD_ORBISK_SWITCH_SCHEMA_MAX + 64];
  std::memset(buf, 'Z', sizeof buf - 1);
  buf[sizeof buf - 1] = '\0';
  const int n = call<int, A..., char *>(name, args..., buf);
  return n == 0 ? "failed" : std::strlen(buf) == std::size_t(n) ? buf : "overrun";
}

// A key with every bit of every field in play (so narrow masks hide some),
// ternary masks all ones in the width, prefixes full length; and, as the
// checker pairs them, each element written, raw: the field, then its mask or
// prefix length.
std::string fill_key(const TableDesc &t, uint8_t *ms, unsigned seed) {
  std::string s;
  const auto put = [&](uint16_t at, unsigned bits, bool array, uint32_t v, uint8_t byte, uint8_t step) {
    if (array) {
      for (unsigned b = 0; b < 16; ++b) {
        ms[at + b] = uint8_t(byte + b * step);
        s += hex(ms[at + b] >> 4) + hex(ms[at + b] & 15);
      }
    } else {
      store(ms + at, bits, v);
      s += hex(v);
    }
    s += ",";
  };
  for (unsigned i = 0; i < t.num_fields; ++i) {
    const auto &f = t.fields[i];
    put(f.host_offset, f.bits, f.array, pattern(f.bits, seed + i), uint8_t(seed * 29 + i * 7), 13);
    if (f.match == FieldMatch::Ternary)
      put(f.partner_offset, f.bits, f.array, ~0u >> (32 - std::min(32u, unsigned(f.bits))), 0xFF, 0);
    if (f.match == FieldMatch::Lpm) put(f.partner_offset, 16, false, f.bits, 0, 0);
  }
  return s.empty() ? "-" : s;
}

// Parameters within their widths (an index that stands only in a resource
// slot goes as its low 16 bits), and what was written.
std::string fill_params(const ActionDesc &a, uint8_t *as, unsigned seed) {
  std::string s;
  for (unsigned i = 0; i < a.num_params; ++i) {
    const unsigned bits = a.params[i].bits;
    const uint32_t v = pattern(int(i) == a.slot_param ? std::min(bits, 16u) : bits, seed * 3 + i);
    store(as + a.params[i].host_offset, bits, v);
    s += hex(v) + ",";
  }
  return s.empty() ? "-" : s;
}

// A placement record as the model hands it out, of an entry or a member.
struct Placement {
  alignas(8) uint8_t bytes[ORBISK_MODEL_PLACEMENT_MAX_BYTES];
  uint32_t size = sizeof bytes;
};

Placement placement_of(const std::string &object, uint32_t hdl) {
  Placement p;
  EXPECT_EQ(BF_SUCCESS, call(object + "_get_plcmt_data", kSess, kTgt, pd_tbl_hdl(0), hdl, (void *)p.bytes, &p.size));
  return p;
}

// A selector entry's record made to name neither a member nor a group: the
// record kind (byte 48 of the model's documented format) that of an entry
// holding its own action, the checksum (bytes 12 to 15, over the rest) redone.
void name_neither(Placement &p) {
  p.bytes[48] = PD_RECORD_KIND_DIRECT;
  uint32_t length;
  std::memcpy(&length, p.bytes + 8, 4);
  const uint32_t crc = uint32_t(crc32(crc32(crc32(0L, Z_NULL, 0), p.bytes, 12), p.bytes + 16, uInt(length - 16)));
  std::memcpy(p.bytes + 12, &crc, 4);
}

// An entry's placement record against the chip, by table and by handle
// (which must agree): "1 untouched", or "0 " and the message.
std::string eq_to_hw(const TableDesc &t, pd_entry_hdl hdl, bool neither = false) {
  Placement p = placement_of(t.name, hdl);
  if (neither) name_neither(p);
  char error[128] = "untouched", by_handle[128] = "untouched";
  const int eq = call<int>(std::string(t.name) + "_plcmt_data_eq_to_hw", kSess, kDev, pd_tbl_hdl(0), hdl,
                           (const void *)p.bytes, error);
  EXPECT_EQ(eq, p4_pd_orbisk_switch_plcmt_data_eq_to_hw(kSess, kDev, t.handle, hdl, p.bytes, 0xDEAD, by_handle));
  EXPECT_STREQ(error, by_handle);
  return std::to_string(eq) + " " + error;
}

// The arguments of the round trip's thunks for one entry.
roundtrip::Call entry_call(const Record &ms, const Record &as, pd_entry_hdl *out) {
  static const pd_meter_spec meter = {1000, 200, 2000, 400, PD_METER_TYPE_COLOR_AWARE};
  roundtrip::Call c;
  c.sess_hdl = kSess;
  c.priority = kPriority;
  c.match_spec.p = ms.b;
  c.action_spec.p = as.b;
  c.meter_spec = &meter;
  c.ttl = 1000;
  c.entry_hdl_out = out;
  return c;
}

// An entry of a direct table with the named action; its handle.
pd_entry_hdl add(const TableDesc &t, const char *action, const Record &ms, const Record &as) {
  pd_entry_hdl hdl = 0;
  for (std::size_t r = 0; r < roundtrip::kNumTableRows; ++r) {
    const auto &row = roundtrip::kTableRows[r];
    for (std::size_t i = 0; row.table == &t && i < row.num_actions; ++i) {
      if (std::strcmp(row.actions[i].action->name, action) == 0) {
        EXPECT_EQ(BF_SUCCESS, row.actions[i].table_add_with(entry_call(ms, as, &hdl))) << t.name << " " << action;
      }
    }
  }
  return hdl;
}

// An entry of a selector table naming a member of the profile's first
// action (parameters zero), or a group holding it; its handle, the member's
// or group's in `ref`.
pd_entry_hdl add_selection(const TableDesc &t, const Record &ms, bool group, uint32_t &ref) {
  const std::string r = t.profile->name, act = t.profile->actions[0].action->name;
  const Record zeros;
  pd_mbr_hdl mbr = 0;
  EXPECT_EQ(BF_SUCCESS, t.profile->actions[0].action->num_params
                            ? call(r + "_add_member_with_" + act, kSess, kTgt, (const void *)zeros.b, &mbr)
                            : call(r + "_add_member_with_" + act, kSess, kTgt, &mbr));
  ref = mbr;
  if (group) {
    EXPECT_EQ(BF_SUCCESS, call(r + "_create_group", kSess, kTgt, uint32_t(4), &ref));
    EXPECT_EQ(BF_SUCCESS, call(r + "_add_member_to_group", kSess, uint32_t(0), ref, mbr));
  }
  pd_entry_hdl hdl = 0;
  const std::string f = std::string(t.name) + (group ? "_add_entry_with_selector" : "_add_entry");
  EXPECT_EQ(BF_SUCCESS, t.ternary() ? call(f, kSess, kTgt, (const void *)ms.b, kPriority, ref, &hdl)
                                    : call(f, kSess, kTgt, (const void *)ms.b, ref, &hdl));
  return hdl;
}

class ValueText : public OnModel {
 protected:
  // One line of the sweep: an entry's texts by every road, with what was written.
  void line(const char *kind, const TableDesc &t, pd_entry_hdl hdl, const std::string &key, const uint8_t *ms,
            const std::string &action, const std::string &params, const uint8_t *as, const ActionDesc *a) {
    const std::string n = t.name;
    const Placement p = placement_of(n, hdl);
    const auto value = [&](bool hw) { return text(n + "_value", kSess, kDev, hdl, hw); };
    sweep << kind << '\t' << n << '\t' << value(false) << '\t' << key << '\t' << action << '\t' << params << '\t'
          << (ms && t.ternary() ? kPriority : 0) << '\t' << (ms ? text(n + "_match_spec_value", (const void *)ms) : "-")
          << '\t'
          << (!a              ? "-"
              : a->num_params ? text(action + "_value", (const void *)as)
                              : text(action + "_value"))
          << '\t' << value(true) << '\t' << text("entry_value", kSess, kDev, t.handle, hdl, false) << '\t'
          << text(n + "_plcmt_data_value", (const void *)p.bytes) << '\t'
          << text("plcmt_data_value", t.handle, (const void *)p.bytes) << '\t' << eq_to_hw(t, hdl) << '\n';
  }
  std::ostringstream sweep;
};

TEST_F(ValueText, EveryTableActionAndMemberEvaluatesAndPairsWithItsSchema) {
  unsigned seed = 1;
  for (std::size_t r = 0; r < roundtrip::kNumTableRows; ++r) {
    const roundtrip::TableRow &row = roundtrip::kTableRows[r];
    const TableDesc &t = *row.table;
    sweep << "S\t" << t.name << '\t' << text(std::string(t.name) + "_schema") << '\n';
    for (std::size_t i = 0; i < row.num_actions; ++i) {
      const roundtrip::ActionRow &ar = row.actions[i];
      Record ms, as;
      const std::string key = fill_key(t, ms.b, ++seed), params = fill_params(*ar.action, as.b, seed);
      pd_entry_hdl hdl = 0;
      roundtrip::Call c = entry_call(ms, as, &hdl);
      if (ar.table_add_with) {
        ASSERT_EQ(BF_SUCCESS, ar.table_add_with(c)) << t.name << " " << ar.action->name;
        line("E", t, hdl, key, t.keyed() ? ms.b : nullptr, ar.action->name, params, as.b, ar.action);
        // Narrow keys of different seeds may meet: one entry at a time.
        c.entry_hdl = hdl;
        if (row.table_delete) {
          ASSERT_EQ(BF_SUCCESS, row.table_delete(c));
        }
      }
      if (ar.set_default_action) {
        ASSERT_EQ(BF_SUCCESS, ar.set_default_action(c)) << t.name << " " << ar.action->name;
        line("D", t, hdl, "-", nullptr, ar.action->name, params, as.b, ar.action);
      }
    }
  }
  // Tables reached through a selector: an entry naming a member, then one
  // naming a group; what it names stands as the action and its parameter.
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const TableDesc &t = orbisk::pd::kTables[i];
    if (!t.indirect()) continue;
    sweep << "S\t" << t.name << '\t' << text(std::string(t.name) + "_schema") << '\n';
    for (bool group : {false, true}) {
      Record ms;
      const std::string key = fill_key(t, ms.b, ++seed);
      uint32_t ref = 0;
      const pd_entry_hdl hdl = add_selection(t, ms, group, ref);
      line("E", t, hdl, key, ms.b, group ? "setGrpHdl" : "setMbrHdl", hex(ref) + ",", nullptr, nullptr);
      ASSERT_EQ(BF_SUCCESS, call(std::string(t.name) + "_table_delete", kSess, uint32_t(0), hdl));
    }
  }
  // A member of every action of every profile: its record as text, by
  // profile and by handle, beside the action's own text.
  for (std::size_t i = 0; i < orbisk::pd::kNumProfiles; ++i) {
    const ProfileDesc &r = orbisk::pd::kProfiles[i];
    const std::string n = r.name;
    sweep << "P\t" << n << '\t' << text(n + "_schema") << '\n';
    for (unsigned k = 0; k < r.num_actions; ++k) {
      const ActionDesc &a = *r.actions[k].action;
      Record as;
      const std::string params = fill_params(a, as.b, ++seed), add = n + "_add_member_with_" + a.name;
      pd_mbr_hdl mbr = 0;
      ASSERT_EQ(BF_SUCCESS,
                a.num_params ? call(add, kSess, kTgt, (const void *)as.b, &mbr) : call(add, kSess, kTgt, &mbr));
      const Placement p = placement_of(n, mbr);
      sweep << "M\t" << n << '\t' << text(n + "_plcmt_data_value", (const void *)p.bytes) << '\t' << a.name << '\t'
            << params << '\t' << text("adt_plcmt_data_value", r.adt_hdl, (const void *)p.bytes) << '\t'
            << (a.num_params ? text(std::string(a.name) + "_value", (const void *)as.b)
                             : text(std::string(a.name) + "_value"))
            << '\n';
    }
  }
  const std::string path = ::testing::TempDir() + "value_text_sweep.txt";
  std::ofstream(path) << sweep.str();
  FILE *p = popen((ORBISK_PYTHON " " ORBISK_SOURCE_DIR "/tests/check_value_text.py " + path).c_str(), "r");
  ASSERT_NE(nullptr, p);
  std::string report;
  for (char buf[512]; std::fgets(buf, sizeof buf, p);) report += buf;
  EXPECT_EQ(0, pclose(p)) << report;
  EXPECT_NE(std::string::npos, report.find(" 0 failures")) << report;
}

// The worked texts, byte for byte; a handle the model gave shown as the
// worked text's.
TEST_F(ValueText, WorkedTexts) {
  uint32_t ref = 0;
  const auto as_worked = [&](std::string s, const char *h) {
    const std::size_t at = s.find("(0x" + hex(ref) + ",");
    return at == std::string::npos ? s : s.replace(at + 3, hex(ref).size(), h);
  };
  const auto value = [](const char *t, pd_entry_hdl e) {
    return text(std::string(t) + "_value", kSess, kDev, e, false);
  };
  const struct {
    std::function<std::string(Record &, Record &)> make;
    const char *want;
  } cases[] = {
      {[](Record &ms, Record &) {
         return std::memset(ms.b, 0xFF, sizeof ms.b), text("tunnelTermination_match_spec_value", (const void *)ms.b);
       },
       "( 0xffffff,0xffffff,0xffffff,0xffffff,0xffffffff,0xffffffff,0x7,0x7,0x1,),"},
      {[](Record &ms, Record &) {
         return std::memset(ms.b, 0xFF, sizeof ms.b), text("ipv6Host_match_spec_value", (const void *)ms.b);
       },
       "( 0xff,0xFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF,),"},
      {[](Record &ms, Record &) {
         return store(ms.b, 9, 0x1FF), text("l2DmacClassify_match_spec_value", (const void *)ms.b);
       },
       "( 0x07f,0x000000,0x000000,0x000000,0x000000,),"},
      {[](Record &, Record &) { return text("onMiss_value"); }, "('onMiss',()),"},
      {[&](Record &ms, Record &as) {
         store(ms.b, 8, 1), store(ms.b + table("ipv4Host").fields[1].host_offset, 32, 0x0A000001), store(as.b, 32, 7);
         return value("ipv4Host", add(table("ipv4Host"), "setNextHop", ms, as));
       },
       "((( 0x01,0x0a000001,),('setNextHop',(0x00000007,)),),(0,True))"},
      {[&](Record &, Record &) { return value("vlanDecap", ORBISK_MODEL_DEFAULT_ENTRY_HDL); },
       "(((),('removeVlanHdr',()),),(0,True))"},
      {[&](Record &ms, Record &as) {
         const std::string v =
             value("tunnelTermination", add(table("tunnelTermination"), "setTunnelTerminationTypeNoneIpv6", ms, as));
         return v.substr(v.find("),("));
       },
       "),('setTunnelTerminationTypeNoneIpv6',()),),(300,True))"},
      {[&](Record &ms, Record &) {
         return store(ms.b, 15, 0x12),
                as_worked(value("ecmpGroup", add_selection(table("ecmpGroup"), ms, false, ref)), "5");
       },
       "((( 0x0012,),('setMbrHdl',(0x5,))),(0,True))"},
      {[&](Record &ms, Record &) {
         return store(ms.b, 15, 0x1FF),
                as_worked(value("ecmpGroup", add_selection(table("ecmpGroup"), ms, true, ref)), "9");
       },
       "((( 0x00ff,),('setGrpHdl',(0x9,))),(0,True))"},
      {[&](Record &ms, Record &) {
         store(ms.b, 15, 0x12);
         return as_worked(
             text("ecmpGroup_plcmt_data_value",
                  (const void *)placement_of("ecmpGroup", add_selection(table("ecmpGroup"), ms, true, ref)).bytes),
             "9");
       },
       "(( 0x0012,),('setGrpHdl',(0x9,)))"},
      {[&](Record &ms, Record &) {
         store(ms.b, 15, 0x12);
         Placement p = placement_of("ecmpGroup", add_selection(table("ecmpGroup"), ms, false, ref));
         return name_neither(p), text("ecmpGroup_plcmt_data_value", (const void *)p.bytes);
       },
       "(( 0x0012,),)"},
      {[&](Record &, Record &as) {
         pd_mbr_hdl m = 0;
         store(as.b, 8, 5), store(as.b + 4, 32, 7);
         EXPECT_EQ(BF_SUCCESS,
                   call("ecmpMemberActionProfile_add_member_with_setEcmpNextHop", kSess, kTgt, (const void *)as.b, &m));
         return text("ecmpMemberActionProfile_plcmt_data_value",
                     (const void *)placement_of("ecmpMemberActionProfile", m).bytes);
       },
       "('setEcmpNextHop',(0x05,0x00000007,)),"},
  };
  for (const auto &c : cases) {
    SetUp();
    Record ms, as;
    EXPECT_EQ(c.want, c.make(ms, as));
    TearDown();
  }
}

// A text that cannot be made gives 0 and leaves the buffer alone: a failed
// read, a record the model did not make, and every handle a dispatcher does
// not take (no table or profile, or one of the other kind), given records
// that would decode.
TEST_F(ValueText, FailuresAndMissesLeaveTheBufferAlone) {
  const TableDesc &ecmp = table("ecmpGroup");
  const ProfileDesc &r = *ecmp.profile;
  const uint8_t foreign[ORBISK_MODEL_PLACEMENT_MAX_BYTES] = {};
  // Records that decode: an entry's and a member's.
  Record ms;
  uint32_t mbr = 0;
  const pd_entry_hdl e = add_selection(ecmp, ms, false, mbr);
  const Placement entry = placement_of(ecmp.name, e), member = placement_of(r.name, mbr);
  ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_get_entry", 1, 7));
  const std::function<int(char *)> writes[] = {
      [&](char *o) { return p4_pd_orbisk_switch_entry_value(kSess, kDev, ecmp.handle, e, false, o); },
      [&](char *o) { return p4_pd_orbisk_switch_plcmt_data_value(ecmp.handle, foreign, o); },
      [&](char *o) { return p4_pd_orbisk_switch_ecmpMemberActionProfile_plcmt_data_value(foreign, o); },
      [&](char *o) { return p4_pd_orbisk_switch_adt_plcmt_data_value(ecmp.handle, member.bytes, o); },
      [&](char *o) { return p4_pd_orbisk_switch_plcmt_data_value(r.adt_hdl, entry.bytes, o); },
  };
  for (const auto &w : writes) {
    char buf[8] = "before";
    EXPECT_EQ(0, w(buf));
    EXPECT_STREQ("before", buf);
  }
  for (pd_tbl_hdl h : {0x01000055u, 0x01000000u, 0x01000076u, 0x11010002u, 0x11010029u, r.sel_hdl, r.adt_hdl, 0u}) {
    char buf[8] = "before";
    EXPECT_EQ(0, p4_pd_orbisk_switch_entry_value(kSess, kDev, h, e, false, buf) +
                     p4_pd_orbisk_switch_plcmt_data_value(h, entry.bytes, buf) +
                     (h == r.adt_hdl ? 0 : p4_pd_orbisk_switch_adt_plcmt_data_value(h, member.bytes, buf)))
        << std::hex << h;
    EXPECT_STREQ("before", buf);
  }
}

// Keys and parameters compared: the schema's masks, 128-bit fields byte by
// byte under theirs, the first difference in words, the buffer untouched
// when all agree.
TEST(Compare, KeysAndParametersUnderTheSchemaMasks) {
  const uint16_t v6 = table("ipv6Partition").fields[1].host_offset,
                 peer = table("eifForwardToPeerAcl").fields[2].host_offset,
                 peer_mask = table("eifForwardToPeerAcl").fields[2].partner_offset;
  const struct {
    const char *name;  // <table>_match_specs or <action>_action_specs
    uint16_t at;       // the byte that differs
    uint8_t pd, hw;
    const char *want;  // null: equal
  } cases[] = {
      {"l2DmacClassify_match_specs", 1, 0x01, 0x00, nullptr},
      {"ingressPortMapping_match_specs", 1, 0x01, 0x00, "mspec ig_intr_md_ingress_port differs 0x1ff vs 0xff"},
      {"ipv6Partition_match_specs", uint16_t(v6 + 15), 1, 2, nullptr},
      {"ipv6Partition_match_specs", uint16_t(v6 + 7), 1, 2, "mspec ingIpv6_dip differs"},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer + 15), 2, 0, nullptr},
      {"eifForwardToPeerAcl_match_specs", peer, 0xFF, 0, nullptr},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer + 15), 3, 0, "mspec ingIpv6_dip differs"},
      {"eifForwardToPeerAcl_match_specs", uint16_t(peer_mask + 15), 1, 0, "mspec ingIpv6_dip_mask differs"},
      {"setTunnelTerminationTypeVxlan_action_specs", 0, 1, 2, "aspec action_vxlanVti differs 0x1 vs 0x2"},
      {"setTunnelTerminationTypeVxlan_action_specs", 0, 0x9, 0x1, nullptr},
      {"setNextHop_action_specs", 3, 0x80, 0, "aspec action_nextHop differs 0x800000ff vs 0xff"},
  };
  for (const auto &c : cases) {
    Record pd, hw;
    pd.b[0] = hw.b[0] = 0xFF;
    pd.b[c.at] = c.pd;
    hw.b[c.at] = c.hw;
    char error[128] = "untouched";
    EXPECT_EQ(c.want ? 0 : 1,
              call<int>(std::string(c.name) + "_are_equal", (const void *)pd.b, (const void *)hw.b, error))
        << c.name;
    EXPECT_STREQ(c.want ? c.want : "untouched", error) << c.name << " at " << c.at;
  }
}

// One field of the chip's copy of an entry changed through the model: the
// exact message, or 1 with the buffer untouched. Each row on a fresh model,
// its entry keyed 0x11 in its first field, parameter 7.
TEST_F(ValueText, HardwareDifferencesOfEveryKind) {
  const TableDesc &v4 = table("ipv4Host"), &vlan = table("l2DomainLookup");
  const pd_act_fn_hdl fn2 = by_name::fn(v4, "setNextHop2");
  const auto enum_hex = [&](const char *a) { return hex(by_name::use(v4, a).action->enum_value); };
  const uint16_t vlan_id = vlan.fields[3].key_offset, dip = table("ipv6Host").fields[1].key_offset;
  using Change = std::function<pd_status(pd_tbl_hdl, pd_entry_hdl)>;
  const struct {
    const char *table, *action;  // action null: the table's default entry
    Change change;
    std::string want;
  } cases[] = {
      {"ingressPortMapping", "setPhase0",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, 1, 1); },
       "0 mspec ig_intr_md_ingress_port differs 0x11 vs 0x10"},
      {"l2DmacClassify", "setBcast",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, 0, 1); }, "1 untouched"},
      {"l2DomainLookup", "setL2DomainTagged",
       [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_mask(0, t, e, vlan_id + 1, 1); },
       "0 mspec vlanHdr_0__vlanId_mask differs 0xfff vs 0xffe"},
      {"ipv6Host", "setNextHop",
       [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, dip + 3, 0x10); },
       "0 mspec ingIpv6_dip differs"},
      {"ipv4Host", "setNextHop", [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_action(0, t, e, fn2); },
       "0 actions differ 0x" + enum_hex("setNextHop") + ", vs 0x" + enum_hex("setNextHop2")},
      {"ipv4Host", "setNextHop", [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_data(0, t, e, 3, 1); },
       "0 aspec action_nextHop differs 0x7 vs 0x6"},
      {"l2DmacClassify", "setBcast",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_priority(0, t, e, 99); }, "1 untouched"},
      {"ipv4Host", "setNextHop",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, true); },
       "0 mspec l3Info_vrfId differs 0x11 vs 0x0"},
      {"ipv4Host", nullptr, [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, false); },
       "0 pd entry is default but not hw"},
      {"ipv4Host", nullptr, [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_action(0, t, e, fn2); },
       "0 actions differ 0x" + enum_hex("onMiss") + ", vs 0x" + enum_hex("setNextHop2")},
      {"vlanDecap", nullptr, [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, false); },
       "1 untouched"},
      {"ipv4Host", "setNextHop", [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_drop(0, t, e); },
       "0 p4_pd_orbisk_switch_ipv4Host_get_entry failed"},
  };
  for (const auto &c : cases) {
    SetUp();
    const TableDesc &t = table(c.table);
    Record ms, as;
    if (t.keyed()) store(ms.b + t.fields[0].host_offset, t.fields[0].bits, 0x11);
    if (t.keyed() && t.fields[0].match == FieldMatch::Ternary) store(ms.b + t.fields[0].partner_offset, 9, 0x1FF);
    if (&t == &vlan) store(ms.b + vlan.fields[3].partner_offset, 12, 0xFFF);
    store(as.b, 32, 7);
    const pd_entry_hdl e = c.action ? add(t, c.action, ms, as) : ORBISK_MODEL_DEFAULT_ENTRY_HDL;
    EXPECT_EQ("1 untouched", eq_to_hw(t, e)) << c.table << " before the change";
    ASSERT_EQ(BF_SUCCESS, c.change(t.handle, e)) << c.want;
    EXPECT_EQ(c.want, eq_to_hw(t, e));
    TearDown();
  }
}

// What an entry reached through a selector names, row by row: software's
// side from the entry's placement record, the chip's set through the model.
TEST_F(ValueText, SelectorDecisionRows) {
  const TableDesc &t = table("ecmpGroup");
  enum Pd { kMember, kGroup, kDefaultGroup, kNeither };
  const struct {
    Pd pd;
    uint8_t hw_kind;   // 0 none, 2 member, 4 group; 0xFF unchanged
    int32_t hw_hdl;    // -1: software's own handle, -2: another
    const char *want;  // "%pd" and "%hw" stand for the two handles
  } rows[] = {
      {kMember, 0, 0, "0 no mbr_hdl in hw"},
      {kMember, 2, 0, "1 untouched"},
      {kMember, 0xFF, 0, "1 untouched"},
      {kMember, 2, -2, "0 mbr_hdl differs: mbr_hdl_pd=0x%pd, mbr_hdl_hw=0x%hw"},
      {kGroup, 4, -2, "1 untouched"},
      {kGroup, 0, 0, "0 pd has group handle but not hw"},
      {kGroup, 2, -1, "0 pd has group handle but not hw"},
      {kDefaultGroup, 0, 0, "1 untouched"},
      {kNeither, 2, 0, "1 untouched"},
      {kNeither, 2, 5, "0 hw has mbr_hdl but not pd"},
      {kNeither, 0, 0, "1 untouched"},
      {kNeither, 4, 0, "1 untouched"},
      {kNeither, 4, 3, "0 hw has grp_hdl but not pd"},
  };
  for (const auto &r : rows) {
    SetUp();
    Record ms;
    store(ms.b, 15, 0x12);
    uint32_t pd_hdl = 0;
    // Software's record of an entry naming neither is a member's made so.
    pd_entry_hdl e = add_selection(t, ms, r.pd == kGroup || r.pd == kDefaultGroup, pd_hdl);
    if (r.pd == kDefaultGroup) {
      ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ecmpGroup_set_default_entry_with_selector(kSess, kTgt, pd_hdl, &e));
    }
    const uint32_t hw_hdl = r.hw_hdl == -1 ? pd_hdl : r.hw_hdl == -2 ? pd_hdl + 1 : uint32_t(r.hw_hdl);
    if (r.hw_kind != 0xFF) {
      ASSERT_EQ(BF_SUCCESS, orbisk_model_hw_set_selection(0, t.handle, e, r.hw_kind, hw_hdl));
    }
    std::string want = r.want;
    if (auto at = want.find("%pd"); at != std::string::npos) want.replace(at, 3, hex(pd_hdl));
    if (auto at = want.find("%hw"); at != std::string::npos) want.replace(at, 3, hex(hw_hdl));
    EXPECT_EQ(want, eq_to_hw(t, e, r.pd == kNeither)) << "pd " << r.pd << ", hw " << int(r.hw_kind) << " " << hw_hdl;
    TearDown();
  }
}

// What ends the process: a handle of no table (a profile's included), and a
// record that cannot be decoded, each with its exact text, source and function.
TEST_F(ValueText, ComparisonDeaths) {
  const uint8_t foreign[ORBISK_MODEL_PLACEMENT_MAX_BYTES] = {};
  char error[128];
  for (pd_tbl_hdl h : {0x01000055u, table("ecmpGroup").profile->adt_hdl})
    EXPECT_DEATH(p4_pd_orbisk_switch_plcmt_data_eq_to_hw(kSess, kDev, h, 1, foreign, 0, error),
                 "bf_orbisk_switch_nat_vxlan/src/pd_orbisk:[0-9]+: p4_pd_orbisk_switch_plcmt_data_eq_to_hw: "
                 "Assertion `false && \"unknown table\"' failed");
  EXPECT_DEATH(p4_pd_orbisk_switch_ingressPortMapping_plcmt_data_eq_to_hw(kSess, kDev, 0, 1, foreign, error),
               "bf_orbisk_switch_nat_vxlan/src/pd_orbisk:[0-9]+: p4_pd_orbisk_switch_ingressPortMapping_plcmt_data_eq_"
               "to_hw: Assertion `false && \"Failed to decode plcmt_data in table ingressPortMapping\"' failed");
}

}  // namespace
