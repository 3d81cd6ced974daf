// The built wizard, worked by keyboard alone.
#include <filesystem>

#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "gui/support/BuiltProgram.h"

namespace mortane::test {
namespace {

constexpr char kNext[] = "alt+n";
constexpr int kSteps = 10;
constexpr int kItems = 7;
// A button acts a moment after its letter.
constexpr int kLetterMs = 250;
// The keys of the last step are deaf for as long.
constexpr int kDoubleClickMs = 400;

class Wizard : public BuiltProgram {
 protected:
  Wizard() : BuiltProgram(MORTANE_WIZARD, "Sadrel") {}

  void Key(const QString& key) {
    Tool({"key", key});
    QThread::msleep(kLetterMs);
  }
};

TEST_F(Wizard, RefusesAWrongBenchFileInItsOwnName) {
  const TempFolder folder;
  Start({}, folder.Write("bench.xml", "no bench"));
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
  EXPECT_TRUE(program_.readAllStandardError().startsWith("sadrel: "));
}

TEST_F(Wizard, LeavesByCancelOnTheSimulator) {
  Start({"/sim"});
  Press(AwaitWindows(2).front(), {"Return"});
  const QString window = AwaitWindows(1).front();
  AwaitRest();
  Press(window, {"alt+c"});
  Press(AwaitWindows(2).front(), {"Return"});
  ExpectGoodEnd();
}

TEST_F(Wizard, IsRefusedADeviceThatTheFullWindowHolds) {
  QProcess full;
  const QString wizard = std::exchange(path_, MORTANE_PROGRAM);
  Start(full, {"/SIM"});
  Press(AwaitWindows(2, "Mortane").front(), {"Return"});
  AwaitWindows(1, "Mortane");
  path_ = wizard;
  Start({"/SIM"});
  Press(AwaitWindows(2).front(), {"Return"});
  ExpectGoodEnd();
  full.kill();
  full.waitForFinished(kPatienceMs);
}

class WizardOn : public Wizard, public testing::WithParamInterface<const char*> {};

// From the name of the system through every step that the bench has to the saved file.
TEST_P(WizardOn, IsGoneThroughByKeyboardAlone) {
  const TempFolder folder;
  const std::string bench = folder.Path("bench.xml");
  const std::string saved = folder.Path("saved.xml");
  controller::WriteBenchFile(bench, controller::benches::Named(GetParam()));
  Start({}, bench);
  const QString window = AwaitWindows(1).front();
  AwaitRest();
  Tool({"windowfocus", "--sync", window});
  QThread::msleep(kLetterMs);
  Tool({"key", "ctrl+a"});
  Tool({"type", "Bay 4"});
  Key(kNext);
  // Custom; whatever is checked or not, each item is turned over.
  Tool({"key", "Down", "Tab"});
  for (int item = 0; item < kItems; ++item) Tool({"key", "space", "Down"});
  for (int step = 1; step < kSteps; ++step) Key(kNext);
  QThread::msleep(kDoubleClickMs);
  Key("alt+e");
  Press(AwaitWindows(2).front(), {"Return"});
  Tool({"windowfocus", "--sync", AwaitWindows(1, "Save As").front()});
  Tool({"type", QString::fromStdString(saved)});
  Tool({"key", "Return"});
  ExpectGoodEnd();
  EXPECT_EQ(controller::ReadBenchFile(bench).instruments[1].name, "Bay 4");
  EXPECT_NE(TempFolder::Read(saved).find("Bay 4"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Benches, WizardOn, testing::Values("Harbour", "Lantern", "Pair"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace mortane::test
