// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDelegation.h The delegation that every component has.
#ifndef PLATFORM_OBJECTMODELER_VELDELEGATION_H
#define PLATFORM_OBJECTMODELER_VELDELEGATION_H

#include "platform/base/HResult.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/objectmodeler/VelVar.h"

/// Answers VelIDelegation for components whose late type has no binding of its own for it.
class VelDelegation final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetDelegate(VelBaseUnknown* iDelegate);
  HRESULT GetDelegate(VelBaseUnknown** oDelegate);
  void OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) override;

 private:
  VelBaseUnknown_var delegate_;
};

#endif  // PLATFORM_OBJECTMODELER_VELDELEGATION_H
