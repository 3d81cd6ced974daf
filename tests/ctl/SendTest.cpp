// send and restore: what is shown and asked, the backup, the reading after, and every failure.
#include <filesystem>
#include <map>

#include "CtlRig.h"
#include "ctl/WriteWatch.h"
#include "record/Comparison.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

// A microscope that differs in its name from the file.
struct SendRig : CtlRig {
  SendRig() : CtlRig("Harbour") {
    file = Received("file.xml");
    instrument().name = "Bay 7";
    journal.Clear();
  }
  std::vector<std::string> KeptFiles() const {
    std::vector<std::string> files;
    std::error_code none;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(PathOf(surroundings.backups), none)) {
      if (entry.is_regular_file()) files.push_back(entry.path().string());
    }
    return files;
  }

  std::string file;
};

TEST(Send, ShowsKeepsABackupWritesAndReadsBack) {
  SendRig rig;
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Done) << rig.Err();
  ASSERT_EQ(rig.KeptFiles().size(), 1U);
  const std::string backup = rig.KeptFiles().front();
  EXPECT_EQ(rig.Out(), "Bay 7 → " + rig.file +
                           ": 1 change\n  System Name: Bay 7 → Harbour\nBackup: " + backup +
                           "\nBay 7: 1 change sent and read back\n");
  EXPECT_EQ(rig.instrument().name, "Harbour");
  EXPECT_NE(TempFolder::Read(backup).find("Bay 7"), std::string::npos);
}

TEST(Send, ASecondOneWritesNothingAndKeepsNoBackup) {
  SendRig rig;
  rig.Run({"send", rig.file, "--yes"});
  rig.journal.Clear();
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Done);
  EXPECT_NE(rig.Out().find("Harbour: 0 changes, nothing was sent\n"), std::string::npos)
      << rig.Out();
  EXPECT_TRUE(rig.Written().empty());
  EXPECT_EQ(rig.KeptFiles().size(), 1U);
}

TEST(Send, ADryRunIsACompare) {
  SendRig rig;
  rig.Run({"compare", rig.file});
  const std::string compared = rig.Out();
  EXPECT_EQ(rig.Run({"send", rig.file, "--dry-run", "--yes"}), Outcome::Different);
  EXPECT_EQ(rig.Out(), compared);
  EXPECT_TRUE(rig.Written().empty());
  EXPECT_TRUE(rig.KeptFiles().empty());
}

TEST(Send, WithoutATerminalAYesIsNeeded) {
  SendRig rig;
  EXPECT_EQ(rig.Run({"send", rig.file}), Outcome::Failed);
  EXPECT_EQ(
      rig.Err(),
      "mortanectl: there is no terminal to ask on, so nothing was sent; --yes sends without a "
      "question\n");
  EXPECT_TRUE(rig.Written().empty());
  EXPECT_TRUE(rig.KeptFiles().empty());
}

struct AnswerCase {
  std::string typed;
  bool sends;
};

class Answers : public testing::TestWithParam<AnswerCase> {};

TEST_P(Answers, OnlyAYesSends) {
  SendRig rig;
  rig.surroundings.canAsk = true;
  rig.in.str(GetParam().typed);
  EXPECT_EQ(rig.Run({"send", rig.file}), GetParam().sends ? Outcome::Done : Outcome::Failed);
  EXPECT_EQ(rig.Err(), "Send 1 change to Bay 7? [y/N] ");
  EXPECT_EQ(rig.Written().empty(), !GetParam().sends);
  EXPECT_EQ(rig.KeptFiles().empty(), !GetParam().sends);
}

INSTANTIATE_TEST_SUITE_P(Rows, Answers,
                         testing::Values(AnswerCase{"y\n", true}, AnswerCase{"YES\n", true},
                                         AnswerCase{" yes \n", true}, AnswerCase{"\n", false},
                                         AnswerCase{"", false}, AnswerCase{"n\n", false},
                                         AnswerCase{"yesterday\n", false}));

TEST(Send, WithoutABackupWhenThatIsAsked) {
  SendRig rig;
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes", "--no-backup"}), Outcome::Done);
  EXPECT_EQ(rig.Out().find("Backup"), std::string::npos);
  EXPECT_TRUE(rig.KeptFiles().empty());
  EXPECT_EQ(rig.instrument().name, "Harbour");
}

TEST(Send, NothingWhenTheBackupCannotBeKept) {
  SendRig rig;
  rig.surroundings.backups = rig.folder.Write("occupied", "a file");
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("no backup could be kept, so nothing was sent: Cannot make the folder"),
            std::string::npos)
      << rig.Err();
  EXPECT_TRUE(rig.Written().empty());
  rig.surroundings.backups.clear();
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Failed);
  EXPECT_TRUE(rig.Written().empty());
}

TEST(Send, NothingWhenTheBackupWouldNotBeWhole) {
  SendRig rig;
  rig.faults.Add({"NosepieceDevice.Positions(2).Code"});
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("would not be whole, so nothing was sent (--no-backup sends without"),
            std::string::npos)
      << rig.Err();
  EXPECT_TRUE(rig.Written().empty());
}

TEST(Send, OnlyTheNamedSections) {
  SendRig rig;
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes", "--sections", "CONTROL"}), Outcome::Done);
  EXPECT_EQ(rig.instrument().name, "Bay 7");
  EXPECT_TRUE(rig.Written().empty());
}

TEST(Send, TellsWhatTheMicroscopeDidNotTake) {
  SendRig rig;
  rig.faults.Add({"put SystemName"});
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Failed);
  EXPECT_NE(
      rig.Out().find("Bay 7: 0 of 1 change written\nNot written: 1 item\n  System Name: Bay 7 "
                     "→ Harbour\nFailed: 1 line\n  System Name"),
      std::string::npos)
      << rig.Out();
}

TEST(Send, AsJsonIsOneObject) {
  SendRig rig;
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes", "--json"}), Outcome::Done);
  const std::string out = rig.Out();
  EXPECT_TRUE(out.starts_with("{\"changes\":1,\"device\":\"Bay 7\",")) << out;
  EXPECT_NE(out.find("\"result\":\"done\",\"backup\":\"" + InJson(rig.KeptFiles().front()) +
                     "\",\"written\":[{\"item\":\"System Name\""),
            std::string::npos)
      << out;
  EXPECT_TRUE(
      out.ends_with("\"notWritten\":[],\"notKnown\":[],\"failures\":[],\"interrupted\":false}\n"))
      << out;
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes", "--json"}), Outcome::Done);
  EXPECT_NE(rig.Out().find("\"result\":\"nothing to do\",\"backup\":null"), std::string::npos);
}

TEST(Send, ToAClosedOutputWritesNothing) {
  SendRig rig;
  std::ostream closed(nullptr);
  ctl::Surroundings surroundings{rig.in, closed, rig.err};
  surroundings.library = rig.surroundings.library;
  surroundings.backups = rig.surroundings.backups;
  EXPECT_EQ(ctl::Run({"send", rig.file, "--yes"}, surroundings), Outcome::Failed);
  EXPECT_TRUE(rig.Written().empty());
}

TEST(Send, EndsBetweenTwoUnitsWhenThePersonAsks) {
  SendRig rig;
  CtlRig other("Lantern");
  rig.file = other.Received("other.xml");
  rig.endAsked = [&] { return !rig.Written().empty(); };
  EXPECT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Failed);
  const std::string out = rig.Out();
  EXPECT_NE(out.find("\nWritten: 1 item\n  System Name: Bay 7 → Lantern\n"), std::string::npos)
      << out;
  EXPECT_NE(out.find("\nNot written: "), std::string::npos) << out;
  EXPECT_EQ(out.find("Not known"), std::string::npos) << out;
  EXPECT_NE(out.find("\nBackup: "), std::string::npos) << out;
  EXPECT_EQ(rig.Written(), std::vector<std::string>{"SystemName = \"Lantern\""});
}

TEST(Restore, SendsTheNewestBackup) {
  SendRig rig;
  rig.file = rig.folder.Write(
      "control.xml", "<Setup><CONTROL><OTHER><Buzzer CODE='True'/></OTHER></CONTROL></Setup>");
  const std::string before = TempFolder::Read(rig.Received("before.xml"));
  ASSERT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Done) << rig.Out();
  EXPECT_FALSE(TempFolder::Read(rig.Received("after.xml")) == before);
  rig.now += std::chrono::seconds(1);
  EXPECT_EQ(rig.Run({"restore", "--yes"}), Outcome::Done) << rig.Err();
  EXPECT_EQ(TempFolder::Read(rig.Received("restored.xml")), before);
  EXPECT_EQ(rig.KeptFiles().size(), 2U);
}

TEST(Restore, TakesANumberATimeOrAPath) {
  SendRig rig;
  ASSERT_EQ(rig.Run({"send", rig.file, "--yes"}), Outcome::Done);
  const std::string backup = rig.KeptFiles().front();
  EXPECT_EQ(rig.Run({"restore", backup, "--dry-run"}), Outcome::Different) << rig.Err();
  EXPECT_EQ(rig.Run({"restore"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("a path restores one that was kept under another name"),
            std::string::npos)
      << rig.Err();
  rig.instrument().name = "Bay 7";
  EXPECT_EQ(rig.Run({"restore", "1", "--dry-run"}), Outcome::Done) << rig.Err();
  EXPECT_EQ(rig.Run({"restore", "2026-11-22T00-00-00.000Z", "--dry-run"}), Outcome::Done);
  EXPECT_EQ(rig.Run({"restore", "2"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("there is no backup \"2\" of \"Bay 7\""), std::string::npos);
  EXPECT_EQ(rig.Run({"restore", rig.folder.Path("missing.xml")}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("missing.xml"), std::string::npos);
}

TEST(KeptStates, AreListedAndRemovedOnlyWhenAsked) {
  SendRig rig;
  for (const char* name : {"A", "B", "C"}) {
    rig.instrument().name = "Bay 7";
    const std::string file = rig.folder.Write(
        "name.xml", "<Setup><SYSTEM><QHRMNAME NAME='" + std::string(name) + "'/></SYSTEM></Setup>");
    ASSERT_EQ(rig.Run({"send", file, "--yes"}), Outcome::Done);
    rig.now += std::chrono::hours(1);
  }
  rig.instrument().name = "Bay 7";
  rig.journal.Clear();
  EXPECT_EQ(rig.Run({"backups", "--device", "Bay 7"}), Outcome::Done);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.Out().starts_with("Bay 7\n  1  2026-11-22T02-00-00.000Z  ")) << rig.Out();
  EXPECT_EQ(rig.Run({"backups", "--json"}), Outcome::Done);
  EXPECT_TRUE(rig.Out().starts_with("{\"backups\":[{\"device\":\"Bay 7\",\"number\":1,\"time\":"))
      << rig.Out();
  EXPECT_TRUE(rig.Out().ends_with("\"removed\":0}\n")) << rig.Out();
  EXPECT_EQ(rig.Run({"backups", "--keep", "1"}), Outcome::Done);
  EXPECT_NE(rig.Out().find("\n2 backups removed\n"), std::string::npos) << rig.Out();
  EXPECT_EQ(rig.KeptFiles().size(), 1U);
}

// The state of a microscope at each key, as a file would have it.
std::map<ItemKey, std::string> Values(Bench bench) {
  Rig rig(std::move(bench));
  rig.ConnectAndReceive();
  std::map<ItemKey, std::string> values;
  for (const ConfigurationItem& item : StateOf(rig.k70).items) {
    values[item.key] = item.value + item.exact;
  }
  return values;
}

// Every item of a Send is reported as what the microscope holds afterwards, whichever call was the
// first that the microscope did not answer.
class LostDevice : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(LostDevice, IsReportedItemByItemAtWhicheverCallItGoesAway) {
  const auto [here, there] = GetParam();
  CtlRig source(there);
  const std::string file = source.Received("file.xml");
  const Bench untouched = benches::Named(here);
  std::map<ItemKey, std::string> before = Values(untouched);
  std::map<ItemKey, std::string> after;
  std::vector<std::size_t> writes;
  {
    CtlRig rig{Bench(untouched)};
    ASSERT_NE(rig.Run({"send", file, "--yes", "--no-backup"}), Outcome::Different) << rig.Err();
    after = Values(rig.simulated.bench());
    writes = rig.lost.Commands();
  }
  // At each write, with and without its effect, and at the call that follows it.
  struct Loss {
    std::size_t call;
    LostLibrary::Last last;
  };
  std::vector<Loss> losses;
  for (const std::size_t call : writes) {
    losses.push_back({call, LostLibrary::Last::Missed});
    losses.push_back({call, LostLibrary::Last::Reached});
    losses.push_back({call + 1, LostLibrary::Last::Missed});
  }
  std::size_t known = 0;
  for (const std::size_t i : SampleOf(losses.size(), 17)) {
    const auto& [call, last] = losses[i - 1];
    CtlRig rig{Bench(untouched)};
    rig.lost.From(call, last);
    rig.Run({"send", file, "--yes", "--no-backup", "--json"});
    std::map<ItemKey, std::string> now = Values(rig.simulated.bench());
    for (const auto& [list, expected] :
         {std::pair{"written", &after}, std::pair{"notWritten", &before}}) {
      for (const ItemKey& key : rig.Reported(list)) {
        if (before[key] == after[key]) continue;
        ++known;
        EXPECT_EQ(now[key], (*expected)[key])
            << list << " " << KeyText(key) << " lost at call " << call;
      }
    }
  }
  EXPECT_GT(known, 0U);
}

INSTANTIATE_TEST_SUITE_P(Pairs, LostDevice,
                         testing::Values(std::pair{"Harbour", "Lantern"},
                                         std::pair{"Lantern", "Harbour"}, std::pair{"Hub", "Pair"},
                                         std::pair{"Deck", "DeckRemote"},
                                         std::pair{"DeckRemote", "Deck"},
                                         std::pair{"Pair", "Harbour"}));

// A single call that fails, anywhere: no write without a backup, and a success only when the
// microscope holds the file.
TEST(Send, SurvivesAFailureOfAnyCall) {
  CtlRig source("Lantern");
  const std::string file = source.Received("file.xml");
  std::size_t calls = 0;
  std::map<ItemKey, std::string> after;
  {
    CtlRig rig("Harbour");
    rig.Run({"send", file, "--yes"});
    calls = rig.journal.CallCount();
    after = Values(rig.simulated.bench());
  }
  for (const std::size_t call : SampleOf(calls, 127)) {
    CtlRig rig("Harbour");
    rig.faults.FailCall(call);
    const Outcome outcome = rig.Run({"send", file, "--yes", "--json"});
    const bool wrote = !rig.Written().empty();
    const bool kept = std::filesystem::exists(PathOf(rig.surroundings.backups));
    EXPECT_LE(wrote, kept) << "call " << call;
    EXPECT_NE(outcome, Outcome::Different) << "call " << call;
    if (outcome == Outcome::Done) {
      EXPECT_TRUE(Values(rig.simulated.bench()) == after) << "call " << call;
    } else {
      EXPECT_TRUE(!rig.Err().empty() || !rig.Out().empty()) << "call " << call;
    }
  }
}

}  // namespace
}  // namespace mortane::test
