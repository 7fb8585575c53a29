// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeFile.h A file of a shader type: its name, its text, and what is said of it.
#ifndef HOST_SHADERTYPES_VELRMASHADERTYPEFILE_H
#define HOST_SHADERTYPES_VELRMASHADERTYPEFILE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "host/shadertypes/VelRmaShaderType.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/configuration/VelConfigurationContent.h"

/// Reports on the trace channel "VelRmaConfiguredShaderFactory".
class VelRmaShaderTypeFile {
 public:
  static constexpr std::size_t byteLimit = 4U << 20U;
  static constexpr const char* nameEnd = ".toml";

  /// @return the type that a file is named after; empty for a path that does not end in "<type>.toml"
  static VelString NameOf(std::string_view iPath);

  /// @param[out] oCause why the file cannot be read
  static bool Load(const std::string& iPath, std::string& oText, std::string& oCause);

  /// Reads the text of a file, and reports all that is wrong with it, or as information that it was read.
  /// @param[in] iText untrusted
  /// @param[in] iName the type that the file is named after
  /// @param[out] oType untouched unless S_OK
  /// @return S_OK; S_FALSE, after one warning for all files, when no library reads such texts; E_FAIL when something is
  ///         wrong
  static HRESULT Parse(const std::string& iPath, std::string_view iText, const VelString& iName,
                       VelRmaShaderType& oType);

  /// Sends an error, worded "<file>:<line>:<column>: <cause>".
  static void Report(const std::string& iPath, const VelConfigurationFault& iFault);
  static void Report(const std::string& iText);
};

#endif  // HOST_SHADERTYPES_VELRMASHADERTYPEFILE_H
