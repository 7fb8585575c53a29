// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecLifeCycleObjectExt.cpp Hands the end of a feature on to the feature modeler.
#include "platform/featuremodeler/VelSpecLifeCycleObjectExt.h"

#include "platform/featuremodeler/VelFeature.h"
#include "platform/objectmodeler/VelMetaClass.h"

const VelMetaClass& VelSpecLifeCycleObjectExt::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelSpecLifeCycleObjectExt", &VelImplementation::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

HRESULT VelSpecLifeCycleObjectExt::remove() {
  VelFeature* feature = VelFeature::From(GetComponent());
  return feature != nullptr ? feature->Remove() : E_FAIL;
}
