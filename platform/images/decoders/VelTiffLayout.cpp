// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffLayout.cpp Reads the tags of a page.
#include "platform/images/decoders/VelTiffLayout.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include <tiffio.h>

#include "platform/images/decoders/VelCompressionBound.h"

namespace {

struct Packing {
  std::uint16_t compression;
  std::uint64_t ratio;
};

/// The compressions that are read. The library knows more, of which little is in use and some pack without a bound.
constexpr std::array packings{
    Packing{COMPRESSION_NONE, 1},
    Packing{COMPRESSION_PACKBITS, 64},
    Packing{COMPRESSION_LZW, 1400},  // Codes of at most 12 bits, each a byte longer than one before.
    Packing{COMPRESSION_DEFLATE, VelCompressionBound::deflate},
    Packing{COMPRESSION_ADOBE_DEFLATE, VelCompressionBound::deflate},
    Packing{COMPRESSION_JPEG, 512},  // A block of 64 samples takes a bit.
    Packing{COMPRESSION_CCITTRLE, 16384},
    Packing{COMPRESSION_CCITTFAX3, 16384},  // A row like the one before takes a bit.
    Packing{COMPRESSION_CCITTFAX4, 16384},
    Packing{COMPRESSION_LZMA, 10000},
    Packing{COMPRESSION_ZSTD, 32768},  // A block of 128 KB of one byte takes four.
};

std::uint16_t Short(TIFF* ioFile, std::uint32_t iTag) {
  std::uint16_t value = 0;
  return TIFFGetFieldDefaulted(ioFile, iTag, &value) == 1 ? value : std::uint16_t{0};
}

HRESULT Unfit(const std::string& iWhat, std::string& oCause) {
  oCause = "is a TIFF file of a kind that is not read: " + iWhat;
  return E_FAIL;
}

std::uint64_t CeilingOf(std::uint64_t iNumber, std::uint64_t iDivisor) { return (iNumber + iDivisor - 1) / iDivisor; }

}  // namespace

HRESULT VelTiffLayout::Read(tiff* ioFile, std::string& oCause) {
  TIFFGetField(ioFile, TIFFTAG_IMAGEWIDTH, &width);
  TIFFGetField(ioFile, TIFFTAG_IMAGELENGTH, &height);
  VEL_RETURN_IF_FAILED(ReadCompression(ioFile, oCause));
  VEL_RETURN_IF_FAILED(ReadSamples(ioFile, oCause));
  VEL_RETURN_IF_FAILED(ReadColors(ioFile, oCause));
  ReadAlpha(ioFile);
  VEL_RETURN_IF_FAILED(ReadUnits(ioFile, oCause));
  orientation = Short(ioFile, TIFFTAG_ORIENTATION);
  std::uint32_t length = 0;
  void* profile = nullptr;
  hasColorProfile = TIFFGetField(ioFile, TIFFTAG_ICCPROFILE, &length, &profile) == 1;
  return S_OK;
}

HRESULT VelTiffLayout::ReadCompression(tiff* ioFile, std::string& oCause) {
  const std::uint16_t compression = Short(ioFile, TIFFTAG_COMPRESSION);
  const auto* found = std::find_if(packings.begin(), packings.end(),
                                   [=](const Packing& iKnown) { return iKnown.compression == compression; });
  if (found == packings.end()) return Unfit("compression " + std::to_string(compression), oCause);
  ratio = found->ratio;
  return S_OK;
}

HRESULT VelTiffLayout::ReadSamples(tiff* ioFile, std::string& oCause) {
  bits = Short(ioFile, TIFFTAG_BITSPERSAMPLE);
  samples = Short(ioFile, TIFFTAG_SAMPLESPERPIXEL);
  isPlanar = Short(ioFile, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE && samples > 1;
  const std::uint16_t format = Short(ioFile, TIFFTAG_SAMPLEFORMAT);
  sample = format == SAMPLEFORMAT_IEEEFP ? Sample::Float : Sample::Integer;
  if (sample == Sample::Float && (bits == 16 || bits == 32)) return S_OK;
  const bool isWhole = format == SAMPLEFORMAT_UINT || format == SAMPLEFORMAT_VOID;
  const bool isOfSize = bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
  if (isWhole && isOfSize) return S_OK;
  return Unfit("samples of " + std::to_string(bits) + " bits and of format " + std::to_string(format), oCause);
}

HRESULT VelTiffLayout::ReadColors(tiff* ioFile, std::string& oCause) {
  std::uint16_t photometric = 0;
  if (TIFFGetField(ioFile, TIFFTAG_PHOTOMETRIC, &photometric) != 1) return Unfit("nothing tells its colours", oCause);
  const bool isJpeg = Short(ioFile, TIFFTAG_COMPRESSION) == COMPRESSION_JPEG;
  const bool isLibraryOwn = photometric == PHOTOMETRIC_YCBCR || photometric == PHOTOMETRIC_CIELAB;
  if (photometric == PHOTOMETRIC_YCBCR && isJpeg && !isPlanar && bits == 8) {
    TIFFSetField(ioFile, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
    colors = Colors::Rgb;
  } else if (isLibraryOwn && samples == 3 && sample == Sample::Integer) {
    colors = Colors::Others;
    ratio *= samples;  // The brightness alone is kept of every pixel.
  } else if (photometric == PHOTOMETRIC_MINISBLACK) {
    colors = Colors::Grey;
  } else if (photometric == PHOTOMETRIC_MINISWHITE) {
    colors = Colors::InvertedGrey;
  } else if (photometric == PHOTOMETRIC_RGB) {
    colors = Colors::Rgb;
  } else if (photometric == PHOTOMETRIC_PALETTE && bits <= 8 && sample == Sample::Integer) {
    colors = Colors::Palette;
    VEL_RETURN_IF_FAILED(ReadPalette(ioFile, oCause));
  } else if (photometric == PHOTOMETRIC_SEPARATED && Short(ioFile, TIFFTAG_INKSET) == INKSET_CMYK &&
             sample == Sample::Integer) {
    colors = Colors::Inks;
  } else {
    return Unfit("colours of kind " + std::to_string(photometric), oCause);
  }
  if (samples >= ColorCount()) return S_OK;
  return Unfit("colours of kind " + std::to_string(photometric) + " in " + std::to_string(samples) + " samples",
               oCause);
}

HRESULT VelTiffLayout::ReadPalette(tiff* ioFile, std::string& oCause) {
  std::array<std::uint16_t*, 3> columns{};
  if (TIFFGetField(ioFile, TIFFTAG_COLORMAP, &columns[0], &columns[1], &columns[2]) != 1) {
    return Unfit("a palette without colours", oCause);
  }
  const std::size_t count = std::size_t{1} << bits;
  // Some programs write 8 bits where there is room for 16.
  bool isNarrow = true;
  for (const std::uint16_t* column : columns) {
    isNarrow = isNarrow && std::all_of(column, column + count, [](std::uint16_t iValue) { return iValue < 256; });
  }
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      const std::uint32_t value = columns[k][i];
      palette[i][k] = static_cast<std::uint8_t>(isNarrow ? value : (value * 255 + 32767) / 65535);
    }
  }
  return S_OK;
}

void VelTiffLayout::ReadAlpha(tiff* ioFile) {
  std::uint16_t count = 0;
  std::uint16_t* kinds = nullptr;
  if (TIFFGetFieldDefaulted(ioFile, TIFFTAG_EXTRASAMPLES, &count, &kinds) != 1 || kinds == nullptr) return;
  const std::span<const std::uint16_t> extras(kinds, count);
  // A sample whose meaning is not told may be anything, such as a mask for an editor.
  const auto found = std::find_if(extras.begin(), extras.end(), [](std::uint16_t iKind) {
    return iKind == EXTRASAMPLE_ASSOCALPHA || iKind == EXTRASAMPLE_UNASSALPHA;
  });
  if (found == extras.end()) return;
  const auto place = static_cast<std::uint32_t>(found - extras.begin()) + samples - count;
  if (count > samples || place < ColorCount()) return;
  alpha = static_cast<int>(place);
  isAssociated = *found == EXTRASAMPLE_ASSOCALPHA;
}

HRESULT VelTiffLayout::ReadUnits(tiff* ioFile, std::string& oCause) {
  isTiled = TIFFIsTiled(ioFile) != 0;
  if (isTiled) {
    TIFFGetField(ioFile, TIFFTAG_TILEWIDTH, &unitWidth);
    TIFFGetField(ioFile, TIFFTAG_TILELENGTH, &unitHeight);
  } else {
    unitWidth = width;
    TIFFGetFieldDefaulted(ioFile, TIFFTAG_ROWSPERSTRIP, &unitHeight);
    unitHeight = std::min(unitHeight, height);
  }
  return unitWidth != 0 && unitHeight != 0 ? S_OK : Unfit("strips or tiles of no size", oCause);
}

std::uint32_t VelTiffLayout::ColorCount() const noexcept {
  switch (colors) {
    case Colors::Grey:
    case Colors::InvertedGrey:
    case Colors::Palette:
      return 1;
    case Colors::Rgb:
    case Colors::Others:
      return 3;
    case Colors::Inks:
      return 4;
  }
  return 0;
}

std::uint64_t VelTiffLayout::UnitRowLength() const noexcept {
  return CeilingOf(std::uint64_t{unitWidth} * (isPlanar ? 1 : samples) * bits, 8);
}

std::uint64_t VelTiffLayout::UnpackedLength() const noexcept {
  const std::uint64_t planes = isPlanar ? samples : 1;
  if (!isTiled) return planes * height * UnitRowLength();
  const std::uint64_t tiles = CeilingOf(width, unitWidth) * CeilingOf(height, unitHeight);
  return planes * tiles * unitHeight * UnitRowLength();
}
