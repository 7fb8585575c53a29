// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExCoatingTypes.cpp A pearl coat and a woven fabric.
#include "VelExCoatingTypes.h"

namespace {

/// Paint whose colour turns with the angle of view.
constexpr VelExCoatingParameter pearlCoat[] = {
    {"face_color", VelExColor{0.05F, 0.12F, 0.35F, 1.0F}},  // seen from the front
    {"flop_color", VelExColor{0.30F, 0.05F, 0.28F, 1.0F}},  // seen at a grazing angle; since version 2
    {"flop_sharpness", 2.5F},                               // exponent of the turn; since version 2
    {"pearl_amount", 0.4F},                                 // 0 to 1
    {"coats", std::int32_t{2}},                             // 1 to 4
    {"clear_coat", true},
};

/// Two threads, of which each passes over some of the other.
constexpr VelExCoatingParameter twillWeave[] = {
    {"warp_color", VelExColor{0.10F, 0.11F, 0.16F, 1.0F}},
    {"weft_color", VelExColor{0.62F, 0.60F, 0.55F, 1.0F}},
    {"warp_direction", VelExVector{1.0F, 0.0F, 0.0F}},  // in the texture's plane, of length 1
    {"threads_per_centimetre", 24.0F},
    {"passed_over", std::int32_t{2}},  // threads, 1 is a plain weave
    {"fuzz", 0.0F},                    // 0 to 1
};

constexpr VelExCoatingType types[] = {
    {"ExPearlCoat", "Two-tone pearl coat", "VelRmaColor", 6, 2, pearlCoat},
    {"ExTwillWeave", "Twill weave", "VelRmaColor", 0, 1, twillWeave},
};

/// In the order of the variant.
constexpr const char* startUps[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaVector", "VelRmaColor"};
static_assert(std::size(startUps) == std::variant_size_v<decltype(VelExCoatingParameter::value)>);

}  // namespace

const char* VelExCoatingParameter::StartUp() const noexcept { return startUps[value.index()]; }

std::span<const VelExCoatingType> VelExCoatingTypes() noexcept { return types; }

const VelExCoatingType* VelExFindCoatingType(const VelString& iName) noexcept {
  for (const VelExCoatingType& type : types) {
    if (iName == type.name) return &type;
  }
  return nullptr;
}
