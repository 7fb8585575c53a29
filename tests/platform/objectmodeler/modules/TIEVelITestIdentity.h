// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelITestIdentity.h The forwarder of VelITestIdentity.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTIDENTITY_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTIDENTITY_H

#include "platform/objectmodeler/VelTie.h"
#include "tests/platform/objectmodeler/modules/VelITestIdentity.h"

template <class Implementation>
class TIEVelITestIdentity final : public VelTie<VelITestIdentity> {
 public:
  using VelTie<VelITestIdentity>::VelTie;

  VelTestAddresses Addresses() override {
    return Forward<Implementation>([](Implementation& ioThing) { return ioThing.Addresses(); });
  }
  const VelInterfaceId* SecondIdentifier() override {
    return Forward<Implementation>([](Implementation& ioThing) { return ioThing.SecondIdentifier(); });
  }
  HRESULT UseEmptyHandle() override {
    return Forward<Implementation>([](Implementation& ioThing) { return ioThing.UseEmptyHandle(); });
  }
  VelTestThrower Thrower() override {
    return Forward<Implementation>([](Implementation& ioThing) { return ioThing.Thrower(); });
  }
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTIDENTITY_H
