// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExColor.h The colour of a swatch.
#ifndef EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXCOLOR_H
#define EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXCOLOR_H

#include "examples/first_component/interfaces/VelExInterfacesApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_EX_INTERFACES_API extern const VelInterfaceId IID_VelIExColor;

/// Red, green and blue, each from 0 to 1.
struct VelExRgb {
  float red;
  float green;
  float blue;
};

/// Implemented by: VelExSwatchColor, for late type "VelExSwatch".
/// Thread: the application thread. Re-entrancy: none.
class VEL_EX_INTERFACES_API VelIExColor : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIExColor);

  /// @return S_OK; S_FALSE when it is the colour already; E_INVALIDARG when a component is not within 0 to 1
  virtual HRESULT SetColor(const VelExRgb& iColor) = 0;

  /// @return S_OK; E_FAIL when no colour was set, with oColor untouched
  virtual HRESULT GetColor(VelExRgb& oColor) = 0;

 protected:
  ~VelIExColor() = default;
};

using VelIExColor_var = VelVar<VelIExColor>;

#endif  // EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXCOLOR_H
