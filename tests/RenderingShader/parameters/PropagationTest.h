// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file PropagationTest.h The fixture of tests on mapping values that shaders hand down to the shaders below them.
#ifndef TESTS_RENDERINGSHADER_PARAMETERS_PROPAGATIONTEST_H
#define TESTS_RENDERINGSHADER_PARAMETERS_PROPAGATIONTEST_H

#include <cstdint>
#include <cstdio>
#include <string>

#include "RenderingShader/interfaces/VelIRshShaderSubscriber.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"

/// A shader "Above" whose parameter "link" may be connected to the shader "Below". Tags are those of the configurations
/// of these names.
class PropagationTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hAbove_ = MakeShader("Above");
    hBelow_ = MakeShader("Below");
    hLink_ = Add(hAbove_, "link", "VelRmaColor");
  }
  void TearDown() override {
    VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
    hLink_ = nullptr;
    hAbove_ = nullptr;
    hBelow_ = nullptr;
    RshModelTest::TearDown();
  }

  static void Tag(const char* iShader, const char* iParameter, const char* iWords) {
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(iShader, VelString(iParameter) + ".Tag", iWords)));
  }

  void Connect() { EXPECT_EQ(hLink_->SetConnection(hBelow_.Get()), S_OK); }

  static std::string TypeOf(const VelIRshParameter_var& iParameter) {
    VelString type;
    EXPECT_EQ(iParameter->GetType(type), S_OK);
    return std::string(type.View());
  }

  /// Writes one of the values 1, 2, ... of a parameter, of which neighbours differ.
  static HRESULT Write(const VelIRshParameter_var& iParameter, int iNumber) {
    const bool boolean = iNumber % 2 == 0;
    const std::int32_t integer = iNumber;
    const float scalar = static_cast<float>(iNumber) / 2.0F;
    const std::string type = TypeOf(iParameter);
    if (type == "VelRmaBoolean") return iParameter->SetValue(&boolean);
    return type == "VelRmaInteger" ? iParameter->SetValue(&integer) : iParameter->SetValue(&scalar);
  }

  /// @return a value of Write as messages print it
  static std::string Printed(const std::string& iType, int iNumber) {
    if (iType == "VelRmaBoolean") return iNumber % 2 == 0 ? "<true>" : "<false>";
    if (iType == "VelRmaInteger") return std::to_string(iNumber);
    return std::to_string(iNumber / 2) + (iNumber % 2 == 0 ? ".000000" : ".500000");
  }

  /// @return the number of the value that a parameter has, 0 for none or another
  static int NumberOf(const VelIRshParameter_var& iParameter) {
    bool boolean = true;
    std::int32_t integer = 0;
    float scalar = 0.0F;
    const std::string type = TypeOf(iParameter);
    if (type == "VelRmaBoolean") return FAILED(iParameter->GetValue(&boolean)) ? 0 : boolean ? 2 : 1;
    if (type == "VelRmaInteger") return FAILED(iParameter->GetValue(&integer)) ? 0 : integer;
    return FAILED(iParameter->GetValue(&scalar)) ? 0 : static_cast<int>(scalar * 2.0F);
  }

  static VelIRshShaderSubscriber_var SubscriberOf(const VelIRshParameter_var& iParameter) {
    return VelIRshShaderSubscriber_var(iParameter);
  }

  void StartTraces() {
    VelTraceService::SetSwitches("VelRshParameter=info");
    traces_.Clear();
  }

  /// @return the lines since StartTraces, errors with "! " and their source in front; ends the traces
  Texts TakeTraces() {
    Texts lines;
    for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
      if (entry.channel != "VelRshParameter") continue;
      EXPECT_TRUE(entry.kind == VelTraceKind::Information || entry.kind == VelTraceKind::Error) << entry.text;
      EXPECT_EQ(entry.line != 0, entry.kind == VelTraceKind::Error) << entry.text;
      lines.push_back(entry.kind == VelTraceKind::Error ? "! " + entry.source + ": " + entry.text : entry.text);
    }
    traces_.Clear();
    VelTraceService::SetSwitches("");
    return lines;
  }

  VelIRshShader_var hAbove_;
  VelIRshShader_var hBelow_;
  VelIRshParameter_var hLink_;
};

#endif  // TESTS_RENDERINGSHADER_PARAMETERS_PROPAGATIONTEST_H
