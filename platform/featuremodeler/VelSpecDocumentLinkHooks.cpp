// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecDocumentLinkHooks.cpp Remembers the hooks.
#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"

#include <utility>

namespace {

constinit VelSpecDocumentLinkHooks* installed = nullptr;

}  // namespace

VelSpecDocumentLinkHooks* VelSpecDocumentLinkHooks::Install(VelSpecDocumentLinkHooks* iHooks) noexcept {
  return std::exchange(installed, iHooks);
}

VelSpecDocumentLinkHooks* VelSpecDocumentLinkHooks::Installed() noexcept { return installed; }
