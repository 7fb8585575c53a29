// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageServices.cpp Answers the image services, and tells why there is no image.
#include "platform/images/services/VelImageServices.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/images/VelDocumentProjection.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/services/VelImageInput.h"
#include "platform/images/services/VelImageLoader.h"
#include "platform/images/services/VelPathResolution.h"
#include "platform/images/services/VelTextureConversion.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr int smallestDpi = 1;
constexpr int largestDpi = 4800;

VelTraceHandle Channel() { return VelTraceHandle("VelRbaImageServices"); }

/// Paths and names come with documents. Nothing in them may look like another line of the trace, or steer a terminal.
std::string OnOneLine(std::string iText) {
  std::ranges::replace_if(
      iText,
      [](char iByte) {
        const auto code = static_cast<unsigned char>(iByte);
        return code < 0x20 || code == 0x7F;
      },
      '?');
  return iText;
}

void WarnOfFailure(const std::string& iPath, const std::string& iCause) {
  Channel().Warning("No image of '%s': %s", OnOneLine(iPath), iCause);
}

void WarnOfUnknownGroups(const std::string& iPath, const std::vector<std::string>& iGroups) {
  if (iGroups.empty()) return;
  std::string names;
  for (const std::string& group : iGroups) names += (names.empty() ? "'" : ", '") + group + "'";
  Channel().Warning("The image of '%s' is empty, since the file has none of the groups %s", OnOneLine(iPath),
                    OnOneLine(names));
}

/// @return S_OK; E_FAIL for a resolution out of range
HRESULT ReadOptions(const VelListValVelUnicodeString& iGroups, int iDpi, VelDrawingOptions& oOptions,
                    std::string& oCause) {
  if (iDpi < smallestDpi || iDpi > largestDpi) {
    oCause = "it was asked for at " + std::to_string(iDpi) + " dpi; expected " + std::to_string(smallestDpi) + " to " +
             std::to_string(largestDpi);
    return E_FAIL;
  }
  oOptions.dpi = iDpi;
  for (const VelUnicodeString& group : iGroups) oOptions.groups.emplace_back(group.View());
  std::sort(oOptions.groups.begin(), oOptions.groups.end());
  oOptions.groups.erase(std::unique(oOptions.groups.begin(), oOptions.groups.end()), oOptions.groups.end());
  return S_OK;
}

VelPixelImage* Load(const std::string& iPath, const VelDrawingOptions& iOptions,
                    std::vector<std::string>& oUnknownGroups, std::string& oCause) {
  VelImageInput input;
  if (FAILED(input.Open(iPath, oCause))) return nullptr;
  return VelImageLoader::Load(input, iOptions, oUnknownGroups, oCause);
}

}  // namespace

HRESULT VelImageServices::GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath) {
  const VelIPLMDmtDocument_var hDocument(iDocument);
  return hDocument ? VelDocumentProjection::Project(*hDocument, oPath) : E_FAIL;
}

VelPixelImage* VelImageServices::CreatePixelImageFromFullPath(const VelUnicodeString& iPath,
                                                              const VelListValVelUnicodeString& iGroups, int iDpi) {
  const std::string path(iPath.View());
  VelDrawingOptions options;
  std::vector<std::string> unknownGroups;
  std::string cause;
  VelPixelImage* image = nullptr;
  if (SUCCEEDED(ReadOptions(iGroups, iDpi, options, cause))) image = Load(path, options, unknownGroups, cause);
  if (image == nullptr) WarnOfFailure(path, cause);
  WarnOfUnknownGroups(path, unknownGroups);
  return image;
}

HRESULT VelImageServices::ConvertUnsupportedTexture(VelUnicodeString& ioPath, const VelListValVelUnicodeString& iGroups,
                                                    int iDpi) {
  const std::string path(ioPath.View());
  std::string converted;
  VelDrawingOptions options;
  std::vector<std::string> unknownGroups;
  std::string cause;
  HRESULT code = ReadOptions(iGroups, iDpi, options, cause);
  if (SUCCEEDED(code)) code = VelTextureConversion::Convert(path, options, converted, unknownGroups, cause);
  if (FAILED(code)) WarnOfFailure(path, cause);
  WarnOfUnknownGroups(path, unknownGroups);
  if (code == S_OK) ioPath = VelUnicodeString(converted);
  return code;
}

VelPixelImage* VelImageServices::CreatePixelImageFromFile(const VelUnicodeString& iPath) {
  return CreatePixelImageFromFullPath(iPath, {}, VelDrawingOptions().dpi);
}

HRESULT VelImageServices::ResolvePath(const VelUnicodeString& iPath, VelUnicodeString& oPath) {
  oPath = VelUnicodeString(VelPathResolution::Resolve(std::string(iPath.View())));
  return S_OK;
}
