// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ExrBytes.cpp Headers, tables and chunks of OpenEXR files.
#include "tests/platform/images/decoders/ExrBytes.h"

#include <cstddef>

#include "tests/platform/images/decoders/FileBytes.h"

namespace {

constexpr int tiledFlag = 0x200;
constexpr int partsFlag = 0x1000;

std::string Int(int iNumber) { return LittleEndian(static_cast<std::uint32_t>(iNumber), 4); }

std::string Text(const std::string& iText) { return iText + '\0'; }

std::string Attribute(const std::string& iName, const std::string& iType, const std::string& iValue) {
  return Text(iName) + Text(iType) + Int(static_cast<int>(iValue.size())) + iValue;
}

std::string Beginning(int iFlags) { return BytesOf({0x76, 0x2F, 0x31, 0x01}) + Int(2 | iFlags); }

}  // namespace

std::string ExrBytes::Header(int iPart, bool iHasParts) const {
  std::string list;
  for (const Channel& channel : channels) {
    list += Text(channel.name) + Int(channel.type) + Int(0) + Int(channel.sampling) + Int(channel.sampling);
  }
  const std::string window = Int(left) + Int(top) + Int(right) + Int(bottom);
  std::string header = Attribute("channels", "chlist", list + '\0');
  header += Attribute("compression", "compression", BytesOf({compression}));
  header += Attribute("dataWindow", "box2i", window);
  header += Attribute("displayWindow", "box2i", Int(0) + Int(0) + Int(99) + Int(99));
  header += Attribute("lineOrder", "lineOrder", BytesOf({0}));
  header += Attribute("pixelAspectRatio", "float", FloatBytes(1));
  header += Attribute("screenWindowCenter", "v2f", FloatBytes(0) + FloatBytes(0));
  header += Attribute("screenWindowWidth", "float", FloatBytes(1));
  if (tileSize != 0) header += Attribute("tiles", "tiledesc", Int(tileSize) + Int(tileSize) + BytesOf({0}));
  if (!iHasParts) return header + '\0';
  header += Attribute("name", "string", "part" + std::to_string(iPart));
  header += Attribute("type", "string", type);
  header += Attribute("chunkCount", "int", Int(static_cast<int>(chunks.size())));
  if (type.starts_with("deep"))
    header += Attribute("version", "int", Int(1)) + Attribute("maxSamplesPerPixel", "int", Int(1));
  return header + '\0';
}

std::string ExrBytes::Chunk(std::size_t iIndex, int iPart, bool iHasParts) const {
  const int index = static_cast<int>(iIndex);
  std::string place = Int(top + index);
  if (tileSize != 0) {
    const int tilesAcross = (right - left) / tileSize + 1;
    place = Int(index % tilesAcross) + Int(index / tilesAcross) + Int(0) + Int(0);
  }
  const std::string& data = chunks[iIndex];
  return (iHasParts ? Int(iPart) : "") + place + Int(static_cast<int>(data.size())) + data;
}

std::string ExrBytes::Head() const { return Beginning(tileSize != 0 ? tiledFlag : 0) + Header(0, false); }

std::string ExrBytes::File(const std::vector<ExrBytes>& iNext) const {
  const bool hasParts = !iNext.empty();
  std::vector<ExrBytes> parts{*this};
  parts.insert(parts.end(), iNext.begin(), iNext.end());
  std::string head = hasParts ? Beginning(partsFlag) : Head();
  std::size_t chunkCount = 0;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    if (hasParts) head += parts[part].Header(static_cast<int>(part), true);
    chunkCount += parts[part].chunks.size();
  }
  if (hasParts) head += '\0';
  std::string table;
  std::string data;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    for (std::size_t i = 0; i < parts[part].chunks.size(); ++i) {
      table += LittleEndian(head.size() + 8 * chunkCount + data.size(), 8);
      data += parts[part].Chunk(i, static_cast<int>(part), hasParts);
    }
  }
  return head + table + data;
}
