// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalogReader_test.cpp What the reader of catalog files takes and what it refuses.
#include "platform/featuremodeler/VelCatalogReader.h"

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace {

const std::string head = "velrsh-catalog 1\ncatalog C\n";

struct Reading {
  bool accepted;
  VelCatalogText catalog;
  VelCatalogFault fault;
};

Reading Read(std::string_view iText) {
  Reading reading{};
  reading.accepted = VelCatalogReader::Read(iText, reading.catalog, reading.fault);
  return reading;
}

std::string_view WordOf(VelSpecAttrKind iKind) {
  for (const VelSpecAttrKindWord& known : velSpecAttrKinds) {
    if (known.kind == iKind) return known.word;
  }
  return "?";
}

/// All that was read, a line for a line, each with its number.
std::string Describe(const VelCatalogText& iCatalog) {
  std::string text = std::to_string(iCatalog.line) + " catalog " + iCatalog.name + '\n';
  for (const VelCatalogStartUp& startUp : iCatalog.startUps) {
    text += std::to_string(startUp.line) + ' ' + startUp.name;
    text += startUp.base.empty() ? "\n" : " < " + startUp.base + '\n';
    for (const VelCatalogAttribute& attribute : startUp.attributes) {
      text += std::to_string(attribute.line) + "  " + attribute.name + ' ' + std::string(WordOf(attribute.kind)) + ' ' +
              std::to_string(attribute.capacity) + '\n';
    }
  }
  return text;
}

constexpr const char* whole =
    "# A file.\n"
    "\n"
    "velrsh-catalog 1\n"
    "catalog Everything_1  # its name\n"
    "startup Holder\n"
    "  attribute A1 boolean\n"
    "  attribute A2 integer\n"
    "  attribute A3 unsigned\n"
    "  attribute A4 real\n"
    "  attribute A5 reals 1\n"
    "  attribute A6 reals 1024\n"
    "  attribute A7 text\n"
    "  attribute A8 reference\n"
    "  attribute A9 components\n"
    "  attribute A10 document\n"
    "startup Bare\n"
    "startup Derived : Holder\n"
    "  attribute A1 text\n"
    "startup FromElsewhere : NotInThisFile\n";

TEST(VelCatalogReaderTest, WholeFile_IsReadWordByWord_WithItsLines) {
  const Reading reading = Read(whole);
  ASSERT_TRUE(reading.accepted) << reading.fault.line << ": " << reading.fault.cause;
  EXPECT_EQ(Describe(reading.catalog),
            "4 catalog Everything_1\n"
            "5 Holder\n"
            "6  A1 boolean 0\n"
            "7  A2 integer 0\n"
            "8  A3 unsigned 0\n"
            "9  A4 real 0\n"
            "10  A5 reals 1\n"
            "11  A6 reals 1024\n"
            "12  A7 text 0\n"
            "13  A8 reference 0\n"
            "14  A9 components 0\n"
            "15  A10 document 0\n"
            "16 Bare\n"
            "17 Derived < Holder\n"
            "18  A1 text 0\n"
            "19 FromElsewhere < NotInThisFile\n");
}

TEST(VelCatalogReaderTest, Writing_ThatMeansTheSame_IsReadTheSame) {
  struct Case {
    const char* name;
    std::string text;
  };
  const Case cases[] = {
      {"plain", "velrsh-catalog 1\ncatalog C\nstartup S : B\nattribute A reals 4\n"},
      {"CRLF", "velrsh-catalog 1\r\ncatalog C\r\nstartup S : B\r\nattribute A reals 4\r\n"},
      {"no final newline", "velrsh-catalog 1\ncatalog C\nstartup S : B\nattribute A reals 4"},
      {"tabs and blanks", "\tvelrsh-catalog\t1 \n catalog   C\nstartup\tS \t:\tB\n\t\tattribute A  reals\t4 \n"},
      {"comments behind", "velrsh-catalog 1 # 2\ncatalog C #D\nstartup S : B # : D\nattribute A reals 4 ## 5\n"},
      {"leading zero", "velrsh-catalog 1\ncatalog C\nstartup S : B\nattribute A reals 04\n"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const Reading reading = Read(each.text);
    EXPECT_TRUE(reading.accepted) << reading.fault.line << ": " << reading.fault.cause;
    EXPECT_EQ(Describe(reading.catalog), "2 catalog C\n3 S < B\n4  A reals 4\n");
  }
}

TEST(VelCatalogReaderTest, CatalogWithoutStartUps_IsTaken) { EXPECT_EQ(Describe(Read(head).catalog), "2 catalog C\n"); }

struct Refusal {
  const char* name;
  std::string text;
  unsigned line;
  const char* cause;
};

void ExpectRefused(const Refusal& iCase) {
  SCOPED_TRACE(iCase.name);
  const Reading reading = Read(iCase.text);
  EXPECT_FALSE(reading.accepted);
  EXPECT_EQ(reading.fault.line, iCase.line);
  EXPECT_EQ(reading.fault.cause, iCase.cause);
}

TEST(VelCatalogReaderTest, FileThatDoesNotBeginAsACatalog_IsRefused) {
  constexpr const char* empty = "the file is empty, expected the line 'velrsh-catalog 1'";
  constexpr const char* noHeader = "expected the line 'velrsh-catalog 1' before anything else";
  constexpr const char* early = "expected the line 'catalog <name>' before this one";
  constexpr const char* noName = "'catalog' takes a name of letters, digits and '_'";
  const Refusal cases[] = {
      {"nothing", "", 1, empty},
      {"blank lines", "\n \n", 2, empty},
      {"a comment", "# velrsh-catalog 1", 1, empty},
      {"no header", "\ncatalog C\n", 2, noHeader},
      {"header without version", "velrsh-catalog\n", 1, noHeader},
      {"header with more", "velrsh-catalog 1 1\n", 1, noHeader},
      {"byte order mark", "\xEF\xBB\xBFvelrsh-catalog 1\n", 1, noHeader},
      {"other version", "#\nvelrsh-catalog 2\n", 2, "catalog version '2' is unknown, expected '1'"},
      {"fractional version", "velrsh-catalog 1.0\n", 1, "catalog version '1.0' is unknown, expected '1'"},
      {"header alone", "velrsh-catalog 1\n# end", 2, "the file names no catalog, expected a 'catalog' line"},
      {"start-up first", "velrsh-catalog 1\nstartup S\ncatalog C\n", 2, early},
      {"header twice", "velrsh-catalog 1\nvelrsh-catalog 1\n", 2, early},
      {"no name", "velrsh-catalog 1\ncatalog\n", 2, noName},
      {"two names", "velrsh-catalog 1\ncatalog C D\n", 2, noName},
      {"bad name", "velrsh-catalog 1\ncatalog C.feat\n", 2, noName},
      {"named twice", head + "startup S\ncatalog C\n", 4, "the catalog is named already"},
  };
  for (const Refusal& each : cases) ExpectRefused(each);
}

TEST(VelCatalogReaderTest, StartUpLine_ThatIsNone_IsRefused) {
  constexpr const char* form = "'startup' takes a name, or a name, ':' and the name of its base";
  const Refusal cases[] = {
      {"unknown word", head + "feature S\n", 3, "unknown word 'feature', expected catalog, startup or attribute"},
      {"case counts", head + "\nStartup S\n", 4, "unknown word 'Startup', expected catalog, startup or attribute"},
      {"late header", head + "velrsh-catalog 1\n", 3,
       "unknown word 'velrsh-catalog', expected catalog, startup or attribute"},
      {"no name", head + "startup\n", 3, form},
      {"no colon", head + "startup S B\n", 3, form},
      {"no base", head + "startup S :\n", 3, form},
      {"another sign", head + "startup S < B\n", 3, form},
      {"two bases", head + "startup S : B D\n", 3, form},
      {"no blank before the colon", head + "startup S: B\n", 3, form},
      {"colon for a name", head + "startup :\n", 3, "':' is no name, expected letters, digits and '_'"},
      {"bad name", head + "startup S-1 : B\n", 3, "'S-1' is no name, expected letters, digits and '_'"},
      {"bad base", head + "startup S : B*\n", 3, "'B*' is no name, expected letters, digits and '_'"},
      {"letter beyond ASCII", head + "startup S\xC3\xA9\n", 3,
       "'S\xC3\xA9' is no name, expected letters, digits and '_'"},
      {"twice", head + "startup S\nstartup T\n\nstartup S : T\n", 6, "the start-up 'S' stands already at line 3"},
  };
  for (const Refusal& each : cases) ExpectRefused(each);
}

TEST(VelCatalogReaderTest, AttributeLine_ThatIsNone_IsRefused) {
  constexpr const char* form = "'attribute' takes a name and a kind, and for reals their number";
  const std::string startUp = head + "startup S\n";
  const Refusal cases[] = {
      {"before any start-up", head + "attribute A text\n", 3, "expected a 'startup' line before this one"},
      {"no name", startUp + "attribute\n", 4, form},
      {"no kind", startUp + "attribute A\n", 4, form},
      {"bad name", startUp + "attribute A/B text\n", 4, "'A/B' is no name, expected letters, digits and '_'"},
      {"unknown kind", startUp + "attribute A float\n", 4,
       "unknown kind 'float', expected boolean, integer, unsigned, real, reals, text, reference, components or "
       "document"},
      {"number after another kind", startUp + "attribute A real 4\n", 4, "nothing follows the kind 'real', found '4'"},
      {"words after another kind", startUp + "attribute A text and more\n", 4,
       "nothing follows the kind 'text', found 'and'"},
      {"twice", startUp + "attribute A text\nattribute B text\nattribute A real\n", 6,
       "the attribute 'A' stands twice in 'S'"},
  };
  for (const Refusal& each : cases) ExpectRefused(each);
}

TEST(VelCatalogReaderTest, Reals_WithoutANumberFrom1To1024_AreRefused) {
  for (const char* number :
       {"", "0", "1025", "-1", "+4", "4.0", "4,0", "0x4", "four", "4x", "4 4", "4294967297", "99999999999999999999"}) {
    ExpectRefused({number, head + "startup S\nattribute A reals " + number + '\n', 4,
                   "'reals' is followed by the number of elements, from 1 to 1024"});
  }
}

TEST(VelCatalogReaderTest, SameAttributeName_InTwoStartUps_IsTaken) {
  EXPECT_EQ(Describe(Read(head + "startup S\nattribute A text\nstartup T\nattribute A real\n").catalog),
            "2 catalog C\n3 S\n4  A text 0\n5 T\n6  A real 0\n");
}

TEST(VelCatalogReaderTest, Bases_StandBeforeWhatDerivesFromThem_TheRestInFileOrder) {
  const Reading reading = Read(head +
                               "startup Third : Second\n"
                               "startup Alone\n"
                               "startup Beside : First\n"
                               "startup Second : First\n"
                               "  attribute A text\n"
                               "startup First : Elsewhere\n");
  ASSERT_TRUE(reading.accepted) << reading.fault.cause;
  EXPECT_EQ(Describe(reading.catalog),
            "2 catalog C\n"
            "8 First < Elsewhere\n"
            "6 Second < First\n"
            "7  A text 0\n"
            "3 Third < Second\n"
            "4 Alone\n"
            "5 Beside < First\n");
}

TEST(VelCatalogReaderTest, CycleOfBases_IsRefused_AtAStartUpOfTheCycle) {
  struct Case {
    const char* name;
    std::string text;
    const char* startUps;  ///< Those of the cycle, by the digit of their line.
  };
  const Case cases[] = {
      {"of one", head + "startup S3 : S3\n", "3"},
      {"of two", head + "startup S3 : S4\nstartup S4 : S3\n", "34"},
      {"of three", head + "startup S3 : S4\nstartup S4 : S5\nstartup S5 : S3\n", "345"},
      {"below others", head + "startup S3 : S4\nstartup S4 : S6\nstartup S5\nstartup S6 : S6\n", "6"},
      {"behind others", head + "startup S3\nstartup S4 : S3\nstartup S5 : S6\nstartup S6 : S5\n", "56"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const Reading reading = Read(each.text);
    EXPECT_FALSE(reading.accepted);
    const std::string line = std::to_string(reading.fault.line);
    EXPECT_NE(std::string(each.startUps).find(line), std::string::npos) << line;
    EXPECT_EQ(reading.fault.cause, "the start-up 'S" + line + "' would derive from itself");
  }
}

TEST(VelCatalogReaderTest, StartUpsUpToTheLimit_AreTaken_AndNoneBeyond) {
  // Each derives from the one that follows, the longest climb there is.
  std::string text = head;
  for (int i = 0; i < 4096; ++i) text += "startup S" + std::to_string(i) + " : S" + std::to_string(i + 1) + '\n';
  const Reading most = Read(text);
  ASSERT_TRUE(most.accepted) << most.fault.cause;
  ASSERT_EQ(most.catalog.startUps.size(), 4096U);
  EXPECT_EQ(most.catalog.startUps.front().name, "S4095");
  EXPECT_EQ(most.catalog.startUps.back().name, "S0");
  ExpectRefused({"one more", text + "startup S4096\n", 4099, "a catalog holds at most 4096 start-ups"});
}

TEST(VelCatalogReaderTest, WhatWasReadBefore_IsGone_AfterTheNextText) {
  VelCatalogText catalog;
  VelCatalogFault fault{};
  ASSERT_TRUE(VelCatalogReader::Read(head + "startup S\n", catalog, fault));
  ASSERT_TRUE(VelCatalogReader::Read("velrsh-catalog 1\n\ncatalog D\n", catalog, fault));
  EXPECT_EQ(Describe(catalog), "3 catalog D\n");
}

/// Twelve start-ups, ten of them parameters; eighteen attributes. Lines may move and are 0 here.
constexpr const char* shipped =
    "0 catalog VelRmaCatalog\n"
    "0 VelRmaShader\n"
    "0  Type text 0\n"
    "0  Usage unsigned 0\n"
    "0  Version unsigned 0\n"
    "0  Parameters components 0\n"
    "0  Nodes components 0\n"
    "0  OutputType text 0\n"
    "0 VelRmaParameter\n"
    "0  Name text 0\n"
    "0  Group text 0\n"
    "0  Node reference 0\n"
    "0 VelRmaBoolean < VelRmaParameter\n"
    "0  Value boolean 0\n"
    "0 VelRmaInteger < VelRmaParameter\n"
    "0  Value integer 0\n"
    "0 VelRmaScalar < VelRmaParameter\n"
    "0  Value real 0\n"
    "0 VelRmaColor < VelRmaParameter\n"
    "0  Value reals 4\n"
    "0 VelRmaMatrix < VelRmaParameter\n"
    "0  Value reals 16\n"
    "0 VelRmaVector < VelRmaParameter\n"
    "0  Value reals 3\n"
    "0 VelRmaString < VelRmaParameter\n"
    "0  Value text 0\n"
    "0 VelRmaTexture < VelRmaParameter\n"
    "0  Value document 0\n"
    "0 VelRmaLightProfile < VelRmaParameter\n"
    "0  Value document 0\n"
    "0 VelRmaVoid < VelRmaParameter\n";

TEST(VelCatalogReaderTest, ShippedCatalog_DeclaresTheStartUpsOfShadersAndParameters) {
  std::ifstream file(VEL_TEST_CATALOGS "/VelRmaCatalog.feat", std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const Reading reading = Read(text);
  ASSERT_TRUE(reading.accepted) << reading.fault.line << ": " << reading.fault.cause;
  VelCatalogText catalog = reading.catalog;
  catalog.line = 0;
  for (VelCatalogStartUp& startUp : catalog.startUps) {
    startUp.line = 0;
    for (VelCatalogAttribute& attribute : startUp.attributes) attribute.line = 0;
  }
  EXPECT_EQ(Describe(catalog), shipped);
}

}  // namespace
