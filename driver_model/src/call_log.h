// The call log: every driver call as the caller made it, with named copies of
// the records it passed, kept whole, in one of three modes (all calls, a ring
// of the latest, or none).
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <memory>

#include "functions.h"
#include "public_api.h"
#include "stores.h"

namespace orbisk_model {

// The records one call passes in, by name, to be copied if the log is on.
// Only pointers are taken here: with the log off nothing is copied.
class Passing {
 public:
  struct Item {
    const char *name;
    const void *bytes;
    std::size_t size;
  };
  // Any record or string; a null one is left out.
  void add(const char *name, const void *bytes, std::size_t size) {
    if (bytes != nullptr && count_ < kMax) items_[count_++] = {name, bytes, size};
  }
  // A key as "key" with its strings as "key.value" and "key.mask".
  void key(const pd_match_record *key) {
    if (key == nullptr) return;
    add("key", key, sizeof *key);
    add("key.value", key->value_bytes, key->num_bytes);
    add("key.mask", key->mask_bytes, key->num_bytes);
  }
  // An action record as "act" with its data as "act.data".
  void act(const pd_action_record *act) {
    if (act == nullptr) return;
    add("act", act, sizeof *act);
    add("act.data", act->data_bytes, act->num_bytes);
  }
  const Item *begin() const { return items_; }
  const Item *end() const { return items_ + count_; }
  std::size_t size() const { return count_; }

 private:
  static constexpr std::size_t kMax = 8;
  Item items_[kMax];
  std::size_t count_ = 0;
};

class CallLog final : public Store {
 public:
  // Forgets every call and goes back to the default ring.
  void clear() override;
  // Forgets every call and gives their memory back; the mode stays.
  void drop_all();
  void set_mode(orbisk_model_log_mode mode, std::size_t ring_size);

  // Appends a call, or does nothing and answers null with the log off. The
  // record stays where it is until it leaves the log.
  orbisk_model_call *record(Fn fn, std::initializer_list<uint64_t> args, const Passing &passed) {
    return mode_ == ORBISK_MODEL_LOG_OFF ? nullptr : append(fn, args, passed);
  }

  std::size_t size() const { return calls_.size(); }
  const orbisk_model_call *at(std::size_t i) const {
    return i < calls_.size() ? &calls_[i].call : nullptr;
  }

 private:
  struct Rec {
    orbisk_model_call call;
    std::unique_ptr<uint64_t[]> block;  // arguments, names, views and copies
  };
  orbisk_model_call *append(Fn fn, std::initializer_list<uint64_t> args, const Passing &passed);

  orbisk_model_log_mode mode_ = ORBISK_MODEL_LOG_RING;
  std::size_t ring_size_ = ORBISK_MODEL_LOG_RING_DEFAULT;
  // A deque: records of a call that stays never move when others come and go.
  std::deque<Rec> calls_;
};

}  // namespace orbisk_model
