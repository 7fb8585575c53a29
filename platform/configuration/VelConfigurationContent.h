// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationContent.h What a configuration file says, and what is wrong with one.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONCONTENT_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONCONTENT_H

#include <string>
#include <vector>

#include "platform/base/VelString.h"

/// A configuration and the one that stands above it.
struct VelConfigurationParent {
  VelString configuration;
  VelString parent;  ///< Empty for none.
};

/// A value of a configuration.
struct VelConfigurationEntry {
  VelString configuration;  ///< Empty in a file of messages, which are all of one catalog.
  VelString key;            ///< The parts of a dotted key joined by '.'.
  VelString value;
};

/// All that a file says, in the order of its lines. No configuration has two parents and no key two values.
struct VelConfigurationContent {
  std::vector<VelConfigurationParent> parents;
  std::vector<VelConfigurationEntry> entries;
};

/// What is wrong with a file, and where.
struct VelConfigurationFault {
  unsigned line = 0;    ///< From 1; 0 for the file as a whole.
  unsigned column = 0;  ///< In code points, from 1; 0 for the file as a whole.
  std::string cause;    ///< In English, made to follow the position in a message.
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONCONTENT_H
