// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRenderingMaterial.cpp Keeps the shader in a list of one, and the textures in eleven places.
#include "platform/materials/VelRmaRenderingMaterial.h"

#include <utility>

#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/materials/VelRmaImageBudget.h"
#include "platform/materials/VelRmaMaterialKeys.h"

using Keys = VelRmaMaterialKeys;

VelRmaRenderingMaterial::~VelRmaRenderingMaterial() {
  for (VelRmaImageEntry& entry : entries_) Clear(entry);
}

HRESULT VelRmaRenderingMaterial::GetShader(VelBaseUnknown** oShader) {
  if (oShader == nullptr) return E_INVALIDARG;
  *oShader = nullptr;
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes && SUCCEEDED(hAttributes->GetComponentAt(Keys::Shader(), 1, oShader)) ? S_OK : E_FAIL;
}

/// The new shader is appended before the old one is taken out, so that one which cannot be carried changes nothing.
HRESULT VelRmaRenderingMaterial::SetShader(VelBaseUnknown* iShader) {
  const VelISpecAttrAccess_var hAttributes(this);
  if (!hAttributes) return E_FAIL;
  VelBaseUnknown_var hCarried;
  static_cast<void>(hAttributes->GetComponentAt(Keys::Shader(), 1, hCarried.Receive()));
  const bool isSame = iShader != nullptr ? iShader->IsEqual(hCarried.Get()) : !hCarried;
  if (isSame) return S_FALSE;
  if (iShader != nullptr && FAILED(hAttributes->AppendComponent(Keys::Shader(), iShader))) return E_FAIL;
  return hCarried ? hAttributes->RemoveComponent(Keys::Shader(), hCarried.Get()) : S_OK;
}

HRESULT VelRmaRenderingMaterial::GetScaleFactor(double& oFactor) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->GetReal(Keys::ScaleFactor(), oFactor) : E_FAIL;
}

VelRmaImageEntry* VelRmaRenderingMaterial::Find(std::uint32_t iSlot) noexcept {
  if (iSlot < 1 || iSlot > slotCount || !entries_[iSlot - 1].isSet) return nullptr;
  return &entries_[iSlot - 1];
}

void VelRmaRenderingMaterial::Clear(VelRmaImageEntry& ioEntry) noexcept {
  VelRmaImageBudget::Forget(ioEntry);
  ioEntry = VelRmaImageEntry();
}

HRESULT VelRmaRenderingMaterial::SetEntry(std::uint32_t iSlot, const VelUnicodeString& iPath, VelPixelImage* iImage) {
  if (iSlot < 1 || iSlot > slotCount) return E_INVALIDARG;
  VelRmaImageEntry& entry = entries_[iSlot - 1];
  // Made before the old entry goes, of which path and image may be part.
  VelRmaImageEntry next;
  next.isSet = true;
  next.path = iPath;
  next.image = VelBaseUnknown_var(static_cast<VelBaseUnknown*>(iImage));
  Clear(entry);
  entry = std::move(next);
  VelRmaImageBudget::Use(entry);
  return S_OK;
}

HRESULT VelRmaRenderingMaterial::ResetEntry(std::uint32_t iSlot) {
  if (iSlot > slotCount) return E_INVALIDARG;
  VelRmaImageEntry* entry = Find(iSlot);
  if (entry == nullptr) return S_FALSE;
  Clear(*entry);
  return S_OK;
}

HRESULT VelRmaRenderingMaterial::GetPath(std::uint32_t iSlot, VelUnicodeString& oPath) {
  oPath.Clear();
  const VelRmaImageEntry* entry = Find(iSlot);
  if (entry == nullptr) return E_FAIL;
  oPath = entry->path;
  return S_OK;
}

HRESULT VelRmaRenderingMaterial::GetImage(std::uint32_t iSlot, VelPixelImage** oImage) {
  if (oImage == nullptr) return E_INVALIDARG;
  *oImage = nullptr;
  VelRmaImageEntry* entry = Find(iSlot);
  if (entry == nullptr) return E_FAIL;
  if (entry->wasDropped) {
    entry->image = VelBaseUnknown_var::Adopt(VelPixelImage::CreateFromFile(entry->path, 1, 0));
    entry->wasDropped = !entry->image;
  }
  VelRmaImageBudget::Use(*entry);
  *oImage = VelPixelImage::From(VelBaseUnknown_var(entry->image).Detach());
  return S_OK;
}

HRESULT VelRmaRenderingMaterial::SetVersion(std::uint32_t iVersion) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->SetUnsigned(Keys::Version(), iVersion) : E_FAIL;
}

HRESULT VelRmaRenderingMaterial::SetReal(const VelISpecAttrKey* iKey, double iValue) {
  const VelISpecAttrAccess_var hAttributes(this);
  return hAttributes ? hAttributes->SetReal(iKey, iValue) : E_FAIL;
}

HRESULT VelRmaRenderingMaterial::SetPlasticScale(double iScale) { return SetReal(Keys::PlasticScale(), iScale); }

HRESULT VelRmaRenderingMaterial::SetSize(const VelUnit& iUnit, double iWidth, double iHeight) {
  if (!(iWidth > 0.0) || !(iHeight > 0.0)) return E_INVALIDARG;
  VEL_RETURN_IF_FAILED(SetReal(Keys::Width(), iWidth * iUnit.metersPerUnit));
  return SetReal(Keys::Height(), iHeight * iUnit.metersPerUnit);
}

HRESULT VelRmaRenderingMaterial::SetScaleFactor(double iFactor) { return SetReal(Keys::ScaleFactor(), iFactor); }
