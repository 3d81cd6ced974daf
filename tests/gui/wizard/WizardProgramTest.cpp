// The built wizard, worked by keyboard alone.
#include <array>
#include <filesystem>

#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "gui/support/BuiltProgram.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

constexpr int kItems = 7;
// Left in the window, where the present step is marked.
constexpr int kRailWidth = 60;

class Wizard : public BuiltProgram {
 protected:
  Wizard() : BuiltProgram(MORTANE_WIZARD, "Sadrel") {}

  // To the next step, and until its page is loaded. A button acts a moment after its letter.
  void Next(const QString& window) {
    QRect rail = Area(window);
    rail.setWidth(kRailWidth);
    AwaitChange(rail, [this] { Tool({"key", "alt+n"}); });
    AwaitRest();
  }

  // A click that comes soon after the last step's loading is dropped.
  void Exit() {
    PressUntil("alt+e", [this] { return Windows(title_).size() == 2; });
  }

  // A list of completions that opens late takes the key for itself.
  void SaveAs(const std::string& path) {
    const QString title("Save As");
    Tool({"windowfocus", "--sync", AwaitWindows(1, title).constFirst()});
    Tool({"type", QString::fromStdString(path)});
    PressUntil("Return", [&] { return Windows(title).isEmpty(); });
  }

 private:
  // Presses the key again where it was lost.
  void PressUntil(const QString& key, const std::function<bool()>& happened) {
    constexpr int kMomentMs = 300;
    EXPECT_TRUE(Await([&] {
      Tool({"key", key});
      return Await(happened, kMomentMs);
    }));
  }
};

TEST_F(Wizard, RefusesAWrongBenchFileInItsOwnName) {
  const TempFolder folder;
  Start({}, folder.Write("bench.xml", "no bench"));
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
  EXPECT_TRUE(program_.readAllStandardError().startsWith("sadrel: "));
}

TEST_F(Wizard, TellsItsVersionInItsOwnName) {
  Start({"--version"});
  ExpectGoodEnd();
  EXPECT_TRUE(program_.readAllStandardOutput().startsWith("sadrel "));
}

TEST_F(Wizard, LeavesByCancelOnTheSimulatorAndReplaysTheJournalOfThat) {
  const std::string journal = config_.Path("journal.txt");
  for (const char* variable : {"MORTANE_JOURNAL", "MORTANE_REPLAY"}) {
    qputenv(variable, QByteArray::fromStdString(journal));
    Start({"/sim"});
    qunsetenv(variable);
    Press(AwaitWindows(2).constFirst(), {"Return"});
    const QString window = AwaitWindows(1).constFirst();
    AwaitRest();
    Press(window, {"alt+c"});
    Press(AwaitWindows(2).constFirst(), {"Return"});
    ExpectGoodEnd();
    EXPECT_FALSE(errors_.contains("the session")) << errors_.toStdString();
  }
  EXPECT_TRUE(TempFolder::Read(journal).starts_with("mortane-journal 1 program=\"sadrel "));
}

TEST_F(Wizard, IsRefusedADeviceThatTheFullWindowHolds) {
  QProcess full;
  const QString wizard = std::exchange(path_, MORTANE_PROGRAM);
  Start(full, {"/SIM"});
  Press(AwaitWindows(2, "Mortane").constFirst(), {"Return"});
  AwaitWindows(1, "Mortane");
  path_ = wizard;
  Start({"/SIM"});
  Press(AwaitWindows(2).constFirst(), {"Return"});
  ExpectGoodEnd();
  full.kill();
  full.waitForFinished(kPatienceMs);
}

struct WizardRow {
  const char* bench;
  int steps;  // how often Next leads on, with the items that the keys below leave switched on
  Tried tried = Tried::Always;
};

constexpr std::array kRows{
    WizardRow{"Harbour", 6},
    WizardRow{"Lantern", 5, Tried::WithAllCases},
    WizardRow{"Pair", 4},
};

class WizardOn : public Wizard, public testing::WithParamInterface<WizardRow> {};

// From the name of the system through every step that the bench has to the saved file.
TEST_P(WizardOn, IsGoneThroughByKeyboardAlone) {
  const TempFolder folder;
  const std::string bench = folder.Path("bench.xml");
  const std::string saved = folder.Path("saved.xml");
  controller::WriteBenchFile(bench, controller::benches::Named(GetParam().bench));
  Start({}, bench);
  const QString window = AwaitWindows(1).constFirst();
  AwaitRest();
  AwaitChange(Area(window), [&] { Tool({"windowfocus", "--sync", window}); });
  Tool({"key", "ctrl+a"});
  Tool({"type", "Bay 4"});
  Next(window);
  // Custom; whatever is checked or not, each item is turned over.
  Tool({"key", "Down", "Tab"});
  for (int item = 0; item < kItems; ++item) Tool({"key", "space", "Down"});
  for (int step = 1; step < GetParam().steps; ++step) Next(window);
  Exit();
  Press(AwaitWindows(2).constFirst(), {"Return"});
  SaveAs(saved);
  ExpectGoodEnd();
  EXPECT_EQ(controller::ReadBenchFile(bench).instruments[1].name, "Bay 4");
  EXPECT_NE(TempFolder::Read(saved).find("Bay 4"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Benches, WizardOn, testing::ValuesIn(RowsToTry(kRows)),
                         [](const auto& row) { return std::string(row.param.bench); });

}  // namespace
}  // namespace mortane::test
