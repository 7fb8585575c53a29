// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageProvider.cpp Finds who works on images.
#include "platform/images/VelImageProvider.h"

#include "platform/documents/VelMissingProvider.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

constexpr const char* providerType = "VelPlatformImages";

constinit VelMissingProvider missingProvider("VelRbaImageServices", providerType);

}  // namespace

VelIImageServices_var VelImageProvider::Find() {
  VelIImageServices_var hProvider(VelObject::Create(providerType, nullptr));
  if (!hProvider) missingProvider.Warn();
  return hProvider;
}

void VelImageProvider::ResetWarning() noexcept { missingProvider.Reset(); }
