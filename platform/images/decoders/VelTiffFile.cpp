// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffFile.cpp Opens TIFF files with libtiff.
#include "platform/images/decoders/VelTiffFile.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>

#include <tiffio.h>

namespace {

constexpr tmsize_t largestAllocation = tmsize_t{256} * 1024 * 1024;

}  // namespace

/// What the library calls.
struct VelTiffFile::Handlers {
  static State& StateOf(thandle_t iHandle) { return *static_cast<State*>(iHandle); }

  static tmsize_t Read(thandle_t iHandle, void* oBytes, tmsize_t iCount) {
    if (iCount <= 0) return 0;
    const std::span bytes(static_cast<std::byte*>(oBytes), static_cast<std::size_t>(iCount));
    return static_cast<tmsize_t>(StateOf(iHandle).cursor.Read(bytes));
  }

  static tmsize_t Write(thandle_t, void*, tmsize_t) { return 0; }

  static toff_t Seek(thandle_t iHandle, toff_t iOffset, int iOrigin) {
    VelImageSourceCursor& cursor = StateOf(iHandle).cursor;
    const std::uint64_t base = iOrigin == SEEK_SET ? 0 : iOrigin == SEEK_CUR ? cursor.Position() : cursor.Size();
    cursor.MoveTo(base + iOffset);
    return cursor.Position();
  }

  static int Close(thandle_t) { return 0; }

  static toff_t Size(thandle_t iHandle) { return StateOf(iHandle).cursor.Size(); }

  static int OnError(TIFF*, void* ioState, const char*, const char* iFormat, std::va_list iArguments) {
    State& state = *static_cast<State*>(ioState);
    if (state.fault[0] == '\0') std::vsnprintf(state.fault.data(), state.fault.size(), iFormat, iArguments);
    return 1;
  }

  static int OnWarning(TIFF* iFile, void* ioState, const char* iModule, const char* iFormat, std::va_list iArguments) {
    const State& state = *static_cast<State*>(ioState);
    return state.isStrict ? OnError(iFile, ioState, iModule, iFormat, iArguments) : 1;
  }
};

VelTiffFile::~VelTiffFile() {
  if (file_ != nullptr) TIFFClose(file_);
}

HRESULT VelTiffFile::Open(std::string& oCause) {
  TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
  if (options == nullptr) return Fail(oCause);
  TIFFOpenOptionsSetMaxSingleMemAlloc(options, largestAllocation);
  TIFFOpenOptionsSetErrorHandlerExtR(options, Handlers::OnError, &state_);
  TIFFOpenOptionsSetWarningHandlerExtR(options, Handlers::OnWarning, &state_);
  // Read, and without a map of the file, which would end the process when the file is cut meanwhile.
  file_ = TIFFClientOpenExt("image", "rm", &state_, Handlers::Read, Handlers::Write, Handlers::Seek, Handlers::Close,
                            Handlers::Size, nullptr, nullptr, options);
  TIFFOpenOptionsFree(options);
  return file_ == nullptr ? Fail(oCause) : S_OK;
}

void VelTiffFile::ReadStrictly() noexcept {
  state_.fault[0] = '\0';
  state_.isStrict = true;
}

HRESULT VelTiffFile::Fail(std::string& oCause) const {
  oCause = std::string("is a damaged TIFF file: ") + (IsSound() ? "it cannot be read" : state_.fault.data());
  return E_FAIL;
}
