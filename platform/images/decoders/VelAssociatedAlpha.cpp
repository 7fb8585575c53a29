// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAssociatedAlpha.cpp One pass over the pixels.
#include "platform/images/decoders/VelAssociatedAlpha.h"

#include <cmath>

void VelAssociatedAlpha::Remove(std::span<std::byte> ioPixels) noexcept {
  auto* pixel = reinterpret_cast<float*>(ioPixels.data());
  const float* end = pixel + ioPixels.size() / sizeof(float);
  for (; pixel != end; pixel += 4) {
    const float alpha = pixel[3];
    if (alpha == 1.0F || alpha == 0.0F || !std::isfinite(alpha)) continue;
    for (int i = 0; i < 3; ++i) pixel[i] /= alpha;
  }
}
