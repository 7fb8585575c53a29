// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeTransfer.h Decides what the parameters of today take over from those of before, and does it.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADETRANSFER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADETRANSFER_H

#include <cstddef>
#include <optional>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeStage.h"

/// Each parameter of before, in order, is followed by the first of today that has its name and start-up and is still
/// free; what finds none is left out. An upgrade performs this on the shader itself, a plan on a shader of its own:
/// both decide alike.
class VelRshUpgradeTransfer {
 public:
  using Parameters = VelRshReaderParameterCollection::Parameters;

  struct Parameter {
    VelIRshParameter_var hParameter;
    VelString name;
    VelString startUp;
    bool isDescribed = false;  ///< Whether name and start-up can be read; without them it takes no part.
  };

  /// A parameter of before and the one that takes over from it, by their places.
  struct Step {
    std::size_t old;
    std::size_t next;
    bool isCarried = false;  ///< Whether its value had its turn, and nothing went wrong.
  };

  VelRshUpgradeTransfer(const Parameters& iOld, const Parameters& iNew);

  const std::vector<Parameter>& Old() const noexcept { return old_; }
  const std::vector<Parameter>& New() const noexcept { return new_; }

  /// @return in the order of before; also those that come after a parameter at which the transfer stops
  const std::vector<Step>& Steps() const noexcept { return steps_; }

  /// Values first: a connection makes the connected shader take over values, which have to be the right ones by then.
  /// @return S_OK; E_UNEXPECTED at a parameter of before that takes no part; otherwise why a value could not be carried
  HRESULT Perform(VelRshUpgradeStage& ioStage);

  /// @return the place of the parameter of before at which Perform stopped; nothing where it came to the end
  std::optional<std::size_t> StoppedAt() const noexcept { return stoppedAt_; }

  /// @return the shader that a parameter is connected to; empty for none. The parameter does not notice.
  static VelIRshShader_var ConnectionOf(VelIRshParameter& iParameter);

 private:
  static std::vector<Parameter> Describe(const Parameters& iParameters);
  HRESULT CarryValues(VelRshUpgradeStage& ioStage);

  std::vector<Parameter> old_;
  std::vector<Parameter> new_;
  std::vector<Step> steps_;
  std::optional<std::size_t> stoppedAt_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADETRANSFER_H
