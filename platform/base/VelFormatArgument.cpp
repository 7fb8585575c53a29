// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFormatArgument.cpp Makes arguments from the system's strings and reads them as bits.
#include "platform/base/VelFormatArgument.h"

#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"

VelFormatArgument::VelFormatArgument(const VelString& iText) noexcept : VelFormatArgument(iText.View()) {}

VelFormatArgument::VelFormatArgument(const VelUnicodeString& iText) noexcept : VelFormatArgument(iText.View()) {}

std::uint64_t VelFormatArgument::Bits() const noexcept {
  switch (kind_) {
    case Kind::Signed: {
      const unsigned unusedBits = 64U - 8U * width_;
      return (static_cast<std::uint64_t>(signed_) << unusedBits) >> unusedBits;
    }
    case Kind::Text:
      return reinterpret_cast<std::uintptr_t>(text_);
    case Kind::Pointer:
      return reinterpret_cast<std::uintptr_t>(pointer_);
    case Kind::Boolean:
    case Kind::Unsigned:
      return unsigned_;
    case Kind::Real:
      return 0;
  }
  return 0;
}
