// Cost of the driver model itself: one l2Lookup table filled to a given
// number of entries, with the call log off, then every entry read, found by
// key and deleted, each in a scattered order. Reports the time per add, read
// (pipe_mgr_get_entry), entry rendered as value text by the library
// (l2Lookup_value, a read and its text), find by key
// (pipe_mgr_match_spec_to_ent_hdl) and delete, and how much the process's
// resident memory grew per entry; and the rate of value text in entries per
// second, which stays the same at every size when its cost is linear.
//
// The driver functions are called directly with records made here: the
// library is in the picture only for the value text. With several sizes, each runs in a child
// process of its own, so one size's freed memory cannot hide the next one's
// growth; a single size runs in the process itself.
//
//   bench_model                  10,000, 100,000 and 1,000,000 entries
//   bench_model N...             the given sizes
//   bench_model --log-ring N...  the same with the call log on, as a ring of
//                                its default size
//   bench_model --until PHASE N  stop after the add, read, text, find or delete
//                                phase: for instruction counts per phase
//                                under callgrind, as differences of runs
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

#include "descriptors.h"
#include "orbisk_driver_model.h"
#include "orbisk_switch/pd.h"

namespace {

using Clock = std::chrono::steady_clock;

const orbisk::pd::TableDesc &l2_lookup() {
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    if (std::string_view(orbisk::pd::kTables[i].name) == "l2Lookup") return orbisk::pd::kTables[i];
  }
  std::fprintf(stderr, "no l2Lookup table\n");
  std::exit(2);
}

const orbisk::pd::TableActionDesc &known_ucast(const orbisk::pd::TableDesc &t) {
  for (uint16_t i = 0; i < t.num_actions; ++i) {
    if (std::string_view(t.actions[i].action->name) == "l2LookupKnownUcast") return t.actions[i];
  }
  std::fprintf(stderr, "no l2LookupKnownUcast action\n");
  std::exit(2);
}

std::size_t resident_bytes() {
  unsigned long size = 0, resident = 0;
  FILE *f = std::fopen("/proc/self/statm", "r");
  if (f == nullptr || std::fscanf(f, "%lu %lu", &size, &resident) != 2) resident = 0;
  if (f != nullptr) std::fclose(f);
  return resident * std::size_t(sysconf(_SC_PAGESIZE));
}

// The key of entry i: a station address that differs in every entry, an
// organisation part and a 12-bit domain scattered from it.
void key_of(uint32_t i, uint8_t value[8]) {
  const uint32_t oui = (i * 2654435761u) >> 8;
  const uint32_t domain = (i * 40503u) & 0xFFF;
  const uint8_t bytes[8] = {uint8_t(oui >> 16),   uint8_t(oui >> 8), uint8_t(oui),
                            uint8_t(i >> 16),     uint8_t(i >> 8),   uint8_t(i),
                            uint8_t(domain >> 8), uint8_t(domain)};
  std::memcpy(value, bytes, 8);
}

double ns_per(Clock::duration d, std::size_t n) {
  return std::chrono::duration<double, std::nano>(d).count() / double(n);
}

enum Phase { kAdd, kRead, kText, kFind, kDelete };

int run(uint32_t n, bool log_ring, Phase until) {
  const orbisk::pd::TableDesc &t = l2_lookup();
  const orbisk::pd::TableActionDesc &ucast = known_ucast(t);
  orbisk_model_reset();
  if (!log_ring) orbisk_model_set_call_log(ORBISK_MODEL_LOG_OFF, 0);
  orbisk_model_set_capacity(0, t.handle, n);
  const pd_dev_target dev = {0, PD_DEV_PIPE_ALL};

  uint8_t value[8], mask[8];
  std::memset(mask, 0xFF, sizeof mask);
  pd_match_record key{};
  key.value_bytes = value;
  key.mask_bytes = mask;
  key.num_bytes = t.key_bytes;
  key.num_valid_bits = t.key_bits;
  uint8_t data[3];
  pd_action_record act{};
  act.record_kind = PD_RECORD_KIND_DIRECT;
  act.num_bytes = ucast.action->data_bytes;
  act.num_valid_bits = ucast.action->data_bits;
  act.data_bytes = data;

  std::vector<pd_entry_hdl> handles(n);
  // A scattered order for reads, finds and deletes: i * step mod n visits
  // every entry once, as the step shares no factor with 10^k.
  const uint64_t step = 1000003;
  const std::size_t before = resident_bytes();
  unsigned failed = 0;

  const Clock::time_point t0 = Clock::now();
  for (uint32_t i = 0; i < n; ++i) {
    key_of(i, value);
    data[0] = uint8_t(i >> 16) & 0x0F;
    data[1] = uint8_t(i >> 8);
    data[2] = uint8_t(i);
    failed +=
        pipe_mgr_mat_ent_add(1, dev, t.handle, &key, ucast.handle, &act, 0, 0, &handles[i]) != 0;
  }
  const Clock::time_point t1 = Clock::now();
  const std::size_t after = resident_bytes();
  if (until == kAdd) return failed != 0;

  uint8_t read_value[8], read_mask[8], read_data[28];
  pd_match_record out_key{};
  pd_action_record out_act{};
  pd_act_fn_hdl out_fn = 0;
  for (uint32_t i = 0; i < n; ++i) {
    const uint32_t j = uint32_t(i * step % n);
    out_key = {read_value, read_mask, 0, 0, 0, uint16_t(sizeof read_value), 0};
    out_act.data_bytes = read_data;
    out_act.num_bytes = sizeof read_data;
    failed +=
        pipe_mgr_get_entry(1, t.handle, dev, handles[j], &out_key, &out_act, &out_fn, 0, 1, 0) != 0;
  }
  const Clock::time_point t2 = Clock::now();
  if (until == kRead) return failed != 0;
  char text[P4_PD_ORBISK_SWITCH_VALUE_MAX];
  for (uint32_t i = 0; i < n; ++i) {
    const uint32_t j = uint32_t(i * step % n);
    failed += p4_pd_orbisk_switch_l2Lookup_value(1, 0, handles[j], false, text) == 0;
  }
  const Clock::time_point t_text = Clock::now();
  if (until == kText) return failed != 0;
  for (uint32_t i = 0; i < n; ++i) {
    const uint32_t j = uint32_t(i * step % n);
    key_of(j, value);
    pd_entry_hdl found = 0;
    failed += pipe_mgr_match_spec_to_ent_hdl(1, dev, t.handle, &key, &found, 0) != 0;
    failed += found != handles[j];
  }
  const Clock::time_point t3 = Clock::now();
  if (until == kFind) return failed != 0;
  for (uint32_t i = 0; i < n; ++i) {
    const uint32_t j = uint32_t(i * step % n);
    failed += pipe_mgr_mat_ent_del(1, 0, t.handle, handles[j], 0) != 0;
  }
  const Clock::time_point t4 = Clock::now();

  std::printf("%9u  %8.0f  %8.0f  %8.0f  %8.0f  %8.0f  %12.0f  %11.0f\n", n, ns_per(t1 - t0, n),
              ns_per(t2 - t1, n), ns_per(t_text - t2, n), ns_per(t3 - t_text, n), ns_per(t4 - t3, n),
              double(after - before) / n, 1e9 / ns_per(t_text - t2, n));
  if (failed != 0) std::printf("  %u calls failed\n", failed);
  return failed != 0;
}

}  // namespace

int main(int argc, char **argv) {
  bool log_ring = false;
  Phase until = kDelete;
  std::vector<uint32_t> sizes;
  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    if (a == "--log-ring") {
      log_ring = true;
    } else if (a == "--until" && i + 1 < argc) {
      const std::string_view p = argv[++i];
      until = p == "add"    ? kAdd
              : p == "read" ? kRead
              : p == "text" ? kText
              : p == "find" ? kFind
                            : kDelete;
    } else {
      sizes.push_back(uint32_t(std::strtoul(argv[i], nullptr, 10)));
    }
  }
  if (sizes.empty()) sizes = {10000, 100000, 1000000};
  std::printf("call log %s; ns per call, resident bytes per entry\n",
              log_ring ? "on (ring of the default size)" : "off");
  std::printf("  entries       add      read      text      find    delete  bytes/entry  texts/s\n");
  std::fflush(stdout);
  if (sizes.size() == 1) return run(sizes[0], log_ring, until);
  int status = 0;
  for (uint32_t n : sizes) {
    if (n == 0) continue;
    const pid_t pid = fork();
    if (pid == 0) {
      const int failed = run(n, log_ring, until);
      std::fflush(stdout);
      std::_Exit(failed);
    }
    int child = 0;
    waitpid(pid, &child, 0);
    status |= !WIFEXITED(child) || WEXITSTATUS(child) != 0;
  }
  return status;
}
