// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValue.h The value operations that the parameters of plain values share.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVALUE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVALUE_H

#include <type_traits>

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/parameters/VelRshValueElements.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"

/// A parameter whose value stands in its attribute "Value". What tells one type from another is its policy:
///
///     using Value = float;                                        compared by ==
///     using Layout = VelIRshParameterImmLayout;                   who supplies a value where none was set
///     using Changed = VelRshModelNotificationParameterScalar1Changed;
///     using HostChanged = VelRbaFloatShaderModifyNotification;    void: the host is not told
///     static constexpr Value fallback = 0.0F;                     the value where nobody supplies one
///     static constexpr bool suppliedCounts = true;                whether to set what was supplied changes nothing
///     static const VelISpecAttrKey* Key(VelISpecAttrAccess* iAccess);
///     static HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue);
///     static HRESULT Write(const VelRshAttribute& iAttribute, const Value& iValue);
///     static HostChanged::Value ToHost(const Value& iValue);
template <class Policy>
class VelRshParameterValue : public VelRshParameterBase {
 public:
  using Value = typename Policy::Value;
  using VelRshParameterBase::GetValue;
  using VelRshParameterBase::SetValue;
  using VelRshParameterBase::VelRshParameterBase;

  HRESULT SetValue(VelRshValueSource iValue) {
    if (iValue.IsNull()) return E_NOINTERFACE;  // Deliberately not E_INVALIDARG: callers tell the two apart.
    Value next(Policy::fallback);
    if (!VelRshTake(iValue, next)) return E_FAIL;
    const VelRshAttribute attribute(this, &Policy::Key);
    if (!attribute) return E_FAIL;
    Value previous(Policy::fallback);
    const HRESULT read = Read(attribute, previous);
    const bool isPresent = SUCCEEDED(read) && (Policy::suppliedCounts || attribute.IsValuated());
    if (isPresent && previous == next) return S_FALSE;
    VEL_RETURN_IF_FAILED(Policy::Write(attribute, next));
    Publish(previous, next);
    return S_OK;
  }

  HRESULT GetValue(VelRshValueTarget oValue) {
    if (oValue.IsNull() || !VelRshFits<Value>(oValue)) return E_FAIL;
    const VelRshAttribute attribute(this, &Policy::Key);
    Value value(Policy::fallback);
    // A value that can be read is there: the common read is spared a test of the key beforehand.
    if (attribute.HasAccess() && SUCCEEDED(Policy::Read(attribute, value))) {
      VelRshGive(std::move(value), oValue);
      return S_OK;
    }
    return attribute ? ReadInto(attribute, oValue) : E_FAIL;
  }

 protected:
  /// @param[in] iAttribute the value's, one that is true
  /// @param[out] oValue a view that fits
  HRESULT ReadInto(const VelRshAttribute& iAttribute, VelRshValueTarget oValue) {
    Value value(Policy::fallback);
    const HRESULT read = Read(iAttribute, value);
    // A failure gives the fallback, unless the attribute has a value that cannot be read.
    if (SUCCEEDED(read) || !iAttribute.IsValuated()) VelRshGive(std::move(value), oValue);
    return read;
  }

 private:
  /// Reads the attribute; where it has no value, what the host supplies, else the fallback with a failure.
  HRESULT Read(const VelRshAttribute& iAttribute, Value& oValue) {
    const HRESULT read = Policy::Read(iAttribute, oValue);
    if (SUCCEEDED(read) || iAttribute.IsValuated()) return read;
    const VelVar<typename Policy::Layout> hLayout(this);
    const HRESULT supplied = hLayout ? hLayout->GetDefaultValue(VelRshTargetOf(oValue)) : E_FAIL;
    if (SUCCEEDED(supplied)) return S_OK;
    oValue = Value(Policy::fallback);
    return supplied;
  }

  void Publish(const Value& iPrevious, const Value& iNext) {
    const VelEventName event = VelRshParameterPublisherEvents::VALUE_UPDATED();
    if (Callbacks().HasSubscriber(event)) {
      typename Policy::Changed changed(iPrevious, iNext);
      Callbacks().Dispatch(event, &changed, this);
    }
    if constexpr (!std::is_void_v<typename Policy::HostChanged>) {
      if (!IsClosed()) TellHost(iPrevious, iNext);
    }
  }

  void TellHost(const Value& iPrevious, const Value& iNext) {
    VelString name;
    const VelIModelEvents_var hEvents = FindHostEvents(name);
    if (!hEvents) return;
    typename Policy::HostChanged changed(name, this, VelIRshParameter::InterfaceId(), Policy::ToHost(iPrevious),
                                         Policy::ToHost(iNext));
    static_cast<void>(hEvents->Dispatch(changed));
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERVALUE_H
