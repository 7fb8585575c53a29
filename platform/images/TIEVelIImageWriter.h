// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIImageWriter.h The forwarder of VelIImageWriter.
#ifndef PLATFORM_IMAGES_TIEVELIIMAGEWRITER_H
#define PLATFORM_IMAGES_TIEVELIIMAGEWRITER_H

#include "platform/images/VelIImageWriter.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIImageWriter final : public VelTie<VelIImageWriter> {
 public:
  using VelTie::VelTie;

  HRESULT Write(VelPixelImage* iImage, const VelUnicodeString& iPath) override {
    return Forward<Implementation>([&](Implementation& ioWriter) { return ioWriter.Write(iImage, iPath); });
  }
};

#endif  // PLATFORM_IMAGES_TIEVELIIMAGEWRITER_H
