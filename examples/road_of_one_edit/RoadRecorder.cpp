// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadRecorder.cpp Listens to the callback managers and to the trace channels.
#include "examples/road_of_one_edit/RoadRecorder.h"

#include <algorithm>
#include <utility>

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelClock.h"
#include "platform/base/VelEnvironment.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/trace/VelTraceRecord.h"
#include "platform/trace/VelTraceService.h"

namespace {

constexpr const char* silence = "VelRshAppearanceUpdater=error";
constexpr const char* switches = "VelRshTranslator*,VelRshAppearanceUpdater";

bool DoesTheEnvironmentSwitch() {
  VelString value;
  return VelEnvironment::Get("VEL_TRACE", value) && !value.IsEmpty();
}

/// @return microseconds, set right
std::string TimeText(std::int64_t iTicks) {
  constexpr std::size_t length = 9;
  const std::string text = std::to_string(iTicks / 10) + '.' + std::to_string(iTicks % 10);
  return std::string(length - std::min(length, text.size()), ' ') + text + " us  ";
}

}  // namespace

void RoadRecorder::SwitchOff() {
  if (!DoesTheEnvironmentSwitch()) VelTraceService::SetSwitches(silence);
}

RoadRecorder::RoadRecorder(Names iNames) : names_(std::move(iNames)), formerProbe_(nullptr) {
  if (!DoesTheEnvironmentSwitch()) {
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::SetSwitches(switches);
  }
  VelTraceService::AddSink(*this);
  formerProbe_ = VelCallbackManager::SetProbe(this);
  begin_ = VelClock::Now();
}

RoadRecorder::~RoadRecorder() {
  VelCallbackManager::SetProbe(formerProbe_);
  VelTraceService::RemoveSink(*this);
  VelTraceService::AddSink(VelTraceService::StandardErrorSink());
  SwitchOff();
}

void RoadRecorder::OnDelivery(const VelCallbackDelivery& iDelivery) noexcept {
  const std::int64_t now = VelClock::Now();
  steps_.push_back({now - begin_, iDelivery.depth, std::string(iDelivery.event) + ": " + NameOf(iDelivery.publisher),
                    NameOf(iDelivery.subscriber)});
}

void RoadRecorder::Write(const VelTraceRecord& iRecord) {
  steps_.push_back({iRecord.ticks - begin_,
                    VelCallbackManager::DeliveryDepth(),
                    std::string(iRecord.channel) + ": " + std::string(iRecord.text),
                    {}});
}

/// A shader by the name that it was given, a parameter by its own and that of its shader, anything else by its class.
std::string RoadRecorder::NameOf(VelBaseUnknown* iObject) const {
  if (iObject == nullptr) return "?";
  const auto known = names_.find(iObject->GetComponent());
  if (known != names_.end()) return known->second;
  const VelIRshParameter_var hParameter(iObject);
  VelString name;
  if (!hParameter || FAILED(hParameter->GetName(name))) return iObject->IsA();
  const VelISpecObject_var hFeature(iObject);
  VelISpecObject_var hShader;
  if (!hFeature || FAILED(hFeature->GetFather(hShader.Receive()))) return name.CString();
  return NameOf(hShader.Get()) + '.' + name.CString();
}

std::vector<std::string> RoadRecorder::Lines() const {
  std::vector<std::string> lines;
  for (auto step = steps_.begin(); step != steps_.end();) {
    const auto isOther = [&](const Step& iStep) {
      return iStep.to.empty() || iStep.text != step->text || iStep.depth != step->depth;
    };
    const auto next = std::find_if(step + 1, steps_.end(), isOther);
    lines.push_back(TimeText(step->ticks) + std::string(static_cast<std::size_t>(3 * step->depth), ' ') + step->text);
    if (!step->to.empty()) lines.back() += " -> " + step->to;
    if (next - step == 2) lines.back() += ", " + (step + 1)->to;
    if (next - step > 2) lines.back() += " ... " + (next - 1)->to + " (" + std::to_string(next - step) + ')';
    step = next;
  }
  return lines;
}
