// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Refresh_test.cpp The operations by which a parameter brings itself up to date.
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/RenderingShader/RshModelTest.h"

namespace {

using VelRshParameterBaseRefreshTest = RshModelTest;

constexpr struct {
  const char* name;
  HRESULT (VelIRshParameterPrivate::*operation)();
  unsigned line;
} updates[] = {{"UpdateValueAndConnection", &VelIRshParameterPrivate::UpdateValueAndConnection, 788},
               {"UpdateValue", &VelIRshParameterPrivate::UpdateValue, 798},
               {"UpdateConnection", &VelIRshParameterPrivate::UpdateConnection, 807}};

TEST_F(VelRshParameterBaseRefreshTest, Updates_AreSOkForEveryParameterThatHasThem) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
                              "VelRmaMatrix", "VelRmaString", "VelRmaTexture"}) {
    const VelIRshParameterPrivate_var hPrivate(Make(startUp));
    for (const auto& update : updates) {
      EXPECT_EQ((hPrivate.Get()->*update.operation)(), S_OK) << startUp << " " << update.name;
    }
  }
}

TEST_F(VelRshParameterBaseRefreshTest, UpdatesOfWhatIsNoParameterAnyMore_AreReportedWithALineEach) {
  const VelIRshParameterPrivate_var hPrivate(Make("VelRmaScalar"));
  const std::string dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary";
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  for (const auto& update : updates) {
    EXPECT_EQ((hPrivate.Get()->*update.operation)(), E_NOINTERFACE) << update.name;
    ASSERT_EQ(checks_.Failures().size(), 1U) << update.name;
    const RecordedFailure failure = checks_.Failures()[0];
    checks_.Clear();
    EXPECT_EQ(failure.message, "VelIRshParameter not available");
    EXPECT_EQ(failure.expression, "parameter");
    EXPECT_EQ(failure.source, "RenderingShader/VelRshModel.m/src/VelRshParameterBase");
    EXPECT_EQ(failure.line, update.line) << update.name;
    EXPECT_EQ(failure.kind, VelFailureKind::Check);
  }
  EXPECT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

TEST_F(VelRshParameterBaseRefreshTest, ClosedParameter_AnswersEFail) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelIRshParameterPrivate_var hPrivate(hFeature);
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  for (const auto& update : updates) EXPECT_EQ((hPrivate.Get()->*update.operation)(), E_FAIL) << update.name;
}

}  // namespace
