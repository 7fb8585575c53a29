// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceFileSinks_test.cpp What the two file sinks leave in their files.
#include <map>

#include "platform/base/VelCheck.h"
#include "platform/trace/VelTraceFileSink.h"
#include "platform/trace/VelTraceJsonSink.h"
#include "tests/platform/trace/FlatJson.h"
#include "tests/platform/trace/TemporaryFile.h"
#include "tests/platform/trace/TraceTest.h"

namespace {

using VelTraceFileSinksTest = TraceTest;

VelTraceRecord ErrorRecord() { return {VelTraceKind::Error, 0, "Channel", "text", {"src/Thing", 12}, -5, 8}; }

TEST_F(VelTraceFileSinksTest, FileSink_AppendsTheLinesOfTheStream) {
  const TemporaryFile file;
  std::string cause;
  for (int run = 0; run < 2; ++run) {
    VelTraceFileSink sink;
    ASSERT_EQ(sink.Open(file.Path(), cause), S_OK) << cause;
    sink.Write(ErrorRecord());
    sink.Write({VelTraceKind::ClassTrace, 2, "Class", "detail\n", {"", 0}, 0, 1});
  }
  EXPECT_EQ(file.Content(),
            "[error] Channel: text (src/Thing:12)\n[class 2] Class: detail\n"
            "[error] Channel: text (src/Thing:12)\n[class 2] Class: detail\n");
}

TEST_F(VelTraceFileSinksTest, Flush_BringsTheLinesIntoTheFile) {
  const TemporaryFile file;
  std::string cause;
  VelTraceFileSink sink;
  ASSERT_EQ(sink.Open(file.Path(), cause), S_OK) << cause;
  sink.Write(ErrorRecord());
  sink.Flush();
  EXPECT_EQ(file.Content(), "[error] Channel: text (src/Thing:12)\n");
}

TEST_F(VelTraceFileSinksTest, Open_OfAFolder_FailsWithACauseAndTheSinkSwallows) {
  VelTraceFileSink lines;
  VelTraceJsonSink json;
  std::string cause;
  EXPECT_EQ(lines.Open("/", cause), E_FAIL);
  EXPECT_NE(cause, "");
  EXPECT_EQ(json.Open(std::string("a\0b", 3), cause), E_INVALIDARG);
  lines.Write(ErrorRecord());
  json.Write(ErrorRecord());
  lines.Flush();
  json.Flush();
  EXPECT_TRUE(recorder_.Entries().empty()) << "nothing is said about a file that was never open";
}

TEST_F(VelTraceFileSinksTest, File_ThatRefusesWhatIsWritten_IsOneCheck) {
  VelTraceFileSink sink;
  std::string cause;
  ASSERT_EQ(sink.Open("/dev/full", cause), S_OK) << cause;
  for (int round = 0; round < 3; ++round) {
    sink.Write(ErrorRecord());
    sink.Flush();
  }
  EXPECT_EQ(recorder_.Texts("VelCheck"), Texts{"A trace file refused a part of the traces { detail = /dev/full }"});
}

TEST_F(VelTraceFileSinksTest, JsonSink_WritesOneObjectPerRecord_ThatReadsBack) {
  const TemporaryFile file;
  std::string cause;
  {
    VelTraceJsonSink sink;
    ASSERT_EQ(sink.Open(file.Path(), cause), S_OK) << cause;
    sink.Write(ErrorRecord());
    sink.Write({VelTraceKind::ClassTrace, 7, "Class", "detail\n", {"", 0}, 123456789012, 9});
    sink.Write({VelTraceKind::Information, 0, "Channel", "", {"", 0}, 0, 10});
    sink.Write({VelTraceKind::Warning, 0, "Channel", "w", {"", 0}, 0, 11});
  }
  const std::vector<std::string> lines = file.Lines();
  ASSERT_EQ(lines.size(), 4U);
  using Object = std::map<std::string, std::string>;
  EXPECT_EQ(FlatJson::Read(lines[0]), (Object{{"sequence", "8"},
                                              {"ticks", "-5"},
                                              {"kind", "error"},
                                              {"channel", "Channel"},
                                              {"text", "text"},
                                              {"source", "src/Thing"},
                                              {"line", "12"}}));
  EXPECT_EQ(FlatJson::Read(lines[1]), (Object{{"sequence", "9"},
                                              {"ticks", "123456789012"},
                                              {"kind", "class"},
                                              {"channel", "Class"},
                                              {"text", "detail\n"},
                                              {"level", "7"}}));
  EXPECT_EQ(FlatJson::Read(lines[2]).at("kind"), "info");
  EXPECT_EQ(FlatJson::Read(lines[2]).at("text"), "");
  EXPECT_EQ(FlatJson::Read(lines[3]).at("kind"), "warning");
}

struct TextCase {
  const char* name;
  std::string text;
  std::string written;  ///< Between the quotation marks of the file.
  std::string readBack;
};

const std::string replacement = "\xEF\xBF\xBD";

const std::vector<TextCase>& TextCases() {
  static const auto& cases = *new std::vector<TextCase>{
      {"quotation mark and backslash", R"(say "a\b")", R"(say \"a\\b\")", R"(say "a\b")"},
      {"usual control characters", "\n\r\t", R"(\n\r\t)", "\n\r\t"},
      {"other control characters", std::string("\0\x01\x1F\b", 4), R"(\u0000\u0001\u001f\u0008)",
       std::string("\0\x01\x1F\b", 4)},
      {"delete and slash stay", "\x7F/", "\x7F/", "\x7F/"},
      {"two to four byte characters", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80",
       "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"},
      {"stray byte", "a\xFFz", "a" + replacement + "z", "a" + replacement + "z"},
      {"cut short at the end", "a\xE2\x82", "a" + replacement, "a" + replacement},
      {"overlong quotation mark", "\xC0\xA2", replacement + replacement, replacement + replacement},
      {"ill-formed beside what needs an escape", "\xFF\"", replacement + "\\\"", replacement + "\""},
      {"percent signs", "100%s", "100%s", "100%s"},
  };
  return cases;
}

TEST_F(VelTraceFileSinksTest, JsonSink_EscapesEveryText_InAllItsFields) {
  for (const TextCase& testCase : TextCases()) {
    SCOPED_TRACE(testCase.name);
    const TemporaryFile file;
    std::string cause;
    {
      VelTraceJsonSink sink;
      ASSERT_EQ(sink.Open(file.Path(), cause), S_OK) << cause;
      sink.Write({VelTraceKind::Error, 0, testCase.text, testCase.text, {testCase.text.c_str(), 1}, 0, 1});
    }
    ASSERT_EQ(file.Lines().size(), 1U);
    EXPECT_NE(file.Content().find("\"text\":\"" + testCase.written + "\""), std::string::npos) << file.Content();
    const auto object = FlatJson::Read(file.Lines()[0]);
    EXPECT_EQ(object.at("text"), testCase.readBack);
    EXPECT_EQ(object.at("channel"), testCase.readBack);
  }
}

}  // namespace
