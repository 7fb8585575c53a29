// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DictionaryScope.h A place for the dictionary files of a test, which are unloaded at its end, and the errors
/// they cause.
#ifndef TESTS_PLATFORM_OBJECTMODELER_DICTIONARYSCOPE_H
#define TESTS_PLATFORM_OBJECTMODELER_DICTIONARYSCOPE_H

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/HResult.h"
#include "platform/objectmodeler/VelInterfaceId.h"
#include "platform/objectmodeler/VelVar.h"
#include "platform/trace/VelDiagnostics.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

/// Writes and loads dictionary files in a folder of its own and records what the dictionary reports. At its end all of
/// them are unloaded and the library folders are forgotten.
class DictionaryScope {
 public:
  DictionaryScope();
  ~DictionaryScope();
  DictionaryScope(const DictionaryScope&) = delete;
  DictionaryScope& operator=(const DictionaryScope&) = delete;

  /// @return the path of an entry of the folder, as the dictionary's messages name it; the folder itself without a name
  std::string Path(std::string_view iName = {}) const;

  /// @return the warnings since the last call of this or of TakeErrors
  std::vector<std::string> TakeWarnings();

  /// @return the path of the file
  std::string Write(std::string_view iName, std::string_view iText) const { return folder_.Write(iName, iText); }

  /// Makes a folder in the folder.
  void MakeFolder(std::string_view iName);

  /// Writes a dictionary file and loads it.
  HRESULT Load(std::string_view iName, std::string_view iText);

  /// Writes and loads a dictionary of one module, whose further lines begin at line 5.
  HRESULT LoadModule(std::string_view iName, std::string_view iModule, std::string_view iLines,
                     std::string_view iLibrary = "libVelTestNowhere.so");

  HRESULT Unload(std::string_view iName) const;

  /// @return what the dictionary has reported since the last call, without the path of the scope's folder
  std::vector<std::string> TakeErrors();

 private:
  VelTemporaryFolder folder_;
  std::string path_;
  std::vector<std::string> folders_;
  VelDiagnostics diagnostics_;
};

/// @return the text of a dictionary of one module of the framework "FrameworkOf<module>"; its further lines begin at
///         line 5
std::string ModuleText(std::string_view iModule, std::string_view iLines,
                       std::string_view iLibrary = "libVelTestNowhere.so");

/// Asks a new object of a late type for an interface, which it must leave null when it fails.
HRESULT Ask(std::string_view iLateType, const VelInterfaceId& iInterface);

/// @return the class that answers an interface of a new object, empty when nothing does
std::string AnsweringClass(std::string_view iLateType, const VelInterfaceId& iInterface);

/// @return true when the dictionary binds an interface to a late type, which it says without opening anything
bool Offers(std::string_view iLateType, const VelInterfaceId& iInterface);

/// @return the path of a library of the build
std::string BuiltLibrary(std::string_view iModule);

/// @return the path of a dictionary file that the build made
std::string BuiltDictionary(std::string_view iModule);

/// Runs a body in a process of its own, in which no module is open yet. Once in a test.
void RunAlone(void (*iBody)());

using Texts = std::vector<std::string>;

class DictionaryTest : public ::testing::Test {
 protected:
  DictionaryScope scope_;
};

#endif  // TESTS_PLATFORM_OBJECTMODELER_DICTIONARYSCOPE_H
