// The clients store: registration with the driver, callback records and the
// observers of both.
#include "model.h"

namespace orbisk_model {

void ClientStore::clear() {
  clients_.clear();
  next_ = 1;
}

uint32_t ClientStore::add(const char *name) {
  clients_[next_].name = name;
  return next_++;
}

ClientStore::Client *ClientStore::find(uint32_t hdl) {
  auto it = clients_.find(hdl);
  return it == clients_.end() ? nullptr : &it->second;
}

}  // namespace orbisk_model

using namespace orbisk_model;

extern "C" {

pd_status bf_drv_register(const char *client_name, uint32_t *client_hdl) {
  return run(Fn::bf_drv_register, {arg(client_name), arg(client_hdl)}, [&](Model &m) {
    if (client_name == nullptr || client_hdl == nullptr) return ORBISK_MODEL_BAD_RECORD;
    *client_hdl = m.clients.add(client_name);
    return BF_SUCCESS;
  });
}

pd_status bf_drv_deregister(uint32_t client_hdl) {
  return run(Fn::bf_drv_deregister, {arg(client_hdl)}, [&](Model &m) {
    return m.clients.erase(client_hdl) ? BF_SUCCESS : ORBISK_MODEL_NOT_REGISTERED;
  });
}

pd_status bf_drv_client_register_callbacks(uint32_t client_hdl, pd_drv_client_callbacks *callbacks,
                                           uint32_t priority) {
  Passing passed;
  passed.add("callbacks", callbacks, sizeof *callbacks);
  return run(Fn::bf_drv_client_register_callbacks, {arg(client_hdl), arg(callbacks), arg(priority)},
             passed, [&](Model &m) {
               ClientStore::Client *c = m.clients.find(client_hdl);
               if (c == nullptr) return ORBISK_MODEL_NOT_REGISTERED;
               if (callbacks == nullptr) return ORBISK_MODEL_BAD_RECORD;
               c->has_callbacks = true;
               c->callbacks = *callbacks;
               c->priority = priority;
               return BF_SUCCESS;
             });
}

const char *orbisk_model_client_name(uint32_t client_hdl) {
  return in_frame([&](Model &m) -> const char * {
    const ClientStore::Client *c = m.clients.find(client_hdl);
    return c ? c->name.c_str() : nullptr;
  });
}

const pd_drv_client_callbacks *orbisk_model_callbacks(uint32_t client_hdl) {
  return in_frame([&](Model &m) -> const pd_drv_client_callbacks * {
    const ClientStore::Client *c = m.clients.find(client_hdl);
    return c && c->has_callbacks ? &c->callbacks : nullptr;
  });
}

uint32_t orbisk_model_callbacks_priority(uint32_t client_hdl) {
  return in_frame([&](Model &m) -> uint32_t {
    const ClientStore::Client *c = m.clients.find(client_hdl);
    return c ? c->priority : 0;
  });
}

}  // extern "C"
