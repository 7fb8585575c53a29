// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDocumentProjection.h Gives a document a file, for those who read files only.
#ifndef PLATFORM_IMAGES_VELDOCUMENTPROJECTION_H
#define PLATFORM_IMAGES_VELDOCUMENTPROJECTION_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/documents/VelIPLMDmtDocument.h"

/// Writes the content of a document into a folder of this process, once, and again only when the content has changed or
/// the file is gone. The file bears the document's name, with the format as its extension where the name has none; what
/// cannot stand in a file's name becomes "_". Documents of one name lie in folders of their own.
///
/// The folder is private to the user, lies in TMPDIR (else, or where that is no full path, /tmp) and is removed by the
/// platform's end (VelPlatformTerminate). What fails is an error on the trace channel "VelDocumentProjection". Thread:
/// the application thread.
class VEL_PLATFORM_API VelDocumentProjection {
 public:
  /// @param[out] oPath the absolute path of the file; untouched on failure
  /// @return S_OK; E_FAIL when the document cannot be read or its file not be written
  static HRESULT Project(VelIPLMDmtDocument& iDocument, VelUnicodeString& oPath);

  /// @return a text as the name of a file: separators, control bytes and a lone dot or two become "_"; what is longer
  ///         than 200 bytes loses its middle, and an empty text is "_"
  static std::string FileNameOf(std::string_view iText);

  /// Removes all files that were written; a later call of Project begins anew.
  static void RemoveAll() noexcept;
};

#endif  // PLATFORM_IMAGES_VELDOCUMENTPROJECTION_H
