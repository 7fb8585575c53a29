// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformBindings.cpp The platform's own rows of the dictionary.
#include "platform/objectmodeler/TIEVelIDelegation.h"
#include "platform/objectmodeler/VelDelegation.h"
#include "platform/objectmodeler/VelDictionary.h"

#define VEL_GRID_FILE "platform/objectmodeler/bindings/VelPlatform.def"
#include "platform/objectmodeler/VelBindingGrid.inl"

namespace {

/// The platform's rows stand before anybody can ask, and are never taken out.
[[maybe_unused]] const bool platformDeclared = SUCCEEDED(VelDictionary::Declare(velGridTable));

}  // namespace
