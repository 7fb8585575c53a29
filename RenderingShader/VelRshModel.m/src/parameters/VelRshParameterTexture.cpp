// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTexture.cpp An image document, of which the host is told by its path.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshParameterTexture.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshDocumentValue.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "platform/trace/VelClassTrace.h"

namespace {

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterTexture"};

constexpr VelRshAttribute::Accessor valueKey = &VelKeySetVelRmaCatalog::GetKeyVelRmaTextureValue;

/// @return the file of a document; empty for none and for one that has no file
VelUnicodeString PathOf(const VelBaseUnknown_var& iDocument) {
  VelUnicodeString path;
  if (iDocument) static_cast<void>(VelRbaImageServices::GetProjectionPath(iDocument.Get(), path));
  return path;
}

}  // namespace

VelRshParameterTexture::~VelRshParameterTexture() {
  classTrace.Print(lifeLevel, "(VelRshParameterTexture::~VelRshParameterTexture) Destructor\n");
  classTrace.Print(lifeLevel, "(VelRshParameterTexture::~VelRshParameterTexture) Done\n");
}

HRESULT VelRshParameterTexture::SetValue(VelBaseUnknown* iDocument) {
  const VelBaseUnknown_var hNext(iDocument);
  VelBaseUnknown_var hPrevious;
  const HRESULT written = VelRshDocumentValue::Write(*this, valueKey, iDocument, hPrevious);
  if (written == S_OK) Publish(hPrevious, hNext);
  return written;
}

HRESULT VelRshParameterTexture::GetValue(VelBaseUnknown** oDocument) {
  return VelRshDocumentValue::Read(*this, valueKey, oDocument);
}

void VelRshParameterTexture::Publish(const VelBaseUnknown_var& iPrevious, const VelBaseUnknown_var& iNext) {
  const VelEventName event = VelRshParameterPublisherEvents::VALUE_UPDATED();
  if (Callbacks().HasSubscriber(event)) {
    VelRshModelNotificationParameterPLMDocumentChanged changed(iPrevious, iNext);
    Callbacks().Dispatch(event, &changed, this);
  }
  if (IsClosed()) return;
  VelString name;
  const VelIModelEvents_var hEvents = FindHostEvents(name);
  if (!hEvents) return;
  VelRbaStringShaderModifyNotification changed(name, this, VelIRshParameter::InterfaceId(), PathOf(iPrevious),
                                               PathOf(iNext));
  static_cast<void>(hEvents->Dispatch(changed));
}
