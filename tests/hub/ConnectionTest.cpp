// Counting, naming, connecting and disconnecting devices, and firmware versions.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "common/Numbers.h"
#include "condensers/clsCondenser.h"
#include "controller/ControllerError.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/clsFilter.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"

namespace mortane::test {
namespace {

TEST(DeviceCount, CountsTheSimulatorToo) {
  EXPECT_EQ(Rig("Quay").k70.DeviceCount(), 1);
  EXPECT_EQ(Rig("Harbour").k70.DeviceCount(), 2);
  EXPECT_EQ(Rig("Crowd").k70.DeviceCount(), 5);
}

TEST(DeviceCount, AFailureIsShownAndGivesZero) {
  Rig rig("Harbour");
  rig.faults.Add({"DeviceList.Count"});
  rig.prompts.ExpectBox("*** DeviceCount Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_EQ(rig.k70.DeviceCount(), 0);
}

struct NameCase {
  std::size_t entries;
  std::int32_t index;
  const char* name;
};

class DeviceNames : public testing::TestWithParam<NameCase> {};

TEST_P(DeviceNames, ComeFromTheEntryThatTheIndexMeans) {
  Bench bench = List({"Quay", "Harbour", "Lantern"});
  bench.instruments.resize(GetParam().entries);
  const std::array names{"Zero", "One", "Two"};
  for (std::size_t i = 0; i < bench.instruments.size(); ++i)
    bench.instruments[i].name = names.at(i);
  Rig rig(bench);
  EXPECT_EQ(rig.k70.DeviceName(GetParam().index), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Table, DeviceNames,
                         testing::Values(NameCase{1, 1, "Zero"}, NameCase{1, 0, "Zero"},
                                         NameCase{1, 2, "Zero"}, NameCase{1, -1, "Zero"},
                                         NameCase{3, 0, "Zero"}, NameCase{3, 1, "One"},
                                         NameCase{3, 2, "Two"}, NameCase{3, 4, "Zero"},
                                         NameCase{3, -1, "One"}, NameCase{3, -5, "One"}));

TEST(DeviceName, AnIndexOneTooManyFailsWithABox) {
  Rig rig(List({"Quay", "Harbour", "Lantern"}));
  rig.prompts.AcceptAnyBox();
  EXPECT_EQ(rig.k70.DeviceName(3), "");
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes()[0].text.starts_with("*** DeviceName Error!!("));
}

TEST(DeviceName, AFailureIsShownWithItsNumber) {
  Rig rig("Harbour");
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.ExpectBox("*** DeviceName Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_EQ(rig.k70.DeviceName(1), "");
}

TEST(Connect, OneEntryMeansTheSimulatorWhateverWasAsked) {
  for (const std::int32_t asked : {-1, 0, 1, 7}) {
    Rig rig("Quay");
    EXPECT_TRUE(rig.k70.Connect(asked));
    EXPECT_EQ(rig.k70.lConnectDevice, 0);
  }
}

TEST(Connect, ANegativeNumberMeansDeviceOne) {
  Rig rig("Harbour");
  EXPECT_TRUE(rig.k70.Connect(-1));
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
}

TEST(Connect, ANumberBeyondTheListGivesFalseWithoutABox) {
  for (const std::int32_t asked : {2, 7, 2147483647}) {
    Rig rig("Harbour");
    EXPECT_FALSE(rig.k70.Connect(asked)) << asked;
    EXPECT_EQ(rig.k70.lConnectDevice, -1) << asked;
  }
}

TEST(Connect, ANumberOfTheListMeansThatEntryOfSeveral) {
  for (const std::int32_t asked : {0, 1, 2}) {
    Rig rig(List({"Quay", "Harbour", "Lantern"}));
    EXPECT_TRUE(rig.k70.Connect(asked));
    EXPECT_EQ(rig.k70.lConnectDevice, asked);
    const std::vector<std::string> lines = rig.journal.Lines();
    const std::string connects = "DeviceList.Item(" + std::to_string(asked) + ").Connect()";
    EXPECT_EQ(std::count(lines.begin(), lines.end(), connects), 1) << asked;
  }
}

TEST(Connect, ChoosesTheDeviceThenConnectsThenNamesIt) {
  Rig rig("Harbour");
  rig.instrument().name = "Lab 7";
  EXPECT_TRUE(rig.k70.Connect(1));
  const std::vector<std::string> lines = rig.journal.Lines();
  ASSERT_GT(lines.size(), 5U);
  EXPECT_EQ(lines[0], "DeviceList.Count -> 2");
  EXPECT_TRUE(lines[1].starts_with("CurrentDevice = ")) << lines[1];
  EXPECT_EQ(lines[2], "DeviceList.Item(1).Connect()");
  EXPECT_EQ(lines[3], "DeviceList.Count -> 2");
  EXPECT_EQ(lines[4], "DeviceList.Item(1).Name -> \"Lab 7\"");
  EXPECT_EQ(lines[5], "ControllerPresent(1) -> 1");
  EXPECT_EQ(rig.k70.SystemName, "Lab 7");
}

TEST(Connect, TwoEntriesKeepTheRootAndThreeGetAFreshOne) {
  Rig two("Harbour");
  const int rootsBefore = two.simulated.CreatedRoots();
  ASSERT_TRUE(two.k70.Connect(1));
  EXPECT_EQ(two.simulated.CreatedRoots(), rootsBefore);

  Rig three(List({"Quay", "Harbour", "Lantern"}));
  const int created = three.simulated.CreatedRoots();
  const int released = three.simulated.ReleasedRoots();
  ASSERT_TRUE(three.k70.Connect(1));
  EXPECT_EQ(three.simulated.CreatedRoots(), created + 1);
  EXPECT_EQ(three.simulated.ReleasedRoots(), released + 1);
}

TEST(Connect, ADeviceThatDoesNotAnswerGivesFalseWithoutABox) {
  Rig rig("Harbour");
  rig.faults.Add({"DeviceList.Item(1).Connect"});
  EXPECT_FALSE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
}

TEST(Connect, EveryCallUpToTheConnectionThatFailsGivesFalse) {
  for (const char* call : {"DeviceList", "DeviceList.Count", "DeviceList.Item", "CurrentDevice"}) {
    Rig rig("Harbour");
    rig.faults.Add({call});
    EXPECT_FALSE(rig.k70.Connect(1)) << call;
    EXPECT_EQ(rig.k70.lConnectDevice, -1) << call;
  }
}

TEST(Connect, ANameThatFailsIsShownAndTheConnectionStands) {
  Rig rig("Harbour");
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.ExpectBox("*** DeviceName Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_TRUE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
  EXPECT_EQ(rig.k70.SystemName, "");
  EXPECT_EQ(rig.k70.IsMounted(accessory::kNosepiece), 2);
}

TEST(Connect, ATurretCountThatFailsAnswersTrueWithNothingConnected) {
  for (const char* call : {"NosepieceDevice.Positions.Count", "FilterCubeDevice.Positions.Count",
                           "CondenserDevice.Positions.Count"}) {
    Rig rig("Harbour");
    rig.faults.Add({call});
    EXPECT_TRUE(rig.k70.Connect(1)) << call;
    EXPECT_EQ(rig.k70.lConnectDevice, -1) << call;
  }
}

// Nosepiece, both drives, filter cubes, condenser.
std::vector<std::int32_t> Counts(const clsK70& k70) {
  return {k70.curNosepiece.Count, k70.CXYDrive.NoseCount, k70.CZDrive.NoseCount,
          k70.curFilter.Count, k70.curCondenser.Count};
}

TEST(Connect, ATurretCountThatFailsLeavesThoseBehindItAsTheyWere) {
  struct Row {
    const char* device;
    std::vector<std::int32_t> counts;
  };
  for (const Row& row :
       {Row{"NosepieceDevice", {6, 6, 6, 6, 7}}, Row{"FilterCubeDevice", {5, 5, 5, 6, 7}},
        Row{"CondenserDevice", {5, 5, 5, 4, 7}}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().nosepiece.resize(5);
    rig.instrument().filterCubes.resize(4);
    rig.instrument().condensers.resize(3);
    rig.faults.Add({std::string(row.device) + ".Positions.Count"});
    EXPECT_TRUE(rig.k70.Connect(1));
    EXPECT_EQ(rig.k70.lConnectDevice, -1);
    EXPECT_EQ(Counts(rig.k70), row.counts) << row.device;
    for (std::int32_t i = 1; i <= 14; ++i) EXPECT_EQ(rig.k70.IsMounted(i), 2) << i;
  }
}

TEST(Connect, ADeviceThatDoesNotAnswerLeavesWhatIsKnownOfTheOneBefore) {
  Rig rig(List({"Quay", "Pair", "Deck"}));
  ASSERT_TRUE(rig.k70.Connect(1));
  rig.k70.Disconnect();
  rig.simulated.bench().instruments[2].available = 0;
  EXPECT_FALSE(rig.k70.Connect(2));
  EXPECT_EQ(rig.k70.SystemName, "Pair");
  EXPECT_EQ(rig.k70.curType, 3);
  EXPECT_TRUE(rig.k70.Controller(1));
  EXPECT_EQ(rig.k70.IsMounted(accessory::kZFocusDrive), kSensorOnly);
  EXPECT_EQ(Counts(rig.k70), (std::vector<std::int32_t>{7, 7, 7, 7, 5}));
}

TEST(Connect, AnotherConnectionForgetsTheOneBefore) {
  Rig rig(List({"Quay", "Pair", "Deck"}));
  ASSERT_TRUE(rig.k70.Connect(1));
  ASSERT_TRUE(rig.k70.Connect(2));
  EXPECT_EQ(rig.k70.lConnectDevice, 2);
  EXPECT_EQ(rig.k70.SystemName, "Deck");
  EXPECT_EQ(rig.k70.curType, 5);
  EXPECT_FALSE(rig.k70.Controller(1));
  EXPECT_EQ(rig.k70.IsMounted(accessory::kZFocusDrive), kNotMounted);
  EXPECT_EQ(Counts(rig.k70), (std::vector<std::int32_t>{6, 6, 6, 6, 0}));
}

TEST(Connect, ANewRootThatCannotBeMadeGivesFalseAndLeavesNone) {
  Rig rig(List({"Quay", "Harbour", "Lantern"}));
  rig.faults.Add({"Create(Microscope)"});
  EXPECT_FALSE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
  EXPECT_TRUE(rig.k70.Mic.IsEmpty());
  EXPECT_EQ(rig.simulated.ReleasedRoots(), rig.simulated.CreatedRoots());
}

// The outcome depends on the step that makes the call.
TEST(Connect, EachControllerCallThatFailsHasTheOutcomeOfItsStep) {
  // The list and its count; the list, an item and CurrentDevice; the list, an item and Connect.
  constexpr std::size_t kCallsToConnect = 8;
  // The list, its count, an item and Name.
  constexpr std::size_t kCallsToName = kCallsToConnect + 4;
  // For each turret the device, its positions and their count.
  constexpr std::size_t kCallsOfCounts = 9;
  Rig whole("Harbour");
  ASSERT_TRUE(whole.k70.Connect(1));
  const std::size_t calls = whole.journal.CallCount();
  for (std::size_t k = 1; k <= calls; ++k) {
    Rig rig("Harbour");
    rig.prompts.AcceptAnyBox();
    rig.faults.FailCall(k);
    const bool connected = rig.k70.Connect(1);
    EXPECT_EQ(rig.faults.Hits(), 1U) << k;
    EXPECT_EQ(connected, k > kCallsToConnect) << k;
    const bool lost = k <= kCallsToConnect || k > calls - kCallsOfCounts;
    EXPECT_EQ(rig.k70.lConnectDevice, lost ? -1 : 1) << k;
    const std::string operation = k <= kCallsToName ? "DeviceName" : "CheckAccessories";
    const std::string box = "box 0: *** " + operation + " Error!!(80004005)";
    EXPECT_EQ(rig.prompts.Log(), lost ? std::vector<std::string>{} : std::vector{box}) << k;
  }
}

TEST(Connect, ATurretWithoutAddressesCountsAsNotMounted) {
  Rig rig("Hollow");
  rig.Connect();
  EXPECT_EQ(rig.k70.IsMounted(accessory::kNosepiece), 0);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kFilterCube), 0);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kCondenser), 0);
}

TEST(Connect, TheCountOfATurretThatIsNotFittedIsNotAsked) {
  Rig rig("Shell");
  EXPECT_TRUE(rig.k70.Connect(1));
  ASSERT_FALSE(rig.journal.Lines().empty());
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Positions"), std::string::npos) << line;
  }
}

TEST(Disconnect, ReleasesTheNameAndTheDevice) {
  Rig rig("Harbour");
  clsMutex other;
  ASSERT_TRUE(rig.k70.CreateConnectionName("921"));
  rig.Connect();
  rig.k70.Disconnect();
  EXPECT_EQ(rig.journal.Lines(), (std::vector<std::string>{"DeviceList.Item(1).Disconnect()"}));
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
  EXPECT_TRUE(other.Create("MortaneConnection-393231"));
}

TEST(Disconnect, AsksNothingWithoutAConnection) {
  Rig rig("Harbour");
  rig.k70.Disconnect();
  EXPECT_TRUE(rig.journal.Lines().empty());
}

TEST(Disconnect, AFailureIsShownAndKeepsTheIndexButNotTheName) {
  Rig rig("Harbour");
  clsMutex other;
  ASSERT_TRUE(rig.k70.CreateConnectionName("922"));
  rig.Connect();
  rig.faults.Add({"DeviceList.Item.Disconnect"});
  rig.prompts.ExpectBox("*** Disconnect Error!!(80004005)", box::kOk, Answer::Ok);
  rig.k70.Disconnect();
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
  EXPECT_TRUE(other.Create("MortaneConnection-393232"));
}

TEST(Disconnect, CanBeTriedAgainAfterAFailureAndDoesNothingASecondTime) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"DeviceList.Item.Disconnect", 1});
  rig.prompts.ExpectBox("*** Disconnect Error!!(80004005)", box::kOk);
  rig.k70.Disconnect();
  rig.journal.Clear();
  rig.k70.Disconnect();
  rig.k70.Disconnect();
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
  EXPECT_EQ(rig.journal.Lines(), std::vector<std::string>{"DeviceList.Item(1).Disconnect()"});
}

struct VersionCase {
  const char* text;
  double version;
};

class FirmwareVersions : public testing::TestWithParam<VersionCase> {};

TEST_P(FirmwareVersions, AreTheNumberAfterTheFirstV) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().Unit(1).version = GetParam().text;
  Rig rig(bench);
  rig.Connect();
  SetSystemNumberFormat({",", "."});
  EXPECT_DOUBLE_EQ(rig.k70.ReadMicVer(0), GetParam().version) << GetParam().text;
  SetSystemNumberFormat(PointFormat());
}

INSTANTIATE_TEST_SUITE_P(Texts, FirmwareVersions,
                         testing::Values(VersionCase{"V1.20", 1.2}, VersionCase{"V1.2", 1.2},
                                         VersionCase{"V1.21", 1.21}, VersionCase{"V1.3", 1.3},
                                         VersionCase{"V1.30", 1.3}, VersionCase{"V1.30b", 1.3},
                                         VersionCase{"V0.9", 0.9}, VersionCase{"V1.0", 1},
                                         VersionCase{"", 0}, VersionCase{"VDEMO", 0},
                                         VersionCase{"1.4", 1.4}, VersionCase{"VER V1.3", 0},
                                         VersionCase{"v1.3", 0}, VersionCase{"body V 1.31", 1.31},
                                         VersionCase{"vDEMO", -2}));

TEST(FirmwareVersion, OfAnAbsentUnitIsMinusOneWithoutAskingTheController) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.k70.ReadMicVer(1), -1);
  EXPECT_EQ(rig.k70.ReadMicVer(-1), -1);
  EXPECT_EQ(rig.k70.ReadMicVer(7), -1);
  EXPECT_TRUE(rig.journal.Lines().empty());
}

TEST(FirmwareVersion, AsksUnitsByTheirNumberPlusOne) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_DOUBLE_EQ(rig.k70.ReadMicVer(4), 1.3);
  EXPECT_EQ(rig.journal.Lines(), (std::vector<std::string>{"ControllerVersion(5) -> \"V1.30\""}));
}

TEST(FirmwareVersion, AFailureGoesToTheCaller) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"ControllerVersion(1)"});
  EXPECT_THROW(rig.k70.ReadMicVer(0), controller::ControllerError);
}

}  // namespace
}  // namespace mortane::test
