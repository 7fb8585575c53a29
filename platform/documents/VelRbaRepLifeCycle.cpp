// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaRepLifeCycle.cpp Hands the references on documents to the provider that the dictionary names.
#include "platform/documents/VelRbaRepLifeCycle.h"

#include "platform/documents/VelIRepLifeCycle.h"
#include "platform/documents/VelMissingProvider.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

constexpr const char* providerType = "VelPlatformDocuments";

constinit VelMissingProvider missingProvider("VelRbaRepLifeCycle", providerType);

HRESULT Forward(HRESULT (VelIRepLifeCycle::*iOperation)(VelBaseUnknown*), VelBaseUnknown* iDocument) {
  if (iDocument == nullptr) return E_INVALIDARG;
  const VelIRepLifeCycle_var hProvider(VelObject::Create(providerType, nullptr));
  if (hProvider) return (hProvider.Get()->*iOperation)(iDocument);
  missingProvider.Warn();
  return E_FAIL;
}

}  // namespace

HRESULT VelRbaRepLifeCycle::AddReference(VelBaseUnknown* iDocument) {
  return Forward(&VelIRepLifeCycle::AddReference, iDocument);
}

HRESULT VelRbaRepLifeCycle::RemoveReference(VelBaseUnknown* iDocument) {
  return Forward(&VelIRepLifeCycle::RemoveReference, iDocument);
}

void VelRbaRepLifeCycle::ResetWarning() noexcept { missingProvider.Reset(); }
