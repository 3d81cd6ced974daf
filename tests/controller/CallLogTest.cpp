#include "controller/CallLog.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

#include "controller/Faults.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

using namespace std::chrono_literals;

// Every look at the clock is 250 microseconds after the one before.
class CallLogRig : public testing::Test {
 protected:
  // What was written since the last call.
  std::string Taken() {
    std::string text = lines_.str();
    lines_.str({});
    return text;
  }

  std::chrono::nanoseconds now_ = 5s;
  std::ostringstream lines_;
  SimulatedLibrary simulated_{Bench{{benches::InstrumentNamed("Harbour")}, {}}};
  FaultPlan faults_;
  FaultyLibrary faulty_{simulated_, faults_};
  CallLog log_{faulty_, lines_, [this] { return now_ += 250us; }};
};

TEST_F(CallLogRig, TellsFirstWhatItsColumnsAre) {
  EXPECT_EQ(Taken(), "   seconds         ms  call\n");
}

TEST_F(CallLogRig, HasALineForEachCallWithItsTimeSinceTheBeginningAndItsLength) {
  Taken();
  const Microscope root = ConnectedRoot(log_);
  EXPECT_EQ(Taken(),
            "     0.000      0.250  Create(Microscope)\n"
            "     0.001      0.250  DeviceList\n"
            "     0.001      0.250  DeviceList.Item(0)\n"
            "     0.002      0.250  CurrentDevice = DeviceList.Item(0)\n"
            "     0.002      0.250  DeviceList\n"
            "     0.003      0.250  DeviceList.Item(0)\n"
            "     0.003      0.250  DeviceList.Item(0).Connect()\n");
  now_ += 3600s;
  root.PutRemoteLED(2);
  root.QueryCommand("rONR9");
  EXPECT_EQ(Taken(),
            "  3600.004      0.250  RemoteLED(7) = 2\n"
            "  3600.004      0.250  QueryCommand(\"rONR9\") -> \"ONR9000000000000\"\n");
}

TEST_F(CallLogRig, HasALineForTheNumberOfAStateAndForEachStepOfAnEnumerator) {
  const Microscope root = ConnectedRoot(log_);
  const AccessoryDevice lamp = root.Accessory("ZDriveDevice");
  const StateValue position = lamp.StateMember("Position");
  simulated_.bench().instruments[0].nosepiece = {{1, 4}};
  const TurretEnumerator enumerator = root.NosepieceDevice().Positions().Enumerate();
  Taken();
  EXPECT_EQ(position.Number(), 0);
  enumerator.Next();
  enumerator.Next();
  const std::string lines = Taken();
  EXPECT_NE(lines.find("  ZDriveDevice.Position -> 0\n"), std::string::npos) << lines;
  EXPECT_NE(lines.find("  NosepieceDevice.Positions(1)\n"), std::string::npos) << lines;
  EXPECT_NE(lines.find("  NosepieceDevice.Positions(2) -> nothing\n"), std::string::npos) << lines;
}

TEST_F(CallLogRig, TellsAFailureWithItsTextAndPassesItOn) {
  const Microscope root = ConnectedRoot(log_);
  faults_.Add({"put SystemName", 0, "BUS", 26, "No\r\nanswer"});
  Taken();
  EXPECT_THROW(root.PutSystemName("x"), ControllerError);
  const std::string lines = Taken();
  EXPECT_NE(lines.find("0.250  SystemName = \"x\" ! BUS:1A No\\r\\nanswer\n"), std::string::npos)
      << lines;
}

// A state whose number cannot be read.
class Unreadable : public ControllerObject {
 public:
  Value Get(std::string_view member, Args) override {
    if (member.empty()) throw ControllerError("LIB", 5, "No number.");
    return std::make_shared<Unreadable>();
  }
  void Put(std::string_view, const Value&, Args) override {}
  Value Call(std::string_view, Args) override { return {}; }
};

class UnreadableLibrary : public ControllerLibrary {
 public:
  ObjectRef Create(std::string_view) override { return std::make_shared<Unreadable>(); }
};

TEST(CallLog, TellsTheFailureOfAStatesNumber) {
  UnreadableLibrary library;
  std::ostringstream lines;
  CallLog log(library, lines, [] { return std::chrono::nanoseconds(0); });
  const StateValue state(log.Create("Microscope")->Get("State"));
  lines.str({});
  EXPECT_THROW(state.Number(), ControllerError);
  EXPECT_EQ(lines.str(), "     0.000      0.000  State ! LIB:5 No number.\n");
}

TEST(CallLog, MeasuresWithAClockThatGoesOn) {
  const auto before = CallLog::SteadyTime();
  EXPECT_GT(before.count(), 0);
  EXPECT_GE(CallLog::SteadyTime(), before);
}

}  // namespace
}  // namespace mortane::controller::test
