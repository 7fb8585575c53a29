// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParameterResourceImage.h Gives the image document that drives a parameter.
#ifndef PLATFORM_VIEWER_VELPARAMETERRESOURCEIMAGE_H
#define PLATFORM_VIEWER_VELPARAMETERRESOURCEIMAGE_H

#include "platform/objectmodeler/VelBoa.h"
#include "platform/viewer/VelIRmaVisuResourceImage.h"

/// Answers VelIRmaVisuResourceImage for the parameters that an image drives: a texture that has a document, and a
/// parameter that is connected to a shader whose texture "tex" has one. Not exported.
class VelParameterResourceImage final : public VelBoa<VelIRmaVisuResourceImage> {
 public:
  using VelBoa::VelBoa;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null for a parameter that no image drives
  static VelBaseUnknown* Create(VelComponent& ioParameter);

  HRESULT GetResourceImage(VelBaseUnknown** oResource) override;
};

#endif  // PLATFORM_VIEWER_VELPARAMETERRESOURCEIMAGE_H
