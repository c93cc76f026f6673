/* The public header, its records and prototypes, as a C11 program sees them. */
#include "orbisk_switch/pd.h"

_Static_assert(sizeof(p4_pd_orbisk_switch_l2Lookup_match_spec_t) >= 10, "host key record");
_Static_assert(P4_PD_ORBISK_SWITCH_ACTION_COUNT == 296, "296 actions");

pd_status (*const orbisk_c11_add)(pd_sess_hdl, pd_dev_target,
                                  const p4_pd_orbisk_switch_l2Lookup_match_spec_t *,
                                  const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *,
                                  pd_entry_hdl *) =
    p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast;
