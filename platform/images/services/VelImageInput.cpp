// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageInput.cpp Opens an image file and tells it from others.
#include "platform/images/services/VelImageInput.h"

#include "platform/base/VelUnicodeString.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/services/VelImageKey.h"
#include "platform/images/services/VelYoungFiles.h"

namespace {

HRESULT Fail(std::string iCause, std::string& oCause) {
  oCause = std::move(iCause);
  return E_FAIL;
}

}  // namespace

HRESULT VelImageInput::Open(const std::string& iPath, std::string& oCause) {
  if (FAILED(file_.Open(iPath, oCause))) return E_FAIL;
  extension_ = VelRbaImageServices::SplitPath(VelUnicodeString(iPath)).extension.ToVelString().ToLower().View();
  const std::uint64_t size = file_.GetStatus().size;
  if (size == 0) return Fail("is empty", oCause);
  VelFileImageSource source(file_);
  kind_ = RecognizeImageKind(source, extension_);
  if (kind_ == VelImageKind::Unknown) {
    return Fail("is of no accepted format; expected SVG, PNG, JPEG, TIFF, EXR, BMP, GIF, TGA, PNM, ICO, HDR or WebP",
                oCause);
  }
  if (kind_ == VelImageKind::Svg && size > mostSvgBytes) {
    return Fail("has " + std::to_string(size) + " bytes; an SVG file may have " + std::to_string(mostSvgBytes), oCause);
  }
  return S_OK;
}

std::string VelImageInput::KeyOf(std::string_view iOperation, const VelDrawingOptions& iOptions) const {
  VelImageKey key;
  key.Add(iOperation).Add(extension_).Add(file_.GetStatus());
  if (kind_ == VelImageKind::Svg) {
    key.Add(iOptions.dpi).Add(static_cast<std::int64_t>(iOptions.groups.size()));
    for (const std::string& group : iOptions.groups) key.Add(group);
  }
  return key.Add(VelYoungFiles::ContentOf(file_)).Finish();
}
