// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLibraryCause.cpp Makes one line of a library's message.
#include "platform/images/worker/VelLibraryCause.h"

#include <glib.h>

#include <cstddef>

namespace {

constexpr std::size_t mostLetters = 500;

}  // namespace

HRESULT VelLibraryCause::Fail(std::string_view iWhat, _GError* iError, std::string& oCause) {
  oCause = iWhat;
  if (iError == nullptr) return E_FAIL;
  std::string words = std::string(iError->message).substr(0, mostLetters);
  g_error_free(iError);
  // A letter outside of ASCII could have been cut.
  for (char& letter : words) {
    if (letter < ' ' || letter > '~') letter = ' ';
  }
  oCause += ": " + words;
  return E_FAIL;
}
