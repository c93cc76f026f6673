// The walk from handles alone. The per-table and per-profile functions are
// each one driver call with their handle as a constant; a dispatcher makes
// the same call with the handle it was given, once the handle is known to
// name a table (or a profile), so the forward is a tail call. The answers
// to a handle that names nothing differ on purpose: an entry walk reports
// success with the invalid handle, so a walker stops on the handle alone; a
// member walk reports a failure as well.
#include "dispatch.h"
#include "export.h"
#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

using namespace orbisk::pd;

namespace {

constexpr uint32_t kInvalidHandle = 0xFFFFFFFFu;
constexpr pd_status kNoProfile = 0xFFFFFFFFu;

}  // namespace

PD_EXPORT pd_status p4_pd_orbisk_switch_entry_hdl_first(pd_sess_hdl sess_hdl, pd_dev_target dev_tgt,
                                                        pd_tbl_hdl tbl_hdl,
                                                        pd_entry_hdl *entry_hdl) {
  if (table_slot(tbl_hdl) == kNoSlot) {
    *entry_hdl = kInvalidHandle;
    return 0;
  }
  return pipe_mgr_get_first_entry_handle(sess_hdl, tbl_hdl, dev_tgt, entry_hdl);
}

PD_EXPORT pd_status p4_pd_orbisk_switch_entry_hdl_next(pd_sess_hdl sess_hdl, pd_dev_target dev_tgt,
                                                       pd_tbl_hdl tbl_hdl, pd_entry_hdl entry_hdl,
                                                       uint32_t n, pd_entry_hdl *next_entry_hdls) {
  if (table_slot(tbl_hdl) == kNoSlot) {
    *next_entry_hdls = kInvalidHandle;
    return 0;
  }
  return pipe_mgr_get_next_entry_handles(sess_hdl, tbl_hdl, dev_tgt, entry_hdl, n, next_entry_hdls);
}

PD_EXPORT pd_status p4_pd_orbisk_switch_entry_hdl_default(pd_sess_hdl sess_hdl,
                                                          pd_dev_target dev_tgt, pd_tbl_hdl tbl_hdl,
                                                          pd_entry_hdl *entry_hdl) {
  if (table_slot(tbl_hdl) == kNoSlot) {
    *entry_hdl = kInvalidHandle;
    return 0;
  }
  return pipe_mgr_table_get_default_entry_handle(sess_hdl, dev_tgt, tbl_hdl, entry_hdl);
}

PD_EXPORT pd_status p4_pd_orbisk_switch_member_hdl_first(pd_sess_hdl sess_hdl,
                                                         pd_dev_target dev_tgt, pd_tbl_hdl tbl_hdl,
                                                         pd_mbr_hdl *mbr_hdl) {
  if (profile_slot(tbl_hdl) == kNoSlot) {
    *mbr_hdl = kInvalidHandle;
    return kNoProfile;
  }
  return pipe_mgr_get_first_entry_handle(sess_hdl, tbl_hdl, dev_tgt, mbr_hdl);
}

PD_EXPORT pd_status p4_pd_orbisk_switch_member_hdl_next(pd_sess_hdl sess_hdl, pd_dev_target dev_tgt,
                                                        pd_tbl_hdl tbl_hdl, pd_mbr_hdl mbr_hdl,
                                                        uint32_t n, pd_mbr_hdl *next_mbr_hdls) {
  if (profile_slot(tbl_hdl) == kNoSlot) {
    *next_mbr_hdls = kInvalidHandle;
    return kNoProfile;
  }
  return pipe_mgr_get_next_entry_handles(sess_hdl, tbl_hdl, dev_tgt, mbr_hdl, n, next_mbr_hdls);
}
