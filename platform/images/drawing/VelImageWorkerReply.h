// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerReply.h What the helper program answered, once it has been looked at closely.
#ifndef PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERREPLY_H
#define PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERREPLY_H

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/images/drawing/VelImageWorkerMessage.h"
#include "platform/images/pixels/VelPixelBuffer.h"

/// A reply comes from a program that has read a hostile file, so nothing of it is taken on trust. Where an operation
/// fails, oCause is the reason, made to follow the program's name ("sent no picture").
class VelImageWorkerReply {
 public:
  /// Takes a message apart.
  /// @return S_OK; E_FAIL when it is no reply of the version that is spoken here; nothing else may be called then
  HRESULT Parse(const std::string& iMessage, std::string& oCause);

  /// @return the identifier of the request that is answered
  std::uint64_t GetIdentifier() const noexcept { return record_.identifier; }

  /// @return true when there is no picture for a reason that lies in the file
  bool IsRefusal() const noexcept;

  /// @return the reason of a refusal, in one line, made to follow the path of the file
  std::string GetRefusal() const;

  /// Copies the picture out of the memory that came with the reply.
  /// @param[in] iMemory what the message brought
  /// @param[out] oImage on failure empty or as it was
  /// @return S_OK; E_FAIL when the size or the format is impossible, when the memory is not sealed or not of that
  ///         size, or when there is no room for the pixels
  HRESULT TakeImage(VelSystemDescriptor iMemory, VelPixelBuffer& oImage, std::string& oCause) const;

  /// Takes the names of the groups that the file does not have. Names that nobody asked for are left out.
  /// @param[out] oUnknown replaced on S_OK
  /// @return S_OK; E_FAIL when the text behind the record is no list of names
  HRESULT TakeUnknownGroups(const std::vector<std::string>& iAsked, std::vector<std::string>& oUnknown,
                            std::string& oCause) const;

 private:
  VelImageWorkerMessage::Reply record_;
  std::string text_;
};

#endif  // PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERREPLY_H
