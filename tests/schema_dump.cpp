// Calls the library's schema functions by name for tests/check_schema.py,
// which derives the names from the catalogue and judges the answers. One
// request a line on stdin, one answer a line on stdout:
//   ptr <symbol>   const char *(void)  -> the text
//   int <symbol>   int (void)          -> the number
//   buf <symbol>   int (char *)        -> "<result> <text>"
//   cli <handle>   cli_schema          -> "<result> <text>"
// A symbol the library does not define answers "missing". A text function
// that writes other than its text and one NUL answers "overrun" instead.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include "orbisk_switch/pd.h"

namespace {

// Room well past the longest text, so a write beyond its NUL shows.
constexpr std::size_t kRoom = P4_PD_ORBISK_SWITCH_SCHEMA_MAX + 1024;
constexpr char kFill = '\x5a';

template <typename F>
void text_answer(F write) {
  static char buf[kRoom];
  std::memset(buf, kFill, sizeof buf);
  const int n = write(buf);
  const bool exact = n >= 0 && std::size_t(n) < kRoom && std::strlen(buf) == std::size_t(n) &&
                     buf[n + 1] == kFill;
  if (exact) {
    std::printf("%d %s\n", n, buf);
  } else {
    std::printf("overrun\n");
  }
}

}  // namespace

int main() {
  std::string kind, arg;
  while (std::cin >> kind >> arg) {
    if (kind == "cli") {
      const auto handle = pd_tbl_hdl(std::strtoul(arg.c_str(), nullptr, 0));
      text_answer([&](char *out) { return p4_pd_orbisk_switch_cli_schema(handle, out); });
      continue;
    }
    void *fn = dlsym(RTLD_DEFAULT, arg.c_str());
    if (fn == nullptr) {
      std::printf("missing\n");
    } else if (kind == "ptr") {
      std::printf("%s\n", reinterpret_cast<const char *(*)()>(fn)());
    } else if (kind == "int") {
      std::printf("%d\n", reinterpret_cast<int (*)()>(fn)());
    } else {
      text_answer(reinterpret_cast<int (*)(char *)>(fn));
    }
  }
  return 0;
}
