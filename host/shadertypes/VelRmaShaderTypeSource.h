// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeSource.h What the files of shader types say, for those who look configurations up.
#ifndef HOST_SHADERTYPES_VELRMASHADERTYPESOURCE_H
#define HOST_SHADERTYPES_VELRMASHADERTYPESOURCE_H

#include <string>
#include <vector>

#include "platform/configuration/VelIConfigurationSource.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Implements VelIConfigurationSource for late type "VelRbaConfiguration". A shader that was loaded from a document so
/// finds its tags, slots, labels and mapping before anybody has asked the manager for types; its file alone is read.
/// A session has one, and the types go with it.
class VelRmaShaderTypeSource final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  ~VelRmaShaderTypeSource() override;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  // VelIConfigurationSource
  static HRESULT AddPath(const std::string& iPath);
  static HRESULT ListConfigurations(std::vector<VelString>& oNames);
  static HRESULT ReadConfiguration(const VelString& iName, VelSourcedConfiguration& oContent);
};

#endif  // HOST_SHADERTYPES_VELRMASHADERTYPESOURCE_H
