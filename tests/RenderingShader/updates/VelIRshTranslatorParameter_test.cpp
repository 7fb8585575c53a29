// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshTranslatorParameter_test.cpp The places of the translators' calls in their tables of virtual functions.
#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"

#include <array>
#include <cstddef>
#include <cstring>

#include <gtest/gtest.h>

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorDerivedParameter.h"

namespace {

#if defined(__x86_64__)
/// @return the place of a call behind the destructor, which takes two places and counts as one. A pointer to a virtual
///         member holds the offset in the table, plus one.
template <class Interface, class Notification>
std::size_t PlaceOf() {
  bool (Interface::*const call)(const Notification&) const = &Interface::operator();
  std::array<std::size_t, 2> words{};
  static_assert(sizeof(words) == sizeof(call));
  std::memcpy(words.data(), &call, sizeof(words));
  EXPECT_EQ(words[0] % sizeof(void*), 1U) << "it is not virtual";
  return (words[0] - 1) / sizeof(void*) - 1;
}

template <class Interface>
void ExpectPlaces() {
  EXPECT_EQ((PlaceOf<Interface, VelRbaResetRenderingMaterialNotification>()), 1U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaIntegralShaderModifyNotification>()), 2U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaNotificationTopologyModification>()), 3U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaBooleanShaderModifyNotification>()), 4U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaStringShaderModifyNotification>()), 5U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaFloatShaderModifyNotification>()), 6U);
  EXPECT_EQ((PlaceOf<Interface, VelRbaColorShaderModifyNotification>()), 7U);
}

TEST(VelIRshTranslatorParameterTest, Calls_HaveTheirFixedPlaces) {
  ExpectPlaces<VelIRshTranslatorParameter>();
  ExpectPlaces<VelIRshTranslatorDerivedParameter>();
}
#endif

}  // namespace
