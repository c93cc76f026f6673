/* The smallest agent: built against an installed tree, through pkg-config or
 * through find_package(ob_bf_pd_nat_vxlan). Without a driver it only looks up
 * an action name, which needs no driver call; built with
 * -DCONSUMER_WITH_DRIVER and linked with a driver, it also registers, reads
 * a table's entry count and deregisters. */
#include <stdio.h>
#include <string.h>

#include "orbisk_switch/pd.h"

int main(void) {
  const char *name = p4_pd_orbisk_switch_action_enum_to_string(p4_pd_orbisk_switch_setNextHop);
  if (name == NULL || strcmp(name, "p4_pd_orbisk_switch_setNextHop") != 0) {
    fprintf(stderr, "consumer: setNextHop is named \"%s\"\n", name ? name : "(null)");
    return 1;
  }
  if (p4_pd_orbisk_switch_action_string_to_enum(name) != p4_pd_orbisk_switch_setNextHop) {
    fprintf(stderr, "consumer: \"%s\" does not map back to its enum\n", name);
    return 1;
  }
#ifdef CONSUMER_WITH_DRIVER
  p4_pd_orbisk_switch_init();
  pd_dev_target target = {0, PD_DEV_PIPE_ALL};
  uint32_t count = 1;
  pd_status status = p4_pd_orbisk_switch_l2Lookup_get_entry_count(0, target, &count);
  if (status != BF_SUCCESS || count != 0) {
    fprintf(stderr, "consumer: l2Lookup entry count: status %u, count %u\n", (unsigned)status,
            (unsigned)count);
    return 1;
  }
  status = p4_pd_orbisk_switch_cleanup();
  if (status != BF_SUCCESS) {
    fprintf(stderr, "consumer: cleanup: status %u\n", (unsigned)status);
    return 1;
  }
  printf("consumer: registered, read an empty table, deregistered\n");
#endif
  printf("consumer: ok\n");
  return 0;
}
