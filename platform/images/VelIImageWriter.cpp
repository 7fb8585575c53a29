// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIImageWriter.cpp The identifier of VelIImageWriter.
#include "platform/images/VelIImageWriter.h"

const VelInterfaceId IID_VelIImageWriter{"VelIImageWriter", IID_VelBaseUnknown};
