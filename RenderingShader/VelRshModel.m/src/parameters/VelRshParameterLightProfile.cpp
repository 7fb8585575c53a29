// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterLightProfile.cpp A light profile, without events.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterLightProfile.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshDocumentValue.h"
#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterLightProfile"};

constexpr VelRshAttribute::Accessor valueKey = &VelKeySetVelRmaCatalog::GetKeyVelRmaLightProfileValue;

}  // namespace

VelRshParameterLightProfile::~VelRshParameterLightProfile() {
  classTrace.Print(lifeLevel, "(VelRshParameterLightProfile::~VelRshParameterLightProfile) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterLightProfile::~VelRshParameterLightProfile) Done\n");
}

HRESULT VelRshParameterLightProfile::SetValue(VelBaseUnknown* iDocument) {
  VelBaseUnknown_var hPrevious;
  const HRESULT written = VelRshDocumentValue::Write(*this, valueKey, iDocument, hPrevious);
  if (written == S_OK) static_cast<void>(UpdateValue());
  return written;
}

HRESULT VelRshParameterLightProfile::GetValue(VelBaseUnknown** oDocument) {
  return VelRshDocumentValue::Read(*this, valueKey, oDocument);
}
