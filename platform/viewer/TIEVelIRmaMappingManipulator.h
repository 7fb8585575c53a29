// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaMappingManipulator.h The forwarder of VelIRmaMappingManipulator.
#ifndef PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATOR_H
#define PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATOR_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/viewer/VelIRmaMappingManipulator.h"

template <class Implementation>
class TIEVelIRmaMappingManipulator final : public VelTie<VelIRmaMappingManipulator> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_VIEWER_TIEVELIRMAMAPPINGMANIPULATOR_H
