// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadPage.h A page that shows the pictures of a material beside its tree.
#ifndef EXAMPLES_ROAD_OF_ONE_EDIT_ROADPAGE_H
#define EXAMPLES_ROAD_OF_ONE_EDIT_ROADPAGE_H

#include <string>
#include <vector>

#include "platform/materials/VelIRenderingMaterial.h"

/// Grows by a section a time; its files are written into a folder of their own.
class RoadPage {
 public:
  /// @param[in] iFolder is there
  explicit RoadPage(std::string iFolder);

  /// Adds a section, and writes the picture of each channel of the material beside the page, as it is now.
  /// @param[in] iTitle becomes the heading
  /// @param[in] iName the beginning of the pictures' file names
  /// @param[in] iTree the tree, a line each
  /// @param[in] iRoad what led here, a line each; may be empty
  /// @return false when a picture could not be written; the traces then say why
  bool Add(const std::string& iTitle, const std::string& iName, const std::vector<std::string>& iTree,
           const std::vector<std::string>& iRoad, const VelIRenderingMaterial_var& iMaterial);

  /// @return a line for each channel of a material that has a picture: its number, the parameter that feeds it, its
  ///         size in pixels, its file
  static std::vector<std::string> Channels(const VelIRenderingMaterial_var& iMaterial);

  /// Writes the page. @return false, after a line on the standard error stream, when it cannot be written
  bool Write();

  /// @return the files that were written, in order, the page last
  const std::vector<std::string>& Files() const noexcept { return files_; }

 private:
  std::string folder_;
  std::string body_;
  std::vector<std::string> files_;
};

#endif  // EXAMPLES_ROAD_OF_ONE_EDIT_ROADPAGE_H
