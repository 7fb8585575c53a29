// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModule.cpp Remembers the modules that are loaded.
#include "platform/objectmodeler/VelModule.h"

#include <string_view>
#include <vector>

namespace {

std::vector<const VelModuleDescription*>& Modules() {
  static auto& modules = *new std::vector<const VelModuleDescription*>;
  return modules;
}

}  // namespace

VelModuleRegistration::VelModuleRegistration(const VelModuleDescription& iDescription) noexcept {
  // A module of another ABI is refused anyway; it must not stand in the way of a right one of the same name.
  if (iDescription.platformAbi == velPlatformAbi && Find(iDescription.name) == nullptr) {
    Modules().push_back(&iDescription);
  }
}

const VelModuleDescription* VelModuleRegistration::Find(const char* iName) noexcept {
  if (iName == nullptr) return nullptr;
  for (const VelModuleDescription* module : Modules()) {
    if (std::string_view(module->name) == iName) return module;
  }
  return nullptr;
}
