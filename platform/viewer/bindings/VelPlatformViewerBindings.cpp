// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformViewerBindings.cpp The viewer's rows of the dictionary.
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/viewer/VelParameterResourceImage.h"

#define VEL_GRID_FILE "platform/viewer/bindings/VelPlatformViewer.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

/// These rows stand before anybody can ask, and are never taken out.
[[maybe_unused]] const bool viewerDeclared = SUCCEEDED(VelDictionary::Declare(velGridTable));

}  // namespace
