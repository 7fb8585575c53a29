// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelImage.cpp Keeps a decoded image.
#include "platform/images/VelPixelImage.h"

#include <cstring>
#include <new>
#include <utility>

#include "platform/images/VelImageProvider.h"
#include "platform/objectmodeler/VelMetaClass.h"

namespace {

constexpr std::size_t BytesPerPixel(VelPixelImage::Format iFormat) noexcept {
  return iFormat == VelPixelImage::Format::Rgba8 ? 4 : 4 * sizeof(float);
}

constexpr bool IsSide(int iPixels) noexcept { return 1 <= iPixels && iPixels <= VelPixelImage::largestSide; }

}  // namespace

VelPixelImage* VelPixelImage::Create(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace,
                                     std::span<const std::byte> iPixels) {
  const std::size_t count = ByteCount(iWidth, iHeight, iFormat);
  if (count == 0 || iPixels.size() != count) return nullptr;
  // The size comes from a file: running out of memory for it must not end the process.
  std::unique_ptr<std::byte[]> pixels(new (std::nothrow) std::byte[count]);
  if (pixels == nullptr) return nullptr;
  std::memcpy(pixels.get(), iPixels.data(), count);
  return Create(iWidth, iHeight, iFormat, iColorSpace, std::move(pixels));
}

VelPixelImage* VelPixelImage::Create(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace,
                                     std::unique_ptr<std::byte[]> iPixels) {
  if (iPixels == nullptr || ByteCount(iWidth, iHeight, iFormat) == 0) return nullptr;
  return new VelPixelImage(iWidth, iHeight, iFormat, iColorSpace, std::move(iPixels));
}

VelPixelImage* VelPixelImage::CreateFromFile(const VelUnicodeString& iPath, int iReadOnly, int iReserved) {
  if (iReadOnly != 1 || iReserved != 0) return nullptr;
  const VelIImageServices_var hProvider = VelImageProvider::Find();
  return hProvider ? hProvider->CreatePixelImageFromFile(iPath) : nullptr;
}

VelPixelImage* VelPixelImage::From(VelBaseUnknown* iObject) noexcept {
  VelObject* object = VelObject::From(iObject);
  if (object == nullptr || !object->IsAKindOf(MetaObject().Name())) return nullptr;
  return static_cast<VelPixelImage*>(object);
}

std::size_t VelPixelImage::ByteCount(int iWidth, int iHeight, Format iFormat) noexcept {
  if (!IsSide(iWidth) || !IsSide(iHeight)) return 0;
  const std::int64_t pixels = std::int64_t{iWidth} * iHeight;
  return pixels > mostPixels ? 0 : static_cast<std::size_t>(pixels) * BytesPerPixel(iFormat);
}

VelPixelImage::VelPixelImage(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace,
                             std::unique_ptr<std::byte[]> iPixels)
    : VelObject("VelPixelImage", MetaObject()),
      width_(iWidth),
      height_(iHeight),
      format_(iFormat),
      colorSpace_(iColorSpace),
      pixels_(std::move(iPixels)) {}

VelPixelImage::~VelPixelImage() { EndLife(); }

const VelMetaClass& VelPixelImage::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelPixelImage", &VelObject::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}
