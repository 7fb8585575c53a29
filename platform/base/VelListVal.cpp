// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelListVal.cpp Reports a list position that is out of range.
#include "platform/base/VelListVal.h"

#include <string>

#include "platform/base/VelCheck.h"

void VelReportListPosition(int iPosition, int iSize, int iLast) noexcept {
  const std::string detail = "position = " + std::to_string(iPosition) + ", size = " + std::to_string(iSize);
  VelCheck::Failed(VEL_HERE("platform/base/VelListVal"),
                   iLast == iSize ? "1 <= position && position <= size" : "1 <= position && position <= size + 1",
                   "List position out of range", detail);
}
