// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ShaderFeatureTest.cpp Loads what the tests of a shader make beside the shipped start-ups.
#include "tests/RenderingShader/model/ShaderFeatureTest.h"

void ShaderFeatureTest::SetUp() {
  RshModelTest::SetUp();
  foreign_.emplace(VEL_TEST_LIBRARY_FOLDER);
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_SHADER_CATALOG), S_OK);
}

void ShaderFeatureTest::TearDown() {
  CloseContainer();
  foreign_.reset();
  RshModelTest::TearDown();
}
