// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelGrid_test.cpp The binding grid of the component, written out by hand, against its dictionary file,
/// its answers and its symbols.
#include <fstream>
#include <set>
#include <sstream>

#include "RenderingShader/interfaces/VelIRshShaderResources.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/bindings/fixtures/VelTestDelegate.h"
#include "tests/platform/objectmodeler/LibraryEntries.h"

namespace {

/// The columns of the grid.
constexpr const char* interfaces[] = {
    "VelIAlias",
    "VelIRshParameter",
    "VelIRshParameterPrivate",
    "VelIRshParameterPublisher",
    "VelIRshShaderSubscriber",
    "LifeCycleObject",
    "VelIRshParameterSubscriber",
    "VelIRshShader",
    "VelIRshShaderPrivate",
    "VelIRshShaderPublisher",
    "VelIModelEvents",
    "VelIRmaVisuTextureCoordinateTransformation",
    "VelIHardwareMaterial",
    "VelIOpenGLShaderMaterial",
    "VelIRmaMappingManipulator",
    "VelIRmaMappingManipulatorMaterial",
    "VelIRshShaderResources",
    "VelIRshParameterImmLayout",
    "VelIRshParameterDialog",
    "VelIRshShaderLink",
    "VelIRshShaderSupport",
    "VelIAlgSubstanceGraphOutput",
    "VelIRenderingMaterial",
};

/// A cell is T for a forwarder to the row's class, P and S for one to the model events of parameters and of shaders, C
/// for one to the coordinates of textures, B for the delegating extension of the column, F for what the feature modeler
/// answers for every feature, a point for nothing.
struct Row {
  const char* className;
  const char* startUp;
  const char* cells;
};

// clang-format off
constexpr Row rows[] = {
    // class                        start-up              parameter  shader   extensions     never bound
    {"VelRshParameterBase",          "VelRmaParameter",    "TT...T"   "...."   ".." "....."   "......"},
    {"VelRshParameterBoolean",       "VelRmaBoolean",      "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterColor",         "VelRmaColor",        "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterInteger",       "VelRmaInteger",      "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterScalar",        "VelRmaScalar",       "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterString",        "VelRmaString",       "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterTexture",       "VelRmaTexture",      "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterVector",        "VelRmaVector",       "TTTTTT"   "...."   "P." "....."   "......"},
    {"VelRshParameterMatrix",        "VelRmaMatrix",       "TTT..T"   "...."   "P." "....."   "......"},
    {"VelRshParameterLightProfile",  "VelRmaLightProfile", "TT...T"   "...."   ".." "....."   "......"},
    {"VelRshParameterShader",        "VelRmaVoid",         "TT...T"   "...."   ".." "....."   "......"},
    {"VelRshShaderFeature",          "VelRmaShader",       "T....F"   "TTTT"   "SC" "BBBBB"   "......"},
};
// clang-format on

constexpr const char* parameterEvents = "VelERshParameterGeneric_VelIModelEvents";
constexpr const char* shaderEvents = "VelERshShaderGeneric_VelIModelEvents";
constexpr const char* coordinates = "VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation";

/// The order in which the start-ups share the model events of parameters.
const Texts sharers{"VelRmaScalar",  "VelRmaInteger", "VelRmaBoolean", "VelRmaColor",
                    "VelRmaTexture", "VelRmaMatrix",  "VelRmaVector",  "VelRmaString"};

std::string DelegatingExtension(const std::string& iInterface) {
  return "DelegatingExtension" + iInterface + "VelRmaShader";
}

/// @return the class that a cell names, empty for none
std::string ClassOf(const Row& iRow, std::size_t iColumn) {
  switch (iRow.cells[iColumn]) {
    case 'T':
      return iRow.className;
    case 'P':
      return parameterEvents;
    case 'S':
      return shaderEvents;
    case 'C':
      return coordinates;
    case 'B':
      return DelegatingExtension(interfaces[iColumn]);
    case 'F':
      return "VelFeature";
    case '.':
    default:
      return {};
  }
}

/// Visits each cell of the grid.
template <class Visit>
void ForEachCell(const Visit& iVisit) {
  for (const Row& row : rows) {
    ASSERT_EQ(std::string_view(row.cells).size(), std::size(interfaces)) << row.startUp;
    for (std::size_t column = 0; column < std::size(interfaces); ++column) {
      SCOPED_TRACE(std::string(row.startUp) + " " + interfaces[column]);
      iVisit(row, column);
    }
  }
}

class VelRshModelGridTest : public RshModelTest {
 protected:
  /// A feature of a start-up; a shader with a delegate that answers everything.
  VelISpecObject_var MakeAnswering(const char* iStartUp) {
    VelISpecObject_var hFeature = Make(iStartUp);
    const VelIRshShader_var hShader(hFeature);
    if (hShader) {
      EXPECT_EQ(hShader->SetType("VelTestFull"), S_OK);
    }
    return hFeature;
  }

  VelTestDelegateBindings delegate_;
};

TEST_F(VelRshModelGridTest, DictionaryFile_HoldsTheGridAndNothingElse) {
  std::set<std::string> expected;
  ForEachCell([&](const Row& iRow, std::size_t iColumn) {
    const std::string bound = std::string("bind ") + iRow.startUp + " " + interfaces[iColumn];
    const char cell = iRow.cells[iColumn];
    if (cell == 'B') expected.insert(bound + " BOA Reference " + ClassOf(iRow, iColumn));
    if (cell == 'C') expected.insert(bound + " TIE Reference " + ClassOf(iRow, iColumn));
    if (cell == 'P' && iRow.startUp != sharers.front()) return;
    if (cell == 'T' || cell == 'P' || cell == 'S') expected.insert(bound + " TIE Component " + ClassOf(iRow, iColumn));
  });
  Texts expectedSharing;
  for (std::size_t i = 1; i < sharers.size(); ++i) {
    expectedSharing.push_back("extend " + sharers[i] + " " + parameterEvents);
  }
  std::set<std::string> bound;
  Texts sharing;
  std::ifstream file(VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("bind ")) {
      EXPECT_TRUE(bound.insert(line).second) << line;
    }
    if (line.starts_with("extend ")) sharing.push_back(line);
    EXPECT_FALSE(line.starts_with("type ")) << line << ": the catalog says what start-ups derive from";
  }
  EXPECT_EQ(bound, expected);
  EXPECT_EQ(sharing, expectedSharing);
}

TEST_F(VelRshModelGridTest, Offer_IsThatOfTheGrid) {
  ForEachCell([&](const Row& iRow, std::size_t iColumn) {
    const char cell = iRow.cells[iColumn];
    const char* framework = cell == '.' ? "" : cell == 'F' ? "Platform" : "RenderingShader";
    EXPECT_EQ(VelQueryFramework(iRow.startUp, interfaces[iColumn]), framework);
  });
}

TEST_F(VelRshModelGridTest, Query_IsAnsweredByTheClassAndMechanismOfTheGrid) {
  ForEachCell([&](const Row& iRow, std::size_t iColumn) {
    const char cell = iRow.cells[iColumn];
    const VelISpecObject_var hFeature = MakeAnswering(iRow.startUp);
    VelBaseUnknown_var hAnswer;
    EXPECT_EQ(hFeature->QueryInterfaceByName(interfaces[iColumn], hAnswer.Receive()),
              cell == '.' ? E_NOINTERFACE : S_OK);
    ASSERT_EQ(static_cast<bool>(hAnswer), cell != '.');
    if (!hAnswer) return;
    EXPECT_TRUE(hAnswer->IsEqual(hFeature.Get()));
    EXPECT_STREQ(hAnswer->GetImpl()->ClassName(), ClassOf(iRow, iColumn).c_str());
    if (cell == 'B') {
      EXPECT_EQ(hAnswer->GetImpl(), hAnswer.Get()) << "an extension that is its own interface";
    } else {
      EXPECT_NE(hAnswer->GetImpl(), hAnswer.Get()) << "a forwarder";
      EXPECT_STREQ(hAnswer->ClassName(), interfaces[iColumn]);
    }
  });
}

TEST_F(VelRshModelGridTest, Query_GivesOneObjectForAllInterfacesOfAClass) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.startUp);
    const VelISpecObject_var hFeature = MakeAnswering(row.startUp);
    std::set<VelBaseUnknown*> objects;
    for (std::size_t column = 0; column < std::size(interfaces); ++column) {
      if (row.cells[column] != 'T') continue;
      VelBaseUnknown_var hAnswer;
      ASSERT_EQ(hFeature->QueryInterfaceByName(interfaces[column], hAnswer.Receive()), S_OK);
      objects.insert(hAnswer->GetImpl());
    }
    EXPECT_EQ(objects.size(), 1U);
  }
}

TEST_F(VelRshModelGridTest, ShaderWithoutDelegate_LacksWhatIsDelegated) {
  const VelISpecObject_var hShader = Make("VelRmaShader");
  const Row& row = rows[std::size(rows) - 1];
  for (std::size_t column = 0; column < std::size(interfaces); ++column) {
    if (row.cells[column] != 'B') continue;
    VelBaseUnknown_var hAnswer;
    EXPECT_EQ(hShader->QueryInterfaceByName(interfaces[column], hAnswer.Receive()), E_NOINTERFACE);
    EXPECT_FALSE(hAnswer) << interfaces[column];
  }
}

TEST_F(VelRshModelGridTest, DelegatedResources_AreThoseOfTheDelegate) {
  const VelIRshShaderResources_var hResources(MakeAnswering("VelRmaShader"));
  VelUnicodeString text;
  EXPECT_EQ(hResources->GetText("label", "roughness", text), S_OK);
  EXPECT_EQ(text, "label/roughness");
}

TEST_F(VelRshModelGridTest, Library_ExportsTheFunctionsOfTheGridAndNoOthers) {
  std::set<std::string> forwarders;
  std::set<std::string> extensions;
  std::set<std::string> classes{"VelModule_VelRshModel"};
  ForEachCell([&](const Row& iRow, std::size_t iColumn) {
    const std::string name = interfaces[iColumn] + ClassOf(iRow, iColumn);
    const char cell = iRow.cells[iColumn];
    if (cell == 'B') extensions.insert("CreateBOA" + name);
    if (cell == '.' || cell == 'B' || cell == 'F') return;
    forwarders.insert("CreateTIE" + name);
    classes.insert("CreateExtension" + ClassOf(iRow, iColumn));
  });
  EXPECT_EQ(forwarders.size(), 63U) << "60 of classes, 3 of extensions";
  EXPECT_EQ(extensions.size(), 5U);
  std::set<std::string> expected = classes;
  expected.merge(forwarders);
  expected.merge(extensions);
  EXPECT_EQ(EntriesOf(VEL_TEST_NM, VEL_TEST_LIBRARY_FOLDER "/libVelRshModel.so"), expected);
}

TEST_F(VelRshModelGridTest, MetaClasses_KnowNameBaseKindAndFramework) {
  struct Case {
    const char* startUp;
    const char* interfaceName;
    const char* name;
    const char* base;
    int kind;
  };
  std::vector<Case> cases;
  for (const Row& row : rows) {
    const bool isShader = std::string_view(row.startUp) == "VelRmaShader";
    const bool isBase = std::string_view(row.startUp) == "VelRmaParameter";
    const char* parameterBase = isBase ? "VelSpecLifeCycleObjectExt" : "VelRshParameterBase";
    cases.push_back({row.startUp, "VelIAlias", row.className, isShader ? "VelImplementation" : parameterBase, 1});
  }
  for (const std::string& sharer : sharers) {
    cases.push_back({sharer.c_str(), "VelIModelEvents", parameterEvents, "VelExtIModelEvents", 2});
  }
  cases.push_back({"VelRmaShader", "VelIModelEvents", shaderEvents, "VelExtIModelEvents", 2});
  cases.push_back({"VelRmaShader", "VelIRmaVisuTextureCoordinateTransformation", coordinates, "VelImplementation", 2});
  Texts delegating;
  for (std::size_t column = 12; column < 17; ++column) delegating.push_back(DelegatingExtension(interfaces[column]));
  for (std::size_t i = 0; i < delegating.size(); ++i) {
    cases.push_back({"VelRmaShader", interfaces[12 + i], delegating[i].c_str(), interfaces[12 + i], 3});
  }
  for (const Case& each : cases) {
    SCOPED_TRACE(std::string(each.startUp) + " " + each.interfaceName);
    VelBaseUnknown_var hAnswer;
    ASSERT_EQ(MakeAnswering(each.startUp)->QueryInterfaceByName(each.interfaceName, hAnswer.Receive()), S_OK);
    const VelMetaClass& metaClass = hAnswer->GetImpl()->GetMetaObject();
    EXPECT_STREQ(metaClass.Name(), each.name);
    ASSERT_NE(metaClass.Base(), nullptr);
    EXPECT_STREQ(metaClass.Base()->Name(), each.base);
    EXPECT_EQ(static_cast<int>(metaClass.TypeOfClass()), each.kind);
    EXPECT_STREQ(metaClass.IdentifierName(), "VelNull");
    EXPECT_STREQ(metaClass.Framework(), "RenderingShader");
    EXPECT_EQ(VelMetaClass::Find(each.name), &metaClass) << "one for the process";
  }
}

}  // namespace
