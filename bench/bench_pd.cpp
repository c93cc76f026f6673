// Cost of the library's own work per call: entry adds on tables of each match
// kind and an entry read, against a driver that returns at once, next to a
// hand-written packing of the l2Lookup add that does only what the driver
// needs.
//
// Ways to run:
//   bench_pd [google benchmark flags]   timed runs of every case
//   bench_pd --loop <case> <N>          N plain calls of one case, no framework,
//                                       then one line with the heap allocations
//                                       and failed calls seen in the loop
//   bench_pd --list                     names of the cases, one a line
// The loop form is for instruction counting (see callgrind.py): the framework
// stays out of the counted code, so two runs of N and 2N calls differ only by
// N calls.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"

// ------------------------------------------------------------ heap count ---
//
// Every allocation in the process passes through here, so that the loop form
// can tell whether a call allocates. The allocator proper is the C library's.

extern "C" {
void *__libc_malloc(size_t size) noexcept;
void *__libc_calloc(size_t count, size_t size) noexcept;
void *__libc_realloc(void *ptr, size_t size) noexcept;
void *__libc_memalign(size_t alignment, size_t size) noexcept;
}

namespace {
std::atomic<uint64_t> g_allocations{0};

void count_allocation() { g_allocations.fetch_add(1, std::memory_order_relaxed); }
}  // namespace

extern "C" {

void *malloc(size_t size) noexcept {
  count_allocation();
  return __libc_malloc(size);
}

void *calloc(size_t count, size_t size) noexcept {
  count_allocation();
  return __libc_calloc(count, size);
}

void *realloc(void *ptr, size_t size) noexcept {
  count_allocation();
  return __libc_realloc(ptr, size);
}

void *memalign(size_t alignment, size_t size) noexcept {
  count_allocation();
  return __libc_memalign(alignment, size);
}

void *aligned_alloc(size_t alignment, size_t size) noexcept {
  count_allocation();
  return __libc_memalign(alignment, size);
}

int posix_memalign(void **out, size_t alignment, size_t size) noexcept {
  count_allocation();
  if (alignment < sizeof(void *) || (alignment & (alignment - 1)) != 0) return 22;  // EINVAL
  void *p = __libc_memalign(alignment, size);
  if (p == nullptr) return 12;  // ENOMEM
  *out = p;
  return 0;
}

}  // extern "C"

// The reference below gets no help the library's functions cannot get: no
// inlining, and (for g++) no cloning or specialising on its callers' constants.
#if defined(__clang__)
#define BENCH_OUT_OF_LINE __attribute__((noinline))
#else
#define BENCH_OUT_OF_LINE __attribute__((noipa))
#endif

namespace orbisk_bench {

// ------------------------------------------------------------ reference ---
//
// The l2Lookup add with l2LookupKnownUcast written out by hand: the least a
// caller must do to hand the driver a correct pair of records. It has external
// linkage and is kept out of line, so that it is called the way the library's
// function is.
BENCH_OUT_OF_LINE pd_status reference_l2Lookup_add_l2LookupKnownUcast(
    pd_sess_hdl sess, pd_dev_target tgt, const p4_pd_orbisk_switch_l2Lookup_match_spec_t *ms,
    const p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t *as, pd_entry_hdl *entry_hdl) {
  uint8_t value[8];
  uint8_t mask[8];
  uint8_t data[3];

  // OUI (3 bytes), station (3 bytes), domain (2 bytes), most significant first.
  value[0] = uint8_t(ms->egrMd_dmacOui >> 16);
  value[1] = uint8_t(ms->egrMd_dmacOui >> 8);
  value[2] = uint8_t(ms->egrMd_dmacOui);
  value[3] = uint8_t(ms->egrMd_dmacStation >> 16);
  value[4] = uint8_t(ms->egrMd_dmacStation >> 8);
  value[5] = uint8_t(ms->egrMd_dmacStation);
  value[6] = uint8_t(ms->egrMd_egrL2Domain >> 8);
  value[7] = uint8_t(ms->egrMd_egrL2Domain);
  std::memset(mask, 0xFF, sizeof mask);

  pd_match_record key;
  key.value_bytes = value;
  key.mask_bytes = mask;
  key.partition_index = 0;
  key.priority = 0;
  key.num_valid_bits = 60;
  key.num_bytes = 8;
  key.reserved = 0;

  data[0] = uint8_t(as->action_egrL2Aintf >> 16);
  data[1] = uint8_t(as->action_egrL2Aintf >> 8);
  data[2] = uint8_t(as->action_egrL2Aintf);

  pd_action_record act;
  std::memset(&act, 0, sizeof act);
  act.record_kind = PD_RECORD_KIND_DIRECT;
  act.num_valid_bits = 20;
  act.num_bytes = 3;
  act.data_bytes = data;

  return pipe_mgr_mat_ent_add(sess, tgt, 0x0100002fu, &key, 0x200000a6u, &act, 0, 0, entry_hdl);
}

// A direct counter read written out by hand: the query into a local record
// and the swap into the caller's.
BENCH_OUT_OF_LINE pd_status reference_counter_read_l2DmacClassifyCount(
    pd_sess_hdl sess, uint32_t dev_id, pd_entry_hdl entry_hdl, uint32_t flags,
    pd_counter_value *value) {
  if (flags & 1u) {
    pd_status s = pipe_mgr_direct_stat_ent_database_sync(sess, dev_id, 0x0100000au, entry_hdl);
    if (s != BF_SUCCESS) return s;
  }
  pd_counter_record rec;
  pd_status s = pipe_mgr_mat_ent_direct_stat_query(sess, dev_id, 0x0100000au, entry_hdl, &rec);
  if (s != BF_SUCCESS) return s;
  value->packets = rec.packets;
  value->bytes = rec.bytes;
  return BF_SUCCESS;
}

// The direct meter set written out by hand: one resource slot with the byte
// meter's record, colour mode from the caller's meter record.
BENCH_OUT_OF_LINE pd_status reference_meter_set_stormControlMeter(pd_sess_hdl sess, uint32_t dev_id,
                                                                  pd_entry_hdl entry_hdl,
                                                                  const pd_meter_spec *spec) {
  pd_resource_record rec;
  std::memset(&rec, 0, sizeof rec);
  rec.resource_hdl = 0x05000001u;
  rec.resource_tag = PD_RESOURCE_TAG_ATTACHED;
  rec.resource_spec.meter.meter_type = spec->meter_type == PD_METER_TYPE_COLOR_UNAWARE ? 1u : 0u;
  rec.resource_spec.meter.cir = spec->cir;
  rec.resource_spec.meter.cburst = spec->cburst;
  rec.resource_spec.meter.pir = spec->pir;
  rec.resource_spec.meter.pburst = spec->pburst;
  return pipe_mgr_mat_ent_set_resource(sess, dev_id, 0x01000030u, entry_hdl, &rec, 1, 0);
}


// The three load-balancing hot paths written out by hand in the same way:
// the records and the state calls a caller must make, nothing else.
pd_ms_state *g_ecmp_state = nullptr;  // the stub's state, as init gets it

BENCH_OUT_OF_LINE pd_status reference_ecmp_add_member_setEcmpNextHop(
    pd_sess_hdl sess, pd_dev_target tgt, const p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t *as,
    pd_mbr_hdl *mbr_hdl) {
  uint8_t data[5];
  data[0] = as->action_nextHopTable;
  data[1] = uint8_t(as->action_nextHop >> 24);
  data[2] = uint8_t(as->action_nextHop >> 16);
  data[3] = uint8_t(as->action_nextHop >> 8);
  data[4] = uint8_t(as->action_nextHop);
  pd_action_record act;
  std::memset(&act, 0, sizeof act);
  act.num_valid_bits = 40;
  act.num_bytes = 5;
  act.data_bytes = data;
  pd_status s = pipe_mgr_adt_ent_add(sess, tgt, 0x12010003u, 0x30000018u, 0, &act, mbr_hdl, 0);
  if (s != BF_SUCCESS) return s;
  p4_pd_ms_new_mbr(sess, g_ecmp_state, tgt.device_id, *mbr_hdl);
  p4_pd_ms_set_mbr_act(g_ecmp_state, tgt.device_id, *mbr_hdl, 0x30000018u);
  return s;
}

BENCH_OUT_OF_LINE pd_status reference_ecmpGroup_add_entry_with_selector(
    pd_sess_hdl sess, pd_dev_target tgt, const p4_pd_orbisk_switch_ecmpGroup_match_spec_t *ms,
    pd_grp_hdl grp, pd_entry_hdl *entry_hdl) {
  uint8_t value[2];
  uint8_t mask[2];
  value[0] = uint8_t(ms->l3_nextHop >> 8);
  value[1] = uint8_t(ms->l3_nextHop);
  mask[0] = 0xFF;
  mask[1] = 0xFF;
  pd_match_record key;
  key.value_bytes = value;
  key.mask_bytes = mask;
  key.partition_index = 0;
  key.priority = 0;
  key.num_valid_bits = 15;
  key.num_bytes = 2;
  key.reserved = 0;
  pd_action_record act;
  std::memset(&act, 0, sizeof act);
  act.record_kind = PD_RECORD_KIND_GROUP_REF;
  act.group_hdl = grp;
  pd_act_fn_hdl fn;
  if (pd_status s = p4_pd_ms_get_grp_act(g_ecmp_state, tgt.device_id, grp, &fn)) return s;
  uint32_t count;
  pd_resource_index *res;
  p4_pd_ms_grp_get_res(g_ecmp_state, tgt.device_id, grp, &count, &res);
  return pipe_mgr_mat_ent_add(sess, tgt, 0x1101000du, &key, fn, &act, 0, 0, entry_hdl);
}

BENCH_OUT_OF_LINE pd_status reference_ecmp_add_member_to_group(pd_sess_hdl sess, uint32_t dev,
                                                               pd_grp_hdl grp, pd_mbr_hdl mbr) {
  pd_act_fn_hdl fn;
  if (pd_status s = p4_pd_ms_get_mbr_act(g_ecmp_state, dev, mbr, &fn)) return s;
  if (pd_status s = pipe_mgr_sel_grp_mbr_add(sess, dev, 0x13010001u, grp, fn, mbr, 0)) return s;
  p4_pd_ms_add_mbr_to_grp(sess, g_ecmp_state, dev, mbr, grp);
  p4_pd_ms_set_grp_act(g_ecmp_state, dev, grp, fn);
  return BF_SUCCESS;
}

}  // namespace orbisk_bench

namespace {

constexpr pd_sess_hdl kSess = 1;
constexpr pd_dev_target kTarget{0, PD_DEV_PIPE_ALL};

// ----------------------------------------------------------------- cases ---
//
// One call each, its input varied a little by the iteration number i. The
// inputs are forced into memory before the call and the outputs are kept
// after it, in the same way for every case.

pd_status case_l2Lookup_add(uint32_t i) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms;
  ms.egrMd_dmacOui = 0x001b21u;
  ms.egrMd_dmacStation = 0x3c0000u | (i & 0xFFFFu);
  ms.egrMd_egrL2Domain = uint16_t(1 + (i & 0xFFu));
  p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t as;
  as.action_egrL2Aintf = 0x10000u + (i & 0xFFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(as);
  pd_status s =
      p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast(kSess, kTarget, &ms, &as, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_l2Lookup_add_reference(uint32_t i) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms;
  ms.egrMd_dmacOui = 0x001b21u;
  ms.egrMd_dmacStation = 0x3c0000u | (i & 0xFFFFu);
  ms.egrMd_egrL2Domain = uint16_t(1 + (i & 0xFFu));
  p4_pd_orbisk_switch_l2LookupKnownUcast_action_spec_t as;
  as.action_egrL2Aintf = 0x10000u + (i & 0xFFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(as);
  pd_status s = orbisk_bench::reference_l2Lookup_add_l2LookupKnownUcast(kSess, kTarget, &ms, &as, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_l2DomainLookup_add(uint32_t i) {
  p4_pd_orbisk_switch_l2DomainLookup_match_spec_t ms;
  ms.phase0_switchPort = uint8_t(i & 1u);
  ms.phase0_ingVPort = uint16_t(0x100u + (i & 0xFFu));
  ms.vlanHdr_0__valid = 1;
  ms.vlanHdr_0__vlanId = uint16_t(1 + (i & 0x7FFu));
  ms.vlanHdr_0__vlanId_mask = 0x0FFF;
  uint32_t priority = 10 + (i & 0xFu);
  p4_pd_orbisk_switch_setL2DomainTagged_action_spec_t as;
  as.action_l2Aintf = 0x20000u + (i & 0xFFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(priority);
  benchmark::DoNotOptimize(as);
  pd_status s = p4_pd_orbisk_switch_l2DomainLookup_table_add_with_setL2DomainTagged(
      kSess, kTarget, &ms, priority, &as, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_ipv4ShortMaskLpm_add(uint32_t i) {
  p4_pd_orbisk_switch_ipv4ShortMaskLpm_match_spec_t ms;
  ms.l3Info_vrfId = uint8_t(1 + (i & 0x7u));
  ms.ingIpv4_dip = 0x0a000000u | ((i & 0xFFFFu) << 8) | 0x5u;  // host bits set on purpose
  ms.ingIpv4_dip_prefix_length = 24;
  p4_pd_orbisk_switch_setNextHop_action_spec_t as;
  as.action_nextHop = 0x1000u + (i & 0xFFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(as);
  pd_status s =
      p4_pd_orbisk_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(kSess, kTarget, &ms, &as, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_ipv6FinalResolve_add(uint32_t i) {
  p4_pd_orbisk_switch_ipv6FinalResolve_match_spec_t ms;
  ms.ingIpv6_fibPartitionIndex = uint16_t(i & 0x3FFu);
  static constexpr uint8_t kBase[16] = {0x20, 0x01, 0x0d, 0xb8, 0x00, 0x00, 0x00, 0x00,
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01};
  std::memcpy(ms.ingIpv6_dip, kBase, sizeof kBase);
  ms.ingIpv6_dip[6] = uint8_t(i >> 8);
  ms.ingIpv6_dip[7] = uint8_t(i);
  ms.ingIpv6_dip_prefix_length = 64;
  p4_pd_orbisk_switch_setNextHop_action_spec_t as;
  as.action_nextHop = 0x2000u + (i & 0xFFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(as);
  pd_status s =
      p4_pd_orbisk_switch_ipv6FinalResolve_table_add_with_setNextHop(kSess, kTarget, &ms, &as, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_l2Lookup_get_entry(uint32_t i) {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX];
  p4_pd_orbisk_switch_action_spec_u as;
  p4_pd_orbisk_switch_action_names_t action_enum;
  bool is_default = true;
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(hdl);
  pd_status s = p4_pd_orbisk_switch_l2Lookup_get_entry(kSess, 0, hdl, false, &ms, action_name,
                                                       &as, &action_enum, &is_default);
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(action_name);
  benchmark::DoNotOptimize(as);
  benchmark::DoNotOptimize(action_enum);
  benchmark::DoNotOptimize(is_default);
  return s;
}

// Value text of an entry of the table with the longest key text, read
// back through the driver.
char g_value[P4_PD_ORBISK_SWITCH_VALUE_MAX];

pd_status case_finalDropControl_value(uint32_t i) {
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(hdl);
  const int n = p4_pd_orbisk_switch_finalDropControl_value(kSess, 0, hdl, false, g_value);
  benchmark::DoNotOptimize(g_value);
  return n > 0 ? BF_SUCCESS : 1;
}

// The same text through the dispatcher by handle: the difference is what
// reaching a table from its handle alone costs.
pd_status case_entry_value_by_handle(uint32_t i) {
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  pd_tbl_hdl tbl = 0x01000057u;  // finalDropControl
  benchmark::DoNotOptimize(hdl);
  benchmark::DoNotOptimize(tbl);
  const int n = p4_pd_orbisk_switch_entry_value(kSess, 0, tbl, hdl, false, g_value);
  benchmark::DoNotOptimize(g_value);
  return n > 0 ? BF_SUCCESS : 1;
}

// An l2Lookup entry's placement record against the chip: the stub decodes
// any record as the entry its read answers, so the two sides agree and every
// field is compared.
char g_error[128];
uint8_t g_plcmt[64];

pd_status case_l2Lookup_plcmt_data_eq_to_hw(uint32_t i) {
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(hdl);
  const int eq = p4_pd_orbisk_switch_l2Lookup_plcmt_data_eq_to_hw(kSess, 0, 0, hdl, g_plcmt, g_error);
  benchmark::DoNotOptimize(g_error);
  return eq == 1 ? BF_SUCCESS : 1;
}

// Schema text: the longest table text, written into a buffer just big
// enough; the same table through the dispatch by handle; and an action tuple,
// which is a constant handed out as it stands.
char g_schema[3020];
static_assert(sizeof g_schema == P4_PD_ORBISK_SWITCH_SCHEMA_MAX);

pd_status case_finalDropControl_schema(uint32_t) {
  int n = p4_pd_orbisk_switch_finalDropControl_schema(g_schema);
  benchmark::DoNotOptimize(g_schema);
  return n == 3019 ? BF_SUCCESS : 1;
}

pd_status case_cli_schema_by_handle(uint32_t i) {
  pd_tbl_hdl hdl = 0x01000057u;  // finalDropControl
  benchmark::DoNotOptimize(hdl);
  benchmark::DoNotOptimize(i);
  int n = p4_pd_orbisk_switch_cli_schema(hdl, g_schema);
  benchmark::DoNotOptimize(g_schema);
  return n == 3019 ? BF_SUCCESS : 1;
}

pd_status case_setNextHop_schema(uint32_t) {
  const char *text = p4_pd_orbisk_switch_setNextHop_schema();
  benchmark::DoNotOptimize(text);
  return text[0] == '(' ? BF_SUCCESS : 1;
}

// The walk by handle against the per-table call it stands for: a range test,
// one load and the same driver call.
pd_status case_entry_hdl_first_by_handle(uint32_t i) {
  pd_tbl_hdl hdl = 0x01000057u;  // finalDropControl
  benchmark::DoNotOptimize(hdl);
  pd_entry_hdl e = i;
  pd_status st = p4_pd_orbisk_switch_entry_hdl_first(3, {0, PD_DEV_PIPE_ALL}, hdl, &e);
  benchmark::DoNotOptimize(e);
  return st;
}

pd_status case_entry_hdl_first_per_table(uint32_t i) {
  pd_entry_hdl e = i;
  pd_status st = p4_pd_orbisk_switch_finalDropControl_get_first_entry_handle(3, {0, PD_DEV_PIPE_ALL}, &e);
  benchmark::DoNotOptimize(e);
  return st;
}

// The floor under every add: the same input handling and one driver call
// with records built once, outside the loop.
pd_status case_driver_call_only(uint32_t i) {
  static uint8_t value[8];
  static uint8_t mask[8];
  static uint8_t data[3];
  static pd_match_record key{value, mask, 0, 0, 60, 8, 0};
  static pd_action_record act{PD_RECORD_KIND_DIRECT, 0, {}, 20, 3, 0, data, 0, 0, {}};
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(i);
  pd_status s = pipe_mgr_mat_ent_add(kSess, kTarget, 0x0100002fu, &key, 0x200000a6u, &act, 0, 0,
                                     &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_counter_read(uint32_t i) {
  pd_counter_value v;
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(hdl);
  pd_status s = p4_pd_orbisk_switch_counter_read_l2DmacClassifyCount(kSess, 0, hdl, 0, &v);
  benchmark::DoNotOptimize(v);
  return s;
}

pd_status case_counter_read_reference(uint32_t i) {
  pd_counter_value v;
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(hdl);
  pd_status s = orbisk_bench::reference_counter_read_l2DmacClassifyCount(kSess, 0, hdl, 0, &v);
  benchmark::DoNotOptimize(v);
  return s;
}

pd_status case_meter_set(uint32_t i) {
  pd_meter_spec m{1000u + (i & 0xFFu), 200, 2000, 400, PD_METER_TYPE_COLOR_UNAWARE};
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(m);
  benchmark::DoNotOptimize(hdl);
  return p4_pd_orbisk_switch_meter_set_stormControlMeter(kSess, 0, hdl, &m);
}

pd_status case_meter_set_reference(uint32_t i) {
  pd_meter_spec m{1000u + (i & 0xFFu), 200, 2000, 400, PD_METER_TYPE_COLOR_UNAWARE};
  pd_entry_hdl hdl = 1 + (i & 0xFFFFu);
  benchmark::DoNotOptimize(m);
  benchmark::DoNotOptimize(hdl);
  return orbisk_bench::reference_meter_set_stormControlMeter(kSess, 0, hdl, &m);
}

// Load balancing: a member add, an entry naming a group, a member joining a
// group; each beside its reference.
pd_status case_ecmp_add_member(uint32_t i) {
  p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t as;
  as.action_nextHopTable = uint8_t(i);
  as.action_nextHop = 0x1000u + i;
  pd_mbr_hdl mbr = 0;
  benchmark::DoNotOptimize(as);
  pd_status s = p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
      kSess, kTarget, &as, &mbr);
  benchmark::DoNotOptimize(mbr);
  return s;
}

pd_status case_ecmp_add_member_reference(uint32_t i) {
  p4_pd_orbisk_switch_setEcmpNextHop_action_spec_t as;
  as.action_nextHopTable = uint8_t(i);
  as.action_nextHop = 0x1000u + i;
  pd_mbr_hdl mbr = 0;
  benchmark::DoNotOptimize(as);
  pd_status s = orbisk_bench::reference_ecmp_add_member_setEcmpNextHop(kSess, kTarget, &as, &mbr);
  benchmark::DoNotOptimize(mbr);
  return s;
}

pd_status case_ecmpGroup_add_entry_with_selector(uint32_t i) {
  p4_pd_orbisk_switch_ecmpGroup_match_spec_t ms;
  ms.l3_nextHop = uint16_t(i & 0x7FFFu);
  pd_grp_hdl grp = 1 + (i & 0xFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(grp);
  pd_status s = p4_pd_orbisk_switch_ecmpGroup_add_entry_with_selector(kSess, kTarget, &ms, grp, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_ecmpGroup_add_entry_with_selector_reference(uint32_t i) {
  p4_pd_orbisk_switch_ecmpGroup_match_spec_t ms;
  ms.l3_nextHop = uint16_t(i & 0x7FFFu);
  pd_grp_hdl grp = 1 + (i & 0xFu);
  pd_entry_hdl hdl = 0;
  benchmark::DoNotOptimize(ms);
  benchmark::DoNotOptimize(grp);
  pd_status s = orbisk_bench::reference_ecmpGroup_add_entry_with_selector(kSess, kTarget, &ms, grp, &hdl);
  benchmark::DoNotOptimize(hdl);
  return s;
}

pd_status case_ecmp_add_member_to_group(uint32_t i) {
  pd_grp_hdl grp = 1 + (i & 0xFu);
  pd_mbr_hdl mbr = 1 + i;
  benchmark::DoNotOptimize(grp);
  benchmark::DoNotOptimize(mbr);
  return p4_pd_orbisk_switch_ecmpMemberActionProfile_add_member_to_group(kSess, 0, grp, mbr);
}

pd_status case_ecmp_add_member_to_group_reference(uint32_t i) {
  pd_grp_hdl grp = 1 + (i & 0xFu);
  pd_mbr_hdl mbr = 1 + i;
  benchmark::DoNotOptimize(grp);
  benchmark::DoNotOptimize(mbr);
  return orbisk_bench::reference_ecmp_add_member_to_group(kSess, 0, grp, mbr);
}

// A flow's five fields, hashed: protocol, source and destination address,
// source and destination port, 104 bits in all.
constexpr uint32_t kFlowWidths[5] = {8, 32, 32, 16, 16};

pd_status case_hash_5_fields(uint32_t i) {
  pd_hash_calc_attribute attrs[5] = {{0, 0, 6},
                                     {1, 0, 0x0a000001u + (i & 0xFFFFu)},
                                     {2, 0, 0xc0a80001u},
                                     {3, 0, 0xC000u + (i & 0xFFu)},
                                     {4, 0, 443}};
  uint8_t hash[4];
  benchmark::DoNotOptimize(attrs);
  pd_status s = p4_pd_orbisk_switch_hash_calc_hashOuterIpAndL4Hdr_calculate_hash_value(
      kSess, 0, 5, attrs, kFlowWidths, hash, sizeof hash);
  benchmark::DoNotOptimize(hash);
  return s;
}

// The same call written for these five widths by hand: the stream laid out
// field by field with constant shifts, allocated and freed as the library does.
#if defined(__clang__)
__attribute__((noinline))
#else
__attribute__((noipa))
#endif
pd_status reference_hash_5_fields(const pd_hash_calc_attribute *attrs, uint8_t *hash,
                                  uint32_t hash_len) {
  auto *b = static_cast<uint8_t *>(bf_sys_calloc(13, 1));
  const auto sip = uint32_t(attrs[1].value), dip = uint32_t(attrs[2].value);
  const auto sport = uint32_t(attrs[3].value), dport = uint32_t(attrs[4].value);
  b[0] = uint8_t(attrs[0].value);
  b[1] = uint8_t(sip >> 24), b[2] = uint8_t(sip >> 16), b[3] = uint8_t(sip >> 8), b[4] = uint8_t(sip);
  b[5] = uint8_t(dip >> 24), b[6] = uint8_t(dip >> 16), b[7] = uint8_t(dip >> 8), b[8] = uint8_t(dip);
  b[9] = uint8_t(sport >> 8), b[10] = uint8_t(sport), b[11] = uint8_t(dport >> 8), b[12] = uint8_t(dport);
  pd_status s = pipe_mgr_hash_calc_calculate_hash_value(kSess, 0, 0x08000006u, b, 13, hash, hash_len);
  bf_sys_free(b);
  return s;
}

pd_status case_hash_5_fields_reference(uint32_t i) {
  pd_hash_calc_attribute attrs[5] = {{0, 0, 6},
                                     {1, 0, 0x0a000001u + (i & 0xFFFFu)},
                                     {2, 0, 0xc0a80001u},
                                     {3, 0, 0xC000u + (i & 0xFFu)},
                                     {4, 0, 443}};
  uint8_t hash[4];
  benchmark::DoNotOptimize(attrs);
  pd_status s = reference_hash_5_fields(attrs, hash, sizeof hash);
  benchmark::DoNotOptimize(hash);
  return s;
}

using CaseFn = pd_status (*)(uint32_t);
using LoopFn = uint64_t (*)(uint64_t);

// N calls of one case; returns the number that did not succeed.
template <CaseFn F>
uint64_t run_loop(uint64_t n) {
  uint64_t failures = 0;
  for (uint64_t i = 0; i < n; ++i) failures += F(uint32_t(i)) != BF_SUCCESS;
  return failures;
}

template <CaseFn F>
void run_benchmark(benchmark::State &state) {
  uint32_t i = 0;
  uint64_t failures = 0;
  for (auto _ : state) failures += F(i++) != BF_SUCCESS;
  if (failures != 0) state.SkipWithError("a call did not succeed");
}

struct Case {
  const char *name;
  LoopFn loop;
  void (*bench)(benchmark::State &);
  // "write" (a write path), "text" (schema or value text, comparison) or "resource" (a counter or
  // meter call): must not allocate; "hash" (allocates its stream for the
  // call, as the reference does); "read"
  const char *kind;
};

template <CaseFn F>
constexpr Case make_case(const char *name, const char *kind) {
  return Case{name, run_loop<F>, run_benchmark<F>, kind};
}

constexpr Case kCases[] = {
    make_case<case_l2Lookup_add>("l2Lookup_add", "write"),
    make_case<case_l2Lookup_add_reference>("l2Lookup_add_reference", "write"),
    make_case<case_l2DomainLookup_add>("l2DomainLookup_add", "write"),
    make_case<case_ipv4ShortMaskLpm_add>("ipv4ShortMaskLpm_add", "write"),
    make_case<case_ipv6FinalResolve_add>("ipv6FinalResolve_add", "write"),
    make_case<case_l2Lookup_get_entry>("l2Lookup_get_entry", "read"),
    make_case<case_driver_call_only>("driver_call_only", "write"),
    make_case<case_finalDropControl_schema>("finalDropControl_schema", "text"),
    make_case<case_cli_schema_by_handle>("cli_schema_by_handle", "text"),
    make_case<case_setNextHop_schema>("setNextHop_schema", "text"),
    make_case<case_finalDropControl_value>("finalDropControl_value", "text"),
    make_case<case_entry_value_by_handle>("entry_value_by_handle", "text"),
    make_case<case_l2Lookup_plcmt_data_eq_to_hw>("l2Lookup_plcmt_data_eq_to_hw", "text"),
    make_case<case_entry_hdl_first_by_handle>("entry_hdl_first_by_handle", "text"),
    make_case<case_entry_hdl_first_per_table>("entry_hdl_first_per_table", "text"),
    make_case<case_counter_read>("counter_read_l2DmacClassifyCount", "resource"),
    make_case<case_counter_read_reference>("counter_read_l2DmacClassifyCount_reference", "resource"),
    make_case<case_meter_set>("meter_set_stormControlMeter", "resource"),
    make_case<case_meter_set_reference>("meter_set_stormControlMeter_reference", "resource"),
    make_case<case_ecmp_add_member>("ecmp_add_member", "write"),
    make_case<case_ecmp_add_member_reference>("ecmp_add_member_reference", "write"),
    make_case<case_ecmpGroup_add_entry_with_selector>("ecmpGroup_add_sel", "write"),
    make_case<case_ecmpGroup_add_entry_with_selector_reference>("ecmpGroup_add_sel_reference", "write"),
    make_case<case_ecmp_add_member_to_group>("ecmp_add_to_group", "write"),
    make_case<case_ecmp_add_member_to_group_reference>("ecmp_add_to_group_reference", "write"),
    make_case<case_hash_5_fields>("calculate_hash_value_5_fields", "hash"),
    make_case<case_hash_5_fields_reference>("calculate_hash_value_5_fields_reference", "hash"),
};

const Case *find_case(std::string_view name) {
  for (const Case &c : kCases) {
    if (name == c.name) return &c;
  }
  return nullptr;
}

// The read path must hand back what the driver gave, or its figure would be
// that of an error path.
bool read_path_decodes() {
  p4_pd_orbisk_switch_l2Lookup_match_spec_t ms;
  char action_name[P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX];
  p4_pd_orbisk_switch_action_spec_u as;
  p4_pd_orbisk_switch_action_names_t action_enum;
  bool is_default = true;
  pd_status s = p4_pd_orbisk_switch_l2Lookup_get_entry(kSess, 0, 1, false, &ms, action_name, &as,
                                                       &action_enum, &is_default);
  return s == BF_SUCCESS && !is_default && action_enum == p4_pd_orbisk_switch_l2LookupKnownUcast &&
         as.l2LookupKnownUcast.action_egrL2Aintf == 0x010203u && ms.egrMd_dmacOui == 0x001b21u &&
         ms.egrMd_dmacStation == 0x3c4d5eu && ms.egrMd_egrL2Domain == 0x002au;
}

int usage(const char *argv0) {
  std::fprintf(stderr, "usage: %s [benchmark flags] | --loop <case> <N> | --list\n", argv0);
  return 2;
}

int loop_main(const char *argv0, const char *name, const char *count) {
  const Case *c = find_case(name);
  char *end = nullptr;
  unsigned long long n = std::strtoull(count, &end, 10);
  if (c == nullptr || end == count || *end != '\0') return usage(argv0);
  // The count must see allocations at all, or a zero would mean nothing. Under
  // a tool that replaces the allocator (memcheck) it sees none: the line then
  // says "allocations -" and the tool's own heap summary is the figure.
  void *(*volatile probe)(size_t) = malloc;
  uint64_t before = g_allocations.load(std::memory_order_relaxed);
  std::free(probe(16));
  bool counted = g_allocations.load(std::memory_order_relaxed) != before;
  before = g_allocations.load(std::memory_order_relaxed);
  uint64_t failures = c->loop(n);
  uint64_t allocations = g_allocations.load(std::memory_order_relaxed) - before;
  char seen[24] = "-";
  if (counted) std::snprintf(seen, sizeof seen, "%llu", static_cast<unsigned long long>(allocations));
  std::printf("case %s calls %llu allocations %s failures %llu\n", c->name, n, seen,
              static_cast<unsigned long long>(failures));
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
  // The profiles' states are set up as an agent's would be.
  p4_pd_orbisk_switch_init();
  orbisk_bench::g_ecmp_state = p4_pd_ms_init_state();
  if (!read_path_decodes()) {
    std::fprintf(stderr, "%s: l2Lookup get_entry does not decode the driver's answer\n", argv[0]);
    return 1;
  }
  if (argc >= 2 && std::strcmp(argv[1], "--list") == 0) {
    for (const Case &c : kCases) std::printf("%s %s\n", c.name, c.kind);
    return 0;
  }
  if (argc >= 2 && std::strcmp(argv[1], "--loop") == 0) {
    if (argc != 4) return usage(argv[0]);
    return loop_main(argv[0], argv[2], argv[3]);
  }
  for (const Case &c : kCases) benchmark::RegisterBenchmark(c.name, c.bench);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return usage(argv[0]);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
