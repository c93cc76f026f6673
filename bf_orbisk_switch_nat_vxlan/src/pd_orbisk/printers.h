// Printers: key records, action parameters and decoded placement data written
// one field a line to a file descriptor, for a log or a terminal; and the
// address formatters the counter labels write their addresses with.
#pragma once

#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd_types.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// 16 bytes, most significant first, as 32 upper-case hexadecimal digits, in
// the library's one static text buffer: valid until the next call, and not
// for two threads at once.
const char *decode(const uint8_t *bytes);

// <table>_match_spec_print: the header line, then one line per key element.
void print_match_spec(const TableDesc &t, int fd, int indent, const void *match_spec);

// <action>_print: one line per parameter, no header.
void print_action(const ActionDesc &a, int fd, int indent, const void *action_spec);

// Room for any table's key record on the stack of a placement print (each
// table's is checked where its printers are generated).
inline constexpr unsigned kPrintSpecRoom = 192;

// <table>_plcmt_data_print: the placement record decoded, then its key
// (unless it is a default entry) and its action with the parameters; a table
// reached through a selector prints its key alone. 0, or the decoder's status
// after a line saying so.
pd_status print_entry_placement(const TableDesc &t, const char *function, int fd, int indent,
                                const void *plcmt_data);

// <profile>_adt_plcmt_data_print: a member's placement record decoded, then
// its action and the parameters.
pd_status print_member_placement(const ProfileDesc &p, const char *function, int fd, int indent,
                                 const void *plcmt_data);

}  // namespace orbisk::pd

#pragma GCC visibility pop
