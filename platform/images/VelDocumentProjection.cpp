// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentProjection.cpp One folder per process, one folder in it per document.
#include "platform/images/VelDocumentProjection.h"

#include <functional>
#include <map>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelEnvironment.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/base/system/VelSystemWrite.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr std::size_t longestName = 200;
constexpr int exitPriority = 5;

/// What was written of a document.
struct Written {
  std::string folder;  ///< The document's own.
  std::string path;
  std::size_t size = 0;
  std::size_t hash = 0;
};

struct Projections {
  std::string folder;                    ///< Empty until the first document is projected.
  std::map<std::string, Written> files;  ///< By the identifiers of the documents.
  bool isHookSet = false;

  static Projections& Get() {
    static auto& projections = *new Projections;
    return projections;
  }
};

HRESULT Fail(const std::string& iPath, const std::string& iCause) {
  VelTraceHandle("VelDocumentProjection")
      .Error(VEL_HERE("platform/images/VelDocumentProjection"), "The document is not projected to '%s': %s", iPath,
             iCause);
  return E_FAIL;
}

/// A hook runs once; a process may go on and begin anew.
int RemoveAtExit(int) {
  VelDocumentProjection::RemoveAll();
  Projections::Get().isHookSet = false;
  return 0;
}

/// @return S_OK when the process has its folder
HRESULT EnsureFolder(Projections& ioProjections) {
  if (!ioProjections.folder.empty() && VelSystemFile::Exists(ioProjections.folder)) return S_OK;
  VelString temporary;
  // A relative one would mean another folder once the process has changed its own.
  if (!VelEnvironment::Get("TMPDIR", temporary) || !temporary.View().starts_with('/')) temporary = "/tmp";
  const std::string prefix = std::string(temporary.View()) + "/velrsh-projection-";
  std::string cause;
  ioProjections.files.clear();
  if (FAILED(VelSystemWrite::MakeUniqueFolder(prefix, ioProjections.folder, cause))) return Fail(prefix, cause);
  if (!ioProjections.isHookSet) VelCallOnExit(&RemoveAtExit, exitPriority);
  ioProjections.isHookSet = true;
  return S_OK;
}

/// The document's name, with its format where the name has no extension.
std::string NameOfFile(VelIPLMDmtDocument& iDocument) {
  VelUnicodeString name;
  VelString format;
  static_cast<void>(iDocument.GetName(name));
  static_cast<void>(iDocument.GetFormatName(format));
  std::string file = VelDocumentProjection::FileNameOf(name.View());
  const bool hasExtension =
      !VelRbaImageServices::SplitPath(VelUnicodeString(std::string_view(file))).extension.IsEmpty();
  if (!hasExtension && !format.IsEmpty()) file += "." + std::string(format.View());
  return VelDocumentProjection::FileNameOf(file);
}

/// Writes a file into the folder of its document.
HRESULT Write(const std::string& iFolder, const std::string& iPath, const std::string& iContent) {
  std::string cause;
  if (FAILED(VelSystemWrite::MakeFolder(iFolder, cause))) return Fail(iFolder, cause);
  return SUCCEEDED(VelSystemWrite::ReplaceFile(iPath, iContent, cause)) ? S_OK : Fail(iPath, cause);
}

}  // namespace

std::string VelDocumentProjection::FileNameOf(std::string_view iText) {
  std::string name(iText);
  for (char& byte : name) {
    const auto code = static_cast<unsigned char>(byte);
    if (byte == '/' || byte == '\\' || code < 0x20 || code == 0x7F) byte = '_';
  }
  if (name.empty() || name == "." || name == "..") return "_";
  if (name.size() <= longestName) return name;
  return name.substr(0, longestName / 2) + name.substr(name.size() - longestName / 2);
}

HRESULT VelDocumentProjection::Project(VelIPLMDmtDocument& iDocument, VelUnicodeString& oPath) {
  VelString identifier;
  std::string content;
  if (FAILED(iDocument.GetIdentifier(identifier)) || FAILED(iDocument.GetContent(content))) {
    return Fail("", "it cannot be read");
  }
  Projections& projections = Projections::Get();
  VEL_RETURN_IF_FAILED(EnsureFolder(projections));
  Written& written = projections.files[std::string(identifier.View())];
  // A number, since different identifiers may be the same once they are made names of folders.
  if (written.folder.empty()) written.folder = projections.folder + "/" + std::to_string(projections.files.size());
  const std::string path = written.folder + "/" + NameOfFile(iDocument);
  const std::size_t hash = std::hash<std::string>()(content);
  const bool isThere = written.path == path && written.size == content.size() && written.hash == hash;
  if (!isThere || !VelSystemFile::Exists(path)) {
    VEL_RETURN_IF_FAILED(Write(written.folder, path, content));
    written = {written.folder, path, content.size(), hash};
  }
  oPath = VelUnicodeString(std::string_view(path));
  return S_OK;
}

void VelDocumentProjection::RemoveAll() noexcept {
  Projections& projections = Projections::Get();
  std::string cause;
  if (!projections.folder.empty()) static_cast<void>(VelSystemWrite::RemoveTree(projections.folder, cause));
  projections.folder.clear();
  projections.files.clear();
}
