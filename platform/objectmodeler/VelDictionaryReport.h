// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReport.h How the dictionary words its errors.
#ifndef PLATFORM_OBJECTMODELER_VELDICTIONARYREPORT_H
#define PLATFORM_OBJECTMODELER_VELDICTIONARYREPORT_H

#include <string>
#include <string_view>

/// Reports an error on the channel "VelDictionary" as "<file>:<line>: <text>"; without file and line for a module that
/// is linked into the program.
void VelReportDictionaryError(std::string_view iFile, unsigned iLine, std::string_view iText) noexcept;

#endif  // PLATFORM_OBJECTMODELER_VELDICTIONARYREPORT_H
