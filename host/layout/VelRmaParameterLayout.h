// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterLayout.h Tells how a parameter is shown, and its value where none is set.
#ifndef HOST_LAYOUT_VELRMAPARAMETERLAYOUT_H
#define HOST_LAYOUT_VELRMAPARAMETERLAYOUT_H

#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/objectmodeler/VelBoa.h"

/// Answers VelIRshParameterImmLayout for the parameters of which the configuration of their shader's type says
/// something. Not exported.
class VelRmaParameterLayout final : public VelBoa<VelIRshParameterImmLayout> {
 public:
  using VelBoa::VelBoa;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null for a parameter of which nothing is said
  static VelBaseUnknown* Create(VelComponent& ioParameter);

  HRESULT GetDefaultValue(VelRshValueTarget oValue) override;
  HRESULT GetKind(VelString& oKind) override;
  HRESULT GetShown(VelString& oShown) override;
  HRESULT GetTextValue(VelString& oText) override;

 private:
  HRESULT Read(const char* iWord, VelString& oText);
};

#endif  // HOST_LAYOUT_VELRMAPARAMETERLAYOUT_H
