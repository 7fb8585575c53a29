// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRepLifeCycle.h The forwarder of VelIRepLifeCycle.
#ifndef PLATFORM_DOCUMENTS_TIEVELIREPLIFECYCLE_H
#define PLATFORM_DOCUMENTS_TIEVELIREPLIFECYCLE_H

#include "platform/documents/VelIRepLifeCycle.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRepLifeCycle final : public VelTie<VelIRepLifeCycle> {
 public:
  using VelTie::VelTie;

  HRESULT AddReference(VelBaseUnknown* iDocument) override {
    return Forward<Implementation>([&](Implementation& ioLifeCycle) { return ioLifeCycle.AddReference(iDocument); });
  }
  HRESULT RemoveReference(VelBaseUnknown* iDocument) override {
    return Forward<Implementation>([&](Implementation& ioLifeCycle) { return ioLifeCycle.RemoveReference(iDocument); });
  }
};

#endif  // PLATFORM_DOCUMENTS_TIEVELIREPLIFECYCLE_H
