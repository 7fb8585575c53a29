// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBindingGrid_test.cpp A binding grid against what is written out here by hand: its file, its answers and its
/// symbols.
#include <fstream>
#include <iterator>
#include <set>

#include "platform/base/system/VelSystemLibrary.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"
#include "tests/platform/objectmodeler/LibraryEntries.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"

namespace {

std::string ReadWhole(const std::string& iPath) {
  std::ifstream file(iPath, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(VelBindingGridTest, DictionaryFile_IsTheGridLineByLine) {
  EXPECT_EQ(ReadWhole(BuiltDictionary("VelTestGrid")),
            "# Made from tests/platform/objectmodeler/modules/VelTestGrid.def; edit that file instead.\n"
            "velrsh-dictionary 1\n"
            "module VelTestGrid\n"
            "framework TestFramework\n"
            "library ../libVelTestGrid.so.0\n"
            "type VelTestGridDerived VelTestGridThing\n"
            "class VelTestGridMain Implementation\n"
            "class VelTestGridSpeaker Extension\n"
            "class VelTestGridLabel DelegatingExtension\n"
            "class VelTestGridChoice Extension\n"
            "bind VelTestGridThing VelITestNumber TIE Component VelTestGridMain\n"
            "bind VelTestGridThing VelITestText TIE Reference VelTestGridSpeaker\n"
            "bind VelTestGridSecond VelITestText BOA Reference VelTestGridLabel\n"
            "bind VelTestGridThird VelITestText TIE Reference VelTestGridChoice\n"
            "extend VelTestGridSecond VelTestGridMain\n"
            "extend VelTestGridThird VelTestGridMain\n");
}

TEST(VelBindingGridTest, Library_ExportsTheFunctionsOfItsGridAndNoOthers) {
  const std::set<std::string> expected{
      "VelModule_VelTestGrid",
      "CreateExtensionVelTestGridMain",
      "CreateExtensionVelTestGridSpeaker",
      "CreateExtensionVelTestGridChoice",
      "CreateTIEVelITestNumberVelTestGridMain",
      "CreateTIEVelITestTextVelTestGridSpeaker",
      "CreateTIEVelITestTextVelTestGridChoice",
      "CreateBOAVelITestTextVelTestGridLabel",
  };
  EXPECT_EQ(EntriesOf(VEL_TEST_NM, BuiltLibrary("VelTestGrid")), expected);
}

/// The table of the module, as a host that links it would name it.
const VelModuleTable& Table() {
  std::string cause;
  void* library = VelSystemLibrary::Open(BuiltLibrary("VelTestGrid"), cause);
  const auto table =
      reinterpret_cast<const VelModuleTable* (*)()>(VelSystemLibrary::FindSymbol(library, "VelTestGridTable"));
  if (table == nullptr) ADD_FAILURE() << cause;
  return *table();
}

/// Everything that can be asked of a grid, once from its dictionary file and once from its linked table.
class VelBindingGridAnswersTest : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    ASSERT_EQ(GetParam() ? VelDictionary::Declare(Table()) : VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")),
              S_OK);
  }
  void TearDown() override {
    EXPECT_EQ(GetParam() ? VelDictionary::Undeclare(Table()) : VelDictionary::Unload(BuiltDictionary("VelTestGrid")),
              S_OK);
    EXPECT_EQ(scope_.TakeErrors(), Texts{});
  }

  static VelBaseUnknown_var Make(const char* iLateType) { return VelObject::Create(iLateType, "VelTestGridObject"); }

  DictionaryScope scope_;
};

TEST_P(VelBindingGridAnswersTest, EachLateType_IsAnsweredByTheClassesOfTheGrid) {
  struct Case {
    const char* lateType;
    const char* number;
    const char* text;
  };
  const Case cases[] = {
      {"VelTestGridThing", "VelTestGridMain", "VelTestGridSpeaker"},
      {"VelTestGridDerived", "VelTestGridMain", "VelTestGridSpeaker"},
      {"VelTestGridSecond", "VelTestGridMain", "VelTestGridLabel"},
      {"VelTestGridThird", "VelTestGridMain", ""},  // the choice declines
      {"VelTestGridOther", "", ""},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.lateType);
    EXPECT_EQ(AnsweringClass(each.lateType, IID_VelITestNumber), each.number);
    EXPECT_EQ(AnsweringClass(each.lateType, IID_VelITestText), each.text);
    const bool known = !std::string_view(each.number).empty();
    EXPECT_EQ(Offers(each.lateType, IID_VelITestNumber), known);
    EXPECT_EQ(Offers(each.lateType, IID_VelITestText), known) << "what may decline is offered all the same";
    EXPECT_EQ(VelQueryFramework(each.lateType, "VelITestNumber"), known ? "TestFramework" : "");
    EXPECT_EQ(VelQueryFramework(each.lateType, "VelITestText"), known ? "TestFramework" : "");
  }
}

TEST_P(VelBindingGridAnswersTest, ClassWithTheLifetimeOfTheComponent_IsOneForAllForwarders) {
  const VelBaseUnknown_var hThing = Make("VelTestGridThing");
  VelITestNumber_var hFirst(hThing);
  const VelITestNumber_var hSecond(hThing);
  EXPECT_EQ(hFirst->GetImpl(), hSecond->GetImpl());
  EXPECT_EQ(hFirst->SetNumber(3), S_OK);
  hFirst = nullptr;
  int number = 0;
  EXPECT_EQ(VelITestNumber_var(hThing)->GetNumber(number), S_OK);
  EXPECT_EQ(number, 3) << "it outlives its forwarders";
}

TEST_P(VelBindingGridAnswersTest, ClassWithTheLifetimeOfAReference_IsMadeForEachQuery) {
  for (const char* lateType : {"VelTestGridThing", "VelTestGridSecond"}) {
    SCOPED_TRACE(lateType);
    const VelBaseUnknown_var hThing = Make(lateType);
    const VelITestText_var hFirst(hThing);
    const VelITestText_var hSecond(hThing);
    EXPECT_NE(hFirst->GetImpl(), hSecond->GetImpl());
    EXPECT_TRUE(hFirst->IsEqual(hSecond.Get()));
  }
}

TEST_P(VelBindingGridAnswersTest, ClassThatDeclines_IsAskedAgainAtEachQuery) {
  const VelBaseUnknown_var hThing = Make("VelTestGridThird");
  const VelITestNumber_var hNumber(hThing);
  struct Case {
    int number;
    HRESULT code;
  };
  const Case cases[] = {{0, E_NOINTERFACE}, {1, S_OK}, {2, S_OK}, {-1, E_NOINTERFACE}, {1, S_OK}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.number);
    ASSERT_EQ(hNumber->SetNumber(each.number), S_OK);
    VelBaseUnknown_var hText;
    EXPECT_EQ(hThing->QueryInterface(IID_VelITestText, hText.Receive()), each.code);
    EXPECT_EQ(static_cast<bool>(hText), each.code == S_OK);
    if (hText) {
      EXPECT_STREQ(hText->GetImpl()->ClassName(), "VelTestGridChoice");
    }
  }
}

TEST_P(VelBindingGridAnswersTest, MetaClasses_TellBaseKindAndFrameworkOfTheGrid) {
  struct Case {
    const char* lateType;
    const VelInterfaceId& interfaceId;
    const char* className;
    const char* base;
    VelTypeOfClass kind;
  };
  const Case cases[] = {
      {"VelTestGridThing", IID_VelITestNumber, "VelTestGridMain", "VelImplementation", VelTypeOfClass::Implementation},
      {"VelTestGridThing", IID_VelITestText, "VelTestGridSpeaker", "VelImplementation", VelTypeOfClass::Extension},
      {"VelTestGridSecond", IID_VelITestText, "VelTestGridLabel", "VelITestText", VelTypeOfClass::DelegatingExtension},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.className);
    const VelBaseUnknown_var hThing = Make(each.lateType);
    VelBaseUnknown_var hAnswer;
    ASSERT_EQ(hThing->QueryInterface(each.interfaceId, hAnswer.Receive()), S_OK);
    const VelMetaClass& metaClass = hAnswer->GetImpl()->GetMetaObject();
    EXPECT_STREQ(metaClass.Name(), each.className);
    EXPECT_STREQ(metaClass.Base()->Name(), each.base);
    EXPECT_EQ(metaClass.TypeOfClass(), each.kind);
    EXPECT_STREQ(metaClass.Framework(), "TestFramework");
    EXPECT_STREQ(metaClass.IdentifierName(), "VelNull");
  }
}

INSTANTIATE_TEST_SUITE_P(, VelBindingGridAnswersTest, ::testing::Bool(), [](const auto& iInfo) {
  return iInfo.param ? std::string("FromTheLinkedTable") : std::string("FromTheFile");
});

}  // namespace
