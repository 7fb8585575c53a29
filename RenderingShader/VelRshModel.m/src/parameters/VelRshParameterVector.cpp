// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterVector.cpp Reading a vector, each precondition with a report of its own.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterVector.h"

#include "platform/base/VelCheck.h"
#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterVector"};

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshParameterVector";

/// Reports a precondition that does not hold. @return the code that goes with it
HRESULT Report(VelSourcePosition iPosition, const char* iExpression, const char* iMessage, HRESULT iCode) {
  VelCheck::Failed(iPosition, iExpression, iMessage);
  return iCode;
}

}  // namespace

VelRshParameterVector::~VelRshParameterVector() {
  classTrace.Print(lifeLevel, "(VelRshParameterVector::~VelRshParameterVector) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterVector::~VelRshParameterVector) Done\n");
}

/// The misspelt messages are those that tools look for.
HRESULT VelRshParameterVector::GetValue(VelRshValueTarget oValue) {
  if (oValue.IsNull()) return Report(VEL_HERE(sourceText), "oValue", "NULL pointer given", E_INVALIDARG);
  if (!VelRshFits<Value>(oValue)) return E_FAIL;
  const VelISpecAttrAccess_var hAttributes(this);
  if (!hAttributes) {
    return Report(VEL_HERE(sourceText), "hAttributes", "VelISpecAttrAccess not avialable", E_NOINTERFACE);
  }
  const VelISpecAttrKey* key = VelRshVectorValue::Key(hAttributes.Get());
  if (key == nullptr) return Report(VEL_HERE(sourceText), "pKeyValue", "key `Value` not avialable", E_UNEXPECTED);
  const VelRshAttribute attribute(this, &VelRshVectorValue::Key);
  if (!attribute) return Report(VEL_HERE(sourceText), "hAttributes->TestAttrKey( pKeyValue )", "", E_UNEXPECTED);
  return ReadInto(attribute, oValue);
}
