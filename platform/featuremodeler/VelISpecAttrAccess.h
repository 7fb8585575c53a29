// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelISpecAttrAccess.h Reads and writes the attributes of a feature by key.
#ifndef PLATFORM_FEATUREMODELER_VELISPECATTRACCESS_H
#define PLATFORM_FEATUREMODELER_VELISPECATTRACCESS_H

#include <cstdint>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/featuremodeler/VelISpecAttrKey.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelISpecAttrAccess;

/// The attributes of a feature.
///
/// Every operation that returns a code answers E_FAIL, with nothing read or written and every out argument untouched,
/// when the key is null, is not one of the feature's (TestAttrKey) or is of another kind than the operation's, when the
/// feature is removed, and, for a read, when the attribute is not valuated. An out pointer that is null is
/// E_INVALIDARG. Otherwise the answer is S_OK, unless the operation says more. A removed feature can still be read
/// until what was built for it is destroyed.
///
/// Implemented by: the feature modeler, for every feature.
/// Thread: the application thread. Re-entrancy: AppendComponent may build what hears a new component; EmptyComponents
/// runs the life cycle of the elements; SetDocument may end the former document. The others call nobody.
class VEL_PLATFORM_API VelISpecAttrAccess : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelISpecAttrAccess);

  /// @return true when the feature has an attribute of the key's name and kind; false for null, and once nothing can be
  /// read any more
  virtual bool TestAttrKey(const VelISpecAttrKey* iKey) = 0;

  /// @return true when the attribute has been given a value: an empty text counts as one, a list as long as it has
  /// elements; false for null and for a key that is none of the feature's
  virtual bool IsValuated(const VelISpecAttrKey* iKey) = 0;

  virtual HRESULT GetBoolean(const VelISpecAttrKey* iKey, bool& oValue) = 0;
  virtual HRESULT SetBoolean(const VelISpecAttrKey* iKey, bool iValue) = 0;
  virtual HRESULT GetInteger(const VelISpecAttrKey* iKey, std::int32_t& oValue) = 0;
  virtual HRESULT SetInteger(const VelISpecAttrKey* iKey, std::int32_t iValue) = 0;
  virtual HRESULT GetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t& oValue) = 0;
  virtual HRESULT SetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t iValue) = 0;
  virtual HRESULT GetReal(const VelISpecAttrKey* iKey, double& oValue) = 0;
  virtual HRESULT SetReal(const VelISpecAttrKey* iKey, double iValue) = 0;
  virtual HRESULT GetText(const VelISpecAttrKey* iKey, VelUnicodeString& oValue) = 0;
  virtual HRESULT SetText(const VelISpecAttrKey* iKey, const VelUnicodeString& iValue) = 0;

  /// @param[out] oSize the number of elements of a list of reals or components, 0 for one without a value
  virtual HRESULT GetSize(const VelISpecAttrKey* iKey, int& oSize) = 0;

  /// Reads one element of a list of reals.
  /// @param[in] iPosition from 1 to the size
  /// @return S_OK; E_INVALIDARG for another position
  virtual HRESULT GetRealAt(const VelISpecAttrKey* iKey, int iPosition, double& oValue) = 0;

  /// Replaces a list of reals.
  /// @param[in] iValues iCount reals; may be null when iCount is 0, which empties the list
  /// @return S_OK; E_INVALIDARG when iCount is negative or more than the catalog gives room for, or iValues is null
  virtual HRESULT SetReals(const VelISpecAttrKey* iKey, const double* iValues, int iCount) = 0;

  /// @param[out] oFeature the feature that the attribute points at, with one reference for the caller
  virtual HRESULT GetReference(const VelISpecAttrKey* iKey, VelBaseUnknown** oFeature) = 0;

  /// Points the attribute at a feature, of any container.
  /// @param[in] iFeature not null
  /// @return S_OK; E_INVALIDARG when iFeature is null, no feature, or removed
  virtual HRESULT SetReference(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) = 0;

  /// Takes the value of a reference away.
  /// @return S_OK; S_FALSE when it had none
  virtual HRESULT ResetReference(const VelISpecAttrKey* iKey) = 0;

  /// Appends a feature to a list of components and makes this feature its father.
  /// @param[in] iFeature not null; the container goes on holding it
  /// @return S_OK; E_INVALIDARG when iFeature is null or no feature; E_FAIL also when it has a father already (as when
  ///         it is in the list), is removed, is of another container, or is this feature or above it, and when
  ///         a feature above this one is being removed
  virtual HRESULT AppendComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) = 0;

  /// Takes a feature out of a list of components. It has no father any more and stays in the container.
  /// @return S_OK; E_INVALIDARG when iFeature is null or no feature; E_FAIL also when it is not in the list
  virtual HRESULT RemoveComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) = 0;

  /// @param[in] iPosition from 1 to the size
  /// @param[out] oFeature the element, with one reference for the caller
  /// @return S_OK; E_INVALIDARG for another position
  virtual HRESULT GetComponentAt(const VelISpecAttrKey* iKey, int iPosition, VelBaseUnknown** oFeature) = 0;

  /// Removes every element of a list of components through its life cycle. One whose own life cycle keeps it is taken
  /// out as by RemoveComponent.
  /// @return S_OK; S_FALSE when the list had none
  virtual HRESULT EmptyComponents(const VelISpecAttrKey* iKey) = 0;

  /// @param[out] oDocument the document, with one reference for the caller
  virtual HRESULT GetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown** oDocument) = 0;

  /// Links a document, which the feature references. The document hooks are not called: whoever writes the link counts.
  /// @param[in] iDocument null takes the link away
  virtual HRESULT SetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown* iDocument) = 0;

 protected:
  ~VelISpecAttrAccess() = default;
};

using VelISpecAttrAccess_var = VelVar<VelISpecAttrAccess>;

#endif  // PLATFORM_FEATUREMODELER_VELISPECATTRACCESS_H
