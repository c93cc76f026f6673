// Action profiles through the library: the member data of every profile
// action against golden bytes, and sweeps over every profile and action,
// found by exported name, that read the model's call log for what the driver
// and the member-selection state were handed, in which order, and what
// happens after a refusal at each step.
#include <dlfcn.h>

#include <string>

#include "test_support.h"

namespace {

using orbisk::pd::ActionDesc;
using orbisk::pd::kNumProfiles;
using orbisk::pd::kProfiles;
using orbisk::pd::ProfileDesc;
using orbisk::pd::TableActionDesc;
using Args = std::vector<uint64_t>;
using Names = std::vector<std::string>;

constexpr uint32_t kDev = 2;
constexpr pd_status kArmed = 0x5A;

template <typename F>
F sym(const std::string &name) {
  void *p = dlsym(RTLD_DEFAULT, ("p4_pd_orbisk_switch_" + name).c_str());
  EXPECT_NE(nullptr, p) << name;
  return reinterpret_cast<F>(p);
}
template <typename F>
F sym(const ProfileDesc &p, const std::string &family) {
  return sym<F>(std::string(p.name) + "_" + family);
}

uint64_t addr(const void *p) { return uint64_t(reinterpret_cast<uintptr_t>(p)); }

// The driver and state functions called since the call log held `mark` calls.
Names calls_since(size_t mark) {
  Names out;
  for (size_t i = mark; i < orbisk_model_call_count(); ++i) out.push_back(orbisk_model_call_at(i)->function);
  return out;
}

const ProfileDesc &profile(std::string_view name) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    if (name == kProfiles[i].name) return kProfiles[i];
  }
  ADD_FAILURE() << "no profile " << name;
  return kProfiles[0];
}

// A profile's member-selection state, as the library hands it on: dropping a
// device visits the six states in profile order.
pd_ms_state *state_of(const ProfileDesc &p) {
  const size_t mark = orbisk_model_call_count();
  p4_pd_orbisk_switch_dev_remove(0xD0D0);
  size_t n = 0;
  for (size_t i = mark; i < orbisk_model_call_count(); ++i) {
    const orbisk_model_call *c = orbisk_model_call_at(i);
    if (std::strcmp(c->function, "p4_pd_ms_destroy_state_for_dev") != 0) continue;
    if (n++ == std::size_t(&p - kProfiles)) return reinterpret_cast<pd_ms_state *>(c->args[0]);
  }
  ADD_FAILURE() << "no state for " << p.name;
  return nullptr;
}

// A call's arguments with the pointers at these places zeroed.
Args but(Args a, std::initializer_list<size_t> places) {
  for (size_t i : places) a[i] = 0;
  return a;
}

// An action spec filled from parameter values, by the descriptors' host offsets.
struct Spec {
  alignas(4) uint8_t bytes[32] = {};
  Spec(const ActionDesc &a, const std::vector<uint32_t> &values) {
    for (uint16_t i = 0; i < a.num_params && i < values.size(); ++i) {
      const auto &q = a.params[i];
      const uint32_t v = values[i];
      if (q.bits <= 8) bytes[q.host_offset] = uint8_t(v);
      else if (q.bits <= 16) std::memcpy(bytes + q.host_offset, &v, 2);
      else std::memcpy(bytes + q.host_offset, &v, 4);
    }
  }
};

using AddSpec = pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, pd_mbr_hdl *);
using AddBare = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_mbr_hdl *);
using ModSpec = pd_status (*)(pd_sess_hdl, uint32_t, pd_mbr_hdl, const void *);
using ModBare = pd_status (*)(pd_sess_hdl, uint32_t, pd_mbr_hdl);
using ByMbr = pd_status (*)(pd_sess_hdl, uint32_t, pd_mbr_hdl);
using GetMember = pd_status (*)(pd_sess_hdl, uint32_t, pd_mbr_hdl, bool,
                                p4_pd_orbisk_switch_action_specs_t *);

pd_status add_member(const ProfileDesc &p, const TableActionDesc &a, const Spec &spec,
                     pd_mbr_hdl *mbr, pd_dev_target t = {kDev, PD_DEV_PIPE_ALL}) {
  const std::string name = std::string("add_member_with_") + a.action->name;
  if (a.action->num_params) return sym<AddSpec>(p, name)(7, t, spec.bytes, mbr);
  return sym<AddBare>(p, name)(7, t, mbr);
}

pd_status modify_member(const ProfileDesc &p, const TableActionDesc &a, const Spec &spec,
                        pd_mbr_hdl mbr) {
  const std::string name = std::string("modify_member_with_") + a.action->name;
  if (a.action->num_params) return sym<ModSpec>(p, name)(7, kDev, mbr, spec.bytes);
  return sym<ModBare>(p, name)(7, kDev, mbr);
}

// Golden member data: what each of the fifteen actions sends for its spec.
struct Golden {
  const char *profile;
  const char *action;
  std::vector<uint32_t> params;
  Bytes data;
};

const Golden kGolden[] = {
    {"egrMirrorLagPortActionProfile", "setEgrLagMemberSelector", {0x3A5}, {0x03, 0xA5}},
    {"egrMirrorLagPortActionProfile", "NoAction", {}, {}},
    {"mirrorLagPortActionProfile", "setLagMemberSelector", {0x25A}, {0x02, 0x5A}},
    {"mirrorLagPortActionProfile", "NoAction", {}, {}},
    {"foldedPipeActionProfile", "setFoldedPipePort", {0x1C4}, {0x01, 0xC4}},
    {"foldedPipeActionProfile", "NoAction", {}, {}},
    {"ecmpMemberActionProfile", "setEcmpNextHop", {0xAB, 0x12345678}, {0xAB, 0x12, 0x34, 0x56, 0x78}},
    {"ecmpMemberActionProfile", "NoAction", {}, {}},
    {"tunnelMemberActionProfile", "setTunnelEgressInfo", {0xEDCBA, 0xCAFEF00D},
     {0x0E, 0xDC, 0xBA, 0xCA, 0xFE, 0xF0, 0x0D}},
    {"tunnelMemberActionProfile", "NoAction", {}, {}},
    {"lagPortActionProfile", "setLagPort", {0x105}, {0x01, 0x05}},
    {"lagPortActionProfile", "setPhysicalPort", {}, {}},
    {"lagPortActionProfile", "setTunnelInfo", {}, {}},
    {"lagPortActionProfile", "invalidateUcastEgressPort", {}, {}},
    {"lagPortActionProfile", "fixL2SubintfAlignment", {}, {}},
};

const TableActionDesc &action_of(const ProfileDesc &p, std::string_view name) {
  for (uint16_t i = 0; i < p.num_actions; ++i) {
    if (name == p.actions[i].action->name) return p.actions[i];
  }
  ADD_FAILURE() << "no action " << name << " in " << p.name;
  return p.actions[0];
}

using Members = OnModel;

TEST_F(Members, EveryActionSendsItsGoldenDataInAMemberRecord) {
  size_t seen_actions = 0;
  for (const Golden &g : kGolden) {
    SCOPED_TRACE(g.action);
    const ProfileDesc &p = profile(g.profile);
    const TableActionDesc &a = action_of(p, g.action);
    pd_mbr_hdl mbr = 0;
    ASSERT_EQ(BF_SUCCESS, add_member(p, a, Spec(*a.action, g.params), &mbr));
    const Seen s = last("pipe_mgr_adt_ent_add");
    EXPECT_EQ(g.data, s.data);
    EXPECT_EQ(PD_RECORD_KIND_MEMBER_DATA, s.action.record_kind);
    EXPECT_EQ(0, s.action.resource_count);
    EXPECT_EQ(g.data.size(), s.action.num_bytes);
    EXPECT_EQ(a.action->data_bits, s.action.num_valid_bits);
    // No data still comes with a place for it.
    EXPECT_NE(0u, qword_at(s.action, offsetof(pd_action_record, data_bytes)));
    EXPECT_EQ(0u, s.action.member_hdl | s.action.group_hdl);
    ++seen_actions;
  }
  std::size_t all = 0;
  for (std::size_t i = 0; i < kNumProfiles; ++i) all += kProfiles[i].num_actions;
  EXPECT_EQ(all, seen_actions);
}

TEST_F(Members, WidthsAreTheDriversToCheck) {
  // Above 24 bits, the 20-bit field sends its low 24: the library clips nothing.
  const ProfileDesc &p = profile("tunnelMemberActionProfile");
  const TableActionDesc &a = action_of(p, "setTunnelEgressInfo");
  pd_mbr_hdl mbr = 0;
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, add_member(p, a, Spec(*a.action, {0xFEDCBA98, 1}), &mbr));
  EXPECT_EQ((Bytes{0xDC, 0xBA, 0x98, 0, 0, 0, 1}), last("pipe_mgr_adt_ent_add").data);
  EXPECT_EQ(0u, calls_of("p4_pd_ms_new_mbr"));
}

TEST_F(Members, EveryProfileActionLivesThroughTheDriverAndTheStateInOrder) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    pd_ms_state *state = state_of(p);
    orbisk_model_clear_calls();
    const uint64_t adt = p.adt_hdl, st = addr(state);
    for (uint16_t j = 0; j < p.num_actions; ++j) {
      const TableActionDesc &a = p.actions[j];
      const TableActionDesc &other = p.actions[(j + 1) % p.num_actions];
      SCOPED_TRACE(std::string(p.name) + " " + a.action->name);
      const Spec spec(*a.action, {0x5B, 0x3F1}), spec2(*a.action, {0x66, 0x1D2});
      orbisk_model_reset();

      // Add: the driver, then the state learns the member and its action.
      pd_mbr_hdl mbr = 0;
      ASSERT_EQ(BF_SUCCESS, add_member(p, a, spec, &mbr));
      EXPECT_EQ((Names{"pipe_mgr_adt_ent_add", "p4_pd_ms_new_mbr", "p4_pd_ms_set_mbr_act"}), calls_since(0));
      EXPECT_EQ((Args{7, target_word(kDev, PD_DEV_PIPE_ALL), adt, a.handle, 0, 0, 0, 0}),
                but(last("pipe_mgr_adt_ent_add").args, {5, 6}));
      EXPECT_EQ((Args{7, st, kDev, mbr}), last("p4_pd_ms_new_mbr").args);
      EXPECT_EQ((Args{st, kDev, mbr, a.handle}), last("p4_pd_ms_set_mbr_act").args);
      EXPECT_EQ(a.handle, orbisk_model_ms_member_action(state, kDev, mbr));

      // Read back: the enum and the parameters as given; a bare action leaves them alone.
      p4_pd_orbisk_switch_action_specs_t got;
      std::memset(&got, 0xEE, sizeof got);
      size_t mark = orbisk_model_call_count();
      ASSERT_EQ(BF_SUCCESS, sym<GetMember>(p, "get_member")(99, kDev, mbr, true, &got));
      EXPECT_EQ(a.action->enum_value, uint32_t(got.name));
      const Seen r = last("pipe_mgr_get_action_data_entry");
      EXPECT_EQ(adt, r.args[0]);
      EXPECT_EQ(target_word(kDev, PD_DEV_PIPE_ALL), r.args[1]);
      EXPECT_EQ(1u, r.args[5]);
      if (a.action->num_params) {
        EXPECT_EQ(0, std::memcmp(spec.bytes, &got.u, a.action->spec_size));
        EXPECT_EQ((Names{"pipe_mgr_get_action_data_entry", "p4_pd_ms_mbr_get_res"}), calls_since(mark));
      } else {
        EXPECT_EQ(0xEEu, reinterpret_cast<const uint8_t *>(&got.u)[0]);
        EXPECT_EQ((Names{"pipe_mgr_get_action_data_entry"}), calls_since(mark));
      }

      // Modify: the state first, then the driver with the recorded action.
      mark = orbisk_model_call_count();
      ASSERT_EQ(BF_SUCCESS, modify_member(p, a, spec2, mbr));
      EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act", "pipe_mgr_adt_ent_set"}), calls_since(mark));
      const Seen set = last("pipe_mgr_adt_ent_set");
      EXPECT_EQ((Args{7, kDev, adt, mbr, a.handle}), Args(set.args.begin(), set.args.begin() + 5));
      EXPECT_EQ(0u, set.args[6]);
      if (a.action->num_params) {
        ASSERT_EQ(BF_SUCCESS, sym<GetMember>(p, "get_member")(99, kDev, mbr, false, &got));
        EXPECT_EQ(0, std::memcmp(spec2.bytes, &got.u, a.action->spec_size));
      }
      // ... and the member's other actions are refused before the driver.
      if (other.handle != a.handle) {
        mark = orbisk_model_call_count();
        EXPECT_EQ(0xFFFFFFFFu, modify_member(p, other, Spec(*other.action, {}), mbr));
        EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act"}), calls_since(mark));
      }
      // An unknown member: the state's answer, the driver untouched.
      mark = orbisk_model_call_count();
      EXPECT_EQ(ORBISK_MODEL_NO_SUCH_MEMBER, modify_member(p, a, spec, mbr + 1));
      EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act"}), calls_since(mark));

      // A refused add reaches the caller and the state hears nothing.
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_adt_ent_add", 1, kArmed));
      mark = orbisk_model_call_count();
      pd_mbr_hdl none = 0xABCD;
      EXPECT_EQ(kArmed, add_member(p, a, spec, &none));
      EXPECT_EQ((Names{"pipe_mgr_adt_ent_add"}), calls_since(mark));
      EXPECT_EQ(0xABCDu, none);
      // A failing state after the driver's yes is not the caller's concern.
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("p4_pd_ms_new_mbr", 1, kArmed));
      pd_mbr_hdl second = 0;
      EXPECT_EQ(BF_SUCCESS, add_member(p, a, spec, &second));
      EXPECT_EQ(ORBISK_MODEL_NO_HANDLE, orbisk_model_ms_member_action(state, kDev, second));

      // Walks and counts over the action data table.
      using First = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_mbr_hdl *);
      using Next = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_mbr_hdl, uint32_t, pd_mbr_hdl *);
      using Count = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t *);
      const pd_dev_target t = {kDev, PD_DEV_PIPE_ALL};
      pd_mbr_hdl first = 0, next[2] = {};
      uint32_t count = 0;
      ASSERT_EQ(BF_SUCCESS, sym<First>(p, "get_first_member")(7, t, &first));
      EXPECT_EQ((Args{7, adt, target_word(kDev, PD_DEV_PIPE_ALL), addr(&first)}), last("pipe_mgr_get_first_entry_handle").args);
      ASSERT_EQ(BF_SUCCESS, sym<Next>(p, "get_next_members")(7, t, first, 2, next));
      EXPECT_EQ((Args{mbr, second, ORBISK_MODEL_NO_HANDLE}), (Args{first, next[0], next[1]}));
      ASSERT_EQ(BF_SUCCESS, sym<Count>(p, "get_act_prof_entry_count")(7, t, &count));
      EXPECT_EQ((Args{7, target_word(kDev, PD_DEV_PIPE_ALL), adt, 0, addr(&count)}), last("pipe_mgr_get_entry_count").args);
      EXPECT_EQ(2u, count);

      // Delete: a refusal leaves the state's member; a success removes it from both.
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_adt_ent_del", 1, kArmed));
      mark = orbisk_model_call_count();
      EXPECT_EQ(kArmed, sym<ByMbr>(p, "del_member")(7, kDev, mbr));
      EXPECT_EQ((Names{"pipe_mgr_adt_ent_del"}), calls_since(mark));
      EXPECT_EQ(a.handle, orbisk_model_ms_member_action(state, kDev, mbr));
      mark = orbisk_model_call_count();
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("p4_pd_ms_del_mbr", 1, kArmed));
      EXPECT_EQ(BF_SUCCESS, sym<ByMbr>(p, "del_member")(7, kDev, mbr));
      EXPECT_EQ((Names{"pipe_mgr_adt_ent_del", "p4_pd_ms_del_mbr"}), calls_since(mark));
      EXPECT_EQ((Args{7, kDev, adt, mbr, 0}), last("pipe_mgr_adt_ent_del").args);
      EXPECT_EQ((Args{7, st, kDev, mbr}), last("p4_pd_ms_del_mbr").args);
      EXPECT_EQ(ORBISK_MODEL_NO_SUCH_MEMBER, sym<GetMember>(p, "get_member")(99, kDev, mbr, false, &got));
      EXPECT_EQ(1u, orbisk_model_member_count(kDev, p.adt_hdl));
    }
  }
}

TEST_F(Members, AnActionTheProfileDoesNotHaveIsAssertedAndAnswered15) {
  const ProfileDesc &p = profile("ecmpMemberActionProfile");
  pd_mbr_hdl mbr = 0;
  ASSERT_EQ(BF_SUCCESS, add_member(p, action_of(p, "setEcmpNextHop"), Spec(*p.actions[0].action, {1, 2}), &mbr));
  orbisk_model_clear_log();
  orbisk_model_quirk_next_read(0, 0x30000040);  // another profile's action
  p4_pd_orbisk_switch_action_specs_t got{};
  EXPECT_EQ(15u, sym<GetMember>(p, "get_member")(0, kDev, mbr, false, &got));
  EXPECT_TRUE(logged_once("ASSERTION FAILED: \"((void *)0)\" (NULL) from "
                          "p4_pd_orbisk_switch_ecmpMemberActionProfile_get_member:"));
}

TEST_F(Members, TableHandlesAndTheUpdateCallback) {
  using Handle = pd_status (*)(pd_tbl_hdl *);
  using Register = pd_status (*)(pd_sess_hdl, uint32_t, pd_adt_update_cb, void *);
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    pd_tbl_hdl h = 0;
    EXPECT_EQ(BF_SUCCESS, sym<Handle>(p, "get_adt_table_handle")(&h));
    EXPECT_EQ(p.adt_hdl, h);
    EXPECT_EQ(BF_SUCCESS, sym<Handle>(p, "get_adt_table_handle")(nullptr));
    static int told = 0;
    const pd_adt_update_cb cb = [](uint32_t, pd_tbl_hdl, pd_mbr_hdl, uint32_t, void *c) {
      ++*static_cast<int *>(c);
    };
    ASSERT_EQ(BF_SUCCESS, sym<Register>(p, "register_adt_update_cb")(7, kDev, cb, &told));
    EXPECT_EQ((Args{7, kDev, p.adt_hdl, uint64_t(reinterpret_cast<uintptr_t>(cb)), addr(&told)}),
              last("pipe_register_adt_update_cb").args);
    const int before = told;
    pd_mbr_hdl mbr = 0;
    ASSERT_EQ(BF_SUCCESS, add_member(p, p.actions[p.num_actions - 1], Spec(*p.actions[0].action, {}), &mbr));
    ASSERT_EQ(BF_SUCCESS, sym<ByMbr>(p, "del_member")(7, kDev, mbr));
    EXPECT_EQ(before + 2, told);
  }
}

}  // namespace
