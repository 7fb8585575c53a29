// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlanRow_test.cpp The sentences of a plan, and how values stand in them.
#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlanRow.h"

#include <limits>

#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using Row = VelRshUpgradePlanRow;
using Kind = Row::Kind;

Row RowOf(Kind iKind, const char* iParameter) {
  Row row;
  row.kind = iKind;
  row.parameter = iParameter;
  return row;
}

class VelRshUpgradePlanRowTest : public UpgradeTest {
 protected:
  /// @return the value of before of the first parameter, as its row tells it
  std::string Told() {
    const VelRshUpgradePlan plan = Plan();
    EXPECT_FALSE(plan.rows.empty());
    return plan.rows.empty() ? std::string() : std::string(plan.rows[0].before.View());
  }
};

TEST_F(VelRshUpgradePlanRowTest, EachKind_IsASentence) {
  const struct {
    Kind kind;
    const char* before;
    const char* after;
    const char* standard;
    const char* expected;
  } cases[] = {
      {Kind::Kept, "1", "1", "1", "'x' keeps 1"},
      {Kind::Kept, "", "", "", "'x' stays"},
      {Kind::KeptOverDefault, "1", "1", "2", "'x' keeps 1; its default is 2"},
      {Kind::KeptOverDefault, "1", "1", "", "'x' keeps 1; it has no default"},
      {Kind::Replaced, "1", "2", "2", "'x' loses 1 and takes 2"},
      {Kind::Replaced, "1", "", "", "'x' loses 1"},
      {Kind::Replaced, "", "2", "2", "'x' had no value and takes 2"},
      {Kind::Replaced, "", "", "", "'x' is not carried over"},
      {Kind::Added, "", "2", "2", "'x' is new, with 2"},
      {Kind::Added, "", "", "", "'x' is new"},
      {Kind::Retyped, "1", "2", "2", "'x' was VelRmaScalar 1 and is VelRmaInteger 2"},
      {Kind::Retyped, "", "", "", "'x' was VelRmaScalar and is VelRmaInteger"},
      {Kind::Dropped, "1", "", "", "'x' goes, and with it 1"},
      {Kind::Dropped, "", "", "", "'x' goes"},
      {Kind::ConnectionKept, "1", "1", "1", "'x' stays connected to node"},
      {Kind::ConnectionLost, "1", "1", "1", "'x' loses its connection to node"},
      {Kind::ConnectionMade, "", "", "", "'x' is connected to a new node"},
      {Kind::MappingTaken, "1", "2", "", "'x' of node takes 2 instead of 1"},
      {Kind::MappingTaken, "", "2", "", "'x' of node takes 2"},
      {Kind::Stops, "", "", "",
       "The factory fails with E_UNEXPECTED: no value and no connection is carried over, and a copy of the shader as "
       "it "
       "was stays in its container"},
  };
  for (const auto& row : cases) {
    Row made = RowOf(row.kind, "x");
    made.startUp = "VelRmaInteger";
    made.formerStartUp = "VelRmaScalar";
    made.before = row.before;
    made.after = row.after;
    made.standard = row.standard;
    made.shaderType = "node";
    made.code = E_UNEXPECTED;
    EXPECT_EQ(made.Text(), row.expected);
  }
}

TEST_F(VelRshUpgradePlanRowTest, Codes_StandByTheirNames) {
  const struct {
    HRESULT code;
    const char* expected;
  } cases[] = {{S_FALSE, "S_FALSE"},
               {S_OK, "S_OK"},
               {E_FAIL, "E_FAIL"},
               {E_INVALIDARG, "E_INVALIDARG"},
               {E_UNEXPECTED, "E_UNEXPECTED"},
               {E_NOINTERFACE, "E_NOINTERFACE"},
               {static_cast<HRESULT>(static_cast<std::int32_t>(0x8007000EU)), "0x8007000e"}};
  for (const auto& row : cases) {
    Row made = RowOf(Kind::Stops, "x");
    made.formerPosition = 1;
    made.code = row.code;
    EXPECT_TRUE(made.Text().StartsWith(std::string("The upgrade stops with ") + row.expected + " at 'x'"))
        << made.Text().View();
  }
}

TEST_F(VelRshUpgradePlanRowTest, ANameOfOddCharacters_StaysOnOneLine) {
  const Row made = RowOf(Kind::Kept, "a\nb\"\x01\x7F\xC3\xA4");
  EXPECT_EQ(made.Text(), "'a\\nb\\\"\\x01\\x7f\xC3\xA4' stays");
}

TEST_F(VelRshUpgradePlanRowTest, Reals_AreTheShortestThatReadBackTheSame) {
  const struct {
    float value;
    const char* expected;
  } cases[] = {{0.0F, "0"},
               {-0.0F, "-0"},
               {0.1F, "0.1"},
               {1e10F, "1e+10"},
               {1.0F / 3.0F, "0.33333334"},
               {std::numeric_limits<float>::infinity(), "inf"},
               {-7.25F, "-7.25"},
               {std::numeric_limits<float>::denorm_min(), "1e-45"}};
  const VelIRshParameter_var hScalar = AddScalar(hShader_, "a", 5.0F);
  for (const auto& row : cases) {
    EXPECT_TRUE(SUCCEEDED(hScalar->SetValue(&row.value)));
    EXPECT_EQ(Told(), row.value == 0.0F ? "0" : row.expected) << "a zero is a zero";
  }
}

TEST_F(VelRshUpgradePlanRowTest, EachTypeOfValue_HasItsText) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  const struct {
    const char* startUp;
    std::function<HRESULT(const VelIRshParameter_var&)> set;
    const char* expected;
  } cases[] = {
      {"VelRmaBoolean",
       [](const auto& iTo) {
         const bool is = true;
         return iTo->SetValue(&is);
       },
       "true"},
      {"VelRmaBoolean",
       [](const auto& iTo) {
         const bool is = false;
         return iTo->SetValue(&is);
       },
       "false"},
      {"VelRmaInteger",
       [](const auto& iTo) {
         const std::int32_t n = -3;
         return iTo->SetValue(&n);
       },
       "-3"},
      {"VelRmaVector",
       [](const auto& iTo) {
         const float v[]{1, 0.5F, -2};
         return iTo->SetValue(v);
       },
       "(1, 0.5, -2)"},
      {"VelRmaColor",
       [](const auto& iTo) {
         const float v[]{1, 0, 0, 1};
         return iTo->SetValue(v);
       },
       "(1, 0, 0, 1)"},
      {"VelRmaString",
       [](const auto& iTo) {
         const VelUnicodeString text("a \"b\"\\\n\t");
         return iTo->SetValue(&text);
       },
       R"("a \"b\"\\\n\t")"},
      {"VelRmaString",
       [](const auto& iTo) {
         const VelUnicodeString text;
         return iTo->SetValue(&text);
       },
       "\"\""},
      {"VelRmaTexture", [&](const auto& iTo) { return iTo->SetValue(hDocument.Get()); }, "document \"wood.png\""},
      {"VelRmaVoid", [](const auto&) { return S_OK; }, ""},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.startUp);
    hShader_ = MakeShader("mine");
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
    EXPECT_TRUE(SUCCEEDED(row.set(Add(hShader_, "a", row.startUp))));
    EXPECT_EQ(Told(), row.expected);
  }
  FakeDocument::Of(*hDocument).name.code = E_FAIL;
  EXPECT_EQ(Add(MakeShader("mine"), "a", "VelRmaTexture")->SetValue(hDocument.Get()), S_OK);
  hShader_ = MakeShader("mine");
  EXPECT_EQ(hShader_->SetVersion(1), S_OK);
  EXPECT_EQ(Add(hShader_, "a", "VelRmaTexture")->SetValue(hDocument.Get()), S_OK);
  EXPECT_EQ(Told(), "document");
  hShader_ = nullptr;
  CloseContainer();
}

}  // namespace
