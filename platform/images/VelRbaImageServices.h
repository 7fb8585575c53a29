// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageServices.h What the system asks of images and their files.
#ifndef PLATFORM_IMAGES_VELRBAIMAGESERVICES_H
#define PLATFORM_IMAGES_VELRBAIMAGESERVICES_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"

class VelBaseUnknown;

/// The image services. The work is done by a provider that the dictionary names (VelIImageServices). Without one every
/// operation is E_FAIL, of which the first is a warning on the trace channel "VelRbaImageServices".
/// Thread: the application thread.
class VEL_PLATFORM_API VelRbaImageServices {
 public:
  /// Gives the file under which the content of an image document can be read.
  /// @param[in] iDocument any interface of an object that answers VelIPLMDmtDocument
  /// @param[out] oPath the absolute path of the file; untouched on failure
  /// @return S_OK; E_INVALIDARG when iDocument is null; E_FAIL without provider; otherwise the provider's failure,
  ///         E_FAIL when the document cannot be read or its file not be written
  static HRESULT GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath);

  /// Lets the warning of the missing provider be sent once more, for tests.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_IMAGES_VELRBAIMAGESERVICES_H
