// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadTree.h A graph of shaders as text.
#ifndef EXAMPLES_ROAD_OF_ONE_EDIT_ROADTREE_H
#define EXAMPLES_ROAD_OF_ONE_EDIT_ROADTREE_H

#include <string>
#include <vector>

#include "RenderingShader/interfaces/VelIRshShader.h"

/// A shader as it was when it was read: its parameters in order, their values as texts, and what is connected to them.
struct RoadTree {
  struct Parameter {
    std::string name;
    std::string value;                ///< "-" for one that holds none.
    std::vector<RoadTree> connected;  ///< One shader, or none.
  };

  std::string title;  ///< Type and version.
  std::vector<Parameter> parameters;

  /// Reads a shader and all that is connected to it. The connections of the graph must not run in a circle.
  static RoadTree Read(VelIRshShader& iShader);

  /// Lays the tree out: first the values of each shader, then its connections, each a level deeper.
  /// @param[in] iBefore the same tree, read earlier: what has changed since is marked by a star; null marks nothing
  std::vector<std::string> Lines(const RoadTree* iBefore = nullptr) const;
};

#endif  // EXAMPLES_ROAD_OF_ONE_EDIT_ROADTREE_H
