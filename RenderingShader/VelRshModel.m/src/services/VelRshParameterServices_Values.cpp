// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Values.cpp Reads and writes values beside a parameter, by name.
#include <memory>
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "platform/images/VelRbaImageServices.h"

namespace {

constexpr const char* groupNames = "group_names";

/// @return the shader that is the father of a parameter's feature; empty for null
VelIRshShader_var FatherShader(VelIRshParameter* iParameter) {
  return iParameter != nullptr ? VelIRshShader_var(VelRshFather(*iParameter)) : VelIRshShader_var();
}

/// @return true for a parameter whose name can be read and is the one asked for, embedded NULs included
bool IsNamed(const VelIRshParameter_var& iParameter, const VelString& iName) {
  VelString name;
  return iParameter && SUCCEEDED(iParameter->GetName(name)) && name == iName;
}

/// Finds a shader's first parameter of a name.
/// @param[out] oParameter empty where there is none, also where the listing gives no list
/// @return the code of the listing
HRESULT FindByName(const VelIRshShader_var& iShader, const VelString& iName, VelIRshParameter_var& oParameter) {
  oParameter = nullptr;
  VelListPtrVelBaseUnknown* list = nullptr;
  const HRESULT listed = iShader->GetParameters(&list);
  const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
  if (FAILED(listed) || list == nullptr) return listed;
  for (VelBaseUnknown* element : *list) {
    VelIRshParameter_var hParameter(element);
    if (!IsNamed(hParameter, iName)) continue;
    oParameter = std::move(hParameter);
    break;
  }
  VelRshComponentList::Release(*list);
  return listed;
}

}  // namespace

HRESULT VelRshParameterServices::RetrieveDpi(VelIRshParameter* iParameter, int& oDpi) {
  if (iParameter == nullptr) return E_FAIL;
  const VelISpecObject_var hFather = VelRshFather(*iParameter);
  const VelIRshShader_var hShader(hFather ? VelRshFather(*hFather) : VelISpecObject_var());
  VelIRshParameter_var hDpi;
  if (hShader && SUCCEEDED(FindByName(hShader, "dpi", hDpi)) && hDpi) static_cast<void>(hDpi->GetValue(&oDpi));
  return E_FAIL;  // Deliberately, also when the value was found: the established contract.
}

HRESULT VelRshParameterServices::RetrieveGroupList(VelIRshParameter* iParameter, VelListValVelUnicodeString& ioGroups) {
  const VelIRshShader_var hShader = FatherShader(iParameter);
  VelIRshParameter_var hGroups;
  if (!hShader || FAILED(FindByName(hShader, groupNames, hGroups)) || !hGroups) return E_FAIL;
  VelUnicodeString text;
  static_cast<void>(hGroups->GetValue(&text));
  if (!text.IsEmpty()) VelRbaImageServices::ExtractPathList(text, ioGroups);
  return E_FAIL;  // Deliberately, as for RetrieveDpi.
}

HRESULT VelRshParameterServices::WriteGroupList(VelIRshParameter* iParameter,
                                                const VelListValVelUnicodeString& iGroups) {
  const VelIRshShader_var hShader = FatherShader(iParameter);
  if (!hShader) return E_FAIL;
  VelIRshParameter_var hGroups;
  VEL_RETURN_IF_FAILED(FindByName(hShader, groupNames, hGroups));
  if (!hGroups || iGroups.IsEmpty()) return S_OK;
  VelUnicodeString text = iGroups[1];
  for (int position = 2; position <= iGroups.Size(); ++position) text = text + ";" + iGroups[position];
  static_cast<void>(hGroups->SetValue(&text));
  return S_OK;
}

HRESULT VelRshParameterServices::RetrieveParameter(VelIRshParameter* iParameter, VelString iName,
                                                   VelIRshParameter** oParameter) {
  if (oParameter == nullptr || iName.IsEmpty()) return E_FAIL;
  const VelIRshShader_var hShader = FatherShader(iParameter);
  if (!hShader) return E_FAIL;
  VelIRshParameter_var hFound;
  const HRESULT listed = FindByName(hShader, iName, hFound);
  if (!hFound) return listed;
  *oParameter = hFound.Detach();
  return S_OK;
}

HRESULT VelRshParameterServices::RetrieveParameterValue(VelIRshParameter* iParameter, VelString iName,
                                                        VelRshValueTarget oValue) {
  if (oValue.IsNull()) return E_FAIL;
  VelIRshParameter_var hFound;
  const HRESULT found = RetrieveParameter(iParameter, std::move(iName), hFound.Receive());
  return hFound ? hFound->GetValue(oValue) : found;
}
