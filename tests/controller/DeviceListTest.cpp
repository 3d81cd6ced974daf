#include <gtest/gtest.h>

#include <functional>

#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

TEST(DeviceList, CountsTheSimulatorAndTheInstrumentsAboveIt) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  EXPECT_EQ(NewRoot(crowd).DeviceList().Count(), 5);
}

TEST(DeviceList, HandsOutItemsBeforeItsCountWasAsked) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  EXPECT_EQ(NewRoot(crowd).DeviceList().Item(4).Name(), "  Gamma  ");
}

TEST(DeviceList, FailsForAnIndexOutOfRange) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  const DeviceList list = NewRoot(crowd).DeviceList();
  for (const std::int32_t index : {-1, 5, 2147483647}) {
    EXPECT_THROW(list.Item(index), ControllerError) << index;
  }
}

TEST(DeviceEntry, IsAvailableAsTheBenchSays) {
  struct Row {
    std::int32_t available;
    bool busyWhenConnected;
    std::int32_t before, after;
  };
  for (const Row& row : {Row{1, false, 1, 1}, Row{3, false, 3, 3}, Row{1, true, 1, 0}}) {
    Instrument instrument;
    instrument.available = row.available;
    instrument.busyWhenConnected = row.busyWhenConnected;
    SimulatedLibrary library(Bench{{instrument}, {}});
    const DeviceEntry entry = NewRoot(library).DeviceList().Item(0);
    EXPECT_EQ(entry.IsAvailable(), row.before);
    entry.Connect();
    EXPECT_EQ(entry.IsAvailable(), row.after);
  }
}

TEST(DeviceEntry, OfADeviceThatIsAwayDoesNotConnect) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  const DeviceEntry beta = NewRoot(crowd).DeviceList().Item(2);
  EXPECT_EQ(beta.IsAvailable(), 0);
  EXPECT_THROW(beta.Connect(), ControllerError);
}

TEST(DeviceEntry, ConnectsTwiceAndDisconnectsTwiceWithoutAFailure) {
  SimulatedRig rig("Harbour");
  const DeviceEntry entry = rig.root.DeviceList().Item(0);
  entry.Connect();
  EXPECT_EQ(rig.root.ControllerPresent(1), 1);
  entry.Disconnect();
  entry.Disconnect();
  EXPECT_THROW(rig.root.ControllerPresent(1), ControllerError);
}

TEST(DeviceEntry, AsyncModeIsForAConnectedDeviceOnly) {
  SimulatedLibrary library(benches::Named("Quay"));
  EXPECT_THROW(NewRoot(library).DeviceList().Item(0).PutAsyncMode(true), ControllerError);
}

TEST(DeviceEntry, WaitMoveIsForAConnectedDeviceOnly) {
  SimulatedLibrary library(benches::Named("Quay"));
  EXPECT_THROW(NewRoot(library).DeviceList().Item(0).WaitMove(), ControllerError);
}

TEST(SystemName, IsTheNameOfTheDeviceAtOnceAndOnEveryRoot) {
  SimulatedRig rig("Harbour");
  const DeviceEntry other = NewRoot(rig.library).DeviceList().Item(0);
  rig.root.PutSystemName("Fifteen letters");
  EXPECT_EQ(other.Name(), "Fifteen letters");
  EXPECT_EQ(rig.instrument().name, "Fifteen letters");
}

TEST(SystemName, OfSixteenCharactersIsRefusedAndChangesNothing) {
  SimulatedRig rig("Harbour");
  EXPECT_THROW(rig.root.PutSystemName("Sixteen  letters"), ControllerError);
  EXPECT_EQ(rig.instrument().name, "Harbour");
}

TEST(SystemName, CountsCharactersNotBytes) {
  SimulatedRig rig("Harbour");
  const std::string name = "\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4 12345 789";
  rig.root.PutSystemName(name);
  EXPECT_EQ(rig.instrument().name, name);
}

TEST(SimulatedLibrary, KeepsSeveralRootsApartOverTheSameDevices) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  const Microscope alpha = ConnectedRoot(crowd, 1);
  const Microscope lantern = ConnectedRoot(crowd, 3);
  EXPECT_EQ(alpha.ControllerVersion(1), "V1.31");
  EXPECT_EQ(lantern.ControllerVersion(1), "V1.20");
  const Microscope second = NewRoot(crowd);
  second.PutCurrentDevice(second.DeviceList().Item(1));
  EXPECT_EQ(second.ControllerVersion(1), "V1.31");
}

TEST(SimulatedLibrary, CountsRootsMadeAndReleased) {
  SimulatedLibrary library(benches::Named("Quay"));
  {
    const Microscope first = NewRoot(library);
    const Microscope second = NewRoot(library);
    const DeviceList list = first.DeviceList();
    EXPECT_EQ(library.CreatedRoots(), 2);
    EXPECT_EQ(library.ReleasedRoots(), 0);
  }
  EXPECT_EQ(library.CreatedRoots(), 2);
  EXPECT_EQ(library.ReleasedRoots(), 2);
}

TEST(SimulatedLibrary, ReleasesARootThoughItsDeviceListLives) {
  SimulatedLibrary library(benches::Named("Quay"));
  const DeviceList list = NewRoot(library).DeviceList();
  EXPECT_EQ(library.ReleasedRoots(), 1);
  EXPECT_EQ(list.Count(), 1);
}

TEST(SimulatedLibrary, RefusesUnknownClassesAndMembers) {
  SimulatedRig rig("Quay");
  EXPECT_THROW(rig.library.Create("microscope"), ControllerError);
  const ObjectRef root = rig.root.Object();
  EXPECT_THROW(root->Get("SystemName"), ControllerError);
  EXPECT_THROW(root->Get("devicelist"), ControllerError);
  EXPECT_THROW(root->Put("DeviceList", 1), ControllerError);
  EXPECT_THROW(root->Call("Reset"), ControllerError);
  EXPECT_THROW(root->Get("ControllerPresent"), ControllerError);
  EXPECT_THROW(root->Get("ControllerPresent", {1, 2}), ControllerError);
  EXPECT_THROW(root->Get("ControllerPresent", {std::string("1")}), ControllerError);
}

TEST(SimulatedLibrary, NamesItselfAndTheReasonInAFailure) {
  SimulatedLibrary library(benches::Named("Quay"));
  try {
    NewRoot(library).DeviceList().Item(7);
    FAIL() << "item 7 of 1";
  } catch (const ControllerError& error) {
    EXPECT_EQ(error.Source(), "Simulator");
    EXPECT_EQ(error.Number(), -2147467259);
    EXPECT_EQ(error.Description(), "No device 7.");
  }
}

TEST(SimulatedLibrary, BearsABenchThatShrinksUnderItsObjects) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  const Microscope alpha = ConnectedRoot(crowd, 1);
  const auto nosepieces = alpha.AccessoryDatabase().Nosepieces();
  crowd.bench().instruments.resize(1);
  EXPECT_THROW(nosepieces.Count(), ControllerError);
  EXPECT_EQ(alpha.DeviceList().Count(), 1);
}

std::string TextOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const ControllerError& error) {
    return error.Description();
  }
  return {};
}

TEST(DeviceEntry, OfADeviceThatHasGoneRaisesItsNumber) {
  SimulatedLibrary crowd(benches::Named("Crowd"));
  const DeviceEntry entry = NewRoot(crowd).DeviceList().Item(3);
  entry.Connect();
  crowd.bench().instruments.resize(2);
  EXPECT_EQ(TextOf([&] { entry.Name(); }), "No device 3.");
  EXPECT_EQ(TextOf([&] { entry.Connect(); }), "No device 3.");
  EXPECT_EQ(TextOf([&] { entry.Disconnect(); }), "No device 3.");
}

TEST(Microscope, TellsAPlaceThatItsTurretHasLost) {
  SimulatedRig rig("Harbour");
  auto places = rig.root.NosepieceDevice().Positions().Enumerate();
  auto last = places.Next();
  for (int address = 2; address <= 6; ++address) last = places.Next();
  EXPECT_EQ(last->Code(), 18);
  rig.instrument().nosepiece.pop_back();
  EXPECT_EQ(TextOf([&] { last->Code(); }), "The turret has lost this address.");
}

TEST(Microscope, NamesTheAccessoryThatIsNotFitted) {
  SimulatedRig rig("Harbour");
  rig.instrument().Accessory(accessory::kNosepiece).state = 0;
  EXPECT_EQ(TextOf([&] { rig.root.NosepieceDevice().PutPosition(2); }),
            "Accessory 9 is not fitted.");
}

struct MemberRow {
  const char* name;
  void (*call)(const Microscope&);
};

constexpr MemberRow kRootMembers[] = {
    {"AccessoryDatabase", [](const Microscope& root) { root.AccessoryDatabase(); }},
    {"NosepieceDevice", [](const Microscope& root) { root.NosepieceDevice(); }},
    {"ZDriveDevice", [](const Microscope& root) { root.ZDriveDevice(); }},
    {"XYDriveDevice", [](const Microscope& root) { root.XYDriveDevice(); }},
    {"ControllerSettings", [](const Microscope& root) { root.ControllerSettings(); }},
    {"ControllerPresent", [](const Microscope& root) { root.ControllerPresent(1); }},
    {"ControllerVersion", [](const Microscope& root) { root.ControllerVersion(1); }},
    {"SystemName", [](const Microscope& root) { root.PutSystemName("x"); }},
    {"BuzzerOn", [](const Microscope& root) { root.BuzzerOn(1); }},
    {"SwitchEnabled", [](const Microscope& root) { root.SwitchEnabled(0); }},
    {"RemoteLED", [](const Microscope& root) { root.RemoteLED(); }},
    {"QueryCommand", [](const Microscope& root) { root.QueryCommand("rONR1"); }},
};

TEST(Microscope, AnswersNothingButTheListWithoutAConnectedDevice) {
  SimulatedLibrary library(benches::Named("Quay"));
  for (const MemberRow& row : kRootMembers) {
    const Microscope root = NewRoot(library);
    EXPECT_THROW(row.call(root), ControllerError) << row.name << " without a device";
    root.PutCurrentDevice(root.DeviceList().Item(0));
    EXPECT_THROW(row.call(root), ControllerError) << row.name << " not connected";
    root.DeviceList().Item(0).Connect();
    EXPECT_NO_THROW(row.call(root)) << row.name;
    root.DeviceList().Item(0).Disconnect();
    EXPECT_THROW(row.call(root), ControllerError) << row.name << " disconnected";
  }
}

TEST(Microscope, TakesOnlyEntriesOfItsOwnLibraryAsCurrentDevice) {
  SimulatedLibrary library(benches::Named("Quay"));
  SimulatedLibrary other(benches::Named("Quay"));
  const Microscope root = NewRoot(library);
  EXPECT_THROW(root.PutCurrentDevice(NewRoot(other).DeviceList().Item(0)), ControllerError);
  EXPECT_THROW(root.Object()->Put("CurrentDevice", root.DeviceList().Object()), ControllerError);
  EXPECT_THROW(root.Object()->Put("CurrentDevice", 0), ControllerError);
}

}  // namespace
}  // namespace mortane::controller::test
