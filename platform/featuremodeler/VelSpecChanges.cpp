// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecChanges.cpp The counts of the process.
#include "platform/featuremodeler/VelSpecChanges.h"

constinit std::uint64_t VelSpecChanges::texts_ = 0;
constinit std::uint64_t VelSpecChanges::places_ = 0;
