// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ConfigurationTest.h What all tests of configurations and messages begin and end with.
#ifndef TESTS_PLATFORM_CONFIGURATION_CONFIGURATIONTEST_H
#define TESTS_PLATFORM_CONFIGURATION_CONFIGURATIONTEST_H

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/configuration/VelMsgCatalog.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceService.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

using Texts = std::vector<std::string>;

/// Empty tables before and after, a folder of its own, and the traces in a recorder alone.
class ConfigurationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Reset();
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
  }
  void TearDown() override {
    Reset();
    VelTraceService::Reset();
  }

  /// @return the value, "(none)" when nothing answers; the out argument is then untouched
  static std::string Value(const char* iConfiguration, const char* iKey) {
    VelString value("(none)");
    const HRESULT result = VelRbaConfiguration::GetHierarchicalValue(iConfiguration, iKey, value);
    EXPECT_EQ(result == E_FAIL, value == "(none)");
    return value.CString();
  }

  static std::string Message(const char* iCatalog, const char* iKey) {
    return VelMsgCatalog::BuildMessage(iCatalog, iKey).CString();
  }

  /// @return "channel: text" of what was reported since the last call, without the path of the folder
  Texts Take(VelTraceKind iKind) {
    Texts texts;
    const std::string prefix = folder_.Path() + '/';
    for (const VelDiagnosticEntry& entry : diagnostics_.Entries()) {
      if (entry.kind != iKind) continue;
      std::string text = entry.channel + ": " + entry.text;
      for (auto at = text.find(prefix); at != std::string::npos; at = text.find(prefix)) text.erase(at, prefix.size());
      texts.push_back(text);
    }
    diagnostics_.Clear();
    return texts;
  }
  Texts TakeErrors() { return Take(VelTraceKind::Error); }
  Texts TakeWarnings() { return Take(VelTraceKind::Warning); }

  VelTemporaryFolder folder_;

 private:
  static void Reset() {
    ::unsetenv("VEL_LANGUAGE");
    ::unsetenv("VEL_CONFIGURATION_PATH");
    VelRbaConfiguration::Clear();
    VelMsgCatalog::Clear();
  }

  VelDiagnostics diagnostics_;
};

#endif  // TESTS_PLATFORM_CONFIGURATION_CONFIGURATIONTEST_H
