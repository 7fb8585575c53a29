// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelContainerAnswers.cpp Lists the features of a container.
#include "platform/featuremodeler/VelContainerAnswers.h"

HRESULT VelContainerFeatures::ListFeatures(const VelString& iType, VelListPtrVelBaseUnknown& ioFeatures) {
  if (IsClosed()) return E_FAIL;
  for (VelFeature* feature : Container().Features()) {
    if (!iType.IsEmpty() && !feature->Layout().IsAKindOf(iType.View())) continue;
    feature->AddRef();
    ioFeatures.Append(feature);
  }
  return S_OK;
}

int VelContainerFeatures::CountFeatures() { return IsClosed() ? 0 : static_cast<int>(Container().Features().size()); }
