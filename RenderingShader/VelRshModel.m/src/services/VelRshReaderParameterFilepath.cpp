// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterFilepath.cpp Asks one source of a path after the other.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterFilepath.h"

#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureDocument.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureEntry.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/images/VelRbaPathResolver.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshReaderParameterFilepath";
constexpr const char* channel = "VelRshReaderParameterFilepath";
constexpr const char* performanceChannel = "VelRshReaderParameterFilepathPerformanceTime";
constexpr const char* longPathPrefix = "\\\\?\\";

}  // namespace

VelRshReaderParameterFilepath::VelRshReaderParameterFilepath() : trace_(channel), performance_(performanceChannel) {}

void VelRshReaderParameterFilepath::Report(const char* iMessage, unsigned iLine, const VelUnicodeString& iPath,
                                           const VelString& iName) const {
  if (iPath.IsEmpty()) {
    trace_.Error({sourceText, iLine}, iMessage, iPath, iName);
  } else {
    trace_.Info(iMessage, iPath, iName);
  }
}

VelUnicodeString VelRshReaderParameterFilepath::operator()(const VelIRshParameter& iParameter) const {
  const ScopedPerformanceTimer timer("file path extraction", performance_.Get());
  const VelString name = VelRshReaderParameterName()(iParameter);
  VelUnicodeString path = ReadFromCache(iParameter, name);
  if (path.IsEmpty()) path = ReadFromValue(iParameter, name);
  if (path.IsEmpty()) trace_.Warning("Could not produce a filepath { parameter name = %s }", name);
  return path;
}

VelUnicodeString VelRshReaderParameterFilepath::ReadFromCache(const VelIRshParameter& iParameter,
                                                              const VelString& iName) const {
  VelUnicodeString path;
  const VelIRmaAppearanceCache_var hCache(VelRshParameterServices::FindRenderingMaterial(iParameter));
  const unsigned int slot = VelRshParameterServices::ComputeParameterSlot(iParameter);
  if (!hCache || slot == 0 || FAILED(hCache->GetPath(slot, path))) return {};
  Report("File path found into VelIRmaAppearanceCache : %s { parameter name = %s }", __LINE__, path, iName);
  return path;
}

VelUnicodeString VelRshReaderParameterFilepath::ReadFromValue(const VelIRshParameter& iParameter,
                                                              const VelString& iName) const {
  switch (VelRshReaderParameterType()(iParameter)) {
    case VelRshReaderParameterType::String:
      return ReadFromText(iParameter, iName);
    case VelRshReaderParameterType::Texture:
      return ReadFromTexture(iParameter, iName);
    case VelRshReaderParameterType::Unknown:
    case VelRshReaderParameterType::Void:
    case VelRshReaderParameterType::Boolean:
    case VelRshReaderParameterType::Color:
    case VelRshReaderParameterType::Scalar:
    case VelRshReaderParameterType::Integer:
    case VelRshReaderParameterType::Vector:
      return {};
  }
  return {};
}

VelUnicodeString VelRshReaderParameterFilepath::ReadFromText(const VelIRshParameter& iParameter,
                                                             const VelString& iName) const {
  VelUnicodeString path = VelRshReaderParameterValue().asUnicodeText(iParameter);
  VelUnicodeString resolved;
  if (SUCCEEDED(VelRbaPathResolver::Resolve(path, resolved))) path = resolved;
  path.RemoveAll(longPathPrefix);
  Report("File path found into resolved string's parameter value : %s { parameter name = %s }", __LINE__, path, iName);
  return path;
}

VelUnicodeString VelRshReaderParameterFilepath::ReadFromTexture(const VelIRshParameter& iParameter,
                                                                const VelString& iName) const {
  const VelBaseUnknown_var hDocument =
      VelRshTextureDocument::Of(VelIRshParameter_var(&const_cast<VelIRshParameter&>(iParameter)));
  if (!hDocument) {
    trace_.Info("No texture linked { parameter name = %s }", iName);
    return {};
  }
  VelUnicodeString path;
  if (!VelRshTextureDocument::FindPath(*hDocument, path)) return {};
  if (VelRshTextureDocument::IsSvg(*hDocument)) return Rasterise(iParameter, iName, path);
  static_cast<void>(VelRbaImageServices::ConvertUnsupportedTexture(path, {}, VelRshTextureEntry::plainResolution));
  Report("File path found into projected non-SVG texture : %s { parameter name = %s }", __LINE__, path, iName);
  return path;
}

/// @param[in] iPath that of the SVG file
VelUnicodeString VelRshReaderParameterFilepath::Rasterise(const VelIRshParameter& iParameter, const VelString& iName,
                                                          VelUnicodeString iPath) const {
  const VelIRshParameterPrivate_var hPrivate(&const_cast<VelIRshParameter&>(iParameter));
  VelIRshShader_var hShader;
  if (hPrivate) hPrivate->GetParentShader(hShader);
  if (!hShader) return {};
  const VelRshReaderParameterCollection collection;
  const VelRshReaderParameterCollection::Parameters parameters = collection(*hShader);
  const VelIRshParameter_var hDpi = collection(parameters, "dpi");
  const VelIRshParameter_var hGroups = collection(parameters, "group_names");
  if (!hDpi || !hGroups) return {};
  const int dpi = VelRshReaderParameterValue().asIntegral(*hDpi);
  VelListValVelUnicodeString groups;
  VelRbaImageServices::ExtractPathList(VelRshReaderParameterValue().asUnicodeText(*hGroups), groups);
  trace_.Info("SVG rasterizing... { dpi: %d, group count: %d }", dpi, groups.Size());
  VelBaseUnknown_var hImage;
  {
    const ScopedPerformanceTimer timer("SVG raster (VelRbaImageServices)", performance_.Get());
    hImage = VelBaseUnknown_var::Adopt(VelRbaImageServices::CreatePixelImageFromFullPath(iPath, groups, dpi));
  }
  if (!hImage) return {};
  static_cast<void>(VelRbaImageServices::ConvertUnsupportedTexture(iPath, groups, dpi));
  // Deliberately the words of what is no SVG file: users know the line by them.
  Report("File path found into projected non-SVG texture : %s { parameter name = %s }", __LINE__, iPath, iName);
  return iPath;
}
