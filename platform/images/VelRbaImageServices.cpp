// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices.cpp Hands the work on images to the provider that the dictionary names.
#include "platform/images/VelRbaImageServices.h"

#include <string>
#include <string_view>
#include <utility>

#include "platform/images/VelImageProvider.h"

namespace {

/// @return the position of the dot before the extension of a file's name; npos when it has none
std::size_t FindExtensionDot(std::string_view iName) noexcept {
  // Dots at the front belong to the name: they hide a file, or stand for a folder.
  const std::size_t first = iName.find_first_not_of('.');
  const std::size_t dot = iName.rfind('.');
  const bool isSeparator = dot != std::string_view::npos && first < dot && dot + 1 < iName.size();
  return isSeparator ? dot : std::string_view::npos;
}

}  // namespace

HRESULT VelRbaImageServices::GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath) {
  if (iDocument == nullptr) return E_INVALIDARG;
  const VelIImageServices_var hProvider = VelImageProvider::Find();
  if (!hProvider) return E_FAIL;
  // The caller's text keeps its value whatever a failing provider has written.
  VelUnicodeString path;
  const HRESULT code = hProvider->GetProjectionPath(iDocument, path);
  if (SUCCEEDED(code)) oPath = std::move(path);
  return code;
}

VelPixelImage* VelRbaImageServices::CreatePixelImageFromFullPath(const VelUnicodeString& iPath,
                                                                 const VelListValVelUnicodeString& iGroups, int iDpi) {
  const VelIImageServices_var hProvider = VelImageProvider::Find();
  return hProvider ? hProvider->CreatePixelImageFromFullPath(iPath, iGroups, iDpi) : nullptr;
}

HRESULT VelRbaImageServices::ConvertUnsupportedTexture(VelUnicodeString& ioPath,
                                                       const VelListValVelUnicodeString& iGroups, int iDpi) {
  const VelIImageServices_var hProvider = VelImageProvider::Find();
  if (!hProvider) return E_FAIL;
  VelUnicodeString path = ioPath;
  const HRESULT code = hProvider->ConvertUnsupportedTexture(path, iGroups, iDpi);
  if (code == S_OK) ioPath = std::move(path);
  return code;
}

VelPathParts VelRbaImageServices::SplitPath(const VelUnicodeString& iPath) {
  const std::string_view path = iPath.View();
  const std::size_t separator = path.find_last_of("/\\");
  const std::size_t folderLength = separator == std::string_view::npos ? 0 : separator + 1;
  const std::string_view last = path.substr(folderLength);
  VelPathParts parts{VelUnicodeString(path.substr(0, folderLength)), VelUnicodeString(last), {}};
  if (const std::size_t dot = FindExtensionDot(last); dot != std::string_view::npos) {
    parts.name = VelUnicodeString(last.substr(0, dot));
    parts.extension = VelUnicodeString(last.substr(dot + 1));
  }
  return parts;
}

void VelRbaImageServices::ExtractPathList(const VelUnicodeString& iText, VelListValVelUnicodeString& ioList) {
  if (iText.IsEmpty()) return;
  // A copy: the text may be an element of the list, which moves when the list grows.
  const std::string text(iText.View());
  std::string_view rest = text;
  for (std::size_t end = rest.find(';'); end != std::string_view::npos; end = rest.find(';')) {
    ioList.Append(VelUnicodeString(rest.substr(0, end)));
    rest.remove_prefix(end + 1);
  }
  ioList.Append(VelUnicodeString(rest));
}

void VelRbaImageServices::ResetWarning() noexcept { VelImageProvider::ResetWarning(); }
