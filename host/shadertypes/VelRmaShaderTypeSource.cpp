// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeSource.cpp Answers from the types that were read.
#include "host/shadertypes/VelRmaShaderTypeSource.h"

#include "host/shadertypes/VelRmaShaderTypes.h"

/// A session that failed to start ends without the platform's exit hooks.
VelRmaShaderTypeSource::~VelRmaShaderTypeSource() { VelRmaShaderTypes::Instance().Clear(); }

HRESULT VelRmaShaderTypeSource::AddPath(const std::string& iPath) {
  return VelRmaShaderTypes::Instance().AddPath(iPath);
}

HRESULT VelRmaShaderTypeSource::ListConfigurations(std::vector<VelString>& oNames) {
  oNames = VelRmaShaderTypes::Instance().Names();
  return S_OK;
}

HRESULT VelRmaShaderTypeSource::ReadConfiguration(const VelString& iName, VelSourcedConfiguration& oContent) {
  const VelRmaShaderType* const type = VelRmaShaderTypes::Instance().FindForConfiguration(iName);
  if (type == nullptr) return E_FAIL;
  oContent = type->Configuration();
  return S_OK;
}
