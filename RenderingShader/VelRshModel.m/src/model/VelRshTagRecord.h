// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTagRecord.h What one configuration says of the tags of the parameters of one name.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGRECORD_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGRECORD_H

#include <cstdint>

#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/base/VelString.h"

/// The tags as a mask, remembered until configurations change. One record per configuration and name, kept to the end
/// of the process.
class VelRshTagRecord {
 public:
  using Tag = VelIRshParameterPrivate::Tag;

  VelRshTagRecord(const VelRshTagRecord&) = delete;
  VelRshTagRecord& operator=(const VelRshTagRecord&) = delete;

  /// @return the record; null when there are 65,536 already, which goes to show that names are made up
  static VelRshTagRecord* Of(const VelString& iConfiguration, const VelString& iParameter);

  /// Looks the tags up again where configurations have changed.
  /// @return false when a word is not in the vocabulary: each reading is to report it, so that nothing is remembered
  bool IsUsable();

  /// Only for a record that is usable.
  bool Has(Tag iTag) const noexcept { return (tags_ >> static_cast<unsigned>(iTag) & 1U) != 0; }

  /// @return a bit per tag
  std::uint64_t Tags() const noexcept { return tags_; }

 private:
  VelRshTagRecord(const VelString& iConfiguration, const VelString& iParameter)
      : configuration_(iConfiguration), parameter_(iParameter) {}

  void Look();

  VelString configuration_;
  VelString parameter_;
  std::uint64_t tags_ = 0;
  std::uint64_t generation_ = 0;  ///< That of the configurations when it was looked up.
  bool isLookedUp_ = false;
  bool isUsable_ = false;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGRECORD_H
