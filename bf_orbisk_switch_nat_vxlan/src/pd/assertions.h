// The library's assertions: a soft path that logs (and ends the process in
// the driver's debug mode) and a hard path that always ends it.
#pragma once

namespace orbisk::pd {

// The soft path: in debug mode logs a backtrace and ends the process; else
// logs one line in the given format (expression text built in) and returns.
void pd_assert_failed(const char *expr, const char *format, const char *function, int line);
// The hard path: always ends the process.
[[noreturn]] void pd_hard_assert_failed(const char *expr, const char *function, int line);
// The same, reported from another source of the library.
[[noreturn]] void pd_hard_assert_failed_in(const char *source, const char *expr,
                                           const char *function, int line);

#define PD_ASSERT_FMT_ZERO "ASSERTION FAILED: \"0\" (0) from %s:%d"
#define PD_ASSERT_FMT_NULL "ASSERTION FAILED: \"((void *)0)\" (NULL) from %s:%d"

}  // namespace orbisk::pd
