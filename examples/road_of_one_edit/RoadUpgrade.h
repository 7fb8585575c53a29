// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadUpgrade.h A shader whose type comes out in a second version.
#ifndef EXAMPLES_ROAD_OF_ONE_EDIT_ROADUPGRADE_H
#define EXAMPLES_ROAD_OF_ONE_EDIT_ROADUPGRADE_H

#include <string>

#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlan.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/featuremodeler/VelIContainer.h"

/// The type is "QuiltedLeather": a file that the session looks for, as any type that an author brings out. What false
/// means everywhere here: something could not be had; the traces then say what.
class RoadUpgrade {
 public:
  /// @param[in] iVersions the folder of QuiltedLeather.before.toml and QuiltedLeather.after.toml
  /// @param[in] iTypes the folder where the session looks for types
  RoadUpgrade(std::string iVersions, std::string iTypes);

  /// Puts a version of the type in place.
  /// @param[in] iVersion "before" or "after"
  /// @return false, after a line on the standard error stream, when the file cannot be copied
  bool Publish(const std::string& iVersion) const;

  /// Makes a shader of the type as it is now, and gives it values of its own and, as its dye, a texture shader.
  bool Make(const VelIContainer_var& iContainer);

  /// Has the types read again, and asks what an upgrade would do.
  bool Plan(VelRshUpgradePlan& oPlan) const;

  bool Run() const;

  VelIRshShader_var hShader;

 private:
  std::string versions_;
  std::string types_;
};

#endif  // EXAMPLES_ROAD_OF_ONE_EDIT_ROADUPGRADE_H
