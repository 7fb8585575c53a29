// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBuilder_test.cpp The order in which implementations are built, on graphs of any shape.
#include <memory>
#include <stdexcept>

#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/objectmodeler/ObjectModelerTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using Texts = std::vector<std::string>;

class VelBuilderTest : public ObjectModelerTest {
 protected:
  static VelTestNodeObject* NodeOf(const VelBaseUnknown_var& iHandle) {
    return static_cast<VelTestNodeObject*>(iHandle->GetComponent());
  }
};

TEST_F(VelBuilderTest, FirstQuery_OfAChild_BuildsTheFathersFirstAndTheOutermostBeforeTheOthers) {
  const VelBaseUnknown_var hRoot = VelTestNodeObject::Create(1);
  const VelBaseUnknown_var hMiddle = VelTestNodeObject::Create(2, NodeOf(hRoot));
  const VelBaseUnknown_var hChild = VelTestNodeObject::Create(3, NodeOf(hMiddle));
  EXPECT_TRUE(VelTestIShared_var(hChild)) << "also for an interface that another class answers";
  EXPECT_EQ(Notes(), (Texts{"construct 1", "construct 2", "attach 1", "attach 2"}));
  Notes().clear();
  EXPECT_TRUE(VelTestINode_var(hChild));
  EXPECT_EQ(Notes(), (Texts{"construct 3", "attach 3"}));
}

TEST_F(VelBuilderTest, Construction_RunsBothPhasesInTheOrderOfBuilding) {
  const VelBaseUnknown_var hFirst = VelTestNodeObject::Create(1);
  const VelBaseUnknown_var hSecond = VelTestNodeObject::Create(2);
  const VelBaseUnknown_var hThird = VelTestNodeObject::Create(3);
  NodeOf(hFirst)->neighbours = {NodeOf(hSecond), NodeOf(hThird)};
  ASSERT_TRUE(VelTestINode_var(hFirst));
  EXPECT_EQ(Notes(), (Texts{"construct 1", "attach 1", "construct 2", "construct 3", "attach 2", "attach 3"}));
}

TEST_F(VelBuilderTest, Construction_OfACycle_BuildsEachNodeOnce) {
  const VelBaseUnknown_var hFirst = VelTestNodeObject::Create(1);
  const VelBaseUnknown_var hSecond = VelTestNodeObject::Create(2);
  NodeOf(hFirst)->neighbours = {NodeOf(hSecond), NodeOf(hFirst)};
  NodeOf(hSecond)->neighbours = {NodeOf(hFirst), NodeOf(hSecond)};
  ASSERT_TRUE(VelTestINode_var(hSecond));
  EXPECT_EQ(Notes(), (Texts{"construct 2", "attach 2", "construct 1", "attach 1"}));
}

TEST_F(VelBuilderTest, Construction_OfAHundredThousandNeighboursInARow_DoesNotRecurse) {
  constexpr int count = 100000;
  std::vector<VelBaseUnknown_var> nodes;
  for (int i = 0; i < count; ++i) {
    nodes.push_back(VelTestNodeObject::Create(i));
    if (i > 0) NodeOf(nodes.back())->neighbours = {NodeOf(nodes[static_cast<std::size_t>(i) - 1])};
  }
  ASSERT_TRUE(VelTestINode_var(nodes.back()));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, count);
  ASSERT_EQ(Notes().size(), 2U * count);
  EXPECT_EQ(Notes().back(), "attach 0");
}

TEST_F(VelBuilderTest, Construction_BelowAHundredThousandFathers_DoesNotRecurse) {
  constexpr int count = 100000;
  std::vector<VelBaseUnknown_var> nodes;
  for (int i = 0; i < count; ++i) {
    nodes.push_back(VelTestNodeObject::Create(i, nodes.empty() ? nullptr : NodeOf(nodes.back())));
  }
  ASSERT_TRUE(VelTestINode_var(nodes.back()));
  ASSERT_EQ(Notes().size(), 2U * count);
  EXPECT_EQ(Notes().front(), "construct 0");
  EXPECT_EQ(Notes().back(), "attach 99999");
}

TEST_F(VelBuilderTest, Construction_WhoseSecondPhaseClosesANeighbour_SkipsThatNeighboursSecondPhase) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelBaseUnknown_var hNode = VelTestNodeObject::Create(1);
  VelTestScript::Current().inFaultyConstructor = [&](VelComponent&) { EXPECT_TRUE(VelTestINode_var(hNode)); };
  VelTestScript::Current().inFaultyAttachment = [&](VelComponent&) { End(hNode); };
  // The node is built while the faulty one is constructed, so its second phase comes first and is not the one skipped.
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing));
  EXPECT_EQ(Notes(), (Texts{"construct 1", "attach 1"}));
  EXPECT_FALSE(VelTestINode_var(hNode));
}

TEST_F(VelBuilderTest, Construction_WhoseSecondPhaseClosesItsOwnComponent_IsNoInterface) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inFaultyAttachment = [](VelComponent& ioComponent) {
    static_cast<VelObject&>(ioComponent).EndLife();
  };
  VelBaseUnknown* answer = hThing.Get();
  EXPECT_EQ(hThing->QueryInterface(IID_VelTestIFaulty, &answer), E_NOINTERFACE);
  EXPECT_EQ(answer, nullptr);
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelBuilderTest, Construction_WhoseSecondPhaseDropsTheLastReference_EndsTheComponentAfterwards) {
  VelBaseUnknown_var hThing = MakeThing();
  VelBaseUnknown* const thing = hThing.Get();
  VelTestScript::Current().inFaultyAttachment = [&](VelComponent&) { hThing = nullptr; };
  VelBaseUnknown* answer = nullptr;
  EXPECT_EQ(thing->QueryInterface(IID_VelTestIFaulty, &answer), S_OK) << "the forwarder is the last reference";
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(answer->GetComponentState(), VelComponentState::InSession);
  answer->Release();
  EXPECT_EQ(VelInstanceCounts::Now(), VelInstanceCounts{});
}

TEST_F(VelBuilderTest, Constructor_ThatThrows_IsACheckAndNoInterface) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inFaultyConstructor = [](VelComponent&) { throw std::runtime_error("construction"); };
  const RecordingFailureObserver failures;
  EXPECT_FALSE(VelVar<VelTestIFaulty>(hThing));
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].message, "The construction of an implementation threw an exception");
  EXPECT_EQ(failures.Failures()[0].detail, "VelTestFaulty: construction");
  VelTestScript::Current().inFaultyConstructor = nullptr;
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing)) << "the next query tries again";
}

TEST_F(VelBuilderTest, SecondPhase_ThatThrows_IsACheckAndTheImplementationStays) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inFaultyAttachment = [](VelComponent&) { throw std::runtime_error("attachment"); };
  const RecordingFailureObserver failures;
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing));
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].expression, "OnAttached()");
}

TEST_F(VelBuilderTest, Constructor_ThatAsksForItsOwnInterface_GetsNoneAndACheck) {
  const VelBaseUnknown_var hThing = MakeThing();
  bool answered = true;
  VelTestScript::Current().inFaultyConstructor = [&](VelComponent& ioComponent) {
    answered = static_cast<bool>(VelVar<VelTestIFaulty>(&ioComponent));
  };
  const RecordingFailureObserver failures;
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing));
  EXPECT_FALSE(answered);
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].message,
            "A constructor asks for an interface that it is about to answer; OnAttached may");
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 1);
}

TEST_F(VelBuilderTest, Constructor_ThatEndsItsComponent_LeavesNothingBehind) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inFaultyConstructor = [](VelComponent& ioComponent) {
    VelObject::From(&ioComponent)->EndLife();
  };
  EXPECT_FALSE(VelVar<VelTestIFaulty>(hThing));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelBuilderTest, CreationByReference_ThatAsksForItself_GetsNoneAndACheck) {
  const VelBaseUnknown_var hThing = MakeThing();
  int nested = 0;
  VelTestScript::Current().inMoodConstructor = [&](VelComponent& ioComponent) {
    ++nested;
    EXPECT_FALSE(nested == 1 ? static_cast<bool>(VelTestIMood_var(&ioComponent))
                             : static_cast<bool>(VelTestIView_var(&ioComponent)));
  };
  const RecordingFailureObserver failures;
  EXPECT_TRUE(VelTestIMood_var(hThing));
  EXPECT_TRUE(VelTestIView_var(hThing));
  EXPECT_EQ(nested, 2);
  EXPECT_EQ(failures.Failures().size(), 2U);
}

TEST_F(VelBuilderTest, CreationByReference_ThatEndsItsComponent_IsNoInterface) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inMoodConstructor = [](VelComponent& ioComponent) {
    VelObject::From(&ioComponent)->EndLife();
  };
  EXPECT_FALSE(VelTestIMood_var(hThing));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
  EXPECT_EQ(VelInstanceCounts::Now().forwarders, 0);
}

TEST_F(VelBuilderTest, Father_ThatIsClosedWhileTheFathersAreBuilt_IsPassedOver) {
  const VelBaseUnknown_var hRoot = VelTestNodeObject::Create(1);
  const VelBaseUnknown_var hMiddle = VelTestNodeObject::Create(2, NodeOf(hRoot));
  const VelBaseUnknown_var hChild = VelTestNodeObject::Create(3, NodeOf(hMiddle));
  VelTestScript::Current().inNodeConstructor = [&](VelComponent& ioComponent) {
    if (&ioComponent == hRoot->GetComponent()) End(hMiddle);
  };
  EXPECT_TRUE(VelTestINode_var(hChild));
  EXPECT_EQ(Notes(), (Texts{"construct 1", "construct 3", "attach 1", "attach 3"}));
}

TEST_F(VelBuilderTest, SecondPhase_MayAskForItsOwnInterface) {
  const VelBaseUnknown_var hThing = MakeThing();
  int answer = 0;
  VelTestScript::Current().inFaultyAttachment = [&](VelComponent& ioComponent) {
    answer = VelVar<VelTestIFaulty>(&ioComponent)->Answer();
  };
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing));
  EXPECT_EQ(answer, 4);
}

TEST_F(VelBuilderTest, SecondPhase_ThatUnloadsTheDictionary_LeavesTheQueryAnswered) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestScript::Current().inFaultyAttachment = [](VelComponent&) {
    EXPECT_EQ(VelDictionary::Undeclare(VelTestObjectsTable()), S_OK);
  };
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing));
  EXPECT_FALSE(VelVar<VelTestIFaulty>(hThing)) << "the rows are gone";
  EXPECT_EQ(VelDictionary::Declare(VelTestObjectsTable()), S_OK);
  EXPECT_TRUE(VelVar<VelTestIFaulty>(hThing)) << "what was built is found again";
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 1);
}

}  // namespace
