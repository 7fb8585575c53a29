// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelISpecAttrKey.cpp Hands out the keys.
#include "platform/featuremodeler/VelISpecAttrKey.h"

#include <map>
#include <utility>

const VelISpecAttrKey& VelISpecAttrKey::Of(std::string_view iName, VelSpecAttrKind iKind) {
  static auto& keys = *new std::map<std::pair<std::string, VelSpecAttrKind>, const VelISpecAttrKey*>;
  const VelISpecAttrKey*& key = keys[{std::string(iName), iKind}];
  if (key == nullptr) key = new VelISpecAttrKey(iName, iKind, static_cast<std::uint32_t>(keys.size()) - 1);
  return *key;
}
