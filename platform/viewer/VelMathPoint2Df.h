// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMathPoint2Df.h A point of the plane, in single precision.
#ifndef PLATFORM_VIEWER_VELMATHPOINT2DF_H
#define PLATFORM_VIEWER_VELMATHPOINT2DF_H

/// A point or a translation of the plane of texture coordinates.
struct VelMathPoint2Df {
  float x = 0.0F;
  float y = 0.0F;

  friend bool operator==(const VelMathPoint2Df&, const VelMathPoint2Df&) = default;
};

#endif  // PLATFORM_VIEWER_VELMATHPOINT2DF_H
