// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecAttrKeyServices.h Resolves the record of an attribute to its key.
#ifndef PLATFORM_FEATUREMODELER_VELSPECATTRKEYSERVICES_H
#define PLATFORM_FEATUREMODELER_VELSPECATTRKEYSERVICES_H

#include "platform/base/VelPlatformApi.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/featuremodeler/VelISpecAttrKey.h"

/// What a class keeps for an attribute that it uses: the names, and the key once it is resolved.
struct VelSpecAttrKeyRecord {
  const char* catalog;    ///< The catalog's own name, for instance "VelRmaCatalog".
  const char* startUp;    ///< The start-up that declares the attribute.
  const char* attribute;  ///< The attribute's name.
  const VelISpecAttrKey* key = nullptr;
};

class VEL_PLATFORM_API VelSpecAttrKeyServices {
 public:
  /// Resolves a record on a feature: the catalog's declaration gives the kind; the feature must have an attribute of
  /// that name and kind.
  /// @param[in,out] ioRecord gets the key; untouched where it cannot be resolved, so that a later feature may
  /// @param[in] iAccess the attributes of a feature; null resolves nothing
  /// @return the key, null when the catalog or its declaration is not known or the feature lacks the attribute
  static const VelISpecAttrKey* Get(VelSpecAttrKeyRecord& ioRecord, VelISpecAttrAccess* iAccess);
};

#endif  // PLATFORM_FEATUREMODELER_VELSPECATTRKEYSERVICES_H
