// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageKey.cpp Feeds the parts of a key to SHA-256.
#include "platform/images/services/VelImageKey.h"

#include <sha2.h>

#include <array>
#include <cstddef>

#include "platform/base/system/VelSystemInputFile.h"

namespace {

constexpr std::int64_t rulesVersion = 1;
constexpr std::size_t keptBytes = 20;

}  // namespace

struct VelImageKey::State {
  SHA2_CTX context;
};

VelImageKey::VelImageKey() : state_(std::make_unique<State>()) {
  ::SHA256Init(&state_->context);
  Add(rulesVersion);
}

VelImageKey::~VelImageKey() = default;

VelImageKey& VelImageKey::Add(std::string_view iText) {
  Add(static_cast<std::int64_t>(iText.size()));
  ::SHA256Update(&state_->context, reinterpret_cast<const std::uint8_t*>(iText.data()), iText.size());
  return *this;
}

VelImageKey& VelImageKey::Add(std::int64_t iNumber) {
  ::SHA256Update(&state_->context, reinterpret_cast<const std::uint8_t*>(&iNumber), sizeof iNumber);
  return *this;
}

VelImageKey& VelImageKey::Add(const VelSystemFileStatus& iStatus) {
  Add(static_cast<std::int64_t>(iStatus.device));
  Add(static_cast<std::int64_t>(iStatus.number));
  Add(static_cast<std::int64_t>(iStatus.size));
  Add(iStatus.modifiedAt);
  return Add(iStatus.statusChangedAt);
}

std::string VelImageKey::Finish() {
  std::array<std::uint8_t, SHA256_DIGEST_LENGTH> digest{};
  ::SHA256Final(digest.data(), &state_->context);
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : std::span(digest).first<keptBytes>()) {
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
  return text;
}
