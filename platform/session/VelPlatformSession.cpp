// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformSession.cpp The order in which the platform starts and ends.
#include "platform/session/VelPlatformSession.h"

#include <algorithm>
#include <utility>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelCheck.h"
#include "platform/base/VelEnvironment.h"
#include "platform/base/VelThreadBinding.h"
#include "platform/base/VelToken.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelTraceService.h"

VelPlatformSession* VelPlatformSession::current = nullptr;

namespace {

constexpr const char* sourceText = "platform/session/VelPlatformSession";

std::vector<VelSessionParticipant*>& Participants() {
  static auto& participants = *new std::vector<VelSessionParticipant*>;
  return participants;
}

void ReportError(const std::string& iText) {
  QrnSysTrace* trace = QrnSysTraceCreate("VelPlatformSession");
  if (trace == nullptr) return;
  trace->Error(VEL_HERE(sourceText), "%s", iText);
  QrnSysTraceDestroy(trace);
}

bool Exists(const std::string& iPath) {
  std::string path;
  std::string cause;
  return SUCCEEDED(VelSystemFile::CanonicalPath(iPath, path, cause));
}

bool IsFolder(const std::string& iPath) {
  std::vector<std::string> names;
  std::string cause;
  return SUCCEEDED(VelSystemFile::ListFolder(iPath, ".dictionary", names, cause));
}

/// @return true when somebody reads the input, or when none of it is given
bool IsRead(const std::vector<std::string>& iInput, bool VelSessionInputs::*iKind, const char* iName) {
  if (iInput.empty()) return true;
  for (const VelSessionParticipant* participant : Participants()) {
    if (participant->Inputs().*iKind) return true;
  }
  ReportError("No service of this process reads " + std::string(iName) + ", found '" + iInput.front() + "'");
  return false;
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
  options_ = iOptions;
  HRESULT result = LoadDictionaries();
  if (SUCCEEDED(result)) result = StartServices();
  if (FAILED(result)) Stop();
  return result;
}

HRESULT VelPlatformSession::End() noexcept {
  if (!IsRunning()) return S_FALSE;
  VelPlatformTerminate();
  Stop();
  return S_OK;
}

std::string VelPlatformSession::Locate(const std::string& iPath) const {
  if (Exists(iPath)) return iPath;
  if (iPath.empty() || iPath.front() == '/') return {};
  for (const std::string& folder : options_.searchFolders) {
    if (std::string candidate = folder + '/' + iPath; Exists(candidate)) return candidate;
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
  for (const std::string& dictionary : options_.dictionaries) {
    const std::string path = Locate(dictionary);
    if (path.empty()) {
      ReportError("The dictionary '" + dictionary + "' is neither in the current folder nor in a search folder");
      return E_FAIL;
    }
    if (!LoadDictionary(path)) return E_FAIL;
  }
  return S_OK;
}

bool VelPlatformSession::LoadDictionary(const std::string& iPath) {
  const HRESULT result = IsFolder(iPath) ? VelDictionary::LoadFolder(iPath) : VelDictionary::LoadFile(iPath);
  if (result == S_FALSE) return true;
  loaded_.push_back(iPath);
  return SUCCEEDED(result);
}

void VelPlatformSession::LoadDictionariesOfEnvironment() {
  VelString paths;
  if (!VelEnvironment::Get("VEL_DICTIONARY_PATH", paths)) return;
  VelToken token(paths, ":");
  for (VelString path = token.Next(); !path.IsEmpty(); path = token.Next()) {
    static_cast<void>(LoadDictionary(std::string(path.View())));
  }
}

HRESULT VelPlatformSession::StartServices() {
  if (!IsRead(options_.catalogs, &VelSessionInputs::catalogs, "catalogs") ||
      !IsRead(options_.configurations, &VelSessionInputs::configurations, "configurations")) {
    return E_FAIL;
  }
  for (VelSessionParticipant* participant : Participants()) {
    VEL_RETURN_IF_FAILED(participant->OnSessionStart(options_));
    started_.push_back(participant);
  }
  return S_OK;
}

void VelPlatformSession::Stop() noexcept {
  for (; !started_.empty(); started_.pop_back()) started_.back()->OnSessionEnd();
  for (; !loaded_.empty(); loaded_.pop_back()) static_cast<void>(VelDictionary::Unload(loaded_.back()));
  VelDictionary::SetLibraryFolders({});
  VelTraceService::Flush();
  VelThreadBinding::Unbind();
  options_ = {};
  current = nullptr;
}
