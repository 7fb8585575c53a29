// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKind.h Which format an image file is of.
#ifndef PLATFORM_IMAGES_PIXELS_VELIMAGEKIND_H
#define PLATFORM_IMAGES_PIXELS_VELIMAGEKIND_H

#include <cstdint>
#include <string_view>

class VelImageSource;

/// The accepted formats. The numbers go to the helper program as they are.
enum class VelImageKind : std::uint32_t { Unknown, Svg, Png, Jpeg, Tiff, Exr, Bmp, Gif, Tga, Pnm, Ico, Hdr, WebP };

/// Tells the format of a file by its first bytes, so that a wrong extension does no harm. The extension decides where
/// the content cannot: TGA has no mark at its beginning, and an SVG file may begin with anything that XML allows.
/// @param[in] iExtension without the dot, in letters of either case
/// @return Unknown for what is of no accepted format
VelImageKind RecognizeImageKind(VelImageSource& ioSource, std::string_view iExtension);

/// @return the name for messages, such as "PNG"
const char* NameOfImageKind(VelImageKind iKind) noexcept;

#endif  // PLATFORM_IMAGES_PIXELS_VELIMAGEKIND_H
