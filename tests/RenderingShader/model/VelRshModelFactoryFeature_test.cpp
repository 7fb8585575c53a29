// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelFactoryFeature_test.cpp The factory of shaders and parameters: what it makes, what it tells, what
/// it leaves behind when it fails, and that it asks nothing of a new shader before its type is set.
#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"

#include <optional>

#include "platform/trace/VelTraceRecorder.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/model/fixtures/VelTestRecordingFeatures.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

using Texts = std::vector<std::string>;
constexpr const char* channel = "VelRshModelFactoryFeature";
constexpr const char* source = "RenderingShader/VelRshModel.m/src/VelRshModelFactoryFeature";

class VelRshModelFactoryFeatureTest : public FeatureModelerTest {
 protected:
  /// The container knows no catalog, so that each test also shows that the factory loads it.
  void SetUp() override {
    FeatureModelerTest::SetUp();
    hContainer_ = VelIContainer::Create();
    bindings_.emplace();
    VelTraceService::Reset();
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::AddSink(recorder_);
    VelTraceService::SetSwitches("VelRshModelFactoryFeature");
    factory_.emplace(*hContainer_);
  }
  void TearDown() override {
    factory_.reset();
    FeatureModelerTest::TearDown();
    bindings_.reset();
    VelTraceService::Reset();
  }

  static const Texts& Calls() { return VelTestRecording::Instance().calls; }

  /// What the factory told, each as "info: text" or "error 64: text".
  Texts Told() const {
    Texts told;
    for (const VelTraceRecorder::Entry& entry : recorder_.Entries()) {
      if (entry.channel != channel) continue;
      const bool isError = entry.kind == VelTraceKind::Error;
      if (isError) {
        EXPECT_EQ(entry.source, source);
      }
      told.push_back((isError ? "error " + std::to_string(entry.line) : std::string("info")) + ": " + entry.text);
    }
    return told;
  }

  /// The attribute access of the only feature of the container.
  VelISpecObject_var OnlyFeature() {
    VelListPtrVelBaseUnknown features;
    EXPECT_EQ(hContainer_->ListFeatures("", features), S_OK);
    EXPECT_EQ(features.Size(), 1);
    VelISpecObject_var hOnly;
    for (VelBaseUnknown* feature : features) {
      hOnly = VelISpecObject_var(feature);
      feature->Release();
    }
    return hOnly;
  }

  static bool HasFather(const VelISpecObject_var& iFeature) {
    VelISpecObject_var hFather;
    return SUCCEEDED(iFeature->GetFather(hFather.Receive()));
  }

  VelTraceRecorder recorder_;
  std::optional<VelTestRecordingBindings> bindings_;
  std::optional<VelRshModelFactoryFeature> factory_;
};

TEST_F(VelRshModelFactoryFeatureTest, CreateShader_MakesAShaderAndSetsItsType) {
  const VelIRshShader_var hShader = factory_->CreateShader("BasicMaterial");
  ASSERT_TRUE(hShader);
  const VelISpecObject_var hFeature = OnlyFeature();
  EXPECT_TRUE(hFeature->IsEqual(hShader.Get()));
  VelString type;
  EXPECT_EQ(hFeature->GetType(type), S_OK);
  EXPECT_EQ(type, "VelRmaShader");
  EXPECT_EQ(NameOf(hFeature.Get()), "") << "a shader is known by its type, not by a feature's name";
  EXPECT_FALSE(HasFather(hFeature));
  EXPECT_EQ(Told(), Texts{"info: Feature VelRmaShader instantiation"});
}

// Any other operation on a new shader makes its delegate, and the type is then refused.
TEST_F(VelRshModelFactoryFeatureTest, CreateShader_AsksNothingOfTheShaderButToSetItsType) {
  VelTraceService::SetSwitches("*=9");
  EXPECT_TRUE(factory_->CreateShader("BasicMaterial"));
  EXPECT_EQ(Calls(), Texts{"SetType BasicMaterial"});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShader_WithAnEmptyType_LeavesItToTheShader) {
  EXPECT_TRUE(factory_->CreateShader(""));
  EXPECT_EQ(Calls(), Texts{"SetType "});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShader_WhoseTypeCannotBeWritten_IsReturnedAllTheSame) {
  VelTestRecording::Instance().setType = E_FAIL;
  EXPECT_TRUE(factory_->CreateShader("BasicMaterial"));
  EXPECT_EQ(Told(), Texts{"info: Feature VelRmaShader instantiation"});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShader_WithoutACatalog_FailsAndTellsIt) {
  hContainer_ = VelIContainer::Create();
  VelCatalog::SetFolders({});
  factory_.emplace(*hContainer_);
  EXPECT_FALSE(factory_->CreateShader("BasicMaterial"));
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
  EXPECT_EQ(Told(), Texts{"error 64: Feature VelRmaShader instantiation"});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShader_OfAFeatureThatIsNoShader_TellsTheInstantiationAndLeavesIt) {
  bindings_.reset();
  EXPECT_FALSE(factory_->CreateShader("BasicMaterial"));
  EXPECT_FALSE(HasFather(OnlyFeature()));
  EXPECT_EQ(Told(), Texts{"info: Feature VelRmaShader instantiation"});
  bindings_.emplace();
}

class VelRshModelFactoryFeatureStartUpTest : public VelRshModelFactoryFeatureTest,
                                             public ::testing::WithParamInterface<const char*> {};

TEST_P(VelRshModelFactoryFeatureStartUpTest, CreateShaderParameter_MakesAParameterOfTheStartUpAndNamesIt) {
  const VelIRshParameter_var hParameter = factory_->CreateShaderParameter("base_color", GetParam());
  ASSERT_TRUE(hParameter);
  const VelISpecObject_var hFeature = OnlyFeature();
  EXPECT_TRUE(hFeature->IsEqual(hParameter.Get()));
  VelString type;
  EXPECT_EQ(hFeature->GetType(type), S_OK);
  EXPECT_EQ(type, GetParam());
  EXPECT_EQ(NameOf(hFeature.Get()), "");
  EXPECT_FALSE(HasFather(hFeature));
  EXPECT_EQ(Calls(), Texts{"SetName base_color"});
  EXPECT_EQ(Told(), Texts{std::string("info: Feature ") + GetParam() + " instantiation { name = base_color }"});
}

INSTANTIATE_TEST_SUITE_P(TypedStartUps, VelRshModelFactoryFeatureStartUpTest,
                         ::testing::Values("VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor",
                                           "VelRmaMatrix", "VelRmaVector", "VelRmaString", "VelRmaTexture",
                                           "VelRmaLightProfile", "VelRmaVoid"),
                         [](const auto& iCase) { return std::string(iCase.param); });

TEST_F(VelRshModelFactoryFeatureTest, CreateShaderParameter_OfAnUnknownStartUp_FailsAndNamesIt) {
  EXPECT_FALSE(factory_->CreateShaderParameter("base_color", "VelRmaNothing"));
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
  EXPECT_EQ(Told(), Texts{"error 107: Feature VelRmaNothing instantiation { name = base_color }"});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShaderParameter_OfTheShadersStartUp_FailsWithOneErrorAndLeavesTheShader) {
  EXPECT_FALSE(factory_->CreateShaderParameter("base_color", "VelRmaShader"));
  EXPECT_FALSE(HasFather(OnlyFeature()));
  EXPECT_EQ(Calls(), Texts{});
  EXPECT_EQ(Told(), Texts{"error 107: Feature VelRmaShader instantiation { name = base_color }"});
}

TEST_F(VelRshModelFactoryFeatureTest, CreateShaderParameter_WhoseNameCannotBeWritten_FailsAndLeavesTheFeature) {
  VelTestRecording::Instance().setName = E_FAIL;
  EXPECT_FALSE(factory_->CreateShaderParameter("base_color", "VelRmaColor"));
  EXPECT_FALSE(HasFather(OnlyFeature()));
  EXPECT_EQ(Told(), Texts{"error 102: Feature VelRmaColor instantiation { name = base_color }"});
}

TEST_F(VelRshModelFactoryFeatureTest, Factory_MayBeCalledAnyNumberOfTimes) {
  const VelRshModelFactoryFeature& factory = *factory_;
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(factory.CreateShader("BasicMaterial"));
    EXPECT_TRUE(factory.CreateShaderParameter("roughness", "VelRmaScalar"));
  }
  EXPECT_EQ(hContainer_->CountFeatures(), 6);
}

class VelRshModelFactoryFeatureSilenceTest : public VelRshModelFactoryFeatureTest,
                                             public ::testing::WithParamInterface<bool> {};

TEST_P(VelRshModelFactoryFeatureSilenceTest, WithoutTraces_TheResultsAreTheSame) {
  VelTraceService::SetSwitches("*=off");
  if (GetParam()) {
    factory_.reset();
    VelTraceService::SetAvailable(false);
    factory_.emplace(*hContainer_);
  }
  EXPECT_TRUE(factory_->CreateShader("BasicMaterial"));
  EXPECT_TRUE(factory_->CreateShaderParameter("roughness", "VelRmaScalar"));
  EXPECT_FALSE(factory_->CreateShaderParameter("roughness", "VelRmaNothing"));
  VelTestRecording::Instance().setName = E_FAIL;
  EXPECT_FALSE(factory_->CreateShaderParameter("roughness", "VelRmaScalar"));
  VelCatalog::SetFolders({});
  const VelIContainer_var hOther = VelIContainer::Create();
  EXPECT_FALSE(VelRshModelFactoryFeature(*hOther).CreateShader("BasicMaterial"));
  EXPECT_EQ(Told(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Silences, VelRshModelFactoryFeatureSilenceTest, ::testing::Bool(),
                         [](const auto& iCase) { return iCase.param ? "OutOfService" : "SwitchedOff"; });

}  // namespace
