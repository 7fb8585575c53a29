// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaDimension2D.h The size of the piece of surface that a rendering material shows.
#ifndef PLATFORM_MATERIALS_VELIRMADIMENSION2D_H
#define PLATFORM_MATERIALS_VELIRMADIMENSION2D_H

#include "platform/base/VelPlatformApi.h"
#include "platform/materials/VelUnit.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaDimension2D;

/// A rendering material that shows a piece of surface of a known size, such as one tile.
///
/// Implemented by: the rendering material of the host; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaDimension2D : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaDimension2D);

  /// @param[in] iUnit the unit of both figures; VelParmDictionary knows them
  /// @param[out] oWidth in that unit; untouched on failure
  /// @param[out] oHeight in that unit; untouched on failure
  /// @return S_OK; E_FAIL when the material was given no size
  virtual HRESULT GetSize(const VelUnit& iUnit, float& oWidth, float& oHeight) = 0;

 protected:
  ~VelIRmaDimension2D() = default;
};

using VelIRmaDimension2D_var = VelVar<VelIRmaDimension2D>;

#endif  // PLATFORM_MATERIALS_VELIRMADIMENSION2D_H
