// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelYoungFiles.h Tells files by their content that are too young to be told by their times.
#ifndef PLATFORM_IMAGES_SERVICES_VELYOUNGFILES_H
#define PLATFORM_IMAGES_SERVICES_VELYOUNGFILES_H

#include <string>

class VelSystemInputFile;

/// A file system's clock may tick so slowly that two versions of a file bear the same times. So a file that was written
/// within the last two seconds is told by its content as well. The process remembers that it did so: what was made of
/// the file then is still found when the file is older. Thread: the application thread.
class VelYoungFiles {
 public:
  /// @return what tells the content apart; empty for a file whose times do. A large file that was just written gets
  ///         another text each time, since reading it would cost more than making its picture again.
  static std::string ContentOf(const VelSystemInputFile& iFile);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELYOUNGFILES_H
