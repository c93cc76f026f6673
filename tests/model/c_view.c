/* The call log seen from C: the header must serve C callers as well. */
#include <string.h>

#include "orbisk_driver_model.h"

/* Copies the name, first argument and first key byte of the latest call;
 * 0 when the log is empty. */
int c_view_last_call(char *function, size_t room, uint64_t *first_arg, uint8_t *first_key_byte) {
  const orbisk_model_call *c = orbisk_model_last_call();
  if (c == NULL || room == 0) return 0;
  strncpy(function, c->function, room - 1);
  function[room - 1] = '\0';
  *first_arg = c->num_args > 0 ? c->args[0] : 0;
  size_t n = 0;
  const uint8_t *value = orbisk_model_call_bytes(c, "key.value", &n);
  *first_key_byte = value != NULL && n > 0 ? value[0] : 0;
  return 1;
}
