// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices.cpp Hands the work on images to the provider that the dictionary names.
#include "platform/images/VelRbaImageServices.h"

#include <utility>

#include "platform/documents/VelMissingProvider.h"
#include "platform/images/VelIImageServices.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

constexpr const char* providerType = "VelPlatformImages";

constinit VelMissingProvider missingProvider("VelRbaImageServices", providerType);

/// @return the provider, empty when there is none, which is then said
VelIImageServices_var FindProvider() {
  VelIImageServices_var hProvider(VelObject::Create(providerType, nullptr));
  if (!hProvider) missingProvider.Warn();
  return hProvider;
}

}  // namespace

HRESULT VelRbaImageServices::GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath) {
  if (iDocument == nullptr) return E_INVALIDARG;
  const VelIImageServices_var hProvider = FindProvider();
  if (!hProvider) return E_FAIL;
  // The caller's text keeps its value whatever a failing provider has written.
  VelUnicodeString path;
  const HRESULT code = hProvider->GetProjectionPath(iDocument, path);
  if (SUCCEEDED(code)) oPath = std::move(path);
  return code;
}

void VelRbaImageServices::ResetWarning() noexcept { missingProvider.Reset(); }
