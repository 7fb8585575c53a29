// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorker.h Has pictures made outside of this process.
#ifndef PLATFORM_IMAGES_DRAWING_VELIMAGEWORKER_H
#define PLATFORM_IMAGES_DRAWING_VELIMAGEWORKER_H

#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/images/pixels/VelImageKind.h"
#include "platform/images/pixels/VelPixelBuffer.h"

class VelSystemInputFile;

/// The helper program velrsh-image-worker, of which the process keeps one run from its first request to its end.
/// VelImageWorkerProgram tells where the program is looked for.
/// Thread: the application thread. Re-entrancy: none; nobody is called back.
class VelImageWorker {
 public:
  /// Has a picture made of a file, in 10 seconds at the most. The process takes no harm from a file that kills the
  /// program or keeps it busy: the program is ended then, and the next request starts it anew.
  /// @param[in] iKind how the file is to be read
  /// @param[in] iFile open; stays the caller's and is not moved
  /// @param[in] iGroups of Svg alone: the names of the groups to draw, without NUL bytes and of at most
  ///            VelImageWorkerMessage::largestText bytes together, one more for each; none draws all
  /// @param[in] iDpi of Svg alone: 1 to 4800, 96 is the picture's own size
  /// @param[out] oImage the picture; on failure empty or as it was
  /// @param[out] oUnknownGroups replaced by those of iGroups that the file does not have; untouched on failure
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when there is no picture: the file is at fault, an argument is, or the program is missing,
  ///         has died, was too slow or has answered wrongly
  static HRESULT Draw(VelImageKind iKind, const VelSystemInputFile& iFile, const std::vector<std::string>& iGroups,
                      int iDpi, VelPixelBuffer& oImage, std::vector<std::string>& oUnknownGroups, std::string& oCause);

  /// Ends the program, as the end of the platform does. The next request starts it anew. Idempotent.
  static void Stop() noexcept;
};

#endif  // PLATFORM_IMAGES_DRAWING_VELIMAGEWORKER_H
