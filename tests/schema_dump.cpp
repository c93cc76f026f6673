// Calls schema functions by name for check_schema.py, one request a line on
// stdin, one answer a line on stdout: "ptr <symbol>" (const char *(void)) the
// text, "int <symbol>" (int (void)) the number, "buf <symbol>" (int (char *))
// and "cli <handle>" (cli_schema) "<result> <text>", or "overrun" when more
// than the text and its NUL was written; "missing" for an undefined symbol.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include "orbisk_switch/pd.h"

template <typename F>
void text_answer(F write) {
  static char buf[P4_PD_ORBISK_SWITCH_SCHEMA_MAX + 1024];  // room to see an overrun
  std::memset(buf, 'Z', sizeof buf - 1);
  buf[sizeof buf - 1] = '\0';
  const int n = write(buf);
  const bool exact = n >= 0 && std::strlen(buf) == std::size_t(n) && buf[n + 1] == 'Z';
  exact ? std::printf("%d %s\n", n, buf) : std::printf("overrun\n");
}

int main() {
  std::string kind, arg;
  while (std::cin >> kind >> arg) {
    if (kind == "cli") {
      const auto hdl = pd_tbl_hdl(std::strtoul(arg.c_str(), nullptr, 0));
      text_answer([&](char *out) { return p4_pd_orbisk_switch_cli_schema(hdl, out); });
    } else if (void *fn = dlsym(RTLD_DEFAULT, arg.c_str()); fn == nullptr) {
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
