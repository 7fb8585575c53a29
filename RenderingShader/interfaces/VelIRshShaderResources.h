// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderResources.h The texts that a shader's type brings along.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERRESOURCES_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERRESOURCES_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderResources;

/// Named texts by category. The component itself asks for one only: category "label" with the name of a parameter,
/// once, when the label of the parameter is first read. All others are between a module and its clients.
///
/// Implemented by: extensions of a delegate's late type; a shader answers it by delegation.
/// Thread: the application thread. Re-entrancy: none.
class VEL_RSH_INTERFACES_API VelIRshShaderResources : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderResources);

  /// @param[in] iCategory for instance "label"
  /// @param[in] iName for instance the name of a parameter
  /// @param[out] oText the text; untouched on failure
  /// @return S_OK; E_FAIL when there is none
  virtual HRESULT GetText(const VelString& iCategory, const VelString& iName, VelUnicodeString& oText) = 0;

 protected:
  ~VelIRshShaderResources() = default;
};

using VelIRshShaderResources_var = VelVar<VelIRshShaderResources>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERRESOURCES_H
