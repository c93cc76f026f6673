// Action profiles through the library: the member data of every profile
// action against golden bytes, and sweeps over every profile and action,
// found by exported name, that read the model's call log for what the driver
// and the member-selection state were handed, in which order, and what
// happens after a refusal at each step.
#include <cjson/cJSON.h>
#include <dlfcn.h>

#include <string>
#include <tuple>

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
  return exported<F>(name);
}
template <typename F>
F sym(const ProfileDesc &p, const std::string &family) {
  return exported<F>(std::string(p.name) + "_" + family);
}

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

// ------------------------------------------------------------------ groups ---

using GrpMbr = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl);
using ByGrp = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl);
using Create = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, pd_grp_hdl *);
using StateSet = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl, uint32_t);
using StateGet = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl, uint32_t *);

// A profile with members of its first action and one group, on the model.
struct Fixture {
  const ProfileDesc &p;
  pd_ms_state *state;
  std::vector<pd_mbr_hdl> mbrs;
  pd_grp_hdl grp = 0;

  Fixture(const ProfileDesc &prof, size_t members, uint32_t max_size = 8)
      : p(prof), state(state_of(prof)) {
    for (size_t i = 0; i < members; ++i) {
      pd_mbr_hdl m = 0;
      EXPECT_EQ(BF_SUCCESS, add_member(p, p.actions[0], Spec(*p.actions[0].action, {uint32_t(i)}), &m));
      mbrs.push_back(m);
    }
    EXPECT_EQ(BF_SUCCESS, sym<Create>(p, "create_group")(7, {kDev, 3}, max_size, &grp));
  }
  pd_status join(pd_mbr_hdl m) { return sym<GrpMbr>(p, "add_member_to_group")(7, kDev, grp, m); }
  pd_status del_group() { return sym<ByGrp>(p, "del_group")(7, kDev, grp); }
};

using Groups = OnModel;

TEST_F(Groups, EveryProfileCallsTheDriverThenTheStateInOrder) {
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    SCOPED_TRACE(p.name);
    orbisk_model_reset();
    const uint64_t sel = p.sel_hdl;
    size_t mark = orbisk_model_call_count();
    Fixture f(p, 3);
    const uint64_t st = addr(f.state);
    const Names made = calls_since(mark);
    EXPECT_EQ((Names{"pipe_mgr_sel_grp_add", "p4_pd_ms_new_grp"}), Names(made.end() - 2, made.end()));
    EXPECT_EQ((Args{7, target_word(kDev, 3), sel, 0, 8, 0xDEADBEEF, 0, 0}),
              but(last("pipe_mgr_sel_grp_add").args, {6}));
    EXPECT_EQ((Args{7, st, kDev, f.grp}), last("p4_pd_ms_new_grp").args);

    // A member joins: its action from the state, the driver, then the state twice.
    mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[0]));
    EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act", "pipe_mgr_sel_grp_mbr_add", "p4_pd_ms_add_mbr_to_grp",
                     "p4_pd_ms_set_grp_act"}),
              calls_since(mark));
    EXPECT_EQ((Args{7, kDev, sel, f.grp, p.actions[0].handle, f.mbrs[0], 0}), last("pipe_mgr_sel_grp_mbr_add").args);
    EXPECT_EQ((Args{7, st, kDev, f.mbrs[0], f.grp}), last("p4_pd_ms_add_mbr_to_grp").args);
    EXPECT_EQ((Args{st, kDev, f.grp, p.actions[0].handle}), last("p4_pd_ms_set_grp_act").args);
    // A member the state does not know never reaches the driver; a refusal leaves the state.
    mark = orbisk_model_call_count();
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_MEMBER, f.join(0x77));
    EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act"}), calls_since(mark));
    mark = orbisk_model_call_count();
    EXPECT_EQ(ORBISK_MODEL_MEMBER_IN_GROUP, f.join(f.mbrs[0]));
    EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act", "pipe_mgr_sel_grp_mbr_add"}), calls_since(mark));
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[1]));
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[2]));

    // On and off: the driver only, by state; reads write only what they know.
    mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, f.mbrs[1], 1));
    ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, f.mbrs[2], 1));
    ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, f.mbrs[2], 0));
    EXPECT_EQ((Names{"pipe_mgr_sel_grp_mbr_disable", "pipe_mgr_sel_grp_mbr_disable", "pipe_mgr_sel_grp_mbr_enable"}),
              calls_since(mark));
    EXPECT_EQ((Args{7, kDev, sel, f.grp, f.mbrs[2], 0}), last("pipe_mgr_sel_grp_mbr_enable").args);
    uint32_t on = 9;
    ASSERT_EQ(BF_SUCCESS, sym<StateGet>(p, "group_member_state_get")(7, kDev, f.grp, f.mbrs[1], &on));
    EXPECT_EQ(P4_PD_GRP_MBR_STATE_INACTIVE, on);
    EXPECT_EQ((Args{7, kDev, sel, f.grp, f.mbrs[1], 0}), but(last("pipe_mgr_sel_grp_mbr_state_get").args, {5}));
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_sel_grp_mbr_state_get", 1, kArmed));
    on = 9;
    EXPECT_EQ(kArmed, sym<StateGet>(p, "group_member_state_get")(7, kDev, f.grp, f.mbrs[0], &on));
    EXPECT_EQ(9u, on);

    // The hash picks among the members that are on; with none on, the fallback.
    using Hash = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, uint8_t *, uint32_t, pd_mbr_hdl *);
    uint8_t hash[4] = {1, 2, 3, 4};
    pd_mbr_hdl picked = 0;
    ASSERT_EQ(BF_SUCCESS, sym<Hash>(p, "group_member_get_from_hash")(7, kDev, f.grp, hash, 4, &picked));
    EXPECT_EQ((Args{7, kDev, sel, f.grp, addr(hash), 4, addr(&picked)}), last("pipe_mgr_sel_grp_mbr_get_from_hash").args);
    EXPECT_TRUE(picked == f.mbrs[0] || picked == f.mbrs[2]);
    ASSERT_EQ(BF_SUCCESS, sym<ByMbr>(p, "set_dynamic_action_selection_fallback_member")(7, kDev, f.mbrs[1]));
    EXPECT_EQ((Args{7, kDev, sel, f.mbrs[1], 0}), last("pipe_mgr_sel_fallback_mbr_set").args);
    for (pd_mbr_hdl m : {f.mbrs[0], f.mbrs[2]}) {
      ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, m, 1));
    }
    ASSERT_EQ(BF_SUCCESS, sym<Hash>(p, "group_member_get_from_hash")(7, kDev, f.grp, hash, 4, &picked));
    EXPECT_EQ(f.mbrs[1], picked);
    // The fallback member cannot go while it stands.
    EXPECT_EQ(ORBISK_MODEL_MEMBER_IN_USE, sym<ByMbr>(p, "del_member")(7, kDev, f.mbrs[1]));
    using Dev = pd_status (*)(pd_sess_hdl, uint32_t);
    ASSERT_EQ(BF_SUCCESS, sym<Dev>(p, "reset_dynamic_action_selection_fallback_member")(7, kDev));
    EXPECT_EQ((Args{7, kDev, sel, 0}), last("pipe_mgr_sel_fallback_mbr_reset").args);
    EXPECT_EQ(ORBISK_MODEL_NO_SUCH_MEMBER, sym<Hash>(p, "group_member_get_from_hash")(7, kDev, f.grp, hash, 4, &picked));
    for (pd_mbr_hdl m : f.mbrs) ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, m, 0));

    // Walks and counts, the selector table's handle filled in.
    using First = pd_status (*)(pd_sess_hdl, pd_dev_target, pd_grp_hdl *);
    using Count = pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t *);
    using FirstMbr = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl *);
    using NextMbrs = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, pd_mbr_hdl, uint32_t, pd_mbr_hdl *);
    using GrpCount = pd_status (*)(pd_sess_hdl, uint32_t, pd_grp_hdl, uint32_t *);
    using WordCount = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t *);
    using WordMbrs = pd_status (*)(pd_sess_hdl, uint32_t, uint32_t, uint32_t, pd_mbr_hdl *);
    const pd_dev_target t = {kDev, 1};
    pd_grp_hdl g = 0;
    uint32_t n = 0;
    ASSERT_EQ(BF_SUCCESS, sym<First>(p, "get_first_group")(7, t, &g));
    EXPECT_EQ((Args{7, sel, target_word(kDev, 1), addr(&g)}), last("pipe_mgr_get_first_entry_handle").args);
    EXPECT_EQ(f.grp, g);
    ASSERT_EQ(BF_SUCCESS, sym<Count>(p, "get_selector_group_count")(7, t, &n));
    EXPECT_EQ((Args{7, target_word(kDev, 1), sel, 0, addr(&n)}), last("pipe_mgr_get_entry_count").args);
    EXPECT_EQ(1u, n);
    pd_mbr_hdl first = 0, next[3] = {};
    ASSERT_EQ(BF_SUCCESS, sym<FirstMbr>(p, "get_first_group_member")(7, kDev, f.grp, &first));
    EXPECT_EQ((Args{7, sel, kDev, f.grp, addr(&first)}), last("pipe_mgr_get_first_group_member").args);
    ASSERT_EQ(BF_SUCCESS, sym<NextMbrs>(p, "get_next_group_members")(7, kDev, f.grp, first, 3, next));
    EXPECT_EQ((Args{7, sel, kDev, f.grp, first, 3, addr(next)}), last("pipe_mgr_get_next_group_members").args);
    EXPECT_EQ((Args{f.mbrs[0], f.mbrs[1], f.mbrs[2], ORBISK_MODEL_NO_HANDLE}), (Args{first, next[0], next[1], next[2]}));
    ASSERT_EQ(BF_SUCCESS, sym<GrpCount>(p, "get_selector_group_member_count")(7, kDev, f.grp, &n));
    EXPECT_EQ((Args{7, kDev, sel, f.grp, addr(&n)}), last("pipe_mgr_get_sel_grp_mbr_count").args);
    EXPECT_EQ(3u, n);
    ASSERT_EQ(BF_SUCCESS, sym<WordCount>(p, "get_word_llp_active_member_count")(7, kDev, 0, &n));
    EXPECT_EQ((Args{7, kDev, sel, 0, addr(&n)}), last("pipe_mgr_get_word_llp_active_member_count").args);
    EXPECT_EQ(3u, n);
    ASSERT_EQ(BF_SUCCESS, sym<WordMbrs>(p, "get_word_llp_active_members")(7, kDev, 0, 2, next));
    EXPECT_EQ((Args{7, kDev, sel, 0, 2, addr(next)}), last("pipe_mgr_get_word_llp_active_members").args);

    // Leaving: the driver, then the state; the group keeps its action.
    mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, sym<GrpMbr>(p, "del_member_from_group")(7, kDev, f.grp, f.mbrs[0]));
    EXPECT_EQ((Names{"pipe_mgr_sel_grp_mbr_del", "p4_pd_ms_del_mbr_from_grp"}), calls_since(mark));
    EXPECT_EQ((Args{7, kDev, sel, f.grp, f.mbrs[0], 0}), last("pipe_mgr_sel_grp_mbr_del").args);
    EXPECT_EQ((Args{7, st, kDev, f.mbrs[0], f.grp}), last("p4_pd_ms_del_mbr_from_grp").args);
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_sel_grp_mbr_del", 1, kArmed));
    mark = orbisk_model_call_count();
    EXPECT_EQ(kArmed, sym<GrpMbr>(p, "del_member_from_group")(7, kDev, f.grp, f.mbrs[1]));
    EXPECT_EQ((Names{"pipe_mgr_sel_grp_mbr_del"}), calls_since(mark));
    // A member still in a group cannot be deleted.
    EXPECT_EQ(ORBISK_MODEL_MEMBER_IN_USE, sym<ByMbr>(p, "del_member")(7, kDev, f.mbrs[1]));
  }
}

TEST_F(Groups, DelGroupReadsTheMembersFreesOnEveryPathAndReturnsTheStatesAnswer) {
  const ProfileDesc &p = profile("ecmpMemberActionProfile");
  const uint64_t sel = p.sel_hdl;
  // An empty group: no allocation, and the state hears of no members.
  {
    Fixture f(p, 0);
    const size_t mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, f.del_group());
    EXPECT_EQ((Names{"pipe_mgr_get_sel_grp_mbr_count", "pipe_mgr_sel_grp_del", "p4_pd_ms_del_grp"}), calls_since(mark));
    EXPECT_EQ((Args{7, addr(f.state), kDev, f.grp, 0, 0}), last("p4_pd_ms_del_grp").args);
    EXPECT_EQ(0u, orbisk_model_allocation_count());
  }
  // A full group: two arrays of its size, freed once the state has them.
  {
    Fixture f(p, 2, 2);
    for (pd_mbr_hdl m : f.mbrs) ASSERT_EQ(BF_SUCCESS, f.join(m));
    pd_mbr_hdl extra = 0;
    ASSERT_EQ(BF_SUCCESS, add_member(p, p.actions[0], Spec(*p.actions[0].action, {}), &extra));
    EXPECT_EQ(ORBISK_MODEL_GROUP_FULL, f.join(extra));
    const size_t mark = orbisk_model_call_count();
    const size_t allocs = orbisk_model_allocation_count();
    ASSERT_EQ(BF_SUCCESS, f.del_group());
    EXPECT_EQ((Names{"pipe_mgr_get_sel_grp_mbr_count", "pipe_mgr_sel_grp_mbrs_get", "pipe_mgr_sel_grp_del",
                     "p4_pd_ms_del_grp"}),
              calls_since(mark));
    const Args got = last("pipe_mgr_sel_grp_mbrs_get").args;
    EXPECT_EQ((Args{7, kDev, sel, f.grp, 2}), Args(got.begin(), got.begin() + 5));
    EXPECT_EQ((Args{7, addr(f.state), kDev, f.grp, 2, got[5]}), last("p4_pd_ms_del_grp").args);
    EXPECT_EQ(allocs + 2, orbisk_model_allocation_count());
    EXPECT_EQ(0u, orbisk_model_live_allocations());
    EXPECT_EQ(0u, orbisk_model_group_count(kDev, p.sel_hdl));
    // Its members are free again.
    for (pd_mbr_hdl m : f.mbrs) EXPECT_EQ(BF_SUCCESS, sym<ByMbr>(p, "del_member")(7, kDev, m));
  }
  // Each step refused in turn: the status comes back, nothing leaks, and the
  // group stays until the driver deleted it.
  struct Step {
    const char *fault;  // a driver function, or null for an allocation
    uint32_t allocation;
    pd_status expect;
    bool group_gone;
  };
  const Step steps[] = {{"pipe_mgr_get_sel_grp_mbr_count", 0, kArmed, false},
                        {nullptr, 1, 2, false},
                        {nullptr, 2, 2, false},
                        {"pipe_mgr_sel_grp_mbrs_get", 0, kArmed, false},
                        {"pipe_mgr_sel_grp_del", 0, kArmed, false},
                        {"p4_pd_ms_del_grp", 0, kArmed, true}};
  for (const Step &s : steps) {
    SCOPED_TRACE(s.fault ? s.fault : "allocation");
    orbisk_model_reset();
    Fixture f(p, 2);
    for (pd_mbr_hdl m : f.mbrs) ASSERT_EQ(BF_SUCCESS, f.join(m));
    if (s.fault) {
      ASSERT_EQ(BF_SUCCESS, orbisk_model_fail(s.fault, 1, kArmed));
    }
    orbisk_model_fail_allocation(s.allocation);
    EXPECT_EQ(s.expect, f.del_group());
    EXPECT_EQ(0u, orbisk_model_live_allocations());
    EXPECT_EQ(s.group_gone ? 0u : 1u, orbisk_model_group_count(kDev, p.sel_hdl));
    EXPECT_EQ(1u, orbisk_model_ms_group_count(f.state, kDev));
    orbisk_model_fail_allocation(0);
  }
}

using GroupsDeathTest = OnModel;

TEST_F(GroupsDeathTest, AMemberStateNeitherOnNorOffEndsTheProcess) {
  const ProfileDesc &p = profile("lagPortActionProfile");
  EXPECT_DEATH(sym<StateSet>(p, "group_member_state_set")(7, kDev, 1, 1, 2),
               "lagPortActionProfile_group_member_state_set.*mbr_state == P4_PD_GRP_MBR_STATE_INACTIVE");
}

void on_sel(uint32_t, pd_tbl_hdl, pd_grp_hdl, pd_mbr_hdl, uint32_t, void *) {}

TEST_F(Groups, TableHandleAndTheThreeRegistrations) {
  using Handle = pd_status (*)(pd_tbl_hdl *);
  using Reg = pd_status (*)(pd_sess_hdl, uint32_t, void *, void *);
  using Track = pd_status (*)(uint32_t, void *, void *);
  int cookie = 0;
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    pd_tbl_hdl h = 0;
    EXPECT_EQ(BF_SUCCESS, sym<Handle>(p, "get_sel_table_handle")(&h));
    EXPECT_EQ(p.sel_hdl, h);
    EXPECT_EQ(BF_SUCCESS, sym<Handle>(p, "get_sel_table_handle")(nullptr));
    void *cb = reinterpret_cast<void *>(&on_sel);
    ASSERT_EQ(BF_SUCCESS, sym<Reg>(p, "register_callback")(7, kDev, cb, &cookie));
    EXPECT_EQ((Args{7, kDev, p.sel_hdl, addr(cb), addr(&cookie)}), last("pipe_mgr_sel_tbl_register_cb").args);
    ASSERT_EQ(BF_SUCCESS, sym<Track>(p, "sel_track_updates")(kDev, cb, &cookie));
    EXPECT_EQ((Args{0, kDev, p.sel_hdl, addr(cb), addr(&cookie)}), last("pipe_mgr_sel_tbl_register_cb").args);
    ASSERT_EQ(BF_SUCCESS, sym<Reg>(p, "register_sel_update_cb")(7, kDev, cb, &cookie));
    EXPECT_EQ((Args{7, kDev, p.sel_hdl, addr(cb), addr(&cookie)}), last("pipe_register_sel_update_cb").args);
  }
}

// -------------------------------------------------------- indirect entries ---

using orbisk::pd::kNumTables;
using orbisk::pd::kTables;
using orbisk::pd::TableDesc;

// A key of table t with its first field 1 (and, on a ternary table, that
// field's whole mask), every other byte 0.
struct MatchSpec {
  alignas(4) uint8_t bytes[64] = {};
  explicit MatchSpec(const TableDesc &t) {
    const auto &f = t.fields[0];
    put(f.host_offset, f.bits, 1);
    if (t.ternary()) put(f.partner_offset, f.bits, f.bits >= 32 ? 0xFFFFFFFFu : (1u << f.bits) - 1);
  }
  void put(uint16_t at, uint16_t bits, uint32_t v) {
    if (bits <= 8) bytes[at] = uint8_t(v);
    else if (bits <= 16) std::memcpy(bytes + at, &v, 2);
    else std::memcpy(bytes + at, &v, 4);
  }
};

// The eight writes and the read of one indirect table, whichever take a priority.
struct Indirect {
  const TableDesc &t;
  const std::string name;
  explicit Indirect(const TableDesc &table) : t(table), name(table.name) {}

  pd_status add(const MatchSpec &ms, uint32_t hdl, bool group, pd_entry_hdl *out) const {
    const std::string f = name + (group ? "_add_entry_with_selector" : "_add_entry");
    const pd_dev_target tgt = {kDev, 1};
    if (t.ternary()) {
      return sym<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, uint32_t, pd_entry_hdl *)>(f)(
          7, tgt, ms.bytes, 9, hdl, out);
    }
    return sym<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, pd_entry_hdl *)>(f)(7, tgt, ms.bytes,
                                                                                                     hdl, out);
  }
  pd_status modify(pd_entry_hdl e, uint32_t hdl, bool group) const {
    return sym<pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, uint32_t)>(
        name + (group ? "_modify_entry_with_selector" : "_modify_entry"))(7, kDev, e, hdl);
  }
  pd_status modify_by_key(const MatchSpec &ms, uint32_t hdl, bool group) const {
    const std::string f = name + (group ? "_modify_entry_with_selector_by_match_spec" : "_modify_entry_by_match_spec");
    const pd_dev_target tgt = {kDev, 1};
    if (t.ternary()) {
      return sym<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t, uint32_t)>(f)(7, tgt, ms.bytes, 9,
                                                                                                hdl);
    }
    return sym<pd_status (*)(pd_sess_hdl, pd_dev_target, const void *, uint32_t)>(f)(7, tgt, ms.bytes, hdl);
  }
  pd_status set_default(uint32_t hdl, bool group, pd_entry_hdl *out) const {
    return sym<pd_status (*)(pd_sess_hdl, pd_dev_target, uint32_t, pd_entry_hdl *)>(
        name + (group ? "_set_default_entry_with_selector" : "_set_default_entry"))(7, {kDev, 1}, hdl, out);
  }
  // Reads into `ms`; answers the flags and the handle named.
  struct Got {
    pd_status status;
    bool has_mbr, has_grp, is_default;
    pd_grp_hdl grp;
    pd_mbr_hdl mbr;
    uint32_t priority;
  };
  Got get(pd_entry_hdl e, MatchSpec &ms) const {
    Got g{0, true, true, true, 0xAAAA, 0xBBBB, 0};
    const std::string f = name + "_get_entry";
    if (t.ternary()) {
      g.status = sym<pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, bool, void *, uint32_t *, bool *, bool *,
                                   pd_grp_hdl *, pd_mbr_hdl *, bool *)>(f)(7, kDev, e, false, ms.bytes, &g.priority,
                                                                         &g.has_mbr, &g.has_grp, &g.grp, &g.mbr,
                                                                         &g.is_default);
    } else {
      g.status = sym<pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl, bool, void *, bool *, bool *, pd_grp_hdl *,
                                   pd_mbr_hdl *, bool *)>(f)(7, kDev, e, false, ms.bytes, &g.has_mbr, &g.has_grp,
                                                             &g.grp, &g.mbr, &g.is_default);
    }
    return g;
  }
};

// The record an entry that names a member or group sends, and nothing else in it.
::testing::AssertionResult names(const Seen &s, bool group, uint32_t hdl) {
  pd_action_record want{};
  want.record_kind = group ? PD_RECORD_KIND_GROUP_REF : PD_RECORD_KIND_MEMBER_REF;
  (group ? want.group_hdl : want.member_hdl) = hdl;
  if (!s.has_action) return ::testing::AssertionFailure() << "no action record";
  if (std::memcmp(&want, &s.action, sizeof want) == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "kind " << int(s.action.record_kind) << " member " << s.action.member_hdl
                                       << " group " << s.action.group_hdl;
}

using IndirectEntries = OnModel;

TEST_F(IndirectEntries, EveryTableNamesMembersAndGroupsBothWaysAndReadsThemBack) {
  size_t tables = 0;
  for (std::size_t i = 0; i < kNumTables; ++i) {
    const TableDesc &t = kTables[i];
    if (!t.indirect()) continue;
    SCOPED_TRACE(t.name);
    ++tables;
    orbisk_model_reset();
    const ProfileDesc &p = *t.profile;
    Fixture f(p, 2);
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[1]));
    const Indirect x(t);
    const pd_act_fn_hdl act = p.actions[0].handle;
    const MatchSpec key(t);

    // Member form: the key first, the state twice, then the driver.
    size_t mark = orbisk_model_call_count();
    pd_entry_hdl e = 0;
    ASSERT_EQ(BF_SUCCESS, x.add(key, f.mbrs[0], false, &e));
    EXPECT_EQ((Names{"p4_pd_ms_get_mbr_act", "p4_pd_ms_mbr_get_res", "pipe_mgr_mat_ent_add"}), calls_since(mark));
    Seen s = last("pipe_mgr_mat_ent_add");
    EXPECT_TRUE(names(s, false, f.mbrs[0]));
    EXPECT_EQ((Args{7, target_word(kDev, 1), t.handle, 0, act, 0, 0, 0, 0}), but(s.args, {3, 5, 8}));
    EXPECT_EQ(t.ternary() ? 9u : 0u, s.key.priority);
    MatchSpec back(t);
    std::memset(back.bytes, 0xEE, sizeof back.bytes);
    Indirect::Got g = x.get(e, back);
    ASSERT_EQ(BF_SUCCESS, g.status);
    EXPECT_EQ((Args{1, 0, 0, f.mbrs[0], 0xAAAA}), (Args{g.has_mbr, g.has_grp, g.is_default, g.mbr, g.grp}));
    EXPECT_EQ(0, std::memcmp(key.bytes, back.bytes, t.match_spec_size));
    EXPECT_EQ(t.ternary() ? 9u : 0u, g.priority);
    const Seen read = last("pipe_mgr_get_entry");
    EXPECT_EQ((Args{7, t.handle, target_word(kDev, PD_DEV_PIPE_ALL), e}), Args(read.args.begin(), read.args.begin() + 4));
    EXPECT_EQ(0u, read.action.num_bytes);
    // A named member cannot go.
    EXPECT_EQ(ORBISK_MODEL_MEMBER_IN_USE, sym<ByMbr>(p, "del_member")(7, kDev, f.mbrs[0]));

    // Group form, by handle; the record kind alone decides.
    mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, x.modify(e, f.grp, true));
    EXPECT_EQ((Names{"p4_pd_ms_get_grp_act", "p4_pd_ms_grp_get_res", "pipe_mgr_mat_ent_set_action"}), calls_since(mark));
    s = last("pipe_mgr_mat_ent_set_action");
    EXPECT_TRUE(names(s, true, f.grp));
    EXPECT_EQ((Args{7, kDev, t.handle, e, act}), Args(s.args.begin(), s.args.begin() + 5));
    g = x.get(e, back);
    EXPECT_EQ((Args{0, 1, f.grp, 0xBBBB}), (Args{g.has_mbr, g.has_grp, g.grp, g.mbr}));
    EXPECT_EQ(ORBISK_MODEL_GROUP_IN_USE, f.del_group());
    // Back to the member by handle, then both ways by key.
    ASSERT_EQ(BF_SUCCESS, x.modify(e, f.mbrs[0], false));
    EXPECT_TRUE(names(last("pipe_mgr_mat_ent_set_action"), false, f.mbrs[0]));
    ASSERT_EQ(BF_SUCCESS, x.modify_by_key(key, f.grp, true));
    s = last("pipe_mgr_mat_ent_set_action_by_match_spec");
    EXPECT_TRUE(names(s, true, f.grp));
    EXPECT_EQ((Args{7, target_word(kDev, 1), t.handle}), Args(s.args.begin(), s.args.begin() + 3));
    EXPECT_EQ(t.ternary() ? 9u : 0u, s.key.priority);
    ASSERT_EQ(BF_SUCCESS, x.modify_by_key(key, f.mbrs[1], false));
    EXPECT_TRUE(names(last("pipe_mgr_mat_ent_set_action_by_match_spec"), false, f.mbrs[1]));

    // The default entry: no key, the driver's handle.
    pd_entry_hdl d = 0;
    mark = orbisk_model_call_count();
    ASSERT_EQ(BF_SUCCESS, x.set_default(f.grp, true, &d));
    EXPECT_EQ((Names{"p4_pd_ms_get_grp_act", "p4_pd_ms_grp_get_res", "pipe_mgr_mat_default_entry_set"}),
              calls_since(mark));
    s = last("pipe_mgr_mat_default_entry_set");
    EXPECT_TRUE(names(s, true, f.grp));
    EXPECT_FALSE(s.has_key);
    EXPECT_EQ(ORBISK_MODEL_DEFAULT_ENTRY_HDL, d);
    g = x.get(d, back);
    EXPECT_EQ((Args{0, 1, 1, f.grp}), (Args{g.has_mbr, g.has_grp, g.is_default, g.grp}));
    ASSERT_EQ(BF_SUCCESS, x.set_default(f.mbrs[0], false, &d));
    EXPECT_TRUE(names(last("pipe_mgr_mat_default_entry_set"), false, f.mbrs[0]));

    // What the state does not know never reaches the driver; a group without
    // a member has no action to write.
    pd_grp_hdl empty = 0;
    ASSERT_EQ(BF_SUCCESS, sym<Create>(p, "create_group")(7, {kDev, 1}, 4, &empty));
    for (const auto &[hdl, group, want] :
         {std::tuple{f.mbrs[0] + 100, false, ORBISK_MODEL_NO_SUCH_MEMBER},
          std::tuple{f.grp + 100, true, ORBISK_MODEL_NO_SUCH_GROUP},
          std::tuple{empty, true, ORBISK_MODEL_NO_SUCH_ACTION}}) {
      mark = orbisk_model_call_count();
      EXPECT_EQ(want, x.modify(e, hdl, group));
      EXPECT_EQ(want, x.modify_by_key(key, hdl, group));
      EXPECT_EQ(want, x.set_default(hdl, group, &d));
      pd_entry_hdl none = 0;
      EXPECT_EQ(want, x.add(key, hdl, group, &none));
      EXPECT_EQ(4u, calls_since(mark).size());
    }
    // A driver refusal comes back as it is.
    ASSERT_EQ(BF_SUCCESS, orbisk_model_fail("pipe_mgr_mat_ent_set_action", 1, kArmed));
    EXPECT_EQ(kArmed, x.modify(e, f.grp, true));
    // An entry of another kind: no flag, no handle.
    orbisk_model_quirk_next_read(PD_RECORD_KIND_DIRECT, -1);
    g = x.get(e, back);
    EXPECT_EQ((Args{0, 0, 0xAAAA, 0xBBBB}), (Args{g.has_mbr, g.has_grp, g.grp, g.mbr}));
    // Once no entry names it, the group can go.
    using Delete = pd_status (*)(pd_sess_hdl, uint32_t, pd_entry_hdl);
    ASSERT_EQ(BF_SUCCESS, sym<Delete>(std::string(t.name) + "_table_delete")(7, kDev, e));
    EXPECT_EQ(BF_SUCCESS, f.del_group());
  }
  EXPECT_EQ(6u, tables);
}

// -------------------------------------------------- device state and restarts ---

// What the library's device log writes for a device, as text.
std::string logged(uint32_t device) {
  cJSON *doc = cJSON_CreateObject();
  EXPECT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_log(device, doc));
  char *text = cJSON_PrintUnformatted(doc);
  std::string out = text;
  cJSON_free(text);
  cJSON_Delete(doc);
  return out;
}

using Restarts = OnModel;

// Every profile with members of two actions and a group holding two of them,
// one turned off: the states come back exactly, from the saved document and
// from the driver's replay, and the member stays off in the driver.
TEST_F(Restarts, EveryProfileComesBackFromItsLogAndFromTheDriversReplay) {
  std::vector<Fixture> made;
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    made.emplace_back(p, 2);
    Fixture &f = made.back();
    pd_mbr_hdl last = 0;
    const TableActionDesc &a = p.actions[p.num_actions - 1];
    ASSERT_EQ(BF_SUCCESS, add_member(p, a, Spec(*a.action, {}), &last));
    f.mbrs.push_back(last);
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[1]));
    ASSERT_EQ(BF_SUCCESS, f.join(f.mbrs[0]));
    ASSERT_EQ(BF_SUCCESS, sym<StateSet>(p, "group_member_state_set")(7, kDev, f.grp, f.mbrs[1], 1));
  }
  const std::string before = logged(kDev);
  EXPECT_NE(std::string::npos, before.find("\"mbrs\":[" + std::to_string(made[3].mbrs[1]) + "," +
                                           std::to_string(made[3].mbrs[0]) + "]"));
  cJSON *doc = cJSON_Parse(before.c_str());
  auto emptied = [&] {
    ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_remove(kDev));
    for (const Fixture &f : made) {
      EXPECT_EQ(0u, orbisk_model_ms_member_count(f.state, kDev) + orbisk_model_ms_group_count(f.state, kDev));
    }
  };
  emptied();
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_dev_restore(kDev, doc));
  EXPECT_EQ(before, logged(kDev));
  cJSON_Delete(doc);

  emptied();
  orbisk_model_clear_calls();
  ASSERT_EQ(BF_SUCCESS, p4_pd_orbisk_switch_restore_virtual_dev_state(7, kDev, 1, &made, nullptr));
  EXPECT_EQ((Args{7, kDev, 1, addr(&made), 0, uint64_t(reinterpret_cast<uintptr_t>(&p4_pd_orbisk_switch_ha_restore_state_from_adt_sel))}),
            last("pipe_mgr_hitless_ha_restore_virtual_dev_state").args);
  EXPECT_EQ(before, logged(kDev));
  // Three members and two memberships a profile hand their resources on.
  EXPECT_EQ(6u * 5, calls_of("p4_pd_ms_mbr_apply_to_grps"));
  EXPECT_EQ(6u * 2, calls_of("p4_pd_ms_grp_update_res"));
  for (const Fixture &f : made) {
    uint32_t on = 9;
    ASSERT_EQ(BF_SUCCESS, sym<StateGet>(f.p, "group_member_state_get")(7, kDev, f.grp, f.mbrs[1], &on));
    EXPECT_EQ(P4_PD_GRP_MBR_STATE_INACTIVE, on);
  }
}

TEST_F(Restarts, EachReplayedItemMakesTheLivePathsStateCalls) {
  using Restore = void (*)(pd_sess_hdl, uint32_t, pd_tbl_hdl, pd_act_fn_hdl, pd_grp_hdl, pd_mbr_hdl, uint32_t);
  const Restore restore = &p4_pd_orbisk_switch_ha_restore_state_from_adt_sel;
  for (std::size_t i = 0; i < kNumProfiles; ++i) {
    const ProfileDesc &p = kProfiles[i];
    SCOPED_TRACE(p.name);
    orbisk_model_reset();
    const uint64_t st = addr(state_of(p));
    const pd_act_fn_hdl act = p.actions[0].handle, alien = kProfiles[(i + 1) % kNumProfiles].actions[0].handle;
    const pd_mbr_hdl M = 0x31;
    const pd_grp_hdl G = 0x42;
    struct Case {
      pd_tbl_hdl tbl;
      pd_act_fn_hdl fn;
      pd_grp_hdl grp;
      pd_mbr_hdl mbr;
      uint32_t flags;
      Names calls;
    };
    const Case cases[] = {
        {p.sel_hdl, act, 0, M, 1, {}},  // not an action data table
        {p.adt_hdl, act, 0, M, 1, {"p4_pd_ms_new_mbr", "p4_pd_ms_set_mbr_act", "p4_pd_ms_mbr_apply_to_grps"}},
        {p.adt_hdl, 0, G, 0, 1, {"p4_pd_ms_new_grp"}},
        {p.adt_hdl, act, G, M, 0, {"p4_pd_ms_add_mbr_to_grp", "p4_pd_ms_get_mbr_act", "p4_pd_ms_set_grp_act"}},
        {p.adt_hdl, alien, G, M, 1,
         {"p4_pd_ms_add_mbr_to_grp", "p4_pd_ms_get_mbr_act", "p4_pd_ms_set_grp_act"}},
        {p.adt_hdl, act, 0, 0, 1, {"p4_pd_ms_mbr_apply_to_grps"}},
        {p.adt_hdl, act, G, M + 1, 1, {"p4_pd_ms_add_mbr_to_grp", "p4_pd_ms_get_mbr_act"}},  // unknown member
    };
    for (const Case &c : cases) {
      const size_t mark = orbisk_model_call_count();
      restore(7, kDev, c.tbl, c.fn, c.grp, c.mbr, c.flags);
      EXPECT_EQ(c.calls, calls_since(mark)) << c.fn << " " << c.grp << " " << c.mbr;
    }
    EXPECT_EQ((Args{7, st, kDev, M}), last("p4_pd_ms_new_mbr").args);
    EXPECT_EQ((Args{st, kDev, M, act}), last("p4_pd_ms_set_mbr_act").args);
    EXPECT_EQ((Args{7, st, kDev, G}), last("p4_pd_ms_new_grp").args);
    // The group takes the member's recorded action, not the one replayed.
    EXPECT_EQ((Args{st, kDev, G, act}), last("p4_pd_ms_set_grp_act").args);
    EXPECT_EQ((Args{st, kDev, 0, uint64_t(reinterpret_cast<uintptr_t>(&p4_pd_ms_grp_update_res)), st}),
              last("p4_pd_ms_mbr_apply_to_grps").args);
  }
}

// The model's refusals of load-balancing input: each its own status, and the
// driver's tables and the state as they were.
TEST_F(Groups, TheModelRefusesWhatNoDriverCouldHoldAndChangesNothing) {
  const ProfileDesc &ecmp = profile("ecmpMemberActionProfile"), &lag = profile("lagPortActionProfile");
  Fixture e(ecmp, 2), l(lag, 1);
  ASSERT_EQ(BF_SUCCESS, e.join(e.mbrs[0]));
  const pd_act_fn_hdl lag_fn = lag.actions[0].handle, ecmp_fn = ecmp.actions[0].handle;
  pd_grp_hdl grp = 0;
  struct Refusal {
    const char *what;
    pd_status want;
    pd_status got;
  };
  const Refusal refusals[] = {
      {"another profile's member", ORBISK_MODEL_NO_SUCH_MEMBER,
       pipe_mgr_sel_grp_mbr_add(7, kDev, ecmp.sel_hdl, e.grp, lag_fn, l.mbrs[0], 0)},
      {"another profile's group", ORBISK_MODEL_NO_SUCH_GROUP,
       pipe_mgr_sel_grp_mbr_add(7, kDev, lag.sel_hdl, e.grp, lag_fn, l.mbrs[0], 0)},
      {"a member under another action", ORBISK_MODEL_NO_SUCH_ACTION,
       pipe_mgr_sel_grp_mbr_add(7, kDev, ecmp.sel_hdl, e.grp, ecmp.actions[1].handle, e.mbrs[1], 0)},
      {"a member the group does not hold", ORBISK_MODEL_NOT_IN_GROUP,
       pipe_mgr_sel_grp_mbr_del(7, kDev, ecmp.sel_hdl, e.grp, e.mbrs[1], 0)},
      {"a group of no size", ORBISK_MODEL_BAD_RECORD,
       pipe_mgr_sel_grp_add(7, {kDev, 0}, ecmp.sel_hdl, 0, 0, 0, &grp, 0)},
      {"a match table as a profile", ORBISK_MODEL_NO_SUCH_TABLE,
       pipe_mgr_sel_grp_add(7, {kDev, 0}, table("ecmpGroup").handle, 0, 4, 0, &grp, 0)},
      {"a member of a device without it", ORBISK_MODEL_NO_SUCH_MEMBER,
       pipe_mgr_adt_ent_del(7, kDev + 1, ecmp.adt_hdl, e.mbrs[1], 0)},
      {"a member in a group", ORBISK_MODEL_MEMBER_IN_USE, pipe_mgr_adt_ent_del(7, kDev, ecmp.adt_hdl, e.mbrs[0], 0)},
      {"the state: a member it does not hold", ORBISK_MODEL_NO_SUCH_MEMBER,
       p4_pd_ms_add_mbr_to_grp(7, e.state, kDev, l.mbrs[0], e.grp)},
      {"the state: a member twice", ORBISK_MODEL_MEMBER_IN_GROUP,
       p4_pd_ms_add_mbr_to_grp(7, e.state, kDev, e.mbrs[0], e.grp)},
  };
  for (const Refusal &r : refusals) EXPECT_EQ(r.want, r.got) << r.what;
  EXPECT_EQ(0u, grp);  // refused adds leave the out place alone
  EXPECT_EQ((Args{2, 1, 1, 2, 1}),
            (Args{orbisk_model_member_count(kDev, ecmp.adt_hdl), orbisk_model_group_count(kDev, ecmp.sel_hdl),
                  orbisk_model_member_count(kDev, lag.adt_hdl), orbisk_model_ms_member_count(e.state, kDev),
                  orbisk_model_ms_group_count(e.state, kDev)}));
  // A saved document whose group names a member the state would not hold.
  cJSON *doc = cJSON_Parse(R"({"members":[{"mbr":1,"act":1}],"groups":[{"grp":2,"act":1,"mbrs":[3]}]})");
  EXPECT_EQ(ORBISK_MODEL_BAD_RECORD, p4_pd_ms_restore_state(kDev, e.state, doc));
  cJSON_Delete(doc);
  EXPECT_EQ(ecmp_fn, orbisk_model_ms_member_action(e.state, kDev, e.mbrs[0]));
}

}  // namespace
