// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIAlgSubstanceGraphOutput.h An output of a procedural graph that may feed a parameter.
#ifndef PLATFORM_SUBSTANCE_VELIALGSUBSTANCEGRAPHOUTPUT_H
#define PLATFORM_SUBSTANCE_VELIALGSUBSTANCEGRAPHOUTPUT_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIAlgSubstanceGraphOutput;

/// An output of a graph of the Substance engine. It says what an object is and asks nothing of it: the object is
/// connected to a parameter, shared between copies of it, and reports its changes through its model events.
///
/// Implemented by: what brings the engine; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIAlgSubstanceGraphOutput : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIAlgSubstanceGraphOutput);

 protected:
  ~VelIAlgSubstanceGraphOutput() = default;
};

using VelIAlgSubstanceGraphOutput_var = VelVar<VelIAlgSubstanceGraphOutput>;

#endif  // PLATFORM_SUBSTANCE_VELIALGSUBSTANCEGRAPHOUTPUT_H
