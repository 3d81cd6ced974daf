// bench: the file, what it tells about defaults, and journals that cannot be used.
#include "CtlRig.h"
#include "controller/simulator/BenchFile.h"

namespace mortane::test {
namespace {

struct BenchCommand : testing::Test {
  BenchCommand() { rig.surroundings.library.journal = journal; }

  Outcome Bench(const std::string& output) {
    return rig.Run({"bench", "--from-journal", journal, "-o", output});
  }

  CtlRig rig{"Harbour"};
  std::string journal = rig.folder.Path("journal.txt");
  std::string bench = rig.folder.Path("bench.xml");
};

TEST_F(BenchCommand, MakesAnInstrumentThatIsReceivedAlike) {
  const std::string received = rig.Received("first.xml");
  rig.surroundings.library.journal.clear();
  ASSERT_EQ(Bench(bench), Outcome::Done) << rig.Err();
  EXPECT_TRUE(rig.Out().starts_with(bench + ": 2 instruments, ")) << rig.Out();
  EXPECT_NE(rig.Out().find("\n  device 0 \"\": its name\n"), std::string::npos) << rig.Out();
  EXPECT_NE(rig.Out().find("\n  device 1 \"Harbour\": ZDriveDevice: speed, travel, MoveProfile and "
                           "MoveOption\n"),
            std::string::npos)
      << rig.Out();
  EXPECT_EQ(rig.Err(), "");
  const std::string again = rig.folder.Path("again.xml");
  ASSERT_EQ(rig.Run({"receive", "--bench", bench, "-o", again}), Outcome::Done) << rig.Err();
  EXPECT_EQ(TempFolder::Read(again), TempFolder::Read(received));
}

TEST_F(BenchCommand, TakesTheJournalOfAnOptionAsThatOfTheEnvironment) {
  rig.surroundings.library.journal.clear();
  ASSERT_EQ(rig.Run({"devices", "--journal=" + journal}), Outcome::Done) << rig.Err();
  EXPECT_TRUE(TempFolder::Read(journal).starts_with("mortane-journal 1 "));
  EXPECT_EQ(rig.Run({"devices", "--journal=" + rig.folder.Path("none/journal.txt")}),
            Outcome::Done);
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
}

TEST_F(BenchCommand, KeepsTheStandardOutputForTheBenchThatGoesThere) {
  rig.Received("first.xml");
  ASSERT_EQ(Bench("-"), Outcome::Done);
  EXPECT_TRUE(rig.Out().starts_with("<Bench>")) << rig.Out();
  EXPECT_NE(rig.Err().find("2 instruments, "), std::string::npos) << rig.Err();
}

TEST_F(BenchCommand, TellsWhatFailedAndWasCutOff) {
  rig.faults.Add({"NosepieceDevice.Limitation", 0, "LIB", 5, "No limit."});
  rig.Run({"receive", "-o", rig.folder.Path("first.xml"), "--partial"});
  rig.folder.Write("journal.txt", TempFolder::Read(journal) + "    12.0");
  ASSERT_EQ(Bench(bench), Outcome::Done) << rig.Err();
  EXPECT_NE(rig.Out().find(": NosepieceDevice.Limitation (it failed: No limit.)\n"),
            std::string::npos)
      << rig.Out();
  EXPECT_TRUE(rig.Out().ends_with("  what came behind the end: the journal is cut off\n"))
      << rig.Out();
}

TEST_F(BenchCommand, RefusesWhatIsNoJournalAndLeavesTheFileThatIsThere) {
  rig.folder.Write("bench.xml", "old");
  EXPECT_EQ(Bench(bench), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: Cannot read " + journal + "\n");
  rig.Received("first.xml");
  const std::string whole = TempFolder::Read(journal);
  rig.folder.Write("journal.txt", whole + "edited\n");
  EXPECT_EQ(Bench(bench), Outcome::Failed);
  EXPECT_TRUE(rig.Err().starts_with("mortanectl: " + journal + ":")) << rig.Err();
  EXPECT_TRUE(rig.Err().ends_with(": no line of a journal: edited\n")) << rig.Err();
  rig.folder.Write("journal.txt", whole.substr(0, whole.find("     0.0")));
  EXPECT_EQ(Bench(bench), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: " + journal + ":2: the session tells of no device\n");
  EXPECT_EQ(TempFolder::Read(bench), "old");
}

}  // namespace
}  // namespace mortane::test
