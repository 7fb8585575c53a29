// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaDefaultValue.h The value that a parameter of a shader type begins with.
#ifndef HOST_SHADERTYPES_VELRMADEFAULTVALUE_H
#define HOST_SHADERTYPES_VELRMADEFAULTVALUE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "host/shadertypes/VelRmaFaults.h"
#include "host/shadertypes/VelRmaNodes.h"
#include "host/shadertypes/VelRmaUnits.h"
#include "platform/base/VelUnicodeString.h"

/// A start-up of a parameter and what its values are.
struct VelRmaStartUp {
  enum class Form : std::uint8_t {
    None,  ///< A file gives it no value: a document, or a connection alone.
    Boolean,
    Integer,
    Reals,
    Text,
  };

  std::string_view name;
  Form form;
  std::size_t count;          ///< Of the reals, 0 for another form.
  std::string_view expected;  ///< Made to follow "expected".

  /// @return null for a name that is none of the ten
  static const VelRmaStartUp* Find(std::string_view iName);

  /// @return the names of all, in the order of the documentation
  static std::span<const std::string_view> Names() noexcept;
};

/// A value by its form.
class VelRmaDefaultValue {
 public:
  /// Reads a value from a file, and reports what does not fit.
  /// @param[in] iStartUp one that has values
  /// @param[in] iDimension what a scalar measures
  /// @return nothing when it was reported
  static std::optional<VelRmaDefaultValue> Read(const VelRmaStartUp& iStartUp, const VelRmaNodes& iNodes,
                                                std::size_t iNode, VelRmaUnits::Dimension iDimension,
                                                VelRmaFaults& ioFaults);

  /// Reads a number from a file, and reports what is none.
  /// @param[in] iDimension what it measures; a text is then a number and a unit, and for None it is refused
  /// @param[in] iExpected made to follow "expected"
  static std::optional<float> ReadNumber(const VelConfigurationNode& iNode, VelRmaUnits::Dimension iDimension,
                                         std::string_view iExpected, VelRmaFaults& ioFaults);

  /// @return the value as VelRmaParameterSettings reads it
  VelString Text() const;

  /// @return the code of VelIRshParameter::SetValue
  HRESULT WriteTo(VelIRshParameter& ioParameter) const;

  /// @return numbers separated by blanks, each the shortest text that reads back as the same number
  static std::string TextOf(std::span<const float> iReals);

 private:
  std::variant<bool, std::int32_t, VelUnicodeString, std::vector<float>> value_;
};

#endif  // HOST_SHADERTYPES_VELRMADEFAULTVALUE_H
