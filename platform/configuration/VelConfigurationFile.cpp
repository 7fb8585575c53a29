// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationFile.cpp Finds the reader of files, hands it the text and reports what it refuses.
#include "platform/configuration/VelConfigurationFile.h"

#include <utility>

#include "platform/base/system/VelSystemFile.h"
#include "platform/configuration/VelIConfigurationReader.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceHandle.h"

HRESULT VelConfigurationFile::ReadConfigurations(const std::string& iPath, VelConfigurationContent& oContent) const {
  return Read(iPath, &VelIConfigurationReader::ReadConfigurations, oContent);
}

HRESULT VelConfigurationFile::ReadMessages(const std::string& iPath, VelConfigurationContent& oContent) const {
  return Read(iPath, &VelIConfigurationReader::ReadMessages, oContent);
}

HRESULT VelConfigurationFile::Read(const std::string& iPath, Operation iOperation,
                                   VelConfigurationContent& oContent) const {
  std::string text;
  std::string cause;
  if (FAILED(VelSystemFile::ReadWholeFile(iPath, byteLimit, text, cause))) {
    Report(iPath, {0, 0, cause});
    return E_FAIL;
  }
  const VelIConfigurationReader_var hReader(VelObject::Create("VelPlatformFiles", nullptr));
  if (!hReader) {
    WarnOfMissingReader(iPath);
    return E_FAIL;
  }
  VelConfigurationFault fault{0, 0, "the reader of configuration files failed and gave no cause"};
  if (SUCCEEDED((hReader.Get()->*iOperation)(text, oContent, fault))) return S_OK;
  Report(iPath, fault);
  return E_FAIL;
}

void VelConfigurationFile::Report(const std::string& iPath, const VelConfigurationFault& iFault) const {
  const VelTraceHandle trace(channel_);
  const VelSourcePosition position = VEL_HERE("platform/configuration/VelConfigurationFile");
  if (iFault.line == 0) return trace.Error(position, "%s: %s", iPath, iFault.cause);
  trace.Error(position, "%s:%u:%u: %s", iPath, iFault.line, iFault.column, iFault.cause);
}

/// Once, since a host that goes without files would hear it for each of them.
void VelConfigurationFile::WarnOfMissingReader(const std::string& iPath) const {
  static bool isSaid = false;
  if (std::exchange(isSaid, true)) return;
  VelTraceHandle(channel_).Warning(
      "'%s' is not loaded, nor is any other configuration or message file: the library VelPlatformFiles is missing, or "
      "no dictionary names it",
      iPath);
}
