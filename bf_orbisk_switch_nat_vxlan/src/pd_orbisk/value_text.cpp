// Value text of keys, actions and entries read back by handle, and the
// dispatch of an entry's text by table handle.
#include "value_text.h"

#include "assertions.h"
#include "dispatch.h"
#include "elements.h"
#include "export.h"
#include "profiles.h"
#include "reads.h"
#include "text_out.h"

namespace orbisk::pd {

namespace {

// One key element's number and its comma: fixed digits from the width, the
// value through the schema's mask; a 128-bit one whole, upper case, unmasked.
char *put_element(const KeyElement &e, const uint8_t *spec, char *p) {
  p = put_lit(p, "0x");
  if (e.array) {
    p = decodev(spec + e.host_offset, p);
  } else {
    p = put_hex(p, host_value(spec, e.host_offset, e.bits) & e.mask, hex_digits(e.bits));
  }
  *p++ = ',';
  return p;
}

char *put_key(const TableDesc &t, const void *match_spec, char *p) {
  const auto *spec = static_cast<const uint8_t *>(match_spec);
  p = put_lit(p, "( ");
  for_each_key_element(t, [&](const KeyElement &e) { p = put_element(e, spec, p); });
  return put_lit(p, "),");
}

char *put_action(const ActionDesc &a, const void *action_spec, char *p) {
  p = put_lit(p, "('");
  p = put(p, a.name);
  p = put_lit(p, "',(");
  const auto *spec = static_cast<const uint8_t *>(action_spec);
  for (unsigned i = 0; i < a.num_params; ++i) {
    const ParamDesc &q = a.params[i];
    p = put_lit(p, "0x");
    p = put_hex(p, host_value(spec, q.host_offset, q.bits) & low_bits(q.bits), hex_digits(q.bits));
    *p++ = ',';
  }
  return put_lit(p, ")),");
}

// "),(" the priority ",True))" and the NUL.
int end_entry(char *out, char *p, uint32_t priority) {
  p = put_lit(p, "),(");
  p = put_dec(p, int32_t(priority));
  return end_text(out, put_lit(p, ",True))"));
}

}  // namespace

// The 128-bit number of value text: 16 bytes as 32 upper-case digits, no NUL.
char *decodev(const uint8_t *bytes, char *p) { return put_hex_upper(p, bytes); }

char *put_entry_key(const TableDesc &t, const void *match_spec, bool is_default, char *p) {
  return !t.keyed() || is_default ? put_lit(p, "(),") : put_key(t, match_spec, p);
}

char *put_table_action(const TableDesc &t, uint32_t enum_value, const void *action_spec,
                       const char *function_suffix, char *p) {
  for (unsigned i = 0; i < t.num_actions; ++i) {
    const ActionDesc &a = *t.actions[i].action;
    if (a.enum_value == enum_value) return put_action(a, action_spec, p);
  }
  const FunctionName function(t.name, function_suffix);
  pd_hard_assert_failed_in(kTextSourcePath, "false && \"unknown action\"", function.text, __LINE__);
}

char *put_selection(const Selection &s, char *p) {
  if (s.has_mbr) {
    p = put_lit(p, "('setMbrHdl',(0x");
    p = put_hex(p, s.mbr);
  } else if (s.has_grp) {
    p = put_lit(p, "('setGrpHdl',(0x");
    p = put_hex(p, s.grp);
  } else {
    return p;
  }
  return put_lit(p, ",))");
}

int key_value(const TableDesc &t, const void *match_spec, char *out) {
  return end_text(out, put_key(t, match_spec, out));
}

int action_value(const ActionDesc &a, const void *action_spec, char *out) {
  return end_text(out, put_action(a, action_spec, out));
}

int entry_value(const TableDesc &t, pd_sess_hdl sess, uint8_t dev_id, pd_entry_hdl entry_hdl,
                bool read_from_hw, char *out) {
  alignas(8) uint8_t spec[kMatchSpecRoom];
  uint32_t priority = 0;
  bool is_default = false;
  uint32_t *prio = t.ternary() ? &priority : nullptr;
  void *key = t.keyed() ? spec : nullptr;
  if (t.indirect()) {
    Selection s;
    if (read_indirect_entry(t, sess, dev_id, entry_hdl, read_from_hw,
                            {key, prio, &s.has_mbr, &s.has_grp, &s.grp, &s.mbr, &is_default})) {
      return 0;
    }
    char *p = put_lit(out, "((");
    p = put_entry_key(t, spec, is_default, p);
    return end_entry(out, put_selection(s, p), priority);
  }
  p4_pd_orbisk_switch_action_spec_u action;
  p4_pd_orbisk_switch_action_names_t action_enum{};
  const FunctionName get_entry(t.name, "_get_entry");
  if (read_entry(t, get_entry.text, sess, dev_id, entry_hdl, read_from_hw,
                 {key, prio, nullptr, &action, &action_enum, t.keyed() ? &is_default : nullptr})) {
    return 0;
  }
  char *p = put_lit(out, "((");
  p = put_entry_key(t, spec, is_default, p);
  return end_entry(out, put_table_action(t, action_enum, &action, "_value", p), priority);
}

}  // namespace orbisk::pd

using namespace orbisk::pd;

PD_EXPORT int p4_pd_orbisk_switch_entry_value(pd_sess_hdl sess_hdl, uint8_t dev_id,
                                              pd_tbl_hdl tbl_hdl, pd_entry_hdl entry_hdl,
                                              bool read_from_hw, char *out) {
  const TableDesc *t = table_of(tbl_hdl);
  return t ? entry_value(*t, sess_hdl, dev_id, entry_hdl, read_from_hw, out) : 0;
}
