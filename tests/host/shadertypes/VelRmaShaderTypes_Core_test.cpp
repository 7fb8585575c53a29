// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypes_Core_test.cpp Shader types where no library reads files.
#include <algorithm>
#include <cstdlib>

#include <stdlib.h>

#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/interfaces/VelIRmaShaderFactory.h"
#include "platform/base/VelCallOnExit.h"
#include "tests/host/HostTest.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

constexpr const char* channel = "VelRmaConfiguredShaderFactory";

class VelRmaShaderTypesCoreDeathTest : public HostTest {};

/// In a process of its own, because the warning is given once in one.
TEST_F(VelRmaShaderTypesCoreDeathTest, WithoutAReader_ThereIsOneWarningAndNoType) {
  EXPECT_EXIT(
      {
        const VelTemporaryFolder folder;
        folder.Write("Own.toml", "type = \"Own\"\noutput = \"VelRmaVoid\"\nversion = 1\n");
        ::setenv("VEL_SHADER_TYPES_PATH", folder.Path().c_str(), 1);
        const VelIRmaShaderFactory_var hFactory(VelRshShaderManager::GetManager());
        EXPECT_TRUE(hFactory);
        for (int i = 0; i < 2; ++i) {
          VelListValVelString types;
          types.Append("before");
          EXPECT_EQ(hFactory->ListShaderTypes(types), S_OK);
          EXPECT_TRUE(types.IsEmpty());
        }
        VelIRshShader_var hShader;
        EXPECT_EQ(VelRshShaderManager::GetManager()->CreateShader(hContainer_, "Own", hShader.Receive(), 0), E_FAIL);
        EXPECT_EQ(traces_.Texts(channel, VelTraceKind::Warning).size(), 1U);
        EXPECT_EQ(traces_.Texts(channel, VelTraceKind::Error), Texts{});
        std::exit(HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
