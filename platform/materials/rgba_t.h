// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file rgba_t.h A colour of a rendering material.
#ifndef PLATFORM_MATERIALS_RGBA_T_H
#define PLATFORM_MATERIALS_RGBA_T_H

/// Red, green, blue and alpha, each from 0 to 1 by custom; nothing clamps them. Compared component by component, so a
/// colour with a NaN equals no colour.
struct rgba_t {  // NOLINT(readability-identifier-naming): the name by which editors know it
  float r = 0.0F;
  float g = 0.0F;
  float b = 0.0F;
  float a = 0.0F;

  friend bool operator==(const rgba_t&, const rgba_t&) = default;
};

#endif  // PLATFORM_MATERIALS_RGBA_T_H
