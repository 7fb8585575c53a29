// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaRefresh.h The forwarder of VelIRmaRefresh.
#ifndef HOST_REFRESH_TIEVELIRMAREFRESH_H
#define HOST_REFRESH_TIEVELIRMAREFRESH_H

#include "host/refresh/VelIRmaRefresh.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRmaRefresh final : public VelTie<VelIRmaRefresh> {
 public:
  using VelTie::VelTie;

  HRESULT Attach(VelBaseUnknown* iMaterial) override {
    return Forward<Implementation>([&](Implementation& ioRefresh) { return ioRefresh.Attach(iMaterial); });
  }
  HRESULT Detach(VelBaseUnknown* iMaterial) override {
    return Forward<Implementation>([&](Implementation& ioRefresh) { return ioRefresh.Detach(iMaterial); });
  }
  HRESULT Flush() override {
    return Forward<Implementation>([](Implementation& ioRefresh) { return ioRefresh.Flush(); });
  }
};

#endif  // HOST_REFRESH_TIEVELIRMAREFRESH_H
