// Learning digests: subscriptions, the learning timeout, learned entries
// packed in the program's layout into messages, delivered to the subscriber
// after the lock and kept until acknowledged.
#include "descriptors.h"
#include "model.h"

using namespace orbisk_model;
using orbisk::pd::DigestDesc;
using orbisk::pd::find_digest;

namespace orbisk_model {

void DigestStore::clear() {
  subscriptions.clear();
  pending.clear();
  timeouts.clear();
  delivered.clear();
  next_msg_id = 1;
}

void DigestStore::drop_device(uint32_t device_id) {
  erase_device(subscriptions, device_id);
  erase_device(pending, device_id);
  timeouts.erase(device_id);
  std::erase_if(delivered, [&](const auto &kv) { return kv.first->dev_tgt.device_id == device_id; });
}

void DigestStore::deliver(const Key &key, std::vector<std::function<void()>> &due) {
  auto p = pending.find(key);
  auto s = subscriptions.find(key);
  if (p == pending.end() || s == subscriptions.end()) return;
  auto m = std::make_unique<Message>();
  m->entries = std::move(p->second.entries);
  m->msg.dev_tgt = {key.first, PD_DEV_PIPE_ALL};
  m->msg.digest_hdl = key.second;
  m->msg.num_entries = p->second.count;
  m->msg.entry_bytes = uint16_t(m->entries.size() / p->second.count);
  m->msg.entries = m->entries.data();
  m->msg.msg_id = next_msg_id++;
  pending.erase(p);
  pd_lrn_digest_msg *msg = &m->msg;
  delivered.emplace(msg, std::move(m));
  const Subscription sub = s->second;
  due.push_back([sub, msg] { sub.callback(sub.sess, msg, sub.cookie); });
}

void DigestStore::deliver_due(uint64_t now_ms, std::vector<std::function<void()>> &due) {
  std::vector<Key> ready;
  for (const auto &[key, p] : pending) {
    auto t = timeouts.find(key.first);
    const uint64_t timeout = t == timeouts.end() ? 0 : t->second;
    if (now_ms - p.since_ms >= timeout) ready.push_back(key);
  }
  for (const Key &k : ready) deliver(k, due);
}

}  // namespace orbisk_model

namespace {

// Packs one entry: each value most significant byte first into its field,
// 8-byte words for a wider field. False when the values do not fit.
bool pack(const DigestDesc &d, const uint64_t *values, uint32_t n, std::vector<uint8_t> &out) {
  const std::size_t base = out.size();
  out.resize(base + d.entry_bytes);
  uint32_t v = 0;
  for (uint16_t f = 0; f < d.num_fields; ++f) {
    const uint16_t bytes = d.fields[f].bytes;
    uint8_t *at = out.data() + base + d.fields[f].offset;
    for (uint16_t done = 0; done < bytes;) {
      const uint16_t chunk = uint16_t(bytes - done > 8 ? 8 : bytes - done);
      if (v == n) return false;
      const uint64_t value = values[v++];
      if (chunk < 8 && value >> (8 * chunk) != 0) return false;
      for (uint16_t i = 0; i < chunk; ++i) at[done + i] = uint8_t(value >> (8 * (chunk - 1 - i)));
      done = uint16_t(done + chunk);
    }
  }
  return v == n;
}

}  // namespace

extern "C" {

pd_status pipe_mgr_lrn_digest_notification_register(pd_sess_hdl sess, uint32_t device_id,
                                                    uint32_t digest_hdl,
                                                    pd_lrn_digest_cb callback, void *cookie) {
  return run(Fn::pipe_mgr_lrn_digest_notification_register,
             {arg(sess), arg(device_id), arg(digest_hdl), arg(callback), arg(cookie)},
             [&](Model &m) {
               if (find_digest(digest_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_DIGEST;
               if (callback == nullptr) return ORBISK_MODEL_BAD_RECORD;
               m.digests.subscriptions[{device_id, digest_hdl}] = {sess, callback, cookie};
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_lrn_digest_notification_deregister(pd_sess_hdl sess, uint32_t device_id,
                                                      uint32_t digest_hdl) {
  return run(Fn::pipe_mgr_lrn_digest_notification_deregister,
             {arg(sess), arg(device_id), arg(digest_hdl)}, [&](Model &m) {
               if (find_digest(digest_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_DIGEST;
               if (m.digests.subscriptions.erase({device_id, digest_hdl}) == 0) {
                 return ORBISK_MODEL_NOT_SUBSCRIBED;
               }
               m.digests.pending.erase({device_id, digest_hdl});
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_flow_lrn_notify_ack(pd_sess_hdl sess, uint32_t digest_hdl,
                                       pd_lrn_digest_msg *msg) {
  return run(Fn::pipe_mgr_flow_lrn_notify_ack, {arg(sess), arg(digest_hdl), arg(msg)},
             [&](Model &m) {
               if (find_digest(digest_hdl) == nullptr) return ORBISK_MODEL_NO_SUCH_DIGEST;
               auto it = m.digests.delivered.find(msg);
               if (it == m.digests.delivered.end() || it->second->msg.digest_hdl != digest_hdl) {
                 return ORBISK_MODEL_NOT_DELIVERED;
               }
               m.digests.delivered.erase(it);
               return BF_SUCCESS;
             });
}

pd_status pipe_mgr_flow_lrn_set_timeout(pd_sess_hdl sess, uint32_t device_id, uint32_t timeout) {
  return run(Fn::pipe_mgr_flow_lrn_set_timeout, {arg(sess), arg(device_id), arg(timeout)},
             [&](Model &m) {
               m.digests.timeouts[device_id] = timeout;
               return BF_SUCCESS;
             });
}

pd_status orbisk_model_learn(uint32_t device_id, uint32_t digest_hdl, const uint64_t *values,
                             uint32_t num_values) {
  return in_frame([&](Model &m) {
    const DigestDesc *d = find_digest(digest_hdl);
    if (d == nullptr) return ORBISK_MODEL_NO_SUCH_DIGEST;
    const DigestStore::Key key{device_id, digest_hdl};
    if (m.digests.subscriptions.count(key) == 0) return ORBISK_MODEL_NOT_SUBSCRIBED;
    if (values == nullptr && num_values != 0) return ORBISK_MODEL_BAD_RECORD;
    std::vector<uint8_t> entry;
    if (!pack(*d, values, num_values, entry)) return ORBISK_MODEL_BAD_RECORD;
    auto [it, fresh] = m.digests.pending.try_emplace(key);
    if (fresh) it->second.since_ms = m.idle.now_ms();
    it->second.entries.insert(it->second.entries.end(), entry.begin(), entry.end());
    ++it->second.count;
    if (it->second.count >= ORBISK_MODEL_DIGEST_MAX_ENTRIES) {
      m.digests.deliver(key, m.notifications);
    } else {
      m.digests.deliver_due(m.idle.now_ms(), m.notifications);
    }
    return BF_SUCCESS;
  });
}

size_t orbisk_model_digests_unacked(uint32_t device_id, uint32_t digest_hdl) {
  return in_frame([&](Model &m) {
    size_t n = 0;
    for (const auto &kv : m.digests.delivered) {
      n += kv.first->dev_tgt.device_id == device_id && kv.first->digest_hdl == digest_hdl;
    }
    return n;
  });
}

size_t orbisk_model_digests_pending(uint32_t device_id, uint32_t digest_hdl) {
  return in_frame([&](Model &m) -> size_t {
    auto it = m.digests.pending.find({device_id, digest_hdl});
    return it == m.digests.pending.end() ? 0 : it->second.count;
  });
}

}  // extern "C"
