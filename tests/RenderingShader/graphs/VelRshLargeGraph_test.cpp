// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshLargeGraph_test.cpp Long chains, deep nesting and cycles, built as a load does: what is built when one
/// object is touched, and that neither building, events nor the end recur with the size of the graph.
#include <vector>

#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/graphs/fixtures/DeliveryRecorder.h"

namespace {

constexpr std::size_t chainLength = 100000;
constexpr std::size_t nestingDepth = 10000;

/// Shaders "s" of which each has one scalar parameter "p".
class VelRshLargeGraphTest : public RshModelTest {
 protected:
  void TearDown() override {
    shaders_.clear();
    scalars_.clear();
    RshModelTest::TearDown();
  }

  /// Makes features only: nothing is asked of them.
  void MakeShaders(std::size_t iCount) {
    for (std::size_t i = 0; i < iCount; ++i) {
      shaders_.push_back(Make("VelRmaShader", "s"));
      scalars_.push_back(Make("VelRmaScalar", "p"));
      ASSERT_EQ(Access(scalars_[i])->SetText(Key("Name", VelSpecAttrKind::Text), "p"), S_OK);
      ASSERT_EQ(Access(shaders_[i])->AppendComponent(parameters_, scalars_[i].Get()), S_OK);
    }
  }

  void Connect(std::size_t iFrom, std::size_t iTo) {
    ASSERT_EQ(Access(scalars_[iFrom])->SetReference(node_, shaders_[iTo].Get()), S_OK);
  }

  /// Each parameter connected to the next shader; the last one to the first where that is wanted.
  void ConnectToChain(bool iIsRing) {
    for (std::size_t i = 0; i + 1 < shaders_.size(); ++i) Connect(i, i + 1);
    if (iIsRing) Connect(shaders_.size() - 1, 0);
  }

  /// Each shader a node of the one before; from the innermost outwards, so that none has to look far up.
  void Nest() {
    for (std::size_t i = shaders_.size() - 1; i > 0; --i) {
      ASSERT_EQ(Access(shaders_[i - 1])->AppendComponent(nodes_, shaders_[i].Get()), S_OK);
    }
  }

  static int BuiltImplementations() { return VelInstanceCounts::Now().implementations; }

  HRESULT Write(std::size_t iParameter, float iValue) {
    return VelIRshParameter_var(scalars_[iParameter])->SetValue(&iValue);
  }

  std::vector<VelISpecObject_var> shaders_;
  std::vector<VelISpecObject_var> scalars_;
};

TEST_F(VelRshLargeGraphTest, ChainTouchedAtItsEnd_BuildsTheEndAlone) {
  MakeShaders(chainLength);
  ConnectToChain(false);
  EXPECT_EQ(BuiltImplementations(), 0);
  EXPECT_TRUE(VelIRshShader_var(shaders_.back()));
  EXPECT_EQ(BuiltImplementations(), 2) << "the shader and its parameter";
  EXPECT_EQ(Write(chainLength - 1, 0.5F), S_OK);
  EXPECT_EQ(BuiltImplementations(), 3) << "and the model events of the parameter, which tell the host";
}

TEST_F(VelRshLargeGraphTest, ChainTouchedAtItsStart_IsBuiltToItsEnd) {
  MakeShaders(chainLength);
  ConnectToChain(false);
  EXPECT_TRUE(VelIRshParameter_var(scalars_.front()));
  EXPECT_EQ(BuiltImplementations(), static_cast<int>(2 * chainLength));
  DeliveryRecorder recorder;
  EXPECT_EQ(Write(0, 0.5F), S_OK);
  EXPECT_EQ(recorder.count, 2) << "its shader, and from there the parameter itself: nothing is beside it";
  EXPECT_EQ(Write(chainLength - 1, 0.5F), S_OK);
  EXPECT_EQ(recorder.count, 5) << "the parameter that is connected to the last shader hears it too";
}

TEST_F(VelRshLargeGraphTest, RingTouchedAnywhere_IsBuiltAsAWhole) {
  MakeShaders(chainLength);
  ConnectToChain(true);
  EXPECT_TRUE(VelIRshShader_var(shaders_[chainLength / 2]));
  EXPECT_EQ(BuiltImplementations(), static_cast<int>(2 * chainLength));
  EXPECT_EQ(Write(0, 0.5F), S_OK);
}

TEST_F(VelRshLargeGraphTest, ShaderToWhichAllAreConnected_IsBuiltAndTellsAllOfThem) {
  constexpr std::size_t count = 2000;
  MakeShaders(count + 1);
  for (std::size_t i = 0; i < count; ++i) Connect(i, count);
  EXPECT_TRUE(VelIRshShader_var(shaders_.back()));
  EXPECT_EQ(BuiltImplementations(), 2) << "who is connected to it has not been touched";
  for (std::size_t i = 0; i < count; ++i) ASSERT_TRUE(VelIRshParameter_var(scalars_[i]));
  DeliveryRecorder recorder;
  recorder.isCounting = true;
  EXPECT_EQ(Write(count, 0.5F), S_OK);
  EXPECT_EQ(recorder.count, static_cast<int>(count) + 2);
  EXPECT_EQ(recorder.deepest, 1);
}

TEST_F(VelRshLargeGraphTest, InnermostOfDeepNesting_BuildsAllAboveIt) {
  MakeShaders(nestingDepth);
  Nest();
  EXPECT_TRUE(VelIRshParameter_var(scalars_.back()));
  EXPECT_EQ(BuiltImplementations(), static_cast<int>(2 * nestingDepth));
  EXPECT_EQ(Write(nestingDepth - 1, 0.5F), S_OK);
}

TEST_F(VelRshLargeGraphTest, OutermostOfDeepNesting_BuildsNothingBelow) {
  MakeShaders(nestingDepth);
  Nest();
  EXPECT_TRUE(VelIRshShader_var(shaders_.front()));
  EXPECT_EQ(BuiltImplementations(), 2);
}

TEST_F(VelRshLargeGraphTest, DeepNestingWithConnections_IsRemovedAsAWhole) {
  MakeShaders(nestingDepth);
  Nest();
  ConnectToChain(true);
  EXPECT_TRUE(VelIRshShader_var(shaders_.front()));
  EXPECT_EQ(BuiltImplementations(), static_cast<int>(2 * nestingDepth));
  EXPECT_EQ(LifeCycleObject_var(shaders_.front())->remove(), S_OK);
  EXPECT_EQ(BuiltImplementations(), 0);
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
}

TEST_F(VelRshLargeGraphTest, DeepNestingWithConnections_IsCopied) {
  MakeShaders(nestingDepth);
  Nest();
  ConnectToChain(true);
  VelBaseUnknown_var hCopy;
  ASSERT_EQ(shaders_.front()->InstanciateForCopy("copy", nullptr, VelIRshShader::InterfaceId(), hCopy.Receive()), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), static_cast<int>(4 * nestingDepth));
}

/// What a write sets off does not go further than to the parameters of the shader right below, however deep the graph.
TEST_F(VelRshLargeGraphTest, WriteOnManyNestedShaders_NestsNoDeeperThanOnTwo) {
  struct Case {
    std::size_t nested;
    std::size_t written;
  };
  const Case cases[] = {{2, 0}, {2, 1}, {300, 0}, {300, 150}, {300, 299}, {nestingDepth, 0}};
  for (const Case& each : cases) {
    SCOPED_TRACE(std::to_string(each.nested) + " shaders, written at " + std::to_string(each.written));
    MakeShaders(each.nested);
    // A second parameter beside the connected one, so that what is written is forwarded.
    const VelISpecObject_var hBeside = Make("VelRmaScalar", "beside");
    ASSERT_EQ(Access(shaders_[each.written])->AppendComponent(parameters_, hBeside.Get()), S_OK);
    Nest();
    ConnectToChain(false);
    ASSERT_TRUE(VelIRshShader_var(shaders_.front()));
    DeliveryRecorder recorder;
    recorder.isCounting = true;
    const float value = 0.5F;
    EXPECT_EQ(VelIRshParameter_var(hBeside)->SetValue(&value), S_OK);
    EXPECT_LE(recorder.deepest, 3) << "own shader, connected parameter, shader below, its parameters";
    EXPECT_LE(recorder.count, 6);
    shaders_.clear();
    scalars_.clear();
  }
}

}  // namespace
