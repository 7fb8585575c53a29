// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInternedText.h Texts that are kept once, however many features hold them.
#ifndef PLATFORM_FEATUREMODELER_VELINTERNEDTEXT_H
#define PLATFORM_FEATUREMODELER_VELINTERNEDTEXT_H

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/VelPlatformApi.h"

/// A text, counted: it goes with its last holder. Not exported.
class VelInternedText {
 public:
  /// @return the text, with one more holder
  static VelInternedText* Hold(std::string_view iText);

  /// Drops a holder; null is fine.
  static void Drop(VelInternedText* ioText) noexcept;

  /// @return a text that is held already, with one more holder
  static VelInternedText* HoldAgain(VelInternedText* ioText) noexcept {
    if (ioText != nullptr) ++ioText->holders_;
    return ioText;
  }

  /// @return how many different texts are held
  VEL_PLATFORM_API static std::size_t Count() noexcept;

  std::string_view View() const noexcept { return text_; }

 private:
  explicit VelInternedText(std::string_view iText) : text_(iText) {}

  std::string text_;
  std::uint32_t holders_ = 1;
};

#endif  // PLATFORM_FEATUREMODELER_VELINTERNEDTEXT_H
