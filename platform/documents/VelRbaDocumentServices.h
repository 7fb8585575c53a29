// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaDocumentServices.h Makes the documents of textures and light profiles.
#ifndef PLATFORM_DOCUMENTS_VELRBADOCUMENTSERVICES_H
#define PLATFORM_DOCUMENTS_VELRBADOCUMENTSERVICES_H

#include <cstddef>
#include <string>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/documents/VelIPLMDmtDocument.h"

/// Makes documents that parameters can hold. The work is done by a store that the dictionary names (VelIDocumentStore);
/// without one there are no documents, which is a warning on the trace channel "VelRbaDocumentServices" the first time.
/// Thread: the application thread.
class VEL_PLATFORM_API VelRbaDocumentServices {
 public:
  /// The largest file that becomes a document: 256 MiB.
  static constexpr std::size_t largestFile = std::size_t{256} << 20U;

  /// Makes a document of bytes.
  /// @param[in] iName the name that people see, for instance "wood.png"
  /// @param[in] iFormat for instance "png", kept as it is given
  /// @param[in] iContent all bytes
  /// @return the document; empty without a store
  static VelIPLMDmtDocument_var CreateFromBytes(const VelUnicodeString& iName, const VelString& iFormat,
                                                std::string iContent);

  /// Makes a document of a file, which is read now and not looked at again. Its name is that of the file, its format
  /// the extension as it is written.
  /// @param[in] iPath a regular file
  /// @return the document; empty when the file cannot be read, which is an error on the channel with path and cause,
  ///         and without a store
  static VelIPLMDmtDocument_var CreateFromFile(const VelUnicodeString& iPath);

  /// Lets the warning of the missing store be sent once more, for tests.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_DOCUMENTS_VELRBADOCUMENTSERVICES_H
