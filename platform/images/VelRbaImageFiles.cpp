// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageFiles.cpp Refuses what makes no file, and hands the rest to the provider.
#include "platform/images/VelRbaImageFiles.h"

#include "platform/documents/VelMissingProvider.h"
#include "platform/images/VelIImageWriter.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* channel = "VelRbaImageFiles";
constexpr const char* providerType = "VelPlatformImages";

constinit VelMissingProvider missingProvider(channel, providerType);

}  // namespace

const char* VelRbaImageFiles::ExtensionFor(const VelPixelImage& iImage) noexcept {
  return iImage.GetFormat() == VelPixelImage::Format::Rgba8 ? "png" : "exr";
}

HRESULT VelRbaImageFiles::Write(VelPixelImage* iImage, const VelUnicodeString& iPath) {
  if (iImage == nullptr) return E_INVALIDARG;
  const char* const expected = ExtensionFor(*iImage);
  const VelString extension(VelRbaImageServices::SplitPath(iPath).extension.View());
  if (extension.ToLower() != expected) {
    VelTraceHandle(channel).Error(VEL_HERE("platform/images/VelRbaImageFiles"),
                                  "'%s' is not written: the extension is '%s', expected '%s' for pixels of this kind",
                                  iPath, extension, expected);
    return E_INVALIDARG;
  }
  const VelIImageWriter_var hWriter(VelObject::Create(providerType, nullptr));
  if (hWriter) return hWriter->Write(iImage, iPath);
  missingProvider.Warn();
  return E_FAIL;
}

void VelRbaImageFiles::ResetWarning() noexcept { missingProvider.Reset(); }
