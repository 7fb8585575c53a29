// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ShaderTypesTest.h The fixture of the tests of shader types from files: a session with the host, and files.
#ifndef TESTS_HOST_SHADERTYPES_SHADERTYPESTEST_H
#define TESTS_HOST_SHADERTYPES_SHADERTYPESTEST_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/session/VelPlatformSession.h"
#include "tests/platform/configuration/ConfigurationTest.h"

/// The environment names the folder "types", in which a test writes its files. The shipped types are there too. A test
/// starts the session itself.
class ShaderTypesTest : public ConfigurationTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Starts a session with the dictionaries of the component, the host and the reader of files, and fills hContainer_.
  HRESULT Start(VelPlatformOptions iOptions = {});
  void End();

  /// Writes a file of the folder "types".
  std::string WriteType(const std::string& iName, std::string_view iText) const {
    return folder_.Write("types/" + iName + ".toml", iText);
  }

  /// @return a sound file, whose lines 5 and on are the given ones
  static std::string Sound(const std::string& iName, std::string_view iRest = {}) {
    return "type = \"" + iName + "\"\noutput = \"VelRmaColor\"\nversion = 1\nusage = \"any\"\n" + std::string(iRest);
  }

  static VelRshShaderManager& Manager() { return *VelRshShaderManager::GetManager(); }

  /// @return the names of the types that the manager lists for any context, which are not those of the installation
  static Texts OwnTypes();

  /// @return what people call a type, "?" where it is not listed
  static std::string DisplayName(const char* iType);

  VelIRshShader_var Create(const char* iType);

  static VelIRshParameter_var Find(const VelIRshShader_var& iShader, const char* iName);

  /// @return "name: start-up" of the parameters, in order
  static Texts ParametersOf(const VelIRshShader_var& iShader);

  /// @return a scalar's value, -1 where none is given
  static float ScalarOf(const VelIRshShader_var& iShader, const char* iName);

  static std::string LabelOf(VelBaseUnknown* iObject);

  /// @return true when the attribute of a value is written
  static bool HasOwnValue(const VelIRshParameter_var& iParameter);

  std::optional<VelPlatformSession> session_;
  VelIContainer_var hContainer_;
};

#endif  // TESTS_HOST_SHADERTYPES_SHADERTYPESTEST_H
