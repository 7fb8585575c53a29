// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureModelerBindings.cpp The feature modeler's rows of the dictionary.
#include "platform/featuremodeler/VelContainerAnswers.h"
#include "platform/featuremodeler/VelFeatureAttrAccess.h"
#include "platform/featuremodeler/VelFeatureLifeCycle.h"
#include "platform/featuremodeler/VelFeatureObject.h"
#include "platform/featuremodeler/VelStartUp.h"
#include "platform/objectmodeler/VelDictionary.h"

#define VEL_GRID_FILE "platform/featuremodeler/bindings/VelFeatureModeler.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

/// These rows stand before anybody can ask, and are never taken out.
[[maybe_unused]] const bool featureModelerDeclared = SUCCEEDED(VelDictionary::Declare(velGridTable));

}  // namespace
