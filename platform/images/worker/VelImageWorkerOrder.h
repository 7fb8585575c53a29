// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerOrder.h What the helper program is asked for.
#ifndef PLATFORM_IMAGES_WORKER_VELIMAGEWORKERORDER_H
#define PLATFORM_IMAGES_WORKER_VELIMAGEWORKERORDER_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/images/pixels/VelImageKind.h"

class VelImageSource;
class VelWorkerPicture;

/// A request once it is read.
struct VelImageWorkerOrder {
  std::uint64_t identifier = 0;
  VelImageKind kind = VelImageKind::Unknown;
  int dpi = 0;                      ///< Of Svg alone.
  std::vector<std::string> groups;  ///< Of Svg alone.

  /// Reads a message.
  /// @param[out] oOrder replaced; its identifier is right also after a failure, as far as the message has one
  /// @param[out] oCause the reason of a failure in English; untouched otherwise
  /// @return S_OK; E_INVALIDARG when the message is no request of this version
  static HRESULT Read(std::string_view iMessage, VelImageWorkerOrder& oOrder, std::string& oCause);

  /// Makes the picture.
  /// @param[out] oPicture replaced by the picture; undefined after a failure
  /// @param[out] oUnknown replaced by the names of unknown groups
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_INVALIDARG for a figure out of its range; E_FAIL when the file gives no picture
  HRESULT Carry(VelImageSource& ioSource, VelWorkerPicture& oPicture, std::vector<std::string>& oUnknown,
                std::string& oCause) const;
};

#endif  // PLATFORM_IMAGES_WORKER_VELIMAGEWORKERORDER_H
