// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameterDialog.h How a host edits a parameter in a dialog, and the default value that goes with it.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERDIALOG_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERDIALOG_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "RenderingShader/interfaces/VelRshValueTarget.h"
#include "platform/base/HResult.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameterDialog;

/// The dialog of a parameter. The component binds none.
///
/// Implemented by: hosts, as an extension of the parameters' start-ups.
/// Thread: the application thread. Re-entrancy: asked while a value is read; it must not read that value.
class VEL_RSH_INTERFACES_API VelIRshParameterDialog : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameterDialog);

  /// Supplies the default value of a parameter.
  /// @param[out] oValue a view of the parameter's own type; untouched on failure
  /// @return S_OK; E_FAIL when there is no default, or one of another type
  virtual HRESULT GetDefaultValue(VelRshValueTarget oValue) = 0;

 protected:
  ~VelIRshParameterDialog() = default;
};

using VelIRshParameterDialog_var = VelVar<VelIRshParameterDialog>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERDIALOG_H
