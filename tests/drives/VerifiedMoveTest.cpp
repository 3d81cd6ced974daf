// The focus drive's move that reads back, also on drives that do not do as they are told.
#include "controller/Latency.h"
#include "drives/DriveRig.h"

#include "common/Failure.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kFarBelow = -2147483647 - 1;
constexpr std::int32_t kFarAbove = 2147483647;

class VerifyingDrive : public clsControlZDrive {
 public:
  using clsControlZDrive::clsControlZDrive;
  using clsControlZDrive::MoveVerified;
};

// A focus drive that slips back to 40 whenever it has moved.
struct SlippingRig : Rig {
  SlippingRig() : Rig("Harbour") {
    simulated.OnChange([this](const Bench&) { instrument().zDrive.position = 40; });
    instrument().zDrive.position = 40;
    Connect();
  }
  VerifyingDrive drive{units};
};

// Harbour on a library whose clock goes on by a millisecond with each call, once it is started.
struct SlowRig {
  SlowRig() { units.Connect(1); }
  void Tick() {
    if (started) simulated.clock().Advance(1);
  }

  bool started = false;
  controller::SimulatedLibrary simulated{benches::Named("Harbour")};
  controller::LatencyLibrary slow{simulated, [this] { Tick(); }};
  controller::Journal journal;
  controller::JournalLibrary library{slow, journal};
  ScriptedPrompts prompts;
  DriveUnits units{library, simulated.bench(), prompts};
  VerifyingDrive drive{units};
};

Lines Reads(int count, std::int32_t position) {
  return Lines(static_cast<std::size_t>(count),
               "ZDriveDevice.Position -> " + std::to_string(position));
}

struct TargetRow {
  std::int32_t position;
  std::int32_t target;
  bool there;
};

TEST(VerifiedMove, TwoStepsAwayIsThereAndThreeAreNot) {
  for (const TargetRow& row :
       {TargetRow{100, 100, true}, TargetRow{100, 102, true}, TargetRow{100, 98, true},
        TargetRow{100, 103, false}, TargetRow{100, 97, false},
        TargetRow{kFarAbove, kFarBelow, false}, TargetRow{kFarBelow, kFarAbove, false},
        TargetRow{kFarBelow, kFarBelow + 2, true}}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.instrument().zDrive.position = row.position;
    const VerifyingDrive drive(rig.units);
    EXPECT_TRUE(drive.MoveVerified(row.target));
    Lines expected = Reads(row.there ? 1 : 5, row.position);
    if (!row.there) {
      const std::string target = std::to_string(row.target);
      expected.push_back("ZDriveDevice.Position = " + target);
      expected.push_back("ZDriveDevice.Position -> " + target);
    }
    EXPECT_EQ(rig.journal.Lines(), expected) << row.position << ' ' << row.target;
  }
}

TEST(VerifiedMove, ADriveThatNeverArrivesIsAskedTenTimesAndToldOnce) {
  SlippingRig rig;
  EXPECT_FALSE(rig.drive.MoveVerified(43));
  Lines expected = Reads(5, 40);
  expected.emplace_back("ZDriveDevice.Position = 43");
  for (const std::string& line : Reads(5, 40)) expected.push_back(line);
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(VerifiedMove, ADriveThatArrivesMeanwhileIsNotMoved) {
  SlowRig rig;
  rig.drive.MoveAsyncStart(100);
  rig.journal.Clear();
  rig.started = true;
  EXPECT_TRUE(rig.drive.MoveVerified(100));
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.Position -> 40", "ZDriveDevice.Position -> 80",
                   "ZDriveDevice.Position -> 100"}));
}

TEST(VerifiedMove, AFailureGoesToTheCaller) {
  for (const char* call : {"get ZDriveDevice.Position", "put ZDriveDevice.Position"}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.faults.Add({call});
    const VerifyingDrive drive(rig.units);
    EXPECT_THROW(drive.MoveVerified(500), Failure) << call;
  }
}

TEST(DriveMotion, AWaitForADriveThatNeverArrivesEndsAndThePositionTells) {
  SlippingRig rig;
  rig.drive.MoveAsyncStart(1000);
  EXPECT_TRUE(rig.drive.IsMoveAsyncEnd());
  EXPECT_EQ(rig.drive.CurPosition(), 40);
}

}  // namespace
}  // namespace mortane::test
