// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshMappingReading.h What the readers of texture mapping share: the keys, the order of fall-backs and the
/// messages.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHMAPPINGREADING_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHMAPPINGREADING_H

#include <utility>

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/trace/VelTraceHandle.h"

/// A value of u and one of v.
using VelRshMappingPair = std::pair<double, double>;

/// The words of one reader of two components.
struct VelRshMappingTexts {
  const char* source;        ///< The source text of its errors.
  const char* defaultKey;    ///< The key of the value where no parameter is named.
  const char* parameterKey;  ///< The key that names the parameters.
  const char* parseError;    ///< Told with the configuration, the key and its value.
  const char* readAs;        ///< This and those that follow are told with the two values.
  const char* defaultedTo;
  const char* fallBackTo;
};

/// What a configuration says of one kind of mapping; empty where it says nothing.
struct VelRshMappingSettings {
  VelString catalog;  ///< The type of the shader, which names the configuration.
  VelString defaultValue;
  VelString parameterNames;

  static VelRshMappingSettings Read(const VelIRshShader& iShader, const char* iDefaultKey, const char* iParameterKey);
};

/// Reads a pair of values: from the parameters that the configuration names, else from its default, else the caller's
/// fall-back. Every decision is told.
class VelRshMappingReading {
 public:
  /// What a parameter contributes; the handle is empty for one that is not found.
  using Component = double (*)(const VelIRshParameter_var& iParameter, const VelTraceHandle& iTrace);

  /// The longest name that a key can hold. Keys are read as "%254s %254s" and "%lf %lf" of the C library would read
  /// them in no locale, so that the rest of a longer name counts as the next one.
  static constexpr std::size_t nameLimit = 254;

  /// @param[in] iTrace the channel of the reader
  /// @param[in] iMultiplier every result is multiplied by it, component by component
  static VelRshMappingPair Read(const VelTraceHandle& iTrace, const VelRshMappingTexts& iTexts,
                                const VelIRshShader& iShader, Component iComponent, const VelRshMappingPair& iFallBack,
                                const VelRshMappingPair& iMultiplier = {1.0, 1.0});

  /// Finds a parameter of a shader by name, and tells whether it was found.
  /// @param[in] iMessage told with the name: an information, or an error under the source text
  static VelIRshParameter_var Find(const VelTraceHandle& iTrace, const char* iSource, const VelIRshShader& iShader,
                                   const VelString& iName, const char* iMessage);

  /// The component of a number: what VelRshReaderParameterValue::asScalar gives, 1 for a parameter that is not found.
  static double ScalarOrOne(const VelIRshParameter_var& iParameter, const VelTraceHandle& iTrace);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHMAPPINGREADING_H
