// Driver properties of match tables, and the callbacks told of every entry
// added, changed or deleted, per device and table.
#include "model.h"

using namespace orbisk_model;
using orbisk::pd::find_table;

namespace orbisk_model {

void PropertyStore::clear() {
  values.clear();
  update_cbs.clear();
}

void PropertyStore::drop_device(uint32_t device_id) {
  erase_device(values, device_id);
  erase_device(update_cbs, device_id);
}

void PropertyStore::add_devices(std::set<uint32_t> &devices) const {
  for (const auto &kv : values) devices.insert(kv.first.device_id);
  for (const auto &kv : update_cbs) devices.insert(kv.first.first);
}

void PropertyStore::updated(uint32_t device_id, pd_tbl_hdl tbl, pd_entry_hdl hdl, uint32_t type,
                            std::vector<std::function<void()>> &due) const {
  auto it = update_cbs.find({device_id, tbl});
  if (it == update_cbs.end()) return;
  const UpdateCb u = it->second;
  due.push_back([=] { u.callback(device_id, tbl, hdl, type, u.cookie); });
}

}  // namespace orbisk_model

extern "C" {

pd_status pipe_mgr_tbl_set_property(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    uint32_t property, uint32_t value, uint32_t second_value) {
  return run(Fn::pipe_mgr_tbl_set_property,
             {arg(sess), arg(device_id), arg(tbl), arg(property), arg(value), arg(second_value)},
             [&](Model &m) {
               if (find_table(tbl) == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               m.properties.values[{device_id, tbl, property}] = {value, second_value};
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_tbl_get_property(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                    uint32_t property, uint32_t *value, uint32_t *second_value) {
  return run(Fn::pipe_mgr_tbl_get_property,
             {arg(sess), arg(device_id), arg(tbl), arg(property), arg(value), arg(second_value)},
             [&](Model &m) {
               if (find_table(tbl) == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (value == nullptr || second_value == nullptr) return ORBISK_MODEL_BAD_RECORD;
               auto it = m.properties.values.find({device_id, tbl, property});
               // A property never set reads as 0 and 0.
               const auto v = it == m.properties.values.end() ? std::pair<uint32_t, uint32_t>{}
                                                              : it->second;
               *value = v.first;
               *second_value = v.second;
               return BF_SUCCESS;
             });
}

pd_status pipe_register_mat_update_cb(pd_sess_hdl sess, uint32_t device_id, pd_tbl_hdl tbl,
                                      pd_mat_update_cb callback, void *cookie) {
  return run(Fn::pipe_register_mat_update_cb,
             {arg(sess), arg(device_id), arg(tbl), arg(callback), arg(cookie)}, [&](Model &m) {
               if (find_table(tbl) == nullptr) return ORBISK_MODEL_NO_SUCH_TABLE;
               if (callback == nullptr) {
                 m.properties.update_cbs.erase({device_id, tbl});
               } else {
                 m.properties.update_cbs[{device_id, tbl}] = {callback, cookie};
               }
               return BF_SUCCESS;
             });
}

}  // extern "C"
