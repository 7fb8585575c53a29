// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBoolean.h A parameter that holds a boolean.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERBOOLEAN_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERBOOLEAN_H

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"

/// What is particular to a boolean.
struct VelRshBooleanValue {
  using Value = bool;
  using Layout = VelIRshParameterImmLayout;
  using Changed = VelRshModelNotificationParameterBoolean1Changed;
  using HostChanged = VelRbaBooleanShaderModifyNotification;
  static constexpr Value fallback = true;
  static constexpr bool suppliedCounts = false;

  static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess) {
    return VelKeySetVelRmaCatalog::GetKeyVelRmaBooleanValue(iAccess);
  }
  static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    return iAttribute->GetBoolean(iAttribute.Key(), oValue);
  }
  static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue) {
    return iAttribute->SetBoolean(iAttribute.Key(), iValue);
  }
  static bool ToHost(bool iValue) { return iValue; }
};

/// Implements a feature of start-up VelRmaBoolean.
class VelRshParameterBoolean final : public VelRshParameterValue<VelRshBooleanValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterBoolean() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
  void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERBOOLEAN_H
