// The program's tables, actions and resources found by name in its
// descriptors, so that a test names what it uses and never restates a handle
// the catalogue holds. An unknown name fails the test.
#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "descriptors.h"

namespace by_name {

inline const orbisk::pd::TableDesc &table(std::string_view name) {
  for (std::size_t i = 0; i < orbisk::pd::kNumTables; ++i) {
    if (name == orbisk::pd::kTables[i].name) return orbisk::pd::kTables[i];
  }
  ADD_FAILURE() << "no table " << name;
  return orbisk::pd::kTables[0];
}

// An action as a table uses it: .handle, .action, .resource_tag.
inline const orbisk::pd::TableActionDesc &use(const orbisk::pd::TableDesc &t, std::string_view action) {
  for (uint16_t i = 0; i < t.num_actions; ++i) {
    if (action == t.actions[i].action->name) return t.actions[i];
  }
  ADD_FAILURE() << "no action " << action << " on " << t.name;
  return t.actions[0];
}

inline pd_act_fn_hdl fn(const orbisk::pd::TableDesc &t, std::string_view action) {
  return use(t, action).handle;
}

inline uint32_t resource(std::string_view name) {
  for (std::size_t i = 0; i < orbisk::pd::kNumResources; ++i) {
    if (name == orbisk::pd::kResources[i].name) return orbisk::pd::kResources[i].handle;
  }
  ADD_FAILURE() << "no resource " << name;
  return 0;
}

}  // namespace by_name
