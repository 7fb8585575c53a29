// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshVizNotificationParameterSubstanceGraphOutputChanged.h Tells that the graph output changed that feeds a
/// parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHVIZNOTIFICATIONPARAMETERSUBSTANCEGRAPHOUTPUTCHANGED_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHVIZNOTIFICATIONPARAMETERSUBSTANCEGRAPHOUTPUTCHANGED_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/events/VelModifyAttribut.h"
#include "platform/substance/VelIAlgSubstanceGraphOutput.h"

/// What a parameter's model events dispatch in place of the engine's own notification: it names the parameter as well
/// as the output. It lives for one dispatch; a listener that needs it longer makes a clone. Parameter and output are
/// not referenced, neither by the notification nor by its clones, and have to outlive them.
///
/// As a modification of an attribute it tells of the parameter's implementation, of no attribute, through
/// VelIRshParameter, of kind 2, without a path element.
class VEL_RSH_MODEL_API VelRshVizNotificationParameterSubstanceGraphOutputChanged final : public VelModifyAttribut {
 public:
  VEL_NOTIFICATION(VelRshVizNotificationParameterSubstanceGraphOutputChanged);

  VelRshVizNotificationParameterSubstanceGraphOutputChanged(VelIRshParameter& iParameter,
                                                            VelIAlgSubstanceGraphOutput& iOutput);
  VelRshVizNotificationParameterSubstanceGraphOutputChanged(
      const VelRshVizNotificationParameterSubstanceGraphOutputChanged&) = default;
  ~VelRshVizNotificationParameterSubstanceGraphOutputChanged() override;

  VelIRshParameter& GetParameter() noexcept { return parameter_; }
  const VelIRshParameter& GetParameter() const noexcept { return parameter_; }

  VelIAlgSubstanceGraphOutput& GetOutput() noexcept { return output_; }
  const VelIAlgSubstanceGraphOutput& GetOutput() const noexcept { return output_; }

  /// @return a notification of the same parameter and output on the heap of notifications, which the caller deletes;
  ///         null when that heap is used up
  VelNotification* Clone() const noexcept override;

  /// @return the name of the identifier that goes with the class: "VelNull", since it has none of its own
  static const char* ClassId() noexcept;

  /// @return null: the class is not created by name
  static VelNotification* CreateItself() noexcept { return nullptr; }

 private:
  VelIRshParameter& parameter_;
  VelIAlgSubstanceGraphOutput& output_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHVIZNOTIFICATIONPARAMETERSUBSTANCEGRAPHOUTPUTCHANGED_H
