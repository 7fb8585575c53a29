// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file MissingProviderTest.h What the tests of services without provider begin and end with.
#ifndef TESTS_PLATFORM_DOCUMENTS_MISSINGPROVIDERTEST_H
#define TESTS_PLATFORM_DOCUMENTS_MISSINGPROVIDERTEST_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceService.h"

/// Collects what a service says, and keeps it off the standard error stream.
class MissingProviderTest : public ::testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  void SetUp() override { VelTraceService::RemoveSink(VelTraceService::StandardErrorSink()); }
  void TearDown() override { VelTraceService::Reset(); }

  /// @return "channel: text" of each warning and error since the last call
  Texts Take() {
    Texts texts;
    for (const VelDiagnosticEntry& entry : diagnostics_.Entries()) {
      const char* kind = entry.kind == VelTraceKind::Warning ? "" : "error: ";
      texts.push_back(kind + entry.channel + ": " + entry.text);
    }
    diagnostics_.Clear();
    return texts;
  }

 private:
  VelDiagnostics diagnostics_;
};

#endif  // TESTS_PLATFORM_DOCUMENTS_MISSINGPROVIDERTEST_H
