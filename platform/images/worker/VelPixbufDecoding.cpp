// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixbufDecoding.cpp Has gdk-pixbuf decode what the checks before it let pass.
#include "platform/images/worker/VelPixbufDecoding.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstddef>
#include <memory>
#include <span>

#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelLibraryCause.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using Loader = std::unique_ptr<GdkPixbufLoader, decltype(&g_object_unref)>;

constexpr std::string_view damaged = "is damaged";

/// The loader's name for a format: nobody has to guess it from the content again.
const char* LoaderNameOf(VelImageKind iKind) {
  switch (iKind) {
    case VelImageKind::Bmp:
      return "bmp";
    case VelImageKind::Gif:
      return "gif";
    case VelImageKind::Tga:
      return "tga";
    case VelImageKind::Pnm:
      return "pnm";
    case VelImageKind::Ico:
      return "ico";
    case VelImageKind::Unknown:
    case VelImageKind::Svg:
    case VelImageKind::Png:
    case VelImageKind::Jpeg:
    case VelImageKind::Tiff:
    case VelImageKind::Exr:
    case VelImageKind::Hdr:
    case VelImageKind::WebP:
      break;
  }
  return "";
}

HRESULT Load(GdkPixbufLoader* ioLoader, std::string_view iBytes, std::string& oCause) {
  GError* error = nullptr;
  const auto* bytes = reinterpret_cast<const guchar*>(iBytes.data());
  const bool isWritten = gdk_pixbuf_loader_write(ioLoader, bytes, iBytes.size(), &error) != FALSE;
  // A loader is closed in any case, and has one reason to tell.
  const bool isClosed = gdk_pixbuf_loader_close(ioLoader, isWritten ? &error : nullptr) != FALSE;
  return isWritten && isClosed ? S_OK : VelLibraryCause::Fail(damaged, error, oCause);
}

/// To red, green, blue and alpha in rows without gaps.
HRESULT Copy(const GdkPixbuf* iPixels, VelWorkerPicture& oPicture, std::string& oCause) {
  const int width = gdk_pixbuf_get_width(iPixels);
  const int height = gdk_pixbuf_get_height(iPixels);
  VEL_RETURN_IF_FAILED(oPicture.Allocate(width, height, VelPixelImage::Format::Rgba8, oCause));
  const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(iPixels));
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(iPixels));
  const guint8* source = gdk_pixbuf_read_pixels(iPixels);
  std::byte* target = oPicture.Bytes().data();
  for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
    const guint8* pixel = source + y * stride;
    for (int x = 0; x < width; ++x, pixel += channels, target += 4) {
      for (std::size_t part = 0; part < 3; ++part) target[part] = std::byte{pixel[part]};
      target[3] = channels == 4 ? std::byte{pixel[3]} : std::byte{0xFF};
    }
  }
  return S_OK;
}

}  // namespace

HRESULT VelPixbufDecoding::Decode(VelImageKind iKind, std::string_view iFile, VelWorkerPicture& oPicture,
                                  std::string& oCause) {
  VelFileCheck::Outcome checked;
  VEL_RETURN_IF_FAILED(VelFileCheck::Check(iKind, iFile, checked, oCause));
  GError* error = nullptr;
  const char* name = checked.isPng ? "png" : LoaderNameOf(iKind);
  const Loader loader(gdk_pixbuf_loader_new_with_type(name, &error), &g_object_unref);
  if (loader == nullptr) return VelLibraryCause::Fail("is of a format that has no loader here", error, oCause);
  VEL_RETURN_IF_FAILED(Load(loader.get(), checked.bytes.empty() ? iFile : checked.bytes, oCause));
  const GdkPixbuf* pixels = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (pixels == nullptr) return VelLibraryCause::Fail(damaged, nullptr, oCause);
  return Copy(pixels, oPicture, oCause);
}
