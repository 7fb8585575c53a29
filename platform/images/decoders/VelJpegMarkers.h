// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelJpegMarkers.h What a JPEG file tells before its image.
#ifndef PLATFORM_IMAGES_DECODERS_VELJPEGMARKERS_H
#define PLATFORM_IMAGES_DECODERS_VELJPEGMARKERS_H

class VelImageSource;

/// The segments in front of the image that programs and cameras write.
struct VelJpegMarkers {
  int orientation = 1;           ///< 1 to 8, as VelPixelOrientation takes it.
  bool hasColorProfile = false;  ///< An ICC profile is embedded.

  /// Reads what can be read; a damaged file is told by its decoder.
  static VelJpegMarkers Read(VelImageSource& ioSource);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELJPEGMARKERS_H
