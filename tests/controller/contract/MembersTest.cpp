// Every member of the library on every back end: as the program uses it, and failing.
#include "controller/Faults.h"
#include "controller/FiberIlluminator.h"
#include "controller/Journal.h"
#include "controller/SimulatedRig.h"
#include "controller/contract/BackEnd.h"
#include "controller/contract/MemberRows.h"

namespace mortane::controller::test {
namespace {

class Members : public OnEachBackEnd {};
INSTANTIATE_TEST_SUITE_P(OnEachBackEnd, Members, testing::ValuesIn(BackEndKinds()), KindName);

using Lines = std::vector<std::string>;

// The line of the same use when it fails.
std::string FailureLine(const std::string& line) {
  return line.substr(0, line.find(" -> ")) + " ! Simulator:80004005";
}

// Each use of a table in its order, on one connected root, then again on objects whose device has
// been disconnected.
void ExpectRows(BackEnd& backEnd, const std::vector<MemberRow>& rows) {
  Journal journal;
  JournalLibrary library(backEnd.Library(), journal);
  const Microscope root = ConnectedRoot(library);
  const DeviceEntry device = root.DeviceList().Item(0);
  for (const MemberRow& row : rows) {
    const auto use = row.take(root);
    journal.Clear();
    EXPECT_EQ(FailureOf(use), "") << row.line;
    EXPECT_EQ(journal.Lines(), Lines{row.line});
  }
  for (const MemberRow& row : rows) {
    const auto use = row.take(root);
    device.Disconnect();
    journal.Clear();
    EXPECT_EQ(FailureOf(use), "Simulator:80004005: Device 0 is not connected.") << row.line;
    EXPECT_EQ(journal.Lines(), Lines{FailureLine(row.line)});
    device.Connect();
  }
}

TEST_P(Members, OfTheRootAndItsDeviceEntry) {
  const auto backEnd = Make();
  ExpectRows(*backEnd, RootRows());
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

TEST_P(Members, OfTheAccessoryDevices) {
  const auto backEnd = Make();
  ExpectRows(*backEnd, DeviceRows());
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

TEST_P(Members, OfTheDrives) {
  const auto backEnd = Make();
  ExpectRows(*backEnd, DriveRows());
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

TEST_P(Members, OfTheControllerSettings) {
  const auto backEnd = Make();
  ExpectRows(*backEnd, SettingsRows());
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

TEST_P(Members, OfTheDatabase) {
  const auto backEnd = Make();
  ExpectRows(*backEnd, DatabaseRows());
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

TEST_P(Members, ThatGiveAnAreaFailWithoutADeviceAndWithoutAConnection) {
  const auto backEnd = Make();
  const Microscope root = NewRoot(backEnd->Library());
  const auto read = [&](const std::string& member) {
    return FailureOf([&] { root.Accessory(member); });
  };
  for (const std::string& member : AreaMembers()) {
    EXPECT_EQ(read(member), "Simulator:80004005: No current device.") << member;
  }
  root.PutCurrentDevice(root.DeviceList().Item(0));
  for (const std::string& member : AreaMembers()) {
    EXPECT_EQ(read(member), "Simulator:80004005: Device 0 is not connected.") << member;
  }
  root.DeviceList().Item(0).Connect();
  for (const std::string& member : AreaMembers()) EXPECT_EQ(read(member), "") << member;
}

TEST_P(Members, OfTheDeviceList) {
  const auto backEnd = Make("Crowd");
  Journal journal;
  JournalLibrary library(backEnd->Library(), journal);
  const Microscope root = NewRoot(library);
  const DeviceList list = root.DeviceList();
  list.Count();
  list.Item(4).Name();
  list.Item(1).IsAvailable();
  list.Item(2).IsAvailable();
  root.PutCurrentDevice(list.Item(1));
  EXPECT_EQ(FailureOf([&] { list.Item(2).Connect(); }),
            "Simulator:80004005: The device does not answer.");
  EXPECT_EQ(FailureOf([&] { list.Item(5); }), "Simulator:80004005: No device 5.");
  EXPECT_EQ(FailureOf([&] { list.Item(-1); }), "Simulator:80004005: No device -1.");
  list.Item(1).Connect();
  list.Item(1).Disconnect();
  EXPECT_EQ(
      journal.Lines(),
      (Lines{"DeviceList.Count -> 5", "DeviceList.Item(4).Name -> \"  Gamma  \"",
             "DeviceList.Item(1).IsAvailable -> 1", "DeviceList.Item(2).IsAvailable -> 0",
             "CurrentDevice = DeviceList.Item(1)",
             "DeviceList.Item(2).Connect() ! Simulator:80004005",
             "DeviceList.Item(5) ! Simulator:80004005", "DeviceList.Item(-1) ! Simulator:80004005",
             "DeviceList.Item(1).Connect()", "DeviceList.Item(1).Disconnect()"}));
}

TEST_P(Members, OfTheFiberIlluminator) {
  const auto backEnd = Make();
  Journal journal;
  JournalLibrary library(backEnd->Library(), journal);
  const FiberServer server(library.Create("FiberServer"));
  const FiberRemote remote(library.Create("FiberRemote"));
  server.IsOpen();
  server.Status();
  remote.SwitchEnable();
  remote.PutSwitchEnable(0);
  remote.LED();
  remote.PutLED(1);
  remote.LED();
  server.Close();
  EXPECT_EQ(FailureOf([&] { remote.LED(); }),
            "Simulator:80004005: The fiber server has no device.");
  EXPECT_EQ(FailureOf([&] { remote.PutSwitchEnable(1); }),
            "Simulator:80004005: The fiber server has no device.");
  server.IsOpen();
  server.Open(1000);
  server.IsOpen();
  EXPECT_EQ(journal.Lines(), (Lines{"IsOpen -> true", "Status -> 1", "SwitchEnable -> int16(1)",
                                    "SwitchEnable = int16(0)", "LED -> int16(2)", "LED = int16(1)",
                                    "LED -> int16(1)", "Close()", "LED ! Simulator:80004005",
                                    "SwitchEnable = int16(1) ! Simulator:80004005",
                                    "IsOpen -> false", "Open(1000)", "IsOpen -> true"}));
}

TEST_P(Members, FailForWhatTheInstrumentsRefuse) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const AccessoryDatabase database = root.AccessoryDatabase();
  const std::vector<std::pair<std::function<void()>, std::string>> rows{
      {[&] { root.ControllerPresent(8); }, "No controller unit 8."},
      {[&] { root.ControllerVersion(3); }, "The controller unit does not answer."},
      {[&] { root.BuzzerOn(3); }, "No buzzer of code 3."},
      {[&] { root.EnableSwitch(2); }, "Unit 2 has no such switches."},
      {[&] { root.PutSystemName("Sixteen  letters"); },
       "The system name is longer than 15 characters."},
      {[&] { root.SendCommand(""); }, "Unknown command \"\"."},
      {[&] { root.QueryCommand("rONR0"); }, "Unknown command \"rONR0\"."},
      {[&] { root.NosepieceDevice().PutPosition(7); }, "The turret has no address 7."},
      {[&] { root.ControllerSettings().SetInterlock(15, 1); }, "No interlock of 15 by 1."},
      {[&] { root.ControllerSettings().SwitchFunction(0, "0"); }, "Unit 0 has no switch \"0\"."},
      {[&] { database.Nosepieces().Item(0); }, "No item 0 in the list."},
      {[&] { database.Nosepieces().Item(36); }, "No item 36 in the list."},
      {[&] { database.Exciters().Item(1).PutName("x"); }, "Record 1 is fixed."},
      {[&] { database.ObjectiveSeries().Item(7); }, "No item 7 in the list."},
  };
  for (const auto& [use, text] : rows) {
    EXPECT_EQ(FailureOf(use), "Simulator:80004005: " + text);
  }
}

}  // namespace
}  // namespace mortane::controller::test
