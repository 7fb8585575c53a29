// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterMatrix.cpp Sixteen reals, without events.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterMatrix.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshRealList.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshValueElements.h"
#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterMatrix"};

using Matrix = std::array<float, 16>;

/// Deliberately the colour's, see VelRmaCatalogKeys.def.
constexpr VelRshAttribute::Accessor valueKey = &VelKeySetVelRmaCatalog::GetKeyVelRmaColorValue;

}  // namespace

VelRshParameterMatrix::~VelRshParameterMatrix() {
  classTrace.Print(lifeLevel, "(VelRshParameterMatrix::~VelRshParameterMatrix) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterMatrix::~VelRshParameterMatrix) Done\n");
}

HRESULT VelRshParameterMatrix::SetValue(VelRshValueSource iValue) {
  if (iValue.IsNull()) return E_NOINTERFACE;  // As for every type of value.
  Matrix next{};
  const VelRshAttribute attribute(this, valueKey);
  if (!VelRshTake(iValue, next) || !attribute) return E_FAIL;
  Matrix previous{};
  if (SUCCEEDED(VelRshRealList::Read(attribute, previous)) && previous == next) return S_FALSE;
  VEL_RETURN_IF_FAILED(VelRshRealList::Write(attribute, next));
  static_cast<void>(UpdateValue());
  return S_OK;
}

HRESULT VelRshParameterMatrix::GetValue(VelRshValueTarget oValue) {
  if (oValue.IsNull() || !VelRshFits<Matrix>(oValue)) return E_FAIL;
  const VelRshAttribute attribute(this, valueKey);
  Matrix value{};
  if (!attribute || FAILED(VelRshRealList::Read(attribute, value))) return E_FAIL;
  VelRshGive(value, oValue);
  return S_OK;
}
