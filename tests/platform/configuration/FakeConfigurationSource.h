// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FakeConfigurationSource.h A source of configurations that says what a test tells it.
#ifndef TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONSOURCE_H
#define TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONSOURCE_H

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/configuration/VelIConfigurationSource.h"

/// While it lives, the dictionary answers VelIConfigurationSource for "VelRbaConfiguration". One at a time.
class FakeConfigurationSource {
 public:
  FakeConfigurationSource();
  ~FakeConfigurationSource();
  FakeConfigurationSource(const FakeConfigurationSource&) = delete;
  FakeConfigurationSource& operator=(const FakeConfigurationSource&) = delete;

  std::map<VelString, VelSourcedConfiguration> configurations;
  std::vector<VelString> alsoListed;  ///< Names that are listed, and refused when they are read.
  HRESULT listCode = S_OK;
  HRESULT addCode = S_OK;
  std::function<void()> onRead;    ///< Called while a configuration is read.
  std::vector<std::string> calls;  ///< What was asked, in order.
  int live = 0;                    ///< The number of sources that are alive.
};

#endif  // TESTS_PLATFORM_CONFIGURATION_FAKECONFIGURATIONSOURCE_H
