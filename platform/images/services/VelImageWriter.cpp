// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWriter.cpp Encodes an image and puts the file in its place.
#include "platform/images/services/VelImageWriter.h"

#include <string>

#include "platform/base/system/VelSystemWrite.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/encoders/VelExrEncoder.h"
#include "platform/images/encoders/VelPngEncoder.h"
#include "platform/trace/VelTraceHandle.h"

HRESULT VelImageWriter::Write(VelPixelImage* iImage, const VelUnicodeString& iPath) {
  const bool isBytes = iImage->GetFormat() == VelPixelImage::Format::Rgba8;
  std::string bytes;
  std::string cause;
  HRESULT result =
      isBytes ? VelPngEncoder::Encode(*iImage, bytes, cause) : VelExrEncoder::Encode(*iImage, bytes, cause);
  if (SUCCEEDED(result)) result = VelSystemWrite::PublishFile(std::string(iPath.View()), bytes, cause);
  if (SUCCEEDED(result)) return S_OK;
  VelTraceHandle("VelRbaImageFiles")
      .Error(VEL_HERE("platform/images/services/VelImageWriter"), "'%s' is not written: %s", iPath, cause);
  return E_FAIL;
}
