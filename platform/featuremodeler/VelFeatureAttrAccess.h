// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureAttrAccess.h Answers VelISpecAttrAccess for features.
#ifndef PLATFORM_FEATUREMODELER_VELFEATUREATTRACCESS_H
#define PLATFORM_FEATUREMODELER_VELFEATUREATTRACCESS_H

#include "platform/featuremodeler/VelFeature.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"
#include "platform/objectmodeler/VelPooledExtension.h"

class VelFeatureAttrAccess final : public VelPooledExtension<VelISpecAttrAccess> {
 public:
  explicit VelFeatureAttrAccess(VelComponent& iFeature) noexcept : VelPooledExtension(iFeature) {}
  static VelBaseUnknown* Create(VelComponent& ioFeature) {
    return VelFeature::Is(ioFeature) ? Make<VelFeatureAttrAccess>(ioFeature) : nullptr;
  }
  static const VelMetaClass& MetaObject() noexcept;

  bool TestAttrKey(const VelISpecAttrKey* iKey) override;
  bool IsValuated(const VelISpecAttrKey* iKey) override;
  HRESULT GetBoolean(const VelISpecAttrKey* iKey, bool& oValue) override;
  HRESULT SetBoolean(const VelISpecAttrKey* iKey, bool iValue) override;
  HRESULT GetInteger(const VelISpecAttrKey* iKey, std::int32_t& oValue) override;
  HRESULT SetInteger(const VelISpecAttrKey* iKey, std::int32_t iValue) override;
  HRESULT GetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t& oValue) override;
  HRESULT SetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t iValue) override;
  HRESULT GetReal(const VelISpecAttrKey* iKey, double& oValue) override;
  HRESULT SetReal(const VelISpecAttrKey* iKey, double iValue) override;
  HRESULT GetText(const VelISpecAttrKey* iKey, VelUnicodeString& oValue) override;
  HRESULT SetText(const VelISpecAttrKey* iKey, const VelUnicodeString& iValue) override;
  HRESULT GetSize(const VelISpecAttrKey* iKey, int& oSize) override;
  HRESULT GetRealAt(const VelISpecAttrKey* iKey, int iPosition, double& oValue) override;
  HRESULT SetReals(const VelISpecAttrKey* iKey, const double* iValues, int iCount) override;
  HRESULT GetReference(const VelISpecAttrKey* iKey, VelBaseUnknown** oFeature) override;
  HRESULT SetReference(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) override;
  HRESULT ResetReference(const VelISpecAttrKey* iKey) override;
  HRESULT AppendComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) override;
  HRESULT RemoveComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) override;
  HRESULT GetComponentAt(const VelISpecAttrKey* iKey, int iPosition, VelBaseUnknown** oFeature) override;
  HRESULT EmptyComponents(const VelISpecAttrKey* iKey) override;
  HRESULT GetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown** oDocument) override;
  HRESULT SetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown* iDocument) override;

 private:
  VelFeature& Feature() noexcept { return static_cast<VelFeature&>(*GetComponent()); }

  /// @return the position of a key's attribute when the feature has one of that kind and can be read, else absent
  unsigned FindToRead(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept;

  /// @return as FindToRead, and absent when the feature is removed
  unsigned FindToWrite(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept;

  /// @return the slot of a valuated attribute of that kind, null when there is none
  VelFeatureSlot* FindValue(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept;

  template <class Value>
  HRESULT Get(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind, Value VelFeatureSlot::*iMember, Value& oValue);
  template <class Value>
  HRESULT Set(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind, Value VelFeatureSlot::*iMember, Value iValue);
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATUREATTRACCESS_H
