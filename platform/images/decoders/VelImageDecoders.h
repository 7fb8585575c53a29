// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageDecoders.h The decoders of this process, by the kind of the file.
#ifndef PLATFORM_IMAGES_DECODERS_VELIMAGEDECODERS_H
#define PLATFORM_IMAGES_DECODERS_VELIMAGEDECODERS_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/images/pixels/VelImageKind.h"

class VelImageSource;
class VelPixelBuffer;

/// @return true for the kinds that DecodeImage reads
bool CanDecode(VelImageKind iKind) noexcept;

/// Decodes the first image of a file. Colours are kept as they are stored, not multiplied by alpha; images of 8 and 16
/// bits become Rgba8, those of floats Rgba32F, turned upright where the file tells how. A file that is cut or damaged
/// has no image. Nothing is thrown and nothing printed, no thread is made.
/// @param[in] iKind what RecognizeImageKind tells of the source
/// @param[out] oImage the image; empty after a failure
/// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
/// @return S_OK; E_FAIL when there is no image
HRESULT DecodeImage(VelImageKind iKind, VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);

#endif  // PLATFORM_IMAGES_DECODERS_VELIMAGEDECODERS_H
