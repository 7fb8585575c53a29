// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParameterResourceImage.cpp Looks for the document by the attributes of features, since shaders and
/// parameters belong to a higher floor.
#include "platform/viewer/VelParameterResourceImage.h"

#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecObject.h"

namespace {

bool IsTexture(VelBaseUnknown& iFeature) {
  const VelISpecObject_var hFeature(&iFeature);
  VelString type;
  return hFeature && SUCCEEDED(hFeature->GetType(type)) && type == "VelRmaTexture";
}

bool IsNamed(VelISpecAttrAccess& iFeature, const char* iName) {
  VelUnicodeString name;
  return SUCCEEDED(iFeature.GetText(&VelISpecAttrKey::Of("Name", VelSpecAttrKind::Text), name)) && name == iName;
}

/// @return the document of a texture; empty for what is none, and for one without a document
VelBaseUnknown_var DocumentOf(VelBaseUnknown& iFeature) {
  const VelISpecAttrAccess_var hAttributes(&iFeature);
  VelBaseUnknown_var hDocument;
  if (!hAttributes || !IsTexture(iFeature)) return hDocument;
  static_cast<void>(
      hAttributes->GetDocument(&VelISpecAttrKey::Of("Value", VelSpecAttrKind::Document), hDocument.Receive()));
  return hDocument;
}

/// @return the document of a shader's first parameter "tex"
VelBaseUnknown_var DocumentOfShader(VelBaseUnknown& iShader) {
  const VelISpecAttrKey* const parameters = &VelISpecAttrKey::Of("Parameters", VelSpecAttrKind::Components);
  const VelISpecAttrAccess_var hShader(&iShader);
  int size = 0;
  if (!hShader || FAILED(hShader->GetSize(parameters, size))) return nullptr;
  for (int position = 1; position <= size; ++position) {
    VelBaseUnknown_var hElement;
    if (FAILED(hShader->GetComponentAt(parameters, position, hElement.Receive()))) return nullptr;
    const VelISpecAttrAccess_var hParameter(hElement);
    if (hParameter && IsNamed(*hParameter, "tex")) return DocumentOf(*hElement);
  }
  return nullptr;
}

VelBaseUnknown_var FindImage(VelBaseUnknown& iParameter) {
  VelBaseUnknown_var hOwn = DocumentOf(iParameter);
  if (hOwn) return hOwn;
  const VelISpecAttrAccess_var hAttributes(&iParameter);
  VelBaseUnknown_var hNode;
  if (!hAttributes) return nullptr;
  const VelISpecAttrKey* const node = &VelISpecAttrKey::Of("Node", VelSpecAttrKind::Reference);
  return SUCCEEDED(hAttributes->GetReference(node, hNode.Receive())) ? DocumentOfShader(*hNode) : VelBaseUnknown_var();
}

}  // namespace

VelBaseUnknown* VelParameterResourceImage::Create(VelComponent& ioParameter) {
  return FindImage(ioParameter) ? new VelParameterResourceImage(ioParameter) : nullptr;
}

HRESULT VelParameterResourceImage::GetResourceImage(VelBaseUnknown** oResource) {
  if (oResource == nullptr) return E_INVALIDARG;
  *oResource = nullptr;
  if (IsClosed()) return E_FAIL;
  *oResource = FindImage(*GetComponent()).Detach();
  return *oResource != nullptr ? S_OK : E_FAIL;
}
