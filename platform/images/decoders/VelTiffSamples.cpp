// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffSamples.cpp Each kind of samples, and what it is as red, green, blue and alpha.
#include "platform/images/decoders/VelTiffSamples.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <half.h>

#include "platform/images/decoders/VelAssociatedAlpha.h"

namespace {

using Colors = VelTiffLayout::Colors;

std::byte ByteOf(std::uint64_t iValue) { return static_cast<std::byte>(iValue); }

/// A share of the largest value as one of 255, to the nearest.
std::byte ScaledByte(std::uint64_t iValue, std::uint64_t iLargest) {
  return ByteOf((iValue * 255 + iLargest / 2) / iLargest);
}

/// The bits of a byte from the highest down, as samples of so many bits.
void UnpackBits(const std::byte* iBytes, std::size_t iBits, std::span<std::uint8_t> oSamples) {
  const unsigned mask = (1U << iBits) - 1;
  for (std::size_t i = 0; i < oSamples.size(); ++i) {
    const std::size_t bit = i * iBits;
    const auto shift = 8 - iBits - bit % 8;
    oSamples[i] = static_cast<std::uint8_t>(std::to_integer<unsigned>(iBytes[bit / 8]) >> shift & mask);
  }
}

void Widen(const std::byte* iHalves, std::span<float> oFloats) {
  for (std::size_t i = 0; i < oFloats.size(); ++i) {
    std::uint16_t bits = 0;
    std::memcpy(&bits, iHalves + 2 * i, 2);
    oFloats[i] = imath_half_to_float(bits);
  }
}

}  // namespace

/// The samples of a row that count, each with as many steps to the next pixel.
template <typename Sample>
struct VelTiffSamples::Row {
  std::array<const Sample*, 4> colors{};
  const Sample* alpha = nullptr;
  std::size_t step = 1;
};

VelTiffSamples::VelTiffSamples(const VelTiffLayout& iLayout) : layout_(iLayout) {
  if (!layout_.isPlanar) {
    used_.push_back(0);
    return;
  }
  for (std::uint32_t i = 0; i < layout_.ColorCount(); ++i) used_.push_back(static_cast<std::uint16_t>(i));
  if (layout_.alpha != VelTiffLayout::noSample) used_.push_back(static_cast<std::uint16_t>(layout_.alpha));
}

bool VelTiffSamples::IsCopy() const noexcept {
  return layout_.colors == Colors::Rgb && layout_.bits == 8 && layout_.samples == 4 && !layout_.isPlanar &&
         layout_.alpha == 3 && !layout_.isAssociated;
}

template <typename Sample>
VelTiffSamples::Row<Sample> VelTiffSamples::RowOf(const Planes& iPlanes) const {
  Row<Sample> row;
  row.step = layout_.isPlanar ? 1 : layout_.samples;
  const auto* samples = reinterpret_cast<const Sample*>(iPlanes[0]);
  const std::size_t count = layout_.ColorCount();
  for (std::size_t i = 0; i < count; ++i) {
    row.colors[i] = layout_.isPlanar ? reinterpret_cast<const Sample*>(iPlanes[i]) : samples + i;
  }
  if (layout_.alpha == VelTiffLayout::noSample) return row;
  row.alpha = layout_.isPlanar ? reinterpret_cast<const Sample*>(iPlanes[count]) : samples + layout_.alpha;
  return row;
}

VelTiffSamples::Planes VelTiffSamples::Unpack(const Planes& iPlanes, std::size_t iCount) {
  Planes planes{};
  const std::size_t count = iCount * (layout_.isPlanar ? 1 : layout_.samples);
  for (std::size_t i = 0; i < used_.size(); ++i) {
    if (layout_.bits == 16) {
      widened_[i].resize(count);
      Widen(iPlanes[i], widened_[i]);
      planes[i] = reinterpret_cast<const std::byte*>(widened_[i].data());
    } else {
      unpacked_[i].resize(count);
      UnpackBits(iPlanes[i], layout_.bits, unpacked_[i]);
      planes[i] = reinterpret_cast<const std::byte*>(unpacked_[i].data());
    }
  }
  return planes;
}

void VelTiffSamples::Convert(const Planes& iPlanes, std::size_t iCount, std::byte* oPixels) {
  const bool isFloat = layout_.sample == VelTiffLayout::Sample::Float;
  const bool isUnpacked = isFloat ? layout_.bits == 32 : layout_.bits >= 8;
  const Planes planes = isUnpacked ? iPlanes : Unpack(iPlanes, iCount);
  if (isFloat) {
    ConvertFloats(RowOf<float>(planes), iCount, oPixels);
  } else if (layout_.colors == Colors::Palette) {
    ConvertPalette(RowOf<std::uint8_t>(planes), iCount, oPixels);
  } else if (layout_.bits == 16) {
    ConvertWhole(RowOf<std::uint16_t>(planes), iCount, oPixels);
  } else {
    ConvertWhole(RowOf<std::uint8_t>(planes), iCount, oPixels);
  }
}

void VelTiffSamples::ConvertPalette(const Row<std::uint8_t>& iRow, std::size_t iCount, std::byte* oPixels) const {
  const std::uint64_t largest = (std::uint64_t{1} << layout_.bits) - 1;
  for (std::size_t i = 0; i < iCount; ++i, oPixels += 4) {
    const auto& color = layout_.palette[iRow.colors[0][i * iRow.step]];
    for (std::size_t k = 0; k < 3; ++k) oPixels[k] = std::byte{color[k]};
    oPixels[3] = iRow.alpha == nullptr ? std::byte{255} : ScaledByte(iRow.alpha[i * iRow.step], largest);
  }
}

template <typename Sample>
void VelTiffSamples::ConvertWhole(const Row<Sample>& iRow, std::size_t iCount, std::byte* oPixels) const {
  const std::uint32_t largest = (1U << layout_.bits) - 1;
  const bool isGrey = layout_.ColorCount() == 1;
  const std::uint32_t flip = layout_.colors == Colors::InvertedGrey ? largest : 0;
  for (std::size_t i = 0; i < iCount; ++i, oPixels += 4) {
    const std::size_t place = i * iRow.step;
    const std::uint32_t alpha = iRow.alpha == nullptr ? largest : iRow.alpha[place];
    oPixels[3] = ScaledByte(alpha, largest);
    for (std::size_t k = 0; k < 3; ++k) {
      const std::uint32_t color = iRow.colors[isGrey ? 0 : k][place] ^ flip;
      if (layout_.colors == Colors::Inks) {
        // What an ink takes of the light, and the black of what is left.
        const std::uint64_t light = std::uint64_t{largest - color} * (largest - iRow.colors[3][place]);
        oPixels[k] = ScaledByte(light, std::uint64_t{largest} * largest);
      } else if (layout_.isAssociated && alpha != 0) {
        oPixels[k] = ScaledByte(std::min(color, alpha), alpha);
      } else {
        oPixels[k] = ScaledByte(color, largest);
      }
    }
  }
}

void VelTiffSamples::ConvertFloats(const Row<float>& iRow, std::size_t iCount, std::byte* oPixels) const {
  auto* pixel = reinterpret_cast<float*>(oPixels);
  const bool isGrey = layout_.ColorCount() == 1;
  const bool isInverted = layout_.colors == Colors::InvertedGrey;
  for (std::size_t i = 0; i < iCount; ++i, pixel += 4) {
    const std::size_t place = i * iRow.step;
    for (std::size_t k = 0; k < 3; ++k) {
      const float color = iRow.colors[isGrey ? 0 : k][place];
      pixel[k] = isInverted ? 1.0F - color : color;
    }
    pixel[3] = iRow.alpha == nullptr ? 1.0F : iRow.alpha[place];
  }
  if (layout_.isAssociated) VelAssociatedAlpha::Remove({oPixels, iCount * 4 * sizeof(float)});
}
