// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file NotingHooks.h Document hooks that note each call.
#ifndef TESTS_PLATFORM_FEATUREMODELER_NOTINGHOOKS_H
#define TESTS_PLATFORM_FEATUREMODELER_NOTINGHOOKS_H

#include <string>
#include <vector>

#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"

/// Notes what the document service would count, while it lives.
class NotingHooks final : public VelSpecDocumentLinkHooks {
 public:
  NotingHooks() { VelSpecDocumentLinkHooks::Install(this); }
  ~NotingHooks() { VelSpecDocumentLinkHooks::Install(nullptr); }
  NotingHooks(const NotingHooks&) = delete;
  NotingHooks& operator=(const NotingHooks&) = delete;

  void OnCopied(VelBaseUnknown&) override { notes.emplace_back("copied"); }
  void OnDropped(VelBaseUnknown&) override { notes.emplace_back("dropped"); }

  std::vector<std::string> notes;
};

#endif  // TESTS_PLATFORM_FEATUREMODELER_NOTINGHOOKS_H
