// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterCollection.cpp Lists and picks parameters.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"

#include <memory>

#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"

VelRshReaderParameterCollection::Parameters VelRshReaderParameterCollection::operator()(
    const VelIRshShader& iShader) const {
  Parameters parameters;
  VelListPtrVelBaseUnknown* list = nullptr;
  const HRESULT listed = const_cast<VelIRshShader&>(iShader).GetParameters(&list);
  const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
  if (FAILED(listed) || list == nullptr) return parameters;
  for (VelBaseUnknown* element : *list) {
    VelIRshParameter_var hParameter(element);
    if (hParameter) parameters.push_back(std::move(hParameter));
  }
  VelRshComponentList::Release(*list);
  return parameters;
}

VelRshReaderParameterCollection::Parameters VelRshReaderParameterCollection::operator()(
    const Parameters& iParameters, VelIRshParameterPrivate::Tag iTag) const {
  Parameters tagged;
  for (const VelIRshParameter_var& hParameter : iParameters) {
    const VelIRshParameterPrivate_var hPrivate(hParameter);
    if (hPrivate && SUCCEEDED(hPrivate->HasTag(iTag))) tagged.push_back(hParameter);
  }
  return tagged;
}

VelIRshParameter_var VelRshReaderParameterCollection::operator()(const Parameters& iParameters,
                                                                 const char* iName) const {
  if (iName == nullptr) return nullptr;
  for (const VelIRshParameter_var& hParameter : iParameters) {
    VelString name;
    if (hParameter && SUCCEEDED(hParameter->GetName(name)) && name == iName) return hParameter;
  }
  return nullptr;
}
