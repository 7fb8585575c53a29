// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter_Values_test.cpp Edited values, and how far they are carried.
#include <limits>
#include <memory>

#include "platform/base/VelEditScope.h"
#include "tests/RenderingShader/bindings/FatalErrorRecorder.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"
#include "tests/RenderingShader/updates/TranslatorTest.h"

namespace {

template <class Row>
class VelRshTranslatorValuesTest : public TranslatorTest {};

using Rows = ::testing::Types<SentBoolean, SentIntegral, SentFloat, SentColor, SentString>;
TYPED_TEST_SUITE(VelRshTranslatorValuesTest, Rows);

TYPED_TEST(VelRshTranslatorValuesTest, ValueOnTheRoot_IsWrittenAndReachesTheConnectedShaders) {
  const auto hEdited = this->template AddBefore<TypeParam>(this->hRoot_, "p");
  const auto hFirst = this->template AddBefore<TypeParam>(this->Connect("one"), "p");
  const auto hOther = this->template AddBefore<TypeParam>(this->Connect("other"), "q");
  this->Add(this->hRoot_, "unconnected", "VelRmaColor");
  const VelIRshShader_var hTwice = this->Connect("two");
  const auto hSecond = this->template AddBefore<TypeParam>(hTwice, "p");
  const auto hNamesake = this->template AddBefore<TypeParam>(hTwice, "p");
  EXPECT_TRUE(this->template Send<TypeParam>(hEdited));
  EXPECT_EQ(TypeParam::Read(hEdited), TypeParam::After());
  EXPECT_EQ(TypeParam::Read(hFirst), TypeParam::After());
  EXPECT_EQ(TypeParam::Read(hSecond), TypeParam::After());
  EXPECT_EQ(TypeParam::Read(hNamesake), TypeParam::Before());
  EXPECT_EQ(TypeParam::Read(hOther), TypeParam::Before());
}

TYPED_TEST(VelRshTranslatorValuesTest, EqualValues_AreHandledAndChangeNothing) {
  const auto hEdited = this->template AddBefore<TypeParam>(this->hRoot_, "p");
  const auto hBelow = this->template AddBefore<TypeParam>(this->Connect("one"), "p");
  EXPECT_TRUE(this->template Send<TypeParam>(hEdited.Get(), TypeParam::After(), TypeParam::After()));
  EXPECT_EQ(TypeParam::Read(hEdited), TypeParam::Before());
  EXPECT_EQ(TypeParam::Read(hBelow), TypeParam::Before());
  const VelIRshParameter_var hAlone(this->Make(TypeParam::startUp));
  EXPECT_TRUE(this->template Send<TypeParam>(hAlone.Get(), TypeParam::After(), TypeParam::After()))
      << "the root is not even looked for";
}

TYPED_TEST(VelRshTranslatorValuesTest, WhatIsNoParameter_IsNotHandled) {
  EXPECT_FALSE(this->template Send<TypeParam>(nullptr, TypeParam::Before(), TypeParam::After()));
  EXPECT_FALSE(this->template Send<TypeParam>(this->hRoot_.Get(), TypeParam::Before(), TypeParam::After()));
  EXPECT_FALSE(this->template Send<TypeParam>(this->hRoot_.Get(), TypeParam::After(), TypeParam::After()))
      << "equal values or not";
}

TYPED_TEST(VelRshTranslatorValuesTest, ParameterOfAnotherType_IsNotWritten) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
                              "VelRmaMatrix", "VelRmaString", "VelRmaTexture", "VelRmaVoid", "VelRmaLightProfile"}) {
    if (std::string(startUp) == TypeParam::startUp) continue;
    SCOPED_TRACE(startUp);
    const VelIRshParameter_var hParameter = this->Add(this->hRoot_, "p", startUp);
    EXPECT_FALSE(this->template Send<TypeParam>(hParameter));
  }
}

TYPED_TEST(VelRshTranslatorValuesTest, ParameterWithoutAShader_IsWrittenAndNotHandled) {
  const VelIRshParameter_var hAlone(this->Make(TypeParam::startUp));
  EXPECT_FALSE(this->template Send<TypeParam>(hAlone));
  EXPECT_EQ(TypeParam::Read(hAlone), TypeParam::After());
}

TYPED_TEST(VelRshTranslatorValuesTest, ValueBelowARoot_GoesNoFurtherUnlessTheRootHasDerivedParameters) {
  struct Case {
    const char* type;
    bool isCarried;
  };
  for (const Case& test : {Case{"Top", false}, Case{"MPM", true}, Case{"MPM_metal", true}, Case{"MP", false},
                           Case{"mpm", false}, Case{"aMPM", false}, Case{"", false}}) {
    SCOPED_TRACE(test.type);
    this->MakeRoot(test.type);
    const auto hOnRoot = this->template AddBefore<TypeParam>(this->hRoot_, "p");
    const VelIRshShader_var hSub = this->Connect("one");
    const auto hEdited = this->template AddBefore<TypeParam>(hSub, "p");
    const auto hNamesake = this->template AddBefore<TypeParam>(hSub, "p");
    const auto hBeside = this->template AddBefore<TypeParam>(this->Connect("two"), "p");
    EXPECT_TRUE(this->template Send<TypeParam>(hNamesake));
    EXPECT_EQ(TypeParam::Read(hNamesake), TypeParam::After());
    EXPECT_EQ(TypeParam::Read(hBeside), test.isCarried ? TypeParam::After() : TypeParam::Before());
    EXPECT_EQ(TypeParam::Read(hEdited), TypeParam::Before()) << "its own shader is passed over";
    EXPECT_EQ(TypeParam::Read(hOnRoot), TypeParam::Before());
  }
}

TYPED_TEST(VelRshTranslatorValuesTest, CopyThatFails_StopsTheWalk) {
  for (const char* type : {"Top", "MPM"}) {
    this->MakeRoot(type);
    const auto hEdited = this->template AddBefore<TypeParam>(this->hRoot_, "p");
    const auto hFirst = this->template AddBefore<TypeParam>(this->Connect("one"), "p");
    this->Add(this->Connect("two"), "p", "VelRmaVector");
    const auto hLast = this->template AddBefore<TypeParam>(this->Connect("three"), "p");
    EXPECT_FALSE(this->template Send<TypeParam>(hEdited));
    EXPECT_EQ(TypeParam::Read(hEdited), TypeParam::After());
    EXPECT_EQ(TypeParam::Read(hFirst), TypeParam::After()) << "it keeps its new value";
    EXPECT_EQ(TypeParam::Read(hLast), TypeParam::Before());
  }
}

TYPED_TEST(VelRshTranslatorValuesTest, ShaderConnectedToItself_IsPassedOver) {
  const auto hEdited = this->template AddBefore<TypeParam>(this->hRoot_, "q");
  const auto hFirst = this->template AddBefore<TypeParam>(this->hRoot_, "p");
  const auto hNamesake = this->template AddBefore<TypeParam>(this->hRoot_, "p");
  ASSERT_EQ(hEdited->SetConnection(this->hRoot_.Get()), S_OK);
  EXPECT_TRUE(this->template Send<TypeParam>(hNamesake));
  EXPECT_EQ(TypeParam::Read(hFirst), TypeParam::Before());
}

class VelRshTranslatorParameterTest : public TranslatorTest {
 protected:
  bool SendFloat(const VelIRshParameter_var& iParameter, double iPrevious, double iNext) const {
    return Send<SentFloat>(iParameter.Get(), iPrevious, iNext);
  }
};

TEST_F(VelRshTranslatorParameterTest, Floats_AreComparedAsTheyWereSentAndNarrowed) {
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "p", 5.0F);
  EXPECT_TRUE(SendFloat(hScalar, 0.1, 0.1 + 1e-12));
  EXPECT_EQ(ScalarOf(hScalar), 0.1F) << "two doubles of one float are two values";
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(SendFloat(hScalar, nan, nan));
  EXPECT_NE(ScalarOf(hScalar), 0.1F) << "no number is equal to it";
  EXPECT_TRUE(SendFloat(hScalar, 1.0, 1e300));
  EXPECT_EQ(ScalarOf(hScalar), std::numeric_limits<float>::infinity());
}

TEST_F(VelRshTranslatorParameterTest, ValueThatTheParameterHasAlready_IsCarriedAllTheSame) {
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "p", 2.0F);
  const VelIRshParameter_var hBelow = AddScalar(Connect("one"), "p", 1.0F);
  EXPECT_TRUE(SendFloat(hScalar, 1.0, 2.0));
  EXPECT_EQ(ScalarOf(hBelow), 2.0F);
}

TEST_F(VelRshTranslatorParameterTest, BumpLevel_ReachesTheBumpsOfADerivingRootAlone) {
  for (const char* type : {"MPM_metal", "Top"}) {
    SCOPED_TRACE(type);
    const bool derives = type[0] == 'M';
    MakeRoot(type);
    const VelIRshParameter_var hLevel = AddScalar(hRoot_, "default_sp_bump", 1.0F);
    const VelIRshShader_var hSub = Connect("one");
    const VelIRshParameter_var hBump = AddScalar(hSub, "bump", 1.0F);
    const VelIRshParameter_var hSameName = AddScalar(hSub, "default_sp_bump", 1.0F);
    EXPECT_TRUE(SendFloat(hLevel, 1.0, 2.0));
    EXPECT_EQ(ScalarOf(hBump), derives ? 2.0F : 1.0F);
    EXPECT_EQ(ScalarOf(hSameName), derives ? 1.0F : 2.0F);
  }
}

TEST_F(VelRshTranslatorParameterTest, BumpLevelOfAnyType_ReachesTheBumps) {
  MakeRoot("MPM");
  const VelIRshParameter_var hLevel = AddInteger(hRoot_, "default_sp_bump", 3);
  const VelIRshParameter_var hBump = AddInteger(Connect("one"), "bump", 1);
  EXPECT_TRUE(Send<SentIntegral>(hLevel.Get(), 3, 4));
  EXPECT_EQ(IntegerOf(hBump), 4);
}

TEST_F(VelRshTranslatorParameterTest, RootWithoutAMaterial_IsTheTopmostShader) {
  const VelIRshShader_var hTop = MakeShader("Free");
  const VelIRshShader_var hNode = AddNode(hTop, "Sub");
  ASSERT_EQ(Add(hTop, "link", "VelRmaColor")->SetConnection(hNode.Get()), S_OK);
  const VelIRshParameter_var hEdited = AddScalar(hTop, "p", 1.0F);
  const VelIRshParameter_var hBelow = AddScalar(hNode, "p", 1.0F);
  EXPECT_TRUE(SendFloat(hEdited, 1.0, 2.0));
  EXPECT_EQ(ScalarOf(hBelow), 2.0F);
}

TEST_F(VelRshTranslatorParameterTest, MaterialThatCarriesNoShader_LeavesNoRoot) {
  const VelIRshParameter_var hEdited = AddScalar(hRoot_, "p", 1.0F);
  Material().getShaderCode = E_FAIL;
  EXPECT_FALSE(SendFloat(hEdited, 1.0, 2.0));
  EXPECT_EQ(ScalarOf(hEdited), 2.0F);
}

TEST_F(VelRshTranslatorParameterTest, ParameterWithoutAName_IsWrittenAndNotCarried) {
  for (const char* type : {"Top", "MPM"}) {
    MakeRoot(type);
    const VelIRshParameter_var hNameless(Make("VelRmaScalar"));
    ASSERT_EQ(hRoot_->AppendParameter(hNameless.Get()), S_OK);
    EXPECT_FALSE(SendFloat(hNameless, 1.0, 2.0));
    EXPECT_EQ(ScalarOf(hNameless), 2.0F);
  }
}

TEST_F(VelRshTranslatorParameterTest, RootWhoseTypeCannotBeRead_IsNotHandled) {
  VelTestListingShaders shaders;
  const VelISpecObject_var hBox = VelTestListingShaders::CreateBox(*hContainer_);
  ASSERT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hBox.Get()), S_OK);
  const VelIRshParameter_var hEdited(Make("VelRmaScalar"));
  ASSERT_EQ(hEdited->SetName("p"), S_OK);
  VelTestListingShaders::Put(hBox, hEdited.Get());
  shaders.type.code = E_FAIL;
  const FatalErrorRecorder fatal;
  EXPECT_FALSE(SendFloat(hEdited, 1.0, 2.0));
  EXPECT_EQ(fatal.Messages(), Texts{}) << "its parameters are not looked at";
  shaders.type.code = S_OK;
  shaders.listCode = E_FAIL;
  EXPECT_TRUE(SendFloat(hEdited, 2.0, 3.0)) << "nor when there are none to look at";
}

TEST_F(VelRshTranslatorParameterTest, RootWithWhatIsNoParameter_EndsTheProcess) {
  for (const char* type : {"VelTestBox", "MPM"}) {
    VelTestListingShaders shaders;
    shaders.type.value = type;
    const VelISpecObject_var hBox = VelTestListingShaders::CreateBox(*hContainer_);
    ASSERT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hBox.Get()), S_OK);
    const VelIRshParameter_var hEdited(Make("VelRmaScalar"));
    ASSERT_EQ(hEdited->SetName("p"), S_OK);
    VelTestListingShaders::Put(hBox, hEdited.Get());
    const FatalErrorRecorder fatal;
    SendFloat(hEdited, 1.0, 2.0);
    EXPECT_EQ(fatal.Messages(), Texts{"parameter is not a VelIRshParameter"});
    EXPECT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(nullptr), S_OK);
  }
}

TEST_F(VelRshTranslatorParameterTest, Copies_WorkOnWhenTheOriginalIsGone) {
  auto original = std::make_unique<VelRshTranslatorParameter>();
  const VelRshTranslatorParameter copy(*original);
  VelRshTranslatorParameter assigned;
  assigned = *original;
  const VelRshTranslatorParameter& itself = assigned;
  assigned = itself;
  original.reset();
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "p", 1.0F);
  float value = 2.0F;
  for (const VelRshTranslatorParameter* translator :
       {&copy, static_cast<const VelRshTranslatorParameter*>(&assigned)}) {
    const VelRbaFloatShaderModifyNotification notification("p", hScalar.Get(), VelIRshParameter::InterfaceId(), 0.0,
                                                           static_cast<double>(value));
    EXPECT_TRUE((*translator)(notification));
    EXPECT_EQ(ScalarOf(hScalar), value);
    value += 1.0F;
  }
}

/// Counts the ends of outermost scopes.
class ScopeCounter final : public VelEditScopeListener {
 public:
  ScopeCounter() { VelEditScope::AddListener(*this); }
  ~ScopeCounter() { VelEditScope::RemoveListener(*this); }
  ScopeCounter(const ScopeCounter&) = delete;
  ScopeCounter& operator=(const ScopeCounter&) = delete;

  void OnEditsEnded() override { ++ends; }

  int ends = 0;
};

TEST_F(VelRshTranslatorParameterTest, EachCall_IsOneScopeOfEdits) {
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "p", 1.0F);
  const ScopeCounter counter;
  EXPECT_TRUE(SendFloat(hScalar, 1.0, 2.0));
  EXPECT_EQ(counter.ends, 1);
  EXPECT_FALSE(Send<SentBoolean>(hScalar));
  EXPECT_EQ(counter.ends, 2) << "also where nothing is done";
  {
    const VelEditScope outer;
    EXPECT_TRUE(SendFloat(hScalar, 2.0, 3.0));
    EXPECT_EQ(counter.ends, 2);
  }
  EXPECT_EQ(counter.ends, 3);
  EXPECT_EQ(VelEditScope::Depth(), 0);
}

}  // namespace
