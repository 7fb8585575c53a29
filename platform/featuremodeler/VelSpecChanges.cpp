// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecChanges.cpp The one count of the process.
#include "platform/featuremodeler/VelSpecChanges.h"

constinit std::uint64_t VelSpecChanges::count_ = 0;
