// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelContainer.h A container: the slabs of its features, and the catalogs that it knows.
#ifndef PLATFORM_FEATUREMODELER_VELCONTAINER_H
#define PLATFORM_FEATUREMODELER_VELCONTAINER_H

#include <map>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/featuremodeler/VelFeature.h"
#include "platform/featuremodeler/VelFeatureSlab.h"
#include "platform/objectmodeler/VelObject.h"

class VelCatalog;

/// The component behind VelIContainer and VelICatalogManager. Not exported.
class VelContainer final : public VelObject {
 public:
  static VelBaseUnknown_var Make();

  /// @return an empty one that knows the same catalogs
  VelBaseUnknown_var MakeLike() const;

  /// @return the container behind a pointer, null when it is none
  static VelContainer* From(VelBaseUnknown* iObject) noexcept;

  static const VelMetaClass& MetaObject() noexcept;

  /// @return the memory of a feature of a start-up
  void* Take(const VelFeatureLayout& iLayout);

  /// Remembers that a slab has room again.
  void Recycle(VelFeatureSlab& ioSlab);

  std::vector<VelFeature*> Features() const;
  HRESULT LoadCatalog(const VelString& iCatalog);

  /// @return the start-up of a name in the catalogs that the container knows, null when there is none
  const VelFeatureLayout* FindStartUp(std::string_view iType) const noexcept;

 private:
  VelContainer();
  ~VelContainer() override;
  void OnEnded() noexcept override;

  /// The slabs of one block size; the last of those with room is taken from first.
  struct SizeClass {
    std::vector<VelFeatureSlab*> slabs;
    std::vector<VelFeatureSlab*> withRoom;
  };
  std::map<std::size_t, SizeClass> sizes_;
  std::vector<const VelCatalog*> catalogs_;
};

#endif  // PLATFORM_FEATUREMODELER_VELCONTAINER_H
