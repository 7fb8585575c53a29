// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Copy_test.cpp Copies a shader with its parameters and their values.
#include <algorithm>
#include <functional>

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/fixtures/FakeRepLifeCycle.h"
#include "tests/RenderingShader/management/fixtures/ShaderCopyTest.h"

namespace {

using VelRshShaderManagerCopyTest = ShaderCopyTest;

TEST_F(VelRshShaderManagerCopyTest, MissingArguments_AreFailuresWithoutACopy) {
  VelIRshShader* copy = hSource_.Get();
  EXPECT_EQ(Manager().CreateShaderCopy(VelIContainer_var(), hSource_.Get(), &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  copy = hSource_.Get();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, nullptr, &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hSource_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshShaderManagerCopyTest, ATypeThatCannotBeRead_IsAnsweredWithItsCode) {
  static_cast<void>(Odd(""));
  odd_->shader.type.code = E_INVALIDARG;
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), E_INVALIDARG);
  EXPECT_FALSE(hCopy_);
  EXPECT_EQ(hTarget_->CountFeatures(), 0);
}

TEST_F(VelRshShaderManagerCopyTest, AShaderThatCannotBeMade_IsNoInterface) {
  hTarget_ = MakeBarrenContainer();
  EXPECT_EQ(Copy(), E_NOINTERFACE);
  EXPECT_FALSE(hCopy_);
}

TEST_F(VelRshShaderManagerCopyTest, AnEmptyShader_IsCopiedWithItsTypeAndNothingElse) {
  EXPECT_EQ(hSource_->SetVersion(4), S_OK);
  EXPECT_EQ(hSource_->SetUsage(2), S_OK);
  EXPECT_EQ(hSource_->SetOutputType("VelRmaColor"), S_OK);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(TypeOfShader(hCopy_.Get()), "BasicMaterial");
  EXPECT_FALSE(IsSameObject(hCopy_.Get(), hSource_.Get()));
  std::uint32_t number = 0;
  VelString output;
  EXPECT_EQ(hCopy_->GetVersion(number), E_FAIL);
  EXPECT_EQ(hCopy_->GetUsage(number), E_FAIL);
  EXPECT_EQ(hCopy_->GetOutputType(output), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 1);
}

TEST_F(VelRshShaderManagerCopyTest, TheOldMaterial_BecomesTheNewOneAndNoOtherTypeChanges) {
  const struct {
    const char* type;
    const char* expected;
  } cases[] = {{"mia_material", "mia_phen_material"},
               {"mia_phen_material", "mia_phen_material"},
               {"mia_material_x", "mia_material_x"},
               {"Mia_material", "Mia_material"}};
  for (const auto& row : cases) {
    hSource_ = MakeShader(row.type);
    EXPECT_EQ(Copy(), S_OK);
    EXPECT_EQ(TypeOfShader(hCopy_.Get()), row.expected);
    EXPECT_EQ(TypeOfShader(hSource_.Get()), row.type);
  }
}

TEST_F(VelRshShaderManagerCopyTest, TheCopy_IsMadeWithoutAnyFactory) {
  First().Add("BasicMaterial");
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(First().calls, Texts{});
}

TEST_F(VelRshShaderManagerCopyTest, PlainValues_AreCopiedInOrder) {
  const bool boolean = false;
  const std::int32_t integer = -7;
  const float scalar = 0.5F;
  const float vector[] = {1.0F, 2.0F, 3.0F};
  const float color[] = {0.1F, 0.2F, 0.3F, 0.4F};
  EXPECT_EQ(Add(hSource_, "color", "VelRmaColor")->SetValue(color), S_OK);
  EXPECT_EQ(Add(hSource_, "boolean", "VelRmaBoolean")->SetValue(&boolean), S_OK);
  EXPECT_EQ(Add(hSource_, "integer", "VelRmaInteger")->SetValue(&integer), S_OK);
  EXPECT_EQ(Add(hSource_, "scalar", "VelRmaScalar")->SetValue(&scalar), S_OK);
  EXPECT_EQ(Add(hSource_, "vector", "VelRmaVector")->SetValue(vector), S_OK);
  EXPECT_EQ(Add(hSource_, "scalar", "VelRmaScalar")->SetValue(&vector[1]), S_OK);

  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"color", "boolean", "integer", "scalar", "vector", "scalar"}));
  bool booleanRead = true;
  std::int32_t integerRead = 0;
  float vectorRead[3]{};
  float colorRead[4]{};
  EXPECT_EQ(Find(hCopy_, "boolean")->GetValue(&booleanRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "integer")->GetValue(&integerRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "vector")->GetValue(vectorRead), S_OK);
  EXPECT_EQ(Find(hCopy_, "color")->GetValue(colorRead), S_OK);
  EXPECT_FALSE(booleanRead);
  EXPECT_EQ(integerRead, -7);
  EXPECT_EQ(ScalarOf(ParametersOf(hCopy_)[3]), 0.5F);
  EXPECT_EQ(ScalarOf(ParametersOf(hCopy_)[5]), 2.0F);
  EXPECT_TRUE(std::equal(vector, vector + 3, vectorRead));
  EXPECT_TRUE(std::equal(color, color + 4, colorRead));
}

TEST_F(VelRshShaderManagerCopyTest, TextsMatricesAndSubShaders_KeepTheDefaultsOfTheirCreation) {
  float matrix[16]{};
  matrix[3] = 4.0F;
  AddText(hSource_, "text", "hello");
  EXPECT_EQ(Add(hSource_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  static_cast<void>(Add(hSource_, "void", "VelRmaVoid"));
  static_cast<void>(Add(hSource_, "bare", "VelRmaParameter"));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"text", "matrix", "void", "bare"}));
  VelUnicodeString text("untouched");
  EXPECT_EQ(Find(hCopy_, "text")->GetValue(&text), E_FAIL);
  EXPECT_EQ(text, VelUnicodeString()) << "nobody set it";
  EXPECT_EQ(Find(hCopy_, "matrix")->GetValue(matrix), E_FAIL);
}

TEST_F(VelRshShaderManagerCopyTest, Documents_AreSharedAndCountedAndMayBeMissing) {
  const FakeDocumentBindings bindings;
  const FakeRepLifeCycle references;
  const VelIPLMDmtDocument_var hImage = FakeDocument::Create("image");
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
    EXPECT_EQ(Add(hSource_, startUp, startUp)->SetValue(hImage.Get()), S_OK);
    static_cast<void>(Add(hSource_, "none", startUp));
  }
  EXPECT_EQ(Copy(), S_OK);
  for (const VelIRshParameter_var& hParameter : ParametersOf(hCopy_)) {
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    EXPECT_TRUE(IsSameObject(hDocument.Get(), NameOfParameter(hParameter.Get()) == "none" ? nullptr : hImage.Get()));
  }
  EXPECT_EQ(references.Of(hImage.Get()).added, 4);
  EXPECT_EQ(references.calls, 4) << "nothing is written where there is no document";
}

TEST_F(VelRshShaderManagerCopyTest, APlainValueThatNobodySet_StopsThePassAndTheCopyIsHandedOut) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaColor", "VelRmaInteger", "VelRmaScalar", "VelRmaVector"}) {
    hSource_ = MakeShader();
    AddScalar(hSource_, "before", 1.0F);
    static_cast<void>(Add(hSource_, "stops", startUp));
    AddScalar(hSource_, "after", 2.0F);
    EXPECT_EQ(Copy(), E_FAIL) << startUp;
    ASSERT_TRUE(hCopy_) << startUp;
    EXPECT_EQ(ParameterNames(hCopy_), (Texts{"before", "stops"})) << startUp;
    EXPECT_EQ(ScalarOf(Find(hCopy_, "before")), 1.0F) << startUp;
  }
}

TEST_F(VelRshShaderManagerCopyTest, AValueThatCannotBeReadOrWritten_StopsThePassWithItsCode) {
  const struct {
    const char* startUp;
    HRESULT get;
    HRESULT set;
    HRESULT expected;
    Texts names;
  } cases[] = {{"VelRmaScalar", S_OK, S_OK, S_OK, {"odd", "after"}},
               {"VelRmaScalar", S_FALSE, S_FALSE, S_OK, {"odd", "after"}},
               {"VelRmaScalar", E_INVALIDARG, S_OK, E_INVALIDARG, {"odd"}},
               {"VelRmaScalar", S_OK, E_NOINTERFACE, E_NOINTERFACE, {"odd"}},
               {"VelRmaTexture", S_OK, S_OK, S_OK, {"odd", "after"}},
               {"VelRmaTexture", E_INVALIDARG, E_NOINTERFACE, S_OK, {"odd", "after"}},
               {"VelRmaTexture", S_OK, E_NOINTERFACE, E_NOINTERFACE, {"odd"}}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    static_cast<void>(Add(hSource_, "odd", row.startUp));
    static_cast<void>(Add(hSource_, "after", "VelRmaVoid"));
    Odd("odd").getCode = row.get;
    Odd("odd").setCode = row.set;
    Odd("odd").document = hSource_.Get();
    EXPECT_EQ(Copy(), row.expected) << row.startUp << row.get << ' ' << row.set;
    EXPECT_EQ(ParameterNames(hCopy_), row.names) << row.startUp << row.get << ' ' << row.set;
  }
}

TEST_F(VelRshShaderManagerCopyTest, ADocumentThatIsMissingOrUnreadable_IsNotWritten) {
  Odd("none").document = nullptr;
  Odd("unreadable").document = hSource_.Get();
  Odd("unreadable").getCode = E_FAIL;
  for (const char* name : {"none", "unreadable"}) static_cast<void>(Add(hSource_, name, "VelRmaTexture"));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(odd_->notes, (Texts{"get none", "get unreadable"}));
}

TEST_F(VelRshShaderManagerCopyTest, ANameOrTypeThatCannotBeRead_StopsThePass) {
  const struct {
    HRESULT name;
    HRESULT type;
  } cases[] = {{E_FAIL, S_OK}, {S_OK, E_INVALIDARG}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    Odd("odd") = {};
    static_cast<void>(Add(hSource_, "before", "VelRmaVoid"));
    static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
    static_cast<void>(Add(hSource_, "after", "VelRmaVoid"));
    Odd("odd").nameCode = row.name;
    if (FAILED(row.type)) Odd("odd").onGetType = [&](VelString&) { return row.type; };
    EXPECT_EQ(Copy(), E_UNEXPECTED);
    EXPECT_EQ(ParameterNames(hCopy_), Texts{"before"});
  }
}

TEST_F(VelRshShaderManagerCopyTest, AParameterThatCannotBeMade_IsSkippedAndTheCountsDiffer) {
  const VelIRshShader_var hNode = AddNode(hSource_);
  AddScalar(hSource_, "before", 1.0F);
  static_cast<void>(AddForeign());
  AddScalar(hSource_, "after", 2.0F);
  Connect("connected", hNode);
  EXPECT_EQ(Copy(), E_UNEXPECTED);
  EXPECT_EQ(ParameterNames(hCopy_), (Texts{"before", "after", "connected"}));
  EXPECT_EQ(ScalarOf(Find(hCopy_, "after")), 2.0F);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "connected")));
}

TEST_F(VelRshShaderManagerCopyTest, CountsThatDiffer_StopBeforeTheFirstConnection) {
  const VelIRshShader_var hNode = AddNode(hSource_);
  Connect("connected", hNode);
  static_cast<void>(AddForeign());
  EXPECT_EQ(Copy(), E_UNEXPECTED);
  EXPECT_EQ(ParameterNames(hCopy_), Texts{"connected"});
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "connected")));
}

TEST_F(VelRshShaderManagerCopyTest, NamesOrTypesThatDiffer_StopTheConnections) {
  const struct {
    const char* what;
    std::function<void(VelTestParameterScript&)> script;
  } cases[] = {{"name",
                [](VelTestParameterScript& ioScript) {
                  ioScript.onSetName = [](VelBaseUnknown* ioParameter) {
                    const VelISpecAttrAccess_var hAccess(ioParameter);
                    EXPECT_EQ(hAccess->SetText(Key("Name", VelSpecAttrKind::Text), "other"), S_OK);
                  };
                }},
               {"type",
                [](VelTestParameterScript& ioScript) {
                  ioScript.onGetType = [calls = 0](VelString& oType) mutable {
                    // Read for the value, then of both for the connection.
                    oType = ++calls == 3 ? "VelRmaInteger" : "VelRmaScalar";
                    return S_OK;
                  };
                }},
               {"name unreadable", [this](VelTestParameterScript& ioScript) {
                  ioScript.onSetName = [this](VelBaseUnknown*) { Odd("odd").nameCode = E_FAIL; };
                }}};
  static_cast<void>(Odd("odd"));
  for (const auto& row : cases) {
    hSource_ = MakeShader();
    Odd("odd") = {};
    const VelIRshShader_var hNode = AddNode(hSource_);
    Connect("before", hNode);
    static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
    Connect("after", hNode);
    row.script(Odd("odd"));
    EXPECT_EQ(Copy(), E_UNEXPECTED) << row.what;
    ASSERT_EQ(ParametersOf(hCopy_).size(), 3U) << row.what;
    EXPECT_TRUE(ConnectionOf(ParametersOf(hCopy_)[0])) << row.what;
    EXPECT_FALSE(ConnectionOf(ParametersOf(hCopy_)[2])) << row.what;
  }
}

TEST_F(VelRshShaderManagerCopyTest, AShadersOwnCopy_IsTheManagersAndTheCodeTellsNothing) {
  AddScalar(hSource_, "scalar", 1.0F);
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), hCopy_.Receive()), E_FAIL);
  ASSERT_TRUE(hCopy_);
  EXPECT_EQ(ScalarOf(Find(hCopy_, "scalar")), 1.0F);
  EXPECT_EQ(hTarget_->CountFeatures(), 2);
  VelIRshShader* copy = hSource_.Get();
  EXPECT_EQ(hSource_->CreateCopy(nullptr, &copy), E_FAIL);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(hTarget_->CountFeatures(), 2);
}

TEST_F(VelRshShaderManagerCopyTest, AShadersOwnCopy_KeepsWhatTheManagerHandedOutOnAFailure) {
  static_cast<void>(Add(hSource_, "never set", "VelRmaScalar"));
  EXPECT_EQ(hSource_->CreateCopy(hTarget_.Get(), hCopy_.Receive()), E_FAIL);
  ASSERT_TRUE(hCopy_);
  EXPECT_EQ(ParameterNames(hCopy_), Texts{"never set"});
}

TEST_F(VelRshShaderManagerCopyTest, TheCopy_IsHandedOutWithOneReference) {
  VelIRshShader* copy = nullptr;
  ASSERT_EQ(Manager().CreateShaderCopy(hTarget_, hSource_.Get(), &copy), S_OK);
  EXPECT_EQ(copy->AddRef(), 2U);
  EXPECT_EQ(copy->Release(), 1U);
  copy->Release();
}

}  // namespace
