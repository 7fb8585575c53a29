// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingFlip_test.cpp Which parameters mirror a texture.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingFlip.h"

#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/services/MappingReaderTest.h"

namespace {

constexpr const char* channel = "VelRshReaderMappingFlip";

class VelRshReaderMappingFlipTest : public MappingReaderTest {
 protected:
  VelRshMappingPair Read(const char* iNames) {
    Configure("MappingFlip.ParameterValue", iNames);
    traces_.Clear();
    return VelRshReaderMappingFlip()(*hShader_, {0.25, -3.0});
  }
};

TEST_F(VelRshReaderMappingFlipTest, OneTrueParameter_MirrorsBothComponents) {
  AddBoolean("flip", true);
  EXPECT_EQ(Read("flip"), VelRshMappingPair(-1.0, -1.0));
  EXPECT_EQ(Told(channel), (Texts{"I First parameter found { name = flip }", "I Second parameter found { name = flip }",
                                  "I Mapping Flip read as ( -1.000, -1.000 )"}));
}

TEST_F(VelRshReaderMappingFlipTest, EachParameter_MirrorsItsComponent) {
  AddBoolean("on", true);
  AddBoolean("off", false);
  EXPECT_EQ(Read("off on"), VelRshMappingPair(1.0, -1.0));
  EXPECT_EQ(Read("on off"), VelRshMappingPair(-1.0, 1.0));
  EXPECT_EQ(Read("off"), VelRshMappingPair(1.0, 1.0));
  EXPECT_EQ(Read("on"), VelRshMappingPair(-1.0, -1.0));
}

TEST_F(VelRshReaderMappingFlipTest, ParameterWithoutAValue_MirrorsAsItsLayoutSays) {
  Add(hShader_, "unvaluated", "VelRmaBoolean");
  EXPECT_EQ(Read("unvaluated"), VelRshMappingPair(1.0, 1.0));
  FakeParameterLayouts layouts;
  layouts.boolean = true;
  EXPECT_EQ(Read("unvaluated"), VelRshMappingPair(-1.0, -1.0));
}

TEST_F(VelRshReaderMappingFlipTest, ParametersOfOtherTypes_MirrorNothing) {
  AddBoolean("on", true);
  for (const char* startUp : {"VelRmaVoid", "VelRmaColor", "VelRmaScalar", "VelRmaInteger", "VelRmaString",
                              "VelRmaVector", "VelRmaTexture", "VelRmaMatrix", "VelRmaLightProfile"}) {
    SCOPED_TRACE(startUp);
    Add(hShader_, startUp, startUp);
    const std::string name = startUp;
    EXPECT_EQ(Read((name + " on").c_str()), VelRshMappingPair(1.0, -1.0));
    EXPECT_EQ(Told(channel),
              (Texts{"I First parameter found { name = " + name + " }", "I Second parameter found { name = on }",
                     "E Non-compatible parameter type for flip", "I Mapping Flip read as ( 1.000, -1.000 )"}));
  }
}

TEST_F(VelRshReaderMappingFlipTest, EachComponentOfAnotherType_IsTold) {
  AddScalar("scalar", -1.0F);
  EXPECT_EQ(Read("scalar"), VelRshMappingPair(1.0, 1.0));
  EXPECT_EQ(Told(channel),
            (Texts{"I First parameter found { name = scalar }", "I Second parameter found { name = scalar }",
                   "E Non-compatible parameter type for flip", "E Non-compatible parameter type for flip",
                   "I Mapping Flip read as ( 1.000, 1.000 )"}));
}

}  // namespace
