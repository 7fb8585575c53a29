// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaConfiguration.h The rendering configuration: named tables of keys and values, each below another.
#ifndef PLATFORM_CONFIGURATION_VELRBACONFIGURATION_H
#define PLATFORM_CONFIGURATION_VELRBACONFIGURATION_H

#include <cstdint>
#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"

/// The configurations of the process. They are filled in code, by files (docs/configuration.md), and by the platform
/// session, whose share goes with it. Beneath them all stands what a source of the host says while a session runs
/// (VelIConfigurationSource). Names, keys and values are taken byte for byte; case counts.
///
/// What cannot be loaded is an error on the trace channel "VelRbaConfiguration". Thread: the application thread.
class VEL_PLATFORM_API VelRbaConfiguration {
 public:
  /// The configuration at the end of every hierarchy. It has no parent.
  static constexpr const char* defaultName = "Default";

  /// Looks a key up: in the configuration, in its parent, in the parent's parent and so on, then in "Default", also for
  /// a name that nobody knows. The first that has the key answers, be it with an empty text.
  ///
  /// Answers and absences are remembered until something changes; a look-up that was made before takes two accesses of
  /// hash tables and allocates nothing, as long as oValue has room for the value.
  /// @param[out] oValue the value as it was written; untouched on failure
  /// @return S_OK; E_FAIL when none has the key, when the configuration's name is empty, or when the key is not found
  ///         before the parents run in a circle ("Default" is not reached then; reported as an error)
  static HRESULT GetHierarchicalValue(const VelString& iConfiguration, const VelString& iKey, VelString& oValue);

  /// Sets a value, for longer than a session.
  /// @return S_OK; S_FALSE when it is the value already; E_INVALIDARG when configuration or key are empty
  static HRESULT SetValue(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue);

  /// Sets the configuration that stands above another, for longer than a session.
  /// @param[in] iParent any name, also one that nobody knows yet; empty for none
  /// @return S_OK; S_FALSE when it is the parent already; E_INVALIDARG when the configuration's name is empty or
  /// "Default"
  static HRESULT SetParent(const VelString& iConfiguration, const VelString& iParent);

  /// Takes the values and the parent of a configuration out. Whatever stands below it goes on naming it.
  /// @return S_OK; S_FALSE when there is no such configuration
  static HRESULT RemoveConfiguration(const VelString& iConfiguration);

  /// Takes everything out.
  static void Clear();

  /// Has the source of configurations (VelIConfigurationSource) asked again, because what it would say has changed.
  static void ForgetSources();

  /// @return a number that grows with each change of a value or of a parent, by which users know that what they have
  ///         remembered is out of date; it never falls. A text that the source gave by language follows the language
  ///         without a change.
  static std::uint64_t Generation() noexcept;

  /// Loads a configuration file, for longer than a session: as a whole or not at all. What it says overrides what was
  /// there, key by key. The library that reads it is opened by the first file.
  /// @param[in] iPath a regular file of at most 4 MiB
  /// @return S_OK; E_FAIL when the file cannot be read or is faulty, or when no library reads such files, which is a
  ///         warning once per process
  static HRESULT LoadFile(const std::string& iPath);

  /// Loads every file of a folder whose name ends in ".toml", in the order of their names. A folder without any is a
  /// warning.
  /// @return S_OK; E_FAIL when the folder cannot be read or a file of it fails; the other files are loaded all the same
  static HRESULT LoadFolder(const std::string& iPath);
};

#endif  // PLATFORM_CONFIGURATION_VELRBACONFIGURATION_H
