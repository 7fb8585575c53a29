// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTestPluginBBindings.cpp The plug-in VelTestPluginB: its class and what it exports.
#include "tests/platform/objectmodeler/modules/TIEVelITestIdentity.h"
#include "tests/platform/objectmodeler/modules/VelTestAnswer.h"

class VelTestAnswerB final : public VelTestAnswer {
 public:
  using VelTestAnswer::VelTestAnswer;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#define VEL_GRID_FILE "tests/platform/objectmodeler/modules/VelTestPluginB.def"
#include "platform/objectmodeler/VelBindingGrid.inl"
