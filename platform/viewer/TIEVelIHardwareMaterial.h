// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIHardwareMaterial.h The forwarder of VelIHardwareMaterial.
#ifndef PLATFORM_VIEWER_TIEVELIHARDWAREMATERIAL_H
#define PLATFORM_VIEWER_TIEVELIHARDWAREMATERIAL_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIHardwareMaterial.h"

template <class Implementation>
class TIEVelIHardwareMaterial final : public VelTie<VelIHardwareMaterial> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_VIEWER_TIEVELIHARDWAREMATERIAL_H
