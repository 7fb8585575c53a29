// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMaterialFacets.cpp Reads the figures from the attributes of the material.
#include "platform/materials/VelRmaMaterialFacets.h"

#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/materials/VelRmaMaterialKeys.h"

using Keys = VelRmaMaterialKeys;

VelImplementation* VelRmaPlasticForm::Create(VelComponent& ioMaterial) {
  const VelISpecAttrAccess_var hAttributes(&ioMaterial);
  if (!hAttributes) return nullptr;
  const bool isKnown = hAttributes->IsValuated(Keys::Version()) || hAttributes->IsValuated(Keys::PlasticScale());
  return isKnown ? new VelRmaPlasticForm(ioMaterial) : nullptr;
}

HRESULT VelRmaPlasticForm::GetVersion(std::uint32_t& oVersion) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->GetUnsigned(Keys::Version(), oVersion) : E_FAIL;
}

HRESULT VelRmaPlasticForm::GetScale(double& oScale) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->GetReal(Keys::PlasticScale(), oScale) : E_FAIL;
}

VelImplementation* VelRmaSize::Create(VelComponent& ioMaterial) {
  const VelISpecAttrAccess_var hAttributes(&ioMaterial);
  if (!hAttributes) return nullptr;
  const bool isKnown = hAttributes->IsValuated(Keys::Width()) && hAttributes->IsValuated(Keys::Height());
  return isKnown ? new VelRmaSize(ioMaterial) : nullptr;
}

HRESULT VelRmaSize::GetSize(const VelUnit& iUnit, float& oWidth, float& oHeight) {
  const VelISpecAttrAccess_var hAttributes(this);
  double width = 0.0;
  double height = 0.0;
  if (!hAttributes || FAILED(hAttributes->GetReal(Keys::Width(), width))) return E_FAIL;
  if (FAILED(hAttributes->GetReal(Keys::Height(), height))) return E_FAIL;
  oWidth = static_cast<float>(width / iUnit.metersPerUnit);
  oHeight = static_cast<float>(height / iUnit.metersPerUnit);
  return S_OK;
}
