// Record checks from the descriptors. What the widths allow follows what a
// client that packs keys the program's way guarantees, per match kind:
//
// - the fields of exact tables, and the other fields of prefix tables, carry
//   the caller's value as given: bits above the width are refused; their
//   mask is all ones, above the width too, and is not looked at;
// - ternary tables cut every field's mask to its width, after ANDing the
//   value with the caller's own mask: mask bits above the width are refused,
//   and so are value bits outside the mask within the width, but value bits
//   above the width are the caller's to leave and are kept as they come;
// - the prefix field of a prefix table has priority width - length and a mask
//   of exactly that prefix, with the value ANDed under it; a priority above
//   the width (how a prefix longer than its field is marked) is refused;
// - the first field of a partitioned prefix table stands in partition_index,
//   which must fit its width; its bytes in the strings are not looked at.
#include "record_checks.h"

namespace orbisk_model {

namespace {

using orbisk::pd::FieldDesc;
using orbisk::pd::MatchKind;
using orbisk::pd::ParamDesc;
using orbisk::pd::TableActionDesc;
using orbisk::pd::TableDesc;

constexpr pd_status kOk = BF_SUCCESS;
constexpr pd_status kBad = ORBISK_MODEL_BAD_RECORD;

// The bits of a field's top byte that lie above its width.
constexpr uint8_t above_width(unsigned bits) {
  return bits % 8 == 0 ? 0 : uint8_t(0xFFu << (bits % 8));
}

// The mask byte b (0 most significant) of a prefix field of `bits` bits whose
// lowest `host` bits are not matched.
uint8_t prefix_mask_byte(const FieldDesc &f, unsigned host, unsigned b) {
  const unsigned lsb = 8 * (f.bytes - 1 - b);  // bit number of the byte's lowest bit
  uint8_t want = 0;
  for (unsigned k = 0; k < 8; ++k) {
    if (lsb + k >= host && lsb + k < f.bits) want |= uint8_t(1u << k);
  }
  return want;
}

bool field_fits(const TableDesc &t, unsigned i, const pd_match_record &key) {
  const FieldDesc &f = t.fields[i];
  const uint8_t *v = key.value_bytes + f.key_offset;
  const uint8_t *m = key.mask_bytes + f.key_offset;
  const uint8_t above = above_width(f.bits);
  switch (t.match) {
    case MatchKind::Ternary:
      if (m[0] & above) return false;
      for (unsigned b = 0; b < f.bytes; ++b) {
        const uint8_t within = b == 0 ? uint8_t(~above) : uint8_t(0xFF);
        if (v[b] & ~m[b] & within) return false;
      }
      return true;
    case MatchKind::Prefix:
    case MatchKind::PartitionedPrefix:
      if (t.match == MatchKind::PartitionedPrefix && i == 0) {
        return f.bits >= 32 || (key.partition_index >> f.bits) == 0;
      }
      if (int(i) == t.lpm_field) {
        if (key.priority > f.bits) return false;
        for (unsigned b = 0; b < f.bytes; ++b) {
          const uint8_t want = prefix_mask_byte(f, key.priority, b);
          if (m[b] != want || (v[b] & ~want)) return false;
        }
        return true;
      }
      return (v[0] & above) == 0;
    default:
      return (v[0] & above) == 0;
  }
}

const TableActionDesc *find_action(const TableDesc &t, pd_act_fn_hdl fn) {
  for (uint16_t i = 0; i < t.num_actions; ++i) {
    if (t.actions[i].handle == fn) return &t.actions[i];
  }
  return nullptr;
}

}  // namespace

pd_status check_key(const TableDesc &t, const pd_match_record *key) {
  if (key == nullptr || !t.keyed()) return kBad;  // a keyless table has no entries
  if (key->num_bytes != t.key_bytes || key->num_valid_bits != t.key_bits) return kBad;
  if (key->value_bytes == nullptr || key->mask_bytes == nullptr) return kBad;
  for (unsigned i = 0; i < t.num_fields; ++i) {
    if (!field_fits(t, i, *key)) return kBad;
  }
  return kOk;
}

pd_status check_action(const TableDesc &t, pd_act_fn_hdl fn, const pd_action_record *act,
                       bool as_default) {
  if (act == nullptr || act->resource_count > PD_ACTION_RESOURCE_SLOTS) return kBad;
  if (act->record_kind == PD_RECORD_KIND_MEMBER_REF ||
      act->record_kind == PD_RECORD_KIND_GROUP_REF) {
    return t.indirect() ? kOk : kBad;
  }
  if (act->record_kind != PD_RECORD_KIND_DIRECT) return kBad;
  if (t.indirect() && !as_default) return kBad;  // entries of a profile table name a member
  const TableActionDesc *a = find_action(t, fn);
  if (a == nullptr || !(as_default ? a->default_use : a->entry_use)) {
    return ORBISK_MODEL_NO_SUCH_ACTION;
  }
  if (act->num_bytes != a->action->data_bytes || act->num_valid_bits != a->action->data_bits) {
    return kBad;
  }
  if (act->num_bytes != 0 && act->data_bytes == nullptr) return kBad;
  for (uint16_t i = 0; i < a->action->num_params; ++i) {
    const ParamDesc &p = a->action->params[i];
    if (act->data_bytes[p.data_offset] & above_width(p.bits)) return kBad;
  }
  return kOk;
}

}  // namespace orbisk_model
