// Short random walks over both windows; tools/walk.sh makes long ones.
#include <gtest/gtest.h>

#include "Walk.h"
#include "controller/simulator/Benches.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

// Enough to set off what is on the pages; more takes long.
constexpr int kMainEvents = 80;
constexpr int kWizardEvents = 30;

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// Each bench is walked over in one of the windows, and over all cases in both.
std::vector<std::string> BenchesFor(WalkedWindow window) {
  const std::vector<std::string> names = controller::benches::Names();
  std::vector<std::string> walked;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const WalkedWindow own = i % 2 == 1 ? WalkedWindow::Main : WalkedWindow::Wizard;
    if (own == window || TriesAllCases()) walked.push_back(names[i]);
  }
  return walked;
}

class MainWindowWalk : public ::testing::TestWithParam<std::string> {};

TEST_P(MainWindowWalk, BreaksNothing) {
  const WalkPlan plan{WalkedWindow::Main, GetParam(), 1, kMainEvents};
  EXPECT_EQ(Joined(Walk(plan)), "");
}

class WizardWalk : public ::testing::TestWithParam<std::string> {};

TEST_P(WizardWalk, BreaksNothing) {
  const WalkPlan plan{WalkedWindow::Wizard, GetParam(), 1, kWizardEvents};
  EXPECT_EQ(Joined(Walk(plan)), "");
}

std::string NameOf(const ::testing::TestParamInfo<std::string>& row) {
  return row.param;
}

INSTANTIATE_TEST_SUITE_P(Benches, MainWindowWalk,
                         ::testing::ValuesIn(BenchesFor(WalkedWindow::Main)), NameOf);
INSTANTIATE_TEST_SUITE_P(Benches, WizardWalk, ::testing::ValuesIn(BenchesFor(WalkedWindow::Wizard)),
                         NameOf);

}  // namespace
}  // namespace mortane::test
