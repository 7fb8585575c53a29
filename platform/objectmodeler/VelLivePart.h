// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLivePart.h The part of a component that exists only once something was built for it or points weakly to it.
#ifndef PLATFORM_OBJECTMODELER_VELLIVEPART_H
#define PLATFORM_OBJECTMODELER_VELLIVEPART_H

#include <cstdint>

class VelComponent;
class VelImplementation;

/// Outlives its component as long as weak references to it exist.
struct VelLivePart {
  VelComponent* component;             ///< Null from the moment in which the component is closed.
  VelImplementation* first = nullptr;  ///< What was built, the youngest first.
  std::uint32_t holders = 1;           ///< The weak references, and one for the component while its block exists.
  std::uint32_t pins = 0;              ///< The running calls that keep what was built.
};

#endif  // PLATFORM_OBJECTMODELER_VELLIVEPART_H
