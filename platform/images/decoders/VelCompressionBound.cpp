// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCompressionBound.cpp Compares without a product that could overflow.
#include "platform/images/decoders/VelCompressionBound.h"

HRESULT VelCompressionBound::Check(std::uint64_t iUnpacked, std::uint64_t iFileSize, std::uint64_t iRatio,
                                   std::string& oCause) {
  if (iUnpacked / iRatio <= iFileSize) return S_OK;
  oCause = "claims " + std::to_string(iUnpacked) + " bytes of pixels, more than its " + std::to_string(iFileSize) +
           " bytes can hold";
  return E_FAIL;
}
