// Printers of key records and action parameters, and the address
// formatters. Debugging aids: one dprintf a line, no buffering, write errors
// ignored.
#include "printers.h"

#include <arpa/inet.h>
#include <stdio.h>

#include <cstring>

#include "assertions.h"
#include "dispatch.h"
#include "elements.h"
#include "export.h"
#include "orbisk_switch/pd.h"
#include "placement.h"

namespace orbisk::pd {

const char *decode(const uint8_t *bytes) {
  static char text[33];
  static constexpr char kDigits[] = "0123456789ABCDEF";
  for (unsigned i = 0; i < 16; ++i) {
    text[2 * i] = kDigits[bytes[i] >> 4];
    text[2 * i + 1] = kDigits[bytes[i] & 0xF];
  }
  text[32] = '\0';
  return text;
}

// Header lines start after `indent` blanks ("%*s"); field lines after a
// blank in a width of `indent` and one more blank ("%*c "), so they stand one
// column further in, two at indent 0.
void print_match_spec(const TableDesc &t, int fd, int indent, const void *match_spec) {
  dprintf(fd, "%*sp4_pd_orbisk_switch_%s_match_spec_t:\n", indent, "", t.name);
  const auto *record = static_cast<const uint8_t *>(match_spec);
  for_each_key_element(t, [&](const KeyElement &e) {
    const char *name = e.field->name;
    if (e.array) {
      // The whole 16 bytes, whatever the schema's mask covers.
      dprintf(fd, "%*c %s%s: 0x%s\n", indent, ' ', name, e.suffix, decode(record + e.host_offset));
      return;
    }
    const uint32_t v = host_value(record, e.host_offset, e.bits) & e.mask;
    const int digits = int(hex_digits(e.bits));
    if (e.mask == low_bits(e.bits)) {
      dprintf(fd, "%*c %s%s: 0x%0*x\n", indent, ' ', name, e.suffix, digits, v);
    } else {
      dprintf(fd, "%*c %s%s mask 0x%x: 0x%0*x\n", indent, ' ', name, e.suffix, e.mask, digits, v);
    }
  });
}

void print_action(const ActionDesc &a, int fd, int indent, const void *action_spec) {
  for (const ParamDesc *p = a.params, *end = p + a.num_params; p != end; ++p) {
    const uint32_t v = host_value(action_spec, p->host_offset, p->bits) & low_bits(p->bits);
    dprintf(fd, "%*c action_%s: 0x%0*x\n", indent, ' ', p->name, int(hex_digits(p->bits)), v);
  }
}

namespace {

constexpr const char *kSource = "bf_orbisk_switch_nat_vxlan/src/pd_orbisk";

// The action header at the key's indent, then its parameter lines. An action
// that is none of these ends the process.
void print_action_of(const TableActionDesc *actions, uint16_t n, const char *function, int fd,
                     int indent, const p4_pd_orbisk_switch_action_specs_t &action) {
  const ActionDesc *a = nullptr;
  for (uint16_t i = 0; i < n && a == nullptr; ++i) {
    if (actions[i].action->enum_value == uint32_t(action.name)) a = actions[i].action;
  }
  if (a == nullptr) pd_hard_assert_failed_in(kSource, "NULL", function, __LINE__);
  dprintf(fd, "%*s%s:\n", indent, "", p4_pd_orbisk_switch_action_enum_to_string(action.name));
  print_action(*a, fd, indent, &action.u);
}

}  // namespace

[[gnu::noinline]] pd_status print_entry_placement(const TableDesc &t, const char *function, int fd,
                                                  int indent, const void *plcmt_data) {
  alignas(8) uint8_t match_spec[kPrintSpecRoom];
  uint32_t priority = 0;
  p4_pd_orbisk_switch_action_specs_t action{};
  pd_mbr_hdl mbr = 0;
  pd_grp_hdl grp = 0;
  bool has_mbr = false, has_grp = false, is_default = false;
  const pd_status status = decode_entry(
      t, function, plcmt_data,
      {t.keyed() ? match_spec : nullptr, (t.flags & kEntryPriority) != 0 ? &priority : nullptr,
       &action, &mbr, &grp, &has_mbr, &has_grp, &is_default});
  if (status != 0) {
    dprintf(fd, "cannot decode plcmt_data for p4_pd_orbisk_switch_%s\n", t.name);
    return status;
  }
  if (t.keyed() && !is_default) print_match_spec(t, fd, indent, match_spec);
  // The member or group a selector table's entry holds is not printed.
  if (!t.indirect()) print_action_of(t.actions, t.num_actions, function, fd, indent, action);
  return 0;
}

[[gnu::noinline]] pd_status print_member_placement(const ProfileDesc &p, const char *function,
                                                   int fd, int indent, const void *plcmt_data) {
  p4_pd_orbisk_switch_action_specs_t action{};
  const pd_status status = decode_member(p, function, plcmt_data, &action);
  if (status != 0) {
    dprintf(fd, "cannot decode plcmt_data for p4_pd_orbisk_switch_%s\n", p.name);
    return status;
  }
  print_action_of(p.actions, p.num_actions, function, fd, indent, action);
  return 0;
}

namespace {

// The text of a 16-byte address by inet_ntop.
struct V6Text {
  explicit V6Text(const uint8_t *bytes) { inet_ntop(AF_INET6, bytes, text, sizeof text); }
  char text[INET6_ADDRSTRLEN];
};

bool all_zero(const uint8_t *bytes, unsigned n) {
  for (unsigned i = 0; i < n; ++i) {
    if (bytes[i] != 0) return false;
  }
  return true;
}

}  // namespace

}  // namespace orbisk::pd

using namespace orbisk::pd;

// Each formatter writes the label, a blank, the address and (all but
// _print_v6addr_exact) a closing blank, NUL-terminated; its result is the
// length without the NUL.

PD_EXPORT int p4_pd_orbisk_switch__print_v4addr_exact(char *out, const char *label, uint32_t addr) {
  return sprintf(out, "%s %u.%u.%u.%u ", label, addr >> 24, addr >> 16 & 0xFF, addr >> 8 & 0xFF,
                 addr & 0xFF);
}

PD_EXPORT int p4_pd_orbisk_switch__print_v4addr_lpm(char *out, const char *label, uint32_t addr,
                                                    uint16_t prefix_length) {
  return sprintf(out, "%s %u.%u.%u.%u/%u ", label, addr >> 24, addr >> 16 & 0xFF, addr >> 8 & 0xFF,
                 addr & 0xFF, unsigned(prefix_length));
}

// The prefix is the run of one bits from bit 31 down to the first zero, so a
// mask with holes prints the length of its leading run; the address is
// printed whole. A mask of 0 matches anything and is left out.
PD_EXPORT int p4_pd_orbisk_switch__print_v4addr_ternary(char *out, const char *label, uint32_t addr,
                                                        uint32_t mask) {
  if (mask == 0) return 0;
  unsigned prefix = 0;
  while (prefix < 32 && (mask & (0x80000000u >> prefix)) != 0) ++prefix;
  return p4_pd_orbisk_switch__print_v4addr_lpm(out, label, addr, uint16_t(prefix));
}

PD_EXPORT int p4_pd_orbisk_switch__print_v6addr_exact(char *out, const char *label,
                                                      const uint8_t *addr) {
  return sprintf(out, "%s %s", label, V6Text(addr).text);
}

PD_EXPORT int p4_pd_orbisk_switch__print_v6addr_lpm(char *out, const char *label,
                                                    const uint8_t *addr, uint16_t prefix_length) {
  return sprintf(out, "%s %s/%u ", label, V6Text(addr).text, unsigned(prefix_length));
}

PD_EXPORT int p4_pd_orbisk_switch__print_v6addr_ternary(char *out, const char *label,
                                                        const uint8_t *addr, const uint8_t *mask) {
  if (all_zero(mask, 16)) return 0;
  return sprintf(out, "%s %s/%s ", label, V6Text(addr).text, V6Text(mask).text);
}

PD_EXPORT int p4_pd_orbisk_switch__print_mac_exact(char *out, const char *label, uint32_t oui,
                                                   uint32_t station) {
  return sprintf(out, "%s %02x%02x.%02x%02x.%02x%02x ", label, oui >> 16 & 0xFF, oui >> 8 & 0xFF,
                 oui & 0xFF, station >> 16 & 0xFF, station >> 8 & 0xFF, station & 0xFF);
}

// The 48 mask bits, OUI half above station half: all ones is the exact form,
// none leaves the address out, anything else adds the mask.
PD_EXPORT int p4_pd_orbisk_switch__print_mac_ternary(char *out, const char *label, uint32_t oui,
                                                     uint32_t oui_mask, uint32_t station,
                                                     uint32_t station_mask) {
  const uint64_t mask = uint64_t(oui_mask & 0xFFFFFF) << 24 | (station_mask & 0xFFFFFF);
  if (mask == 0xFFFFFFFFFFFFull)
    return p4_pd_orbisk_switch__print_mac_exact(out, label, oui, station);
  if (mask == 0) return 0;
  return sprintf(out, "%s %02x%02x.%02x%02x.%02x%02x/%02x%02x.%02x%02x.%02x%02x ", label,
                 oui >> 16 & 0xFF, oui >> 8 & 0xFF, oui & 0xFF, station >> 16 & 0xFF,
                 station >> 8 & 0xFF, station & 0xFF, oui_mask >> 16 & 0xFF, oui_mask >> 8 & 0xFF,
                 oui_mask & 0xFF, station_mask >> 16 & 0xFF, station_mask >> 8 & 0xFF,
                 station_mask & 0xFF);
}

// The placement printers by handle: a handle of nothing is said on the
// descriptor, and the result is that write's.

PD_EXPORT int p4_pd_orbisk_switch_plcmt_data_print(int fd, int indent, pd_tbl_hdl tbl_hdl,
                                                   const void *plcmt_data) {
  const unsigned t = table_slot(tbl_hdl);
  if (t == kNoSlot) return dprintf(fd, "0x%08x table not found\n", tbl_hdl);
  return int(print_entry_placement(kTables[t], __func__, fd, indent, plcmt_data));
}

PD_EXPORT int p4_pd_orbisk_switch_adt_plcmt_data_print(int fd, int indent, pd_tbl_hdl tbl_hdl,
                                                       const void *plcmt_data) {
  const unsigned p = profile_slot(tbl_hdl);
  if (p == kNoSlot) return dprintf(fd, "0x%08x table not found\n", tbl_hdl);
  return int(print_member_placement(kProfiles[p], __func__, fd, indent, plcmt_data));
}
