// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshCopyDepth.cpp Counts.
#include "RenderingShader/VelRshModel.m/src/management/VelRshCopyDepth.h"

#include "platform/base/VelCheck.h"

int VelRshCopyDepth::depth = 0;

VelRshCopyDepth::VelRshCopyDepth(const char* iSource) noexcept : source_(iSource) { ++depth; }

VelRshCopyDepth::~VelRshCopyDepth() { --depth; }

bool VelRshCopyDepth::MayGoOn() const noexcept {
  if (depth <= most) return true;
  VelCheck::Failed({source_, __LINE__}, "depth <= 256", "Shaders are nested too deep to be copied");
  return false;
}
