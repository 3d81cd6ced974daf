// The start path: arguments, the choice of a device, its exclusive use, connecting.
#include "app/ConnectMicroscope.h"

#include <gtest/gtest.h>

#include <deque>

#include "AppRig.h"
#include "common/Failure.h"
#include "support/RefusedMutex.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

constexpr char kNoMicroscope[] =
    "No Microscope\r\nPlease restart this application or your machine.";
constexpr char kUsedAtEnd[] =
    "Other Application has already used this Microscope.\r\nPlease restart this application or "
    "your machine.";
constexpr char kUsed[] = "Other Application has already used this Microscope.";
constexpr char kSimulation[] = "This application runs Simulation mode";
constexpr char kNotAvailable[] = "Not Available Microscope";
constexpr char kConnectError[] =
    "Device Connect Error.\r\nPlease restart this application or your machine.";

// The start path on a bench, with the answers that its dialog is to give.
struct StartRig : Rig {
  using Rig::Rig;

  bool Start(std::vector<std::string> arguments = {}) {
    arguments.insert(arguments.begin(), "mortane");
    return ConnectMicroscope({k70, library, prompts, std::move(arguments), [this] {
                                ++dialogs;
                                if (choices.empty()) {
                                  ADD_FAILURE() << "nobody scripted a choice";
                                  return -1;
                                }
                                const int choice = choices.front();
                                choices.pop_front();
                                return choice;
                              }});
  }
  // Lines of the journal that begin with `opening`.
  int Count(std::string_view opening) const {
    int count = 0;
    for (const std::string& line : journal.Lines()) count += line.starts_with(opening) ? 1 : 0;
    return count;
  }

  std::deque<int> choices;
  int dialogs = 0;
};

// Another process that holds a device.
struct OtherProcess {
  explicit OtherProcess(int device) {
    EXPECT_TRUE(rig.k70.CreateConnectionName(std::to_string(device)));
  }
  Rig rig{"Quay"};
};

TEST(StartPath, StopsWithTheSimulatorAloneAndNoOption) {
  StartRig rig("Quay");
  rig.prompts.ExpectBox(kNoMicroscope, 0);
  EXPECT_FALSE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(StartPath, TheOnlyMicroscopeConnectsWithoutAQuestion) {
  StartRig rig("Harbour");
  EXPECT_TRUE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
  EXPECT_EQ(rig.prompts.PointerBalance(), 0);
  EXPECT_EQ(rig.k70.SystemName, rig.instrument().name);
}

TEST(StartPath, TheHourglassShowsFromConnectToTheEndOfReceive) {
  StartRig rig("Harbour");
  ASSERT_TRUE(rig.Start());
  EXPECT_EQ(rig.prompts.Log().front(), "pointer 11");
  EXPECT_EQ(rig.prompts.Log().back(), "pointer 0");
}

class SimulatorOption : public testing::TestWithParam<const char*> {};

TEST_P(SimulatorOption, ConnectsTheSimulatorThoughAMicroscopeIsThere) {
  StartRig rig("Harbour");
  rig.prompts.ExpectBox(kSimulation, 0);
  EXPECT_TRUE(rig.Start({GetParam()}));
  EXPECT_EQ(rig.k70.lConnectDevice, 0);
  EXPECT_EQ(rig.Count("DeviceList.Item(1).Connect"), 0);
  EXPECT_EQ(rig.Count("DeviceList.Item(1).IsAvailable"), 1) << "for its name alone";
}

INSTANTIATE_TEST_SUITE_P(AnyCase, SimulatorOption, testing::Values("/SIM", "/sim", "/Sim"));

class StrangeArgument : public testing::TestWithParam<const char*> {};

TEST_P(StrangeArgument, IsPassedOverInSilence) {
  StartRig rig(Microscopes({"Lab 2 East"}));
  EXPECT_TRUE(rig.Start({GetParam()}));
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, StrangeArgument,
                         testing::Values("", "SIM", "-SIM", "/SIM ", "/SIMULATION", "lab 2 east",
                                         " Lab 2 East", "Lab 2"));

struct ArgumentCase {
  std::vector<std::string> arguments;
  int device;
};

class NamedDevice : public testing::TestWithParam<ArgumentCase> {};

TEST_P(NamedDevice, IsConnectedWithNoDialog) {
  StartRig rig(Microscopes({"Alpha", "Beta", "Lab 2 East"}));
  EXPECT_TRUE(rig.Start(GetParam().arguments));
  EXPECT_EQ(rig.k70.lConnectDevice, GetParam().device);
  EXPECT_EQ(rig.dialogs, 0);
}

INSTANTIATE_TEST_SUITE_P(
    FirstThatSettles, NamedDevice,
    testing::Values(ArgumentCase{{"Alpha"}, 1}, ArgumentCase{{"Beta"}, 2},
                    ArgumentCase{{"Lab 2 East"}, 3}, ArgumentCase{{"Beta", "/SIM"}, 2},
                    ArgumentCase{{"/SIM", "Beta"}, 0}, ArgumentCase{{"nothing", "Beta"}, 2},
                    ArgumentCase{{"alpha", "Beta"}, 2}, ArgumentCase{{"Beta", "Alpha"}, 2},
                    ArgumentCase{{"/sim"}, 0}));

TEST(StartPath, AnUnavailableDeviceNeverMatchesItsName) {
  Bench bench = Microscopes({"Alpha", "Beta"});
  bench.instruments[2].available = 0;
  StartRig rig(bench);
  rig.choices = {1};
  EXPECT_TRUE(rig.Start({"Beta"}));
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
  EXPECT_EQ(rig.dialogs, 1);
  EXPECT_EQ(rig.Count("DeviceList.Item(2).Name"), 0);
}

TEST(StartPath, OfTwoDevicesWithOneNameTheFirstIsTaken) {
  StartRig rig(Microscopes({"Alpha", "Same", "Same"}));
  EXPECT_TRUE(rig.Start({"Same"}));
  EXPECT_EQ(rig.k70.lConnectDevice, 2);
}

TEST(StartPath, TheOneMicroscopeHeldByAnotherProcessEndsTheProgram) {
  StartRig rig("Harbour");
  const OtherProcess other(1);
  rig.prompts.ExpectBox(kUsedAtEnd, 0);
  EXPECT_FALSE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
}

TEST(StartPath, TheSimulatorHeldByAnotherProcessEndsTheProgram) {
  StartRig rig("Quay");
  const OtherProcess other(0);
  rig.prompts.ExpectBox(kUsedAtEnd, 0);
  EXPECT_FALSE(rig.Start({"/SIM"}));
}

TEST(StartPath, TwoProcessesUseDifferentDevices) {
  StartRig rig("Harbour");
  const OtherProcess other(0);
  EXPECT_TRUE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
}

TEST(StartPath, TheNameIsHeldWhileTheUnavailableMicroscopeIsReported) {
  Bench bench = Microscopes({"Alpha"});
  bench.instruments[1].available = 0;
  StartRig rig(bench);
  rig.prompts.ExpectBox(kNotAvailable, 0, Answer::Ok, {}, [] {
    Rig other("Quay");
    EXPECT_FALSE(other.k70.CreateConnectionName("1"));
  });
  EXPECT_FALSE(rig.Start());
  EXPECT_EQ(rig.Count("DeviceList.Item(1).Connect"), 0);
}

TEST(StartPath, SeveralMicroscopesAskAndConnectTheChosenOne) {
  StartRig rig(Microscopes({"Alpha", "Beta"}));
  rig.choices = {2};
  EXPECT_TRUE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, 2);
}

class GivenUp : public testing::TestWithParam<int> {};

TEST_P(GivenUp, EndsTheProgramWithNoMessage) {
  StartRig rig(Microscopes({"Alpha", "Beta"}));
  rig.choices = {GetParam()};
  EXPECT_FALSE(rig.Start());
  EXPECT_TRUE(rig.prompts.Log().empty());
}

INSTANTIATE_TEST_SUITE_P(Selected, GivenUp, testing::Values(-1, 0));

TEST(StartPath, AHeldDeviceBringsTheDialogBack) {
  StartRig rig(Microscopes({"Alpha", "Beta"}));
  const OtherProcess other(2);
  rig.choices = {2, 2, 1};
  rig.prompts.ExpectBox(kUsed, 0);
  rig.prompts.ExpectBox(kUsed, 0);
  EXPECT_TRUE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, 1);
  EXPECT_EQ(rig.dialogs, 3);
}

TEST(StartPath, ANamedDeviceThatIsHeldBringsTheDialogWithSeveralMicroscopes) {
  StartRig rig(Microscopes({"Alpha", "Beta"}));
  const OtherProcess other(2);
  rig.prompts.ExpectBox(kUsed, 0);
  rig.choices = {-1};
  EXPECT_FALSE(rig.Start({"Beta"}));
  EXPECT_EQ(rig.dialogs, 1);
}

TEST(StartPath, ANamedDeviceThatIsHeldEndsTheProgramWithOneMicroscope) {
  StartRig rig(Microscopes({"Alpha"}));
  const OtherProcess other(1);
  rig.prompts.ExpectBox(kUsedAtEnd, 0);
  EXPECT_FALSE(rig.Start({"Alpha"}));
}

TEST(StartPath, TheSimulatorAmongSeveralNeedsNoDialogAndNoBox) {
  StartRig rig(Microscopes({"Alpha", "Beta"}));
  EXPECT_TRUE(rig.Start({"/SIM"}));
  EXPECT_EQ(rig.k70.lConnectDevice, 0);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(StartPath, ANameThatTheSystemRefusesGoesToTheCaller) {
  RigLibrary rig(benches::Named("Harbour"));
  clsK70 k70(rig.library, rig.prompts, MakeRefusedMutex);
  k70.Initialize();
  EXPECT_THROW(ConnectMicroscope({k70, rig.library, rig.prompts, {"mortane"}, {}}), Failure);
  EXPECT_EQ(k70.lConnectDevice, -1);
  EXPECT_TRUE(rig.prompts.Log().empty());
}

class ConnectError : public testing::TestWithParam<Answer> {};

TEST_P(ConnectError, EndsTheProgramWhateverIsAnswered) {
  StartRig rig("Harbour");
  rig.faults.Add({"DeviceList.Item(1).Connect"});
  rig.prompts.ExpectBox(kConnectError, 22, GetParam());
  EXPECT_FALSE(rig.Start());
  EXPECT_EQ(rig.prompts.PointerBalance(), 0);
  Rig other("Quay");
  EXPECT_FALSE(other.k70.CreateConnectionName("1")) << "the name is kept until the end";
}

INSTANTIATE_TEST_SUITE_P(Answers, ConnectError,
                         testing::Values(Answer::Cancel, Answer::TryAgain, Answer::Continue));

TEST(StartPath, TheBoxOfTheConnectionStandsUnderTheHourglass) {
  StartRig rig("Harbour");
  rig.faults.Add({"DeviceList.Item(1).Connect"});
  rig.prompts.ExpectBox(kConnectError, 22, Answer::Cancel);
  EXPECT_FALSE(rig.Start());
  const std::vector<std::string>& log = rig.prompts.Log();
  ASSERT_EQ(log.size(), 3U);
  EXPECT_EQ(log[0], "pointer 11");
  EXPECT_EQ(log[2], "pointer 0");
}

TEST(StartPath, ProblemsOfTheReceiveDoNotChangeTheResult) {
  StartRig rig("Harbour");
  rig.faults.Add({"NosepieceDevice.Positions.Count", 2});
  rig.prompts.ExpectBox("Nosepiece Count", 16);
  EXPECT_TRUE(rig.Start());
}

TEST(StartPath, ADetectionThatFailsLateStillStartsTheProgram) {
  StartRig rig("Harbour");
  rig.faults.Add({"NosepieceDevice.Positions.Count", 1});
  rig.prompts.ExpectBox("System Name", 16);
  EXPECT_TRUE(rig.Start());
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
}

TEST(StartPath, AListThatCannotBeCountedTakesTheRoadOfOneMicroscope) {
  StartRig rig("Harbour");
  rig.faults.Add({"DeviceList.Count"});
  rig.prompts.ExpectBox("*** DeviceCount Error!!(80004005)", 0);
  rig.prompts.ExpectBox(kConnectError, 22, Answer::Cancel);
  EXPECT_FALSE(rig.Start());
}

// Every call of the controller library fails in turn: the program tells it or ends, and never
// falls over.
TEST(StartPath, SurvivesAFailureOfEachCallInTurn) {
  const auto run = [](std::size_t failing) {
    StartRig rig(Microscopes({"Alpha"}));
    rig.prompts.AcceptAnyBox();
    if (failing > 0) rig.faults.FailCall(failing);
    const std::size_t before = rig.journal.CallCount();
    const bool connected = rig.Start({"Alpha"});
    EXPECT_EQ(rig.prompts.PointerBalance(), 0) << "call " << failing;
    if (!connected) {
      EXPECT_FALSE(rig.prompts.Boxes().empty()) << "call " << failing;
    }
    return rig.journal.CallCount() - before;
  };
  const std::size_t calls = run(0);
  ASSERT_GT(calls, 50U);
  // The first thirty connect, the others receive.
  for (const std::size_t k : SampleOf(calls, 13, 30)) run(k);
}

}  // namespace
}  // namespace mortane::test
