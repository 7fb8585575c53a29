// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExSwatchColor.h Keeps the colour of a swatch.
#ifndef EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHCOLOR_H
#define EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHCOLOR_H

#include <optional>

#include "examples/first_component/interfaces/VelIExColor.h"
#include "platform/objectmodeler/VelImplementation.h"

/// The main implementation of a swatch: made when a swatch is first asked for an interface of this class, and ended
/// with the swatch.
class VelExSwatchColor final : public VelImplementation {
 public:
  explicit VelExSwatchColor(VelComponent& iSwatch);
  ~VelExSwatchColor() override;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetColor(const VelExRgb& iColor);
  HRESULT GetColor(VelExRgb& oColor);

 private:
  std::optional<VelExRgb> color_;
};

#endif  // EXAMPLES_FIRST_COMPONENT_MODULE_VELEXSWATCHCOLOR_H
