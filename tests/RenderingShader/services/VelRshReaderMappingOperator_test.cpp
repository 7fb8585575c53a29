// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingOperator_test.cpp The operator that a tagged parameter holds, or 6.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOperator.h"

#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/services/MappingReaderTest.h"

namespace {

class VelRshReaderMappingOperatorTest : public MappingReaderTest {
 protected:
  std::int32_t Read() {
    const std::int32_t value = VelRshReaderMappingOperator()(*hShader_);
    EXPECT_EQ(Told("VelRshReaderMappingOperator"), Texts{});
    return value;
  }
};

TEST_F(VelRshReaderMappingOperatorTest, ShaderWithoutTheTag_HasSix) {
  EXPECT_EQ(Read(), 6);
  AddInteger("operator", 3);
  EXPECT_EQ(Read(), 6);
  Tag("operator", "mapping-behavior");
  EXPECT_EQ(Read(), 6);
}

TEST_F(VelRshReaderMappingOperatorTest, TaggedInteger_IsTheOperatorWhateverItsValue) {
  const VelIRshParameter_var hOperator = AddInteger("operator", 3);
  Tag("operator", "bump projector-function");
  for (const std::int32_t value : {3, 0, -1, 6, INT32_MAX, INT32_MIN}) {
    EXPECT_TRUE(SUCCEEDED(hOperator->SetValue(&value)));
    EXPECT_EQ(Read(), value);
  }
}

TEST_F(VelRshReaderMappingOperatorTest, FirstTaggedParameter_Decides) {
  AddInteger("before", 1);
  AddInteger("first", 2);
  AddInteger("second", 3);
  Tag("first", "projector-function");
  Tag("second", "projector-function");
  EXPECT_EQ(Read(), 2);
}

TEST_F(VelRshReaderMappingOperatorTest, TaggedParameterThatIsNoInteger_GivesSix) {
  AddScalar("scalar", 3.0F);
  AddInteger("second", 3);
  Tag("scalar", "projector-function");
  Tag("second", "projector-function");
  EXPECT_EQ(Read(), 6) << "although another one has a value";
}

TEST_F(VelRshReaderMappingOperatorTest, TaggedParameterWithoutAValue_GivesSixWhateverItsLayoutSays) {
  Add(hShader_, "operator", "VelRmaInteger");
  Tag("operator", "projector-function");
  EXPECT_EQ(Read(), 6);
  FakeParameterLayouts layouts;
  layouts.integer = 3;
  EXPECT_EQ(Read(), 6);
  EXPECT_EQ(layouts.layoutCalls, 0);
}

TEST_F(VelRshReaderMappingOperatorTest, ClosedShader_HasSix) {
  AddInteger("operator", 3);
  Tag("operator", "projector-function");
  EXPECT_EQ(LifeCycleObject_var(hShader_)->remove(), S_OK);
  EXPECT_EQ(Read(), 6);
}

}  // namespace
