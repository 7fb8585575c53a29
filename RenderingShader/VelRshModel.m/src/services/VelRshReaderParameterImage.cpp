// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterImage.cpp Takes the image of the cache, or loads the file.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterImage.h"

#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

namespace {

/// @return the image that the cache holds for the parameter's slot, with one reference; null where there is none
VelPixelImage* FindInCache(const VelIRshParameter& iParameter) {
  const VelIRmaAppearanceCache_var hCache(VelRshParameterServices::FindRenderingMaterial(iParameter));
  const unsigned int slot = VelRshParameterServices::ComputeParameterSlot(iParameter);
  VelPixelImage* image = nullptr;
  if (hCache && slot != 0) static_cast<void>(hCache->GetImage(slot, &image));
  return image;
}

}  // namespace

VelRshReaderParameterImage::VelRshReaderParameterImage()
    : trace_("VelRshReaderParameterImage"), performance_("VelRshReaderParameterImagePerformanceTime") {}

VelPixelImage* VelRshReaderParameterImage::operator()(const VelIRshParameter& iParameter) const {
  const ScopedPerformanceTimer timer("image extraction", performance_.Get());
  const VelString name = VelRshReaderParameterName()(iParameter);
  if (VelPixelImage* cached = FindInCache(iParameter)) {
    trace_.Info("Parameter's image found into VelIRmaAppearanceCache : %x { parameter name = %s }", cached, name);
    return cached;
  }
  const VelUnicodeString path = filepath_(iParameter);
  VelPixelImage* image = VelPixelImage::CreateFromFile(path, 1, 0);
  if (image != nullptr) {
    trace_.Info("Parameter's image created from filepath %x { parameter name = %s }", path, name);
  } else {
    trace_.Warning("Could not produce a image from parameter { parameter name = %s }", name);
  }
  return image;
}
