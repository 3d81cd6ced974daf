#include "controller/Journal.h"

#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/Faults.h"
#include "controller/Latency.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

using Lines = std::vector<std::string>;

struct JournalRig {
  explicit JournalRig(std::string_view name)
      : simulated(Bench{{benches::InstrumentNamed(name)}, {}}) {}

  SimulatedLibrary simulated;
  FaultPlan faults;
  FaultyLibrary faulty{simulated, faults};
  Journal journal;
  JournalLibrary library{faulty, journal};
};

// With a connected root, and the journal empty.
struct ConnectedJournal : JournalRig {
  explicit ConnectedJournal(std::string_view name = "Harbour") : JournalRig(name) {
    root = ConnectedRoot(library);
    journal.Clear();
  }
  Microscope root;
};

TEST(Journal, ShowsHowADeviceIsConnected) {
  JournalRig rig("Harbour");
  const Microscope root = ConnectedRoot(rig.library);
  EXPECT_EQ(root.DeviceList().Count(), 1);
  EXPECT_EQ(root.DeviceList().Item(0).Name(), "Harbour");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"CurrentDevice = DeviceList.Item(0)", "DeviceList.Item(0).Connect()",
                   "DeviceList.Count -> 1", "DeviceList.Item(0).Name -> \"Harbour\""}));
}

TEST(Journal, ShowsValuesReadWrittenAndCalls) {
  ConnectedJournal rig;
  rig.root.PutSystemName("Lab");
  rig.root.SwitchEnabled(4);
  rig.root.PutRemoteLED(2);
  rig.root.ControllerSettings().SetInterlock(4, 1);
  rig.root.ControllerSettings().SwitchFunction(4, "A");
  rig.root.QueryCommand("rONR9");
  rig.root.DeviceList().Item(0).PutAsyncMode(true);
  rig.root.DeviceList().Item(0).WaitMove();
  rig.root.AccessoryDatabase().Nosepieces().Item(2).Magnification();
  rig.root.AccessoryDatabase().Nosepieces().Item(2).IsOption();
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"SystemName = \"Lab\"", "SwitchEnabled(4, 0) -> 1", "RemoteLED(7) = 2",
                   "ControllerSettings.SetInterlock(4, 1)",
                   "ControllerSettings.SwitchFunction(4, \"A\") -> \"0\"",
                   "QueryCommand(\"rONR9\") -> \"ONR9000000000000\"",
                   "DeviceList.Item(0).AsyncMode = true", "DeviceList.Item(0).WaitMove(1) -> 0",
                   "AccessoryDatabase.Nosepieces.Item(2).Magnification -> 4",
                   "AccessoryDatabase.Nosepieces.Item(2).IsOption -> false"}));
}

TEST(Journal, NamesTheItemsOfAnEnumeratorByTheirTurn) {
  ConnectedJournal rig("Hollow");
  rig.simulated.bench().instruments[0].nosepiece = {{9, 4}, {8, 5}};
  const TurretEnumerator enumerator = rig.root.NosepieceDevice().Positions().Enumerate();
  enumerator.Next()->Code();
  const TurretPosition second = *enumerator.Next();
  second.Position();
  second.PutCode(14);
  EXPECT_FALSE(enumerator.Next());
  EXPECT_EQ(rig.journal.Lines(), (Lines{"NosepieceDevice.Positions(1).Code -> 4",
                                        "NosepieceDevice.Positions(2).Position -> 8",
                                        "NosepieceDevice.Positions(2).Code = 14"}));
}

TEST(Journal, ShowsAStateWhenItsNumberIsTaken) {
  ConnectedJournal rig;
  const StateValue position = rig.root.ZDriveDevice().Position();
  EXPECT_EQ(rig.journal.Lines(), Lines{});
  EXPECT_FALSE(position.IsReadOnly());
  EXPECT_EQ(position.Number(), 0);
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.Position.IsReadOnly -> false", "ZDriveDevice.Position -> 0"}));
}

TEST(Journal, ShowsFailuresBehindTheCallThatFailed) {
  ConnectedJournal rig;
  rig.faults.Add({"ControllerPresent(3)"});
  rig.faults.Add({"put SystemName", 0, "BUS", 1, ""});
  rig.faults.Add({"NosepieceDevice.Positions(2)"});
  rig.faults.Add({"CondenserDevice"});
  rig.faults.Add({"Create(Microscope)"});
  EXPECT_THROW(rig.root.ControllerPresent(3), ControllerError);
  EXPECT_THROW(rig.root.PutSystemName("x"), ControllerError);
  const TurretEnumerator enumerator = rig.root.NosepieceDevice().Positions().Enumerate();
  enumerator.Next();
  EXPECT_THROW(enumerator.Next(), ControllerError);
  EXPECT_THROW(rig.root.CondenserDevice(), ControllerError);
  EXPECT_THROW(rig.library.Create("Microscope"), ControllerError);
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ControllerPresent(3) ! LIB:80004005", "SystemName = \"x\" ! BUS:1",
                   "NosepieceDevice.Positions(2) ! LIB:80004005", "CondenserDevice ! LIB:80004005",
                   "Create(Microscope) ! LIB:80004005"}));
}

TEST(Journal, TellsWritesFromTheRest) {
  ConnectedJournal rig;
  rig.faults.Add({"BuzzerOff"});
  rig.root.BuzzerOn(1);
  EXPECT_THROW(rig.root.BuzzerOff(1), ControllerError);
  rig.root.BuzzerEnabled(1);
  rig.root.QueryCommand("rONR1");
  rig.root.ZDriveDevice().PutPosition(20);
  rig.root.DeviceList().Item(0).WaitMove();
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"BuzzerOn(1)", "BuzzerOff(1) ! LIB:80004005", "ZDriveDevice.Position = 20"}));
}

// A state whose number cannot be read.
class Unreadable : public ControllerObject {
 public:
  Value Get(std::string_view member, Args /*args*/) override {
    if (member.empty()) throw ControllerError("LIB", 5, "No number.");
    return std::make_shared<Unreadable>();
  }
  void Put(std::string_view /*member*/, const Value& /*value*/, Args /*args*/) override {}
  Value Call(std::string_view /*member*/, Args /*args*/) override { return {}; }
};

class UnreadableLibrary : public ControllerLibrary {
 public:
  ObjectRef Create(std::string_view /*className*/) override {
    return std::make_shared<Unreadable>();
  }
};

TEST(Journal, ShowsANumberOfAStateThatCannotBeRead) {
  UnreadableLibrary unreadable;
  Journal journal;
  JournalLibrary library(unreadable, journal);
  const StateValue state(library.Create("Microscope")->Get("State"));
  EXPECT_THROW(state.Number(), ControllerError);
  EXPECT_EQ(journal.Lines(), Lines{"State ! LIB:5"});
  EXPECT_TRUE(journal.Writes().empty());
  EXPECT_EQ(journal.CallCount(), 2U);
}

TEST(Journal, CountsEveryCallButTheNumbersOfStates) {
  JournalRig rig("Harbour");
  const Microscope root(rig.library.Create("Microscope"));
  EXPECT_EQ(rig.journal.CallCount(), 1U);
  root.PutCurrentDevice(root.DeviceList().Item(0));
  EXPECT_EQ(rig.journal.CallCount(), 4U);
  root.DeviceList().Item(0).Connect();
  EXPECT_EQ(rig.journal.CallCount(), 7U);
  EXPECT_EQ(root.ZDriveDevice().Position().Number(), 0);
  EXPECT_EQ(rig.journal.CallCount(), 9U);
  root.NosepieceDevice().Positions().Enumerate().Next();
  EXPECT_EQ(rig.journal.CallCount(), 13U);
  rig.journal.Clear();
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.journal.Lines().empty());
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Journal, IsTheSameOnAnyNumberOfDecorators) {
  SimulatedLibrary simulated(benches::Named("Quay"));
  LatencyLibrary slow(simulated, [] {});
  LatencyLibrary slower(slow, [] {});
  Journal journal;
  JournalLibrary library(slower, journal);
  const Microscope root = ConnectedRoot(library);
  EXPECT_EQ(root.ControllerVersion(1), "vDEMO");
  EXPECT_EQ(journal.Lines(),
            (Lines{"CurrentDevice = DeviceList.Item(0)", "DeviceList.Item(0).Connect()",
                   "ControllerVersion(1) -> \"vDEMO\""}));
}

TEST(Latency, IsSpentBeforeEveryCallButTheNumbersOfStates) {
  SimulatedLibrary simulated(benches::Named("Quay"));
  LatencyLibrary library(simulated, [&] { simulated.clock().Advance(5); });
  const Microscope root = ConnectedRoot(library);
  EXPECT_EQ(simulated.clock().Now(), 35);
  root.DeviceList().Item(0).PutAsyncMode(true);
  root.ZDriveDevice().PutPosition(12400);
  const StateValue position = root.ZDriveDevice().Position();
  EXPECT_EQ(simulated.clock().Now(), 70);
  EXPECT_EQ(position.Number(), 12200);
  EXPECT_EQ(simulated.clock().Now(), 70);
}

TEST(DescribeValue, TellsThatThereIsNone) {
  EXPECT_EQ(DescribeValue({}), "nothing");
}

}  // namespace
}  // namespace mortane::controller::test
