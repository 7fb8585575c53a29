// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTexture_DefaultSlot.cpp Reads what the appearance keeps for the slot into which a texture is
/// plugged.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterTexture.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

namespace {

struct Slot {
  const char* parameter;
  std::uint32_t number;
};

/// By the name of the material's parameter. Decided by other data than VelRshParameterServices::ComputeParameterSlot,
/// and with another number for "no slot".
constexpr Slot slots[] = {
    {"default_slot_normal", 1},
    {"default_slot_height", 2},
    {"default_slot_opacity", 3},
    {"default_slot_ambient_occlusion", 4},
    {"default_slot_diffuse_color", 5},
    {"default_slot_specular_color", 6},
    {"default_slot_specular_glossiness", 7},
    {"default_slot_specular_anisotropy_direction", 8},
    {"default_slot_transparency", 9},
    {"default_slot_clarity", 10},
    {"default_slot_emissive_color", 11},
};

constexpr std::uint32_t noSlot = 12;

std::uint32_t SlotOf(const VelString& iParameter) {
  for (const Slot& slot : slots) {
    if (iParameter == slot.parameter) return slot.number;
  }
  return noSlot;
}

/// The first known name among the material's parameters that the texture's shader is connected to decides.
/// @param[out] oSlot 1 to 11, or 12 for none
/// @return S_OK; E_FAIL when there is none, or one of the two is no shader or has no parameters
HRESULT FindDefaultSlot(VelBaseUnknown& iMaterialShader, VelBaseUnknown& iTextureShader, std::uint32_t& oSlot) {
  oSlot = noSlot;
  const VelIRshShader_var hTexture(&iTextureShader);
  const VelIRshShader_var hMaterial(&iMaterialShader);
  if (!hTexture || !hMaterial) return E_FAIL;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*hMaterial)) {
    VelIRshShader_var hConnected;
    VelString name;
    if (FAILED(hParameter->GetConnection(hConnected.Receive())) || !hConnected) continue;
    if (!hConnected->IsEqual(hTexture.Get())) continue;
    if (SUCCEEDED(hParameter->GetName(name))) oSlot = SlotOf(name);
    if (oSlot != noSlot) return S_OK;
  }
  return E_FAIL;
}

/// The way up: the texture's shader, the material's shader, the appearance.
HRESULT FindEntry(VelBaseUnknown& iParameter, VelIRmaAppearanceCache_var& oCache, std::uint32_t& oSlot) {
  const VelISpecObject_var hTexture = VelRshFather(iParameter);
  const VelISpecObject_var hMaterial = hTexture ? VelRshFather(*hTexture) : VelISpecObject_var();
  const VelISpecObject_var hAppearance = hMaterial ? VelRshFather(*hMaterial) : VelISpecObject_var();
  oCache = VelIRmaAppearanceCache_var(hAppearance);
  return oCache ? FindDefaultSlot(*hMaterial, *hTexture, oSlot) : E_FAIL;
}

}  // namespace

HRESULT VelRshParameterTexture::GetCachedPath(VelUnicodeString& oPath) {
  oPath.Clear();
  VelIRmaAppearanceCache_var hCache;
  std::uint32_t slot = noSlot;
  VEL_RETURN_IF_FAILED(FindEntry(*this, hCache, slot));
  return hCache->GetPath(slot, oPath);
}

HRESULT VelRshParameterTexture::GetCachedImage(VelPixelImage** oImage) {
  if (oImage == nullptr) return E_FAIL;
  *oImage = nullptr;
  VelIRmaAppearanceCache_var hCache;
  std::uint32_t slot = noSlot;
  VEL_RETURN_IF_FAILED(FindEntry(*this, hCache, slot));
  return hCache->GetImage(slot, oImage);
}
