// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterLayout.cpp Answers from the configuration each time, so that a change of it counts at once.
#include "host/layout/VelRmaParameterLayout.h"

#include "host/layout/VelRmaParameterSettings.h"

VelBaseUnknown* VelRmaParameterLayout::Create(VelComponent& ioParameter) {
  const VelRmaParameterSettings settings(ioParameter);
  for (const char* word : {VelRmaParameterSettings::layoutWord, VelRmaParameterSettings::shownWord,
                           VelRmaParameterSettings::layoutValueWord, VelRmaParameterSettings::defaultValueWord}) {
    if (settings.Has(word)) return new VelRmaParameterLayout(ioParameter);
  }
  return nullptr;
}

HRESULT VelRmaParameterLayout::GetDefaultValue(VelRshValueTarget oValue) {
  return IsClosed() ? E_FAIL : VelRmaParameterSettings(*GetComponent()).ReadDefault(oValue);
}

HRESULT VelRmaParameterLayout::GetKind(VelString& oKind) { return Read(VelRmaParameterSettings::layoutWord, oKind); }

HRESULT VelRmaParameterLayout::GetShown(VelString& oShown) { return Read(VelRmaParameterSettings::shownWord, oShown); }

HRESULT VelRmaParameterLayout::GetTextValue(VelString& oText) {
  return Read(VelRmaParameterSettings::layoutValueWord, oText);
}

HRESULT VelRmaParameterLayout::Read(const char* iWord, VelString& oText) {
  return IsClosed() ? E_FAIL : VelRmaParameterSettings(*GetComponent()).Read(iWord, oText);
}
