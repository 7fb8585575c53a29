// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMsgCatalog.h The texts that people read, in their language.
#ifndef PLATFORM_CONFIGURATION_VELMSGCATALOG_H
#define PLATFORM_CONFIGURATION_VELMSGCATALOG_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"

/// Messages by catalog and key, each in any number of languages. A language is named like a locale, "de" or "de_AT";
/// what follows a '.' or '@' ("de_AT.UTF-8") is left out, '-' means '_', and case counts. "C", "POSIX" and the empty
/// name mean English, "en". Messages stay until Clear, however many sessions begin and end. Beneath them, language by
/// language, stands what a source of the host says of the configuration of that name while a session runs
/// (VelIConfigurationSource).
///
/// What cannot be loaded is an error on the trace channel "VelMsgCatalog". Thread: the application thread.
class VEL_PLATFORM_API VelMsgCatalog {
 public:
  /// Finds a message in the language, else in the language without its region, else in English. The first that has it
  /// answers, be it with an empty text.
  /// @param[in] iCatalog the catalog's name, such as "VelRshPanel"; case counts
  /// @param[in] iKey the message's key in all languages, its parts joined by '.'; case counts
  /// @return the message as it was written, empty when there is none
  static VelUnicodeString BuildMessage(const VelString& iCatalog, const VelString& iKey);

  /// Sets the language; an empty name goes back to that of the environment variable VEL_LANGUAGE, which is read at each
  /// message.
  static void SetLanguage(const VelString& iLanguage);

  /// @return the language in force, without what is left out of its name
  static VelString Language();

  /// Sets a message.
  /// @return S_OK; S_FALSE when it is the message already; E_INVALIDARG when catalog or key are empty
  static HRESULT SetMessage(const VelString& iLanguage, const VelString& iCatalog, const VelString& iKey,
                            const VelUnicodeString& iText);

  /// Loads the messages of one catalog in one language, both named by the file, "<catalog>.<language>.toml": as a whole
  /// or not at all. They override what was there, key by key. docs/configuration.md describes the files.
  /// @param[in] iPath a regular file of at most 4 MiB
  /// @return S_OK; E_FAIL when the file is not named so, cannot be read or is faulty, or when no library reads such
  ///         files, which is a warning once per process
  static HRESULT LoadFile(const std::string& iPath);

  /// Takes all messages out, but for those of the source, and goes back to the language of the environment.
  static void Clear();
};

#endif  // PLATFORM_CONFIGURATION_VELMSGCATALOG_H
