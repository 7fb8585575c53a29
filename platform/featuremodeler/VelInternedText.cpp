// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInternedText.cpp The table of texts.
#include "platform/featuremodeler/VelInternedText.h"

#include <unordered_map>

namespace {

using Texts = std::unordered_map<std::string_view, VelInternedText*>;

Texts& AllTexts() {
  static Texts& texts = *new Texts;
  return texts;
}

}  // namespace

VelInternedText* VelInternedText::Hold(std::string_view iText) {
  if (const auto known = AllTexts().find(iText); known != AllTexts().end()) return HoldAgain(known->second);
  auto* made = new VelInternedText(iText);
  AllTexts().emplace(made->View(), made);
  return made;
}

void VelInternedText::Drop(VelInternedText* ioText) noexcept {
  if (ioText == nullptr || --ioText->holders_ != 0) return;
  AllTexts().erase(ioText->View());
  delete ioText;
}

std::size_t VelInternedText::Count() noexcept { return AllTexts().size(); }
