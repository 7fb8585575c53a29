// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterDialog.h Gives the default value of a parameter.
#ifndef HOST_LAYOUT_VELRMAPARAMETERDIALOG_H
#define HOST_LAYOUT_VELRMAPARAMETERDIALOG_H

#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "platform/objectmodeler/VelBoa.h"

/// Answers VelIRshParameterDialog for the parameters of which the configuration of their shader's type says something.
/// Not exported.
class VelRmaParameterDialog final : public VelBoa<VelIRshParameterDialog> {
 public:
  using VelBoa::VelBoa;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null for a parameter of which nothing is said
  static VelBaseUnknown* Create(VelComponent& ioParameter);

  HRESULT GetDefaultValue(VelRshValueTarget oValue) override;
};

#endif  // HOST_LAYOUT_VELRMAPARAMETERDIALOG_H
