// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelImage.h A decoded image in memory.
#ifndef PLATFORM_IMAGES_VELPIXELIMAGE_H
#define PLATFORM_IMAGES_VELPIXELIMAGE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelObject.h"

/// Pixels in rows from the top, each row from the left and without a gap behind it; red, green, blue and alpha of each,
/// the colours not multiplied by alpha. An image never changes, so that whoever references it may go on reading it.
///
/// It is an object: it lives while it is referenced and is counted with the components. Whoever is handed a pointer to
/// a new one owns one reference, which Release drops or VelBaseUnknown_var::Adopt takes over. It answers no interface.
/// Thread: the application thread.
class VEL_PLATFORM_API VelPixelImage final : public VelObject {
 public:
  /// How a pixel is kept, each component in the byte order of the machine.
  enum class Format : std::uint8_t {
    Rgba8,    ///< 4 unsigned bytes, 0 to 255.
    Rgba32F,  ///< 4 floats of 32 bits, of any value.
  };

  /// What the numbers of the colours mean; a fact about the pixels, by which nothing converts them.
  enum class ColorSpace : std::uint8_t { Unknown, Srgb, Linear };

  static constexpr int largestSide = 16384;                          ///< Pixels.
  static constexpr std::int64_t mostPixels = std::int64_t{1} << 26;  ///< Width times height.

  /// Makes an image of a copy of pixels.
  /// @param[in] iWidth pixels, 1 to largestSide
  /// @param[in] iHeight pixels, 1 to largestSide; not more than mostPixels in all
  /// @param[in] iPixels as many bytes as ByteCount tells
  /// @return the image with one reference for the caller; null when a figure is not one of these, or when the memory
  ///         is not to be had
  [[nodiscard]] static VelPixelImage* Create(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace,
                                             std::span<const std::byte> iPixels);

  /// As the other Create, without a copy: the image owns the pixels from then on.
  /// @param[in] iPixels as many bytes as ByteCount tells, which nobody checks; null makes no image
  [[nodiscard]] static VelPixelImage* Create(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace,
                                             std::unique_ptr<std::byte[]> iPixels);

  /// Makes an image of a file by the image services' provider. Without one that is null, and the warning of
  /// VelRbaImageServices.
  /// @param[in] iPath the path of the file
  /// @param[in] iReadOnly 1: the file is read and never written; anything else makes no image
  /// @param[in] iReserved 0; anything else makes no image
  /// @return the image with one reference for the caller; null when there is none to be had
  [[nodiscard]] static VelPixelImage* CreateFromFile(const VelUnicodeString& iPath, int iReadOnly = 1,
                                                     int iReserved = 0);

  /// @return the image behind a pointer, without a reference; null when it is none
  static VelPixelImage* From(VelBaseUnknown* iObject) noexcept;

  /// @param[in] iWidth as for Create
  /// @param[in] iHeight as for Create
  /// @return the bytes of all pixels of an image; 0 when there is no image of that size
  static std::size_t ByteCount(int iWidth, int iHeight, Format iFormat) noexcept;

  int GetWidth() const noexcept { return width_; }
  int GetHeight() const noexcept { return height_; }
  Format GetFormat() const noexcept { return format_; }
  ColorSpace GetColorSpace() const noexcept { return colorSpace_; }

  /// @return all pixels, while the image is referenced; the first byte is aligned as a float is
  std::span<const std::byte> GetPixels() const noexcept { return {pixels_.get(), ByteCount(width_, height_, format_)}; }

  static const VelMetaClass& MetaObject() noexcept;

 private:
  VelPixelImage(int iWidth, int iHeight, Format iFormat, ColorSpace iColorSpace, std::unique_ptr<std::byte[]> iPixels);
  ~VelPixelImage() override;

  int width_;
  int height_;
  Format format_;
  ColorSpace colorSpace_;
  std::unique_ptr<std::byte[]> pixels_;
};

#endif  // PLATFORM_IMAGES_VELPIXELIMAGE_H
