// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelITestNumber.h The forwarder of VelITestNumber.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTNUMBER_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTNUMBER_H

#include "platform/objectmodeler/VelTie.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"

template <class Implementation>
class TIEVelITestNumber final : public VelTie<VelITestNumber> {
 public:
  using VelTie<VelITestNumber>::VelTie;

  HRESULT SetNumber(int iNumber) override {
    return Forward<Implementation>([&](Implementation& ioThing) { return ioThing.SetNumber(iNumber); });
  }
  HRESULT GetNumber(int& oNumber) override {
    return Forward<Implementation>([&](Implementation& ioThing) { return ioThing.GetNumber(oNumber); });
  }
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTNUMBER_H
