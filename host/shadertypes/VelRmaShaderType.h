// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderType.h What a file says of a shader type.
#ifndef HOST_SHADERTYPES_VELRMASHADERTYPE_H
#define HOST_SHADERTYPES_VELRMASHADERTYPE_H

#include <cstdint>
#include <optional>
#include <vector>

#include "host/shadertypes/VelRmaDefaultValue.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/configuration/VelIConfigurationSource.h"

/// A text for people in one language.
struct VelRmaLabel {
  VelString language;  ///< "en" or "de_AT".
  VelString text;
};

/// How a parameter is shown.
struct VelRmaLayout {
  VelString kind;
  bool isShown = true;
  std::optional<VelString> text;
};

struct VelRmaShaderParameter {
  VelString name;
  VelString startUp;
  std::optional<VelRmaDefaultValue> value;  ///< Nothing for a document or a connection.
  VelString tags;                           ///< Separated by blanks, empty for none.
  VelString slot;                           ///< Empty for none.
  std::vector<VelRmaLabel> labels;          ///< Empty, or with an English one among them.
  std::optional<VelRmaLayout> layout;
};

/// A key of the mapping readers.
struct VelRmaMappingKey {
  VelString key;
  VelString value;
};

struct VelRmaShaderType {
  VelString name;
  VelString outputType;
  std::uint32_t usage = 0;
  std::uint32_t version = 0;
  VelString parent;                 ///< The configuration above, empty for none.
  std::vector<VelRmaLabel> labels;  ///< Empty, or with an English one among them.
  std::vector<VelRmaShaderParameter> parameters;
  std::vector<VelRmaMappingKey> mapping;

  /// @return the label in a language, else in it without its region, else in English, else the type's name
  VelString LabelIn(const VelString& iLanguage) const;

  /// @return what the type adds to the configuration of its name
  VelSourcedConfiguration Configuration() const;
};

#endif  // HOST_SHADERTYPES_VELRMASHADERTYPE_H
