// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueCopy.cpp The start-ups and how their values are copied.
#include "RenderingShader/VelRshModel.m/src/management/VelRshValueCopy.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/base/VelUnicodeString.h"

namespace {

using Kind = VelRshValueCopy::Kind;
using Copy = VelRshValueCopy (*)(VelIRshParameter& iSource, VelIRshParameter& ioTarget);

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

struct Row {
  const char* startUp;
  Kind kind;
  Copy copy;
};

constexpr std::array rows{
    Row{"VelRmaBoolean", Kind::Plain, &CopyElements<bool, 1>},
    Row{"VelRmaInteger", Kind::Plain, &CopyElements<std::int32_t, 1>},
    Row{"VelRmaScalar", Kind::Plain, &CopyElements<float, 1>},
    Row{"VelRmaVector", Kind::Plain, &CopyElements<float, 3>},
    Row{"VelRmaColor", Kind::Plain, &CopyElements<float, 4>},
    Row{"VelRmaString", Kind::Text, &CopyElements<VelUnicodeString, 1>},
    Row{"VelRmaMatrix", Kind::Matrix, &CopyElements<float, 16>},
    Row{"VelRmaTexture", Kind::Document, &CopyDocument},
    Row{"VelRmaLightProfile", Kind::Document, &CopyDocument},
    Row{"VelRmaVoid", Kind::Void, &CopyNothing},
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
