// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelKeySetVelRmaCatalog.cpp The records of the keys, each resolved on first use.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"

#include "platform/featuremodeler/VelSpecAttrKeyServices.h"

namespace {

constexpr const char* catalogName = "VelRmaCatalog";

/// A key that is set is returned as it is: no look-up, and no test of the feature that is passed.
const VelISpecAttrKey* Resolve(VelSpecAttrKeyRecord& ioRecord, VelISpecAttrAccess* iAccess) {
  return ioRecord.key != nullptr ? ioRecord.key : VelSpecAttrKeyServices::Get(ioRecord, iAccess);
}

}  // namespace

#define VEL_RMA_KEY(Accessor, StartUp, Attribute)                                        \
  const VelISpecAttrKey* VelKeySetVelRmaCatalog::Accessor(VelISpecAttrAccess* iAccess) { \
    static constinit VelSpecAttrKeyRecord record{catalogName, #StartUp, #Attribute};     \
    return Resolve(record, iAccess);                                                     \
  }
#include "RenderingShader/VelRshModel.m/include/VelRmaCatalogKeys.def"
#undef VEL_RMA_KEY
