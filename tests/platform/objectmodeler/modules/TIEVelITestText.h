// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelITestText.h The forwarder of VelITestText.
#ifndef TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTTEXT_H
#define TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTTEXT_H

#include "platform/objectmodeler/VelTie.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"

template <class Implementation>
class TIEVelITestText final : public VelTie<VelITestText> {
 public:
  using VelTie<VelITestText>::VelTie;

  HRESULT GetText(VelString& oText) override {
    return Forward<Implementation>([&](Implementation& ioThing) { return ioThing.GetText(oText); });
  }
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_MODULES_TIEVELITESTTEXT_H
