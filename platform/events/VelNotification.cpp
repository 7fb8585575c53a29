// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNotification.cpp The base of notifications.
#include "platform/events/VelNotification.h"

VelNotification::~VelNotification() = default;

const VelMetaClass& VelNotification::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelNotification", nullptr, VelTypeOfClass::Implementation);
  return metaClass;
}

VelNotification* VelNotification::Clone() const noexcept { return nullptr; }

bool VelDerivesFrom(const VelMetaClass& iClass, const VelMetaClass& iBase) noexcept {
  const VelMetaClass* candidate = &iClass;
  while (candidate != nullptr && candidate != &iBase) candidate = candidate->Base();
  return candidate != nullptr;
}
