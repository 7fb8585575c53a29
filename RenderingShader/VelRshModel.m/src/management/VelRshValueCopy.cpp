// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueCopy.cpp The start-ups and how their values are copied and written.
#include "RenderingShader/VelRshModel.m/src/management/VelRshValueCopy.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "RenderingShader/VelRshModel.m/src/management/VelRshValueText.h"

namespace {

using Kind = VelRshValueCopy::Kind;
using Copy = VelRshValueCopy (*)(VelIRshParameter& iSource, VelIRshParameter& ioTarget);
using Text = std::string (*)(VelIRshParameter& iParameter);

template <class Element, std::size_t Count>
VelRshValueCopy CopyElements(VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  Element values[Count]{};
  VelRshValueCopy copy;
  copy.read = iSource.GetValue(values);
  if (SUCCEEDED(copy.read)) copy.write = ioTarget.SetValue(values);
  return copy;
}

VelRshValueCopy CopyDocument(VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  VelBaseUnknown_var hDocument;
  VelRshValueCopy copy;
  copy.read = iSource.GetValue(hDocument.Receive());
  if (SUCCEEDED(copy.read) && hDocument) copy.write = ioTarget.SetValue(hDocument.Get());
  return copy;
}

/// A sub-shader has no value but its connection.
VelRshValueCopy CopyNothing(VelIRshParameter&, VelIRshParameter&) { return {}; }

template <class Element, std::size_t Count>
std::string TextOfElements(VelIRshParameter& iParameter) {
  Element values[Count]{};
  if (FAILED(iParameter.GetValue(values))) return {};
  return VelRshValueText::Of(std::span<const Element, Count>(values));
}

std::string TextOfDocument(VelIRshParameter& iParameter) {
  VelBaseUnknown_var hDocument;
  if (FAILED(iParameter.GetValue(hDocument.Receive())) || !hDocument) return {};
  return VelRshValueText::Of(*hDocument);
}

std::string TextOfNothing(VelIRshParameter&) { return {}; }

struct Row {
  const char* startUp;
  Kind kind;
  Copy copy;
  Text text;
};

template <class Element, std::size_t Count>
constexpr Row RowOf(const char* iStartUp, Kind iKind) {
  return {iStartUp, iKind, &CopyElements<Element, Count>, &TextOfElements<Element, Count>};
}

constexpr std::array rows{
    RowOf<bool, 1>("VelRmaBoolean", Kind::Plain),
    RowOf<std::int32_t, 1>("VelRmaInteger", Kind::Plain),
    RowOf<float, 1>("VelRmaScalar", Kind::Plain),
    RowOf<float, 3>("VelRmaVector", Kind::Plain),
    RowOf<float, 4>("VelRmaColor", Kind::Plain),
    RowOf<VelUnicodeString, 1>("VelRmaString", Kind::Text),
    RowOf<float, 16>("VelRmaMatrix", Kind::Matrix),
    Row{"VelRmaTexture", Kind::Document, &CopyDocument, &TextOfDocument},
    Row{"VelRmaLightProfile", Kind::Document, &CopyDocument, &TextOfDocument},
    Row{"VelRmaVoid", Kind::Void, &CopyNothing, &TextOfNothing},
};

const Row* FindRow(const VelString& iStartUp) {
  const auto* row = std::find_if(rows.begin(), rows.end(), [&](const Row& iRow) { return iStartUp == iRow.startUp; });
  return row == rows.end() ? nullptr : row;
}

}  // namespace

VelRshValueCopy::Kind VelRshValueCopy::KindOf(const VelString& iStartUp) {
  const Row* const row = FindRow(iStartUp);
  return row != nullptr ? row->kind : Kind::Unknown;
}

VelRshValueCopy VelRshValueCopy::Run(const VelString& iStartUp, VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  const Row* const row = FindRow(iStartUp);
  return row != nullptr ? row->copy(iSource, ioTarget) : VelRshValueCopy();
}

VelUnicodeString VelRshValueCopy::TextOf(const VelString& iStartUp, VelIRshParameter& iParameter) {
  const Row* const row = FindRow(iStartUp);
  return row != nullptr ? VelUnicodeString(row->text(iParameter)) : VelUnicodeString();
}
