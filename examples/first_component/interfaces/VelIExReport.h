// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExReport.h A swatch in words.
#ifndef EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXREPORT_H
#define EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXREPORT_H

#include "examples/first_component/interfaces/VelExInterfacesApi.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_EX_INTERFACES_API extern const VelInterfaceId IID_VelIExReport;

/// Implemented by: VelExSwatchReport, for late type "VelExSwatch".
/// Thread: the application thread. Re-entrancy: none.
class VEL_EX_INTERFACES_API VelIExReport : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIExReport);

  /// @param[out] oText the swatch in words
  /// @return S_OK; E_FAIL when the swatch has no colour or is closed, with oText untouched
  virtual HRESULT Describe(VelString& oText) = 0;

 protected:
  ~VelIExReport() = default;
};

using VelIExReport_var = VelVar<VelIExReport>;

#endif  // EXAMPLES_FIRST_COMPONENT_INTERFACES_VELIEXREPORT_H
