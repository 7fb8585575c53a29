// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestFaulty.cpp A library of modules that the dictionary has to refuse, each for a reason of its own.
#include "platform/base/VelVisibility.h"
#include "platform/objectmodeler/VelModule.h"

namespace {

constexpr VelModuleDescription otherAbi{"VelTestOtherAbi", "TestFramework", velPlatformAbi + 1};
constexpr VelModuleDescription misnamed{"VelTestSomethingElse", "TestFramework", velPlatformAbi};
constexpr VelModuleDescription half{"VelTestHalf", "TestFramework", velPlatformAbi};

}  // namespace

extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestOtherAbi();
extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestOtherAbi() { return &otherAbi; }

extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestMisnamed();
extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestMisnamed() { return &misnamed; }

// This one has a forwarder, but nothing to put behind it.
extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestHalf();
extern "C" VEL_EXPORT const VelModuleDescription* VelModule_VelTestHalf() { return &half; }
extern "C" VEL_EXPORT VelBaseUnknown* CreateTIEVelITestNumberVelTestHalfClass(void* iBlock, VelImplementation& iImpl,
                                                                              VelComponent& ioComponent, bool iOwns);
extern "C" VEL_EXPORT VelBaseUnknown* CreateTIEVelITestNumberVelTestHalfClass(void* /*iBlock*/,
                                                                              VelImplementation& /*iImpl*/,
                                                                              VelComponent& /*ioComponent*/,
                                                                              bool /*iOwns*/) {
  return nullptr;
}
