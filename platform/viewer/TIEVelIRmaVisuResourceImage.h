// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaVisuResourceImage.h The forwarder of VelIRmaVisuResourceImage.
#ifndef PLATFORM_VIEWER_TIEVELIRMAVISURESOURCEIMAGE_H
#define PLATFORM_VIEWER_TIEVELIRMAVISURESOURCEIMAGE_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIRmaVisuResourceImage.h"

template <class Implementation>
class TIEVelIRmaVisuResourceImage final : public VelTie<VelIRmaVisuResourceImage> {
 public:
  using VelTie::VelTie;

  HRESULT GetResourceImage(VelBaseUnknown** oResource) override {
    return Forward<Implementation>(
        [&](Implementation& ioParameter) { return ioParameter.GetResourceImage(oResource); });
  }
};

#endif  // PLATFORM_VIEWER_TIEVELIRMAVISURESOURCEIMAGE_H
