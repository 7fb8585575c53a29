// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValue_test.cpp Setting and reading values of every type: codes, defaults and special values.
#include <cmath>
#include <limits>

#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/parameters/fixtures/PlainTypes.h"

namespace {

class VelRshParameterValueTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
  }
  void TearDown() override {
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  /// The attribute behind a parameter, read as the document is.
  static VelISpecAttrAccess_var AccessOf(const VelIRshParameter_var& iParameter) {
    return VelISpecAttrAccess_var(iParameter);
  }

  static void Remove(const VelIRshParameter_var& iParameter) {
    EXPECT_EQ(LifeCycleObject_var(iParameter)->remove(), S_OK);
  }

  void ExpectVectorReport(const char* iStartUp) {
    const bool isVector = std::string(iStartUp) == "VelRmaVector";
    EXPECT_EQ(checks_.Messages(), isVector ? Texts{"NULL pointer given"} : Texts{}) << iStartUp;
    checks_.Clear();
  }

  const VelISpecAttrKey* const real_ = Key("Value", VelSpecAttrKind::Real);
  const VelISpecAttrKey* const reals_ = Key("Value", VelSpecAttrKind::Reals);
  VelIRshShader_var hShader_;
};

TEST_F(VelRshParameterValueTest, SetThenGet_GivesTheValue_OfEveryType) {
  ForEachPlainType([&](const auto& iType) {
    SCOPED_TRACE(iType.startUp);
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    auto read = iType.fallback;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK);
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK);
    EXPECT_EQ(read, iType.first);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.second)), S_OK);
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK);
    EXPECT_EQ(read, iType.second);
  });
}

TEST_F(VelRshParameterValueTest, SetToTheValueItHas_IsSFalse_ForEveryType) {
  ForEachPlainType([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_FALSE) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueTest, SetToTheDefaultWhereNoneWasSet_Writes_ForEveryType) {
  ForEachPlainType([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    auto read = iType.first;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.fallback)), S_OK) << iType.startUp;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK) << iType.startUp;
    EXPECT_EQ(read, iType.fallback) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.fallback)), S_FALSE) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueTest, GetWhereNoneWasSet_GivesTheDefaultAndEFail) {
  ForEachTypeWithDefault([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    auto read = iType.first;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), E_FAIL) << iType.startUp;
    EXPECT_EQ(read, iType.fallback) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueTest, GetOfAMatrixThatWasNotSet_IsEFailAndTouchesNothing) {
  const VelIRshParameter_var hMatrix = Add(hShader_, "m", "VelRmaMatrix");
  std::array<float, 16> read;
  read.fill(7.0F);
  EXPECT_EQ(hMatrix->GetValue(TargetOf(read)), E_FAIL);
  for (const float element : read) EXPECT_EQ(element, 7.0F);
}

TEST_F(VelRshParameterValueTest, NullViews_AnswerTheirOwnCodes) {
  ForEachPlainType([&](const auto& iType) {
    using Value = typename std::decay_t<decltype(iType)>::Value;
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    EXPECT_EQ(hParameter->SetValue(VelRshValueSource(static_cast<const float*>(nullptr))), E_NOINTERFACE)
        << iType.startUp;
    const bool isVector = std::is_same_v<Value, std::array<float, 3>>;
    EXPECT_EQ(hParameter->GetValue(VelRshValueTarget(static_cast<float*>(nullptr))), isVector ? E_INVALIDARG : E_FAIL)
        << iType.startUp;
    ExpectVectorReport(iType.startUp);
  });
}

TEST_F(VelRshParameterValueTest, ClosedParameter_AnswersEFailThroughAHeldInterface) {
  ForEachPlainType([&](const auto& iType) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", iType.startUp);
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.first)), S_OK) << iType.startUp;
    Remove(hParameter);
    auto read = iType.second;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), E_FAIL) << iType.startUp;
    EXPECT_EQ(read, iType.second) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(SourceOf(iType.second)), E_FAIL) << iType.startUp;
    EXPECT_EQ(hParameter->SetValue(VelRshValueSource(static_cast<const float*>(nullptr))), E_FAIL) << iType.startUp;
    EXPECT_EQ(hParameter->GetValue(VelRshValueTarget(static_cast<float*>(nullptr))), E_FAIL) << iType.startUp;
  });
}

TEST_F(VelRshParameterValueTest, ScalarThatIsNotANumber_IsNeverTheValueAlready) {
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(hScalar->SetValue(&nan), S_OK);
  EXPECT_EQ(hScalar->SetValue(&nan), S_OK);
  float read = 0.0F;
  EXPECT_EQ(hScalar->GetValue(&read), S_OK);
  EXPECT_TRUE(std::isnan(read));
}

TEST_F(VelRshParameterValueTest, ColourWithAComponentThatIsNotANumber_IsNeverTheValueAlready) {
  const VelIRshParameter_var hColor = Add(hShader_, "c", "VelRmaColor");
  const float color[] = {0.0F, std::numeric_limits<float>::quiet_NaN(), 0.0F, 1.0F};
  EXPECT_EQ(hColor->SetValue(color), S_OK);
  EXPECT_EQ(hColor->SetValue(color), S_OK);
}

TEST_F(VelRshParameterValueTest, NegativeZero_IsTheZeroThatIsThere) {
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  const float zero = 0.0F;
  const float negativeZero = -0.0F;
  EXPECT_EQ(hScalar->SetValue(&zero), S_OK);
  EXPECT_EQ(hScalar->SetValue(&negativeZero), S_FALSE);
  float read = 1.0F;
  EXPECT_EQ(hScalar->GetValue(&read), S_OK);
  EXPECT_FALSE(std::signbit(read));
}

TEST_F(VelRshParameterValueTest, Values_AreNeitherClampedNorChecked) {
  const VelIRshParameter_var hInteger = Add(hShader_, "i", "VelRmaInteger");
  for (const std::int32_t value :
       {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    std::int32_t read = 0;
    EXPECT_EQ(hInteger->SetValue(&value), S_OK);
    EXPECT_EQ(hInteger->GetValue(&read), S_OK);
    EXPECT_EQ(read, value);
  }
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  using Limits = std::numeric_limits<float>;
  for (const float value : {-Limits::infinity(), Limits::max(), Limits::denorm_min(), 1.0F + Limits::epsilon()}) {
    float read = 0.0F;
    EXPECT_EQ(hScalar->SetValue(&value), S_OK);
    EXPECT_EQ(hScalar->GetValue(&read), S_OK);
    EXPECT_EQ(read, value);
  }
}

TEST_F(VelRshParameterValueTest, Scalar_IsADoubleInTheDocument) {
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  const float tenth = 0.1F;
  EXPECT_EQ(hScalar->SetValue(&tenth), S_OK);
  double stored = 0.0;
  EXPECT_EQ(AccessOf(hScalar)->GetReal(real_, stored), S_OK);
  EXPECT_EQ(stored, static_cast<double>(0.1F));
}

TEST_F(VelRshParameterValueTest, ScalarWhoseDoubleReadsAsTheSameFloat_IsTheValueAlready) {
  const VelIRshParameter_var hScalar = Add(hShader_, "s", "VelRmaScalar");
  EXPECT_EQ(AccessOf(hScalar)->SetReal(real_, 0.1), S_OK);
  const float tenth = 0.1F;
  float read = 0.0F;
  EXPECT_EQ(hScalar->GetValue(&read), S_OK);
  EXPECT_EQ(read, tenth);
  EXPECT_EQ(hScalar->SetValue(&tenth), S_FALSE);
  double stored = 0.0;
  EXPECT_EQ(AccessOf(hScalar)->GetReal(real_, stored), S_OK);
  EXPECT_EQ(stored, 0.1);
}

TEST_F(VelRshParameterValueTest, Lists_StandInTheDocumentElementByElement) {
  const std::array<float, 16> values = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  const struct {
    const char* startUp;
    int count;
  } cases[] = {{"VelRmaVector", 3}, {"VelRmaColor", 4}, {"VelRmaMatrix", 16}};
  for (const auto& test : cases) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", test.startUp);
    EXPECT_EQ(hParameter->SetValue(SourceOf(values)), S_OK) << test.startUp;
    int size = 0;
    EXPECT_EQ(AccessOf(hParameter)->GetSize(reals_, size), S_OK);
    EXPECT_EQ(size, test.count) << test.startUp;
    for (int position = 1; position <= test.count; ++position) {
      double element = 0.0;
      EXPECT_EQ(AccessOf(hParameter)->GetRealAt(reals_, position, element), S_OK);
      EXPECT_EQ(element, position) << test.startUp;
    }
  }
}

TEST_F(VelRshParameterValueTest, ListWithTooFewElements_CannotBeReadButReplaced) {
  const double stored[] = {5.0, 6.0};
  const std::array<float, 16> zeros{};
  for (const char* startUp : {"VelRmaVector", "VelRmaColor", "VelRmaMatrix"}) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", startUp);
    EXPECT_EQ(AccessOf(hParameter)->SetReals(reals_, stored, 2), S_OK);
    std::array<float, 16> read;
    read.fill(7.0F);
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), E_FAIL) << startUp;
    EXPECT_EQ(read[0], 7.0F) << startUp;
    // The default is not the value already: there is another one.
    EXPECT_EQ(hParameter->SetValue(SourceOf(zeros)), S_OK) << startUp;
    EXPECT_EQ(hParameter->GetValue(TargetOf(read)), S_OK) << startUp;
    EXPECT_EQ(read[0], 0.0F) << startUp;
  }
}

TEST_F(VelRshParameterValueTest, EmptyText_IsAValue) {
  const VelIRshParameter_var hText = Add(hShader_, "t", "VelRmaString");
  const VelUnicodeString empty;
  VelUnicodeString read("before");
  EXPECT_EQ(hText->SetValue(&empty), S_OK);
  EXPECT_EQ(hText->GetValue(&read), S_OK);
  EXPECT_EQ(read, empty);
}

}  // namespace
