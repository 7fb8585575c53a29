// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBuilder.cpp The two phases of building, and the order of fathers before children.
#include "platform/objectmodeler/VelBuilder.h"

#include <algorithm>
#include <deque>
#include <vector>

#include "platform/base/VelCheck.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelVar.h"

namespace {

constexpr const char* sourceText = "platform/objectmodeler/VelBuilder";

/// An implementation whose second phase is due; the handle keeps its component, and with it the implementation as long
/// as the component is not closed.
struct Attachment {
  VelBaseUnknown_var keeper;
  VelComponent* component;
  VelImplementation* implementation;
};

/// What is being constructed on the stack now.
struct Construction {
  const VelComponent* component;
  const VelClassRecord* record;
};

std::deque<Attachment>& Queue() {
  static auto& queue = *new std::deque<Attachment>;
  return queue;
}

std::vector<Construction>& Constructions() {
  static auto& constructions = *new std::vector<Construction>;
  return constructions;
}

int depth = 0;

void RunSecondPhase(const Attachment& iAttachment) {
  if (iAttachment.component->State() == VelComponentState::Closed) return;
  try {
    iAttachment.implementation->OnAttached();
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "OnAttached()", "The construction of an implementation threw an exception",
                     iAttachment.implementation->ClassName());
  }
}

void RunQueue() {
  while (!Queue().empty()) {
    const Attachment next = std::move(Queue().front());
    Queue().pop_front();
    RunSecondPhase(next);
  }
}

VelImplementation* Create(VelComponent& ioComponent, VelCreateImplementation iCreate, const VelClassRecord& iRecord) {
  try {
    return iCreate(ioComponent);
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "CreateExtension",
                     "The construction of an implementation threw an exception", iRecord.name);
    return nullptr;
  }
}

bool IsUnderConstruction(const VelComponent& iComponent, const VelClassRecord* iRecord) {
  return std::any_of(Constructions().begin(), Constructions().end(), [&](const Construction& iRunning) {
    return iRunning.component == &iComponent && iRunning.record == iRecord;
  });
}

/// Constructs one implementation and queues its second phase.
void BuildOne(VelComponent& ioComponent, const VelBinding& iRow) {
  const VelClassRecord* record = iRow.record;
  if (IsUnderConstruction(ioComponent, record)) {
    VelCheck::Failed(VEL_HERE(sourceText), "IsUnderConstruction",
                     "A constructor asks for an interface that it is about to answer; OnAttached may", record->name);
    return;
  }
  Constructions().push_back({&ioComponent, record});
  VelImplementation* built = Create(ioComponent, iRow.createImplementation, *record);
  Constructions().pop_back();
  if (built == nullptr) return;
  VelComponentAccess::Attach(*built, record);
  Queue().push_back({VelBaseUnknown_var(static_cast<VelBaseUnknown*>(&ioComponent)), &ioComponent, built});
}

/// Builds the main implementations of the fathers that have none yet, outermost first. A father that has one was built
/// after its own fathers, so the climb ends there.
void BuildFathers(VelComponent& iComponent) {
  std::vector<VelComponent*> fathers;
  for (VelComponent* father = iComponent.GetFather(); father != nullptr; father = father->GetFather()) {
    const VelBinding* main = father->LateType().MainImplementation();
    if (main == nullptr) continue;
    if (father->State() == VelComponentState::Closed || VelComponentAccess::Find(*father, main->record) != nullptr)
      break;
    fathers.push_back(father);
  }
  for (auto father = fathers.rbegin(); father != fathers.rend(); ++father) {
    const VelBinding* main = (*father)->LateType().MainImplementation();
    if (main != nullptr && VelComponentAccess::Find(**father, main->record) == nullptr) BuildOne(**father, *main);
  }
}

}  // namespace

VelImplementation* VelBuilder::Build(VelComponent& ioComponent, const VelBinding& iRow) {
  const VelClassRecord* record = iRow.record;
  ++depth;
  BuildFathers(ioComponent);
  if (VelComponentAccess::Find(ioComponent, record) == nullptr) BuildOne(ioComponent, iRow);
  if (depth == 1) RunQueue();
  --depth;
  if (ioComponent.State() == VelComponentState::Closed) return nullptr;
  return VelComponentAccess::Find(ioComponent, record);
}

VelImplementation* VelBuilder::BuildForOneForwarder(VelComponent& ioComponent, const VelBinding& iRow) {
  VelImplementation* built = Create(ioComponent, iRow.createImplementation, *iRow.record);
  if (built != nullptr) RunSecondPhase({nullptr, &ioComponent, built});
  return built;
}
