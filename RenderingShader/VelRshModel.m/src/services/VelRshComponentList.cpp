// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshComponentList.cpp Reads component lists element by element.
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"

HRESULT VelRshComponentList::Read(const VelRshAttribute& iAttribute, VelListPtrVelBaseUnknown& oElements) {
  oElements.RemoveAll();
  int size = 0;
  VEL_RETURN_IF_FAILED(iAttribute->GetSize(iAttribute.Key(), size));
  for (int position = 1; position <= size; ++position) {
    VelBaseUnknown* element = nullptr;
    const HRESULT read = iAttribute->GetComponentAt(iAttribute.Key(), position, &element);
    if (FAILED(read)) {
      Release(oElements);
      return read;
    }
    oElements.Append(element);
  }
  return S_OK;
}

void VelRshComponentList::Release(VelListPtrVelBaseUnknown& ioElements) noexcept {
  for (VelBaseUnknown* element : ioElements) {
    if (element != nullptr) element->Release();
  }
  ioElements.RemoveAll();
}
