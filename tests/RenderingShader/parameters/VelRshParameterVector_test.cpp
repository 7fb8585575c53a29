// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterVector_test.cpp What reading a vector reports where it cannot be read.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/parameters/fixtures/ClassBinding.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

class VelRshParameterVectorTest : public FeatureModelerTest {
 protected:
  /// Reads a vector and expects a code and one report.
  void ExpectReport(const VelIRshParameter_var& iVector, HRESULT iCode, const char* iMessage, const char* iExpression) {
    float read[3] = {7.0F, 7.0F, 7.0F};
    EXPECT_EQ(iVector->GetValue(read), iCode);
    EXPECT_EQ(read[0], 7.0F);
    ExpectReport(iMessage, iExpression);
  }
  void ExpectReport(const char* iMessage, const char* iExpression) {
    ASSERT_EQ(checks_.Failures().size(), 1U) << iExpression;
    const RecordedFailure failure = checks_.Failures()[0];
    checks_.Clear();
    EXPECT_EQ(failure.message, iMessage);
    EXPECT_EQ(failure.expression, iExpression);
    EXPECT_EQ(failure.source, "RenderingShader/VelRshModel.m/src/VelRshParameterVector");
    EXPECT_EQ(failure.detail, "");
    EXPECT_EQ(failure.kind, VelFailureKind::Check);
  }

  RecordingFailureObserver checks_;
};

// The key is resolved once per process, by the first feature that has it: nothing in this program may do so earlier.
TEST_F(VelRshParameterVectorTest, KeyThatIsMissingAndKeyThatIsUnknown_AreUnexpected) {
  const ClassBinding binding(classVelRshParameterVector, "VelRmaParameter");
  const VelIRshParameter_var hVector(Make("VelRmaParameter"));
  ASSERT_TRUE(hVector);
  if (VelKeySetVelRmaCatalog::GetKeyVelRmaColorValue(nullptr) == nullptr) {
    ExpectReport(hVector, E_UNEXPECTED, "key `Value` not avialable", "pKeyValue");
  }
  const VelISpecAttrAccess_var hColor(Make("VelRmaColor"));
  ASSERT_NE(VelKeySetVelRmaCatalog::GetKeyVelRmaColorValue(hColor.Get()), nullptr);
  ExpectReport(hVector, E_UNEXPECTED, "", "hAttributes->TestAttrKey( pKeyValue )");
}

TEST_F(VelRshParameterVectorTest, NullTarget_IsInvalidWhateverElseIsMissing) {
  const ClassBinding binding(classVelRshParameterVector, "VelTestNoFeature");
  const VelIRshParameter_var hVector(VelObject::Create("VelTestNoFeature", nullptr));
  EXPECT_EQ(hVector->GetValue(VelRshValueTarget(static_cast<float*>(nullptr))), E_INVALIDARG);
  ExpectReport("NULL pointer given", "oValue");
}

TEST_F(VelRshParameterVectorTest, ObjectWithoutAttributes_IsENoInterface) {
  const ClassBinding binding(classVelRshParameterVector, "VelTestNoFeature");
  const VelIRshParameter_var hVector(VelObject::Create("VelTestNoFeature", nullptr));
  ExpectReport(hVector, E_NOINTERFACE, "VelISpecAttrAccess not avialable", "hAttributes");
}

TEST_F(VelRshParameterVectorTest, Setting_FailsWithoutAReport) {
  const float value[3] = {1.0F, 2.0F, 3.0F};
  for (const char* lateType : {"VelTestNoFeature", "VelRmaParameter"}) {
    const ClassBinding binding(classVelRshParameterVector, lateType);
    const bool isFeature = std::string(lateType) == "VelRmaParameter";
    const VelIRshParameter_var hVector(isFeature ? VelBaseUnknown_var(Make(lateType))
                                                 : VelObject::Create(lateType, nullptr));
    EXPECT_EQ(hVector->SetValue(value), E_FAIL) << lateType;
    EXPECT_EQ(hVector->SetValue(VelRshValueSource(static_cast<const float*>(nullptr))), E_NOINTERFACE) << lateType;
  }
  EXPECT_EQ(checks_.Messages(), std::vector<std::string>{});
}

}  // namespace
