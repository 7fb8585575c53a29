// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelOsmSUHandler.cpp Finds the start-up, at need after loading its catalog, and instantiates.
#include "platform/featuremodeler/VelOsmSUHandler.h"

#include <utility>

#include "platform/featuremodeler/FindStartUp.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelISpecObject.h"

VelOsmSUHandler::VelOsmSUHandler(VelString iType, VelString iClient, VelString iCatalog)
    : type_(std::move(iType)), client_(std::move(iClient)), catalog_(std::move(iCatalog)) {}

HRESULT VelOsmSUHandler::Instanciate(VelIContainer& ioContainer, const VelUnicodeString& iName,
                                     const VelInterfaceId& iInterface, VelBaseUnknown** oFeature) const {
  if (oFeature == nullptr) return E_INVALIDARG;
  *oFeature = nullptr;
  const char* interfaceName = VelISpecObject::InterfaceId().Name();
  VelBaseUnknown_var hStartUp;
  HRESULT found = FindStartUp(interfaceName, client_, type_, ioContainer, hStartUp.Receive());
  if (found == E_FAIL) {
    const VelICatalogManager_var hCatalogs(&ioContainer);
    if (!hCatalogs) return E_FAIL;
    VEL_RETURN_IF_FAILED(hCatalogs->LoadCatalog(catalog_));
    found = FindStartUp(interfaceName, client_, type_, ioContainer, hStartUp.Receive());
  }
  VEL_RETURN_IF_FAILED(found);
  return VelISpecObject_var(hStartUp)->Instanciate(iName, &ioContainer, iInterface, oFeature);
}
