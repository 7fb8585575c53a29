// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterScalar.h A parameter that holds a real number.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSCALAR_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSCALAR_H

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"

/// What is particular to a real number: its attribute is a double.
struct VelRshScalarValue {
  using Value = float;
  using Layout = VelIRshParameterImmLayout;
  using Changed = VelRshModelNotificationParameterScalar1Changed;
  using HostChanged = VelRbaFloatShaderModifyNotification;
  static constexpr Value fallback = 0.0F;
  static constexpr bool suppliedCounts = true;  // Other than for the other types.

  static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess) {
    return VelKeySetVelRmaCatalog::GetKeyVelRmaScalarValue(iAccess);
  }
  static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    double real = 0.0;
    VEL_RETURN_IF_FAILED(iAttribute->GetReal(iAttribute.Key(), real));
    oValue = static_cast<float>(real);
    return S_OK;
  }
  static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue) {
    return iAttribute->SetReal(iAttribute.Key(), static_cast<double>(iValue));
  }
  static double ToHost(float iValue) { return static_cast<double>(iValue); }
};

/// Implements a feature of start-up VelRmaScalar.
class VelRshParameterScalar final : public VelRshParameterValue<VelRshScalarValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterScalar() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
  void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSCALAR_H
