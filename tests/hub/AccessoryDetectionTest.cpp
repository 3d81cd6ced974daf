// What Connect finds out about controllers and accessories, and the report of it.
#include <gtest/gtest.h>

#include <array>

#include "condensers/clsCondenser.h"
#include "filters/clsFilter.h"
#include "hub/AccessoryTable.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"

namespace mortane::test {
namespace {

TEST(AccessoryDetection, AsksControllersThenAccessoriesInTheirOrder) {
  Rig rig("Watch");
  ASSERT_TRUE(rig.k70.Connect(1));
  std::vector<std::string> asked;
  for (const std::string& line : rig.journal.Lines()) {
    if (!line.starts_with("DeviceList") && !line.starts_with("CurrentDevice")) {
      asked.push_back(line);
    }
  }
  const std::vector<std::string> expected{
      "ControllerPresent(1) -> 1",
      "ControllerPresent(2) -> 0",
      "ControllerPresent(3) -> 0",
      "ControllerPresent(4) -> 0",
      "ControllerPresent(5) -> 0",
      "ControllerPresent(6) -> 0",
      "ControllerPresent(7) -> 0",
      "AnalyzerDevice.AccessoryState.State -> 1",
      "AnalyzerDevice.Position.IsReadOnly -> true",
      "ApertureStopDevice.AccessoryState.State -> 1",
      "ApertureStopDevice.Position.IsReadOnly -> true",
      "CondenserDevice.AccessoryState.State -> 1",
      "CondenserDevice.Position.IsReadOnly -> true",
      "EpiFieldStopDevice.AccessoryState.State -> 1",
      "EpiFieldStopDevice.Position.IsReadOnly -> true",
      "ShutterDevice.AccessoryState.State -> 1",
      "ShutterDevice.Position.IsReadOnly -> true",
      "FilterCubeDevice.AccessoryState.State -> 1",
      "FilterCubeDevice.Position.IsReadOnly -> true",
      "FieldStopDevice.AccessoryState.State -> 1",
      "FieldStopDevice.Position.IsReadOnly -> true",
      "LampDevice.AccessoryState.State -> 1",
      "LampDevice.Voltage.IsReadOnly -> true",
      "LightPathDevice.AccessoryState.State -> 1",
      "LightPathDevice.Path.IsReadOnly -> true",
      "NDFilterDevice.AccessoryState.State -> 1",
      "NDFilterDevice.Position.IsReadOnly -> true",
      "NosepieceDevice.AccessoryState.State -> 1",
      "NosepieceDevice.Position.IsReadOnly -> true",
      "ZoomDevice.AccessoryState.State -> 1",
      "ZoomDevice.Magnification.IsReadOnly -> true",
      "ZDriveDevice.AccessoryState.State -> 1",
      "ZDriveDevice.Position.IsReadOnly -> true",
      "XYDriveDevice.AccessoryState.State -> 1",
      "XYDriveDevice.PositionX.IsReadOnly -> true",
      "NosepieceDevice.Positions.Count -> 5",
      "FilterCubeDevice.Positions.Count -> 5",
      "CondenserDevice.Positions.Count -> 5",
  };
  EXPECT_EQ(asked, expected);
}

struct MountedCase {
  const char* bench;
  std::array<int, 14> mounted;
};

class MountedValues : public testing::TestWithParam<MountedCase> {};

TEST_P(MountedValues, AreThoseOfTheBench) {
  Rig rig(GetParam().bench);
  rig.Connect();
  for (std::int32_t i = 1; i <= 14; ++i) {
    EXPECT_EQ(rig.k70.IsMounted(i), GetParam().mounted[static_cast<std::size_t>(i - 1)])
        << "accessory " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Benches, MountedValues,
    testing::Values(MountedCase{"Quay", {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}},
                    MountedCase{"Harbour", {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}},
                    MountedCase{"Lantern", {2, 2, 2, 2, 0, 2, 2, 2, 2, 1, 1, 2, 0, 1}},
                    MountedCase{"Watch", {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}},
                    MountedCase{"Hollow", {2, 2, 2, 2, 0, 0, 2, 2, 0, 2, 2, 2, 2, 0}},
                    MountedCase{"Shell", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}),
    [](const auto& test) { return std::string(test.param.bench); });

struct TypeCase {
  std::array<int, 7> units;
  int type;
};

class MicroscopeTypes : public testing::TestWithParam<TypeCase> {};

TEST_P(MicroscopeTypes, FollowTheControllersThatAnswer) {
  Bench bench = benches::Named("Harbour");
  for (std::size_t i = 0; i < 7; ++i) {
    bench.instruments.back().units[i].present = GetParam().units[i];
  }
  Rig rig(bench);
  rig.k70.curType = 9;
  rig.Connect();
  EXPECT_EQ(rig.k70.curType, GetParam().type);
  for (std::int32_t i = 0; i < 7; ++i) {
    EXPECT_EQ(rig.k70.Controller(i), GetParam().units[static_cast<std::size_t>(i)] == 1) << i;
  }
}

// A type of 9 stands for the type of the device before, which stays.
INSTANTIATE_TEST_SUITE_P(
    Units, MicroscopeTypes,
    testing::Values(TypeCase{{1, 0, 0, 0, 0, 0, 0}, 0}, TypeCase{{0, 1, 0, 0, 0, 0, 0}, 1},
                    TypeCase{{0, 0, 1, 0, 0, 0, 0}, 2}, TypeCase{{1, 1, 0, 0, 0, 0, 0}, 3},
                    TypeCase{{1, 0, 1, 0, 0, 0, 0}, 4}, TypeCase{{0, 0, 0, 0, 0, 1, 0}, 5},
                    TypeCase{{0, 0, 0, 0, 0, 1, 1}, 6}, TypeCase{{1, 0, 0, 1, 1, 1, 1}, 0},
                    TypeCase{{0, 0, 0, 1, 1, 1, 0}, 5}, TypeCase{{0, 0, 0, 0, 0, 0, 0}, 9},
                    TypeCase{{0, 0, 0, 0, 0, 0, 1}, 9}, TypeCase{{1, 1, 1, 0, 0, 0, 0}, 9},
                    TypeCase{{0, 1, 1, 0, 0, 0, 0}, 9}, TypeCase{{0, 0, 0, 1, 1, 0, 0}, 9},
                    TypeCase{{2, 0, 0, 0, 0, 1, 0}, 5}));

TEST(AccessoryDetection, OnlyAnAnswerOfOneCountsAsFitted) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().Accessory(accessory::kAnalyzer).state = 2;
  Rig rig(bench);
  rig.Connect();
  EXPECT_EQ(rig.k70.IsMounted(accessory::kAnalyzer), 0);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kEpiShutter), 2);
}

TEST(AccessoryDetection, AControllerUnitThatFailsStopsIt) {
  Rig rig("Harbour");
  rig.k70.curType = 5;
  rig.faults.Add({"ControllerPresent(3)"});
  rig.prompts.ExpectBox("*** CheckAccessories Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_TRUE(rig.k70.Connect(1));
  EXPECT_TRUE(rig.k70.Controller(0));
  EXPECT_FALSE(rig.k70.Controller(4));
  EXPECT_EQ(rig.k70.curType, 5);
  for (std::int32_t i = 1; i <= 14; ++i) EXPECT_EQ(rig.k70.IsMounted(i), 0);
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
}

TEST(AccessoryDetection, AControllerUnitThatFailsLeavesNothingOfTheConnectionBefore) {
  Rig rig("Harbour");
  ASSERT_TRUE(rig.k70.Connect(1));
  ASSERT_TRUE(rig.k70.Controller(0));
  rig.faults.Add({"ControllerPresent(1)"});
  rig.prompts.ExpectBox("*** CheckAccessories Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_TRUE(rig.k70.Connect(1));
  for (std::int32_t unit = 0; unit < 7; ++unit) EXPECT_FALSE(rig.k70.Controller(unit)) << unit;
  for (std::int32_t i = 1; i <= 14; ++i) EXPECT_EQ(rig.k70.IsMounted(i), 0) << i;
}

TEST(AccessoryDetection, AnAccessoryThatFailsKeepsWhatCameBefore) {
  Rig rig("Harbour");
  rig.faults.Add({"FilterCubeDevice.Position"});
  rig.prompts.ExpectBox("*** CheckAccessories Error!!(80004005)", box::kOk, Answer::Ok);
  EXPECT_TRUE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.IsMounted(accessory::kAnalyzer), 2);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kEpiShutter), 2);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kFilterCube), 0);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kDiaFieldStop), 0);
  EXPECT_EQ(rig.k70.IsMounted(accessory::kNosepiece), 0);
}

TEST(AccessoryDetection, AfterAFailureTheTurretsDetectedSoFarAreCounted) {
  Rig rig("Harbour");
  rig.faults.Add({"FilterCubeDevice.Position.IsReadOnly"});
  rig.prompts.ExpectBox("*** CheckAccessories Error!!(80004005)", box::kOk);
  EXPECT_TRUE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.curCondenser.Count, 7);
  EXPECT_EQ(rig.k70.curFilter.Count, 0);
  EXPECT_EQ(rig.k70.curNosepiece.Count, 0);
  EXPECT_EQ(rig.journal.Lines().back(), "CondenserDevice.Positions.Count -> 7");
}

TEST(AccessoryDetection, EachConnectionStartsAnew) {
  Rig rig(List({"Quay", "Pair", "Shell"}));
  ASSERT_TRUE(rig.k70.Connect(1));
  EXPECT_EQ(rig.k70.curType, 3);
  rig.k70.Disconnect();
  EXPECT_EQ(rig.k70.IsMounted(accessory::kFilterCube), 2);  // stays until the next connection
  ASSERT_TRUE(rig.k70.Connect(2));
  EXPECT_EQ(rig.k70.IsMounted(accessory::kFilterCube), 0);
  EXPECT_FALSE(rig.k70.Controller(0));
  EXPECT_EQ(rig.k70.curType, 3);
}

TEST(AccessoryReport, ListsControlledAccessoriesByTheirControlLabels) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.k70.GetAccessories(),
            "Mounted Accessories\r\n"
            "\tAnalyzer Control\r\n"
            "\tDIA Aperture Stop Control\r\n"
            "\tCondenser Control\r\n"
            "\tEpi Field Stop Control\r\n"
            "\tEpi Shutter Control\r\n"
            "\tFilter Cube Control\r\n"
            "\tDIA Field Stop Control\r\n"
            "\tDIA Lamp Control\r\n"
            "\tLightPath Control\r\n"
            "\tND Filter Control\r\n"
            "\tNosepiece Control\r\n"
            "\tOptical Zoom Control\r\n"
            "\tXY Stage Control\r\n"
            "\tZ Focus Drive Control\r\n"
            "\r\n"
            "Not Mounted Accessories\r\n");
}

TEST(AccessoryReport, ListsAbsentAccessoriesUnderTheirSensorLabels) {
  Rig rig("Shell");
  rig.Connect();
  EXPECT_EQ(rig.k70.GetAccessories(),
            "Mounted Accessories\r\n"
            "\r\n"
            "Not Mounted Accessories\r\n"
            "\tAnalyzer Sensor\r\n"
            "\tDIA Aperture Stop Sensor\r\n"
            "\tCondenser Sensor\r\n"
            "\tEpi Field Stop Sensor\r\n"
            "\tEpi Shutter Sensor\r\n"
            "\tFilter Cube Sensor\r\n"
            "\tDIA Field Stop Sensor\r\n"
            "\tDIA Lamp Sensor\r\n"
            "\tLightPath Sensor\r\n"
            "\tND Filter Sensor\r\n"
            "\tNosepiece Sensor\r\n"
            "\tOptical Zoom Sensor\r\n"
            "\tXY Stage Sensor\r\n"
            "\tZ Focus Drive Sensor\r\n");
}

TEST(AccessoryReport, ANosepieceThatOnlyReportsIsMountedAsASensor) {
  Rig rig("Outpost");
  rig.Connect();
  EXPECT_EQ(rig.k70.IsMounted(accessory::kNosepiece), 1);
  const std::string report = rig.k70.GetAccessories();
  const std::size_t sensor = report.find("\tNosepiece Sensor\r\n");
  ASSERT_NE(sensor, std::string::npos);
  EXPECT_LT(sensor, report.find("Not Mounted Accessories"));
}

TEST(AccessoryReport, ItsOrderIsNeitherThatOfNumbersNorQuiteThatOfDetection) {
  std::vector<std::int32_t> numbers;
  for (const AccessoryRow* row : AccessoriesInReportOrder()) numbers.push_back(row->number);
  EXPECT_EQ(numbers, (std::vector<std::int32_t>{8, 3, 5, 13, 7, 6, 2, 4, 11, 1, 9, 10, 14, 12}));
}

}  // namespace
}  // namespace mortane::test
