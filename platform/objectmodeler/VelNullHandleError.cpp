// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNullHandleError.cpp The key function of the null-handle error, so that it has one type in the whole
/// process.
#include "platform/objectmodeler/VelNullHandleError.h"

VelNullHandleError::~VelNullHandleError() = default;

const char* VelNullHandleError::what() const noexcept { return "An empty interface handle was used"; }

void VelNullHandleError::Throw(const char* iInterface) { throw VelNullHandleError(iInterface); }
