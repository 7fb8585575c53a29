// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelReceiverTable.cpp The pairs of receiver tables and classes.
#include "platform/events/VelReceiverTable.h"

#include "platform/events/VelReceiverBinding.h"

const VelReceiverBinding& VelReceiverTable::BindingOf(const VelClassRecord* iRecord) const {
  for (const VelReceiverBinding* known = bindings_; known != nullptr; known = known->next) {
    if (known->record == iRecord) return *known;
  }
  bindings_ = new VelReceiverBinding{this, iRecord, bindings_};
  return *bindings_;
}
