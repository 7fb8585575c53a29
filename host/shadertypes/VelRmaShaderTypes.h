// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypes.h The shader types of files: where they are, and what was read of them.
#ifndef HOST_SHADERTYPES_VELRMASHADERTYPES_H
#define HOST_SHADERTYPES_VELRMASHADERTYPES_H

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/shadertypes/VelRmaShaderType.h"
#include "platform/base/HResult.h"
#include "platform/base/VelString.h"

/// Types are found by the names of their files, and read when they are first wanted: first those of the installation,
/// then those of VEL_SHADER_TYPES_PATH, then those of the session's options. Of several files of one name the first
/// sound one counts. What is refused is an error on the trace channel "VelRmaConfiguredShaderFactory".
///
/// A type whose file has gone or become faulty since stays as it was read. All of it goes with the platform's end.
/// Thread: the application thread.
class VelRmaShaderTypes {
 public:
  static VelRmaShaderTypes& Instance();

  /// Adds a file, or a folder with all its files, which are read at once.
  /// @return S_OK; E_FAIL, after an error, when something of it is refused
  HRESULT AddPath(const std::string& iPath);

  /// @return the names of the files' types, sound or not, without reading them
  std::vector<VelString> Names();

  /// @return the type as it was read; null for one that is unknown or faulty
  const VelRmaShaderType* Find(const VelString& iName);

  /// As Find; remembers that the configuration has what the type says.
  const VelRmaShaderType* FindForConfiguration(const VelString& iName);

  /// Looks for the files again and reads those that have changed, and has the configuration ask again where what it
  /// was told of has changed.
  /// @return the types that have files, in the order of the files
  std::vector<VelString> Rescan();

  /// Forgets everything.
  void Clear();

 private:
  /// What became of a file when it was last read.
  struct File {
    std::string path;
    std::optional<std::size_t> digest{};  ///< Of its bytes, or of why there are none.
    bool isSound = false;
  };

  /// All that is known by one name.
  struct Entry {
    VelString name;
    std::vector<File> files{};  ///< That there are now, the first ones before.
    bool isRead = false;        ///< Whether the files have been looked into since they were last looked for.
    bool isTold = false;        ///< Whether the configuration was told.
    std::string source{};       ///< The file that the type was read from.
    std::optional<VelRmaShaderType> type{};
  };

  void EnsureScanned();
  void Scan();
  void ScanPath(const std::string& iPath);
  void ScanFile(const std::string& iPath);
  static std::vector<std::string> FilesOf(const std::string& iPath);

  /// @return true when the type is another one now
  bool Read(Entry& ioEntry);
  bool ReadFile(Entry& ioEntry, File& ioFile);

  /// Tells something once.
  void ReportOnce(const std::string& iText);

  bool isScanned_ = false;
  std::vector<std::string> added_;  ///< The paths of the session's options.
  std::deque<Entry> entries_;       ///< In the order in which they were found.
  std::unordered_map<VelString, Entry*> byName_;
  std::vector<Entry*> present_;  ///< Those with files, in their order.
  std::unordered_set<std::string> reported_;
};

#endif  // HOST_SHADERTYPES_VELRMASHADERTYPES_H
