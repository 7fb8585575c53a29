// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceEnvironment_test.cpp Settings that come from the environment variables.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelCheck.h"
#include "tests/platform/trace/FlatJson.h"
#include "tests/platform/trace/TemporaryFile.h"
#include "tests/platform/trace/TraceTest.h"

namespace {

constexpr const char* variables[] = {"VEL_TRACE", "VEL_TRACE_FILE", "VEL_TRACE_JSON"};

class VelTraceEnvironmentTest : public TraceTest {
 protected:
  VelTraceEnvironmentTest() { UnsetAll(); }
  ~VelTraceEnvironmentTest() override { UnsetAll(); }

  static void Set(const char* iName, const std::string& iValue) { ::setenv(iName, iValue.c_str(), 1); }

 private:
  static void UnsetAll() {
    for (const char* const variable : variables) ::unsetenv(variable);
  }
};

TEST_F(VelTraceEnvironmentTest, ApplyEnvironment_WithoutVariables_ChangesNothing) {
  VelTraceService::SetSwitches("Channel=off");
  VelTraceService::ApplyEnvironment();
  EXPECT_FALSE(OpenChannel("Channel")->IsOn(VelTraceKind::Error));
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelTraceEnvironmentTest, ApplyEnvironment_TakesTheSwitchesOver) {
  Set("VEL_TRACE", "Channel=info");
  VelTraceService::ApplyEnvironment();
  OpenChannel("Channel")->Info("heard");
  EXPECT_EQ(recorder_.Texts(), Texts{"heard"});
  Set("VEL_TRACE", "");
  VelTraceService::ApplyEnvironment();
  EXPECT_FALSE(OpenChannel("Channel")->IsOn(VelTraceKind::Information)) << "no switches are the default";
}

TEST_F(VelTraceEnvironmentTest, ApplyEnvironment_AddsBothFiles_WhichAlsoGetTheComplaintsAboutTheSwitches) {
  const TemporaryFile lines;
  const TemporaryFile json;
  Set("VEL_TRACE", "Channel=loud");
  Set("VEL_TRACE_FILE", lines.Path());
  Set("VEL_TRACE_JSON", json.Path());
  VelTraceService::ApplyEnvironment();
  OpenChannel("Channel")->Warning("heard");
  VelTraceService::Flush();
  ASSERT_EQ(lines.Lines().size(), 2U);
  EXPECT_EQ(lines.Lines()[0].find("[warning] VelTrace: Trace switch \"Channel=loud\" left out"), 0U);
  EXPECT_EQ(lines.Lines()[1], "[warning] Channel: heard");
  ASSERT_EQ(json.Lines().size(), 2U);
  EXPECT_EQ(FlatJson::Read(json.Lines()[1]).at("text"), "heard");
  EXPECT_EQ(recorder_.Texts("Channel"), Texts{"heard"}) << "the sinks that were there stay";
}

TEST_F(VelTraceEnvironmentTest, ApplyEnvironment_Again_ReplacesTheFilesAndKeepsOneOfEach) {
  const TemporaryFile first;
  const TemporaryFile second;
  Set("VEL_TRACE_FILE", first.Path());
  VelTraceService::ApplyEnvironment();
  VelTraceService::ApplyEnvironment();
  const OpenChannel channel("Channel");
  channel->Warning("one");
  Set("VEL_TRACE_FILE", second.Path());
  VelTraceService::ApplyEnvironment();
  channel->Warning("two");
  Set("VEL_TRACE_FILE", "");
  VelTraceService::ApplyEnvironment();
  channel->Warning("three");
  EXPECT_EQ(first.Content(), "[warning] Channel: one\n");
  EXPECT_EQ(second.Content(), "[warning] Channel: two\n");
  EXPECT_EQ(recorder_.Texts("VelTrace"), Texts{}) << "an empty path is no file that cannot be opened";
}

TEST_F(VelTraceEnvironmentTest, ApplyEnvironment_WithAFileThatCannotBeOpened_WarnsAndGoesOn) {
  const TemporaryFile json;
  Set("VEL_TRACE", "Channel=info");
  Set("VEL_TRACE_FILE", "/");
  Set("VEL_TRACE_JSON", json.Path());
  VelTraceService::ApplyEnvironment();
  ASSERT_EQ(recorder_.Texts("VelTrace", VelTraceKind::Warning).size(), 1U);
  EXPECT_EQ(recorder_.Texts("VelTrace")[0].find("The trace file \"/\" of VEL_TRACE_FILE cannot be opened: "), 0U);
  OpenChannel("Channel")->Info("heard");
  VelTraceService::Flush();
  EXPECT_EQ(json.Lines().size(), 1U);
}

TEST_F(VelTraceEnvironmentTest, Reset_ClosesTheFiles) {
  const TemporaryFile file;
  Set("VEL_TRACE_FILE", file.Path());
  VelTraceService::ApplyEnvironment();
  const OpenChannel channel("Channel");
  channel->Warning("before");
  VelTraceService::Reset();
  VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
  channel->Warning("after");
  EXPECT_EQ(file.Content(), "[warning] Channel: before\n");
}

/// Prints and removes the file that the environment names, so that the parent process of a death test can read it.
void PrintFile() {
  const std::string path = std::getenv("VEL_TRACE_FILE");
  std::stringstream content;
  content << std::ifstream(path).rdbuf();
  std::fputs(content.str().c_str(), stderr);
  std::filesystem::remove(path);
}

TEST(VelTraceEnvironmentDeathTest, EndOfTheProcess_WithoutReset_LeavesEverythingInTheFile) {
  EXPECT_EXIT(
      {
        ::setenv("VEL_TRACE_FILE", TemporaryFile().Path().c_str(), 1);
        std::atexit(PrintFile);  // Registered before the traces register anything, therefore run after it.
        VelTraceService::ApplyEnvironment();
        VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
        OpenChannel("Channel")->Warning("last words");
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "^\\[warning\\] Channel: last words\n$");
}

void WarnAtExit() { OpenChannel("Channel")->Warning("from an exit function"); }

int WarnInHook(int) {
  OpenChannel("Channel")->Warning("from an exit hook");
  return 0;
}

TEST(VelTraceEnvironmentDeathTest, ExitHooks_RegisteredBeforeTheEnvironmentIsApplied_FindTheirTracesInTheFile) {
  // What is registered last runs first: the traces' own, the hook, the function, the print.
  EXPECT_EXIT(
      {
        ::setenv("VEL_TRACE_FILE", TemporaryFile().Path().c_str(), 1);
        std::atexit(PrintFile);
        std::atexit(WarnAtExit);
        VelCallOnExit(&WarnInHook, 1);
        VelTraceService::ApplyEnvironment();
        VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
        OpenChannel("Channel")->Warning("before the end");
        std::exit(0);
      },
      ::testing::ExitedWithCode(0),
      "^\\[warning\\] Channel: before the end\n\\[warning\\] Channel: from an exit hook\n"
      "\\[warning\\] Channel: from an exit function\n$");
}

TEST(VelTraceEnvironmentDeathTest, ApplyEnvironment_BeforeAnyTrace_TurnsChecksIntoTraces) {
  EXPECT_EXIT(
      {
        VelTraceService::ApplyEnvironment();
        VelCheck::Failed({"src/Thing", 3}, "", "Odd");
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "\\[error\\] VelCheck: Odd");
}

}  // namespace
