// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIAlgSubstanceGraphOutput.cpp The identifier of VelIAlgSubstanceGraphOutput.
#include "platform/substance/VelIAlgSubstanceGraphOutput.h"

const VelInterfaceId IID_VelIAlgSubstanceGraphOutput{"VelIAlgSubstanceGraphOutput", IID_VelBaseUnknown};
