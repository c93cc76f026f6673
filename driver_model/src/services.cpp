// The system services: the debug mode, log lines and memory blocks, with
// their stores. They are not driver calls of the log and cannot be failed.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "model.h"

namespace orbisk_model {

void LogLineStore::clear() {
  std::deque<std::string>().swap(lines);
  dbg_mode = 0;
}

void AllocationStore::clear() {
  retired.merge(live);
  live.clear();
  count = 0;
  fail_at = 0;
  seen = 0;
}

}  // namespace orbisk_model

using namespace orbisk_model;

extern "C" {

void orbisk_model_set_dbg_mode(int mode) {
  in_frame([&](Model &m) { m.log_lines.dbg_mode = mode; });
}

int bf_sys_dbg_mode(void) {
  return in_frame([](Model &m) { return m.log_lines.dbg_mode; });
}

void bf_sys_log_and_trace(int module, int level, const char *format, ...) {
  (void)module;
  (void)level;
  if (format == nullptr) return;
  va_list ap;
  va_start(ap, format);
  va_list again;
  va_copy(again, ap);
  int n = std::vsnprintf(nullptr, 0, format, ap);
  va_end(ap);
  std::string line;
  if (n > 0) {
    line.resize(std::size_t(n) + 1);
    std::vsnprintf(line.data(), line.size(), format, again);
    line.resize(std::size_t(n));
  }
  va_end(again);
  in_frame([&](Model &m) { m.log_lines.lines.push_back(std::move(line)); });
}

size_t orbisk_model_log_count(void) {
  return in_frame([](Model &m) { return m.log_lines.lines.size(); });
}

const char *orbisk_model_log_at(size_t i) {
  return in_frame([&](Model &m) -> const char * {
    return i < m.log_lines.lines.size() ? m.log_lines.lines[i].c_str() : nullptr;
  });
}

void orbisk_model_clear_log(void) {
  in_frame([](Model &m) { std::deque<std::string>().swap(m.log_lines.lines); });
}

void *bf_sys_calloc(size_t count, size_t size) {
  const bool refuse = in_frame([](Model &m) {
    return m.allocations.fail_at != 0 && ++m.allocations.seen == m.allocations.fail_at;
  });
  if (refuse) return nullptr;
  void *p = std::calloc(count, size);
  if (p != nullptr) {
    in_frame([&](Model &m) {
      m.allocations.live.insert(p);
      ++m.allocations.count;
    });
  }
  return p;
}

void bf_sys_free(void *ptr) {
  if (ptr == nullptr) return;
  // A block given out before the last reset is no longer counted, but is
  // still the caller's to free.
  in_frame([&](Model &m) {
    m.allocations.live.erase(ptr);
    m.allocations.retired.erase(ptr);
  });
  std::free(ptr);
}

size_t orbisk_model_live_allocations(void) {
  return in_frame([](Model &m) { return m.allocations.live.size(); });
}

size_t orbisk_model_allocation_count(void) {
  return in_frame([](Model &m) { return m.allocations.count; });
}

void orbisk_model_fail_allocation(uint32_t nth) {
  in_frame([&](Model &m) {
    m.allocations.fail_at = nth;
    m.allocations.seen = 0;
  });
}

}  // extern "C"
