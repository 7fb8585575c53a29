// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshFeatureModelerCopier.cpp Copies shader by shader, and reports what is not as it should be.
#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"

#include <algorithm>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshCopyDepth.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshValueCopy.h"
#include "platform/base/VelCheck.h"
#include "platform/substance/VelIAlgSubstanceGraphOutput.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshFeatureModelerCopier";

/// Reports what does not hold.
/// @return iHolds
bool Check(bool iHolds, unsigned iLine, const char* iExpression, const char* iMessage) {
  if (!iHolds) VelCheck::Failed({sourceText, iLine}, iExpression, iMessage);
  return iHolds;
}

bool CopyValue(const VelString& iStartUp, VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  const bool isKnown = VelRshValueCopy::KindOf(iStartUp) != VelRshValueCopy::Kind::Unknown;
  if (!Check(isKnown, __LINE__, "Copy", "Unknown type")) return false;
  const VelRshValueCopy copy = VelRshValueCopy::Run(iStartUp, iSource, ioTarget);
  return Check(SUCCEEDED(copy.read), __LINE__, "SUCCEEDED( result_read_value )", "Could not read value") &&
         Check(SUCCEEDED(copy.write), __LINE__, "SUCCEEDED( result_write_value )", "Could not write value");
}

}  // namespace

VelRshFeatureModelerCopier::VelRshFeatureModelerCopier(VelIContainer& ioContainer) : factory_(ioContainer) {}

VelIRshShader_var VelRshFeatureModelerCopier::Copy(const VelIRshShader_var& iShader) const {
  Path path;
  return CopyShader(iShader, path);
}

VelIRshShader_var VelRshFeatureModelerCopier::CopyShader(const VelIRshShader_var& iShader, Path& ioPath) const {
  const VelRshCopyDepth depth(sourceText);
  if (!depth.MayGoOn()) return nullptr;
  VelString type;
  const bool isTypeRead = iShader && SUCCEEDED(iShader->GetType(type));
  if (!Check(isTypeRead, __LINE__, "SUCCEEDED( result_read_type )", "Could not read type")) return nullptr;
  VelIRshShader_var hCopy = factory_.CreateShader(VelUnicodeString(type));
  if (!Check(static_cast<bool>(hCopy), __LINE__, "hCopiedShader", "Could not create shader")) return nullptr;
  ioPath.push_back(iShader.Get());
  bool isWhole = true;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*iShader)) {
    isWhole = CopyParameter(hParameter, *hCopy, ioPath);
    if (!isWhole) break;
  }
  ioPath.pop_back();
  return isWhole ? hCopy : VelIRshShader_var();
}

bool VelRshFeatureModelerCopier::CopyParameter(const VelIRshParameter_var& iParameter, VelIRshShader& ioCopy,
                                               Path& ioPath) const {
  VelString name;
  VelString type;
  if (!Check(static_cast<bool>(iParameter), __LINE__, "hParameter", "Invalid parameter stored")) return false;
  const HRESULT nameRead = iParameter->GetName(name);
  if (!Check(SUCCEEDED(nameRead), __LINE__, "SUCCEEDED( result_read_name )", "Could not read name")) return false;
  const HRESULT typeRead = iParameter->GetType(type);
  if (!Check(SUCCEEDED(typeRead), __LINE__, "SUCCEEDED( result_read_type )", "Could not read type")) return false;
  const VelIRshParameter_var hCopy = factory_.CreateShaderParameter(VelUnicodeString(name), VelUnicodeString(type));
  if (!Check(static_cast<bool>(hCopy), __LINE__, "hCopiedParameter", "Could not create parameter")) return false;
  const HRESULT added = ioCopy.AppendParameter(hCopy.Get());
  if (!Check(SUCCEEDED(added), __LINE__, "SUCCEEDED( result_write_parameter )", "Could not write parameter")) {
    return false;
  }
  return CopyValue(type, *iParameter, *hCopy) && CopyConnection(*iParameter, *hCopy, ioPath);
}

bool VelRshFeatureModelerCopier::CopyConnection(VelIRshParameter& iParameter, VelIRshParameter& ioCopy,
                                                Path& ioPath) const {
  VelIRshShader_var hConnected;
  if (FAILED(iParameter.GetConnection(hConnected.Receive())) || !hConnected) return true;
  if (!VelIAlgSubstanceGraphOutput_var(hConnected)) {
    const bool isCycle =
        std::any_of(ioPath.begin(), ioPath.end(), [&](VelIRshShader* iAbove) { return hConnected->IsEqual(iAbove); });
    hConnected = isCycle ? VelIRshShader_var() : CopyShader(hConnected, ioPath);
  }
  if (!Check(static_cast<bool>(hConnected), __LINE__, "hCopiedConnection", "Could not create connection")) return false;
  // Deliberately no look at the result: the copies are whole without it.
  static_cast<void>(ioCopy.SetConnection(hConnected.Get()));
  return true;
}
