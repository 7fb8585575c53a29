// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDyingGraph_test.cpp Subscribers that change or end the graph while it tells them of an edit: each edit,
/// with each reaction, at each delivery in turn.
#include <memory>
#include <optional>

#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/graphs/GraphTest.h"
#include "tests/RenderingShader/graphs/fixtures/GraphModel.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"

namespace {

class VelRshDyingGraphTest : public GraphTest {
 protected:
  struct Edit {
    const char* name;
    std::function<HRESULT()> make;
  };
  struct Reaction {
    const char* name;
    std::function<void()> react;
  };

  std::vector<Edit> Edits() {
    return {{"write of P", [this] { return Write("P", 0.5F); }},
            {"write of Q", [this] { return Write("Q", 0.5F); }},
            {"write of n1", [this] { return Write("n1", 0.5F); }},
            {"disconnection of Q", [this] { return Parameter("Q")->SetConnection(nullptr); }},
            {"reconnection of Q", [this] { return Parameter("Q")->SetConnection(Shader("M").Get()); }},
            {"connection of n1 to the root", [this] { return Parameter("n1")->SetConnection(Shader("R").Get()); }}};
  }

  std::vector<Reaction> Reactions() {
    std::vector<Reaction> reactions;
    for (const char* victim : {"R", "P", "Q", "N", "n1", "n2", "t", "M"}) {
      reactions.push_back({victim, [this, victim] { Remove(victim); }});
    }
    reactions.push_back({"container", [this] { CloseContainer(); }});
    reactions.push_back({"client", [this] { client_.reset(); }});
    reactions.push_back(
        {"disconnection", [this] { IfAlive("Q", [](auto& ioQ) { return ioQ.SetConnection(nullptr); }); }});
    reactions.push_back({"further write", [this] {
                           const float value = 0.75F;
                           IfAlive("P", [&](auto& ioP) { return ioP.SetValue(&value); });
                         }});
    reactions.push_back({"further parameter", [this] {
                           const VelIRshShader_var hRoot = Shader("R");
                           VelIRshParameter_var hNew;
                           if (hRoot) static_cast<void>(hRoot->AddParameter("new", "VelRmaScalar", hNew.Receive()));
                         }});
    return reactions;
  }

  template <class Act>
  void IfAlive(const char* iParameter, const Act& iAct) {
    const VelIRshParameter_var hParameter = Parameter(iParameter);
    if (hParameter) static_cast<void>(iAct(*hParameter));
  }

  void Remove(const char* iVictim) {
    const LifeCycleObject_var hVictim(features_.at(iVictim));
    ASSERT_TRUE(hVictim);
    EXPECT_EQ(hVictim->remove(), S_OK);
  }

  /// Subscribes the client to everything that an object publishes, as early as anybody can.
  void Follow(VelBaseUnknown* iObject) {
    const VelIRshShader_var hShader(iObject);
    if (hShader) {
      for (VelEventName event : GraphModel::EventsOfShaders()) client_->Hear(ManagerOf(hShader), event);
      return;
    }
    const VelIRshParameter_var hParameter(iObject);
    for (VelEventName event : GraphModel::EventsOfParameters()) client_->Hear(ManagerOf(hParameter), event);
  }

  void Begin() {
    client_.emplace();
    onKnown_ = [this](VelBaseUnknown* iObject) { Follow(iObject); };
    MakeInSession("VelRmaScalar");
    const VelIRshShader_var hOther = AddNode(Shader("R"));
    Know("M", hOther.Get());
    Know("m1", Add(hOther, "m1", "VelRmaScalar").Get());
    static_cast<void>(recorder_.Take());
  }

  /// Makes an edit; the client reacts to one delivery of it.
  /// @return whether there was such a delivery
  bool Run(const Edit& iEdit, const Reaction& iReaction, int iDelivery) {
    Begin();
    bool reacted = false;
    int delivered = 0;
    client_->Do([&](VelEventName, VelBaseUnknown*, VelNotification*) {
      if (reacted || delivered++ != iDelivery) return;
      reacted = true;
      iReaction.react();
    });
    const HRESULT edited = iEdit.make();
    // A connection tells whether the shader before it could be let go, which it cannot when it is gone.
    EXPECT_TRUE(edited == S_OK || (std::string(iEdit.name).find("connection") != std::string::npos && edited == E_FAIL))
        << std::hex << edited;
    EXPECT_EQ(recorder_.countToClosed, 0);
    if (client_) client_->Do(nullptr);
    CheckTheSurvivors();
    End();
    return reacted;
  }

  /// Whatever is left works on.
  void CheckTheSurvivors() {
    float value = 1.0F;
    for (const char* scalar : {"P", "Q", "n1", "n2", "m1"}) {
      value += 1.0F;
      IfAlive(scalar, [&](auto& ioScalar) { EXPECT_EQ(ioScalar.SetValue(&value), S_OK) << scalar; });
    }
  }

  void End() {
    features_.clear();
    client_.reset();
    hContainer_ = nullptr;
    EXPECT_EQ(VelInstanceCounts::Now(), VelInstanceCounts{});
    hContainer_ = VelIContainer::Create();
    ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog("VelRmaCatalog.feat"), S_OK);
  }

  std::optional<VelTestRecorder> client_;
};

TEST_F(VelRshDyingGraphTest, EachReactionAtEachDelivery_LeavesASoundGraph) {
  int runs = 0;
  for (const Edit& edit : Edits()) {
    for (const Reaction& reaction : Reactions()) {
      for (int delivery = 0;; ++delivery) {
        SCOPED_TRACE(std::string(edit.name) + ", " + reaction.name + ", delivery " + std::to_string(delivery));
        const bool reacted = Run(edit, reaction, delivery);
        if (HasFailure() || !reacted) break;
        ++runs;
      }
    }
  }
  EXPECT_GT(runs, 200) << "or the client heard next to nothing";
}

TEST_F(VelRshDyingGraphTest, WrittenParameterThatIsRemoved_IsNotToldOf) {
  Begin();
  client_->Do([this](VelEventName iEvent, VelBaseUnknown*, VelNotification*) {
    if (std::string_view(iEvent) == "PARAMETER_VALUE_UPDATED") Remove("P");
  });
  EXPECT_EQ(Write("P", 0.5F), S_OK);
  const Texts deliveries = recorder_.Take();
  EXPECT_EQ(deliveries, (Texts{
                            "VALUE_UPDATED P->R 0",
                            "PARAMETER_VALUE_UPDATED R->? 1",  // the client, which removes P
                            "PARAMETER_VALUE_UPDATED R->Q 1",  // of a publisher that is gone: nothing to forward
                        }));
}

}  // namespace
