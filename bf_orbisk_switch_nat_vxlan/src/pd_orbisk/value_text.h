// Value text and the comparison with hardware: what one key, action, entry,
// member or placement record holds, as a literal of the Python language that
// pairs number for number with the schema text of its table or action; and
// whether the chip holds what a placement record says, with the first
// difference in words.
//
// Every function walks the key elements (elements.h) or an action's
// parameters, so order, widths and masks are the schema's by construction.
// Nothing is allocated: records live on the stack, text goes straight into
// the caller's buffer, each number with the digit count its width fixes.
#pragma once

#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// Room on the stack for any table's match spec (each table's is checked
// against it where its functions are generated).
inline constexpr unsigned kMatchSpecRoom = 512;

// ---- value text: the length written, its NUL not counted; 0 when the read
// ---- or the decoding failed, the buffer then untouched.

// "( " and each key element's number, then "),".
int key_value(const TableDesc &t, const void *match_spec, char *out);
// "('<name>',(" and each parameter's number, then ")),". A null spec for an
// action without parameters.
int action_value(const ActionDesc &a, const void *action_spec, char *out);
// An entry read back by handle: key and action, then priority and True.
int entry_value(const TableDesc &t, pd_sess_hdl sess, uint8_t dev_id, pd_entry_hdl entry_hdl,
                bool read_from_hw, char *out);
// A placement record decoded: key and action, no priority.
int placement_value(const TableDesc &t, const void *plcmt_data, char *out);
// A member's placement record decoded: its action text alone.
int member_placement_value(const ProfileDesc &p, const void *plcmt_data, char *out);

// ---- comparison: 1 when equal; 0 and a message in `error` (written from its
// ---- start, NUL-terminated) at the first difference, `error` untouched on 1.

// Key elements in schema order under the schema's masks.
int keys_equal(const TableDesc &t, const void *pd, const void *hw, char *error);
// Parameters in schema order under their widths.
int action_specs_equal(const ActionDesc &a, const void *pd, const void *hw, char *error);
// The placement record (software's view) against the entry read from
// hardware. A record that cannot be decoded ends the process.
int placement_equals_hw(const TableDesc &t, pd_sess_hdl sess, uint8_t dev_id,
                        pd_entry_hdl entry_hdl, const void *plcmt_data, char *error);

// ---- pieces the value text of entries and placement records share.

// What an entry of a table reached through a selector names.
struct Selection {
  pd_mbr_hdl mbr = 0;
  pd_grp_hdl grp = 0;
  bool has_mbr = false;
  bool has_grp = false;
};

// The key text, or "()," for a default entry and for a keyless table.
char *put_entry_key(const TableDesc &t, const void *match_spec, bool is_default, char *p);
// The action text of the table's action with this enum value; an action the
// table does not have ends the process, reported as `function` of table t.
char *put_table_action(const TableDesc &t, uint32_t enum_value, const void *action_spec,
                       const char *function_suffix, char *p);
// The 128-bit number of value text: its 16 bytes from the first as 32
// upper-case digits; no mask, no NUL (the text always goes on).
char *decodev(const uint8_t *bytes, char *p);
// "('setMbrHdl',(0x%x,))", "('setGrpHdl',(0x%x,))" or nothing.
char *put_selection(const Selection &s, char *p);
// The NUL, and the length.
inline int end_text(char *out, char *p) {
  *p = '\0';
  return int(p - out);
}

}  // namespace orbisk::pd

#pragma GCC visibility pop
