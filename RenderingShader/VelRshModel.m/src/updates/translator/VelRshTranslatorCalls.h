// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorCalls.h Makes the seven calls of a translator of one template.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCALLS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCALLS_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"
#include "platform/materials/VelRbaResetRenderingMaterialNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"

/// Hands every call on to the operation `Translate` of a translator, which is given the notification and the parameter
/// that it tells of. A notification of what is no parameter is answered with false here.
/// @tparam Translator the class that derives from this one
/// @tparam Interface VelIRshTranslatorParameter, or another interface of its calls
template <class Translator, class Interface>
class VelRshTranslatorCalls : public Interface {
 public:
  bool operator()(const VelRbaResetRenderingMaterialNotification& iNotification) const final {
    return Call(iNotification);
  }
  bool operator()(const VelRbaIntegralShaderModifyNotification& iNotification) const final {
    return Call(iNotification);
  }
  bool operator()(const VelRbaNotificationTopologyModification& iNotification) const final {
    return Call(iNotification);
  }
  bool operator()(const VelRbaBooleanShaderModifyNotification& iNotification) const final {
    return Call(iNotification);
  }
  bool operator()(const VelRbaStringShaderModifyNotification& iNotification) const final { return Call(iNotification); }
  bool operator()(const VelRbaFloatShaderModifyNotification& iNotification) const final { return Call(iNotification); }
  bool operator()(const VelRbaColorShaderModifyNotification& iNotification) const final { return Call(iNotification); }

 private:
  template <class Notification>
  bool Call(const Notification& iNotification) const {
    const VelIRshParameter_var hParameter(iNotification.GetObject());
    return hParameter && static_cast<const Translator&>(*this).Translate(iNotification, *hParameter);
  }
};

/// @return true when a notification tells of no change
template <class Notification>
bool VelRshTellsNoChange(const Notification& iNotification) {
  return iNotification.GetPrevious() == iNotification.GetNext();
}

/// Objects are the same when they stand for one component.
inline bool VelRshTellsNoChange(const VelRbaNotificationTopologyModification& iNotification) {
  const VelBaseUnknown_var& previous = iNotification.GetPrevious();
  const VelBaseUnknown_var& next = iNotification.GetNext();
  return previous ? previous->IsEqual(next.Get()) : !next;
}

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_UPDATES_TRANSLATOR_VELRSHTRANSLATORCALLS_H
