// What the typed facade makes of a library's answers, and the two widths of integers.
#include <gtest/gtest.h>

#include <limits>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/FiberIlluminator.h"
#include "controller/Journal.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

constexpr std::int16_t kOne = 1;

// The number of the failure that an expression raises; 0 when it raises none.
template <typename Expression>
std::int32_t ErrorOf(Expression&& expression) {
  try {
    expression();
    return 0;
  } catch (const Failure& failure) {
    return failure.Number();
  }
}

// A state value: an object whose default member is the number.
Value StateOf(const Value& number) {
  SimulatedRig rig("Harbour");
  rig.instrument().Accessory(accessory::kDiaLamp).value = ToDouble(number);
  return rig.root.Accessory("LampDevice").Object()->Get("Voltage");
}

struct NumberRow {
  Value value;
  std::int32_t number;
};

TEST(ToLong, TakesEveryKindThatIsANumber) {
  const std::vector<NumberRow> rows{{std::int16_t{-7}, -7},
                                    {std::int32_t{70000}, 70000},
                                    {2.5, 2},
                                    {3.5, 4},
                                    {-2147483648.0, -2147483647 - 1},
                                    {true, -1},
                                    {false, 0},
                                    {StateOf(9.0), 9}};
  for (const NumberRow& row : rows) EXPECT_EQ(ToLong(row.value), row.number) << row.number;
}

TEST(ToLong, RefusesWhatIsNoNumberOrTooLarge) {
  const std::vector<NumberRow> rows{{Value(), kConversionError},
                                    {std::string("1"), kConversionError},
                                    {ObjectRef(), kConversionError},
                                    {2147483648.0, kOverflowError}};
  for (const NumberRow& row : rows) {
    EXPECT_EQ(ErrorOf([&] { ToLong(row.value); }), row.number);
  }
}

TEST(ToInteger, TakesWhatFitsSixteenBits) {
  EXPECT_EQ(ToInteger(std::int16_t{-5}), -5);
  EXPECT_EQ(ToInteger(std::int32_t{32767}), 32767);
  EXPECT_EQ(ToInteger(std::int32_t{-32768}), -32768);
  EXPECT_EQ(ErrorOf([] { ToInteger(std::int32_t{32768}); }), kOverflowError);
  EXPECT_EQ(ErrorOf([] { ToInteger(std::int32_t{-32769}); }), kOverflowError);
  EXPECT_EQ(ErrorOf([] { ToInteger(std::string("1")); }), kConversionError);
}

TEST(ToDouble, TakesNumbersOnly) {
  EXPECT_EQ(ToDouble(0.25), 0.25);
  EXPECT_EQ(ToDouble(std::int16_t{3}), 3);
  EXPECT_EQ(ToDouble(std::int32_t{-4}), -4);
  EXPECT_EQ(ToDouble(StateOf(1.5)), 1.5);
  EXPECT_EQ(ErrorOf([] { ToDouble(std::string("1")); }), kConversionError);
  EXPECT_EQ(ErrorOf([] { ToDouble(true); }), kConversionError);
}

TEST(ToBoolean, IsTrueForAnyNumberButZero) {
  EXPECT_TRUE(ToBoolean(true));
  EXPECT_TRUE(ToBoolean(std::int16_t{-1}));
  EXPECT_TRUE(ToBoolean(std::int32_t{2}));
  EXPECT_FALSE(ToBoolean(false));
  EXPECT_FALSE(ToBoolean(std::int16_t{0}));
  EXPECT_FALSE(ToBoolean(std::int32_t{0}));
  EXPECT_EQ(ErrorOf([] { ToBoolean(1.0); }), kConversionError);
}

TEST(ToText, TakesTextsOnly) {
  EXPECT_EQ(ToText(std::string("text")), "text");
  EXPECT_EQ(ErrorOf([] { ToText(1); }), kConversionError);
}

TEST(Values, TellTheWidthsOfIntegersApart) {
  EXPECT_NE(Value(kOne), Value(std::int32_t{1}));
  EXPECT_EQ(DescribeValue(kOne), "int16(1)");
  EXPECT_EQ(DescribeValue(std::int16_t{-1}), "int16(-1)");
  EXPECT_EQ(DescribeValue(std::int32_t{1}), "1");
}

TEST(Values, OfSixteenBitsPassAsSuchBothWays) {
  SimulatedLibrary simulated(benches::Named("Quay"));
  Journal journal;
  JournalLibrary library(simulated, journal);
  const Microscope root = ConnectedRoot(library);
  const FiberRemote remote(library.Create("FiberRemote"));
  journal.Clear();
  root.XYDriveDevice().PutHandleMode(1);
  EXPECT_EQ(root.XYDriveDevice().HandleMode(), 1);
  remote.PutSwitchEnable(0);
  EXPECT_EQ(remote.SwitchEnable(), 0);
  remote.PutLED(1);
  EXPECT_EQ(remote.LED(), 1);
  EXPECT_EQ(journal.Lines(), (std::vector<std::string>{
                                 "XYDriveDevice.HandleMode = int16(1)",
                                 "XYDriveDevice.HandleMode -> int16(1)", "SwitchEnable = int16(0)",
                                 "SwitchEnable -> int16(0)", "LED = int16(1)", "LED -> int16(1)"}));
}

TEST(Values, OfAnotherWidthAreTakenByTheSimulatorWhenTheyFit) {
  SimulatedRig rig("Harbour");
  const ObjectRef drive = rig.root.XYDriveDevice().Object();
  drive->Put("HandleMode", std::int32_t{1});
  EXPECT_EQ(rig.instrument().xyDrive.handleMode, 1);
  EXPECT_THROW(drive->Put("HandleMode", std::int32_t{40000}), ControllerError);
  EXPECT_THROW(drive->Put("HandleMode", std::int32_t{-40000}), ControllerError);
  drive->Put("KnobAuto", kOne);
  EXPECT_EQ(rig.instrument().xyDrive.knobAuto, 1);
  EXPECT_THROW(drive->Put("KnobAuto", std::string("1")), ControllerError);
}

}  // namespace
}  // namespace mortane::controller::test
