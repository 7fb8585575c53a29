// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMaterialFacets.cpp Reads the figures from the attributes of the material.
#include "platform/materials/VelRmaMaterialFacets.h"

#include "platform/featuremodeler/VelISpecAttrAccess.h"

namespace {

const VelISpecAttrKey* VersionKey() { return &VelISpecAttrKey::Of("Version", VelSpecAttrKind::Unsigned); }

const VelISpecAttrKey* RealKey(const char* iAttribute) {
  return &VelISpecAttrKey::Of(iAttribute, VelSpecAttrKind::Real);
}

}  // namespace

VelImplementation* VelRmaPlasticForm::Create(VelComponent& ioMaterial) {
  const VelISpecAttrAccess_var hAttributes(&ioMaterial);
  if (!hAttributes) return nullptr;
  const bool isKnown = hAttributes->IsValuated(VersionKey()) || hAttributes->IsValuated(RealKey("PlasticScale"));
  return isKnown ? new VelRmaPlasticForm(ioMaterial) : nullptr;
}

HRESULT VelRmaPlasticForm::GetVersion(std::uint32_t& oVersion) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->GetUnsigned(VersionKey(), oVersion) : E_FAIL;
}

HRESULT VelRmaPlasticForm::GetScale(double& oScale) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->GetReal(RealKey("PlasticScale"), oScale) : E_FAIL;
}

VelImplementation* VelRmaSize::Create(VelComponent& ioMaterial) {
  const VelISpecAttrAccess_var hAttributes(&ioMaterial);
  if (!hAttributes) return nullptr;
  const bool isKnown = hAttributes->IsValuated(RealKey("Width")) && hAttributes->IsValuated(RealKey("Height"));
  return isKnown ? new VelRmaSize(ioMaterial) : nullptr;
}

HRESULT VelRmaSize::GetSize(const VelUnit& iUnit, float& oWidth, float& oHeight) {
  const VelISpecAttrAccess_var hAttributes(this);
  double width = 0.0;
  double height = 0.0;
  if (!hAttributes || FAILED(hAttributes->GetReal(RealKey("Width"), width))) return E_FAIL;
  if (FAILED(hAttributes->GetReal(RealKey("Height"), height))) return E_FAIL;
  oWidth = static_cast<float>(width / iUnit.metersPerUnit);
  oHeight = static_cast<float>(height / iUnit.metersPerUnit);
  return S_OK;
}
