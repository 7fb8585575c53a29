// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLibraryCause.h Hands on what a drawing library has to say of a file.
#ifndef PLATFORM_IMAGES_WORKER_VELLIBRARYCAUSE_H
#define PLATFORM_IMAGES_WORKER_VELLIBRARYCAUSE_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"

struct _GError;

class VelLibraryCause {
 public:
  /// @param[in] iWhat what failed, made to follow the path
  /// @param[in] iError the library's own words, freed here; null for none
  /// @param[out] oCause one line of both, of bounded length: the words may quote the file
  /// @return E_FAIL
  static HRESULT Fail(std::string_view iWhat, _GError* iError, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELLIBRARYCAUSE_H
