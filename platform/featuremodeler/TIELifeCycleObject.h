// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIELifeCycleObject.h The forwarder of LifeCycleObject.
#ifndef PLATFORM_FEATUREMODELER_TIELIFECYCLEOBJECT_H
#define PLATFORM_FEATUREMODELER_TIELIFECYCLEOBJECT_H

#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIELifeCycleObject final : public VelTie<LifeCycleObject> {
 public:
  using VelTie::VelTie;

  HRESULT remove() override {
    // Not E_FAIL as elsewhere: what is asked for has happened.
    if (IsClosed()) return S_FALSE;
    return Forward<Implementation>([](Implementation& ioObject) { return ioObject.remove(); });
  }
};

#endif  // PLATFORM_FEATUREMODELER_TIELIFECYCLEOBJECT_H
