// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParentShaderEvents.h How a mapping value follows the shader to which its own shader is connected.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARENTSHADEREVENTS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARENTSHADEREVENTS_H

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterTrace.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagRecord.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshPropagation.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "platform/materials/VelIRmaEditionMode.h"

/// The handlers of the parameters whose tags take part in texture mapping. A connected shader's parameter takes over
/// the value of the equivalent parameter above: the one that carries the same tag. What tells one type of value from
/// another is its rules:
///
///     using Changed = VelRshModelNotificationParameterScalar1Changed;
///     static constexpr Tag tags[] = {...};              those that take part, in the order in which they are tried
///     static constexpr const char* source = "...";      the source text of errors
///     static constexpr const char* takenOver = "...";   told with the value when it follows a value above
///     static constexpr const char* pushed = "...";      told with the value when it goes to a newly connected shader
///     static constexpr const char* pulled = "...";      told with the value when it comes from a newly connected one
///     static Printed Print(Value iValue);               the value as the three messages take it
///     static bool IsEndless(const VelRshParameterBase&, Value);   whether taking it over would never come to an end
template <class Parameter, class Rules>
class VelRshParentShaderEvents {
  using Changed = VelRshModelNotificationShaderParameterChanged;
  using Forwarded = VelRshModelNotificationParameterShaderChanged;
  using ConnectionChanged = VelRshModelNotificationParameterConnectionChanged;
  using Events = VelRshShaderPublisherEvents;
  using Tag = VelIRshParameterPrivate::Tag;
  using Value = typename Rules::Changed::ValueType;

 public:
  /// @param[in] iTrace the parameter's own channel
  VelRshParentShaderEvents(Parameter& ioParameter, const VelTraceHandle& iTrace)
      : parameter_(ioParameter), trace_(iTrace) {}

  /// @return whether the change goes on to the shader that is connected to this parameter
  bool OnValue(VelEventName iEvent, const VelNotification* iNotification) const {
    if (!IsOpen()) return false;
    if (iEvent == Events::FORWARDED_PARAMETER_VALUE_UPDATED()) FollowValue(iNotification);
    if (iEvent != Events::PARAMETER_VALUE_UPDATED()) return false;
    if (!trace_.IsOn(VelTraceKind::Information)) return true;
    TraceOwn("PARAMETER_VALUE_UPDATED Current:");
    if (const auto* changed = VelNotificationCast<Changed>(iNotification)) Trace("\tUpdated: ", *changed);
    return true;
  }

  /// As OnValue.
  bool OnConnection(VelEventName iEvent, const VelNotification* iNotification) const {
    if (!IsOpen()) return false;
    if (iEvent == Events::FORWARDED_PARAMETER_CONNECTION_UPDATED() && MayTakePart()) Pull(iNotification);
    if (iEvent != Events::PARAMETER_CONNECTION_UPDATED()) return false;
    TraceOwn("PARAMETER_CONNECTION_UPDATED Current:");
    const auto* changed = VelNotificationCast<Changed>(iNotification);
    if (changed == nullptr) return true;
    Trace("\tUpdated: ", *changed);
    Push(*changed);
    return true;
  }

 private:
  static bool IsOpen() { return !VelIRmaEditionMode::GetActivation(VelIRmaEditionMode::Mode::SilentPropagation); }

  /// @return false where it is known that nothing is pulled and nobody wants to read of it
  bool MayTakePart() const {
    if (trace_.IsOn(VelTraceKind::Information)) return true;
    const VelRshTagRecord* own = parameter_.FindTagRecord();
    return own == nullptr || (own->Tags() & MaskOfTags()) != 0;
  }

  /// This parameter belongs to the connected shader; the changed one to the shader above.
  void FollowValue(const VelNotification* iNotification) const {
    TraceOwn("FORWARDED_PARAMETER_VALUE_UPDATED Current:");
    const auto* outer = VelNotificationCast<Changed>(iNotification);
    if (outer == nullptr) return;
    Trace("\tParent: ", *outer);
    const auto* forwarded = VelNotificationCast<Forwarded>(outer->GetInner());
    const auto* above = forwarded != nullptr ? VelNotificationCast<Changed>(&forwarded->GetInner()) : nullptr;
    if (above == nullptr) return;
    Trace("\t\tUpdated: ", *above);
    const auto* changed = VelNotificationCast<typename Rules::Changed>(above->GetInner());
    if (changed == nullptr || !HasTagInCommonWith(above->GetPublisher())) return;
    const Value value = changed->GetNew();
    if (Rules::IsEndless(parameter_, value)) return;
    const VelRshPropagation propagation(parameter_);
    if (propagation.MayGoOn())
      Report(Rules::takenOver, __LINE__, parameter_.SetValue(VelRshValueSource(&value)), value);
  }

  /// A shader was connected beside this parameter: its equivalent gets this value. A parent's own event never comes
  /// past the test of its first line, since it is about a parameter beside this one; a connected shader pulls instead.
  void Push(const Changed& iChanged) const {
    if (parameter_.IsEqual(&iChanged.GetPublisher()) || HasSameShaderAs(iChanged)) return;
    const auto* connected = VelNotificationCast<ConnectionChanged>(iChanged.GetInner());
    if (connected == nullptr || !connected->GetNext()) return;
    const VelIRshParameter_var hEquivalent = FindEquivalent(*connected->GetNext());
    if (!hEquivalent) return;
    VelRshParameterTrace::Print("\t\tConnection's equivalent parameter: ", hEquivalent.Get());
    Value value{};
    HRESULT copied = parameter_.GetValue(VelRshValueTarget(&value));
    if (SUCCEEDED(copied)) copied = hEquivalent->SetValue(&value);
    Report(Rules::pushed, __LINE__, copied, value);
  }

  /// This parameter's shader was connected to a parameter of another one: its equivalent there gives its value.
  void Pull(const VelNotification* iNotification) const {
    TraceOwn("FORWARDED_PARAMETER_CONNECTION_UPDATED Current:");
    const auto* changed = VelNotificationCast<Changed>(iNotification);
    if (changed == nullptr) return;
    Trace("\tParent: ", *changed);
    if (const auto* forwarded = VelNotificationCast<Forwarded>(changed->GetInner())) {
      if (const auto* inner = VelNotificationCast<Changed>(&forwarded->GetInner())) Trace("\t\tUpdated: ", *inner);
      return;
    }
    if (VelNotificationCast<ConnectionChanged>(changed->GetInner()) == nullptr) return;
    const VelIRshParameter_var hConnected = changed->GetParameter();
    const VelIRshShader_var hAbove =
        hConnected ? VelRshParameterServices::FindShaderParent(*hConnected) : VelIRshShader_var();
    const VelIRshParameter_var hEquivalent = hAbove ? FindEquivalent(*hAbove) : VelIRshParameter_var();
    if (!hEquivalent) return;
    VelRshParameterTrace::Print("\t\tParent shader 's equivalent parameter: ", hEquivalent.Get());
    Value value{};
    HRESULT copied = hEquivalent->GetValue(&value);
    const VelRshPropagation propagation(parameter_);
    if (!propagation.MayGoOn()) return;
    if (SUCCEEDED(copied)) copied = parameter_.SetValue(VelRshValueSource(&value));
    Report(Rules::pulled, __LINE__, copied, value);
  }

  bool HasTagInCommonWith(VelBaseUnknown& iOther) const {
    const VelRshTagRecord* own = parameter_.FindTagRecord();
    VelRshParameterBase* other = VelRshParameterBase::From(iOther);
    const VelRshTagRecord* others = own != nullptr && other != nullptr ? other->FindTagRecord() : nullptr;
    if (others != nullptr) return (own->Tags() & others->Tags() & MaskOfTags()) != 0;
    const VelIRshParameterPrivate_var hOther(&iOther);
    if (!hOther) return false;
    for (const Tag tag : Rules::tags) {
      if (SUCCEEDED(hOther->HasTag(tag)) && SUCCEEDED(parameter_.HasTag(tag))) return true;
    }
    return false;
  }

  static constexpr std::uint64_t MaskOfTags() noexcept {
    std::uint64_t mask = 0;
    for (const Tag tag : Rules::tags) mask |= std::uint64_t{1} << static_cast<unsigned>(tag);
    return mask;
  }

  bool HasSameShaderAs(const Changed& iChanged) const {
    const VelIRshParameter_var hOther = iChanged.GetParameter();
    const VelIRshShader_var hTheirs = hOther ? VelRshParameterServices::FindShaderParent(*hOther) : VelIRshShader_var();
    VelIRshShader_var hOwn;
    parameter_.GetParentShader(hOwn);
    return hOwn && hOwn->IsEqual(hTheirs.Get());
  }

  /// @return the parameter of a shader that carries the first tag of this one that takes part; empty for none
  VelIRshParameter_var FindEquivalent(const VelIRshShader& iShader) const {
    for (const Tag tag : Rules::tags) {
      if (FAILED(parameter_.HasTag(tag))) continue;
      const VelRshReaderParameterCollection collection;
      const auto tagged = collection(collection(iShader), tag);
      return tagged.empty() ? VelIRshParameter_var() : tagged.front();
    }
    return nullptr;
  }

  /// While the channel is off nothing is looked up.
  void TraceOwn(const char* iPrefix) const {
    if (!trace_.IsOn(VelTraceKind::Information)) return;
    VelRshParameterTrace::Print(trace_, iPrefix, VelIRshParameter_var(&parameter_).Get());
  }

  /// As TraceOwn; the channel is that of this parameter as well.
  void Trace(const char* iPrefix, const Changed& iChanged) const {
    if (!trace_.IsOn(VelTraceKind::Information)) return;
    VelRshParameterTrace::Print(iPrefix, iChanged.GetParameter().Get());
  }

  void Report(const char* iMessage, unsigned iLine, HRESULT iCode, Value iValue) const {
    if (SUCCEEDED(iCode)) {
      trace_.Info(iMessage, Rules::Print(iValue));
    } else {
      trace_.Error({Rules::source, iLine}, iMessage, Rules::Print(iValue));
    }
  }

  Parameter& parameter_;
  const VelTraceHandle& trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARENTSHADEREVENTS_H
