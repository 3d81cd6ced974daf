// The built program itself on a display of its own, worked from outside.
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "gui/support/BuiltProgram.h"

namespace mortane::test {
namespace {

class Program : public BuiltProgram {
 protected:
  Program() : BuiltProgram(MORTANE_PROGRAM, "Mortane") {}

  // Leaves by the menu and answers the question.
  void Exit() {
    const QString window = AwaitWindows(1).constFirst();
    AwaitRest();
    Press(window, {"alt+f", "x"});
    Press(AwaitWindows(2).constFirst(), {"Return"});
    ExpectGoodEnd();
  }
};

TEST_F(Program, StartsOnTheSimulatorAndEndsByItsMenu) {
  Start({"/sim"});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  Exit();
}

TEST_F(Program, EndsWithoutAMicroscope) {
  Start({});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  EXPECT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 0);
}

TEST_F(Program, RefusesASecondCopyOnOneDeviceUntilTheFirstIsGoneHoweverItWent) {
  Start({"/SIM"});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  AwaitWindows(1);
  QProcess second;
  Start(second, {"/SIM"});
  Press(AwaitWindows(3).constFirst(), {"Return"});
  EXPECT_TRUE(second.waitForFinished(kPatienceMs)) << "refused";
  EXPECT_EQ(second.exitCode(), 0);
  program_.kill();
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  Start({"/SIM"});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  Exit();
}

TEST_F(Program, KeepsInItsBenchFileWhatWasSent) {
  const TempFolder folder;
  const std::string bench = folder.Path("bench.xml");
  controller::WriteBenchFile(bench, controller::benches::Named("Harbour"));
  Start({}, bench);
  const QString window = AwaitWindows(1).constFirst();
  AwaitRest();
  Tool({"windowfocus", "--sync", window});
  // The page button, the name field, its new text.
  Tool({"mousemove", "--window", window, "52", "110", "click", "1"});
  Tool({"key", "Tab", "ctrl+a"});
  Tool({"type", "Bay 4"});
  Tool({"key", "Return", "alt+c"});
  Tool({"key", "n"});
  const auto name = [&] { return controller::ReadBenchFile(bench).instruments[1].name; };
  EXPECT_TRUE(Await([&] { return name() == "Bay 4"; })) << name();
  Exit();
}

TEST_F(Program, RefusesAWrongBenchFileWithOneLineAndCodeTwo) {
  const TempFolder folder;
  for (const char* content : {"", "no bench", "<Other/>"}) {
    const std::string bench = folder.Write("bench.xml", content);
    Start({"/SIM"}, bench);
    ASSERT_TRUE(program_.waitForFinished(kPatienceMs)) << content;
    EXPECT_EQ(program_.exitCode(), 2) << content;
    const QByteArray errors = program_.readAllStandardError();
    EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
    EXPECT_TRUE(errors.contains("bench.xml")) << errors.toStdString();
  }
  Start({"/SIM"}, folder.Path("missing.xml"));
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
}

TEST_F(Program, AnswersHelpAndVersionWithoutADisplayAndOpensNothing) {
  const TempFolder folder;
  const std::string bench = folder.Write("bench.xml", "no bench");
  for (const char* option : {"--help", "--version"}) {
    Start({"/SIM", option}, bench);
    ExpectGoodEnd();
    EXPECT_TRUE(program_.readAllStandardError().isEmpty()) << option;
    EXPECT_TRUE(program_.readAllStandardOutput().contains("mortane")) << option;
  }
}

TEST_F(Program, RefusesAnOptionThatThereIsNotWithOneLineAndCodeTwo) {
  Start({"/SIM", "--frobnicate=3"});
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
  EXPECT_TRUE(program_.readAllStandardOutput().isEmpty());
  EXPECT_EQ(program_.readAllStandardError(),
            "mortane: --frobnicate is no option. \"--help\" lists the options.\n");
}

TEST_F(Program, FailsWhenItsAnswerCannotBeWritten) {
  program_.setStandardOutputFile("/dev/full");
  Start({"--version"});
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
}

TEST_F(Program, WritesTheJournalOfItsCallsAndReplaysIt) {
  const TempFolder folder;
  const std::string journal = folder.Path("journal.txt");
  qputenv("MORTANE_JOURNAL", QByteArray::fromStdString(journal));
  Start({"/SIM"});
  qunsetenv("MORTANE_JOURNAL");
  Press(AwaitWindows(2).constFirst(), {"Return"});
  Exit();
  const std::string lines = TempFolder::Read(journal);
  EXPECT_TRUE(lines.starts_with("mortane-journal 1 program=\"mortane ")) << lines;
  EXPECT_NE(lines.find("  DeviceList.Item(0).Connect()\n"), std::string::npos) << lines;
  EXPECT_NE(lines.find("  DeviceList.Item(0).Disconnect()\n"), std::string::npos) << lines;

  qputenv("MORTANE_REPLAY", QByteArray::fromStdString(journal));
  Start({"/SIM"});
  qunsetenv("MORTANE_REPLAY");
  Press(AwaitWindows(2).constFirst(), {"Return"});
  Exit();
  EXPECT_FALSE(errors_.contains("the session")) << errors_.toStdString();
}

TEST_F(Program, GoesOnWithoutAJournalThatCannotBeWritten) {
  Start({"--journal=/no such folder/journal.txt", "/SIM"});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  Exit();
  EXPECT_EQ(errors_.count("mortane: Cannot write the journal /no such folder/journal.txt: "), 1)
      << errors_.toStdString();
}

}  // namespace
}  // namespace mortane::test
