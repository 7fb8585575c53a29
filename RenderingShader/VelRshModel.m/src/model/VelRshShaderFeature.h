// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature.h The behaviour of a shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSHADERFEATURE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSHADERFEATURE_H

#include <cstdint>

#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Implements a feature of start-up VelRmaShader. What persists stands in the feature's attributes; the object itself
/// holds what is rebuilt after a document was loaded: the label, the delegate of the shader's type, and who listens.
///
/// It is the hub of the model's events: it hears each of its parameters and tells its own subscribers, so that a client
/// subscribes once per shader. The operations are those of the interfaces, where they are described.
class VelRshShaderFeature final : public VelImplementation {
 public:
  explicit VelRshShaderFeature(VelComponent& iFeature);
  ~VelRshShaderFeature() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return the object behind a pointer when it is one of the component's own shaders, null for any other
  static VelRshShaderFeature* From(VelBaseUnknown& iObject) noexcept;

  void OnAttached() override;
  void OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) override;

  // VelIRshShader
  HRESULT SetType(const VelString& iType);
  HRESULT GetType(VelString& oType);
  HRESULT SetOutputType(const VelString& iType);
  HRESULT GetOutputType(VelString& oType);
  HRESULT SetUsage(std::uint32_t iUsage);
  HRESULT GetUsage(std::uint32_t& oUsage);
  HRESULT SetVersion(std::uint32_t iVersion);
  HRESULT GetVersion(std::uint32_t& oVersion);
  HRESULT AppendParameter(VelIRshParameter* iParameter);
  HRESULT AddParameter(const VelString& iName, const VelString& iStartUp, VelIRshParameter** oParameter);
  HRESULT GetParameters(VelListPtrVelBaseUnknown** oParameters);
  HRESULT AddNode(VelIRshShader* iNode);
  HRESULT RemoveNode(VelIRshShader* iNode);
  HRESULT GetNodes(VelListPtrVelBaseUnknown** oNodes);
  HRESULT CreateCopy(VelIContainer* iContainer, VelIRshShader** oCopy);

  // VelIRshShaderPrivate
  VelString GetTypeName();
  HRESULT NoteConnectionFrom(VelIRshShader* iShader);
  void GetParentShader(VelIRshShader_var& oShader);

  // VelIRshShaderPublisher
  VelCallbackManager* GetCallbackManager() noexcept { return &callbacks_; }

  // VelIRshParameterSubscriber
  void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);

  // VelIAlias
  HRESULT SetAlias(const VelUnicodeString& iAlias);
  VelUnicodeString GetAlias();

  /// @return what a shader receives of a parameter that it is connected to
  static const VelReceiverTable& ConnectionReceivers() noexcept;

 private:
  /// @return what a shader receives of its own parameters
  static const VelReceiverTable& ParameterReceivers() noexcept;

  void OnOwnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);
  void OnOwnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification);

  /// Tells the subscribers of this shader what a parameter told.
  void Publish(VelEventName iEvent, VelBaseUnknown& iParameter, const VelNotification* iInner);

  /// Subscribes this shader to a parameter and the parameter to this shader, as far as they are not yet.
  void BindEvents(VelBaseUnknown& ioParameter);

  /// The end of AddParameter and AppendParameter, when the parameter stands in the list.
  void Welcome(VelBaseUnknown& ioParameter);

  HRESULT FindStartUpToAdd(const VelString& iStartUp, VelIContainer& ioContainer, VelBaseUnknown** oStartUp);
  HRESULT MakeParameter(const VelString& iName, const VelString& iStartUp, VelBaseUnknown** oFeature);

  void EnsureDelegate();
  HRESULT CreateDelegate(const VelString& iLateType);

  /// The type without making the delegate first.
  HRESULT ReadType(VelString& oType);

  /// The parameters without making the delegate first; as GetParameters.
  HRESULT ReadParameters(VelListPtrVelBaseUnknown& oParameters);

  HRESULT SetText(VelRshAttribute::Accessor iAccessor, const VelString& iText);
  HRESULT GetText(VelRshAttribute::Accessor iAccessor, VelString& oText);
  HRESULT SetUnsigned(VelRshAttribute::Accessor iAccessor, std::uint32_t iValue);
  HRESULT GetUnsigned(VelRshAttribute::Accessor iAccessor, std::uint32_t& oValue);

  bool delegateInitialised_ = false;
  VelUnicodeString alias_;
  VelBaseUnknown_var delegate_;
  VelCallbackManager callbacks_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSHADERFEATURE_H
