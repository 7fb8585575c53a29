// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReader_test.cpp What the reader of dictionary files takes and what it refuses.
#include "platform/objectmodeler/VelDictionaryReader.h"

#include <string>

#include <gtest/gtest.h>

namespace {

constexpr unsigned rowLimit = 16384;

const std::string head = "velrsh-dictionary 1\n";
const std::string module = head + "module M\nframework F\nlibrary l.so\n";

struct Reading {
  bool accepted;
  std::vector<VelDictionaryModule> modules;
  VelDictionaryFault fault;
};

Reading Read(std::string_view iText) {
  Reading reading{};
  reading.accepted = VelDictionaryReader::Read(iText, reading.modules, reading.fault);
  return reading;
}

std::string Describe(const VelDictionaryRow& iRow) {
  return std::to_string(iRow.line) + ' ' + iRow.lateType + ' ' + iRow.interfaceName + ' ' +
         (iRow.mechanism == VelMechanism::TIE ? "TIE " : "BOA ") +
         (iRow.lifetime == VelLifetime::Component ? "Component " : "Reference ") + iRow.className;
}

/// All that was read, a line for a line.
std::string Describe(const std::vector<VelDictionaryModule>& iModules) {
  std::string text;
  for (const VelDictionaryModule& known : iModules) {
    text += std::to_string(known.line) + ' ' + known.name + ' ' + known.framework + ' ' + known.library + '\n';
    for (const auto& type : known.types) {
      text += std::to_string(type.line) + ' ' + type.lateType + " < " + type.base + '\n';
    }
    for (const auto& owner : known.classes) {
      text += owner.name + ' ' + std::to_string(static_cast<int>(owner.kind)) + '\n';
    }
    for (const auto& row : known.rows) text += Describe(row) + '\n';
  }
  return text;
}

TEST(VelDictionaryReaderTest, WholeFile_IsReadWordByWord_WithItsLines) {
  const Reading reading = Read(
      "# A file.\n"
      "\n"
      "velrsh-dictionary 1\n"
      "module First_1  # the first\n"
      "library ../lib/first.so\n"
      "framework FrameworkOne\n"
      "type Derived Base\n"
      "class Main Implementation\n"
      "class Beside Extension\n"
      "class Direct DelegatingExtension\n"
      "bind Base IOne TIE Component Main\n"
      "bind Base ITwo TIE Reference Beside\n"
      "bind Base IThree BOA Reference Direct\n"
      "bind Base IFour TIE Component Main\n"
      "bind Other IOne TIE Component Main\n"
      "extend Third Main\n"
      "module Second\n"
      "framework FrameworkTwo\n"
      "library second.so\n"
      "class Main Implementation\n"
      "bind Second IOne TIE Component Main\n");
  ASSERT_TRUE(reading.accepted) << reading.fault.line << ": " << reading.fault.cause;
  EXPECT_EQ(Describe(reading.modules),
            "4 First_1 FrameworkOne ../lib/first.so\n"
            "7 Derived < Base\n"
            "Main 1\n"
            "Beside 2\n"
            "Direct 3\n"
            "11 Base IOne TIE Component Main\n"
            "12 Base ITwo TIE Reference Beside\n"
            "13 Base IThree BOA Reference Direct\n"
            "14 Base IFour TIE Component Main\n"
            "15 Other IOne TIE Component Main\n"
            "16 Third IOne TIE Component Main\n"
            "16 Third IFour TIE Component Main\n"
            "17 Second FrameworkTwo second.so\n"
            "Main 1\n"
            "21 Second IOne TIE Component Main\n");
}

TEST(VelDictionaryReaderTest, Writing_ThatMeansTheSame_IsReadTheSame) {
  struct Case {
    const char* name;
    std::string text;
  };
  const Case cases[] = {
      {"plain",
       "velrsh-dictionary 1\nmodule M\nframework F\nlibrary l.so\nclass C Extension\nbind T I TIE "
       "Reference C\n"},
      {"CRLF",
       "velrsh-dictionary 1\r\nmodule M\r\nframework F\r\nlibrary l.so\r\nclass C Extension\r\nbind T "
       "I TIE Reference C\r\n"},
      {"no final newline",
       "velrsh-dictionary 1\nmodule M\nframework F\nlibrary l.so\nclass C Extension\nbind T I TIE Reference C"},
      {"tabs and blanks in a row",
       "\tvelrsh-dictionary\t 1 \nmodule\tM\t\n  framework   F\n\tlibrary\tl.so\nclass "
       "C\t\tExtension\nbind\tT\tI\tTIE\tReference\tC\n"},
      {"vertical tab and form feed",
       "velrsh-dictionary\v1\nmodule\fM\nframework F\nlibrary l.so\nclass C "
       "Extension\nbind T I TIE Reference C\n"},
      {"comments behind",
       "velrsh-dictionary 1 # x\nmodule M #x\nframework F # module N\nlibrary l.so # l.so\nclass "
       "C Extension #\nbind T I TIE Reference C ## \n"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const Reading reading = Read(each.text);
    EXPECT_TRUE(reading.accepted) << reading.fault.cause;
    EXPECT_EQ(Describe(reading.modules), "2 M F l.so\nC 2\n6 T I TIE Reference C\n");
  }
}

TEST(VelDictionaryReaderTest, LibraryName_MayHoldAnythingButBlanks) {
  const Reading reading = Read(head + "module M\nframework F\nlibrary /a-b/../c+d/l\xC3\xA9#1.so.2\n");
  ASSERT_TRUE(reading.accepted) << reading.fault.cause;
  EXPECT_EQ(reading.modules.front().library, "/a-b/../c+d/l\xC3\xA9#1.so.2");
}

TEST(VelDictionaryReaderTest, FileWithoutModules_IsRefused) {
  const Reading reading = Read("# nothing yet\nvelrsh-dictionary 1");
  EXPECT_FALSE(reading.accepted);
  EXPECT_EQ(reading.fault.line, 2U);
  EXPECT_EQ(reading.fault.cause, "the file declares no module, expected a 'module' line");
}

TEST(VelDictionaryReaderTest, StatementsUpToTheLimit_AreTaken_AndNoneBeyond) {
  std::string text = head + "module M\nframework F\nlibrary l.so\n";
  for (int i = 3; i < 32768; ++i) text += "type T" + std::to_string(i) + " B\n";
  EXPECT_TRUE(Read(text).accepted);
  const Reading reading = Read(text + "type T B\n");
  EXPECT_FALSE(reading.accepted);
  EXPECT_EQ(reading.fault.line, 32770U);
  EXPECT_EQ(reading.fault.cause, "a dictionary holds at most 32768 statements");
}

TEST(VelDictionaryReaderTest, ClassWithRowsOfBothLifetimes_IsRefused) {
  const Reading reading = Read(head +
                               "module M\nframework F\nlibrary l.so\nclass C Extension\nbind T I TIE Component C\n"
                               "bind T J TIE Reference C\n");
  EXPECT_FALSE(reading.accepted);
  EXPECT_EQ(reading.fault.line, 7U);
  EXPECT_EQ(reading.fault.cause, "the class 'C' has the other lifetime in a row before this one");
}

struct FaultCase {
  const char* name;
  std::string text;
  unsigned line;
  std::string cause;
};

void ExpectFaults(const std::vector<FaultCase>& iCases) {
  for (const FaultCase& each : iCases) {
    SCOPED_TRACE(each.name);
    const Reading reading = Read(each.text);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.fault.line, each.line);
    EXPECT_EQ(reading.fault.cause, each.cause);
  }
}

TEST(VelDictionaryReaderTest, FaultOfTheHead_IsNamedWithItsLine) {
  const std::string empty = "the file is empty, expected the line 'velrsh-dictionary 1'";
  const std::string first = "expected the line 'velrsh-dictionary 1' before anything else";
  ExpectFaults({
      {"nothing", "", 1, empty},
      {"a newline", "\n", 1, empty},
      {"comments alone", "# a\n\n# b\n", 3, empty},
      {"comment without newline", "# a\n# b", 2, empty},
      {"another word", "dictionary 1\n", 1, first},
      {"a statement first", "# a\nmodule M\nvelrsh-dictionary 1\n", 2, first},
      {"no version", "velrsh-dictionary\n", 1, first},
      {"two versions", "velrsh-dictionary 1 2\n", 1, first},
      {"other case", "Velrsh-Dictionary 1\n", 1, first},
      {"byte order mark", "\xEF\xBB\xBFvelrsh-dictionary 1\n", 1, first},
      {"later version", "\nvelrsh-dictionary 2\n", 2, "dictionary version '2' is unknown, expected '1'"},
      {"no number", "velrsh-dictionary one\n", 1, "dictionary version 'one' is unknown, expected '1'"},
  });
}

TEST(VelDictionaryReaderTest, UnknownWordOrWrongCountOfWords_IsNamedWithItsLine) {
  const std::string expected = ", expected module, framework, library, type, class, bind or extend";
  const std::string bindTakes = "'bind' takes a late type, an interface, a mechanism, a lifetime and a class, found ";
  ExpectFaults({
      {"unknown word", module + "bound T I TIE Component C\n", 5, "unknown word 'bound'" + expected},
      {"other case", head + "Module M\n", 2, "unknown word 'Module'" + expected},
      {"header twice", head + head, 2, "unknown word 'velrsh-dictionary'" + expected},
      {"NUL byte", head + std::string("module\0 M\n", 10), 2,
       "unknown word '" + std::string("module\0", 7) + "'" + expected},
      {"module none", head + "module\n", 2, "'module' takes a name, found 0 words"},
      {"module two", head + "module M N\n", 2, "'module' takes a name, found 2 words"},
      {"framework none", head + "module M\nframework # F\n", 3, "'framework' takes a name, found 0 words"},
      {"framework two", head + "module M\nframework F G\n", 3, "'framework' takes a name, found 2 words"},
      {"library none", head + "module M\nlibrary\n", 3, "'library' takes a file, found 0 words"},
      {"library two", head + "module M\nlibrary my lib.so\n", 3, "'library' takes a file, found 2 words"},
      {"type one", module + "type T\n", 5, "'type' takes a late type and its base, found 1 words"},
      {"type three", module + "type T B C\n", 5, "'type' takes a late type and its base, found 3 words"},
      {"class one", module + "class C\n", 5, "'class' takes a name and a kind, found 1 words"},
      {"class three", module + "class C Extension x\n", 5, "'class' takes a name and a kind, found 3 words"},
      {"bind four", module + "bind T I TIE Component\n", 5, bindTakes + "4 words"},
      {"bind six", module + "bind T I TIE Component C D\n", 5, bindTakes + "6 words"},
      {"extend one", module + "extend T\n", 5, "'extend' takes a late type and a class, found 1 words"},
      {"extend three", module + "extend T C D\n", 5, "'extend' takes a late type and a class, found 3 words"},
  });
}

TEST(VelDictionaryReaderTest, WordThatIsNoName_IsNamedWithItsLine) {
  const auto no = [](const std::string& iWord) {
    return "'" + iWord + "' is no name, expected letters, digits and '_'";
  };
  ExpectFaults({
      {"module", head + "module My-Module\n", 2, no("My-Module")},
      {"framework", head + "module M\nframework F.G\n", 3, no("F.G")},
      {"late type", module + "type T:T B\n", 5, no("T:T")},
      {"base", module + "type T B/C\n", 5, no("B/C")},
      {"class", module + "class C++ Extension\n", 5, no("C++")},
      {"kind", module + "class C Extension!\n", 5, no("Extension!")},
      {"bound late type", module + "bind T* I TIE Component C\n", 5, no("T*")},
      {"interface", module + "bind T I<int> TIE Component C\n", 5, no("I<int>")},
      {"mechanism", module + "bind T I TI-E Component C\n", 5, no("TI-E")},
      {"lifetime", module + "bind T I TIE Component, C\n", 5, no("Component,")},
      {"bound class", module + "bind T I TIE Component C#\n", 5, no("C#")},
      {"extended type", module + "extend T~ C\n", 5, no("T~")},
      {"letter beyond ASCII", head + "module M\xC3\xA9\n", 2, no("M\xC3\xA9")},
      {"NUL byte", head + std::string("module M\0N\n", 11), 2, no(std::string("M\0N", 3))},
      {"before the missing module", head + "type T-T B\n", 2, no("T-T")},
  });
}

TEST(VelDictionaryReaderTest, FaultOfTheModule_IsNamedWithItsLine) {
  const std::string before = "expected a 'module' line before this one";
  ExpectFaults({
      {"framework first", head + "framework F\n", 2, before},
      {"library first", head + "library l.so\n", 2, before},
      {"type first", head + "type T B\n", 2, before},
      {"class first", head + "class C Extension\n", 2, before},
      {"bind first", head + "bind T I TIE Component C\n", 2, before},
      {"extend first", head + "extend T C\n", 2, before},
      {"module twice", module + "\nmodule M\n", 6, "the module 'M' stands already at line 2"},
      {"framework twice", module + "framework G\n", 5, "'framework' stands twice for the module 'M'"},
      {"library twice", module + "library l.so\n", 5, "'library' stands twice for the module 'M'"},
      {"framework missing", head + "module M\nlibrary l.so\n# end\n", 4, "the module 'M' names no framework"},
      {"library missing", head + "module M\nframework F\n", 3, "the module 'M' names no library"},
      {"both missing", head + "module M", 2, "the module 'M' names no framework"},
      {"missing before the next", head + "module M\nframework F\nmodule N\n", 4, "the module 'M' names no library"},
      {"missing in the second", module + "module N\nlibrary l.so\n", 6, "the module 'N' names no framework"},
  });
}

TEST(VelDictionaryReaderTest, FaultOfAClassOrItsRows_IsNamedWithItsLine) {
  const std::string classes = module + "class C Implementation\nclass D DelegatingExtension\n";
  const std::string noClass = "' has no 'class' line before this one";
  const std::string mismatch = "a DelegatingExtension answers by BOA and every other class by TIE";
  ExpectFaults({
      {"class twice", classes + "class C Extension\n", 7, "the class 'C' stands twice"},
      {"unknown kind", module + "class C Interface\n", 5,
       "unknown kind 'Interface', expected Implementation, Extension or DelegatingExtension"},
      {"unknown mechanism", classes + "bind T I no Component C\n", 7, "unknown mechanism 'no', expected TIE or BOA"},
      {"unknown lifetime", classes + "bind T I TIE Forever C\n", 7,
       "unknown lifetime 'Forever', expected Component or Reference"},
      {"bind without class", classes + "bind T I TIE Component E\n", 7, "the class 'E" + noClass},
      {"bind before class", module + "bind T I TIE Component C\nclass C Extension\n", 5, "the class 'C" + noClass},
      {"class of another module", classes + "module N\nframework F\nlibrary l.so\nbind T I TIE Component C\n", 10,
       "the class 'C" + noClass},
      {"TIE of a delegating extension", classes + "bind T I TIE Reference D\n", 7, mismatch},
      {"BOA of an implementation", classes + "bind T I BOA Reference C\n", 7, mismatch},
      {"BOA of an extension", module + "class E Extension\nbind T I BOA Reference E\n", 6, mismatch},
      {"BOA with Component", classes + "bind T I BOA Component D\n", 7,
       "a BOA row lives by Reference, found Component"},
      {"extend without bind", classes + "extend T C\n", 7, "the class 'C' has no 'bind' line before this one"},
      {"extend a class of another module",
       classes + "bind T I TIE Component C\nmodule N\nframework F\nlibrary l.so\nextend U C\n", 11,
       "the class 'C' has no 'bind' line before this one"},
  });
}

TEST(VelDictionaryReaderTest, RowThatStandsTwice_IsNamedWithBothLines) {
  const std::string row = module + "class C Implementation\nbind T I TIE Component C\n";
  const std::string twice = "'I' is bound to 'T' already at line 6";
  ExpectFaults({
      {"same row", row + "bind T I TIE Component C\n", 7, twice},
      {"another class", row + "class D Extension\nbind T I TIE Reference D\n", 8, twice},
      {"in another module", row + "module N\nframework F\nlibrary l.so\nclass D Extension\nbind T I TIE Reference D\n",
       11, twice},
      {"by extend to its own type", row + "extend T C\n", 7, twice},
      {"extend twice", row + "extend U C\nextend U C\n", 8, "'I' is bound to 'U' already at line 7"},
      {"extend to a type that is bound", row + "class D Extension\nbind U I TIE Reference D\nextend U C\n", 9,
       "'I' is bound to 'U' already at line 8"},
  });
}

/// A module with a number of rows, one to each late type.
std::string WithRows(unsigned iCount) {
  std::string text = module + "class C Implementation\n";
  for (unsigned i = 0; i < iCount; ++i) text += "bind T" + std::to_string(i) + " I TIE Component C\n";
  return text;
}

TEST(VelDictionaryReaderTest, RowsUpToTheLimit_AreTaken_AndNoneBeyond) {
  const std::string most = "a dictionary holds at most 16384 rows";
  const std::string full = WithRows(rowLimit);
  EXPECT_TRUE(Read(full).accepted);
  ExpectFaults({
      {"one more", full + "bind U I TIE Component C\n", rowLimit + 6, most},
      {"one more by extend", full + "extend U C\n", rowLimit + 6, most},
      {"one more in another module",
       full + "module N\nframework F\nlibrary l.so\nclass D Extension\nbind U I TIE Reference D\n", rowLimit + 10,
       most},
  });
}

TEST(VelDictionaryReaderTest, SecondReading_ForgetsTheFirst) {
  std::vector<VelDictionaryModule> modules;
  VelDictionaryFault fault{};
  ASSERT_TRUE(VelDictionaryReader::Read(module, modules, fault));
  ASSERT_TRUE(VelDictionaryReader::Read(module, modules, fault));
  EXPECT_EQ(modules.size(), 1U);
}

}  // namespace
