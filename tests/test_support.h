// Helpers for tests that look at what the library handed the driver: the
// driver model keeps a deep copy of every record passed to it.
#pragma once

#include <dlfcn.h>
#include <unistd.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "by_name.h"
#include "orbisk_driver_model.h"
#include "orbisk_switch/pd.h"

using by_name::fn;
using by_name::resource;
using by_name::table;

using Bytes = std::vector<uint8_t>;

// What one driver call received, as the model recorded it.
struct Seen {
  std::string function;
  std::vector<uint64_t> args;
  bool has_key = false;
  pd_match_record key{};
  Bytes value, mask;
  bool has_action = false;
  pd_action_record action{};
  Bytes data;
};

Seen seen(const orbisk_model_call *c);
// The most recent call of the named driver function; fails the test if none.
Seen last(const char *function);
size_t calls_of(const char *function);
// The library logged exactly one line, and it starts with `prefix`.
::testing::AssertionResult logged_once(std::string_view prefix);

// Little-endian word at a byte offset of a record, as the driver reads it.
template <typename Record>
uint32_t word_at(const Record &r, size_t offset) {
  uint32_t w;
  std::memcpy(&w, reinterpret_cast<const uint8_t *>(&r) + offset, 4);
  return w;
}
template <typename Record>
uint64_t qword_at(const Record &r, size_t offset) {
  uint64_t w;
  std::memcpy(&w, reinterpret_cast<const uint8_t *>(&r) + offset, 8);
  return w;
}

inline uint64_t target_word(uint32_t device, uint16_t pipe) {
  return uint64_t(device) | uint64_t(pipe) << 32;
}

// A fresh driver model with the library started on it.
class OnModel : public ::testing::Test {
 protected:
  void SetUp() override {
    orbisk_model_reset();
    p4_pd_orbisk_switch_init();
    orbisk_model_clear_calls();
    orbisk_model_clear_log();
  }
  void TearDown() override { p4_pd_orbisk_switch_cleanup(); }

  static constexpr pd_sess_hdl sess = 3;
  static constexpr pd_dev_target tgt = {0, PD_DEV_PIPE_ALL};
};

// A pointer (or any function's address) as the call log keeps an argument.
inline uint64_t addr(const void *p) { return uint64_t(reinterpret_cast<uintptr_t>(p)); }
template <typename R, typename... A>
uint64_t addr(R (*f)(A...)) {
  return uint64_t(reinterpret_cast<uintptr_t>(f));
}

// The named copy of a record (e.g. "key.value") that the latest call of a
// driver function was handed; empty, and a failure, when there is no call.
Bytes handed(const char *function, const char *name);

// The library's exported function p4_pd_orbisk_switch_<name>, found by name
// as an agent's loader would; a failure when it is not exported.
template <typename F>
F exported(const std::string &name) {
  void *p = dlsym(RTLD_DEFAULT, ("p4_pd_orbisk_switch_" + name).c_str());
  EXPECT_NE(nullptr, p) << name;
  return reinterpret_cast<F>(p);
}

// What `print` (a call given a file descriptor) writes, read back from a pipe.
template <typename Call>
std::string captured(Call print) {
  int fds[2];
  if (pipe(fds) != 0) return "pipe failed";
  print(fds[1]);
  close(fds[1]);
  std::string text;
  char buf[4096];
  for (ssize_t n; (n = read(fds[0], buf, sizeof buf)) > 0;) text.append(buf, std::size_t(n));
  close(fds[0]);
  return text;
}
