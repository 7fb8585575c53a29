// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaEditionMode.cpp The modes in which rendering materials are edited.
#include "platform/materials/VelIRmaEditionMode.h"

#include <array>
#include <cstddef>

namespace {

constinit std::array<bool, 3> isActive{};

}  // namespace

bool VelIRmaEditionMode::GetActivation(Mode iMode) noexcept {
  const auto number = static_cast<std::size_t>(iMode);
  return number < isActive.size() && isActive[number];
}

void VelIRmaEditionMode::SetActivation(Mode iMode, bool iIsActive) noexcept {
  if (const auto number = static_cast<std::size_t>(iMode); number < isActive.size()) isActive[number] = iIsActive;
}
