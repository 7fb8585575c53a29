// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWorkerFonts.h The fonts of processes that open no files.
#ifndef PLATFORM_IMAGES_WORKER_VELWORKERFONTS_H
#define PLATFORM_IMAGES_WORKER_VELWORKERFONTS_H

/// Text is drawn in six faces of the machine: sans-serif, serif and monospace, each upright, regular and bold. Whatever
/// else a file asks for, it gets the nearest of these: faces are open before the process is confined, or never.
class VelWorkerFonts {
 public:
  /// Finds the faces and has no others known in this process. Once, before the first text is drawn. On a machine
  /// without fonts text is not drawn.
  static void Choose();
};

#endif  // PLATFORM_IMAGES_WORKER_VELWORKERFONTS_H
