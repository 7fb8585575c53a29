// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TiffBytes.cpp Directories of TIFF files, each with its values and pieces behind it.
#include "tests/platform/images/decoders/TiffBytes.h"

#include <cstddef>

#include "tests/platform/images/decoders/FileBytes.h"

namespace {

constexpr int bitsTag = 258;
constexpr int tileWidthTag = 322;

bool IsLong(int iTag) {
  for (const int tag : {256, 257, 273, 278, 279, 322, 323, 324, 325}) {
    if (iTag == tag) return true;
  }
  return false;
}

}  // namespace

std::string TiffBytes::Number(std::uint64_t iNumber, int iBytes) const {
  return isBigEndian ? BigEndian(iNumber, iBytes) : LittleEndian(iNumber, iBytes);
}

std::string TiffBytes::File(const std::vector<TiffBytes>& iNext) const {
  std::string file = (isBigEndian ? "MM" : "II") + Number(42, 2) + Number(8, 4);
  file += Page(file.size(), iNext.empty());
  for (std::size_t i = 0; i < iNext.size(); ++i) file += iNext[i].Page(file.size(), i + 1 == iNext.size());
  return file;
}

std::map<int, std::vector<std::uint32_t>> TiffBytes::AllTags(std::uint64_t iFirstPiece) const {
  const bool isTiled = tags.contains(tileWidthTag);
  std::map<int, std::vector<std::uint32_t>> all = tags;
  std::vector<std::uint32_t> offsets;
  std::vector<std::uint32_t> lengths;
  for (const std::string& piece : pieces) {
    offsets.push_back(static_cast<std::uint32_t>(iFirstPiece));
    lengths.push_back(static_cast<std::uint32_t>(piece.size()));
    iFirstPiece += piece.size();
  }
  all.insert({256, {width}});
  all.insert({257, {height}});
  all.insert(
      {bitsTag, std::vector<std::uint32_t>(static_cast<std::size_t>(samples), static_cast<std::uint32_t>(bits))});
  all.insert({259, {1}});
  all.insert({262, {static_cast<std::uint32_t>(photometric)}});
  all.insert({277, {static_cast<std::uint32_t>(samples)}});
  all.insert({isTiled ? 324 : 273, offsets});
  all.insert({isTiled ? 325 : 279, lengths});
  if (!isTiled) all.insert({278, {height}});
  return all;
}

std::string TiffBytes::Page(std::uint64_t iOffset, bool iIsLast) const {
  // The lengths are those of the first round; the offsets of the pieces are known in the second.
  std::uint64_t firstPiece = 0;
  std::string directory;
  std::string values;
  for (int round = 0; round < 2; ++round) {
    const auto all = AllTags(firstPiece);
    const std::uint64_t valuesBegin = iOffset + 2 + all.size() * 12 + 4;
    directory = Number(all.size(), 2);
    values.clear();
    for (const auto& [tag, numbers] : all) {
      const int size = IsLong(tag) ? 4 : 2;
      std::string data;
      for (const std::uint32_t number : numbers) data += Number(number, size);
      directory +=
          Number(static_cast<std::uint64_t>(tag), 2) + Number(size == 4 ? 4 : 3, 2) + Number(numbers.size(), 4);
      if (data.size() <= 4) {
        data.resize(4);
        directory += data;
      } else {
        directory += Number(valuesBegin + values.size(), 4);
        values += data;
      }
    }
    firstPiece = valuesBegin + values.size();
  }
  std::string data = values;
  for (const std::string& piece : pieces) data += piece;
  if (data.size() % 2 != 0) data += '\0';
  const std::uint64_t next = iIsLast ? 0 : iOffset + directory.size() + 4 + data.size();
  return directory + Number(next, 4) + data;
}
