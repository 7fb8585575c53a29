// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager.h Knows which shader types there are, and creates, copies and upgrades shaders of them.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHSHADERMANAGER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHSHADERMANAGER_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlan.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "RenderingShader/interfaces/VelIRshShaderFactory.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelListValVelString.h"
#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/objectmodeler/VelCommand.h"

/// The one manager of the process. It knows no type itself: factories contribute them, as extensions of the late type
/// "VelRshShaderManager" (VelIRshShaderFactory), the host's own first (VelIRmaShaderFactory). They are discovered once;
/// the types that they list are read when they are first needed.
///
/// What is done is told by the class trace "VelRshShaderManager". Thread: the application thread.
class VEL_RSH_MODEL_API VelRshShaderManager : public VelCommand {
 public:
  /// @return the manager, made by the first call and gone with the platform's end (VelPlatformTerminate); a later call
  ///         makes a new one. Without a reference.
  static VelRshShaderManager* GetManager();

  /// Ends the manager, for the exit hook. @return 0
  static int CleanUp(int iUnused);

  VelRshShaderManager(const VelRshShaderManager& iOther);
  VelRshShaderManager& operator=(const VelRshShaderManager& iOther);

  /// Lists the types that suit a context. The process reads the environment variable "VelRdgAllShaders" once, at the
  /// first call: where it is set, the output type does not matter.
  /// @param[in] iUsage the context, a bit each; a type of usage 0 suits any. 1 asks the factories for their types
  /// again.
  /// @param[in] iOutputType the start-up of the value that is wanted; "VelRmaVoid" takes "VelRmaVector" as well; empty
  ///            takes all
  /// @param[in,out] oTypes the names of the types are appended
  /// @param[in,out] oNames what people call them, appended pairwise
  /// @return the code of the last call of a factory, deliberately also where types were listed before it failed; E_FAIL
  ///         when there is no type at all
  HRESULT ListAvailableShaders(unsigned int iUsage, const VelString& iOutputType, VelListValVelString& oTypes,
                               VelListValVelUnicodeString& oNames);

  /// Creates a shader and has its factory fill it.
  /// @param[in] iContainer empty is refused
  /// @param[out] oShader with one reference for the caller; null on failure
  /// @param[in] iOption handed to the factory, whose result is not looked at
  /// @return S_OK; E_FAIL when an argument is missing, the type is unknown or the shader cannot be made; E_UNEXPECTED
  ///         for a type without factory, which no manager comes to by itself
  HRESULT CreateShader(const VelIContainer_var& iContainer, const VelString& iType, VelIRshShader** oShader,
                       unsigned char iOption);

  /// Copies a shader, its parameters, their values and connections, and the shaders in its nodes. A copy of
  /// "mia_material" is a "mia_phen_material". Text and matrix values are not copied, nor are version, usage, output
  /// type and connections to shaders elsewhere. A node that cannot be copied, as one nested more than 256 deep, is left
  /// out, and with it all connections to nodes of the shader above it, which is no failure.
  /// @param[out] oCopy with one reference for the caller; null on failure, unless it was the values that could not be
  ///             copied: then the copy with what it has by then
  /// @return S_OK; E_FAIL when an argument is missing; E_NOINTERFACE when the shader cannot be made; E_UNEXPECTED when
  ///         name or type of a parameter cannot be read or the copy's parameters are not those of the source; otherwise
  ///         why the type of the shader or a value could not be copied: a boolean, an integer, a scalar, a vector or a
  ///         color without a value is such a failure
  virtual HRESULT CreateShaderCopy(const VelIContainer_var& iContainer, VelIRshShader* iShader, VelIRshShader** oCopy);

  /// Rebuilds a shader whose version is not the one of its type today. Parameters that have name and start-up in common
  /// with one of the old keep its value (texts and matrices take the default) and its connection; others go.
  /// @return S_OK, also when the versions are equal; E_FAIL when the shader is null, its type unknown, no copy of it
  ///         can be made, or, with the new parameters in place, the copy is no shader; otherwise why version, new
  ///         parameters or values could not be had: E_UNEXPECTED when name or start-up of an old parameter cannot be
  ///         read. When the factory fails to add the new parameters, a copy of the shader stays in the container, as
  ///         the only place of the old values.
  HRESULT UpgradeShader(VelIRshShader* iShader);

  /// Tells what UpgradeShader would do, without doing it: the shader, its container and the shaders connected to it are
  /// read only, and nothing is traced but the call, and the types where nobody has needed them before; a check that
  /// what follows would raise is raised. The factory fills a shader of the same type, version, usage and output type in
  /// a container of its own. One that looks at anything else can make the upgrade differ, and one that connects
  /// parameters to shaders that it has not made writes to those. Nor is foreseen who writes to the shader while it is
  /// upgraded, a listener or the appearance of the material above it, and a document that cannot be written.
  /// @param[out] oPlan replaced; holds as long as shader, connected shaders, factory and configuration stay as they are
  /// @return S_OK, also where the plan tells that the upgrade would fail; E_FAIL when the shader is null; E_NOINTERFACE
  ///         when no shader can be made for the factory to fill: then only type and versions of the plan hold
  HRESULT PlanUpgrade(VelIRshShader* iShader, VelRshUpgradePlan& oPlan);

  static const VelMetaClass& MetaObject() noexcept;
  static const char* ClassId() noexcept;
  /// @return null: the manager makes itself
  static VelBaseUnknown* CreateItself() noexcept { return nullptr; }

 protected:
  VelRshShaderManager();
  ~VelRshShaderManager() override;

  /// Discovers the factories, unless that was done.
  virtual void Init();

  /// Releases the factories.
  virtual void CleanUp();

 private:
  /// The first part of the end, once.
  void BeginEnd();

  HRESULT LoadTypeList();
  void EnsureTypeList();
  VelListPtrVelBaseUnknown DiscoverFactories() const;
  void TakeTypesOf(VelIRshShaderFactory& iFactory);

  /// @return the factory of a type; null when the type is unknown or has none
  /// @param[out] oIsKnown whether the type is listed
  VelIRshShaderFactory* FindFactory(const VelString& iType, bool& oIsKnown) const;

  /// @return false for a type that does not suit; oResult is the code of the last call of the factory
  static bool Suits(VelIRshShaderFactory& iFactory, const VelString& iType, unsigned int iUsage,
                    const VelString& iOutputType, HRESULT& oResult);

  /// Reads type and versions.
  /// @param[out] oFactory of the type; on failure null or not to be used
  /// @return why there is nothing that could be upgraded; S_OK also where the versions are equal
  HRESULT FindUpgrade(VelIRshShader* iShader, VelRshUpgradePlan& oPlan, VelIRshShaderFactory** oFactory);

  /// @param[in,out] oCopies the copies are appended, each with one reference that the caller releases
  void CopyNodes(const VelIContainer_var& iContainer, const VelListPtrVelBaseUnknown& iNodes, VelIRshShader& ioCopy,
                 VelListPtrVelBaseUnknown& oCopies);

  /// @param[in] iSourceSubShaders the nodes of the source, and in the same places those of the target; null for none
  HRESULT CopyShaderParameters(VelIRshShader* iSource, VelIRshShader* iTarget,
                               const VelListPtrVelBaseUnknown* iSourceSubShaders,
                               const VelListPtrVelBaseUnknown* iTargetSubShaders);

  static VelRshShaderManager* _manager;  // NOLINT(readability-identifier-naming): the name of the system

  VelListPtrVelBaseUnknown factories_;      ///< In the order of discovery; an entry may be null.
  VelListPtrVelBaseUnknown typeFactories_;  ///< Of each type, its factory; without references.
  VelListValVelString typeList_;
  bool typeListLoaded_ = false;
  bool hasEndBegun_ = false;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHSHADERMANAGER_H
