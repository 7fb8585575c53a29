// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadMaterial.cpp Makes the material through the shader manager, and edits it through the translator.
#include "examples/road_of_one_edit/RoadMaterial.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "platform/base/VelEditScope.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"
#include "platform/materials/VelIRmaMaterialFigures.h"
#include "platform/materials/VelParmDictionary.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

/// From this form of material on, textures are scaled by the size of the material.
constexpr std::uint32_t materialVersion = 418;
constexpr double width = 200.0;  // Millimetres.
constexpr double height = 100.0;

VelIRenderingMaterial_var MakeMaterial(VelIContainer& ioContainer) {
  const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
  VelBaseUnknown_var hMade;
  static_cast<void>(
      handler.Instanciate(ioContainer, "Upholstery", VelIRenderingMaterial::InterfaceId(), hMade.Receive()));
  return VelIRenderingMaterial_var(hMade);
}

bool GiveFigures(VelIRenderingMaterial& ioMaterial) {
  const VelIRmaMaterialFigures_var hFigures(&ioMaterial);
  return hFigures && SUCCEEDED(hFigures->SetVersion(materialVersion)) &&
         SUCCEEDED(hFigures->SetSize(*VelParmDictionary::FindUnit("MM"), width, height));
}

VelIRshShader_var MakeShader(const VelIContainer_var& iContainer, const char* iType) {
  VelIRshShader_var hShader;
  static_cast<void>(VelRshShaderManager::GetManager()->CreateShader(iContainer, iType, hShader.Receive(), 0));
  return hShader;
}

VelIRshParameter_var FindParameter(const VelIRshShader_var& iShader, const char* iName) {
  const VelRshReaderParameterCollection collection;
  return iShader ? collection(collection(*iShader), iName) : VelIRshParameter_var();
}

}  // namespace

bool RoadMaterial::Make() {
  hContainer = VelIContainer::Create();
  hMaterial = MakeMaterial(*hContainer);
  hShader = MakeShader(hContainer, "CustomShader");
  return hMaterial && hShader && GiveFigures(*hMaterial) && SUCCEEDED(hMaterial->SetShader(hShader.Get()));
}

bool RoadMaterial::Follow() {
  hRefresh_ = VelIRmaRefresh_var(VelObject::Create("VelRmaRefresh", nullptr));
  return hRefresh_ && SUCCEEDED(hRefresh_->Attach(hMaterial.Get()));
}

bool RoadMaterial::Decorate(const std::string& iFolder) {
  const VelEditScope scope;
  hDrawing = AddTexture(iFolder + "/upholstery.svg", "default_slot_diffuse_color");
  hNormals = AddTexture(iFolder + "/upholstery_normal.png", "default_slot_normal");
  return hDrawing && hNormals;
}

/// @return the texture shader; empty on failure
VelIRshShader_var RoadMaterial::AddTexture(const std::string& iPath, const char* iChannel) {
  const VelIPLMDmtDocument_var hDocument = VelRbaDocumentServices::CreateFromFile(VelUnicodeString(iPath));
  VelIRshShader_var hTexture = MakeShader(hContainer, "vel_phen_texture");
  const VelIRshParameter_var hFile = FindParameter(hTexture, "tex");
  const VelIRshParameter_var hChannel = Find(iChannel);
  if (!hDocument || !hFile || !hChannel) return nullptr;
  if (FAILED(hFile->SetValue(static_cast<VelBaseUnknown*>(hDocument.Get())))) return nullptr;
  if (FAILED(hShader->AddNode(hTexture.Get())) || FAILED(hChannel->SetConnection(hTexture.Get()))) return nullptr;
  return hTexture;
}

VelIRshParameter_var RoadMaterial::Find(const char* iName) const { return FindParameter(hShader, iName); }

bool RoadMaterial::Edit(const char* iName, double iBefore, double iAfter) const {
  const VelIRshParameter_var hParameter = Find(iName);
  return translate_(
      VelRbaFloatShaderModifyNotification(iName, hParameter.Get(), VelIRshParameter::InterfaceId(), iBefore, iAfter));
}

bool RoadMaterial::Edit(const char* iName, std::int32_t iBefore, std::int32_t iAfter) const {
  const VelIRshParameter_var hParameter = Find(iName);
  return translate_(VelRbaIntegralShaderModifyNotification(iName, hParameter.Get(), VelIRshParameter::InterfaceId(),
                                                           iBefore, iAfter));
}

bool RoadMaterial::Edit(const char* iName, const char* iBefore, const char* iAfter) const {
  const VelIRshParameter_var hParameter = Find(iName);
  return translate_(
      VelRbaStringShaderModifyNotification(iName, hParameter.Get(), VelIRshParameter::InterfaceId(), iBefore, iAfter));
}
