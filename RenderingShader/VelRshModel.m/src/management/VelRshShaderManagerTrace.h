// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManagerTrace.h The class trace of the manager, which its sources share.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHSHADERMANAGERTRACE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHSHADERMANAGERTRACE_H

#include "platform/trace/VelClassTrace.h"

extern constinit VelClassTrace velRshShaderManagerTrace;

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHSHADERMANAGERTRACE_H
