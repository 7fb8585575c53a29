// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNullHandleError.cpp The key function of the null-handle error, so that it has one type in the whole
/// process.
#include "platform/objectmodeler/VelNullHandleError.h"

#include <cstdio>

VelNullHandleError::VelNullHandleError(const char* iInterface) noexcept : interface_(iInterface) {
  static_cast<void>(std::snprintf(text_.data(), text_.size(), "An empty handle of %s was used", iInterface));
}

VelNullHandleError::~VelNullHandleError() = default;

const char* VelNullHandleError::what() const noexcept { return text_.data(); }

void VelNullHandleError::Throw(const char* iInterface) { throw VelNullHandleError(iInterface); }
