// The library's assertions.
#include "assertions.h"

#include <execinfo.h>

#include "orbisk_switch/pd_driver.h"

// The process-ending path of a failed assertion, whatever NDEBUG says.
extern "C" [[noreturn]] void __assert_fail(const char *assertion, const char *file,
                                           unsigned int line, const char *function) noexcept;

namespace orbisk::pd {
namespace {

// Name of the source that assertions report.
constexpr const char *kSourcePath = "bf_orbisk_switch_nat_vxlan/src/pd";

}  // namespace

void pd_assert_failed(const char *expr, const char *format, const char *function, int line) {
  if (bf_sys_dbg_mode()) {
    void *frames[128];
    int n = backtrace(frames, 128);
    // The symbol array is never freed: the process ends below.
    char **symbols = backtrace_symbols(frames, n);
    if (symbols) {
      for (int i = 0; i < n; ++i) bf_sys_log_and_trace(0, 2, "%s", symbols[i]);
    }
    __assert_fail(expr, kSourcePath, unsigned(line), function);
  }
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  bf_sys_log_and_trace(0, 2, format, function, line);
#pragma GCC diagnostic pop
}

void pd_hard_assert_failed(const char *expr, const char *function, int line) {
  __assert_fail(expr, kSourcePath, unsigned(line), function);
}

void pd_hard_assert_failed_in(const char *source, const char *expr, const char *function,
                              int line) {
  __assert_fail(expr, source, unsigned(line), function);
}

}  // namespace orbisk::pd
