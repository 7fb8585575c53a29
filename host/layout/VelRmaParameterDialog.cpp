// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaParameterDialog.cpp Answers from the configuration each time, so that a change of it counts at once.
#include "host/layout/VelRmaParameterDialog.h"

#include "host/layout/VelRmaParameterSettings.h"

VelBaseUnknown* VelRmaParameterDialog::Create(VelComponent& ioParameter) {
  const bool hasDefault = VelRmaParameterSettings(ioParameter).Has(VelRmaParameterSettings::defaultValueWord);
  return hasDefault ? new VelRmaParameterDialog(ioParameter) : nullptr;
}

HRESULT VelRmaParameterDialog::GetDefaultValue(VelRshValueTarget oValue) {
  return IsClosed() ? E_FAIL : VelRmaParameterSettings(*GetComponent()).ReadDefault(oValue);
}
