// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueView_test.cpp Which view fits which type of value: a grid, refusals included.
#include "tests/RenderingShader/RshModelTest.h"

#include "platform/objectmodeler/VelObject.h"
#include "tests/RenderingShader/parameters/fixtures/PlainTypes.h"

namespace {

/// What a test hands over: elements of every kind, each recognisable.
struct Buffer {
  bool boolean = true;
  std::int32_t integer = 77;
  float reals[17] = {77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77};
  VelUnicodeString texts[2] = {"77", "78"};

  friend bool operator==(const Buffer& iLeft, const Buffer& iRight) {
    return iLeft.boolean == iRight.boolean && iLeft.integer == iRight.integer &&
           std::equal(std::begin(iLeft.reals), std::end(iLeft.reals), std::begin(iRight.reals)) &&
           iLeft.texts[0] == iRight.texts[0] && iLeft.texts[1] == iRight.texts[1];
  }
};

constexpr int viewCount = 9;

/// The columns of the grid.
const char* const viewNames[viewCount] = {"bool", "int", "1 float", "2", "3", "4", "16", "17", "text"};

template <class View>
View ViewOf(int iColumn, Buffer& ioBuffer) {
  switch (iColumn) {
    case 0:
      return View(&ioBuffer.boolean, 1);
    case 1:
      return View(&ioBuffer.integer, 1);
    case 2:
      return View(ioBuffer.reals, 1);
    case 3:
      return View(ioBuffer.reals, 2);
    case 4:
      return View(ioBuffer.reals, 3);
    case 5:
      return View(ioBuffer.reals, 4);
    case 6:
      return View(ioBuffer.reals, 16);
    case 7:
      return View(ioBuffer.reals, 17);
    default:
      return View(ioBuffer.texts, 2);
  }
}

struct Row {
  const char* startUp;
  bool fits[viewCount];
};

// clang-format off
//                          bool   int    1      2      3      4      16     17     text
constexpr Row grid[] = {
    {"VelRmaBoolean",      {true,  false, false, false, false, false, false, false, false}},
    {"VelRmaInteger",      {false, true,  false, false, false, false, false, false, false}},
    {"VelRmaScalar",       {false, false, true,  true,  true,  true,  true,  true,  false}},
    {"VelRmaColor",        {false, false, false, false, false, true,  true,  true,  false}},
    {"VelRmaVector",       {false, false, false, false, true,  true,  true,  true,  false}},
    {"VelRmaMatrix",       {false, false, false, false, false, false, true,  true,  false}},
    {"VelRmaString",       {false, false, false, false, false, false, false, false, true}},
    {"VelRmaTexture",      {false, false, false, false, false, false, false, false, false}},
    {"VelRmaLightProfile", {false, false, false, false, false, false, false, false, false}},
    {"VelRmaVoid",         {false, false, false, false, false, false, false, false, false}},
    {"VelRmaParameter",    {false, false, false, false, false, false, false, false, false}},
};
// clang-format on

class VelRshValueViewTest : public RshModelTest {
 protected:
  static bool HasValue(const VelIRshParameter_var& iParameter) {
    const VelISpecAttrAccess_var hAccess(iParameter);
    for (const VelSpecAttrKind kind : {VelSpecAttrKind::Boolean, VelSpecAttrKind::Integer, VelSpecAttrKind::Real,
                                       VelSpecAttrKind::Reals, VelSpecAttrKind::Text, VelSpecAttrKind::Document}) {
      if (hAccess->IsValuated(Key("Value", kind))) return true;
    }
    return false;
  }
};

TEST_F(VelRshValueViewTest, ViewsThatDoNotFit_AreRefusedAndNothingIsTouched) {
  const VelIRshShader_var hShader = MakeShader();
  for (const Row& row : grid) {
    for (int column = 0; column < viewCount; ++column) {
      SCOPED_TRACE(std::string(row.startUp) + " " + viewNames[column]);
      const VelIRshParameter_var hParameter = Add(hShader, "p", row.startUp);
      Buffer buffer;
      const HRESULT set = hParameter->SetValue(ViewOf<VelRshValueSource>(column, buffer));
      EXPECT_EQ(set, row.fits[column] ? S_OK : E_FAIL);
      EXPECT_EQ(HasValue(hParameter), row.fits[column]);
      EXPECT_EQ(buffer, Buffer()) << "what is set is only read";
      const HRESULT got = hParameter->GetValue(ViewOf<VelRshValueTarget>(column, buffer));
      EXPECT_EQ(got, row.fits[column] ? S_OK : E_FAIL);
      EXPECT_EQ(buffer, Buffer());
    }
  }
}

TEST_F(VelRshValueViewTest, LargerViews_KeepTheRest) {
  const VelIRshShader_var hShader = MakeShader();
  const std::array<float, 16> ones = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  const struct {
    const char* startUp;
    int count;
  } cases[] = {{"VelRmaScalar", 1}, {"VelRmaVector", 3}, {"VelRmaColor", 4}, {"VelRmaMatrix", 16}};
  for (const auto& test : cases) {
    const VelIRshParameter_var hParameter = Add(hShader, "p", test.startUp);
    EXPECT_EQ(hParameter->SetValue(SourceOf(ones)), S_OK) << test.startUp;
    Buffer buffer;
    EXPECT_EQ(hParameter->GetValue(VelRshValueTarget(buffer.reals)), S_OK) << test.startUp;
    for (int i = 0; i < 17; ++i) EXPECT_EQ(buffer.reals[i], i < test.count ? 1.0F : 77.0F) << test.startUp << " " << i;
  }
}

TEST_F(VelRshValueViewTest, DefaultsGivenToLargerViews_KeepTheRest) {
  const VelIRshParameter_var hVector = Add(MakeShader(), "v", "VelRmaVector");
  float read[4] = {7, 7, 7, 7};
  EXPECT_EQ(hVector->GetValue(read), E_FAIL);
  EXPECT_EQ(read[2], 0.0F);
  EXPECT_EQ(read[3], 7.0F);
}

TEST_F(VelRshValueViewTest, ObjectOperations_FailWhereTheValueIsNoObject) {
  const VelIRshShader_var hShader = MakeShader();
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestAnything", nullptr);
  for (const Row& row : grid) {
    const std::string startUp = row.startUp;
    if (startUp == "VelRmaTexture" || startUp == "VelRmaLightProfile") continue;
    const VelIRshParameter_var hParameter = Add(hShader, "p", row.startUp);
    EXPECT_EQ(hParameter->SetValue(hObject.Get()), E_FAIL) << startUp;
    EXPECT_EQ(hParameter->SetValue(static_cast<VelBaseUnknown*>(nullptr)), E_FAIL) << startUp;
    VelBaseUnknown* read = hObject.Get();
    EXPECT_EQ(hParameter->GetValue(&read), E_FAIL) << startUp;
    EXPECT_EQ(read, hObject.Get()) << startUp;
    EXPECT_EQ(hParameter->GetValue(static_cast<VelBaseUnknown**>(nullptr)), E_FAIL) << startUp;
    EXPECT_FALSE(HasValue(hParameter)) << startUp;
  }
}

TEST_F(VelRshValueViewTest, NullViews_FailWhereTheValueIsAnObjectOrThereIsNone) {
  const VelIRshShader_var hShader = MakeShader();
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile", "VelRmaVoid", "VelRmaParameter"}) {
    const VelIRshParameter_var hParameter = Add(hShader, "p", startUp);
    EXPECT_EQ(hParameter->SetValue(VelRshValueSource(static_cast<const bool*>(nullptr))), E_FAIL) << startUp;
    EXPECT_EQ(hParameter->GetValue(VelRshValueTarget(static_cast<bool*>(nullptr))), E_FAIL) << startUp;
  }
}

TEST(VelRshValueViewOfMemoryTest, Views_KnowAddressKindAndCapacity) {
  std::int32_t integer = 1;
  float reals[5] = {};
  const VelRshValueTarget one(&integer);
  const VelRshValueTarget five(reals);
  const VelRshValueSource two(reals, 2);
  const VelRshValueSource none(static_cast<const VelUnicodeString*>(nullptr));
  EXPECT_EQ(one.Kind(), VelRshElementKind::Integer);
  EXPECT_EQ(one.Capacity(), 1U);
  EXPECT_EQ(one.As<std::int32_t>(), &integer);
  EXPECT_EQ(one.As<std::int32_t>(2), nullptr);
  EXPECT_EQ(one.As<bool>(), nullptr);
  EXPECT_EQ(five.Capacity(), 5U);
  EXPECT_EQ(five.As<float>(5), reals);
  EXPECT_EQ(two.Capacity(), 2U);
  EXPECT_EQ(two.As<float>(3), nullptr);
  EXPECT_TRUE(none.IsNull());
  EXPECT_EQ(none.Kind(), VelRshElementKind::Text);
  EXPECT_FALSE(two.IsNull());
}

}  // namespace
