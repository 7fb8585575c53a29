// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformSession.h Starts and ends the platform in a host process.
#ifndef PLATFORM_SESSION_VELPLATFORMSESSION_H
#define PLATFORM_SESSION_VELPLATFORMSESSION_H

#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/session/VelPlatformOptions.h"
#include "platform/session/VelSessionParticipant.h"

/// A session of the platform: from its start to its end (or its destruction) the dictionaries and what else the options
/// name are loaded, and the thread that started it is the application thread. One session at a time; a process can run
/// any number of them one after the other.
class VEL_PLATFORM_API VelPlatformSession {
 public:
  VelPlatformSession() = default;
  ~VelPlatformSession();
  VelPlatformSession(const VelPlatformSession&) = delete;
  VelPlatformSession& operator=(const VelPlatformSession&) = delete;

  /// Starts the platform: traces as the environment says (VEL_TRACE, VEL_TRACE_FILE, VEL_TRACE_JSON), the dictionaries
  /// of VEL_DICTIONARY_PATH (files and folders, separated by ':'; a faulty one is reported and left out), those of the
  /// options, then the services, those of catalogs and configurations (installed ones, and VEL_CONFIGURATION_PATH)
  /// among them. What fails is reported on the trace channels, and nothing stays started.
  /// @return S_OK; E_UNEXPECTED when a session is running; E_FAIL when a file of the options cannot be found or is
  ///         refused; else the code of the service that failed
  HRESULT Start(const VelPlatformOptions& iOptions = {});

  /// Ends the platform: the exit hooks run, the services end, the dictionaries are unloaded. Components that are alive
  /// stay alive, as far as they are built: their number is a warning, since a host should have released them before.
  /// @return S_OK; S_FALSE when this session is not running, or is still starting or ending already
  HRESULT End() noexcept;

  bool IsRunning() const noexcept { return current == this; }

  /// @return the running session, null when there is none
  static VelPlatformSession* Current() noexcept { return current; }

  /// Finds a file or folder as the options are looked for.
  /// @return its path, empty when there is none
  std::string Locate(const std::string& iPath) const;

  /// Adds a service, which is not owned and must stay for the rest of the process. Takes part from the next start on.
  static void AddParticipant(VelSessionParticipant& iParticipant);

 private:
  HRESULT StartServices();
  HRESULT LoadDictionaries();
  bool LoadDictionary(const std::string& iPath);
  void LoadDictionariesOfEnvironment();
  void Stop() noexcept;

  static VelPlatformSession* current;

  VelPlatformOptions options_;
  bool changing_ = false;                        ///< Whether it is starting or ending: no service may end it then.
  std::vector<std::string> loaded_;              ///< The dictionary files that this session loaded.
  std::vector<VelSessionParticipant*> started_;  ///< The services that this session started.
};

#endif  // PLATFORM_SESSION_VELPLATFORMSESSION_H
