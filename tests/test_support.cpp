#include "test_support.h"

Seen seen(const orbisk_model_call *c) {
  Seen s;
  s.function = c->function;
  s.args.assign(c->args, c->args + c->num_args);
  s.has_key = c->has_key;
  if (c->has_key) {
    s.key = c->key;
    s.value.assign(c->key_value, c->key_value + c->key.num_bytes);
    s.mask.assign(c->key_mask, c->key_mask + c->key.num_bytes);
  }
  s.has_action = c->has_act;
  if (c->has_act) {
    s.action = c->act;
    s.data.assign(c->act_data, c->act_data + c->act.num_bytes);
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
