// Value text and comparison. The sweep writes an entry of every action of
// every direct table through the driver model, and the default entries,
// reads each back as value text and its placement record as text, compares
// it with the chip, and hands all the texts with what was
// written to check_value_text.py, which evaluates them with python3's own
// literal evaluator, pairs them with the schema texts and renders the texts
// it expects on its own. The worked texts and messages are checked byte for
// byte here.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>

#include <zlib.h>
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

// ------------------------------------------------- placement and hardware ---

using PlacementFetchFn = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, uint32_t, void *, uint32_t *);
using PlacementValueFn = int (*)(const void *, char *);
using EqToHwFn = int (*)(pd_sess_hdl, uint8_t, pd_tbl_hdl, pd_entry_hdl, const void *, char *);

// A placement record as the model hands it out: of an entry of a table, or
// of a member of a profile.
struct Placement {
  alignas(8) uint8_t bytes[ORBISK_MODEL_PLACEMENT_MAX_BYTES];
  uint32_t size = sizeof bytes;
};

Placement placement_of(const std::string &object, uint32_t hdl) {
  Placement p;
  EXPECT_EQ(BF_SUCCESS, exported<PlacementFetchFn>(object + "_get_plcmt_data")(kSess, {0, PD_DEV_PIPE_ALL}, 0, hdl,
                                                                                 p.bytes, &p.size))
      << object << " " << hdl;
  return p;
}

// A selector entry's record made to name neither a member nor a group: its
// record kind (byte 48 of the model's documented format) that of an entry
// holding its own action, its checksum (bytes 12 to 15, over the rest) made
// again.
void name_neither(Placement &p) {
  p.bytes[48] = PD_RECORD_KIND_DIRECT;
  uint32_t length;
  std::memcpy(&length, p.bytes + 8, 4);
  uLong c = crc32(crc32(0L, Z_NULL, 0), p.bytes, 12);
  c = crc32(c, p.bytes + 16, uInt(length - 16));
  const uint32_t crc = uint32_t(c);
  std::memcpy(p.bytes + 12, &crc, 4);
}

// The comparison of a table's entry with the chip: its result, and the
// message or "untouched".
std::string eq_to_hw(const TableDesc &t, pd_entry_hdl hdl, bool neither = false) {
  Placement p = placement_of(t.name, hdl);
  if (neither) name_neither(p);
  char error[128] = "untouched";
  const int eq = exported<EqToHwFn>(std::string(t.name) + "_plcmt_data_eq_to_hw")(kSess, 0, 0, hdl, p.bytes, error);
  char by_handle[128] = "untouched";
  const int again = p4_pd_orbisk_switch_plcmt_data_eq_to_hw(kSess, 0, t.handle, hdl, p.bytes, 0xDEAD, by_handle);
  EXPECT_EQ(eq, again) << "by handle";
  EXPECT_STREQ(error, by_handle) << "by handle";
  return std::to_string(eq) + " " + error;
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
    // The entry's placement record, as text by table and by handle, and
    // against the chip, which holds what software wrote.
    const Placement p = placement_of(t.name, hdl);
    const std::string plcmt =
        text([&](char *o) { return exported<PlacementValueFn>(std::string(t.name) + "_plcmt_data_value")(p.bytes, o); });
    const std::string plcmt_by_hdl =
        text([&](char *o) { return p4_pd_orbisk_switch_plcmt_data_value(t.handle, p.bytes, o); });
    out << kind << '\t' << t.name << '\t' << v << '\t' << (ms ? written_key(t, ms) : "-") << '\t' << a.name << '\t'
        << written_params(a, as) << '\t' << priority << '\t' << key << '\t' << act << '\t' << hw << '\t' << by_hdl
        << '\t' << plcmt << '\t' << plcmt_by_hdl << '\t' << eq_to_hw(t, hdl) << '\n';
  }

  // An entry of a table reached through a selector, naming member or group `ref`.
  void selection(const TableDesc &t, pd_entry_hdl hdl, const uint8_t *ms, bool group, uint32_t ref) {
    auto value = exported<TableValueFn>(std::string(t.name) + "_value");
    const std::string v = text([&](char *o) { return value(kSess, 0, hdl, false, o); });
    const std::string hw = text([&](char *o) { return value(kSess, 0, hdl, true, o); });
    const std::string by_hdl =
        text([&](char *o) { return p4_pd_orbisk_switch_entry_value(kSess, 0, t.handle, hdl, false, o); });
    const std::string key =
        text([&](char *o) { return exported<RecordValueFn>(std::string(t.name) + "_match_spec_value")(ms, o); });
    const Placement p = placement_of(t.name, hdl);
    const std::string plcmt =
        text([&](char *o) { return exported<PlacementValueFn>(std::string(t.name) + "_plcmt_data_value")(p.bytes, o); });
    const std::string plcmt_by_hdl =
        text([&](char *o) { return p4_pd_orbisk_switch_plcmt_data_value(t.handle, p.bytes, o); });
    out << "E\t" << t.name << '\t' << v << '\t' << written_key(t, ms) << '\t' << (group ? "setGrpHdl" : "setMbrHdl")
        << '\t' << hex(ref) << ",\t" << (t.ternary() ? kPriority : 0) << '\t' << key << "\t-\t" << hw << '\t' << by_hdl
        << '\t' << plcmt << '\t' << plcmt_by_hdl << '\t' << eq_to_hw(t, hdl) << '\n';
  }

  // A member of a profile: its placement record as text, by profile and by
  // handle, beside the action's own text of the same parameters.
  void member(const orbisk::pd::ProfileDesc &r, pd_mbr_hdl mbr, const ActionDesc &a, const uint8_t *as) {
    const Placement p = placement_of(r.name, mbr);
    const std::string v =
        text([&](char *o) { return exported<PlacementValueFn>(std::string(r.name) + "_plcmt_data_value")(p.bytes, o); });
    const std::string by_hdl =
        text([&](char *o) { return p4_pd_orbisk_switch_adt_plcmt_data_value(r.adt_hdl, p.bytes, o); });
    const std::string act = a.num_params
        ? text([&](char *o) { return exported<RecordValueFn>(std::string(a.name) + "_value")(as, o); })
        : text(exported<BareValueFn>(std::string(a.name) + "_value"));
    out << "M\t" << r.name << '\t' << v << '\t' << a.name << '\t' << written_params(a, as) << '\t' << by_hdl << '\t'
        << act << '\n';
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
  // Tables reached through a selector: an entry naming a member, then one
  // naming a group, each deleted in turn.
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!t.indirect()) continue;
    for (bool group : {false, true}) {
      Record ms;
      fill_key(t, ms.b, ++seed);
      uint32_t ref = 0;
      const pd_entry_hdl hdl = add_selection(t, ms, group, ref);
      sweep.selection(t, hdl, ms.b, group, ref);
      ASSERT_EQ(BF_SUCCESS, exported<pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl)>(std::string(t.name) +
                                                                                          "_table_delete")(kSess, 0, hdl));
    }
  }
  // A member of every action of every profile.
  for (std::size_t i = 0; i < orbisk::pd::kNumProfiles; ++i) {
    const orbisk::pd::ProfileDesc &r = orbisk::pd::kProfiles[i];
    sweep.out << "P\t" << r.name << '\t' << text_of(exported<BareValueFn>(std::string(r.name) + "_schema")) << '\n';
    for (unsigned k = 0; k < r.num_actions; ++k) {
      const ActionDesc &a = *r.actions[k].action;
      Record as;
      for (unsigned q = 0; q < a.num_params; ++q)
        store(as.b + a.params[q].host_offset, a.params[q].bits, pattern(a.params[q].bits, ++seed));
      pd_mbr_hdl mbr = 0;
      const std::string add = std::string(r.name) + "_add_member_with_" + a.name;
      ASSERT_EQ(BF_SUCCESS, a.num_params ? exported<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, pd_mbr_hdl *)>(
                                               add)(kSess, {0, PD_DEV_PIPE_ALL}, as.b, &mbr)
                                         : exported<pd_status (*)(pd_sess_hdl, pd_dev_target, pd_mbr_hdl *)>(add)(
                                               kSess, {0, PD_DEV_PIPE_ALL}, &mbr))
          << add;
      sweep.member(r, mbr, a, as.b);
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

using Change = std::function<pd_status(pd_tbl_hdl, pd_entry_hdl)>;

// One field of the chip's copy of an entry changed: the exact message, or 1
// with the buffer untouched; each row a fresh model.
TEST_F(ValueText, HardwareDifferencesOfEveryKind) {
  const TableDesc &port = table("ingressPortMapping"), &dmac = table("l2DmacClassify"),
                  &vlan = table("l2DomainLookup"), &v6 = table("ipv6Host"), &v4 = table("ipv4Host"),
                  &decap = table("vlanDecap");
  const auto &vlan_id = vlan.fields[3];
  const auto &v6_dip = v6.fields[1];
  const uint32_t next_hop = by_name::use(v4, "setNextHop").action->enum_value;
  const uint32_t next_hop2 = by_name::use(v4, "setNextHop2").action->enum_value;
  const pd_act_fn_hdl fn2 = by_name::fn(v4, "setNextHop2");
  struct Case {
    const char *what;
    const TableDesc &t;
    const char *action;  // nullptr: the table's default entry
    Change change;
    std::string want;
  };
  const Case cases[] = {
      {"key", port, "setPhase0", [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, 1, 1); },
       "0 mspec ig_intr_md_ingress_port differs 0x11 vs 0x10"},
      {"key bit under no mask", dmac, "setBcast",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, 0, 1); }, "1 untouched"},
      {"mask", vlan, "setL2DomainTagged",
       [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_mask(0, t, e, vlan_id.key_offset + 1, 1); },
       "0 mspec vlanHdr_0__vlanId_mask differs 0xfff vs 0xffe"},
      {"128-bit key", v6, "setNextHop",
       [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_key(0, t, e, v6_dip.key_offset + 3, 0x10); },
       "0 mspec ingIpv6_dip differs"},
      {"action", v4, "setNextHop", [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_action(0, t, e, fn2); },
       "0 actions differ 0x" + hex(next_hop) + ", vs 0x" + hex(next_hop2)},
      {"parameter", v4, "setNextHop",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_flip_data(0, t, e, 3, 1); },
       "0 aspec action_nextHop differs 0x7 vs 0x6"},
      {"priority alone", dmac, "setBcast",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_priority(0, t, e, 99); }, "1 untouched"},
      {"hw default, pd not: the keys decide", v4, "setNextHop",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, true); },
       "0 mspec l3Info_vrfId differs 0x11 vs 0x0"},
      {"pd default, hw not", v4, nullptr,
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, false); },
       "0 pd entry is default but not hw"},
      {"both default: keys skipped, actions compared", v4, nullptr,
       [&](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_action(0, t, e, fn2); },
       "0 actions differ 0x" + hex(by_name::use(v4, "onMiss").action->enum_value) + ", vs 0x" + hex(next_hop2)},
      {"keyless table, hw not default", decap, nullptr,
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_set_default(0, t, e, false); }, "1 untouched"},
      {"dropped from hardware", v4, "setNextHop",
       [](pd_tbl_hdl t, pd_entry_hdl e) { return orbisk_model_hw_drop(0, t, e); },
       "0 p4_pd_orbisk_switch_ipv4Host_get_entry failed"},
      {"unchanged", v6, "setNextHop", [](pd_tbl_hdl, pd_entry_hdl) { return BF_SUCCESS; }, "1 untouched"},
  };
  for (const Case &c : cases) {
    SetUp();
    Record ms, as;
    if (c.t.keyed()) store(ms.b + c.t.fields[0].host_offset, c.t.fields[0].bits, 0x11);
    if (c.t.keyed() && c.t.fields[0].match == FieldMatch::Ternary) store(ms.b + c.t.fields[0].partner_offset, 9, 0x1FF);
    if (&c.t == &vlan) store(ms.b + vlan_id.partner_offset, 12, 0xFFF);
    store(as.b, 32, 7);
    const pd_entry_hdl e = c.action ? add(c.t, c.action, ms, as) : ORBISK_MODEL_DEFAULT_ENTRY_HDL;
    ASSERT_EQ(BF_SUCCESS, c.change(c.t.handle, e)) << c.what;
    EXPECT_EQ(c.want, eq_to_hw(c.t, e)) << c.what;
    TearDown();
  }
}

// The decision on what an entry reached through a selector names, row by
// row: software's side from the entry's placement record, the chip's set
// through the model.
TEST_F(ValueText, SelectorDecisionRows) {
  const TableDesc &t = table("ecmpGroup");
  enum Pd { kMember, kGroup, kDefaultGroup, kNeither };
  struct Row {
    Pd pd;
    uint8_t hw_kind;   // 0 none, 2 member, 4 group; 0xFF unchanged
    int32_t hw_hdl;    // -1: software's own handle, -2: another
    const char *want;  // "%pd" and "%hw" stand for the two handles
  };
  const Row rows[] = {
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
  for (const Row &r : rows) {
    SetUp();
    Record ms;
    store(ms.b, 15, 0x12);
    uint32_t pd_hdl = 0;
    // Software's record of an entry naming neither is a member's made so.
    pd_entry_hdl e = add_selection(t, ms, r.pd == kGroup || r.pd == kDefaultGroup, pd_hdl);
    if (r.pd == kDefaultGroup) {
      pd_entry_hdl d = 0;
      ASSERT_EQ(BF_SUCCESS, exported<pd_status (*)(pd_sess_hdl, pd_dev_target, pd_grp_hdl, pd_entry_hdl *)>(
                                "ecmpGroup_set_default_entry_with_selector")(kSess, {0, PD_DEV_PIPE_ALL}, pd_hdl, &d));
      e = d;
    }
    const uint32_t hw_hdl = r.hw_hdl == -1 ? pd_hdl : r.hw_hdl == -2 ? pd_hdl + 1 : uint32_t(r.hw_hdl);
    if (r.hw_kind != 0xFF) {
      ASSERT_EQ(BF_SUCCESS, orbisk_model_hw_set_selection(0, t.handle, e, r.hw_kind, hw_hdl));
    }
    std::string want = r.want;
    if (auto at = want.find("%pd"); at != std::string::npos) want.replace(at, 3, hex(pd_hdl));
    if (auto at = want.find("%hw"); at != std::string::npos) want.replace(at, 3, hex(hw_hdl));
    EXPECT_EQ(want, eq_to_hw(t, e, r.pd == kNeither)) << "pd " << r.pd << ", hw kind " << int(r.hw_kind) << " handle " << hw_hdl;
    TearDown();
  }
}

// Placement records as value text: the worked texts, a record that cannot
// be decoded (0, the buffer untouched), and the dispatchers' misses.
TEST_F(ValueText, PlacementTexts) {
  const TableDesc &ecmp = table("ecmpGroup");
  const orbisk::pd::ProfileDesc &members = *ecmp.profile;
  Record ms;
  store(ms.b, 15, 0x12);
  uint32_t grp = 0;
  const Placement entry = placement_of(ecmp.name, add_selection(ecmp, ms, true, grp));
  ref = grp;
  EXPECT_EQ("(( 0x0012,),('setGrpHdl',(0x9,)))",
            as_handle(text([&](char *o) { return exported<PlacementValueFn>("ecmpGroup_plcmt_data_value")(entry.bytes, o); }),
                      "9"));
  Placement neither = entry;
  name_neither(neither);
  EXPECT_EQ("(( 0x0012,),)", text([&](char *o) { return p4_pd_orbisk_switch_plcmt_data_value(ecmp.handle, neither.bytes, o); }))
      << "a selector entry naming neither: its key, then the end";
  pd_mbr_hdl mbr = 0;
  const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t next_hop = {5, 7};
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
                            kSess, {0, PD_DEV_PIPE_ALL}, &next_hop, &mbr));
  const Placement member = placement_of(members.name, mbr);
  const std::string worked = "('setEcmpNextHop',(0x05,0x00000007,)),";
  EXPECT_EQ(worked, text([&](char *o) {
              return exported<PlacementValueFn>("ecmpMemberActionProfile_plcmt_data_value")(member.bytes, o);
            }));
  EXPECT_EQ(worked, text([&](char *o) { return p4_pd_orbisk_switch_adt_plcmt_data_value(members.adt_hdl, member.bytes, o); }));

  const uint8_t foreign[ORBISK_MODEL_PLACEMENT_MAX_BYTES] = {};
  const pd_tbl_hdl misses[] = {0x01000055, 0x01000000, 0x01000076, 0x11010002, 0x11010029, members.sel_hdl, 0};
  for (pd_tbl_hdl h : misses) {
    char buf[8] = "before";
    EXPECT_EQ(0, p4_pd_orbisk_switch_plcmt_data_value(h, entry.bytes, buf)) << std::hex << h;
    EXPECT_EQ(0, p4_pd_orbisk_switch_adt_plcmt_data_value(h, member.bytes, buf)) << std::hex << h;
    EXPECT_STREQ("before", buf);
  }
  char buf[8] = "before";
  EXPECT_EQ(0, p4_pd_orbisk_switch_adt_plcmt_data_value(ecmp.handle, member.bytes, buf)) << "a table to the profiles'";
  EXPECT_EQ(0, p4_pd_orbisk_switch_plcmt_data_value(members.adt_hdl, entry.bytes, buf)) << "a profile to the tables'";
  EXPECT_EQ(0, p4_pd_orbisk_switch_plcmt_data_value(ecmp.handle, foreign, buf)) << "a record the model did not make";
  EXPECT_EQ(0, exported<PlacementValueFn>("ecmpMemberActionProfile_plcmt_data_value")(foreign, buf));
  EXPECT_STREQ("before", buf);
}

// What ends the process: a handle of no table, and a record that cannot be
// decoded, each with its exact text, source and function.
TEST_F(ValueText, ComparisonDeaths) {
  const uint8_t foreign[ORBISK_MODEL_PLACEMENT_MAX_BYTES] = {};
  char error[128];
  EXPECT_DEATH(p4_pd_orbisk_switch_plcmt_data_eq_to_hw(kSess, 0, 0x01000055, 1, foreign, 0, error),
               "bf_orbisk_switch_nat_vxlan/src/pd_orbisk:[0-9]+: p4_pd_orbisk_switch_plcmt_data_eq_to_hw: "
               "Assertion `false && \"unknown table\"' failed");
  EXPECT_DEATH(p4_pd_orbisk_switch_plcmt_data_eq_to_hw(kSess, 0, table("ecmpGroup").profile->adt_hdl, 1, foreign, 0, error),
               "unknown table");
  EXPECT_DEATH(exported<EqToHwFn>("ingressPortMapping_plcmt_data_eq_to_hw")(kSess, 0, 0, 1, foreign, error),
               "bf_orbisk_switch_nat_vxlan/src/pd_orbisk:[0-9]+: "
               "p4_pd_orbisk_switch_ingressPortMapping_plcmt_data_eq_to_hw: Assertion `false && \"Failed to decode "
               "plcmt_data in table ingressPortMapping\"' failed");
}

}  // namespace
