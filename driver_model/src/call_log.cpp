// The call log: one heap block per call holds its arguments, the names and
// copies of the records it passed, and the typed views of its key and action
// records, so a call costs one allocation and gives it all back when it goes.
#include "call_log.h"

#include <cstring>
#include <string_view>

namespace orbisk_model {

namespace {

constexpr std::size_t words(std::size_t bytes) { return (bytes + 7) / 8; }

}  // namespace

void CallLog::clear() {
  drop_all();
  mode_ = ORBISK_MODEL_LOG_RING;
  ring_size_ = ORBISK_MODEL_LOG_RING_DEFAULT;
}

void CallLog::drop_all() {
  // Swapped with an empty deque: clear() would keep a block of it.
  std::deque<Rec>().swap(calls_);
}

void CallLog::set_mode(orbisk_model_log_mode mode, std::size_t ring_size) {
  mode_ = mode;
  ring_size_ = ring_size == 0 ? ORBISK_MODEL_LOG_RING_DEFAULT : ring_size;
  if (mode_ == ORBISK_MODEL_LOG_OFF) {
    drop_all();
  } else if (mode_ == ORBISK_MODEL_LOG_RING) {
    while (calls_.size() > ring_size_) calls_.pop_front();
  }
}

orbisk_model_call *CallLog::append(Fn fn, std::initializer_list<uint64_t> args,
                                   const Passing &passed) {
  // Layout of the block, in 8-byte words: the arguments, one name record per
  // copy, the typed key and action views, then the copies one after another.
  const std::size_t n_args = args.size();
  const std::size_t n_rec = passed.size();
  std::size_t total = n_args + words(n_rec * sizeof(orbisk_model_bytes)) +
                      words(sizeof(pd_match_record)) + words(sizeof(pd_action_record));
  for (const Passing::Item &p : passed) total += words(p.size);

  Rec &rec = calls_.emplace_back();
  // Not zeroed: every byte that is read back is written below.
  rec.block = std::make_unique_for_overwrite<uint64_t[]>(total);
  uint64_t *w = rec.block.get();

  orbisk_model_call &c = rec.call;
  c = {};
  c.function = name_of(fn);
  c.num_args = uint32_t(n_args);
  c.args = w;
  std::copy(args.begin(), args.end(), w);
  w += n_args;

  auto *names = reinterpret_cast<orbisk_model_bytes *>(w);
  w += words(n_rec * sizeof(orbisk_model_bytes));
  auto *key_view = reinterpret_cast<pd_match_record *>(w);
  w += words(sizeof(pd_match_record));
  auto *act_view = reinterpret_cast<pd_action_record *>(w);
  w += words(sizeof(pd_action_record));

  const uint8_t *key_value = nullptr;
  const uint8_t *key_mask = nullptr;
  const uint8_t *act_data = nullptr;
  for (const Passing::Item &p : passed) {
    auto *copy = reinterpret_cast<uint8_t *>(w);
    if (p.size != 0) std::memcpy(copy, p.bytes, p.size);
    w += words(p.size);
    names[c.num_records++] = {p.name, copy, p.size};
    const std::string_view name = p.name;
    if (name == "key") {
      std::memcpy(key_view, copy, sizeof *key_view);
      c.key = key_view;
    } else if (name == "key.value") {
      key_value = copy;
    } else if (name == "key.mask") {
      key_mask = copy;
    } else if (name == "act") {
      std::memcpy(act_view, copy, sizeof *act_view);
      c.act = act_view;
    } else if (name == "act.data") {
      act_data = copy;
    }
  }
  c.records = c.num_records != 0 ? names : nullptr;
  // The views point at the copied strings, or are null where the caller's were.
  key_view->value_bytes = const_cast<uint8_t *>(key_value);
  key_view->mask_bytes = const_cast<uint8_t *>(key_mask);
  act_view->data_bytes = const_cast<uint8_t *>(act_data);

  if (mode_ == ORBISK_MODEL_LOG_RING && calls_.size() > ring_size_) calls_.pop_front();
  return &calls_.back().call;
}

}  // namespace orbisk_model

using orbisk_model::CallLog;

extern "C" const uint8_t *orbisk_model_call_bytes(const orbisk_model_call *call, const char *name,
                                                  size_t *size) {
  if (call == nullptr || name == nullptr) return nullptr;
  for (uint32_t i = 0; i < call->num_records; ++i) {
    if (std::strcmp(call->records[i].name, name) == 0) {
      if (size != nullptr) *size = call->records[i].size;
      return call->records[i].bytes;
    }
  }
  return nullptr;
}
