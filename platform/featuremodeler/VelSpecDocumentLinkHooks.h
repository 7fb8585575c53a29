// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecDocumentLinkHooks.h What happens to the documents that features link when the features are copied or
/// removed.
#ifndef PLATFORM_FEATUREMODELER_VELSPECDOCUMENTLINKHOOKS_H
#define PLATFORM_FEATUREMODELER_VELSPECDOCUMENTLINKHOOKS_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

/// Counts document links for the document service. Called whether or not anything was ever built for the feature.
/// Closing a container calls neither.
class VEL_PLATFORM_API VelSpecDocumentLinkHooks {
 public:
  /// A feature with a link to the document was copied. Called once per link, while the copy is being made: no feature
  /// may be removed in it.
  virtual void OnCopied(VelBaseUnknown& ioDocument) = 0;

  /// A feature with a link to the document was removed. Called once per link, after what was built for the feature is
  /// destroyed; the document is still linked.
  virtual void OnDropped(VelBaseUnknown& ioDocument) = 0;

  /// Installs the hooks of the process.
  /// @param[in] iHooks not owned; null for none
  /// @return those that were installed before, null for none
  static VelSpecDocumentLinkHooks* Install(VelSpecDocumentLinkHooks* iHooks) noexcept;

  /// @return the hooks that are installed, null for none
  static VelSpecDocumentLinkHooks* Installed() noexcept;

 protected:
  ~VelSpecDocumentLinkHooks() = default;
};

#endif  // PLATFORM_FEATUREMODELER_VELSPECDOCUMENTLINKHOOKS_H
