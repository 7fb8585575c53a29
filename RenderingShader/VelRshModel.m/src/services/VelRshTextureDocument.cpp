// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTextureDocument.cpp Asks the parameter, the document and the image services.
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureDocument.h"

#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/images/VelRbaImageServices.h"

VelBaseUnknown_var VelRshTextureDocument::Of(const VelIRshParameter_var& iParameter) {
  VelBaseUnknown_var hDocument;
  if (!iParameter || FAILED(iParameter->GetValue(hDocument.Receive()))) return nullptr;
  return hDocument;
}

bool VelRshTextureDocument::IsSvg(VelBaseUnknown& iDocument) {
  const VelIPLMDmtDocument_var hDocument(&iDocument);
  VelString format;
  if (hDocument) static_cast<void>(hDocument->GetFormatName(format));
  return format.ToLower() == "svg";
}

bool VelRshTextureDocument::FindPath(VelBaseUnknown& iDocument, VelUnicodeString& oPath) {
  return SUCCEEDED(VelRbaImageServices::GetProjectionPath(&iDocument, oPath));
}
