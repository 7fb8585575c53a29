// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameterImmLayout.h How a host lays a parameter out, and the default value that goes with it.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERIMMLAYOUT_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERIMMLAYOUT_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "RenderingShader/interfaces/VelRshValueTarget.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameterImmLayout;

/// The layout of a parameter. The component binds none.
///
/// Implemented by: hosts, as an extension of the parameters' start-ups.
/// Thread: the application thread. Re-entrancy: asked while a value is read; it must not read that value.
class VEL_RSH_INTERFACES_API VelIRshParameterImmLayout : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameterImmLayout);

  /// Supplies the value of a parameter that has none.
  /// @param[out] oValue a view of the parameter's own type; untouched on failure
  /// @return S_OK; E_FAIL when there is no default, or one of another type
  virtual HRESULT GetDefaultValue(VelRshValueTarget oValue) = 0;

  /// @param[out] oKind the kind of control, for instance "none"; untouched on failure
  /// @return S_OK; E_FAIL
  virtual HRESULT GetKind(VelString& oKind) = 0;

  /// @param[out] oShown "Yes" when the parameter is shown; untouched on failure
  /// @return S_OK; E_FAIL
  virtual HRESULT GetShown(VelString& oShown) = 0;

  /// @param[out] oText the value of the layout, for instance "true"; untouched on failure
  /// @return S_OK; E_FAIL
  virtual HRESULT GetTextValue(VelString& oText) = 0;

 protected:
  ~VelIRshParameterImmLayout() = default;
};

using VelIRshParameterImmLayout_var = VelVar<VelIRshParameterImmLayout>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERIMMLAYOUT_H
