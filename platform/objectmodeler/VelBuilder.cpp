// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBuilder.cpp The two phases of building, and the order of fathers before children.
#include "platform/objectmodeler/VelBuilder.h"

#include <algorithm>
#include <deque>
#include <vector>

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelPin.h"
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

void RunSecondPhase(VelComponent& ioComponent, VelImplementation& ioImplementation) {
  if (ioComponent.State() == VelComponentState::Closed) return;
  const VelPin pin(ioComponent);
  try {
    ioImplementation.OnAttached();
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "OnAttached()", "The construction of an implementation threw an exception",
                     VelExceptionText(ioImplementation.ClassName()));
  }
}

void RunQueue() {
  while (!Queue().empty()) {
    const Attachment next = std::move(Queue().front());
    Queue().pop_front();
    RunSecondPhase(*next.component, *next.implementation);
  }
}

bool IsUnderConstruction(const VelComponent& iComponent, const VelClassRecord* iRecord) {
  return std::any_of(Constructions().begin(), Constructions().end(), [&](const Construction& iRunning) {
    return iRunning.component == &iComponent && iRunning.record == iRecord;
  });
}

/// Calls a creation function, unless it is running for the same component further up the stack already.
/// @return what it made; null when it declined, threw, or would construct itself without end
template <class Made>
Made* Construct(VelComponent& ioComponent, const VelClassRecord* iRecord, Made* (*iCreate)(VelComponent&)) {
  if (IsUnderConstruction(ioComponent, iRecord)) {
    VelCheck::Failed(VEL_HERE(sourceText), "IsUnderConstruction",
                     "A constructor asks for an interface that it is about to answer; OnAttached may", iRecord->name);
    return nullptr;
  }
  Constructions().push_back({&ioComponent, iRecord});
  Made* made = nullptr;
  try {
    made = iCreate(ioComponent);
  } catch (...) {
    VelCheck::Failed(VEL_HERE(sourceText), "Create", "The construction of an implementation threw an exception",
                     VelExceptionText(iRecord->name));
  }
  Constructions().pop_back();
  return made;
}

/// As Construct; what was made for a component that its own construction closed goes again.
VelImplementation* ConstructImplementation(VelComponent& ioComponent, const VelBinding& iRow) {
  VelImplementation* built = Construct(ioComponent, iRow.record, iRow.createImplementation);
  if (built == nullptr || ioComponent.State() != VelComponentState::Closed) return built;
  delete built;
  return nullptr;
}

/// Constructs one implementation and queues its second phase.
void BuildOne(VelComponent& ioComponent, const VelBinding& iRow) {
  const VelClassRecord* record = iRow.record;
  VelImplementation* built = ConstructImplementation(ioComponent, iRow);
  if (built == nullptr) return;
  VelComponentAccess::Attach(*built, record);
  Queue().push_back({VelBaseUnknown_var(static_cast<VelBaseUnknown*>(&ioComponent)), &ioComponent, built});
}

/// @return the main implementation's row of a component that is open and has none built yet, else null
const VelBinding* FindMissingMain(VelComponent& ioComponent) {
  if (ioComponent.State() == VelComponentState::Closed) return nullptr;
  const VelBinding* main = ioComponent.LateType().MainImplementation();
  return main != nullptr && VelComponentAccess::Find(ioComponent, main->record) == nullptr ? main : nullptr;
}

/// Builds the main implementations of the fathers that have none yet, outermost first. A father that has one was built
/// after its own fathers, so the climb ends there; one whose late type has none is passed over.
void BuildFathers(VelComponent& iComponent) {
  std::vector<VelBaseUnknown_var> fathers;
  for (VelComponent* father = iComponent.GetFather(); father != nullptr; father = father->GetFather()) {
    if (father->LateType().MainImplementation() == nullptr) continue;
    if (FindMissingMain(*father) == nullptr) break;
    fathers.emplace_back(static_cast<VelBaseUnknown*>(father));
  }
  for (auto father = fathers.rbegin(); father != fathers.rend(); ++father) {
    VelComponent& component = *(*father)->GetComponent();
    if (const VelBinding* main = FindMissingMain(component)) BuildOne(component, *main);
  }
}

}  // namespace

VelImplementation* VelBuilder::Build(VelComponent& ioComponent, const VelBinding& iRow) {
  const VelBinding row = iRow;  // Building may unload the dictionary file that the row stands in.
  ++depth;
  BuildFathers(ioComponent);
  const bool isOpen = ioComponent.State() != VelComponentState::Closed;
  if (isOpen && VelComponentAccess::Find(ioComponent, row.record) == nullptr) BuildOne(ioComponent, row);
  if (depth == 1) RunQueue();
  --depth;
  if (ioComponent.State() == VelComponentState::Closed) return nullptr;
  return VelComponentAccess::Find(ioComponent, row.record);
}

void VelBuilder::CatchUpWithFathers(VelComponent& ioComponent) {
  const VelBinding* main = ioComponent.LateType().MainImplementation();
  if (main == nullptr || VelComponentAccess::Find(ioComponent, main->record) == nullptr) return;
  ++depth;
  BuildFathers(ioComponent);
  if (depth == 1) RunQueue();
  --depth;
}

VelImplementation* VelBuilder::BuildForOneForwarder(VelComponent& ioComponent, const VelBinding& iRow) {
  VelImplementation* built = ConstructImplementation(ioComponent, iRow);
  if (built == nullptr) return nullptr;
  RunSecondPhase(ioComponent, *built);
  if (ioComponent.State() != VelComponentState::Closed) return built;
  delete built;
  return nullptr;
}

VelBaseUnknown* VelBuilder::BuildDelegatingExtension(VelComponent& ioComponent, const VelBinding& iRow) {
  return Construct(ioComponent, iRow.record, iRow.createBoa);
}
