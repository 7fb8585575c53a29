// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadMaterial.h A rendering material with a drawing and a normal map, and the edits that a host makes of it.
#ifndef EXAMPLES_ROAD_OF_ONE_EDIT_ROADMATERIAL_H
#define EXAMPLES_ROAD_OF_ONE_EDIT_ROADMATERIAL_H

#include <cstdint>
#include <string>

#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "host/refresh/VelIRmaRefresh.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/materials/VelIRenderingMaterial.h"

/// What false means everywhere here: something could not be had; the traces then say what.
class RoadMaterial {
 public:
  /// Makes the container, the material of 200 mm by 100 mm, and a shader of the type "CustomShader" for it.
  bool Make();

  /// Has the appearance follow the material's edits from now on.
  bool Follow();

  /// In one edit, brings the files in as documents, each into a texture shader of its own among the nodes of the
  /// material's shader, and connects those to the diffuse and to the normal channel.
  /// @param[in] iFolder where upholstery.svg and upholstery_normal.png are
  bool Decorate(const std::string& iFolder);

  /// What a material editor announces: the name of a parameter of the material's shader, its value before and after.
  bool Edit(const char* iName, double iBefore, double iAfter) const;
  bool Edit(const char* iName, std::int32_t iBefore, std::int32_t iAfter) const;
  bool Edit(const char* iName, const char* iBefore, const char* iAfter) const;

  /// @return the parameter of the material's shader of that name; empty when there is none
  VelIRshParameter_var Find(const char* iName) const;

  VelIContainer_var hContainer;
  VelIRenderingMaterial_var hMaterial;
  VelIRshShader_var hShader;   ///< The material's own.
  VelIRshShader_var hDrawing;  ///< The texture shader of the drawing.
  VelIRshShader_var hNormals;  ///< The texture shader of the normal map.

 private:
  VelIRshShader_var AddTexture(const std::string& iPath, const char* iChannel);

  VelIRmaRefresh_var hRefresh_;
  VelRshTranslatorParameter translate_;
};

#endif  // EXAMPLES_ROAD_OF_ONE_EDIT_ROADMATERIAL_H
