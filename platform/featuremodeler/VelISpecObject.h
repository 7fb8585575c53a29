// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelISpecObject.h What a feature is: its type, name, father and container, and how it is instantiated and
/// copied.
#ifndef PLATFORM_FEATUREMODELER_VELISPECOBJECT_H
#define PLATFORM_FEATUREMODELER_VELISPECOBJECT_H

#include "platform/base/HResult.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelISpecObject;

/// A feature, or a start-up from which features are instantiated.
///
/// Every operation answers E_FAIL, with out arguments null or untouched, when the feature is removed; those that only
/// read go on until what was built for it is destroyed. Implemented by: the feature modeler, for every feature and
/// start-up. Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelISpecObject : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelISpecObject);

  /// @param[out] oFather the feature that aggregates this one, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oFather is null; E_FAIL when there is none
  virtual HRESULT GetFather(VelISpecObject** oFather) = 0;

  /// @param[out] oType the name of the feature's start-up; a start-up's own name
  /// @return S_OK; E_FAIL when the feature is removed
  virtual HRESULT GetType(VelString& oType) = 0;

  /// @param[out] oName the name given at instantiation, which may be empty; a start-up's own name
  /// @return S_OK; E_FAIL when the feature is removed
  virtual HRESULT GetName(VelUnicodeString& oName) = 0;

  /// @param[in] iName may be empty
  /// @return S_OK; E_FAIL for a start-up, and when the feature is removed
  virtual HRESULT SetName(const VelUnicodeString& iName) = 0;

  /// @param[out] oContainer with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oContainer is null; E_FAIL for a start-up, and when the container is closed
  virtual HRESULT GetContainer(VelIContainer** oContainer) = 0;

  /// Instantiates a feature of this start-up.
  /// @param[in] iName the feature's name, which may be empty
  /// @param[in] iContainer not null; holds the feature until it is removed
  /// @param[in] iInterface what the feature is handed out as
  /// @param[out] oFeature the feature, as the interface asked for, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when iContainer or oFeature is null or iContainer is no container of this modeler;
  ///         E_FAIL for what is no start-up, and for a closed container; E_NOINTERFACE when the new feature, which then
  ///         stays in the container, does not answer the interface
  virtual HRESULT Instanciate(const VelUnicodeString& iName, VelIContainer* iContainer,
                              const VelInterfaceId& iInterface, VelBaseUnknown** oFeature) = 0;

  /// Copies the feature with all that it aggregates. References and document links of the copy point where those of the
  /// original point; the copy has no father. The document hook "copied" is called for each link.
  /// @param[in] iName the copy's name, which may be empty; what it aggregates keeps the names of the originals
  /// @param[in] iContainer where the copy is made; null for the container of the original
  /// @param[out] oFeature as for Instanciate
  /// @return as Instanciate; E_FAIL for a start-up
  virtual HRESULT InstanciateForCopy(const VelUnicodeString& iName, VelIContainer* iContainer,
                                     const VelInterfaceId& iInterface, VelBaseUnknown** oFeature) = 0;

  /// Lists the features whose reference attributes point at this one: once per attribute, in the order in which the
  /// references were written.
  /// @param[in] iOwnerInterface only owners that offer it, as the dictionary says; nothing is built
  /// @param[in,out] ioOwners each owner is appended with one reference for the caller
  /// @return S_OK; E_FAIL for a start-up, and when the feature is removed
  virtual HRESULT ListPointingOwners(const VelInterfaceId& iOwnerInterface, VelListPtrVelBaseUnknown& ioOwners) = 0;

 protected:
  ~VelISpecObject() = default;
};

using VelISpecObject_var = VelVar<VelISpecObject>;

#endif  // PLATFORM_FEATUREMODELER_VELISPECOBJECT_H
