// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices.h What the system asks of images and their files.
#ifndef PLATFORM_IMAGES_VELRBAIMAGESERVICES_H
#define PLATFORM_IMAGES_VELRBAIMAGESERVICES_H

#include "platform/base/HResult.h"
#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/images/VelPathParts.h"

class VelBaseUnknown;
class VelPixelImage;

/// The image services. What touches files is done by a provider that the dictionary names (VelIImageServices). Without
/// one those operations fail, of which the first is a warning on the trace channel "VelRbaImageServices".
/// Thread: the application thread.
class VEL_PLATFORM_API VelRbaImageServices {
 public:
  /// Gives the file under which the content of an image document can be read.
  /// @param[in] iDocument any interface of an object that answers VelIPLMDmtDocument
  /// @param[out] oPath the absolute path of the file; untouched on failure
  /// @return S_OK; E_INVALIDARG when iDocument is null; E_FAIL without provider; otherwise the provider's failure,
  ///         E_FAIL when the document cannot be read or its file not be written
  static HRESULT GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath);

  /// Decodes an image file, or draws a vector image.
  /// @param[in] iPath the absolute path of the file
  /// @param[in] iGroups the groups of a vector image that are drawn, in any order; empty draws all. Without meaning for
  ///            other images.
  /// @param[in] iDpi pixels per inch at which a vector image is drawn, 1 to 4800, where 96 is its own size; without
  ///            meaning for other images, but still to be in range
  /// @return the image with one reference for the caller; null without provider, and when the provider makes none
  [[nodiscard]] static VelPixelImage* CreatePixelImageFromFullPath(const VelUnicodeString& iPath,
                                                                   const VelListValVelUnicodeString& iGroups, int iDpi);

  /// Puts a file that the renderer can read in the place of one that it cannot.
  /// @param[in,out] ioPath the absolute path of the file; replaced by that of the file made from it on S_OK only
  /// @param[in] iGroups as for CreatePixelImageFromFullPath
  /// @param[in] iDpi as for CreatePixelImageFromFullPath
  /// @return S_OK when the path was replaced; S_FALSE when the renderer can read the file; E_FAIL without provider;
  ///         otherwise the provider's failure, E_FAIL when no such file can be made
  static HRESULT ConvertUnsupportedTexture(VelUnicodeString& ioPath, const VelListValVelUnicodeString& iGroups,
                                           int iDpi);

  /// Takes a path apart; looks at no file and needs no provider. Both "/" and "\" separate, on every system, since a
  /// document may bring paths from another one. Dots at the front of a name, and a dot at its end, begin no extension.
  static VelPathParts SplitPath(const VelUnicodeString& iPath);

  /// Takes apart a list that is written as one text; needs no provider. Every ";" separates and nothing is trimmed, so
  /// that "a;;b" is three items, the second one empty.
  /// @param[in] iText an empty text is the empty list
  /// @param[in,out] ioList the items come behind what it holds
  static void ExtractPathList(const VelUnicodeString& iText, VelListValVelUnicodeString& ioList);

  /// Lets the warning of the missing provider be sent once more, for tests.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_IMAGES_VELRBAIMAGESERVICES_H
