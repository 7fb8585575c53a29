// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExCoatingFactory.cpp Answers from the table of types.
#include "VelExCoatingFactory.h"

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "VelExCoatingTypes.h"
#include "platform/configuration/VelMsgCatalog.h"

namespace {

template <class Value>
HRESULT SetDefault(VelIRshParameter& ioParameter, const Value& iValue) {
  return ioParameter.SetValue(&iValue);
}
template <std::size_t Count>
HRESULT SetDefault(VelIRshParameter& ioParameter, const std::array<float, Count>& iValue) {
  return ioParameter.SetValue({iValue.data(), iValue.size()});
}

HRESULT Add(VelIRshShader& ioShader, const VelExCoatingParameter& iParameter) {
  VelIRshParameter_var hParameter;
  VEL_RETURN_IF_FAILED(ioShader.AddParameter(iParameter.name, iParameter.StartUp(), hParameter.Receive()));
  return std::visit([&](const auto& iValue) { return SetDefault(*hParameter, iValue); }, iParameter.value);
}

}  // namespace

HRESULT VelExCoatingFactory::ListShaderTypes(VelListValVelString& oTypes) {
  oTypes = {};
  for (const VelExCoatingType& type : VelExCoatingTypes()) oTypes.Append(type.name);
  return S_OK;
}

HRESULT VelExCoatingFactory::GetOutputType(const VelString& iType, VelString& oOutputType) {
  const VelExCoatingType* type = VelExFindCoatingType(iType);
  if (type == nullptr) return E_FAIL;
  oOutputType = type->outputType;
  return S_OK;
}

HRESULT VelExCoatingFactory::GetDisplayName(const VelString& iType, VelUnicodeString& oName) {
  const VelExCoatingType* type = VelExFindCoatingType(iType);
  if (type == nullptr) return E_FAIL;
  const VelUnicodeString message = VelMsgCatalog::BuildMessage(iType, "Label");
  oName = message.IsEmpty() ? VelUnicodeString(type->displayName) : message;
  return S_OK;
}

HRESULT VelExCoatingFactory::GetUsageFlags(const VelString& iType, std::uint32_t& oFlags) {
  const VelExCoatingType* type = VelExFindCoatingType(iType);
  if (type == nullptr) return E_FAIL;
  oFlags = type->usage;
  return S_OK;
}

HRESULT VelExCoatingFactory::GetVersion(const VelString& iType, std::uint32_t& oVersion) {
  const VelExCoatingType* type = VelExFindCoatingType(iType);
  if (type == nullptr) return E_FAIL;
  oVersion = type->version;
  return S_OK;
}

HRESULT VelExCoatingFactory::InitializeShader(VelIRshShader* ioShader, unsigned char /*iOption*/) {
  VelString name;
  VEL_RETURN_IF_FAILED(ioShader->GetType(name));
  const VelExCoatingType* type = VelExFindCoatingType(name);
  if (type == nullptr) return E_FAIL;
  VEL_RETURN_IF_FAILED(ioShader->SetOutputType(type->outputType));
  VEL_RETURN_IF_FAILED(ioShader->SetUsage(type->usage));
  VEL_RETURN_IF_FAILED(ioShader->SetVersion(type->version));
  for (const VelExCoatingParameter& parameter : type->parameters) VEL_RETURN_IF_FAILED(Add(*ioShader, parameter));
  return S_OK;
}
