/* A small switch agent written against the C interface of orbisk_switch.
 *
 * It registers with the driver, then programs one entry in each of four
 * tables the way an agent brings up a port:
 *   - ingressPortMapping: front-panel port 17 to its virtual port (setPhase0)
 *   - l2DomainLookup:     tagged VLAN 100 on that virtual port (ternary, with
 *                         a priority; setL2DomainTagged)
 *   - l2Lookup:           a known unicast MAC in the L2 domain
 *                         (l2LookupKnownUcast)
 *   - ipv4ShortMaskLpm:   10.1.2.0/24 in VRF 3 to next hop 42 (setNextHop)
 * Each entry is read back, printed in host form and compared with what was
 * written, and printed as value text beside its table's schema text (both
 * read and paired by python3, where it is on the path, as an agent's
 * scripts would read them) and verified against the chip through its
 * placement data; one bit of the route is changed on the chip alone, and
 * the comparison says what differs; then every
 * entry is deleted and each table is checked to be empty. Then the route is
 * added again with an idle time and left without traffic until the driver
 * reports it idle, and is taken out; traffic dropped on a port is counted
 * and read back; and a route is balanced over an ECMP group of three next
 * hops: one is turned off and on, the group read back each time, and the
 * device's state is logged, removed and restored, the route still resolving
 * to the same group and members. It computes the ECMP hash of a flow and asks
 * the group which member the hash selects, and prints a MAC learning digest
 * the driver delivers, then acknowledges it. Last it walks the whole program
 * from handles alone, as a generic inspector would: every table and profile,
 * each non-empty one printed with its schema and its entries as value text,
 * each entry verified against the chip. A failed status ends the
 * program at once, and any difference makes it end with status 1; either is
 * explained on stderr.
 *
 * Only the library's interface is used, and the driver model's clock to let
 * time pass. The driver functions it calls come from whatever implements
 * them at load time: the chip's driver in a switch, the in-memory driver
 * model here. */
/* popen and pclose, for handing schema and value text to python3. */
#define _POSIX_C_SOURCE 200809L

#include <inttypes.h>
#include <stdbool.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <cjson/cJSON.h>

#include "orbisk_driver_model.h"
#include "orbisk_switch/pd.h"

#define SESS ((pd_sess_hdl)0)
#define DEVICE 0u

static const pd_dev_target kTarget = {DEVICE, PD_DEV_PIPE_ALL};

static int g_failures;

/* A call that must succeed; the program stops at the first that does not. */
static void must(pd_status status, const char *what) {
  if (status != BF_SUCCESS) {
    fprintf(stderr, "orbisk_demo: error: %s failed with status %" PRIu32 "\n", what,
            (uint32_t)status);
    exit(1);
  }
}

/* A value read back that must equal the one expected. */
static void expect_u32(const char *table, const char *field, uint32_t got, uint32_t want) {
  if (got != want) {
    fprintf(stderr, "orbisk_demo: error: %s: %s is %" PRIu32 ", expected %" PRIu32 "\n", table,
            field, got, want);
    ++g_failures;
  }
}

/* The action name read back must be the full name of the expected action,
 * and must agree with the action enum read back with it. */
static void expect_action(const char *table, const char *name,
                          p4_pd_orbisk_switch_action_names_t got,
                          p4_pd_orbisk_switch_action_names_t want) {
  const char *want_name = p4_pd_orbisk_switch_action_enum_to_string((uint32_t)want);
  if (got != want || want_name == NULL || strcmp(name, want_name) != 0) {
    fprintf(stderr,
            "orbisk_demo: error: %s: action read back as \"%s\" (%u), expected \"%s\" (%u)\n",
            table, name, (unsigned)got, want_name ? want_name : "?", (unsigned)want);
    ++g_failures;
  }
}

static void expect_not_default(const char *table, bool is_default) {
  if (is_default) {
    fprintf(stderr, "orbisk_demo: error: %s: entry read back as the default entry\n", table);
    ++g_failures;
  }
}

static void print_ipv4(const char *label, uint32_t addr) {
  printf("    %-30s %" PRIu32 ".%" PRIu32 ".%" PRIu32 ".%" PRIu32 "\n", label, (addr >> 24) & 0xFFu,
         (addr >> 16) & 0xFFu, (addr >> 8) & 0xFFu, addr & 0xFFu);
}

static void print_u32(const char *label, uint32_t value) {
  printf("    %-30s %" PRIu32 "\n", label, value);
}

static void print_hex(const char *label, uint32_t value, int digits) {
  printf("    %-30s 0x%0*" PRIx32 "\n", label, digits, value);
}

/* A MAC address is keyed as two 24-bit halves: the OUI and the station. */
static void print_mac(const char *label, uint32_t oui, uint32_t station) {
  printf("    %-30s %02" PRIx32 ":%02" PRIx32 ":%02" PRIx32 ":%02" PRIx32 ":%02" PRIx32
         ":%02" PRIx32 "\n",
         label, (oui >> 16) & 0xFFu, (oui >> 8) & 0xFFu, oui & 0xFFu, (station >> 16) & 0xFFu,
         (station >> 8) & 0xFFu, station & 0xFFu);
}

static void print_header(const char *table, pd_entry_hdl hdl, const char *action_name) {
  printf("%s entry %" PRIu32 ": action %s\n", table, (uint32_t)hdl, action_name);
}

/* ------------------------------------------------------------ port --- */

static pd_entry_hdl add_port_mapping(void) {
  p4_pd_orbisk_switch_ingressPortMapping_match_spec_t match;
  p4_pd_orbisk_switch_setPhase0_action_spec_t action;
  pd_entry_hdl hdl = 0;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  match.ig_intr_md_ingress_port = 17;
  action.action_ingVPort = 1017;
  action.action_nativeAintf = 4097;
  action.action_switchPort = 1;
  action.action_physicalPort = 2;
  must(p4_pd_orbisk_switch_ingressPortMapping_table_add_with_setPhase0(SESS, kTarget, &match,
                                                                       &action, &hdl),
       "ingressPortMapping add");
  return hdl;
}

static void show_port_mapping(pd_entry_hdl hdl) {
  static const char *const table = "ingressPortMapping";
  p4_pd_orbisk_switch_ingressPortMapping_match_spec_t match;
  p4_pd_orbisk_switch_action_spec_u action;
  p4_pd_orbisk_switch_action_names_t action_enum = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = "";
  bool is_default = true;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  must(p4_pd_orbisk_switch_ingressPortMapping_get_entry(SESS, DEVICE, hdl, false, &match,
                                                        action_name, &action, &action_enum,
                                                        &is_default),
       "ingressPortMapping get_entry");

  const p4_pd_orbisk_switch_setPhase0_action_spec_t *a = &action.setPhase0;
  print_header(table, hdl, action_name);
  print_u32("ig_intr_md_ingress_port", match.ig_intr_md_ingress_port);
  print_u32("action_ingVPort", a->action_ingVPort);
  print_u32("action_nativeAintf", a->action_nativeAintf);
  print_u32("action_switchPort", a->action_switchPort);
  print_u32("action_physicalPort", a->action_physicalPort);

  expect_action(table, action_name, action_enum, p4_pd_orbisk_switch_setPhase0);
  expect_not_default(table, is_default);
  expect_u32(table, "ig_intr_md_ingress_port", match.ig_intr_md_ingress_port, 17);
  expect_u32(table, "action_ingVPort", a->action_ingVPort, 1017);
  expect_u32(table, "action_nativeAintf", a->action_nativeAintf, 4097);
  expect_u32(table, "action_switchPort", a->action_switchPort, 1);
  expect_u32(table, "action_physicalPort", a->action_physicalPort, 2);
}

/* ------------------------------------------------------------ VLAN --- */

#define VLAN_PRIORITY 10u

static pd_entry_hdl add_vlan_member(void) {
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t match;
  p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t action;
  pd_entry_hdl hdl = 0;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  match.phase0_switchPort = 1;
  match.phase0_ingVPort = 1017;
  match.vlanHdr_0__valid = 1;
  match.vlanHdr_0__vlanId = 100;
  match.vlanHdr_0__vlanId_mask = 0x0FFF;
  action.action_l2Aintf = 0x10064;
  must(p4_pd_orbisk_switch_l2DomainLookup_table_add_with_setL2DomainTagged(
           SESS, kTarget, &match, VLAN_PRIORITY, &action, &hdl),
       "l2DomainLookup add");
  return hdl;
}

static void show_vlan_member(pd_entry_hdl hdl) {
  static const char *const table = "l2DomainLookup";
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t match;
  p4_pd_orbisk_switch_action_spec_u action;
  p4_pd_orbisk_switch_action_names_t action_enum = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = "";
  uint32_t priority = 0;
  bool is_default = true;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  must(p4_pd_orbisk_switch_l2DomainLookup_get_entry(SESS, DEVICE, hdl, false, &match, &priority,
                                                    action_name, &action, &action_enum,
                                                    &is_default),
       "l2DomainLookup get_entry");

  const p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t *a = &action.setL2DomainTagged;
  print_header(table, hdl, action_name);
  print_u32("priority", priority);
  print_u32("phase0_switchPort", match.phase0_switchPort);
  print_u32("phase0_ingVPort", match.phase0_ingVPort);
  print_u32("vlanHdr_0__valid", match.vlanHdr_0__valid);
  print_u32("vlanHdr_0__vlanId", match.vlanHdr_0__vlanId);
  print_hex("vlanHdr_0__vlanId_mask", match.vlanHdr_0__vlanId_mask, 3);
  print_hex("action_l2Aintf", a->action_l2Aintf, 5);

  expect_action(table, action_name, action_enum, p4_pd_orbisk_switch_setL2DomainTagged);
  expect_not_default(table, is_default);
  expect_u32(table, "priority", priority, VLAN_PRIORITY);
  expect_u32(table, "phase0_switchPort", match.phase0_switchPort, 1);
  expect_u32(table, "phase0_ingVPort", match.phase0_ingVPort, 1017);
  expect_u32(table, "vlanHdr_0__valid", match.vlanHdr_0__valid, 1);
  expect_u32(table, "vlanHdr_0__vlanId", match.vlanHdr_0__vlanId, 100);
  expect_u32(table, "vlanHdr_0__vlanId_mask", match.vlanHdr_0__vlanId_mask, 0x0FFF);
  expect_u32(table, "action_l2Aintf", a->action_l2Aintf, 0x10064);
}

/* ------------------------------------------------------------- MAC --- */

#define MAC_OUI 0x001B21u
#define MAC_STATION 0x3C4D5Eu
#define MAC_L2_DOMAIN 100u
#define MAC_L2_AINTF 0x10065u

static pd_entry_hdl add_mac(void) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t match;
  p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t action;
  pd_entry_hdl hdl = 0;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  match.egrMd_dmacOui = MAC_OUI;
  match.egrMd_dmacStation = MAC_STATION;
  match.egrMd_egrL2Domain = MAC_L2_DOMAIN;
  action.action_egrL2Aintf = MAC_L2_AINTF;
  must(p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(SESS, kTarget, &match,
                                                                      &action, &hdl),
       "l2Lookup add");
  return hdl;
}

static void show_mac(pd_entry_hdl hdl) {
  static const char *const table = "l2Lookup";
  p4_pd_orbisk_switch_l2Lookup_match_spec_t match;
  p4_pd_orbisk_switch_action_spec_u action;
  p4_pd_orbisk_switch_action_names_t action_enum = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = "";
  bool is_default = true;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  must(p4_pd_orbisk_switch_l2Lookup_get_entry(SESS, DEVICE, hdl, false, &match, action_name,
                                              &action, &action_enum, &is_default),
       "l2Lookup get_entry");

  const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *a = &action.l2LookupKnownUcast;
  print_header(table, hdl, action_name);
  print_hex("egrMd_dmacOui", match.egrMd_dmacOui, 6);
  print_hex("egrMd_dmacStation", match.egrMd_dmacStation, 6);
  print_mac("  (destination MAC)", match.egrMd_dmacOui, match.egrMd_dmacStation);
  print_u32("egrMd_egrL2Domain", match.egrMd_egrL2Domain);
  print_hex("action_egrL2Aintf", a->action_egrL2Aintf, 5);

  expect_action(table, action_name, action_enum, p4_pd_orbisk_switch_l2LookupKnownUcast);
  expect_not_default(table, is_default);
  expect_u32(table, "egrMd_dmacOui", match.egrMd_dmacOui, MAC_OUI);
  expect_u32(table, "egrMd_dmacStation", match.egrMd_dmacStation, MAC_STATION);
  expect_u32(table, "egrMd_egrL2Domain", match.egrMd_egrL2Domain, MAC_L2_DOMAIN);
  expect_u32(table, "action_egrL2Aintf", a->action_egrL2Aintf, MAC_L2_AINTF);
}

/* ----------------------------------------------------------- route --- */

#define ROUTE_VRF 3u
#define ROUTE_DIP 0x0A010200u /* 10.1.2.0 */
#define ROUTE_PREFIX_LENGTH 24u
#define ROUTE_NEXT_HOP 42u

static pd_entry_hdl add_route(void) {
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t match;
  p4_pd_orbisk_switch_setNextHop_action_spec_t action;
  pd_entry_hdl hdl = 0;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  match.l3Info_vrfId = ROUTE_VRF;
  match.ingIpv4_dip = ROUTE_DIP;
  match.ingIpv4_dip_prefix_length = ROUTE_PREFIX_LENGTH;
  action.action_nextHop = ROUTE_NEXT_HOP;
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(SESS, kTarget, &match,
                                                                      &action, &hdl),
       "ipv4ShortMaskLpm add");
  return hdl;
}

static void show_route(pd_entry_hdl hdl) {
  static const char *const table = "ipv4ShortMaskLpm";
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t match;
  p4_pd_orbisk_switch_action_spec_u action;
  p4_pd_orbisk_switch_action_names_t action_enum = P4_PD_ORBISK_SWITCH_ACTION_COUNT;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX] = "";
  bool is_default = true;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry(SESS, DEVICE, hdl, false, &match,
                                                      action_name, &action, &action_enum,
                                                      &is_default),
       "ipv4ShortMaskLpm get_entry");

  const p4_pd_orbisk_switch_setNextHop_action_spec_t *a = &action.setNextHop;
  print_header(table, hdl, action_name);
  print_u32("l3Info_vrfId", match.l3Info_vrfId);
  print_ipv4("ingIpv4_dip", match.ingIpv4_dip);
  print_u32("ingIpv4_dip_prefix_length", match.ingIpv4_dip_prefix_length);
  print_u32("action_nextHop", a->action_nextHop);

  expect_action(table, action_name, action_enum, p4_pd_orbisk_switch_setNextHop);
  expect_not_default(table, is_default);
  expect_u32(table, "l3Info_vrfId", match.l3Info_vrfId, ROUTE_VRF);
  expect_u32(table, "ingIpv4_dip", match.ingIpv4_dip, ROUTE_DIP);
  expect_u32(table, "ingIpv4_dip_prefix_length", match.ingIpv4_dip_prefix_length,
             ROUTE_PREFIX_LENGTH);
  expect_u32(table, "action_nextHop", a->action_nextHop, ROUTE_NEXT_HOP);
}

/* ------------------------------------------------------------ ECMP --- */

/* A route in VRF 3 to 10.9.0.0/16 whose next hop is an ECMP group of three
 * next hops: three members of ecmpMemberActionProfile, a group holding them,
 * and the ecmpGroup entry that names the group for the route's next hop. */
#define ECMP_DIP 0x0A090000u /* 10.9.0.0 */
#define ECMP_PREFIX_LENGTH 16u
#define ECMP_NEXT_HOP 0x300u /* the route's next hop: the ecmpGroup key */
#define ECMP_MEMBERS 3

struct ecmp {
  pd_mbr_hdl mbrs[ECMP_MEMBERS];
  pd_grp_hdl grp;
  pd_entry_hdl group_entry;
  pd_entry_hdl route;
};

static void build_ecmp(struct ecmp *e) {
  for (int i = 0; i < ECMP_MEMBERS; ++i) {
    p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t hop;
    memset(&hop, 0, sizeof hop);
    hop.action_nextHopTable = 1;
    hop.action_nextHop = 100u + (uint32_t)i;
    must(p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
             SESS, kTarget, &hop, &e->mbrs[i]),
         "ECMP member add");
  }
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_create_group(SESS, kTarget, 4, &e->grp),
       "ECMP group create");
  for (int i = 0; i < ECMP_MEMBERS; ++i) {
    must(p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_to_group(SESS, DEVICE, e->grp,
                                                                         e->mbrs[i]),
         "ECMP member into group");
  }
  p4_pd_orbisk_switch_ecmpGroup_match_spec_t key = {ECMP_NEXT_HOP};
  must(p4_pd_orbisk_switch_ecmpGroup_add_entry_with_selector(SESS, kTarget, &key, e->grp,
                                                             &e->group_entry),
       "ecmpGroup add");
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t match;
  p4_pd_orbisk_switch_setNextHop_action_spec_t action;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  match.l3Info_vrfId = ROUTE_VRF;
  match.ingIpv4_dip = ECMP_DIP;
  match.ingIpv4_dip_prefix_length = ECMP_PREFIX_LENGTH;
  action.action_nextHop = ECMP_NEXT_HOP;
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(SESS, kTarget, &match,
                                                                      &action, &e->route),
       "ECMP route add");
}

/* Follows the route to its group and prints the group's members, each with
 * its next hop and whether it is on; `off` is the member expected off, or
 * -1 for none. */
static void show_ecmp(const struct ecmp *e, int off) {
  static const char *const table = "ecmpGroup";
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t match;
  p4_pd_orbisk_switch_action_spec_u action;
  bool is_default = true;
  memset(&match, 0, sizeof match);
  memset(&action, 0, sizeof action);
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry(SESS, DEVICE, e->route, false, &match, NULL,
                                                      &action, NULL, &is_default),
       "ECMP route get_entry");
  expect_u32("ipv4ShortMaskLpm", "action_nextHop", action.setNextHop.action_nextHop,
             ECMP_NEXT_HOP);

  p4_pd_orbisk_switch_ecmpGroup_match_spec_t key = {0};
  bool has_mbr = true, has_grp = false;
  pd_grp_hdl grp = 0;
  pd_mbr_hdl mbr = 0;
  must(p4_pd_orbisk_switch_ecmpGroup_get_entry(SESS, DEVICE, e->group_entry, false, &key, &has_mbr,
                                               &has_grp, &grp, &mbr, &is_default),
       "ecmpGroup get_entry");
  expect_u32(table, "l3_nextHop", key.l3_nextHop, ECMP_NEXT_HOP);
  expect_u32(table, "has_grp", has_grp, 1);
  expect_u32(table, "has_mbr", has_mbr, 0);
  expect_u32(table, "grp_hdl", grp, e->grp);
  printf("route 10.9.0.0/16 -> next hop 0x%x -> group 0x%08" PRIx32 "\n", ECMP_NEXT_HOP, grp);

  uint32_t count = 0;
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_get_selector_group_member_count(SESS, DEVICE,
                                                                                  grp, &count),
       "ECMP group member count");
  expect_u32(table, "group members", count, ECMP_MEMBERS);
  pd_mbr_hdl walk[ECMP_MEMBERS];
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_get_first_group_member(SESS, DEVICE, grp,
                                                                          &walk[0]),
       "ECMP first group member");
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_get_next_group_members(
           SESS, DEVICE, grp, walk[0], ECMP_MEMBERS - 1, &walk[1]),
       "ECMP next group members");
  for (int i = 0; i < ECMP_MEMBERS; ++i) {
    p4_pd_orbisk_switch_action_specs_t hop;
    uint32_t state = 9;
    memset(&hop, 0, sizeof hop);
    expect_u32(table, "member", walk[i], e->mbrs[i]);
    must(p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member(SESS, DEVICE, walk[i], false, &hop),
         "ECMP member read");
    must(p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_state_get(SESS, DEVICE, grp,
                                                                           walk[i], &state),
         "ECMP member state");
    printf("  member 0x%08" PRIx32 ": %s next hop %" PRIu32 ", %s\n", walk[i],
           p4_pd_orbisk_switch_action_enum_to_string(hop.name),
           hop.u.setEcmpNextHop.action_nextHop, state == P4_PD_GRP_MBR_STATE_ACTIVE ? "on" : "off");
    expect_u32(table, "member action", hop.name, p4_pd_orbisk_switch_setEcmpNextHop);
    expect_u32(table, "member next hop", hop.u.setEcmpNextHop.action_nextHop, 100u + (uint32_t)i);
    expect_u32(table, "member state", state,
               i == off ? P4_PD_GRP_MBR_STATE_INACTIVE : P4_PD_GRP_MBR_STATE_ACTIVE);
  }
}

/* The route over its group, one next hop turned off and on again; then the
 * device's member-selection state is logged, dropped as the driver drops it
 * when a device goes, and restored from the log, and the route still
 * resolves to the same group and members. */
static void ecmp_route(struct ecmp *out) {
  struct ecmp e;
  build_ecmp(&e);
  show_ecmp(&e, -1);
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_state_set(
           SESS, DEVICE, e.grp, e.mbrs[1], P4_PD_GRP_MBR_STATE_INACTIVE),
       "ECMP member off");
  printf("member 0x%08" PRIx32 " turned off\n", e.mbrs[1]);
  show_ecmp(&e, 1);
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_state_set(
           SESS, DEVICE, e.grp, e.mbrs[1], P4_PD_GRP_MBR_STATE_ACTIVE),
       "ECMP member on");
  printf("member 0x%08" PRIx32 " turned on again\n", e.mbrs[1]);
  show_ecmp(&e, -1);

  cJSON *saved = cJSON_CreateObject();
  must(p4_pd_orbisk_switch_dev_log(DEVICE, saved), "device log");
  must(p4_pd_orbisk_switch_dev_remove(DEVICE), "device remove");
  /* Without its state the library no longer knows which action the group runs. */
  pd_entry_hdl refused = 0;
  p4_pd_orbisk_switch_ecmpGroup_match_spec_t other = {ECMP_NEXT_HOP + 1};
  if (p4_pd_orbisk_switch_ecmpGroup_add_entry_with_selector(SESS, kTarget, &other, e.grp,
                                                            &refused) == BF_SUCCESS) {
    fprintf(stderr, "orbisk_demo: error: a group was named with no state behind it\n");
    ++g_failures;
  }
  must(p4_pd_orbisk_switch_dev_restore(DEVICE, saved), "device restore");
  cJSON_Delete(saved);
  printf("device state logged, removed and restored\n");
  show_ecmp(&e, -1);
  /* ... and knows it again. */
  must(p4_pd_orbisk_switch_ecmpGroup_modify_entry_with_selector(SESS, DEVICE, e.group_entry,
                                                                e.grp),
       "ecmpGroup modify after restore");
  *out = e;
}

/* ----------------------------------------------------------- ageing --- */

#define ROUTE_TTL_MS 30000u

struct route_timeouts {
  int count;
  pd_entry_hdl last;
};

/* Called by the driver for each route that stayed idle for its TTL. */
static void on_route_timeout(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl, void *cookie) {
  struct route_timeouts *seen = cookie;
  (void)device_id;
  (void)tbl;
  ++seen->count;
  seen->last = hdl;
}

/* The route's table is put in notify mode with a timeout callback and the
 * route gets a TTL; the model's clock then moves on, in place of time
 * passing on a switch, and the driver reports the route once its TTL is up.
 * The agent takes it out, as it would a route nobody uses. */
static void age_out_route(void) {
  static const char *const table = "ipv4ShortMaskLpm";
  struct route_timeouts seen = {0, 0};
  pd_idle_params params;
  memset(&params, 0, sizeof params);
  params.mode = PD_IDLE_MODE_NOTIFY;

  pd_entry_hdl hdl = add_route();
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_set_ttl(SESS, DEVICE, hdl, ROUTE_TTL_MS),
       "ipv4ShortMaskLpm set_ttl");
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_register_tmo_cb(SESS, DEVICE, on_route_timeout,
                                                                 &seen),
       "ipv4ShortMaskLpm idle_register_tmo_cb");
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_tmo_enable(SESS, DEVICE, params),
       "ipv4ShortMaskLpm idle_tmo_enable");

  orbisk_model_advance_time(ROUTE_TTL_MS - 1);
  expect_u32(table, "timeouts before the TTL is up", (uint32_t)seen.count, 0);
  orbisk_model_advance_time(1);
  expect_u32(table, "timeouts once the TTL is up", (uint32_t)seen.count, 1);
  expect_u32(table, "entry reported idle", seen.last, hdl);
  printf("%s entry %" PRIu32 " aged out after %" PRIu64 " ms without traffic\n", table,
         (uint32_t)hdl, orbisk_model_now_ms());

  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_delete(SESS, DEVICE, hdl),
       "ipv4ShortMaskLpm delete");
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_idle_tmo_disable(SESS, DEVICE),
       "ipv4ShortMaskLpm idle_tmo_disable");
}

/* ---------------------------------------------------------- schemas --- */

typedef int (*schema_fn)(char *out);

/* What python3 says of a table's schema text: the literal evaluated, and the
 * number of its key elements and actions. */
#define PYTHON_PAIRS_TEXTS                                                       \
  "python3 -c 'import ast, sys; s, v = map(ast.literal_eval, sys.stdin.read().splitlines()); " \
  "key = v[0][0]; assert len(key) == len(s[1]); "                                \
  "print(\"    python3 pairs them: \" + \", \".join(\"%s=%#x\" % (e[0], n) for e, n in zip(s[1], key)))'"

typedef int (*value_fn)(pd_sess_hdl, uint8_t, pd_entry_hdl, bool, char *);
typedef pd_status (*plcmt_fn)(pd_sess_hdl, pd_dev_target, pd_tbl_hdl, pd_entry_hdl, void *,
                              uint32_t *);
typedef int (*eq_to_hw_fn)(pd_sess_hdl, uint8_t, pd_tbl_hdl, pd_entry_hdl, const void *, char *);

/* Whether the chip holds what the entry's placement data says: 1, or 0 and
 * the first difference in `message`. */
static int verify(const char *table, plcmt_fn fetch, eq_to_hw_fn eq, pd_entry_hdl hdl,
                  char *message) {
  static uint8_t plcmt[ORBISK_MODEL_PLACEMENT_MAX_BYTES];
  uint32_t size = sizeof plcmt;
  char what[96];
  snprintf(what, sizeof what, "%s get_plcmt_data", table);
  must(fetch(SESS, kTarget, 0, hdl, plcmt, &size), what);
  return eq(SESS, DEVICE, 0, hdl, plcmt, message);
}

/* Each entry the demo programs, as value text beside its table's schema
 * text: the schema says what the table holds, the value what one entry
 * holds, number for number in the same order, and python3 (where it is on
 * the path) reads both as an agent's scripts would and pairs them. */
#define TEXT_FNS(t)                                                                      \
  #t, p4_pd_orbisk_switch_##t##_schema, p4_pd_orbisk_switch_##t##_value,                 \
      p4_pd_orbisk_switch_##t##_get_plcmt_data, p4_pd_orbisk_switch_##t##_plcmt_data_eq_to_hw

static void show_texts(const pd_entry_hdl hdl[4]) {
  static const struct {
    const char *table;
    schema_fn schema;
    value_fn value;
    plcmt_fn fetch;
    eq_to_hw_fn eq;
  } kTables[] = {
      {TEXT_FNS(ingressPortMapping)},
      {TEXT_FNS(l2DomainLookup)},
      {TEXT_FNS(l2Lookup)},
      {TEXT_FNS(ipv4ShortMaskLpm)},
  };
  char message[128];
  static char schema[P4_PD_ORBISK_SWITCH_SCHEMA_MAX];
  static char value[P4_PD_ORBISK_SWITCH_VALUE_MAX];
  const bool python = system("command -v python3 >/dev/null 2>&1") == 0;
  if (!python) printf("python3 is not on the path: texts are printed, not evaluated\n");
  for (size_t i = 0; i < sizeof kTables / sizeof kTables[0]; ++i) {
    const int length = kTables[i].schema(schema);
    printf("schema of %s, %d bytes:\n    %s\n", kTables[i].table, length, schema);
    expect_u32(kTables[i].table, "schema length", (uint32_t)strlen(schema), (uint32_t)length);
    const int n = kTables[i].value(SESS, DEVICE, hdl[i], false, value);
    if (n == 0) {
      fprintf(stderr, "orbisk_demo: error: %s: entry %" PRIu32 " has no value text\n",
              kTables[i].table, (uint32_t)hdl[i]);
      ++g_failures;
      continue;
    }
    printf("value of entry %" PRIu32 ":\n    %s\n", (uint32_t)hdl[i], value);
    if (verify(kTables[i].table, kTables[i].fetch, kTables[i].eq, hdl[i], message)) {
      printf("    the chip holds what its placement data says\n");
    } else {
      fprintf(stderr, "orbisk_demo: error: %s: the chip differs: %s\n", kTables[i].table, message);
      ++g_failures;
    }
    if (!python) continue;
    fflush(stdout);
    FILE *reader = popen(PYTHON_PAIRS_TEXTS, "w");
    bool read = reader != NULL && fprintf(reader, "%s\n%s\n", schema, value) > 0;
    if (reader != NULL) read = pclose(reader) == 0 && read;
    if (!read) {
      fprintf(stderr, "orbisk_demo: error: %s: python3 cannot pair its value with its schema\n",
              kTables[i].table);
      ++g_failures;
    }
  }

  /* The chip's copy of the route changed under software (the lowest bit of
   * its VRF, the key's first byte): the comparison finds it and says what
   * differs, software's value first. Deleting the entry later rights it. */
  pd_tbl_hdl route_table = 0;
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_mat_table_handle(&route_table),
       "ipv4ShortMaskLpm table handle");
  must(orbisk_model_hw_flip_key(DEVICE, route_table, hdl[3], 0, 1), "a hardware bit flipped");
  if (verify(kTables[3].table, kTables[3].fetch, kTables[3].eq, hdl[3], message)) {
    fprintf(stderr, "orbisk_demo: error: ipv4ShortMaskLpm: a changed chip goes unnoticed\n");
    ++g_failures;
  } else {
    printf("the chip's copy of the route changed: %s\n", message);
  }
}

/* -------------------------------------------------------- ECMP hash --- */

/* The flow 10.0.0.1:49152 -> 192.168.0.1:443 over TCP, hashed the way the
 * pipeline's outer IP and L4 hash sees it: protocol, source and destination
 * address, source and destination port, 104 bits back to back. The model
 * hashes with the algorithm the calculation uses, started from its seed; the
 * agent checks the value against the same algorithm run on the bytes the
 * flow makes, then asks the route's ECMP group which of its members the
 * hash selects. */
static void ecmp_hash(const struct ecmp *e) {
  static const uint32_t widths[5] = {8, 32, 32, 16, 16};
  const pd_hash_calc_attribute flow[5] = {
      {0, 0, 6}, {1, 0, 0x0a000001u}, {2, 0, 0xc0a80001u}, {3, 0, 49152}, {4, 0, 443}};
  static const uint8_t bytes[13] = {6,    0x0a, 0x00, 0x00, 0x01, 0xc0, 0xa8,
                                    0x00, 0x01, 0xc0, 0x00, 0x01, 0xbb};
  uint64_t seed = 0;
  uint8_t hash[4];
  must(p4_pd_orbisk_switch_hash_calc_hashOuterIpAndL4Hdr_seed_set(SESS, DEVICE, 0x5eed),
       "hashOuterIpAndL4Hdr seed_set");
  must(p4_pd_orbisk_switch_hash_calc_hashOuterIpAndL4Hdr_seed_get(SESS, DEVICE, &seed),
       "hashOuterIpAndL4Hdr seed_get");
  must(p4_pd_orbisk_switch_hash_calc_hashOuterIpAndL4Hdr_calculate_hash_value(
           SESS, DEVICE, 5, flow, widths, hash, sizeof hash),
       "hashOuterIpAndL4Hdr calculate_hash_value");
  const uint32_t value = (uint32_t)hash[0] << 24 | (uint32_t)hash[1] << 16 |
                         (uint32_t)hash[2] << 8 | hash[3];
  expect_u32("hashOuterIpAndL4Hdr", "hash",
             value, orbisk_model_hash(ORBISK_MODEL_HASH_CRC32, seed, bytes, sizeof bytes));
  printf("ECMP hash of flow 10.0.0.1:49152 -> 192.168.0.1:443 (tcp), seed 0x%" PRIx64 "\n",
         seed);
  print_hex("hashOuterIpAndL4Hdr", value, 8);

  pd_mbr_hdl chosen = 0;
  must(p4_pd_orbisk_switch_ecmpMemberActionProfile_group_member_get_from_hash(
           SESS, DEVICE, e->grp, hash, sizeof hash, &chosen),
       "ECMP group member from hash");
  int which = -1;
  for (int i = 0; i < ECMP_MEMBERS; ++i) {
    if (e->mbrs[i] == chosen) which = i;
  }
  if (which < 0) {
    fprintf(stderr, "orbisk_demo: error: the hash selects 0x%08" PRIx32 ", no member of the group\n",
            chosen);
    ++g_failures;
    return;
  }
  printf("the flow goes to member 0x%08" PRIx32 " of group 0x%08" PRIx32 ": next hop %d\n", chosen,
         e->grp, 100 + which);
}

/* ---------------------------------------------------- MAC learning --- */

struct learned {
  int messages;
  pd_lrn_digest_msg *msg;
};

/* Called by the driver with each MAC learning message: the entries are read
 * by field name, wherever the program's layout puts them. */
static pd_status on_mac_learned(pd_sess_hdl sess, pd_lrn_digest_msg *msg, void *cookie) {
  struct learned *seen = cookie;
  (void)sess;
  ++seen->messages;
  seen->msg = msg;
  printf("macLearningDigest message %" PRIu64 ": %u entr%s\n", msg->msg_id,
         (unsigned)msg->num_entries, msg->num_entries == 1 ? "y" : "ies");
  for (uint16_t i = 0; i < msg->num_entries; ++i) {
    uint8_t *entry = msg->entries + (size_t)i * msg->entry_bytes;
    uint32_t v[4];
    static const char *const names[4] = {"ingMd_smacOui", "ingMd_smacStation",
                                         "ingMd_ingL2Domain", "ingMd_ingL2Aintf"};
    for (int f = 0; f < 4; ++f) {
      uint32_t size = 0;
      const uint8_t *p = p4_pd_orbisk_switch_get_digest_entry_field(entry, "macLearningDigest",
                                                                    names[f], &size);
      v[f] = 0;
      for (uint32_t b = 0; b < size; ++b) v[f] = v[f] << 8 | p[b];
    }
    print_mac("ingMd_smac", v[0], v[1]);
    print_u32("ingMd_ingL2Domain", v[2]);
    print_hex("ingMd_ingL2Aintf", v[3], 5);
  }
  return BF_SUCCESS;
}

/* The agent subscribes to MAC learning with a learning timeout; the model
 * learns a source MAC as traffic would and delivers it once the timeout is
 * up; the agent prints it and hands the message back. */
static void learn_mac(void) {
  static const char *const digest = "macLearningDigest";
  struct learned seen = {0, NULL};
  const uint64_t mac[4] = {0x001b21, 0x3c4d5f, 100, 0x10042};
  must(p4_pd_orbisk_switch_macLearningDigest_register(SESS, DEVICE, on_mac_learned, &seen),
       "macLearningDigest register");
  must(p4_pd_orbisk_switch_set_learning_timeout(SESS, DEVICE, 50), "set_learning_timeout");
  must(orbisk_model_learn(DEVICE, 0x09000000u, mac, 4), "learn a MAC");
  expect_u32(digest, "messages before the timeout", (uint32_t)seen.messages, 0);
  orbisk_model_advance_time(50);
  expect_u32(digest, "messages once the timeout is up", (uint32_t)seen.messages, 1);
  if (seen.msg == NULL) return;
  expect_u32(digest, "unacknowledged", (uint32_t)orbisk_model_digests_unacked(DEVICE, 0x09000000u), 1);
  must(p4_pd_orbisk_switch_macLearningDigest_notify_ack(SESS, seen.msg), "macLearningDigest notify_ack");
  expect_u32(digest, "unacknowledged after the ack",
             (uint32_t)orbisk_model_digests_unacked(DEVICE, 0x09000000u), 0);
  printf("%s message acknowledged\n", digest);
  must(p4_pd_orbisk_switch_macLearningDigest_deregister(SESS, DEVICE), "macLearningDigest deregister");
}

/* ----------------------------------------------------------- counts --- */

typedef pd_status (*count_fn)(pd_sess_hdl, pd_dev_target, uint32_t *);

static void expect_count(const char *table, count_fn fn, uint32_t want) {
  uint32_t count = UINT32_MAX;
  char what[96];
  snprintf(what, sizeof what, "%s get_entry_count", table);
  must(fn(SESS, kTarget, &count), what);
  expect_u32(table, "entry count", count, want);
}

/* Traffic with an illegal source MAC on port 5 is dropped by the drop-check
 * table, and its direct counter counts it. The model stands in for the
 * chip's traffic; the agent syncs the cell from the chip as it reads. */
static void count_drops(void) {
  static const char *const table = "ingressPortDropCheck";
  p4_pd_orbisk_switch_ingressPortDropCheck_match_spec_t ms;
  memset(&ms, 0, sizeof ms);
  ms.ig_intr_md_ingress_port = 5;
  ms.ingMd_illegalSmac = 1;
  ms.ingMd_illegalSmac_mask = 1;
  pd_entry_hdl hdl = 0;
  must(p4_pd_orbisk_switch_ingressPortDropCheck_table_add_with_setDrop(SESS, kTarget, &ms, 10, &hdl),
       "ingressPortDropCheck add");
  pd_tbl_hdl tbl = 0;
  must(p4_pd_orbisk_switch_ingressPortDropCheck_get_mat_table_handle(&tbl),
       "ingressPortDropCheck table handle");

  pd_counter_value zero = {0, 0};
  must(p4_pd_orbisk_switch_counter_write_ingressPortDropCount(SESS, DEVICE, hdl, zero),
       "ingressPortDropCount write");
  must(orbisk_model_count_traffic(DEVICE, tbl, hdl, 42, 42 * 64), "traffic");
  pd_counter_value v = {UINT64_MAX, UINT64_MAX};
  must(p4_pd_orbisk_switch_counter_read_ingressPortDropCount(SESS, DEVICE, hdl, PD_READ_FROM_HW, &v),
       "ingressPortDropCount read");
  expect_u32(table, "dropped packets", (uint32_t)v.packets, 42);
  expect_u32(table, "dropped bytes", (uint32_t)v.bytes, 42 * 64);
  printf("%s entry %" PRIu32 ": illegal source MAC on port 5 dropped %" PRIu64 " packets, %" PRIu64
         " bytes (ingressPortDropCount)\n",
         table, (uint32_t)hdl, v.packets, v.bytes);
  must(p4_pd_orbisk_switch_ingressPortDropCheck_table_delete(SESS, DEVICE, hdl),
       "ingressPortDropCheck delete");
}

/* ------------------------------------------------------------- the walk --- */

/* The whole program walked from handles alone, as a generic inspector that
 * knows nothing of this program would: every handle of the header's runs is
 * tried, and the schema text tells a table from a gap; each table that holds
 * entries is printed with its schema and its entries as value text, and each
 * entry is checked against the chip through its placement data; then each
 * profile's members as value text. Any entry the chip holds otherwise is an
 * error. */
static void walk_program(void) {
  static const struct {
    pd_tbl_hdl first, last;
  } kRuns[] = {
      {P4_PD_ORBISK_SWITCH_TABLES_A_FIRST, P4_PD_ORBISK_SWITCH_TABLES_A_LAST},
      {P4_PD_ORBISK_SWITCH_TABLES_B_FIRST, P4_PD_ORBISK_SWITCH_TABLES_B_LAST},
  };
  static const pd_tbl_hdl kProfiles[] = P4_PD_ORBISK_SWITCH_PROFILE_HANDLES;
  static char schema[P4_PD_ORBISK_SWITCH_SCHEMA_MAX];
  static char value[P4_PD_ORBISK_SWITCH_VALUE_MAX];
  static uint8_t plcmt[ORBISK_MODEL_PLACEMENT_MAX_BYTES];
  char message[128];
  unsigned tables = 0, entries = 0, agree = 0, members = 0;

  for (size_t r = 0; r < sizeof kRuns / sizeof kRuns[0]; ++r) {
    for (pd_tbl_hdl tbl = kRuns[r].first; tbl <= kRuns[r].last; ++tbl) {
      if (p4_pd_orbisk_switch_cli_schema(tbl, schema) == 2) continue; /* "()": no table */
      ++tables;
      pd_entry_hdl hdl = 0xffffffffu;
      if (p4_pd_orbisk_switch_entry_hdl_first(SESS, kTarget, tbl, &hdl) != BF_SUCCESS) continue;
      printf("walk: table 0x%08" PRIx32 "\n    schema %s\n", tbl, schema);
      while (hdl != 0xffffffffu) {
        ++entries;
        if (p4_pd_orbisk_switch_entry_value(SESS, DEVICE, tbl, hdl, false, value) == 0) {
          fprintf(stderr, "orbisk_demo: error: table 0x%08" PRIx32 ": entry %" PRIu32
                  " has no value text\n", tbl, hdl);
          ++g_failures;
        }
        uint32_t size = sizeof plcmt;
        must(pipe_mgr_plcmt_mat_data_get(SESS, kTarget, tbl, hdl, plcmt, &size),
             "placement data of a walked entry");
        if (p4_pd_orbisk_switch_plcmt_data_eq_to_hw(SESS, DEVICE, tbl, hdl, plcmt, size,
                                                    message)) {
          ++agree;
          printf("    entry %" PRIu32 ": %s  (as the chip holds it)\n", hdl, value);
        } else {
          fprintf(stderr, "orbisk_demo: error: table 0x%08" PRIx32 ": entry %" PRIu32
                  ": the chip differs: %s\n", tbl, hdl, message);
          ++g_failures;
        }
        pd_entry_hdl next = 0xffffffffu;
        if (p4_pd_orbisk_switch_entry_hdl_next(SESS, kTarget, tbl, hdl, 1, &next) != BF_SUCCESS) {
          break;
        }
        hdl = next;
      }
    }
  }

  for (size_t i = 0; i < sizeof kProfiles / sizeof kProfiles[0]; ++i) {
    pd_mbr_hdl mbr = 0xffffffffu;
    if (p4_pd_orbisk_switch_member_hdl_first(SESS, kTarget, kProfiles[i], &mbr) != BF_SUCCESS) {
      continue;
    }
    p4_pd_orbisk_switch_cli_schema(kProfiles[i], schema);
    printf("walk: profile 0x%08" PRIx32 "\n    schema %s\n", kProfiles[i], schema);
    while (mbr != 0xffffffffu) {
      ++members;
      uint32_t size = sizeof plcmt;
      must(pipe_mgr_plcmt_adt_data_get(SESS, kTarget, kProfiles[i], mbr, plcmt, &size),
           "placement data of a walked member");
      if (p4_pd_orbisk_switch_adt_plcmt_data_value(kProfiles[i], plcmt, value) == 0) {
        fprintf(stderr, "orbisk_demo: error: profile 0x%08" PRIx32 ": member %" PRIu32
                " does not decode\n", kProfiles[i], mbr);
        ++g_failures;
      } else {
        printf("    member 0x%08" PRIx32 ": %s\n", mbr, value);
      }
      pd_mbr_hdl next = 0xffffffffu;
      if (p4_pd_orbisk_switch_member_hdl_next(SESS, kTarget, kProfiles[i], mbr, 1, &next) !=
          BF_SUCCESS) {
        break;
      }
      mbr = next;
    }
  }
  printf("walked %u tables and %zu profiles from handles alone: %u entries, %u as the chip "
         "holds them; %u members\n",
         tables, sizeof kProfiles / sizeof kProfiles[0], entries, agree, members);
  if (tables != 154) {
    fprintf(stderr, "orbisk_demo: error: the walk found %u tables, not 154\n", tables);
    ++g_failures;
  }
}

int main(void) {
  p4_pd_orbisk_switch_init();
  printf("registered with the driver as client %" PRIu32 "\n", bf_drv_hdl);

  pd_entry_hdl port = add_port_mapping();
  pd_entry_hdl vlan = add_vlan_member();
  pd_entry_hdl mac = add_mac();
  pd_entry_hdl route = add_route();

  expect_count("ingressPortMapping", p4_pd_orbisk_switch_ingressPortMapping_get_entry_count, 1);
  expect_count("l2DomainLookup", p4_pd_orbisk_switch_l2DomainLookup_get_entry_count, 1);
  expect_count("l2Lookup", p4_pd_orbisk_switch_l2Lookup_get_entry_count, 1);
  expect_count("ipv4ShortMaskLpm", p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry_count, 1);

  show_port_mapping(port);
  show_vlan_member(vlan);
  show_mac(mac);
  show_route(route);
  const pd_entry_hdl entries[4] = {port, vlan, mac, route};
  show_texts(entries);

  must(p4_pd_orbisk_switch_ingressPortMapping_table_delete(SESS, DEVICE, port),
       "ingressPortMapping delete");
  must(p4_pd_orbisk_switch_l2DomainLookup_table_delete(SESS, DEVICE, vlan),
       "l2DomainLookup delete");
  must(p4_pd_orbisk_switch_l2Lookup_table_delete(SESS, DEVICE, mac), "l2Lookup delete");
  must(p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_delete(SESS, DEVICE, route),
       "ipv4ShortMaskLpm delete");

  expect_count("ingressPortMapping", p4_pd_orbisk_switch_ingressPortMapping_get_entry_count, 0);
  expect_count("l2DomainLookup", p4_pd_orbisk_switch_l2DomainLookup_get_entry_count, 0);
  expect_count("l2Lookup", p4_pd_orbisk_switch_l2Lookup_get_entry_count, 0);
  expect_count("ipv4ShortMaskLpm", p4_pd_orbisk_switch_ipv4ShortMaskLpm_get_entry_count, 0);
  printf("deleted 4 entries; all four tables are empty\n");

  age_out_route();
  count_drops();
  struct ecmp ecmp;
  ecmp_route(&ecmp);
  ecmp_hash(&ecmp);
  learn_mac();
  walk_program();

  must(p4_pd_orbisk_switch_cleanup(), "cleanup");

  if (g_failures) {
    fprintf(stderr, "orbisk_demo: error: %d check(s) failed\n", g_failures);
    return 1;
  }
  printf("orbisk_demo: all entries read back as written\n");
  return 0;
}
