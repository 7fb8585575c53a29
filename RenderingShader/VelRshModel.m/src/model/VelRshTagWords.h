// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTagWords.h Reads the tags that a configuration gives a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGWORDS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGWORDS_H

#include <optional>

#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/base/VelString.h"
#include "platform/base/VelToken.h"

/// The tags of a text such as "diffuse scale_u", one after the other.
class VelRshTagWords {
 public:
  using Tag = VelIRshParameterPrivate::Tag;

  /// @param[in] iText what stands in the configuration under the parameter's name and ".Tag"
  explicit VelRshTagWords(const VelString& iText) : words_(iText) {}

  /// @return the tag of the next word; nothing at the end. A word that is not in the vocabulary counts as "dpi", and is
  ///         reported each time it is met.
  std::optional<Tag> Next();

  /// @return true when every word of a text is in the vocabulary; nothing is reported
  static bool AreAllKnown(const VelString& iText);

  /// Finds the text in a configuration.
  /// @return nothing when the configuration has none for the parameter
  static std::optional<VelString> FindText(const VelString& iConfiguration, const VelString& iParameter);

 private:
  VelToken words_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHTAGWORDS_H
