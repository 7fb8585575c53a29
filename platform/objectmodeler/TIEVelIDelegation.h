// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIDelegation.h The forwarder of VelIDelegation.
#ifndef PLATFORM_OBJECTMODELER_TIEVELIDELEGATION_H
#define PLATFORM_OBJECTMODELER_TIEVELIDELEGATION_H

#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIDelegation final : public VelTie<VelIDelegation> {
 public:
  using VelTie::VelTie;

  HRESULT SetDelegate(VelBaseUnknown* iDelegate) override {
    return Forward<Implementation>([&](Implementation& ioDelegation) { return ioDelegation.SetDelegate(iDelegate); });
  }
  HRESULT GetDelegate(VelBaseUnknown** oDelegate) override {
    return Forward<Implementation>([&](Implementation& ioDelegation) { return ioDelegation.GetDelegate(oDelegate); });
  }
};

#endif  // PLATFORM_OBJECTMODELER_TIEVELIDELEGATION_H
