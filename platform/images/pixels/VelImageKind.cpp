// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKind.cpp The marks by which image files are known.
#include "platform/images/pixels/VelImageKind.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "platform/base/VelString.h"
#include "platform/images/pixels/VelImageSource.h"

namespace {

using namespace std::string_view_literals;

struct Mark {
  VelImageKind kind;
  std::size_t offset;
  std::string_view bytes;
};

// A compressed SVG file is the only gzip file that counts as an image.
constexpr std::array marks{
    Mark{VelImageKind::Png, 0, "\x89PNG\r\n\x1A\n"sv},
    Mark{VelImageKind::Jpeg, 0, "\xFF\xD8\xFF"sv},
    Mark{VelImageKind::Tiff, 0, "II*\0"sv},
    Mark{VelImageKind::Tiff, 0, "MM\0*"sv},
    Mark{VelImageKind::Tiff, 0, "II+\0"sv},
    Mark{VelImageKind::Tiff, 0, "MM\0+"sv},
    Mark{VelImageKind::Exr, 0, "\x76\x2F\x31\x01"sv},
    Mark{VelImageKind::Gif, 0, "GIF87a"sv},
    Mark{VelImageKind::Gif, 0, "GIF89a"sv},
    Mark{VelImageKind::WebP, 8, "WEBP"sv},
    Mark{VelImageKind::Hdr, 0, "#?RADIANCE"sv},
    Mark{VelImageKind::Hdr, 0, "#?RGBE"sv},
    Mark{VelImageKind::Ico, 0, "\0\0\1\0"sv},
    Mark{VelImageKind::Bmp, 0, "BM"sv},
    Mark{VelImageKind::Svg, 0, "\x1F\x8B"sv},
};

struct Named {
  VelImageKind kind;
  std::string_view extension;
};

constexpr std::array extensions{
    Named{VelImageKind::Svg, "svg"},
    Named{VelImageKind::Svg, "svgz"},
    Named{VelImageKind::Tga, "tga"},
};

constexpr std::array<const char*, 13> names{"unknown", "SVG", "PNG", "JPEG", "TIFF", "EXR", "BMP",
                                            "GIF",     "TGA", "PNM", "ICO",  "HDR",  "WebP"};

/// How far an SVG file's root may be from its beginning: comments and a document type stand before it.
constexpr std::size_t searchedLength = 4096;

bool IsPnm(std::string_view iBytes) {
  return iBytes.size() >= 3 && iBytes[0] == 'P' && iBytes[1] >= '1' && iBytes[1] <= '7' &&
         (iBytes[2] == ' ' || iBytes[2] == '\t' || iBytes[2] == '\n' || iBytes[2] == '\r' || iBytes[2] == '#');
}

/// Markup, in an encoding that keeps the letters of ASCII, in which a root "svg" begins.
bool IsSvg(std::string_view iBytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (iBytes.starts_with(byteOrderMark)) iBytes.remove_prefix(byteOrderMark.size());
  const std::size_t first = iBytes.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos || iBytes[first] != '<') return false;
  return iBytes.find("<svg") != std::string_view::npos || iBytes.find(":svg") != std::string_view::npos;
}

VelImageKind KindOfContent(std::string_view iBytes) {
  for (const Mark& mark : marks) {
    if (iBytes.substr(std::min(mark.offset, iBytes.size())).starts_with(mark.bytes)) return mark.kind;
  }
  if (IsPnm(iBytes)) return VelImageKind::Pnm;
  return IsSvg(iBytes) ? VelImageKind::Svg : VelImageKind::Unknown;
}

}  // namespace

VelImageKind RecognizeImageKind(VelImageSource& ioSource, std::string_view iExtension) {
  std::array<char, searchedLength> first{};
  const std::size_t count = ioSource.ReadAt(0, std::as_writable_bytes(std::span(first)));
  const VelImageKind kind = KindOfContent({first.data(), count});
  if (kind != VelImageKind::Unknown) return kind;
  const VelString extension = VelString(iExtension).ToLower();
  const auto* found = std::find_if(extensions.begin(), extensions.end(),
                                   [&](const Named& iNamed) { return extension.View() == iNamed.extension; });
  return found == extensions.end() ? VelImageKind::Unknown : found->kind;
}

const char* NameOfImageKind(VelImageKind iKind) noexcept {
  const auto index = static_cast<std::size_t>(iKind);
  return index < names.size() ? names[index] : names[0];
}
