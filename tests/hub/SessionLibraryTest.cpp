// Which controller library a program works with, and the journal of its calls.
#include "hub/SessionLibrary.h"

#include <gtest/gtest.h>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/Microscope.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "platform/AtomicFile.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

namespace benches = controller::benches;
using controller::ControllerLibrary;
using controller::Microscope;

std::int32_t CountOn(SessionLibrary& session) {
  return Microscope(session.Library().Create("Microscope")).DeviceList().Count();
}

std::unique_ptr<ControllerLibrary> NoLibrary() {
  return nullptr;
}

// The instruments of the bench "Crowd" as an installed library.
std::unique_ptr<ControllerLibrary> Installed() {
  return std::make_unique<controller::SimulatedLibrary>(benches::Named("Crowd"));
}

std::unique_ptr<ControllerLibrary> NotRegistered() {
  throw controller::ControllerError("Mortane", static_cast<std::int32_t>(0x80040154U),
                                    "LENSMIRLib.Microscope: not registered");
}

class SessionLibraryFiles : public testing::Test {
 protected:
  TempFolder folder_;
  std::string bench_ = folder_.Path("bench.xml");
  std::string journal_ = folder_.Path("journal.txt");
};

TEST(SessionLibrary, IsTheInstalledOneWhereThereIsOne) {
  SessionLibrary session({"", "", Installed});
  EXPECT_EQ(CountOn(session), static_cast<int>(benches::Named("Crowd").instruments.size()));
  EXPECT_EQ(session.Complaint(), "");
}

TEST(SessionLibrary, IsTheSimulatedMicroscopeAloneWhereSystemsHaveNoLibraries) {
  SessionLibrary session({"", "", NoLibrary});
  EXPECT_EQ(CountOn(session), 1);
  EXPECT_EQ(session.Complaint(), "");
}

TEST(SessionLibrary, TellsWhyTheInstalledOneIsNotUsedAndWhatToDo) {
  SessionLibrary session({"", "", NotRegistered});
  EXPECT_EQ(CountOn(session), 1);
  EXPECT_EQ(
      session.Complaint(),
      "The controller library cannot be used.\r\n"
      "LENSMIRLib.Microscope: not registered (80040154)\r\n\r\n"
      "Install the library that came with the microscope and start this application again."
      "\r\n"
      "Until then only the simulated microscope is there, with \"/SIM\" on the command line.");
}

TEST_F(SessionLibraryFiles, ABenchFileComesBeforeTheInstalledLibraryWhichIsNotOpened) {
  controller::WriteBenchFile(bench_, benches::Named("Harbour"));
  SessionLibrary session({bench_, "", NotRegistered});
  EXPECT_EQ(session.Complaint(), "");
  const Microscope root(session.Library().Create("Microscope"));
  ASSERT_EQ(root.DeviceList().Count(), 2);
  root.PutCurrentDevice(root.DeviceList().Item(1));
  root.DeviceList().Item(1).Connect();
  root.PutSystemName("Bay 7");
  session.Keep();
  EXPECT_EQ(controller::ReadBenchFile(bench_).instruments[1].name, "Bay 7");
}

TEST_F(SessionLibraryFiles, KeepDoesNothingOnAnInstalledLibrary) {
  SessionLibrary session({"", "", Installed});
  session.Keep();
  EXPECT_FALSE(std::filesystem::exists(bench_));
}

TEST_F(SessionLibraryFiles, TheJournalHasEveryCallAtOnceAndKeepsFormerOnes) {
  for (int run = 0; run < 2; ++run) {
    SessionLibrary session({"", journal_, run == 0 ? Installed : NoLibrary});
    CountOn(session);
    EXPECT_NE(TempFolder::Read(journal_).find(run == 0 ? "DeviceList.Count -> 5\n"
                                                       : "DeviceList.Count -> 1\n"),
              std::string::npos)
        << TempFolder::Read(journal_);
  }
  const std::string lines = TempFolder::Read(journal_);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 8) << lines;
  EXPECT_TRUE(lines.starts_with("   seconds         ms  call\n")) << lines;
}

TEST_F(SessionLibraryFiles, AJournalThatCannotBeWrittenIsRefused) {
  const std::string missing = folder_.Path("no such folder/journal.txt");
  try {
    SessionLibrary({"", missing, NoLibrary});
    FAIL() << "not refused";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kFileError);
    EXPECT_EQ(failure.Description(), "Cannot write " + missing);
  }
}

TEST_F(SessionLibraryFiles, AWrongBenchFileIsRefused) {
  EXPECT_THROW(SessionLibrary({folder_.Write("bench.xml", "<Other/>"), "", NoLibrary}), Failure);
}

}  // namespace
}  // namespace mortane::test
