// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValueCopier.cpp Reads the target, then the source, then writes.
#include "RenderingShader/VelRshModel.m/src/updates/VelRshParameterValueCopier.h"

#include <cstddef>
#include <cstdint>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"
#include "platform/base/VelUnicodeString.h"

namespace {

template <class Value>
bool CopyWhereDifferent(VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  Value held{};
  Value wanted{};
  if (FAILED(ioTarget.GetValue(&held)) || FAILED(iSource.GetValue(&wanted))) return false;
  return held == wanted || SUCCEEDED(ioTarget.SetValue(&wanted));
}

template <std::size_t Count>
bool CopyReals(VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  float held[Count]{};
  float wanted[Count]{};
  if (FAILED(ioTarget.GetValue(held)) || FAILED(iSource.GetValue(wanted))) return false;
  return SUCCEEDED(ioTarget.SetValue(wanted));
}

/// Deliberately copies nothing: the document of a texture belongs to its shader.
bool AskForTextures(VelIRshParameter& iSource, VelIRshParameter& ioTarget) {
  VelBaseUnknown** const nowhere = nullptr;
  static_cast<void>(ioTarget.GetValue(nowhere));
  static_cast<void>(iSource.GetValue(nowhere));
  return true;
}

}  // namespace

bool VelRshParameterValueCopier::operator()(VelIRshParameter& iSource, VelIRshParameter& ioTarget) const {
  const VelRshReaderParameterType readType;
  const VelRshReaderParameterType::Type type = readType(iSource);
  if (type != readType(ioTarget)) return false;
  switch (type) {
    case VelRshReaderParameterType::Boolean:
      return CopyWhereDifferent<bool>(iSource, ioTarget);
    case VelRshReaderParameterType::Integer:
      return CopyWhereDifferent<std::int32_t>(iSource, ioTarget);
    case VelRshReaderParameterType::Scalar:
      return CopyWhereDifferent<float>(iSource, ioTarget);
    case VelRshReaderParameterType::String:
      return CopyWhereDifferent<VelUnicodeString>(iSource, ioTarget);
    case VelRshReaderParameterType::Color:
      return CopyReals<4>(iSource, ioTarget);
    case VelRshReaderParameterType::Vector:
      return CopyReals<3>(iSource, ioTarget);
    case VelRshReaderParameterType::Texture:
      return AskForTextures(iSource, ioTarget);
    case VelRshReaderParameterType::Unknown:
    case VelRshReaderParameterType::Void:
      return false;
  }
  return false;
}
