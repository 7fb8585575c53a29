// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgOutline.cpp Refuses what would keep a drawing program busy for ages, and lists the rest.
#include "platform/images/worker/VelSvgOutline.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/images/worker/VelSvgXml.h"

namespace {

using namespace std::string_view_literals;

/// What a child of a drawn element is.
enum class Part { Container, Leaf, Unseen };

constexpr std::array containers{"a"sv, "g"sv, "svg"sv, "switch"sv};
constexpr std::array leaves{"circle"sv,  "ellipse"sv,  "image"sv, "line"sv, "path"sv,
                            "polygon"sv, "polyline"sv, "rect"sv,  "text"sv, "use"sv};
constexpr std::array conditionNames{"requiredExtensions"sv, "requiredFeatures"sv, "systemLanguage"sv};

/// Attributes that multiply the work of a filter by a number.
struct Multiplier {
  std::string_view element;
  std::string_view attribute;
  int most;
};
constexpr std::array multipliers{
    Multiplier{"feTurbulence"sv, "numOctaves"sv, VelSvgOutline::mostOctaves},
    Multiplier{"feConvolveMatrix"sv, "order"sv, VelSvgOutline::mostOrder},
};

std::string_view LocalName(std::string_view iName) {
  const std::size_t colon = iName.rfind(':');
  return colon == std::string_view::npos ? iName : iName.substr(colon + 1);
}

Part PartOf(std::string_view iLocalName) {
  if (std::ranges::find(containers, iLocalName) != containers.end()) return Part::Container;
  return std::ranges::find(leaves, iLocalName) != leaves.end() ? Part::Leaf : Part::Unseen;
}

/// Whether a number in a list is above a limit, or is written in a way that hides how large it is.
bool Exceeds(std::string_view iNumbers, int iMost) {
  constexpr std::string_view separators = " \t\r\n,";
  const std::string text(iNumbers);
  const char* rest = text.c_str();
  while (*rest != '\0') {
    char* end = nullptr;
    const long number = std::strtol(rest, &end, 10);
    if (end == rest || (*end != '\0' && separators.find(*end) == std::string_view::npos)) return true;
    if (number > iMost) return true;
    rest = end;
    while (*rest != '\0' && separators.find(*rest) != std::string_view::npos) ++rest;
  }
  return false;
}

std::string EscapeAttribute(std::string_view iValue) {
  std::string text;
  for (const char letter : iValue) {
    if (letter == '&') {
      text += "&amp;";
    } else if (letter == '<') {
      text += "&lt;";
    } else if (letter == '"') {
      text += "&quot;";
    } else {
      text += letter;
    }
  }
  return text;
}

std::string ConditionsOf(const VelSvgAttributes& iAttributes) {
  std::string text;
  for (const std::string_view name : conditionNames) {
    const auto value = iAttributes.Find(name);
    if (value) text.append(" ").append(name).append("=\"").append(EscapeAttribute(*value)).append("\"");
  }
  return text;
}

HRESULT Refuse(std::string_view iWhat, std::size_t iMost, std::string& oCause) {
  oCause = "has " + std::string(iWhat) + "; expected at most " + std::to_string(iMost);
  return E_FAIL;
}

}  // namespace

class VelSvgOutline::Listener final : public VelSvgXmlListener {
 public:
  Listener(VelSvgOutline& ioOutline, std::span<const std::string> iWanted) : outline_(ioOutline), wanted_(iWanted) {}

  HRESULT OnStart(std::string_view iName, const VelSvgAttributes& iAttributes, const VelSvgPlace& iPlace,
                  std::string& oCause) override {
    VEL_RETURN_IF_FAILED(CheckLimits(LocalName(iName), iAttributes, oCause));
    if (open_.empty()) VEL_RETURN_IF_FAILED(EnterRoot(iName, oCause));
    const Open parent = open_.empty() ? Open{} : open_.back();
    Open element{.isContainer = false, .isText = parent.isText || LocalName(iName) == "text"};
    const Part part = PartOf(LocalName(iName));
    if (parent.isContainer && part != Part::Unseen && iName.starts_with(outline_.prefix_) &&
        iName.size() == outline_.prefix_.size() + LocalName(iName).size()) {
      element.isContainer = part == Part::Container;
      if (!wanted_.empty()) element.index = List(LocalName(iName), iAttributes, iPlace, parent);
    }
    open_.push_back(element);
    return S_OK;
  }

  void OnEnd(std::size_t iEnd) override {
    if (open_.back().index) outline_.elements_[*open_.back().index].end = iEnd;
    open_.pop_back();
  }

  HRESULT OnText(std::size_t iLength, std::string& oCause) override {
    if (!open_.back().isText) return S_OK;
    text_ += iLength;
    return text_ <= mostText ? S_OK : Refuse("too many bytes of text", mostText, oCause);
  }

 private:
  struct Open {
    std::optional<std::size_t> index = std::nullopt;
    bool isContainer = true;  // The parent of the root counts as one.
    bool isText = false;
  };

  HRESULT CheckLimits(std::string_view iName, const VelSvgAttributes& iAttributes, std::string& oCause) {
    if (++count_ > mostElements) return Refuse("too many elements", mostElements, oCause);
    if (open_.size() >= mostDepth) return Refuse("too many elements inside each other", mostDepth, oCause);
    if (iAttributes.Count() > mostAttributes)
      return Refuse("an element with too many attributes", mostAttributes, oCause);
    for (const Multiplier& multiplier : multipliers) {
      if (multiplier.element != iName) continue;
      const auto value = iAttributes.Find(multiplier.attribute);
      if (!value || !Exceeds(*value, multiplier.most)) continue;
      oCause = "has a filter " + std::string(iName) + " whose " + std::string(multiplier.attribute) +
               " is too large; expected at most " + std::to_string(multiplier.most);
      return E_FAIL;
    }
    return S_OK;
  }

  HRESULT EnterRoot(std::string_view iName, std::string& oCause) {
    const std::string_view local = LocalName(iName);
    if (local != "svg") {
      oCause = "is no SVG file: its root is not \"svg\"";
      return E_FAIL;
    }
    outline_.prefix_ = iName.substr(0, iName.size() - local.size());
    return S_OK;
  }

  std::optional<std::size_t> IndexOf(std::optional<std::string_view> iName) const {
    if (!iName) return std::nullopt;
    const auto found = std::ranges::lower_bound(wanted_, *iName);
    if (found == wanted_.end() || *found != *iName) return std::nullopt;
    return static_cast<std::size_t>(found - wanted_.begin());
  }

  std::size_t List(std::string_view iName, const VelSvgAttributes& iAttributes, const VelSvgPlace& iPlace,
                   const Open& iParent) {
    VelSvgElement element;
    element.begin = iPlace.begin;
    element.tagEnd = iPlace.end;
    element.parent = iParent.index.value_or(0);
    element.name = IndexOf(iAttributes.Find("id"));
    if (iName == "g") element.layerName = IndexOf(iAttributes.Find("inkscape:label"));
    element.isSwitch = iName == "switch";
    const bool isChosen = iParent.index && outline_.elements_[*iParent.index].isSwitch;
    if (isChosen) element.conditions = ConditionsOf(iAttributes);
    outline_.isWritten_ = outline_.isWritten_ && iPlace.isWritten;
    outline_.elements_.push_back(std::move(element));
    return outline_.elements_.size() - 1;
  }

  VelSvgOutline& outline_;
  std::span<const std::string> wanted_;
  std::vector<Open> open_;
  std::size_t count_ = 0;
  std::size_t text_ = 0;
};

HRESULT VelSvgOutline::Read(std::string_view iText, std::span<const std::string> iWanted, std::string& oCause) {
  *this = {};
  Listener listener(*this, iWanted);
  return VelSvgXml::Read(iText, listener, oCause);
}
