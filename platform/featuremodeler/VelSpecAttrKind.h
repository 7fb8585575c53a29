// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecAttrKind.h The kinds of attributes that a feature can have.
#ifndef PLATFORM_FEATUREMODELER_VELSPECATTRKIND_H
#define PLATFORM_FEATUREMODELER_VELSPECATTRKIND_H

#include <cstdint>
#include <string_view>

/// What an attribute holds. The words are those of catalog files.
enum class VelSpecAttrKind : std::uint8_t {
  Boolean,     ///< "boolean"
  Integer,     ///< "integer": 32 bits, signed
  Unsigned,    ///< "unsigned": 32 bits
  Real,        ///< "real": 64 bits
  Reals,       ///< "reals": a list of reals, up to the capacity that the catalog gives
  Text,        ///< "text"
  Reference,   ///< "reference": another feature, not owned
  Components,  ///< "components": a list of features that the feature owns
  Document,    ///< "document": a document, referenced
};

/// A kind and its word.
struct VelSpecAttrKindWord {
  std::string_view word;
  VelSpecAttrKind kind;
};

inline constexpr VelSpecAttrKindWord velSpecAttrKinds[] = {
    {"boolean", VelSpecAttrKind::Boolean},     {"integer", VelSpecAttrKind::Integer},
    {"unsigned", VelSpecAttrKind::Unsigned},   {"real", VelSpecAttrKind::Real},
    {"reals", VelSpecAttrKind::Reals},         {"text", VelSpecAttrKind::Text},
    {"reference", VelSpecAttrKind::Reference}, {"components", VelSpecAttrKind::Components},
    {"document", VelSpecAttrKind::Document},
};

#endif  // PLATFORM_FEATUREMODELER_VELSPECATTRKIND_H
