// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationText_test.cpp What TOML texts mean as configurations and messages, and where they are refused.
#include "platform/files/VelConfigurationText.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Form = VelConfigurationText::Form;

/// @return the content as lines "configuration|key|value" and "configuration<parent", or "line:column: cause"
std::string Read(const std::string& iText, Form iForm = Form::Configurations) {
  VelConfigurationContent content;
  VelConfigurationFault fault;
  if (!VelConfigurationText::Read(iText, iForm, content, fault)) {
    EXPECT_TRUE(content.parents.empty() && content.entries.empty());
    EXPECT_FALSE(fault.cause.empty());
    return std::to_string(fault.line) + ':' + std::to_string(fault.column) + ": " + fault.cause;
  }
  EXPECT_EQ(fault.cause, "");
  std::string text;
  for (const auto& known : content.parents) {
    text += std::string(known.configuration.View()) + '<' + known.parent.CString() + '\n';
  }
  for (const auto& entry : content.entries) {
    text += std::string(entry.configuration.View()) + '|' + entry.key.CString() + '|';
    text += std::string(entry.value.View()) + '\n';
  }
  return text;
}

struct Case {
  const char* name;
  std::string text;
  std::string expected;
};

TEST(VelConfigurationTextTest, Tables_AreConfigurationsAndKeysAreJoined) {
  for (const Case& test : std::vector<Case>{
           {"nothing", "", ""},
           {"comments alone", "# one\n\n  # two", ""},
           {"empty table", "[A]\n", ""},
           {"values in the order of the file", "[B]\nz = 'z'\na = 'a'\n[A]\nk = 'k'\n", "B|z|z\nB|a|a\nA|k|k\n"},
           {"parent", "[A]\nparent = 'B'\nk = 'v'\n", "A<B\nA|k|v\n"},
           {"no parent", "[A]\nparent = ''\n", "A<\n"},
           {"parent of a part is a key", "[A]\nparent.Tag = 'v'\nx.parent = 'w'\n", "A|parent.Tag|v\nA|x.parent|w\n"},
           {"dotted key", "[A]\nbase_color.Tag = 'mapping'\n", "A|base_color.Tag|mapping\n"},
           {"quoted key", "[A]\n\"base_color.Tag\" = 'mapping'\n", "A|base_color.Tag|mapping\n"},
           {"dotted and quoted", "[A]\nx.\"y.z\".'w' = 'v'\n", "A|x.y.z.w|v\n"},
           {"blanks around dots", "[A]\nx . y = 'v'\n", "A|x.y|v\n"},
           {"inline table", "[A]\nx = { Tag = 'v', y.z = 'w' }\n", "A|x.Tag|v\nA|x.y.z|w\n"},
           {"header with a part", "[A.x]\nTag = 'v'\n", "A|x.Tag|v\n"},
           {"quoted header", "[\"A.x\"]\nTag = 'v'\n", "A.x|Tag|v\n"},
           {"before the first header", "A.x = 'v'\n[B]\nk = 'w'\n", "A|x|v\nB|k|w\n"},
           {"an empty part", "[A]\n\"\".x = 'v'\n", "A|.x|v\n"},
           {"blanks in a quoted key", "[A]\n\" x \" = 'v'\n", "A| x |v\n"},
           {"not ASCII", "[\"Möbel\"]\n\"größe\" = \"süß 漢字\"\n", "Möbel|größe|süß 漢字\n"},
           {"CRLF", "[A]\r\nk = 'v'\r\nl = '''\r\na\r\nb'''\r\n", "A|k|v\nA|l|a\nb\n"},
           {"byte order mark", "\xEF\xBB\xBF[A]\nk = 'v'\n", "A|k|v\n"},
           {"no line feed at the end", "[A]\nk = 'v'", "A|k|v\n"},
       }) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Read(test.text), test.expected);
  }
}

TEST(VelConfigurationTextTest, Values_AreTextsAsWrittenAndNumbersAsTheShortestText) {
  for (const Case& test : std::vector<Case>{
           {"text", "'  a b '", "  a b "},
           {"empty", "\"\"", ""},
           {"escapes", R"("a\tb\n\"\\\u00e9")", "a\tb\n\"\\é"},
           {"NUL", R"("a\u0000b")", std::string("a\0b", 3)},
           {"literal", R"('a\tb')", "a\\tb"},
           {"number as text", "'1,5'", "1,5"},
           {"integer", "42", "42"},
           {"negative", "-7", "-7"},
           {"plus", "+7", "7"},
           {"underscores", "1_000", "1000"},
           {"hexadecimal", "0xFF", "255"},
           {"smallest", "-9223372036854775808", "-9223372036854775808"},
           {"real", "0.5", "0.5"},
           {"shortest", "0.1", "0.1"},
           {"trailing zero", "1.50", "1.5"},
           {"whole real", "2.0", "2"},
           {"third", "0.333333333333333314829616256247390992939472198486328125", "0.3333333333333333"},
           {"exponent", "1e300", "1e+300"},
           {"negative zero", "-0.0", "-0"},
           {"not a number", "-nan", "nan"},
           {"infinite", "-inf", "-inf"},
           {"true", "true", "true"},
           {"false", "false", "false"},
       }) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Read("[A]\nk = " + test.text + "\n"), "A|k|" + test.expected + "\n");
  }
}

TEST(VelConfigurationTextTest, Faults_NameTheFirstPlaceAndWhatIsWrong) {
  const std::string foreign = "a value is a text, a number, true or false, found ";
  for (const Case& test : std::vector<Case>{
           {"array", "[A]\nk = [1, 2]\n", "2:5: " + foreign + "an array"},
           {"empty array", "[A]\nk = []\n", "2:5: " + foreign + "an array"},
           {"array of tables", "[A]\nk = 1\n[[B]]\nk = 1\n", "3:1: " + foreign + "an array of tables"},
           {"date", "[A]\nk = 2026-01-31\n", "2:5: " + foreign + "a date"},
           {"time", "[A]\nk = 12:30:00\n", "2:5: " + foreign + "a time"},
           {"date and time", "[A]\nk = 2026-01-31T12:30:00Z\n", "2:5: " + foreign + "a date and time"},
           {"in an inline table", "[A]\nx = { y = [] }\n", "2:11: " + foreign + "an array"},
           {"parent is a number", "[A]\nparent = 5\n", "2:10: 'parent' is the name of a configuration, found 5"},
           {"parent is a list", "[A]\nparent = []\n", "2:10: " + foreign + "an array"},
           {"parent of Default", "[Default]\nparent = 'A'\n",
            "2:1: 'Default' has no parent, since it is the last of all"},
           {"key outside", "k = 'v'\n[A]\n", "1:1: the key 'k' stands in no configuration, such as [Default]"},
           {"parent outside", "parent = 'v'\n", "1:1: the key 'parent' stands in no configuration, such as [Default]"},
           {"empty configuration", "[\"\"]\nk = 'v'\n", "2:1: the name of a configuration is empty"},
           {"empty key", "[A]\n\"\" = 'v'\n", "2:1: a key is empty"},
           {"dotted and quoted twice", "[A]\nx.y = 1\n\"x.y\" = 2\n",
            "3:1: the key 'x.y' has a value already in line 2"},
           {"the first of two", "[Z]\nk = []\n[A]\nk = []\n", "2:5: " + foreign + "an array"},
       }) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Read(test.text), test.expected);
  }
}

/// The words are the library's own; that they come, and the place, are ours.
TEST(VelConfigurationTextTest, SyntaxErrors_AreFoundAtTheirPlace) {
  for (const Case& test : std::vector<Case>{
           {"table twice", "[A]\nk = 1\n[A]\nl = 2\n", "3:1: "},
           {"key twice", "[A]\nk = 1\nk = 2\n", "3:"},
           {"text without quotes", "[A]\nk = mapping\n", "2:5: "},
           {"text that is not closed", "[A]\nk = 'v\n", "2:7: "},
           {"no value", "[A]\nk =\n", "2:4: "},
           {"no key", "[A]\n= 1\n", "2:1: "},
           {"header that is not closed", "[A\nk = 1\n", "1:3: "},
           {"value and table", "[A]\na = 1\na.b = 2\n", "3:"},
           {"integer too large", "[A]\nk = 9223372036854775808\n", "2:"},
           {"not UTF-8", "[A]\nk = '\xFF'\n", "2:"},
           {"NUL byte", std::string("[A]\nk\0 = 1\n", 11), "2:"},
           {"bare key that is not ASCII", "[A]\ngröße = 1\n", "2:3: "},
           {"after letters of two bytes", "[A]\n\"größe\" = x\n", "2:11: "},
           {"comma as decimal point", "[A]\nk = 1,5\n", "2:"},
       }) {
    SCOPED_TRACE(test.name);
    const std::string fault = Read(test.text);
    EXPECT_TRUE(fault.starts_with(test.expected)) << fault;
    EXPECT_GT(fault.size(), test.expected.size() + 10) << "it says what is wrong";
  }
}

TEST(VelConfigurationTextTest, KeyOfFortyThousandParts_IsRefusedAndDoesNotOverflowTheStack) {
  std::string key;
  for (int i = 0; i < 40000; ++i) key += "a.";
  EXPECT_EQ(Read("[A]\n" + key + "a = 1\n"), "2:64: a key has more than 32 parts");
  EXPECT_EQ(Read("[" + key + "a]\n"), "1:65: a key has more than 32 parts");
}

/// The counting walk knows the line feed alone. Were anything else the end of a comment or of a text for the parser,
/// what stands behind it would be parsed uncounted.
TEST(VelConfigurationTextTest, NothingButALineFeed_EndsACommentOrAText) {
  std::string key;
  for (int i = 0; i < 40000; ++i) key += "a.";
  struct Separator {
    const char* name;
    std::string text;
    bool isLegal;
  };
  for (const Separator& test : {Separator{"carriage return", "\r", false}, Separator{"vertical tab", "\v", false},
                                Separator{"form feed", "\f", false}, Separator{"NUL", std::string(1, '\0'), false},
                                Separator{"next line", "\u0085", true}, Separator{"line separator", "\u2028", true},
                                Separator{"paragraph separator", "\u2029", true}}) {
    SCOPED_TRACE(test.name);
    const std::string inComment = Read("# c" + test.text + key + "a = 1\n");
    EXPECT_TRUE(test.isLegal ? inComment.empty() : inComment.starts_with("1:")) << inComment;
    EXPECT_TRUE(Read("[A]\nk = 'v" + test.text + key + "a = 1\n").starts_with("2:")) << "it is not closed";
  }
}

/// Each value of a table repeats the table's name, here of 100,000 bytes.
TEST(VelConfigurationTextTest, NamesThatWouldBeRepeatedBeyondMeasure_AreRefused) {
  const std::string name(100000, 'n');
  const std::string refusal = "0:0: the keys, written out with the tables around them, take more than 64 MiB";
  std::string text = "[A." + name + "]\n";
  for (int i = 0; i < 600; ++i) text += "k" + std::to_string(i) + " = 1\n";
  EXPECT_NE(Read(text), refusal);
  for (int i = 600; i < 700; ++i) text += "k" + std::to_string(i) + " = 1\n";
  EXPECT_EQ(Read(text), refusal);
}

TEST(VelConfigurationTextTest, LongNamesInMessages_AreCutBetweenCharacters) {
  std::string name = "x";
  for (int i = 0; i < 150; ++i) name += "ä";
  std::string cut = "x";
  for (int i = 0; i < 99; ++i) cut += "ä";
  EXPECT_EQ(Read("\"" + name + "\" = 1\n"),
            "1:1: the key '" + cut + "...' stands in no configuration, such as [Default]");
}

TEST(VelConfigurationTextTest, Messages_AreKeysWithoutConfiguration) {
  for (const Case& test : std::vector<Case>{
           {"plain", "Title = 'Titel'\n", "|Title|Titel\n"},
           {"dotted, quoted, table", "a.b = '1'\n\"c.d\" = '2'\n[e]\nf = '3'\n", "|a.b|1\n|c.d|2\n|e.f|3\n"},
           {"parent is a key", "parent = 'Eltern'\n[Default]\nparent = 'x'\n", "|parent|Eltern\n|Default.parent|x\n"},
           {"number", "n = 1.5\n", "|n|1.5\n"},
           {"twice", "a.b = '1'\n\"a.b\" = '2'\n", "2:1: the key 'a.b' has a value already in line 1"},
           {"empty key", "\"\" = '1'\n", "1:1: a key is empty"},
           {"list", "a = []\n", "1:5: a value is a text, a number, true or false, found an array"},
       }) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Read(test.text, Form::Messages), test.expected);
  }
}

}  // namespace
