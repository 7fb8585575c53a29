// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelVisibility.h How a symbol leaves a shared library and how it enters another; each library's own macro is
/// made from these.
#ifndef PLATFORM_BASE_VELVISIBILITY_H
#define PLATFORM_BASE_VELVISIBILITY_H

#if defined(_WIN32)
#define VEL_EXPORT __declspec(dllexport)
#define VEL_IMPORT __declspec(dllimport)
#else
#define VEL_EXPORT __attribute__((visibility("default")))
#define VEL_IMPORT __attribute__((visibility("default")))
#endif

#endif  // PLATFORM_BASE_VELVISIBILITY_H
