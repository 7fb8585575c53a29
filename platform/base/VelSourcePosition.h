// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSourcePosition.h Where in the sources a message was raised, in the form that every report of the system
/// prints.
#ifndef PLATFORM_BASE_VELSOURCEPOSITION_H
#define PLATFORM_BASE_VELSOURCEPOSITION_H

/// A source text and a line. The text is what the system prints, not necessarily a file that exists: a class of the
/// component gives its folder and class name without the extension.
struct VelSourcePosition {
  const char* source;  ///< Never null; lives as long as the process.
  unsigned line;       ///< 0 where no line is known.
};

/// The position of the line that this stands on, under a source text of the caller's choice. Lines that are part of the
/// system's contract are written as constants instead: VelSourcePosition{"...", 209}.
#define VEL_HERE(sourceText) \
  VelSourcePosition { sourceText, __LINE__ }

#endif  // PLATFORM_BASE_VELSOURCEPOSITION_H
