// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExCoatingFactory.h Contributes the shader types of this module.
#ifndef EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGFACTORY_H
#define EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGFACTORY_H

#include <cstdint>

#include "VelIExCoatingFactory.h"
#include "platform/objectmodeler/VelImplementation.h"

/// An extension of the shader manager: made when the manager looks for factories, and ended with it. The operations are
/// those of VelIRshShaderFactory, which says what they answer.
class VelExCoatingFactory final : public VelImplementation {
 public:
  explicit VelExCoatingFactory(VelComponent& iManager) : VelImplementation(iManager) {}

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT ListShaderTypes(VelListValVelString& oTypes);
  static HRESULT GetOutputType(const VelString& iType, VelString& oOutputType);

  /// The message "Label" of the catalog named as the type, in the language in force; else the module's own text.
  static HRESULT GetDisplayName(const VelString& iType, VelUnicodeString& oName);

  static HRESULT GetUsageFlags(const VelString& iType, std::uint32_t& oFlags);
  static HRESULT GetVersion(const VelString& iType, std::uint32_t& oVersion);

  /// The types have one set of parameters, whatever the option.
  static HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char iOption);
};

#endif  // EXAMPLES_PLUGIN_FACTORY_MODULE_VELEXCOATINGFACTORY_H
