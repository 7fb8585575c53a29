// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterSettings.h What the configuration of a shader type says of one of its parameters.
#ifndef HOST_LAYOUT_VELRMAPARAMETERSETTINGS_H
#define HOST_LAYOUT_VELRMAPARAMETERSETTINGS_H

#include "RenderingShader/interfaces/VelRshValueTarget.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"

class VelBaseUnknown;

/// Reads the keys "<name>.<word>" of the configuration that the type of the parameter's shader names. The parameter's
/// value is never asked for, since it may be what is being read. Thread: the application thread.
class VelRmaParameterSettings {
 public:
  static constexpr const char* layoutWord = "Layout";              ///< The kind of control.
  static constexpr const char* shownWord = "Shown";                ///< "Yes" shows the parameter.
  static constexpr const char* layoutValueWord = "LayoutValue";    ///< The text of the control.
  static constexpr const char* defaultValueWord = "DefaultValue";  ///< The value where none is set.

  /// @param[in] iParameter what stands for a parameter
  explicit VelRmaParameterSettings(VelBaseUnknown& iParameter);

  bool Has(const char* iWord) const;

  /// @param[out] oText untouched on failure
  /// @return S_OK; E_FAIL when the configuration does not say
  HRESULT Read(const char* iWord, VelString& oText) const;

  /// Reads the default value: "true", "yes", "1", "false", "no" or "0" in letters of either case for a boolean, a whole
  /// number, as many reals as there is room for, separated by blanks (three for a colour are opaque), or the text as it
  /// is.
  /// @param[out] oValue untouched on failure
  /// @return S_OK; E_FAIL when the configuration does not say, and, after an error on the channel
  ///         "VelRmaParameterSettings", when the text is none of that type
  HRESULT ReadDefault(VelRshValueTarget oValue) const;

 private:
  VelString configuration_;  ///< Empty without a shader.
  VelString name_;
};

#endif  // HOST_LAYOUT_VELRMAPARAMETERSETTINGS_H
