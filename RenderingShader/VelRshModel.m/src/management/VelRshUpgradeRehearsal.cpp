// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeRehearsal.cpp Makes the shaders of a rehearsal, and removes them.
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeRehearsal.h"

#include <algorithm>
#include <cstdint>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshCarriedValue.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeTransfer.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshTagRecord.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshContainerOf.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/materials/VelIRmaEditionMode.h"

namespace {

using Keys = VelKeySetVelRmaCatalog;
using Kind = VelRshValueCopy::Kind;

/// What is set meanwhile makes nothing follow.
class Silence {
 public:
  Silence() { VelIRmaEditionMode::SetActivation(mode, true); }
  ~Silence() { VelIRmaEditionMode::SetActivation(mode, wasOn_); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  static constexpr auto mode = VelIRmaEditionMode::Mode::SilentPropagation;
  const bool wasOn_ = VelIRmaEditionMode::GetActivation(mode);
};

/// The types of the values that follow a shader above.
struct Following {
  const char* startUp;
  VelRshAttribute::Accessor key;
};
constexpr Following followings[] = {{"VelRmaBoolean", &Keys::GetKeyVelRmaBooleanValue},
                                    {"VelRmaInteger", &Keys::GetKeyVelRmaIntegerValue},
                                    {"VelRmaScalar", &Keys::GetKeyVelRmaScalarValue}};

/// @return null when nothing of the component's own follows there
const Following* FindFollowing(VelIRshParameter& iParameter, const VelString& iStartUp) {
  VelRshParameterBase* const own = VelRshParameterBase::From(iParameter);
  if (own == nullptr) return nullptr;
  const auto* following = std::find_if(std::begin(followings), std::end(followings),
                                       [&](const Following& iFollowing) { return iStartUp == iFollowing.startUp; });
  if (following == std::end(followings)) return nullptr;
  const VelRshTagRecord* const record = own->FindTagRecord();
  return record != nullptr && record->Tags() == 0 ? nullptr : following;
}

/// A factory may look at what a shader says of itself.
void Describe(VelIRshShader& iFrom, VelIRshShader& ioTo) {
  std::uint32_t number = 0;
  VelString output;
  if (SUCCEEDED(iFrom.GetVersion(number))) static_cast<void>(ioTo.SetVersion(number));
  if (SUCCEEDED(iFrom.GetUsage(number))) static_cast<void>(ioTo.SetUsage(number));
  if (SUCCEEDED(iFrom.GetOutputType(output))) static_cast<void>(ioTo.SetOutputType(output));
}

}  // namespace

VelRshUpgradeRehearsal::VelRshUpgradeRehearsal(VelIRshShader& iShader, const VelString& iType) : real_(iShader) {
  const VelIContainer_var hOwn = VelRshContainerOf(iShader);
  if (hOwn) hContainer_ = VelIContainer::CreateLike(*hOwn);
  if (!hContainer_) return;
  factory_.emplace(*hContainer_);
  hShader_ = factory_->CreateShader(VelUnicodeString(iType));
  if (hShader_) Describe(iShader, *hShader_);
}

/// What is removed lets go of the documents that a factory linked; what is closed with its container would not.
VelRshUpgradeRehearsal::~VelRshUpgradeRehearsal() {
  const LifeCycleObject_var hLife(hShader_);
  if (hLife) static_cast<void>(hLife->remove());
}

bool VelRshUpgradeRehearsal::Holds(VelIRshShader& iShader) const {
  const VelIContainer_var hContainer = VelRshContainerOf(iShader);
  return hContainer && hContainer->IsEqual(hContainer_.Get());
}

HRESULT VelRshUpgradeRehearsal::Carry(const VelString& iStartUp, VelIRshParameter& iOld, VelIRshParameter& ioNew) {
  return VelRshValueCopy::KindOf(iStartUp) == Kind::Document ? S_OK : VelRshCarryValue(iStartUp, iOld, ioNew);
}

VelIRshShader_var VelRshUpgradeRehearsal::StandInFor(const VelIRshShader_var& iConnected) {
  const Silence silence;
  std::size_t next = standIns_.size();
  VelIRshShader_var hStandIn = FindOrMake(iConnected);
  for (; next < standIns_.size(); ++next) Furnish(next);
  return hStandIn;
}

VelIRshShader_var VelRshUpgradeRehearsal::FindOrMake(const VelIRshShader_var& iReal) {
  if (iReal->IsEqual(&real_)) return hShader_;
  const auto [place, isNew] = places_.try_emplace(iReal->GetComponent(), standIns_.size());
  if (!isNew) return standIns_[place->second].hStandIn;
  VelString type;
  static_cast<void>(iReal->GetType(type));
  return standIns_.emplace_back(StandIn{iReal, factory_->CreateShader(VelUnicodeString(type)), {}}).hStandIn;
}

void VelRshUpgradeRehearsal::Furnish(std::size_t iStandIn) {
  const VelIRshShader_var hReal = standIns_[iStandIn].hReal;
  const VelIRshShader_var hStandIn = standIns_[iStandIn].hStandIn;
  if (!hStandIn || VelRshShaderFeature::From(*hReal) == nullptr) return;
  int position = 0;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*hReal)) {
    ++position;
    VelString name;
    VelString startUp;
    if (FAILED(hParameter->GetName(name)) || FAILED(hParameter->GetType(startUp))) continue;
    const Following* const following = FindFollowing(*hParameter, startUp);
    const VelIRshShader_var hConnected = VelRshUpgradeTransfer::ConnectionOf(*hParameter);
    if (following == nullptr && !hConnected) continue;
    VelIRshParameter_var hMade;
    if (FAILED(hStandIn->AddParameter(name, startUp, hMade.Receive()))) continue;
    if (following != nullptr) {
      // A value that the host supplies is none that stands.
      const VelRshAttribute value(hParameter.Get(), following->key);
      if (value.IsValuated()) static_cast<void>(VelRshCarryValue(startUp, *hParameter, *hMade));
      standIns_[iStandIn].followers.push_back({hParameter, hMade, position});
    }
    if (hConnected) static_cast<void>(hMade->SetConnection(FindOrMake(hConnected).Get()));
  }
}
