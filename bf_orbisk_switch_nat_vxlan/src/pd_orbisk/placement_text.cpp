// Placement records as value text, and a placement record against the entry
// the chip holds; with their dispatch by table or profile handle.
#include <algorithm>
#include <cstring>

#include "assertions.h"
#include "dispatch.h"
#include "export.h"
#include "placement.h"
#include "profiles.h"
#include "reads.h"
#include "text_out.h"
#include "value_text.h"

namespace orbisk::pd {

namespace {

// One side of a comparison, or a decoded placement record: everything an
// entry of any table may hold.
struct Entry {
  alignas(8) uint8_t key[kMatchSpecRoom];
  uint32_t priority = 0;
  bool is_default = false;
  Selection selection;
  p4_pd_orbisk_switch_action_specs_t action;
};

// Decodes a placement record of table t into e; the decoder's status.
pd_status decode(const TableDesc &t, const void *plcmt_data, Entry &e) {
  const FunctionName decoder(t.name, "_get_entry_from_plcmt_data");
  Selection &s = e.selection;
  return decode_entry(t, decoder.text, plcmt_data,
                      {t.keyed() ? e.key : nullptr, t.ternary() ? &e.priority : nullptr, &e.action,
                       &s.mbr, &s.grp, &s.has_mbr, &s.has_grp, &e.is_default});
}

// Reads an entry from the chip into e; get_entry's status.
pd_status read_hw(const TableDesc &t, pd_sess_hdl sess, uint8_t dev_id, pd_entry_hdl entry_hdl,
                  const char *get_entry, Entry &e) {
  void *key = t.keyed() ? e.key : nullptr;
  uint32_t *priority = t.ternary() ? &e.priority : nullptr;
  if (t.indirect()) {
    Selection &s = e.selection;
    return read_indirect_entry(
        t, sess, dev_id, entry_hdl, true,
        {key, priority, &s.has_mbr, &s.has_grp, &s.grp, &s.mbr, &e.is_default});
  }
  return read_entry(
      t, get_entry, sess, dev_id, entry_hdl, true,
      {key, priority, nullptr, &e.action.u, &e.action.name, t.keyed() ? &e.is_default : nullptr});
}

// A message of a fixed text and up to two handles or indices: the text
// before each, "0x" and the number in natural digits.
int fail(char *error, const char *text) {
  end_text(error, put(error, text));
  return 0;
}

int fail(char *error, const char *before, uint32_t a, const char *between, uint32_t b) {
  char *p = put(error, before);
  p = put_hex(p, a);
  p = put(p, between);
  end_text(error, put_hex(p, b));
  return 0;
}

// What an entry reached through a selector names, software's view (pd)
// against the chip's (hw). The rows are kept as they stand: a handle of 0 on
// the chip's side counts as none, a member comes before a group on
// software's side, and which group is never compared.
int selection_equal(const Entry &pd, const Entry &hw, char *error) {
  const Selection &a = pd.selection, &b = hw.selection;
  if (a.has_mbr) {
    if (!b.has_mbr) return fail(error, "no mbr_hdl in hw");
    if (b.mbr == 0 || b.mbr == a.mbr) return 1;
    return fail(error, "mbr_hdl differs: mbr_hdl_pd=0x", a.mbr, ", mbr_hdl_hw=0x", b.mbr);
  }
  if (a.has_grp) {
    if (b.has_grp) return b.has_grp;
    if (pd.is_default) return 1;
    return fail(error, "pd has group handle but not hw");
  }
  if (b.has_mbr) return b.mbr == 0 ? 1 : fail(error, "hw has mbr_hdl but not pd");
  if (!b.has_grp || b.grp == 0) return 1;
  return fail(error, "hw has grp_hdl but not pd");
}

}  // namespace

int placement_value(const TableDesc &t, const void *plcmt_data, char *out) {
  Entry e;
  if (decode(t, plcmt_data, e)) return 0;
  char *p = put_lit(out, "(");
  p = put_entry_key(t, e.key, e.is_default, p);
  p = t.indirect() ? put_selection(e.selection, p)
                   : put_table_action(t, e.action.name, &e.action.u, "_plcmt_data_value", p);
  return end_text(out, put_lit(p, ")"));
}

int member_placement_value(const ProfileDesc &p, const void *plcmt_data, char *out) {
  p4_pd_orbisk_switch_action_specs_t action;
  const FunctionName decoder(p.name, "_get_member_from_plcmt_data");
  if (decode_member(p, decoder.text, plcmt_data, &action)) return 0;
  for (unsigned i = 0; i < p.num_actions; ++i) {
    const ActionDesc &a = *p.actions[i].action;
    if (a.enum_value == uint32_t(action.name)) return action_value(a, &action.u, out);
  }
  const FunctionName function(p.name, "_plcmt_data_value");
  pd_hard_assert_failed_in(kTextSourcePath, "NULL", function.text, __LINE__);
}

int placement_equals_hw(const TableDesc &t, pd_sess_hdl sess, uint8_t dev_id,
                        pd_entry_hdl entry_hdl, const void *plcmt_data, char *error) {
  Entry pd, hw;
  if (decode(t, plcmt_data, pd)) {
    // A record that cannot be decoded is the caller's fault, not a difference.
    char expr[160];
    char *p = put_lit(expr, "false && \"Failed to decode plcmt_data in table ");
    p = put(p, t.name, std::min<std::size_t>(std::strlen(t.name), 100));
    end_text(expr, put_lit(p, "\""));
    const FunctionName function(t.name, "_plcmt_data_eq_to_hw");
    pd_hard_assert_failed_in(kTextSourcePath, expr, function.text, __LINE__);
  }
  const FunctionName get_entry(t.name, "_get_entry");
  if (read_hw(t, sess, dev_id, entry_hdl, get_entry.text, hw)) {
    end_text(error, put_lit(put(error, get_entry.text), " failed"));
    return 0;
  }
  // The priority is read on both sides and never compared.
  if (t.keyed()) {
    if (pd.is_default && !hw.is_default) return fail(error, "pd entry is default but not hw");
    if (!pd.is_default && !keys_equal(t, pd.key, hw.key, error)) return 0;
  }
  if (t.indirect()) return selection_equal(pd, hw, error);
  if (pd.action.name != hw.action.name) {
    return fail(error, "actions differ 0x", pd.action.name, ", vs 0x", hw.action.name);
  }
  for (unsigned i = 0; i < t.num_actions; ++i) {
    const ActionDesc &a = *t.actions[i].action;
    if (a.enum_value != uint32_t(pd.action.name)) continue;
    return a.num_params ? action_specs_equal(a, &pd.action.u, &hw.action.u, error) : 1;
  }
  const FunctionName function(t.name, "_plcmt_data_eq_to_hw");
  pd_hard_assert_failed_in(kTextSourcePath, "false && \"unknown action\"", function.text, __LINE__);
}

}  // namespace orbisk::pd

using namespace orbisk::pd;

PD_EXPORT int p4_pd_orbisk_switch_plcmt_data_value(pd_tbl_hdl tbl_hdl, const void *plcmt_data,
                                                   char *out) {
  const TableDesc *t = table_of(tbl_hdl);
  return t ? placement_value(*t, plcmt_data, out) : 0;
}

PD_EXPORT int p4_pd_orbisk_switch_adt_plcmt_data_value(pd_tbl_hdl tbl_hdl, const void *plcmt_data,
                                                       char *out) {
  const ProfileDesc *p = profile_of(tbl_hdl);
  return p ? member_placement_value(*p, plcmt_data, out) : 0;
}

PD_EXPORT int p4_pd_orbisk_switch_plcmt_data_eq_to_hw(pd_sess_hdl sess_hdl, uint8_t dev_id,
                                                      pd_tbl_hdl tbl_hdl, pd_entry_hdl entry_hdl,
                                                      const void *plcmt_data,
                                                      uint32_t plcmt_data_size, char *error) {
  // The record tells its own length: its size is not needed.
  (void)plcmt_data_size;
  const TableDesc *t = table_of(tbl_hdl);
  if (!t) {
    pd_hard_assert_failed_in(kTextSourcePath, "false && \"unknown table\"", __func__, __LINE__);
  }
  return placement_equals_hw(*t, sess_hdl, dev_id, entry_hdl, plcmt_data, error);
}
