// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file MappingReaderTest.h The fixture of the tests of mapping readers: a configured shader, and what a reader told.
#ifndef TESTS_RENDERINGSHADER_SERVICES_MAPPINGREADERTEST_H
#define TESTS_RENDERINGSHADER_SERVICES_MAPPINGREADERTEST_H

#include <cstdint>
#include <string>

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"

/// A shader of the type "MappedType", whose configuration is empty.
class MappingReaderTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    VelTraceService::SetSwitches("VelRshReaderMapping*");
    hShader_ = MakeShader("MappedType");
  }
  void TearDown() override {
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  static void Configure(const VelString& iKey, const VelString& iValue, const char* iConfiguration = "MappedType") {
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(iConfiguration, iKey, iValue)));
  }

  VelIRshParameter_var AddScalar(const char* iName, float iValue) { return AddValued(iName, "VelRmaScalar", &iValue); }
  VelIRshParameter_var AddBoolean(const char* iName, bool iValue) { return AddValued(iName, "VelRmaBoolean", &iValue); }
  VelIRshParameter_var AddInteger(const char* iName, std::int32_t iValue) {
    return AddValued(iName, "VelRmaInteger", &iValue);
  }
  VelIRshParameter_var AddValued(const char* iName, const char* iStartUp, VelRshValueSource iValue) {
    const VelIRshParameter_var hParameter = Add(hShader_, iName, iStartUp);
    EXPECT_EQ(hParameter->SetValue(iValue), S_OK) << iName;
    return hParameter;
  }

  static void Tag(const VelString& iParameter, const char* iTag, const char* iConfiguration = "MappedType") {
    Configure(iParameter + ".Tag", iTag, iConfiguration);
  }

  /// @return what was told since the last time, after "I " for an information and "E " for an error. Anything on
  ///         another channel is a failure, and so is an error without the source text of the reader.
  Texts Told(const std::string& iChannel) {
    Texts told;
    for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
      // A parameter that is added looks for an appearance to bring up to date, and there is none here.
      if (entry.channel == "VelRshAppearanceUpdater") continue;
      const bool isError = entry.kind == VelTraceKind::Error;
      EXPECT_TRUE(isError || entry.kind == VelTraceKind::Information) << entry.text;
      EXPECT_EQ(entry.channel, iChannel) << entry.text;
      EXPECT_EQ(entry.source, isError ? "RenderingShader/VelRshModel.m/src/" + iChannel : "") << entry.text;
      EXPECT_EQ(entry.line != 0, isError) << entry.text;
      told.push_back((isError ? "E " : "I ") + entry.text);
    }
    traces_.Clear();
    return told;
  }

  VelIRshShader_var hShader_;
};

#endif  // TESTS_RENDERINGSHADER_SERVICES_MAPPINGREADERTEST_H
