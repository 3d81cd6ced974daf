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
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 10) << lines;
  EXPECT_TRUE(lines.starts_with("mortane-journal 1 program=\"mortane\" system=\"")) << lines;
  EXPECT_NE(lines.find("library=\"the simulator\""), std::string::npos) << lines;
}

TEST_F(SessionLibraryFiles, WithoutTheJournalThatCannotBeWrittenTheSessionGoesOn) {
  LibraryWish wish{"", folder_.Path("no such folder/journal.txt"), Installed};
  std::vector<std::string> told;
  wish.tell = [&](const std::string& text) { told.push_back(text); };
  SessionLibrary session(wish);
  EXPECT_EQ(CountOn(session), 5);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told[0].starts_with("Cannot write the journal " + wish.journal + ": ")) << told[0];
}

class Replays : public SessionLibraryFiles {
 protected:
  Replays() { SessionLibrary({"", journal_, Installed}).Library().Create("Microscope"); }

  LibraryWish Wish() {
    LibraryWish wish{"missing.xml", "", NotRegistered};
    wish.replay = journal_;
    wish.tell = [this](const std::string& text) { told_.push_back(text); };
    return wish;
  }

  std::vector<std::string> told_;
};

TEST_F(Replays, ComeBeforeABenchFileAndTheInstalledLibrary) {
  SessionLibrary session(Wish());
  session.Library().Create("Microscope");
  EXPECT_EQ(session.Complaint(), "");
  session.Keep();
  session.Renew();
}

TEST_F(Replays, TellADifferenceOnce) {
  {
    SessionLibrary session(Wish());
    EXPECT_THROW(session.Library().Create("FiberServer"), Failure);
    EXPECT_THROW(session.Library().Create("FiberServer"), Failure);
  }
  EXPECT_EQ(told_, std::vector{journal_ + ":3: the session has #0 create Create(Microscope); the "
                                          "program called #0 create Create(FiberServer)"});
}

TEST_F(Replays, TellAtTheEndWhatWasNotCalled) {
  {
    // Ends without a call.
    SessionLibrary session(Wish());
  }
  EXPECT_EQ(told_, std::vector{journal_ + ":3: the session goes on with "
                                          "#0 create Create(Microscope)"});
}

TEST_F(Replays, AreRecordedThemselvesAlsoIntoTheirOwnFile) {
  {
    LibraryWish wish = Wish();
    wish.journal = journal_;
    SessionLibrary session(wish);
    session.Library().Create("Microscope");
  }
  EXPECT_EQ(told_, std::vector<std::string>());
  EXPECT_NE(TempFolder::Read(journal_).find("library=\"a replayed session\""), std::string::npos);
}

TEST_F(Replays, OfWhatIsNoJournalAreRefused) {
  LibraryWish wish = Wish();
  wish.replay = folder_.Write("other.txt", "nothing");
  EXPECT_THROW(SessionLibrary{wish}, Failure);
}

TEST_F(SessionLibraryFiles, AWrongBenchFileIsRefused) {
  EXPECT_THROW(SessionLibrary({folder_.Write("bench.xml", "<Other/>"), "", NoLibrary}), Failure);
}

}  // namespace
}  // namespace mortane::test
