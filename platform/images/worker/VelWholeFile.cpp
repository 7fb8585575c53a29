// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWholeFile.cpp Reads an image file into memory.
#include "platform/images/worker/VelWholeFile.h"

#include <span>

#include "platform/images/pixels/VelImageSource.h"

HRESULT VelWholeFile::Read(VelImageSource& ioSource, std::size_t iMost, std::string& oBytes, std::string& oCause) {
  if (ioSource.Size() > iMost) {
    oCause = "has " + std::to_string(ioSource.Size()) + " bytes; expected at most " + std::to_string(iMost);
    return E_FAIL;
  }
  oBytes.resize(static_cast<std::size_t>(ioSource.Size()));
  if (ioSource.ReadAt(0, std::as_writable_bytes(std::span(oBytes))) == oBytes.size()) return S_OK;
  oCause = "cannot be read to its end";
  return E_FAIL;
}
