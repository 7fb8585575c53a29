// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWriter.h The provider that writes images into files.
#ifndef PLATFORM_IMAGES_SERVICES_VELIMAGEWRITER_H
#define PLATFORM_IMAGES_SERVICES_VELIMAGEWRITER_H

#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelImplementation.h"

class VelPixelImage;

/// Answers VelIImageWriter. It has no state.
class VelImageWriter final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT Write(VelPixelImage* iImage, const VelUnicodeString& iPath);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELIMAGEWRITER_H
