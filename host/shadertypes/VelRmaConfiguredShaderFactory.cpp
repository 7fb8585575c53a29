// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaConfiguredShaderFactory.cpp Answers from the types that were read.
#include "host/shadertypes/VelRmaConfiguredShaderFactory.h"

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "host/shadertypes/VelRmaShaderTypes.h"
#include "platform/configuration/VelMsgCatalog.h"
#include "platform/featuremodeler/VelISpecObject.h"

namespace {

/// A parameter gets its value before the shader gets it: nobody has to hear of it, and a value that the configuration
/// supplies as well is written all the same.
HRESULT AddParameter(const VelRmaShaderParameter& iParameter, const VelRshModelFactoryFeature& iFactory,
                     VelIRshShader& ioShader) {
  const VelIRshParameter_var hParameter =
      iFactory.CreateShaderParameter(VelUnicodeString(iParameter.name), VelUnicodeString(iParameter.startUp));
  if (!hParameter) return E_FAIL;
  if (iParameter.value) VEL_RETURN_IF_FAILED(iParameter.value->WriteTo(*hParameter));
  return ioShader.AppendParameter(hParameter.Get());
}

HRESULT FindContainer(VelIRshShader& iShader, VelIContainer_var& oContainer) {
  const VelISpecObject_var hFeature(&iShader);
  if (!hFeature) return E_NOINTERFACE;
  return hFeature->GetContainer(oContainer.Receive());
}

}  // namespace

HRESULT VelRmaConfiguredShaderFactory::ListShaderTypes(VelListValVelString& oTypes) {
  oTypes.RemoveAll();
  for (const VelString& name : VelRmaShaderTypes::Instance().Rescan()) oTypes.Append(name);
  return S_OK;
}

HRESULT VelRmaConfiguredShaderFactory::GetOutputType(const VelString& iType, VelString& oOutputType) {
  const VelRmaShaderType* const type = VelRmaShaderTypes::Instance().Find(iType);
  if (type == nullptr) return E_FAIL;
  oOutputType = type->outputType;
  return S_OK;
}

/// A message of the host's own stands before the file's.
HRESULT VelRmaConfiguredShaderFactory::GetDisplayName(const VelString& iType, VelUnicodeString& oName) {
  const VelRmaShaderType* const type = VelRmaShaderTypes::Instance().Find(iType);
  if (type == nullptr) return E_FAIL;
  oName = VelMsgCatalog::BuildMessage(iType, "Label");
  if (oName.IsEmpty()) oName = VelUnicodeString(type->LabelIn(VelMsgCatalog::Language()));
  return S_OK;
}

HRESULT VelRmaConfiguredShaderFactory::GetUsageFlags(const VelString& iType, std::uint32_t& oFlags) {
  const VelRmaShaderType* const type = VelRmaShaderTypes::Instance().Find(iType);
  if (type == nullptr) return E_FAIL;
  oFlags = type->usage;
  return S_OK;
}

HRESULT VelRmaConfiguredShaderFactory::GetVersion(const VelString& iType, std::uint32_t& oVersion) {
  const VelRmaShaderType* const type = VelRmaShaderTypes::Instance().Find(iType);
  if (type == nullptr) return E_FAIL;
  oVersion = type->version;
  return S_OK;
}

HRESULT VelRmaConfiguredShaderFactory::InitializeShader(VelIRshShader* ioShader, unsigned char) {
  VelString name;
  VelIContainer_var hContainer;
  VEL_RETURN_IF_FAILED(ioShader->GetType(name));
  const VelRmaShaderType* const found = VelRmaShaderTypes::Instance().Find(name);
  if (found == nullptr) return E_FAIL;
  VEL_RETURN_IF_FAILED(FindContainer(*ioShader, hContainer));
  // Who hears of the parameters may have the files read again.
  const VelRmaShaderType type = *found;
  VEL_RETURN_IF_FAILED(ioShader->SetOutputType(type.outputType));
  VEL_RETURN_IF_FAILED(ioShader->SetUsage(type.usage));
  VEL_RETURN_IF_FAILED(ioShader->SetVersion(type.version));
  const VelRshModelFactoryFeature factory(*hContainer);
  for (const VelRmaShaderParameter& parameter : type.parameters) {
    VEL_RETURN_IF_FAILED(AddParameter(parameter, factory, *ioShader));
  }
  return S_OK;
}
