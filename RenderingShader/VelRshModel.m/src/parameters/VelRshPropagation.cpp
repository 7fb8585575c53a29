// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshPropagation.cpp The chain of values that are being taken over.
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshPropagation.h"

#include "platform/base/VelCheck.h"

namespace {

constexpr int depthLimit = 256;

}  // namespace

constinit const VelRshPropagation* VelRshPropagation::innermost = nullptr;

VelRshPropagation::VelRshPropagation(const VelRshParameterBase& iParameter) noexcept
    : parameter_(iParameter), outer_(innermost), depth_(outer_ != nullptr ? outer_->depth_ + 1 : 1) {
  innermost = this;
}

VelRshPropagation::~VelRshPropagation() { innermost = outer_; }

bool VelRshPropagation::MayGoOn() const noexcept {
  if (depth_ <= depthLimit) return true;
  VelCheck::Failed(VEL_HERE("RenderingShader/VelRshModel.m/src/VelRshPropagation"), "depth <= 256",
                   "A value is not handed on to further shaders");
  return false;
}

bool VelRshPropagation::IsRunningFor(const VelRshParameterBase& iParameter) noexcept {
  for (const VelRshPropagation* running = innermost; running != nullptr; running = running->outer_) {
    if (&running->parameter_ == &iParameter) return true;
  }
  return false;
}
