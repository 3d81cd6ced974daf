// The options before the window, as text.
#include "app/StartOptions.h"

#include <gtest/gtest.h>

#include "common/Failure.h"

namespace mortane::test {
namespace {

using Words = std::vector<std::string>;

TEST(StartOptions, TakeOffWhatBeginsWithTwoDashesAndLeaveTheRestAsItIs) {
  struct Row {
    Words arguments;
    Words left;
    bool help;
    bool version;
  };
  const Row rows[] = {
      {{}, {}, false, false},
      {{"p"}, {"p"}, false, false},
      {{"--help"}, {"--help"}, false, false},  // the program's path is no option
      {{"p", "/SIM"}, {"p", "/SIM"}, false, false},
      {{"p", "--help"}, {"p"}, true, false},
      {{"p", "--version"}, {"p"}, false, true},
      {{"p", "Bay 7", "--version", "/sim"}, {"p", "Bay 7", "/sim"}, false, true},
      {{"p", "-style", "", "-", "—help"}, {"p", "-style", "", "-", "—help"}, false, false},
      {{"p", "--", "--help"}, {"p", "--help"}, false, false},
      {{"p", "--version", "--", "--", "/SIM"}, {"p", "--", "/SIM"}, false, true},
  };
  for (const Row& row : rows) {
    const StartOptions options = ReadStartOptions(row.arguments);
    const std::string shown = testing::PrintToString(row.arguments);
    EXPECT_EQ(options.arguments, row.left) << shown;
    EXPECT_EQ(options.help, row.help) << shown;
    EXPECT_EQ(options.version, row.version) << shown;
  }
}

TEST(StartOptions, NameTheFileOfAJournalOrLeaveItToTheDocuments) {
  EXPECT_EQ(ReadStartOptions({"p"}).journal, "");
  EXPECT_EQ(ReadStartOptions({"p", "--journal=a=b.txt", "/SIM"}).journal, "a=b.txt");
  for (const char* unnamed : {"--journal", "--journal="}) {
    const StartOptions options = ReadStartOptions({"p", unnamed, "file.txt"});
    EXPECT_TRUE(options.journal.ends_with("/Mortane Journal.txt")) << options.journal;
    EXPECT_EQ(options.arguments, (Words{"p", "file.txt"}));
  }
}

TEST(StartOptions, RefuseWhatThereIsNotByItsName) {
  struct Row {
    std::string argument;
    std::string said;
  };
  const Row rows[] = {
      {"--hel", "--hel is no option. "},
      {"--Help", "--Help is no option. "},
      {"--help=", "--help takes no value. "},
      {"--version=2", "--version takes no value. "},
      {"--bench=b.xml", "--bench is no option. "},
      {"--=", "-- is no option. "},
      {"---", "--- is no option. "},
  };
  for (const Row& row : rows) {
    try {
      ReadStartOptions({"p", "--help", row.argument});
      ADD_FAILURE() << row.argument << " was taken";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Description(), row.said + "\"--help\" lists the options.");
    }
  }
}

TEST(StartOptions, HelpNamesTheProgramItsArgumentsAndEveryOption) {
  const std::string help = HelpText("lantern", "Lights up.");
  for (const char* words :
       {"Usage: lantern [OPTION]... [MICROSCOPE | /SIM]\nLights up.\n",
        "\n  /SIM              Connect the simulated microscope\n",
        "\n  --help            Show this help\n", "\n  --version         Show",
        "\n  --                What follows", "\n  MORTANE_BENCH     A bench"}) {
    EXPECT_NE(help.find(words), std::string::npos) << words << "\nin\n" << help;
  }
  EXPECT_NE(help.back(), '\n');
}

TEST(StartOptions, VersionIsThatOfTheProject) {
  EXPECT_EQ(VersionText("lantern"), "lantern " MORTANE_PROJECT_VERSION);
}

}  // namespace
}  // namespace mortane::test
