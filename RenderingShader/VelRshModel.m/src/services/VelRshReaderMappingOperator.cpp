// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingOperator.cpp Reads the attribute itself, so that no default of the host stands in for it.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOperator.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"

std::int32_t VelRshReaderMappingOperator::operator()(const VelIRshShader& iShader) const {
  std::int32_t value = 6;
  const VelRshReaderParameterCollection collection;
  const auto tagged = collection(collection(iShader), VelIRshParameterPrivate::Tag::ProjectorFunction);
  if (tagged.empty()) return value;
  const VelRshAttribute attribute(tagged.front().Get(), &VelKeySetVelRmaCatalog::GetKeyVelRmaIntegerValue);
  if (attribute) static_cast<void>(attribute->GetInteger(attribute.Key(), value));
  return value;
}
