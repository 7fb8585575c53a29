// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshMappingReading.cpp Tries parameters, then the default, then the fall-back.
#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "platform/base/VelScanner.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

VelRshMappingPair Multiply(const VelRshMappingPair& iValues, const VelRshMappingPair& iMultiplier) {
  return {iValues.first * iMultiplier.first, iValues.second * iMultiplier.second};
}

/// What a key of parameters names: two, or one that serves both components, or none.
struct Names {
  VelString first;
  VelString second;
  bool areThere = false;
};

Names ScanNames(const VelString& iText) {
  VelScanner scanner(iText);
  const auto first = scanner.Word(VelRshMappingReading::nameLimit);
  if (!first) return {};
  const auto second = scanner.Word(VelRshMappingReading::nameLimit);
  return {VelString(*first), VelString(second ? *second : *first), true};
}

/// @param[in,out] ioValues the components that are not there stay
/// @return true when both are there
bool ScanReals(const VelString& iText, VelRshMappingPair& ioValues) {
  VelScanner scanner(iText);
  const auto first = scanner.Real();
  if (!first) return false;
  ioValues.first = *first;
  const auto second = scanner.Real();
  if (second) ioValues.second = *second;
  return second.has_value();
}

}  // namespace

VelRshMappingSettings VelRshMappingSettings::Read(const VelIRshShader& iShader, const char* iDefaultKey,
                                                  const char* iParameterKey) {
  VelRshMappingSettings settings;
  static_cast<void>(const_cast<VelIRshShader&>(iShader).GetType(settings.catalog));
  static_cast<void>(VelRbaConfiguration::GetHierarchicalValue(settings.catalog, iDefaultKey, settings.defaultValue));
  static_cast<void>(
      VelRbaConfiguration::GetHierarchicalValue(settings.catalog, iParameterKey, settings.parameterNames));
  return settings;
}

VelIRshParameter_var VelRshMappingReading::Find(const VelTraceHandle& iTrace, const char* iSource,
                                                const VelIRshShader& iShader, const VelString& iName,
                                                const char* iMessage) {
  const VelRshReaderParameterCollection collection;
  VelIRshParameter_var hFound;
  if (!iName.IsEmpty()) hFound = collection(collection(iShader), iName.CString());
  if (hFound) {
    iTrace.Info(iMessage, iName);
  } else {
    iTrace.Error(VEL_HERE(iSource), iMessage, iName);
  }
  return hFound;
}

double VelRshMappingReading::ScalarOrOne(const VelIRshParameter_var& iParameter, const VelTraceHandle&) {
  return iParameter ? static_cast<double>(VelRshReaderParameterValue().asScalar(*iParameter)) : 1.0;
}

VelRshMappingPair VelRshMappingReading::Read(const VelTraceHandle& iTrace, const VelRshMappingTexts& iTexts,
                                             const VelIRshShader& iShader, Component iComponent,
                                             const VelRshMappingPair& iFallBack, const VelRshMappingPair& iMultiplier) {
  const auto settings = VelRshMappingSettings::Read(iShader, iTexts.defaultKey, iTexts.parameterKey);
  if (!settings.parameterNames.IsEmpty()) {
    const Names names = ScanNames(settings.parameterNames);
    if (!names.areThere) {
      iTrace.Error(VEL_HERE(iTexts.source), iTexts.parseError, settings.catalog, iTexts.parameterKey,
                   settings.parameterNames);
      // Deliberately told although the result is not the fall-back but (1, 1): the reading goes on without parameters.
      iTrace.Info(iTexts.fallBackTo, iFallBack.first, iFallBack.second);
    }
    const auto hFirst = Find(iTrace, iTexts.source, iShader, names.first, "First parameter found { name = %s }");
    const auto hSecond = Find(iTrace, iTexts.source, iShader, names.second, "Second parameter found { name = %s }");
    const VelRshMappingPair components{iComponent(hFirst, iTrace), iComponent(hSecond, iTrace)};
    const VelRshMappingPair values = Multiply(components, iMultiplier);
    iTrace.Info(iTexts.readAs, values.first, values.second);
    return values;
  }
  if (!settings.defaultValue.IsEmpty()) {
    VelRshMappingPair parsed{1.0, 1.0};
    const bool isComplete = ScanReals(settings.defaultValue, parsed);
    const VelRshMappingPair values = Multiply(parsed, iMultiplier);
    if (isComplete) {
      iTrace.Info(iTexts.defaultedTo, values.first, values.second);
    } else {
      iTrace.Error(VEL_HERE(iTexts.source), iTexts.defaultedTo, values.first, values.second);
    }
    return values;
  }
  const VelRshMappingPair values = Multiply(iFallBack, iMultiplier);
  iTrace.Info(iTexts.fallBackTo, values.first, values.second);
  return values;
}
