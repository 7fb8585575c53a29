// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformSession.cpp The order in which the platform starts and ends.
#include "platform/session/VelPlatformSession.h"

#include <algorithm>
#include <utility>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelCheck.h"
#include "platform/base/VelEnvironment.h"
#include "platform/base/VelExceptionText.h"
#include "platform/base/VelThreadBinding.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/trace/VelTraceHandle.h"
#include "platform/trace/VelTraceService.h"

VelPlatformSession* VelPlatformSession::current = nullptr;

namespace {

constexpr const char* sourceText = "platform/session/VelPlatformSession";

std::vector<VelSessionParticipant*>& Participants() {
  static auto& participants = *new std::vector<VelSessionParticipant*>;
  return participants;
}

constexpr const char* channel = "VelPlatformSession";

void ReportError(const std::string& iText) { VelTraceHandle(channel).Error(VEL_HERE(sourceText), "%s", iText); }

/// Starts a service; one that throws has failed.
HRESULT StartService(VelSessionParticipant& ioService, const VelPlatformOptions& iOptions) noexcept {
  try {
    return ioService.OnSessionStart(iOptions);
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "OnSessionStart()", "A service threw an exception when the session started",
                     VelExceptionText("OnSessionStart"));
    return E_FAIL;
  }
}

void EndService(VelSessionParticipant& ioService) noexcept {
  try {
    ioService.OnSessionEnd();
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "OnSessionEnd()", "A service threw an exception when the session ended",
                     VelExceptionText("OnSessionEnd"));
  }
}

/// Objects that outlive the session answer with what is built, and with nothing that would have to be built.
void WarnOfLiveObjects() {
  const VelInstanceCounts left = VelInstanceCounts::Now();
  if (left.components == 0) return;
  VelTraceHandle(channel).Warning("Objects outlive the session { components = %d, forwarders = %d }", left.components,
                                  left.forwarders);
}

bool IsFolder(const std::string& iPath) {
  std::vector<std::string> names;
  std::string cause;
  return SUCCEEDED(VelSystemFile::ListFolder(iPath, ".dictionary", names, cause));
}

}  // namespace

VelPlatformSession::~VelPlatformSession() { static_cast<void>(End()); }

HRESULT VelPlatformSession::Start(const VelPlatformOptions& iOptions) {
  if (current != nullptr) {
    ReportError("A platform session is running already; end it before another one is started");
    return E_UNEXPECTED;
  }
  VelThreadBinding::Bind();
  VelTraceService::ApplyEnvironment();
  current = this;
  changing_ = true;
  options_ = iOptions;
  HRESULT result = LoadDictionaries();
  if (SUCCEEDED(result)) result = StartServices();
  if (FAILED(result)) Stop();
  changing_ = false;
  return result;
}

HRESULT VelPlatformSession::End() noexcept {
  if (!IsRunning() || changing_) return S_FALSE;
  changing_ = true;
  VelPlatformTerminate();
  Stop();
  WarnOfLiveObjects();
  changing_ = false;
  return S_OK;
}

std::string VelPlatformSession::Locate(const std::string& iPath) const {
  if (VelSystemFile::Exists(iPath)) return iPath;
  if (iPath.empty() || iPath.front() == '/') return {};
  for (const std::string& folder : options_.searchFolders) {
    if (std::string candidate = folder + '/' + iPath; VelSystemFile::Exists(candidate)) return candidate;
  }
  return {};
}

void VelPlatformSession::AddParticipant(VelSessionParticipant& iParticipant) {
  auto& participants = Participants();
  if (std::find(participants.begin(), participants.end(), &iParticipant) == participants.end()) {
    participants.push_back(&iParticipant);
  }
}

HRESULT VelPlatformSession::LoadDictionaries() {
  VelDictionary::SetLibraryFolders(options_.searchFolders);
  LoadDictionariesOfEnvironment();
  for (const std::string& folder : options_.searchFolders) {
    if (!IsFolder(folder)) VelTraceHandle(channel).Warning("The search folder '%s' cannot be read", folder);
  }
  for (const std::string& dictionary : options_.dictionaries) {
    const std::string path = Locate(dictionary);
    if (path.empty()) {
      ReportError(
          "The dictionary '" + dictionary + "' " +
          (dictionary.starts_with('/') ? "does not exist" : "is neither in the current folder nor in a search folder"));
      return E_FAIL;
    }
    if (!LoadDictionary(path)) return E_FAIL;
  }
  return S_OK;
}

bool VelPlatformSession::LoadDictionary(const std::string& iPath) {
  if (IsFolder(iPath)) return SUCCEEDED(VelDictionary::LoadFolder(iPath, &loaded_));
  const HRESULT result = VelDictionary::LoadFile(iPath);
  if (result == S_OK) loaded_.push_back(iPath);
  return SUCCEEDED(result);
}

void VelPlatformSession::LoadDictionariesOfEnvironment() {
  for (const std::string& path : VelEnvironment::GetPaths("VEL_DICTIONARY_PATH")) {
    if (LoadDictionary(path)) continue;
    VelTraceHandle(channel).Warning("VEL_DICTIONARY_PATH names '%s', which is not loaded, or not as a whole", path);
  }
}

HRESULT VelPlatformSession::StartServices() {
  // A service that is added by another one's start takes part from the next session on.
  const std::size_t count = Participants().size();
  for (std::size_t i = 0; i < count; ++i) {
    VelSessionParticipant& participant = *Participants()[i];
    VEL_RETURN_IF_FAILED(StartService(participant, options_));
    started_.push_back(&participant);
  }
  return S_OK;
}

void VelPlatformSession::Stop() noexcept {
  for (; !started_.empty(); started_.pop_back()) EndService(*started_.back());
  for (; !loaded_.empty(); loaded_.pop_back()) static_cast<void>(VelDictionary::Unload(loaded_.back()));
  VelDictionary::SetLibraryFolders({});
  VelTraceService::Flush();
  VelThreadBinding::Unbind();
  options_ = {};
  current = nullptr;
}
