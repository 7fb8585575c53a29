// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorDelegate.h Writes what a notification tells, then has it carried over.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDELEGATE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDELEGATE_H

#include "RenderingShader/VelRshModel.m/include/VelIRshTranslatorParameter.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorComposite.h"

class VelRshTranslatorDelegate final
    : public VelRshTranslatorCalls<VelRshTranslatorDelegate, VelIRshTranslatorParameter> {
 public:
  /// A value.
  template <class Notification>
  bool Translate(const Notification& iNotification, VelIRshParameter& ioParameter) const {
    if (VelRshTellsNoChange(iNotification)) return true;
    return Write(iNotification.GetNext(), ioParameter) && composite_(iNotification);
  }

  bool Translate(const VelRbaNotificationTopologyModification& iNotification, VelIRshParameter& ioParameter) const;
  bool Translate(const VelRbaResetRenderingMaterialNotification& iNotification, VelIRshParameter& ioParameter) const;

 private:
  // Each writes into a parameter of its own type alone.
  static bool Write(bool iValue, VelIRshParameter& ioParameter);
  static bool Write(std::int32_t iValue, VelIRshParameter& ioParameter);
  static bool Write(double iValue, VelIRshParameter& ioParameter);
  static bool Write(const rgba_t& iValue, VelIRshParameter& ioParameter);
  static bool Write(const VelUnicodeString& iValue, VelIRshParameter& ioParameter);

  static bool WriteReference(const VelRbaNotificationTopologyModification& iNotification,
                             VelIRshParameter& ioParameter);

  VelRshTranslatorComposite composite_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORDELEGATE_H
