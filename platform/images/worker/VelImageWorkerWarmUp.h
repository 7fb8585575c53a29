// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerWarmUp.h What the helper program opens once, before it gives up opening anything.
#ifndef PLATFORM_IMAGES_WORKER_VELIMAGEWORKERWARMUP_H
#define PLATFORM_IMAGES_WORKER_VELIMAGEWORKERWARMUP_H

/// The processes that draw are copies of one that has its libraries, loaders and fonts in memory: they open no file,
/// and a picture does not wait for them.
class VelImageWorkerWarmUp {
 public:
  /// Does what can be done: what fails here is missing in pictures later.
  static void Run();
};

#endif  // PLATFORM_IMAGES_WORKER_VELIMAGEWORKERWARMUP_H
