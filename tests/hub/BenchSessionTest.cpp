// The simulated instruments of a running program, and the file behind them.
#include "hub/BenchSession.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "controller/Microscope.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using controller::Bench;
using controller::Microscope;
using controller::ReadBenchFile;
using controller::WriteBenchFile;
namespace benches = controller::benches;

Microscope Connected(BenchSession& session, std::int32_t device) {
  Microscope root(session.Library().Create("Microscope"));
  root.PutCurrentDevice(root.DeviceList().Item(device));
  root.DeviceList().Item(device).Connect();
  return root;
}

// The simulator and two more in a file.
class BenchSessionFile : public testing::Test {
 protected:
  BenchSessionFile() { WriteBenchFile(path_, benches::Named("Crowd")); }
  std::string NameOf(std::size_t place) const {
    return ReadBenchFile(path_).instruments.at(place).name;
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("bench.xml");
};

TEST_F(BenchSessionFile, KeepsWhatChangedWhenTheProgramComesToRest) {
  BenchSession session(path_);
  const Microscope root = Connected(session, 1);
  root.PutSystemName("Sent");
  EXPECT_EQ(NameOf(1), "Alpha");
  session.Keep();
  EXPECT_EQ(NameOf(1), "Sent");
}

TEST_F(BenchSessionFile, TwoProgramsKeepEachOthersSends) {
  BenchSession first(path_);
  BenchSession second(path_);
  const Microscope firstRoot = Connected(first, 1);
  const Microscope secondRoot = Connected(second, 3);
  firstRoot.PutSystemName("First");
  secondRoot.PutSystemName("Second");
  first.Keep();
  second.Keep();
  firstRoot.ControllerSettings().PutEscapeMode(1);
  first.Keep();
  EXPECT_EQ(NameOf(1), "First");
  EXPECT_EQ(NameOf(3), "Second");
}

TEST_F(BenchSessionFile, ADeviceThatOneProgramLeavesIsUpToDateInTheNext) {
  BenchSession first(path_);
  BenchSession second(path_);
  const Microscope root = Connected(first, 1);
  root.ControllerSettings().PutEscapeMode(2);
  root.DeviceList().Item(1).Disconnect();
  EXPECT_EQ(Connected(second, 1).ControllerSettings().EscapeMode(), 2);
}

TEST_F(BenchSessionFile, RenewingTakesWhatAnotherProgramWroteToAConnectedDevice) {
  BenchSession session(path_);
  const Microscope mine = Connected(session, 1);
  controller::Bench changed = controller::ReadBenchFile(path_);
  changed.instruments[1].name = "Bay 9";
  WriteBenchFile(path_, changed);
  session.Renew();
  EXPECT_EQ(mine.DeviceList().Item(1).Name(), "Bay 9");
}

TEST_F(BenchSessionFile, KeepsTheRestAtItsEnd) {
  {
    BenchSession session(path_);
    Connected(session, 1).PutSystemName("Last");
  }
  EXPECT_EQ(NameOf(1), "Last");
}

TEST_F(BenchSessionFile, SaysInOneLineThatItCannotKeepAndTriesAgainAtItsEnd) {
  const std::string good = TempFolder::Read(path_);
  {
    BenchSession session(path_);
    Connected(session, 1).PutSystemName("Sent");
    folder_.Write("bench.xml", "<Bench>");
    testing::internal::CaptureStderr();
    session.Keep();
    session.Keep();
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(said.starts_with("mortane: " + path_)) << said;
    EXPECT_EQ(said.find('\n'), said.size() - 1) << said;
    folder_.Write("bench.xml", good);
  }
  EXPECT_EQ(NameOf(1), "Sent");
}

// Only what is not yet in the file is tried once more at the end.
TEST_F(BenchSessionFile, SaysNothingAtItsEndWhereNothingIsLeftToKeep) {
  const std::string good = TempFolder::Read(path_);
  std::vector<std::string> said;
  const auto note = [&said](const std::string& text) { said.push_back(text); };
  {
    BenchSession session(path_, note);
    folder_.Write("bench.xml", "<Bench>");
  }
  EXPECT_TRUE(said.empty());
  folder_.Write("bench.xml", good);
  {
    BenchSession session(path_, note);
    const Microscope root = Connected(session, 1);
    root.PutSystemName("First");
    folder_.Write("bench.xml", "<Bench>");
    session.Keep();
    EXPECT_EQ(said.size(), 1U);
    folder_.Write("bench.xml", good);
    root.PutSystemName("Second");
    session.Keep();
    EXPECT_EQ(NameOf(1), "Second");
    folder_.Write("bench.xml", "<Bench>");
  }
  EXPECT_EQ(said.size(), 1U) << "the failure was made good";
}

TEST(BenchSession, WithoutAFileIsTheSimulatedMicroscopeAlone) {
  BenchSession session("");
  const Microscope root = Connected(session, 0);
  EXPECT_EQ(root.DeviceList().Count(), 1);
  root.PutSystemName("Nowhere");
  EXPECT_NO_THROW(session.Keep());
}

TEST(BenchSession, LetsDrivesMoveInRealTime) {
  BenchSession session("");
  const Microscope root = Connected(session, 0);
  const std::int32_t start = root.ZDriveDevice().Position().Number();
  root.DeviceList().Item(0).PutAsyncMode(true);
  const auto before = std::chrono::steady_clock::now();
  root.ZDriveDevice().PutPosition(start + 200);  // ten milliseconds
  root.DeviceList().Item(0).WaitMove();
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(9));
  EXPECT_EQ(root.ZDriveDevice().Position().Number(), start + 200);
}

}  // namespace
}  // namespace mortane::test
