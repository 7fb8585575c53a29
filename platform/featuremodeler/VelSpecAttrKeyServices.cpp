// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecAttrKeyServices.cpp Looks an attribute up in the catalog that declares it.
#include "platform/featuremodeler/VelSpecAttrKeyServices.h"

#include <string_view>

#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelFeatureLayout.h"

namespace {

const VelISpecAttrKey* FindDeclared(const VelSpecAttrKeyRecord& iRecord) {
  const VelCatalog* catalog = VelCatalog::Find(iRecord.catalog);
  const VelFeatureLayout* startUp = catalog != nullptr ? catalog->FindStartUp(iRecord.startUp) : nullptr;
  if (startUp == nullptr) return nullptr;
  for (const VelFeatureAttribute& attribute : startUp->Attributes()) {
    if (attribute.key->Name() == std::string_view(iRecord.attribute)) return attribute.key;
  }
  return nullptr;
}

}  // namespace

const VelISpecAttrKey* VelSpecAttrKeyServices::Get(VelSpecAttrKeyRecord& ioRecord, VelISpecAttrAccess* iAccess) {
  if (iAccess == nullptr) return nullptr;
  const VelISpecAttrKey* key = FindDeclared(ioRecord);
  if (key == nullptr || !iAccess->TestAttrKey(key)) return nullptr;
  ioRecord.key = key;
  return key;
}
