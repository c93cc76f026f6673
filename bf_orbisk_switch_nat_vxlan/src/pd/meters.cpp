#include "meters.h"

#include "assertions.h"

namespace orbisk::pd {

namespace {

// The generic calls' checks come from the inspection sources, and cannot
// return: a caller of that path chooses has_pre_color itself.
constexpr const char *kGenericSource = "bf_orbisk_switch_nat_vxlan/src/pd_orbisk";

uint32_t checked_meter_type(uint32_t meter_type, bool has_pre_color, const char *function) {
  if (meter_type > PD_METER_TYPE_COLOR_UNAWARE) {
    pd_hard_assert_failed_in(
        kGenericSource,
        "requested_meter_type == PD_METER_TYPE_COLOR_AWARE || requested_meter_type == "
        "PD_METER_TYPE_COLOR_UNAWARE",
        function, __LINE__);
  }
  if (meter_type == PD_METER_TYPE_COLOR_AWARE && !has_pre_color) {
    pd_hard_assert_failed_in(kGenericSource, "has_pre_color == true", function, __LINE__);
  }
  return meter_type;
}

void unfill(pd_meter_spec &spec, const pd_meter_record &m) {
  spec.cir = uint32_t(m.cir);
  spec.cburst = uint32_t(m.cburst);
  spec.pir = uint32_t(m.pir);
  spec.pburst = uint32_t(m.pburst);
  spec.meter_type = m.meter_type;
}

}  // namespace

pd_status meter_set_generic(bool packets, pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl,
                            uint32_t index, const pd_meter_spec *spec, bool has_pre_color) {
  const uint32_t type = checked_meter_type(
      spec->meter_type, has_pre_color, packets ? "get_packets_meter_type" : "get_bytes_meter_type");
  pd_meter_record m{};
  fill_meter(m, type, packets ? PD_METER_RATE_UNIT_PACKETS : PD_METER_RATE_UNIT_BYTES, *spec);
  return pipe_mgr_meter_ent_set(sess, target, tbl, index, &m, 0);
}

pd_status wred_set(pd_sess_hdl sess, pd_dev_target target, pd_tbl_hdl tbl, uint32_t index,
                   const pd_wred_spec *spec) {
  pd_wred_spec w = *spec;
  return pipe_mgr_wred_ent_set(sess, target, tbl, index, &w, 0);
}

uint32_t get_packets_meter_type(uint32_t meter_type, bool has_pre_color) {
  return meter_type_for(meter_type, has_pre_color, __func__);
}

pd_status send_direct_meter_bad_type(pd_tbl_hdl tbl, uint32_t meter_hdl, pd_sess_hdl sess,
                                     uint32_t device_id, pd_entry_hdl entry_hdl,
                                     const pd_meter_spec *spec) {
  return send_direct_meter(tbl, meter_hdl, sess, device_id, entry_hdl, spec,
                           get_bytes_meter_type(spec->meter_type, true));
}

pd_status meter_set_indexed(pd_tbl_hdl tbl, bool packets, pd_sess_hdl sess,
                            pd_dev_target target, uint32_t index, const pd_meter_spec *spec) {
  pd_meter_record m{};
  fill_meter(m, named_meter_type(spec->meter_type, packets),
             packets ? PD_METER_RATE_UNIT_PACKETS : PD_METER_RATE_UNIT_BYTES, *spec);
  return pipe_mgr_meter_ent_set(sess, target, tbl, index, &m, 0);
}

pd_status meter_read_direct(pd_tbl_hdl tbl, pd_sess_hdl sess, uint32_t device_id,
                            pd_entry_hdl entry_hdl, pd_meter_spec *spec) {
  pd_meter_record m{};
  if (pd_status s = pipe_mgr_meter_read_entry(sess, device_id, tbl, entry_hdl, &m)) return s;
  unfill(*spec, m);
  return BF_SUCCESS;
}

pd_status meter_read_indexed(pd_tbl_hdl tbl, pd_sess_hdl sess, pd_dev_target target,
                             uint32_t index, pd_meter_spec *spec) {
  pd_meter_record m{};
  if (pd_status s = pipe_mgr_meter_read_entry_idx(sess, target, tbl, index, &m, 0)) return s;
  unfill(*spec, m);
  return BF_SUCCESS;
}

}  // namespace orbisk::pd
