// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeFile.cpp Hands the text of a file to the library that reads it.
#include "host/shadertypes/VelRmaShaderTypeFile.h"

#include <utility>
#include <vector>

#include "host/shadertypes/VelRmaShaderTypeReader.h"
#include "platform/base/system/VelSystemFile.h"
#include "platform/configuration/VelIConfigurationTreeReader.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* channel = "VelRmaConfiguredShaderFactory";

/// Once, since it would be said of each file.
void WarnOfMissingReader(const std::string& iPath) {
  static bool isSaid = false;
  if (std::exchange(isSaid, true)) return;
  VelTraceHandle(channel).Warning(
      "'%s' is not read, nor is any other file of a shader type: the library VelPlatformFiles is missing, or no "
      "dictionary names it",
      iPath);
}

}  // namespace

VelString VelRmaShaderTypeFile::NameOf(std::string_view iPath) {
  std::string_view name = iPath.substr(iPath.rfind('/') + 1);
  if (!name.ends_with(nameEnd)) return {};
  name.remove_suffix(std::string_view(nameEnd).size());
  return VelString(name);
}

bool VelRmaShaderTypeFile::Load(const std::string& iPath, std::string& oText, std::string& oCause) {
  return SUCCEEDED(VelSystemFile::ReadWholeFile(iPath, byteLimit, oText, oCause));
}

HRESULT VelRmaShaderTypeFile::Parse(const std::string& iPath, std::string_view iText, const VelString& iName,
                                    VelRmaShaderType& oType) {
  const VelIConfigurationTreeReader_var hReader(VelObject::Create("VelPlatformFiles", nullptr));
  if (!hReader) {
    WarnOfMissingReader(iPath);
    return S_FALSE;
  }
  std::vector<VelConfigurationNode> nodes;
  VelConfigurationFault fault{0, 0, "the reader of files failed and gave no cause"};
  std::vector<VelConfigurationFault> faults;
  if (SUCCEEDED(hReader->ReadTree(iText, nodes, fault))) {
    faults = VelRmaShaderTypeReader::Read(iName, nodes, oType);
  } else {
    faults.push_back(std::move(fault));
  }
  for (const VelConfigurationFault& one : faults) Report(iPath, one);
  if (!faults.empty()) return E_FAIL;
  VelTraceHandle(channel).Info("Shader type read { file = %s, type = %s, version = %u }", iPath, iName, oType.version);
  return S_OK;
}

void VelRmaShaderTypeFile::Report(const std::string& iPath, const VelConfigurationFault& iFault) {
  std::string position;
  if (iFault.line != 0) position = std::to_string(iFault.line) + ':' + std::to_string(iFault.column) + ": ";
  Report(iPath + (position.empty() ? ": " : ":" + position) + iFault.cause);
}

void VelRmaShaderTypeFile::Report(const std::string& iText) {
  VelTraceHandle(channel).Error(VEL_HERE("host/shadertypes/VelRmaShaderTypeFile"), "%s", iText);
}
