// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterVector.h A parameter that holds a vector.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVECTOR_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVECTOR_H

#include <array>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshRealList.h"
#include "RenderingShader/interfaces/VelIRshParameterDialog.h"

/// What is particular to a vector: x, y, z. Its key is deliberately that of colours (VelRmaCatalogKeys.def), and it is
/// the dialog that supplies a value where none was set.
struct VelRshVectorValue {
  using Value = std::array<float, 3>;
  using Layout = VelIRshParameterDialog;
  using Changed = VelRshModelNotificationParameterScalar3Changed;
  using HostChanged = void;
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
};

/// Implements a feature of start-up VelRmaVector. Reading reports what is missing.
class VelRshParameterVector final : public VelRshParameterValue<VelRshVectorValue> {
 public:
  using VelRshParameterValue::VelRshParameterValue;
  ~VelRshParameterVector() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  using VelRshParameterValue::GetValue;
  HRESULT GetValue(VelRshValueTarget oValue);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVECTOR_H
