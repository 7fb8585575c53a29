// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaMappingManipulatorMaterial.h The forwarder of VelIRmaMappingManipulatorMaterial.
#ifndef PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATORMATERIAL_H
#define PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATORMATERIAL_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIRmaMappingManipulatorMaterial.h"

template <class Implementation>
class TIEVelIRmaMappingManipulatorMaterial final : public VelTie<VelIRmaMappingManipulatorMaterial> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATORMATERIAL_H
