// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelOsmSUHandler.h Instantiates features of one start-up, loading its catalog when needed.
#ifndef PLATFORM_FEATUREMODELER_VELOSMSUHANDLER_H
#define PLATFORM_FEATUREMODELER_VELOSMSUHANDLER_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/featuremodeler/VelIContainer.h"

/// A start-up by name: what a factory makes on the stack.
class VEL_PLATFORM_API VelOsmSUHandler {
 public:
  /// @param[in] iType the start-up's name
  /// @param[in] iClient the identifier of the client, the empty text
  /// @param[in] iCatalog the file of the catalog that declares it, for instance "VelRmaCatalog.feat"
  VelOsmSUHandler(VelString iType, VelString iClient, VelString iCatalog);

  /// Instantiates a feature in a container. The catalog is loaded into the container when it does not know the
  /// start-up.
  /// @param[in] iName the feature's name, which may be empty
  /// @param[out] oFeature the feature as the interface asked for, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oFeature is null or the container is none of this modeler; E_FAIL when the catalog
  ///         cannot be loaded or does not declare the start-up, and for a closed container; E_NOINTERFACE when the new
  ///         feature, which then stays in the container, does not answer the interface
  HRESULT Instanciate(VelIContainer& ioContainer, const VelUnicodeString& iName, const VelInterfaceId& iInterface,
                      VelBaseUnknown** oFeature) const;

 private:
  VelString type_;
  VelString client_;
  VelString catalog_;
};

#endif  // PLATFORM_FEATUREMODELER_VELOSMSUHANDLER_H
