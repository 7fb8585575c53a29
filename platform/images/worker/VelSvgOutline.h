// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgOutline.h The drawn elements of an SVG text, and whether it keeps to the limits.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGOUTLINE_H
#define PLATFORM_IMAGES_WORKER_VELSVGOUTLINE_H

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/HResult.h"

/// An element that is drawn where it stands: none of a definition, such as a clip path, and no part of a text.
struct VelSvgElement {
  std::size_t begin = 0;
  std::size_t tagEnd = 0;                ///< Behind the start tag.
  std::size_t end = 0;                   ///< Behind the element.
  std::size_t parent = 0;                ///< Its index; the root is its own parent.
  std::optional<std::size_t> name;       ///< The index of the wanted name that its id is.
  std::optional<std::size_t> layerName;  ///< The index of the wanted name that its layer is labelled with.
  bool isSwitch = false;                 ///< Of its children, the first whose conditions hold is drawn.
  std::string conditions;                ///< In a switch: the attributes with its conditions, as XML.
};

/// What a drawing program may be handed.
class VelSvgOutline {
 public:
  static constexpr std::size_t mostElements = 200'000;
  static constexpr std::size_t mostDepth = 200;
  static constexpr std::size_t mostAttributes = 4096;              ///< Of one element.
  static constexpr std::size_t mostText = std::size_t{64} * 1024;  ///< Bytes that are drawn as letters.
  static constexpr int mostOctaves = 16;                           ///< Of a noise filter.
  static constexpr int mostOrder = 16;                             ///< Rows and columns of a convolution filter.

  /// Reads a text, checks the limits above, and lists the drawn elements if names are wanted.
  /// @param[in] iWanted sorted, each once
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when it is no SVG text or exceeds a limit
  HRESULT Read(std::string_view iText, std::span<const std::string> iWanted, std::string& oCause);

  /// @return in the order of the text, the root first; empty when no name was wanted
  const std::vector<VelSvgElement>& Elements() const noexcept { return elements_; }

  /// @return what stands before the names of elements, with its colon; mostly empty
  const std::string& Prefix() const noexcept { return prefix_; }

  /// @return false when an entity brings a drawn element, which then cannot be told from others by its place
  bool IsWritten() const noexcept { return isWritten_; }

 private:
  class Listener;

  std::vector<VelSvgElement> elements_;
  std::string prefix_;
  bool isWritten_ = true;
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGOUTLINE_H
