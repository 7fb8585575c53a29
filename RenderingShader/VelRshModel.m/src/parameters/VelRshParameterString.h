// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterString.h A parameter that holds a text.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSTRING_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSTRING_H

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"

/// What is particular to a text.
struct VelRshStringValue {
  using Value = VelUnicodeString;
  using Layout = VelIRshParameterImmLayout;
  using Changed = VelRshModelNotificationParameterTextChanged;
  using HostChanged = VelRbaStringShaderModifyNotification;
  static constexpr const char* fallback = "";
  static constexpr bool suppliedCounts = false;

  static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess) {
    return VelKeySetVelRmaCatalog::GetKeyVelRmaStringValue(iAccess);
  }
  static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    return iAttribute->GetText(iAttribute.Key(), oValue);
  }
  static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue) {
    return iAttribute->SetText(iAttribute.Key(), iValue);
  }
  static const VelUnicodeString& ToHost(const VelUnicodeString& iValue) { return iValue; }
};

/// Implements a feature of start-up VelRmaString.
class VelRshParameterString final : public VelRshParameterValue<VelRshStringValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterString() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSTRING_H
