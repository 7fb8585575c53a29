// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelString.cpp The 8-bit string of the system: names, types, keys.
#include "platform/base/VelString.h"

VelString VelString::ToLower() const {
  VelString lower(*this);
  for (char& byte : lower.bytes_) {
    if ('A' <= byte && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  return lower;
}
