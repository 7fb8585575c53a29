// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FeatureModelerTest.cpp Where the shipped catalogs are, as the build knows it.
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

const char* FeatureModelerTest::CatalogFolder() { return VEL_TEST_CATALOGS; }
