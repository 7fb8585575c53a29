// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationSources.h What the source of configurations has said in a session.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONSOURCES_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONSOURCES_H

#include <string>
#include <unordered_map>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/configuration/VelIConfigurationSource.h"

/// Asks the source (VelIConfigurationSource) while a session runs, each question once. Not exported.
class VelConfigurationSources {
 public:
  /// A value, whose text is a message of the catalog named as the configuration where it has none of its own.
  struct Value {
    VelString text;
    bool isMessage = false;
  };

  struct Configuration {
    VelString parent;  ///< Empty for none.
    std::unordered_map<VelString, Value> values;
    std::unordered_map<VelString, std::unordered_map<VelString, VelUnicodeString>> messages;  ///< By language, by key.
  };

  static VelConfigurationSources& Instance();

  /// Lets the source be asked.
  void BeginSession();

  /// Hands a path of the session's options to the source.
  /// @return S_OK; E_FAIL when there is no source, or it refuses the path
  HRESULT AddPath(const std::string& iPath);

  /// Lets go of the source and of all that it said.
  /// @return true when look-ups may be answered otherwise from now on
  bool EndSession();

  /// Takes out what was said, so that the source is asked again.
  /// @return true when look-ups may be answered otherwise from now on
  bool Forget();

  /// Takes out what was said, until the source is asked again.
  /// @return true when there was something
  bool Clear();

  /// Takes out what was said of one configuration, until the source is asked again.
  /// @return false when there was nothing
  bool Remove(const VelString& iName);

  /// Asks for the names of the configurations, unless that was done.
  /// @return true when there are some that were not there before
  bool List();

  /// @return true while the source is at work, and answers are not those of later
  bool IsAsking() const noexcept { return isAsking_; }

  /// @return what the source says of a configuration, null where it says nothing; until the next change
  const Configuration* Find(const VelString& iName);

 private:
  /// A configuration that the source has listed.
  struct Entry {
    bool isRead = false;
    bool isSound = false;
    Configuration content;
  };

  VelIConfigurationSource* Source();
  void Read(const VelString& iName, Entry& ioEntry);

  bool isRunning_ = false;
  bool isSought_ = false;  ///< Whether the dictionary was asked for a source.
  bool isListed_ = false;
  bool isAsking_ = false;  ///< Whether the source is at work: what it looks up is answered without it.
  VelIConfigurationSource_var hSource_;
  std::unordered_map<VelString, Entry> entries_;
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONSOURCES_H
