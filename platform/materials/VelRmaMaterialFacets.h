// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMaterialFacets.h What a rendering material answers only where its figures are known.
#ifndef PLATFORM_MATERIALS_VELRMAMATERIALFACETS_H
#define PLATFORM_MATERIALS_VELRMAMATERIALFACETS_H

#include <cstdint>

#include "platform/base/HResult.h"
#include "platform/events/VelExtIModelEvents.h"
#include "platform/materials/VelUnit.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Answers VelIPlasticMaterial where the material was given a version or a plastic scale. Not exported.
class VelRmaPlasticForm final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null where neither is known
  static VelImplementation* Create(VelComponent& ioMaterial);

  HRESULT GetVersion(std::uint32_t& oVersion);
  HRESULT GetScale(double& oScale);
};

/// Answers VelIRmaDimension2D where the material was given a size. Not exported.
class VelRmaSize final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null where the size is not known
  static VelImplementation* Create(VelComponent& ioMaterial);

  HRESULT GetSize(const VelUnit& iUnit, float& oWidth, float& oHeight);
};

/// Answers VelIModelEvents, with the platform's own behaviour. Not exported.
class VelRmaMaterialModelEvents final : public VelExtIModelEvents {
 public:
  using VelExtIModelEvents::VelExtIModelEvents;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // PLATFORM_MATERIALS_VELRMAMATERIALFACETS_H
