#include "test_support.h"

namespace {

Bytes copy_of(const orbisk_model_call *c, const char *name) {
  size_t n = 0;
  const uint8_t *p = orbisk_model_call_bytes(c, name, &n);
  return p ? Bytes(p, p + n) : Bytes{};
}

}  // namespace

Seen seen(const orbisk_model_call *c) {
  Seen s;
  s.function = c->function;
  s.args.assign(c->args, c->args + c->num_args);
  s.has_key = c->key != nullptr;
  if (s.has_key) {
    s.key = *c->key;
    s.value = copy_of(c, "key.value");
    s.mask = copy_of(c, "key.mask");
  }
  s.has_action = c->act != nullptr;
  if (s.has_action) {
    s.action = *c->act;
    s.data = copy_of(c, "act.data");
  }
  return s;
}

Seen last(const char *function) {
  for (size_t i = orbisk_model_call_count(); i-- > 0;) {
    const orbisk_model_call *c = orbisk_model_call_at(i);
    if (std::strcmp(c->function, function) == 0) return seen(c);
  }
  ADD_FAILURE() << "no call of " << function;
  return Seen{};
}

size_t calls_of(const char *function) {
  size_t n = 0;
  for (size_t i = 0; i < orbisk_model_call_count(); ++i) {
    if (std::strcmp(orbisk_model_call_at(i)->function, function) == 0) ++n;
  }
  return n;
}

::testing::AssertionResult logged_once(std::string_view prefix) {
  if (orbisk_model_log_count() != 1)
    return ::testing::AssertionFailure() << orbisk_model_log_count() << " lines logged";
  const std::string_view line = orbisk_model_log_at(0);
  if (line.starts_with(prefix)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "logged: " << line;
}

Bytes handed(const char *function, const char *name) {
  for (size_t i = orbisk_model_call_count(); i-- > 0;) {
    const orbisk_model_call *c = orbisk_model_call_at(i);
    if (std::strcmp(c->function, function) != 0) continue;
    size_t n = 0;
    const uint8_t *p = orbisk_model_call_bytes(c, name, &n);
    return p ? Bytes(p, p + n) : Bytes{};
  }
  ADD_FAILURE() << "no call of " << function;
  return {};
}
