// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshCopyDepth.h Keeps the copy of nested shaders from running out of stack.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCOPYDEPTH_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCOPYDEPTH_H

/// Stands for one shader that is being copied, from its construction to its destruction: that of a shader inside it is
/// made meanwhile. The 257th of them may not go on, which is a check.
class VelRshCopyDepth {
 public:
  static constexpr int most = 256;

  /// @param[in] iSource the source text of the check; lives as long as this
  explicit VelRshCopyDepth(const char* iSource) noexcept;
  ~VelRshCopyDepth();
  VelRshCopyDepth(const VelRshCopyDepth&) = delete;
  VelRshCopyDepth& operator=(const VelRshCopyDepth&) = delete;

  /// @return false when too many nest; reported
  bool MayGoOn() const noexcept;

 private:
  static int depth;

  const char* source_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCOPYDEPTH_H
