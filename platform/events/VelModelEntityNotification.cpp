// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEntityNotification.cpp The base of notifications about an object of a model.
#include "platform/events/VelModelEntityNotification.h"

#include "platform/events/VelNotificationHeap.h"

VelModelEntityNotification::~VelModelEntityNotification() = default;

const VelMetaClass& VelModelEntityNotification::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelModelEntityNotification", &VelNotification::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

void* VelModelEntityNotification::operator new(std::size_t iSize) noexcept {
  return VelNotificationHeap::Allocate(iSize);
}

void VelModelEntityNotification::operator delete(void* iMemory) noexcept { VelNotificationHeap::Free(iMemory); }
