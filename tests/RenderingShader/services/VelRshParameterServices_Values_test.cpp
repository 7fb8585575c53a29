// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Values_test.cpp The values beside a parameter, by name.
#include <limits>
#include <string_view>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"

namespace {

using Services = VelRshParameterServices;

class VelRshParameterServicesValuesTest : public RshModelTest {
 protected:
  /// Puts a parameter into the nodes of a shader, so that the shader is the father of its father's.
  static VelIRshParameter_var AddBelow(const VelIRshShader_var& iNode) { return Add(iNode, "asked", "VelRmaTexture"); }

  static VelIRshParameter_var AddText(const VelIRshShader_var& iShader, const char* iName, const char* iText) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaString");
    const VelUnicodeString text(iText);
    EXPECT_EQ(hParameter->SetValue(&text), S_OK);
    return hParameter;
  }

  static VelIRshParameter_var AddNumber(const VelIRshShader_var& iShader, const char* iName, std::int32_t iNumber) {
    VelIRshParameter_var hParameter = Add(iShader, iName, "VelRmaInteger");
    EXPECT_EQ(hParameter->SetValue(&iNumber), S_OK);
    return hParameter;
  }

  static VelListValVelUnicodeString ListOf(const Texts& iTexts) {
    VelListValVelUnicodeString list;
    for (const std::string& text : iTexts) list.Append(VelUnicodeString(text));
    return list;
  }

  static std::string TextOf(const VelIRshParameter_var& iParameter) {
    VelUnicodeString text("unread");
    static_cast<void>(iParameter->GetValue(&text));
    return std::string(text.View());
  }

  /// Takes the father of a parameter, a shader without a private side that lists as told.
  VelIRshParameter_var PutIntoABox() {
    hBox_ = VelTestListingShaders::CreateBox(*hContainer_);
    VelIRshParameter_var hParameter(Make("VelRmaScalar"));
    EXPECT_EQ(hParameter->SetName("inside"), S_OK);
    VelTestListingShaders::Put(hBox_, hParameter.Get());
    return hParameter;
  }

  void TearDown() override {
    hBox_ = nullptr;
    RshModelTest::TearDown();
  }

  VelISpecObject_var hBox_;
};

TEST_F(VelRshParameterServicesValuesTest, RetrieveDpi_FillsTheValueOfTheGrandfatherAndFailsAllTheSame) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelIRshShader_var hNode = AddNode(hRoot);
  const VelIRshParameter_var hAsked = AddBelow(hNode);
  AddNumber(hRoot, "DPI", 1);
  AddNumber(hRoot, "dpi", 300);
  AddNumber(hRoot, "dpi", 2);
  AddNumber(hNode, "dpi", 3);
  int dpi = 0;
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL);
  EXPECT_EQ(dpi, 300);
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveDpi_LeavesTheValueWhereThereIsNone) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelIRshShader_var hNode = AddNode(hRoot);
  const VelIRshParameter_var hAsked = AddBelow(hNode);
  AddNumber(hNode, "dpi", 300);
  int dpi = 7;
  EXPECT_EQ(Services::RetrieveDpi(nullptr, dpi), E_FAIL);
  EXPECT_EQ(Services::RetrieveDpi(VelIRshParameter_var(Make("VelRmaScalar")).Get(), dpi), E_FAIL) << "no father";
  EXPECT_EQ(Services::RetrieveDpi(AddBelow(hRoot).Get(), dpi), E_FAIL) << "no grandfather";
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL) << "no such parameter";
  AddText(hRoot, "dpi", "300");
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL) << "a text";
  EXPECT_EQ(dpi, 7);
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveDpi_NeedsAGrandfatherThatIsAShaderAndLists) {
  const VelISpecObject_var hBox = VelTestListingShaders::CreateBox(*hContainer_);
  const VelIRshShader_var hNode = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hNode);
  const VelIRshParameter_var hDpi(Make("VelRmaInteger"));
  const std::int32_t number = 300;
  EXPECT_EQ(hDpi->SetName("dpi"), S_OK);
  EXPECT_EQ(hDpi->SetValue(&number), S_OK);
  VelTestListingShaders::Put(hBox, hNode.Get());
  VelTestListingShaders::Put(hBox, hDpi.Get());
  int dpi = 7;
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL);
  EXPECT_EQ(dpi, 7) << "the box is no shader yet";
  VelTestListingShaders shaders;
  shaders.listCode = E_UNEXPECTED;
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL);
  EXPECT_EQ(dpi, 7) << "it cannot list";
  shaders.listCode = S_OK;
  EXPECT_EQ(Services::RetrieveDpi(hAsked.Get(), dpi), E_FAIL);
  EXPECT_EQ(dpi, 300) << "what is no parameter is passed over";
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveGroupList_AppendsTheItemsBesideAndFailsAllTheSame) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  AddText(hShader, "Group_names", "z");
  AddText(hShader, "group_names", "a;;b c");
  AddText(hShader, "group_names", "y");
  VelListValVelUnicodeString groups = ListOf({"before"});
  EXPECT_EQ(Services::RetrieveGroupList(hAsked.Get(), groups), E_FAIL);
  EXPECT_EQ(groups, ListOf({"before", "a", "", "b c"}));
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveGroupList_LeavesTheListWhereThereIsNothing) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  VelListValVelUnicodeString groups = ListOf({"before"});
  EXPECT_EQ(Services::RetrieveGroupList(nullptr, groups), E_FAIL);
  EXPECT_EQ(Services::RetrieveGroupList(VelIRshParameter_var(Make("VelRmaScalar")).Get(), groups), E_FAIL);
  EXPECT_EQ(Services::RetrieveGroupList(hAsked.Get(), groups), E_FAIL) << "no such parameter";
  const VelIRshParameter_var hNames = Add(hShader, "group_names", "VelRmaString");
  EXPECT_EQ(Services::RetrieveGroupList(hAsked.Get(), groups), E_FAIL) << "none set";
  const VelUnicodeString empty;
  EXPECT_TRUE(SUCCEEDED(hNames->SetValue(&empty)));
  EXPECT_EQ(Services::RetrieveGroupList(hAsked.Get(), groups), E_FAIL) << "an empty text";
  EXPECT_EQ(groups, ListOf({"before"}));
}

TEST_F(VelRshParameterServicesValuesTest, WriteGroupList_JoinsTheNamesAndReadsBack) {
  const struct {
    Texts names;
    const char* text;
  } cases[] = {{{"a"}, "a"},       {{"a", "b", "c"}, "a;b;c"}, {{}, "a;b;c"},
               {{"", ""}, ";"},    {{"a", "", "b"}, "a;;b"},   {{"\xC3\xA9", " x "}, "\xC3\xA9; x "},
               {{"a", "a"}, "a;a"}};
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  const VelIRshParameter_var hNames = AddText(hShader, "group_names", "before");
  const VelIRshParameter_var hSecond = AddText(hShader, "group_names", "second");
  for (const auto& test : cases) {
    EXPECT_EQ(Services::WriteGroupList(hAsked.Get(), ListOf(test.names)), S_OK) << test.text;
    EXPECT_EQ(TextOf(hNames), test.text) << "an empty list writes nothing";
    VelListValVelUnicodeString read;
    static_cast<void>(Services::RetrieveGroupList(hAsked.Get(), read));
    EXPECT_EQ(read, ListOf(test.names.empty() ? Texts{"a", "b", "c"} : test.names)) << test.text;
  }
  EXPECT_EQ(TextOf(hSecond), "second") << "the first one counts";
}

TEST_F(VelRshParameterServicesValuesTest, WriteGroupList_SucceedsWhereTheParametersCanBeListed) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  EXPECT_EQ(Services::WriteGroupList(nullptr, ListOf({"a"})), E_FAIL);
  EXPECT_EQ(Services::WriteGroupList(VelIRshParameter_var(Make("VelRmaScalar")).Get(), ListOf({"a"})), E_FAIL);
  EXPECT_EQ(Services::WriteGroupList(hAsked.Get(), ListOf({"a"})), S_OK) << "no such parameter";
  AddNumber(hShader, "group_names", 5);
  EXPECT_EQ(Services::WriteGroupList(hAsked.Get(), ListOf({"a"})), S_OK) << "the write's own failure does not count";
  VelTestListingShaders shaders;
  const VelIRshParameter_var hInside = PutIntoABox();
  shaders.listCode = E_UNEXPECTED;
  EXPECT_EQ(Services::WriteGroupList(hInside.Get(), ListOf({"a"})), E_UNEXPECTED);
  shaders.listCode = S_OK;
  shaders.givesList = false;
  EXPECT_EQ(Services::WriteGroupList(hInside.Get(), ListOf({"a"})), S_OK);
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveParameter_GivesTheFirstWithAReference) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  Add(hShader, "Found", "VelRmaScalar");
  const VelIRshParameter_var hFirst = Add(hShader, "found", "VelRmaColor");
  Add(hShader, "found", "VelRmaScalar");
  VelIRshParameter* found = nullptr;
  EXPECT_EQ(Services::RetrieveParameter(hAsked.Get(), "found", &found), S_OK);
  EXPECT_TRUE(IsSameObject(found, hFirst.Get()));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->Release(), 0U);
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveParameter_WithoutOne_LeavesTheOutArgument) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  Add(hShader, "", "VelRmaScalar");
  VelIRshParameter* found = hAsked.Get();
  EXPECT_EQ(Services::RetrieveParameter(hAsked.Get(), "asked", nullptr), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameter(nullptr, "asked", &found), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameter(hAsked.Get(), "", &found), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameter(VelIRshParameter_var(Make("VelRmaScalar")).Get(), "asked", &found), E_FAIL);
  for (const char* name : {"Asked", "asked ", "aske", "askedd"}) {
    EXPECT_EQ(Services::RetrieveParameter(hAsked.Get(), name, &found), S_OK) << name;
  }
  EXPECT_EQ(Services::RetrieveParameter(hAsked.Get(), VelString(std::string_view("asked\0x", 7)), &found), S_OK);
  EXPECT_EQ(found, hAsked.Get());
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveParameter_WithoutOne_GivesTheCodeOfTheListing) {
  VelTestListingShaders shaders;
  const VelIRshParameter_var hInside = PutIntoABox();
  VelIRshParameter* found = hInside.Get();
  float value = 7.0F;
  for (const HRESULT code : {S_OK, S_FALSE, E_UNEXPECTED, E_INVALIDARG}) {
    shaders.listCode = code;
    for (const bool givesList : {true, false}) {
      shaders.givesList = givesList;
      EXPECT_EQ(Services::RetrieveParameter(hInside.Get(), "none", &found), code) << givesList;
      EXPECT_EQ(Services::RetrieveParameterValue(hInside.Get(), "none", &value), code) << givesList;
    }
  }
  EXPECT_EQ(found, hInside.Get());
  EXPECT_EQ(value, 7.0F);
  shaders.listCode = S_FALSE;
  shaders.givesList = true;
  EXPECT_EQ(Services::RetrieveParameter(hInside.Get(), "inside", &found), S_OK);
  found->Release();
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveParameterValue_ReadsIntoAViewThatSuits) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  AddNumber(hShader, "number", std::numeric_limits<std::int32_t>::min());
  AddNumber(hShader, "number", 2);
  AddText(hShader, "text", "words");
  std::int32_t number = 7;
  VelUnicodeString text("before");
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "number", &number), S_OK);
  EXPECT_EQ(number, std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "text", &text), S_OK);
  EXPECT_EQ(text, "words");
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "number", &text), E_FAIL) << "another kind";
  EXPECT_EQ(text, "words");
}

TEST_F(VelRshParameterServicesValuesTest, RetrieveParameterValue_WithoutOne_LeavesTheBuffer) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hAsked = AddBelow(hShader);
  AddNumber(hShader, "number", 3);
  std::int32_t number = 7;
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "number", static_cast<std::int32_t*>(nullptr)), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameterValue(nullptr, "number", &number), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "", &number), E_FAIL);
  EXPECT_EQ(Services::RetrieveParameterValue(VelIRshParameter_var(Make("VelRmaScalar")).Get(), "number", &number),
            E_FAIL);
  EXPECT_EQ(Services::RetrieveParameterValue(hAsked.Get(), "Number", &number), S_OK) << "there is none";
  EXPECT_EQ(number, 7);
}

}  // namespace
