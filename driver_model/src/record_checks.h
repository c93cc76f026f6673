// Checks of the records a caller passes against the program's descriptors:
// sizes, record kinds, allowed actions, and the widths of key fields and
// action parameters. A record that fails is refused before anything changes.
#pragma once

#include "descriptors.h"
#include "public_api.h"

namespace orbisk_model {

// A key for an entry of the table: its sizes, its strings, and every field
// within its width.
pd_status check_key(const orbisk::pd::TableDesc &t, const pd_match_record *key);

// The action of an entry (as_default false) or of the table's default.
pd_status check_action(const orbisk::pd::TableDesc &t, pd_act_fn_hdl fn,
                       const pd_action_record *act, bool as_default);

}  // namespace orbisk_model
