// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExCoatingTypes.h The shader types of this module as a table.
#ifndef EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGTYPES_H
#define EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGTYPES_H

#include <array>
#include <cstdint>
#include <span>
#include <variant>

#include "platform/base/VelString.h"

using VelExVector = std::array<float, 3>;  ///< x, y, z
using VelExColor = std::array<float, 4>;   ///< red, green, blue, alpha

/// A parameter and its default, whose C++ type decides the start-up.
struct VelExCoatingParameter {
  const char* name;
  std::variant<bool, std::int32_t, float, VelExVector, VelExColor> value;

  /// @return for instance "VelRmaScalar" for a float
  const char* StartUp() const noexcept;
};

struct VelExCoatingType {
  const char* name;
  const char* displayName;  ///< In English, where no message catalog has another.
  const char* outputType;   ///< The start-up of the value that such a shader produces.
  std::uint32_t usage;      ///< The contexts in which it may be offered, a bit each; 0 is any.
  std::uint32_t version;    ///< Another number with every change of the parameters.
  std::span<const VelExCoatingParameter> parameters;
};

/// @return every type of the module
std::span<const VelExCoatingType> VelExCoatingTypes() noexcept;

/// @return null for a type of somebody else
const VelExCoatingType* VelExFindCoatingType(const VelString& iName) noexcept;

#endif  // EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGTYPES_H
