// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExSwatchReport.h Puts a swatch into words.
#ifndef EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHREPORT_H
#define EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHREPORT_H

#include "examples/first_component/interfaces/VelIExReport.h"
#include "platform/objectmodeler/VelBoa.h"

/// A delegating extension: it has no state of its own and reads the colour through the swatch's own interface.
class VelExSwatchReport final : public VelBoa<VelIExReport> {
 public:
  using VelBoa::VelBoa;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT Describe(VelString& oText) override;
};

#endif  // EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHREPORT_H
