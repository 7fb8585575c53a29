// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelReceiverBinding.h A receiver table as one class of implementations uses it.
#ifndef PLATFORM_EVENTS_VELRECEIVERBINDING_H
#define PLATFORM_EVENTS_VELRECEIVERBINDING_H

class VelReceiverTable;
struct VelClassRecord;

/// The table of a base class serves every class that derives from it, and a subscription has no room for both the table
/// and the class by which the subscriber is found in its component: so it points to the pair. Not exported.
struct VelReceiverBinding {
  const VelReceiverTable* table;
  const VelClassRecord* record;
  const VelReceiverBinding* next;
};

#endif  // PLATFORM_EVENTS_VELRECEIVERBINDING_H
