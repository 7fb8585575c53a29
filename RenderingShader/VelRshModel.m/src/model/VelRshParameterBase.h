// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase.h The behaviour that all parameters share.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERBASE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERBASE_H

#include <cstdint>
#include <memory>
#include <span>

#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "RenderingShader/interfaces/VelIRshShaderSupport.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/featuremodeler/VelSpecLifeCycleObjectExt.h"
#include "platform/trace/VelTraceHandle.h"

class VelRshTagRecord;

/// Implements a feature of start-up VelRmaParameter, and is the base of what implements the typed start-ups: name,
/// label, tags, the connection to a shader, and who listens. The value operations fail here; the typed classes hide
/// them. The operations are those of the interfaces, where they are described.
class VelRshParameterBase : public VelSpecLifeCycleObjectExt {
 public:
  using Tag = VelIRshParameterPrivate::Tag;

  explicit VelRshParameterBase(VelComponent& iFeature);
  ~VelRshParameterBase() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return the object behind a pointer when it is one of the component's own parameters, null for any other
  static VelRshParameterBase* From(VelBaseUnknown& iObject) noexcept;

  void OnAttached() override;
  void OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) override;

  // VelIRshParameter
  HRESULT SetName(const VelString& iName);
  HRESULT GetName(VelString& oName);
  HRESULT GetType(VelString& oType);
  HRESULT SetValue(VelBaseUnknown*) { return E_FAIL; }
  HRESULT GetValue(VelBaseUnknown**) { return E_FAIL; }
  HRESULT SetValue(VelRshValueSource) { return E_FAIL; }
  HRESULT GetValue(VelRshValueTarget) { return E_FAIL; }
  HRESULT SetConnection(VelIRshShader* iShader);
  HRESULT GetConnection(VelIRshShader** oShader);

  // VelIRshParameterPrivate
  HRESULT UpdateValueAndConnection();
  HRESULT UpdateValue();
  HRESULT UpdateConnection();
  HRESULT HasTag(Tag iTag);
  HRESULT GetTags(VelListVal<int>& oTags);
  HRESULT GetLayoutFlag();
  HRESULT IsTexture() { return E_FAIL; }
  HRESULT AttachToShader(VelIRshShader*) { return S_FALSE; }
  void GetParentShader(VelIRshShader_var& oShader);

  // VelIAlias
  HRESULT SetAlias(const VelUnicodeString& iAlias);
  VelUnicodeString GetAlias();

  // LifeCycleObject
  HRESULT remove();  // NOLINT(readability-identifier-naming): the name of the system

  // VelIRshParameterPublisher
  VelCallbackManager* GetCallbackManager() noexcept { return &callbacks_; }

  // VelIRshShaderSubscriber
  virtual void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  virtual void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);

  /// @return what the configuration says of this parameter's tags, to be used at once; null where that has to be read
  ///         word by word: without a name, below a shader of another module, and with an unknown word
  const VelRshTagRecord* FindTagRecord();

  /// The connected shader, without handing it to the model events; as VelIRshParameter::GetConnection.
  HRESULT ReadConnection(VelIRshShader_var& oShader);

  /// @return what a parameter receives of the shader that owns it
  static const VelReceiverTable& ShaderReceivers() noexcept;

 protected:
  VelCallbackManager& Callbacks() noexcept { return callbacks_; }
  const VelTraceHandle& Channel() const noexcept { return trace_; }

  bool IsClosed() noexcept { return GetComponentState() == VelComponentState::Closed; }

  /// Finds through what the host is told of a new value.
  /// @param[out] oName the parameter's name
  /// @return the parameter's model events; empty when it has none, no shader above or no name, and the host is not told
  VelIModelEvents_var FindHostEvents(VelString& oName);

 private:
  /// @return what a parameter receives of the shader that is connected to it
  static const VelReceiverTable& ConnectionReceivers() noexcept;

  void OnConnectedShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void OnConnectedShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);

  /// Hands on what the own shader told of another parameter of it.
  void ForwardFromShader(VelEventName iEvent, VelEventName iForwarded, VelBaseUnknown* iPublisher,
                         const VelNotification* iNotification);

  /// Tells what the connected shader told.
  void TellFromConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, const VelNotification* iNotification);

  HRESULT WriteConnection(VelIRshShader* iShader);
  void Unbind(VelIRshShader& ioShader);
  void Bind(VelIRshShader& ioShader, std::span<const VelEventName> iOwnEvents);
  void ConnectModelEvents(const VelIRshShader_var& iPrevious, const VelIRshShader_var& iNext);
  HRESULT TellHostOfConnection(const VelIRshShader_var& iPrevious, const VelIRshShader_var& iNext);

  VelRshTagRecord* LookUpTagRecord();

  void ComputeLabel();
  static VelUnicodeString ReadLabel(const VelIRshShader_var& iShader, const VelString& iType, const VelString& iName);

  VelTraceHandle trace_;
  bool labelResolved_ = false;
  std::uint64_t changesAtTagRecord_ = ~std::uint64_t{0};  ///< Those of features when tagRecord_ was found.
  VelRshTagRecord* tagRecord_ = nullptr;
  std::unique_ptr<VelUnicodeString> label_;  ///< None is an empty label.
  VelIRshShaderSupport_var support_;
  VelCallbackManager callbacks_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERBASE_H
