// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaMaterialKeys.h The attributes of rendering materials.
#ifndef PLATFORM_MATERIALS_VELRMAMATERIALKEYS_H
#define PLATFORM_MATERIALS_VELRMAMATERIALKEYS_H

#include "platform/featuremodeler/VelISpecAttrKey.h"

/// The keys of VelRmaMaterialCatalog.feat. Not exported.
class VelRmaMaterialKeys {
 public:
  static const VelISpecAttrKey* Shader() { return &VelISpecAttrKey::Of("Shader", VelSpecAttrKind::Components); }
  static const VelISpecAttrKey* Version() { return &VelISpecAttrKey::Of("Version", VelSpecAttrKind::Unsigned); }
  static const VelISpecAttrKey* Width() { return Real("Width"); }
  static const VelISpecAttrKey* Height() { return Real("Height"); }
  static const VelISpecAttrKey* PlasticScale() { return Real("PlasticScale"); }
  static const VelISpecAttrKey* ScaleFactor() { return Real("ScaleFactor"); }

 private:
  static const VelISpecAttrKey* Real(const char* iAttribute) {
    return &VelISpecAttrKey::Of(iAttribute, VelSpecAttrKind::Real);
  }
};

#endif  // PLATFORM_MATERIALS_VELRMAMATERIALKEYS_H
