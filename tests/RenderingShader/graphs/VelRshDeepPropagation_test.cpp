// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDeepPropagation_test.cpp A value that shaders hand down to the shaders connected below them: how deep it
/// goes, and that rings come to rest.
#include <vector>

#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/graphs/fixtures/DeliveryRecorder.h"

namespace {

/// How many shaders below the written one take a value over.
constexpr std::size_t depthLimit = 256;

/// Shaders that have an angle, which the shader below takes over, and a scalar beside it, connected to that shader.
class VelRshDeepPropagationTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    ASSERT_EQ(VelRbaConfiguration::SetValue("Nested", "angle.Tag", "angle"), S_OK);
  }
  void TearDown() override {
    Forget();
    RshModelTest::TearDown();
  }

  void MakeShaders(std::size_t iCount) {
    for (std::size_t i = 0; i < iCount; ++i) {
      shaders_.push_back(MakeShader("Nested"));
      angles_.push_back(Add(shaders_[i], "angle", "VelRmaScalar"));
    }
    for (std::size_t i = 0; i < iCount; ++i) connected_.push_back(Add(shaders_[i], "beside", "VelRmaScalar"));
  }

  void Forget() {
    shaders_.clear();
    angles_.clear();
    connected_.clear();
  }

  void Connect(std::size_t iFrom, std::size_t iTo) {
    ASSERT_EQ(connected_[iFrom]->SetConnection(shaders_[iTo].Get()), S_OK);
  }

  HRESULT Write(std::size_t iShader, float iValue) { return angles_[iShader]->SetValue(&iValue); }

  /// @return the number of shaders whose angle has a value
  std::size_t CountHaving(float iValue) {
    std::size_t count = 0;
    for (const VelIRshParameter_var& hAngle : angles_) {
      float value = -1.0F;
      if (hAngle->GetValue(&value) == S_OK && value == iValue) ++count;
    }
    return count;
  }

  std::vector<VelIRshShader_var> shaders_;
  std::vector<VelIRshParameter_var> angles_;
  std::vector<VelIRshParameter_var> connected_;
};

TEST_F(VelRshDeepPropagationTest, Chain_IsFollowedToItsEnd) {
  MakeShaders(depthLimit + 1);
  for (std::size_t i = 0; i < depthLimit; ++i) Connect(i, i + 1);
  DeliveryRecorder recorder;
  recorder.isCounting = true;
  EXPECT_EQ(Write(0, 0.5F), S_OK);
  EXPECT_EQ(CountHaving(0.5F), depthLimit + 1);
  EXPECT_EQ(recorder.deepest, static_cast<int>(4 * depthLimit + 1))
      << "each shader nests four deliveries; below the last one nobody is connected";
}

TEST_F(VelRshDeepPropagationTest, ChainThatIsTooLong_IsCutWithACheck) {
  MakeShaders(4 * depthLimit);
  for (std::size_t i = 0; i + 1 < shaders_.size(); ++i) Connect(i, i + 1);
  checks_.Clear();
  DeliveryRecorder recorder;
  recorder.isCounting = true;
  EXPECT_EQ(Write(0, 0.5F), S_OK);
  EXPECT_EQ(CountHaving(0.5F), depthLimit + 1) << "the written one and those below it";
  EXPECT_EQ(recorder.deepest, static_cast<int>(4 * depthLimit + 3)) << "the one below is still told";
  EXPECT_EQ(checks_.Messages(), Texts{"A value is not handed on to further shaders"});
  checks_.Clear();
}

TEST_F(VelRshDeepPropagationTest, Ring_ComesToRestWhereItBegan) {
  for (const std::size_t length : {std::size_t{1}, std::size_t{2}, std::size_t{3}, depthLimit}) {
    SCOPED_TRACE(length);
    MakeShaders(length);
    for (std::size_t i = 0; i < length; ++i) Connect(i, (i + 1) % length);
    checks_.Clear();
    EXPECT_EQ(Write(length / 2, 0.5F), S_OK);
    EXPECT_EQ(CountHaving(0.5F), length);
    EXPECT_EQ(checks_.Messages(), Texts{});
    Forget();
  }
}

}  // namespace
