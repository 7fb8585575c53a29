// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshCopyDepth.h Keeps the copy of nested shaders from running out of stack.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCOPYDEPTH_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHCOPYDEPTH_H

/// A shader that is being copied, as long as it lives; those in it nest. More than 256 are cut, with a check.
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
