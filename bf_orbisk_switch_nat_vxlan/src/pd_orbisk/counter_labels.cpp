// Counter labels over the generated item tables, and their dispatcher by
// table handle.
#include "counter_labels.h"

#include <stdio.h>

#include "dispatch.h"
#include "elements.h"
#include "export.h"
#include "orbisk_switch/pd.h"
#include "reads.h"

namespace orbisk::pd {

namespace {

// The short form "L 0x<value> " or, under any other mask, "L & 0x<mask> 0x<value> ".
char *put_number(char *p, const LabelItem &item, uint32_t mask, uint32_t value) {
  if (mask == item.full) return p + sprintf(p, "%s 0x%0*x ", item.text, int(item.digits), value);
  return p + sprintf(p, "%s & 0x%x 0x%0*x ", item.text, mask, int(item.digits), value);
}

char *put_named(char *p, const LabelItem &item, uint32_t mask, uint32_t value) {
  if (mask == 0) return p;
  const bool selected = (mask & item.select) != 0;
  if (!selected && (item.options & kLabelUnselectedNumber) == 0) return p;
  const uint32_t chosen = value & item.select & (selected ? mask : ~0u);
  if (selected) {
    for (const LabelName *n = item.names, *end = n + item.num_names; n != end; ++n) {
      if (n->value == chosen) return p + sprintf(p, "%s", n->text);
    }
  }
  return put_number(p, item, mask, (item.options & kLabelValueSelected) != 0 ? chosen : value);
}

char *put_address(char *p, const LabelItem &item, const FieldDesc *fields, const uint8_t *record) {
  const FieldDesc &f = fields[item.field];
  switch (f.format) {
    case Format::V4Addr:
      return p + p4_pd_orbisk_switch__print_v4addr_ternary(
                     p, item.text, host_value(record, f.host_offset, f.bits),
                     host_value(record, f.partner_offset, f.bits));
    case Format::V6Addr:
      return p + p4_pd_orbisk_switch__print_v6addr_ternary(p, item.text, record + f.host_offset,
                                                           record + f.partner_offset);
    default: {
      // A MAC address: this field is its OUI half, the next its station half.
      const FieldDesc &s = fields[item.field + 1];
      return p + p4_pd_orbisk_switch__print_mac_ternary(
                     p, item.text, host_value(record, f.host_offset, f.bits),
                     host_value(record, f.partner_offset, f.bits),
                     host_value(record, s.host_offset, s.bits),
                     host_value(record, s.partner_offset, s.bits));
    }
  }
}

}  // namespace

int stringify_for_counter(const LabelTable &l, const void *match_spec, char *out) {
  const auto *record = static_cast<const uint8_t *>(match_spec);
  const FieldDesc *fields = l.table->fields;
  char *p = out;
  *p = '\0';
  for (const LabelItem *item = l.items, *end = item + l.num_items; item != end; ++item) {
    const FieldDesc &f = fields[item->field];
    const uint32_t value = f.array ? 0 : host_value(record, f.host_offset, f.bits);
    const uint32_t mask =
        f.partner_offset == kNoOffset || f.array ? 0 : host_value(record, f.partner_offset, f.bits);
    switch (item->kind) {
      case LabelKind::Exact:
        if ((item->options & kLabelDecimal) != 0) {
          p += sprintf(p, "%s %*d ", item->text, int(item->digits), int(value & schema_mask(f)));
        } else {
          p += sprintf(p, "%s 0x%0*x ", item->text, int(item->digits), value & schema_mask(f));
        }
        break;
      case LabelKind::Flag:
        if ((mask & 1) != 0) p += sprintf(p, (value & 1) != 0 ? "%s" : "!%s", item->text);
        break;
      case LabelKind::Number:
        if (mask != 0) p = put_number(p, *item, mask, value);
        break;
      case LabelKind::Named:
        p = put_named(p, *item, mask, value);
        break;
      case LabelKind::Address:
        p = put_address(p, *item, fields, record);
        break;
    }
  }
  return int(p - out);
}

// Kept out of line: the dispatcher by handle forwards to it by a tail call.
[[gnu::noinline]] int stringify_counter_entry(const LabelTable &l, const char *function,
                                              pd_sess_hdl sess, uint8_t dev_id,
                                              pd_entry_hdl entry_hdl, char *out) {
  // Room for the key of any counting table (each is checked where its items
  // are generated).
  alignas(8) uint8_t match_spec[kLabelSpecRoom];
  uint32_t priority = 0;
  p4_pd_orbisk_switch_action_spec_u action_spec;
  bool is_default = false;
  const TableDesc &t = *l.table;
  const pd_status status = read_entry(
      t, function, sess, dev_id, entry_hdl, true,
      {match_spec, t.ternary() ? &priority : nullptr, nullptr, &action_spec, nullptr, &is_default});
  if (status != 0) return 0;
  return stringify_for_counter(l, match_spec, out);
}

}  // namespace orbisk::pd

using namespace orbisk::pd;

PD_EXPORT int p4_pd_orbisk_switch_stringify_counter_matchspec(pd_sess_hdl sess_hdl, uint8_t dev_id,
                                                              pd_tbl_hdl tbl_hdl,
                                                              pd_entry_hdl entry_hdl, char *out) {
  const unsigned t = table_slot(tbl_hdl);
  if (t == kNoSlot || kLabelsOfTable[t] == kNoLabels) return 0;
  return stringify_counter_entry(kLabelTables[kLabelsOfTable[t]], __func__, sess_hdl, dev_id,
                                 entry_hdl, out);
}
