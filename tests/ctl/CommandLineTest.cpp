// The words of the command line: what they ask for, their help, and what is refused.
#include "ctl/CommandLine.h"

#include <gtest/gtest.h>

#include <sstream>

namespace mortane::test {
namespace {

using ctl::Outcome;
using ctl::Request;
using ctl::Verb;

struct Parsed {
  explicit Parsed(const std::vector<std::string>& arguments)
      : result(ctl::ParseCommandLine(arguments, out, err)) {}

  const Request& request() const { return std::get<Request>(result); }
  Outcome outcome() const { return std::get<Outcome>(result); }

  std::ostringstream out;
  std::ostringstream err;
  std::variant<Request, Outcome> result;
};

TEST(CommandLine, TakesEveryOptionOfSending) {
  const Parsed parsed({"send", "a.xml", "--device", "Bay 7", "--bench", "b.xml", "--wait", "60",
                       "--sections", "filter,NOSEPIECE", "--dry-run", "--yes", "--no-backup",
                       "--json"});
  const Request& request = parsed.request();
  EXPECT_EQ(request.verb, Verb::Send);
  EXPECT_EQ(request.files, std::vector<std::string>{"a.xml"});
  EXPECT_EQ(request.microscope.device, "Bay 7");
  EXPECT_EQ(request.microscope.bench, "b.xml");
  EXPECT_EQ(request.microscope.waitSeconds, 60);
  EXPECT_EQ(request.sections, (std::vector<std::string>{"filter", "NOSEPIECE"}));
  EXPECT_TRUE(request.dryRun && request.yes && request.noBackup && request.json);
}

TEST(CommandLine, KnowsWhatIsNotGiven) {
  const Parsed parsed({"watch"});
  const Request& request = parsed.request();
  EXPECT_EQ(request.verb, Verb::Watch);
  EXPECT_EQ(request.everySeconds, 5);
  EXPECT_FALSE(request.json || request.microscope.simulated || request.keep);
  EXPECT_EQ(request.microscope.waitSeconds, 0);
}

TEST(CommandLine, ADashIsAFileAndAnOutput) {
  EXPECT_EQ(Parsed({"diff", "-", "b.xml"}).request().files,
            (std::vector<std::string>{"-", "b.xml"}));
  EXPECT_EQ(Parsed({"receive", "-o", "-"}).request().output, "-");
}

TEST(CommandLine, FilesThatLookLikeOptionsFollowTwoDashes) {
  EXPECT_EQ(Parsed({"check", "--", "--yes", "-x"}).request().files,
            (std::vector<std::string>{"--yes", "-x"}));
}

struct WrongCase {
  std::vector<std::string> arguments;
  std::string says;
};

class WrongWords : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongWords, AreRefusedOnStandardErrorWithTheHelpThatExplainsThem) {
  const Parsed parsed(GetParam().arguments);
  EXPECT_EQ(parsed.outcome(), Outcome::Failed);
  EXPECT_EQ(parsed.out.str(), "");
  EXPECT_TRUE(parsed.err.str().starts_with("mortanectl: ")) << parsed.err.str();
  EXPECT_NE(parsed.err.str().find(GetParam().says), std::string::npos) << parsed.err.str();
  EXPECT_NE(parsed.err.str().find("--help\"."), std::string::npos) << parsed.err.str();
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WrongWords,
    testing::Values(WrongCase{{}, "A command"}, WrongCase{{"paint"}, "paint"},
                    WrongCase{{"compare"}, "FILE"}, WrongCase{{"compare", "a", "b"}, "b"},
                    WrongCase{{"diff", "a"}, "FILE"}, WrongCase{{"diff", "a", "b", "c"}, "c"},
                    WrongCase{{"receive"}, "--output"}, WrongCase{{"export"}, "--ome"},
                    WrongCase{{"bench", "-o", "a"}, "--from-journal"},
                    WrongCase{{"bench", "--from-journal", "a"}, "--output"},
                    WrongCase{{"bench", "--from-journal", "a", "-o", "b", "--sim"}, "--sim"},
                    WrongCase{{"send", "a", "--wait", "soon"}, "soon"},
                    WrongCase{{"send", "a", "--wait", "-1"}, "--wait"},
                    WrongCase{{"send", "a", "--wait", "99999999999"}, "--wait"},
                    WrongCase{{"watch", "--every", "0"}, "--every"},
                    WrongCase{{"backups", "--keep", "0"}, "--keep"},
                    WrongCase{{"backups", "--keep", "1.5"}, "1.5"},
                    WrongCase{{"diff", "a", "b", "--sim"}, "--sim"},
                    WrongCase{{"devices", "--frob"}, "--frob"},
                    WrongCase{{"compare", "a", "--yes"}, "--yes"},
                    WrongCase{{"devices", "--sections", "SYSTEM"}, "--sections"},
                    WrongCase{{"devices", "--sim", "--device", "A"}, "--sim"},
                    WrongCase{{"devices", "a\nb"}, "a\\nb"}));

TEST(CommandLine, EveryHelpTeachesByExamples) {
  for (const char* command : {"", "devices", "receive", "compare", "diff", "send", "backups",
                              "restore", "check", "report", "export", "watch", "bench"}) {
    std::vector<std::string> arguments{"--help"};
    if (*command != '\0') arguments.insert(arguments.begin(), command);
    const Parsed parsed(arguments);
    EXPECT_EQ(parsed.outcome(), Outcome::Done);
    EXPECT_EQ(parsed.err.str(), "");
    const std::string help = parsed.out.str();
    const std::string example = "\n  mortanectl " + std::string(command);
    const std::size_t first = help.find("Examples:" + example);
    ASSERT_NE(first, std::string::npos) << help;
    EXPECT_NE(help.find(example, first + example.size() + 9), std::string::npos) << help;
  }
}

TEST(CommandLine, TellsItsVersion) {
  const Parsed parsed({"--version"});
  EXPECT_EQ(parsed.outcome(), Outcome::Done);
  EXPECT_TRUE(parsed.out.str().starts_with("mortanectl ")) << parsed.out.str();
}

}  // namespace
}  // namespace mortane::test
