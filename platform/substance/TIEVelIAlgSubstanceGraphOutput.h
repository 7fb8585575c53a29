// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIAlgSubstanceGraphOutput.h The forwarder of VelIAlgSubstanceGraphOutput.
#ifndef PLATFORM_SUBSTANCE_TIEVELIALGSUBSTANCEGRAPHOUTPUT_H
#define PLATFORM_SUBSTANCE_TIEVELIALGSUBSTANCEGRAPHOUTPUT_H

#include "platform/objectmodeler/VelTie.h"
#include "platform/substance/VelIAlgSubstanceGraphOutput.h"

template <class Implementation>
class TIEVelIAlgSubstanceGraphOutput final : public VelTie<VelIAlgSubstanceGraphOutput> {
 public:
  using VelTie::VelTie;
};

#endif  // PLATFORM_SUBSTANCE_TIEVELIALGSUBSTANCEGRAPHOUTPUT_H
