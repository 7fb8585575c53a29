// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsListener.cpp Plain listeners to the events of models.
#include "platform/events/VelModelEventsListener.h"

#include "platform/events/VelModelEventsNetwork.h"

VelModelEventsListener::~VelModelEventsListener() { VelModelEventsNetwork::DisconnectAll(*this); }

HRESULT VelModelEventsListener::ConnectTo(VelBaseUnknown* iObject) {
  return VelModelEventsNetwork::Connect(iObject, *this);
}

HRESULT VelModelEventsListener::DeconnectFrom(VelBaseUnknown* iObject) {
  return VelModelEventsNetwork::Disconnect(iObject, *this);
}
