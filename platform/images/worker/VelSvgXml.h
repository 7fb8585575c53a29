// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgXml.h Reads through the elements of an SVG text.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGXML_H
#define PLATFORM_IMAGES_WORKER_VELSVGXML_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"

/// The attributes of a start tag, with entities and references replaced. Valid during the call that hands them out.
class VelSvgAttributes {
 public:
  /// @param[in] iPairs names and values in turn, ended by null
  explicit VelSvgAttributes(const char* const* iPairs) noexcept : pairs_(iPairs) {}

  std::size_t Count() const noexcept;

  /// @param[in] iName as it is written, with its prefix
  std::optional<std::string_view> Find(std::string_view iName) const noexcept;

 private:
  const char* const* pairs_;
};

/// Where a tag stands in the text, in bytes from its beginning.
struct VelSvgPlace {
  std::size_t begin = 0;
  std::size_t end = 0;     ///< Behind the tag.
  bool isWritten = false;  ///< False where an entity brought the tag: then the place is that of the entity's reference.
};

/// Is told what VelSvgXml reads. Whatever fails ends the reading.
class VelSvgXmlListener {
 public:
  virtual ~VelSvgXmlListener() = default;

  /// @param[in] iName as it is written, with its prefix
  /// @param[out] oCause the reason of a failure
  /// @return S_OK to read on
  virtual HRESULT OnStart(std::string_view iName, const VelSvgAttributes& iAttributes, const VelSvgPlace& iPlace,
                          std::string& oCause) = 0;

  /// The end of the element whose start has no end yet. An element without content ends where its tag does.
  /// @param[in] iEnd bytes from the beginning of the text to behind the element
  virtual void OnEnd(std::size_t iEnd) = 0;

  /// @param[in] iLength bytes of text between tags
  /// @return as OnStart
  virtual HRESULT OnText(std::size_t iLength, std::string& oCause) = 0;
};

/// Checks that a text is well-formed XML and tells its elements. Files that it names are never opened, and entities
/// that grow out of all proportion end the reading.
class VelSvgXml {
 public:
  /// @param[in] iText in UTF-8, UTF-16 or an encoding of one byte a letter that the system knows
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when the text is no XML; what the listener returned otherwise
  static HRESULT Read(std::string_view iText, VelSvgXmlListener& ioListener, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGXML_H
