// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingScale_test.cpp By what the version of the material has the scale multiplied.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingScale.h"

#include <optional>

#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"
#include "tests/RenderingShader/services/MappingReaderTest.h"

namespace {

constexpr const char* noSize = "E R418 mode could not fetch unit and VelIRmaDimension2D";
constexpr const char* noPlastic = "E VelIPlasticMaterial not accessible";
constexpr const char* noneRead = "I Mapping Scale fall back to ( 2.000, 4.000 )";
constexpr const char* sizeRead = "I Mapping Scale fall back to ( 500.000, 500.000 )";

/// The shader of a material of 250 by 125 mm that answers everything.
class VelRshReaderMappingScaleTest : public MappingReaderTest {
 protected:
  void SetUp() override {
    MappingReaderTest::SetUp();
    hMaterial_ = FakeRenderingMaterial::Create(*hContainer_);
    Carry(hShader_);
    Material().form.isOffered = true;
    Material().size.isOffered = true;
  }
  void TearDown() override {
    hMaterial_ = nullptr;
    MappingReaderTest::TearDown();
  }

  FakeRenderingMaterial& Material() { return FakeRenderingMaterial::Of(*hMaterial_); }
  void Carry(const VelIRshShader_var& iShader) {
    EXPECT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(iShader.Get()), S_OK);
  }
  /// Goes on with another shader of the material, since the type of a shader stays.
  void ChangeType(const char* iType) {
    hShader_ = MakeShader(iType);
    Carry(hShader_);
  }

  VelRshMappingPair Read() { return VelRshReaderMappingScale()(*hShader_, {2.0, 4.0}); }
  Texts Told() { return MappingReaderTest::Told("VelRshReaderMappingScale"); }

  FakeRenderingMaterialBindings materials_;
  VelISpecObject_var hMaterial_;
};

TEST_F(VelRshReaderMappingScaleTest, From418On_TheSizeMultiplies) {
  const struct {
    std::uint32_t version;
    const char* told;
  } cases[] = {{418, "I R418 mode { version = 418, multiplier = ( 250.000, 125.000 ) }"},
               {419, "I R418 mode { version = 419, multiplier = ( 250.000, 125.000 ) }"},
               {4294967295, "I R418 mode { version = 4294967295, multiplier = ( 250.000, 125.000 ) }"}};
  for (const auto& test : cases) {
    Material().form.version.value = test.version;
    EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << test.version;
    EXPECT_EQ(Told(), (Texts{test.told, sizeRead}));
  }
}

TEST_F(VelRshReaderMappingScaleTest, Size_IsInSinglePrecision) {
  Material().size.widthInMeters = 0.0001;
  EXPECT_EQ(Read().first, 2.0 * static_cast<double>(0.1F));
}

TEST_F(VelRshReaderMappingScaleTest, From206To416_NothingMultiplies) {
  const struct {
    std::uint32_t version;
    const char* told;
  } cases[] = {{206, "I R206 mode { version = 206,  multiplier = ( 1.000, 1.000 ) }"},
               {300, "I R206 mode { version = 300,  multiplier = ( 1.000, 1.000 ) }"},
               {416, "I R206 mode { version = 416,  multiplier = ( 1.000, 1.000 ) }"}};
  for (const auto& test : cases) {
    Material().form.version.value = test.version;
    Material().scaleFactor.value = 3.0;
    EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0)) << test.version;
    EXPECT_EQ(Told(), (Texts{test.told, noneRead}));
  }
}

TEST_F(VelRshReaderMappingScaleTest, Below206_TheScaleFactorMultiplies) {
  const struct {
    std::uint32_t version;
    const char* told;
  } cases[] = {{205, "I G2 mode { version = 205, multiplier = ( 3.500, 3.500 ) }"},
               {0, "I G2 mode { version = 0, multiplier = ( 3.500, 3.500 ) }"}};
  Material().scaleFactor.value = 3.5;
  for (const auto& test : cases) {
    Material().form.version.value = test.version;
    EXPECT_EQ(Read(), VelRshMappingPair(7.0, 14.0)) << test.version;
    EXPECT_EQ(Told(), (Texts{test.told, "I Mapping Scale fall back to ( 7.000, 14.000 )"}));
  }
  Material().scaleFactor.code = E_FAIL;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{"I G2 mode { version = 0, multiplier = ( 1.000, 1.000 ) }", noneRead}));
}

TEST_F(VelRshReaderMappingScaleTest, In417_TheTypeDecides) {
  Material().form.version.value = 417;
  Material().form.scale.value = 7.0;  // Deliberately not used.
  for (const char* type : {"MPM", "MPMSteel", "BasicMaterial", "BasicMaterialOld", "CarPaintG2", "CustomShader"}) {
    ChangeType(type);
    EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << type;
    EXPECT_EQ(Told(), (Texts{"I R417 mode { type = " + std::string(type) +
                                 ", version = 417, multiplier = ( 250.000, 125.000 ) }",
                             sizeRead}));
  }
  for (const char* type : {"MappedType", "mpm", "aMPM", "basicMaterial", "Basic", "CarPaintG2b", "CarPaintG",
                           "CustomShader2", "aCustomShader", ""}) {
    ChangeType(type);
    EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0)) << type;
    EXPECT_EQ(Told(),
              (Texts{"I R417 mode { type = " + std::string(type) + ", version = 417, multiplier = ( 1.000, 1.000 ) }",
                     noneRead}));
  }
}

TEST_F(VelRshReaderMappingScaleTest, In417WithoutAScale_TheOperatorDecides) {
  Material().form.version.value = 417;
  Material().form.scale.code = E_FAIL;
  const struct {
    std::optional<std::int32_t> value;
    VelRshMappingPair read;
    const char* told;
    const char* fallBack;
  } cases[] = {
      {std::nullopt, {0.02, 0.04}, "( 0.010, 0.010 ) }", "I Mapping Scale fall back to ( 0.020, 0.040 )"},
      {6, {0.02, 0.04}, "( 0.010, 0.010 ) }", "I Mapping Scale fall back to ( 0.020, 0.040 )"},
      {5, {2.0, 4.0}, "( 1.000, 1.000 ) }", noneRead},
      {0, {2.0, 4.0}, "( 1.000, 1.000 ) }", noneRead},
  };
  for (const auto& test : cases) {
    for (const char* type : {"BasicMaterial", "BasicMaterialOld", "CarPaintG2", "CustomShader"}) {
      ChangeType(type);
      Tag("operator", "projector-function", type);
      const VelIRshParameter_var hOperator = Add(hShader_, "operator", "VelRmaInteger");
      if (test.value) {
        EXPECT_EQ(hOperator->SetValue(&*test.value), S_OK);
      }
      EXPECT_EQ(Read(), test.read) << type;
      EXPECT_EQ(Told(),
                (Texts{"I R417 mode { type = " + std::string(type) + ", version = 417, multiplier = " + test.told,
                       test.fallBack}));
    }
  }
  ChangeType("MPMSteel");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << "is not asked for its scale";
  ChangeType("MappedType");
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0)) << "nor is this";
}

TEST_F(VelRshReaderMappingScaleTest, MaterialWithoutASize_IsAnErrorInEveryMode) {
  Material().size.isOffered = false;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{noSize, "I R418 mode { version = 418, multiplier = ( 1.000, 1.000 ) }", noneRead}));
  Material().form.version.value = 300;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{noSize, "I R206 mode { version = 300,  multiplier = ( 1.000, 1.000 ) }", noneRead}));
}

TEST_F(VelRshReaderMappingScaleTest, SizeThatCannotBeRead_IsOneByOne) {
  Material().size.code = E_FAIL;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{"I R418 mode { version = 418, multiplier = ( 1.000, 1.000 ) }", noneRead}));
}

TEST_F(VelRshReaderMappingScaleTest, MaterialWithoutAVersion_MultipliesNothing) {
  Material().form.version.code = E_FAIL;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{noPlastic, noneRead}));
  Material().form.isOffered = false;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{noPlastic, noneRead}));
}

TEST_F(VelRshReaderMappingScaleTest, ShaderWithoutAMaterial_MultipliesNothing) {
  hShader_ = MakeShader("MappedType");
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
  EXPECT_EQ(Told(), (Texts{noSize, noPlastic, noneRead}));
}

TEST_F(VelRshReaderMappingScaleTest, ShaderFurtherBelow_IsMultipliedByItsMaterialToo) {
  hShader_ = AddNode(AddNode(hShader_, "Between"), "MappedType");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0));
}

TEST_F(VelRshReaderMappingScaleTest, OwnBehavior_KeepsTheMaterialOut) {
  const VelIRshParameter_var hBehavior = AddInteger("behavior", 1);
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << "without the tag";
  Tag("behavior", "projector-function");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << "with another tag";
  Tag("behavior", "mapping-behavior");
  for (const std::int32_t value : {1, -1, 21}) {
    traces_.Clear();
    EXPECT_TRUE(SUCCEEDED(hBehavior->SetValue(&value)));
    EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0)) << value;
    EXPECT_EQ(Told(), Texts{noneRead});
  }
  const std::int32_t zero = 0;
  EXPECT_EQ(hBehavior->SetValue(&zero), S_OK);
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0)) << "0";
}

TEST_F(VelRshReaderMappingScaleTest, BehaviorWithoutAValue_IsWhatItsLayoutSays) {
  Add(hShader_, "behavior", "VelRmaInteger");
  Tag("behavior", "mapping-behavior");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0));
  FakeParameterLayouts layouts;
  layouts.integer = 1;
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 4.0));
}

TEST_F(VelRshReaderMappingScaleTest, FirstBehavior_Decides) {
  AddInteger("first", 0);
  AddInteger("second", 1);
  Tag("first", "mapping-behavior");
  Tag("second", "mapping-behavior");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0));
}

TEST_F(VelRshReaderMappingScaleTest, BehaviorThatIsNoInteger_CountsAsZero) {
  AddScalar("behavior", 1.0F);
  Tag("behavior", "mapping-behavior");
  EXPECT_EQ(Read(), VelRshMappingPair(500.0, 500.0));
}

TEST_F(VelRshReaderMappingScaleTest, EveryResult_IsMultiplied) {
  const char* const mode = "I R418 mode { version = 418, multiplier = ( 250.000, 125.000 ) }";
  Configure("MappingScale.DefaultValue", "0.5 2");
  EXPECT_EQ(Read(), VelRshMappingPair(125.0, 250.0));
  EXPECT_EQ(Told(), (Texts{mode, "I Mapping Scale defaulted to ( 125.000, 250.000 )"}));
  Configure("MappingScale.DefaultValue", "0.5");
  EXPECT_EQ(Read(), VelRshMappingPair(125.0, 125.0));
  EXPECT_EQ(Told(), (Texts{mode, "E Mapping Scale defaulted to ( 125.000, 125.000 )"}));
  AddScalar("u", 0.25F);
  Configure("MappingScale.ParameterValue", "u missing");
  EXPECT_EQ(Read(), VelRshMappingPair(62.5, 125.0));
  EXPECT_EQ(Told(), (Texts{mode, "I First parameter found { name = u }", "E Second parameter found { name = missing }",
                           "I Mapping Scale read as ( 62.500, 125.000 )"}));
  Configure("MappingScale.ParameterValue", "\t");
  EXPECT_EQ(Read(), VelRshMappingPair(250.0, 125.0));
  EXPECT_EQ(Told(), (Texts{mode,
                           "E Error while parsing configuration { catalog = MappedType, key = "
                           "MappingScale.ParameterValue, value = \t }",
                           noneRead, "E First parameter found { name =  }", "E Second parameter found { name =  }",
                           "I Mapping Scale read as ( 250.000, 125.000 )"}))
      << "the fall-back that is told here is the caller's own";
}

}  // namespace
