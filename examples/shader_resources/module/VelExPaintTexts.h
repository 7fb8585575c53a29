// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExPaintTexts.h The texts that go with shaders of type "ExPaint".
#ifndef EXAMPLES_SHADER_RESOURCES_MODULE_VELEXPAINTTEXTS_H
#define EXAMPLES_SHADER_RESOURCES_MODULE_VELEXPAINTTEXTS_H

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/events/VelReceiverTable.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelImplementation.h"

/// An extension of the delegate: one per shader, made when the shader makes its delegate, and ended with it.
class VelExPaintTexts final : public VelImplementation {
 public:
  explicit VelExPaintTexts(VelComponent& iDelegate) : VelImplementation(iDelegate) {}

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// As VelIRshShaderLink; subscribes to the shader.
  HRESULT SetShader(VelIRshShader* iShader);

  /// As VelIRshShaderResources, for the categories "label" and "summary".
  HRESULT GetText(const VelString& iCategory, const VelString& iName, VelUnicodeString& oText);

  void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);

 private:
  static const VelReceiverTable& Receivers() noexcept;
  HRESULT Summarise(VelUnicodeString& oText) const;

  VelBaseUnknown_WR shader_;  ///< Weak, since the shader keeps the delegate.
  int changes_ = 0;           ///< The values that changed since the delegate was made.
};

#endif  // EXAMPLES_SHADER_RESOURCES_MODULE_VELEXPAINTTEXTS_H
