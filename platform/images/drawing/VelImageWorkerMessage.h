// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerMessage.h What the process and its helper program velrsh-image-worker say to each other.
#ifndef PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERMESSAGE_H
#define PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERMESSAGE_H

#include <cstddef>
#include <cstdint>

/// Messages run over a sequenced-packet socket, which is the helper's descriptor 3. Each begins with one of these
/// records, in the byte order of the machine, and goes on with a text of the length that the record tells.
///
/// A request brings one descriptor, the open input file. It is answered by one reply, or by none when the helper dies.
/// A reply of status Done brings one descriptor: memory of exactly width x height pixels, sealed against writing,
/// growing and shrinking. Others bring none.
namespace VelImageWorkerMessage {

constexpr std::uint32_t version = 1;
constexpr std::size_t largestText = std::size_t{128} * 1024;  ///< Bytes behind a record: names of groups.
constexpr std::size_t largestCause = std::size_t{16} * 1024;  ///< Bytes behind a reply's record: the reason.

enum class Status : std::uint32_t {
  Done = 0,    ///< There is a picture. The text, where there is one, lists unknown group names, each ended by a NUL.
  Refused = 1  ///< There is none. The text is the reason in English, made to follow the path.
};

struct Request {
  std::uint32_t version = VelImageWorkerMessage::version;
  std::uint32_t kind = 0;        ///< A VelImageKind: how the file is to be read.
  std::uint64_t identifier = 0;  ///< Comes back in the reply.
  std::int32_t dpi = 0;          ///< Of Svg alone: 1 to 4800, 96 is the picture's own size.
  std::uint32_t textLength =
      0;  ///< Of Svg alone: the names of the groups to draw, each ended by a NUL; none draws all.
};

struct Reply {
  std::uint32_t version = VelImageWorkerMessage::version;
  std::uint32_t status = 0;  ///< A Status.
  std::uint64_t identifier = 0;
  std::int32_t width = 0;        ///< Pixels.
  std::int32_t height = 0;       ///< Pixels.
  std::uint32_t format = 0;      ///< A VelPixelImage::Format.
  std::uint32_t colorSpace = 0;  ///< A VelPixelImage::ColorSpace.
  std::uint32_t textLength = 0;
  std::uint32_t reserved = 0;
};

}  // namespace VelImageWorkerMessage

#endif  // PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERMESSAGE_H
