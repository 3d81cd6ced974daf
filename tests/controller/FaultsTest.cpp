#include "controller/Faults.h"

#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

struct FaultRig {
  FaultRig() : simulated(benches::Named("Harbour")) { root = ConnectedRoot(library, 1); }

  SimulatedLibrary simulated;
  FaultPlan plan;
  FaultyLibrary library{simulated, plan};
  Microscope root;
};

struct CallRow {
  const char* rule;
  void (*call)(const Microscope&);
};

void ReadItem(const Microscope& root) {
  root.DeviceList().Item(1).Name();
}
void ConnectItem(const Microscope& root) {
  root.DeviceList().Item(1).Connect();
}
void ReadThirdCode(const Microscope& root) {
  const TurretEnumerator enumerator = root.NosepieceDevice().Positions().Enumerate();
  enumerator.Next();
  enumerator.Next();
  enumerator.Next()->Code();
}
void AskSwitch(const Microscope& root) {
  root.ControllerSettings().SwitchFunction(0, "A");
}
void ReadPosition(const Microscope& root) {
  root.NosepieceDevice().Position().Number();
}
void TurnNosepiece(const Microscope& root) {
  root.NosepieceDevice().PutPosition(2);
}
void SendBrackets(const Microscope& root) {
  root.ControllerSettings().SetSwitchFunction(0, "A", ").(");
}

constexpr CallRow kMatching[] = {
    {"DeviceList.Item(1).Connect", ConnectItem},
    {"DeviceList.Item(1).Connect()", ConnectItem},
    {"DeviceList.Item.Connect", ConnectItem},
    {"call DeviceList.Item.Connect", ConnectItem},
    {"get DeviceList.Item", ConnectItem},
    {"DeviceList", ConnectItem},
    {"DeviceList.Item(1).Name", ReadItem},
    {"NosepieceDevice.Positions(3)", ReadThirdCode},
    {"NosepieceDevice.Positions.Next", ReadThirdCode},
    {"NosepieceDevice.Positions", ReadThirdCode},
    {"NosepieceDevice.Positions._NewEnum", ReadThirdCode},
    {"NosepieceDevice.Positions.Code", ReadThirdCode},
    {"get NosepieceDevice.Positions(3).Code", ReadThirdCode},
    {"ControllerSettings.SwitchFunction(0, \"A\")", AskSwitch},
    {"ControllerSettings.SwitchFunction", AskSwitch},
    {"NosepieceDevice.Position", ReadPosition},
    {"NosepieceDevice.Position", TurnNosepiece},
    {"put NosepieceDevice.Position", TurnNosepiece},
    {"ControllerSettings.SetSwitchFunction", SendBrackets},
};

constexpr CallRow kOther[] = {
    {"DeviceList.Item(0).Connect", ConnectItem},
    {"DeviceList.Item(1)", [](const Microscope& root) { root.DeviceList().Item(0); }},
    {"DeviceList.Item(1).Con", ConnectItem},
    {"Connect", ConnectItem},
    {"put DeviceList.Item.Connect", ConnectItem},
    {"NosepieceDevice.Positions(4)", ReadThirdCode},
    {"NosepieceDevice.Positions(2).Code", ReadThirdCode},
    {"put NosepieceDevice.Positions.Code", ReadThirdCode},
    {"ControllerSettings.SwitchFunction(4, \"A\")", AskSwitch},
    {"put NosepieceDevice.Position", ReadPosition},
    {"get NosepieceDevice.Position", TurnNosepiece},
    {"", ConnectItem},
};

TEST(Faults, HitTheCallsThatARuleNames) {
  for (const CallRow& row : kMatching) {
    FaultRig rig;
    rig.plan.Add({row.rule});
    EXPECT_THROW(row.call(rig.root), ControllerError) << row.rule;
    EXPECT_EQ(rig.plan.Hits(), 1U) << row.rule;
  }
}

TEST(Faults, LeaveOtherCallsAlone) {
  for (const CallRow& row : kOther) {
    FaultRig rig;
    rig.plan.Add({row.rule});
    EXPECT_NO_THROW(row.call(rig.root)) << row.rule;
    EXPECT_EQ(rig.plan.Hits(), 0U) << row.rule;
  }
}

TEST(Faults, AreWhatTheRuleSays) {
  FaultRig rig;
  rig.plan.Add({"BuzzerOn", 0, "BUS", 17, "Line cut."});
  try {
    rig.root.BuzzerOn(1);
    FAIL() << "the buzzer went on";
  } catch (const ControllerError& error) {
    EXPECT_EQ(error.Source(), "BUS");
    EXPECT_EQ(error.Number(), 17);
    EXPECT_EQ(error.Description(), "Line cut.");
  }
}

TEST(Faults, KeepTheCallFromTheInstrument) {
  FaultRig rig;
  const Bench before = rig.simulated.bench();
  rig.plan.Add({"BuzzerOff"});
  rig.plan.Add({"SystemName"});
  EXPECT_THROW(rig.root.BuzzerOff(1), ControllerError);
  EXPECT_THROW(rig.root.PutSystemName("x"), ControllerError);
  EXPECT_EQ(rig.simulated.bench(), before);
}

TEST(Faults, ComeAtOneOccurrenceOnlyWhenTheRuleSaysSo) {
  FaultRig rig;
  rig.plan.Add({"BuzzerEnabled", 2});
  EXPECT_NO_THROW(rig.root.BuzzerEnabled(1));
  EXPECT_THROW(rig.root.BuzzerEnabled(5), ControllerError);
  EXPECT_NO_THROW(rig.root.BuzzerEnabled(1));
  EXPECT_EQ(rig.plan.Hits(), 1U);
}

TEST(Faults, ComeAlwaysWithoutAnOccurrence) {
  FaultRig rig;
  rig.plan.Add({"BuzzerEnabled(1)"});
  EXPECT_THROW(rig.root.BuzzerEnabled(1), ControllerError);
  EXPECT_THROW(rig.root.BuzzerEnabled(1), ControllerError);
  EXPECT_NO_THROW(rig.root.BuzzerEnabled(5));
  EXPECT_EQ(rig.plan.Hits(), 2U);
}

TEST(Faults, CanHitTheCountAndLeaveTheEnumerator) {
  FaultRig rig;
  rig.plan.Add({"NosepieceDevice.Positions.Count"});
  const TurretPositions positions = rig.root.NosepieceDevice().Positions();
  EXPECT_THROW(positions.Count(), ControllerError);
  const TurretEnumerator enumerator = positions.Enumerate();
  int items = 0;
  while (enumerator.Next()) ++items;
  EXPECT_EQ(items, 6);
}

TEST(Faults, CanHitTheEnumeratorAndLeaveTheCount) {
  FaultRig rig;
  rig.plan.Add({"NosepieceDevice.Positions(3)"});
  const TurretPositions positions = rig.root.NosepieceDevice().Positions();
  EXPECT_EQ(positions.Count(), 6);
  const TurretEnumerator enumerator = positions.Enumerate();
  EXPECT_TRUE(enumerator.Next());
  EXPECT_TRUE(enumerator.Next());
  EXPECT_THROW(enumerator.Next(), ControllerError);
}

TEST(Faults, OfACollectionDoNotCountTheStepsOfAWalkOverIt) {
  FaultRig rig;
  rig.plan.Add({"NosepieceDevice.Positions", 2});
  EXPECT_NO_THROW(ReadThirdCode(rig.root));
  EXPECT_THROW(ReadThirdCode(rig.root), ControllerError);
}

TEST(Faults, HitCreationByTheNameOfTheClass) {
  FaultRig rig;
  rig.plan.Add({"Create(Microscope)"});
  EXPECT_THROW(rig.library.Create("Microscope"), ControllerError);
  EXPECT_EQ(rig.simulated.CreatedRoots(), 1);
}

TEST(Faults, HitTheCallOfACountFromNowOn) {
  for (std::size_t k = 1; k <= 3; ++k) {
    FaultRig rig;
    rig.plan.FailCall(k);
    std::size_t done = 0;
    EXPECT_THROW(for (; done < 3; ++done) rig.root.BuzzerEnabled(1), ControllerError);
    EXPECT_EQ(done, k - 1);
    EXPECT_NO_THROW(rig.root.BuzzerEnabled(1));
    EXPECT_EQ(rig.plan.Hits(), 1U);
  }
}

TEST(Faults, AreGoneWhenThePlanIsCleared) {
  FaultRig rig;
  rig.plan.Add({"BuzzerEnabled"});
  EXPECT_THROW(rig.root.BuzzerEnabled(1), ControllerError);
  rig.plan.FailCall(1);
  rig.plan.Clear();
  EXPECT_NO_THROW(rig.root.BuzzerEnabled(1));
  EXPECT_EQ(rig.plan.Hits(), 0U);
}

}  // namespace
}  // namespace mortane::controller::test
