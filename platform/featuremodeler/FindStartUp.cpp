// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FindStartUp.cpp Looks a start-up up in a container's catalogs.
#include "platform/featuremodeler/FindStartUp.h"

#include "platform/featuremodeler/VelContainer.h"
#include "platform/featuremodeler/VelStartUp.h"

HRESULT FindStartUp(const char* iInterface, const VelString& /*iClient*/, const VelString& iType,
                    VelIContainer& iContainer, VelBaseUnknown** oStartUp) {
  if (oStartUp == nullptr) return E_INVALIDARG;
  *oStartUp = nullptr;
  VelContainer* container = VelContainer::From(&iContainer);
  if (container == nullptr) return E_INVALIDARG;
  const VelFeatureLayout* layout = container->FindStartUp(iType.View());
  if (layout == nullptr) return E_FAIL;
  return VelStartUp::Make(*layout)->QueryInterfaceByName(iInterface, oStartUp);
}
