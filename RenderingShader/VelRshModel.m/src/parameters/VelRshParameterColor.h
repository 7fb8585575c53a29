// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterColor.h A parameter that holds a colour.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERCOLOR_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERCOLOR_H

#include <array>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshRealList.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"

/// What is particular to a colour: red, green, blue, alpha.
struct VelRshColorValue {
  using Value = std::array<float, 4>;
  using Layout = VelIRshParameterImmLayout;
  using Changed = VelRshModelNotificationParameterScalar4Changed;
  using HostChanged = VelRbaColorShaderModifyNotification;
  static constexpr Value fallback{};
  static constexpr bool suppliedCounts = false;

  static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess) {
    return VelKeySetVelRmaCatalog::GetKeyVelRmaColorValue(iAccess);
  }
  static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    return VelRshRealList::Read(iAttribute, oValue);
  }
  static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue) {
    return VelRshRealList::Write(iAttribute, iValue);
  }
  static rgba_t ToHost(const Value& iValue) { return {iValue[0], iValue[1], iValue[2], iValue[3]}; }
};

/// Implements a feature of start-up VelRmaColor.
class VelRshParameterColor final : public VelRshParameterValue<VelRshColorValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterColor() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERCOLOR_H
