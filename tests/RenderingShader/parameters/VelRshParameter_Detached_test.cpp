// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameter_Detached_test.cpp Parameters behind which there is not what they are made for: no feature, a
/// feature without their attributes, one with another list.
#include "RenderingShader/interfaces/VelIAlias.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/parameters/fixtures/ClassBinding.h"
#include "tests/RenderingShader/parameters/fixtures/PlainTypes.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

constexpr const ParameterClass* allClasses[] = {&classVelRshParameterBase,    &classVelRshParameterBoolean,
                                                &classVelRshParameterInteger, &classVelRshParameterScalar,
                                                &classVelRshParameterColor,   &classVelRshParameterVector,
                                                &classVelRshParameterMatrix,  &classVelRshParameterString,
                                                &classVelRshParameterTexture, &classVelRshParameterLightProfile};

class VelRshParameterDetachedTest : public FeatureModelerTest {
 protected:
  /// @return what reading answers where there is no such attribute
  static HRESULT CodeOfVector(const ParameterClass& iClass, HRESULT iCode) {
    return &iClass == &classVelRshParameterVector ? iCode : E_FAIL;
  }

  /// Tries all value operations, none of which has an attribute to work on.
  void ExpectNoValue(const VelIRshParameter_var& iParameter, HRESULT iRead) {
    ForEachPlainType([&](const auto& iType) {
      auto read = iType.second;
      EXPECT_EQ(iParameter->SetValue(SourceOf(iType.first)), E_FAIL);
      const HRESULT code = iParameter->GetValue(TargetOf(read));
      EXPECT_TRUE(code == E_FAIL || code == iRead) << code;
      EXPECT_EQ(read, iType.second);
    });
    float vector[3] = {7.0F, 7.0F, 7.0F};
    EXPECT_EQ(iParameter->GetValue(vector), iRead);
    const VelBaseUnknown_var hDocument = VelObject::Create("VelTestDocument", nullptr);
    EXPECT_EQ(iParameter->SetValue(hDocument.Get()), E_FAIL);
    VelBaseUnknown* read = nullptr;
    EXPECT_EQ(iParameter->GetValue(&read), E_FAIL);
    EXPECT_EQ(read, nullptr);
  }

  void ExpectNoNameAndNoConnection(const VelIRshParameter_var& iParameter) {
    VelString name("before");
    EXPECT_EQ(iParameter->SetName("p"), E_FAIL);
    EXPECT_EQ(iParameter->GetName(name), E_FAIL);
    EXPECT_EQ(name, "before");
    EXPECT_EQ(iParameter->SetConnection(nullptr), E_FAIL);
    VelIRshShader* read = nullptr;
    EXPECT_EQ(iParameter->GetConnection(&read), E_FAIL);
    EXPECT_EQ(iParameter->GetConnection(nullptr), E_FAIL);
  }

  RecordingFailureObserver checks_;
};

TEST_F(VelRshParameterDetachedTest, FeatureWithoutAValue_FailsWithNothingTouched) {
  for (const ParameterClass* parameterClass : allClasses) {
    SCOPED_TRACE(parameterClass->name);
    const ClassBinding binding(*parameterClass, "VelRmaParameter");
    const VelIRshParameter_var hParameter(Make("VelRmaParameter"));
    ExpectNoValue(hParameter, CodeOfVector(*parameterClass, E_UNEXPECTED));
    EXPECT_EQ(hParameter->SetName("p"), S_OK);
  }
  checks_.Clear();
}

TEST_F(VelRshParameterDetachedTest, FeatureWithoutAnyAttributeOfAParameter_HasATypeAlone) {
  for (const ParameterClass* parameterClass : allClasses) {
    SCOPED_TRACE(parameterClass->name);
    const ClassBinding binding(*parameterClass, "VelRmaShader");
    const VelIRshParameter_var hParameter(Make("VelRmaShader"));
    ExpectNoValue(hParameter, CodeOfVector(*parameterClass, E_UNEXPECTED));
    ExpectNoNameAndNoConnection(hParameter);
    VelString type;
    EXPECT_EQ(hParameter->GetType(type), S_OK);
    EXPECT_EQ(type, "VelRmaShader");
  }
  checks_.Clear();
}

TEST_F(VelRshParameterDetachedTest, ObjectThatIsNoFeature_HasNothingButALabel) {
  for (const ParameterClass* parameterClass : allClasses) {
    SCOPED_TRACE(parameterClass->name);
    const ClassBinding binding(*parameterClass, "VelTestNoFeature");
    const VelIRshParameter_var hParameter(VelObject::Create("VelTestNoFeature", nullptr));
    ExpectNoValue(hParameter, CodeOfVector(*parameterClass, E_NOINTERFACE));
    ExpectNoNameAndNoConnection(hParameter);
    VelString type("before");
    EXPECT_EQ(hParameter->GetType(type), E_FAIL);
    EXPECT_EQ(type, "before");
    const VelIAlias_var hAlias(hParameter);
    EXPECT_EQ(hAlias->GetAlias(), "");
    EXPECT_EQ(hAlias->SetAlias("label"), S_OK);
    EXPECT_EQ(hAlias->GetAlias(), "label");
  }
  checks_.Clear();
}

TEST_F(VelRshParameterDetachedTest, ListForWhichTheCatalogGivesNoRoom_IsTheFailureOfTheWrite) {
  const std::array<float, 16> value = {1.0F};
  const struct {
    const ParameterClass* parameterClass;
    const char* startUp;
  } cases[] = {{&classVelRshParameterColor, "VelRmaVector"},
               {&classVelRshParameterMatrix, "VelRmaVector"},
               {&classVelRshParameterMatrix, "VelRmaColor"}};
  for (const auto& test : cases) {
    const ClassBinding binding(*test.parameterClass, test.startUp);
    const VelIRshParameter_var hParameter(Make(test.startUp));
    EXPECT_EQ(hParameter->SetValue(SourceOf(value)), E_INVALIDARG) << test.parameterClass->name;
    EXPECT_FALSE(VelISpecAttrAccess_var(hParameter)->IsValuated(Key("Value", VelSpecAttrKind::Reals)));
  }
}

TEST_F(VelRshParameterDetachedTest, VectorAndMatrixOfOneFeature_ShareTheList) {
  const VelISpecObject_var hFeature = Make("VelRmaMatrix");
  VelIRshParameter_var hMatrix;
  {
    const ClassBinding binding(classVelRshParameterMatrix, "VelRmaMatrix");
    hMatrix = VelIRshParameter_var(hFeature);
  }
  const ClassBinding binding(classVelRshParameterVector, "VelRmaMatrix");
  const VelIRshParameter_var hVector(hFeature);
  const std::array<float, 16> matrix = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  EXPECT_EQ(hMatrix->SetValue(SourceOf(matrix)), S_OK);
  std::array<float, 3> vector{};
  EXPECT_EQ(hVector->GetValue(TargetOf(vector)), S_OK);
  EXPECT_EQ(vector, (std::array<float, 3>{1.0F, 2.0F, 3.0F}));
  EXPECT_EQ(hVector->SetValue(SourceOf(vector)), S_FALSE);
  // A vector replaces the list, of which too little is left for a matrix.
  EXPECT_EQ(hVector->SetValue(SourceOf(std::array<float, 3>{9.0F, 8.0F, 7.0F})), S_OK);
  std::array<float, 16> read{};
  EXPECT_EQ(hMatrix->GetValue(TargetOf(read)), E_FAIL);
  EXPECT_EQ(read[0], 0.0F);
}

TEST_F(VelRshParameterDetachedTest, ParameterWithoutModelEvents_IsSetAndConnectedWithoutThem) {
  const ClassBinding binding(classVelRshParameterString, "VelRmaString");
  const VelIRshParameter_var hParameter(Make("VelRmaString"));
  const VelUnicodeString text("text");
  EXPECT_EQ(hParameter->SetValue(&text), S_OK);
  EXPECT_EQ(hParameter->SetValue(&text), S_FALSE);
}

}  // namespace
