// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIAlias.h The display label of a shader or a parameter.
#ifndef RENDERINGSHADER_INTERFACES_VELIALIAS_H
#define RENDERINGSHADER_INTERFACES_VELIALIAS_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/HResult.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIAlias;

/// The label that people see. It is not persistent: without a label of its own, an object computes one when it is first
/// asked, and keeps it whatever changes in messages and configuration.
///
/// A shader takes the message "Label" of the catalog that is named as its type, else the type. A parameter takes the
/// text "label" of its shader's VelIRshShaderResources, else the value of "<name>.Label" in the configuration of the
/// shader's type, else its name; one that is asked before it stands below a shader has none, and stays so.
///
/// Implemented by: VelRshShaderFeature and every parameter.
/// Thread: the application thread. Re-entrancy: none.
class VEL_RSH_INTERFACES_API VelIAlias : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIAlias);

  /// @param[in] iAlias an empty one takes the label away. A shader then computes its label again when it is read; a
  ///            parameter only if it has not yet learnt what stands above it.
  /// @return S_OK; E_FAIL when the object is closed
  virtual HRESULT SetAlias(const VelUnicodeString& iAlias) = 0;

  /// @return the label; empty when there is none, and when the object is closed
  virtual VelUnicodeString GetAlias() = 0;

 protected:
  ~VelIAlias() = default;
};

using VelIAlias_var = VelVar<VelIAlias>;

#endif  // RENDERINGSHADER_INTERFACES_VELIALIAS_H
