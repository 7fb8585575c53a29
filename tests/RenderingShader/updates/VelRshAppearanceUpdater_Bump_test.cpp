// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Bump_test.cpp A changed bump level, and the bump shaders that take it over.
#include <cmath>
#include <limits>

#include "tests/RenderingShader/updates/UpdatesTest.h"

namespace {

using VelRshAppearanceUpdaterBumpTest = UpdatesTest;

constexpr const char* stored = "time: parameter store";
constexpr const char* converting = "info: Updating derived bump parameter...";
constexpr const char* converted = "time: Bump update overhead";
constexpr const char* done = "time: OnValueUpdate";

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpLevel_IsScaledByAThousandWhereThereIsNoBumpType) {
  Tag("default_sp_bump", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "default_sp_bump", 0.05F);
  const VelIRshParameter_var hPlain = AddScalar(Connect("plain"), "bump", 0.0F);
  const VelIRshShader_var hTyped = Connect("typed");
  const VelIRshParameter_var hTypedBump = AddScalar(hTyped, "bump", 0.0F);
  AddInteger(hTyped, "bump_type", 1);
  UpdateValue(hLevel);
  EXPECT_EQ(ScalarOf(hPlain), 50.0F);
  EXPECT_EQ(ScalarOf(hTypedBump), 0.05F);
  EXPECT_EQ(
      Told(),
      (Texts{stored, converting, "info: Found connected shader bump parameter { is bump type present = no }",
             "info: MDL Bump translation 0.050000 -> 50.000000", "info: MDL Bump update from 0.000000 to 50.000000",
             "info: Found connected shader bump parameter { is bump type present = yes }",
             "info: MDL Bump translation 0.050000 -> 0.050000", "info: MDL Bump update from 0.000000 to 0.050000",
             converted, done}));
}

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpLevel_IsRoundedAfterTenAndAfterAHundred) {
  Tag("level", "bump");
  const VelIRshParameter_var hBump = AddScalar(Connect("plain"), "bump", 0.0F);
  UpdateValue(AddScalar(hRoot_, "level", 0.01F));
  EXPECT_EQ(ScalarOf(hBump), 9.99999905F) << "10 at once, and a hundred first, would be 10";
}

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpLevelThatIsThereAlready_IsNotWritten) {
  Tag("level", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "level", 0.05F);
  const VelIRshShader_var hSub = Connect("plain");
  AddScalar(hSub, "bump", 50.0F);
  const VelIRshParameter_var hNamesake = AddScalar(hSub, "bump", 1.0F);
  UpdateValue(hLevel);
  EXPECT_EQ(ScalarOf(hNamesake), 1.0F);
  EXPECT_EQ(Told(),
            (Texts{stored, converting, "info: Found connected shader bump parameter { is bump type present = no }",
                   "info: MDL Bump translation 0.050000 -> 50.000000",
                   "info: MDL Bump unchanged level-0/level-1 50.000000", converted, done}));
}

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpLevelThatIsNoNumber_IsAlwaysWritten) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  Tag("level", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "level", nan);
  const VelIRshParameter_var hBump = AddScalar(Connect("plain"), "bump", nan);
  UpdateValue(hLevel);
  EXPECT_EQ(Told()[4], "info: MDL Bump update from nan to nan");
  EXPECT_TRUE(std::isnan(ScalarOf(hBump)));
}

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpThatIsNoScalar_IsAFailedWrite) {
  Tag("level", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "level", 0.05F);
  AddText(Connect("text"), "bump", "x");
  AddColor(Connect("colour"), "bump", 1.0F, 1.0F, 1.0F);
  const VelIRshParameter_var hLast = AddScalar(Connect("last"), "bump", 1.0F);
  UpdateValue(hLevel);
  const Texts told = Told();
  ASSERT_EQ(told.size(), 13U);
  EXPECT_EQ(told[4], "info: MDL Bump unchanged level-0/level-1 50.000000");
  EXPECT_EQ(told[7], "info: MDL Bump unchanged level-0/level-1 50.000000");
  EXPECT_EQ(told[10], "info: MDL Bump update from 1.000000 to 50.000000");
  EXPECT_EQ(ScalarOf(hLast), 50.0F);
}

TEST_F(VelRshAppearanceUpdaterBumpTest, BumpLevelOfAColour_IsItsMean) {
  Tag("level", "bump");
  const VelIRshParameter_var hBump = AddScalar(Connect("plain"), "bump", 0.0F);
  UpdateValue(AddColor(hRoot_, "level", 0.5F, 0.25F, 0.75F));
  EXPECT_EQ(ScalarOf(hBump), 500.0F);
}

TEST_F(VelRshAppearanceUpdaterBumpTest, ShadersWithoutBumpAndTheRootItself_GetNoBumpLevel) {
  Tag("bump", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "bump", 0.05F);
  AddInteger(Connect("without"), "bump_type", 1);
  Add(hRoot_, "unconnected", "VelRmaColor");
  ASSERT_EQ(Add(hRoot_, "itself", "VelRmaColor")->SetConnection(hRoot_.Get()), S_OK);
  UpdateValue(hLevel);
  EXPECT_EQ(Told(), (Texts{stored, converting, converted, done}));
  EXPECT_EQ(ScalarOf(hLevel), 0.05F);
}

}  // namespace
