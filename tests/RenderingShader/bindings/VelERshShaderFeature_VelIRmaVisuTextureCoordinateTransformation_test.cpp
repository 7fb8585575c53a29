// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation_test.cpp What a viewer gets of a shader's
/// texture mapping, to the last bit.
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "platform/base/VelVisibility.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/services/MappingReaderTest.h"

// What the component exports for the dictionary.
extern "C" VEL_EXPORT VelImplementation* CreateExtensionVelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation(
    VelComponent& ioComponent);
extern "C" VEL_EXPORT VelBaseUnknown*
CreateTIEVelIRmaVisuTextureCoordinateTransformationVelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation(
    void* iBlock, VelImplementation& iImpl, VelComponent& ioComponent, bool iOwns);

namespace {

using Transformation_var = VelIRmaVisuTextureCoordinateTransformation_var;
using Transformation = VelIRmaVisuTextureCoordinateTransformation;

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr std::uint32_t untouched = 4711;

/// An operation that answers the number of a tagged parameter.
struct NumberCase {
  const char* name;
  HRESULT (Transformation::*read)(std::uint32_t& oNumber);
  const char* tag;
  const char* otherTag;
  std::uint32_t unvaluated;
  std::uint32_t of3;  ///< What a stored 3 reads as.
};

const NumberCase numbers[] = {
    {"MappingBehavior", &Transformation::GetMappingBehavior, "mapping-behavior", "projector-function", 1, 3},
    {"ProjectorFunction", &Transformation::GetProjectorFunction, "projector-function", "mapping-behavior", 0, 3},
};

class TextureCoordinateTransformationTest : public MappingReaderTest {
 protected:
  std::uint32_t Number(HRESULT (Transformation::*iRead)(std::uint32_t&)) {
    std::uint32_t number = untouched;
    EXPECT_EQ(((*Transformation_var(hShader_)).*iRead)(number), S_OK);
    return number;
  }

  Vel3x3Matrix Matrix() {
    Vel3x3Matrix matrix({9.0F, 9.0F, 9.0F, 9.0F}, {9.0F, 9.0F});
    EXPECT_EQ(Transformation_var(hShader_)->GetTransformation(matrix), S_OK);
    return matrix;
  }

  bool HasImage() {
    bool hasImage = false;
    EXPECT_EQ(Transformation_var(hShader_)->HasResourceImage(hasImage), S_OK);
    bool again = true;
    EXPECT_EQ(Transformation_var(hShader_)->HasResourceImage(again), S_OK);
    EXPECT_EQ(hasImage, again);
    return hasImage;
  }

  static void ConfigureMapping(const char* iFlip, const char* iScale, const char* iRatio, const char* iOffset,
                               const char* iRotation) {
    Configure("MappingFlip.DefaultValue", iFlip);
    Configure("MappingScale.DefaultValue", iScale);
    Configure("MappingRatio.DefaultValue", iRatio);
    Configure("MappingOffset.DefaultValue", iOffset);
    Configure("MappingRotation.DefaultValue", iRotation);
  }

  static void ExpectAllToAnswer(Transformation& ioTransformation, HRESULT iCode) {
    std::uint32_t number = untouched;
    Vel3x3Matrix matrix({9.0F, 8.0F, 7.0F, 6.0F}, {5.0F, 4.0F});
    const Vel3x3Matrix before = matrix;
    EXPECT_EQ(ioTransformation.GetMappingBehavior(number), iCode);
    EXPECT_EQ(ioTransformation.GetProjectorFunction(number), iCode);
    EXPECT_EQ(number, untouched);
    EXPECT_EQ(ioTransformation.GetTransformation(matrix), iCode);
    EXPECT_EQ(matrix, before);
    for (bool hasImage : {false, true}) {
      const bool hadImage = hasImage;
      EXPECT_EQ(ioTransformation.HasResourceImage(hasImage), iCode);
      EXPECT_EQ(hasImage, hadImage);
    }
  }
};

class TextureCoordinateNumberTest : public TextureCoordinateTransformationTest,
                                    public ::testing::WithParamInterface<NumberCase> {
 protected:
  std::uint32_t Read() { return Number(GetParam().read); }
};

INSTANTIATE_TEST_SUITE_P(Numbers, TextureCoordinateNumberTest, ::testing::ValuesIn(numbers),
                         [](const auto& iCase) { return iCase.param.name; });

TEST_P(TextureCoordinateNumberTest, ShaderWithoutTheTag_HasZero) {
  EXPECT_EQ(Read(), 0U);
  AddInteger("p", 3);
  EXPECT_EQ(Read(), 0U);
  Tag("p", GetParam().otherTag);
  EXPECT_EQ(Read(), 0U);
}

TEST_P(TextureCoordinateNumberTest, FirstTaggedParameter_Decides) {
  AddInteger("before", 1);
  AddInteger("first", 3);
  AddInteger("second", 8);
  Tag("first", GetParam().tag);
  Tag("second", GetParam().tag);
  EXPECT_EQ(Read(), GetParam().of3);
}

TEST_P(TextureCoordinateNumberTest, ParameterWithoutAValue_IsNotAskedForADefault) {
  Add(hShader_, "p", "VelRmaInteger");
  AddInteger("second", 8);
  Tag("p", GetParam().tag);
  Tag("second", GetParam().tag);
  EXPECT_EQ(Read(), GetParam().unvaluated);
  FakeParameterLayouts layouts;
  layouts.integer = 3;
  EXPECT_EQ(Read(), GetParam().unvaluated);
  EXPECT_EQ(layouts.layoutCalls, 0);
}

TEST_P(TextureCoordinateNumberTest, ParameterOfAnotherKind_IsUnexpected) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaScalar", "VelRmaColor", "VelRmaVector", "VelRmaMatrix",
                              "VelRmaString", "VelRmaTexture"}) {
    hShader_ = MakeShader("MappedType");
    Add(hShader_, "p", startUp);
    AddInteger("second", 3);
    Tag("p", GetParam().tag);
    Tag("second", GetParam().tag);
    std::uint32_t number = untouched;
    EXPECT_EQ(((*Transformation_var(hShader_)).*GetParam().read)(number), E_UNEXPECTED) << startUp;
    EXPECT_EQ(number, untouched);
  }
}

TEST_F(TextureCoordinateTransformationTest, MappingBehavior_IsTheStoredNumber) {
  const VelIRshParameter_var hBehavior = AddInteger("p", 1);
  Tag("p", "mapping-behavior");
  const struct {
    std::int32_t stored;
    std::uint32_t returned;
  } cases[] = {{1, 1}, {0, 0}, {2, 2}, {8, 8}, {2147483647, 2147483647}, {-1, 4294967295}};
  for (const auto& test : cases) {
    EXPECT_TRUE(SUCCEEDED(hBehavior->SetValue(&test.stored)));
    EXPECT_EQ(Number(&Transformation::GetMappingBehavior), test.returned) << test.stored;
  }
}

TEST_F(TextureCoordinateTransformationTest, ProjectorFunction_IsTranslated) {
  const VelIRshParameter_var hFunction = AddInteger("p", 100);
  Tag("p", "projector-function");
  const struct {
    std::int32_t stored;
    std::uint32_t returned;
  } cases[] = {{0, 1}, {1, 2}, {2, 4}, {3, 3}, {4, 0}, {5, 0}, {6, 0}, {7, 0}, {8, 5}, {9, 0}, {-1, 0}, {256, 0}};
  for (const auto& test : cases) {
    EXPECT_EQ(hFunction->SetValue(&test.stored), S_OK);
    EXPECT_EQ(Number(&Transformation::GetProjectorFunction), test.returned) << test.stored;
  }
}

TEST_F(TextureCoordinateTransformationTest, WithoutAnyKey_IsTheIdentity) { EXPECT_EQ(Matrix(), Vel3x3Matrix()); }

TEST_F(TextureCoordinateTransformationTest, Parameters_AreReadAfreshWithEachCall) {
  const VelIRshParameter_var hFlip = AddBoolean("flip", true);
  AddScalar("scale", 4.0F);
  AddScalar("moved", 0.5F);
  Add(hShader_, "still", "VelRmaScalar");
  AddBoolean("unflipped", false);
  Configure("MappingFlip.ParameterValue", "flip unflipped");
  Configure("MappingScale.ParameterValue", "scale");
  Configure("MappingOffset.ParameterValue", "still moved");
  Configure("MappingRatio.DefaultValue", "2 0.5");
  EXPECT_EQ(Matrix(), Vel3x3Matrix({-0.125F, 0.0F, 0.0F, 0.5F}, {0.0F, 0.5F})) << "u alone is mirrored";
  const bool isOn = false;
  EXPECT_EQ(hFlip->SetValue(&isOn), S_OK);
  EXPECT_EQ(Matrix(), Vel3x3Matrix({0.125F, 0.0F, 0.0F, 0.5F}, {0.0F, 0.5F}));
}

/// Each step of the arithmetic was rounded to single precision on its own, outside this program; any other order or
/// precision differs in at least one figure.
TEST_F(TextureCoordinateTransformationTest, EveryStep_IsRoundedInItsOrder) {
  ConfigureMapping("-2.61 0.04", "2.33 -2.46", "-0.8 -1.53", "-0.46 1.78", "-1.27");
  const std::array<float, 9> expected{
      0x1.a8d03ap-2F, 0x1.4fcd5p-6F, -0x1.d70a3ep-2F, -0x1.531aaap-1F, 0x1.9cb63cp-9F, 0x1.c7ae14p+0F, 0.0F,
      0.0F,           1.0F};
  const std::array<float, 9> read = Matrix().GetValues();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(read.at(i)), std::bit_cast<std::uint32_t>(expected.at(i))) << i;
  }
}

TEST_F(TextureCoordinateTransformationTest, Angle_IsNotRoundedBeforeItIsTurnedIntoSines) {
  ConfigureMapping("1 1", "1 1", "1 1", "0 0", "100000.1");
  EXPECT_EQ(Matrix(), Vel3x3Matrix({-0x1.fef19cp-1F, -0x1.06f5f4p-4F, 0x1.06f5f4p-4F, -0x1.fef19cp-1F}, {}));
}

TEST_F(TextureCoordinateTransformationTest, Rotation_TurnsTheOtherWay) {
  ConfigureMapping("1 1", "1 1", "1 1", "0 0", "1.5707963267948966");
  const Vel3x3Matrix matrix = Matrix();
  EXPECT_EQ(matrix.Get(0, 1), 1.0F);
  EXPECT_EQ(matrix.Get(1, 0), -1.0F);
  EXPECT_NEAR(matrix.Get(0, 0), 0.0F, 1e-7F);
  EXPECT_EQ(matrix.Get(0, 0), matrix.Get(1, 1));
}

TEST_F(TextureCoordinateTransformationTest, ZeroScaleOrRatio_GivesInfiniteFigures) {
  ConfigureMapping("1 -1", "0 2", "1 0", "3 4", "1");
  EXPECT_EQ(Matrix(), Vel3x3Matrix({infinite, -infinite, -infinite, -infinite}, {3.0F, 4.0F}));
  ConfigureMapping("1 1", "-0 1", "1 1", "0 0", "0");
  const Vel3x3Matrix matrix = Matrix();
  EXPECT_EQ(matrix.Get(0, 0), -infinite);
  EXPECT_TRUE(std::isnan(matrix.Get(0, 1))) << "infinite times the sine 0";
  EXPECT_EQ(matrix.Get(1, 1), 1.0F);
}

TEST_F(TextureCoordinateTransformationTest, Values_AreReadInTheirOrder) {
  Matrix();
  Texts channels;
  for (const VelTraceRecorder::Entry& entry : traces_.Entries()) {
    if (channels.empty() || channels.back() != entry.channel) channels.push_back(entry.channel);
  }
  EXPECT_EQ(channels, (Texts{"VelRshReaderMappingFlip", "VelRshReaderMappingScale", "VelRshReaderMappingRatio",
                             "VelRshReaderMappingOffset", "VelRshReaderMappingRotation"}));
  EXPECT_EQ(traces_.Entries().back().text, "Mapping Rotation fall back to ( 0.000 )");
  const Texts texts = traces_.Texts();
  for (const char* fallBack :
       {"Mapping Flip fall back to ( 1.000, 1.000 )", "Mapping Scale fall back to ( 1.000, 1.000 )",
        "Mapping Ratio fall back to ( 1.000, 1.000 )", "Mapping Offset fall back to ( 0.000, 0.000 )"}) {
    EXPECT_EQ(std::count(texts.begin(), texts.end(), fallBack), 1) << fallBack;
  }
}

TEST_F(TextureCoordinateTransformationTest, ResourceImage_IsThatOfAnyParameter) {
  const FakeDocumentBindings documents;
  EXPECT_FALSE(HasImage());
  AddScalar("scalar", 1.0F);
  const VelIRshParameter_var hTexture = Add(hShader_, "texture", "VelRmaTexture");
  Add(hShader_, "last", "VelRmaTexture");
  EXPECT_FALSE(HasImage());
  EXPECT_EQ(hTexture->SetValue(FakeDocument::Create().Get()), S_OK);
  EXPECT_TRUE(HasImage());
}

TEST_F(TextureCoordinateTransformationTest, ResourceImage_IsAlsoThatOfAConnectedShader) {
  const FakeDocumentBindings documents;
  const VelIRshShader_var hNode = AddNode(hShader_);
  EXPECT_EQ(AddScalar("scalar", 1.0F)->SetConnection(hNode.Get()), S_OK);
  EXPECT_FALSE(HasImage());
  EXPECT_EQ(Add(hNode, "tex", "VelRmaTexture")->SetValue(FakeDocument::Create().Get()), S_OK);
  EXPECT_TRUE(HasImage());
}

TEST_F(TextureCoordinateTransformationTest, ObjectThatIsNoShader_HasNoInterface) {
  const VelModuleClass classes[] = {{"VelTestBorrowedCoordinates", VelTypeOfClass::Extension,
                                     &CreateExtensionVelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation}};
  const VelModuleRow rows[] = {
      {"VelTestNoShader", "VelIRmaVisuTextureCoordinateTransformation", VelMechanism::TIE, VelLifetime::Reference,
       "VelTestBorrowedCoordinates",
       &CreateTIEVelIRmaVisuTextureCoordinateTransformationVelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation,
       nullptr}};
  const VelModuleTable table{"VelTestBorrowedCoordinates", "RenderingShaderTests", {}, classes, rows, {}};
  ASSERT_EQ(VelDictionary::Declare(table), S_OK);
  {
    const Transformation_var hTransformation(VelObject::Create("VelTestNoShader", nullptr));
    ASSERT_TRUE(hTransformation);
    ExpectAllToAnswer(*hTransformation, E_NOINTERFACE);
  }
  EXPECT_EQ(VelDictionary::Undeclare(table), S_OK);
}

TEST_F(TextureCoordinateTransformationTest, ClosedShader_Fails) {
  const Transformation_var hTransformation(hShader_);
  EXPECT_EQ(LifeCycleObject_var(hShader_)->remove(), S_OK);
  ExpectAllToAnswer(*hTransformation, E_FAIL);
  EXPECT_FALSE(Transformation_var(hShader_)) << "none is made any more";
}

}  // namespace
