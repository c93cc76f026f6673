// Printers: key records, action parameters and decoded placement data written
// one field a line to a file descriptor, for a log or a terminal; and the
// address formatters the counter labels write their addresses with.
#pragma once

#include <cstdint>

#include "descriptors.h"

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

}  // namespace orbisk::pd

#pragma GCC visibility pop
