// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorDelegate.cpp The writes, type by type.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorDelegate.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "platform/documents/VelIPLMDmtDocument.h"
#include "platform/events/VelIModelEvents.h"

namespace {

using Type = VelRshReaderParameterType::Type;

bool WriteAs(Type iType, VelRshValueSource iValue, VelIRshParameter& ioParameter) {
  return VelRshReaderParameterType()(ioParameter) == iType && SUCCEEDED(ioParameter.SetValue(iValue));
}

/// Reads the default value from the dialog and writes it.
template <class Value>
bool WriteDefault(VelIRshParameterDialog& iDialog, VelIRshParameter& ioParameter) {
  Value value{};
  return SUCCEEDED(iDialog.GetDefaultValue(&value)) && SUCCEEDED(ioParameter.SetValue(&value));
}

bool WriteDefaultColor(VelIRshParameterDialog& iDialog, VelIRshParameter& ioParameter) {
  float color[4]{};
  return SUCCEEDED(iDialog.GetDefaultValue(color)) && SUCCEEDED(ioParameter.SetValue(color));
}

bool WriteDefaultOf(Type iType, VelIRshParameterDialog& iDialog, VelIRshParameter& ioParameter) {
  switch (iType) {
    case Type::Boolean:
      return WriteDefault<bool>(iDialog, ioParameter);
    case Type::Integer:
      return WriteDefault<std::int32_t>(iDialog, ioParameter);
    case Type::Scalar:
      return WriteDefault<float>(iDialog, ioParameter);
    case Type::Color:
      return WriteDefaultColor(iDialog, ioParameter);
    case Type::String:
      return WriteDefault<VelUnicodeString>(iDialog, ioParameter);
    case Type::Unknown:
    case Type::Void:
    case Type::Vector:
    case Type::Texture:
      return false;
  }
  return false;
}

/// Tells the listeners of the parameter's material, if it has any.
void TellMaterial(const VelRbaNotificationTopologyModification& iNotification, VelIRshParameter& iParameter) {
  const VelIModelEvents_var hEvents(VelRshParameterServices::FindRenderingMaterial(iParameter));
  // Whoever receives a notification may mark it, so it is handed on as one that can be changed.
  if (hEvents) static_cast<void>(hEvents->Dispatch(const_cast<VelRbaNotificationTopologyModification&>(iNotification)));
}

}  // namespace

bool VelRshTranslatorDelegate::Translate(const VelRbaNotificationTopologyModification& iNotification,
                                         VelIRshParameter& ioParameter) const {
  if (VelRshTellsNoChange(iNotification)) return true;
  if (!WriteReference(iNotification, ioParameter) || !composite_(iNotification)) return false;
  TellMaterial(iNotification, ioParameter);
  return true;
}

bool VelRshTranslatorDelegate::Translate(const VelRbaResetRenderingMaterialNotification& iNotification,
                                         VelIRshParameter& ioParameter) const {
  const VelIRshParameterDialog_var hDialog(&ioParameter);
  if (!hDialog) return false;
  return WriteDefaultOf(VelRshReaderParameterType()(ioParameter), *hDialog, ioParameter) && composite_(iNotification);
}

bool VelRshTranslatorDelegate::WriteReference(const VelRbaNotificationTopologyModification& iNotification,
                                              VelIRshParameter& ioParameter) {
  const VelBaseUnknown_var& next = iNotification.GetNext();
  const VelInterfaceId& kind = iNotification.GetSubComponentsIID();
  if (kind == VelIRshShader::InterfaceId()) {
    const VelIRshShader_var hShader(next);
    const bool isAnswered = hShader || !next;
    return isAnswered && SUCCEEDED(ioParameter.SetConnection(hShader.Get()));
  }
  if (kind == VelIPLMDmtDocument::InterfaceId()) {
    const VelIPLMDmtDocument_var hDocument(next);
    VelBaseUnknown* const document = hDocument.Get();
    const bool isAnswered = hDocument || !next;
    return isAnswered && SUCCEEDED(ioParameter.SetValue(document));
  }
  return false;
}

bool VelRshTranslatorDelegate::Write(bool iValue, VelIRshParameter& ioParameter) {
  return WriteAs(Type::Boolean, &iValue, ioParameter);
}

bool VelRshTranslatorDelegate::Write(std::int32_t iValue, VelIRshParameter& ioParameter) {
  return WriteAs(Type::Integer, &iValue, ioParameter);
}

bool VelRshTranslatorDelegate::Write(double iValue, VelIRshParameter& ioParameter) {
  const auto narrowed = static_cast<float>(iValue);
  return WriteAs(Type::Scalar, &narrowed, ioParameter);
}

bool VelRshTranslatorDelegate::Write(const rgba_t& iValue, VelIRshParameter& ioParameter) {
  const float color[4]{iValue.r, iValue.g, iValue.b, iValue.a};
  return WriteAs(Type::Color, color, ioParameter);
}

bool VelRshTranslatorDelegate::Write(const VelUnicodeString& iValue, VelIRshParameter& ioParameter) {
  return WriteAs(Type::String, &iValue, ioParameter);
}
