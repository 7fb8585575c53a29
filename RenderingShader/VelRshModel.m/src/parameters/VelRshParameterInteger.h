// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterInteger.h A parameter that holds an integer.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERINTEGER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERINTEGER_H

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"

/// What is particular to an integer.
struct VelRshIntegerValue {
  using Value = std::int32_t;
  using Layout = VelIRshParameterImmLayout;
  using Changed = VelRshModelNotificationParameterIntegral1Changed;
  using HostChanged = VelRbaIntegralShaderModifyNotification;
  static constexpr Value fallback = 0;
  static constexpr bool suppliedCounts = false;

  static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess) {
    return VelKeySetVelRmaCatalog::GetKeyVelRmaIntegerValue(iAccess);
  }
  static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    return iAttribute->GetInteger(iAttribute.Key(), oValue);
  }
  static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue) {
    return iAttribute->SetInteger(iAttribute.Key(), iValue);
  }
  static std::int32_t ToHost(std::int32_t iValue) { return iValue; }
};

/// Implements a feature of start-up VelRmaInteger.
class VelRshParameterInteger final : public VelRshParameterValue<VelRshIntegerValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterInteger() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
  void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERINTEGER_H
