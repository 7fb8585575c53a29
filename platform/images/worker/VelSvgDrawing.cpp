// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgDrawing.cpp Has librsvg draw what the checks before it let pass.
#include "platform/images/worker/VelSvgDrawing.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/images/worker/VelLibraryCause.h"
#include "platform/images/worker/VelSvgGroups.h"
#include "platform/images/worker/VelSvgOutline.h"
#include "platform/images/worker/VelSvgSize.h"
#include "platform/images/worker/VelSvgText.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using Handle = std::unique_ptr<RsvgHandle, decltype(&g_object_unref)>;
using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

/// How many units of 1/96 inch a length has. The root's letters are of the size that letters have unless told
/// otherwise.
struct Unit {
  RsvgUnit unit;
  double length;
};
constexpr Unit units[] = {{RSVG_UNIT_PX, 1},         {RSVG_UNIT_EM, 12},        {RSVG_UNIT_EX, 6},
                          {RSVG_UNIT_IN, 96},        {RSVG_UNIT_CM, 96 / 2.54}, {RSVG_UNIT_MM, 96 / 25.4},
                          {RSVG_UNIT_PT, 96 / 72.0}, {RSVG_UNIT_PC, 16}};

/// What is drawn, and in which part of its own plane.
struct Extent {
  double x = 0;
  double y = 0;
  VelSvgSize size;
  RsvgRectangle viewport{};
};

HRESULT Load(std::string_view iText, Handle& oHandle, std::string& oCause) {
  GError* error = nullptr;
  // A handle without a place of its own opens no other file.
  oHandle.reset(rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(iText.data()), iText.size(), &error));
  if (oHandle == nullptr) return VelLibraryCause::Fail("is no SVG file that can be drawn", error, oCause);
  rsvg_handle_set_dpi(oHandle.get(), VelSvgSize::unitsPerInch);
  return S_OK;
}

std::optional<double> LengthOf(gboolean iIsGiven, const RsvgLength& iLength) {
  if (iIsGiven == FALSE) return std::nullopt;
  for (const Unit& unit : units) {
    if (unit.unit == iLength.unit) return iLength.length * unit.length;
  }
  return std::nullopt;
}

VelSvgRootSize RootSizeOf(RsvgHandle* iHandle) {
  gboolean hasWidth = FALSE;
  gboolean hasHeight = FALSE;
  gboolean hasBox = FALSE;
  RsvgLength width{};
  RsvgLength height{};
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(iHandle, &hasWidth, &width, &hasHeight, &height, &hasBox, &box);
  VelSvgRootSize root{LengthOf(hasWidth, width), LengthOf(hasHeight, height)};
  if (hasBox != FALSE) {
    root.boxWidth = box.width;
    root.boxHeight = box.height;
  }
  // Where both are lengths, the library also knows how large the root's letters are.
  double widthInPixels = 0;
  double heightInPixels = 0;
  if (rsvg_handle_get_intrinsic_size_in_pixels(iHandle, &widthInPixels, &heightInPixels) != FALSE) {
    root.width = widthInPixels;
    root.height = heightInPixels;
  }
  return root;
}

/// A root that tells no size is as large as what is drawn.
HRESULT MeasureContent(RsvgHandle* iHandle, Extent& oExtent, std::string& oCause) {
  // The space that pages give to what tells no size, for lengths that are a share of it.
  oExtent.viewport = {0, 0, 300, 150};
  RsvgRectangle ink{};
  GError* error = nullptr;
  if (rsvg_handle_get_geometry_for_layer(iHandle, nullptr, &oExtent.viewport, &ink, nullptr, &error) == FALSE) {
    return VelLibraryCause::Fail("cannot be measured", error, oCause);
  }
  oExtent.x = ink.x;
  oExtent.y = ink.y;
  oExtent.size = {ink.width, ink.height};
  return S_OK;
}

HRESULT Measure(RsvgHandle* iHandle, Extent& oExtent, std::string& oCause) {
  const std::optional<VelSvgSize> size = VelSvgSize::Of(RootSizeOf(iHandle));
  if (!size) return MeasureContent(iHandle, oExtent, oCause);
  oExtent.size = *size;
  oExtent.viewport = {0, 0, size->width, size->height};
  return S_OK;
}

HRESULT RefuseSurface(cairo_status_t iStatus, std::string& oCause) {
  oCause = std::string("cannot be drawn: ") + cairo_status_to_string(iStatus);
  return E_FAIL;
}

HRESULT Render(RsvgHandle* iHandle, const Extent& iExtent, VelWorkerPicture& ioPicture, std::string& oCause) {
  const int width = ioPicture.GetWidth();
  const int height = ioPicture.GetHeight();
  const Surface surface(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(ioPicture.Bytes().data()),
                                                            CAIRO_FORMAT_ARGB32, width, height, 4 * width),
                        &cairo_surface_destroy);
  const Context context(cairo_create(surface.get()), &cairo_destroy);
  cairo_scale(context.get(), width / iExtent.size.width, height / iExtent.size.height);
  cairo_translate(context.get(), -iExtent.x, -iExtent.y);
  GError* error = nullptr;
  if (rsvg_handle_render_document(iHandle, context.get(), &iExtent.viewport, &error) == FALSE) {
    return VelLibraryCause::Fail("cannot be drawn", error, oCause);
  }
  cairo_surface_flush(surface.get());
  const cairo_status_t status = cairo_status(context.get());
  return status == CAIRO_STATUS_SUCCESS ? S_OK : RefuseSurface(status, oCause);
}

/// From colours multiplied by alpha, in a number with alpha on top, to red, green, blue and alpha in turn.
void SeparateAlpha(std::span<std::byte> ioPixels) {
  for (std::size_t place = 0; place < ioPixels.size(); place += sizeof(std::uint32_t)) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, ioPixels.data() + place, sizeof pixel);
    const std::uint32_t alpha = pixel >> 24;
    const auto separate = [&](int iShift) {
      const std::uint32_t multiplied = (pixel >> iShift) & 0xFF;
      // Most pixels are opaque or empty, and need no division.
      if (alpha == 255 || alpha == 0) return static_cast<std::byte>(multiplied & alpha);
      return static_cast<std::byte>(std::min<std::uint32_t>(255, (multiplied * 255 + alpha / 2) / alpha));
    };
    ioPixels[place] = separate(16);
    ioPixels[place + 1] = separate(8);
    ioPixels[place + 2] = separate(0);
    ioPixels[place + 3] = static_cast<std::byte>(alpha);
  }
}

/// Loads what is to be drawn, and measures the whole.
/// @param[in] iText the whole file
/// @param[in] iPart the file cut down to some groups; empty for the whole. It has the root of the whole, and thus its
///            size, unless that comes from what is drawn.
HRESULT LoadAndMeasure(std::string_view iText, std::string_view iPart, Handle& oHandle, Extent& oExtent,
                       std::string& oCause) {
  if (iPart.empty()) {
    VEL_RETURN_IF_FAILED(Load(iText, oHandle, oCause));
    return Measure(oHandle.get(), oExtent, oCause);
  }
  VEL_RETURN_IF_FAILED(Load(iPart, oHandle, oCause));
  if (VelSvgSize::Of(RootSizeOf(oHandle.get()))) return Measure(oHandle.get(), oExtent, oCause);
  Handle whole(nullptr, &g_object_unref);
  VEL_RETURN_IF_FAILED(Load(iText, whole, oCause));
  return Measure(whole.get(), oExtent, oCause);
}

/// The names as the checks want them: sorted, each once.
void Arrange(std::vector<std::string>& ioNames) {
  std::sort(ioNames.begin(), ioNames.end());
  ioNames.erase(std::unique(ioNames.begin(), ioNames.end()), ioNames.end());
}

}  // namespace

HRESULT VelSvgDrawing::Draw(VelImageSource& ioSource, int iDpi, std::vector<std::string> iGroups,
                            VelWorkerPicture& oPicture, std::vector<std::string>& oUnknown, std::string& oCause) {
  oUnknown.clear();
  if (iDpi < 1 || iDpi > mostDpi) {
    oCause = "is asked for at " + std::to_string(iDpi) + " dpi; expected 1 to " + std::to_string(mostDpi);
    return E_INVALIDARG;
  }
  Arrange(iGroups);
  std::string text;
  VelSvgOutline outline;
  VEL_RETURN_IF_FAILED(VelSvgText::Read(ioSource, text, oCause));
  VEL_RETURN_IF_FAILED(outline.Read(text, iGroups, oCause));
  std::string part;
  HRESULT cut = S_OK;
  if (!iGroups.empty()) cut = VelSvgGroups::Cut(text, outline, iGroups, part, oCause);
  VEL_RETURN_IF_FAILED(cut);
  Handle handle(nullptr, &g_object_unref);
  Extent extent;
  int width = 0;
  int height = 0;
  VEL_RETURN_IF_FAILED(LoadAndMeasure(text, part, handle, extent, oCause));
  VEL_RETURN_IF_FAILED(extent.size.CountPixels(iDpi, width, height, oCause));
  VEL_RETURN_IF_FAILED(oPicture.Allocate(width, height, VelPixelImage::Format::Rgba8, oCause));
  if (cut == S_FALSE) {
    oUnknown = std::move(iGroups);
    return S_OK;
  }
  VEL_RETURN_IF_FAILED(Render(handle.get(), extent, oPicture, oCause));
  SeparateAlpha(oPicture.Bytes());
  return S_OK;
}
